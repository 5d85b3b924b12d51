#include "support/testcase.h"

#include <QImage>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>

namespace
{

struct Outcome {
    int exitStatus = -1;
    QByteArray output;
    QByteArray errors;
};

/// Runs the gallery as it runs where there is no display.
Outcome runGallery(const QStringList &arguments)
{
    static const QTemporaryDir runtimeDirectory;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "QT_SCALE_FACTOR"})
        environment.remove(name);
    environment.insert("XDG_RUNTIME_DIR", runtimeDirectory.path());
    QProcess gallery;
    gallery.setProcessEnvironment(environment);
    gallery.start(GALLERY_PROGRAM, arguments);
    constexpr int timeout = 120000;
    if (!gallery.waitForFinished(timeout) || gallery.exitStatus() != QProcess::NormalExit)
        return {-1, gallery.readAllStandardOutput(), gallery.errorString().toUtf8()};
    return {gallery.exitCode(), gallery.readAllStandardOutput(), gallery.readAllStandardError()};
}

QStringList pageNames()
{
    return QString::fromUtf8(runGallery({"--list"}).output.trimmed()).split('\n');
}

int colorCount(const QImage &image)
{
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            colors.insert(image.pixel(x, y));
    }
    return colors.size();
}

} // namespace

class TestGallery : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void listNamesEveryPageOnALine()
    {
        const Outcome outcome = runGallery({"--list"});
        QCOMPARE(outcome.exitStatus, 0);
        QCOMPARE(outcome.errors, QByteArray());
        QVERIFY(outcome.output.endsWith('\n'));
        QStringList names = QString::fromUtf8(outcome.output.trimmed()).split('\n');
        for (const char *name : {"CheckBoxEx",
                                 "RadioButtonEx",
                                 "LabelEx",
                                 "ScrollBarEx",
                                 "PushButtonEx",
                                 "SpinBoxEx",
                                 "DoubleSpinBoxEx",
                                 "LineEditEx",
                                 "SliderEx",
                                 "SliderExMouse",
                                 "ComboBoxEx",
                                 "ComboboxItem",
                                 "ToolButtonEx",
                                 "StructCabinet",
                                 "MutexButtonEx",
                                 "ToolBarEx",
                                 "ButtonGroupEx",
                                 "WidgetWithScrollEx",
                                 "RowLineItem",
                                 "DrawerItemContent",
                                 "DrawerItem",
                                 "Drawer",
                                 "OfflinePortItemFrame",
                                 "OfflinePortItemContentFrame",
                                 "DrawItemContentNew",
                                 "WidgetControllBoard",
                                 "WidgetBoard",
                                 "WidgetContent",
                                 "ShapeWidget",
                                 "ShapeWidgetContent",
                                 "WindowTitle",
                                 "WindowFrame",
                                 "CustomMessageBox",
                                 "CustomMegBox",
                                 "CustomWidget",
                                 "NQToolButton",
                                 "TabBarRd",
                                 "NQTabBar",
                                 "NQTabWidget",
                                 "ListWidgetEx",
                                 "ListWidgetTitle",
                                 "CustomListWidgetItem",
                                 "EquipListWidget",
                                 "CustomListWidgetMulItem",
                                 "TableWidgetEx",
                                 "TableWidgetCustom",
                                 "NewTableWidget",
                                 "TreeViewEx",
                                 "TreeItem",
                                 "DefineCommonData",
                                 "Images"})
            QCOMPARE(names.count(name), 1);
        QCOMPARE(names.removeDuplicates(), 0);
        QVERIFY(!names.contains(QString()));
    }

    void renderWritesAPictureOfEveryPageAndTheWindow()
    {
        QTemporaryDir directory;
        const QString target = directory.filePath("made/by/the/gallery");
        const Outcome outcome = runGallery({"--render", target});
        QCOMPARE(outcome.errors, QByteArray()); // no warning from a sheet or a widget either
        QCOMPARE(outcome.exitStatus, 0);
        QStringList expected;
        for (const QString &name : pageNames())
            expected.append(name + ".png");
        expected.append("window.png");
        expected.sort();
        QStringList found = QDir(target).entryList(QDir::Files);
        found.sort();
        QCOMPARE(found, expected);
        for (const QString &fileName : qAsConst(found)) {
            const QImage image(QDir(target).filePath(fileName));
            QVERIFY2(!image.isNull(), qPrintable(fileName));
            QVERIFY2(image.width() > 600 && image.height() > 100, qPrintable(fileName));
            // Text alone brings a dozen greys; a ground with nothing on it has one.
            QVERIFY2(colorCount(image) > 20, qPrintable(fileName));
        }
    }

    void picturesAreTheSameOnEveryRun()
    {
        QTemporaryDir first;
        QTemporaryDir second;
        for (const QTemporaryDir *directory : {&first, &second}) {
            const Outcome outcome =
                runGallery({"--page", "SpinBoxEx", "--render", directory->path()});
            QCOMPARE(outcome.exitStatus, 0);
        }
        const QImage image(first.filePath("SpinBoxEx.png"));
        QVERIFY(!image.isNull());
        QCOMPARE(image, QImage(second.filePath("SpinBoxEx.png")));
    }

    void pagesAreMirroredOnRequest()
    {
        QTemporaryDir plain;
        QTemporaryDir mirrored;
        const QStringList arguments{"--page", "SliderEx", "--render"};
        QCOMPARE(runGallery(arguments + QStringList(plain.path())).exitStatus, 0);
        const Outcome outcome =
            runGallery(QStringList("--rtl") + arguments + QStringList(mirrored.path()));
        QCOMPARE(outcome.errors, QByteArray());
        QCOMPARE(outcome.exitStatus, 0);
        const QImage image(mirrored.filePath("SliderEx.png"));
        QVERIFY(!image.isNull());
        // The page's name stands at the left, or at the right.
        const QRect left(0, 0, 200, 40);
        QVERIFY(colorCount(QImage(plain.filePath("SliderEx.png")).copy(left))
                > colorCount(image.copy(left)));
    }

    void renderTakesOnePageOnly()
    {
        QTemporaryDir directory;
        const Outcome outcome = runGallery({"--page", "checkboxex", "--render", directory.path()});
        QCOMPARE(outcome.exitStatus, 0);
        QCOMPARE(QDir(directory.path()).entryList(QDir::Files, QDir::Name),
                 (QStringList{"CheckBoxEx.png", "window.png"}));
    }

    void mistakesGiveOneLineAndStatusTwo_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("named");
        QTest::newRow("unknown page")
            << QStringList{"--page", "NoSuchWidget"} << QByteArray("NoSuchWidget");
        QTest::newRow("unknown page to render")
            << QStringList{"--render", "x", "--page", "NoSuchWidget"} << QByteArray("NoSuchWidget");
        QTest::newRow("folder below a file")
            << QStringList{"--render", "@FILE@/pictures"} << QByteArray("/pictures");
        QTest::newRow("folder is a file")
            << QStringList{"--render", "@FILE@"} << QByteArray("plain.txt");
        QTest::newRow("unknown option")
            << QStringList{"--no-such-option"} << QByteArray("no-such-option");
        QTest::newRow("options of Qt's") << QStringList{"--help-all"} << QByteArray("help-all");
        QTest::newRow("option without its value") << QStringList{"--page"} << QByteArray("page");
        QTest::newRow("stray argument") << QStringList{"CheckBoxEx"} << QByteArray("CheckBoxEx");
        QTest::newRow("no display") << QStringList() << QByteArray("--render");
    }

    void mistakesGiveOneLineAndStatusTwo()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, named);
        QTemporaryDir directory;
        QFile file(directory.filePath("plain.txt"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        arguments.replaceInStrings("@FILE@", file.fileName());
        const Outcome outcome = runGallery(arguments);
        QCOMPARE(outcome.exitStatus, 2);
        QCOMPARE(outcome.output, QByteArray());
        QVERIFY2(outcome.errors.startsWith("orvane-gallery: "), outcome.errors);
        QCOMPARE(outcome.errors.count('\n'), 1);
        QVERIFY(outcome.errors.endsWith('\n'));
        QVERIFY2(outcome.errors.contains(named), outcome.errors);
    }

    void tellsVersionAndHelp()
    {
        const Outcome version = runGallery({"--version"});
        QCOMPARE(version.exitStatus, 0);
        QVERIFY2(QRegularExpression("^orvane-gallery \\d+\\.\\d+\\.\\d+\n$")
                     .match(QString::fromUtf8(version.output))
                     .hasMatch(),
                 version.output);
        const Outcome help = runGallery({"--help"});
        QCOMPARE(help.exitStatus, 0);
        for (const char *option : {"--list", "--page", "--render", "--rtl", "--version", "--help"})
            QVERIFY2(help.output.contains(option), option);
    }
};

ORVANE_TEST_MAIN(TestGallery)
#include "tst_gallery.moc"
