#ifndef WALL_WALLPAGE_CABINETCLICKS_H
#define WALL_WALLPAGE_CABINETCLICKS_H

#include <QObject>
#include <QPoint>

class QMouseEvent;
class ToolButtonEx;

namespace wall
{

/// Tells what is meant by mouse and keys on the library's cabinet buttons. Such a button reports
/// the end of every press, of one that became a drag or that ended elsewhere, too, and it reports
/// no keys.
class CabinetClicks : public QObject
{
    Q_OBJECT

public:
    explicit CabinetClicks(QObject *parent);

    void watch(ToolButtonEx *button);
    /// Whether the press whose end a button reports now was a click on it.
    bool isClick() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// \a button was chosen with Space, Return or Enter.
    void chosenByKey(ToolButtonEx *button);

private:
    void follow(const ToolButtonEx *button, const QMouseEvent *event);

    QPoint m_pressPoint;
    bool m_isClick = false;
};

} // namespace wall

#endif // WALL_WALLPAGE_CABINETCLICKS_H
