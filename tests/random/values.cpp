#include "values.h"

#include <limits>

namespace randomuse
{

namespace
{

constexpr int intMin = std::numeric_limits<int>::min();
constexpr int intMax = std::numeric_limits<int>::max();

QString longText()
{
    return QString(3000, 'x');
}

const QVector<QString> &texts()
{
    static const QVector<QString> all{
        QString(),
        QString(""),
        "a",
        "Wall 1",
        "two words",
        " ",
        "&File && more",
        "line\nbreak\ttab",
        QString(QChar(0)) + "after nul",
        "<b>bold</b> & <script>",
        "} QWidget { color: red; } /* \" ' \\ ;",
        "%1 %2 %n %",
        QString::fromUtf8(
            "\u05e9\u05dc\u05d5\u05dd \u202eabc\u202c \u0645\u0631\u062d\u0628\u0627"),
        QString::fromUtf8("\U0001F600\U0001F9D1\u200d\U0001F680 \U00020000"),
        QString(QChar(0xd83d)) + "lone",
        QString::fromUtf8("e\u0301\u0301\u0301\u0301 \u4e2d\u6587"),
        longText(),
    };
    return all;
}

} // namespace

void make(Dice &dice, bool &value)
{
    value = dice.chance(50);
}

void make(Dice &dice, int &value)
{
    static const QVector<int> odd{intMin, intMin + 1, -65537, -1000, -1,         0,
                                  1,      2,          16,     65536, 16777215,   16777216,
                                  1000,   100000,     255,    256,   intMax - 1, intMax};
    value = dice.chance(60) ? dice.between(-2, 60) : dice.pick(odd);
}

void make(Dice &dice, double &value)
{
    using Limits = std::numeric_limits<double>;
    static const QVector<double> odd{Limits::quiet_NaN(),
                                     Limits::infinity(),
                                     -Limits::infinity(),
                                     Limits::max(),
                                     Limits::lowest(),
                                     Limits::denorm_min(),
                                     -0.0,
                                     0.0,
                                     1e15,
                                     -1e15,
                                     0.005,
                                     1e-7};
    value = dice.chance(60) ? dice.between(-2000, 20000) / 100.0 : dice.pick(odd);
}

void make(Dice &dice, float &value)
{
    using Limits = std::numeric_limits<float>;
    static const QVector<float> odd{Limits::quiet_NaN(), Limits::infinity(), -Limits::infinity(),
                                    Limits::max(),       Limits::lowest(),   -0.0F};
    value = dice.chance(60) ? float(dice.between(-200, 2000)) / 10 : dice.pick(odd);
}

void make(Dice &dice, QString &value)
{
    value = dice.chance(15) ? picturePath(dice) : dice.pick(texts());
}

void make(Dice &dice, QStringList &value)
{
    for (int left = dice.below(6); left > 0; --left)
        value.append(made<QString>(dice));
}

void make(Dice &dice, QColor &value)
{
    static const QVector<QColor> odd{QColor(), Qt::transparent, Qt::white, QColor(1, 2, 3, 4),
                                     QColor::fromHsvF(0.5, 0.5, 0.5)};
    value = dice.chance(50) ? QColor::fromRgb(QRgb(dice.next())) : dice.pick(odd);
}

void make(Dice &dice, QPoint &value)
{
    const int x = made<int>(dice);
    value = QPoint(x, made<int>(dice));
}

void make(Dice &dice, QPointF &value)
{
    const double x = made<double>(dice);
    value = QPointF(x, made<double>(dice));
}

void make(Dice &dice, QSize &value)
{
    const int width = smallNumber(dice);
    value = QSize(width, smallNumber(dice));
}

void make(Dice &dice, QSizeF &value)
{
    const int width = smallNumber(dice);
    value = QSizeF(width + 0.5, smallNumber(dice));
}

void make(Dice &dice, QRect &value)
{
    const QPoint corner(dice.between(-50, 300), dice.between(-50, 300));
    value = QRect(corner, made<QSize>(dice));
}

void make(Dice &dice, QPixmap &value)
{
    if (dice.chance(20))
        return;
    value = QPixmap(dice.between(1, 60), dice.between(1, 60));
    value.fill(dice.chance(30) ? Qt::transparent : Qt::red);
}

void make(Dice &dice, QIcon &value)
{
    if (dice.chance(30))
        value = QIcon(picturePath(dice));
    else if (dice.chance(70))
        value = QIcon(made<QPixmap>(dice));
}

void make(Dice &dice, QVariant &value)
{
    switch (dice.below(4)) {
    case 0:
        value = made<QString>(dice);
        break;
    case 1:
        value = made<int>(dice);
        break;
    case 2:
        value = made<double>(dice);
        break;
    default:
        break;
    }
}

void make(Dice &dice, StructCabinet &value)
{
    make(dice, value.cabinetSize);
    for (QString *text :
         {&value.extraText1, &value.extraText2, &value.extraText3, &value.extraText4})
        make(dice, *text);
    for (int *number : {&value.cabinetCount, &value.extraValue1, &value.extraValue2,
                        &value.extraValue3, &value.extraValue4, &value.extraValue5,
                        &value.extraValue6, &value.extraValue7, &value.cabinetweight,
                        &value.cabinetuisize, &value.cabinetuiHsize, &value.cabinetPointspace})
        make(dice, *number);
    make(dice, value.cabinetpower);
    make(dice, value.cabinetVoltage);
}

void make(Dice &dice, BackUpParam &value)
{
    for (QString *text : {&value.firstText, &value.secondText, &value.thirdText, &value.fourthText})
        make(dice, *text);
    make(dice, value.flag);
}

int smallNumber(Dice &dice)
{
    return dice.chance(20) ? dice.between(-2, 2) : dice.between(0, 300);
}

int nearIndex(Dice &dice, int count)
{
    return dice.chance(15) ? made<int>(dice) : dice.between(-1, count);
}

QString picturePath(Dice &dice)
{
    static const QVector<QString> paths{
        ":/Resource/Images/globalResource/checkbox/checkbox_checked_normal@2x.png",
        ":/Resource/Image/logo.png", "/nowhere/picture.png", ":/", "."};
    return dice.pick(paths);
}

QString toText(bool value)
{
    return value ? "true" : "false";
}

QString toText(int value)
{
    return QString::number(value);
}

QString toText(double value)
{
    return QString::number(value);
}

QString toText(const QString &value)
{
    if (value.isNull())
        return "QString()";
    constexpr int shown = 16;
    QString text;
    for (const QChar &unit : value.left(shown)) {
        const ushort code = unit.unicode();
        text += code >= ' ' && code < 127 ? QString(unit) : QString("\\x%1").arg(code, 0, 16);
    }
    const QString length = value.size() > shown ? QString(" (%1)").arg(value.size()) : QString();
    return '"' + text + '"' + length;
}

QString toText(const QStringList &value)
{
    return QString("%1 texts").arg(value.size());
}

QString toText(const QColor &value)
{
    return value.isValid() ? value.name(QColor::HexArgb) : QString("QColor()");
}

QString toText(QPoint value)
{
    return QString("%1,%2").arg(value.x()).arg(value.y());
}

QString toText(QPointF value)
{
    return QString("%1,%2").arg(value.x()).arg(value.y());
}

QString toText(QSize value)
{
    return QString("%1x%2").arg(value.width()).arg(value.height());
}

QString toText(QSizeF value)
{
    return QString("%1x%2").arg(value.width()).arg(value.height());
}

QString toText(const QRect &value)
{
    return toText(value.topLeft()) + ' ' + toText(value.size());
}

QString toText(const QPixmap &value)
{
    return "pixmap " + toText(value.size());
}

QString toText(const QIcon &value)
{
    return value.isNull() ? "QIcon()" : "icon";
}

QString toText(const QVariant &value)
{
    return "variant " + toText(value.toString());
}

QString toText(const StructCabinet &value)
{
    return "cabinet " + toText(value.cabinetSize);
}

QString toText(const BackUpParam &value)
{
    return "record " + toText(value.firstText);
}

} // namespace randomuse
