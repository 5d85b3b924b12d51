#include "parts.h"

#include <scrollbarex.h>

#include <QAbstractScrollArea>
#include <QLabel>
#include <QPalette>

namespace wall::parts
{

namespace
{

const QColor well(43, 43, 43);
const QColor ground(56, 56, 56);
const QColor raised(69, 69, 69);
const QColor text(210, 210, 210);
const QColor quietText(160, 160, 160);
const QColor disabledText(112, 112, 112);
const QColor accent(66, 145, 240);

constexpr int scrollBarWidth = 10;
constexpr int scrollHandleWidth = 6;
constexpr int scrollHandleRadius = 3;

} // namespace

void setDark(QWidget *panel)
{
    QPalette palette = panel->palette();
    palette.setColor(QPalette::Window, ground);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Base, well);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::Button, raised);
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, disabledText);
    panel->setPalette(palette);
    panel->setAutoFillBackground(true);
}

void styleScrollArea(QAbstractScrollArea *area)
{
    area->setFrameShape(QFrame::NoFrame);
    // The look stays on the bar when the object that put it there goes.
    ScrollBarEx style(area->verticalScrollBar(), false);
    style.setScrollWidth(scrollBarWidth);
    style.setScrollBarWidth(scrollHandleWidth);
    style.setBorderRadius(scrollHandleRadius);
    style.setScrollColor(ground);
    style.setScrollHandleColor(QColor(99, 99, 99));
    style.setScrollHandlePressedColor(QColor(128, 128, 128));
    style.setVerticalStyle();
}

QLabel *makeHeading(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

QLabel *makeCaption(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, quietText);
    label->setPalette(palette);
    return label;
}

PushButtonEx *makeButton(const QString &text, BtnType type, int width, QWidget *parent)
{
    auto *button = new PushButtonEx(parent, type);
    button->setFixedSize(width, controlHeight);
    button->setText(text);
    return button;
}

} // namespace wall::parts
