#ifndef WIDGETCONTENT_H
#define WIDGETCONTENT_H

#include "orvanecontrolsglobal.h"

#include <QList>
#include <QPointer>
#include <QVector>
#include <QWidget>

class QHBoxLayout;

/**
 * The row of buttons inside a controller board's strip.
 */
class ORVANECONTROLS_EXPORT WidgetContent : public QWidget
{
    Q_OBJECT

public:
    /// Builds an empty row, owned by \a parent.
    explicit WidgetContent(QWidget *parent = nullptr);

    /// Puts \a widget at the end of the row, behind the stretch that follows the buttons. It does
    /// not become one of lsWidget(). The row owns it from now on; a null pointer is ignored.
    void addItem(QWidget *widget);
    /// Takes the widget at \a index out of lsWidget(), if there is one; it stays in the row.
    void removeItem(int index);
    /// Takes every widget out of lsWidget(); they stay in the row.
    void removeAll();

    /// Appends the widgets of \a list to the row, which owns them from now on. Each is to have a
    /// signal clicked(); of one without Qt warns. Null pointers are left out. With an empty list
    /// the row becomes fixed at 10 by 10 pixels, until there is another list. \see lsWidget()
    void setLsWidget(const QList<QWidget *> &list);
    /// The widgets last set that still exist and were not removed. \see setLsWidget()
    QList<QWidget *> lsWidget() const;

Q_SIGNALS:
    /// One of the row's buttons was clicked: a panel that shows them all should hide. The row may
    /// be deleted here.
    void notifyShpeWidgetHide();

public Q_SLOTS:
    /// Reports a click on a button.
    void on_buttonClicked();

private:
    void createLayout();

    QVector<QPointer<QWidget>> m_lsWidget;
    QHBoxLayout *m_layout = nullptr;
    int m_emptyWidth = 10;
    int m_emptyHeight = 10;
};

#endif // WIDGETCONTENT_H
