#include "comboboxitem.h"

#include "internal/stylesheet.h"
#include "labelex.h"

#include <QHBoxLayout>
#include <QLabel>

ComboboxItem::ComboboxItem(QWidget *parent, QPixmap pixmap, QString text, int index)
    : QWidget(parent)
    , m_imageLabel(new QLabel(this))
    , m_textLabel(new LabelEx(this))
    , m_layout(new QHBoxLayout(this))
    , m_pixmap(pixmap)
    , m_index(index)
    , m_text(std::move(text))
    , m_fontColor(210, 210, 210)
{
    m_imageLabel->setPixmap(m_pixmap);
    m_imageLabel->setFixedSize(m_pixmap.size());
    m_imageLabel->setAttribute(Qt::WA_TranslucentBackground);
    m_textLabel->setText(m_text);
    setTextStyle();
    m_textLabel->setAttribute(Qt::WA_TranslucentBackground);

    m_layout->addWidget(m_imageLabel);
    m_layout->addWidget(m_textLabel);
    m_layout->setSpacing(5);
    m_layout->setContentsMargins(5, 5, 5, 5);
}

void ComboboxItem::setTextStyle()
{
    orvane::SheetText sheet;
    sheet << u"color:" << m_fontColor << u";" << orvane::fontDeclaration;
    orvane::applyStyleSheet(m_textLabel, sheet);
}

void ComboboxItem::setFontColor(const QColor &color)
{
    m_fontColor = color;
    setTextStyle();
}

QColor ComboboxItem::fontColor() const
{
    return m_fontColor;
}

void ComboboxItem::setText(const QString &text)
{
    m_text = text;
    m_textLabel->setText(text);
}

QString ComboboxItem::text() const
{
    return m_text;
}

void ComboboxItem::setPixMap(const QPixmap &pixmap)
{
    // Stored only: hosts rely on the row going on to show the pixmap it was built with.
    m_pixmap = pixmap;
}

QPixmap ComboboxItem::pixMap() const
{
    return m_pixmap;
}

void ComboboxItem::setIndex(int index)
{
    m_index = index;
}

int ComboboxItem::index() const
{
    return m_index;
}

QString ComboboxItem::fromColorToStr(QColor color)
{
    return orvane::colorText(color);
}

void ComboboxItem::mousePressEvent(QMouseEvent *)
{
    m_isPressed = true;
}

void ComboboxItem::mouseReleaseEvent(QMouseEvent *)
{
    if (!m_isPressed)
        return;
    // Cleared first: whoever receives the signal may delete the row.
    m_isPressed = false;
    Q_EMIT showContent(m_pixmap, m_textLabel->text(), m_index);
}
