#include "cabinets.h"

#include "controls.h"

#include <draweritem.h>
#include <offlineportitemframe.h>
#include <rowlineitem.h>
#include <toolbuttonex.h>

namespace
{

struct Model {
    const char *name;
    const char *maker;
    QSize size;
    int count;
    int weight;
    float power;
    int pitch;
};

constexpr int drawnLength = 50;
constexpr float supplyVoltage = 5.0F;

const Model models[] = {
    {"P3.9 indoor", "Kelvane", {128, 128}, 12, 8, 120, 391},
    {"P2.6 indoor", "Kelvane", {192, 192}, 24, 8, 145, 260},
    {"P3.9 wide", "Kelvane", {256, 128}, 6, 14, 230, 391},
    {"P1.2 stage", "Marrowby", {480, 270}, 4, 7, 160, 125},
    {"P4.8 floor", "Marrowby", {104, 104}, 18, 13, 180, 481},
    {"P6.2 column", "Marrowby", {64, 192}, 9, 16, 260, 625},
    {"P1.5 lobby", "Tarnholt", {320, 320}, 2, 9, 170, 156},
    {"P10 banner", "Tarnholt", {192, 64}, 30, 22, 310, 1000},
    {"P0.9 studio", "Tarnholt", {960, 540}, 3, 11, 240, 94},
    {"P16 façade", "Tarnholt", {64, 64}, 40, 19, 290, 1600},
};
constexpr int modelCount = int(sizeof models / sizeof models[0]);

StructCabinet record(const Model &model)
{
    const QSize drawn = model.size.scaled(drawnLength, drawnLength, Qt::KeepAspectRatio);
    StructCabinet record{};
    record.cabinetSize = model.size;
    record.cabinetCount = model.count;
    record.extraText1 = QString::fromUtf8(model.name);
    record.extraText2 = QString::fromUtf8(model.maker);
    record.cabinetweight = model.weight;
    record.cabinetpower = model.power;
    record.cabinetVoltage = supplyVoltage;
    record.cabinetuisize = drawn.width();
    record.cabinetuiHsize = drawn.height();
    record.cabinetPointspace = model.pitch;
    return record;
}

ToolButtonEx *makeCabinet(const StructCabinet &record, ButtonType type, QWidget *parent, int side)
{
    auto *button = new ToolButtonEx(parent, type, QString(), QString());
    button->setFixedSize(side, side);
    button->setCabinetName(record.extraText1);
    button->setMakerName(record.extraText2);
    button->setCabinetSize(record.cabinetSize.width(), record.cabinetSize.height());
    button->setCabinetweight(record.cabinetweight);
    button->setCabinetpower(record.cabinetpower);
    button->setCabinetVoltage(record.cabinetVoltage);
    button->setCabinetuisize(record.cabinetuisize);
    button->setCabinetuiHsize(record.cabinetuiHsize);
    button->setCabinetPointspace(record.cabinetPointspace);
    button->setConfigFilePath("models/" + QString(record.extraText1).replace(' ', '-') + ".cab");
    return button;
}

double millimetres(int pitch)
{
    return pitch / 100.0;
}

} // namespace

namespace cabinets
{

QList<StructCabinet> some(int count, int first)
{
    QList<StructCabinet> records;
    for (int i = 0; i < count; ++i)
        records.append(record(models[(first + i) % modelCount]));
    return records;
}

ToolButtonEx *makeModel(const StructCabinet &record, QWidget *parent, int side)
{
    return makeCabinet(record, CabinetModelType, parent, side);
}

ToolButtonEx *makePlaced(const StructCabinet &record, QWidget *parent, int side)
{
    ToolButtonEx *button = makeCabinet(record, CabinetType, parent, side);
    button->setIsDrawCabinetCount(true);
    button->setCabinetCount(record.cabinetCount);
    button->setCabinetInitCount(record.cabinetCount);
    button->setCabnetInfo(record);
    return button;
}

QList<QPair<QString, QString>> mainFields(const StructCabinet &record)
{
    return {{"Model", record.extraText1},
            {"Maker", record.extraText2},
            {"Size", eventText(record.cabinetSize) + " pixels"},
            {"On hand", QString::number(record.cabinetCount)},
            {"Weight", QStringLiteral("%1 kg").arg(record.cabinetweight)},
            {"Power", QStringLiteral("%1 W").arg(record.cabinetpower)},
            {"Voltage", QStringLiteral("%1 V").arg(record.cabinetVoltage)},
            {"Drawn at", eventText(QSize(record.cabinetuisize, record.cabinetuiHsize))},
            {"Pitch", QStringLiteral("%1 mm").arg(millimetres(record.cabinetPointspace))}};
}

} // namespace cabinets

QString eventText(const StructCabinet &record)
{
    return QStringLiteral("{%1, %2, %3, %4 on hand, %5 kg, %6 W, %7 V, drawn at %8, pitch %9 mm}")
        .arg(record.extraText1, record.extraText2, eventText(record.cabinetSize))
        .arg(record.cabinetCount)
        .arg(record.cabinetweight)
        .arg(record.cabinetpower)
        .arg(record.cabinetVoltage)
        .arg(eventText(QSize(record.cabinetuisize, record.cabinetuiHsize)))
        .arg(millimetres(record.cabinetPointspace));
}

QString eventText(DrawerItem *item)
{
    return item->getDeviceName();
}

QString eventText(RowLineItem *row)
{
    return QStringLiteral("port %1").arg(row->portIndex());
}

QString eventText(OfflinePortItemFrame *port)
{
    return QStringLiteral("port %1").arg(port->portIndex());
}
