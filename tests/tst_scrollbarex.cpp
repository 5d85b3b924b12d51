#include "support/pointer.h"
#include "support/sheetimages.h"
#include "support/testcase.h"

#include <scrollbarex.h>

namespace
{

/// What a sheet's values read as, by default the defaults.
struct Values {
    QString scrollWidth = "16";
    QString scrollHeight = "16";
    QString scrollBarWidth = "12";
    QString scrollBarHeight = "12";
    QString margin = "2";
    QString iconWidth = "16";
    QString iconHeight = "16";
    QString radius = "5";
    QString minHeight = "20";
    QString minWidth = "20";
    QString color = "#4f4f4f";
    QString handleColor = "#383838";
    QString pressedColor = "#1f1f1f";
};

QString filledIn(QString sheet, const Values &v)
{
    const QList<QPair<QString, QString>> values = {
        {"SW", v.scrollWidth},      {"SH", v.scrollHeight}, {"BW", v.scrollBarWidth},
        {"BH", v.scrollBarHeight},  {"MG", v.margin},       {"IW", v.iconWidth},
        {"IH", v.iconHeight},       {"RD", v.radius},       {"MH", v.minHeight},
        {"MW", v.minWidth},         {"GROOVE", v.color},    {"HANDLE", v.handleColor},
        {"PRESSED", v.pressedColor}};
    for (const auto &value : values)
        sheet.replace("<" + value.first + ">", value.second);
    return sheet;
}

// The four sheets, written out by hand, with the values in angle brackets.

QString verticalSheet(const Values &values = {})
{
    return filledIn(
        "QScrollBar:vertical{width:<SW>px;background:<GROOVE>;padding-top:<SW>px;"
        "padding-bottom:<SW>px;border:none;}"
        "QScrollBar::handle:vertical{background:<HANDLE>;border-radius:<RD>px;width:<BW>px;"
        "margin-left:<MG>;margin-right:<MG>;min-height:<MH>px;}"
        "QScrollBar::handle:vertical:hover{background:<PRESSED>;border-radius:<RD>px;"
        "min-height:<MH>px;}"
        "QScrollBar::add-line:vertical{height:<IH>px;width:<IW>px;"
        "border-image:url(:/Resource/Images/globalResource/scrollbar/down_normal.png);"
        "subcontrol-position:bottom;}"
        "QScrollBar::add-page:vertical{background:<GROOVE>;}"
        "QScrollBar::sub-page:vertical{background:<GROOVE>;}"
        "QScrollBar::add-line:vertical:pressed{height:<IH>px;width:<IW>px;"
        "border-image:url(:/Resource/Images/globalResource/scrollbar/down_pressed.png);"
        "subcontrol-position:bottom;}"
        "QScrollBar::sub-line:vertical{height:<IH>px;width:<IW>px;"
        "border-image:url(:/Resource/Images/globalResource/scrollbar/up_normal.png);"
        "subcontrol-position:top;}"
        "QScrollBar::sub-line:vertical:pressed{height:<IH>px;width:<IW>px;"
        "border-image:url(:/Resource/Images/globalResource/scrollbar/up_pressed.png);"
        "subcontrol-position:top;}",
        values);
}

QString verticalSheetWithoutImages(const Values &values = {})
{
    return filledIn(
        "QScrollBar:vertical{width:<SW>px;background:<GROOVE>;padding-top:<SW>px;"
        "padding-bottom:<SW>px;border:none;}"
        "QScrollBar::handle:vertical{background:<HANDLE>;border-radius:<RD>px;width:<BW>px;"
        "margin-left:<MG>;margin-right:<MG>;min-height:<MH>px;}"
        "QScrollBar::handle:vertical:hover{background:<PRESSED>;border-radius:<RD>px;"
        "min-height:<MH>px;}"
        "QScrollBar::add-line:vertical{height:<IH>px;width:<IW>px;subcontrol-position:bottom;}"
        "QScrollBar::add-page:vertical{background:<GROOVE>;}"
        "QScrollBar::sub-page:vertical{background:<GROOVE>;}"
        "QScrollBar::add-line:vertical:pressed{height:<IH>px;width:<IW>px;"
        "subcontrol-position:bottom;}"
        "QScrollBar::sub-line:vertical{height:<IH>px;width:<IW>px;subcontrol-position:top;}"
        "QScrollBar::sub-line:vertical:pressed{height:<IH>px;width:<IW>px;"
        "subcontrol-position:top;}",
        values);
}

QString horizontalSheet(const Values &values = {})
{
    return filledIn(
        "QScrollBar:horizontal{height:<SH>px;background:<GROOVE>;padding-left:<SH>px;"
        "padding-right:<SH>px;}"
        "QScrollBar::handle:horizontal{background:<HANDLE>;border-radius:<RD>px; height:<BH>px;"
        "margin-top:<MG>;margin-bottom:<MG>; min-width:<MW>px;}"
        "QScrollBar::handle:horizontal:hover{background:<PRESSED>;border-radius:<RD>px;"
        "min-height:<MH>px;}"
        "QScrollBar::add-line:horizontal{width:<IW>px;height:<IH>px;"
        "border-image:url(:/Resource/Images/globalResource/scrollbar/right_normal.png);"
        "subcontrol-position:right;}"
        "QScrollBar::add-page:horizontal{background:<GROOVE>;}"
        "QScrollBar::sub-page:horizontal{background:<GROOVE>;}"
        "QScrollBar::add-line:horizontal:pressed{width:<IW>px;height:<IH>px;"
        "border-image:url(:/Resource/Images/globalResource/scrollbar/right_pressed.png);"
        "subcontrol-position:right;}"
        "QScrollBar::sub-line:horizontal{width:<IW>px;height:<IH>px;"
        "border-image:url(:/Resource/Images/globalResource/scrollbar/left_normal.png);"
        "subcontrol-position:left;}"
        "QScrollBar::sub-line:horizontal:pressed{width:<IW>px;height:<IH>px;"
        "border-image:url(:/Resource/Images/globalResource/scrollbar/left_pressed.png);"
        "subcontrol-position:left;}",
        values);
}

QString horizontalSheetWithoutImages(const Values &values = {})
{
    return filledIn(
        "QScrollBar:horizontal{height:<SH>px;background:<GROOVE>;padding-left:<SH>px;"
        "padding-right:<SH>px;}"
        "QScrollBar::handle:horizontal{background:<HANDLE>;border-radius:<RD>px; height:<BH>px;"
        "margin-top:<MG>;margin-bottom:<MG>; min-width:<MW>px;}"
        "QScrollBar::handle:horizontal:hover{background:<PRESSED>;border-radius:<RD>px;"
        "min-height:<MH>px;}"
        "QScrollBar::add-line:horizontal{width:<IW>px;height:<IH>px;subcontrol-position:right;}"
        "QScrollBar::add-page:horizontal{background:<GROOVE>;}"
        "QScrollBar::sub-page:horizontal{background:<GROOVE>;}"
        "QScrollBar::add-line:horizontal:pressed{width:<IW>px;height:<IH>px;"
        "subcontrol-position:right;}"
        "QScrollBar::sub-line:horizontal{width:<IW>px;height:<IH>px;subcontrol-position:left;}"
        "QScrollBar::sub-line:horizontal:pressed{width:<IW>px;height:<IH>px;"
        "subcontrol-position:left;}",
        values);
}

/// Keeps every sheet that a shown widget is given, in order.
class SheetRecorder : public QObject
{
public:
    explicit SheetRecorder(QWidget *widget) { widget->installEventFilter(this); }

