#include "support/pointer.h"
#include "support/righttoleft.h"
#include "support/testcase.h"

#include <comboboxex.h>
#include <comboboxitem.h>
#include <labelex.h>

#include <QListView>
#include <QListWidget>

namespace
{

const QString imageFolder = QStringLiteral(":/Resource/Images/globalResource/");
const QString checkImage = imageFolder + "checkbox/checkbox_normal.png"; // 32 x 32
const QString arrowImage = imageFolder + "scrollbar/up_normal.png"; // 16 x 16

// The values of a new box's sheet; a test changes the ones that it sets.
struct Values {
    QString border = "1";
    QString borderColor = "#808080";
    QString radius = "3";
    QString background = "#454545";
    QString fontColor = "#d2d2d2";
    QString hoverBorder = "1";
    QString hoverBorderColor = "#5a5a5a";
    QString hoverBackground = "#505050";
    QString pressedBorderColor = "#808080";
    QString pressedBackground = "#454545";
    QString disabledFontColor = "#707070";
    QString itemHeight = "24";
    QString selection = "#4291f0";
    QString normalArrow = ":/Resource/Images/globalResource/combBox/combBox_normal.png";
    QString disabledArrow = ":/Resource/Images/globalResource/combBox/combBox_disabled.png";
    QString openArrow = ":/Resource/Images/globalResource/combBox/combBox_down.png";
    QString itemWidth = "0";
    QString listViewWidth = "0";
};

QString sheet(const Values &v)
{
    return "QComboBox{border:" + v.border + "px solid " + v.borderColor
        + ";border-radius:" + v.radius + "px;background:" + v.background + ";color:" + v.fontColor
        + ";font: SimSun Arial;}QComboBox:hover{border:" + v.hoverBorder + "px solid "
        + v.hoverBorderColor + ";background:" + v.hoverBackground + ";color:" + v.fontColor
        + ";font: SimSun Arial;}QComboBox:checked:pressed{border:" + v.hoverBorder + "px solid "
        + v.pressedBorderColor + ";background:" + v.pressedBackground + ";color:" + v.fontColor
        + ";font: SimSun Arial;}QComboBox:disabled{border:" + v.border
        + "px solid #555555;background:#555555;color:" + v.disabledFontColor
        + ";font: SimSun Arial;}QComboBox QAbstractItemView{background:" + v.background
        + ";}QComboBox QAbstractItemView::item{height:" + v.itemHeight + "px;color:" + v.fontColor
        + ";font: SimSun Arial;selection-background-color:" + v.selection
        + ";}QComboBox::down-arrow{image:url(" + v.normalArrow
        + ");subcontrol-position:right;subcontrol-origin: "
          "padding;}QComboBox::down-arrow:disabled{image:url("
        + v.disabledArrow + ");}QComboBox::down-arrow:on{image:url(" + v.openArrow
        + ");}QComboBox::drop-down{border:0px;min-width: " + v.itemWidth
        + "px;}QListView{min-width:" + v.listViewWidth + "px;}QListView::item {background:"
        + v.background + ";}QListView::item:hover{background:" + v.selection + ";}";
}

using Set = std::function<void(ComboBoxEx &)>;

QPixmap filled(int width, int height, const QColor &color)
{
    QPixmap pixmap(width, height);
    pixmap.fill(color);
    return pixmap;
}

ComboboxItem *row(const ComboBoxEx &box, int index)
{
    QListWidget *list = box.getPListWidget();
    return qobject_cast<ComboboxItem *>(list->itemWidget(list->item(index)));
}

void addRows(ComboBoxEx &box)
{
    box.addImageItem(checkImage, "first");
    box.addImageItem(arrowImage, "second");
    box.addImageItem(checkImage, "third");
}

} // namespace

Q_DECLARE_METATYPE(Qt::MouseButton)
Q_DECLARE_METATYPE(Values)
Q_DECLARE_METATYPE(Set)

