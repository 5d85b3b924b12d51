#include "spinboxex.h"

#include "internal/spinboxlook.h"
#include "internal/stylesheet.h"

#include <QDebug>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QPointer>

SpinBoxEx::SpinBoxEx(QWidget *parent)
    : QSpinBox(parent)
{
    // Texts are written and read with plain digits everywhere, so they are checked that way too.
    setLocale(QLocale::c());
    initStyle();
}

void SpinBoxEx::initStyle()
{
    setAttribute(Qt::WA_MacShowFocusRect, false);
    m_backgroundColor = QColor(51, 51, 51);
    m_bordColor = QColor(128, 128, 128);
    m_fontColor = QColor(255, 255, 255);
    m_disabledFontColor = QColor(153, 153, 153);
    m_fontColorFragment.clear();
    setSpinBoxStyle();
    setContextMenuPolicy(Qt::NoContextMenu);
}

void SpinBoxEx::setSpinBoxStyle()
{
    orvane::applyStyleSheet(this,
                            orvane::spinBoxSheet(u"QSpinBox", m_fontColorFragment,
                                                 m_backgroundColor, m_bordColor,
                                                 m_disabledFontColor));
}

void SpinBoxEx::setBackgroundColor(const QColor &color)
{
    m_backgroundColor = color;
    setSpinBoxStyle();
}

QColor SpinBoxEx::backgroundColor() const
{
    return m_backgroundColor;
}

void SpinBoxEx::setBordColor(const QColor &color)
{
    m_bordColor = color;
    setSpinBoxStyle();
}

QColor SpinBoxEx::bordColor() const
{
    return m_bordColor;
}

void SpinBoxEx::setFontColor(const QColor &color)
{
    m_fontColor = color;
    m_fontColorFragment = orvane::fontColorFragment(color);
    setSpinBoxStyle();
}

QColor SpinBoxEx::fontColor() const
{
    return m_fontColor;
}

void SpinBoxEx::setDisabledFontColor(const QColor &color)
{
    m_disabledFontColor = color;
    setSpinBoxStyle();
}

QColor SpinBoxEx::disabledFontColor() const
{
    return m_disabledFontColor;
}

void SpinBoxEx::setShowValue(bool show)
{
    // Stored only: hosts rely on the shown text staying as it is until the value is set anew.
    m_showValue = show;
}

bool SpinBoxEx::showValue() const
{
    return m_showValue;
}

void SpinBoxEx::setFocusOutEvent(bool passOn)
{
    m_focusOutEvent = passOn;
}

bool SpinBoxEx::focusOutEvent() const
{
    return m_focusOutEvent;
}

QString SpinBoxEx::textFromValue(int value) const
{
    return m_showValue ? QString::number(value) : QString(orvane::hiddenValueText);
}

int SpinBoxEx::valueFromText(const QString &text) const
{
    qDebug().nospace().noquote() << "text=" << text;
    return m_showValue ? text.toInt() : 0;
}

QString SpinBoxEx::fromColorToStr(QColor color)
{
    return orvane::colorText(color);
}

void SpinBoxEx::keyPressEvent(QKeyEvent *event)
{
    QSpinBox::keyPressEvent(event);
}

void SpinBoxEx::keyReleaseEvent(QKeyEvent *event)
{
    QSpinBox::keyReleaseEvent(event);
}

void SpinBoxEx::mousePressEvent(QMouseEvent *event)
{
    m_pressed = true;
    qDebug().nospace() << "mousePressEvent(QMouseEvent* event) = ";
    m_valueAtPress = value();
    QAbstractSpinBox::mousePressEvent(event);
}

void SpinBoxEx::mouseReleaseEvent(QMouseEvent *event)
{
    // The last and the first value of a full turn in degrees: the step between them wraps.
    constexpr int lastOfTurn = 359;
    constexpr int firstOfTurn = 0;

    if (m_pressed) {
        m_pressed = false;
        // Hosts rely on a click that changes nothing being reported as downward.
        int direction = value() > m_valueAtPress ? 1 : -1;
        if (m_valueAtPress == lastOfTurn && value() == firstOfTurn)
            direction = 1;
        if (m_valueAtPress == firstOfTurn && value() == lastOfTurn)
            direction = -1;
        qDebug().nospace() << "mouseReleaseEvent(QMouseEvent* event) = " << value();

        const QPointer<SpinBoxEx> self(this);
        Q_EMIT signal_valueChanged(direction);
        if (!self)
            return;
    }
    QAbstractSpinBox::mouseReleaseEvent(event);
}

void SpinBoxEx::focusOutEvent(QFocusEvent *event)
{
    // Hosts rely on the box keeping out of the way of the keyboard from its first loss on, and on
    // editingFinished() not being emitted then.
    if (m_focusOutEvent)
        QAbstractSpinBox::focusOutEvent(event);
    else
        setFocusPolicy(Qt::NoFocus);
}
