#include "treeviewex.h"

#include "internal/stylesheet.h"
#include "treeitem.h"

#include <QCursor>
#include <QDebug>
#include <QHeaderView>
#include <QPointer>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVector>

TreeViewEx::TreeViewEx(QWidget *parent)
    : QTreeWidget(parent)
{
    setAttribute(Qt::WA_MacShowFocusRect, false);
    setHeaderHidden(true);
    setHorizontalScrollMode(ScrollPerPixel);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);

    connect(horizontalScrollBar(), &QScrollBar::rangeChanged, this, &TreeViewEx::on_rangeChanged);
    connect(this, &QTreeWidget::itemClicked, this, &TreeViewEx::on_itemClicked);
    connect(this, &QTreeWidget::itemChanged, this, &TreeViewEx::slot_itemChanged);
    setTreeWidgetStyleSheet();
}

void TreeViewEx::addTreeItem(QTreeWidgetItem *parentItem, QString name, QSize size, QObject *object,
                             Qt::CheckState state)
{
    // What the branch and the right edge take of the tree's width.
    constexpr int reservedWidth = 30;

    if (!parentItem || (parentItem->treeWidget() && parentItem->treeWidget() != this))
        return;
    auto *item = new QTreeWidgetItem(parentItem);
    item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
    item->setCheckState(0, state);

    auto *widget = new TreeItem(name, size, viewport()); // where rows are: in its style at once
    widget->setObject(object);
    widget->resize(width(), widget->height());
    widget->setTilteStyleSheet(m_titleStyle);
    widget->setContentStyleSheet(m_contentStyle);
    widget->setAttribute(Qt::WA_TranslucentBackground);
    setColumnWidth(0, width() - reservedWidth);
    setItemWidget(item, 0, widget);
}

void TreeViewEx::removeAllItem()
{
    clear();
}

void TreeViewEx::setTreeWidgetStyleSheet()
{
    orvane::applyStyleSheet(
        this,
        QStringLiteral("QTreeView{outline:none;border:none}"
                       "QTreeView::branch{background:rgb(56,56,56);}"
                       "QTreeView::branch:has-children:!has-siblings:closed,"
                       "QTreeView::branch:closed:has-children:has-siblings{"
                       "background:rgb(56,56,56);border-image: none;"
                       "image: url(:/Resource/Images/globalResource/drawer/close.png);}"
                       "QTreeView::branch:open:has-children:!has-siblings,"
                       "QTreeView::branch:open:has-children:has-siblings{"
                       "background:rgb(56,56,56);border-image: none;"
                       "image: url(:/Resource/Images/globalResource/drawer/open.png);}"
                       "QTreeView{background:rgb(56,56,56);}"
                       "QTreeView:item{background:rgb(56,56,56);image: none;border-radius:5px;}"
                       "QTreeView:item:hover{image: none;background-color:rgb(128,128,128);}"
                       "QTreeView:item:selected{image: none;background-color:rgb(45,46,48);}"));
}

QString TreeViewEx::strTitleStyle() const
{
    return m_titleStyle;
}

void TreeViewEx::setStrTitleStyle(const QString &style)
{
    m_titleStyle = style;
}

QString TreeViewEx::strContentStyle() const
{
    return m_contentStyle;
}

void TreeViewEx::setStrContentStyle(const QString &style)
{
    m_contentStyle = style;
}

void TreeViewEx::rowsInserted(const QModelIndex &parent, int start, int end)
{
    // When rows have widgets, Qt places all of them in a visible tree for each row that is added.
    // With a layout pending, and in this state, which it uses itself while rows are removed, it
    // does so once, before it paints.
    const State stateBefore = state();
    scheduleDelayedItemsLayout();
    setState(CollapsingState);
    QTreeWidget::rowsInserted(parent, start, end);
    setState(stateBefore);
}

void TreeViewEx::on_itemClicked(QTreeWidgetItem *item, int column)
{
    if (!itemWidget(item, column))
        return;
    // A row is also clicked beside its widget, on the indentation; there its state stays.
    const QRect row = visualItemRect(item).translated(viewport()->mapToGlobal(QPoint(0, 0)));
    if (!row.contains(QCursor::pos()))
        return;
    const Qt::CheckState state =
        item->checkState(column) == Qt::Checked ? Qt::Unchecked : Qt::Checked;
    if (item->flags() & Qt::ItemIsAutoTristate) {
        item->setCheckState(column, state); // reports the changes of its children as well
        return;
    }
    // Qt works with the item after it has reported a change, and a host may delete it in that: so
    // the reports are made here, when Qt is done.
    QVector<QPersistentModelIndex> changed = {indexFromItem(item, column)};
    for (QTreeWidgetItem *above = item->parent();
         above && (above->flags() & Qt::ItemIsAutoTristate); above = above->parent())
        changed.append(indexFromItem(above, column));
    {
        const QSignalBlocker blocker(model());
        item->setCheckState(column, state);
    }
    const QPointer<QAbstractItemModel> reporter(model());
    for (const QPersistentModelIndex &index : changed) {
        if (reporter && index.isValid())
            Q_EMIT reporter->dataChanged(index, index, {Qt::CheckStateRole});
    }
}

void TreeViewEx::on_rangeChanged(int, int max)
{
    horizontalScrollBar()->setValue(max);
    qDebug() << max;
}

void TreeViewEx::slot_itemChanged(QTreeWidgetItem *, int column)
{
    qDebug() << "slot_itemChanged=====" << column;
}
