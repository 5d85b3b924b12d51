#include "listwidgetex.h"

#include "customlistwidgetitem.h"
#include "internal/listrows.h"
#include "internal/stylesheet.h"

ListWidgetEx::ListWidgetEx(QWidget *parent)
    : QListWidget(parent)
{
    // Signal spies and queued connections look the type up by name.
    qRegisterMetaType<CustomListWidgetItem *>();
    setStyle();
    setAttribute(Qt::WA_MacShowFocusRect, false);
}

void ListWidgetEx::setStyle()
{
    orvane::SheetText sheet;
    sheet << u"QListWidget{background:" << m_bgNormalColor << u"; " << m_fontColorFragment
          << u"}"
             u"QListWidget:pressed{border:none;}"
             u"QListWidget::item:hover {background:"
          << m_bgHoverColor << u";" << m_fontColorFragment
          << u"}"
             u"QListWidget::item:selected {background:"
          << m_bgPressedColor << u";" << m_fontColorFragment << u"}";
    orvane::applyStyleSheet(this, sheet);
}

CustomListWidgetItem *ListWidgetEx::addCustomItem(QString text, QString value)
{
    auto *item = new CustomListWidgetItem(viewport()); // where rows are: in its style at once
    connect(item, &CustomListWidgetItem::signal_notifyProjectPath, this,
            &ListWidgetEx::slot_notifyProjectPath);
    connect(item, &CustomListWidgetItem::signal_notifyDeleteItem, this,
            &ListWidgetEx::slot_notifyDeleteItem);
    item->setDisplayInfo(text);
    item->setValueInfo(value);
    orvane::appendRow(this, item);
    return item;
}

void ListWidgetEx::deleteItem(int index)
{
    orvane::removeRow(this, index);
}

void ListWidgetEx::clearAllItems()
{
    orvane::removeAllRows(this);
}

int ListWidgetEx::getItemIndex(CustomListWidgetItem *item) const
{
    if (!item)
        return -1; // no row, though rows without a widget may be there
    for (int row = 0; row < count(); ++row) {
        if (indexWidget(model()->index(row, 0)) == item)
            return row;
    }
    return -1;
}

void ListWidgetEx::setBgNormalColor(const QColor &color)
{
    m_bgNormalColor = color;
    setStyle();
}

QColor ListWidgetEx::bgNormalColor() const
{
    return m_bgNormalColor;
}

void ListWidgetEx::setBgHoverColor(const QColor &color)
{
    m_bgHoverColor = color;
    setStyle();
}

QColor ListWidgetEx::bgHoverColor() const
{
    return m_bgHoverColor;
}

void ListWidgetEx::setBgPressedColor(const QColor &color)
{
    m_bgPressedColor = color;
    setStyle();
}

QColor ListWidgetEx::bgPressedColor() const
{
    return m_bgPressedColor;
}

void ListWidgetEx::setFontColor(const QColor &color)
{
    m_fontColor = color;
    m_fontColorFragment = orvane::fontColorFragment(color);
    setStyle();
}

QColor ListWidgetEx::fontColor() const
{
    return m_fontColor;
}

QString ListWidgetEx::fromColorToStr(QColor color)
{
    return orvane::colorText(color);
}

void ListWidgetEx::slot_notifyProjectPath(CustomListWidgetItem *item, QString path)
{
    Q_EMIT signal_notifyProjectPath(item, path);
}

void ListWidgetEx::slot_notifyDeleteItem(CustomListWidgetItem *item)
{
    Q_EMIT signal_notifydeleteItem(this, item, getItemIndex(item));
}

void ListWidgetEx::rowsInserted(const QModelIndex &parent, int start, int end)
{
    // When rows have widgets, Qt lays out all rows of a visible list for each one that is added.
    // In this state, which it uses itself while rows are removed, it does so once, before it
    // paints.
    const State stateBefore = state();
    setState(CollapsingState);
    QListWidget::rowsInserted(parent, start, end);
    setState(stateBefore);
}
