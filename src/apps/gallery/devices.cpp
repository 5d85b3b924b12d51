#include "devices.h"

#include "cabinets.h"

#include <checkboxex.h>
#include <draweritem.h>
#include <draweritemcontent.h>
#include <drawitemcontentnew.h>
#include <offlineportitemcontentframe.h>
#include <offlineportitemframe.h>
#include <rowlineitem.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLayout>

namespace
{

constexpr int bodyWidth = 244;
constexpr int checkBoxHeight = 26;

/// Tells a list of check boxes about the keys, wherever the focus is.
class KeyRelay : public QObject
{
public:
    explicit KeyRelay(DrawItemContentNew *list)
        : QObject(list)
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress)
            tell("slot_keyPressEvent", static_cast<QKeyEvent *>(event)->key());
        else if (event->type() == QEvent::KeyRelease)
            tell("slot_keyReleaseEvent", static_cast<QKeyEvent *>(event)->key());
        else if (event->type() == QEvent::ApplicationDeactivate)
            tell("slot_keyReleaseEvent", Qt::Key_Control); // its release goes to another program
        return false;
    }

private:
    void tell(const char *slot, int key)
    {
        QMetaObject::invokeMethod(parent(), slot, Q_ARG(int, key));
    }
};

/// Marks one row or port as pressed and the others as released.
template <class Port> void markPressed(const QList<Port *> &ports, Port *pressed)
{
    for (Port *port : ports) {
        if (port == pressed)
            port->setItemPressed();
        else
            port->setItemReleased();
    }
}

void setBody(DrawerItem *item, QWidget *body)
{
    body->resize(bodyWidth, body->sizeHint().height());
    item->addItem(body);
    item->setScrollAreaHeight(body->height());
}

checkStateEx stateOf(const DrawItemContentNew *list)
{
    int checked = 0;
    const QList<CheckBoxEx *> boxes = list->lsCheckbox();
    for (const CheckBoxEx *box : boxes)
        checked += box->isChecked() ? 1 : 0;
    if (checked == 0)
        return NoneChecked;
    return checked == boxes.size() ? AllChecked : PartChecked;
}

} // namespace

namespace devices
{

DrawerItemContent *makePorts(int rows, QWidget *parent)
{
    auto *content = new DrawerItemContent(parent);
    content->setFixedWidth(bodyWidth);
    for (int i = 0; i < rows; ++i)
        addPort(content);
    QObject::connect(content, &DrawerItemContent::signal_ItemContentPortItemPressed, content,
                     [content](RowLineItem *row) { markPressed(content->lsRowLineItems(), row); });
    return content;
}

void addPort(DrawerItemContent *content)
{
    constexpr int cabinetCounts[] = {5, 2, 0, 3};
    const int port = content->lsRowLineItems().size() + 1;
    content->addRowLineItem(port, port == 4 ? CoaxialItem : PortItem,
                            cabinets::some(cabinetCounts[(port - 1) % 4], port - 1));
}

DrawItemContentNew *makeCheckList(const QStringList &names, int checkedCount, QWidget *parent)
{
    auto *list = new DrawItemContentNew(parent);
    QList<CheckBoxEx *> boxes;
    for (const QString &name : names) {
        auto *box = new CheckBoxEx(list);
        box->setFixedSize(bodyWidth - 60, checkBoxHeight);
        box->setText(name);
        box->setChecked(boxes.size() < checkedCount);
        list->layout()->addWidget(box);
        boxes.append(box);
        // Private slots: their signatures are what hosts name.
        QObject::connect(box, SIGNAL(clicked(bool)), list, SLOT(slot_itemClicked(bool)));
    }
    list->setLsCheckbox(boxes);
    new KeyRelay(list);
    return list;
}

DrawerItem *makeItem(const QString &name, const QString &port, bool isOnline, QWidget *parent)
{
    auto *item = new DrawerItem(parent);
    item->setDeviceName(name);
    item->setDevicePortName(port, true);
    item->setBOnline(isOnline);
    item->setDrawItemPressed(false);
    return item;
}

DrawerItem *makePortsItem(const QString &name, int rows)
{
    DrawerItem *item = makeItem(name, "COM3", true);
    DrawerItemContent *content = makePorts(rows);
    setBody(item, content);
    QObject::connect(content, SIGNAL(signal_ItemContentPortItemPressed(RowLineItem *)), item,
                     SLOT(on_itemContentPortItemPressed(RowLineItem *)));
    return item;
}

DrawerItem *makeOfflineItem(const QString &name, int ports, bool isCoaxial)
{
    DrawerItem *item = makeItem(name, "last seen at COM5", false);
    auto *content = new OfflinePortItemContentFrame;
    content->addPortItem(ports, isCoaxial ? CoaxialItem : PortItem);
    setBody(item, content);
    QObject::connect(content, &OfflinePortItemContentFrame::signal_portItemPressed, content,
                     [content](OfflinePortItemFrame *port) {
                         markPressed(content->lsOfflinePortItems(), port);
                     });
    QObject::connect(content, SIGNAL(signal_portItemPressed(OfflinePortItemFrame *)), item,
                     SLOT(slot_itemContentPortItemPressed(OfflinePortItemFrame *)));
    return item;
}

DrawerItem *makeCheckItem(const QString &name, int checkedCount)
{
    DrawerItem *item = makeItem(name, "COM4", true);
    DrawItemContentNew *list =
        makeCheckList({"Receiver 1", "Receiver 2", "Receiver 3", "Receiver 4"}, checkedCount);
    setBody(item, list);
    item->setCheckAllVisible(true);
    item->setCheckAllStyle(stateOf(list));
    QObject::connect(list, SIGNAL(signal_itemStateChandged(int)), item,
                     SLOT(slot_itemStateChandged(int)));
    QObject::connect(list, &DrawItemContentNew::signal_itemStateChandged, item,
                     [item, list] { item->setCheckAllStyle(stateOf(list)); });
    QObject::connect(item, &DrawerItem::signal_checkAllItemContent, list,
                     [item, list](DrawerItem *, bool isCheckAll) {
                         list->setlsCheckboxStatus(isCheckAll);
                         item->setCheckAllStyle(stateOf(list));
                     });
    return item;
}

} // namespace devices
