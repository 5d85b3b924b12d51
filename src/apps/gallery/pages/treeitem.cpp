#include "page.h"

#include <treeitem.h>

GALLERY_PAGE(TreeItem)
{
    page.setPurpose("A row of a tree of cabinet models: the model's name above its size.");

    using W = TreeItem;
    page.setStates({{"Normal", State::Normal}, {"Disabled", State::Disabled}});
    page.look("Default", [](QWidget *parent) { return new W("P2.6 indoor", {192, 192}, parent); });
    page.look("Chinese", [](QWidget *parent) { return new W("箱体 P3.9", {256, 128}, parent); });
    page.look("Own sheets", [](QWidget *parent) {
        auto *item = new W("P0.9 studio", {960, 540}, parent);
        item->setTilteStyleSheet("font:bold 10pt; color:rgb(66,145,240);");
        item->setContentStyleSheet("color:rgb(210,210,210);");
        return item;
    });

    page.tryIt(new W("P4.8 floor", {104, 104}));
    page.text<W>("setCabinetName", &W::getCabinetName, &W::setCabinetName);
    page.text<W>("setTilteStyleSheet", Page::withoutGetter(QString()), &W::setTilteStyleSheet);
    page.text<W>("setContentStyleSheet", Page::withoutGetter(QString()), &W::setContentStyleSheet);
}
