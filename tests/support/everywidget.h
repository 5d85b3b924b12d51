#ifndef ORVANE_TESTS_EVERYWIDGET_H
#define ORVANE_TESTS_EVERYWIDGET_H

#include "framewarnings.h"

#include <backupparam.h>
#include <buttongroupex.h>
#include <checkboxex.h>
#include <comboboxex.h>
#include <comboboxitem.h>
#include <customlistwidgetitem.h>
#include <customlistwidgetmulitem.h>
#include <custommessagebox.h>
#include <customwidget.h>
#include <doublespinboxex.h>
#include <drawer.h>
#include <draweritem.h>
#include <draweritemcontent.h>
#include <drawitemcontentnew.h>
#include <equiplistwidget.h>
#include <labelex.h>
#include <lineeditex.h>
#include <listwidgetex.h>
#include <listwidgettitle.h>
#include <mutexbuttonex.h>
#include <newtablewidget.h>
#include <nqtabbar.h>
#include <nqtabwidget.h>
#include <nqtoolbutton.h>
#include <offlineportitemcontentframe.h>
#include <offlineportitemframe.h>
#include <pushbuttonex.h>
#include <radiobuttonex.h>
#include <rowlineitem.h>
#include <shapewidget.h>
#include <shapewidgetcontent.h>
#include <sliderex.h>
#include <sliderexmouse.h>
#include <spinboxex.h>
#include <tabbarrd.h>
#include <tablewidgetcustom.h>
#include <tablewidgetex.h>
#include <toolbarex.h>
#include <toolbuttonex.h>
#include <treeitem.h>
#include <treeviewex.h>
#include <widgetboard.h>
#include <widgetcontent.h>
#include <widgetcontrollboard.h>
#include <widgetwithscrollex.h>
#include <windowframe.h>
#include <windowtitle.h>

#include <functional>
#include <memory>

/// Every widget of the library as its constructor makes it.
struct NewWidget {
    QByteArray name;
    std::function<QWidget *()> make;
    QStringList warnings; ///< What Qt says when it is built.
};

inline QList<NewWidget> everyWidget()
{
    return {
        {"CheckBoxEx", [] { return new CheckBoxEx; }, {}},
        {"RadioButtonEx", [] { return new RadioButtonEx; }, {}},
        {"LabelEx", [] { return new LabelEx; }, {}},
        {"PushButtonEx", [] { return new PushButtonEx(nullptr, ActivatedBtn); }, {}},
        {"SpinBoxEx", [] { return new SpinBoxEx; }, {}},
        {"DoubleSpinBoxEx", [] { return new DoubleSpinBoxEx; }, {}},
        {"LineEditEx", [] { return new LineEditEx(nullptr, NormalLineEdit); }, {}},
        {"SliderEx", [] { return new SliderEx(nullptr, Qt::Horizontal); }, {}},
        {"SliderExMouse", [] { return new SliderExMouse(nullptr, Qt::Horizontal); }, {}},
        {"ComboboxItem", [] { return new ComboboxItem(nullptr, QPixmap(), QString(), 0); }, {}},
        {"ComboBoxEx", [] { return new ComboBoxEx; }, {}},
        {"ToolButtonEx, left to right",
         [] { return new ToolButtonEx(nullptr, LeftToRightType, QString(), QString()); },
         {}},
        {"ToolButtonEx, top to bottom",
         [] { return new ToolButtonEx(nullptr, TopToBottomType, QString(), QString()); },
         {}},
        {"ToolButtonEx, cabinet",
         [] { return new ToolButtonEx(nullptr, CabinetType, QString(), QString()); },
         {}},
        {"ToolButtonEx, model",
         [] { return new ToolButtonEx(nullptr, CabinetModelType, QString(), QString()); },
         {}},
        {"MutexButtonEx", [] { return new MutexButtonEx; }, {}},
        {"ToolBarEx", [] { return new ToolBarEx; }, {}},
        {"WidgetWithScrollEx", [] { return new WidgetWithScrollEx; }, {}},
        {"ButtonGroupEx", [] { return new ButtonGroupEx; }, {}},
        {"OfflinePortItemFrame", [] { return new OfflinePortItemFrame; }, {}},
        {"OfflinePortItemContentFrame", [] { return new OfflinePortItemContentFrame; }, {}},
        {"DrawItemContentNew", [] { return new DrawItemContentNew; }, {}},
        {"RowLineItem", [] { return new RowLineItem; }, {}},
        {"DrawerItemContent", [] { return new DrawerItemContent; }, {}},
        {"DrawerItem", [] { return new DrawerItem; }, {}},
        {"Drawer", [] { return new Drawer; }, {}},
        {"ShapeWidget", [] { return new ShapeWidget; }, {}},
        {"ShapeWidgetContent", [] { return new ShapeWidgetContent; }, {}},
        {"WidgetBoard", [] { return new WidgetBoard; }, {}},
        {"WidgetContent", [] { return new WidgetContent; }, {}},
        {"WidgetControllBoard", [] { return new WidgetControllBoard; }, {}},
        {"WindowTitle", [] { return new WindowTitle(QSize(400, 30)); }, framewarnings::ofTitle()},
        {"WindowFrame",
         [] {
             const QSize size(800, 600);
             return new WindowFrame(size, size, QSize(400, 300));
         },
         framewarnings::ofFrame()},
        {"CustomMessageBox", [] { return new CustomMessageBox; }, {}},
        {"CustomWidget", [] { return new CustomWidget; }, {}},
        {"NQToolButton, caption", [] { return new NQToolButton(nullptr, ImageAboveCaption); }, {}},
        {"NQToolButton, pictures", [] { return new NQToolButton(nullptr, ImageBesideImage); }, {}},
        {"TabBarRd", [] { return new TabBarRd; }, {}},
        {"NQTabBar", [] { return new NQTabBar; }, {}},
        {"NQTabWidget", [] { return new NQTabWidget; }, {}},
        {"CustomListWidgetItem", [] { return new CustomListWidgetItem; }, {}},
        {"ListWidgetEx", [] { return new ListWidgetEx; }, {}},
        {"ListWidgetTitle", [] { return new ListWidgetTitle(QString()); }, {}},
        {"CustomListWidgetMulItem",
         [] { return new CustomListWidgetMulItem(QStringList(), nullptr, false); },
         {}},
        {"EquipListWidget", [] { return new EquipListWidget(QString()); }, {}},
        {"TreeItem", [] { return new TreeItem(QString(), QSize(64, 32)); }, {}},
        {"TreeViewEx", [] { return new TreeViewEx; }, {}},
        {"TableWidgetEx", [] { return new TableWidgetEx(nullptr, EditableTable, QString()); }, {}},
        {"TableWidgetCustom",
         [] {
             return new TableWidgetCustom({BackUpParam()}, {"", ""}, 1, 2);
         },
         {}},
        {"NewTableWidget", [] { return new NewTableWidget; }, {}},
    };
}

#endif // ORVANE_TESTS_EVERYWIDGET_H
