#include "support/pointer.h"
#include "support/testcase.h"

#include <internal/cabinetdrag.h>
#include <toolbuttonex.h>

#include <cstring>
#include <functional>
#include <limits>

namespace
{

const QString directory = ":/Resource/Images/globalResource/";

/// A record with a value of its own in every field.
StructCabinet filledRecord()
{
    StructCabinet record;
    record.cabinetSize = QSize(192, 108);
    record.cabinetCount = 3;
    record.extraText1 = QStringLiteral("first");
    record.extraText2 = QStringLiteral("second 微软");
    record.extraValue1 = 11;
    record.extraValue2 = -12;
    record.extraValue3 = 13;
    record.extraValue4 = std::numeric_limits<int>::min();
    record.extraValue5 = std::numeric_limits<int>::max();
    record.extraText3 = QStringLiteral("third");
    record.extraText4 = QString();
    record.extraValue6 = 16;
    record.extraValue7 = 17;
    record.cabinetweight = 18;
    record.cabinetpower = 19.5F;
    // Not a number, with bits that only a copy of the bytes preserves.
    const quint32 bits = 0x7fc12345;
    std::memcpy(&record.cabinetVoltage, &bits, sizeof bits);
    record.cabinetuisize = 21;
    record.cabinetuiHsize = 22;
    record.cabinetPointspace = 23;
    return record;
}

quint32 bitsOf(float value)
{
    quint32 bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

/// The nineteen fields in their order, the numbers with a broken part by their bits.
QVariantList fields(const StructCabinet &record)
{
    return {record.cabinetSize,          record.cabinetCount,
            record.extraText1,           record.extraText2,
            record.extraValue1,          record.extraValue2,
            record.extraValue3,          record.extraValue4,
            record.extraValue5,          record.extraText3,
            record.extraText4,           record.extraValue6,
            record.extraValue7,          record.cabinetweight,
            bitsOf(record.cabinetpower), bitsOf(record.cabinetVoltage),
            record.cabinetuisize,        record.cabinetuiHsize,
            record.cabinetPointspace};
}

QVariantList with(QVariantList list, int index, const QVariant &value)
{
    list[index] = value;
    return list;
}

/// The sheet of the cabinet kinds. The values in their order: backgrounds of normal, hover,
/// pressed; font colours of the same; border colours of hover and pressed; border widths of all.
QString cabinetSheet(const QStringList &values)
{
    const QString font = QStringLiteral(";font:9pt \"微软雅黑\" ");
    return "QToolButton{background:" + values.at(0) + ";color:" + values.at(3) + font
        + ";border:" + values.at(8) + "px;}QToolButton:Hover{background:" + values.at(1)
        + ";color:" + values.at(4) + "; border:" + values.at(9) + "px solid " + values.at(6)
        + ";}QToolButton:Pressed{background:" + values.at(2) + ";color:" + values.at(5)
        + "; border:" + values.at(10) + "px solid " + values.at(7)
        + ";}QToolButton:disabled{background:#454545;color:" + values.at(3) + font
        + ";border:" + values.at(8)
        + "px;}QToolTip{background-color:rgb(56,56,56);color:rgb(178,178,178);font:SimSun Arial;"
          "border:1px solid rgb(128,128,128);}";
}

const QStringList defaultValues = {"#454545", "#657c98", "#4291f0", "#000000", "#dadada", "#dadada",
                                   "#4382ce", "#0767aa", "0",       "1",       "1"};
const QString plainSheet =
    QStringLiteral("QToolButton{background:#454545;color:#000000;font:9pt \"微软雅黑\" "
                   ";border:0px;}");

QString sheetWith(int index, const QString &value)
{
    QStringList values = defaultValues;
    values[index] = value;
    return cabinetSheet(values);
}

struct Button : ToolButtonEx {
    explicit Button(ButtonType type, QWidget *parent = nullptr)
        : ToolButtonEx(parent, type, QString(), QString())
    {
        resize(69, 69);
    }
};

/// Sends a mouse event as Qt's delivery does, at any position and with any buttons held.
void sendMouse(QWidget *widget, QEvent::Type type, QPointF position, Qt::MouseButton button,
               Qt::MouseButtons held)
{
    QMouseEvent event(type, position, widget->mapToGlobal(position.toPoint()), button, held,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

void press(QWidget *widget, QPointF position)
{
    sendMouse(widget, QEvent::MouseButtonPress, position, Qt::LeftButton, Qt::LeftButton);
}

void move(QWidget *widget, QPointF position, Qt::MouseButtons held = Qt::LeftButton)
{
    sendMouse(widget, QEvent::MouseMove, position, Qt::NoButton, held);
}

void release(QWidget *widget, QPointF position)
{
    sendMouse(widget, QEvent::MouseButtonRelease, position, Qt::LeftButton, Qt::NoButton);
}

/// What a button reports, in order.
class Log : public QObject
{
    Q_OBJECT

public:
    explicit Log(ToolButtonEx *button)
    {
        connect(button, &QToolButton::pressed, this, [this] { names << "pressed"; });
        connect(button, &QToolButton::released, this, [this] { names << "released"; });
        connect(button, &QToolButton::clicked, this, [this] { names << "clicked"; });
        connect(button, &ToolButtonEx::notifyAddCabineModel, this,
                [this](QSize size, const QString &maker, const QString &name, int uiSize,
                       int uiHSize, int weight, float power, float voltage, int pointSpace,
                       const QString &path) {
                    names << "add";
                    model = {size,          maker,           name,       uiSize, uiHSize, weight,
                             bitsOf(power), bitsOf(voltage), pointSpace, path};
                });
        connect(button, &ToolButtonEx::signal_notifyAddBeenTakenCabinetModel, this,
                [this](const StructCabinet &info) {
                    names << "taken";
                    records << fields(info);
                });
        connect(button, &ToolButtonEx::signal_notifyChangedPortInfo, this,
                [this](const StructCabinet &info) {
                    names << "port";
                    records << fields(info);
                });
    }

    QStringList names;
    QList<QVariantList> records;
    QVariantList model;
};

/// A receiver that connects by the signatures' texts, as hosts do.
class Receiver : public QObject
{
    Q_OBJECT

public:
    QStringList names;
    QList<QVariantList> records;

public Q_SLOTS:
    void on_notifyAddBeenTakenCabinetModel(StructCabinet info)
    {
        names << "taken";
        records << fields(info);
    }
    void on_notifyChangedPortInfo(StructCabinet info)
    {
        names << "port";
        records << fields(info);
    }
    void on_notifyAddCabineModel(QSize size, QString, QString, int, int, int, float, float, int,
                                 QString)
    {
        names << "add";
        QCOMPARE(size, QSize(192, 108));
    }
};

/// Presses \a button at \a from, moves to \a to with the buttons \a held, and tells whether this
/// starts a drag. Without a display a drag ends as soon as it has begun.
bool startsDrag(Button *button, QPointF from, QPointF to, Qt::MouseButtons held = Qt::LeftButton)
{
    struct ChildCounter : QObject {
        int added = 0;
        int removed = 0;
        bool eventFilter(QObject *, QEvent *event) override
        {
            added += event->type() == QEvent::ChildAdded;
            removed += event->type() == QEvent::ChildRemoved;
            return false;
        }
    } children;
    press(button, from);
    button->installEventFilter(&children);
    move(button, to, held);
    if (children.added != children.removed || children.added > 1)
        qWarning("a drag is still there");
    return children.added == 1;
}

bool hasCursor(const Button &button, const QString &file)
{
    const QPixmap picture(file);
    return !picture.isNull() && button.cursor().shape() == Qt::BitmapCursor
        && button.cursor().pixmap().toImage() == picture.toImage();
}

QImage rendered(QWidget *widget, int ratio)
{
    QImage image(widget->size() * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::magenta);
    widget->render(&image);
    return image;
}

const QColor fill(183, 187, 194);
const QColor outline(112, 112, 112);
const QColor ground(69, 69, 69);

/// What \a button has to look like with its rectangle at \a rectangle on a ground of \a color:
/// rectangle, count in it, size below.
QImage paintedByHand(const Button &button, const QRect &rectangle, const QColor &color, int ratio)
{
    const bool isModel = button.buttonType() == CabinetModelType;
    const QString text =
        QStringLiteral("%1x%2").arg(button.cabinetWidth()).arg(button.cabinetHeight());
    QImage image(button.size() * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(color);
    QPainter painter(&image);
    QFont font = button.font();
    if (isModel) {
        font = QFont();
        font.setPixelSize(9);
    }
    painter.setFont(font);
    painter.setBrush(fill);
    painter.setPen(outline);
    painter.drawRect(rectangle);
    if (button.isDrawCabinetCount())
        painter.drawText(rectangle, Qt::AlignCenter, QString::number(button.cabinetCount()));
    painter.setPen(Qt::white);
    if (isModel) {
        painter.drawText(button.rect(), Qt::AlignHCenter | Qt::AlignBottom, text);
        return image;
    }
    const QFontMetrics metrics(font);
    const int width = metrics.horizontalAdvance(text);
    painter.drawText(QRect((button.width() - width) / 2,
                           button.height() - 20 + (20 - metrics.height()) / 2, width, 20),
                     text, QTextOption());
    return image;
}

} // namespace

Q_DECLARE_METATYPE(ButtonType)

Q_DECLARE_METATYPE(std::function<void(ToolButtonEx &)>)

class TestToolButtonExCabinet : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasDefaults_data() { kindRows(); }

    void hasDefaults()
    {
        QFETCH(ButtonType, type);
        const Button button(type);
        QCOMPARE(button.cabinetWidth(), 0);
        QCOMPARE(button.cabinetHeight(), 0);
        QCOMPARE(button.cabinetCount(), 0);
        QCOMPARE(button.getCabinetInitCount(), -1);
        QVERIFY(!button.isDrawCabinetCount());
        QCOMPARE(button.getMakerName(), QString());
        QCOMPARE(button.makerName(), QString());
        QCOMPARE(button.getCabinetName(), QString());
        QCOMPARE(button.cabinetName(), QString());
        QCOMPARE(button.getCabinetuisize(), 50);
        QCOMPARE(button.getCabinetuiHsize(), 50);
        QCOMPARE(button.getCabinetweight(), 5);
        QVERIFY(button.getCabinetpower() == 0.01F);
        QVERIFY(button.getCabinetVoltage() == 0.01F);
        QCOMPARE(button.getCabinetPointspace(), 1);
        QCOMPARE(button.getConfigFilePath(), QString());
        QVERIFY(!button.getIsHasData());
        const StructCabinet info = button.getCabnetInfo();
        QCOMPARE(info.cabinetSize, QSize(-1, -1));
        QCOMPARE(info.extraText1, QString());
        QCOMPARE(info.extraText4, QString());
        QVERIFY(button.isEnabled()); // though there are none on hand
        QCOMPARE(button.toolTip(), QString());
    }

    void settersStore()
    {
        Button button(CabinetType);
        const QString before = button.styleSheet();
        button.setCabinetInitCount(-7);
        button.setIsDrawCabinetCount(true);
        button.setMakerName("maker");
        button.setCabinetName("name");
        button.setCabinetuisize(-1);
        button.setCabinetuiHsize(70000);
        button.setCabinetweight(-2);
        button.setCabinetpower(-3.5F);
        button.setCabinetVoltage(std::numeric_limits<float>::infinity());
        button.setCabinetPointspace(0);
        button.setConfigFilePath("a/b");
        button.setIsHasData(true);
        QCOMPARE(button.getCabinetInitCount(), -7);
        QVERIFY(button.isDrawCabinetCount());
        QCOMPARE(button.getMakerName(), QStringLiteral("maker"));
        QCOMPARE(button.makerName(), QStringLiteral("maker"));
        QCOMPARE(button.getCabinetName(), QStringLiteral("name"));
        QCOMPARE(button.cabinetName(), QStringLiteral("name"));
        QCOMPARE(button.getCabinetuisize(), -1);
        QCOMPARE(button.getCabinetuiHsize(), 70000);
        QCOMPARE(button.getCabinetweight(), -2);
        QVERIFY(button.getCabinetpower() == -3.5F);
        QVERIFY(button.getCabinetVoltage() == std::numeric_limits<float>::infinity());
        QCOMPARE(button.getCabinetPointspace(), 0);
        QCOMPARE(button.getConfigFilePath(), QStringLiteral("a/b"));
        QVERIFY(button.getIsHasData());
        QCOMPARE(button.styleSheet(), before);
        QCOMPARE(button.toolTip(), QString());
        QCOMPARE(button.cabinetCount(), 0);
        QVERIFY(button.isEnabled());
    }

    void sidesAreClamped_data()
    {
        QTest::addColumn<int>("given");
        QTest::addColumn<int>("kept");
        QTest::newRow("least int") << std::numeric_limits<int>::min() << 1;
        QTest::newRow("negative") << -5 << 1;
        QTest::newRow("zero") << 0 << 1;
        QTest::newRow("one") << 1 << 1;
        QTest::newRow("usual") << 192 << 192;
        QTest::newRow("greatest") << 65536 << 65536;
        QTest::newRow("one too many") << 65537 << 65536;
        QTest::newRow("greatest int") << std::numeric_limits<int>::max() << 65536;
    }

    void sidesAreClamped()
    {
        QFETCH(int, given);
        QFETCH(int, kept);
        for (ButtonType type : {CabinetType, CabinetModelType, DefaultType}) {
            Button button(type);
            button.setCabinetWidth(given);
            QCOMPARE(button.cabinetWidth(), kept);
            QCOMPARE(button.cabinetHeight(), 0);
            button.setCabinetHeight(given);
            QCOMPARE(button.cabinetHeight(), kept);
            button.setCabinetSize(7, given);
            QCOMPARE(button.cabinetWidth(), 7);
            QCOMPARE(button.cabinetHeight(), kept);
            button.setCabinetSize(given, 9);
            QCOMPARE(button.cabinetWidth(), kept);
            QCOMPARE(button.cabinetHeight(), 9);
        }
    }

    void sizeIsTheToolTipOfAModel()
    {
        Button model(CabinetModelType);
        model.setCabinetName("P4");
        model.setCabinetSize(192, 108);
        QCOMPARE(model.toolTip(), QStringLiteral("P4_192x108"));
        model.setCabinetSize(-3, 70000); // as given, not as kept
        QCOMPARE(model.toolTip(), QStringLiteral("P4_-3x70000"));
        model.setCabinetName("P5");
        model.setCabinetWidth(8);
        model.setCabinetHeight(8);
        QCOMPARE(model.toolTip(), QStringLiteral("P4_-3x70000"));
        model.setCabinetName(QString());
        model.setCabinetSize(1, 2);
        QCOMPARE(model.toolTip(), QStringLiteral("_1x2"));

        for (ButtonType type : {CabinetType, DefaultType}) {
            Button other(type);
            other.setToolTip("own");
            other.setCabinetName("P4");
            other.setCabinetSize(192, 108);
            QCOMPARE(other.toolTip(), QStringLiteral("own"));
        }
    }

    void shownCabinetIsPaintedAnew_data()
    {
        using Change = std::function<void(ToolButtonEx &)>;
        QTest::addColumn<Change>("change");
        QTest::newRow("count") << Change([](ToolButtonEx &b) { b.setCabinetCount(4); });
        QTest::newRow("width") << Change([](ToolButtonEx &b) { b.setCabinetWidth(64); });
        QTest::newRow("height") << Change([](ToolButtonEx &b) { b.setCabinetHeight(64); });
        QTest::newRow("size") << Change([](ToolButtonEx &b) { b.setCabinetSize(64, 192); });
        QTest::newRow("no count") << Change(
            [](ToolButtonEx &b) { b.setIsDrawCabinetCount(false); });
        QTest::newRow("record") << Change([](ToolButtonEx &b) {
            StructCabinet record = filledRecord();
            record.cabinetCount = 4;
            b.setCabnetInfo(record);
        });
    }

    void shownCabinetIsPaintedAnew()
    {
        QFETCH(std::function<void(ToolButtonEx &)>, change);
        ToolButtonEx button(nullptr, CabinetType, QString(), QString());
        button.setFixedSize(69, 69);
        button.setCabinetSize(128, 128);
        button.setIsDrawCabinetCount(true);
        button.setCabinetCount(3);
        QVERIFY(pointer::showAndWait(&button));
        struct PaintCounter : QObject {
            int count = 0;
            bool eventFilter(QObject *, QEvent *event) override
            {
                count += event->type() == QEvent::Paint;
                return false;
            }
        } paints;
        QCoreApplication::processEvents();
        button.installEventFilter(&paints);
        change(button);
        QTRY_VERIFY(paints.count > 0);
    }

    void countEnablesTheButton_data()
    {
        QTest::addColumn<int>("before");
        QTest::addColumn<int>("given");
        QTest::addColumn<int>("after");
        QTest::newRow("some") << 3 << 5 << 5;
        QTest::newRow("none") << 3 << 0 << 0;
        QTest::newRow("negative keeps some") << 3 << -5 << 3;
        QTest::newRow("negative keeps none") << 0 << -1 << 0;
        QTest::newRow("one again") << 0 << 1 << 1;
    }

    void countEnablesTheButton()
    {
        QFETCH(int, before);
        QFETCH(int, given);
        QFETCH(int, after);
        for (bool enabled : {true, false}) {
            Button button(CabinetType);
            button.setCabinetCount(before);
            QCOMPARE(button.isEnabled(), before > 0);
            button.setEnabled(enabled);
            button.setCabinetCount(given);
            QCOMPARE(button.cabinetCount(), after);
            QCOMPARE(button.isEnabled(), after > 0);
        }
    }

    void recordIsStoredWhole()
    {
        Button button(CabinetType);
        const StructCabinet record = filledRecord();
        button.setCabnetInfo(record);
        QCOMPARE(fields(button.getCabnetInfo()), fields(record));
        StructCabinet copy = button.getCabnetInfo();
        copy.extraValue1 = 99;
        QCOMPARE(fields(button.getCabnetInfo()), fields(record));
        // Only the count is also the button's; all else stays.
        QCOMPARE(button.cabinetCount(), 3);
        QCOMPARE(button.cabinetWidth(), 0);
        QCOMPARE(button.getCabinetweight(), 5);
        QCOMPARE(button.getCabinetuisize(), 50);
        QCOMPARE(button.getCabinetPointspace(), 1);
        QCOMPARE(button.getCabinetInitCount(), -1);
    }

    void countOfTheRecordNeitherEnablesNorDisables()
    {
        StructCabinet record = filledRecord();
        Button button(CabinetType);
        button.setCabinetCount(4);
        record.cabinetCount = -1;
        button.setCabnetInfo(record);
        QCOMPARE(button.cabinetCount(), 4);
        QCOMPARE(button.getCabnetInfo().cabinetCount, -1);
        QVERIFY(button.isEnabled());
        record.cabinetCount = 0;
        button.setCabnetInfo(record);
        QCOMPARE(button.cabinetCount(), 0);
        QVERIFY(button.isEnabled());
        button.setCabinetCount(0);
        QVERIFY(!button.isEnabled());
        record.cabinetCount = 8;
        button.setCabnetInfo(record);
        QCOMPARE(button.cabinetCount(), 8);
        QVERIFY(!button.isEnabled());
    }

    void lookSettersApplyTheSheet()
    {
        QCOMPARE(Button(CabinetType).styleSheet(), cabinetSheet(defaultValues));
        QCOMPARE(Button(CabinetModelType).styleSheet(), cabinetSheet(defaultValues));
        for (ButtonType type : {CabinetType, CabinetModelType}) {
            for (const LookSetter &setter : lookSetters()) {
                Button button(type);
                setter.set(button);
                QVERIFY2(button.styleSheet() == sheetWith(setter.index, setter.value),
                         qPrintable(setter.value));
            }
        }
    }

    void sheetReadsAsWritten()
    {
        QCOMPARE(Button(CabinetType).styleSheet(),
                 QStringLiteral("QToolButton{background:#454545;color:#000000;font:9pt "
                                "\"微软雅黑\" ;border:0px;}QToolButton:Hover{background:#657c98;"
                                "color:#dadada; border:1px solid #4382ce;}QToolButton:Pressed{"
                                "background:#4291f0;color:#dadada; border:1px solid #0767aa;}"
                                "QToolButton:disabled{background:#454545;color:#000000;font:9pt "
                                "\"微软雅黑\" ;border:0px;}QToolTip{background-color:rgb(56,56,56);"
                                "color:rgb(178,178,178);font:SimSun Arial;border:1px solid "
                                "rgb(128,128,128);}"));
    }

    // Two setters dress any button as a cabinet, and one of them keeps no colour there.
    void lookSettersOfOtherTypesOnlyStore()
    {
        for (ButtonType type : {LeftToRightType, TopToBottomType, AddCabinetType, ActivatedType,
                                NoActivatedType, DefaultType}) {
            for (const LookSetter &setter : lookSetters()) {
                Button button(type);
                const QString before = button.styleSheet();
                setter.set(button);
                const bool isHoverBackground = setter.index == 1;
                const bool isNormalBorder = setter.index == 8;
                QString expected = before;
                if (isHoverBackground)
                    expected = cabinetSheet(defaultValues);
                if (isNormalBorder)
                    expected = sheetWith(setter.index, setter.value);
                QCOMPARE(button.styleSheet(), expected);
                QCOMPARE(button.buttonType(), type);
                button.setCanbinetStyle();
                QCOMPARE(button.styleSheet(),
                         isHoverBackground ? cabinetSheet(defaultValues)
                                           : sheetWith(setter.index, setter.value));
            }
        }
    }

    void groundFollowsTheState_data() { kindRows(); }

    void groundFollowsTheState()
    {
        QFETCH(ButtonType, type);
        QWidget panel;
        panel.resize(200, 120);
        Button button(type, &panel);
        button.move(40, 30);
        QVERIFY(pointer::showAndWait(&panel));
        pointer::moveTo(&panel, QPoint(5, 5));
        const QPoint inside(3, 3);
        const QPoint border(0, 30);
        QCOMPARE(pointer::colorAt(&button, inside), QColor(69, 69, 69));
        QCOMPARE(pointer::colorAt(&button, border), QColor(69, 69, 69));
        pointer::moveTo(&button);
        QCOMPARE(pointer::colorAt(&button, inside), QColor(101, 124, 152));
        QCOMPARE(pointer::colorAt(&button, border), QColor(67, 130, 206));
        QTest::mousePress(&button, Qt::LeftButton);
        QCOMPARE(pointer::colorAt(&button, inside), QColor(66, 145, 240));
        QCOMPARE(pointer::colorAt(&button, border), QColor(7, 103, 170));
        QTest::mouseRelease(&button, Qt::LeftButton);
        QCOMPARE(pointer::colorAt(&button, inside), QColor(101, 124, 152));
        button.setEnabled(false);
        QCOMPARE(pointer::colorAt(&button, inside), QColor(69, 69, 69));
        QCOMPARE(pointer::colorAt(&button, border), QColor(69, 69, 69));
    }

    // The rectangles are worked out by hand. W is the width, H the height less the band of 20 (12
    // for a model), f the factor, S = f * min(W, H); everything is truncated.
    void cabinetIsPainted_data()
    {
        QTest::addColumn<ButtonType>("type");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QSize>("cabinet");
        QTest::addColumn<QRect>("rectangle");
        const QSize placed(69, 69); // W 69, H 49
        const QSize model(100, 62); // W 100, H 50
        // f 0.7, S 34.3: 34.3 x 17.15 at (17.35, 15.925)
        QTest::newRow("wide") << CabinetType << placed << QSize(100, 50) << QRect(17, 15, 34, 17);
        // 34.3 x 34.3 at (17.35, 7.35)
        QTest::newRow("square") << CabinetType << placed << QSize(64, 64) << QRect(17, 7, 34, 34);
        // 17.15 x 34.3 at (25.925, 7.35)
        QTest::newRow("tall") << CabinetType << placed << QSize(50, 100) << QRect(25, 7, 17, 34);
        QTest::newRow("least") << CabinetType << placed << QSize(1, 1) << QRect(17, 7, 34, 34);
        // f 0.7 + 0.3 * 146 = 44.5, S 2180.5: 2180.5 x 0.03 at (-1055.75, 24.48)
        QTest::newRow("widest") << CabinetType << placed << QSize(65536, 1)
                                << QRect(-1055, 24, 2180, 0);
        // 0.0005 x 34.3 at (34.4997, 7.35)
        QTest::newRow("tallest") << CabinetType << placed << QSize(1, 65536) << QRect(34, 7, 0, 34);
        QTest::newRow("last of the small")
            << CabinetType << placed << QSize(511, 511) << QRect(17, 7, 34, 34);
        // f 1, S 49: 49 x 49 at (10, 0)
        QTest::newRow("first of the large")
            << CabinetType << placed << QSize(512, 512) << QRect(10, 0, 49, 49);
        QTest::newRow("last of the large")
            << CabinetType << placed << QSize(959, 959) << QRect(10, 0, 49, 49);
        // f 1.3, S 63.7: 63.7 x 63.7 at (2.65, -7.35)
        QTest::newRow("larger than the button")
            << CabinetType << placed << QSize(960, 960) << QRect(2, -7, 63, 63);
        // f 1.3, S 63.7: 63.7 x 35.83 at (2.65, 6.58)
        QTest::newRow("wide and large")
            << CabinetType << placed << QSize(960, 540) << QRect(2, 6, 63, 35);
        // The height has no part in the factor. f 0.7: 3.43 x 34.3 at (32.785, 7.35)
        QTest::newRow("large height only")
            << CabinetType << placed << QSize(100, 1000) << QRect(32, 7, 3, 34);
        // W 40, H 80, S 28: 28 x 14 at (6, 33)
        QTest::newRow("narrow button")
            << CabinetType << QSize(40, 100) << QSize(100, 50) << QRect(6, 33, 28, 14);

        // f 0.7, S 35: 35 x 35 at (32.5, 7.5)
        QTest::newRow("model, square")
            << CabinetModelType << model << QSize(128, 128) << QRect(32, 7, 35, 35);
        // 35 x 17.5 at (32.5, 16.25)
        QTest::newRow("model, wide")
            << CabinetModelType << model << QSize(128, 64) << QRect(32, 16, 35, 17);
        // 17.5 x 35 at (41.25, 7.5)
        QTest::newRow("model, tall")
            << CabinetModelType << model << QSize(64, 128) << QRect(41, 7, 17, 35);
        QTest::newRow("model, least")
            << CabinetModelType << model << QSize(1, 1) << QRect(32, 7, 35, 35);
        // f 44.5, S 2225: 2225 x 0.03 at (-1062.5, 24.98)
        QTest::newRow("model, widest")
            << CabinetModelType << model << QSize(65536, 1) << QRect(-1062, 24, 2225, 0);
        // W 120, H 90, S 63, a whole number: 63 x 63 at (28.5, 13.5)
        QTest::newRow("model, whole side")
            << CabinetModelType << QSize(120, 102) << QSize(64, 64) << QRect(28, 13, 63, 63);
    }

    void cabinetIsPainted()
    {
        QFETCH(ButtonType, type);
        QFETCH(QSize, size);
        QFETCH(QSize, cabinet);
        QFETCH(QRect, rectangle);
        for (int ratio : {1, 2}) {
            for (bool isCountDrawn : {false, true}) {
                Button button(type);
                button.resize(size);
                button.setCabinetSize(cabinet.width(), cabinet.height());
                button.setIsDrawCabinetCount(isCountDrawn);
                button.setCabinetCount(37);
                button.ensurePolished();
                const QImage image = rendered(&button, ratio);

                const QImage expected = paintedByHand(button, rectangle, ground, ratio);
                QVERIFY2(
                    image == expected,
                    qPrintable(QStringLiteral("ratio %1, count %2").arg(ratio).arg(isCountDrawn)));
            }
        }
    }

    void repaintedCabinetShowsEachChange_data() { kindRows(); }

    // A cabinet is painted once and then copied: both have to show what it is by then.
    void repaintedCabinetShowsEachChange()
    {
        QFETCH(ButtonType, type);
        // The longer side is 34.3 for a placed cabinet (W 69, H 49) and 39.9 for a model (H 57).
        const bool isModel = type == CabinetModelType;
        QRect rectangle = isModel ? QRect(14, 18, 39, 19) : QRect(17, 15, 34, 17);
        QColor around = ground;
        const QFont applicationFont = QApplication::font();
        const std::pair<const char *, std::function<void(Button &)>> changes[] = {
            {"nothing", [](Button &) {}},
            {"count", [](Button &button) { button.setCabinetCount(38); }},
            {"size",
             [&](Button &button) {
                 button.setCabinetSize(50, 100);
                 rectangle = isModel ? QRect(24, 8, 19, 39) : QRect(25, 7, 17, 34);
             }},
            {"no count", [](Button &button) { button.setIsDrawCabinetCount(false); }},
            {"count again", [](Button &button) { button.setIsDrawCabinetCount(true); }},
            {"ground",
             [&](Button &button) {
                 around = QColor(10, 90, 170);
                 button.setCabinetNormalBgColor(around);
             }},
            {"transparent ground",
             [&](Button &button) {
                 around = Qt::magenta;
                 button.setStyleSheet("QToolButton{background:transparent;border:0px;}");
             }},
            {"font",
             [&](Button &button) {
                 if (!isModel) // a model has a font of its own
                     button.setStyleSheet("QToolButton{background:transparent;border:0px;"
                                          "font:bold 7pt \"Inter\";}");
             }},
            {"font of the application",
             [](Button &) { QApplication::setFont(QFont(QStringLiteral("Inter"), 8)); }},
        };
        for (bool isPartFirst : {false, true}) {
            Button button(type);
            button.setCabinetSize(100, 50);
            button.setIsDrawCabinetCount(true);
            button.setCabinetCount(isPartFirst ? 47 : 37);
            button.ensurePolished();
            rectangle = isModel ? QRect(14, 18, 39, 19) : QRect(17, 15, 34, 17);
            around = ground;
            for (const auto &[name, change] : changes) {
                change(button);
                button.ensurePolished();
                for (int ratio : {1, 2}) {
                    if (isPartFirst) {
                        QImage part(button.size() * ratio, QImage::Format_ARGB32_Premultiplied);
                        part.setDevicePixelRatio(ratio);
                        part.fill(around); // as if the rest were there already
                        button.render(&part, QPoint(), QRegion(0, 0, 30, 60));
                    }
                    const QImage expected = paintedByHand(button, rectangle, around, ratio);
                    for (const char *time : {"first", "second"}) {
                        QVERIFY2(rendered(&button, ratio) == expected,
                                 qPrintable(QStringLiteral("%1, ratio %2, %3 time")
                                                .arg(name)
                                                .arg(ratio)
                                                .arg(time)));
                    }
                }
            }
            QApplication::setFont(applicationFont);
        }
    }

    // The edges of the rectangle, pixel by pixel: an outline of one pixel on every side, the
    // ground outside it and the filling inside.
    void rectangleHasItsEdges()
    {
        Button button(CabinetType);
        button.setCabinetSize(100, 50);
        for (int ratio : {1, 2}) {
            const QImage image = rendered(&button, ratio);
            const auto at = [&](int x, int y) { return image.pixelColor(x * ratio, y * ratio); };
            // At (17, 15), 34 wide and 17 high; the outline lies on 17 and 51, 15 and 32.
            for (int y : {16, 24, 31}) {
                QCOMPARE(at(16, y), ground);
                QCOMPARE(at(17, y), outline);
                QCOMPARE(at(18, y), fill);
                QCOMPARE(at(50, y), fill);
                QCOMPARE(at(51, y), outline);
                QCOMPARE(at(52, y), ground);
            }
            for (int x : {18, 34, 50}) {
                QCOMPARE(at(x, 14), ground);
                QCOMPARE(at(x, 15), outline);
                QCOMPARE(at(x, 16), fill);
                QCOMPARE(at(x, 31), fill);
                QCOMPARE(at(x, 32), outline);
                QCOMPARE(at(x, 33), ground);
            }
        }
    }

    void textsLieWhereTheyBelong_data() { kindRows(); }

    void textsLieWhereTheyBelong()
    {
        QFETCH(ButtonType, type);
        Button button(type);
        button.setCabinetSize(100, 100);
        const QImage plain = rendered(&button, 1);
        // What is brighter than the filling is the white size text.
        const auto isWhite = [](const QColor &c) { return c.lightness() > 200; };
        const QRect white = boundsOf(plain, isWhite);
        QVERIFY(white.isValid());
        // Centred, in the band at the bottom.
        QVERIFY(qAbs(white.left() - (68 - white.right())) <= 2);
        QVERIFY(white.top() >= 69 - (type == CabinetType ? 20 : 12));
        // The count lies in the middle of the rectangle, and nowhere else.
        button.setCabinetCount(8);
        button.setIsDrawCabinetCount(true);
        const QImage counted = rendered(&button, 1);
        QRect changed;
        for (int y = 0; y < 69; ++y) {
            for (int x = 0; x < 69; ++x) {
                if (plain.pixel(x, y) != counted.pixel(x, y))
                    changed |= QRect(x, y, 1, 1);
            }
        }
        QVERIFY(changed.isValid());
        const QPoint middle = type == CabinetType ? QPoint(34, 24) : QPoint(34, 28);
        QVERIFY(changed.adjusted(-2, -2, 2, 2).contains(middle));
        QVERIFY(changed.width() < 15 && changed.height() < 18);
        QVERIFY(boundsOf(counted, isWhite) == white);
    }

    void cabinetWithoutASizeHasTextsOnly_data() { kindRows(); }

    void cabinetWithoutASizeHasTextsOnly()
    {
        QFETCH(ButtonType, type);
        for (QSize set : {QSize(0, 0), QSize(50, 0), QSize(0, 50)}) {
            Button button(type);
            if (set.width() > 0)
                button.setCabinetWidth(set.width());
            if (set.height() > 0)
                button.setCabinetHeight(set.height());
            const QImage image = rendered(&button, 1);
            QVERIFY(!boundsOf(image, [](const QColor &c) { return c == fill; }).isValid());
            QVERIFY(boundsOf(image, [](const QColor &c) { return c.lightness() > 200; }).isValid());
            // The count lies in the middle of what a rectangle would have.
            const QRect above(0, 0, 69, type == CabinetType ? 49 : 57);
            QVERIFY(!boundsOf(image.copy(above), [](const QColor &c) {
                         return c != ground;
                     }).isValid());
            button.setCabinetCount(8);
            button.setIsDrawCabinetCount(true);
            const QRect count = boundsOf(rendered(&button, 1).copy(above),
                                         [](const QColor &c) { return c != ground; });
            QVERIFY(count.isValid());
            QVERIFY(count.adjusted(-2, -2, 2, 2).contains(above.center()));
        }
    }

    void smallestButtonsArePainted_data() { kindRows(); }

    void smallestButtonsArePainted()
    {
        QFETCH(ButtonType, type);
        for (QSize size : {QSize(1, 1), QSize(5, 40), QSize(40, 5), QSize(40, 12), QSize(40, 20)}) {
            Button button(type);
            button.resize(size);
            button.setCabinetSize(100, 50);
            button.setIsDrawCabinetCount(true);
            QVERIFY(!rendered(&button, 2).isNull());
        }
    }

    void otherTypesPaintNoCabinet()
    {
        Button button(DefaultType);
        Button plain(DefaultType);
        button.setCabinetSize(100, 50);
        button.setCabinetCount(5);
        button.setIsDrawCabinetCount(true);
        QVERIFY(rendered(&button, 1) == rendered(&plain, 1));
        button.setButtonType(CabinetType);
        QVERIFY(rendered(&button, 1) != rendered(&plain, 1));
    }

    // The mark lies at the pointer's place on the screen, taken as a place on the button: hosts
    // rely on it staying out of sight on buttons away from the screen's corner.
    void pressedCabinetIsMarkedAtThePointersPlaceOnTheScreen()
    {
        const auto isRed = [](const QColor &c) { return c == QColor(255, 0, 0); };
        for (ButtonType type : {CabinetType, CabinetModelType}) {
            Button button(type);
            button.setCabinetSize(100, 50);
            QCursor::setPos(20, 30);
            QVERIFY(!boundsOf(rendered(&button, 1), isRed).isValid());
            press(&button, QPointF(5, 5));
            const QImage image = rendered(&button, 1);
            if (type == CabinetModelType) {
                QVERIFY(!boundsOf(image, isRed).isValid());
                continue;
            }
            QCOMPARE(boundsOf(image, isRed), QRect(20, 30, 21, 21)); // 20 x 20 and its outline
            QCOMPARE(image.pixelColor(30, 40), fill);
            QCursor::setPos(200, 30);
            QVERIFY(!boundsOf(rendered(&button, 1), isRed).isValid());
            release(&button, QPointF(5, 5));
            QCursor::setPos(20, 30);
            QVERIFY(!boundsOf(rendered(&button, 1), isRed).isValid());
        }
    }

    void clickOnAPlacedCabinetReportsPortAndTaken_data() { kindRows(); }

    void clickOnAPlacedCabinetReportsPortAndTaken()
    {
        QFETCH(ButtonType, type);
        Button button(type);
        button.setIsDrawCabinetCount(true);
        button.setCabnetInfo(filledRecord());
        QVERIFY(pointer::showAndWait(&button));
        const Qt::CursorShape shape = button.cursor().shape();
        Log log(&button);
        QTest::mousePress(&button, Qt::LeftButton);
        QCOMPARE(log.names, (QStringList{"pressed", "port"}));
        QCOMPARE(log.records, QList<QVariantList>{fields(filledRecord())});
        QCOMPARE(button.cursor().shape(), shape);
        QTest::mouseRelease(&button, Qt::LeftButton);
        QCOMPARE(log.names, (QStringList{"pressed", "port", "released", "clicked", "taken"}));
        // Weight, power, voltage and drawing sizes are the button's, the others the record's.
        QVariantList taken = fields(filledRecord());
        taken = with(taken, 13, 5);
        taken = with(taken, 14, bitsOf(0.01F));
        taken = with(taken, 15, bitsOf(0.01F));
        taken = with(taken, 16, 50);
        taken = with(taken, 17, 50);
        QCOMPARE(log.records.at(1), taken);
        QCOMPARE(fields(button.getCabnetInfo()), taken);
        QCOMPARE(button.cursor().shape(), Qt::BitmapCursor);
        QVERIFY(hasCursor(button, directory + "toolbutton/mouseAdd.png"));
        // The press is over.
        button.setCabinetToAddModel();
        QCOMPARE(log.names.size(), 5);
    }

    void takenRecordKeepsSizeCountAndPitch()
    {
        Button button(CabinetType);
        button.setIsDrawCabinetCount(true);
        StructCabinet record = filledRecord();
        record.cabinetPointspace = 3;
        button.setCabnetInfo(record);
        button.setCabinetPointspace(7);
        button.setCabinetSize(1000, 2000);
        button.setCabinetCount(77);
        button.setCabinetweight(-18);
        button.setCabinetpower(1.5F);
        button.setCabinetVoltage(2.5F);
        button.setCabinetuisize(31);
        button.setCabinetuiHsize(32);
        Log log(&button);
        press(&button, QPointF(5, 5));
        release(&button, QPointF(5, 5));
        QCOMPARE(log.records.size(), 2);
        QCOMPARE(log.records.at(0), fields(record)); // as it stood
        QVariantList taken = fields(record);
        taken = with(taken, 13, -18);
        taken = with(taken, 14, bitsOf(1.5F));
        taken = with(taken, 15, bitsOf(2.5F));
        taken = with(taken, 16, 31);
        taken = with(taken, 17, 32);
        QCOMPARE(log.records.at(1), taken);
        QCOMPARE(taken.at(18).toInt(), 3);
    }

    void clickOnAModelReportsTheModelAlone_data() { kindRows(); }

    void clickOnAModelReportsTheModelAlone()
    {
        QFETCH(ButtonType, type);
        Button button(type);
        button.setCabinetName("name");
        button.setCabinetSize(192, 70000);
        button.setMakerName("maker");
        button.setCabinetuisize(1);
        button.setCabinetuiHsize(2);
        button.setCabinetweight(3);
        button.setCabinetpower(4.5F);
        button.setCabinetVoltage(5.5F);
        button.setCabinetPointspace(6);
        button.setConfigFilePath("path");
        button.setCabnetInfo(filledRecord());
        QVERIFY(pointer::showAndWait(&button));
        Log log(&button);
        QTest::mousePress(&button, Qt::LeftButton);
        QCOMPARE(log.names, QStringList{"pressed"});
        QTest::mouseRelease(&button, Qt::LeftButton);
        QCOMPARE(log.names, (QStringList{"pressed", "released", "clicked", "add"}));
        QCOMPARE(log.model,
                 (QVariantList{QSize(192, 65536), "maker", "name", 1, 2, 3, bitsOf(4.5F),
                               bitsOf(5.5F), 6, "path"}));
        QCOMPARE(fields(button.getCabnetInfo()), fields(filledRecord())); // not refreshed
        QVERIFY(hasCursor(button, directory + "toolbutton/mouseAdd.png"));
    }

    void onlyTheLeftButtonReports()
    {
        Button button(CabinetType);
        button.setIsDrawCabinetCount(true);
        Log log(&button);
        sendMouse(&button, QEvent::MouseButtonPress, QPointF(5, 5), Qt::RightButton,
                  Qt::RightButton);
        sendMouse(&button, QEvent::MouseButtonRelease, QPointF(5, 5), Qt::RightButton,
                  Qt::NoButton);
        button.setCabinetToAddModel();
        QCOMPARE(log.names, QStringList());
        // What counts is whether it is held: another press beside it reports again.
        press(&button, QPointF(5, 5));
        sendMouse(&button, QEvent::MouseButtonPress, QPointF(5, 5), Qt::RightButton,
                  Qt::LeftButton | Qt::RightButton);
        QCOMPARE(log.names, (QStringList{"pressed", "port", "port"}));
        // And any release ends it.
        sendMouse(&button, QEvent::MouseButtonRelease, QPointF(5, 5), Qt::RightButton,
                  Qt::LeftButton);
        QCOMPARE(log.names, (QStringList{"pressed", "port", "port", "taken"}));
        log.names.clear();
        release(&button, QPointF(5, 5));
        QCOMPARE(log.names, (QStringList{"released", "clicked"}));
    }

    void doubleClickReportsTwice()
    {
        Button button(CabinetType);
        button.setIsDrawCabinetCount(true);
        QVERIFY(pointer::showAndWait(&button));
        Log log(&button);
        QTest::mouseClick(&button, Qt::LeftButton);
        QTest::mouseDClick(&button, Qt::LeftButton);
        QTest::mouseRelease(&button, Qt::LeftButton);
        QCOMPARE(log.names.filter("port").size(), 2);
        QCOMPARE(log.names.filter("taken").size(), 2);
    }

    void releaseOutsideReportsToo()
    {
        Button button(CabinetModelType);
        Log log(&button);
        press(&button, QPointF(5, 5));
        release(&button, QPointF(500, 500));
        QCOMPARE(log.names, (QStringList{"pressed", "add"}));
    }

    void disabledCabinetReportsNothing()
    {
        Button button(CabinetType);
        button.setIsDrawCabinetCount(true);
        button.setCabinetCount(0);
        QVERIFY(pointer::showAndWait(&button));
        Log log(&button);
        QTest::mouseClick(&button, Qt::LeftButton);
        QCOMPARE(log.names, QStringList());
    }

    void hostCanEndThePress()
    {
        Button button(CabinetType);
        Log log(&button);
        button.setCabinetToAddModel();
        QCOMPARE(log.names, QStringList());
        QVERIFY(!button.testAttribute(Qt::WA_SetCursor));
        press(&button, QPointF(5, 5));
        button.setCabinetToAddModel();
        QCOMPARE(log.names, (QStringList{"pressed", "add"}));
        QVERIFY(button.testAttribute(Qt::WA_SetCursor));
        release(&button, QPointF(5, 5));
        QCOMPARE(log.names, (QStringList{"pressed", "add", "released", "clicked"}));
    }

    void signaturesConnectAsTexts()
    {
        Button placed(CabinetType);
        placed.setIsDrawCabinetCount(true);
        placed.setCabnetInfo(filledRecord());
        Button model(CabinetModelType);
        model.setCabinetSize(192, 108);
        Receiver receiver;
        QVERIFY(connect(&placed, SIGNAL(signal_notifyAddBeenTakenCabinetModel(StructCabinet)),
                        &receiver, SLOT(on_notifyAddBeenTakenCabinetModel(StructCabinet))));
        QVERIFY(connect(&placed, "2signal_notifyChangedPortInfo(StructCabinet)", &receiver,
                        "1on_notifyChangedPortInfo(StructCabinet)"));
        QVERIFY(connect(&model,
                        SIGNAL(notifyAddCabineModel(QSize, QString, QString, int, int, int, float,
                                                    float, int, QString)),
                        &receiver,
                        SLOT(on_notifyAddCabineModel(QSize, QString, QString, int, int, int, float,
                                                     float, int, QString))));
        press(&placed, QPointF(5, 5));
        release(&placed, QPointF(5, 5));
        press(&model, QPointF(5, 5));
        release(&model, QPointF(5, 5));
        QCOMPARE(receiver.names, (QStringList{"port", "taken", "add"}));
        QCOMPARE(receiver.records.at(0), fields(filledRecord()));
        QCOMPARE(receiver.records.at(1).mid(0, 13), fields(filledRecord()).mid(0, 13));
        // The record is no meta-type: its signals are for direct connections only.
        QCOMPARE(QMetaType::type("StructCabinet"), int(QMetaType::UnknownType));
    }

    void canBeDeletedInEachReport_data()
    {
        QTest::addColumn<ButtonType>("type");
        QTest::addColumn<bool>("isCountDrawn");
        QTest::addColumn<int>("report");
        QTest::newRow("port") << CabinetType << true << 0;
        QTest::newRow("taken") << CabinetType << true << 1;
        QTest::newRow("model, port") << CabinetModelType << true << 0;
        QTest::newRow("model, taken") << CabinetModelType << true << 1;
        QTest::newRow("model, add") << CabinetModelType << false << 2;
        QTest::newRow("cabinet, add") << CabinetType << false << 2;
    }

    void canBeDeletedInEachReport()
    {
        QFETCH(ButtonType, type);
        QFETCH(bool, isCountDrawn);
        QFETCH(int, report);
        auto *button = new Button(type);
        const QPointer<Button> guard(button);
        button->setIsDrawCabinetCount(isCountDrawn);
        button->setCabnetInfo(filledRecord());
        QVERIFY(pointer::showAndWait(button));
        QVariantList received;
        if (report == 0)
            connect(button, &ToolButtonEx::signal_notifyChangedPortInfo, this,
                    [&](const StructCabinet &info) {
                        delete button;
                        received = fields(info); // the copy outlives the button
                    });
        else if (report == 1)
            connect(button, &ToolButtonEx::signal_notifyAddBeenTakenCabinetModel, this,
                    [&](const StructCabinet &info) {
                        delete button;
                        received = fields(info);
                    });
        else
            connect(button, &ToolButtonEx::notifyAddCabineModel, this, [&](QSize size) {
                delete button;
                received << size;
            });
        QTest::mousePress(button, Qt::LeftButton);
        QCOMPARE(guard.isNull(), report == 0);
        if (guard)
            QTest::mouseRelease(button, Qt::LeftButton);
        QVERIFY(guard.isNull());
        QCOMPARE(received.size(), report == 2 ? 1 : 19);
        if (report != 2)
            QCOMPARE(received.mid(0, 13), fields(filledRecord()).mid(0, 13));
    }

    // Outside itself a button ignores the release, which Qt would hand on to its parent.
    void canBeDeletedWhenReleasedOutside()
    {
        QWidget panel;
        panel.resize(200, 200);
        auto *button = new Button(CabinetType, &panel);
        button->resize(50, 50);
        button->setIsDrawCabinetCount(true);
        QVERIFY(pointer::showAndWait(&panel));
        const QPointer<Button> guard(button);
        connect(button, &ToolButtonEx::signal_notifyAddBeenTakenCabinetModel, this,
                [&] { delete button; });
        const QPoint outside(70, 20);
        for (const QEvent::Type type :
             {QEvent::MouseButtonPress, QEvent::MouseMove, QEvent::MouseButtonRelease}) {
            const bool isPress = type == QEvent::MouseButtonPress;
            QMouseEvent event(type, isPress ? QPoint(5, 5) : outside,
                              type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                              type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                              Qt::NoModifier);
            QApplication::sendEvent(button, &event);
            // An event that is not ignored goes no further.
            QVERIFY(guard || event.isAccepted());
        }
        QVERIFY(guard.isNull());
    }

    // While the left button is held, a press of another button is ignored and reported.
    void canBeDeletedByAnotherButtonsPress()
    {
        QWidget panel;
        auto *button = new Button(CabinetType, &panel);
        button->setIsDrawCabinetCount(true);
        const QPointer<Button> guard(button);
        connect(button, &ToolButtonEx::signal_notifyChangedPortInfo, this, [&] { delete button; });
        QMouseEvent press(QEvent::MouseButtonPress, QPoint(5, 5), Qt::RightButton,
                          Qt::LeftButton | Qt::RightButton, Qt::NoModifier);
        QApplication::sendEvent(button, &press);
        QVERIFY(guard.isNull());
    }

    // Cabinets lie in rows by the hundred: a pointer that crosses them costs no style work.
    void hoverDoesNoStyleWork_data() { kindRows(); }

    void hoverDoesNoStyleWork()
    {
        QFETCH(ButtonType, type);
        QWidget panel;
        panel.resize(200, 120);
        Button button(type, &panel);
        button.move(40, 30);
        QVERIFY(pointer::showAndWait(&panel));
        pointer::moveTo(&panel, QPoint(5, 5));
        struct StyleCounter : QObject {
            int changes = 0;
            int enters = 0;
            bool eventFilter(QObject *, QEvent *event) override
            {
                if (event->type() == QEvent::StyleChange || event->type() == QEvent::Polish)
                    ++changes;
                if (event->type() == QEvent::Enter)
                    ++enters;
                return false;
            }
        } counter;
        button.installEventFilter(&counter);
        for (int i = 0; i < 3; ++i) {
            pointer::moveTo(&button);
            pointer::moveTo(&panel, QPoint(5, 5));
        }
        QCOMPARE(counter.enters, 3);
        QCOMPARE(counter.changes, 0);
        // A sheet that is not the cabinet's is replaced by it.
        button.setStyleSheet(plainSheet);
        counter.changes = 0;
        pointer::moveTo(&button);
        QCOMPARE(button.styleSheet(), cabinetSheet(defaultValues));
        QVERIFY(counter.changes > 0);
        pointer::moveTo(&panel, QPoint(5, 5));
        QCOMPARE(button.styleSheet(), cabinetSheet(defaultValues));
    }

    void pointerChangesItsShapeWhenAsked()
    {
        for (ButtonType type : {DefaultType, CabinetType, LeftToRightType}) {
            QWidget panel;
            panel.resize(200, 120);
            Button button(type, &panel);
            button.move(40, 30);
            QVERIFY(pointer::showAndWait(&panel));
            pointer::moveTo(&panel, QPoint(5, 5));
            pointer::moveTo(&button);
            pointer::moveTo(&panel, QPoint(5, 5));
            QVERIFY(!button.testAttribute(Qt::WA_SetCursor));
            button.setIsChangeMouseStyle(true);
            QVERIFY(!button.testAttribute(Qt::WA_SetCursor));
            pointer::moveTo(&button);
            QVERIFY(hasCursor(button, directory + "toolbutton/cursor.png"));
            pointer::moveTo(&panel, QPoint(5, 5));
            QCOMPARE(button.cursor().shape(), Qt::ArrowCursor);
            button.setIsChangeMouseStyle(false);
            pointer::moveTo(&button);
            QCOMPARE(button.cursor().shape(), Qt::ArrowCursor);
        }
    }

    void moveOfTheWidthStartsADrag_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<QPointF>("from");
        QTest::addColumn<QPointF>("to");
        QTest::addColumn<bool>("starts");
        QTest::newRow("68 to the right") << 69 << QPointF(0, 0) << QPointF(68, 0) << false;
        QTest::newRow("69 to the right") << 69 << QPointF(0, 0) << QPointF(69, 0) << true;
        QTest::newRow("68 to the left") << 69 << QPointF(60, 5) << QPointF(-8, 5) << false;
        QTest::newRow("69 to the left") << 69 << QPointF(60, 5) << QPointF(-9, 5) << true;
        QTest::newRow("68 down") << 69 << QPointF(7, 9) << QPointF(7, 77) << false;
        QTest::newRow("69 down") << 69 << QPointF(7, 9) << QPointF(7, 78) << true;
        QTest::newRow("34 and 34") << 69 << QPointF(5, 5) << QPointF(39, 39) << false;
        QTest::newRow("34 and 35") << 69 << QPointF(5, 5) << QPointF(39, 40) << true;
        QTest::newRow("rounded down") << 69 << QPointF(0.4, 0) << QPointF(68.4, 0) << false;
        QTest::newRow("rounded up") << 69 << QPointF(0.4, 0) << QPointF(68.5, 0) << true;
        QTest::newRow("press rounded up") << 69 << QPointF(0.5, 0) << QPointF(69, 0) << false;
        QTest::newRow("none") << 69 << QPointF(5, 5) << QPointF(5, 5) << false;
        QTest::newRow("49 of another width") << 50 << QPointF(0, 0) << QPointF(49, 0) << false;
        QTest::newRow("50 of another width") << 50 << QPointF(0, 0) << QPointF(50, 0) << true;
    }

    void moveOfTheWidthStartsADrag()
    {
        QFETCH(int, width);
        QFETCH(QPointF, from);
        QFETCH(QPointF, to);
        QFETCH(bool, starts);
        for (bool isSender : {false, true}) {
            Button button(CabinetType);
            button.resize(width, 69);
            button.setIsDrawCabinetCount(true);
            button.setBIsVsender(isSender);
            button.setCabnetInfo(filledRecord());
            QVERIFY(pointer::showAndWait(&button));
            button.resize(width, 69);
            QCOMPARE(startsDrag(&button, from, to), starts);
        }
    }

    void cabinetLooksPlainAfterItsDrag()
    {
        Button button(CabinetType);
        button.setIsDrawCabinetCount(true);
        QVERIFY(pointer::showAndWait(&button));
        button.setCabinetNormalFontColor(QColor(1, 2, 3));
        button.setCanbinetNormalBorder(2);
        const QString whole = button.styleSheet();
        Log log(&button);
        QVERIFY(startsDrag(&button, QPointF(0, 0), QPointF(69, 0)));
        QCOMPARE(button.cursor().shape(), Qt::ArrowCursor);
        QVERIFY(button.testAttribute(Qt::WA_SetCursor));
        QCOMPARE(button.styleSheet(),
                 QStringLiteral("QToolButton{background:#454545;color:#010203;font:9pt "
                                "\"微软雅黑\" ;border:2px;}"));
        QEvent enter(QEvent::Enter);
        QCoreApplication::sendEvent(&button, &enter);
        QCOMPARE(button.styleSheet(), whole);
        // The move has left the button, so it is up again; but the drag has taken the release, and
        // the press is still in force.
        QCOMPARE(log.names, (QStringList{"pressed", "port", "released"}));
        button.setCabinetToAddModel();
        QCOMPARE(log.names, (QStringList{"pressed", "port", "released", "taken"}));
    }

    void senderKeepsItsLookAfterItsDrag()
    {
        for (ButtonType type : {CabinetType, CabinetModelType, DefaultType, ActivatedType}) {
            Button button(type);
            button.setIsDrawCabinetCount(true);
            button.setBIsVsender(true);
            button.setBVsenderDrag(true);
            QVERIFY(pointer::showAndWait(&button));
            const QString sheet = button.styleSheet();
            QVERIFY(startsDrag(&button, QPointF(0, 0), QPointF(69, 0)));
            QCOMPARE(button.cursor().shape(), Qt::ArrowCursor);
            QCOMPARE(button.styleSheet(), sheet);
        }
    }

    void dragsThatMayNotStart_data()
    {
        QTest::addColumn<ButtonType>("type");
        QTest::addColumn<bool>("isCountDrawn");
        QTest::addColumn<Qt::MouseButtons>("held");
        const Qt::MouseButtons left = Qt::LeftButton;
        QTest::newRow("model") << CabinetModelType << true << left;
        QTest::newRow("model without count") << CabinetModelType << false << left;
        QTest::newRow("cabinet without count") << CabinetType << false << left;
        QTest::newRow("no button held") << CabinetType << true << Qt::MouseButtons(Qt::NoButton);
        QTest::newRow("right button held")
            << CabinetType << true << Qt::MouseButtons(Qt::RightButton);
        QTest::newRow("default") << DefaultType << true << left;
        QTest::newRow("activated") << ActivatedType << true << left;
    }

    void dragsThatMayNotStart()
    {
        QFETCH(ButtonType, type);
        QFETCH(bool, isCountDrawn);
        QFETCH(Qt::MouseButtons, held);
        Button button(type);
        button.setIsDrawCabinetCount(isCountDrawn);
        QVERIFY(pointer::showAndWait(&button));
        const QString sheet = button.styleSheet();
        QVERIFY(!startsDrag(&button, QPointF(0, 0), QPointF(200, 200), held));
        QVERIFY(!button.testAttribute(Qt::WA_SetCursor));
        QCOMPARE(button.styleSheet(), sheet);
    }

    // Only the cabinet kinds note where they were pressed; others measure from their corner.
    void otherTypesMeasureTheDragFromTheirCorner()
    {
        Button button(DefaultType);
        button.setBIsVsender(true);
        QVERIFY(pointer::showAndWait(&button));
        QVERIFY(!startsDrag(&button, QPointF(60, 60), QPointF(34, 34)));
        QVERIFY(startsDrag(&button, QPointF(60, 60), QPointF(34, 35)));
        QVERIFY(!startsDrag(&button, QPointF(-60, -60), QPointF(34, 34)));
    }

    void senderNeedsTheLeftButtonHeld()
    {
        Button button(DefaultType);
        button.setBIsVsender(true);
        QVERIFY(pointer::showAndWait(&button));
        QVERIFY(!startsDrag(&button, QPointF(0, 0), QPointF(200, 0), Qt::NoButton));
        QVERIFY(!startsDrag(&button, QPointF(0, 0), QPointF(200, 0), Qt::RightButton));
        QVERIFY(
            startsDrag(&button, QPointF(0, 0), QPointF(200, 0), Qt::LeftButton | Qt::RightButton));
    }

    void mimeDataIsTheRecordsBytes()
    {
        const StructCabinet record = filledRecord();
        const std::unique_ptr<QMimeData> data(orvane::cabinetMimeData(record));
        QCOMPARE(data->formats(), QStringList{"CabinetInfo"});
        const QByteArray bytes = data->data("CabinetInfo");
        QCOMPARE(bytes.size(), int(sizeof record));
        QCOMPARE(std::memcmp(bytes.constData(), &record, sizeof record), 0);
        QCOMPARE(fields(restored(bytes)), fields(record));
        const std::unique_ptr<QMimeData> text(orvane::senderMimeData("S1"));
        QCOMPARE(text->formats(), QStringList{"text/plain"});
        QCOMPARE(text->text(), QStringLiteral("S1"));
    }

    void dragPictures_data()
    {
        QTest::addColumn<bool>("hasData");
        QTest::addColumn<QString>("file");
        QTest::newRow("data") << true << "vSender/clear.png";
        QTest::newRow("no data") << false << "vSender/save.png";
    }

    void dragPictures()
    {
        QFETCH(bool, hasData);
        QFETCH(QString, file);
        const QImage image = QPixmap(directory + file).toImage();
        QVERIFY(!image.isNull());
        QCOMPARE(orvane::senderDragPicture(QString(), hasData).toImage(), image);
        QImage expected = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&expected);
        painter.setPen(QPen(QColor(255, 255, 255), 1));
        painter.drawText(QRect(15, 5, 20, 20), Qt::AlignCenter, "7");
        painter.end();
        const QImage picture = orvane::senderDragPicture("7", hasData).toImage();
        QCOMPARE(picture.convertToFormat(expected.format()), expected);
        QRect changed;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (picture.pixelColor(x, y) != image.pixelColor(x, y))
                    changed |= QRect(x, y, 1, 1);
            }
        }
        QVERIFY(changed.isValid());
        QVERIFY(QRect(15, 5, 20, 20).contains(changed));
        QVERIFY(changed.adjusted(-2, -2, 2, 2).contains(QPoint(25, 15)));
        QVERIFY(!orvane::cabinetDragPicture().isNull());
        QCOMPARE(orvane::dragHotSpot, QPoint(15, 15));
    }

