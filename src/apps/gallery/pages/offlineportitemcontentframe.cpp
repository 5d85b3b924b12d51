#include "cabinets.h"
#include "page.h"

#include <offlineportitemcontentframe.h>
#include <offlineportitemframe.h>

#include <QGridLayout>
#include <QLabel>

namespace
{

OfflinePortItemContentFrame *makePorts(QWidget *parent, int count, ItemType type)
{
    auto *frame = new OfflinePortItemContentFrame(parent);
    frame->addPortItem(count, type);
    return frame;
}

/// The grids of 1 to 16 ports, two in a line.
QWidget *makeBoard()
{
    constexpr int columns = 2;
    auto *board = new QWidget;
    auto *layout = new QGridLayout(board);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(6 * theme::unit);
    layout->setVerticalSpacing(theme::gap);
    layout->setColumnStretch(columns, 1);
    for (int i = 0; i < 16; ++i) {
        const bool isCoaxial = i % columns == 1;
        auto *title =
            new QLabel(QStringLiteral("%1 %2%3").arg(i + 1).arg(
                           isCoaxial ? "coaxial port" : "network port", i == 0 ? "" : "s"),
                       board);
        QPalette palette = title->palette();
        palette.setColor(QPalette::WindowText, theme::quietText);
        title->setPalette(palette);
        const int line = 2 * (i / columns);
        layout->addWidget(title, line, i % columns);
        layout->addWidget(makePorts(board, i + 1, isCoaxial ? CoaxialItem : PortItem), line + 1,
                          i % columns, Qt::AlignTop);
    }
    return board;
}

} // namespace

GALLERY_PAGE(OfflinePortItemContentFrame)
{
    page.setPurpose("The ports of a device that is offline: four in a line, without cabinets. It "
                    "is the body of a drawer item.");

    page.card("Grids of 1 to 16 ports", makeBoard());

    using W = OfflinePortItemContentFrame;
    W *ports = page.tryIt(makePorts(nullptr, 16, PortItem));
    page.event(ports, "signal_portItemPressed", &W::signal_portItemPressed);
    QObject::connect(ports, &W::signal_portItemPressed, &page, [ports](OfflinePortItemFrame *port) {
        for (OfflinePortItemFrame *other : ports->lsOfflinePortItems()) {
            if (other == port)
                other->setItemPressed();
            else
                other->setItemReleased();
        }
    });

    page.flag<W>("setEnabled", &W::isEnabled, &W::setEnabled);
}
