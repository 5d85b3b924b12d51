#include "support/cabinetrecord.h"
#include "support/everywidget.h"
#include "support/pointer.h"
#include "support/righttoleft.h"
#include "support/testcase.h"
#include "support/windowmouse.h"

namespace
{

QRect placeIn(const QWidget *root, const QWidget *widget)
{
    return {widget->mapTo(root, QPoint(0, 0)), widget->size()};
}

QWidget *wideContent(int width)
{
    auto *content = new QWidget;
    content->resize(width, 40);
    return content;
}

/// What is wrong with the places of the buttons that are seen in \a root: each has to stand in its
/// parent, and on no other.
QStringList misplacedButtons(QWidget *root)
{
    QStringList wrong;
    QList<QAbstractButton *> seen = root->findChildren<QAbstractButton *>();
    seen.erase(std::remove_if(seen.begin(), seen.end(),
                              [](QAbstractButton *button) {
                                  // Qt places that one, where the headers of tables meet.
                                  return !button->isVisible()
                                      || button->inherits("QTableCornerButton");
                              }),
               seen.end());
    for (int i = 0; i < seen.size(); ++i) {
        const QAbstractButton *button = seen.at(i);
        if (!button->parentWidget()->rect().contains(button->geometry()))
            wrong.append("cut: " + button->accessibleName());
        for (int other = i + 1; other < seen.size(); ++other) {
            if (!button->isAncestorOf(seen.at(other))
                && placeIn(root, button).intersects(placeIn(root, seen.at(other))))
                wrong.append(button->accessibleName() + " on " + seen.at(other)->accessibleName());
        }
    }
    return wrong;
}

} // namespace

class TestRightToLeft : public TestCase
{
    Q_OBJECT

private:
    /// Rows for panels that are mirrored with the application, and alone when they are built
    /// already.
    static void addWaysToMirror()
    {
        QTest::addColumn<bool>("withApplication");
        QTest::newRow("with the application") << true;
        QTest::newRow("alone") << false;
    }

    /// Mirrors the application, or is to be followed by mirror().
    static std::unique_ptr<MirroredApplication> mirroredApplication()
    {
        QFETCH(bool, withApplication);
        return withApplication ? std::make_unique<MirroredApplication>() : nullptr;
    }
    static void mirror(QWidget *panel) { panel->setLayoutDirection(Qt::RightToLeft); }

private Q_SLOTS:
    void arrowsScrollWhereTheyPoint_data() { addWaysToMirror(); }
    void arrowsScrollWhereTheyPoint()
    {
        const auto application = mirroredApplication();
        WidgetWithScrollEx strip;
        if (!application)
            mirror(&strip);
        strip.addWidget(wideContent(400));
        QVERIFY(pointer::showAndWait(&strip));

        const QAbstractButton *left = buttonNamed(&strip, "Scroll left");
        QAbstractButton *right = buttonNamed(&strip, "Scroll right");
        auto *area = strip.findChild<QScrollArea *>("scrollArea");
        // The content begins at the left, and there is more at the right.
        QVERIFY(left->isHidden());
        QVERIFY(right->isVisible());
        QCOMPARE(area->widget()->x(), 0);
        QVERIFY(placeIn(&strip, right).left() > placeIn(&strip, area).right());

        windowmouse::click(right);
        QCOMPARE(area->widget()->x(), -74);
        QVERIFY(left->isVisible());
        QVERIFY(placeIn(&strip, left).right() < placeIn(&strip, area).left());
        strip.setLayoutDirection(Qt::LeftToRight);
        QCOMPARE(area->widget()->x(), -74);
    }

