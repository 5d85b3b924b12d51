#include "parts.h"

#include <labelex.h>
#include <theme.h>

#include <QLabel>
#include <QPalette>
#include <QScrollArea>

namespace wall::parts
{

namespace
{

constexpr int valueHeight = 5 * theme::unit;
constexpr int buttonPadding = 6 * theme::unit; ///< On both sides of a text together.

} // namespace

QLabel *makeHeading(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setFont(theme::headingFont());
    return label;
}

QLabel *makeCaption(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, theme::quietText);
    label->setPalette(palette);
    return label;
}

LabelEx *makeValue(int width, QWidget *parent)
{
    auto *label = new LabelEx(parent);
    label->setFixedSize(width, valueHeight); // texts are elided to the width at their time
    label->ensurePolished();
    return label;
}

PushButtonEx *makeButton(const QString &text, BtnType type, int leastWidth, QWidget *parent)
{
    auto *button = new PushButtonEx(parent, type);
    button->ensurePolished(); // the sheet brings the font
    const int textWidth = button->fontMetrics().horizontalAdvance(text);
    button->setFixedSize(qMax(leastWidth, textWidth + buttonPadding), theme::controlHeight);
    button->setText(text);
    return button;
}

QScrollArea *makeScrollArea(QWidget *content, QWidget *parent)
{
    auto *area = new QScrollArea(parent);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFocusPolicy(Qt::NoFocus); // Tab goes to what is in it, and scrolls to that
    area->setWidget(content);
    // The ground of the panel shows through.
    area->viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    theme::styleScrollBars(area);
    return area;
}

} // namespace wall::parts
