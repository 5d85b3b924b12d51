#include "support/pointer.h"
#include "support/testcase.h"

#include <buttongroupex.h>
#include <toolbuttonex.h>

Q_DECLARE_METATYPE(QMargins)

namespace
{

ToolButtonEx *button(const QWidget &strip, const QString &frame)
{
    return strip.findChild<QFrame *>(frame)->findChild<ToolButtonEx *>();
}

QLabel *placeholder(const QWidget &strip, const QString &frame)
{
    return strip.findChild<QFrame *>(frame)->findChild<QLabel *>();
}

QLabel *title(const QWidget &strip)
{
    return strip.findChild<QLabel *>("labelTitle");
}

QScrollArea *area(const QWidget &strip)
{
    return strip.findChild<QScrollArea *>("scrollArea");
}

int scrolledBy(const QWidget &strip)
{
    return area(strip)->horizontalScrollBar()->sliderPosition();
}

// Which arrows stand in the strip, "<" and ">"; "!" marks a place that does not hold exactly one of
// arrow and placeholder.
QString arrows(const QWidget &strip)
{
    QString text;
    for (const auto &side : {qMakePair(QString("leftBtnFrame"), QString("<")),
                             qMakePair(QString("rightBtnFrame"), QString(">"))}) {
        const bool isArrow = !button(strip, side.first)->isHidden();
        const bool isPlaceholder = !placeholder(strip, side.first)->isHidden();
        text += isArrow == isPlaceholder ? QString("!") : isArrow ? side.second : QString();
    }
    return text;
}

QWidget *content(int width)
{
    auto *widget = new QWidget;
    widget->resize(width, 40);
    return widget;
}

// The width that the scroll area of a strip gets once it is shown.
int shownAreaWidth()
{
    ButtonGroupEx strip;
    return pointer::showAndWait(&strip) ? strip.getScrollAreaWidth() : -1;
}

} // namespace

