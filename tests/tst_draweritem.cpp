#include "support/pointer.h"
#include "support/sheetimages.h"
#include "support/testcase.h"
#include "support/windowmouse.h"

#include <definecommondata.h>
#include <draweritem.h>
#include <draweritemcontent.h>
#include <labelex.h>
#include <offlineportitemframe.h>
#include <rowlineitem.h>

namespace
{

/// The parts of an item, found the way they are laid out.
struct Parts {
    explicit Parts(const QWidget &item)
    {
        mainGrid = qobject_cast<QGridLayout *>(item.layout());
        mainColumn = qobject_cast<QVBoxLayout *>(mainGrid->itemAtPosition(0, 0)->layout());
        headerRow = qobject_cast<QHBoxLayout *>(mainColumn->itemAt(0)->layout());
        header = qobject_cast<QFrame *>(headerRow->itemAt(0)->widget());
        headerGrid = qobject_cast<QGridLayout *>(header->layout());
        headerLine = qobject_cast<QHBoxLayout *>(headerGrid->itemAtPosition(0, 0)->layout());
        shrink = qobject_cast<QToolButton *>(headerLine->itemAt(0)->widget());
        checkAll = qobject_cast<QCheckBox *>(headerLine->itemAt(1)->widget());
        right = qobject_cast<QFrame *>(headerLine->itemAt(3)->widget());
        rightGrid = qobject_cast<QGridLayout *>(right->layout());
        rightLine = qobject_cast<QHBoxLayout *>(rightGrid->itemAtPosition(0, 0)->layout());
        dot = qobject_cast<QToolButton *>(rightLine->itemAt(0)->widget());
        names = qobject_cast<QFrame *>(rightLine->itemAt(1)->widget());
        nameGrid = qobject_cast<QGridLayout *>(names->layout());
        nameColumn = qobject_cast<QVBoxLayout *>(nameGrid->itemAtPosition(0, 0)->layout());
        deviceName = qobject_cast<QLabel *>(nameColumn->itemAt(0)->widget());
        portName = qobject_cast<LabelEx *>(nameColumn->itemAt(1)->widget());
        rightButton = qobject_cast<QToolButton *>(rightLine->itemAt(3)->widget());
        count = qobject_cast<LabelEx *>(rightLine->itemAt(4)->widget());
    }

    QGridLayout *mainGrid;
    QVBoxLayout *mainColumn;
    QHBoxLayout *headerRow;
    QFrame *header;
    QGridLayout *headerGrid;
    QHBoxLayout *headerLine;
    QToolButton *shrink;
    QCheckBox *checkAll;
    QFrame *right;
    QGridLayout *rightGrid;
    QHBoxLayout *rightLine;
    QToolButton *dot;
    QFrame *names;
    QGridLayout *nameGrid;
    QVBoxLayout *nameColumn;
    QLabel *deviceName;
    LabelEx *portName;
    QToolButton *rightButton;
    LabelEx *count;
};

const QString openSheet =
    "QToolButton{border-image: url(:/Resource/Images/globalResource/drawer/btn_open_normal.png);}"
    "QToolButton:hover{border-image: "
    "url(:/Resource/Images/globalResource/drawer/btn_open_hover.png);}"
    "QToolButton:pressed{border-image: "
    "url(:/Resource/Images/globalResource/drawer/btn_open_Pressed.png);}";
const QString closeSheet =
    "QToolButton{border-image: url(:/Resource/Images/globalResource/drawer/btn_close_normal.png);}"
    "QToolButton:hover{border-image: "
    "url(:/Resource/Images/globalResource/drawer/btn_close_hover.png);}"
    "QToolButton:pressed{border-image: "
    "url(:/Resource/Images/globalResource/drawer/btn_close_Pressed.png);}";
const QString greyDot = "background:rgb(153,153,153);border-radius:2px;";
const QString greenDot = "background:rgb(47,195,123);border-radius:2px;";
const QString settingsTail =
    "QToolButton:hover{background:rgb(115,167,237);border-top-right-radius:5px;"
    "border-bottom-right-radius:5px;border-image:"
    "url(:/Resource/Images/globalResource/drawer/btn_settings_pressedDouble.png);}"
    "QToolButton:pressed{background:rgb(49,87,140);border-top-right-radius:5px;"
    "border-bottom-right-radius:5px;border-image:"
    "url(:/Resource/Images/globalResource/drawer/btn_settings_pressedDouble.png);}";
const QString selectedSettings =
    "QToolButton{background:rgb(82,145,233);border-top-right-radius:5px;"
    "border-bottom-right-radius:5px;border-image:"
    "url(:/Resource/Images/globalResource/drawer/btn_settings_pressedDouble.png);}"
    + settingsTail;
const QString unselectedSettings =
    "QToolButton{background:rgb(99,99,99);border-top-right-radius:5px;"
    "border-bottom-right-radius:5px;border-image:"
    "url(:/Resource/Images/globalResource/drawer/btn_settings_pressedDouble.png);}"
    + settingsTail;
const QString deleteSheet =
    "QToolButton{border-image:url(:/Resource/Images/globalResource/drawer/delete_normal.png);}"
    "QToolButton:pressed{border-image:"
    "url(:/Resource/Images/globalResource/drawer/delete_pressed.png);}"
    "QToolButton:disabled{border-image:"
    "url(:/Resource/Images/globalResource/drawer/delete_disabled.png);}";
const QString normalCheck =
    "QCheckBox::indicator:unchecked{border-image: "
    "url(:/Resource/Images/globalResource/drawer/checkbox_normal.png);}"
    "QCheckBox::indicator:checked {border-image: "
    "url(:/Resource/Images/globalResource/drawer/checkbox_pressed.png);}"
    "QCheckBox::indicator:unchecked:hover{border-image: "
    "url(:/Resource/Images/globalResource/drawer/checkbox_unchecked_hover.png);}"
    "QCheckBox::indicator:checked:hover{border-image: "
    "url(:/Resource/Images/globalResource/drawer/checkbox_checked_hover.png);}";
const QString partCheck =
    "QCheckBox::indicator:unchecked{border-image: "
    "url(:/Resource/Images/globalResource/drawer/checkbox_normal.png);}"
    "QCheckBox::indicator:checked {border-image: "
    "url(:/Resource/Images/globalResource/drawer/CheckBox_partCheck.png);}"
    "QCheckBox::indicator:unchecked:hover{border-image: "
    "url(:/Resource/Images/globalResource/drawer/checkbox_unchecked_hover.png);}"
    "QCheckBox::indicator:checked:hover {border-image: "
    "url(:/Resource/Images/globalResource/drawer/CheckBox_partCheck_hover.png);}";
const QString selectedFrame = "#FrameRight{background:rgb(66,145,240);border-radius:5px;}";
const QString unselectedFrame = "#FrameRight{background:rgb(99,99,99);border-radius:5px;}"
                                "#FrameRight:hover{background:rgb(87,90,92);}";

QString scrollBarSheet(const QString &handle, bool withImages)
{
    const auto arrow = [&](const QString &name) {
        return withImages
            ? "border-image:url(:/Resource/Images/globalResource/scrollbar/" + name + ".png);"
            : QString();
    };
    return "QScrollBar:vertical{width:12px;background:#454545;padding-top:12px;"
           "padding-bottom:12px;border:none;}QScrollBar::handle:vertical{background:"
        + handle
        + ";border-radius:3px;width:6px;margin-left:2;margin-right:2;min-height:20px;}"
          "QScrollBar::handle:vertical:hover{background:#1f1f1f;border-radius:3px;"
          "min-height:20px;}QScrollBar::add-line:vertical{height:16px;width:16px;"
        + arrow("down_normal")
        + "subcontrol-position:bottom;}QScrollBar::add-page:vertical{background:#454545;}"
          "QScrollBar::sub-page:vertical{background:#454545;}"
          "QScrollBar::add-line:vertical:pressed{height:16px;width:16px;"
        + arrow("down_pressed")
        + "subcontrol-position:bottom;}QScrollBar::sub-line:vertical{height:16px;width:16px;"
        + arrow("up_normal")
        + "subcontrol-position:top;}QScrollBar::sub-line:vertical:pressed{height:16px;width:16px;"
        + arrow("up_pressed") + "subcontrol-position:top;}";
}

/// The names of the signals that an item emits, in their order, each with its arguments.
class Log : public QObject
{
public:
    explicit Log(DrawerItem *item)
        : m_item(item)
    {
        connect(item, &DrawerItem::notifyIsShrink, this, [=](DrawerItem *i) { add("shrink", i); });
        connect(item, &DrawerItem::signal_notifySettings, this,
                [=](DrawerItem *i) { add("settings", i); });
        connect(item, &DrawerItem::signal_deleteItem, this,
                [=](DrawerItem *i) { add("delete", i); });
        connect(item, &DrawerItem::signals_selectedCurrentItem, this,
                [=](DrawerItem *i) { add("selected", i); });
        connect(item, &DrawerItem::signal_checkAllItemContent, this,
                [=](DrawerItem *i, bool b) { add(b ? "content on" : "content off", i); });
        connect(item, &DrawerItem::signal_currentCheckBoxCheck, this,
                [=](DrawerItem *i) { add("check", i); });
        connect(item, &DrawerItem::signal_drawItemPressed, this,
                [=](DrawerItem *i) { add("pressed", i); });
        connect(item, &DrawerItem::signal_checkAllHasClicked, this,
                [=](DrawerItem *i) { add("clicked", i); });
    }

