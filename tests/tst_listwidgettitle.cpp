#include "support/paintcounter.h"
#include "support/pointer.h"
#include "support/testcase.h"
#include "support/windowmouse.h"

#include <listwidgettitle.h>

namespace
{

QString buttonSheet(const QString &name)
{
    const QString image =
        "{border-image: url(:/Resource/Images/globalResource/listwidget/" + name + "_";
    return "QToolButton{background-color:rgb(225, 225, 225); border:none;}QToolButton" + image
        + "normal.png);}QToolButton:hover" + image + "hover.png);}QToolButton:pressed" + image
        + "pressed.png);}";
}

const QString unfoldSheet =
    "QToolButton{background-color:rgb(225, 225, 225); border:none;}QToolButton{border-image: "
    "url(:/Resource/Images/globalResource/listwidget/btn_unfold_normal.png);}QToolButton:hover{"
    "border-image: url(:/Resource/Images/globalResource/listwidget/btn_unfold_hover.png);}"
    "QToolButton:pressed{border-image: "
    "url(:/Resource/Images/globalResource/listwidget/btn_unfold_pressed.png);}";

QLabel *label(const ListWidgetTitle &title)
{
    return qobject_cast<QLabel *>(title.layout()->itemAt(0)->widget());
}

QToolButton *refreshButton(const ListWidgetTitle &title)
{
    return qobject_cast<QToolButton *>(title.layout()->itemAt(2)->widget());
}

QToolButton *dropDownButton(const ListWidgetTitle &title)
{
    return qobject_cast<QToolButton *>(title.layout()->itemAt(3)->widget());
}

/// The only button that is not in the layout.
QToolButton *settingsButton(const ListWidgetTitle &title)
{
    QToolButton *found = nullptr;
    for (QToolButton *button : title.findChildren<QToolButton *>()) {
        if (title.layout()->indexOf(button) < 0)
            found = button;
    }
    return found;
}

} // namespace

