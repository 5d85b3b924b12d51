#include "customlistwidgetitem.h"
#include "customlistwidgetmulitem.h"
#include "equiplistwidget.h"
#include "listwidgetex.h"
#include "listwidgettitle.h"
#include "newtablewidget.h"
#include "table.h"
#include "tablewidgetcustom.h"
#include "tablewidgetex.h"
#include "treeitem.h"
#include "treeviewex.h"

#include <QTreeWidgetItem>
#include <QVBoxLayout>

namespace randomuse
{

namespace
{

Entry customListWidgetItem()
{
    return Table<CustomListWidgetItem>(
               "CustomListWidgetItem",
               [](Life &life) { return new CustomListWidgetItem(life.parentOrNone()); })
        .call(NAMED(CustomListWidgetItem, setDisplayInfo))
        .call(NAMED(CustomListWidgetItem, setValueInfo))
        .call(NAMED(CustomListWidgetItem, getProjectPath))
        .call(NAMED(CustomListWidgetItem, setValidIcon))
        .call(NAMED(CustomListWidgetItem, slot_deleteItem));
}

Entry listWidgetEx()
{
    return Table<ListWidgetEx>("ListWidgetEx",
                               [](Life &life) { return new ListWidgetEx(life.parentOrNone()); })
        .call(NAMED(ListWidgetEx, setStyle))
        .call(NAMED(ListWidgetEx, addCustomItem), Again::Grows)
        .call(NAMED(ListWidgetEx, deleteItem))
        .call(NAMED(ListWidgetEx, clearAllItems))
        .call(NAMED(ListWidgetEx, getItemIndex))
        .call(NAMED(ListWidgetEx, setBgNormalColor))
        .call(NAMED(ListWidgetEx, bgNormalColor))
        .call(NAMED(ListWidgetEx, setBgHoverColor))
        .call(NAMED(ListWidgetEx, bgHoverColor))
        .call(NAMED(ListWidgetEx, setBgPressedColor))
        .call(NAMED(ListWidgetEx, bgPressedColor))
        .call(NAMED(ListWidgetEx, setFontColor))
        .call(NAMED(ListWidgetEx, fontColor))
        .call(NAMED(ListWidgetEx, fromColorToStr))
        .call(NAMED(ListWidgetEx, slot_notifyProjectPath))
        .call(NAMED(ListWidgetEx, slot_notifyDeleteItem));
}

Entry listWidgetTitle()
{
    return Table<ListWidgetTitle>("ListWidgetTitle",
                                  [](Life &life) {
                                      return new ListWidgetTitle(life.value<QString>(),
                                                                 life.parentOrNone());
                                  })
        .call(NAMED(ListWidgetTitle, setTitle))
        .call(NAMED(ListWidgetTitle, changeDropDownBtn))
        .call(NAMED(ListWidgetTitle, hideRefIcon))
        .call(NAMED(ListWidgetTitle, setIconVisible))
        .call(NAMED(ListWidgetTitle, slot_HideClicked));
}

Entry customListWidgetMulItem()
{
    return Table<CustomListWidgetMulItem>("CustomListWidgetMulItem",
                                          [](Life &life) {
                                              return new CustomListWidgetMulItem(
                                                  life.value<QStringList>(), life.parentOrNone(),
                                                  false);
                                          })
        .call(NAMED(CustomListWidgetMulItem, getLabelList))
        .call(NAMED(CustomListWidgetMulItem, getCurrentDevportName))
        .call(NAMED(CustomListWidgetMulItem, isChecked))
        .call(NAMED(CustomListWidgetMulItem, setChecked))
        .call(NAMED(CustomListWidgetMulItem, checkBox))
        .call(NAMED(CustomListWidgetMulItem, hideCheckBox))
        .call(NAMED(CustomListWidgetMulItem, slot_dealEnterButtonClick));
}

Entry equipListWidget()
{
    return Table<EquipListWidget>("EquipListWidget",
                                  [](Life &life) {
                                      return new EquipListWidget(life.value<QString>(),
                                                                 life.parentOrNone());
                                  })
        .call(NAMED(EquipListWidget, setTitle))
        .call(NAMED(EquipListWidget, setTitleVisiable))
        .call(NAMED(EquipListWidget, setIconVisible))
        .call(NAMED(EquipListWidget, hideRefIcon))
        .call(NAMED(EquipListWidget, setRefLabelText))
        .call(NAMED(EquipListWidget, addCustomItem), Again::Grows)
        .call(NAMED(EquipListWidget, removeCustomItem))
        .call(NAMED(EquipListWidget, clearAllCustomItems))
        .call(NAMED(EquipListWidget, getItems))
        .call(NAMED(EquipListWidget, hideCheckBox))
        .call(NAMED(EquipListWidget, getListWidget))
        .call(NAMED(EquipListWidget, slot_ShowList))
        .call(NAMED(EquipListWidget, slot_ShowRefAnimation))
        .call(NAMED(EquipListWidget, slot_StopRefAnimation))
        .call(NAMED(EquipListWidget, slot_deviceItemDoubleClicked))
        .call(NAMED(EquipListWidget, slot_emitSettingData));
}

Entry treeItem()
{
    return Table<TreeItem>("TreeItem",
                           [](Life &life) {
                               return new TreeItem(life.value<QString>(), life.value<QSize>(),
                                                   life.parentOrNone());
                           })
        .call(NAMED(TreeItem, setTilteStyleSheet))
        .call(NAMED(TreeItem, setContentStyleSheet))
        .call(NAMED(TreeItem, getCabinetName))
        .call(NAMED(TreeItem, setCabinetName))
        .call(NAMED(TreeItem, getCabinetSize))
        .call(NAMED(TreeItem, getObject))
        .call(NAMED(TreeItem, setObject));
}

Entry treeViewEx()
{
    return Table<TreeViewEx>("TreeViewEx",
                             [](Life &life) { return new TreeViewEx(life.parentOrNone()); })
        .act(
            "addTreeItem",
            [](Life &life, TreeViewEx *subject) {
                QTreeWidgetItem *parent =
                    subject->topLevelItem(life.index(subject->topLevelItemCount()));
                const QString name = life.value<QString>();
                const QSize size = life.value<QSize>();
                QObject *object = anyObject<QObject>(life);
                subject->addTreeItem(parent, name, size, object, life.value<Qt::CheckState>());
            },
            Again::Grows)
        .act("addTopLevelItem",
             [](Life &life, TreeViewEx *subject) {
                 subject->addTopLevelItem(new QTreeWidgetItem({life.value<QString>()}));
             })
        .act("takeTopLevelItem",
             [](Life &life, TreeViewEx *subject) {
                 delete subject->takeTopLevelItem(life.index(subject->topLevelItemCount()));
             })
        .call(NAMED(TreeViewEx, removeAllItem))
        .call(NAMED(TreeViewEx, setTreeWidgetStyleSheet))
        .call(NAMED(TreeViewEx, strTitleStyle))
        .call(NAMED(TreeViewEx, setStrTitleStyle))
        .call(NAMED(TreeViewEx, strContentStyle))
        .call(NAMED(TreeViewEx, setStrContentStyle));
}

Entry tableWidgetEx()
{
    return Table<TableWidgetEx>("TableWidgetEx",
                                [](Life &life) {
                                    const auto type = life.value<TableWidgetType>();
                                    return new TableWidgetEx(life.parentOrNone(), type,
                                                             life.value<QString>());
                                })
        .call(NAMED(TableWidgetEx, initStyle))
        .call(NAMED(TableWidgetEx, setTableWidgetStyle))
        .call(NAMED(TableWidgetEx, setIsLoadCornerWidget))
        .call(NAMED(TableWidgetEx, initCornerWidget))
        .call(NAMED(TableWidgetEx, setIsShowAddButton))
        .call(NAMED(TableWidgetEx, setTabsClosable))
        .call(NAMED(TableWidgetEx, setCornerWidget), Again::Grows) // Qt keeps the earlier ones
        .call(NAMED(TableWidgetEx, removeTab))
        .call(NAMED(TableWidgetEx, addTable), Again::Grows)
        .call(NAMED(TableWidgetEx, addTab), Again::Grows)
        .call(NAMED(TableWidgetEx, customAddTab), Again::Grows)
        .call(NAMED(TableWidgetEx, setTabText))
        .call(NAMED(TableWidgetEx, setScrollStyle))
        .call(NAMED(TableWidgetEx, index))
        .call(NAMED(TableWidgetEx, setIndex))
        .call(NAMED(TableWidgetEx, titleText))
        .call(NAMED(TableWidgetEx, setTitleText))
        .call(NAMED(TableWidgetEx, bMovedCornerButton))
        .call(NAMED(TableWidgetEx, setBMovedCornerButton))
        .call(NAMED(TableWidgetEx, bNeedScrollBar))
        .call(NAMED(TableWidgetEx, setBNeedScrollBar))
        .call(NAMED(TableWidgetEx, mainLayout))
        .call(NAMED(TableWidgetEx, setMainLayout))
        .call(NAMED(TableWidgetEx, tabWorkSpaceColor))
        .call(NAMED(TableWidgetEx, setTabWorkSpaceColor))
        .call(NAMED(TableWidgetEx, fontColor))
        .call(NAMED(TableWidgetEx, setFontColor))
        .call(NAMED(TableWidgetEx, fontHoverColor))
        .call(NAMED(TableWidgetEx, setFontHoverColor))
        .call(NAMED(TableWidgetEx, fontPressedColor))
        .call(NAMED(TableWidgetEx, setFontPressedColor))
        .call(NAMED(TableWidgetEx, tabNomalColor))
        .call(NAMED(TableWidgetEx, setTabNomalColor))
        .call(NAMED(TableWidgetEx, tabHoverColor))
        .call(NAMED(TableWidgetEx, setTabHoverColor))
        .call(NAMED(TableWidgetEx, tabSelectedColor))
        .call(NAMED(TableWidgetEx, setTabSelectedColor))
        .call(NAMED(TableWidgetEx, tabPanelWidth))
        .call(NAMED(TableWidgetEx, setTabPanelWidth))
        .call(NAMED(TableWidgetEx, tabPanelHeight))
        .call(NAMED(TableWidgetEx, setTabPanelHeight))
        .call(NAMED(TableWidgetEx, leftMargin))
        .call(NAMED(TableWidgetEx, setLeftMargin))
        .call(NAMED(TableWidgetEx, topMargin))
        .call(NAMED(TableWidgetEx, setTopMargin))
        .call(NAMED(TableWidgetEx, fromColorToStr))
        .call(NAMED(TableWidgetEx, on_addTable), Again::Grows)
        .call(NAMED(TableWidgetEx, on_removeTable));
}

Entry tableWidgetCustom()
{
    return Table<TableWidgetCustom>("TableWidgetCustom",
                                    [](Life &life) {
                                        const auto records = life.value<QList<BackUpParam>>();
                                        const auto headers = life.value<QStringList>();
                                        const int rows = life.dice().between(-1, 12);
                                        return new TableWidgetCustom(records, headers, rows,
                                                                     life.dice().between(-1, 7),
                                                                     life.parentOrNone());
                                    })
        .call(NAMED(TableWidgetCustom, updateUi))
        .call(NAMED(TableWidgetCustom, insertHotBackUpInfo), Again::Grows)
        .call(NAMED(TableWidgetCustom, setToolTipMsg))
        .call(NAMED(TableWidgetCustom, TableHeaderList))
        .call(NAMED(TableWidgetCustom, setTableHeaderList))
        .call(NAMED(TableWidgetCustom, TableRowCount))
        .call(NAMED(TableWidgetCustom, setTableRowCount))
        .call(NAMED(TableWidgetCustom, TableColumnCount))
        .call(NAMED(TableWidgetCustom, setTableColumnCount))
        .call(NAMED(TableWidgetCustom, setTableContentCenter))
        .call(NAMED(TableWidgetCustom, setSelectAll))
        .call(NAMED(TableWidgetCustom, formColorToString))
        .act("on_itemEntered", [](Life &life, TableWidgetCustom *subject) {
            const int row = life.index(subject->rowCount());
            subject->on_itemEntered(subject->item(row, life.index(subject->columnCount())));
        });
}

Entry newTableWidget()
{
    return Table<NewTableWidget>("NewTableWidget",
                                 [](Life &life) { return new NewTableWidget(life.parentOrNone()); })
        .act(
            "setRowCount",
            [](Life &life, NewTableWidget *subject) { subject->setRowCount(life.dice().below(8)); })
        .act("setColumnCount",
             [](Life &life, NewTableWidget *subject) {
                 subject->setColumnCount(life.dice().below(6));
             })
        .act("removeRow",
             [](Life &life, NewTableWidget *subject) {
                 subject->removeRow(life.dice().between(-1, 8));
             })
        .act("removeColumn",
             [](Life &life, NewTableWidget *subject) {
                 subject->removeColumn(life.dice().between(-1, 7));
             })
        .call(NAMED(NewTableWidget, initTable))
        .call(NAMED(NewTableWidget, initTableStyle))
        .call(NAMED(NewTableWidget, setAddCheckBoxVisible), Again::Grows) // a column each time
        .call(NAMED(NewTableWidget, createCheckBoxColumn), Again::Grows)
        .call(NAMED(NewTableWidget, on_notifyStateChange))
        .call(NAMED(NewTableWidget, on_valueChange));
}

} // namespace

QVector<Entry> listEntries()
{
    return {customListWidgetItem(), listWidgetEx(),  listWidgetTitle(), customListWidgetMulItem(),
            equipListWidget(),      treeItem(),      treeViewEx(),      tableWidgetEx(),
            tableWidgetCustom(),    newTableWidget()};
}

} // namespace randomuse
