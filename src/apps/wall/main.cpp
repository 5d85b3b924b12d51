#include "mainwindow.h"
#include "model/projectfile.h"
#include "model/sampleprojects.h"
#include "pages/recentprojects.h"
#include "render.h"

#include <hostprogram.h>

#include <QApplication>
#include <QCommandLineParser>

#include <cstdio>
#include <optional>

namespace
{

constexpr int failure = 1;
constexpr int usageError = 2;

/// What the command line asks for.
struct Request {
    enum Kind { ShowWindow, Render, Generate, Done } kind = Done;
    int exitStatus = 0;
    QString file; ///< To open or to generate.
    QString directory; ///< To render to.
    QString page; ///< To begin with, empty for the usual one.
    int cabinetCount = 0; ///< To generate.
    bool isDemo = false; ///< Without a file, whether to open the demo project.
};

Request fail(const QString &reason, int exitStatus = usageError)
{
    std::fprintf(stderr, "orvane-wall: %s\n", qPrintable(reason));
    Request request;
    request.exitStatus = exitStatus;
    return request;
}

/// Answers what needs no window, so that it works, and stays quiet, without a display.
Request readCommandLine(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName("orvane-wall");
    QCoreApplication::setApplicationVersion(WALL_VERSION);

    QCommandLineParser parser;
    parser.setApplicationDescription("Lays out the cabinets of an LED wall on the ports of its "
                                     "senders.");
    // Not addHelpOption(), which also adds one for options of Qt that are not read here.
    const QCommandLineOption helpOption({"h", "help"}, "Displays this help.");
    const QCommandLineOption versionOption = parser.addVersionOption();
    const QCommandLineOption demoOption("demo", "Opens the demo project.");
    const QCommandLineOption pageOption("page",
                                        "Begins with that page, or renders it alone: "
                                            + wall::MainWindow::pageNames().join(", ") + ".",
                                        "name");
    const QCommandLineOption generateOption(
        "generate", "Writes a project of so many cabinets to FILE, and opens no window.", "count");
    const QCommandLineOption renderOption(
        "render", "Renders the pages to PNG files in that folder. Needs no display.", "folder");
    parser.addOptions({helpOption, demoOption, pageOption, generateOption, renderOption});
    parser.addPositionalArgument("FILE", "The project file to open or to generate.", "[FILE]");

    if (!parser.parse(QCoreApplication::arguments()))
        return fail(parser.errorText());
    if (parser.isSet(helpOption)) {
        std::fputs(qPrintable(parser.helpText()), stdout);
        return {};
    }
    if (parser.isSet(versionOption)) {
        std::printf("orvane-wall %s\n", WALL_VERSION);
        return {};
    }

    const QStringList files = parser.positionalArguments();
    if (files.size() > 1)
        return fail(QStringLiteral("unexpected argument \"%1\"; one file at a time").arg(files[1]));
    Request request;
    request.file = files.value(0);
    request.isDemo = parser.isSet(demoOption);
    request.page = parser.value(pageOption);
    if (!request.page.isEmpty()
        && !wall::MainWindow::pageNames().contains(request.page, Qt::CaseInsensitive))
        return fail(QStringLiteral("there is no page \"%1\"; --help names them").arg(request.page));
    if (request.isDemo && !request.file.isEmpty())
        return fail("--demo and a file exclude each other");
    if (parser.isSet(generateOption) && (parser.isSet(renderOption) || request.isDemo))
        return fail("--generate excludes --render and --demo");

    if (parser.isSet(generateOption)) {
        bool isNumber = false;
        request.cabinetCount = parser.value(generateOption).toInt(&isNumber);
        if (!isNumber || request.cabinetCount < 1 || request.cabinetCount > wall::maxCabinets) {
            return fail(QStringLiteral("\"%1\" is no number of cabinets; 1 to %2 are possible")
                            .arg(parser.value(generateOption))
                            .arg(wall::maxCabinets));
        }
        if (request.file.isEmpty())
            return fail("--generate needs the FILE to write");
        request.kind = Request::Generate;
        return request;
    }
    if (parser.isSet(renderOption)) {
        request.kind = Request::Render;
        request.directory = parser.value(renderOption);
        if (request.directory.isEmpty())
            return fail("--render needs the FOLDER to write to");
        return request;
    }
    if (hostprogram::isDisplayMissing())
        return fail("there is no display to open a window on; --render FOLDER needs none");
    request.kind = Request::ShowWindow;
    return request;
}

int generate(const Request &request)
{
    const std::optional<wall::ProjectData> data = wall::generateProject(request.cabinetCount);
    const wall::SaveResult result = wall::saveProject(request.file, *data);
    if (result.state != wall::SaveResult::Saved)
        return fail(result.error.message(), failure).exitStatus;
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    const Request request = readCommandLine(argc, argv);
    if (request.kind == Request::Done)
        return request.exitStatus;
    if (request.kind == Request::Generate)
        return generate(request);

    hostprogram::prepare(request.kind == Request::Render);
    QApplication application(argc, argv);
    QApplication::setOrganizationName("orvane");
    QApplication::setApplicationName("orvane-wall");
    QApplication::setApplicationDisplayName("Orvane Wall");
    QApplication::setApplicationVersion(WALL_VERSION);
    hostprogram::dress();

    if (request.kind == Request::Render) {
        const QString error = wall::renderPages(request.file, request.directory, request.page);
        return error.isEmpty() ? 0 : fail(error, failure).exitStatus;
    }
    wall::RecentProjects recent;
    wall::MainWindow window(&recent);
    window.show();
    if (!request.file.isEmpty())
        window.openFile(request.file);
    else if (request.isDemo)
        window.openDemo();
    if (!request.page.isEmpty())
        window.showPage(request.page);
    return QApplication::exec();
}