    QStringList sheets;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::StyleChange)
            sheets << static_cast<QWidget *>(watched)->styleSheet();
        return false;
    }
};

/// A bar that tells where its subcontrols are.
class Bar : public QScrollBar
{
public:
    using QScrollBar::QScrollBar;

    QRect placeOf(QStyle::SubControl control) const
    {
        QStyleOptionSlider option;
        initStyleOption(&option);
        return style()->subControlRect(QStyle::CC_ScrollBar, &option, control, this);
    }
};

using Set = std::function<void(ScrollBarEx &)>;
enum Direction { Vertical = 1, Horizontal = 2, Both = Vertical | Horizontal };

} // namespace

Q_DECLARE_METATYPE(Set)
Q_DECLARE_METATYPE(Values)

class TestScrollBarEx : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void colorIsSeenWhenSetBeforeAndAfterTheFirstShow()
    {
        QScrollBar bar(Qt::Vertical);
        bar.resize(16, 200);
        bar.setRange(0, 100);
        ScrollBarEx style(&bar, true);
        style.setScrollColor(QColor(255, 0, 0));
        style.setScrollColor(QColor(0, 255, 0));
        style.setVerticalStyle();
        QVERIFY(pointer::showAndWait(&bar));
        QCOMPARE(pointer::colorAt(&bar, QPoint(8, 150)), QColor(0, 255, 0));
        style.setScrollColor(QColor(0, 0, 255));
        style.setVerticalStyle();
        QCOMPARE(pointer::colorAt(&bar, QPoint(8, 150)), QColor(0, 0, 255));
    }

    void hasDefaults()
    {
        QScrollBar target(Qt::Vertical);
        const ScrollBarEx style(&target, true);
        QCOMPARE(style.scrollWidth(), 16);
        QCOMPARE(style.scrollHeight(), 16);
        QCOMPARE(style.scrollBarWidth(), 12);
        QCOMPARE(style.scrollBarHeight(), 12);
        QCOMPARE(style.scrollBarMargin(), 2);
        QCOMPARE(style.iconWidth(), 16);
        QCOMPARE(style.iconHeight(), 16);
        QCOMPARE(style.borderRadius(), 5);
        QCOMPARE(style.handerMinHeight(), 20);
        QCOMPARE(style.handerMinWidth(), 20);
        QCOMPARE(style.scrollColor(), QColor(79, 79, 79));
        QCOMPARE(style.scrollHandleColor(), QColor(56, 56, 56));
        QCOMPARE(style.scrollHandlePressedColor(), QColor(31, 31, 31));
        QVERIFY(style.isLoadImg());
        QVERIFY(!ScrollBarEx(&target, false).isLoadImg());
        QVERIFY(!style.parent());
        QVERIFY(!style.isVisible());
        QCOMPARE(style.styleSheet(), QString());
    }

    void constructionTakesTheContextMenuAndStylesNothing()
    {
        QScrollBar target(Qt::Vertical);
        target.setStyleSheet("QScrollBar{background:#123456;}");
        QCOMPARE(target.contextMenuPolicy(), Qt::DefaultContextMenu);
        const ScrollBarEx style(&target, true);
        QCOMPARE(target.contextMenuPolicy(), Qt::NoContextMenu);
        QCOMPARE(target.styleSheet(), QStringLiteral("QScrollBar{background:#123456;}"));
    }

    void sheetsAreComposedWhole_data()
    {
        QTest::addColumn<bool>("isLoadImg");
        QTest::addColumn<bool>("distinct");
        QTest::addColumn<QString>("vertical");
        QTest::addColumn<QString>("horizontal");
        Values values;
        values.scrollWidth = "101";
        values.scrollHeight = "102";
        values.scrollBarWidth = "103";
        values.scrollBarHeight = "104";
        values.margin = "105";
        values.iconWidth = "106";
        values.iconHeight = "107";
        values.radius = "108";
        values.minHeight = "109";
        values.minWidth = "110";
        values.color = "#010203";
        values.handleColor = "#80040506";
        values.pressedColor = "#000000";
        QTest::newRow("with images") << true << false << verticalSheet() << horizontalSheet();
        QTest::newRow("without images")
            << false << false << verticalSheetWithoutImages() << horizontalSheetWithoutImages();
        QTest::newRow("with images, every value its own")
            << true << true << verticalSheet(values) << horizontalSheet(values);
        QTest::newRow("without images, every value its own")
            << false << true << verticalSheetWithoutImages(values)
            << horizontalSheetWithoutImages(values);
    }

    void sheetsAreComposedWhole()
    {
        QFETCH(bool, isLoadImg);
        QFETCH(bool, distinct);
        QFETCH(QString, vertical);
        QFETCH(QString, horizontal);
        QScrollBar target;
        ScrollBarEx style(&target, isLoadImg);
        if (distinct) {
            style.setScrollWidth(101);
            style.setScrollHeight(102);
            style.setScrollBarWidth(103);
            style.setScrollBarHeight(104);
            style.setScrollBarMargin(105);
            style.setIconWidth(106);
            style.setIconHeight(107);
            style.setBorderRadius(108);
            style.setHanderMinHeight(109);
            style.setHanderMinWidth(110);
            style.setScrollColor(QColor(1, 2, 3));
            style.setScrollHandleColor(QColor(4, 5, 6, 128));
            style.setScrollHandlePressedColor(QColor());
        }
        style.setVerticalStyle();
        QCOMPARE(target.styleSheet(), vertical);
        style.setHorizontalStyle();
        QCOMPARE(target.styleSheet(), horizontal);
        style.setVerticalStyle();
        QCOMPARE(target.styleSheet(), vertical);
        QCOMPARE(style.styleSheet(), QString()); // nothing for the controller itself
    }

    void settersApplyTheirStyles_data()
    {
        QTest::addColumn<Set>("set");
        QTest::addColumn<int>("direction");
        QTest::addColumn<Values>("values");
        Values v;
        const auto row = [&v](const char *name, Direction direction, const Set &set) {
            QTest::newRow(name) << set << int(direction) << v;
            v = Values();
        };
        v.scrollWidth = "9";
        row("scroll width", Vertical, [](ScrollBarEx &s) { s.setScrollWidth(9); });
        v.scrollBarWidth = "9";
        row("handle width", Vertical, [](ScrollBarEx &s) { s.setScrollBarWidth(9); });
        v.minHeight = "9";
        row("least handle height", Vertical, [](ScrollBarEx &s) { s.setHanderMinHeight(9); });
        v.scrollHeight = "9";
        row("scroll height", Horizontal, [](ScrollBarEx &s) { s.setScrollHeight(9); });
        v.scrollBarHeight = "9";
        row("handle height", Horizontal, [](ScrollBarEx &s) { s.setScrollBarHeight(9); });
        v.minWidth = "9";
        row("least handle width", Horizontal, [](ScrollBarEx &s) { s.setHanderMinWidth(9); });
        v.margin = "0";
        row("margin", Both, [](ScrollBarEx &s) { s.setScrollBarMargin(0); });
        v.margin = "-4";
        row("negative margin", Both, [](ScrollBarEx &s) { s.setScrollBarMargin(-4); });
        v.iconWidth = "9";
        row("icon width", Both, [](ScrollBarEx &s) { s.setIconWidth(9); });
        v.iconHeight = "9";
        row("icon height", Both, [](ScrollBarEx &s) { s.setIconHeight(9); });
        v.radius = "9";
        row("radius", Both, [](ScrollBarEx &s) { s.setBorderRadius(9); });
        v.color = "#ff0000";
        row("groove colour", Both, [](ScrollBarEx &s) { s.setScrollColor(Qt::red); });
        v.handleColor = "#00ffffff";
        row("handle colour", Both,
            [](ScrollBarEx &s) { s.setScrollHandleColor(QColor(255, 255, 255, 0)); });
        v.pressedColor = "#000000";
        row("pressed colour", Both,
            [](ScrollBarEx &s) { s.setScrollHandlePressedColor(QColor()); });
    }

    void settersApplyTheirStyles()
    {
        QFETCH(Set, set);
        QFETCH(int, direction);
        QFETCH(Values, values);
        QScrollBar target(Qt::Vertical);
        QVERIFY(pointer::showAndWait(&target));
        ScrollBarEx style(&target, true);
        SheetRecorder recorder(&target);
        set(style);
        QStringList expected;
        if (direction & Vertical)
            expected << verticalSheet(values);
        if (direction & Horizontal)
            expected << horizontalSheet(values);
        QCOMPARE(recorder.sheets, expected);
        QCOMPARE(target.styleSheet(), expected.last());
    }

    void widthsLeaveTheHorizontalStyleAndHeightsTheVerticalOne()
    {
        QScrollBar verticalBar(Qt::Vertical);
        ScrollBarEx verticalStyle(&verticalBar, false);
        verticalStyle.setScrollWidth(10);
        verticalStyle.setScrollBarWidth(8);
        Values values;
        values.scrollWidth = "10";
        values.scrollBarWidth = "8";
        QCOMPARE(verticalBar.styleSheet(), verticalSheetWithoutImages(values));

        QScrollBar horizontalBar(Qt::Horizontal);
        ScrollBarEx horizontalStyle(&horizontalBar, false);
        horizontalStyle.setScrollHeight(10);
        horizontalStyle.setScrollBarHeight(8);
        values = Values();
        values.scrollHeight = "10";
        values.scrollBarHeight = "8";
        QCOMPARE(horizontalBar.styleSheet(), horizontalSheetWithoutImages(values));
    }

    void imagesAreChosenWithTheNextStyle()
    {
        QScrollBar target;
        ScrollBarEx style(&target, true);
        style.setVerticalStyle();
        style.setIsLoadImg(false);
        QVERIFY(!style.isLoadImg());
        QCOMPARE(target.styleSheet(), verticalSheet());
        style.setVerticalStyle();
        QCOMPARE(target.styleSheet(), verticalSheetWithoutImages());
        style.setIsLoadImg(true);
        QCOMPARE(target.styleSheet(), verticalSheetWithoutImages());
        style.setHorizontalStyle();
        QCOMPARE(target.styleSheet(), horizontalSheet());
    }

    void initParameterRestoresTheDefaultsButNotTheSheet()
    {
        QScrollBar target;
        ScrollBarEx style(&target, false);
        style.setScrollHeight(3);
        style.setBorderRadius(3);
        style.setScrollColor(Qt::red);
        style.setVerticalStyle();
        const QString before = target.styleSheet();
        style.initParameter();
        QCOMPARE(target.styleSheet(), before);
        QVERIFY(!style.isLoadImg());
        style.setVerticalStyle();
        QCOMPARE(target.styleSheet(), verticalSheetWithoutImages());
        style.setHorizontalStyle();
        QCOMPARE(target.styleSheet(), horizontalSheetWithoutImages());
    }

    void gettersReturnWhatWasSet()
    {
        QScrollBar target;
        ScrollBarEx style(&target, true);
        style.setScrollWidth(1);
        style.setScrollHeight(2);
        style.setScrollBarWidth(3);
        style.setScrollBarHeight(4);
        style.setScrollBarMargin(-5);
        style.setIconWidth(6);
        style.setIconHeight(7);
        style.setBorderRadius(0);
        style.setHanderMinHeight(9);
        style.setHanderMinWidth(10);
        style.setScrollColor(QColor(1, 2, 3, 4));
        style.setScrollHandleColor(QColor(5, 6, 7));
        style.setScrollHandlePressedColor(QColor(8, 9, 10));
        QCOMPARE(style.scrollWidth(), 1);
        QCOMPARE(style.scrollHeight(), 2);
        QCOMPARE(style.scrollBarWidth(), 3);
        QCOMPARE(style.scrollBarHeight(), 4);
        QCOMPARE(style.scrollBarMargin(), -5);
        QCOMPARE(style.iconWidth(), 6);
        QCOMPARE(style.iconHeight(), 7);
        QCOMPARE(style.borderRadius(), 0);
        QCOMPARE(style.handerMinHeight(), 9);
        QCOMPARE(style.handerMinWidth(), 10);
        QCOMPARE(style.scrollColor(), QColor(1, 2, 3, 4));
        QCOMPARE(style.scrollHandleColor(), QColor(5, 6, 7));
        QCOMPARE(style.scrollHandlePressedColor(), QColor(8, 9, 10));
        QCOMPARE(style.fromColorToStr(QColor(1, 2, 3, 4)), QStringLiteral("#04010203"));
        QCOMPARE(style.fromColorToStr(QColor(1, 2, 3)), QStringLiteral("#010203"));
        QCOMPARE(style.fromColorToStr(QColor()), QStringLiteral("#000000"));
    }

    void everyImageOfTheSheetsResolves()
    {
        QScrollBar target;
        ScrollBarEx style(&target, true);
        style.setVerticalStyle();
        QString sheets = target.styleSheet();
        style.setHorizontalStyle();
        sheets += target.styleSheet();
        QStringList paths = imagePaths(sheets);
        for (const QString &path : qAsConst(paths))
            QCOMPARE(QImage(path).size(), QSize(16, 16));
        paths.removeDuplicates();
        QCOMPARE(paths.size(), 8);
    }

    void barIsDrawnAsStyled_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::addColumn<bool>("isLoadImg");
        QTest::newRow("vertical, images") << Qt::Vertical << true;
        QTest::newRow("vertical, no images") << Qt::Vertical << false;
        QTest::newRow("horizontal, images") << Qt::Horizontal << true;
        QTest::newRow("horizontal, no images") << Qt::Horizontal << false;
    }

    void barIsDrawnAsStyled()
    {
        QFETCH(Qt::Orientation, orientation);
        QFETCH(bool, isLoadImg);
        const bool isVertical = orientation == Qt::Vertical;
        QWidget panel;
        panel.resize(300, 300);
        Bar bar(orientation, &panel);
        bar.setRange(0, 100);
        bar.setPageStep(100);
        ScrollBarEx style(&bar, isLoadImg);
        if (isVertical)
            style.setVerticalStyle();
        else
            style.setHorizontalStyle();
        bar.setGeometry(isVertical ? QRect(20, 20, 16, 240) : QRect(20, 20, 240, 16));
        QVERIFY(pointer::showAndWait(&panel));
        pointer::moveTo(&panel, QPoint(5, 5));
        QCOMPARE(isVertical ? bar.sizeHint().width() : bar.sizeHint().height(), 16);

        const QRect handle = bar.placeOf(QStyle::SC_ScrollBarSlider);
        QVERIFY(isVertical ? handle.top() == 16 : handle.left() == 16);
        const QPoint onHandle = handle.center();
        const QPoint onGroove = isVertical ? QPoint(8, 215) : QPoint(215, 8);
        QCOMPARE(pointer::colorAt(&bar, onHandle), QColor(56, 56, 56));
        QCOMPARE(pointer::colorAt(&bar, onGroove), QColor(79, 79, 79));
        // The margin keeps the handle off the long sides.
        const QPoint beside = isVertical ? QPoint(1, onHandle.y()) : QPoint(onHandle.x(), 1);
        QCOMPARE(pointer::colorAt(&bar, beside), QColor(79, 79, 79));

        pointer::moveTo(&bar, onHandle);
        QCOMPARE(pointer::colorAt(&bar, onHandle), QColor(31, 31, 31));
        pointer::moveTo(&panel, QPoint(5, 5));
        QCOMPARE(pointer::colorAt(&bar, onHandle), QColor(56, 56, 56));

        const QImage end = bar.grab(bar.placeOf(QStyle::SC_ScrollBarAddLine)).toImage();
        QCOMPARE(end.size(), QSize(16, 16));
        QImage groove(end.size(), end.format());
        groove.fill(QColor(79, 79, 79));
        QImage arrow = groove;
        QPainter(&arrow).drawImage(
            0, 0,
            QImage(QString(":/Resource/Images/globalResource/scrollbar/%1_normal.png")
                       .arg(isVertical ? "down" : "right")));
        QVERIFY(arrow != groove);
        QCOMPARE(end == arrow, isLoadImg);
    }

    void styledBarScrolls()
    {
        QWidget panel;
        panel.resize(300, 300);
        Bar bar(Qt::Vertical, &panel);
        bar.setRange(0, 100);
        bar.setPageStep(20);
        ScrollBarEx(&bar, true).setVerticalStyle();
        bar.setGeometry(20, 20, 16, 240);
        QVERIFY(pointer::showAndWait(&panel));
        QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier,
                          bar.placeOf(QStyle::SC_ScrollBarAddLine).center());
        QCOMPARE(bar.value(), 1);
        QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier,
                          bar.placeOf(QStyle::SC_ScrollBarAddPage).center());
        QCOMPARE(bar.value(), 21);
        QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier,
                          bar.placeOf(QStyle::SC_ScrollBarSubLine).center());
        QCOMPARE(bar.value(), 20);
        const QPoint from = bar.placeOf(QStyle::SC_ScrollBarSlider).center();
        QTest::mousePress(&bar, Qt::LeftButton, Qt::NoModifier, from);
        QVERIFY(bar.isSliderDown());
        QMouseEvent move(QEvent::MouseMove, from + QPoint(0, 500), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(&bar, &move);
        QTest::mouseRelease(&bar, Qt::LeftButton, Qt::NoModifier, from + QPoint(0, 500));
        QCOMPARE(bar.value(), 100);
        const int before = bar.value();
        pointer::turnWheel(&bar, 1);
        QVERIFY(bar.value() < before);
    }

    void handleKeepsItsLeastLength()
    {
        Bar bar(Qt::Vertical);
        bar.setRange(0, 1000000);
        bar.resize(16, 240);
        ScrollBarEx style(&bar, true);
        style.setHanderMinHeight(33);
        QVERIFY(pointer::showAndWait(&bar));
        QCOMPARE(bar.placeOf(QStyle::SC_ScrollBarSlider).height(), 33);
    }

    void viewsBarsCanBeStyled()
    {
        QListWidget list;
        list.resize(120, 120);
        for (int i = 0; i < 100; ++i)
            list.addItem(QString("A row that is wider than its list %1").arg(i));
        ScrollBarEx(list.verticalScrollBar(), true).setVerticalStyle();
        ScrollBarEx(list.horizontalScrollBar(), true).setHorizontalStyle();
        QVERIFY(pointer::showAndWait(&list));
        QCOMPARE(list.verticalScrollBar()->width(), 16);
        QCOMPARE(list.horizontalScrollBar()->height(), 16);
        ScrollBarEx narrow(list.verticalScrollBar(), true);
        narrow.setScrollWidth(9);
        QTRY_COMPARE(list.verticalScrollBar()->width(), 9);
        QCOMPARE(list.verticalScrollBar()->contextMenuPolicy(), Qt::NoContextMenu);
    }

    void addsNothingToTheMetaObject()
    {
        const QMetaObject &meta = ScrollBarEx::staticMetaObject;
        QCOMPARE(meta.methodOffset(), meta.methodCount());
        QCOMPARE(meta.propertyOffset(), meta.propertyCount());
        QCOMPARE(QByteArray(meta.superClass()->className()), QByteArray("QScrollBar"));
    }

    void sheetOutlivesTheController()
    {
        QScrollBar target;
        QVERIFY(pointer::showAndWait(&target));
        auto style = std::make_unique<ScrollBarEx>(&target, true);
        style->setVerticalStyle();
        style.reset();
        QCOMPARE(target.styleSheet(), verticalSheet());
        ScrollBarEx(&target, false).setVerticalStyle();
        QCOMPARE(target.styleSheet(), verticalSheetWithoutImages());
        target.grab();
    }

    // The controller does not watch the bar: it may still be read and destroyed, not styled with.
    void controllerOutlivesTheBar()
    {
        auto target = std::make_unique<QScrollBar>();
        ScrollBarEx style(target.get(), true);
        style.setVerticalStyle();
        target.reset();
        QCOMPARE(style.scrollWidth(), 16);
        style.setIsLoadImg(false);
        style.initParameter();
        QVERIFY(!style.isLoadImg());
    }

    void barCanBeStyledInItsOwnSignal()
    {
        QScrollBar target(Qt::Vertical);
        target.setRange(0, 100);
        QVERIFY(pointer::showAndWait(&target));
        connect(&target, &QScrollBar::valueChanged, this,
                [&target](int value) { ScrollBarEx(&target, true).setScrollWidth(value); });
        target.setValue(30);
        Values values;
        values.scrollWidth = "30";
        QCOMPARE(target.styleSheet(), verticalSheet(values));
    }
};

ORVANE_TEST_MAIN(TestScrollBarEx)
#include "tst_scrollbarex.moc"
