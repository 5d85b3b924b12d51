#include "support/framewarnings.h"
#include "support/pointer.h"
#include "support/testcase.h"
#include "support/windowmouse.h"

#include <windowtitle.h>

namespace
{

const QString directory = ":/Resource/Images/globalResource/titletbarbutton/";

const QString closeSheet =
    "QPushButton{border-image: url(:/Resource/Images/globalResource/titletbarbutton/"
    "btn_close_normal.png);}"
    "QPushButton:pressed{border-image: url(:/Resource/Images/globalResource/titletbarbutton/"
    "btn_close_pressed.png);}"
    "QPushButton:hover{border-image: url(:/Resource/Images/globalResource/titletbarbutton/"
    "btn_close_hover.png);}";
const QString minimizeSheet =
    "QPushButton{border-image: url(:/Resource/Images/globalResource/titletbarbutton/"
    "btn_mix_normal.png);}"
    "QPushButton:pressed{border-image: url(:/Resource/Images/globalResource/titletbarbutton/"
    "btn_mix_pressed.png);}"
    "QPushButton:hover{border-image: url(:/Resource/Images/globalResource/titletbarbutton/"
    "btn_mix_hover.png);}";
const QString maximizeSheet =
    "QPushButton{border-image: url(:/Resource/Images/globalResource/titletbarbutton/"
    "btn_max_normal.png);}"
    "QPushButton:pressed{border-image: url(:/Resource/Images/globalResource/titletbarbutton/"
    "btn_max_pressed.png);}"
    "QPushButton:hover{border-image: url(:/Resource/Images/globalResource/titletbarbutton/"
    "btn_max_hover.png);}";
const QString restoreSheet =
    "QPushButton{border-image: url(:/Resource/Images/globalResource/titletbarbutton/"
    "btn_return_normal.png);}"
    "QPushButton:pressed{border-image: url(:/Resource/Images/globalResource/titletbarbutton/"
    "btn_return_pressed.png);}"
    "QPushButton:hover{border-image: url(:/Resource/Images/globalResource/titletbarbutton/"
    "btn_return_hover.png);}";

/// In the order in which the title creates them.
enum Button { Close, Minimize, Maximize };

QPushButton *button(const QWidget &title, int which)
{
    return title.findChildren<QPushButton *>().at(which);
}

QLabel *image(const QWidget &title)
{
    return title.findChildren<QLabel *>().at(0);
}

QLabel *text(const QWidget &title)
{
    return title.findChildren<QLabel *>().at(1);
}

/// The window that a title belongs to: it writes down which mouse events come to it, the moves
/// apart.
class Window : public QWidget
{
public:
    Window() { setMouseTracking(true); }

    QStringList events;
    int moves = 0;
    QPoint position;

protected:
    void mousePressEvent(QMouseEvent *event) override { note("press", event); }
    void mouseMoveEvent(QMouseEvent *event) override
    {
        ++moves;
        position = event->pos();
    }
    void mouseReleaseEvent(QMouseEvent *event) override { note("release", event); }
    void mouseDoubleClickEvent(QMouseEvent *event) override { note("double-click", event); }

private:
    void note(const QString &name, const QMouseEvent *event)
    {
        events += name;
        position = event->pos();
    }
};

/// Lists the names of all signals of a title as they come.
class Signals : public QObject
{
public:
    explicit Signals(WindowTitle *title)
    {
        const auto add = [this](const QString &name) { return [this, name] { names += name; }; };
        connect(title, &WindowTitle::signal_minimizeMainForm, this, add("minimize"));
        connect(title, &WindowTitle::signal_maxMainForm, this, add("maximize"));
        connect(title, &WindowTitle::signal_closeMainForm, this, add("close"));
        connect(title, &WindowTitle::signal_mouseDoubleClickIntitle, this, add("double-click"));
        connect(title, &WindowTitle::signal_test, this, add("test"));
        connect(title, &WindowTitle::signal_mouseMoveIntitle, this, add("move"));
        connect(title, &WindowTitle::signal_mousePressIntitle, this, add("press"));
        connect(title, &WindowTitle::signal_mouseReleaseIntitle, this, add("release"));
    }

    QStringList names;
};

} // namespace

