#include "boxes.h"
#include "page.h"
#include "pointers.h"

#include <custommessagebox.h>

#include <QToolButton>

namespace
{

// Of a box of the size that the form gives it.
const QRect buttonStrip(112, 144, 278, 48);
const QRect closeCorner(330, 11, 60, 40);

const boxes::Content question{"question.png", "Send the layout to all screens?", "Apply", "OK",
                              "Cancel"};

QWidget *okButton(QWidget *part)
{
    return part->findChild<QWidget *>("frame_ok")->findChild<PushButtonEx *>();
}

QWidget *closeButton(QWidget *part)
{
    return part->findChild<QToolButton *>("toolButton");
}

/// A room in which the box can be dragged; a closed box comes back.
Sample makeRoom()
{
    auto *room = new QWidget;
    room->setFixedSize(480, 260);
    CustomMessageBox *box = boxes::makeEmbedded(room, question);
    box->move(40, 28);
    QObject::connect(
        box, &QDialog::finished, box, [box] { box->show(); }, Qt::QueuedConnection);
    return {room, box, box};
}

/// Shows or hides the buttons through a new filling.
template <class Change> auto refilled(Change change)
{
    return [change](CustomMessageBox *box, bool hidden) {
        boxes::Content content = question;
        change(content, hidden);
        boxes::fill(box, content);
    };
}

} // namespace

GALLERY_PAGE(CustomMessageBox)
{
    page.setPurpose(
        "A modal message in a frameless window with a soft shadow: title, picture, text "
        "and up to three buttons. It is dragged by any place on it.");

    page.setStates({{"Normal", State::Normal},
                    {"OK: hover", State::Hover, pointers::onCentre, okButton},
                    {"OK: pressed", State::Pressed, pointers::onCentre, okButton},
                    {"Disabled", State::Disabled}},
                   "Buttons");
    page.look("All three", [](QWidget *parent) { return boxes::makePart(parent, buttonStrip); });

    page.setStates({{"Normal", State::Normal},
                    {"Hover", State::Hover, pointers::onCentre, closeButton},
                    {"Pressed", State::Pressed, pointers::onCentre, closeButton}},
                   "Close button, with the host's pictures");
    page.look("Close", [](QWidget *parent) { return boxes::makePart(parent, closeCorner); });

    page.setStates({{"Normal", State::Normal}}, "Texts");
    page.look("One line", [](QWidget *parent) {
        return boxes::makeEmbedded(parent,
                                   {"information.png", "The layout was sent.", {}, "OK", {}});
    });
    page.look("Lines", [](QWidget *parent) {
        return boxes::makeEmbedded(parent,
                                   {"waring.png",
                                    "Port 2 carries more than it can:\n655 360 of 650 000 pixels.",
                                    {},
                                    "OK",
                                    {}});
    });
    page.look("Chinese", [](QWidget *parent) {
        return boxes::makeEmbedded(
            parent, {"question.png", "要将布局发送到所有屏幕吗？", {}, "确定", "取消", "屏幕 1"});
    });
    page.look("Widened", [](QWidget *parent) {
        return boxes::makeEmbedded(
            parent,
            {"error.png",
             "The sender at 192.168.0.10 does not answer. Check its cable and power.",
             {},
             "OK",
             {}});
    });

    const Sample room = makeRoom();
    page.tryHere("Try it: drag it, press its buttons", room);
    auto *box = qobject_cast<CustomMessageBox *>(room.target.data());
    page.event(box, "finished", &QDialog::finished);
    page.event(box, "accepted", &QDialog::accepted);
    page.event(box, "rejected", &QDialog::rejected);

    using W = CustomMessageBox;
    page.flag<W>("setCloseBtnIsVisible", Page::withoutGetter(false), &W::setCloseBtnIsVisible);
    page.flag<W>("hide OK", Page::withoutGetter(false),
                 refilled([](boxes::Content &content, bool hidden) {
                     content.okText = hidden ? QString() : question.okText;
                 }));
    page.flag<W>("hide apply", Page::withoutGetter(false),
                 refilled([](boxes::Content &content, bool hidden) {
                     content.applyText = hidden ? QString() : question.applyText;
                 }));
    page.flag<W>("hide cancel", Page::withoutGetter(false),
                 refilled([](boxes::Content &content, bool hidden) {
                     content.cancelText = hidden ? QString() : question.cancelText;
                 }));
    page.number<W>(
        "setOkBtnSize: width", Page::withoutGetter(64),
        [](W *box, int width) { box->setOkBtnSize(width, 30); }, 20, 120, Reach::TryIt);
    page.number<W>(
        "setAppltBtnSize: width", Page::withoutGetter(64),
        [](W *box, int width) { box->setAppltBtnSize(width, 30); }, 20, 120, Reach::TryIt);
    page.number<W>(
        "setCancleBtnSize: width", Page::withoutGetter(64),
        [](W *box, int width) { box->setCancleBtnSize(width, 30); }, 20, 120, Reach::TryIt);
}
