#include "cabinets.h"
#include "lists.h"
#include "page.h"

#include <treeitem.h>
#include <treeviewex.h>

#include <QCoreApplication>
#include <QHoverEvent>

namespace
{

/// Adds a family of \a count models, whose check states take turns.
void addFamily(TreeViewEx *tree, const QString &name, int count, int first, bool isExpanded)
{
    constexpr Qt::CheckState states[] = {Qt::Checked, Qt::PartiallyChecked, Qt::Unchecked};
    auto *family = new QTreeWidgetItem(tree, {name});
    const QList<StructCabinet> records = cabinets::some(count, first);
    for (int i = 0; i < records.size(); ++i) {
        tree->addTreeItem(family, records.at(i).extraText1, records.at(i).cabinetSize, nullptr,
                          states[i % 3]);
    }
    family->setExpanded(isExpanded);
}

TreeViewEx *makeTree(QWidget *parent, QSize size)
{
    auto *tree = new TreeViewEx(parent);
    tree->setFixedSize(size);
    addFamily(tree, "Kelvane", 3, 0, true);
    addFamily(tree, "Marrowby", 3, 3, false);
    return tree;
}

QWidget *pointedRow(QWidget *widget)
{
    auto *tree = static_cast<TreeViewEx *>(widget);
    QTreeWidgetItem *row = tree->topLevelItem(0)->child(1);
    QHoverEvent hover(QEvent::HoverMove, tree->visualItemRect(row).center(), QPointF(-1, -1));
    QCoreApplication::sendEvent(tree->viewport(), &hover);
    return tree->itemWidget(row, 0);
}

TreeViewEx *makeSelected(TreeViewEx *tree)
{
    tree->setCurrentItem(tree->topLevelItem(0)->child(1));
    return tree;
}

} // namespace

GALLERY_PAGE(TreeViewEx)
{
    page.setPurpose("A tree of cabinet models by maker. A click anywhere on a model checks it, or "
                    "unchecks it.");

    constexpr QSize size(164, 160);
    page.setStates({{"Normal", State::Normal},
                    {"Hover", State::Hover, {}, pointedRow},
                    {"Disabled", State::Disabled}});
    page.look("Default", [size](QWidget *parent) { return makeTree(parent, size); });
    page.look("Selected", [size](QWidget *parent) { return makeSelected(makeTree(parent, size)); });

    using W = TreeViewEx;
    W *tree = page.tryIt(makeTree(nullptr, {260, 320}));
    addFamily(tree, "Tarnholt", 4, 6, true);
    theme::styleScrollBars(tree);
    page.event(tree, "itemClicked", &W::itemClicked);
    page.event(tree, "itemChanged", &W::itemChanged);

    page.text<W>("setStrTitleStyle", &W::strTitleStyle, &W::setStrTitleStyle);
    page.text<W>("setStrContentStyle", &W::strContentStyle, &W::setStrContentStyle);
    page.action<W>(
        "addTreeItem() × 3",
        [](W *tree) { addFamily(tree, "Added", 3, tree->topLevelItemCount(), true); },
        Reach::TryIt);
    page.action<W>("removeAllItem()", &W::removeAllItem, Reach::TryIt);
}
