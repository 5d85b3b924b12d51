#include "shapewidgetcontent.h"

#include "internal/livelist.h"

#include <QGridLayout>
#include <QSet>

#include <numeric>

namespace
{

constexpr int gap = 10;

} // namespace

ShapeWidgetContent::ShapeWidgetContent(QWidget *parent)
    : QWidget(parent)
    , m_gridLayout(new QGridLayout(this))
{
    m_gridLayout->setContentsMargins(gap, gap, 0, gap);
    m_gridLayout->setSpacing(gap);
}

void ShapeWidgetContent::setLsWidget(const QList<QWidget *> &list)
{
    const QSet<QWidget *> kept(list.cbegin(), list.cend());
    const QList<QWidget *> previous = lsWidget();
    for (QWidget *widget : previous) {
        if (!kept.contains(widget)) {
            m_gridLayout->removeWidget(widget);
            widget->hide();
        }
    }
    m_lsWidget = orvane::liveList(list);
    createWidgetLayout();
}

QList<QWidget *> ShapeWidgetContent::lsWidget() const
{
    return orvane::liveWidgets(m_lsWidget);
}

void ShapeWidgetContent::setColumn(int column)
{
    m_column = column;
}

int ShapeWidgetContent::column() const
{
    return m_column;
}

void ShapeWidgetContent::createWidgetLayout()
{
    if (m_column < 1)
        return;
    orvane::dropDeleted(m_lsWidget);
    const int count = m_lsWidget.size();
    const int rows = count / m_column + (count % m_column == 0 ? 0 : 1);
    for (int i = 0; i < count; ++i) {
        QWidget *widget = m_lsWidget.at(i);
        m_gridLayout->addWidget(widget, i / m_column, i % m_column);
        widget->setFocusPolicy(Qt::ClickFocus);
        // By signature: any widget with such a signal will do.
        connect(widget, SIGNAL(clicked()), // clazy:exclude=old-style-connect
                this, SLOT(on_itemClicked()), Qt::UniqueConnection);
    }

    // Hosts rely on the size: the widths of the first widgets, as many as there are columns, and
    // the heights of the first widgets, as many as there are rows.
    const auto first = m_lsWidget.cbegin();
    const qint64 widths =
        std::accumulate(first, first + qMin(m_column, count), qint64(0),
                        [](qint64 sum, const QPointer<QWidget> &w) { return sum + w->width(); });
    const qint64 heights =
        std::accumulate(first, first + rows, qint64(0),
                        [](qint64 sum, const QPointer<QWidget> &w) { return sum + w->height(); });
    const QMargins margins = m_gridLayout->contentsMargins();
    // Any number of columns is taken; no widget is larger than Qt's limit.
    const qint64 spacing = m_gridLayout->spacing();
    const qint64 width = widths + (m_column - 1) * spacing + margins.left() + margins.right();
    const qint64 height = heights + (rows - 1) * spacing + margins.top() + margins.bottom();
    resize(int(qMin<qint64>(width, QWIDGETSIZE_MAX)), int(qMin<qint64>(height, QWIDGETSIZE_MAX)));
}

void ShapeWidgetContent::on_itemClicked()
{
    auto *widget = qobject_cast<QWidget *>(sender());
    const int index = widget ? m_lsWidget.indexOf(widget) : -1;
    if (index >= 0)
        Q_EMIT sigClickedIndex(index);
}
