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

QString tableSheet(const QString &border, const QString &font)
{
    return "QCheckBox::indicator:enabled:checked{image:"
           "url(:/Resource/Images/globalResource/tableWidget/check.png);}"
           "QCheckBox::indicator:enabled:unchecked{image:"
           "url(:/Resource/Images/globalResource/tableWidget/unchecked.png);}"
           "QCheckBox{margin-left:6px;width:16px;height:16px;background-color:transparent;}"
           "QTableWidget{background-color:rgb(56,56,56);"
        + border + "color:rgb(210,210,210);" + font
        + "gridline-color:rgb(69,69,69);text-align:center;}"
          "QTableWidget:item:hover{background-color:rgb(128,128,128);}"
          "QTableWidget:item:selected{background-color:rgb(45,46,48);color:white;}"
          "QHeaderView::section{background-color:rgb(52,52,52);color:rgb(210,210,210);"
        + font + "border:1px solid #454545;}";
}

} // namespace orvane
