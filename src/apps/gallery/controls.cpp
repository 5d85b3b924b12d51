#include "controls.h"

#include "theme.h"

#include <QColorDialog>
#include <QPainter>
#include <QWheelEvent>

namespace
{

constexpr int textMargin = theme::unit + 2; // the edit itself adds two pixels

} // namespace

ColorButton::ColorButton(QWidget *parent)
    : QAbstractButton(parent)
{
    setFixedHeight(theme::controlHeight);
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::StrongFocus);
    setFont(theme::codeFont());
    connect(this, &QAbstractButton::clicked, this, &ColorButton::choose);
}

void ColorButton::showValue(const QColor &color)
{
    m_color = color;
    setToolTip(QStringLiteral("%1, %2, %3, alpha %4")
                   .arg(color.red())
                   .arg(color.green())
                   .arg(color.blue())
                   .arg(color.alpha()));
    update();
}

QSize ColorButton::sizeHint() const
{
    return {30 * theme::unit, theme::controlHeight};
}

void ColorButton::choose()
{
    QColorDialog dialog(m_color, this);
    dialog.setOption(QColorDialog::ShowAlphaChannel);
    dialog.setOption(QColorDialog::DontUseNativeDialog);
    const QColor before = m_color;
    QColor shown = before;
    // Seen at once while the dialog is open; taken back when it is cancelled.
    connect(&dialog, &QColorDialog::currentColorChanged, this, [this, &shown](const QColor &color) {
        shown = color;
        Q_EMIT changed(color);
    });
    const bool isAccepted = dialog.exec() == QDialog::Accepted;
    if (isAccepted || shown != before)
        Q_EMIT changed(isAccepted ? dialog.selectedColor() : before);
}

void ColorButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), underMouse() && !isDown() ? theme::raised : theme::well);
    painter.setRenderHint(QPainter::Antialiasing);

    const int side = height() - 4 * theme::unit;
    const QRect swatch(2 * theme::unit, 2 * theme::unit, 2 * side, side);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QBrush(theme::line, Qt::Dense4Pattern)); // shines through translucent colours
    painter.drawRoundedRect(swatch, 2, 2);
    painter.setBrush(m_color);
    painter.drawRoundedRect(swatch, 2, 2);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QColor(255, 255, 255, 40));
    painter.drawRoundedRect(QRectF(swatch).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);

    painter.setPen(isEnabled() ? theme::text : theme::disabledText);
    const QString text = m_color.alpha() == 255 ? m_color.name() : m_color.name(QColor::HexArgb);
    painter.drawText(rect().adjusted(swatch.right() + 2 * theme::unit, 0, 0, 0),
                     Qt::AlignVCenter | Qt::AlignLeft, text);
}

NumberField::NumberField(int minimum, int maximum, QWidget *parent)
    : SpinBoxEx(parent)
{
    setFixedHeight(theme::controlHeight);
    setRange(minimum, maximum);
    setBackgroundColor(theme::well);
    setFontColor(theme::text);
    lineEdit()->setTextMargins(textMargin, 0, 0, 0);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, QOverload<int>::of(&QSpinBox::valueChanged), this, &NumberField::changed);
}

void NumberField::showValue(int value)
{
    const QSignalBlocker blocker(this);
    setValue(value);
}

void NumberField::wheelEvent(QWheelEvent *event)
{
    // Without the focus the wheel is for the panel.
    if (hasFocus())
        SpinBoxEx::wheelEvent(event);
    else
        event->ignore();
}

TextField::TextField(QWidget *parent)
    : LineEditEx(parent, NormalLineEdit)
{
    setFixedHeight(theme::controlHeight);
    setBackgroundColor(theme::well);
    setBorderWidth(0);
    setTextMargins(textMargin, 0, textMargin, 0);
    connect(this, &QLineEdit::textEdited, this, &TextField::changed);
}

void TextField::showValue(const QString &text)
{
    if (text == QLineEdit::text())
        return;
    setText(text);
    setCursorPosition(0); // a text that is too long shows its beginning
}

FlagBox::FlagBox(QWidget *parent)
    : CheckBoxEx(parent)
{
    setFixedSize(indicatorWidth(), indicatorHeight());
    connect(this, &QCheckBox::clicked, this, &FlagBox::changed);
}

void FlagBox::showValue(bool on)
{
    setChecked(on);
}

ChoiceBox::ChoiceBox(const QStringList &choices, QWidget *parent)
    : ComboBoxEx(parent)
{
    setFixedHeight(theme::controlHeight);
    setBgCurrentItemColor(theme::well);
    setBgHoverItemColor(theme::raised);
    setBorderWidth(0);
    setBorderHoverWidth(0);
    setBorderRadius(0);
    setFocusPolicy(Qt::StrongFocus);
    addItems(choices);
    connect(this, QOverload<int>::of(&QComboBox::activated), this, &ChoiceBox::changed);
}

void ChoiceBox::showValue(int index)
{
    setCurrentIndex(index);
}

void ChoiceBox::wheelEvent(QWheelEvent *event)
{
    if (hasFocus())
        ComboBoxEx::wheelEvent(event);
    else
        event->ignore();
}

QString eventText(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

QString eventText(int value)
{
    return QString::number(value);
}

QString eventText(double value)
{
    return QString::number(value);
}

QString eventText(const QSize &value)
{
    return QStringLiteral("%1×%2").arg(value.width()).arg(value.height());
}

QString eventText(const QString &value)
{
    return '"' + value + '"';
}

QString eventText(const QColor &value)
{
    return value.name(QColor::HexArgb);
}

QString eventText(const QPixmap &value)
{
    return QStringLiteral("%1×%2 picture").arg(value.width()).arg(value.height());
}
