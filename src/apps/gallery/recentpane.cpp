#include "recentpane.h"

#include "theme.h"

#include <customlistwidgetitem.h>
#include <listwidgetex.h>

#include <QVBoxLayout>

namespace
{

constexpr int keptPages = 20;

} // namespace

RecentPane::RecentPane(QWidget *parent)
    : QWidget(parent)
    , m_list(new ListWidgetEx(this))
{
    m_list->setBgNormalColor(theme::ground);
    m_list->setBgHoverColor(theme::raised);
    m_list->setBgPressedColor(theme::raised);
    m_list->setFontColor(theme::text);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setAccessibleName("Recent pages");
    theme::styleScrollBars(m_list);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(theme::gap, theme::gap, theme::gap, theme::gap);
    layout->addWidget(m_list);

    connect(m_list, &ListWidgetEx::signal_notifyProjectPath, this,
            [this](CustomListWidgetItem *, const QString &name) { Q_EMIT pageChosen(name); });
    connect(m_list, &QListWidget::itemActivated, this,
            [this](QListWidgetItem *item) { Q_EMIT pageChosen(m_names.value(m_list->row(item))); });
    connect(m_list, &ListWidgetEx::signal_notifydeleteItem, this,
            [this](ListWidgetEx *, CustomListWidgetItem *, int index) {
                m_names.removeAt(index);
                m_list->deleteItem(index);
            });
}

void RecentPane::add(const QString &pageName)
{
    if (m_names.value(0) == pageName)
        return;
    m_names.removeAll(pageName);
    m_names.prepend(pageName);
    m_names = m_names.mid(0, keptPages);
    fill();
}

void RecentPane::fill()
{
    m_list->clearAllItems();
    for (const QString &name : qAsConst(m_names))
        m_list->addCustomItem(name, name);
}