class TestComboBoxEx : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasDefaults()
    {
        ComboBoxEx box(nullptr, QString(), QString(), QString());
        QCOMPARE(box.getBgCurrentItemColor(), QColor(69, 69, 69));
        QCOMPARE(box.getBgHoverItemColor(), QColor(80, 80, 80));
        QCOMPARE(box.getBorderHoverColor(), QColor(90, 90, 90));
        QCOMPARE(box.getFontColor(), QColor(210, 210, 210));
        QCOMPARE(box.getDisabledFontColor(), QColor(112, 112, 112));
        QCOMPARE(box.getSelectionBgColor(), QColor(66, 145, 240));
        QCOMPARE(box.getItemHeight(), 24);
        QCOMPARE(box.getItemWidth(), 0);
        QCOMPARE(box.getListViewWidth(), 0);
        QCOMPARE(box.getBorderWidth(), 1);
        QCOMPARE(box.getBorderHoverWidth(), 1);
        QCOMPARE(box.getBorderPressedWidth(), 1);
        QVERIFY(!box.getPListWidget());
        QCOMPARE(box.getText(), QString());
        QVERIFY(box.getWidgetItemList().isEmpty());
        QVERIFY(!box.getIsDrawText());
        QVERIFY(!box.isEditable());
        QCOMPARE(box.view()->metaObject()->className(), "QListView");
        QCOMPARE(box.styleSheet(), sheet({}));
    }

    void settersRecompose_data()
    {
        QTest::addColumn<Set>("set");
        QTest::addColumn<Values>("values");
        auto add = [](const char *name, const Set &set,
                      const std::function<void(Values &)> &change) {
            Values values;
            change(values);
            QTest::newRow(name) << set << values;
        };
        const QColor red(255, 0, 0);
        add(
            "background", [=](ComboBoxEx &b) { b.setBgCurrentItemColor(red); },
            [](Values &v) { v.background = "#ff0000"; });
        add(
            "hover background", [=](ComboBoxEx &b) { b.setBgHoverItemColor(red); },
            [](Values &v) { v.hoverBackground = "#ff0000"; });
        add(
            "pressed background", [=](ComboBoxEx &b) { b.setBgPressedItemColor(red); },
            [](Values &v) { v.pressedBackground = "#ff0000"; });
        add(
            "pressed border colour", [=](ComboBoxEx &b) { b.setBorderPressedColor(red); },
            [](Values &v) { v.pressedBorderColor = "#ff0000"; });
        add(
            "border colour", [=](ComboBoxEx &b) { b.setBorderNormalColor(red); },
            [](Values &v) { v.borderColor = "#ff0000"; });
        add(
            "hover border colour", [=](ComboBoxEx &b) { b.setBorderHoverColor(red); },
            [](Values &v) { v.hoverBorderColor = "#ff0000"; });
        add(
            "font colour", [=](ComboBoxEx &b) { b.setFontColor(red); },
            [](Values &v) { v.fontColor = "#ff0000"; });
        add(
            "disabled font colour", [=](ComboBoxEx &b) { b.setDisabledFontColor(red); },
            [](Values &v) { v.disabledFontColor = "#ff0000"; });
        add(
            "selection", [=](ComboBoxEx &b) { b.setSelectionBgColor(red); },
            [](Values &v) { v.selection = "#ff0000"; });
        add(
            "translucent colour",
            [](ComboBoxEx &b) { b.setBorderNormalColor(QColor(255, 255, 255, 0)); },
            [](Values &v) { v.borderColor = "#00ffffff"; });
        add(
            "invalid colour", [](ComboBoxEx &b) { b.setFontColor(QColor()); },
            [](Values &v) { v.fontColor = "#000000"; });
        add(
            "item height", [](ComboBoxEx &b) { b.setItemHeight(31); },
            [](Values &v) { v.itemHeight = "31"; });
        add(
            "item width", [](ComboBoxEx &b) { b.setItemWidth(32); },
            [](Values &v) { v.itemWidth = "32"; });
        add(
            "list view width", [](ComboBoxEx &b) { b.setListViewWidth(33); },
            [](Values &v) { v.listViewWidth = "33"; });
        add(
            "border width", [](ComboBoxEx &b) { b.setBorderWidth(4); },
            [](Values &v) { v.border = "4"; });
        add(
            "border hover width", [](ComboBoxEx &b) { b.setBorderHoverWidth(5); },
            [](Values &v) { v.hoverBorder = "5"; });
        add(
            "border pressed width is not drawn", [](ComboBoxEx &b) { b.setBorderPressedWidth(5); },
            [](Values &) {});
        add(
            "negative radius", [](ComboBoxEx &b) { b.setBorderRadius(-6); },
            [](Values &v) { v.radius = "-6"; });
        add(
            "store-only setters",
            [](ComboBoxEx &b) {
                b.setIsChangeImg(true);
                b.setDefaultPixMap(filled(4, 4, Qt::red));
                b.setIsDrawText(true);
                b.setWidgetItemList({});
            },
            [](Values &) {});
    }

    void settersRecompose()
    {
        QFETCH(Set, set);
        QFETCH(Values, values);
        ComboBoxEx box;
        set(box);
        QCOMPARE(box.styleSheet(), sheet(values));
    }

    void gettersReturnWhatWasSet()
    {
        ComboBoxEx box;
        box.setBgCurrentItemColor(QColor(1, 0, 0));
        box.setBgHoverItemColor(QColor(2, 0, 0));
        box.setBorderHoverColor(QColor(3, 0, 0));
        box.setFontColor(QColor(4, 0, 0));
        box.setDisabledFontColor(QColor(5, 0, 0));
        box.setSelectionBgColor(QColor(6, 0, 0));
        box.setItemHeight(7);
        box.setItemWidth(8);
        box.setListViewWidth(9);
        box.setBorderWidth(10);
        box.setBorderHoverWidth(11);
        box.setBorderPressedWidth(12);
        box.setIsDrawText(true);
        QListWidget list;
        box.setPListWidget(&list);
        QCOMPARE(box.getBgCurrentItemColor(), QColor(1, 0, 0));
        QCOMPARE(box.getBgHoverItemColor(), QColor(2, 0, 0));
        QCOMPARE(box.getBorderHoverColor(), QColor(3, 0, 0));
        QCOMPARE(box.getFontColor(), QColor(4, 0, 0));
        QCOMPARE(box.getDisabledFontColor(), QColor(5, 0, 0));
        QCOMPARE(box.getSelectionBgColor(), QColor(6, 0, 0));
        QCOMPARE(box.getItemHeight(), 7);
        QCOMPARE(box.getItemWidth(), 8);
        QCOMPARE(box.getListViewWidth(), 9);
        QCOMPARE(box.getBorderWidth(), 10);
        QCOMPARE(box.getBorderHoverWidth(), 11);
        QCOMPARE(box.getBorderPressedWidth(), 12);
        QVERIFY(box.getIsDrawText());
        QCOMPARE(box.getPListWidget(), &list);
    }

    void arrowImagesAreReplacedUnlessNull()
    {
        Values values;
        values.openArrow = ":/mine.png";
        values.disabledArrow = ""; // empty is not null
        const ComboBoxEx box(nullptr, QString(), ":/mine.png", QLatin1String(""));
        QCOMPARE(box.styleSheet(), sheet(values));
    }

    void everyImageOfTheSheetResolves()
    {
        for (const char *name : {"combBox_normal.png", "combBox_down.png", "combBox_disabled.png"})
            QCOMPARE(QImage(imageFolder + "combBox/" + name).size(), QSize(16, 6));
    }

    void textModeSetsNoClickSignal()
    {
        ComboBoxEx box;
        box.addItems({"one", "two"});
        QSignalSpy clicked(&box, &ComboBoxEx::signal_clickedItem);
        box.setCurrentIndex(1);
        QCOMPARE(box.currentIndex(), 1);
        QCOMPARE(box.currentText(), QStringLiteral("two"));
        QCOMPARE(clicked.count(), 0);
        QCOMPARE(box.getText(), QString());
        QCOMPARE(box.getItemText(0), QString());
        box.removeItem(0);
        QCOMPARE(box.count(), 1);
        box.clear();
        QCOMPARE(box.count(), 0);
    }

    void toolTipShowsATextThatDoesNotFit_data()
    {
        QTest::addColumn<int>("spare");
        QTest::addColumn<bool>("fits");
        QTest::newRow("one pixel to spare") << 1 << true;
        QTest::newRow("exactly as wide") << 0 << false;
        QTest::newRow("one pixel short") << -1 << false;
    }

    void toolTipShowsATextThatDoesNotFit()
    {
        QFETCH(int, spare);
        QFETCH(bool, fits);
        const QString text = QStringLiteral("An item of some length");
        ComboBoxEx box;
        box.addItem("x");
        box.addItem(text);
        box.ensurePolished();
        box.resize(box.fontMetrics().horizontalAdvance(text) + 19 + spare, 24);
        box.setCurrentIndex(1);
        QCOMPARE(box.toolTip(), fits ? QString() : text);
        box.resize(400, 24);
        box.setCurrentIndex(0);
        QCOMPARE(box.toolTip(), QString());
    }

    void keysAndWheelMoveTheCurrentText()
    {
        ComboBoxEx box;
        box.addItems({"one", "two", "three"});
        QVERIFY(pointer::showAndWait(&box));
        box.activateWindow();
        QTest::keyClick(&box, Qt::Key_Down);
        QCOMPARE(box.currentIndex(), 1);
        pointer::turnWheel(&box, -1);
        QCOMPARE(box.currentIndex(), 2);
        pointer::turnWheel(&box, 1);
        QCOMPARE(box.currentIndex(), 1);
    }

    void firstImageRowMakesTheListAndChoosesNothing()
    {
        ComboBoxEx box;
        QSignalSpy clicked(&box, &ComboBoxEx::signal_clickedItem);
        box.addImageItem(checkImage, "first");
        QListWidget *list = box.getPListWidget();
        QVERIFY(list);
        QCOMPARE(box.model(), list->model());
        QCOMPARE(box.view(), list);
        QCOMPARE(box.currentIndex(), 0);
        QCOMPARE(clicked.count(), 0);
        QCOMPARE(box.getText(), QString());
    }

    void withoutTheHostsListTheBoxMakesItsOwn()
    {
        ComboBoxEx box;
        QListWidget given;
        box.setPListWidget(&given);
        box.setPListWidget(nullptr);
        QVERIFY(!box.getPListWidget());
        box.addImageItem(checkImage, "first");
        QVERIFY(box.getPListWidget());
        QVERIFY(box.getPListWidget() != &given);
        QCOMPARE(given.count(), 0);
    }

    void imageRowsAreComboboxItems()
    {
        ComboBoxEx box;
        box.setFontColor(QColor(1, 2, 3));
        addRows(box);
        QCOMPARE(box.count(), 3);
        QCOMPARE(box.getWidgetItemList().size(), 3);
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(box.getWidgetItemList().at(i), box.getPListWidget()->item(i));
            QVERIFY(row(box, i));
            QCOMPARE(row(box, i)->index(), i);
            QCOMPARE(row(box, i)->fontColor(), QColor(1, 2, 3));
        }
        QCOMPARE(row(box, 1)->pixMap().size(), QSize(16, 16));
        QCOMPARE(box.getItemText(2), QStringLiteral("third"));
        QCOMPARE(box.getPListWidget()->styleSheet(), QStringLiteral("background:#454545;"));
    }

    void itemHeightFollowsTheLastImage()
    {
        ComboBoxEx box;
        box.addImageItem(checkImage, "first");
        QCOMPARE(box.getItemHeight(), 52);
        Values values;
        values.itemHeight = "52";
        QCOMPARE(box.styleSheet(), sheet(values));
        box.addImageItem(arrowImage, "second");
        QCOMPARE(box.getItemHeight(), 36);
        box.addImageItem(":/not there.png", "third");
        QCOMPARE(box.getItemHeight(), 20);
        QVERIFY(row(box, 2)->pixMap().isNull());
    }

    void imageModeSetsNoToolTip()
    {
        ComboBoxEx box;
        box.resize(30, 24);
        box.addImageItem(checkImage, "first");
        QMetaObject::invokeMethod(&box, "slot_showTooltip", Q_ARG(QString, QString(90, 'w')));
        QCOMPARE(box.toolTip(), QString());
    }

    void setCurrentIndexChoosesARowEveryTime()
    {
        ComboBoxEx box;
        addRows(box);
        QSignalSpy clicked(&box, &ComboBoxEx::signal_clickedItem);
        box.setCurrentIndex(1);
        QCOMPARE(box.currentIndex(), 1);
        QCOMPARE(box.getText(), QStringLiteral("second"));
        box.setCurrentIndex(1);
        QCOMPARE(clicked.count(), 2);
        QCOMPARE(clicked.at(1).at(0).toInt(), 1);
    }

    void indexOutOfRangeKeepsWhatIsShown()
    {
        ComboBoxEx box;
        addRows(box);
        box.setCurrentIndex(2);
        QSignalSpy clicked(&box, &ComboBoxEx::signal_clickedItem);
        box.setCurrentIndex(-1);
        box.setCurrentIndex(99);
        QCOMPARE(clicked.count(), 2);
        QCOMPARE(box.getText(), QStringLiteral("third"));
        QCOMPARE(box.getItemText(-1), QString());
        QCOMPARE(box.getItemText(3), QString());
        box.removeItem(-1);
        box.removeItem(3);
        QCOMPARE(box.count(), 3);
    }

    void clickOnARowInThePopupChoosesIt_data()
    {
        QTest::addColumn<Qt::MouseButton>("button");
        QTest::newRow("left") << Qt::LeftButton;
        QTest::newRow("right") << Qt::RightButton;
    }

    void clickOnARowInThePopupChoosesIt()
    {
        QFETCH(Qt::MouseButton, button);
        ComboBoxEx box;
        addRows(box);
        box.resize(160, 40);
        QVERIFY(pointer::showAndWait(&box));
        QSignalSpy clicked(&box, &ComboBoxEx::signal_clickedItem);
        box.showPopup();
        QWidget *popup = box.view()->window();
        QTRY_VERIFY(popup->isVisible());
        // The rows take their places a moment later, with the next layout of the list.
        QTRY_COMPARE(row(box, 1)->y(), row(box, 0)->geometry().bottom() + 1);
        const QPoint inRow = row(box, 1)->mapTo(popup, row(box, 1)->rect().center());
        QTest::mouseClick(popup->windowHandle(), button, Qt::NoModifier, inRow);
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(clicked.at(0).at(0).toInt(), 1);
        QCOMPARE(box.currentIndex(), 1);
        QCOMPARE(box.getText(), QStringLiteral("second"));
        QTRY_VERIFY(!popup->isVisible());
    }

    void removedRowLeavesNothingBehind_data()
    {
        QTest::addColumn<Set>("remove");
        QTest::newRow("by the box") << Set([](ComboBoxEx &b) { b.removeItem(0); });
        QTest::newRow("by the base class")
            << Set([](ComboBoxEx &b) { static_cast<QComboBox &>(b).removeItem(0); });
        QTest::newRow("by the item")
            << Set([](ComboBoxEx &b) { delete b.getPListWidget()->item(0); });
        QTest::newRow("by the list")
            << Set([](ComboBoxEx &b) { delete b.getPListWidget()->takeItem(0); });
        QTest::newRow("by the model") << Set([](ComboBoxEx &b) { b.model()->removeRow(0); });
    }

    void removedRowLeavesNothingBehind()
    {
        QFETCH(Set, remove);
        ComboBoxEx box;
        addRows(box);
        const QListWidgetItem *second = box.getWidgetItemList().at(1);
        remove(box);
        QCOMPARE(box.count(), 2);
        QCOMPARE(box.getWidgetItemList().size(), 2);
        QCOMPARE(box.getWidgetItemList().at(0), second);
        QCOMPARE(box.getItemText(0), QStringLiteral("second"));
        // The rows behind it answer with their new numbers.
        QCOMPARE(row(box, 0)->index(), 0);
        QCOMPARE(row(box, 1)->index(), 1);
        box.setCurrentIndex(1);
        QCOMPARE(box.getText(), QStringLiteral("third"));
        box.addImageItem(checkImage, "fourth");
        QCOMPARE(row(box, 2)->index(), 2);
        box.clear();
        QVERIFY(box.getWidgetItemList().isEmpty());
        box.setCurrentIndex(0);
    }

    void allRowsGoneByTheListAreForgotten()
    {
        ComboBoxEx box;
        addRows(box);
        box.getPListWidget()->clear();
        QVERIFY(box.getWidgetItemList().isEmpty());
        box.setCurrentIndex(0);
        box.clear();
    }

    void clearKeepsTheLastChoice()
    {
        ComboBoxEx box;
        addRows(box);
        box.setCurrentIndex(1);
        QSignalSpy clicked(&box, &ComboBoxEx::signal_clickedItem);
        box.clear();
        QCOMPARE(box.count(), 0);
        QVERIFY(box.getWidgetItemList().isEmpty());
        QCOMPARE(box.getText(), QStringLiteral("second"));
        QCOMPARE(clicked.count(), 0);
        box.setCurrentIndex(0); // no rows: the signal comes all the same
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(box.getText(), QStringLiteral("second"));
    }

    void givenListIsFilledAsItIs()
    {
        QListWidget list;
        {
            ComboBoxEx box;
            QAbstractItemModel *model = box.model();
            QAbstractItemView *view = box.view();
            box.setPListWidget(&list);
            addRows(box);
            QCOMPARE(box.getPListWidget(), &list);
            QCOMPARE(list.count(), 3);
            QCOMPARE(box.model(), model);
            QCOMPARE(box.view(), view);
            QCOMPARE(box.count(), 0);
        }
        QCOMPARE(list.count(), 3); // it is the host's
    }

    void givenListMayDieFirst()
    {
        auto *list = new QListWidget;
        ComboBoxEx box;
        box.setPListWidget(list);
        addRows(box);
        delete list;
        QVERIFY(!box.getPListWidget());
        QVERIFY(box.getWidgetItemList().isEmpty());
        box.setCurrentIndex(1);
        box.clear();
        box.addImageItem(checkImage, "again");
        QCOMPARE(box.count(), 1);
    }

    void givenItemsMayDieFirst()
    {
        ComboBoxEx box;
        auto *list = new QListWidget;
        list->addItems({"a", "b"});
        box.setWidgetItemList({list->item(0), list->item(1)});
        QCOMPARE(box.getWidgetItemList().size(), 2);
        QCOMPARE(box.getItemText(0), QString()); // a row without a ComboboxItem
        delete list->item(0);
        QCOMPARE(box.getWidgetItemList().size(), 1);
        delete list;
        QVERIFY(box.getWidgetItemList().isEmpty());
    }

    void boxDiesBeforeItsRows()
    {
        auto *box = new ComboBoxEx;
        addRows(*box);
        QVERIFY(pointer::showAndWait(box));
        box->showPopup();
        const QPointer<QListWidget> list = box->getPListWidget();
        delete box;
        QVERIFY(list.isNull());
    }

    void boxMayBeDeletedInItsOwnSignal()
    {
        auto *box = new ComboBoxEx;
        addRows(*box);
        box->resize(160, 40);
        const QPointer<ComboBoxEx> guard(box);
        QVERIFY(pointer::showAndWait(box));
        connect(box, &ComboBoxEx::signal_clickedItem, this, [box] { delete box; });
        box->setCurrentIndex(1);
        QVERIFY(guard.isNull());
    }

    void rowsMayBeClearedInTheSignalOfAClick()
    {
        ComboBoxEx box;
        addRows(box);
        box.resize(160, 40);
        QVERIFY(pointer::showAndWait(&box));
        connect(&box, &ComboBoxEx::signal_clickedItem, &box, [&box] { box.clear(); });
        box.showPopup();
        QWidget *popup = box.view()->window();
        QTRY_VERIFY(popup->isVisible());
        // The rows take their places a moment later, with the next layout of the list.
        QTRY_COMPARE(row(box, 1)->y(), row(box, 0)->geometry().bottom() + 1);
        const QPoint inRow = row(box, 2)->mapTo(popup, row(box, 2)->rect().center());
        QTest::mouseClick(popup->windowHandle(), Qt::LeftButton, Qt::NoModifier, inRow);
        QCoreApplication::processEvents();
        QCOMPARE(box.count(), 0);
        QCOMPARE(box.getText(), QStringLiteral("third"));
    }

    void enabledStatePicksTheDefaultPixmap()
    {
        ComboBoxEx box;
        box.resize(100, 40);
        box.setIsChangeImg(true);
        box.setNormalAndDisabledPixMap(filled(20, 10, Qt::red), filled(20, 10, Qt::green));
        QVERIFY(pointer::showAndWait(&box));
        QCOMPARE(pointer::colorAt(&box, QPoint(3, 3)), QColor(Qt::red));
        box.setComboxEnabled(false);
        QVERIFY(!box.isEnabled());
        QCOMPARE(pointer::colorAt(&box, QPoint(3, 3)), QColor(Qt::green));
        box.setComboxEnabled(true);
        QCOMPARE(pointer::colorAt(&box, QPoint(3, 3)), QColor(Qt::red));
        box.setDefaultPixMap(filled(20, 10, Qt::blue));
        QCOMPARE(pointer::colorAt(&box, QPoint(3, 3)), QColor(Qt::blue));
    }

    void changedImageIsPaintedAtHalfSizeAndAlone()
    {
        ComboBoxEx box;
        box.resize(160, 60);
        box.setIsChangeImg(true);
        box.setDefaultPixMap(filled(21, 11, Qt::red)); // odd: the halves are 10 and 5
        box.addImageItem(checkImage, "first");
        box.setIsDrawText(true);
        box.setCurrentIndex(0);
        QVERIFY(pointer::showAndWait(&box));
        QCOMPARE(pointer::colorAt(&box, QPoint(0, 0)), QColor(Qt::red));
        QCOMPARE(pointer::colorAt(&box, QPoint(9, 4)), QColor(Qt::red));
        QCOMPARE(pointer::colorAt(&box, QPoint(10, 4)), QColor(69, 69, 69));
        QCOMPARE(pointer::colorAt(&box, QPoint(9, 5)), QColor(69, 69, 69));
        // Has image items stayed false, so that tool tips work as in text mode.
        QMetaObject::invokeMethod(&box, "slot_showTooltip", Q_ARG(QString, QString(90, 'w')));
        QCOMPARE(box.toolTip(), QString(90, 'w'));
    }

    void chosenRowIsPainted()
    {
        QTemporaryDir folder;
        const QString file = folder.filePath("red.png");
        QVERIFY(filled(30, 20, Qt::red).save(file));
        ComboBoxEx box;
        box.resize(160, 51);
        box.addImageItem(file, QString(5, QChar(0x2588)));
        QVERIFY(pointer::showAndWait(&box));
        // Nothing is chosen yet.
        QCOMPARE(pointer::colorAt(&box, QPoint(20, 25)), QColor(69, 69, 69));

        box.setCurrentIndex(0);
        // 30 x 18 at left 12, top (51 - 20) / 2 + 1 = 16.
        QCOMPARE(pointer::colorAt(&box, QPoint(12, 16)), QColor(Qt::red));
        QCOMPARE(pointer::colorAt(&box, QPoint(41, 33)), QColor(Qt::red));
        QCOMPARE(pointer::colorAt(&box, QPoint(11, 16)), QColor(69, 69, 69));
        QCOMPARE(pointer::colorAt(&box, QPoint(12, 15)), QColor(69, 69, 69));
        QCOMPARE(pointer::colorAt(&box, QPoint(42, 33)), QColor(69, 69, 69));
        QCOMPARE(pointer::colorAt(&box, QPoint(41, 34)), QColor(69, 69, 69));

        const int baseline = (QFontMetrics(box.font()).height() + 51) / 2 - 4;
        const QPoint inText(30 + 16 + 6, baseline - 4);
        QCOMPARE(pointer::colorAt(&box, inText), QColor(69, 69, 69));
        QPixmap expected = box.grab();
        QPainter painter(&expected);
        painter.setFont(box.font());
        painter.setPen(QColor(210, 210, 210));
        painter.drawText(30 + 16, baseline, QString(5, QChar(0x2588)));
        painter.end();
        box.setIsDrawText(true);
        QCOMPARE(pointer::colorAt(&box, inText), QColor(210, 210, 210));
        QCOMPARE(box.grab().toImage(), expected.toImage());
    }

    void theCurrentTextIsSeen()
    {
        ComboBoxEx box;
        box.resize(120, 40);
        box.addItem("WWWW");
        box.addItem(QString());
        QVERIFY(pointer::showAndWait(&box));
        box.setCurrentIndex(0);
        const QImage withText = box.grab().toImage();
        box.setCurrentIndex(1);
        QVERIFY(box.grab().toImage() != withText);
    }

    void colorIsSeenWhenSetBeforeAndAfterTheFirstShow()
    {
        ComboBoxEx box;
        box.resize(120, 40);
        box.setBgCurrentItemColor(QColor(255, 0, 0));
        box.setBgCurrentItemColor(QColor(0, 255, 0));
        QVERIFY(pointer::showAndWait(&box));
        QCOMPARE(pointer::colorAt(&box, QPoint(20, 20)), QColor(0, 255, 0));
        box.setBgCurrentItemColor(QColor(0, 0, 255));
        QCOMPARE(pointer::colorAt(&box, QPoint(20, 20)), QColor(0, 0, 255));
    }

    void popupShowsTheSheetSetLast()
    {
        ComboBoxEx box;
        box.addItems({"", ""});
        box.setBgCurrentItemColor(QColor(255, 0, 0));
        box.setSelectionBgColor(QColor(255, 0, 0));
        box.setBgCurrentItemColor(QColor(0, 255, 0));
        QVERIFY(pointer::showAndWait(&box));
        pointer::moveAway(&box);
        box.showPopup();
        QTRY_VERIFY(box.view()->isVisible());
        QCOMPARE(pointer::colorAt(box.view()->viewport(), QPoint(10, 36)), QColor(0, 255, 0));
    }

    void metaObjectHasOneSignalAndTwoPrivateSlots()
    {
        const QMetaObject &meta = ComboBoxEx::staticMetaObject;
        QStringList methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
            methods << meta.method(i).methodSignature();
        QCOMPARE(methods,
                 (QStringList{"signal_clickedItem(int)", "onShowContent(QPixmap,QString,int)",
                              "slot_showTooltip(QString)"}));
        QCOMPARE(meta.method(meta.methodOffset() + 1).access(), QMetaMethod::Private);
        QCOMPARE(meta.propertyOffset(), meta.propertyCount());
    }

    void pictureIsAwayFromTheArrowFromRightToLeft()
    {
        const MirroredApplication application;
        QPixmap picture(20, 20);
        picture.fill(Qt::red);
        QTemporaryDir folder;
        const QString path = folder.filePath("red.png");
        QVERIFY(picture.save(path));
        ComboBoxEx box;
        box.resize(120, 30);
        box.addImageItem(path, "Red");
        box.setCurrentIndex(0);
        QVERIFY(pointer::showAndWait(&box));
        // 12 pixels from the right end, where it stands from the left one otherwise.
        QCOMPARE(pointer::colorAt(&box, QPoint(120 - 12 - 10, 15)), QColor(Qt::red));
        QVERIFY(pointer::colorAt(&box, QPoint(12 + 10, 15)) != QColor(Qt::red));

        QPixmap large(40, 40);
        large.fill(Qt::green);
        box.setDefaultPixMap(large);
        box.setIsChangeImg(true);
        QCOMPARE(pointer::colorAt(&box, QPoint(110, 10)), QColor(Qt::green));
        QVERIFY(pointer::colorAt(&box, QPoint(10, 10)) != QColor(Qt::green));
    }
};

ORVANE_TEST_MAIN(TestComboBoxEx)
#include "tst_comboboxex.moc"
