#include "parts.h"

#include <labelex.h>
#include <theme.h>

#include <QScrollArea>

namespace wall::parts
{

namespace
{

constexpr int valueHeight = 5 * theme::unit;

} // namespace

LabelEx *makeValue(int width, QWidget *parent)
{
    auto *label = new LabelEx(parent);
    label->setFixedSize(width, valueHeight); // texts are elided to the width at their time
    label->ensurePolished();
    return label;
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