    void boardStripScrollsWhereItsArrowsPoint_data() { addWaysToMirror(); }
    void boardStripScrollsWhereItsArrowsPoint()
    {
        const auto application = mirroredApplication();
        ButtonGroupEx strip;
        strip.setFixedSize(230, 70);
        if (!application)
            mirror(&strip);
        strip.addWidget(wideContent(400));
        QVERIFY(pointer::showAndWait(&strip));

        QAbstractButton *right = buttonNamed(&strip, "Scroll right");
        const auto *area = strip.findChild<QScrollArea *>("scrollArea");
        QCOMPARE(area->widget()->x(), 0);
        QVERIFY(placeIn(&strip, right).left() > 200);
        windowmouse::click(right);
        QCOMPARE(area->widget()->x(), -54);
        const QAbstractButton *left = buttonNamed(&strip, "Scroll left");
        QVERIFY(left->isVisible());
        QVERIFY(placeIn(&strip, left).right() < 30);
        // The add buttons begin at the right, as all that is no part of the wall.
        QVERIFY(placeIn(&strip, buttonNamed(&strip, "Add cabinets")).left()
                > placeIn(&strip, buttonNamed(&strip, "Add row of cabinets")).right());
    }

    void rowsShowAndHitTheirCabinets_data() { addWaysToMirror(); }
    void rowsShowAndHitTheirCabinets()
    {
        const auto application = mirroredApplication();
        RowLineItem row;
        row.resize(260, 74);
        row.setLineItemType(1, PortItem);
        for (int seed : {1, 2, 3})
            row.AddLineItem(cabinetRecord(seed));
        row.addScrollWidget();
        if (!application)
            mirror(&row);
        QVERIFY(pointer::showAndWait(&row));

        // Number, button and strip, from the right; in the strip the wall's order.
        const auto *strip = row.findChild<WidgetWithScrollEx *>();
        const QWidget *port = buttonNamed(&row, "Port 1");
        QCOMPARE(placeIn(&row, port), QRect(208, 22, 30, 30));
        QCOMPARE(placeIn(&row, strip), QRect(22, 0, 180, 74));
        QCOMPARE(row.findChild<QLabel *>()->geometry(), QRect(244, 27, 16, 20));
        const QList<ToolButtonEx *> cabinets = row.cabinetButtonList();
        QVERIFY(placeIn(&row, cabinets.at(0)).left() < placeIn(&row, cabinets.at(1)).left());

        QStringList taken;
        connect(&row, &RowLineItem::signal_notifyChangedPortInfo, &row,
                [&taken](const StructCabinet &info) { taken.append(info.extraText1); });
        const QPoint shownFirst = placeIn(&row, row.findChild<QScrollArea *>()).topLeft();
        windowmouse::click(&row, Qt::LeftButton, shownFirst + QPoint(10, 10));
        QCOMPARE(taken, QStringList("text 1 of 1"));
    }

