#ifndef WALL_WALLPAGE_NUMBERFIELD_H
#define WALL_WALLPAGE_NUMBERFIELD_H

#include <spinboxex.h>

namespace wall
{

/// A number that one or several things have. When theirs differ it shows the library's "---".
///
/// It does not change by itself: it says what the user wants, and shows what comes of it. A typed
/// number is meant for all of them as it is, once it is finished; a step by arrows, keys or wheel
/// is meant for each of them from where it is.
class NumberField : public SpinBoxEx
{
    Q_OBJECT

public:
    explicit NumberField(QWidget *parent);

    /// Shows \a value, unless another one is being typed. With \a isMixed it is only what typing
    /// begins from.
    void showNumber(int value, bool isMixed);
    bool isMixed() const;

    void stepBy(int steps) override;
    QValidator::State validate(QString &text, int &position) const override;

Q_SIGNALS:
    void numberTyped(int value);
    void numberStepped(int steps);
    /// The steps that follow have nothing to do with those before.
    void seriesEnded();

protected:
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    void finishTyping();

    bool m_isMixed = false;
    bool m_isTyping = false;
};

} // namespace wall

#endif // WALL_WALLPAGE_NUMBERFIELD_H
