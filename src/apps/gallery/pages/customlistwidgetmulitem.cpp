#include "lists.h"
#include "page.h"

#include <customlistwidgetmulitem.h>
#include <labelex.h>

namespace
{

Sample makeRow(QWidget *parent, const QStringList &texts)
{
    auto *row = new CustomListWidgetMulItem(texts, nullptr, false);
    row->setFixedSize(500, 34);
    return Sample(lists::makeLightWindow(parent, row), row, row);
}

} // namespace

GALLERY_PAGE(CustomListWidgetMulItem)
{
    page.setPurpose("A row of an equipment list: texts in columns whose widths depend on how many "
                    "there are. Only a double click is reported.");

    page.setStates({{"Normal", State::Normal}});
    page.look("One text", [](QWidget *parent) { return makeRow(parent, {"COM3"}); });
    page.look("Two texts", [](QWidget *parent) { return makeRow(parent, {"COM3", "online"}); });
    page.look("Three texts", [](QWidget *parent) {
        return makeRow(parent, {"COM3", "Sender A7", "16"});
    });
    page.look("Four texts", [](QWidget *parent) {
        return makeRow(parent, {"COM3", "发送卡 A7", "4", "online"});
    });
    page.look("Elided", [](QWidget *parent) {
        return makeRow(parent, {"USB, serial number 4471-2093-0018", "Sender with fan", "4"});
    });

    page.setStates({{"Disabled", State::Disabled}}, "Disabled");
    page.look("Three texts", [](QWidget *parent) {
        return makeRow(parent, {"COM3", "Sender A7", "16"});
    });

    using W = CustomListWidgetMulItem;
    const Sample tried = makeRow(nullptr, {"COM3", "online"});
    page.tryHere("Try it: double-click", tried);
    auto *row = qobject_cast<W *>(tried.target.data());
    page.event(row, "signal_itemDoubleClicked", &W::signal_itemDoubleClicked);
    page.event(row, "signal_enterButtonClick", &W::signal_enterButtonClick);
    page.text<W>(
        "getLabelList, first", [](W *row) { return row->getLabelList().first()->text(); },
        [](W *row, const QString &text) { row->getLabelList().first()->setText(text); });
    page.action<W>("slot_dealEnterButtonClick()", &W::slot_dealEnterButtonClick, Reach::TryIt);
}
