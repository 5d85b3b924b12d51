#include "support/pointer.h"
#include "support/testcase.h"

#include <widgetwithscrollex.h>

#include <limits>

namespace
{

QToolButton *button(const QWidget &strip, const QString &frame)
{
    return strip.findChild<QFrame *>(frame)->findChild<QToolButton *>();
}

QLabel *placeholder(const QWidget &strip, const QString &frame)
{
    return strip.findChild<QFrame *>(frame)->findChild<QLabel *>();
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
    widget->resize(width, 69);
    return widget;
}

QMargins shownMargins(const QLayout *layout)
{
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    layout->getContentsMargins(&left, &top, &right, &bottom);
    return {left, top, right, bottom};
}

} // namespace

class TestWidgetWithScrollEx : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasDefaults()
    {
        const WidgetWithScrollEx strip(nullptr);
        QCOMPARE(strip.scrollSingleStepValue(), 74);
        QCOMPARE(strip.styleSheet(),
                 QString("#WidgetWithScrollEx{border:none; background-color:RGB(69, 69, 69);}"));
        QCOMPARE(arrows(strip), QString());
        QCOMPARE(strip.size(), QSize(225, 73));
        QCOMPARE(strip.windowTitle(), QString("Frame"));
        QCOMPARE(strip.objectName(), QString("WidgetWithScrollEx"));
        QCOMPARE(strip.frameShape(), QFrame::NoFrame);
        QCOMPARE(strip.frameShadow(), QFrame::Plain);
    }

    void formHasItsObjects()
    {
        const WidgetWithScrollEx strip;
        const auto *grid = strip.findChild<QGridLayout *>("gridLayout");
        QVERIFY(grid);
        QCOMPARE(strip.layout(), grid);
        QCOMPARE(grid->spacing(), 0);
        QCOMPARE(shownMargins(grid), QMargins());

        const auto *mainLayout = strip.findChild<QHBoxLayout *>("mainLayout");
        QVERIFY(mainLayout);
        QCOMPARE(grid->itemAtPosition(0, 0)->layout(), mainLayout);
        QCOMPARE(mainLayout->spacing(), 0);
        QCOMPARE(shownMargins(mainLayout), QMargins());
        QCOMPARE(mainLayout->count(), 3);
        QCOMPARE(mainLayout->itemAt(0)->widget()->objectName(), QString("leftBtnFrame"));
        QCOMPARE(mainLayout->itemAt(1)->widget()->objectName(), QString("middleFrame"));
        QCOMPARE(mainLayout->itemAt(2)->widget()->objectName(), QString("rightBtnFrame"));
        for (int i = 0; i < 3; ++i) {
            const auto *frame = qobject_cast<QFrame *>(mainLayout->itemAt(i)->widget());
            QVERIFY(frame);
            QCOMPARE(frame->frameShape(), QFrame::NoFrame);
            if (i == 1)
                continue;
            QCOMPARE(frame->minimumSize(), QSize(16, 16));
            QCOMPARE(frame->maximumSize(), QSize(16, 16));
        }

        const auto *middleFrame = mainLayout->itemAt(1)->widget();
        const auto *grid2 = strip.findChild<QGridLayout *>("gridLayout_2");
        QVERIFY(grid2);
        QCOMPARE(middleFrame->layout(), grid2);
        QCOMPARE(grid2->spacing(), 0);
        QCOMPARE(shownMargins(grid2), QMargins());
        const auto *middleLayout = strip.findChild<QHBoxLayout *>("middleLayout");
        QVERIFY(middleLayout);
        QCOMPARE(grid2->itemAtPosition(0, 0)->layout(), middleLayout);
        QCOMPARE(middleLayout->spacing(), 0);
        const auto *areaFrame = strip.findChild<QFrame *>("scrollAreaFrame");
        QVERIFY(areaFrame);
        QCOMPARE(middleLayout->itemAt(0)->widget(), areaFrame);
        QCOMPARE(areaFrame->frameShape(), QFrame::NoFrame);

        const auto *grid3 = strip.findChild<QGridLayout *>("gridLayout_3");
        QVERIFY(grid3);
        QCOMPARE(areaFrame->layout(), grid3);
        QCOMPARE(shownMargins(grid3), QMargins());
        const QScrollArea *scrollArea = area(strip);
        QVERIFY(scrollArea);
        QCOMPARE(grid3->itemAtPosition(0, 0)->widget(), scrollArea);
        QCOMPARE(scrollArea->frameShape(), QFrame::NoFrame);
        QCOMPARE(scrollArea->styleSheet(), QString());
        QCOMPARE(scrollArea->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QCOMPARE(scrollArea->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QVERIFY(!scrollArea->widgetResizable());
        QCOMPARE(scrollArea->minimumSize(), QSize(0, 0));

        const QWidget *holder = scrollArea->widget();
        QVERIFY(holder);
        QCOMPARE(holder->objectName(), QString("scrollAreaWidgetContents"));
        const auto *grid4 = strip.findChild<QGridLayout *>("gridLayout_4");
        QVERIFY(grid4);
        QCOMPARE(holder->layout(), grid4);
        QCOMPARE(grid4->spacing(), 0);
        QCOMPARE(shownMargins(grid4), QMargins());
    }

    void keepsAnObjectNameThatWasGivenLater()
    {
        WidgetWithScrollEx strip;
        strip.setObjectName("mine");
        strip.initStyle();
        QCOMPARE(strip.objectName(), QString("mine"));
    }

    void arrowsFillTheirFrames_data()
    {
        QTest::addColumn<QString>("frame");
        QTest::addColumn<QString>("sheet");
        QTest::newRow("left")
            << "leftBtnFrame"
            << "QToolButton{border-image: "
               "url(:/Resource/Images/globalResource/drawer/btn_Left_normal.png);}"
               "QToolButton:pressed{border-image: "
               "url(:/Resource/Images/globalResource/drawer/btn_Left_pressed.png);}";
        QTest::newRow("right")
            << "rightBtnFrame"
            << "QToolButton{border-image: "
               "url(:/Resource/Images/globalResource/drawer/btn_Right_normal.png);}"
               "QToolButton:pressed{border-image: "
               "url(:/Resource/Images/globalResource/drawer/btn_Right_pressed.png);}";
    }

    void arrowsFillTheirFrames()
    {
        QFETCH(QString, frame);
        QFETCH(QString, sheet);
        const WidgetWithScrollEx strip;
        QCOMPARE(button(strip, frame)->geometry(), QRect(0, 0, 16, 16));
        QCOMPARE(button(strip, frame)->styleSheet(), sheet);
        QCOMPARE(placeholder(strip, frame)->geometry(), QRect(0, 0, 16, 16));
        QCOMPARE(placeholder(strip, frame)->text(), QString());
        QRegularExpression url("url\\(([^)]*)\\)");
        for (auto it = url.globalMatch(sheet); it.hasNext();)
            QCOMPARE(QImage(it.next().captured(1)).size(), QSize(16, 16));
    }

    void contentWiderThanTheWindowBringsTheRightArrow_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<QString>("expected");
        QTest::newRow("empty") << 0 << "";
        QTest::newRow("narrow") << 60 << "";
        QTest::newRow("as wide as the window") << 138 << "";
        QTest::newRow("one pixel wider") << 139 << ">";
        QTest::newRow("very wide") << 100000 << ">";
    }

    void takesTheFrameWidthOfANewSheet()
    {
        WidgetWithScrollEx strip;
        QVERIFY(pointer::showAndWait(&strip));
        strip.setStyleSheet("WidgetWithScrollEx{border:5px solid red;}");
        QCOMPARE(strip.frameWidth(), 5);
    }

    void contentWiderThanTheWindowBringsTheRightArrow()
    {
        QFETCH(int, width);
        QFETCH(QString, expected);
        WidgetWithScrollEx strip;
        QWidget *widget = content(width);
        strip.addWidget(widget);
        QCOMPARE(arrows(strip), expected);
        QCOMPARE(area(strip)->widget(), widget);
        QCOMPARE(area(strip)->minimumSize(), QSize(138, 69));
        QCOMPARE(area(strip)->maximumSize(), QSize(138, 69));
        QCOMPARE(widget->width(), width);
        QVERIFY(pointer::showAndWait(&strip));
        QCOMPARE(arrows(strip), expected);
        QCOMPARE(area(strip)->size(), QSize(138, 69));
        QCOMPARE(area(strip)->viewport()->size(), QSize(138, 69));
        QVERIFY(widget->isVisible());
        QVERIFY(!area(strip)->horizontalScrollBar()->isVisible());
    }

    void contentAddedToAShownStripIsSeen()
    {
        WidgetWithScrollEx strip;
        QVERIFY(pointer::showAndWait(&strip));
        QWidget *widget = content(300);
        strip.addWidget(widget);
        QVERIFY(widget->isVisible());
        QCOMPARE(arrows(strip), QString(">"));
        QTest::mouseClick(button(strip, "rightBtnFrame"), Qt::LeftButton);
        QCOMPARE(widget->x(), -74);
    }

    void narrowContentLeavesTheArrowsAsTheyAre()
    {
        WidgetWithScrollEx strip;
        strip.addWidget(content(500));
        strip.setLeftButtonVisible(true);
        strip.addWidget(content(20));
        QCOMPARE(arrows(strip), QString("<>"));
        strip.addWidget(content(500));
        QCOMPARE(arrows(strip), QString(">"));
    }

    void clicksGoToTheEndsStepByStep()
    {
        // 138 + 74 + 74 + 10: two steps and a rest.
        WidgetWithScrollEx strip;
        QWidget *widget = content(296);
        strip.addWidget(widget);
        QVERIFY(pointer::showAndWait(&strip));
        QToolButton *left = button(strip, "leftBtnFrame");
        QToolButton *right = button(strip, "rightBtnFrame");
        QCOMPARE(arrows(strip), QString(">"));

        QTest::mouseClick(right, Qt::LeftButton);
        QCOMPARE(scrolledBy(strip), 74);
        QCOMPARE(widget->x(), -74);
        QCOMPARE(arrows(strip), QString("<>"));
        QTest::mouseClick(right, Qt::LeftButton);
        QCOMPARE(scrolledBy(strip), 148);
        QCOMPARE(arrows(strip), QString("<>"));
        QTest::mouseClick(right, Qt::LeftButton);
        QCOMPARE(scrolledBy(strip), 158);
        QCOMPARE(arrows(strip), QString("<"));

        QTest::mouseClick(left, Qt::LeftButton);
        QCOMPARE(scrolledBy(strip), 84);
        QCOMPARE(arrows(strip), QString("<>"));
        QTest::mouseClick(left, Qt::LeftButton);
        QCOMPARE(scrolledBy(strip), 10);
        QTest::mouseClick(left, Qt::LeftButton);
        QCOMPARE(scrolledBy(strip), 0);
        QCOMPARE(widget->x(), 0);
        QCOMPARE(arrows(strip), QString(">"));
    }

    void distanceEqualToTheStepHidesTheArrow_data()
    {
        QTest::addColumn<int>("range");
        QTest::addColumn<QString>("expected");
        QTest::newRow("one less") << 73 << "<";
        QTest::newRow("equal") << 74 << "<";
        QTest::newRow("one more") << 75 << "<>";
    }

    void distanceEqualToTheStepHidesTheArrow()
    {
        QFETCH(int, range);
        QFETCH(QString, expected);
        WidgetWithScrollEx strip;
        strip.addWidget(content(138 + range));
        QVERIFY(pointer::showAndWait(&strip));
        strip.on_rightClicked();
        QCOMPARE(arrows(strip), expected);
        QCOMPARE(scrolledBy(strip), qMin(range, 74));

        // The same toward the left end, from the right one.
        strip.on_rightClicked();
        QCOMPARE(arrows(strip), QString("<"));
        strip.on_leftClicked();
        QCOMPARE(arrows(strip), range == 75 ? QString("<>") : QString(">"));
        QCOMPARE(scrolledBy(strip), qMax(range - 74, 0));
    }

    void clickGoesOnFromTheRecordedPosition()
    {
        WidgetWithScrollEx strip;
        strip.addWidget(content(1138));
        QVERIFY(pointer::showAndWait(&strip));
        strip.on_rightClicked();
        QCOMPARE(scrolledBy(strip), 74);
        area(strip)->horizontalScrollBar()->setValue(500);
        strip.on_rightClicked();
        QCOMPARE(scrolledBy(strip), 148);
        area(strip)->horizontalScrollBar()->setValue(500);
        strip.on_leftClicked();
        QCOMPARE(scrolledBy(strip), 74);

        // The distance is the slider's: 30 pixels from the end, the record moves by 30.
        area(strip)->horizontalScrollBar()->setValue(970);
        strip.on_rightClicked();
        QCOMPARE(scrolledBy(strip), 104);
        QCOMPARE(arrows(strip), QString("<"));
    }

    void stepCanBeChosen()
    {
        WidgetWithScrollEx strip;
        strip.addWidget(content(338));
        QVERIFY(pointer::showAndWait(&strip));
        strip.setScrollSingleStepValue(150);
        QCOMPARE(strip.scrollSingleStepValue(), 150);
        QCOMPARE(scrolledBy(strip), 0);
        QCOMPARE(arrows(strip), QString(">"));
        strip.on_rightClicked();
        QCOMPARE(scrolledBy(strip), 150);
        QCOMPARE(arrows(strip), QString("<>"));
        strip.on_rightClicked();
        QCOMPARE(scrolledBy(strip), 200);
        QCOMPARE(arrows(strip), QString("<"));
    }

    void rangeIsTheLastReported()
    {
        WidgetWithScrollEx strip;
        strip.addWidget(content(1138));
        QVERIFY(pointer::showAndWait(&strip));
        strip.on_rangChanged(0, 20);
        strip.on_rightClicked();
        QCOMPARE(scrolledBy(strip), 20);
        QCOMPARE(arrows(strip), QString("<"));
        strip.on_rangChanged(15, 1000);
        strip.on_leftClicked();
        QCOMPARE(scrolledBy(strip), 15);
        QCOMPARE(arrows(strip), QString(">"));
    }

    void clickWithoutARangeScrollsNowhere()
    {
        WidgetWithScrollEx strip;
        strip.on_rightClicked();
        QCOMPARE(scrolledBy(strip), 0);
        QCOMPARE(arrows(strip), QString("<"));
        strip.on_leftClicked();
        QCOMPARE(scrolledBy(strip), 0);
        QCOMPARE(arrows(strip), QString(">"));
    }

    void placeholderIsSeenExactlyWhenItsArrowIsNot()
    {
        WidgetWithScrollEx strip;
        QVERIFY(pointer::showAndWait(&strip));
        for (const bool left : {true, false}) {
            for (const bool right : {true, false}) {
                strip.setLeftButtonVisible(left);
                strip.setRightButtonVisible(right);
                QCOMPARE(button(strip, "leftBtnFrame")->isVisible(), left);
                QCOMPARE(placeholder(strip, "leftBtnFrame")->isVisible(), !left);
                QCOMPARE(button(strip, "rightBtnFrame")->isVisible(), right);
                QCOMPARE(placeholder(strip, "rightBtnFrame")->isVisible(), !right);
            }
        }
    }

    void nothingMovesWhenAnArrowComesOrGoes()
    {
        WidgetWithScrollEx strip;
        strip.addWidget(content(500));
        QVERIFY(pointer::showAndWait(&strip));
        const QPoint before = area(strip)->mapTo(&strip, QPoint());
        strip.setLeftButtonVisible(true);
        strip.setRightButtonVisible(false);
        QCoreApplication::processEvents();
        QCOMPARE(area(strip)->mapTo(&strip, QPoint()), before);
    }

    void pressedArrowShowsItsPicture()
    {
        WidgetWithScrollEx strip;
        strip.addWidget(content(500));
        QVERIFY(pointer::showAndWait(&strip));
        QToolButton *right = button(strip, "rightBtnFrame");
        const QImage normal = right->grab().toImage();
        QTest::mousePress(right, Qt::LeftButton);
        QVERIFY(right->grab().toImage() != normal);
        QTest::mouseRelease(right, Qt::LeftButton);
    }

    void removeWidgetDeletesTheContent()
    {
        WidgetWithScrollEx strip;
        const QPointer<QWidget> widget = content(500);
        strip.addWidget(widget);
        strip.removeWidget();
        QVERIFY(widget.isNull());
        QVERIFY(!area(strip)->widget());
        QCOMPARE(arrows(strip), QString(">"));
        strip.removeWidget();
        QVERIFY(!area(strip)->widget());
        strip.addWidget(content(20));
        QVERIFY(area(strip)->widget());
    }

    void removeWidgetOfANewStripIsHarmless()
    {
        WidgetWithScrollEx strip;
        strip.removeWidget();
        strip.removeWidget();
        QVERIFY(pointer::showAndWait(&strip));
        QCOMPARE(arrows(strip), QString());
    }

    void addedContentReplacesTheContentSoFar()
    {
        WidgetWithScrollEx strip;
        const QPointer<QWidget> first = content(500);
        strip.addWidget(first);
        const QPointer<QWidget> second = content(600);
        strip.addWidget(second);
        QVERIFY(first.isNull());
        strip.addWidget(second);
        QVERIFY(second);
        QCOMPARE(area(strip)->widget(), second.data());
        strip.addWidget(nullptr);
        QCOMPARE(area(strip)->widget(), second.data());
    }

    void contentDeletedByTheHostIsForgotten()
    {
        WidgetWithScrollEx strip;
        auto *widget = content(500);
        strip.addWidget(widget);
        QVERIFY(pointer::showAndWait(&strip));
        strip.on_rightClicked();
        delete widget;
        strip.on_rightClicked();
        strip.on_leftClicked();
        strip.removeWidget();
        QVERIFY(!area(strip)->widget());
    }

    void contentCanBeRemovedInItsOwnSignal()
    {
        WidgetWithScrollEx strip;
        const QPointer<QWidget> widget = content(500);
        auto *item = new QPushButton(widget);
        item->resize(69, 69);
        strip.addWidget(widget);
        QVERIFY(pointer::showAndWait(&strip));
        connect(item, &QPushButton::clicked, &strip, &WidgetWithScrollEx::removeWidget);
        QTest::mouseClick(strip.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          item->mapTo(&strip, QPoint(30, 30)));
        QVERIFY(widget.isNull());
    }

    void anyStepIsTaken()
    {
        WidgetWithScrollEx strip;
        auto *content = new QWidget;
        content->resize(500, 40);
        strip.addWidget(content);
        QVERIFY(pointer::showAndWait(&strip));
        const int end = area(strip)->horizontalScrollBar()->maximum();
        QVERIFY(end > 0);
        // Backwards to the left is to the right: the record ends where its numbers end.
        strip.setScrollSingleStepValue(std::numeric_limits<int>::min());
        strip.on_leftClicked();
        QCOMPARE(scrolledBy(strip), end);
        strip.on_leftClicked();
        QCOMPARE(scrolledBy(strip), end);
        strip.on_rightClicked();
        strip.on_rightClicked();
        strip.on_rightClicked();
        QCOMPARE(scrolledBy(strip), 0);
    }

    void contentDiesWithTheStrip()
    {
        QPointer<QWidget> widget = content(500);
        QWidget parent;
        auto *strip = new WidgetWithScrollEx(&parent);
        strip->addWidget(widget);
        delete strip;
        QVERIFY(widget.isNull());

        widget = content(500);
        {
            WidgetWithScrollEx other;
            other.addWidget(widget);
        }
        QVERIFY(widget.isNull());
    }

    void metaObjectNamesTheSlots()
    {
        const QMetaObject &meta = WidgetWithScrollEx::staticMetaObject;
        QCOMPARE(QByteArray(meta.superClass()->className()), QByteArray("QFrame"));
        QStringList methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            QCOMPARE(meta.method(i).methodType(), QMetaMethod::Slot);
            methods.append(meta.method(i).methodSignature());
        }
        QCOMPARE(methods,
                 (QStringList{"on_rangChanged(int,int)", "on_leftClicked()", "on_rightClicked()"}));
    }
};

ORVANE_TEST_MAIN(TestWidgetWithScrollEx)
#include "tst_widgetwithscrollex.moc"
