#include "devices.h"
#include "page.h"

#include <checkboxex.h>
#include <drawitemcontentnew.h>

#include <QLabel>

namespace
{

const QStringList receivers = {"Receiver 1, indoor", "Receiver 2, indoor", "Receiver 3, stage",
                               "Receiver 4, stage", "Receiver 5, façade"};

QString describe(const DrawItemContentNew *list)
{
    QStringList checked;
    QStringList last;
    for (CheckBoxEx *box : list->lsCheckbox()) {
        const QString name = box->text().section(',', 0, 0);
        if (box->isChecked())
            checked.append(name);
        if (box->isLastSelectd())
            last.append(name);
    }
    return "Checked: " + (checked.isEmpty() ? "none" : checked.join(", "))
        + "\nMarked as last: " + (last.isEmpty() ? "none" : last.join(", "));
}

} // namespace

GALLERY_PAGE(DrawItemContentNew)
{
    page.setPurpose("A body of a drawer item that selects among check boxes: one by plain clicks, "
                    "several while the Control key is held.");

    using W = DrawItemContentNew;
    W *list = devices::makeCheckList(receivers);
    auto *state = new QLabel;
    state->setWordWrap(true);
    state->setAlignment(Qt::AlignTop);
    state->setContentsMargins(0, 6 * theme::unit, 0, 0);
    page.tryHere("Try it: click, and click with Control", list, state);
    page.event(list, "signal_itemStateChandged", &W::signal_itemStateChandged);
    const auto update = [list, state] { state->setText(describe(list)); };
    update();
    QObject::connect(list, &W::signal_itemStateChandged, state, update);

    page.setStates({{"Normal", State::Normal}, {"Disabled", State::Disabled}});
    page.look("None", [](QWidget *parent) { return devices::makeCheckList(receivers, 0, parent); });
    page.look("Some", [](QWidget *parent) { return devices::makeCheckList(receivers, 2, parent); });

    page.action<W>(
        "setlsCheckboxStatus(true)",
        [update](W *list) {
            list->setlsCheckboxStatus(true);
            update();
        },
        Reach::TryIt);
    page.action<W>(
        "setlsCheckboxStatus(false)",
        [update](W *list) {
            list->setlsCheckboxStatus(false);
            update();
        },
        Reach::TryIt);
}
