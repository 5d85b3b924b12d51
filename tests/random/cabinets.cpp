#include "buttongroupex.h"
#include "checkboxex.h"
#include "drawer.h"
#include "draweritem.h"
#include "draweritemcontent.h"
#include "drawitemcontentnew.h"
#include "handlers.h"
#include "mutexbuttonex.h"
#include "offlineportitemcontentframe.h"
#include "offlineportitemframe.h"
#include "rowlineitem.h"
#include "table.h"
#include "toolbarex.h"
#include "toolbuttonex.h"
#include "widgetwithscrollex.h"

#include <QScrollArea>
#include <QVBoxLayout>

namespace randomuse
{

namespace
{

Entry toolButtonEx()
{
    return Table<ToolButtonEx>("ToolButtonEx",
                               [](Life &life) { return newObject<ToolButtonEx>(life); })
        .call(NAMED(ToolButtonEx, createButtonByType))
        .call(NAMED(ToolButtonEx, setButtonType))
        .call(NAMED(ToolButtonEx, buttonType))
        .call(NAMED(ToolButtonEx, setText))
        .call(NAMED(ToolButtonEx, text))
        .call(NAMED(ToolButtonEx, setChecked))
        .call(NAMED(ToolButtonEx, setData))
        .call(NAMED(ToolButtonEx, data))
        .call(NAMED(ToolButtonEx, setPressEventUseful))
        .call(NAMED(ToolButtonEx, setAddCabinetStyle))
        .call(NAMED(ToolButtonEx, setCanbinetStyle))
        .call(NAMED(ToolButtonEx, setRightLabelStyle))
        .call(NAMED(ToolButtonEx, setLeftLabelStyle))
        .call(NAMED(ToolButtonEx, setLeftLabelImg))
        .call(NAMED(ToolButtonEx, setRightBottomLableVisible))
        .call(NAMED(ToolButtonEx, pLabelLeft))
        .call(NAMED(ToolButtonEx, setPLabelLeft))
        .call(NAMED(ToolButtonEx, pLabelRight))
        .call(NAMED(ToolButtonEx, setPLabelRight))
        .call(NAMED(ToolButtonEx, setCabinetToAddModel))
        .call(NAMED(ToolButtonEx, fromColorToStr))
        .call(NAMED(ToolButtonEx, setStrUpText))
        .call(NAMED(ToolButtonEx, strUpText))
        .call(NAMED(ToolButtonEx, setStrDownText))
        .call(NAMED(ToolButtonEx, strDownText))
        .call(NAMED(ToolButtonEx, setUpLabelTextColor))
        .call(NAMED(ToolButtonEx, upLabelTextColor))
        .call(NAMED(ToolButtonEx, setDownLabelTextColor))
        .call(NAMED(ToolButtonEx, downLabelTextColor))
        .call(NAMED(ToolButtonEx, setTopToBottomNormalBgColor))
        .call(NAMED(ToolButtonEx, topToBottomNormalBgColor))
        .call(NAMED(ToolButtonEx, setTopToBottomPressedBgColor))
        .call(NAMED(ToolButtonEx, topToBottomPressedBgColor))
        .call(NAMED(ToolButtonEx, setTopToBottomBorderRadius))
        .call(NAMED(ToolButtonEx, topToBottomBorderRadius))
        .call(NAMED(ToolButtonEx, setStrRightText))
        .call(NAMED(ToolButtonEx, strRightText))
        .call(NAMED(ToolButtonEx, setStrRightBottomText))
        .call(NAMED(ToolButtonEx, setStrLeftImgPathNormal))
        .call(NAMED(ToolButtonEx, strLeftImgPathNormal))
        .call(NAMED(ToolButtonEx, setStrLeftImgPathPressed))
        .call(NAMED(ToolButtonEx, strLeftImgPathPressed))
        .call(NAMED(ToolButtonEx, setRightLabelTextNormalColor))
        .call(NAMED(ToolButtonEx, rightLabelTextNormalColor))
        .call(NAMED(ToolButtonEx, setRightLabelTextPressedColor))
        .call(NAMED(ToolButtonEx, rightLabelTextPressedColor))
        .call(NAMED(ToolButtonEx, setRightLabelTextFont))
        .call(NAMED(ToolButtonEx, rightLabelTextFont))
        .call(NAMED(ToolButtonEx, setLeftToRightNormalBgColor))
        .call(NAMED(ToolButtonEx, leftToRightNormalBgColor))
        .call(NAMED(ToolButtonEx, setLeftToRightPressedBgColor))
        .call(NAMED(ToolButtonEx, leftToRightPressedBgColor))
        .call(NAMED(ToolButtonEx, setLeftToRightBorderRadius))
        .call(NAMED(ToolButtonEx, leftToRightBorderRadius))
        .space(NAMED(ToolButtonEx, setLeftToRightLayoutSpace))
        .call(NAMED(ToolButtonEx, leftToRightLayoutSpace))
        .call(NAMED(ToolButtonEx, setActivatedNormalBgColor))
        .call(NAMED(ToolButtonEx, activatedNormalBgColor))
        .call(NAMED(ToolButtonEx, setActivatedHoverBgColor))
        .call(NAMED(ToolButtonEx, activatedHoverBgColor))
        .call(NAMED(ToolButtonEx, setActivatedPressedBgColor))
        .call(NAMED(ToolButtonEx, activatedPressedBgColor))
        .call(NAMED(ToolButtonEx, setActivatedDisabledBgColor))
        .call(NAMED(ToolButtonEx, activatedDisabledBgColor))
        .call(NAMED(ToolButtonEx, setActivatedNormalFontColor))
        .call(NAMED(ToolButtonEx, activatedNormalFontColor))
        .call(NAMED(ToolButtonEx, setActivatedHoverFontColor))
        .call(NAMED(ToolButtonEx, activatedHoverFontColor))
        .call(NAMED(ToolButtonEx, setActivatedPressedFontColor))
        .call(NAMED(ToolButtonEx, activatedPressedFontColor))
        .call(NAMED(ToolButtonEx, setActivatedDisabledFontColor))
        .call(NAMED(ToolButtonEx, activatedDisabledFontColor))
        .call(NAMED(ToolButtonEx, setActivatedBorderRadius))
        .call(NAMED(ToolButtonEx, activatedBorderRadius))
        .call(NAMED(ToolButtonEx, setNoActivatedNormalBgColor))
        .call(NAMED(ToolButtonEx, noActivatedNormalBgColor))
        .call(NAMED(ToolButtonEx, setNoActivatedHoverBgColor))
        .call(NAMED(ToolButtonEx, noActivatedHoverBgColor))
        .call(NAMED(ToolButtonEx, setNoActivatedPressedBgColor))
        .call(NAMED(ToolButtonEx, noActivatedPressedBgColor))
        .call(NAMED(ToolButtonEx, setNoActivatedDisabledBgColor))
        .call(NAMED(ToolButtonEx, noActivatedDisabledBgColor))
        .call(NAMED(ToolButtonEx, setNoActivatedNormalFontColor))
        .call(NAMED(ToolButtonEx, noActivatedNormalFontColor))
        .call(NAMED(ToolButtonEx, setNoActivatedHoverFontColor))
        .call(NAMED(ToolButtonEx, noActivatedHoverFontColor))
        .call(NAMED(ToolButtonEx, setNoActivatedPressedFontColor))
        .call(NAMED(ToolButtonEx, noActivatedPressedFontColor))
        .call(NAMED(ToolButtonEx, setNoActivatedDisabledFontColor))
        .call(NAMED(ToolButtonEx, noActivatedDisabledFontColor))
        .call(NAMED(ToolButtonEx, setNoActivatedBorderRadius))
        .call(NAMED(ToolButtonEx, noActivatedBorderRadius))
        .call(NAMED(ToolButtonEx, setNoActivatedLeftPadding))
        .call(NAMED(ToolButtonEx, getNoActivatedLeftPadding))
        .call(NAMED(ToolButtonEx, setCabinetWidth))
        .call(NAMED(ToolButtonEx, cabinetWidth))
        .call(NAMED(ToolButtonEx, setCabinetHeight))
        .call(NAMED(ToolButtonEx, cabinetHeight))
        .call(NAMED(ToolButtonEx, setCabinetSize))
        .call(NAMED(ToolButtonEx, setCabinetCount))
        .call(NAMED(ToolButtonEx, cabinetCount))
        .call(NAMED(ToolButtonEx, setCabinetInitCount))
        .call(NAMED(ToolButtonEx, getCabinetInitCount))
        .call(NAMED(ToolButtonEx, setIsDrawCabinetCount))
        .call(NAMED(ToolButtonEx, isDrawCabinetCount))
        .call(NAMED(ToolButtonEx, setMakerName))
        .call(NAMED(ToolButtonEx, getMakerName))
        .call(NAMED(ToolButtonEx, makerName))
        .call(NAMED(ToolButtonEx, setCabinetName))
        .call(NAMED(ToolButtonEx, getCabinetName))
        .call(NAMED(ToolButtonEx, cabinetName))
        .call(NAMED(ToolButtonEx, setCabinetuisize))
        .call(NAMED(ToolButtonEx, getCabinetuisize))
        .call(NAMED(ToolButtonEx, setCabinetuiHsize))
        .call(NAMED(ToolButtonEx, getCabinetuiHsize))
        .call(NAMED(ToolButtonEx, setCabinetweight))
        .call(NAMED(ToolButtonEx, getCabinetweight))
        .call(NAMED(ToolButtonEx, setCabinetpower))
        .call(NAMED(ToolButtonEx, getCabinetpower))
        .call(NAMED(ToolButtonEx, setCabinetVoltage))
        .call(NAMED(ToolButtonEx, getCabinetVoltage))
        .call(NAMED(ToolButtonEx, setCabinetPointspace))
        .call(NAMED(ToolButtonEx, getCabinetPointspace))
        .call(NAMED(ToolButtonEx, setConfigFilePath))
        .call(NAMED(ToolButtonEx, getConfigFilePath))
        .call(NAMED(ToolButtonEx, setCabnetInfo))
        .call(NAMED(ToolButtonEx, getCabnetInfo))
        .call(NAMED(ToolButtonEx, setCabinetNormalBgColor))
        .call(NAMED(ToolButtonEx, setCabinetHoverBgColor))
        .call(NAMED(ToolButtonEx, setCabinetPressedBgColor))
        .call(NAMED(ToolButtonEx, setCabinetNormalFontColor))
        .call(NAMED(ToolButtonEx, setCabinetHoverFontColor))
        .call(NAMED(ToolButtonEx, setCabinetPressedFontColor))
        .call(NAMED(ToolButtonEx, setCabinetHoverBorderColor))
        .call(NAMED(ToolButtonEx, setCabinetPressedBorderColor))
        .call(NAMED(ToolButtonEx, setCanbinetNormalBorder))
        .call(NAMED(ToolButtonEx, setCanbinetHoverBorder))
        .call(NAMED(ToolButtonEx, setCanbinetPressedBorder))
        .call(NAMED(ToolButtonEx, setBIsVsender))
        .call(NAMED(ToolButtonEx, setBVsenderDrag))
        .call(NAMED(ToolButtonEx, setVsenderText))
        .call(NAMED(ToolButtonEx, setIsHasData))
        .call(NAMED(ToolButtonEx, getIsHasData))
        .call(NAMED(ToolButtonEx, setIsChangeMouseStyle));
}

Entry mutexButtonEx()
{
    return Table<MutexButtonEx>("MutexButtonEx",
                                [](Life &life) { return new MutexButtonEx(life.parentOrNone()); })
        .call(NAMED(MutexButtonEx, addButton), Again::Grows)
        .call(NAMED(MutexButtonEx, setButtonWidth))
        .call(NAMED(MutexButtonEx, setButtonHeight))
        .space(NAMED(MutexButtonEx, setButtonSpace));
}

Entry toolBarEx()
{
    return Table<ToolBarEx>("ToolBarEx",
                            [](Life &life) { return new ToolBarEx(life.parentOrNone()); })
        .call(NAMED(ToolBarEx, addButton), Again::Grows)
        .call(NAMED(ToolBarEx, addWidget), Again::Grows)
        .call(NAMED(ToolBarEx, addSeparator), Again::Grows);
}

Entry widgetWithScrollEx()
{
    return Table<WidgetWithScrollEx>(
               "WidgetWithScrollEx",
               [](Life &life) { return new WidgetWithScrollEx(life.parentOrNone()); })
        .call(NAMED(WidgetWithScrollEx, createScrollButton), Again::Grows)
        .call(NAMED(WidgetWithScrollEx, initControls))
        .call(NAMED(WidgetWithScrollEx, initStyle))
        .call(NAMED(WidgetWithScrollEx, addWidget), Again::Grows)
        .call(NAMED(WidgetWithScrollEx, removeWidget))
        .call(NAMED(WidgetWithScrollEx, setLeftButtonVisible))
        .call(NAMED(WidgetWithScrollEx, setRightButtonVisible))
        .call(NAMED(WidgetWithScrollEx, setScrollSingleStepValue))
        .call(NAMED(WidgetWithScrollEx, scrollSingleStepValue))
        .call(NAMED(WidgetWithScrollEx, on_rangChanged))
        .call(NAMED(WidgetWithScrollEx, on_leftClicked))
        .call(NAMED(WidgetWithScrollEx, on_rightClicked));
}

Entry buttonGroupEx()
{
    return Table<ButtonGroupEx>("ButtonGroupEx",
                                [](Life &life) { return new ButtonGroupEx(life.parentOrNone()); })
        .call(NAMED(ButtonGroupEx, createScrollBtn), Again::Grows)
        .call(NAMED(ButtonGroupEx, createAddCabnicateBtn), Again::Grows)
        .call(NAMED(ButtonGroupEx, createAddRowCabnicateBtn), Again::Grows)
        .call(NAMED(ButtonGroupEx, initStyle))
        .call(NAMED(ButtonGroupEx, addWidget), Again::Grows)
        .call(NAMED(ButtonGroupEx, setScrollBtnIsVisble))
        .call(NAMED(ButtonGroupEx, setAddBtnVisible))
        .call(NAMED(ButtonGroupEx, setAddRowCabincateBtnVisible))
        .call(NAMED(ButtonGroupEx, setAddButtonToolTip))
        .call(NAMED(ButtonGroupEx, setAddRowCabincateBtnToolTip))
        .call(NAMED(ButtonGroupEx, setLabelText))
        .call(NAMED(ButtonGroupEx, setFrameIsEnabled))
        .call(NAMED(ButtonGroupEx, getScrollAreaWidth))
        .call(NAMED(ButtonGroupEx, isWidthBigThanScrollWidth))
        .call(NAMED(ButtonGroupEx, on_getScrollerRange))
        .call(NAMED(ButtonGroupEx, on_leftClicked))
        .call(NAMED(ButtonGroupEx, on_rightClicked))
        .call(NAMED(ButtonGroupEx, on_addCabnicate))
        .call(NAMED(ButtonGroupEx, slot_addRowCabnicate));
}

Entry offlinePortItemFrame()
{
    return Table<OfflinePortItemFrame>(
               "OfflinePortItemFrame",
               [](Life &life) { return new OfflinePortItemFrame(life.parentOrNone()); })
        .call(NAMED(OfflinePortItemFrame, setLineItemType))
        .call(NAMED(OfflinePortItemFrame, setItemPressed))
        .call(NAMED(OfflinePortItemFrame, setItemReleased))
        .call(NAMED(OfflinePortItemFrame, setItemDisabled))
        .call(NAMED(OfflinePortItemFrame, getItemIsEnabled))
        .call(NAMED(OfflinePortItemFrame, setPortIndex))
        .call(NAMED(OfflinePortItemFrame, portIndex));
}

Entry offlinePortItemContentFrame()
{
    return Table<OfflinePortItemContentFrame>(
               "OfflinePortItemContentFrame",
               [](Life &life) { return new OfflinePortItemContentFrame(life.parentOrNone()); })
        .act(
            "addPortItem",
            [](Life &life, OfflinePortItemContentFrame *subject) {
                // A frame for each: no more than can be paid for.
                const int count = life.dice().between(-2, 20);
                protocol::note(toText(count));
                subject->addPortItem(count, life.value<ItemType>());
            },
            Again::Grows)
        .call(NAMED(OfflinePortItemContentFrame, lsOfflinePortItems))
        .call(NAMED(OfflinePortItemContentFrame, setLsOfflinePortItems));
}

Entry drawItemContentNew()
{
    return Table<DrawItemContentNew>(
               "DrawItemContentNew",
               [](Life &life) { return new DrawItemContentNew(life.parentOrNone()); })
        .call(NAMED(DrawItemContentNew, setlsCheckboxStatus))
        .call(NAMED(DrawItemContentNew, addWidget), Again::Grows)
        .call(NAMED(DrawItemContentNew, lsCheckbox))
        .call(NAMED(DrawItemContentNew, setLsCheckbox));
}

Entry rowLineItem()
{
    return Table<RowLineItem>("RowLineItem",
                              [](Life &life) { return new RowLineItem(life.parentOrNone()); })
        .call(NAMED(RowLineItem, setLineItemType))
        .call(NAMED(RowLineItem, AddLineItem), Again::Grows)
        .call(NAMED(RowLineItem, addScrollWidget), Again::Grows)
        .call(NAMED(RowLineItem, setItemPressed))
        .call(NAMED(RowLineItem, setItemReleased))
        .call(NAMED(RowLineItem, setItemDisabled))
        .call(NAMED(RowLineItem, getItemIsEnabled))
        .call(NAMED(RowLineItem, bPressed))
        .call(NAMED(RowLineItem, portIndex))
        .call(NAMED(RowLineItem, setPortIndex))
        .call(NAMED(RowLineItem, cabinetButtonList))
        .call(NAMED(RowLineItem, setCabinetButtonList));
}

Entry drawerItemContent()
{
    return Table<DrawerItemContent>(
               "DrawerItemContent",
               [](Life &life) { return new DrawerItemContent(life.parentOrNone()); })
        .call(NAMED(DrawerItemContent, addRowLineItem), Again::Grows)
        .call(NAMED(DrawerItemContent, lsRowLineItems))
        .call(NAMED(DrawerItemContent, setLsRowLineItems))
        .call(NAMED(DrawerItemContent, index))
        .call(NAMED(DrawerItemContent, setIndex))
        .call(NAMED(DrawerItemContent, setToolTipText))
        .act("enterEvent", plainEvent(&DrawerItemContent::enterEvent, QEvent::Enter))
        .act("leaveEvent", plainEvent(&DrawerItemContent::leaveEvent, QEvent::Leave));
}

Entry drawerItem()
{
    return Table<DrawerItem>("DrawerItem",
                             [](Life &life) { return new DrawerItem(life.parentOrNone()); })
        .call(NAMED(DrawerItem, addItem), Again::Grows)
        .call(NAMED(DrawerItem, getItem))
        .call(NAMED(DrawerItem, removeItem))
        .call(NAMED(DrawerItem, setScrollAreaHeight))
        .call(NAMED(DrawerItem, addContentWidget), Again::Grows)
        .call(NAMED(DrawerItem, widgetContent))
        .call(NAMED(DrawerItem, setWorkSpaceisShow))
        .call(NAMED(DrawerItem, getWorkSpaceIsShow))
        .call(NAMED(DrawerItem, setDrawItemPressed))
        .call(NAMED(DrawerItem, getItemPressed))
        .call(NAMED(DrawerItem, setWidgetVisible))
        .call(NAMED(DrawerItem, setDeviceName))
        .call(NAMED(DrawerItem, getDeviceName))
        .call(NAMED(DrawerItem, setDevicePortName))
        .call(NAMED(DrawerItem, getDevicePortName))
        .call(NAMED(DrawerItem, setDeviceCount))
        .call(NAMED(DrawerItem, deviceCount))
        .call(NAMED(DrawerItem, setDeviceCountVisible))
        .call(NAMED(DrawerItem, setCheckAllVisible))
        .call(NAMED(DrawerItem, setCheckAllIsCheck))
        .call(NAMED(DrawerItem, setCheckAllStyle))
        .call(NAMED(DrawerItem, setBOnline))
        .call(NAMED(DrawerItem, getBOnline))
        .call(NAMED(DrawerItem, setIsInEditMode))
        .call(NAMED(DrawerItem, getIsInEditMode))
        .call(NAMED(DrawerItem, setIsVisibleScrollBar))
        .call(NAMED(DrawerItem, setBVisibleScrolArea))
        .call(NAMED(DrawerItem, getBVisibleScrolArea))
        .call(NAMED(DrawerItem, setScrollArea))
        .call(NAMED(DrawerItem, scrollArea))
        .call(NAMED(DrawerItem, setSenderIndex))
        .call(NAMED(DrawerItem, getSenderIndex))
        .call(NAMED(DrawerItem, setMoudelID))
        .call(NAMED(DrawerItem, getMoudelID))
        .act("mousePressEvent", mouseEvent(&DrawerItem::mousePressEvent, QEvent::MouseButtonPress))
        .act("mouseReleaseEvent",
             mouseEvent(&DrawerItem::mouseReleaseEvent, QEvent::MouseButtonRelease))
        .act("eventFilter", filterEvent<DrawerItem>)
        .act("enterEvent", plainEvent(&DrawerItem::enterEvent, QEvent::Enter))
        .act("leaveEvent", plainEvent(&DrawerItem::leaveEvent, QEvent::Leave));
}

Entry drawer()
{
    return Table<Drawer>("Drawer", [](Life &life) { return new Drawer(life.parentOrNone()); })
        .call(NAMED(Drawer, addDrawerItem), Again::Grows)
        .call("removeDrawerItem", qOverload<int>(&Drawer::removeDrawerItem))
        .call("removeDrawerItem", qOverload<DrawerItem *>(&Drawer::removeDrawerItem))
        .call(NAMED(Drawer, clearDrawerItems))
        .call(NAMED(Drawer, setDrawerItemContentShow))
        .call(NAMED(Drawer, setSelectItemByIndex))
        .call(NAMED(Drawer, getSelectItem))
        .call(NAMED(Drawer, getItemIndexByDrawerItem))
        .call(NAMED(Drawer, drawerItemList))
        .call(NAMED(Drawer, setDrawerItemList))
        .call(NAMED(Drawer, pVBoxlayout))
        .call(NAMED(Drawer, setPVBoxlayout))
        .call(NAMED(Drawer, on_notifyIsShrink));
}

} // namespace

QVector<Entry> cabinetEntries()
{
    return {toolButtonEx(),
            mutexButtonEx(),
            toolBarEx(),
            widgetWithScrollEx(),
            buttonGroupEx(),
            offlinePortItemFrame(),
            offlinePortItemContentFrame(),
            drawItemContentNew(),
            rowLineItem(),
            drawerItemContent(),
            drawerItem(),
            drawer()};
}

} // namespace randomuse
