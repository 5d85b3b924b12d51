// A drawer with a sender whose four ports have cabinets, and an answer to a press on a port.

#include "../once.h"

#include <orvanecontrols/drawer.h>
#include <orvanecontrols/draweritem.h>
#include <orvanecontrols/draweritemcontent.h>
#include <orvanecontrols/rowlineitem.h>

#include <QLabel>
#include <QVBoxLayout>

namespace
{

constexpr int bodyWidth = 244;
constexpr int portCount = 4;

/// The record by which the panels know a cabinet. Every number of it has to be set.
StructCabinet makeCabinet(const QString &name, int count)
{
    StructCabinet cabinet{};
    cabinet.cabinetSize = QSize(192, 192);
    cabinet.cabinetCount = count;
    cabinet.extraText1 = name;
    cabinet.cabinetuisize = 50;
    cabinet.cabinetuiHsize = 50;
    return cabinet;
}

DrawerItem *makeSender(const QString &name, const QString &connection)
{
    auto *content = new DrawerItemContent;
    content->setFixedWidth(bodyWidth);
    for (int port = 1; port <= portCount; ++port)
        content->addRowLineItem(port, PortItem, {makeCabinet("Stage 2.6", 3 * port)});

    auto *item = new DrawerItem;
    item->setDeviceName(name);
    item->setDevicePortName(connection, true);
    item->setBOnline(true);
    item->setDrawItemPressed(false);
    item->addItem(content); // sized before, and owned by the item from now on
    item->setScrollAreaHeight(content->height());
    // The slot is not public: its signature is its name.
    QObject::connect(content, SIGNAL(signal_ItemContentPortItemPressed(RowLineItem *)), item,
                     SLOT(on_itemContentPortItemPressed(RowLineItem *)));
    return item;
}

/// Rows only report that they were pressed: which one looks pressed is up to the host.
void markPressed(DrawerItem *item, RowLineItem *pressed)
{
    const QList<RowLineItem *> rows = item->findChildren<RowLineItem *>();
    for (RowLineItem *row : rows) {
        if (row == pressed)
            row->setItemPressed();
        else
            row->setItemReleased();
    }
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(56, 56, 56));
    palette.setColor(QPalette::WindowText, QColor(210, 210, 210));
    QApplication::setPalette(palette);

    QWidget window;
    window.setWindowTitle("Drawer");

    auto *drawer = new Drawer;
    auto *answer = new QLabel("Press the button of a port.");
    auto *layout = new QVBoxLayout(&window);
    layout->addWidget(drawer, 1);
    layout->addWidget(answer);

    DrawerItem *sender = makeSender("Main left", "COM3");
    drawer->addDrawerItem(sender);
    drawer->setSelectItemByIndex(0);
    QObject::connect(sender, &DrawerItem::signal_ItemContentPortItemPressed, answer,
                     [answer](DrawerItem *item, RowLineItem *row) {
                         markPressed(item, row);
                         answer->setText(QString("Port %1 of %2 was pressed.")
                                             .arg(row->portIndex())
                                             .arg(item->getDeviceName()));
                     });

    window.resize(320, 480);
    window.show();
    quitOnce([&window] { return isOnScreen(&window); });
    return QApplication::exec();
}
