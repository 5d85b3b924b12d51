#include "boxes.h"
#include "page.h"
#include "pointers.h"

#include <custommessagebox.h>

#include <QAbstractButton>
#include <QApplication>

namespace
{

const boxes::Content question{"question.png", "Send the layout to all screens?", "Apply", "OK",
                              "Cancel"};

/// The button that a part of a box shows: the only one that is not clipped away.
QWidget *seenButton(QWidget *part)
{
    for (auto *button : part->findChildren<QAbstractButton *>()) {
        if (part->rect().contains(button->mapTo(part, button->rect().center())))
            return button;
    }
    return nullptr;
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
        QWidget *focusWidget = QApplication::focusWidget();
        boxes::fill(box, content);
        if (focusWidget)
            focusWidget->setFocus(); // which a filled box has given to its OK button
    };
}

} // namespace

GALLERY_PAGE(CustomMessageBox)
{
    page.setPurpose(
        "A modal message in a frameless window with a soft shadow: title, picture, text "
        "and up to three buttons. It is dragged by any place on it.");

    page.setStates({{"Normal", State::Normal},
                    {"Hover", State::Hover, pointers::onCentre, seenButton},
                    {"Pressed", State::Pressed, pointers::onCentre, seenButton},
                    {"Disabled", State::Disabled}},
                   "Buttons");
    page.look("OK", [](QWidget *parent) { return boxes::makePart(parent, "frame_ok"); });
    page.look("Apply", [](QWidget *parent) { return boxes::makePart(parent, "frame_apply"); });
    page.look("Cancel", [](QWidget *parent) { return boxes::makePart(parent, "frame_cancel"); });
    page.look("Close, in the host's pictures",
              [](QWidget *parent) { return boxes::makePart(parent, "toolButton"); });

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
