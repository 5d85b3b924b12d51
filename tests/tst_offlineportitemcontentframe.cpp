#include "support/pointer.h"
#include "support/testcase.h"
#include "support/windowmouse.h"

#include <draweritem.h>
#include <offlineportitemcontentframe.h>
#include <offlineportitemframe.h>

namespace
{

QGridLayout *grid(const OfflinePortItemContentFrame &content)
{
    return content.findChild<QGridLayout *>("gridLayout", Qt::FindDirectChildrenOnly);
}

QToolButton *button(const OfflinePortItemFrame *frame)
{
    return frame->findChild<QToolButton *>("toolButton");
}

/// The cell of \a item in \a layout.
QPoint cellOf(QGridLayout *layout, int index)
{
    int row = -1;
    int column = -1;
    int rowSpan = 0;
    int columnSpan = 0;
    layout->getItemPosition(index, &row, &column, &rowSpan, &columnSpan);
    return rowSpan == 1 && columnSpan == 1 ? QPoint(column, row) : QPoint(-1, -1);
}

} // namespace

Q_DECLARE_METATYPE(ItemType)

class TestOfflinePortItemContentFrame : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isBuiltFromTheForm()
    {
        OfflinePortItemContentFrame content(nullptr);
        QCOMPARE(content.objectName(), QString("OfflinePortItemContentFrame"));
        QCOMPARE(content.size(), QSize(169, 105));
        QCOMPARE(content.styleSheet(), QString());
        QCOMPARE(content.frameShape(), QFrame::StyledPanel);
        QCOMPARE(content.frameShadow(), QFrame::Raised);
        QCOMPARE(content.windowTitle(), QString("Frame"));
        QVERIFY(grid(content));
        QCOMPARE(content.layout(), grid(content));
        QCOMPARE(grid(content)->horizontalSpacing(), 10);
        QCOMPARE(grid(content)->verticalSpacing(), 12);
        QCOMPARE(grid(content)->contentsMargins(), QMargins(14, 18, 0, 0));
        QCOMPARE(grid(content)->count(), 0);
        QVERIFY(content.lsOfflinePortItems().isEmpty());
    }

    void declaresItsSignalAndItsSlot()
    {
        const QMetaObject &meta = OfflinePortItemContentFrame::staticMetaObject;
        QCOMPARE(meta.superClass(), &QFrame::staticMetaObject);
        QStringList methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
            methods += QString::fromLatin1(meta.method(i).methodSignature());
        QCOMPARE(methods,
                 (QStringList{"signal_portItemPressed(OfflinePortItemFrame*)",
                              "slot_portItemPressed(OfflinePortItemFrame*)"}));
        QCOMPARE(meta.method(meta.methodOffset() + 1).access(), QMetaMethod::Private);
    }

    void portsLieFourInALine_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<ItemType>("type");
        QTest::addColumn<int>("lines");
        QTest::addColumn<int>("spacerColumn");
        QTest::addColumn<QSize>("size");
        QTest::newRow("one") << 1 << PortItem << 1 << 1 << QSize(244, 56);
        QTest::newRow("one line of three") << 3 << PortItem << 1 << 3 << QSize(244, 56);
        QTest::newRow("one full line") << 4 << PortItem << 1 << 4 << QSize(244, 56);
        QTest::newRow("lines of four and one") << 5 << CoaxialItem << 2 << 1 << QSize(244, 100);
        QTest::newRow("spacer in the cell of a port") << 6 << PortItem << 2 << 2 << QSize(244, 100);
        QTest::newRow("two full lines") << 8 << CoaxialItem << 2 << 4 << QSize(244, 100);
        QTest::newRow("sixteen") << 16 << PortItem << 4 << 4 << QSize(244, 188);
        QTest::newRow("seventeen") << 17 << PortItem << 5 << 1 << QSize(244, 232);
    }

    void portsLieFourInALine()
    {
        QFETCH(int, count);
        QFETCH(ItemType, type);
        QFETCH(int, lines);
        QFETCH(int, spacerColumn);
        QFETCH(QSize, size);
        OfflinePortItemContentFrame content;
        content.addPortItem(count, type);

        const auto frames = content.lsOfflinePortItems();
        QCOMPARE(frames.size(), count);
        QGridLayout *layout = grid(content);
        QCOMPARE(layout->count(), count + 2);
        for (int i = 0; i < count; ++i) {
            QCOMPARE(layout->itemAt(i)->widget(), frames.at(i));
            QCOMPARE(frames.at(i)->parentWidget(), &content);
            QCOMPARE(cellOf(layout, i), QPoint(i % 4, i / 4));
            QCOMPARE(frames.at(i)->portIndex(), i + 1);
            QCOMPARE(frames.at(i)->findChild<QLabel *>("label_portIndex")->text(),
                     QString::number(i + 1));
            QVERIFY(button(frames.at(i))
                        ->styleSheet()
                        .contains(QString(type == PortItem ? "btn_Port_normal_%1.png"
                                                           : "btn_coaxial_normal_%1.png")
                                      .arg(i + 1)));
        }

        QSpacerItem *horizontal = layout->itemAt(count)->spacerItem();
        QVERIFY(horizontal);
        QCOMPARE(cellOf(layout, count), QPoint(spacerColumn, 0));
        QCOMPARE(horizontal->sizeHint(), QSize(0, 0));
        QCOMPARE(horizontal->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
        QCOMPARE(horizontal->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
        QSpacerItem *vertical = layout->itemAt(count + 1)->spacerItem();
        QVERIFY(vertical);
        QCOMPARE(cellOf(layout, count + 1), QPoint(0, lines));
        QCOMPARE(vertical->sizeHint(), QSize(0, 0));
        QCOMPARE(vertical->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
        QCOMPARE(vertical->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);

        QCOMPARE(content.size(), size);
        QCOMPARE(content.minimumSize(), size);
        QCOMPARE(content.maximumSize(), size);
    }

    void countsBelowOneAddNothing_data()
    {
        QTest::addColumn<int>("count");
        QTest::newRow("zero") << 0;
        QTest::newRow("negative") << -3;
        QTest::newRow("least") << std::numeric_limits<int>::min();
    }

    void countsBelowOneAddNothing()
    {
        QFETCH(int, count);
        OfflinePortItemContentFrame content;
        content.addPortItem(count, PortItem);
        QVERIFY(content.lsOfflinePortItems().isEmpty());
        QCOMPARE(grid(content)->count(), 0);
        QCOMPARE(content.size(), QSize(169, 105));
        content.addPortItem(4, PortItem);
        content.addPortItem(count, PortItem);
        QCOMPARE(content.lsOfflinePortItems().size(), 4);
        QCOMPARE(content.size(), QSize(244, 56));
    }

    void aSecondCallLaysItsFramesOverTheFirst()
    {
        OfflinePortItemContentFrame content;
        content.addPortItem(5, PortItem);
        content.addPortItem(2, CoaxialItem);
        const auto frames = content.lsOfflinePortItems();
        QCOMPARE(frames.size(), 7);
        QCOMPARE(frames.at(5)->portIndex(), 1);
        QCOMPARE(frames.at(6)->portIndex(), 2);
        QGridLayout *layout = grid(content);
        QCOMPARE(cellOf(layout, layout->indexOf(frames.at(5))), QPoint(0, 0));
        QCOMPARE(cellOf(layout, layout->indexOf(frames.at(6))), QPoint(1, 0));
        QCOMPARE(content.size(), QSize(244, 56));
    }

    void theSizeFollowsTheFirstFrame()
    {
        OfflinePortItemContentFrame content;
        content.addPortItem(1, PortItem);
        content.lsOfflinePortItems().at(0)->setFixedSize(50, 31);
        content.addPortItem(5, PortItem);
        QCOMPARE(content.size(), QSize((10 + 50 + 5) * 4, (12 + 31) * 2 + 12));
    }

    void framesAreShownInTheirCells()
    {
        OfflinePortItemContentFrame content;
        content.addPortItem(6, PortItem);
        QVERIFY(pointer::showAndWait(&content));
        const auto frames = content.lsOfflinePortItems();
        for (int i = 0; i < frames.size(); ++i) {
            QVERIFY(frames.at(i)->isVisible());
            QVERIFY(content.rect().contains(frames.at(i)->geometry()));
            if (i % 4 > 0) {
                QCOMPARE(frames.at(i)->y(), frames.at(i - 1)->y());
                QVERIFY(frames.at(i)->x() >= frames.at(i - 1)->geometry().right() + 10);
            }
            if (i >= 4) {
                QCOMPARE(frames.at(i)->x(), frames.at(i - 4)->x());
                QVERIFY(frames.at(i)->y() >= frames.at(i - 4)->geometry().bottom() + 12);
            }
        }
        QCOMPARE(frames.at(0)->pos() - content.contentsRect().topLeft(), QPoint(14, 18));
    }

    void aPressOnAPortIsReportedWithItsFrame()
    {
        OfflinePortItemContentFrame content;
        content.addPortItem(8, PortItem);
        QVERIFY(pointer::showAndWait(&content));
        QSignalSpy spy(&content, &OfflinePortItemContentFrame::signal_portItemPressed);
        OfflinePortItemFrame *sixth = content.lsOfflinePortItems().at(5);
        QCOMPARE(sixth->portIndex(), 6);
        windowmouse::press(button(sixth));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).value<OfflinePortItemFrame *>(), sixth);
        windowmouse::release(button(sixth));
        QCOMPARE(spy.count(), 1);
    }

    void thePressReachesTheDrawerItem()
    {
        auto *content = new OfflinePortItemContentFrame;
        content->addPortItem(4, PortItem);
        DrawerItem item;
        item.addItem(content);
        item.setWorkSpaceisShow(true);
        item.resize(300, 200);
        QVERIFY(connect(content, SIGNAL(signal_portItemPressed(OfflinePortItemFrame *)), &item,
                        SLOT(slot_itemContentPortItemPressed(OfflinePortItemFrame *))));
        QSignalSpy spy(&item, &DrawerItem::signal_offlineItemContentPortItemPressed);
        QVERIFY(pointer::showAndWait(&item));
        OfflinePortItemFrame *second = content->lsOfflinePortItems().at(1);
        windowmouse::press(button(second));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).value<DrawerItem *>(), &item);
        QCOMPARE(spy.at(0).at(1).value<OfflinePortItemFrame *>(), second);
        windowmouse::release(button(second));
    }

    void theListIsThatOfTheHost()
    {
        OfflinePortItemContentFrame content;
        content.addPortItem(3, PortItem);
        const auto frames = content.lsOfflinePortItems();
        content.setLsOfflinePortItems(frames);
        QCOMPARE(content.lsOfflinePortItems(), frames);
        content.setLsOfflinePortItems({frames.at(2), frames.at(0)});
        QCOMPARE(content.lsOfflinePortItems(),
                 (QList<OfflinePortItemFrame *>{frames.at(2), frames.at(0)}));
        QCOMPARE(frames.at(1)->parentWidget(), &content);
        QCOMPARE(grid(content)->count(), 5);
        content.setLsOfflinePortItems({});
        QVERIFY(content.lsOfflinePortItems().isEmpty());
        content.addPortItem(1, PortItem);
        QCOMPARE(content.lsOfflinePortItems().size(), 1);
    }

    void framesAndContentCanBeDeletedInTheSignal_data()
    {
        QTest::addColumn<bool>("whole");
        QTest::newRow("the frame") << false;
        QTest::newRow("the content") << true;
    }

    void framesAndContentCanBeDeletedInTheSignal()
    {
        QFETCH(bool, whole);
        QPointer<QWidget> window = new QWidget;
        window->resize(300, 200);
        QPointer<OfflinePortItemContentFrame> content = new OfflinePortItemContentFrame(window);
        content->addPortItem(4, PortItem);
        QVERIFY(pointer::showAndWait(window));
        connect(content, &OfflinePortItemContentFrame::signal_portItemPressed, this,
                [=](OfflinePortItemFrame *frame) {
                    if (whole)
                        delete content;
                    else
                        delete frame;
                });
        windowmouse::press(button(content->lsOfflinePortItems().constFirst()));
        QCOMPARE(content.isNull(), whole);
        if (!whole) {
            QCOMPARE(content->lsOfflinePortItems().size(), 3);
            QCOMPARE(content->lsOfflinePortItems().at(0)->portIndex(), 2);
            content->addPortItem(2, PortItem);
            QCOMPARE(content->lsOfflinePortItems().size(), 5);
        }
        delete window;
    }
};

ORVANE_TEST_MAIN(TestOfflinePortItemContentFrame)
#include "tst_offlineportitemcontentframe.moc"
