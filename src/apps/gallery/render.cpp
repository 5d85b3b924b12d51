#include "render.h"

#include "galleryview.h"
#include "gallerywindow.h"
#include "page.h"

#include <QApplication>
#include <QCursor>
#include <QDir>
#include <QLayout>
#include <QPixmap>
#include <QScreen>
#include <QTemporaryFile>

namespace
{

constexpr QSize windowSize(1280, 800);

/// Keeps from the log that platforms without a display have no size limits of windows.
class QuietLimits
{
public:
    QuietLimits() { otherHandler = qInstallMessageHandler(passUnlessAboutLimits); }
    ~QuietLimits() { qInstallMessageHandler(otherHandler); }
    Q_DISABLE_COPY_MOVE(QuietLimits)

private:
    static void passUnlessAboutLimits(QtMsgType type, const QMessageLogContext &context,
                                      const QString &text)
    {
        if (!text.contains("propagateSizeHints"))
            otherHandler(type, context, text);
    }

    inline static QtMessageHandler otherHandler = nullptr;
};

void settle()
{
    // Layouts, forced states and sheets are applied by posted events.
    for (int round = 0; round < 3; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

QString savePicture(QWidget *widget, int height, const QString &path)
{
    if (widget->grab(QRect(0, 0, widget->width(), height)).save(path, "PNG"))
        return QString();
    return QStringLiteral("cannot write \"%1\"").arg(QDir::toNativeSeparators(path));
}

QString renderWindow(const QString &page, const QString &path)
{
    GalleryWindow window;
    window.resizeFrame(windowSize);
    window.setAttribute(Qt::WA_DontShowOnScreen);
    QuietLimits quiet;
    window.show();
    window.view()->showPage(page);
    settle();
    return savePicture(&window, window.height(), path);
}

} // namespace

bool takesFiles(const QString &directory)
{
    const QDir target(directory);
    // A file that can be made there is the only proof.
    QTemporaryFile probe(target.filePath("gallery-XXXXXX"));
    return target.mkpath(".") && probe.open();
}

QString renderPages(const QStringList &pages, const QString &directory)
{
    const QDir target(directory);
    GalleryView view;
    view.resize(windowSize);
    // Shown and active for the widgets, so that sizes and focus are as in a window; nothing
    // appears.
    view.setAttribute(Qt::WA_DontShowOnScreen);
    // Platforms without a display complain about the size limits of windows.
    view.layout()->setSizeConstraint(QLayout::SetNoConstraint);
    view.show();
    // A pressed cabinet draws a mark at the pointer's place on the screen, taken as its own.
    QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight());
    QApplication::setActiveWindow(&view);
    for (const QString &name : pages) {
        Page *page = view.showPage(name);
        settle();
        // As tall as it takes to show the page whole. Twice: it gets wider, and so perhaps lower,
        // when its scroll bar goes.
        for (int round = 0; round < 2; ++round) {
            view.resize(view.width(), view.height() + qMax(0, page->fullHeight() - page->height()));
            settle();
        }
        QString error = savePicture(page, page->fullHeight(), target.filePath(name + ".png"));
        if (!error.isEmpty())
            return error;
        view.resize(windowSize);
    }
    return renderWindow(pages.first(), target.filePath("window.png"));
}
