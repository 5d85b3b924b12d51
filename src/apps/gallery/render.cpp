#include "render.h"

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
    GalleryWindow window;
    window.resize(windowSize);
    // Shown and active for the widgets, so that sizes and focus are as in a window; nothing
    // appears.
    window.setAttribute(Qt::WA_DontShowOnScreen);
    // Platforms without a display complain about the size limits of windows.
    window.layout()->setSizeConstraint(QLayout::SetNoConstraint);
    window.show();
    // A pressed cabinet draws a mark at the pointer's place on the screen, taken as its own.
    QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight());
    QApplication::setActiveWindow(&window);
    for (const QString &name : pages) {
        Page *page = window.showPage(name);
        settle();
        // As tall as it takes to show the page whole. Twice: it gets wider, and so perhaps lower,
        // when its scroll bar goes.
        for (int round = 0; round < 2; ++round) {
            window.resize(window.width(),
                          window.height() + qMax(0, page->fullHeight() - page->height()));
            settle();
        }
        QString error = savePicture(page, page->fullHeight(), target.filePath(name + ".png"));
        if (!error.isEmpty())
            return error;
        window.resize(windowSize);
    }
    window.showPage(pages.first());
    settle();
    return savePicture(&window, window.height(), target.filePath("window.png"));
}