class TestListWidgetTitle : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isBuiltFromItsParts()
    {
        QWidget parent;
        ListWidgetTitle title("Devices", &parent);
        QCOMPARE(title.parentWidget(), &parent);
        QCOMPARE(title.minimumHeight(), 32);
        QCOMPARE(title.maximumHeight(), 32);
        QCOMPARE(title.contentsMargins(), QMargins());
        QVERIFY(title.autoFillBackground());
        QVERIFY(title.windowFlags() & Qt::FramelessWindowHint);
        QVERIFY(!title.isWindow());
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            QCOMPARE(title.palette().brush(group, QPalette::Window), QBrush(QColor(225, 225, 225)));
        }

        auto *layout = qobject_cast<QHBoxLayout *>(title.layout());
        QVERIFY(layout);
        QCOMPARE(layout->spacing(), 8);
        QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 10, 0));
        QCOMPARE(layout->count(), 4);
        QVERIFY(layout->itemAt(1)->spacerItem());
        QCOMPARE(layout->stretch(1), 20);

        QVERIFY(label(title));
        QCOMPARE(label(title)->text(), QString("Devices"));
        QCOMPARE(label(title)->contentsMargins(), QMargins(6, 6, 0, 6));
        QCOMPARE(label(title)->alignment(), Qt::AlignLeft | Qt::AlignTop);
        QCOMPARE(label(title)->styleSheet(), QString("font: 11pt \"微软雅黑\";"));

        QCOMPARE(title.findChildren<QToolButton *>().size(), 3);
        for (QToolButton *button : title.findChildren<QToolButton *>()) {
            QCOMPARE(button->minimumSize(), QSize(13, 13));
            QCOMPARE(button->maximumSize(), QSize(13, 13));
        }
        QVERIFY(refreshButton(title));
        QCOMPARE(refreshButton(title)->styleSheet(), buttonSheet("btn_refresh_guide"));
        QVERIFY(!refreshButton(title)->isHidden());
        QVERIFY(dropDownButton(title));
        QCOMPARE(dropDownButton(title)->styleSheet(), unfoldSheet);
        QVERIFY(!dropDownButton(title)->isHidden());
        QVERIFY(settingsButton(title));
        QCOMPARE(settingsButton(title)->styleSheet(), buttonSheet("btn_settings_guide"));
        QVERIFY(settingsButton(title)->isHidden());
        QCOMPARE(settingsButton(title)->parentWidget(), &title);
    }

    void aTitleWithoutAParentIsAFramelessWindow()
    {
        ListWidgetTitle title("Devices", nullptr);
        QVERIFY(title.isWindow());
        QVERIFY(title.windowFlags() & Qt::FramelessWindowHint);
        QVERIFY(title.isHidden());
    }

    void declaresItsSignalsAndItsSlot()
    {
        const QMetaObject &meta = ListWidgetTitle::staticMetaObject;
        QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
        QCOMPARE(meta.propertyOffset(), meta.propertyCount());
        QStringList methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            methods += QString::fromLatin1(meta.method(i).methodSignature());
            QCOMPARE(meta.method(i).access(), QMetaMethod::Public);
        }
        QCOMPARE(methods,
                 (QStringList{"signal_Refresh()", "signal_Setting()", "signal_HideShow(bool)",
                              "slot_HideClicked()"}));
    }

    void liesFromLeftToRight()
    {
        QWidget window;
        window.resize(300, 80);
        ListWidgetTitle title("Devices", &window);
        title.setGeometry(0, 0, 300, 32);
        QVERIFY(pointer::showAndWait(&window));
        QCOMPARE(label(title)->x(), 0);
        QCOMPARE(dropDownButton(title)->geometry(), QRect(300 - 10 - 13, 9, 13, 13));
        QCOMPARE(refreshButton(title)->geometry(), QRect(300 - 10 - 13 - 8 - 13, 9, 13, 13));
        QCOMPARE(pointer::colorAt(&title, {150, 2}), QColor(225, 225, 225));
        title.resize(300, 100);
        QCOMPARE(title.height(), 32);
    }

    void theTextIsTheHosts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("plain") << "Senders";
        QTest::newRow("Chinese") << "设备";
        QTest::newRow("empty") << "";
        QTest::newRow("very long") << QString(5000, 'w');
    }

    void theTextIsTheHosts()
    {
        QFETCH(QString, text);
        ListWidgetTitle title(text);
        QCOMPARE(label(title)->text(), text);
        title.setTitle("another");
        QCOMPARE(label(title)->text(), QString("another"));
        title.setTitle(text);
        QCOMPARE(label(title)->text(), text);
        title.grab();
    }

    void clicksOnTheDropDownButtonAlternate()
    {
        ListWidgetTitle title("Devices");
        title.resize(300, 32);
        QVERIFY(pointer::showAndWait(&title));
        QSignalSpy hideShow(&title, &ListWidgetTitle::signal_HideShow);
        QSignalSpy refresh(&title, &ListWidgetTitle::signal_Refresh);
        QSignalSpy setting(&title, &ListWidgetTitle::signal_Setting);
        windowmouse::click(dropDownButton(title));
        QCOMPARE(hideShow, (QList<QVariantList>{{false}}));
        windowmouse::click(dropDownButton(title));
        QCOMPARE(hideShow, (QList<QVariantList>{{false}, {true}}));
        title.slot_HideClicked();
        QCOMPARE(hideShow, (QList<QVariantList>{{false}, {true}, {false}}));
        windowmouse::click(dropDownButton(title), Qt::RightButton);
        QCOMPARE(hideShow.count(), 3);
        // The image is what the host asks for.
        QCOMPARE(dropDownButton(title)->styleSheet(), unfoldSheet);
        title.changeDropDownBtn(true);
        windowmouse::click(dropDownButton(title));
        QCOMPARE(hideShow.last(), QVariantList{true});
        QCOMPARE(refresh.count() + setting.count(), 0);
    }

    void clicksOnTheOtherButtonsAreReported()
    {
        ListWidgetTitle title("Devices");
        title.resize(300, 32);
        title.setIconVisible(true);
        QVERIFY(pointer::showAndWait(&title));
        QSignalSpy hideShow(&title, &ListWidgetTitle::signal_HideShow);
        QSignalSpy refresh(&title, &ListWidgetTitle::signal_Refresh);
        QSignalSpy setting(&title, &ListWidgetTitle::signal_Setting);
        windowmouse::click(refreshButton(title));
        QCOMPARE(refresh.count(), 1);
        QCOMPARE(setting.count(), 0);
        windowmouse::click(settingsButton(title));
        QCOMPARE(refresh.count(), 1);
        QCOMPARE(setting.count(), 1);
        QCOMPARE(hideShow.count(), 0);
    }

    void theDropDownImageIsTheHosts()
    {
        ListWidgetTitle title("Devices");
        QPixmap pixmap(8, 8);
        pixmap.fill(Qt::red);
        dropDownButton(title)->setIcon(pixmap);
        title.changeDropDownBtn(false);
        QVERIFY(dropDownButton(title)->icon().isNull());
        QCOMPARE(dropDownButton(title)->styleSheet(), buttonSheet("btn_fold"));
        dropDownButton(title)->setIcon(pixmap);
        title.changeDropDownBtn(true);
        QVERIFY(dropDownButton(title)->icon().isNull());
        QCOMPARE(dropDownButton(title)->styleSheet(), unfoldSheet);
    }

    void theDropDownImageIsSeenWhenSetBeforeAndAfterTheFirstShow()
    {
        const auto grabbed = [](QWidget *button) { return button->grab().toImage(); };
        ListWidgetTitle unfolded("Devices");
        unfolded.resize(300, 32);
        QVERIFY(pointer::showAndWait(&unfolded));
        const QImage unfoldImage = grabbed(dropDownButton(unfolded));
        ListWidgetTitle title("Devices");
        title.resize(300, 32);
        title.changeDropDownBtn(false);
        QVERIFY(pointer::showAndWait(&title));
        const QImage foldImage = grabbed(dropDownButton(title));
        QVERIFY(foldImage != unfoldImage);
        title.changeDropDownBtn(true);
        QCOMPARE(grabbed(dropDownButton(title)), unfoldImage);
        title.changeDropDownBtn(false);
        QCOMPARE(grabbed(dropDownButton(title)), foldImage);
    }

    void buttonsAreShownAndHidden()
    {
        ListWidgetTitle title("Devices");
        title.resize(300, 32);
        QVERIFY(pointer::showAndWait(&title));
        title.setIconVisible(true);
        QVERIFY(settingsButton(title)->isVisible());
        QCOMPARE(settingsButton(title)->pos(), QPoint(0, 0)); // outside the layout
        QVERIFY(refreshButton(title)->isVisible());
        QVERIFY(dropDownButton(title)->isVisible());
        title.hideRefIcon();
        QVERIFY(settingsButton(title)->isVisible());
        QVERIFY(!refreshButton(title)->isVisible());
        QVERIFY(dropDownButton(title)->isVisible());
        title.setIconVisible(false);
        QVERIFY(!settingsButton(title)->isVisible());
        QVERIFY(!refreshButton(title)->isVisible());
        QVERIFY(!dropDownButton(title)->isVisible());
        title.setIconVisible(true);
        QVERIFY(refreshButton(title)->isVisible());
    }

    void isPaintedAnewWhenItsStateChanges()
    {
        ListWidgetTitle title("Devices");
        QVERIFY(pointer::showAndWait(&title));
        const PaintCounter paints(&title);
        QEvent change(QEvent::EnabledChange); // for the title alone: its parts would paint it, too
        QCoreApplication::sendEvent(&title, &change);
        QTRY_VERIFY(paints.count > 0);
    }

    void theTitleCanGoInItsSignals_data()
    {
        QTest::addColumn<int>("signal");
        QTest::addColumn<bool>("withWindow");
        const char *names[] = {"drop-down", "refresh", "settings"};
        for (int signal = 0; signal < 3; ++signal) {
            QTest::addRow("%s, the title", names[signal]) << signal << false;
            QTest::addRow("%s, the window", names[signal]) << signal << true;
        }
    }

    void theTitleCanGoInItsSignals()
    {
        QFETCH(int, signal);
        QFETCH(bool, withWindow);
        auto window = std::make_unique<QWidget>();
        window->resize(300, 60);
        QPointer<ListWidgetTitle> title = new ListWidgetTitle("Devices", window.get());
        title->setGeometry(0, 0, 300, 32);
        title->setIconVisible(true);
        QVERIFY(pointer::showAndWait(window.get()));
        int calls = 0;
        const auto act = [&] {
            ++calls;
            if (withWindow)
                window.reset();
            else
                delete title;
        };
        connect(title, &ListWidgetTitle::signal_HideShow, this, act);
        connect(title, &ListWidgetTitle::signal_Refresh, this, act);
        connect(title, &ListWidgetTitle::signal_Setting, this, act);
        windowmouse::click(signal == 0       ? dropDownButton(*title)
                               : signal == 1 ? refreshButton(*title)
                                             : settingsButton(*title));
        QCOMPARE(calls, 1);
        QVERIFY(title.isNull());
    }

    void nothingOfATitleOutlivesIt()
    {
        auto *title = new ListWidgetTitle("Devices", nullptr);
        QList<QPointer<QObject>> parts;
        for (QObject *part : title->findChildren<QObject *>())
            parts.append(part);
        QCOMPARE(parts.size(), 5);
        delete title;
        for (const QPointer<QObject> &part : parts)
            QVERIFY(part.isNull());
        auto *window = new QWidget;
        QPointer<ListWidgetTitle> child = new ListWidgetTitle("Devices", window);
        delete window;
        QVERIFY(child.isNull());
    }
};

ORVANE_TEST_MAIN(TestListWidgetTitle)
#include "tst_listwidgettitle.moc"
