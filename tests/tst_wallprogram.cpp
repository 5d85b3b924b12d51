// The wall configurator as a process, as it runs where there is no display.

#include "model/projectfile.h"
#include "model/sampleprojects.h"
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

Outcome runWall(const QStringList &arguments)
{
    static const QTemporaryDir home; // nobody's settings are read or written
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "QT_SCALE_FACTOR"})
        environment.remove(name);
    for (const char *name : {"XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "HOME"})
        environment.insert(name, home.path());
    QProcess wall;
    wall.setProcessEnvironment(environment);
    wall.setWorkingDirectory(home.path());
    wall.start(WALL_PROGRAM, arguments);
    constexpr int timeout = 120000;
    if (!wall.waitForFinished(timeout) || wall.exitStatus() != QProcess::NormalExit)
        return {-1, wall.readAllStandardOutput(), wall.errorString().toUtf8()};
    return {wall.exitCode(), wall.readAllStandardOutput(), wall.readAllStandardError()};
}

const QStringList pictureNames{"devices.png", "models.png", "start.png", "wall.png"};

int colorCount(const QImage &image)
{
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            colors.insert(image.pixel(x, y));
    }
    return colors.size();
}

QString writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qWarning("cannot write %s", qPrintable(path));
    return path;
}

} // namespace

class TestWallProgram : public TestCase
{
    Q_OBJECT

private:
    void checkOneLine(const Outcome &outcome, int exitStatus, const QByteArray &named)
    {
        QCOMPARE(outcome.exitStatus, exitStatus);
        QCOMPARE(outcome.output, QByteArray());
        QVERIFY2(outcome.errors.startsWith("orvane-wall: "), outcome.errors);
        QVERIFY2(outcome.errors.count('\n') == 1 && outcome.errors.endsWith('\n'), outcome.errors);
        QVERIFY2(outcome.errors.contains(named), outcome.errors);
    }

private Q_SLOTS:
    void tellsVersionAndHelp()
    {
        const Outcome version = runWall({"--version"});
        QCOMPARE(version.exitStatus, 0);
        QCOMPARE(version.errors, QByteArray());
        QVERIFY2(QRegularExpression("^orvane-wall \\d+\\.\\d+\\.\\d+\n$")
                     .match(QString::fromUtf8(version.output))
                     .hasMatch(),
                 version.output);
        const Outcome help = runWall({"--help"});
        QCOMPARE(help.exitStatus, 0);
        QCOMPARE(help.errors, QByteArray());
        for (const char *part : {"--demo", "--page", "--generate", "--render", "--version",
                                 "--help", "FILE", "Start, Wall, Models, Devices"})
            QVERIFY2(help.output.simplified().contains(part), part);
    }

