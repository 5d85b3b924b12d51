#include "labelex.h"

#include "internal/elidedtext.h"
#include "internal/stylesheet.h"

#include <QMouseEvent>
#include <QPointer>

LabelEx::LabelEx(QWidget *parent)
    : QLabel(parent)
{
    setFontColor(QColor(210, 210, 210));
}

void LabelEx::setFontColor(QColor color)
{
    orvane::applyStyleSheet(
        this, orvane::SheetText() << u"QLabel{color:" << color << u";font:SimSun Arial;}");
}

void LabelEx::setText(const QString &text)
{
    m_text = text;
    QLabel::setText(orvane::elideWithToolTip(this, text, width()));
}

QString LabelEx::text() const
{
    return m_text;
}

QString LabelEx::fromColorToStr(QColor color)
{
    return orvane::colorText(color);
}

void LabelEx::mousePressEvent(QMouseEvent *e)
{
    const QPointer<LabelEx> guard(this);
    if (e->button() == Qt::LeftButton)
        Q_EMIT signal_mouseclicked();
    // A host may close, and so delete, the label's panel on the click.
    if (guard)
        QLabel::mousePressEvent(e);
}

void LabelEx::enterEvent(QEvent *)
{
    Q_EMIT signal_mouseenter();
}

void LabelEx::leaveEvent(QEvent *)
{
    Q_EMIT signal_mouseleave();
}