    QStringList take()
    {
        QStringList entries;
        entries.swap(m_entries);
        return entries;
    }

private:
    void add(const QString &name, DrawerItem *item)
    {
        m_entries += item == m_item ? name : name + " of another item";
    }

    DrawerItem *m_item;
    QStringList m_entries;
};

/// Counts how often the styles of widgets are worked on.
class StyleCounter : public QObject
{
public:
    int changes = 0;

    bool eventFilter(QObject *, QEvent *event) override
    {
        changes += event->type() == QEvent::StyleChange ? 1 : 0;
        return false;
    }
};

/// An item in a panel beside which the pointer can wait.
struct Shown {
    Shown()
        : item(new DrawerItem(&panel))
        , log(item)
    {
        panel.resize(500, 300);
        item->setGeometry(0, 0, 400, 200);
        item->setDeviceName("Device");
        item->setDevicePortName("COM1", true);
    }

    bool show()
    {
        const bool isExposed = pointer::showAndWait(&panel);
        pointer::moveTo(&panel, away);
        return isExposed;
    }

    const QPoint away{480, 280};
    QWidget panel;
    QPointer<DrawerItem> item;
    Log log;
};

} // namespace

Q_DECLARE_METATYPE(std::function<void(DrawerItem *, const std::function<void()> &)>)

