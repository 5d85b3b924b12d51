#ifndef SHAPEWIDGETCONTENT_H
#define SHAPEWIDGETCONTENT_H

#include "orvanecontrolsglobal.h"

#include <QList>
#include <QPointer>
#include <QVector>
#include <QWidget>

class QGridLayout;

/**
 * A grid of buttons with a fixed number of columns that reports which of them was clicked.
 *
 * Set the number of columns, then the list:
 *
 * \code
 * auto *content = new ShapeWidgetContent(panel);
 * content->setColumn(3);
 * content->setLsWidget(buttons);
 * \endcode
 */
class ORVANECONTROLS_EXPORT ShapeWidgetContent : public QWidget
{
    Q_OBJECT

public:
    /// Builds an empty grid without columns, owned by \a parent.
    explicit ShapeWidgetContent(QWidget *parent = nullptr);

    /// Puts the widgets of \a list into the grid, row by row, in place of those so far. The grid
    /// owns them from now on; those that it held and that are not in \a list are hidden. Null
    /// pointers are left out. Each widget is to have a signal clicked(); of one without Qt warns.
    /// \see lsWidget()
    void setLsWidget(const QList<QWidget *> &list);
    /// The widgets of the grid that still exist. \see setLsWidget()
    QList<QWidget *> lsWidget() const;

    /// Sets the number of columns; it shows with the next list. With less than 1 nothing is laid
    /// out. \see column()
    void setColumn(int column);
    /// The number of columns, 0 until set. \see setColumn()
    int column() const;

    /// Lays the list out in the grid and takes the size that the widgets need, as they are sized
    /// now, in pixels. Without columns it does nothing. setLsWidget() calls it.
    void createWidgetLayout();

Q_SIGNALS:
    /// For the host's use: the grid itself never emits it.
    void sigHide();
    /// The widget at \a index of the list was clicked. The grid may be deleted here.
    void sigClickedIndex(int index);

private Q_SLOTS:
    void on_itemClicked();

private:
    QGridLayout *m_gridLayout = nullptr;
    QVector<QPointer<QWidget>> m_lsWidget;
    int m_column = 0;
};

#endif // SHAPEWIDGETCONTENT_H
