#include "layoutwarnings.h"
#include "page.h"

#include <windowtitle.h>

#include <QLabel>
#include <QPushButton>

namespace
{

constexpr int titleHeight = 30;
constexpr int buttonsWidth = 90;
constexpr int tryWidth = 260;
constexpr char logo[] = ":/Resource/Images/globalResource/toolbutton/cabinetchanged.png";
constexpr char logoTextSheet[] = "QLabel{color:rgb(210,210,210);}";

WindowTitle *makeTitle(QWidget *parent, int width, bool isMaximized)
{
    const LayoutWarningsMuted muted;
    auto *title = new WindowTitle(QSize(width, titleHeight), parent);
    title->setBtnMax(isMaximized);
    return title;
}

/// With a logo that is laid out as a host does it: by hand.
WindowTitle *makeLogoTitle(QWidget *parent, int width, bool isMaximized)
{
    WindowTitle *title = makeTitle(parent, width, isMaximized);
    title->SetLogoImagePath(logo);
    title->SetLogoImageSize({18, 18});
    title->SetLogoTextStyleSheet(logoTextSheet);
    title->SetLogoTextValue("LED wall");
    const QList<QLabel *> labels = title->findChildren<QLabel *>();
    labels.at(0)->move(10, 6);
    labels.at(1)->move(38, 6);
    title->SetMinBtnToolTip("Minimise");
    title->SetMaxBtnToolTip(isMaximized ? "Restore" : "Maximise");
    title->SetCloseBtnToolTip("Close");
    return title;
}

/// A column that has the pointer on a button. They are created from the right to the left, but for
/// the last one.
StateColumn hovered(const QString &title, int button)
{
    return {title, State::Hover, [](QWidget *part) { return part->rect().center(); },
            [button](QWidget *widget) -> QWidget * {
                return widget->findChildren<QPushButton *>().value(button);
            }};
}

} // namespace

GALLERY_PAGE(WindowTitle)
{
    page.setPurpose("The title bar of a frameless window: a logo, and the buttons that minimise, "
                    "maximise or restore, and close. It reports clicks and does nothing itself.");

    constexpr int wide = 520;
    page.setStates({{"Normal", State::Normal}}, "Titles");
    page.look("Maximised", [](QWidget *parent) { return makeLogoTitle(parent, wide, true); });
    page.look("Restored", [](QWidget *parent) { return makeLogoTitle(parent, wide, false); });
    page.look("No logo", [](QWidget *parent) {
        WindowTitle *title = makeLogoTitle(parent, wide, true);
        title->SetLogoGroupVisable(false);
        return title;
    });
    page.look("No buttons", [](QWidget *parent) {
        WindowTitle *title = makeLogoTitle(parent, wide, true);
        title->SetBtnGroupVisable(false);
        return title;
    });
    page.look("Logo not placed", [](QWidget *parent) {
        WindowTitle *title = makeTitle(parent, wide, true);
        title->SetLogoTextStyleSheet(logoTextSheet);
        title->SetLogoTextValue("LED wall");
        return title;
    });

    page.setStates({{"Normal", State::Normal},
                    hovered("Hover: minimise", 1),
                    hovered("Hover: maximise", 2),
                    hovered("Hover: close", 0)},
                   "Buttons");
    page.look("Maximise", [](QWidget *parent) { return makeTitle(parent, buttonsWidth, false); });
    page.look("Restore", [](QWidget *parent) { return makeTitle(parent, buttonsWidth, true); });
    page.look("Held down", [](QWidget *parent) {
        WindowTitle *title = makeTitle(parent, buttonsWidth, false);
        for (QPushButton *button : title->findChildren<QPushButton *>())
            button->setDown(true);
        return title;
    });

    using W = WindowTitle;
    WindowTitle *title = page.tryIt(makeLogoTitle(nullptr, tryWidth, true));
    page.event(title, "signal_minimizeMainForm", &W::signal_minimizeMainForm);
    page.event(title, "signal_maxMainForm", &W::signal_maxMainForm);
    page.event(title, "signal_closeMainForm", &W::signal_closeMainForm);
    page.event(title, "signal_mouseDoubleClickIntitle", &W::signal_mouseDoubleClickIntitle);

    page.number<W>(
        "rebuildUI, width", &W::width,
        [](W *title, int width) {
            title->rebuildUI({width, titleHeight});
        },
        buttonsWidth, 400, Reach::TryIt);
    page.flag<W>("setBtnMax", Page::withoutGetter(true), &W::setBtnMax);
    page.flag<W>("SetBtnGroupVisable", Page::withoutGetter(true), &W::SetBtnGroupVisable);
    page.flag<W>("SetLogoGroupVisable", Page::withoutGetter(true), &W::SetLogoGroupVisable);
    page.text<W>("SetLogoTextValue", Page::withoutGetter(QString("LED wall")),
                 &W::SetLogoTextValue);
    page.text<W>("SetLogoTextStyleSheet", Page::withoutGetter(QString(logoTextSheet)),
                 &W::SetLogoTextStyleSheet);
    page.text<W>("SetLogoImagePath", Page::withoutGetter(QString(logo)), &W::SetLogoImagePath);
    page.number<W>(
        "SetLogoImageSize, both", Page::withoutGetter(18),
        [](W *title, int size) {
            title->SetLogoImageSize({size, size});
        },
        8, titleHeight, Reach::TryIt);
    page.number<W>(
        "SetLogoTextSize, width", Page::withoutGetter(100),
        [](W *title, int width) {
            title->SetLogoTextSize({width, 18});
        },
        20, 200, Reach::TryIt);
    page.text<W>("SetMinBtnToolTip", Page::withoutGetter(QString("Minimise")),
                 &W::SetMinBtnToolTip);
    page.text<W>("SetMaxBtnToolTip", Page::withoutGetter(QString("Restore")), &W::SetMaxBtnToolTip);
    page.text<W>("SetCloseBtnToolTip", Page::withoutGetter(QString("Close")),
                 &W::SetCloseBtnToolTip);
}