private:
    struct LookSetter {
        std::function<void(ToolButtonEx &)> set;
        int index; // in the values of the sheet
        QString value;
    };

    static QList<LookSetter> lookSetters()
    {
        using T = ToolButtonEx;
        const QColor color(1, 2, 254);
        const QString text = "#0102fe";
        return {
            {[=](T &b) { b.setCabinetNormalBgColor(color); }, 0, text},
            {[=](T &b) { b.setCabinetHoverBgColor(color); }, 1, text},
            {[=](T &b) { b.setCabinetPressedBgColor(color); }, 2, text},
            {[=](T &b) { b.setCabinetNormalFontColor(color); }, 3, text},
            {[=](T &b) { b.setCabinetHoverFontColor(color); }, 4, text},
            {[=](T &b) { b.setCabinetPressedFontColor(color); }, 5, text},
            {[=](T &b) { b.setCabinetHoverBorderColor(color); }, 6, text},
            {[=](T &b) { b.setCabinetPressedBorderColor(QColor(1, 2, 3, 4)); }, 7, "#04010203"},
            {[=](T &b) { b.setCanbinetNormalBorder(7); }, 8, "7"},
            {[=](T &b) { b.setCanbinetHoverBorder(-1); }, 9, "-1"},
            {[=](T &b) { b.setCanbinetPressedBorder(0); }, 10, "0"},
        };
    }

    static void kindRows()
    {
        QTest::addColumn<ButtonType>("type");
        QTest::newRow("placed cabinet") << CabinetType;
        QTest::newRow("cabinet model") << CabinetModelType;
    }

    /// What a receiver of the drag makes of its bytes: it copies the record that lies there.
    static StructCabinet restored(const QByteArray &bytes)
    {
        return *reinterpret_cast<const StructCabinet *>(bytes.constData());
    }

    template <typename Predicate> static QRect boundsOf(const QImage &image, Predicate isWanted)
    {
        QRect bounds;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (isWanted(image.pixelColor(x, y)))
                    bounds |= QRect(x, y, 1, 1);
            }
        }
        return bounds;
    }
};

ORVANE_TEST_MAIN(TestToolButtonExCabinet)
#include "tst_toolbuttonexcabinet.moc"
