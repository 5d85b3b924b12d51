#include "support/pointer.h"
#include "support/sheetimages.h"
#include "support/testcase.h"
#include "support/windowmouse.h"

#include <offlineportitemframe.h>

namespace
{

const QString imageDirectory = ":/Resource/Images/globalResource/drawer/";

QString image(const QString &name)
{
    return "{border-image: url(" + imageDirectory + name + ".png);}";
}

QString normalSheet(const QString &kind, int number)
{
    const QString n = QString::number(number);
    return "QToolButton" + image("btn_" + kind + "_normal_" + n) + "QToolButton:hover"
        + image("btn_" + kind + "_hover_" + n);
}

QString pressedSheet(const QString &kind, int number)
{
    return "QToolButton" + image("btn_" + kind + "_pressed_" + QString::number(number));
}

QString disabledSheet(const QString &kind, int number)
{
    return "QToolButton" + image("btn_" + kind + "_disabled_" + QString::number(number));
}

QLabel *label(const OfflinePortItemFrame &frame)
{
    return frame.findChild<QLabel *>("label_portIndex", Qt::FindDirectChildrenOnly);
}

QToolButton *button(const OfflinePortItemFrame &frame)
{
    return frame.findChild<QToolButton *>("toolButton", Qt::FindDirectChildrenOnly);
}

} // namespace

Q_DECLARE_METATYPE(std::function<void(OfflinePortItemFrame &)>)
Q_DECLARE_METATYPE(ItemType)

