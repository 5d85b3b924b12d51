#include "eventpane.h"

#include "controls.h"
#include "theme.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QStyledItemDelegate>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace
{

constexpr int keptEvents = 1000;
constexpr int lineHeight = 5 * theme::unit;
constexpr int signalColumn = 2;

/// Gives an event as many lines as its text takes: a record takes several.
class EventDelegate : public QStyledItemDelegate
{
public:
    explicit EventDelegate(QTreeWidget *list)
        : QStyledItemDelegate(list)
        , m_list(list)
    {
    }

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        if (index.column() != signalColumn)
            return {0, lineHeight};
        const int margin = 1 + m_list->style()->pixelMetric(QStyle::PM_FocusFrameHMargin);
        const QRect text =
            option.fontMetrics.boundingRect(0, 0, m_list->columnWidth(signalColumn) - 2 * margin, 0,
                                            Qt::TextWordWrap, index.data().toString());
        const int lines = qMax(1, text.height() / option.fontMetrics.lineSpacing());
        return {0, lineHeight + (lines - 1) * option.fontMetrics.lineSpacing()};
    }

private:
    QTreeWidget *m_list;
};

} // namespace

EventPane::EventPane(QWidget *parent)
    : QWidget(parent)
    , m_count(new QLabel(this))
    , m_list(new QTreeWidget(this))
    , m_clearButton(makeButton("C&lear", NoActivatedBtn, this))
{
    auto *heading = new QLabel("Events", this);
    heading->setFont(theme::headingFont());
    QPalette quiet = m_count->palette();
    quiet.setColor(QPalette::WindowText, theme::quietText);
    m_count->setPalette(quiet);

    m_list->setColumnCount(3);
    m_list->setHeaderHidden(true);
    m_list->setRootIsDecorated(false);
    m_list->setWordWrap(true);
    m_list->setItemDelegate(new EventDelegate(m_list));
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setSelectionMode(QAbstractItemView::NoSelection);
    m_list->setIndentation(0);
    m_list->setAccessibleName("Events");
    m_list->header()->setStretchLastSection(true);
    m_list->header()->setMinimumSectionSize(1);
    m_list->setColumnWidth(0, 10 * theme::unit);
    m_list->setColumnWidth(1, 28 * theme::unit);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    theme::styleScrollBars(m_list);
    connect(m_list->header(), &QHeaderView::sectionResized, m_list, &QTreeWidget::doItemsLayout);

    auto *header = new QHBoxLayout;
    header->setSpacing(theme::gap);
    header->addWidget(heading);
    header->addWidget(m_count, 1);
    header->addWidget(m_clearButton);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(theme::margin, theme::gap, theme::margin, theme::margin);
    layout->setSpacing(theme::gap);
    layout->addLayout(header);
    layout->addWidget(m_list);

    connect(m_clearButton, &QPushButton::clicked, this, &EventPane::clear);
    clear();
}

void EventPane::add(const QString &className, const QString &signal)
{
    ++m_number;
    auto *item = new QTreeWidgetItem({QString::number(m_number), className, signal});
    item->setTextAlignment(0, Qt::AlignRight | Qt::AlignTop);
    item->setTextAlignment(1, Qt::AlignLeft | Qt::AlignTop);
    item->setTextAlignment(2, Qt::AlignLeft | Qt::AlignTop);
    item->setForeground(0, theme::disabledText);
    item->setForeground(1, theme::quietText);
    item->setToolTip(2, signal);
    m_list->addTopLevelItem(item);
    if (m_list->topLevelItemCount() > keptEvents)
        delete m_list->takeTopLevelItem(0);
    m_list->scrollToBottom();
    m_count->setText(QString::number(m_number));
    m_clearButton->setEnabled(true);
    Q_EMIT countChanged(m_number);
}

void EventPane::clear()
{
    m_number = 0;
    m_list->clear();
    m_count->setText("none yet");
    m_clearButton->setEnabled(false);
    Q_EMIT countChanged(0);
}
