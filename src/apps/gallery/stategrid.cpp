#include "stategrid.h"

#include "theme.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>

namespace
{

QLabel *quietLabel(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, theme::quietText);
    label->setPalette(palette);
    return label;
}

} // namespace

StateGrid::StateGrid(const QList<StateColumn> &columns, QWidget *parent)
    : QWidget(parent)
    , m_layout(new QGridLayout(this))
    , m_columns(columns)
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setHorizontalSpacing(theme::unit);
    m_layout->setVerticalSpacing(theme::unit);
    for (int column = 0; column < columns.size(); ++column) {
        QLabel *header = quietLabel(columns.at(column).title, this);
        header->setContentsMargins(theme::gap, 0, theme::gap, 0); // above the samples' left edges
        m_layout->addWidget(header, 0, column + 1);
    }
    m_layout->setColumnStretch(columns.size() + 1, 1);
}

QList<SampleFrame *> StateGrid::addLook(const QString &title,
                                        const std::function<Sample(QWidget *)> &make)
{
    const int row = m_rows.size() + 1;
    QLabel *header = quietLabel(title, this);
    header->setMinimumWidth(22 * theme::unit);
    m_layout->addWidget(header, row, 0);
    QList<SampleFrame *> frames;
    for (int column = 0; column < m_columns.size(); ++column) {
        const StateColumn &state = m_columns.at(column);
        auto *frame = new SampleFrame(make, title + ", " + state.title.toLower(), state, this);
        connect(frame, &SampleFrame::chosen, this, &StateGrid::makeTabStop);
        m_layout->addWidget(frame, row, column + 1, Qt::AlignLeft | Qt::AlignVCenter);
        frames.append(frame);
    }
    if (m_rows.isEmpty() && !frames.isEmpty())
        frames.first()->setFocusPolicy(Qt::StrongFocus);
    m_rows.append(frames);
    return frames;
}

void StateGrid::makeTabStop(SampleFrame *frame)
{
    for (const QList<SampleFrame *> &row : qAsConst(m_rows)) {
        for (SampleFrame *other : row)
            other->setFocusPolicy(other == frame ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

void StateGrid::keyPressEvent(QKeyEvent *event)
{
    QPoint step;
    switch (event->key()) {
    case Qt::Key_Left:
        step = QPoint(-1, 0);
        break;
    case Qt::Key_Right:
        step = QPoint(1, 0);
        break;
    case Qt::Key_Up:
        step = QPoint(0, -1);
        break;
    case Qt::Key_Down:
        step = QPoint(0, 1);
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    for (int row = 0; row < m_rows.size(); ++row) {
        for (int column = 0; column < m_rows.at(row).size(); ++column) {
            if (!m_rows.at(row).at(column)->hasFocus())
                continue;
            const int nextRow = qBound(0, row + step.y(), m_rows.size() - 1);
            const int nextColumn = qBound(0, column + step.x(), m_columns.size() - 1);
            m_rows.at(nextRow).at(nextColumn)->setFocus(Qt::TabFocusReason);
            return;
        }
    }
}
