#include "support/pointer.h"
#include "support/testcase.h"
#include "support/windowmouse.h"

#include <customlistwidgetmulitem.h>
#include <labelex.h>

namespace
{

constexpr int notFixed = -1;
const Qt::Alignment atLeft = Qt::AlignLeft | Qt::AlignVCenter;
const Qt::Alignment atRight = Qt::AlignRight | Qt::AlignVCenter;

struct Column {
    int width;
    Qt::Alignment alignment;
    QMargins margins;
};

/// What the base class shows, elided or not.
QString shownText(const LabelEx *label)
{
    return label->QLabel::text();
}

} // namespace

Q_DECLARE_METATYPE(Qt::MouseButton)
Q_DECLARE_METATYPE(QList<Column>)

class TestCustomListWidgetMulItem : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qRegisterMetaType<CustomListWidgetMulItem *>(); }

    void columnsDependOnTheNumberOfTexts_data()
    {
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<QList<Column>>("columns");
        const QMargins none;
        const QMargins sides(6, 0, 6, 0);
        const Column asCreated{notFixed, atLeft, none};
        const QList<Column> narrow{{206, atLeft, none}, {110, atLeft, none}, {40, atRight, none}};
        QTest::newRow("none") << QStringList() << QList<Column>();
        QTest::newRow("one") << QStringList{"COM3"} << QList<Column>{{256, atLeft, sides}};
        QTest::newRow("two") << QStringList{"COM3", "online"}
                             << QList<Column>{{256, atLeft, sides}, {notFixed, atRight, sides}};
        QTest::newRow("three") << QStringList{"COM3", "Sender", "4"} << narrow;
        QTest::newRow("four") << QStringList{"COM3", "Sender", "4", "online"}
                              << narrow + QList<Column>{asCreated};
        QTest::newRow("six") << QStringList{"COM3", "Sender", "4", "a", "b", "c"}
                             << narrow + QList<Column>{asCreated, asCreated, asCreated};
        QTest::newRow("three empty") << QStringList{"", QString(), ""} << narrow;
    }

    void columnsDependOnTheNumberOfTexts()
    {
        QFETCH(QStringList, texts);
        QFETCH(QList<Column>, columns);
        for (const bool flag : {false, true}) {
            QWidget parent;
            CustomListWidgetMulItem row(texts, &parent, flag);
            QCOMPARE(row.parentWidget(), &parent);
            QCOMPARE(row.styleSheet(), QString());
            QCOMPARE(row.getCurrentDevportName(), texts.value(0));
            auto *layout = qobject_cast<QHBoxLayout *>(row.layout());
            QVERIFY(layout);
            QCOMPARE(layout->count(), texts.size());
            const QList<LabelEx *> labels = row.getLabelList();
            QCOMPARE(labels.size(), columns.size());
            for (int i = 0; i < labels.size(); ++i) {
                const LabelEx *label = labels.at(i);
                const Column &column = columns.at(i);
                QCOMPARE(layout->itemAt(i)->widget(), label);
                QCOMPARE(label->parentWidget(), &row);
                QCOMPARE(label->text(), texts.at(i));
                QCOMPARE(label->styleSheet(), QString("font:10pt\"微软雅黑\";"));
                QCOMPARE(label->alignment(), column.alignment);
                QCOMPARE(label->contentsMargins(), column.margins);
                if (column.width == notFixed) {
                    QCOMPARE(label->minimumWidth(), 0);
                    QCOMPARE(label->maximumWidth(), QWIDGETSIZE_MAX);
                } else {
                    QCOMPARE(label->minimumWidth(), column.width);
                    QCOMPARE(label->maximumWidth(), column.width);
                }
            }
            row.resize(500, 34);
            row.grab();
        }
    }

    void declaresItsSignalsAndItsSlot()
    {
        const QMetaObject &meta = CustomListWidgetMulItem::staticMetaObject;
        QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
        QCOMPARE(meta.propertyOffset(), meta.propertyCount());
        QStringList methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            methods += QString::fromLatin1(meta.method(i).methodSignature());
            QCOMPARE(meta.method(i).access(), QMetaMethod::Public);
        }
        QCOMPARE(methods,
                 (QStringList{"signal_itemDoubleClicked(CustomListWidgetMulItem*)",
                              "signal_enterButtonClick(CustomListWidgetMulItem*)",
                              "slot_dealEnterButtonClick()"}));
    }

    void aTextIsElidedToItsColumn_data()
    {
        QTest::addColumn<int>("texts");
        QTest::addColumn<int>("width");
        QTest::newRow("one text") << 1 << 256;
        QTest::newRow("two texts") << 2 << 256;
        QTest::newRow("three texts") << 3 << 206;
    }

    void aTextIsElidedToItsColumn()
    {
        QFETCH(int, texts);
        QFETCH(int, width);
        const auto firstLabel = [texts](const QString &text, QWidget *parent) {
            QStringList all{text};
            while (all.size() < texts)
                all.append("x");
            return (new CustomListWidgetMulItem(all, parent, false))->getLabelList().first();
        };
        // The longest text that fits, in the font that the label has once it is seen.
        QWidget window;
        window.resize(600, 34);
        LabelEx *probe = firstLabel("x", &window);
        QVERIFY(pointer::showAndWait(&window));
        QString fitting;
        while (QFontMetrics(probe->font()).horizontalAdvance(fitting + 'i') <= width)
            fitting += 'i';
        LabelEx *whole = firstLabel(fitting, &window);
        QCOMPARE(shownText(whole), fitting);
        QCOMPARE(whole->toolTip(), QString());
        LabelEx *elided = firstLabel(fitting + 'i', &window);
        QVERIFY2(shownText(elided).endsWith(QChar(0x2026)), qPrintable(shownText(elided)));
        QCOMPARE(elided->toolTip(), fitting + 'i');
        QCOMPARE(elided->text(), fitting + 'i');
    }

    void lettersHaveTheSizeOfTheSheet()
    {
        CustomListWidgetMulItem row({"COM3"}, nullptr, false);
        row.setStyleSheet("font: SimSun Arial;");
        QWidget window;
        row.setParent(&window);
        QVERIFY(pointer::showAndWait(&window));
        QCOMPARE(row.getLabelList().first()->font().pointSize(), 10);
        row.setParent(nullptr);
    }

    void onlyADoubleClickIsReported_data()
    {
        QTest::addColumn<Qt::MouseButton>("button");
        QTest::addColumn<bool>("onLabel");
        QTest::newRow("left, beside the labels") << Qt::LeftButton << false;
        QTest::newRow("left, on a label") << Qt::LeftButton << true;
        QTest::newRow("right, beside the labels") << Qt::RightButton << false;
        QTest::newRow("right, on a label") << Qt::RightButton << true;
    }

    void onlyADoubleClickIsReported()
    {
        QFETCH(Qt::MouseButton, button);
        QFETCH(bool, onLabel);
        struct Below : QWidget {
            int events = 0;
            void mousePressEvent(QMouseEvent *) override { ++events; }
            void mouseReleaseEvent(QMouseEvent *) override { ++events; }
            void mouseDoubleClickEvent(QMouseEvent *) override { ++events; }
        };
        Below below;
        below.resize(500, 100);
        CustomListWidgetMulItem row({"COM3", "Sender", "4"}, &below, false);
        row.setGeometry(0, 0, 500, 34);
        QVERIFY(pointer::showAndWait(&below));
        QSignalSpy doubleClicked(&row, &CustomListWidgetMulItem::signal_itemDoubleClicked);
        QSignalSpy entered(&row, &CustomListWidgetMulItem::signal_enterButtonClick);
        QWidget *target = onLabel ? row.getLabelList().first() : static_cast<QWidget *>(&row);
        const QPoint position = onLabel ? target->rect().center() : QPoint(2, 2);
        windowmouse::press(target, button, position);
        QCOMPARE(doubleClicked.count(), 0);
        windowmouse::release(target, button, position);
        QCOMPARE(doubleClicked.count(), 0);
        QTest::mouseDClick(below.windowHandle(), button, Qt::NoModifier,
                           windowmouse::inWindow(target, position));
        QCOMPARE(doubleClicked.count(), 1);
        QCOMPARE(doubleClicked.at(0).at(0).value<CustomListWidgetMulItem *>(), &row);
        QCOMPARE(entered.count(), 0);
        QCOMPARE(below.events, 0); // nothing goes on to the list
    }

    void theEnterButtonIsTheHosts()
    {
        CustomListWidgetMulItem row({"COM3"}, nullptr, true);
        QVERIFY(row.findChildren<QAbstractButton *>().isEmpty());
        QSignalSpy entered(&row, &CustomListWidgetMulItem::signal_enterButtonClick);
        QPushButton button(&row);
        connect(&button, &QPushButton::clicked, &row,
                &CustomListWidgetMulItem::slot_dealEnterButtonClick);
        QTest::mouseClick(&button, Qt::LeftButton);
        QCOMPARE(entered.count(), 1);
        QCOMPARE(entered.at(0).at(0).value<CustomListWidgetMulItem *>(), &row);
    }

    void thereIsNoCheckBox()
    {
        CustomListWidgetMulItem row({"COM3"}, nullptr, true);
        QVERIFY(!row.checkBox());
        QVERIFY(!row.isChecked());
        row.setChecked(true);
        QVERIFY(!row.isChecked());
        row.hideCheckBox();
        QVERIFY(!row.checkBox());
        QCOMPARE(row.getLabelList().size(), 1);
        QVERIFY(!row.getLabelList().first()->isHidden());
    }

    void labelsAreTheHostsToChange()
    {
        CustomListWidgetMulItem row({"COM3", "Sender", "4"}, nullptr, false);
        row.getLabelList().at(0)->setText("COM4");
        QCOMPARE(row.getCurrentDevportName(), QString("COM3"));
        delete row.getLabelList().at(1);
        QCOMPARE(row.getLabelList().size(), 2);
        QCOMPARE(row.getLabelList().at(1)->text(), QString("4"));
    }

    void theRowCanGoInItsSignals_data()
    {
        QTest::addColumn<bool>("onLabel");
        QTest::addColumn<bool>("withWindow");
        QTest::newRow("on the row, the row") << false << false;
        QTest::newRow("on the row, the window") << false << true;
        QTest::newRow("on a label, the row") << true << false;
        QTest::newRow("on a label, the window") << true << true;
    }

    void theRowCanGoInItsSignals()
    {
        QFETCH(bool, onLabel);
        QFETCH(bool, withWindow);
        auto window = std::make_unique<QWidget>();
        window->resize(500, 100);
        QPointer<CustomListWidgetMulItem> row =
            new CustomListWidgetMulItem({"COM3", "Sender", "4"}, window.get(), false);
        row->setGeometry(0, 0, 500, 34);
        QVERIFY(pointer::showAndWait(window.get()));
        const auto act = [&] {
            if (withWindow)
                window.reset();
            else
                delete row;
        };
        connect(row, &CustomListWidgetMulItem::signal_itemDoubleClicked, this, act);
        QWidget *target = onLabel ? row->getLabelList().first() : static_cast<QWidget *>(row);
        const QPoint position = onLabel ? target->rect().center() : QPoint(2, 2);
        QTest::mouseDClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                           windowmouse::inWindow(target, position));
        QVERIFY(row.isNull());
        QCOMPARE(window == nullptr, withWindow);

        row = new CustomListWidgetMulItem({"COM3"}, nullptr, false);
        connect(row, &CustomListWidgetMulItem::signal_enterButtonClick, this, [&] { delete row; });
        row->slot_dealEnterButtonClick();
        QVERIFY(row.isNull());
    }

    void nothingOfARowOutlivesIt()
    {
        auto *row = new CustomListWidgetMulItem({"a", "b", "c"}, nullptr, true);
        QList<QPointer<LabelEx>> labels;
        for (LabelEx *label : row->getLabelList())
            labels.append(label);
        delete row;
        for (const auto &label : labels)
            QVERIFY(label.isNull());
        auto *window = new QWidget;
        QPointer<CustomListWidgetMulItem> child = new CustomListWidgetMulItem({"a"}, window, true);
        delete window;
        QVERIFY(child.isNull());
    }
};

ORVANE_TEST_MAIN(TestCustomListWidgetMulItem)
#include "tst_customlistwidgetmulitem.moc"