class TestButtonGroupEx : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasDefaults()
    {
        ButtonGroupEx strip(nullptr);
        QCOMPARE(strip.objectName(), QString("ButtonGroupEx"));
        QCOMPARE(strip.windowTitle(), QString("Frame"));
        QCOMPARE(strip.styleSheet(),
                 QString("#ButtonGroupEx{border-radius:5px;border:1px solid rgb(112, 112, 112);"
                         "background-color:rgb(62,62,62);}#scrollArea{background-color:rgb(62,62,"
                         "62);}"));
        QVERIFY(strip.hasMouseTracking());
        QCOMPARE(title(strip)->text(), QString("Title"));
        QCOMPARE(title(strip)->styleSheet(),
                 QString("background:rgb(85,85,85);color:rgb(211,211,211);font:SimSun Arial;"));
        QCOMPARE(arrows(strip), QString());
        QVERIFY(!strip.isWidthBigThanScrollWidth());
        QCOMPARE(strip.getScrollAreaWidth(), area(strip)->width());
    }

    void formHasItsObjects()
    {
        const ButtonGroupEx strip;
        const auto *grid = strip.findChild<QGridLayout *>("gridLayout");
        QVERIFY(grid);
        QCOMPARE(strip.layout(), grid);
        const auto *mainLayout = strip.findChild<QBoxLayout *>("mainLayout");
        QVERIFY(mainLayout);
        QCOMPARE(grid->itemAt(0)->layout(), mainLayout);
        const auto *subLayout = strip.findChild<QBoxLayout *>("subLayout");
        QVERIFY(subLayout);
        QCOMPARE(grid->itemAt(1)->layout(), subLayout);
        QCOMPARE(subLayout->itemAt(0)->widget(), title(strip));

        QCOMPARE(mainLayout->count(), 3);
        QCOMPARE(mainLayout->itemAt(0)->widget()->objectName(), QString("leftBtnFrame"));
        const QWidget *middleFrame = mainLayout->itemAt(1)->widget();
        QCOMPARE(middleFrame->objectName(), QString("middleFrame"));
        QCOMPARE(mainLayout->itemAt(2)->widget()->objectName(), QString("rightBtnFrame"));

        const auto *grid2 = strip.findChild<QGridLayout *>("gridLayout_2");
        QVERIFY(grid2);
        QCOMPARE(middleFrame->layout(), grid2);
        const auto *middleLayout = strip.findChild<QBoxLayout *>("middleLayout");
        QVERIFY(middleLayout);
        QCOMPARE(grid2->itemAt(0)->layout(), middleLayout);
        QCOMPARE(middleLayout->itemAt(0)->widget()->objectName(), QString("addCabniateBtnFrame"));
        QCOMPARE(middleLayout->itemAt(1)->widget()->objectName(),
                 QString("addRowCabniateBtnFrame"));
        const QWidget *areaFrame = middleLayout->itemAt(2)->widget();
        QCOMPARE(areaFrame->objectName(), QString("scrollAreaFrame"));

        const auto *horizontalLayout = strip.findChild<QHBoxLayout *>("horizontalLayout");
        QVERIFY(horizontalLayout);
        QCOMPARE(areaFrame->layout(), horizontalLayout);
        QCOMPARE(horizontalLayout->itemAt(0)->widget(), area(strip));
        QCOMPARE(area(strip)->widget()->objectName(), QString("scrollAreaWidgetContents"));
        QVERIFY(!area(strip)->widgetResizable());
        QCOMPARE(area(strip)->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QCOMPARE(area(strip)->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    }

    void formSpacesItsParts_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QMargins>("margins");
        QTest::addColumn<int>("spacing");
        QTest::newRow("strip") << "gridLayout" << QMargins() << 0;
        QTest::newRow("arrows") << "mainLayout" << QMargins(4, 0, 4, 0) << 4;
        QTest::newRow("between the arrows") << "gridLayout_2" << QMargins() << 0;
        QTest::newRow("buttons") << "middleLayout" << QMargins() << 4;
        QTest::newRow("area") << "horizontalLayout" << QMargins() << 0;
        QTest::newRow("title") << "subLayout" << QMargins(4, 0, 4, 3) << 0;
    }

    void formSpacesItsParts()
    {
        QFETCH(QString, name);
        QFETCH(QMargins, margins);
        QFETCH(int, spacing);
        const ButtonGroupEx strip;
        const auto *layout = strip.findChild<QLayout *>(name);
        QVERIFY(layout);
        QCOMPARE(layout->contentsMargins(), margins);
        QCOMPARE(layout->spacing(), spacing);
    }

    void formFixesSizes()
    {
        const ButtonGroupEx strip;
        QCOMPARE(strip.size(), QSize(230, 70));
        const QList<QPair<QString, int>> sides = {{"leftBtnFrame", 16},
                                                  {"rightBtnFrame", 16},
                                                  {"addCabniateBtnFrame", 40},
                                                  {"addRowCabniateBtnFrame", 40}};
        for (const auto &side : sides) {
            const auto *frame = strip.findChild<QFrame *>(side.first);
            QCOMPARE(frame->minimumSize(), QSize(side.second, side.second));
            QCOMPARE(frame->maximumSize(), QSize(side.second, side.second));
        }
        QCOMPARE(title(strip)->minimumSize(), QSize(0, 18));
        QCOMPARE(title(strip)->maximumSize(), QSize(QWIDGETSIZE_MAX, 18));
        QCOMPARE(area(strip)->minimumSize(), QSize(0, 0));
    }

    void formCarriesItsSheets()
    {
        const ButtonGroupEx strip;
        for (const char *frame : {"leftBtnFrame", "rightBtnFrame"})
            QCOMPARE(strip.findChild<QFrame *>(frame)->styleSheet(),
                     QString("background-color: rgba(255, 255, 255, 0);"));
        QCOMPARE(strip.findChild<QFrame *>("addRowCabniateBtnFrame")->styleSheet(),
                 QString("border:none;"));
    }

    void buttonsFillTheirFrames_data()
    {
        QTest::addColumn<QString>("frame");
        QTest::addColumn<int>("type");
        QTest::addColumn<QByteArray>("property");
        QTest::newRow("left arrow")
            << "leftBtnFrame" << int(DefaultType) << QByteArray("isCabinateWidgetLeftBtn");
        QTest::newRow("right arrow")
            << "rightBtnFrame" << int(DefaultType) << QByteArray("isCabinateWidgetRightBtn");
        QTest::newRow("add cabinets")
            << "addCabniateBtnFrame" << int(AddCabinetType) << QByteArray();
        QTest::newRow("add a row")
            << "addRowCabniateBtnFrame" << int(DefaultType) << QByteArray("isAddRowCabnicateBtn");
    }

    void buttonsFillTheirFrames()
    {
        QFETCH(QString, frame);
        QFETCH(int, type);
        QFETCH(QByteArray, property);
        ButtonGroupEx strip;
        QVERIFY(pointer::showAndWait(&strip));
        const auto *holder = strip.findChild<QFrame *>(frame);
        const ToolButtonEx *filled = button(strip, frame);
        QCOMPARE(filled->parentWidget(), holder);
        QCOMPARE(int(filled->buttonType()), type);
        QCOMPARE(filled->geometry(), holder->rect());
        QVERIFY(holder->width() >= 16 && holder->height() >= 16);
        QCOMPARE(filled->dynamicPropertyNames().contains(property), !property.isEmpty());
        if (!property.isEmpty())
            QCOMPARE(filled->property(property), QVariant(true));
        if (type == DefaultType)
            QCOMPARE(filled->styleSheet(), QString());
    }

    void placeholdersFillTheFramesOfTheArrows()
    {
        const ButtonGroupEx strip;
        for (const char *frame : {"leftBtnFrame", "rightBtnFrame"}) {
            QCOMPARE(placeholder(strip, frame)->geometry(), button(strip, frame)->geometry());
            QCOMPARE(placeholder(strip, frame)->text(), QString());
        }
    }

    void hostGivesPicturesByTheProperties_data()
    {
        QTest::addColumn<QString>("frame");
        QTest::addColumn<QString>("property");
        QTest::newRow("left arrow") << "leftBtnFrame"
                                    << "isCabinateWidgetLeftBtn";
        QTest::newRow("right arrow") << "rightBtnFrame"
                                     << "isCabinateWidgetRightBtn";
        QTest::newRow("add a row") << "addRowCabniateBtnFrame"
                                   << "isAddRowCabnicateBtn";
    }

    void hostGivesPicturesByTheProperties()
    {
        QFETCH(QString, frame);
        QFETCH(QString, property);
        const QTemporaryDir directory;
        const QString picture = directory.filePath("red.png");
        QImage red(40, 40, QImage::Format_RGB32);
        red.fill(Qt::red);
        QVERIFY(red.save(picture));
        qApp->setStyleSheet("ToolButtonEx[" + property + "=\"true\"]{border-image:url(" + picture
                            + ");}");
        const auto restore = qScopeGuard([] { qApp->setStyleSheet(QString()); });
        ButtonGroupEx strip;
        ToolButtonEx *styled = button(strip, frame);
        styled->show();
        QVERIFY(pointer::showAndWait(&strip));
        QCOMPARE(pointer::colorAt(&strip, styled->mapTo(&strip, styled->rect().center())),
                 QColor(Qt::red));
    }

    void contentWiderThanTheAreaBringsTheRightArrow_data()
    {
        QTest::addColumn<int>("spare");
        QTest::addColumn<bool>("isWide");
        QTest::newRow("narrow") << 60 << false;
        QTest::newRow("as wide as the area") << 0 << false;
        QTest::newRow("one pixel wider") << -1 << true;
        QTest::newRow("very wide") << -100000 << true;
    }

    void takesTheFrameWidthOfANewSheet()
    {
        ButtonGroupEx strip;
        QVERIFY(pointer::showAndWait(&strip));
        strip.setStyleSheet("ButtonGroupEx{border:5px solid red;}");
        QCOMPARE(strip.frameWidth(), 5);
    }

    void contentWiderThanTheAreaBringsTheRightArrow()
    {
        QFETCH(int, spare);
        QFETCH(bool, isWide);
        const int areaWidth = shownAreaWidth();
        QVERIFY(areaWidth > 60);
        const QString expected = isWide ? ">" : "";

        // Before the first show and after it.
        ButtonGroupEx strip;
        QWidget *widget = content(areaWidth - spare);
        strip.addWidget(widget);
        QCOMPARE(strip.getScrollAreaWidth(), areaWidth);
        QCOMPARE(arrows(strip), expected);
        QCOMPARE(strip.isWidthBigThanScrollWidth(), isWide);
        QVERIFY(pointer::showAndWait(&strip));
        QCOMPARE(strip.getScrollAreaWidth(), areaWidth);
        QVERIFY(widget->isVisible());

        strip.addWidget(content(areaWidth - spare));
        QCOMPARE(arrows(strip), expected);
        QCOMPARE(strip.isWidthBigThanScrollWidth(), isWide);
        QVERIFY(area(strip)->widget()->isVisible());
    }

    void hiddenAddButtonsMakeRoomForTheContent()
    {
        const int areaWidth = shownAreaWidth();
        ButtonGroupEx strip;
        strip.setAddBtnVisible(false);
        strip.setAddRowCabincateBtnVisible(false);
        strip.addWidget(content(areaWidth + 80));
        QCOMPARE(arrows(strip), QString());
        QVERIFY(strip.getScrollAreaWidth() >= areaWidth + 80);
        QVERIFY(pointer::showAndWait(&strip));
        QVERIFY(strip.getScrollAreaWidth() >= areaWidth + 80);
    }

    void narrowContentTakesTheArrowsAway()
    {
        ButtonGroupEx strip;
        strip.addWidget(content(1000));
        QCOMPARE(arrows(strip), QString(">"));
        strip.addWidget(content(10));
        QCOMPARE(arrows(strip), QString());
        QVERIFY(!strip.isWidthBigThanScrollWidth());
    }

    void contentGetsItsSheet()
    {
        ButtonGroupEx strip;
        QWidget *widget = content(100);
        strip.addWidget(widget);
        QCOMPARE(widget->styleSheet(),
                 QString(".QWidget{background:rgb(62,62,62);}.QWidget:disabled{background:rgb(62,"
                         "62,62);}"));
        QCOMPARE(area(strip)->widget(), widget);
    }

    void contentWithoutASizeGetsItsHint()
    {
        ButtonGroupEx strip;
        auto *row = new QWidget;
        auto *layout = new QHBoxLayout(row);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
        for (int i = 0; i < 10; ++i) {
            auto *item = new QPushButton;
            item->setFixedSize(40, 40);
            layout->addWidget(item);
        }
        strip.addWidget(row);
        QCOMPARE(row->size(), QSize(400, 40));
        QCOMPARE(arrows(strip), QString(">"));
    }

    void scrollButtonsAreShownTogether()
    {
        ButtonGroupEx strip;
        strip.setScrollBtnIsVisble(true);
        QCOMPARE(arrows(strip), QString(">"));
        strip.on_rightClicked();
        QCOMPARE(arrows(strip), QString("<"));
        strip.setScrollBtnIsVisble(true);
        QCOMPARE(arrows(strip), QString(">"));
        strip.setScrollBtnIsVisble(false);
        QCOMPARE(arrows(strip), QString());
    }

    void clicksGoToTheEndsStepByStep()
    {
        // Two steps and a rest of 10.
        ButtonGroupEx strip;
        QWidget *widget = content(shownAreaWidth() + 54 + 54 + 10);
        strip.addWidget(widget);
        QVERIFY(pointer::showAndWait(&strip));
        ToolButtonEx *left = button(strip, "leftBtnFrame");
        ToolButtonEx *right = button(strip, "rightBtnFrame");
        QTest::mouseClick(right, Qt::LeftButton);
        QCOMPARE(scrolledBy(strip), 54);
        QCOMPARE(widget->x(), -54);
        QCOMPARE(arrows(strip), QString("<>"));
        QTest::mouseClick(right, Qt::LeftButton);
        QCOMPARE(scrolledBy(strip), 108);
        QCOMPARE(arrows(strip), QString("<>"));
        QTest::mouseClick(right, Qt::LeftButton);
        QCOMPARE(scrolledBy(strip), 118);
        QCOMPARE(arrows(strip), QString("<"));
        QTest::mouseClick(left, Qt::LeftButton);
        QCOMPARE(scrolledBy(strip), 64);
        QCOMPARE(arrows(strip), QString("<>"));
        QTest::mouseClick(left, Qt::LeftButton);
        QCOMPARE(scrolledBy(strip), 10);
        QCOMPARE(arrows(strip), QString("<>"));
        QTest::mouseClick(left, Qt::LeftButton);
        QCOMPARE(scrolledBy(strip), 0);
        QCOMPARE(arrows(strip), QString(">"));
    }

    void distanceEqualToTheStepHidesTheArrow_data()
    {
        QTest::addColumn<int>("range");
        QTest::addColumn<QString>("expected");
        QTest::newRow("one less") << 53 << "<";
        QTest::newRow("equal") << 54 << "<";
        QTest::newRow("one more") << 55 << "<>";
    }

    void distanceEqualToTheStepHidesTheArrow()
    {
        QFETCH(int, range);
        QFETCH(QString, expected);
        ButtonGroupEx strip;
        strip.addWidget(content(shownAreaWidth() + range));
        QVERIFY(pointer::showAndWait(&strip));
        strip.on_rightClicked();
        QCOMPARE(arrows(strip), expected);
        QCOMPARE(scrolledBy(strip), qMin(range, 54));
        strip.on_rightClicked();
        QCOMPARE(arrows(strip), QString("<"));
        strip.on_leftClicked();
        QCOMPARE(arrows(strip), range == 55 ? QString("<>") : QString(">"));
    }

    void clickGoesOnFromTheRecordedPosition()
    {
        ButtonGroupEx strip;
        strip.addWidget(content(1000));
        QVERIFY(pointer::showAndWait(&strip));
        strip.on_rightClicked();
        area(strip)->horizontalScrollBar()->setValue(300);
        strip.on_rightClicked();
        QCOMPARE(scrolledBy(strip), 108);
        area(strip)->horizontalScrollBar()->setValue(300);
        strip.on_leftClicked();
        QCOMPARE(scrolledBy(strip), 54);
    }

    void rangeIsTheLastReported()
    {
        ButtonGroupEx strip;
        strip.addWidget(content(1000));
        QVERIFY(pointer::showAndWait(&strip));
        strip.on_getScrollerRange(0, 20);
        strip.on_rightClicked();
        QCOMPARE(scrolledBy(strip), 20);
        QCOMPARE(arrows(strip), QString("<"));
        strip.on_getScrollerRange(15, 1000);
        strip.on_leftClicked();
        QCOMPARE(scrolledBy(strip), 15);
        QCOMPARE(arrows(strip), QString(">"));
    }

    void everyClickOnAWideStripAsksThePanelToHide_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("hides");
        QTest::newRow("no content") << -1 << 0;
        QTest::newRow("content that fits") << 50 << 0;
        QTest::newRow("wide content") << 1000 << 4;
    }

    void everyClickOnAWideStripAsksThePanelToHide()
    {
        QFETCH(int, width);
        QFETCH(int, hides);
        ButtonGroupEx strip;
        if (width >= 0)
            strip.addWidget(content(width));
        QVERIFY(pointer::showAndWait(&strip));
        QStringList signalsSeen;
        connect(&strip, &ButtonGroupEx::notifyShpeWidgetHide, [&] { signalsSeen.append("hide"); });
        connect(&strip, &ButtonGroupEx::signal_addCabinetsClicked,
                [&] { signalsSeen.append("cabinets"); });
        connect(&strip, &ButtonGroupEx::signal_addRowCabinetsClicked,
                [&] { signalsSeen.append("row"); });
        connect(&strip, &ButtonGroupEx::sigShow, [&] { signalsSeen.append("show"); });
        connect(&strip, &ButtonGroupEx::sigHide, [&] { signalsSeen.append("sigHide"); });
        for (const char *frame :
             {"rightBtnFrame", "leftBtnFrame", "addCabniateBtnFrame", "addRowCabniateBtnFrame"})
            button(strip, frame)->click();
        const QStringList expected = hides == 0
            ? QStringList{"cabinets", "row"}
            : QStringList{"hide", "hide", "cabinets", "hide", "row", "hide"};
        QCOMPARE(signalsSeen, expected);
    }

    void mouseReachesTheAddButtons()
    {
        ButtonGroupEx strip;
        QVERIFY(pointer::showAndWait(&strip));
        QSignalSpy cabinets(&strip, &ButtonGroupEx::signal_addCabinetsClicked);
        QSignalSpy row(&strip, &ButtonGroupEx::signal_addRowCabinetsClicked);
        for (const char *frame : {"addCabniateBtnFrame", "addRowCabniateBtnFrame"}) {
            const QWidget *target = button(strip, frame);
            QTest::mouseClick(strip.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                              target->mapTo(&strip, target->rect().center()));
        }
        QCOMPARE(cabinets.count(), 1);
        QCOMPARE(row.count(), 1);
    }

    void addButtonsCanBeHidden_data()
    {
        QTest::addColumn<QString>("frame");
        QTest::newRow("add cabinets") << "addCabniateBtnFrame";
        QTest::newRow("add a row") << "addRowCabniateBtnFrame";
    }

    void addButtonsCanBeHidden()
    {
        QFETCH(QString, frame);
        ButtonGroupEx strip;
        QVERIFY(pointer::showAndWait(&strip));
        const auto setVisible = [&](bool visible) {
            if (frame == "addCabniateBtnFrame")
                strip.setAddBtnVisible(visible);
            else
                strip.setAddRowCabincateBtnVisible(visible);
        };
        auto *holder = strip.findChild<QFrame *>(frame);
        ToolButtonEx *hidden = button(strip, frame);
        QVERIFY(hidden->isVisible());
        setVisible(false);
        QVERIFY(holder->isHidden());
        QVERIFY(hidden->isHidden());
        hidden->setGeometry(3, 3, 5, 5);
        setVisible(true);
        QVERIFY(holder->isVisible());
        QVERIFY(hidden->isVisible());
        QCOMPARE(hidden->geometry(), holder->rect());
    }

    void toolTipsGoToTheAddButtons()
    {
        ButtonGroupEx strip;
        strip.setAddButtonToolTip("Add cabinets");
        strip.setAddRowCabincateBtnToolTip("Add a row");
        QCOMPARE(button(strip, "addCabniateBtnFrame")->toolTip(), QString("Add cabinets"));
        QCOMPARE(button(strip, "addRowCabniateBtnFrame")->toolTip(), QString("Add a row"));
    }

    void titleGetsItsTextAndSheet()
    {
        ButtonGroupEx strip;
        strip.setLabelText("Controllers & cabinets");
        QCOMPARE(title(strip)->text(), QString("Controllers & cabinets"));
        QCOMPARE(title(strip)->styleSheet(),
                 QString("QLabel{background-color:rgb(85,85,85);border:0px;color:rgb(211,211,211);"
                         "font:SimSun Arial;}QLabel:disabled{border:0px;color:rgb(167,167,167);"
                         "font:SimSun Arial;}"));
    }

    void disabledTitleHasItsColor()
    {
        // A run of full blocks, so that the colour of the text fills pixels.
        ButtonGroupEx strip;
        strip.setLabelText(QString(13, QChar(0x2588)));
        QVERIFY(pointer::showAndWait(&strip));
        const QPoint center = title(strip)->rect().center();
        QCOMPARE(pointer::colorAt(title(strip), center), QColor(211, 211, 211));
        strip.setFrameIsEnabled(false);
        QCOMPARE(pointer::colorAt(title(strip), center), QColor(167, 167, 167));
    }

    void disablingReachesEveryPart()
    {
        ButtonGroupEx strip;
        strip.setFrameIsEnabled(false); // without content: buttons and title alone
        const QStringList frames{"leftBtnFrame", "rightBtnFrame", "addCabniateBtnFrame",
                                 "addRowCabniateBtnFrame"};
        for (const QString &frame : frames)
            QVERIFY(!button(strip, frame)->isEnabled());
        QVERIFY(!title(strip)->isEnabled());
        QVERIFY(strip.isEnabled());
        QVERIFY(area(strip)->widget()->isEnabled());

        QWidget *widget = content(1000);
        strip.addWidget(widget);
        QVERIFY(widget->isEnabled());
        strip.setFrameIsEnabled(false);
        QVERIFY(!widget->isEnabled());
        strip.setFrameIsEnabled(true);
        QVERIFY(widget->isEnabled());
        QVERIFY(title(strip)->isEnabled());
        for (const QString &frame : frames)
            QVERIFY(button(strip, frame)->isEnabled());
    }

    void contentDeletedByTheHostIsForgotten()
    {
        ButtonGroupEx strip;
        QWidget *widget = content(1000);
        strip.addWidget(widget);
        QVERIFY(pointer::showAndWait(&strip));
        QVERIFY(strip.isWidthBigThanScrollWidth());
        delete widget;
        QVERIFY(!strip.isWidthBigThanScrollWidth());
        QSignalSpy hide(&strip, &ButtonGroupEx::notifyShpeWidgetHide);
        strip.setFrameIsEnabled(false);
        strip.on_rightClicked();
        strip.on_leftClicked();
        strip.on_addCabnicate();
        QCOMPARE(hide.count(), 0);
    }

    void addedContentReplacesTheContentSoFar()
    {
        ButtonGroupEx strip;
        const QPointer<QWidget> first = content(1000);
        strip.addWidget(first);
        const QPointer<QWidget> second = content(900);
        strip.addWidget(second);
        QVERIFY(first.isNull());
        strip.addWidget(second);
        strip.addWidget(nullptr);
        QCOMPARE(area(strip)->widget(), second.data());
        QVERIFY(strip.isWidthBigThanScrollWidth());
    }

    void contentDiesWithTheStrip()
    {
        const QPointer<QWidget> widget = content(1000);
        QWidget parent;
        auto *strip = new ButtonGroupEx(&parent);
        strip->addWidget(widget);
        delete strip;
        QVERIFY(widget.isNull());
    }

    void canBeDeletedInItsOwnSignals_data()
    {
        QTest::addColumn<QByteArray>("signal");
        QTest::addColumn<QString>("frame");
        QTest::newRow("add cabinets")
            << QByteArray(SIGNAL(signal_addCabinetsClicked())) << "addCabniateBtnFrame";
        QTest::newRow("add a row")
            << QByteArray(SIGNAL(signal_addRowCabinetsClicked())) << "addRowCabniateBtnFrame";
        QTest::newRow("hide on an arrow")
            << QByteArray(SIGNAL(notifyShpeWidgetHide())) << "rightBtnFrame";
        QTest::newRow("hide on an add button")
            << QByteArray(SIGNAL(notifyShpeWidgetHide())) << "addCabniateBtnFrame";
    }

    void canBeDeletedInItsOwnSignals()
    {
        QFETCH(QByteArray, signal);
        QFETCH(QString, frame);
        auto *strip = new ButtonGroupEx;
        const QPointer<ButtonGroupEx> guard(strip);
        strip->addWidget(content(1000));
        QVERIFY(pointer::showAndWait(strip));
        m_toDelete = strip;
        connect(strip, signal, this, SLOT(deleteNow()));
        QTest::mouseClick(button(*strip, frame), Qt::LeftButton);
        QVERIFY(guard.isNull());
    }

    void metaObjectNamesSignalsAndSlotsInOrder()
    {
        const QMetaObject &meta = ButtonGroupEx::staticMetaObject;
        QCOMPARE(QByteArray(meta.superClass()->className()), QByteArray("QFrame"));
        QStringList methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
            methods.append(meta.method(i).methodSignature());
        QCOMPARE(methods,
                 (QStringList{"sigShow()", "sigHide()", "notifyShpeWidgetHide()",
                              "signal_addCabinetsClicked()", "signal_addRowCabinetsClicked()",
                              "on_getScrollerRange(int,int)", "on_leftClicked()",
                              "on_rightClicked()", "on_addCabnicate()", "slot_addRowCabnicate()"}));
    }

public Q_SLOTS:
    void deleteNow() { delete m_toDelete; }

private:
    QWidget *m_toDelete = nullptr;
};

ORVANE_TEST_MAIN(TestButtonGroupEx)
#include "tst_buttongroupex.moc"
