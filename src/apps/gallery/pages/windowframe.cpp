#include "layoutwarnings.h"
#include "page.h"

#include <windowframe.h>
#include <windowtitle.h>

#include <QDialog>
#include <QLabel>

namespace
{

constexpr QSizeF smallMaximum(520, 200);
constexpr QSizeF smallMinimum(360, 130);
constexpr QSizeF realMaximum(960, 600);
constexpr QSizeF realMinimum(560, 360);
constexpr int titleHeight = 30;

/// A window as a host derives it: the close button hides it.
class DemoFrame : public WindowFrame
{
public:
    DemoFrame(const QSizeF &maximum, const QSizeF &minimum, const QString &text, QWidget *parent)
        : WindowFrame(maximum, maximum, minimum, parent)
    {
        auto *content = new QLabel(text);
        content->setAlignment(Qt::AlignCenter);
        content->setMargin(theme::margin);
        content->setWordWrap(true);
        content->setMouseTracking(true); // the frame's edges are hovered through it
        // The title, and the border.
        setContentsMargins(1, titleHeight, 1, 1);
        setCentralWidget(content);
        WindowTitle *title = GetTitleWidget();
        title->SetLogoTextStyleSheet("QLabel{color:rgb(210,210,210);}");
        title->SetLogoTextValue("LED wall");
        title->findChildren<QLabel *>().at(1)->move(10, 6);
    }

protected:
    void closeEvent(QCloseEvent *event) override
    {
        if (event)
            WindowFrame::closeEvent(event);
        else
            close();
    }
};

DemoFrame *makeFrame(const QSizeF &maximum, const QSizeF &minimum, const QString &text,
                     QWidget *parent)
{
    const LayoutWarningsMuted muted;
    return new DemoFrame(maximum, minimum, text, parent);
}

/// The frame as a part of the page, to be looked at.
DemoFrame *makePicture(QWidget *parent, const QString &text)
{
    DemoFrame *frame = makeFrame(smallMaximum, smallMinimum, text, parent);
    frame->setWindowFlags(Qt::Widget);
    return frame;
}

} // namespace

GALLERY_PAGE(WindowFrame)
{
    page.setPurpose("A frameless main window with a title bar of its own. It starts at its maximum "
                    "size, is restored to its minimum size, and shows an outline while it is "
                    "dragged by the title.");

    page.setStates({{"Normal", State::Normal}});
    page.look("Maximised", [](QWidget *parent) {
        return makePicture(parent, "The maximum size: the middle button offers to restore.");
    });
    page.look("Restored", [](QWidget *parent) {
        DemoFrame *frame = makePicture(parent, "The minimum size: it offers to maximise.");
        frame->slot_showMaximized();
        return frame;
    });
    page.look("Child rubber band", [](QWidget *parent) {
        DemoFrame *frame = makePicture(parent, "The rubber band as a child of the frame.");
        frame->SetRubberBandShape(ChildRubberBand);
        auto *band = frame->findChild<QDialog *>();
        band->setGeometry(60, 50, 400, 120);
        band->show();
        return frame;
    });

    using W = WindowFrame;
    DemoFrame *frame =
        makeFrame(realMaximum, realMinimum,
                  "Drag the title: an outline moves, and the window follows when you let go.\n\n"
                  "Double-click the title to restore and to maximise. The cursor changes at the "
                  "edges, but they resize nothing.",
                  &page);
    PushButtonEx *open = makeButton("Open the window", ActivatedBtn, nullptr);
    QObject::connect(open, &QPushButton::clicked, frame, [frame] {
        frame->setWindowState(frame->windowState() & ~Qt::WindowMinimized);
        frame->show();
        frame->activateWindow();
    });
    page.tryIt(Sample(open, frame, frame));
    const WindowTitle *title = frame->GetTitleWidget();
    using T = WindowTitle;
    page.event(title, "signal_minimizeMainForm", &T::signal_minimizeMainForm);
    page.event(title, "signal_maxMainForm", &T::signal_maxMainForm);
    page.event(title, "signal_closeMainForm", &T::signal_closeMainForm);
    page.event(title, "signal_mouseDoubleClickIntitle", &T::signal_mouseDoubleClickIntitle);

    page.action<W>("slot_showMaximized()", &W::slot_showMaximized, Reach::TryIt);
    page.action<W>("slot_showMinimized()", &W::slot_showMinimized, Reach::TryIt);
    page.action<W>("slot_close()", &W::slot_close, Reach::TryIt);
    page.number<W>(
        "SetFrameCurSize, width", &W::width,
        [](W *frame, int width) {
            frame->SetFrameCurSize({qreal(width), qreal(frame->height())});
            frame->rebuildUI();
        },
        int(smallMinimum.width()), int(realMaximum.width()), Reach::TryIt);
    page.number<W>(
        "SetFrameCurSize, height", &W::height,
        [](W *frame, int height) {
            frame->SetFrameCurSize({qreal(frame->width()), qreal(height)});
            frame->rebuildUI();
        },
        int(smallMinimum.height()), int(realMaximum.height()), Reach::TryIt);
    page.number<W>(
        "SetFrameMaxSize, width", Page::withoutGetter(int(realMaximum.width())),
        [](W *frame, int width) {
            frame->SetFrameMaxSize({qreal(width), realMaximum.height()});
        },
        int(realMinimum.width()), 1280, Reach::TryIt);
    page.flag<W>("SetTitleBarVisable", Page::withoutGetter(true), &W::SetTitleBarVisable,
                 Reach::AllSamples);
    page.choice<W>("SetRubberBandShape", {"outline", "child"}, Page::withoutGetter(0),
                   [](W *frame, int shape) {
                       frame->SetRubberBandShape(static_cast<RubberBandShape>(shape));
                   });
    page.text<W>("SetRubberBandLineStyle",
                 Page::withoutGetter(QString("QDialog {border: 2px solid rgb(255,255,255);"
                                             "border-radius:3px; background-color: "
                                             "transparent;}")),
                 &W::SetRubberBandLineStyle);
}