Q_DECLARE_METATYPE(Qt::MouseButton)

class TestWindowTitle : public TestCase
{
    Q_OBJECT

private:
    std::unique_ptr<WindowTitle> makeTitle(QSize size, QWidget *parent = nullptr)
    {
        for (const QString &warning : framewarnings::ofTitle())
            expectWarning(warning);
        return std::make_unique<WindowTitle>(size, parent);
    }

private Q_SLOTS:
    void declaresItsSignals()
    {
        const QMetaObject &meta = WindowTitle::staticMetaObject;
        QCOMPARE(meta.superClass(), &QFrame::staticMetaObject);
        QStringList methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            methods += QString::fromLatin1(meta.method(i).methodSignature());
            QCOMPARE(meta.method(i).methodType(), QMetaMethod::Signal);
        }
        QCOMPARE(methods,
                 (QStringList{"signal_minimizeMainForm()", "signal_maxMainForm()",
                              "signal_closeMainForm()", "signal_mouseDoubleClickIntitle()",
                              "signal_test()", "signal_mouseMoveIntitle(QMouseEvent*)",
                              "signal_mousePressIntitle(QPoint)",
                              "signal_mouseReleaseIntitle(QPoint)"}));
        QCOMPARE(meta.propertyOffset(), meta.propertyCount());
    }

    void plainTitleHasNoParts()
    {
        QWidget parent;
        WindowTitle title(&parent);
        QCOMPARE(title.parentWidget(), &parent);
        QVERIFY(title.children().isEmpty());
        QVERIFY(!title.layout());
        QCOMPARE(title.objectName(), QString());
        QCOMPARE(title.minimumSize(), QSize(0, 0));
        QVERIFY(!title.hasMouseTracking());
        title.rebuildUI(QSize(123, 45));
        QCOMPARE(title.minimumSize(), QSize(123, 45));
        QCOMPARE(title.maximumSize(), QSize(123, 45));
        QVERIFY(title.children().isEmpty());
    }

    void takesTheFrameWidthOfANewSheet()
    {
        const auto title = makeTitle(QSize(500, 30));
        QVERIFY(pointer::showAndWait(title.get()));
        title->setStyleSheet("WindowTitle{border:5px solid red;}");
        QCOMPARE(title->frameWidth(), 5);
    }

    void titleHasDefaults()
    {
        const auto title = makeTitle(QSize(500, 30));
        QCOMPARE(title->objectName(), QString("WindowTitle"));
        QCOMPARE(title->minimumSize(), QSize(500, 30));
        QCOMPARE(title->maximumSize(), QSize(500, 30));
        QVERIFY(title->hasMouseTracking());
        QCOMPARE(title->styleSheet(), QString());
        QCOMPARE(title->findChildren<QWidget *>().size(), 5);
        QCOMPARE(image(*title)->minimumSize(), QSize(23, 18));
        QCOMPARE(image(*title)->maximumSize(), QSize(23, 18));
        QCOMPARE(text(*title)->minimumSize(), QSize(100, 18));
        QCOMPARE(text(*title)->maximumSize(), QSize(100, 18));
        for (const QLabel *label : title->findChildren<QLabel *>()) {
            QCOMPARE(label->parentWidget(), title.get());
            QCOMPARE(label->text(), QString());
            QCOMPARE(label->styleSheet(), QString());
        }
    }

    void buttonsHaveTheirLook_data()
    {
        QTest::addColumn<int>("which");
        QTest::addColumn<QString>("sheet");
        QTest::newRow("close") << int(Close) << closeSheet;
        QTest::newRow("minimize") << int(Minimize) << minimizeSheet;
        QTest::newRow("maximize") << int(Maximize) << maximizeSheet;
    }

    void buttonsHaveTheirLook()
    {
        QFETCH(int, which);
        QFETCH(QString, sheet);
        const auto title = makeTitle(QSize(500, 30));
        const QPushButton *part = button(*title, which);
        QCOMPARE(part->parentWidget(), title.get());
        QCOMPARE(part->styleSheet(), sheet);
        QCOMPARE(part->minimumSize(), QSize(30, 20));
        QCOMPARE(part->maximumSize(), QSize(30, 20));
        QCOMPARE(part->cursor().shape(), Qt::PointingHandCursor);
        QCOMPARE(part->text(), QString());
        QCOMPARE(part->toolTip(), QString());
    }

    void buttonsStandAtTheRight()
    {
        const auto title = makeTitle(QSize(500, 30));
        QVERIFY(pointer::showAndWait(title.get()));
        QCOMPARE(button(*title, Minimize)->geometry(), QRect(410, 5, 30, 20));
        QCOMPARE(button(*title, Maximize)->geometry(), QRect(440, 5, 30, 20));
        QCOMPARE(button(*title, Close)->geometry(), QRect(470, 5, 30, 20));
        const auto *layout = qobject_cast<QHBoxLayout *>(title->layout());
        QVERIFY(layout);
        QCOMPARE(layout->contentsMargins(), QMargins());
        QCOMPARE(layout->spacing(), 0);

        title->rebuildUI(QSize(300, 40));
        QTRY_COMPARE(button(*title, Close)->geometry(), QRect(270, 10, 30, 20));
        QCOMPARE(title->size(), QSize(300, 40));
    }

    void logoStaysInTheCornerInNoLayout()
    {
        const auto title = makeTitle(QSize(500, 30));
        title->SetLogoTextValue("Orvane");
        QVERIFY(pointer::showAndWait(title.get()));
        const QRect imageBefore = image(*title)->geometry();
        const QRect textBefore = text(*title)->geometry();
        QCOMPARE(imageBefore, QRect(0, 0, 23, 18));
        QCOMPARE(textBefore, QRect(0, 0, 100, 18));
        // The main layout holds the buttons' layout alone.
        QCOMPARE(title->layout()->count(), 1);
        QVERIFY(title->layout()->itemAt(0)->layout());
        // Neither texts nor sizes nor a host's own place for a label make anything move.
        title->SetLogoTextValue("Another text that is longer");
        title->SetLogoTextSize(QSize(180, 20));
        image(*title)->move(10, 6);
        text(*title)->move(43, 5);
        title->SetLogoImageSize(QSize(24, 19));
        title->rebuildUI(QSize(520, 32));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        QCoreApplication::processEvents();
        QCOMPARE(image(*title)->geometry(), QRect(10, 6, 24, 19));
        QCOMPARE(text(*title)->geometry(), QRect(43, 5, 180, 20));
    }

    void logoTextLiesOverThePicture()
    {
        const auto title = makeTitle(QSize(500, 30));
        title->SetLogoTextStyleSheet("QLabel{background-color:rgb(1,2,3);}");
        title->SetLogoImagePath(directory + "btn_close_normal.png");
        QVERIFY(pointer::showAndWait(title.get()));
        QCOMPARE(pointer::colorAt(title.get(), QPoint(3, 3)), QColor(1, 2, 3));
        QCOMPARE(title->childAt(3, 3), text(*title));
    }

    void everyLayoutBelongsToTheTitle()
    {
        auto title = makeTitle(QSize(500, 30));
        const QList<QHBoxLayout *> layouts = title->findChildren<QHBoxLayout *>();
        QCOMPARE(layouts.size(), 3);
        QList<QPointer<QHBoxLayout>> watched;
        for (QHBoxLayout *layout : layouts) {
            QCOMPARE(layout->contentsMargins(), QMargins());
            QCOMPARE(layout->spacing(), 0);
            watched.append(layout);
        }
        // A refused layout knows its widget as the others do, and can be changed without harm.
        for (QHBoxLayout *layout : layouts) {
            QCOMPARE(layout->parentWidget(), title.get());
            layout->invalidate();
        }
        title.reset();
        for (const QPointer<QHBoxLayout> &layout : watched)
            QVERIFY(!layout);
    }

    void maximizeButtonOffersWhatItDoes()
    {
        const auto title = makeTitle(QSize(500, 30));
        title->setBtnMax(true);
        QCOMPARE(button(*title, Maximize)->styleSheet(), restoreSheet);
        title->setBtnMax(false);
        QCOMPARE(button(*title, Maximize)->styleSheet(), maximizeSheet);
        QCOMPARE(button(*title, Close)->styleSheet(), closeSheet);
        QCOMPARE(button(*title, Minimize)->styleSheet(), minimizeSheet);
    }

    void picturesAreSeen_data()
    {
        QTest::addColumn<int>("which");
        QTest::addColumn<bool>("isMaximized");
        QTest::addColumn<QString>("stem");
        QTest::newRow("close") << int(Close) << false << "btn_close";
        QTest::newRow("minimize") << int(Minimize) << false << "btn_mix";
        QTest::newRow("maximize") << int(Maximize) << false << "btn_max";
        QTest::newRow("restore") << int(Maximize) << true << "btn_return";
    }

    void picturesAreSeen()
    {
        QFETCH(int, which);
        QFETCH(bool, isMaximized);
        QFETCH(QString, stem);
        const auto title = makeTitle(QSize(500, 30));
        QPalette palette;
        palette.setColor(QPalette::Window, Qt::black);
        title->setPalette(palette);
        title->setBtnMax(!isMaximized); // the last one before the first show is the one seen
        title->setBtnMax(isMaximized);
        QVERIFY(pointer::showAndWait(title.get()));
        const auto expected = [&](const QString &state) {
            QImage picture(30, 20, QImage::Format_RGB32);
            picture.fill(Qt::black);
            QPainter painter(&picture);
            const QImage glyph(directory + stem + state + ".png");
            painter.drawImage(0, 0, glyph.scaled(30, 20));
            return picture;
        };
        const auto seen = [&] {
            return title->grab(button(*title, which)->geometry())
                .toImage()
                .convertToFormat(QImage::Format_RGB32);
        };
        pointer::moveAway(title.get());
        QCOMPARE(seen(), expected("_normal"));
        pointer::moveTo(title.get()); // the pointer comes to the button from the title
        pointer::moveTo(button(*title, which));
        QTRY_COMPARE(seen(), expected("_hover"));
        QVERIFY(expected("_hover") != expected("_normal"));
        // The hover picture covers the pressed one as long as the pointer is over the button.
        windowmouse::press(button(*title, which));
        QCOMPARE(seen(), expected("_hover"));
        windowmouse::release(button(*title, which));
        pointer::moveAway(title.get());
        button(*title, which)->setAttribute(Qt::WA_UnderMouse, false);
        button(*title, which)->setDown(true);
        QTRY_COMPARE(seen(), expected("_pressed"));
        QVERIFY(expected("_pressed") != expected("_normal"));
        QVERIFY(expected("_pressed") != expected("_hover"));
    }

    void logoIsSet()
    {
        const auto title = makeTitle(QSize(500, 30));
        title->SetLogoImageSize(QSize(40, 22));
        QCOMPARE(image(*title)->minimumSize(), QSize(40, 22));
        QCOMPARE(image(*title)->maximumSize(), QSize(40, 22));
        title->SetLogoImagePath(":/some/where/logo.png");
        QCOMPARE(image(*title)->styleSheet(),
                 QString("QLabel{border-image:url(:/some/where/logo.png);}"));
        title->SetLogoTextSize(QSize(150, 24));
        QCOMPARE(text(*title)->minimumSize(), QSize(150, 24));
        QCOMPARE(text(*title)->maximumSize(), QSize(150, 24));
        title->SetLogoTextStyleSheet("QLabel{color:rgb(210,210,210);}");
        QCOMPARE(text(*title)->styleSheet(), QString("QLabel{color:rgb(210,210,210);}"));
        title->SetLogoTextValue("箱体 12");
        QCOMPARE(text(*title)->text(), QString("箱体 12"));
        title->SetLogoImagePath(QString());
        QCOMPARE(image(*title)->styleSheet(), QString("QLabel{border-image:url();}"));
    }

    void logoPictureIsSeen()
    {
        const auto title = makeTitle(QSize(500, 30));
        QTemporaryDir folder;
        const QString path = folder.filePath("logo.png");
        QImage picture(23, 18, QImage::Format_RGB32);
        picture.fill(QColor(200, 100, 50));
        QVERIFY(picture.save(path));
        title->SetLogoImagePath(path);
        title->SetLogoTextSize(QSize(5, 18));
        QVERIFY(pointer::showAndWait(title.get()));
        QCOMPARE(pointer::colorAt(title.get(), QPoint(15, 9)), QColor(200, 100, 50));
    }

    void lastLogoSheetIsSeenAtTheFirstShowAndAfter()
    {
        const auto title = makeTitle(QSize(500, 30));
        title->SetLogoTextStyleSheet("QLabel{background-color:rgb(10,20,30);}");
        title->SetLogoTextStyleSheet("QLabel{background-color:rgb(40,50,60);}");
        QVERIFY(pointer::showAndWait(title.get()));
        QCOMPARE(pointer::colorAt(title.get(), QPoint(50, 9)), QColor(40, 50, 60));
        title->SetLogoTextStyleSheet("QLabel{background-color:rgb(70,80,90);}");
        QCOMPARE(pointer::colorAt(title.get(), QPoint(50, 9)), QColor(70, 80, 90));
    }

    void groupsAreShownAndHidden()
    {
        const auto title = makeTitle(QSize(500, 30));
        QVERIFY(pointer::showAndWait(title.get()));
        title->SetBtnGroupVisable(false);
        for (const QPushButton *part : title->findChildren<QPushButton *>())
            QVERIFY(!part->isVisible());
        QVERIFY(image(*title)->isVisible() && text(*title)->isVisible());
        title->SetLogoGroupVisable(false);
        QVERIFY(!image(*title)->isVisible() && !text(*title)->isVisible());
        title->SetBtnGroupVisable(true);
        for (const QPushButton *part : title->findChildren<QPushButton *>())
            QVERIFY(part->isVisible());
        QVERIFY(!image(*title)->isVisible() && !text(*title)->isVisible());
        title->SetLogoGroupVisable(true);
        QVERIFY(image(*title)->isVisible() && text(*title)->isVisible());
    }

    void buttonsHaveToolTips()
    {
        const auto title = makeTitle(QSize(500, 30));
        title->SetMinBtnToolTip("minimise");
        title->SetMaxBtnToolTip("maximise");
        title->SetCloseBtnToolTip("close");
        QCOMPARE(button(*title, Minimize)->toolTip(), QString("minimise"));
        QCOMPARE(button(*title, Maximize)->toolTip(), QString("maximise"));
        QCOMPARE(button(*title, Close)->toolTip(), QString("close"));
        QCOMPARE(title->toolTip(), QString());
    }

    void clickEmitsOneSignalAndDoesNothingElse_data()
    {
        QTest::addColumn<int>("which");
        QTest::addColumn<QString>("signal");
        QTest::newRow("close") << int(Close) << "close";
        QTest::newRow("minimize") << int(Minimize) << "minimize";
        QTest::newRow("maximize") << int(Maximize) << "maximize";
    }

    void clickEmitsOneSignalAndDoesNothingElse()
    {
        QFETCH(int, which);
        QFETCH(QString, signal);
        Window window;
        const auto title = makeTitle(QSize(500, 30), &window);
        window.resize(600, 200);
        QVERIFY(pointer::showAndWait(&window));
        const QString sheet = button(*title, Maximize)->styleSheet();
        const Signals reported(title.get());
        windowmouse::click(button(*title, which));
        QCOMPARE(reported.names, QStringList{signal});
        QVERIFY(window.events.isEmpty());
        QVERIFY(window.isVisible());
        QCOMPARE(window.windowState(), Qt::WindowStates(Qt::WindowNoState));
        QCOMPARE(window.size(), QSize(600, 200));
        QCOMPARE(button(*title, Maximize)->styleSheet(), sheet);
        // Other mouse buttons do not click.
        windowmouse::click(button(*title, which), Qt::RightButton);
        QCOMPARE(reported.names, QStringList{signal});
    }

    void doubleClickIsReportedWithAnyButton_data()
    {
        QTest::addColumn<Qt::MouseButton>("mouseButton");
        QTest::newRow("left") << Qt::LeftButton;
        QTest::newRow("right") << Qt::RightButton;
        QTest::newRow("middle") << Qt::MiddleButton;
        QTest::newRow("back") << Qt::BackButton;
    }

    void doubleClickIsReportedWithAnyButton()
    {
        QFETCH(Qt::MouseButton, mouseButton);
        Window window;
        const auto title = makeTitle(QSize(500, 30), &window);
        title->move(20, 10);
        window.resize(600, 200);
        QVERIFY(pointer::showAndWait(&window));
        const Signals reported(title.get());
        QTest::mouseDClick(window.windowHandle(), mouseButton, Qt::NoModifier,
                           title->mapTo(&window, QPoint(200, 15)));
        QCOMPARE(reported.names, QStringList{"double-click"});
        // The window gets the clicks, and of the double-click the release alone.
        QCOMPARE(window.events.count("double-click"), 0);
        QCOMPARE(window.events.count("press"), 1);
        QCOMPARE(window.events.count("release"), 2);
    }

    void mouseGoesOnToTheWindow()
    {
        Window window;
        const auto title = makeTitle(QSize(500, 30), &window);
        title->move(20, 10);
        window.resize(600, 200);
        QVERIFY(pointer::showAndWait(&window));
        const Signals reported(title.get());
        QTest::mouseMove(window.windowHandle(), QPoint(219, 20)); // nothing is pressed
        QTest::mouseMove(window.windowHandle(), QPoint(220, 20));
        QTRY_COMPARE(window.position, QPoint(220, 20));
        QVERIFY(window.moves > 0);
        QTest::mouseMove(window.windowHandle(), QPoint(23, 13)); // over the logo
        QTRY_COMPARE(window.position, QPoint(23, 13));
        windowmouse::press(title.get(), Qt::LeftButton, QPoint(200, 15));
        QCOMPARE(window.events, QStringList{"press"});
        QCOMPARE(window.position, QPoint(220, 25));
        windowmouse::release(title.get(), Qt::LeftButton, QPoint(210, 12));
        QCOMPARE(window.events.last(), QString("release"));
        QCOMPARE(window.position, QPoint(230, 22));
        // The logo is a part of the title in this.
        window.events.clear();
        windowmouse::press(image(*title));
        windowmouse::release(image(*title));
        QCOMPARE(window.events, (QStringList{"press", "release"}));
        QVERIFY(reported.names.isEmpty());
    }

    void titleDiesWithItsParentAndAlone()
    {
        auto parent = std::make_unique<QWidget>();
        const QPointer<WindowTitle> owned = makeTitle(QSize(300, 30), parent.get()).release();
        const QPointer<WindowTitle> gone = makeTitle(QSize(300, 30), parent.get()).release();
        delete gone;
        QVERIFY(parent->children().contains(owned));
        parent.reset();
        QVERIFY(!owned);
    }

    void partsMayBeDeletedByTheHost()
    {
        auto title = makeTitle(QSize(300, 30));
        delete image(*title);
        QVERIFY(pointer::showAndWait(title.get()));
        delete title->layout();
        title->rebuildUI(QSize(200, 30));
        QCoreApplication::processEvents();
        QCOMPARE(title->size(), QSize(200, 30));
    }

    void titleMayBeDeletedInItsOwnSignals_data()
    {
        QTest::addColumn<int>("which");
        QTest::newRow("close") << int(Close);
        QTest::newRow("minimize") << int(Minimize);
        QTest::newRow("maximize") << int(Maximize);
        QTest::newRow("double-click") << -1;
    }

    void titleMayBeDeletedInItsOwnSignals()
    {
        QFETCH(int, which);
        Window window;
        const QPointer<WindowTitle> title = makeTitle(QSize(500, 30), &window).release();
        window.resize(600, 200);
        QVERIFY(pointer::showAndWait(&window));
        const auto destroy = [&] { delete title; };
        connect(title, &WindowTitle::signal_closeMainForm, &window, destroy);
        connect(title, &WindowTitle::signal_minimizeMainForm, &window, destroy);
        connect(title, &WindowTitle::signal_maxMainForm, &window, destroy);
        connect(title, &WindowTitle::signal_mouseDoubleClickIntitle, &window, destroy);
        if (which >= 0)
            windowmouse::click(button(*title, which));
        else
            QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                               QPoint(200, 15));
        QVERIFY(!title);
    }
};

ORVANE_TEST_MAIN(TestWindowTitle)
#include "tst_windowtitle.moc"
