#include "numberfield.h"

#include <theme.h>

#include <QLineEdit>
#include <QSignalBlocker>

namespace wall
{

NumberField::NumberField(QWidget *parent)
    : SpinBoxEx(parent)
{
    setFixedHeight(theme::controlHeight);
    setFontColor(theme::text);
    setKeyboardTracking(false);
    setAccelerated(true);
    connect(lineEdit(), &QLineEdit::textEdited, this, [this] {
        m_isTyping = true;
        setShowValue(true); // a box that hides its value reads every text as 0
    });
    connect(this, &NumberField::editingFinished, this, &NumberField::finishTyping);
}

void NumberField::showNumber(int value, bool isMixed)
{
    m_isMixed = isMixed;
    if (m_isTyping)
        return;
    const QSignalBlocker blocker(this);
    setShowValue(!isMixed);
    setValue(value); // the text follows the flag only now
}

bool NumberField::isMixed() const
{
    return m_isMixed;
}

void NumberField::stepBy(int steps)
{
    finishTyping();
    Q_EMIT numberStepped(steps);
}

QValidator::State NumberField::validate(QString &text, int &position) const
{
    // What is typed into the placeholder takes its place.
    const QString placeholder = QStringLiteral("---");
    const int dashes = text.count(QLatin1Char('-'));
    if (m_isMixed && dashes >= placeholder.size() && text != placeholder) {
        text.remove(QLatin1Char('-'));
        position = text.size();
    }
    return SpinBoxEx::validate(text, position);
}

void NumberField::focusInEvent(QFocusEvent *event)
{
    SpinBoxEx::focusInEvent(event);
    if (m_isMixed)
        selectAll();
}

void NumberField::focusOutEvent(QFocusEvent *event)
{
    SpinBoxEx::focusOutEvent(event);
    Q_EMIT seriesEnded();
}

void NumberField::mousePressEvent(QMouseEvent *event)
{
    Q_EMIT seriesEnded();
    SpinBoxEx::mousePressEvent(event);
}

void NumberField::finishTyping()
{
    if (!m_isTyping)
        return;
    interpretText();
    m_isTyping = false;
    Q_EMIT numberTyped(value());
}

} // namespace wall
