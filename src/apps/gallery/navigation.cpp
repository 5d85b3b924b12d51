#include "navigation.h"

#include "controls.h"
#include "pagelist.h"
#include "theme.h"

#include <treeviewex.h>

#include <QKeyEvent>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

namespace
{

/// Rows as high as the gallery's controls.
class RowDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        return {QStyledItemDelegate::sizeHint(option, index).width(), theme::controlHeight};
    }
};

} // namespace

Navigation::Navigation(QWidget *parent)
    : QWidget(parent)
    , m_filter(new TextField(this))
    , m_tree(new TreeViewEx(this))
{
    m_filter->setPlaceholderText("Filter (Ctrl+F)");
    m_filter->setAccessibleName("Filter the pages");
    m_filter->setBackgroundColor(theme::well);
    m_filter->installEventFilter(this);

    m_tree->setItemDelegate(new RowDelegate(m_tree));
    m_tree->setMouseTracking(true);
    m_tree->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_tree->setAccessibleName("Pages");
    theme::styleScrollBars(m_tree);

    QTreeWidgetItem *group = nullptr;
    for (const PageInfo &page : pageList()) {
        if (!group || group->text(0) != page.group) {
            group = new QTreeWidgetItem(m_tree, {page.group});
            group->setFont(0, theme::headingFont());
        }
        new QTreeWidgetItem(group, {page.name});
    }
    m_tree->expandAll();

    auto *aboutButton = makeButton("&About", NoActivatedBtn, this);
    aboutButton->setToolTip("What this is (F1)");

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(theme::gap, theme::gap, theme::gap, theme::gap);
    layout->setSpacing(theme::gap);
    layout->addWidget(m_filter);
    layout->addWidget(m_tree, 1);
    layout->addWidget(aboutButton, 0, Qt::AlignLeft);

    connect(aboutButton, &QPushButton::clicked, this, &Navigation::aboutAsked);
    connect(m_filter, &QLineEdit::textChanged, this, &Navigation::applyFilter);
    connect(m_tree, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem *item) {
        if (item && item->parent())
            Q_EMIT pageChosen(item->text(0));
    });
}

void Navigation::setCurrentPage(const QString &name)
{
    const QList<QTreeWidgetItem *> all = pages();
    for (QTreeWidgetItem *page : all) {
        if (page->text(0) == name)
            m_tree->setCurrentItem(page);
    }
}

void Navigation::step(int direction)
{
    QList<QTreeWidgetItem *> shown = pages();
    shown.erase(std::remove_if(shown.begin(), shown.end(),
                               [](const QTreeWidgetItem *page) { return page->isHidden(); }),
                shown.end());
    // From a group, or from nowhere, to its end or its beginning.
    const int current = shown.indexOf(m_tree->currentItem());
    const int next = current < 0 && direction < 0 ? shown.size() - 1 : current + direction;
    if (next >= 0 && next < shown.size())
        m_tree->setCurrentItem(shown.at(next));
}

void Navigation::focusFilter()
{
    m_filter->setFocus(Qt::ShortcutFocusReason);
    m_filter->selectAll();
}

void Navigation::applyFilter(const QString &text)
{
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i)
        m_tree->topLevelItem(i)->setHidden(true);
    const QList<QTreeWidgetItem *> all = pages();
    for (QTreeWidgetItem *page : all) {
        const bool matches = page->text(0).contains(text.trimmed(), Qt::CaseInsensitive);
        page->setHidden(!matches);
        // A group stays as long as one of its pages does.
        if (matches)
            page->parent()->setHidden(false);
    }
    if (!m_tree->currentItem() || m_tree->currentItem()->isHidden()) {
        m_tree->setCurrentItem(nullptr);
        step(1);
    }
}

/// All pages from the first to the last, those included that the filter hides.
QList<QTreeWidgetItem *> Navigation::pages() const
{
    QList<QTreeWidgetItem *> pages;
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i) {
        QTreeWidgetItem *group = m_tree->topLevelItem(i);
        for (int j = 0; j < group->childCount(); ++j)
            pages.append(group->child(j));
    }
    return pages;
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
            m_tree->setFocus(Qt::TabFocusReason);
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
