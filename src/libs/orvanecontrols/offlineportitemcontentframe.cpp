#include "offlineportitemcontentframe.h"

#include "internal/livelist.h"
#include "offlineportitemframe.h"
#include "ui_offlineportitemcontentframe.h"

#include <QSpacerItem>

namespace
{

constexpr int itemsPerLine = 4;
// What the size leaves free beside every frame and under the last line.
constexpr int extraItemWidth = 5;
constexpr int extraHeight = 12;

} // namespace

OfflinePortItemContentFrame::OfflinePortItemContentFrame(QWidget *parent)
    : QFrame(parent)
    , m_ui(std::make_unique<Ui::OfflinePortItemContentFrame>())
{
    // Signal spies and queued connections look the type up by name.
    qRegisterMetaType<OfflinePortItemFrame *>();
    m_ui->setupUi(this);
}

OfflinePortItemContentFrame::~OfflinePortItemContentFrame() = default;

void OfflinePortItemContentFrame::addPortItem(int count, ItemType type)
{
    if (count <= 0)
        return;

    QGridLayout *grid = m_ui->gridLayout;
    for (int i = 0; i < count; ++i) {
        auto *item = new OfflinePortItemFrame(this);
        connect(item, &OfflinePortItemFrame::signal_portItemPressed, this,
                &OfflinePortItemContentFrame::slot_portItemPressed);
        item->setLineItemType(i + 1, type);
        grid->addWidget(item, i / itemsPerLine, i % itemsPerLine);
        m_portItems.append(item);
    }

    // The column follows the last line, even where a frame of the first line lies in it: hosts rely
    // on the spacing that comes of it.
    const int lastLine = (count - 1) / itemsPerLine;
    const int lastLineItems = count - lastLine * itemsPerLine;
    grid->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Minimum), 0,
                  lastLineItems);
    grid->addItem(new QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Expanding), lastLine + 1,
                  0);

    orvane::dropDeleted(m_portItems);
    const QSize itemSize = m_portItems.constFirst()->size();
    setFixedSize((grid->horizontalSpacing() + itemSize.width() + extraItemWidth) * itemsPerLine,
                 (grid->verticalSpacing() + itemSize.height()) * (lastLine + 1) + extraHeight);
}

QList<OfflinePortItemFrame *> OfflinePortItemContentFrame::lsOfflinePortItems() const
{
    return orvane::liveWidgets(m_portItems);
}

void OfflinePortItemContentFrame::setLsOfflinePortItems(const QList<OfflinePortItemFrame *> &items)
{
    m_portItems = orvane::liveList(items);
}

void OfflinePortItemContentFrame::slot_portItemPressed(OfflinePortItemFrame *portItem)
{
    Q_EMIT signal_portItemPressed(portItem);
}
