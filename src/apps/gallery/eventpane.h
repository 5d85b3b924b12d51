#ifndef GALLERY_EVENTPANE_H
#define GALLERY_EVENTPANE_H

#include <QWidget>

class PushButtonEx;
class QLabel;
class QTreeWidget;

/// Lists the signals that the tried widgets emit, the newest at the bottom.
class EventPane : public QWidget
{
    Q_OBJECT

public:
    explicit EventPane(QWidget *parent = nullptr);

    /// Adds a line: who emitted, and the signal with its arguments.
    void add(const QString &className, const QString &signal);

Q_SIGNALS:
    /// How many events are listed, or were since the last clearing.
    void countChanged(int count);

private:
    void clear();

    QLabel *m_count;
    QTreeWidget *m_list;
    PushButtonEx *m_clearButton;
    int m_number = 0;
};

#endif // GALLERY_EVENTPANE_H
