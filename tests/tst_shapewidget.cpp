#include "support/pointer.h"
#include "support/testcase.h"

#include <scrollbarex.h>
#include <shapewidget.h>

namespace
{

QFrame *frame(const QWidget &panel, const QString &name)
{
    return panel.findChild<QFrame *>(name);
}

QScrollArea *area(const QWidget &panel)
{
    return panel.findChild<QScrollArea *>("scrollArea");
}

QWidget *content(int width, int height)
{
    auto *widget = new QWidget;
    widget->resize(width, height);
    return widget;
}

void comparePlainFrame(const QFrame *frame)
{
    QVERIFY(frame);
    QCOMPARE(frame->frameShape(), QFrame::NoFrame);
    QCOMPARE(frame->frameShadow(), QFrame::Plain);
    QCOMPARE(frame->lineWidth(), 0);
    QCOMPARE(frame->styleSheet(), QString());
}

void compareTightGrid(const QGridLayout *grid)
{
    QVERIFY(grid);
    QCOMPARE(grid->contentsMargins(), QMargins());
    QCOMPARE(grid->horizontalSpacing(), 0);
    QCOMPARE(grid->verticalSpacing(), 0);
}

} // namespace

class TestShapeWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasDefaults()
    {
        const ShapeWidget panel(nullptr);
        QCOMPARE(panel.objectName(), QString("ShapeWidget"));
        QCOMPARE(panel.size(), QSize(377, 270));
        QCOMPARE(panel.windowTitle(), QString("Form"));
        QCOMPARE(panel.focusPolicy(), Qt::NoFocus);
        QVERIFY(panel.testAttribute(Qt::WA_TranslucentBackground));
        QCOMPARE(panel.triggleBtnWidth(), 20);
        QCOMPARE(panel.triggleBtnHeight(), 8);
    }

    void formHasItsObjects()
    {
        const ShapeWidget panel;
        const auto *grid = panel.findChild<QGridLayout *>("gridLayout");
        compareTightGrid(grid);
        QCOMPARE(panel.layout(), grid);

        const QFrame *topFrame = frame(panel, "topFrame");
        comparePlainFrame(topFrame);
        QCOMPARE(topFrame->minimumSize(), QSize(0, 8));
        QCOMPARE(topFrame->maximumSize(), QSize(16777215, 8));
        QCOMPARE(grid->itemAtPosition(0, 0)->widget(), topFrame);
        const auto *grid2 = panel.findChild<QGridLayout *>("gridLayout_2");
        compareTightGrid(grid2);
        QCOMPARE(topFrame->layout(), grid2);

        const QFrame *triggleFrame = frame(panel, "triggleFrame");
        comparePlainFrame(triggleFrame);
        QCOMPARE(triggleFrame->parentWidget(), topFrame);
        QCOMPARE(triggleFrame->maximumSize(), QSize(20, 8));
        QCOMPARE(grid2->itemAtPosition(0, 0)->widget(), triggleFrame);

        const QFrame *areaFrame = frame(panel, "scrollAreaFrame");
        comparePlainFrame(areaFrame);
        QCOMPARE(areaFrame->focusPolicy(), Qt::NoFocus);
        QCOMPARE(grid->itemAtPosition(1, 0)->widget(), areaFrame);
        const auto *grid3 = panel.findChild<QGridLayout *>("gridLayout_3");
        compareTightGrid(grid3);
        QCOMPARE(areaFrame->layout(), grid3);

        QCOMPARE(grid3->itemAtPosition(0, 0)->widget(), area(panel));
        QCOMPARE(area(panel)->focusPolicy(), Qt::WheelFocus);
        QCOMPARE(area(panel)->frameShape(), QFrame::NoFrame);
        QCOMPARE(area(panel)->lineWidth(), 0);
        QCOMPARE(area(panel)->sizeAdjustPolicy(), QAbstractScrollArea::AdjustToContentsOnFirstShow);
        QVERIFY(!area(panel)->widgetResizable());
        const QWidget *holder = area(panel)->widget();
        QCOMPARE(holder->objectName(), QString("scrollAreaWidgetContents"));
        QCOMPARE(holder->geometry(), QRect(0, 0, 374, 259));
        QCOMPARE(holder->focusPolicy(), Qt::StrongFocus);
    }

    void areaHasItsSheet()
    {
        const ShapeWidget panel;
        QCOMPARE(area(panel)->styleSheet(),
                 QString("QScrollArea{background-color:rgb(69,69,69);"
                         "border:1px solid rgb(112, 112, 112);}"));
    }

    void arrowHasItsPicture()
    {
        const ShapeWidget panel;
        const auto *arrow = frame(panel, "triggleFrame")->findChild<QToolButton *>();
        QCOMPARE(arrow->minimumSize(), QSize(20, 8));
        QCOMPARE(arrow->maximumSize(), QSize(20, 8));
        QCOMPARE(arrow->styleSheet(),
                 QString("QToolButton{border-image:url(:/Resource/Images/globalResource/triggleBtn/"
                         "triggleBtn.png);}"));
        QCOMPARE(QImage(":/Resource/Images/globalResource/triggleBtn/triggleBtn.png").size(),
                 QSize(20, 8));
    }

    void scrollBarsHaveTheLibrarysLook()
    {
        const ShapeWidget panel;
        QScrollBar bar;
        ScrollBarEx style(&bar, false);
        style.setVerticalStyle();
        const QString vertical = bar.styleSheet();
        style.setScrollBarHeight(8);
        const QString horizontal = bar.styleSheet();
        QVERIFY(vertical != horizontal);
        QCOMPARE(area(panel)->verticalScrollBar()->styleSheet(), vertical);
        QCOMPARE(area(panel)->horizontalScrollBar()->styleSheet(), horizontal);
        QVERIFY(horizontal.contains("px; height:8px;"));
        QCOMPARE(area(panel)->verticalScrollBar()->contextMenuPolicy(), Qt::NoContextMenu);
        QCOMPARE(area(panel)->horizontalScrollBar()->contextMenuPolicy(), Qt::NoContextMenu);
    }

    void noScrollBarControllerStaysBehind()
    {
        ShapeWidget panel;
        panel.setScrollBarStyle();
        QVERIFY(panel.findChildren<ScrollBarEx *>().isEmpty());
        for (const QWidget *widget : QApplication::allWidgets())
            QVERIFY(!qobject_cast<const ScrollBarEx *>(widget));
    }

    void recordedSizesResizeNothing()
    {
        ShapeWidget panel;
        panel.setTriggleBtnWidth(99);
        panel.setTriggleBtnHeight(-5);
        QCOMPARE(panel.triggleBtnWidth(), 99);
        QCOMPARE(panel.triggleBtnHeight(), -5);
        QCOMPARE(frame(panel, "triggleFrame")->findChild<QToolButton *>()->size(), QSize(20, 8));
        panel.createTriggleBtn();
        QCOMPARE(panel.triggleBtnWidth(), 20);
        QCOMPARE(panel.triggleBtnHeight(), 8);
    }

    void addedWidgetIsShownAtItsSize()
    {
        ShapeWidget panel;
        QWidget *widget = content(150, 160);
        panel.addWidget(widget);
        QCOMPARE(area(panel)->widget(), widget);
        QCOMPARE(area(panel)->focusPolicy(), Qt::NoFocus);
        QCOMPARE(widget->objectName(), QString("shapeWidgetContent"));
        QCOMPARE(widget->styleSheet(), QString("#shapeWidgetContent{background:RGB(69,69,69);}"));
        QVERIFY(pointer::showAndWait(&panel));
        QCOMPARE(widget->size(), QSize(150, 160));
        QVERIFY(widget->isVisible());
        QCOMPARE(pointer::colorAt(&panel, widget->mapTo(&panel, QPoint(75, 80))),
                 QColor(69, 69, 69));
    }

    void frameOfTheAreaIsDrawn()
    {
        ShapeWidget panel;
        panel.addWidget(content(100, 100));
        QVERIFY(pointer::showAndWait(&panel));
        const QPoint corner = area(panel)->mapTo(&panel, QPoint());
        QCOMPARE(corner, QPoint(0, 8));
        QCOMPARE(pointer::colorAt(&panel, corner + QPoint(0, 50)), QColor(112, 112, 112));
        QCOMPARE(pointer::colorAt(&panel, corner + QPoint(200, 200)), QColor(69, 69, 69));
    }

    void askedRoomFollowsTheWidgetThatIsAddedAgain()
    {
        ShapeWidget panel;
        QWidget *widget = content(100, 100);
        panel.addWidget(widget);
        const QSize small = panel.sizeHint();
        widget->resize(200, 200);
        panel.addWidget(widget);
        QCOMPARE(area(panel)->widget(), widget);
        QCOMPARE(panel.sizeHint() - small, QSize(100, 100));
        QVERIFY(!widget->isHidden());
    }

    void addedWidgetReplacesTheWidgetSoFar()
    {
        ShapeWidget panel;
        const QPointer<QWidget> first = content(50, 60);
        panel.addWidget(first);
        QWidget *second = content(50, 60);
        panel.addWidget(second);
        QVERIFY(first.isNull());
        panel.addWidget(nullptr);
        QCOMPARE(area(panel)->widget(), second);
    }

    void arrowIsMovedWithItsFrame_data()
    {
        QTest::addColumn<bool>("isShownFirst");
        QTest::newRow("before the first show") << false;
        QTest::newRow("after it") << true;
    }

    void arrowIsMovedWithItsFrame()
    {
        QFETCH(bool, isShownFirst);
        ShapeWidget panel;
        if (isShownFirst)
            QVERIFY(pointer::showAndWait(&panel));
        panel.setTriggleBtnPos(QPoint(30, 0));
        QVERIFY(pointer::showAndWait(&panel));
        const QFrame *triggleFrame = frame(panel, "triggleFrame");
        QCOMPARE(triggleFrame->geometry(), QRect(30, 0, 20, 8));
        QCOMPARE(triggleFrame->findChild<QToolButton *>()->pos(), QPoint(0, 0));

        // No later layout puts it back.
        panel.resize(500, 300);
        QCoreApplication::processEvents();
        QCOMPARE(triggleFrame->pos(), QPoint(30, 0));
        panel.setTriggleBtnPos(QPoint(-4, 2));
        QCOMPARE(triggleFrame->pos(), QPoint(-4, 2));
        panel.resize(400, 300);
        QCoreApplication::processEvents();
        QCOMPARE(triggleFrame->pos(), QPoint(-4, 2));
    }

    void arrowStandsInTheMiddleAtFirst()
    {
        ShapeWidget panel;
        QVERIFY(pointer::showAndWait(&panel));
        const QFrame *triggleFrame = frame(panel, "triggleFrame");
        QCOMPARE(triggleFrame->size(), QSize(20, 8));
        QVERIFY(qAbs(triggleFrame->geometry().center().x() - panel.width() / 2) <= 1);
    }

    void largeWidgetCanBeScrolled()
    {
        ShapeWidget panel;
        panel.addWidget(content(1000, 1000));
        QVERIFY(pointer::showAndWait(&panel));
        QVERIFY(area(panel)->verticalScrollBar()->isVisible());
        QVERIFY(area(panel)->horizontalScrollBar()->isVisible());
        pointer::turnWheel(area(panel)->viewport(), -1);
        QVERIFY(area(panel)->verticalScrollBar()->value() > 0);
    }

    void widgetDiesWithThePanel()
    {
        const QPointer<QWidget> widget = content(50, 60);
        QWidget parent;
        auto *panel = new ShapeWidget(&parent);
        panel->addWidget(widget);
        delete panel;
        QVERIFY(widget.isNull());
    }

    void widgetDeletedByTheHostIsForgotten()
    {
        ShapeWidget panel;
        auto *widget = content(50, 60);
        panel.addWidget(widget);
        delete widget;
        QVERIFY(!area(panel)->widget());
        panel.addWidget(content(70, 80));
        QVERIFY(pointer::showAndWait(&panel));
        QVERIFY(area(panel)->widget()->isVisible());
    }

    void addsNothingToTheMetaObject()
    {
        const QMetaObject &meta = ShapeWidget::staticMetaObject;
        QCOMPARE(meta.methodOffset(), meta.methodCount());
        QCOMPARE(meta.propertyOffset(), meta.propertyCount());
        QCOMPARE(QByteArray(meta.superClass()->className()), QByteArray("QWidget"));
    }
};

ORVANE_TEST_MAIN(TestShapeWidget)
#include "tst_shapewidget.moc"
