#include "tablelook.h"

#include "../scrollbarex.h"

#include <QHeaderView>
#include <QTableWidget>

namespace orvane
{

namespace
{

constexpr int handleHeight = 8;

} // namespace

void initTableBehavior(QTableWidget *table)
{
    table->verticalHeader()->hide();
    table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setFocusPolicy(Qt::NoFocus);
    table->setFrameShape(QFrame::NoFrame);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
}

void styleTableScrollBars(QTableWidget *table, int horizontalHeight)
{
    ScrollBarEx vertical(table->verticalScrollBar(), false);
    vertical.setVerticalStyle();

    ScrollBarEx horizontal(table->horizontalScrollBar(), false);
    horizontal.setScrollHeight(horizontalHeight);
    horizontal.setScrollBarHeight(handleHeight); // applies the style, too
}

SheetText tableSheet(QStringView border, QStringView font)
{
    SheetText sheet;
    sheet << u"QCheckBox::indicator:enabled:checked{image:"
             u"url(:/Resource/Images/globalResource/tableWidget/check.png);}"
             u"QCheckBox::indicator:enabled:unchecked{image:"
             u"url(:/Resource/Images/globalResource/tableWidget/unchecked.png);}"
             u"QCheckBox{margin-left:6px;width:16px;height:16px;background-color:transparent;}"
             u"QTableWidget{background-color:rgb(56,56,56);"
          << border << u"color:rgb(210,210,210);" << font
          << u"gridline-color:rgb(69,69,69);text-align:center;}"
             u"QTableWidget:item:hover{background-color:rgb(128,128,128);}"
             u"QTableWidget:item:selected{background-color:rgb(45,46,48);color:white;}"
             u"QHeaderView::section{background-color:rgb(52,52,52);color:rgb(210,210,210);"
          << font << u"border:1px solid #454545;}";
    return sheet;
}

} // namespace orvane
