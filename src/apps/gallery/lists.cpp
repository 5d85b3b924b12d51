#include "lists.h"

#include "controls.h"

#include <customlistwidgetitem.h>
#include <customlistwidgetmulitem.h>
#include <equiplistwidget.h>
#include <listwidgetex.h>
#include <treeitem.h>

#include <QPalette>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace
{

struct Project {
    const char *name;
    const char *path;
    bool isMissing;
};
const Project projects[] = {
    {"Left wing", "/projects/stage/left-wing.wall", false},
    {"Lobby ceiling", "/projects/lobby/ceiling.wall", false},
    {"Hall 4, 2019", "/media/usb/fair/hall-4.wall", true},
    {"体育馆 north", "/projects/arena/north.wall", false},
    {"Studio", "/media/old-disk/studio.wall", true},
    {"Roof banner", "/projects/roof/banner.wall", false},
};
constexpr int projectCount = int(sizeof projects / sizeof projects[0]);

struct Device {
    const char *port;
    const char *model;
    const char *ports;
    const char *state;
};
const Device devices[] = {
    {"COM3", "Sender A7", "4", "online"},
    {"COM4", "Sender A7", "16", "online"},
    {"192.168.1.20", "Sender B2", "8", "offline"},
    {"USB, serial 4471-2093", "Controller", "2", "online"},
};
constexpr int deviceCount = int(sizeof devices / sizeof devices[0]);

} // namespace

namespace lists
{

QWidget *makeLightWindow(QWidget *parent, QWidget *content)
{
    auto *window = new QWidget(parent);
    window->setStyleSheet("QLabel{color:rgb(56,56,56);}QLabel:disabled{color:rgb(153,153,153);}");
    window->setAutoFillBackground(true);
    QPalette palette = window->palette();
    palette.setColor(QPalette::Window, QColor(245, 245, 245));
    window->setPalette(palette);
    auto *layout = new QVBoxLayout(window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(content);
    return window;
}

void addProjects(ListWidgetEx *list, int count)
{
    for (int i = 0; i < count; ++i) {
        const Project &project = projects[list->count() % projectCount];
        CustomListWidgetItem *row =
            list->addCustomItem(QString::fromUtf8(project.name), project.path);
        row->setValidIcon(project.isMissing);
    }
}

QWidget *trashButton(QWidget *row)
{
    return row->layout()->itemAt(2)->widget();
}

void addDevices(EquipListWidget *list, int count, int columns)
{
    for (int i = 0; i < count; ++i) {
        const Device &device = devices[list->getItems().size() % deviceCount];
        const QStringList texts = columns == 2
            ? QStringList{device.port, device.state}
            : QStringList{device.port, device.model, device.ports, device.state}.mid(0, columns);
        list->addCustomItem(texts, false);
    }
}

} // namespace lists

QString eventText(ListWidgetEx *list)
{
    return QStringLiteral("list of %1 rows").arg(list->count());
}

QString eventText(CustomListWidgetItem *item)
{
    return item->getProjectPath();
}

QString eventText(CustomListWidgetMulItem *item)
{
    return item->getCurrentDevportName();
}

QString eventText(QTreeWidgetItem *item)
{
    if (auto *row = qobject_cast<TreeItem *>(item->treeWidget()->itemWidget(item, 0)))
        return row->getCabinetName();
    return item->text(0);
}