class TestOfflinePortItemFrame : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isBuiltFromTheForm()
    {
        OfflinePortItemFrame frame(nullptr);
        QCOMPARE(frame.objectName(), QString("OfflinePortItemFrame"));
        QCOMPARE(frame.size(), QSize(46, 32));
        QCOMPARE(frame.minimumSize(), QSize(46, 30));
        QCOMPARE(frame.maximumSize(), QSize(53, 32));
        QCOMPARE(frame.styleSheet(), QString());
        QCOMPARE(frame.frameShape(), QFrame::StyledPanel);
        QCOMPARE(frame.frameShadow(), QFrame::Raised);
        QCOMPARE(frame.windowTitle(), QString("Frame"));

        auto *layout = frame.findChild<QHBoxLayout *>("horizontalLayout");
        QVERIFY(layout);
        QCOMPARE(frame.layout(), layout);
        QCOMPARE(layout->spacing(), 0);
        QCOMPARE(layout->contentsMargins(), QMargins());
        QCOMPARE(layout->count(), 2);
        QCOMPARE(layout->itemAt(0)->widget(), label(frame));
        QCOMPARE(layout->itemAt(1)->widget(), button(frame));

        QCOMPARE(label(frame)->minimumSize(), QSize(14, 20));
        QCOMPARE(label(frame)->maximumSize(), QSize(21, 20));
        QCOMPARE(label(frame)->styleSheet(), QString("color: rgb(255, 255, 255);"));
        QCOMPARE(label(frame)->alignment(), Qt::AlignRight | Qt::AlignVCenter);
        QCOMPARE(label(frame)->text(), QString("16"));
        QCOMPARE(button(frame)->minimumSize(), QSize(30, 30));
        QCOMPARE(button(frame)->maximumSize(), QSize(30, 30));
        QCOMPARE(button(frame)->text(), QString());
        QCOMPARE(button(frame)->styleSheet(), QString());
        QCOMPARE(button(frame)->metaObject(), &QToolButton::staticMetaObject);
        QCOMPARE(frame.portIndex(), -1);
        QVERIFY(frame.getItemIsEnabled());
    }

    void declaresItsSignalAndItsSlot()
    {
        const QMetaObject &meta = OfflinePortItemFrame::staticMetaObject;
        QCOMPARE(meta.superClass(), &QFrame::staticMetaObject);
        QStringList methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
            methods += QString::fromLatin1(meta.method(i).methodSignature());
        QCOMPARE(
            methods,
            (QStringList{"signal_portItemPressed(OfflinePortItemFrame*)", "on_itemPressed()"}));
        QCOMPARE(meta.method(meta.methodOffset() + 1).access(), QMetaMethod::Private);
    }

    void itemTypesHaveTheirValues()
    {
        QCOMPARE(int(PortItem), 0);
        QCOMPARE(int(CoaxialItem), 1);
        QCOMPARE(sizeof(ItemType), sizeof(int));
    }

    void setLineItemTypeSetsNumberAndPictures_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<ItemType>("type");
        QTest::addColumn<QString>("kind");
        QTest::newRow("port") << 3 << PortItem << "Port";
        QTest::newRow("coaxial") << 16 << CoaxialItem << "coaxial";
        QTest::newRow("without pictures") << 17 << PortItem << "Port";
        QTest::newRow("negative") << -4 << CoaxialItem << "coaxial";
    }

    void setLineItemTypeSetsNumberAndPictures()
    {
        QFETCH(int, number);
        QFETCH(ItemType, type);
        QFETCH(QString, kind);
        OfflinePortItemFrame frame;
        frame.setLineItemType(number, type);
        QCOMPARE(frame.portIndex(), number);
        QCOMPARE(label(frame)->text(), QString::number(number));
        QCOMPARE(button(frame)->styleSheet(), normalSheet(kind, number));
        frame.setItemPressed();
        QCOMPARE(button(frame)->styleSheet(), pressedSheet(kind, number));
        frame.setItemReleased();
        QCOMPARE(button(frame)->styleSheet(), normalSheet(kind, number));
        frame.setItemDisabled(true);
        QVERIFY(!frame.getItemIsEnabled());
        QCOMPARE(button(frame)->styleSheet(), disabledSheet(kind, number));
    }

    void aDisabledButtonShowsTheDisabledPicture()
    {
        OfflinePortItemFrame frame;
        frame.setLineItemType(2, PortItem);
        frame.setItemDisabled(true);
        frame.setItemPressed();
        QCOMPARE(button(frame)->styleSheet(), disabledSheet("Port", 2));
        frame.setItemReleased();
        QCOMPARE(button(frame)->styleSheet(), disabledSheet("Port", 2));
        frame.setLineItemType(5, CoaxialItem);
        QCOMPARE(button(frame)->styleSheet(), disabledSheet("coaxial", 5));
        QVERIFY(!frame.getItemIsEnabled());
    }

    void enablingShowsTheNormalPicturesOfAPressedFrameToo()
    {
        OfflinePortItemFrame frame;
        frame.setLineItemType(2, PortItem);
        frame.setItemPressed();
        frame.setItemDisabled(false);
        QVERIFY(frame.getItemIsEnabled());
        QCOMPARE(button(frame)->styleSheet(), normalSheet("Port", 2));
    }

    void anUnknownTypeKeepsTheSheet()
    {
        OfflinePortItemFrame frame;
        frame.setLineItemType(2, PortItem);
        const QString before = button(frame)->styleSheet();
        frame.setLineItemType(9, static_cast<ItemType>(5));
        QCOMPARE(label(frame)->text(), QString("9"));
        QCOMPARE(frame.portIndex(), 9);
        frame.setItemPressed();
        frame.setItemReleased();
        QCOMPARE(button(frame)->styleSheet(), before);
        frame.setItemDisabled(true);
        QVERIFY(!frame.getItemIsEnabled());
        QCOMPARE(button(frame)->styleSheet(), before);
        frame.setItemDisabled(false);
        QVERIFY(frame.getItemIsEnabled());
        QCOMPARE(button(frame)->styleSheet(), before);
    }

    void setPortIndexChangesTheLabelAlone()
    {
        OfflinePortItemFrame frame;
        frame.setLineItemType(7, PortItem);
        frame.setPortIndex(3);
        QCOMPARE(label(frame)->text(), QString("4"));
        QCOMPARE(frame.portIndex(), 7);
        frame.setItemPressed();
        QCOMPARE(button(frame)->styleSheet(), pressedSheet("Port", 7));
        frame.setPortIndex(-1);
        QCOMPARE(label(frame)->text(), QString("0"));
        frame.setPortIndex(std::numeric_limits<int>::max());
        QCOMPARE(label(frame)->text(), QString("2147483648"));
    }

    void everyPictureOfThePortsExists()
    {
        OfflinePortItemFrame frame;
        QSet<QString> seen;
        const auto see = [&] {
            for (const QString &path : imagePaths(button(frame)->styleSheet())) {
                QVERIFY2(!QImage(path).isNull(), qPrintable(path));
                seen.insert(path);
            }
        };
        for (const ItemType type : {PortItem, CoaxialItem}) {
            for (int number = 1; number <= 16; ++number) {
                frame.setItemDisabled(false);
                frame.setLineItemType(number, type);
                see();
                frame.setItemPressed();
                see();
                frame.setItemDisabled(true);
                see();
            }
        }
        QCOMPARE(seen.size(), 2 * 16 * 4);
    }

    void theButtonShowsThePicture_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<std::function<void(OfflinePortItemFrame &)>>("change");
        using Change = std::function<void(OfflinePortItemFrame &)>;
        QTest::newRow("normal") << "btn_Port_normal_3" << Change([](OfflinePortItemFrame &) {});
        QTest::newRow("hover") << "btn_Port_hover_3" << Change([](OfflinePortItemFrame &frame) {
            pointer::moveTo(button(frame));
        });
        QTest::newRow("pressed") << "btn_Port_pressed_3" << Change([](OfflinePortItemFrame &frame) {
            frame.setItemPressed();
        });
        QTest::newRow("disabled") << "btn_Port_disabled_3"
                                  << Change([](OfflinePortItemFrame &frame) {
                                         frame.setItemDisabled(true);
                                     });
    }

    void theButtonShowsThePicture()
    {
        QFETCH(QString, name);
        QFETCH(std::function<void(OfflinePortItemFrame &)>, change);
        QWidget panel;
        panel.resize(200, 100);
        OfflinePortItemFrame frame(&panel);
        frame.move(100, 30);
        frame.setLineItemType(3, PortItem);
        QVERIFY(pointer::showAndWait(&panel));
        pointer::moveTo(&panel, QPoint(5, 5));
        change(frame);

        QImage expected(30, 30, QImage::Format_ARGB32_Premultiplied);
        expected.fill(Qt::transparent);
        QPainter painter(&expected);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawPixmap(expected.rect(), QPixmap(imageDirectory + name + ".png"));
        painter.end();
        QImage seen(30, 30, QImage::Format_ARGB32_Premultiplied);
        seen.fill(Qt::transparent);
        button(frame)->render(&seen, QPoint(), QRegion(), QWidget::RenderFlags());
        QCOMPARE(seen, expected);
    }

    void takesTheFrameWidthOfANewSheet()
    {
        OfflinePortItemFrame frame;
        QVERIFY(pointer::showAndWait(&frame));
        frame.setStyleSheet("OfflinePortItemFrame{border:5px solid red;}");
        QCOMPARE(frame.frameWidth(), 5);
    }

    void aPressIsReportedOnceAndAReleaseIsNot()
    {
        OfflinePortItemFrame frame;
        frame.setLineItemType(6, PortItem);
        QVERIFY(pointer::showAndWait(&frame));
        QSignalSpy spy(&frame, &OfflinePortItemFrame::signal_portItemPressed);
        windowmouse::press(button(frame));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).value<OfflinePortItemFrame *>(), &frame);
        windowmouse::release(button(frame));
        QCOMPARE(spy.count(), 1);
        // The frame never changes its look by itself.
        QCOMPARE(button(frame)->styleSheet(), normalSheet("Port", 6));

        windowmouse::click(button(frame), Qt::RightButton);
        windowmouse::click(label(frame));
        QCOMPARE(spy.count(), 1);
        frame.setItemDisabled(true);
        windowmouse::click(button(frame));
        QCOMPARE(spy.count(), 1);
    }

    void connectsBySignatureText()
    {
        OfflinePortItemFrame frame;
        OfflinePortItemFrame other;
        QVERIFY(connect(&frame, SIGNAL(signal_portItemPressed(OfflinePortItemFrame *)), &other,
                        SIGNAL(signal_portItemPressed(OfflinePortItemFrame *))));
        QSignalSpy spy(&other, &OfflinePortItemFrame::signal_portItemPressed);
        QVERIFY(QMetaObject::invokeMethod(&frame, "on_itemPressed"));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).value<OfflinePortItemFrame *>(), &frame);
    }

    void canBeDeletedInItsOwnSignal_data()
    {
        QTest::addColumn<bool>("withWindow");
        QTest::newRow("alone") << false;
        QTest::newRow("with its window") << true;
    }

    void canBeDeletedInItsOwnSignal()
    {
        QFETCH(bool, withWindow);
        QPointer<QWidget> window = new QWidget;
        QPointer<OfflinePortItemFrame> frame = new OfflinePortItemFrame(window);
        frame->setLineItemType(1, PortItem);
        QVERIFY(pointer::showAndWait(window));
        connect(frame, &OfflinePortItemFrame::signal_portItemPressed, this,
                [=] { delete (withWindow ? window.data() : frame.data()); });
        windowmouse::press(button(*frame));
        QVERIFY(frame.isNull());
        QCOMPARE(window.isNull(), withWindow);
        delete window;
    }
};

ORVANE_TEST_MAIN(TestOfflinePortItemFrame)
#include "tst_offlineportitemframe.moc"
