#include "navigation.h"

#include "controls.h"
#include "pagelist.h"
#include "theme.h"

#include <QKeyEvent>
#include <QListWidget>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

namespace
{

constexpr int isHeadingRole = Qt::UserRole;

class NavigationDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &index) const override
    {
        const bool isHeading = index.data(isHeadingRole).toBool();
        return {0, isHeading && index.row() > 0 ? 10 * theme::unit : theme::controlHeight};
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override
    {
        const bool isHeading = index.data(isHeadingRole).toBool();
        const QRect row = option.rect.adjusted(theme::gap, 0, -theme::gap, 0);
        QRect textRect = row.adjusted(theme::gap, 0, -theme::gap, 0);
        painter->save();
        if (isHeading) {
            textRect.setTop(textRect.bottom() - theme::controlHeight);
            painter->setFont(theme::headingFont());
            painter->setPen(theme::quietText);
        } else {
            const bool isSelected = option.state & QStyle::State_Selected;
            const bool isHovered = option.state & QStyle::State_MouseOver;
            if (isSelected || isHovered) {
                painter->setRenderHint(QPainter::Antialiasing);
                painter->setPen(Qt::NoPen);
                painter->setBrush(isSelected ? theme::accent : theme::raised);
                painter->drawRoundedRect(row, theme::cornerRadius, theme::cornerRadius);
            }
            painter->setPen(isSelected ? QColor(Qt::white) : theme::text);
        }
        painter->drawText(textRect, Qt::AlignVCenter | Qt::AlignLeft,
                          painter->fontMetrics().elidedText(index.data().toString(), Qt::ElideRight,
                                                            textRect.width()));
        painter->restore();
    }
};

} // namespace

Navigation::Navigation(QWidget *parent)
    : QWidget(parent)
    , m_filter(new TextField(this))
    , m_list(new QListWidget(this))
{
    setAutoFillBackground(true);
    QPalette ground = palette();
    ground.setColor(QPalette::Window, theme::well);
    setPalette(ground);

    m_filter->setPlaceholderText("Filter (Ctrl+F)");
    m_filter->setAccessibleName("Filter the pages");
    m_filter->setBackgroundColor(theme::ground);
    m_filter->installEventFilter(this);

    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setItemDelegate(new NavigationDelegate(m_list));
    m_list->setMouseTracking(true);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setAccessibleName("Pages");
    theme::styleScrollBars(m_list);

    QString group;
    for (const PageInfo &page : pageList()) {
        if (page.group != group) {
            group = page.group;
            auto *heading = new QListWidgetItem(group, m_list);
            heading->setData(isHeadingRole, true);
            heading->setFlags(Qt::NoItemFlags);
        }
        new QListWidgetItem(page.name, m_list);
    }

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(theme::gap);
    auto *filterLayout = new QVBoxLayout;
    filterLayout->setContentsMargins(theme::gap, theme::margin, theme::gap, 0);
    filterLayout->addWidget(m_filter);
    layout->addLayout(filterLayout);
    layout->addWidget(m_list, 1);

    connect(m_filter, &QLineEdit::textChanged, this, &Navigation::applyFilter);
    connect(m_list, &QListWidget::currentItemChanged, this, [this](QListWidgetItem *item) {
        if (item && !item->data(isHeadingRole).toBool())
            Q_EMIT pageChosen(item->text());
    });
}

void Navigation::setCurrentPage(const QString &name)
{
    for (int row = 0; row < m_list->count(); ++row) {
        QListWidgetItem *item = m_list->item(row);
        if (!item->data(isHeadingRole).toBool() && item->text() == name) {
            m_list->setCurrentItem(item);
            return;
        }
    }
}

void Navigation::step(int direction)
{
    for (int row = m_list->currentRow() + direction; row >= 0 && row < m_list->count();
         row += direction) {
        QListWidgetItem *item = m_list->item(row);
        if (!item->isHidden() && !item->data(isHeadingRole).toBool()) {
            m_list->setCurrentItem(item);
            return;
        }
    }
}

void Navigation::focusFilter()
{
    m_filter->setFocus(Qt::ShortcutFocusReason);
    m_filter->selectAll();
}

QWidget *Navigation::list() const
{
    return m_list;
}

void Navigation::applyFilter(const QString &text)
{
    // A heading stays as long as one of its pages does.
    QListWidgetItem *heading = nullptr;
    for (int row = 0; row < m_list->count(); ++row) {
        QListWidgetItem *item = m_list->item(row);
        if (item->data(isHeadingRole).toBool()) {
            heading = item;
            heading->setHidden(true);
            continue;
        }
        const bool matches = item->text().contains(text.trimmed(), Qt::CaseInsensitive);
        item->setHidden(!matches);
        if (matches && heading)
            heading->setHidden(false);
    }
    if (!m_list->currentItem() || m_list->currentItem()->isHidden()) {
        m_list->setCurrentRow(-1);
        step(1);
    }
}

bool Navigation::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_filter && event->type() == QEvent::KeyPress) {
        switch (static_cast<QKeyEvent *>(event)->key()) {
        case Qt::Key_Down:
            step(1);
            return true;
        case Qt::Key_Up:
            step(-1);
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            m_list->setFocus(Qt::TabFocusReason);
            return true;
        case Qt::Key_Escape:
            m_filter->clear();
            return true;
        default:
            break;
        }
    }
    return QWidget::eventFilter(watched, event);
}
