#ifndef GALLERY_PAGELIST_H
#define GALLERY_PAGELIST_H

#include <QString>
#include <QVector>

class Page;

/// The pages in the order of the navigation. A new page is a file in pages/ that says
/// `GALLERY_PAGE(Name) { ... }` and a line here: its group and its name.
#define GALLERY_PAGES(PAGE)                                                                        \
    PAGE("Basic controls", CheckBoxEx)                                                             \
    PAGE("Basic controls", RadioButtonEx)                                                          \
    PAGE("Basic controls", LabelEx)                                                                \
    PAGE("Basic controls", PushButtonEx)                                                           \
    PAGE("Basic controls", SpinBoxEx)                                                              \
    PAGE("Basic controls", DoubleSpinBoxEx)                                                        \
    PAGE("Basic controls", LineEditEx)                                                             \
    PAGE("Basic controls", SliderEx)                                                               \
    PAGE("Basic controls", SliderExMouse)                                                          \
    PAGE("Basic controls", ScrollBarEx)                                                            \
    PAGE("Basic controls", ComboBoxEx)                                                             \
    PAGE("Basic controls", ComboboxItem)                                                           \
    PAGE("Cabinet buttons and strips", ToolButtonEx)                                               \
    PAGE("Cabinet buttons and strips", StructCabinet)                                              \
    PAGE("Cabinet buttons and strips", MutexButtonEx)                                              \
    PAGE("Cabinet buttons and strips", ToolBarEx)                                                  \
    PAGE("Cabinet buttons and strips", ButtonGroupEx)                                              \
    PAGE("Cabinet buttons and strips", WidgetWithScrollEx)                                         \
    PAGE("Cabinet panels", RowLineItem)                                                            \
    PAGE("Cabinet panels", DrawerItemContent)                                                      \
    PAGE("Cabinet panels", DrawerItem)                                                             \
    PAGE("Cabinet panels", Drawer)                                                                 \
    PAGE("Cabinet panels", OfflinePortItemFrame)                                                   \
    PAGE("Cabinet panels", OfflinePortItemContentFrame)                                            \
    PAGE("Cabinet panels", DrawItemContentNew)                                                     \
    PAGE("Cabinet panels", WidgetControllBoard)                                                    \
    PAGE("Cabinet panels", WidgetBoard)                                                            \
    PAGE("Cabinet panels", WidgetContent)                                                          \
    PAGE("Cabinet panels", ShapeWidget)                                                            \
    PAGE("Cabinet panels", ShapeWidgetContent)                                                     \
    PAGE("Window and dialogs", WindowTitle)                                                        \
    PAGE("Window and dialogs", WindowFrame)                                                        \
    PAGE("Window and dialogs", CustomMessageBox)                                                   \
    PAGE("Window and dialogs", CustomMegBox)                                                       \
    PAGE("Window and dialogs", CustomWidget)                                                       \
    PAGE("Tabs", NQToolButton)                                                                     \
    PAGE("Tabs", TabBarRd)                                                                         \
    PAGE("Tabs", NQTabBar)                                                                         \
    PAGE("Tabs", NQTabWidget)                                                                      \
    PAGE("Lists, tables and trees", ListWidgetEx)                                                  \
    PAGE("Lists, tables and trees", ListWidgetTitle)                                               \
    PAGE("Lists, tables and trees", CustomListWidgetItem)                                          \
    PAGE("Lists, tables and trees", EquipListWidget)                                               \
    PAGE("Lists, tables and trees", CustomListWidgetMulItem)                                       \
    PAGE("Lists, tables and trees", TableWidgetEx)                                                 \
    PAGE("Lists, tables and trees", TableWidgetCustom)                                             \
    PAGE("Lists, tables and trees", NewTableWidget)                                                \
    PAGE("Lists, tables and trees", TreeViewEx)                                                    \
    PAGE("Lists, tables and trees", TreeItem)                                                      \
    PAGE("Foundation", DefineCommonData)                                                           \
    PAGE("Foundation", Images)

struct PageInfo {
    QString group;
    QString name;
    void (*build)(Page &page);
};

/// All pages.
const QVector<PageInfo> &pageList();
/// The page of that name, whatever its letters' case; null if there is none.
const PageInfo *findPage(const QString &name);

#endif // GALLERY_PAGELIST_H