    void portNumbersStandBesideTheirButtons_data() { addWaysToMirror(); }
    void portNumbersStandBesideTheirButtons()
    {
        const auto application = mirroredApplication();
        OfflinePortItemFrame frame;
        frame.setLineItemType(7, PortItem);
        if (!application)
            mirror(&frame);
        QVERIFY(pointer::showAndWait(&frame));
        const auto *label = frame.findChild<QLabel *>("label_portIndex");
        const auto *button = frame.findChild<QToolButton *>("toolButton");
        QVERIFY(label->geometry().left() > button->geometry().right());
        QCOMPARE(label->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
        frame.setLayoutDirection(Qt::LeftToRight);
        QCOMPARE(label->alignment(), Qt::AlignRight | Qt::AlignVCenter);
    }

    void portGridsBeginAtTheRight_data() { addWaysToMirror(); }
    void portGridsBeginAtTheRight()
    {
        const auto application = mirroredApplication();
        OfflinePortItemContentFrame grid;
        grid.addPortItem(16, PortItem);
        if (!application)
            mirror(&grid);
        QVERIFY(pointer::showAndWait(&grid));
        const QList<OfflinePortItemFrame *> items = grid.lsOfflinePortItems();
        QVERIFY(items.at(0)->x() > items.at(1)->x());
        QVERIFY(items.at(4)->x() == items.at(0)->x());
        QCOMPARE(misplacedButtons(&grid), QStringList());

        OfflinePortItemFrame *pressed = nullptr;
        connect(&grid, &OfflinePortItemContentFrame::signal_portItemPressed, this,
                [&pressed](OfflinePortItemFrame *item) { pressed = item; });
        windowmouse::click(&grid, Qt::LeftButton,
                           placeIn(&grid, buttonNamed(&grid, "Port 3")).center());
        QCOMPARE(pressed, items.at(2));
    }

    void drawerItemsAreHitWhereTheyArePainted_data() { addWaysToMirror(); }
    void drawerItemsAreHitWhereTheyArePainted()
    {
        const auto application = mirroredApplication();
        DrawerItem item;
        item.resize(300, 42);
        item.setBOnline(true);
        item.setCheckAllVisible(true);
        if (!application)
            mirror(&item);
        QVERIFY(pointer::showAndWait(&item));

        QStringList reports;
        connect(&item, &DrawerItem::notifyIsShrink, this, [&] { reports.append("shrink"); });
        connect(&item, &DrawerItem::signal_notifySettings, this,
                [&] { reports.append("settings"); });
        connect(&item, &DrawerItem::signal_currentCheckBoxCheck, this,
                [&] { reports.append("check"); });
        const auto clickAt = [&item, &reports](int x) {
            reports.clear();
            windowmouse::click(&item, Qt::LeftButton, QPoint(x, 21));
            return reports;
        };
        QCOMPARE(clickAt(300 - 5), QStringList("shrink")); // the arrow, 10 pixels wide
        QCOMPARE(clickAt(300 - 16 - 10), QStringList("check")); // 6 beside it, 20 wide
        QCOMPARE(clickAt(300 - 60), QStringList("shrink")); // the header
        QCOMPARE(clickAt(10), QStringList("settings")); // 43 wide
        QCOMPARE(misplacedButtons(&item), QStringList());
    }

    void popupOfTheBoardOpensBelowItsStrip_data() { addWaysToMirror(); }
    void popupOfTheBoardOpensBelowItsStrip()
    {
        const auto application = mirroredApplication();
        WidgetControllBoard board;
        QList<QWidget *> models;
        for (int i = 0; i < 8; ++i) {
            auto *model = new ToolButtonEx(&board, CabinetModelType, QString(), QString());
            model->setFixedSize(40, 40);
            model->setCabinetSize(100 + i, 100);
            models.append(model);
        }
        board.setIsAddCabient(true);
        board.setLsWidget(models);
        if (!application)
            mirror(&board);
        board.move(200, 100);
        board.resize(230, 70);
        QVERIFY(pointer::showAndWait(&board));
        QEvent enter(QEvent::Enter);
        QCoreApplication::sendEvent(&board, &enter);

        const QList<QWidget *> windows = QApplication::topLevelWidgets();
        const auto popup = std::find_if(windows.cbegin(), windows.cend(), [](QWidget *window) {
            return qobject_cast<WidgetBoard *>(window) && window->isVisible();
        });
        QVERIFY(popup != windows.cend());
        const QRect place = (*popup)->geometry();
        QVERIFY(QGuiApplication::primaryScreen()->geometry().contains(place.topLeft()));
        QCOMPARE(place.top(), board.mapToGlobal(QPoint(0, 70)).y());
        QCOMPARE(place.center().x(), board.mapToGlobal(QPoint(114, 0)).x());

        // The copies stand as the originals do.
        auto *panel = static_cast<WidgetBoard *>(*popup);
        panel->setShapeWidgetVisible(true);
        const QList<QWidget *> copies = panel->findChild<ShapeWidgetContent *>()->lsWidget();
        QCOMPARE(copies.size(), 8);
        QVERIFY(copies.at(0)->x() < copies.at(1)->x());
        QVERIFY(copies.at(1)->x() < copies.at(2)->x());
        QVERIFY(models.at(0)->x() < models.at(1)->x());
        panel->hide();
    }

    void titleKeepsItsButtonsOffTheLogo_data() { addWaysToMirror(); }
    void titleKeepsItsButtonsOffTheLogo()
    {
        for (const QString &warning : framewarnings::ofTitle())
            expectWarning(warning);
        const auto application = mirroredApplication();
        WindowTitle title(QSize(400, 30));
        if (!application)
            mirror(&title);
        QVERIFY(pointer::showAndWait(&title));
        QCOMPARE(buttonNamed(&title, "Minimise")->geometry(), QRect(310, 5, 30, 20));
        QCOMPARE(buttonNamed(&title, "Maximise")->geometry(), QRect(340, 5, 30, 20));
        QCOMPARE(buttonNamed(&title, "Close")->geometry(), QRect(370, 5, 30, 20));
        QSignalSpy closed(&title, &WindowTitle::signal_closeMainForm);
        windowmouse::click(&title, Qt::LeftButton, QPoint(385, 15));
        QCOMPARE(closed.size(), 1);
    }

    void frameIsResizedAndDraggedWhereItIsSeen()
    {
        for (const QString &warning : framewarnings::ofFrame())
            expectWarning(warning);
        const MirroredApplication application;
        const QSize size(600, 400);
        WindowFrame frame(size, size, QSize(300, 200));
        QCursor cursor;
        QVERIFY(frame.IsInDragRect(QPointF(597, 200), cursor));
        QCOMPARE(frame.GetCurDragDirect(), 3); // the right edge
        QVERIFY(frame.IsInDragRect(QPointF(3, 200), cursor));
        QCOMPARE(frame.GetCurDragDirect(), 7); // the left edge
        QVERIFY(frame.IsInDragRect(QPointF(3, 3), cursor));
        QCOMPARE(cursor.shape(), Qt::SizeFDiagCursor);
        frame.ReSetCurDragDirect();
        QVERIFY(pointer::showAndWait(&frame));
        const QWidget *close = buttonNamed(&frame, "Close");
        QVERIFY(close);
        QVERIFY(placeIn(&frame, close).left() > 500);
    }

    void messageBoxMirrorsItsButtons()
    {
        const MirroredApplication application;
        CustomMessageBox box;
        box.setBoxInformation("Title", "Text", QPixmap(), false, false, false, false, "Apply", "OK",
                              "Cancel");
        box.setCloseBtnIsVisible(true);
        QVERIFY(pointer::showAndWait(&box));
        const auto leftOf = [&box](const char *name) {
            return placeIn(&box, box.findChild<QWidget *>(name)).left();
        };
        QVERIFY(leftOf("frame_ok") > leftOf("frame_apply"));
        QVERIFY(leftOf("frame_apply") > leftOf("frame_cancel"));
        QVERIFY(leftOf("toolButton") < leftOf("labelTitle"));
        QVERIFY(leftOf("labelIcon") > leftOf("labelTips"));
        QCOMPARE(misplacedButtons(&box), QStringList());
    }

    void settingsButtonStaysOffTheOtherButtons_data() { addWaysToMirror(); }
    void settingsButtonStaysOffTheOtherButtons()
    {
        const auto application = mirroredApplication();
        ListWidgetTitle title("Devices");
        title.setIconVisible(true);
        if (!application)
            mirror(&title);
        title.resize(200, 32);
        QVERIFY(pointer::showAndWait(&title));
        QCOMPARE(buttonNamed(&title, "Settings")->geometry(), QRect(187, 0, 13, 13));
        QCOMPARE(misplacedButtons(&title), QStringList());
        title.setLayoutDirection(Qt::LeftToRight);
        QCOMPARE(buttonNamed(&title, "Settings")->geometry(), QRect(0, 0, 13, 13));
    }

    void noButtonIsCutOrCovered_data()
    {
        QTest::addColumn<int>("widget");
        const QList<NewWidget> widgets = everyWidget();
        for (int i = 0; i < widgets.size(); ++i)
            QTest::newRow(widgets.at(i).name) << i;
    }
    void noButtonIsCutOrCovered()
    {
        QFETCH(int, widget);
        const NewWidget made = everyWidget().at(widget);
        for (const QString &warning : made.warnings)
            expectWarning(warning);
        const MirroredApplication application;
        const std::unique_ptr<QWidget> root(made.make());
        root->resize(root->size().expandedTo(QSize(200, 60))); // a few begin without a size
        QVERIFY(pointer::showAndWait(root.get()));
        QCOMPARE(misplacedButtons(root.get()), QStringList());
    }
};

ORVANE_TEST_MAIN(TestRightToLeft)
#include "tst_righttoleft.moc"