    void mistakesGiveOneLineAndStatusTwo_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("named");
        QTest::newRow("unknown option")
            << QStringList{"--no-such-option"} << QByteArray("no-such-option");
        QTest::newRow("options of Qt's") << QStringList{"--help-all"} << QByteArray("help-all");
        QTest::newRow("two unknown options")
            << QStringList{"--first", "--second"} << QByteArray("second");
        QTest::newRow("option without its value") << QStringList{"--page"} << QByteArray("page");
        QTest::newRow("unknown page") << QStringList{"--page", "Roof"} << QByteArray("\"Roof\"");
        QTest::newRow("unknown page to render")
            << QStringList{"--render", "x", "--page", "Roof"} << QByteArray("\"Roof\"");
        QTest::newRow("two files") << QStringList{"a.json", "b.json"} << QByteArray("\"b.json\"");
        QTest::newRow("demo and a file") << QStringList{"--demo", "a.json"} << QByteArray("--demo");
        QTest::newRow("render nowhere") << QStringList{"--render", ""} << QByteArray("--render");
        for (const char *count : {"0", "-1", "1000001", "many", "", "1e3", "99999999999"})
            QTest::addRow("generate '%s'", count)
                << QStringList{"--generate", count, "new.json"}
                << QByteArray("\"") + count + "\" is no number of cabinets; 1 to 1000000";
        QTest::newRow("generate nothing") << QStringList{"--generate"} << QByteArray("generate");
        QTest::newRow("generate nowhere") << QStringList{"--generate", "5"} << QByteArray("FILE");
        QTest::newRow("generate two files")
            << QStringList{"--generate", "5", "a.json", "b.json"} << QByteArray("\"b.json\"");
        QTest::newRow("generate and render")
            << QStringList{"--generate", "5", "--render", "x", "a.json"} << QByteArray("--render");
        QTest::newRow("generate the demo")
            << QStringList{"--generate", "5", "--demo"} << QByteArray("--demo");
        QTest::newRow("no display") << QStringList() << QByteArray("--render");
        QTest::newRow("no display, a file") << QStringList{"a.json"} << QByteArray("display");
        QTest::newRow("no display, the demo") << QStringList{"--demo"} << QByteArray("display");
    }

    void mistakesGiveOneLineAndStatusTwo()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, named);
        checkOneLine(runWall(arguments), 2, named);
    }

    void generateWritesAProject_data()
    {
        QTest::addColumn<int>("count");
        for (const int count : {1, 41, 5000})
            QTest::addRow("%d", count) << count;
    }

    void generateWritesAProject()
    {
        QFETCH(int, count);
        const QTemporaryDir directory;
        const QString path = directory.filePath("new.wall.json");
        const Outcome outcome = runWall({"--generate", QString::number(count), path});
        QCOMPARE(outcome.errors, QByteArray());
        QCOMPARE(outcome.output, QByteArray());
        QCOMPARE(outcome.exitStatus, 0);
        const wall::LoadResult result = wall::loadProject(path);
        QCOMPARE(result.state, wall::LoadResult::Loaded);
        QCOMPARE(result.data.cabinets.size(), count);
        QVERIFY(result.data == *wall::generateProject(count));
    }

    void generateReplacesAFile()
    {
        const QTemporaryDir directory;
        const QString path = writeFile(directory.filePath("old.wall.json"), "something else");
        QCOMPARE(runWall({"--generate", "7", path}).exitStatus, 0);
        QCOMPARE(wall::loadProject(path).data.cabinets.size(), 7);
    }

    void fileThatCannotBeWrittenGivesStatusOne()
    {
        const QTemporaryDir directory;
        const QString folder = directory.filePath("folder");
        QVERIFY(QDir().mkpath(folder));
        checkOneLine(runWall({"--generate", "7", folder}), 1, "/folder");
        checkOneLine(runWall({"--generate", "7", directory.filePath("missing/new.json")}), 1,
                     "missing/new.json");
    }

    void renderWritesAPictureOfEveryPage()
    {
        const QTemporaryDir directory;
        const QString target = directory.filePath("made/by/the/program");
        const Outcome outcome = runWall({"--render", target});
        QCOMPARE(outcome.errors, QByteArray()); // no warning of a sheet or a widget either
        QCOMPARE(outcome.output, QByteArray());
        QCOMPARE(outcome.exitStatus, 0);
        QCOMPARE(QDir(target).entryList(QDir::Files, QDir::Name), pictureNames);
        QVector<QImage> images;
        for (const QString &name : pictureNames) {
            const QImage image(QDir(target).filePath(name));
            QCOMPARE(image.size(), QSize(1280, 800));
            // Text alone brings a dozen greys; a ground with nothing on it has one.
            QVERIFY2(colorCount(image) > 50, qPrintable(name));
            QVERIFY2(!images.contains(image), qPrintable(name)); // another page
            images.append(image);
        }
    }

    void renderShowsTheFileItIsGiven()
    {
        const QTemporaryDir directory;
        const QString path = directory.filePath("new.wall.json");
        QCOMPARE(runWall({"--generate", "12", path}).exitStatus, 0);
        const Outcome ofFile = runWall({"--render", directory.filePath("file"), path});
        QCOMPARE(ofFile.errors, QByteArray());
        QCOMPARE(ofFile.exitStatus, 0);
        QCOMPARE(runWall({"--render", directory.filePath("demo"), "--demo"}).exitStatus, 0);
        QCOMPARE(QDir(directory.filePath("file")).entryList(QDir::Files, QDir::Name), pictureNames);
        const QImage wallOfFile(directory.filePath("file/wall.png"));
        QVERIFY(!wallOfFile.isNull());
        QVERIFY(wallOfFile != QImage(directory.filePath("demo/wall.png")));
    }

    void renderTakesOnePageOnly()
    {
        const QTemporaryDir directory;
        const Outcome outcome = runWall({"--render", directory.filePath("x"), "--page", "models"});
        QCOMPARE(outcome.exitStatus, 0);
        QCOMPARE(QDir(directory.filePath("x")).entryList(QDir::Files), QStringList{"models.png"});
    }

    void picturesAreTheSameOnEveryRun()
    {
        const QTemporaryDir directory;
        for (const char *name : {"first", "second"})
            QCOMPARE(runWall({"--render", directory.filePath(name)}).exitStatus, 0);
        for (const QString &name : pictureNames) {
            const QImage image(directory.filePath("first/" + name));
            QVERIFY(!image.isNull());
            QVERIFY2(image == QImage(directory.filePath("second/" + name)), qPrintable(name));
        }
    }

    void badFileIsNotRendered_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QByteArray>("named");
        QTest::newRow("missing") << QByteArray() << QByteArray("bad.wall.json: ");
        QTest::newRow("no JSON") << QByteArray("\n  nothing") << QByteArray("line 2, column");
        QTest::newRow("newer") << QByteArray(R"({"format":"orvane-wall","version":2})")
                               << QByteArray("version");
    }

    void badFileIsNotRendered()
    {
        QFETCH(QByteArray, content);
        QFETCH(QByteArray, named);
        const QTemporaryDir directory;
        const QString path = directory.filePath("bad.wall.json");
        if (!content.isNull())
            writeFile(path, content);
        const Outcome outcome = runWall({"--render", directory.filePath("x"), path});
        checkOneLine(outcome, 1, named);
        QVERIFY2(outcome.errors.contains("bad.wall.json"), outcome.errors);
        QVERIFY(!QDir(directory.filePath("x")).exists());
    }

    void folderThatCannotBeWrittenGivesStatusOne()
    {
        const QTemporaryDir directory;
        const QString file = writeFile(directory.filePath("plain.txt"), "text");
        checkOneLine(runWall({"--render", file}), 1, "plain.txt");
        checkOneLine(runWall({"--render", file + "/below"}), 1, "plain.txt/below");
        // A picture that cannot take its place.
        QVERIFY(QDir().mkpath(directory.filePath("x/models.png")));
        checkOneLine(runWall({"--render", directory.filePath("x")}), 1, "models.png");
    }
};

ORVANE_TEST_MAIN(TestWallProgram)
#include "tst_wallprogram.moc"
