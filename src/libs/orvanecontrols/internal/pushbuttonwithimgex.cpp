#include "pushbuttonwithimgex.h"

#include <QPainter>

PushButtonWithImgEx::PushButtonWithImgEx(QString firstImagePath, QString secondImagePath,
                                         QWidget *parent)
    : QPushButton(parent)
    , m_firstImagePath(std::move(firstImagePath))
    , m_secondImagePath(std::move(secondImagePath))
{
    // Hosts rely on attribute 62, although Qt takes it for a paint under way: it says so once, at
    // the first paint, and then clears it.
    setAttribute(static_cast<Qt::WidgetAttribute>(62));
    connect(this, &QPushButton::pressed, this, [this] { setAlternate(true); });
    connect(this, &QPushButton::released, this, [this] { setAlternate(false); });
}

QString PushButtonWithImgEx::firstImagePath() const
{
    return m_firstImagePath;
}

QString PushButtonWithImgEx::secondImagePath() const
{
    return m_secondImagePath;
}

void PushButtonWithImgEx::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(rect(), QPixmap(m_isAlternate ? m_secondImagePath : m_firstImagePath));
}

void PushButtonWithImgEx::setAlternate(bool alternate)
{
    m_isAlternate = alternate && !m_secondImagePath.isEmpty();
    update();
}
