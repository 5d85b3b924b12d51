#include "galleryview.h"
#include "gallerywindow.h"
#include "hostprogram.h"
#include "pagelist.h"
#include "render.h"

#include <QApplication>
#include <QCommandLineParser>

#include <cstdio>

namespace
{

constexpr int usageError = 2;

/// What the command line asks for.
struct Request {
    enum Kind { ShowWindow, Render, Done } kind = Done;
    int exitStatus = 0;
    QStringList pages; ///< One page, or all of them.
    QString directory;
    bool isRightToLeft = false;
};

Request fail(const QString &reason)
{
    std::fprintf(stderr, "orvane-gallery: %s\n", qPrintable(reason));
    return {Request::Done, usageError, {}, {}, false};
}

/// Answers what needs no window, so that it works, and stays quiet, without a display.
Request readCommandLine(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName("orvane-gallery");
    QCoreApplication::setApplicationVersion(GALLERY_VERSION);

    QCommandLineParser parser;
    parser.setApplicationDescription(
        "Shows every widget of OrvaneControls in its looks and states, with controls for its "
        "setters.");
    // Not addHelpOption(), which also adds one for options of Qt that are not read here.
    const QCommandLineOption helpOption({"h", "help"}, "Displays this help.");
    const QCommandLineOption versionOption = parser.addVersionOption();
    const QCommandLineOption listOption("list", "Lists the pages, one name a line.");
    const QCommandLineOption pageOption("page", "Opens at that page, or renders only that one.",
                                        "name");
    const QCommandLineOption renderOption(
        "render", "Renders the pages to PNG files in that folder. Needs no display.", "folder");
    const QCommandLineOption mirrorOption(
        "rtl", "Lays everything out from right to left, as Arabic and Hebrew are read.");
    parser.addOptions({helpOption, listOption, pageOption, renderOption, mirrorOption});

    if (!parser.parse(QCoreApplication::arguments()))
        return fail(parser.errorText());
    if (!parser.positionalArguments().isEmpty())
        return fail(QStringLiteral("unexpected argument \"%1\"; --help names the options")
                        .arg(parser.positionalArguments().first()));
    if (parser.isSet(helpOption)) {
        std::fputs(qPrintable(parser.helpText()), stdout);
        return {};
    }
    if (parser.isSet(versionOption)) {
        std::printf("orvane-gallery %s\n", GALLERY_VERSION);
        return {};
    }
    if (parser.isSet(listOption)) {
        for (const PageInfo &page : pageList())
            std::printf("%s\n", qPrintable(page.name));
        return {};
    }

    Request request;
    request.isRightToLeft = parser.isSet(mirrorOption);
    if (parser.isSet(pageOption)) {
        const QString name = parser.value(pageOption);
        const PageInfo *page = findPage(name);
        if (!page)
            return fail(QStringLiteral("there is no page \"%1\"; --list names them all").arg(name));
        request.pages.append(page->name);
    } else {
        for (const PageInfo &page : pageList())
            request.pages.append(page.name);
    }
    if (parser.isSet(renderOption)) {
        request.kind = Request::Render;
        request.directory = parser.value(renderOption);
        if (!takesFiles(request.directory))
            return fail(QStringLiteral("cannot write to the folder \"%1\"").arg(request.directory));
        return request;
    }
    if (hostprogram::isDisplayMissing())
        return fail("there is no display to open a window on; --render FOLDER needs none");
    request.kind = Request::ShowWindow;
    return request;
}

} // namespace

int main(int argc, char **argv)
{
    const Request request = readCommandLine(argc, argv);
    if (request.kind == Request::Done)
        return request.exitStatus;

    hostprogram::prepare(request.kind == Request::Render);
    QApplication application(argc, argv);
    QApplication::setApplicationName("orvane-gallery");
    QApplication::setApplicationDisplayName("OrvaneControls Gallery");
    QApplication::setApplicationVersion(GALLERY_VERSION);
    hostprogram::dress();
    if (request.isRightToLeft)
        QApplication::setLayoutDirection(Qt::RightToLeft);

    if (request.kind == Request::Render) {
        const QString error = renderPages(request.pages, request.directory);
        return error.isEmpty() ? 0 : fail(error).exitStatus;
    }
    GalleryWindow window;
    window.view()->showPage(request.pages.first());
    window.show();
    return QApplication::exec();
}