class TestDrawerItem : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isBuiltFromItsParts()
    {
        DrawerItem item(nullptr);
        const Parts parts(item);
        QCOMPARE(parts.mainGrid->contentsMargins(), QMargins());
        QCOMPARE(parts.mainGrid->horizontalSpacing(), 0);
        QCOMPARE(parts.mainGrid->verticalSpacing(), 0);
        QCOMPARE(parts.mainColumn->spacing(), 0);
        QCOMPARE(parts.mainColumn->contentsMargins(), QMargins());
        QCOMPARE(parts.mainColumn->count(), 2);
        QCOMPARE(parts.mainColumn->itemAt(1)->widget(), item.scrollArea());
        QCOMPARE(parts.headerRow->spacing(), 20);
        QCOMPARE(parts.headerRow->count(), 1);

        QCOMPARE(parts.header->minimumHeight(), 42);
        QCOMPARE(parts.header->maximumHeight(), 42);
        QCOMPARE(parts.header->parentWidget(), &item);
        QCOMPARE(parts.headerGrid->contentsMargins(), QMargins());
        QCOMPARE(parts.headerGrid->horizontalSpacing(), 0);
        QCOMPARE(parts.headerGrid->verticalSpacing(), 0);
        QCOMPARE(parts.headerLine->spacing(), 6);
        QCOMPARE(parts.headerLine->count(), 4);
        QCOMPARE(parts.headerLine->itemAt(2)->sizeHint(), QSize(6, 0));

        QCOMPARE(parts.shrink->minimumSize(), QSize(10, 10));
        QCOMPARE(parts.shrink->maximumSize(), QSize(10, 10));
        QCOMPARE(parts.checkAll->minimumSize(), QSize(20, 20));
        QCOMPARE(parts.checkAll->maximumSize(), QSize(20, 20));
        QVERIFY(parts.checkAll->isHidden());
        QCOMPARE(parts.checkAll->styleSheet(), normalCheck);

        QCOMPARE(parts.right->objectName(), QString("FrameRight"));
        QCOMPARE(parts.right->frameShape(), QFrame::NoFrame);
        QCOMPARE(parts.right->styleSheet(), QString());
        QCOMPARE(parts.right->parentWidget(), parts.header);
        QCOMPARE(parts.rightGrid->contentsMargins(), QMargins(5, 0, 0, 0));
        QCOMPARE(parts.rightGrid->horizontalSpacing(), 0);
        QCOMPARE(parts.rightLine->spacing(), 6);
        QCOMPARE(parts.rightLine->count(), 5);

        QCOMPARE(parts.dot->minimumSize(), QSize(8, 8));
        QCOMPARE(parts.dot->maximumSize(), QSize(8, 8));
        QCOMPARE(parts.dot->styleSheet(), greyDot);
        QCOMPARE(parts.names->frameShape(), QFrame::NoFrame);
        QCOMPARE(parts.nameGrid->contentsMargins(), QMargins());
        QCOMPARE(parts.nameGrid->horizontalSpacing(), 0);
        QCOMPARE(parts.nameColumn->spacing(), 0);
        QCOMPARE(parts.nameColumn->count(), 2);
        const QString nameSheet =
            "color:rgb(210,210,210);font:" + DefineCommonData::getNormalFont() + ";";
        QCOMPARE(parts.deviceName->styleSheet(), nameSheet);
        QCOMPARE(parts.deviceName->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
        QCOMPARE(parts.portName->styleSheet(), nameSheet);
        QCOMPARE(parts.portName->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
        QCOMPARE(parts.portName->minimumWidth(), 160);
        QCOMPARE(parts.portName->maximumWidth(), 160);
        QSpacerItem *spacer = parts.rightLine->itemAt(2)->spacerItem();
        QVERIFY(spacer);
        QCOMPARE(spacer->sizeHint(), QSize(0, 0));
        QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
        QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
        QCOMPARE(parts.rightButton->minimumSize(), QSize(43, 42));
        QCOMPARE(parts.rightButton->maximumSize(), QSize(43, 42));
        QCOMPARE(parts.rightButton->styleSheet(), selectedSettings);
        QVERIFY(parts.rightButton->isEnabled());
        QCOMPARE(parts.count->minimumSize(), QSize(55, 20));
        QCOMPARE(parts.count->maximumSize(), QSize(55, 20));
        QVERIFY(parts.count->isHidden());
        QVERIFY(parts.count->alignment() & Qt::AlignRight);
        QCOMPARE(parts.count->styleSheet(), QString("color:rgb(210,210,210);"));

        const QScrollArea *area = item.scrollArea();
        QCOMPARE(area->parentWidget(), &item);
        QVERIFY(!area->widgetResizable());
        QCOMPARE(area->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QCOMPARE(area->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QCOMPARE(area->frameStyle(), 0);
        QCOMPARE(area->styleSheet(), QString("background:rgb(69,69,69);"));
        QVERIFY(!area->widget());
    }

    void hasDefaults()
    {
        DrawerItem item;
        const Parts parts(item);
        QVERIFY(!item.getWorkSpaceIsShow());
        QVERIFY(item.scrollArea()->isHidden());
        QCOMPARE(parts.shrink->styleSheet(), closeSheet);
        QVERIFY(!item.getItemPressed());
        QVERIFY(!item.getBOnline());
        QVERIFY(!item.getIsInEditMode());
        QVERIFY(item.getBVisibleScrolArea());
        QCOMPARE(item.getMoudelID(), -1);
        QCOMPARE(item.getSenderIndex(), -1);
        QCOMPARE(item.getDeviceName(), QString());
        QCOMPARE(item.getDevicePortName(), QString());
        QCOMPARE(item.deviceCount(), QString());
        QVERIFY(!item.getItem());
        QVERIFY(!item.widgetContent());
    }

    void declaresItsSignalsAndItsSlots()
    {
        const QMetaObject &meta = DrawerItem::staticMetaObject;
        QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
        const QStringList signalNames{
            "notifyIsShrink(DrawerItem*)",
            "signal_notifySettings(DrawerItem*)",
            "signal_deleteItem(DrawerItem*)",
            "signals_selectedCurrentItem(DrawerItem*)",
            "signal_ItemContentPortItemPressed(DrawerItem*,RowLineItem*)",
            "signal_offlineItemContentPortItemPressed(DrawerItem*,OfflinePortItemFrame*)",
            "signal_drawItemContentStateChandged(DrawerItem*,int)",
            "signal_checkAllItemContent(DrawerItem*,bool)",
            "signal_currentCheckBoxCheck(DrawerItem*)",
            "signal_drawItemPressed(DrawerItem*)",
            "signal_checkAllHasClicked(DrawerItem*)"};
        const QStringList slotNames{"on_toolButton_shrink_clicked()",
                                    "on_toolButton_RightClicked()",
                                    "on_itemContentPortItemPressed(RowLineItem*)",
                                    "slot_itemStateChandged(int)",
                                    "slot_checkAllClicked()",
                                    "slot_itemContentPortItemPressed(OfflinePortItemFrame*)"};
        QStringList methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            methods += QString::fromLatin1(meta.method(i).methodSignature());
            const bool isSignal = i - meta.methodOffset() < signalNames.size();
            QCOMPARE(meta.method(i).methodType(),
                     isSignal ? QMetaMethod::Signal : QMetaMethod::Slot);
            QCOMPARE(meta.method(i).access(),
                     isSignal ? QMetaMethod::Public : QMetaMethod::Private);
        }
        QCOMPARE(methods, signalNames + slotNames);
    }

    void everyPictureExists()
    {
        int count = 0;
        for (const QString &sheet :
             {openSheet, closeSheet, selectedSettings, deleteSheet, normalCheck, partCheck}) {
            for (const QString &path : imagePaths(sheet)) {
                QVERIFY2(!QImage(path).isNull(), qPrintable(path));
                ++count;
            }
        }
        QCOMPARE(count, 20);
    }

    void keepsTheHostsValues()
    {
        DrawerItem item;
        const Parts parts(item);
        item.setDeviceName("Sender 4");
        item.setDeviceCount("12");
        item.setSenderIndex(3);
        item.setMoudelID(77);
        item.setIsInEditMode(true);
        QCOMPARE(item.getDeviceName(), QString("Sender 4"));
        QCOMPARE(parts.deviceName->text(), QString("Sender 4"));
        QCOMPARE(item.deviceCount(), QString("12"));
        QCOMPARE(parts.count->text(), QString("12"));
        QCOMPARE(item.getSenderIndex(), 3);
        QCOMPARE(item.getMoudelID(), 77);
        QVERIFY(item.getIsInEditMode());
        item.setIsInEditMode(false);
        QVERIFY(!item.getIsInEditMode());
    }

    void aPortNameIsRememberedOnRequest()
    {
        DrawerItem item;
        const Parts parts(item);
        item.setDevicePortName("P1", true);
        QCOMPARE(parts.portName->text(), QString("P1"));
        QCOMPARE(item.getDevicePortName(), QString("P1"));
        item.setDevicePortName("P2", false);
        QCOMPARE(parts.portName->text(), QString("P2"));
        QCOMPARE(item.getDevicePortName(), QString("P1"));
    }

    void aLongPortNameIsElidedToItsWidth()
    {
        DrawerItem item;
        const Parts parts(item);
        const QString name(200, 'w');
        item.setDevicePortName(name, true);
        QCOMPARE(parts.portName->toolTip(), name);
        QCOMPARE(static_cast<QLabel *>(parts.portName)->text(),
                 QFontMetrics(parts.portName->font()).elidedText(name, Qt::ElideRight, 160));
    }

    void partsAreShownAndHidden()
    {
        DrawerItem item;
        const Parts parts(item);
        item.setWidgetVisible(false);
        QVERIFY(parts.rightButton->isHidden());
        QVERIFY(parts.dot->isHidden());
        QCOMPARE(parts.portName->minimumWidth(), 180);
        QCOMPARE(parts.portName->maximumWidth(), 180);
        item.setWidgetVisible(true);
        QVERIFY(!parts.rightButton->isHidden());
        QVERIFY(!parts.dot->isHidden());
        QCOMPARE(parts.portName->minimumWidth(), 160);
        QCOMPARE(parts.portName->maximumWidth(), 160);
        item.setDeviceCountVisible(true);
        QVERIFY(!parts.count->isHidden());
        item.setDeviceCountVisible(false);
        QVERIFY(parts.count->isHidden());
        item.setCheckAllVisible(true);
        QVERIFY(!parts.checkAll->isHidden());
        item.setCheckAllVisible(false);
        QVERIFY(parts.checkAll->isHidden());
    }

    void liesFromLeftToRight()
    {
        Shown shown;
        const Parts parts(*shown.item);
        shown.item->setCheckAllVisible(true);
        shown.item->setDeviceCountVisible(true);
        QVERIFY(shown.show());
        QCOMPARE(parts.header->size(), QSize(400, 42));
        QCOMPARE(parts.shrink->geometry(), QRect(0, 16, 10, 10));
        QCOMPARE(parts.checkAll->geometry(), QRect(16, 11, 20, 20));
        QCOMPARE(parts.right->x(), 36 + 6 + 6);
        QCOMPARE(parts.right->geometry().right(), 399);
        QCOMPARE(parts.dot->x(), 5);
        QCOMPARE(parts.names->x(), 5 + 8 + 6);
        QCOMPARE(parts.count->geometry().right(), parts.right->width() - 1);
        QCOMPARE(parts.rightButton->geometry().right(), parts.count->x() - 7);
        QVERIFY(parts.deviceName->geometry().bottom() < parts.portName->y());
    }

    void theBodyIsThatOfTheScrollArea()
    {
        DrawerItem item;
        QPointer<QWidget> body = new QWidget;
        item.addItem(body);
        QCOMPARE(item.getItem(), body.data());
        QCOMPARE(item.scrollArea()->widget(), body.data());
        item.addItem(body); // stays where it is
        QCOMPARE(item.getItem(), body.data());
        QCOMPARE(body->parentWidget(), item.scrollArea()->viewport());

        QPointer<QWidget> next = new QWidget;
        item.addItem(next);
        QVERIFY(body.isNull());
        QCOMPARE(item.getItem(), next.data());
        item.addItem(nullptr);
        QCOMPARE(item.getItem(), next.data());
        item.removeItem();
        QVERIFY(next.isNull());
        QVERIFY(!item.getItem());
        item.removeItem();
        QVERIFY(!item.getItem());
    }

    void setScrollAreaHeightFixesIt()
    {
        DrawerItem item;
        item.setScrollAreaHeight(123);
        QCOMPARE(item.scrollArea()->minimumHeight(), 123);
        QCOMPARE(item.scrollArea()->maximumHeight(), 123);
    }

    void expandingShowsTheBody()
    {
        Shown shown;
        DrawerItem *item = shown.item;
        const Parts parts(*item);
        auto *body = new QWidget;
        body->resize(300, 100);
        item->addItem(body);
        QVERIFY(shown.show());
        QVERIFY(!body->isVisible());
        item->setWorkSpaceisShow(true);
        QVERIFY(item->getWorkSpaceIsShow());
        QVERIFY(item->scrollArea()->isVisible());
        QVERIFY(body->isVisible());
        QCOMPARE(parts.shrink->styleSheet(), openSheet);
        item->setWorkSpaceisShow(false);
        QVERIFY(!item->getWorkSpaceIsShow());
        QVERIFY(!item->scrollArea()->isVisible());
        QCOMPARE(parts.shrink->styleSheet(), closeSheet);
        QCOMPARE(shown.log.take(), QStringList());
    }

    void expandingWithoutABodyShowsTheOpenPictureAlone()
    {
        DrawerItem item;
        const Parts parts(item);
        item.setWorkSpaceisShow(true);
        QVERIFY(item.scrollArea()->isHidden());
        QCOMPARE(parts.shrink->styleSheet(), openSheet);
        QVERIFY(item.getWorkSpaceIsShow());
    }

    void theContentWidgetIsShownInPlaceOfTheScrollArea()
    {
        DrawerItem item;
        const Parts parts(item);
        item.addItem(new QWidget);
        auto *content = new QWidget;
        item.addContentWidget(content);
        QCOMPARE(item.widgetContent(), content);
        QCOMPARE(content->parentWidget(), &item);
        QCOMPARE(parts.mainColumn->count(), 3);
        QCOMPARE(parts.mainColumn->itemAt(2)->widget(), content);
        QVERIFY(content->isHidden());

        // While the scroll area is in force the content widget is left alone.
        item.setWorkSpaceisShow(true);
        QVERIFY(content->isHidden());
        item.setBVisibleScrolArea(false);
        QVERIFY(!item.getBVisibleScrolArea());
        QVERIFY(item.scrollArea()->isHidden());
        item.setWorkSpaceisShow(true);
        QVERIFY(!content->isHidden());
        QVERIFY(item.scrollArea()->isHidden());
        QCOMPARE(parts.shrink->styleSheet(), openSheet);
        item.setWorkSpaceisShow(false);
        QVERIFY(content->isHidden());
        QCOMPARE(parts.shrink->styleSheet(), closeSheet);
        item.setBVisibleScrolArea(true);
        QVERIFY(item.getBVisibleScrolArea());
        QVERIFY(!item.scrollArea()->isHidden());
    }

    void aMissingContentWidgetIsHarmless()
    {
        DrawerItem item;
        item.setBVisibleScrolArea(false);
        item.setWorkSpaceisShow(true);
        QVERIFY(item.getWorkSpaceIsShow());
        item.addContentWidget(nullptr);
        QVERIFY(!item.widgetContent());
        auto *content = new QWidget;
        item.addContentWidget(content);
        delete content;
        QVERIFY(!item.widgetContent());
        item.setWorkSpaceisShow(false);
        QVERIFY(!item.getWorkSpaceIsShow());
    }

    void selectionStylesTheRightFrame_data()
    {
        QTest::addColumn<bool>("online");
        QTest::newRow("online") << true;
        QTest::newRow("offline") << false;
    }

    void selectionStylesTheRightFrame()
    {
        QFETCH(bool, online);
        DrawerItem item;
        const Parts parts(item);
        Log log(&item);
        item.setBOnline(online);
        item.setDrawItemPressed(true);
        QVERIFY(item.getItemPressed());
        QCOMPARE(parts.right->styleSheet(), selectedFrame);
        QCOMPARE(parts.rightButton->styleSheet(), online ? selectedSettings : deleteSheet);
        item.setDrawItemPressed(false);
        QVERIFY(!item.getItemPressed());
        QCOMPARE(parts.right->styleSheet(), unselectedFrame);
        QCOMPARE(parts.rightButton->styleSheet(), online ? unselectedSettings : deleteSheet);
        QCOMPARE(log.take(), QStringList());
    }

    void theOnlineStateStylesDotAndButton()
    {
        DrawerItem item;
        const Parts parts(item);
        item.setBOnline(true);
        QVERIFY(item.getBOnline());
        QVERIFY(parts.rightButton->isEnabled());
        QCOMPARE(parts.dot->styleSheet(), greenDot);
        QCOMPARE(parts.rightButton->styleSheet(), unselectedSettings);
        item.setBOnline(false);
        QVERIFY(!item.getBOnline());
        QVERIFY(!parts.rightButton->isEnabled());
        QCOMPARE(parts.dot->styleSheet(), greyDot);
        QCOMPARE(parts.rightButton->styleSheet(), deleteSheet);
        item.setDrawItemPressed(true);
        item.setBOnline(true);
        QCOMPARE(parts.rightButton->styleSheet(), selectedSettings);
    }

    void theLookIsSeen()
    {
        Shown shown;
        const Parts parts(*shown.item);
        shown.item->setBOnline(true);
        QVERIFY(shown.show());
        const auto ground = [&] {
            return pointer::colorAt(&shown.panel, parts.right->mapTo(&shown.panel, QPoint(200, 3)));
        };
        const auto dot = [&] {
            return pointer::colorAt(&shown.panel, parts.dot->mapTo(&shown.panel, QPoint(4, 4)));
        };
        shown.item->setDrawItemPressed(false);
        QCOMPARE(ground(), QColor(99, 99, 99));
        QCOMPARE(dot(), QColor(47, 195, 123));
        pointer::moveTo(parts.deviceName);
        QCOMPARE(ground(), QColor(87, 90, 92));
        pointer::moveTo(&shown.panel, shown.away);
        QCOMPARE(ground(), QColor(99, 99, 99));
        shown.item->setDrawItemPressed(true);
        QCOMPARE(ground(), QColor(66, 145, 240));
        shown.item->setBOnline(false);
        QCOMPARE(dot(), QColor(153, 153, 153));
    }

    void checkAllStates_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<bool>("isChecked");
        QTest::addColumn<QString>("sheet");
        QTest::newRow("all") << 0 << true << normalCheck;
        QTest::newRow("none") << 1 << false << normalCheck;
        QTest::newRow("part") << 2 << true << partCheck;
    }

    void checkAllStates()
    {
        QFETCH(int, state);
        QFETCH(bool, isChecked);
        QFETCH(QString, sheet);
        QCOMPARE(int(AllChecked), 0);
        QCOMPARE(int(NoneChecked), 1);
        QCOMPARE(int(PartChecked), 2);
        QCOMPARE(sizeof(checkStateEx), sizeof(int));
        for (int before = 0; before < 3; ++before) {
            DrawerItem item;
            const Parts parts(item);
            Log log(&item);
            item.setCheckAllStyle(static_cast<checkStateEx>(before));
            item.setCheckAllStyle(static_cast<checkStateEx>(state));
            QCOMPARE(parts.checkAll->isChecked(), isChecked);
            QCOMPARE(parts.checkAll->styleSheet(), sheet);
            // Other values do nothing.
            item.setCheckAllStyle(static_cast<checkStateEx>(3));
            item.setCheckAllStyle(static_cast<checkStateEx>(-1));
            QCOMPARE(parts.checkAll->isChecked(), isChecked);
            QCOMPARE(parts.checkAll->styleSheet(), sheet);
            QCOMPARE(log.take(), QStringList());
        }
    }

    void setCheckAllIsCheckReports()
    {
        DrawerItem item;
        const Parts parts(item);
        Log log(&item);
        item.setCheckAllIsCheck(false);
        QCOMPARE(log.take(), QStringList{"content off"});
        QVERIFY(!parts.checkAll->isChecked());
        item.setCheckAllIsCheck(true);
        QCOMPARE(log.take(), QStringList{"content on"});
        QVERIFY(parts.checkAll->isChecked());
        QVERIFY(!item.getItemPressed());
        QVERIFY(!item.getWorkSpaceIsShow());
    }

    void aClickOnTheCheckAllBoxSelectsAndExpands()
    {
        Shown shown;
        const Parts parts(*shown.item);
        shown.item->setCheckAllVisible(true);
        shown.item->addItem(new QWidget);
        QVERIFY(shown.show());
        // What holds when the signals come: selection and expansion lie before the last one.
        QStringList states;
        const auto note = [&] {
            states += QString("%1%2%3")
                          .arg(parts.checkAll->isChecked())
                          .arg(shown.item->getItemPressed())
                          .arg(shown.item->getWorkSpaceIsShow());
        };
        connect(shown.item, &DrawerItem::signal_currentCheckBoxCheck, this, note);
        connect(shown.item, &DrawerItem::signal_checkAllItemContent, this, note);
        connect(shown.item, &DrawerItem::signal_checkAllHasClicked, this, note);
        windowmouse::click(parts.checkAll);
        QCOMPARE(shown.log.take(), (QStringList{"check", "content on", "clicked"}));
        QCOMPARE(states, (QStringList{"100", "100", "111"}));
        QVERIFY(shown.item->scrollArea()->isVisible());
        windowmouse::click(parts.checkAll);
        QCOMPARE(shown.log.take(), (QStringList{"check", "content off", "clicked"}));
        QVERIFY(shown.item->getWorkSpaceIsShow());
    }

    void headerClicksAreReported()
    {
        Shown shown;
        const Parts parts(*shown.item);
        QVERIFY(shown.show());
        const QStringList both{"shrink", "selected"};
        for (QWidget *place : std::initializer_list<QWidget *>{parts.deviceName, parts.portName,
                                                               parts.right, parts.header}) {
            windowmouse::press(place);
            QCOMPARE(shown.log.take(), QStringList());
            windowmouse::release(place);
            QCOMPARE(shown.log.take(), both);
        }
        windowmouse::click(parts.shrink);
        QCOMPARE(shown.log.take(), both);
        // Expansion and selection are the drawer's and the host's.
        QVERIFY(!shown.item->getWorkSpaceIsShow());
        QVERIFY(!shown.item->getItemPressed());

        windowmouse::click(parts.header, Qt::RightButton);
        QCOMPARE(shown.log.take(), QStringList());
    }

    void aReleaseOfAnotherButtonLeavesTheHeaderPressed()
    {
        Shown shown;
        const Parts parts(*shown.item);
        QVERIFY(shown.show());
        const auto send = [&](QEvent::Type type, Qt::MouseButton button) {
            QMouseEvent event(type, QPointF(100, 3), button, button, Qt::NoModifier);
            QCoreApplication::sendEvent(parts.header, &event);
        };
        send(QEvent::MouseButtonRelease, Qt::LeftButton);
        QCOMPARE(shown.log.take(), QStringList());
        send(QEvent::MouseButtonPress, Qt::RightButton);
        send(QEvent::MouseButtonRelease, Qt::RightButton);
        QCOMPARE(shown.log.take(), QStringList());
        send(QEvent::MouseButtonRelease, Qt::LeftButton);
        QCOMPARE(shown.log.take(), (QStringList{"shrink", "selected"}));
        send(QEvent::MouseButtonRelease, Qt::LeftButton);
        QCOMPARE(shown.log.take(), QStringList());
    }

    void theSecondPressOfADoubleClickIsNoClick()
    {
        Shown shown;
        const Parts parts(*shown.item);
        QVERIFY(shown.show());
        QTest::mouseDClick(shown.panel.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                           windowmouse::inWindow(parts.deviceName, QPoint(-1, -1)));
        QCOMPARE(shown.log.take(), (QStringList{"shrink", "selected"}));
    }

    void inEditModeNothingIsReported()
    {
        Shown shown;
        const Parts parts(*shown.item);
        shown.item->setBOnline(true);
        shown.item->setCheckAllVisible(true);
        QVERIFY(shown.show());
        shown.item->setIsInEditMode(true);
        windowmouse::click(parts.deviceName);
        windowmouse::click(parts.shrink);
        windowmouse::click(parts.rightButton);
        shown.item->setBOnline(false);
        parts.rightButton->setEnabled(true);
        windowmouse::click(parts.rightButton);
        QCOMPARE(shown.log.take(), QStringList());
        // The press was used up.
        shown.item->setIsInEditMode(false);
        windowmouse::release(parts.deviceName);
        QCOMPARE(shown.log.take(), QStringList());
        shown.item->setIsInEditMode(true);
        windowmouse::click(parts.checkAll);
        QCOMPARE(shown.log.take(), (QStringList{"check", "content on", "clicked"}));
    }

    void theRightButtonOpensSettingsOrDeletes()
    {
        Shown shown;
        const Parts parts(*shown.item);
        shown.item->setBOnline(true);
        QVERIFY(shown.show());
        windowmouse::click(parts.rightButton);
        QCOMPARE(shown.log.take(), QStringList{"settings"});
        pointer::moveTo(&shown.panel, shown.away);
        shown.item->setBOnline(false);
        pointer::moveTo(parts.rightButton);
        QVERIFY(parts.rightButton->isEnabled());
        windowmouse::click(parts.rightButton);
        QCOMPARE(shown.log.take(), QStringList{"delete"});
    }

    void anOfflineItemCanBeDeletedWhileHovered()
    {
        Shown shown;
        const Parts parts(*shown.item);
        QVERIFY(shown.show());
        QCOMPARE(parts.rightButton->styleSheet(), selectedSettings);
        pointer::moveTo(parts.deviceName);
        QCOMPARE(parts.rightButton->styleSheet(), deleteSheet);
        QVERIFY(parts.rightButton->isEnabled());
        pointer::moveTo(&shown.panel, shown.away);
        QCOMPARE(parts.rightButton->styleSheet(), deleteSheet);
        QVERIFY(!parts.rightButton->isEnabled());
        // The header is left for the work space, too.
        pointer::moveTo(parts.deviceName);
        QVERIFY(parts.rightButton->isEnabled());
        pointer::moveTo(shown.item, QPoint(200, 150));
        QVERIFY(!parts.rightButton->isEnabled());
    }

    void anOnlineItemIsEnabledWhenLeft()
    {
        Shown shown;
        const Parts parts(*shown.item);
        shown.item->setBOnline(true);
        QVERIFY(shown.show());
        parts.rightButton->setEnabled(false);
        pointer::moveTo(parts.deviceName);
        QVERIFY(!parts.rightButton->isEnabled());
        pointer::moveTo(&shown.panel, shown.away);
        QVERIFY(parts.rightButton->isEnabled());
        QCOMPARE(parts.rightButton->styleSheet(), unselectedSettings);
    }

    void hoverWithoutANewTextIsNoStyleWork()
    {
        Shown shown;
        const Parts parts(*shown.item);
        shown.item->setBOnline(false);
        QVERIFY(shown.show());
        StyleCounter counter;
        for (QWidget *widget : shown.item->findChildren<QWidget *>())
            widget->installEventFilter(&counter);
        for (int i = 0; i < 3; ++i) {
            pointer::moveTo(parts.deviceName);
            QVERIFY(parts.rightButton->isEnabled());
            pointer::moveTo(&shown.panel, shown.away);
            QVERIFY(!parts.rightButton->isEnabled());
        }
        QCOMPARE(counter.changes, 0);
    }

    void theScrollBarShowsWhileTheItemIsHovered()
    {
        Shown shown;
        DrawerItem *item = shown.item;
        QScrollBar *bar = item->scrollArea()->verticalScrollBar();
        auto *body = new QWidget;
        body->resize(300, 1000);
        item->addItem(body);
        item->setWorkSpaceisShow(true);
        QVERIFY(shown.show());
        pointer::moveTo(item, QPoint(200, 150));
        pointer::moveTo(&shown.panel, shown.away);
        QCOMPARE(bar->styleSheet(), QString());
        QVERIFY(!bar->isVisible());

        item->setIsVisibleScrollBar(true);
        QCOMPARE(item->scrollArea()->verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
        QTRY_VERIFY(bar->isVisible());
        pointer::moveTo(item, QPoint(200, 150));
        QCOMPARE(bar->styleSheet(), scrollBarSheet("#383838", true));
        QCOMPARE(bar->contextMenuPolicy(), Qt::NoContextMenu);
        // Within the item nothing changes, and each change is done in one step.
        StyleCounter counter;
        bar->installEventFilter(&counter);
        pointer::moveTo(item, QPoint(200, 20));
        QCOMPARE(counter.changes, 0);
        pointer::moveTo(&shown.panel, shown.away);
        QCOMPARE(bar->styleSheet(), scrollBarSheet("#454545", false));
        QCOMPARE(counter.changes, 1);

        item->setIsVisibleScrollBar(false);
        QCOMPARE(item->scrollArea()->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        pointer::moveTo(item, QPoint(200, 150));
        QCOMPARE(bar->styleSheet(), scrollBarSheet("#454545", false));
        QCOMPARE(item->findChildren<QScrollBar *>().size(), 2); // the area's own
    }

    void pressesStayInTheItem()
    {
        struct Panel : QWidget {
            int events = 0;
            void mousePressEvent(QMouseEvent *) override { ++events; }
            void mouseReleaseEvent(QMouseEvent *) override { ++events; }
        } panel;
        panel.resize(500, 300);
        DrawerItem item(&panel);
        item.setGeometry(0, 0, 400, 200);
        QVERIFY(pointer::showAndWait(&panel));
        windowmouse::click(&item, Qt::LeftButton, QPoint(200, 150));
        windowmouse::click(&item, Qt::LeftButton, QPoint(200, 20));
        QCOMPARE(panel.events, 0);
        windowmouse::click(&panel, Qt::LeftButton, QPoint(480, 280));
        QCOMPARE(panel.events, 2);
    }

    void theFilterConsumesNothing()
    {
        DrawerItem item;
        const Parts parts(item);
        for (const QEvent::Type type :
             {QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::MouseMove}) {
            QMouseEvent event(type, QPointF(5, 5), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
            QVERIFY(!item.eventFilter(parts.header, &event));
        }
        for (const QEvent::Type type : {QEvent::Enter, QEvent::Leave, QEvent::Paint}) {
            QEvent event(type);
            QVERIFY(!item.eventFilter(parts.header, &event));
            QVERIFY(!item.eventFilter(parts.right, &event));
        }
    }

    void relaysReportTheItem()
    {
        DrawerItem item;
        RowLineItem row;
        OfflinePortItemFrame port;
        QSignalSpy rows(&item, &DrawerItem::signal_ItemContentPortItemPressed);
        QSignalSpy ports(&item, &DrawerItem::signal_offlineItemContentPortItemPressed);
        QSignalSpy states(&item, &DrawerItem::signal_drawItemContentStateChandged);
        QVERIFY(connect(&row, SIGNAL(signal_portItemPressed(RowLineItem *)), &item,
                        SLOT(on_itemContentPortItemPressed(RowLineItem *))));
        QVERIFY(connect(&port, SIGNAL(signal_portItemPressed(OfflinePortItemFrame *)), &item,
                        SLOT(slot_itemContentPortItemPressed(OfflinePortItemFrame *))));
        Q_EMIT row.signal_portItemPressed(&row);
        QCOMPARE(rows.count(), 1);
        QCOMPARE(rows.at(0).at(0).value<DrawerItem *>(), &item);
        QCOMPARE(rows.at(0).at(1).value<RowLineItem *>(), &row);
        Q_EMIT port.signal_portItemPressed(&port);
        QCOMPARE(ports.count(), 1);
        QCOMPARE(ports.at(0).at(0).value<DrawerItem *>(), &item);
        QCOMPARE(ports.at(0).at(1).value<OfflinePortItemFrame *>(), &port);
        QVERIFY(QMetaObject::invokeMethod(&item, "slot_itemStateChandged", Q_ARG(int, 42)));
        QCOMPARE(states.count(), 1);
        QCOMPARE(states.at(0).at(0).value<DrawerItem *>(), &item);
        QCOMPARE(states.at(0).at(1).toInt(), 42);
    }

    void theScrollAreaCanBeReplaced()
    {
        QPointer<QScrollArea> other = new QScrollArea;
        QPointer<QWidget> body = new QWidget;
        QPointer<QScrollArea> own;
        {
            DrawerItem item;
            own = item.scrollArea();
            item.setScrollArea(other);
            QCOMPARE(item.scrollArea(), other.data());
            QCOMPARE(Parts(item).mainColumn->itemAt(1)->widget(), own.data());
            item.addItem(body);
            QCOMPARE(other->widget(), body.data());
            item.setScrollAreaHeight(50);
            QCOMPARE(other->height(), 50);
            QVERIFY(!other->parentWidget());
        }
        QVERIFY(own.isNull());
        QVERIFY(other && body);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!other && !body);
    }

    void aMissingScrollAreaIsHarmless()
    {
        DrawerItem item;
        item.setScrollArea(nullptr);
        QVERIFY(!item.scrollArea());
        QVERIFY(!item.getItem());
        QWidget body;
        item.addItem(&body);
        item.removeItem();
        item.setScrollAreaHeight(10);
        item.setIsVisibleScrollBar(true);
        item.setBVisibleScrolArea(true);
        item.setWorkSpaceisShow(true);
        QVERIFY(item.getWorkSpaceIsShow());
        QEvent enter(QEvent::Enter);
        item.enterEvent(&enter);
        item.leaveEvent(&enter);
        QVERIFY(!body.parentWidget());
    }

    void canBeDeletedInItsSignals_data()
    {
        QTest::addColumn<Connect>("connectTo");
        QTest::addColumn<QString>("gesture");
        QTest::addColumn<QStringList>("before");
        using Item = DrawerItem;
        const auto add =
            [](const char *name, auto signal, const QString &gesture, const QStringList &before) {
                QTest::newRow(name)
                    << Connect([signal](DrawerItem *item, const std::function<void()> &destroy) {
                           connect(item, signal, item, [destroy] { destroy(); });
                       })
                    << gesture << before;
            };
        add("header, shrink", &Item::notifyIsShrink, "header", {"shrink"});
        add("header, selected", &Item::signals_selectedCurrentItem, "header",
            {"shrink", "selected"});
        add("button, shrink", &Item::notifyIsShrink, "shrink button", {"shrink"});
        add("button, selected", &Item::signals_selectedCurrentItem, "shrink button",
            {"shrink", "selected"});
        add("settings", &Item::signal_notifySettings, "settings", {"settings"});
        add("delete", &Item::signal_deleteItem, "delete", {"delete"});
        add("check", &Item::signal_currentCheckBoxCheck, "check", {"check"});
        add("content", &Item::signal_checkAllItemContent, "check", {"check", "content on"});
        add("clicked", &Item::signal_checkAllHasClicked, "check",
            {"check", "content on", "clicked"});
        add("row", &Item::signal_ItemContentPortItemPressed, "row", {});
    }

    void canBeDeletedInItsSignals()
    {
        QFETCH(Connect, connectTo);
        QFETCH(QString, gesture);
        QFETCH(QStringList, before);
        for (const bool withWindow : {false, true}) {
            auto shown = std::make_unique<Shown>();
            DrawerItem *item = shown->item;
            item->setCheckAllVisible(true);
            item->setBOnline(gesture != "delete");
            auto *body = new DrawerItemContent;
            body->addRowLineItem(1, PortItem, {});
            QVERIFY(connect(body, SIGNAL(signal_ItemContentPortItemPressed(RowLineItem *)), item,
                            SLOT(on_itemContentPortItemPressed(RowLineItem *))));
            item->addItem(body);
            item->setWorkSpaceisShow(true);
            QVERIFY(shown->show());
            const Parts parts(*item);
            QStringList entries;
            const QPointer<DrawerItem> guard(item);
            connectTo(item, [&] {
                entries = shown->log.take();
                if (withWindow)
                    shown.reset();
                else
                    delete item;
            });
            QWidget *target = parts.deviceName;
            if (gesture == "shrink button")
                target = parts.shrink;
            else if (gesture == "settings" || gesture == "delete")
                target = parts.rightButton;
            else if (gesture == "check")
                target = parts.checkAll;
            else if (gesture == "row")
                target = body->lsRowLineItems().at(0)->findChild<QToolButton *>(
                    QString(), Qt::FindDirectChildrenOnly);
            pointer::moveTo(target);
            const QPointer<QWidget> targetGuard(target);
            windowmouse::press(target);
            if (targetGuard)
                windowmouse::release(target);
            QVERIFY(guard.isNull());
            QCOMPARE(shown == nullptr, withWindow);
            QCOMPARE(entries, before);
            if (shown)
                QCOMPARE(shown->log.take(), QStringList());
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }

    void bodiesCanBeReplacedInTheirOwnNotifications_data()
    {
        QTest::addColumn<bool>("removed");
        QTest::newRow("replaced") << false;
        QTest::newRow("removed") << true;
    }

    void bodiesCanBeReplacedInTheirOwnNotifications()
    {
        QFETCH(bool, removed);
        Shown shown;
        DrawerItem *item = shown.item;
        const QPointer<DrawerItemContent> body = new DrawerItemContent;
        body->addRowLineItem(1, PortItem, {});
        connect(body, SIGNAL(signal_ItemContentPortItemPressed(RowLineItem *)), item,
                SLOT(on_itemContentPortItemPressed(RowLineItem *)));
        item->addItem(body);
        item->setWorkSpaceisShow(true);
        QVERIFY(shown.show());
        auto *next = new QWidget(&shown.panel);
        connect(item, &DrawerItem::signal_ItemContentPortItemPressed, this, [=] {
            if (removed)
                item->removeItem();
            else
                item->addItem(next);
        });
        windowmouse::click(body->lsRowLineItems().at(0)->findChild<QToolButton *>(
            QString(), Qt::FindDirectChildrenOnly));
        QVERIFY(body.isNull());
        QCOMPARE(item->getItem(), removed ? nullptr : next);
        QCOMPARE(shown.item.data(), item);
    }

    void nothingOfAnItemOutlivesIt_data()
    {
        QTest::addColumn<bool>("hasParent");
        QTest::addColumn<bool>("isShown");
        QTest::newRow("alone") << false << false;
        QTest::newRow("with its parent") << true << false;
        QTest::newRow("expanded and shown") << true << true;
    }

    void nothingOfAnItemOutlivesIt()
    {
        QFETCH(bool, hasParent);
        QFETCH(bool, isShown);
        auto parent = std::make_unique<QWidget>();
        auto *item = new DrawerItem(hasParent ? parent.get() : nullptr);
        item->addItem(new QWidget);
        item->addContentWidget(new QWidget);
        item->setWorkSpaceisShow(true);
        if (isShown)
            QVERIFY(pointer::showAndWait(parent.get()));
        QList<QPointer<QObject>> parts;
        for (QObject *part : item->findChildren<QObject *>())
            parts.append(part);
        QVERIFY(parts.size() > 20);
        if (!hasParent)
            delete item;
        parent.reset();
        for (const QPointer<QObject> &part : parts)
            QVERIFY(part.isNull());
    }

    void partsThatWereMovedElsewhereAreDeletedLater()
    {
        QWidget elsewhere;
        QPointer<QFrame> header;
        QPointer<QScrollArea> area;
        {
            DrawerItem item;
            header = Parts(item).header;
            area = item.scrollArea();
            header->setParent(&elsewhere);
            area->setParent(&elsewhere);
        }
        QVERIFY(header && area);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!header && !area);
    }

    void longAndOddTextsAreHarmless_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("quotes") << "\"a\" 'b'";
        QTest::newRow("braces") << "}QLabel{color:red;";
        QTest::newRow("very long") << QString(10000, 'w');
        QTest::newRow("lines") << "one\ntwo";
        QTest::newRow("null") << QString();
    }

    void longAndOddTextsAreHarmless()
    {
        QFETCH(QString, text);
        Shown shown;
        shown.item->setDeviceName(text);
        shown.item->setDevicePortName(text, true);
        shown.item->setDeviceCount(text);
        QCOMPARE(shown.item->getDeviceName(), text);
        QCOMPARE(shown.item->getDevicePortName(), text);
        QCOMPARE(shown.item->deviceCount(), text);
        QVERIFY(shown.show());
    }

private:
    using Connect = std::function<void(DrawerItem *, const std::function<void()> &)>;
};

ORVANE_TEST_MAIN(TestDrawerItem)
#include "tst_draweritem.moc"
