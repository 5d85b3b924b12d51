#include "look.h"

#include <scrollbarex.h>

#include <QAbstractScrollArea>
#include <QLabel>
#include <QPalette>

namespace wall::look
{

namespace
{

void styleScrollBar(QScrollBar *bar)
{
    ScrollBarEx style(bar, false);
    style.setScrollWidth(12);
    style.setScrollHeight(12);
    style.setScrollBarWidth(8);
    style.setScrollBarHeight(8);
    style.setScrollBarMargin(3);
    style.setBorderRadius(3);
    style.setIconWidth(0);
    style.setIconHeight(0);
    style.setScrollColor(Qt::transparent);
    style.setScrollHandleColor(line);
    style.setScrollHandlePressedColor(QColor(99, 99, 99));
    // The style that is applied last is the one in force.
    if (bar->orientation() == Qt::Vertical)
        style.setVerticalStyle();
    else
        style.setHorizontalStyle();
}

} // namespace

void applyTo(QWidget *page)
{
    QPalette palette = page->palette();
    palette.setColor(QPalette::Window, ground);
    palette.setColor(QPalette::Base, well);
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, text);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    page->setPalette(palette);
    page->setAutoFillBackground(true);
}

QLabel *makeHeading(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    QFont font = label->font();
    font.setWeight(QFont::DemiBold);
    label->setFont(font);
    return label;
}

QLabel *makeQuietLabel(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setWordWrap(true);
    setTextColor(label, quietText);
    return label;
}

void setTextColor(QLabel *label, const QColor &color)
{
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, color);
    label->setPalette(palette);
}

PushButtonEx *makeButton(const QString &text, BtnType type, QWidget *parent)
{
    auto *button = new PushButtonEx(parent, type);
    button->ensurePolished();
    QString shown = text;
    const int textWidth = button->fontMetrics().horizontalAdvance(shown.remove('&'));
    // Before the text, which the button cuts to its width.
    button->setFixedSize(textWidth + 6 * unit, controlHeight);
    button->setText(text);
    return button;
}

void styleScrollBars(QAbstractScrollArea *area)
{
    styleScrollBar(area->verticalScrollBar());
    styleScrollBar(area->horizontalScrollBar());
}

} // namespace wall::look
