#include "widgetcontent.h"

#include "internal/livelist.h"

#include <QHBoxLayout>

namespace
{

constexpr int gap = 10;

} // namespace

WidgetContent::WidgetContent(QWidget *parent)
    : QWidget(parent)
    , m_layout(new QHBoxLayout(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(gap);
    m_layout->addStretch();
}

void WidgetContent::addItem(QWidget *widget)
{
    if (widget)
        m_layout->addWidget(widget);
}

void WidgetContent::removeItem(int index)
{
    orvane::dropDeleted(m_lsWidget);
    if (index >= 0 && index < m_lsWidget.size())
        m_lsWidget.remove(index);
}

void WidgetContent::removeAll()
{
    m_lsWidget.clear();
}

void WidgetContent::setLsWidget(const QList<QWidget *> &list)
{
    m_lsWidget = orvane::liveList(list);
    createLayout();
}

QList<QWidget *> WidgetContent::lsWidget() const
{
    return orvane::liveWidgets(m_lsWidget);
}

void WidgetContent::on_buttonClicked()
{
    Q_EMIT notifyShpeWidgetHide();
}

void WidgetContent::createLayout()
{
    const QSize emptySize(m_emptyWidth, m_emptyHeight);
    if (m_lsWidget.isEmpty()) {
        setFixedSize(emptySize);
        return;
    }
    if (maximumSize() == emptySize) {
        setMinimumSize(0, 0);
        setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    }

    // Widgets of an earlier list give up their places first: they would shift the index.
    const QList<QWidget *> widgets = lsWidget();
    for (QWidget *widget : widgets) {
        if (widget->parentWidget() == this)
            m_layout->removeWidget(widget);
    }
    int index = 0;
    while (!m_layout->itemAt(index)->spacerItem())
        ++index;
    for (QWidget *widget : widgets) {
        m_layout->insertWidget(index++, widget);
        widget->setFocusPolicy(Qt::NoFocus);
        // By signature: any widget with such a signal will do.
        connect(widget, SIGNAL(clicked()), // clazy:exclude=old-style-connect
                this, SLOT(on_buttonClicked()), Qt::UniqueConnection);
    }
}
