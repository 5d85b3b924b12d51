#include "boxes.h"
#include "page.h"

#include <custommegbox.h>
#include <custommessagebox.h>

namespace
{

const QString sent = QStringLiteral("The layout was sent to 4 screens.");
const QString overfull = QStringLiteral("Port 2 carries more pixels than it can.");
const QString silent = QStringLiteral("The sender does not answer.");
const QString ask = QStringLiteral("Send the layout to all screens?");
const QString title = QStringLiteral("Screen 1");

} // namespace

GALLERY_PAGE(CustomMegBox)
{
    page.setPurpose("Messages in one call: each function builds a CustomMessageBox, runs it and "
                    "returns 1 for OK, 0 for cancel, 2 for apply, 255 for the close button.");

    using Box = CustomMegBox;
    page.card(
        "Try it",
        boxes::makeCalls({
            {"informationMessageBox",
             [](QWidget *w) { return Box::informationMessageBox(w, title, sent, "OK"); }},
            {"waringMessageBox",
             [](QWidget *w) { return Box::waringMessageBox(w, title, overfull, "OK"); }},
            {"criticalMessageBox",
             [](QWidget *w) { return Box::criticalMessageBox(w, title, silent, "OK"); }},
            {"questionMessageBox",
             [](QWidget *w) { return Box::questionMessageBox(w, title, ask, "Send", "Cancel"); }},
            {"questionMessageBox with apply",
             [](QWidget *w) {
                 return Box::questionMessageBox(w, title, ask, true, "Apply", "OK", "Cancel");
             }},
            {"tipMessageBox",
             [](QWidget *w) {
                 return Box::tipMessageBox(w, title, ask, false, "Send", "Send and save", "Cancel",
                                           true, 80, 112, 72);
             }},
            {"a null parent",
             [](QWidget *) { return Box::informationMessageBox(nullptr, title, sent, "OK"); }},
        }));

    page.setStates({{"Normal", State::Normal}}, "What they show");
    page.look("Information", [](QWidget *parent) {
        return boxes::makeEmbedded(parent, {"information.png", sent, {}, "OK", {}});
    });
    page.look("Warning", [](QWidget *parent) {
        return boxes::makeEmbedded(parent, {"waring.png", overfull, {}, "OK", {}});
    });
    page.look("Critical", [](QWidget *parent) {
        return boxes::makeEmbedded(parent, {"error.png", silent, {}, "OK", {}});
    });
    page.look("Question", [](QWidget *parent) {
        return boxes::makeEmbedded(parent, {"question.png", ask, {}, "Send", "Cancel"});
    });
    page.look("  with apply", [](QWidget *parent) {
        return boxes::makeEmbedded(parent, {"question.png", ask, "Apply", "OK", "Cancel"});
    });
    page.look("Tip", [](QWidget *parent) {
        auto *box = new CustomMessageBox(parent);
        box->setAppltBtnSize(80, 30);
        box->setOkBtnSize(112, 30);
        box->setCancleBtnSize(72, 30);
        boxes::fill(box, {"question.png", ask, "Send", "Send and save", "Cancel"});
        box->setCloseBtnIsVisible(true);
        boxes::embed(box, parent);
        return box;
    });
}
