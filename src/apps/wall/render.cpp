#include "render.h"

#include "document.h"
#include "mainwindow.h"
#include "model/projectfile.h"
#include "model/sampleprojects.h"
#include "pages/recentprojects.h"

#include <QCoreApplication>
#include <QDir>
#include <QPixmap>
#include <QTemporaryDir>

namespace wall
{

namespace
{

constexpr QSize windowSize(1280, 800);

QtMessageHandler otherHandler = nullptr;

/// Platforms without a display say that windows have no size limits there.
void passUnlessAboutLimits(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (!text.contains("propagateSizeHints"))
        otherHandler(type, context, text);
}

void settle()
{
    for (int round = 0; round < 3; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

} // namespace

QString renderPages(const QString &file, const QString &directory, const QString &page)
{
    ProjectData data = demoProject();
    if (!file.isEmpty()) {
        const LoadResult result = loadProject(file);
        if (result.state != LoadResult::Loaded)
            return result.error.message();
        data = result.data;
    }
    const QDir target(directory);
    if (!target.mkpath("."))
        return "cannot make the folder \"" + QDir::toNativeSeparators(directory) + '"';

    otherHandler = qInstallMessageHandler(passUnlessAboutLimits);
    const QTemporaryDir settings; // not the user's list of projects
    RecentProjects recent(settings.filePath("recent.ini"));
    MainWindow window(&recent);
    window.resizeFrame(windowSize);
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.show();
    window.document()->reset(data, file);
    QString error;
    const QStringList names = MainWindow::pageNames();
    for (const QString &name : names) {
        if (!page.isEmpty() && name.compare(page, Qt::CaseInsensitive) != 0)
            continue;
        window.showPage(name);
        settle();
        const QString path = target.filePath(name.toLower() + ".png");
        if (!window.grab().save(path, "PNG"))
            error = "cannot write \"" + QDir::toNativeSeparators(path) + '"';
    }
    qInstallMessageHandler(otherHandler);
    return error;
}

} // namespace wall
