#include "toolbarex.h"

#include "internal/stylesheet.h"
#include "toolbuttonex.h"

#include <QHBoxLayout>

namespace
{

/// One end of the bar, a frame that shows nothing; \a margins are those of its layout.
QFrame *groupFrame(QWidget *bar, const QMargins &margins)
{
    auto *frame = new QFrame(bar);
    frame->setLineWidth(0);
    auto *layout = new QHBoxLayout(frame);
    layout->setContentsMargins(margins);
    return frame;
}

} // namespace

ToolBarEx::ToolBarEx(QWidget *parent)
    : QFrame(parent)
{
    orvane::applyStyleSheet(this, QStringLiteral("QFrame{background:rgb(69, 69, 69);}"));
    QFrame *left = groupFrame(this, QMargins(16, 5, 0, 5));
    QFrame *right = groupFrame(this, QMargins(0, 5, 16, 5));
    m_leftLayout = static_cast<QHBoxLayout *>(left->layout());
    m_rightLayout = static_cast<QHBoxLayout *>(right->layout());

    auto *layout = new QHBoxLayout(this);
    layout->addWidget(left);
    layout->addStretch(10);
    layout->addWidget(right);
    layout->setContentsMargins(0, 0, 0, 0);

    setFrameShape(QFrame::Box);
    setFrameShadow(QFrame::Raised);
    setFixedHeight(40);
    // Last: a shape adds the width of its frame.
    setContentsMargins(0, 0, 0, 0);
}

void ToolBarEx::addButton(ToolButtonEx *button, ToolBarPosition position)
{
    if (!button)
        return;
    button->setFixedSize(30, 30);
    button->setContentsMargins(0, 0, 0, 0);
    addWidget(button, position);
}

void ToolBarEx::addWidget(QWidget *widget, ToolBarPosition position)
{
    if (!widget)
        return;
    if (position == LeftPos)
        m_leftLayout->addWidget(widget);
    else if (position == RightPos)
        m_rightLayout->addWidget(widget);
}

void ToolBarEx::addSeparator()
{
    auto *layout = new QHBoxLayout;
    layout->setContentsMargins(6, 0, 6, 0);
    auto *line = new QFrame(m_leftLayout->parentWidget());
    line->setFrameShape(QFrame::VLine);
    line->setFixedWidth(1);
    line->setFixedHeight(20);
    // Directly: there is no earlier sheet that it, or children, could keep to.
    line->setStyleSheet(QStringLiteral("background-color: rgb(112, 112, 112); border:0;"));
    layout->addWidget(line);
    m_leftLayout->addLayout(layout);
}
