#include "support/testcase.h"
#include "support/wallsamples.h"

#include <model/project.h>
#include <model/projectfile.h>
#include <model/sampleprojects.h>

#include <QFile>
#include <QTemporaryDir>

#include <csignal>
#include <limits>
#include <sys/resource.h>

using namespace wall;
using wallsamples::smallWall;

namespace
{

/// The file of smallWall(), written by hand.
const char *const smallWallText = R"({
    "format": "orvane-wall",
    "version": 1,
    "name": "Small",
    "models": [
        {"id": "a", "family": "Fam", "name": "Model A", "width": 100, "height": 50, "pitch": 2.5, "weight": 2.5, "power": 10.25, "voltage": 230},
        {"id": "b", "family": "Fam", "name": "Model B", "width": 64, "height": 64, "pitch": 3.9, "weight": 0.1, "power": 0.2, "voltage": 110}
    ],
    "senders": [
        {"id": "s1", "name": "Left", "connection": "COM3", "online": true, "ports": [
            {"number": 1, "kind": "network", "stock": [{"model": "a", "count": 3}, {"model": "b", "count": 2}]},
            {"number": 2, "kind": "coaxial", "stock": [{"model": "a", "count": 1}]}
        ]},
        {"id": "s2", "name": "Right", "connection": "COM4", "online": false, "ports": [
            {"number": 16, "kind": "network", "stock": [{"model": "b", "count": 4}]}
        ]}
    ],
    "cabinets": [
        {"model": "a", "sender": "s1", "port": 1, "x": 0, "y": 0, "rotation": 0},
        {"model": "b", "sender": "s1", "port": 1, "x": 100, "y": 0, "rotation": 0},
        {"model": "a", "sender": "s1", "port": 1, "x": 200, "y": 0, "rotation": 90},
        {"model": "b", "sender": "s2", "port": 16, "x": -64, "y": 10, "rotation": 0}
    ]
}
)";

/// The same with members that this program does not know in every object.
const char *const extendedText = R"({
    "format": "orvane-wall",
    "version": 1,
    "name": "Extended",
    "author": {"name": "Ada", "tags": [1, 2.5, null, true, "µ"]},
    "big": 9007199254740993,
    "models": [
        {"id": "a", "family": "", "name": "A", "width": 1, "height": 65536, "pitch": 0.9, "weight": 0, "power": 0, "voltage": 0, "gamma": 2.8}
    ],
    "senders": [
        {"id": "s1", "name": "Left", "connection": "", "online": true, "firmware": "4.2", "rack": {"row": 1}, "ports": [
            {"number": 3, "kind": "network", "stock": [{"model": "a", "count": 1, "shelf": 7}], "colour": "red", "speed": 1e-07}
        ]},
        {"id": "s2", "name": "", "connection": "", "online": true, "ports": []}
    ],
    "cabinets": [
        {"model": "a", "sender": "s1", "port": 3, "x": -16777216, "y": 16777216, "rotation": 359, "serial": "0042", "tests": []}
    ]
}
)";

/// The small wall's text with the first \a before replaced.
QByteArray changed(const char *before, const char *after)
{
    QByteArray text(smallWallText);
    const int at = text.indexOf(before);
    Q_ASSERT(at >= 0);
    return text.replace(at, int(qstrlen(before)), after);
}

QByteArray contents(const QString &file)
{
    QFile device(file);
    return device.open(QIODevice::ReadOnly) ? device.readAll() : QByteArray("cannot be read");
}

bool write(const QString &file, const QByteArray &text)
{
    QFile device(file);
    return device.open(QIODevice::WriteOnly) && device.write(text) == text.size();
}

/// Lets no file of this process grow beyond a size while it lives.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit limit = m_before;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    Q_DISABLE_COPY(FileSizeLimit)

private:
    rlimit m_before{};
    void (*m_handler)(int) = SIG_DFL;
};

} // namespace

class TestWallFile : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_folder.isValid());
        m_file = m_folder.filePath("wall.wall");
    }

    void init() { QFile::remove(m_file); }

    void fileHasADocumentedText()
    {
        const SaveResult result = saveProject(m_file, smallWall());
        QCOMPARE(result.state, SaveResult::Saved);
        QCOMPARE(QString::fromUtf8(contents(m_file)), QString::fromUtf8(smallWallText));
        const LoadResult loaded = loadProject(m_file);
        QCOMPARE(loaded.state, LoadResult::Loaded);
        QCOMPARE(loaded.data, smallWall());
    }

    void emptyProjectIsAFileToo()
    {
        QCOMPARE(saveProject(m_file, {}).state, SaveResult::Saved);
        QCOMPARE(QString::fromUtf8(contents(m_file)),
                 QString("{\n    \"format\": \"orvane-wall\",\n    \"version\": 1,\n"
                         "    \"name\": \"\",\n    \"models\": [],\n    \"senders\": [],\n"
                         "    \"cabinets\": []\n}\n"));
        QCOMPARE(loadProject(m_file).state, LoadResult::Loaded);
        QCOMPARE(loadProject(m_file).data, ProjectData());
    }

    void whatWasSavedIsSavedTheSameAgain_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("small") << QByteArray(smallWallText);
        QTest::newRow("unknown members") << QByteArray(extendedText);
        const auto saved = [](const ProjectData &data) {
            const QTemporaryDir folder;
            saveProject(folder.filePath("x"), data);
            return contents(folder.filePath("x"));
        };
        QTest::newRow("demo") << saved(demoProject());
        QTest::newRow("generated") << saved(*generateProject(1000));
        ProjectData odd = smallWall();
        odd.name = QString::fromUtf8("\"quoted\" \\ \n\t\u0001 微软 \U0001F600 </script>");
        odd.models[0].weight = 0.1 + 0.2;
        odd.models[0].pitch = std::numeric_limits<double>::min();
        QTest::newRow("odd values") << saved(odd);
    }
    void whatWasSavedIsSavedTheSameAgain()
    {
        QFETCH(QByteArray, text);
        const LoadResult loaded = parseProject(text, "x");
        QCOMPARE(loaded.error.message(), QString(": "));
        QCOMPARE(loaded.state, LoadResult::Loaded);
        // Through an open project, as the program does it.
        Project project;
        project.reset(loaded.data);
        QCOMPARE(project.data(), loaded.data);
        QCOMPARE(saveProject(m_file, project.data()).state, SaveResult::Saved);
        QCOMPARE(contents(m_file), text);
    }

    void oddTextsSurvive()
    {
        ProjectData odd = smallWall();
        odd.name = QString::fromUtf8("\"quoted\" \\ \n\t\u0001 微软 \U0001F600 </script>");
        odd.models[0].weight = 0.1 + 0.2;
        QCOMPARE(saveProject(m_file, odd).state, SaveResult::Saved);
        QCOMPARE(loadProject(m_file).data, odd);
    }

    void unknownMembersAreKeptWhereTheyWere()
    {
        const ProjectData data = parseProject(extendedText, "x").data;
        QCOMPARE(data.extra.keys(), QStringList({"author", "big"}));
        QCOMPARE(data.extra.value("big").toVariant().toLongLong(), Q_INT64_C(9007199254740993));
        QCOMPARE(data.models.at(0).extra, QJsonObject({{"gamma", 2.8}}));
        QCOMPARE(data.senders.at(0).extra.keys(), QStringList({"firmware", "rack"}));
        QCOMPARE(data.senders.at(0).ports.at(0).extra.keys(), QStringList({"colour", "speed"}));
        QCOMPARE(data.senders.at(0).ports.at(0).stock.at(0).extra, QJsonObject({{"shelf", 7}}));
        QCOMPARE(data.cabinets.at(0).extra.keys(), QStringList({"serial", "tests"}));
    }

    void unknownMembersOutliveChanges()
    {
        Project project;
        project.reset(parseProject(extendedText, "x").data);
        const PortRef port{"s1", 3};
        const CabinetId id = project.cabinetIds().at(0);
        project.setPositions({{id, QPoint(1, 2)}});
        project.insertCabinets(project.removeCabinets({id}));
        project.setSenderProperties("s1", "Renamed", "COM1", false);
        QVector<StockEntry> stock = project.port(port)->stock;
        stock[0].count = 5;
        project.setStock(port, stock);
        CabinetModel model = *project.model("a");
        model.name = "Renamed";
        project.setModel(model);
        QCOMPARE(saveProject(m_file, project.data()).state, SaveResult::Saved);
        QByteArray expected = extendedText;
        expected.replace("\"name\": \"A\"", "\"name\": \"Renamed\"");
        expected.replace("\"Left\", \"connection\": \"\", \"online\": true",
                         "\"Renamed\", \"connection\": \"COM1\", \"online\": false");
        expected.replace("\"count\": 1", "\"count\": 5");
        expected.replace("\"x\": -16777216, \"y\": 16777216", "\"x\": 1, \"y\": 2");
        QCOMPARE(QString::fromUtf8(contents(m_file)), QString::fromUtf8(expected));
    }

    void membersWithADefaultMayBeMissing()
    {
        const LoadResult loaded = parseProject(R"({
            "cabinets": [{"y": 2, "x": 1, "port": 1, "sender": "s", "model": "m"}],
            "senders": [{"id": "s", "name": "S", "ports": [
                {"number": 2, "kind": "coaxial"},
                {"number": 1, "kind": "network", "stock": [{"model": "m", "count": 1}]}]}],
            "models": [{"id": "m", "name": "M", "width": 1, "height": 2, "pitch": 1,
                        "weight": 0, "power": 0, "voltage": 0}],
            "version": 1, "format": "orvane-wall"})",
                                               "x");
        QCOMPARE(loaded.error.message(), QString(": "));
        QCOMPARE(loaded.state, LoadResult::Loaded);
        QCOMPARE(loaded.data.name, QString());
        QCOMPARE(loaded.data.models.at(0).family, QString());
        QCOMPARE(loaded.data.senders.at(0).connection, QString());
        QCOMPARE(loaded.data.senders.at(0).isOnline, true);
        QCOMPARE(loaded.data.senders.at(0).ports.at(0).stock.size(), 0);
        QCOMPARE(loaded.data.cabinets.at(0).rotation, 0);
        QCOMPARE(loaded.data.cabinets.at(0).position, QPoint(1, 2));
    }

    void dataLineIsTheOrderInTheFile()
    {
        QByteArray text = smallWallText;
        // The last cabinet, of another port, moves between those of the first.
        const QByteArray last =
            R"({"model": "b", "sender": "s2", "port": 16, "x": -64, "y": 10, "rotation": 0})";
        text.replace(",\n        " + last, "");
        text.replace("\"cabinets\": [\n", "\"cabinets\": [\n        " + last + ",\n");
        Project project;
        project.reset(parseProject(text, "x").data);
        QCOMPARE(project.data(), smallWall());
    }

    void badFilesAreRefusedWithOneMessage_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("place");
        QTest::addColumn<QString>("problem");
        const auto row = [](const char *before, const char *after, const char *place,
                            const char *problem) {
            const QByteArray name = QByteArray(place) + ": " + problem;
            QTest::newRow(name.constData())
                << changed(before, after) << QString(place) << QString(problem);
        };
        // The whole file
        QTest::newRow("empty") << QByteArray() << ""
                               << "is empty";
        QTest::newRow("blank") << QByteArray(" \n\t") << ""
                               << "is empty";
        QTest::newRow("list") << QByteArray("[]") << ""
                              << "there is a list at the top, not an object";
        QTest::newRow("binary") << QByteArray("\x7f\x45\x4c\x46\x00\x01", 6) << "line 1, column 1"
                                << "illegal value";
        QTest::newRow("nothing in it") << QByteArray("{}") << "format"
                                       << "is missing";
        row("\"orvane-wall\"", "\"other\"", "format", "\"other\" is not \"orvane-wall\"");
        row("\"orvane-wall\"", "7", "format", "7 is not a text");
        row("\"version\": 1", "\"version\": 2", "version",
            "2 is newer than 1, the newest that this program reads");
        row("\"version\": 1", "\"version\": 0", "version",
            "0 is not a whole number from 1 to 2147483647");
        row("\"version\": 1", "\"version\": \"1\"", "version",
            "\"1\" is not a whole number from 1 to 2147483647");
        row("\"version\": 1", "\"ver\": 1", "version", "is missing");
        row("\"Small\"", "null", "name", "null is not a text");
        row("\"models\"", "\"model\"", "models", "is missing");
        row("\"senders\"", "\"sender\"", "senders", "is missing");
        row("\"cabinets\"", "\"cabinet\"", "cabinets", "is missing");
        // Models
        row("\"id\": \"a\"", "\"id\": \"\"", "models[0].id", "the text is empty");
        row("\"id\": \"b\"", "\"id\": \"a\"", "models[1].id", "\"a\" occurs twice");
        row("{\"id\": \"b\"", "5, {\"id\": \"b\"", "models[1]", "5 is not an object");
        row("\"family\": \"Fam\"", "\"family\": 1", "models[0].family", "1 is not a text");
        row("\"width\": 100", "\"width\": 0", "models[0].width",
            "0 is not a whole number from 1 to 65536");
        row("\"width\": 100", "\"width\": 65537", "models[0].width",
            "65537 is not a whole number from 1 to 65536");
        row("\"width\": 100", "\"width\": 100.5", "models[0].width",
            "100.5 is not a whole number from 1 to 65536");
        row("\"width\": 100", "\"width\": 1e300", "models[0].width",
            "1e+300 is not a whole number from 1 to 65536");
        row("\"width\": 100", "\"width\": [100]", "models[0].width",
            "a list is not a whole number from 1 to 65536");
        row("\"width\": 100, ", "", "models[0].width", "is missing");
        row("\"height\": 64", "\"height\": -1", "models[1].height",
            "-1 is not a whole number from 1 to 65536");
        row("\"pitch\": 2.5", "\"pitch\": 0", "models[0].pitch",
            "0 is not a number greater than 0 and at most 1000");
        row("\"pitch\": 2.5", "\"pitch\": 1000.5", "models[0].pitch",
            "1000.5 is not a number greater than 0 and at most 1000");
        row("\"weight\": 2.5", "\"weight\": -1", "models[0].weight",
            "-1 is not a number from 0 to 100000");
        row("\"power\": 0.2", "\"power\": \"much\"", "models[1].power",
            "\"much\" is not a number from 0 to 1000000");
        row("\"voltage\": 230", "\"voltage\": 100001", "models[0].voltage",
            "100001 is not a number from 0 to 100000");
        // Senders
        row("\"id\": \"s2\"", "\"id\": \"s1\"", "senders[1].id", "\"s1\" occurs twice");
        row("\"id\": \"s2\"", "\"id\": {}", "senders[1].id", "an object is not a text");
        row("\"name\": \"Left\"", "\"name\": 5", "senders[0].name", "5 is not a text");
        row("\"COM4\"", "4", "senders[1].connection", "4 is not a text");
        row("\"online\": false", "\"online\": \"no\"", "senders[1].online",
            "\"no\" is not true or false");
        row("\"ports\": [\n            {\"number\": 16", "\"p\": [\n            {\"number\": 16",
            "senders[1].ports", "is missing");
        row("\"number\": 2", "\"number\": 17", "senders[0].ports[1].number",
            "17 is not a whole number from 1 to 16");
        row("\"number\": 16", "\"number\": 0", "senders[1].ports[0].number",
            "0 is not a whole number from 1 to 16");
        row("\"number\": 2", "\"number\": 1", "senders[0].ports[1].number", "port 1 occurs twice");
        row("\"coaxial\"", "\"fibre\"", "senders[0].ports[1].kind",
            "\"fibre\" is neither \"network\" nor \"coaxial\"");
        row("\"stock\": [{\"model\": \"b\", \"count\": 4}]", "\"stock\": 4",
            "senders[1].ports[0].stock", "4 is not a list");
        row("{\"model\": \"b\", \"count\": 2}", "{\"model\": \"a\", \"count\": 2}",
            "senders[0].ports[0].stock[1].model", "\"a\" occurs twice");
        row("{\"model\": \"b\", \"count\": 2}", "{\"model\": \"c\", \"count\": 2}",
            "senders[0].ports[0].stock[1].model", "there is no model \"c\"");
        row("\"count\": 4", "\"count\": -4", "senders[1].ports[0].stock[0].count",
            "-4 is not a whole number from 0 to 1000000");
        // Cabinets
        row("{\"model\": \"b\", \"sender\": \"s2\"", "{\"model\": \"x\", \"sender\": \"s2\"",
            "cabinets[3].model", "there is no model \"x\"");
        row("\"sender\": \"s2\"", "\"sender\": \"s3\"", "cabinets[3].sender",
            "there is no sender \"s3\"");
        row("\"port\": 16", "\"port\": 15", "cabinets[3].port", "sender \"s2\" has no port 15");
        row("\"port\": 16", "\"port\": 99", "cabinets[3].port",
            "99 is not a whole number from 1 to 16");
        row("\"x\": 100", "\"x\": 16777217", "cabinets[1].x",
            "16777217 is not a whole number from -16777216 to 16777216");
        row("\"y\": 10", "\"y\": 10.5", "cabinets[3].y",
            "10.5 is not a whole number from -16777216 to 16777216");
        row("\"rotation\": 90", "\"rotation\": 360", "cabinets[2].rotation",
            "360 is not a whole number from 0 to 359");
        row("\"count\": 3", "\"count\": 1", "cabinets[2]",
            "port 1 of sender \"s1\" has no more cabinets of model \"a\"");
        row("{\"model\": \"b\", \"sender\": \"s1\", \"port\": 1",
            "{\"model\": \"b\", \"sender\": \"s1\", \"port\": 2", "cabinets[1]",
            "port 2 of sender \"s1\" has no more cabinets of model \"b\"");
    }
    void badFilesAreRefusedWithOneMessage()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, place);
        QFETCH(QString, problem);
        QVERIFY(write(m_file, text));
        const LoadResult loaded = loadProject(m_file);
        QCOMPARE(loaded.error.place, place);
        QCOMPARE(loaded.error.problem, problem);
        QCOMPARE(loaded.error.file, m_file);
        QCOMPARE(loaded.state, LoadResult::Failed);
        QCOMPARE(loaded.data, ProjectData());
    }

    void syntaxErrorsAreFoundByLineAndColumn_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("place");
        QTest::newRow("colon") << QByteArray("{\n  \"format\" 1\n}") << "line 2, column 12";
        QTest::newRow("first line") << QByteArray("{x}") << "line 1, column 2";
        QTest::newRow("characters, not bytes")
            << QByteArray("{\n\"微软\": ]}") << "line 2, column 7";
        QTest::newRow("garbage behind") << QByteArray("{}\n\nx") << "line 3, column 1";
    }
    void syntaxErrorsAreFoundByLineAndColumn()
    {
        QFETCH(QByteArray, text);
        const LoadResult loaded = parseProject(text, "x.wall");
        QTEST(loaded.error.place, "place");
        QVERIFY(!loaded.error.problem.isEmpty());
        QCOMPARE(loaded.state, LoadResult::Failed);
    }

    void cutFilesAreRefusedAtTheirEnd()
    {
        const QByteArray whole = smallWallText;
        // The last newline is not needed.
        for (int size = 1; size < whole.size() - 1; ++size) {
            const LoadResult loaded = parseProject(whole.left(size), "x");
            QCOMPARE(loaded.state, LoadResult::Failed);
            QVERIFY2(loaded.error.place.startsWith("line "), qPrintable(loaded.error.message()));
        }
    }

    void longValuesAreCutInTheMessage()
    {
        const QByteArray text =
            changed("\"network\"", QByteArray('"' + QByteArray(100, 'x') + '"').constData());
        QCOMPARE(parseProject(text, "x").error.problem,
                 QString("\"%1... is neither \"network\" nor \"coaxial\"").arg(QString(39, 'x')));
    }

    void nothingOfANewerFileIsJudged()
    {
        QCOMPARE(parseProject(R"({"format": "orvane-wall", "version": 9})", "x").error.place,
                 QString("version"));
    }

    void tooManyCabinetsAreRefused()
    {
        QByteArray text = R"({"format": "orvane-wall", "version": 1, "models": [], "senders": [],
                              "cabinets": [0)";
        for (int i = 0; i < maxCabinets; ++i)
            text += ",0";
        const LoadResult loaded = parseProject(text + "]}", "x");
        QCOMPARE(loaded.error.message(),
                 QString("x: cabinets: 1000001 cabinets are more than 1000000"));
    }

    void missingAndUnreadableFilesAreNamed()
    {
        const QString missing = m_folder.filePath("missing.wall");
        LoadResult loaded = loadProject(missing);
        QCOMPARE(loaded.state, LoadResult::Failed);
        QCOMPARE(loaded.error.message(), missing + ": cannot be opened: No such file or directory");
        // A folder stands for what cannot be read: no permission keeps an administrator out.
        loaded = loadProject(m_folder.path());
        QCOMPARE(loaded.state, LoadResult::Failed);
        QVERIFY2(loaded.error.message().startsWith(m_folder.path() + ": cannot be "),
                 qPrintable(loaded.error.message()));
    }

    void messageHasOneLine()
    {
        QCOMPARE((FileError{"a.wall", "models[0].width", "is missing"}.message()),
                 QString("a.wall: models[0].width: is missing"));
        QCOMPARE((FileError{"a.wall", {}, "is too large"}.message()),
                 QString("a.wall: is too large"));
    }

    void savingReplacesTheOldFile()
    {
        QVERIFY(write(m_file, QByteArray(100000, 'x')));
        QCOMPARE(saveProject(m_file, smallWall()).state, SaveResult::Saved);
        QCOMPARE(contents(m_file), QByteArray(smallWallText));
        QCOMPARE(filesInFolder(), QStringList({"wall.wall"}));
    }

    void failedSaveLeavesTheOldFileWhole()
    {
        QVERIFY(write(m_file, smallWallText));
        SaveResult result;
        {
            // As on a full disk: writing fails on the way.
            const FileSizeLimit limit(200000);
            result = saveProject(m_file, *generateProject(10000));
        }
        QCOMPARE(result.state, SaveResult::Failed);
        QCOMPARE(result.error.message(),
                 m_file + ": cannot be saved: not all of it could be written (Unknown error)");
        QCOMPARE(contents(m_file), QByteArray(smallWallText));
        QCOMPARE(filesInFolder(), QStringList({"wall.wall"}));
    }

    void saveThatFailsAtItsLastBytesLeavesTheOldFileWhole()
    {
        QVERIFY(write(m_file, smallWallText));
        SaveResult result;
        {
            // All of it fits into the buffer, so only the commit finds out.
            const FileSizeLimit limit(qstrlen(smallWallText) - 1);
            result = saveProject(m_file, smallWall());
        }
        QCOMPARE(result.state, SaveResult::Failed);
        QCOMPARE(contents(m_file), QByteArray(smallWallText));
        QCOMPARE(filesInFolder(), QStringList({"wall.wall"}));
    }

    void placesThatCannotBeWrittenAreNamed()
    {
        const QString file = m_folder.filePath("no such folder/wall.wall");
        SaveResult result = saveProject(file, smallWall());
        QCOMPARE(result.state, SaveResult::Failed);
        QCOMPARE(result.error.message(), file + ": cannot be saved: No such file or directory");
        result = saveProject(m_folder.path(), smallWall());
        QCOMPARE(result.state, SaveResult::Failed);
        QVERIFY2(result.error.message().startsWith(m_folder.path() + ": cannot be saved: "),
                 qPrintable(result.error.message()));
    }

    void savingReportsAndCanBeCancelledAtEveryStep()
    {
        const ProjectData data = *generateProject(10000);
        QVector<int> reports;
        QCOMPARE(saveProject(m_file, data,
                             [&reports](int percent) {
                                 reports.append(percent);
                                 return true;
                             })
                     .state,
                 SaveResult::Saved);
        checkReports(reports);
        QVERIFY(write(m_file, smallWallText));
        for (int last = 1; last <= reports.size(); ++last) {
            int calls = 0;
            const SaveResult result =
                saveProject(m_file, data, [&](int) { return ++calls < last; });
            QCOMPARE(result.state, SaveResult::Cancelled);
            QCOMPARE(calls, last);
            QCOMPARE(contents(m_file), QByteArray(smallWallText));
            QCOMPARE(filesInFolder(), QStringList({"wall.wall"}));
        }
    }

    void loadingReportsAndCanBeCancelledAtEveryStep()
    {
        const ProjectData data = *generateProject(10000);
        QCOMPARE(saveProject(m_file, data).state, SaveResult::Saved);
        QVector<int> reports;
        const LoadResult loaded = loadProject(m_file, [&reports](int percent) {
            reports.append(percent);
            return true;
        });
        QCOMPARE(loaded.state, LoadResult::Loaded);
        QVERIFY(loaded.data == data);
        checkReports(reports);
        for (int last = 1; last <= reports.size(); ++last) {
            int calls = 0;
            const LoadResult cancelled = loadProject(m_file, [&](int) { return ++calls < last; });
            QCOMPARE(cancelled.state, LoadResult::Cancelled);
            QCOMPARE(calls, last);
            QCOMPARE(cancelled.data, ProjectData());
            QCOMPARE(cancelled.error.message(), QString(": "));
        }
    }

    void loadingAndSavingTakeStepsByTheSize()
    {
        // Each step is a call for at most progressStep elements, so the calls count the work.
        const auto calls = [this](int cabinets) {
            int count = 0;
            const auto counter = [&count](int) { return ++count > 0; };
            saveProject(m_file, *generateProject(cabinets), counter);
            loadProject(m_file, counter);
            return count;
        };
        const int small = calls(10000);
        const int large = calls(100000);
        QVERIFY2(large - small >= 2 * 90, qPrintable(QString::number(large - small)));
        QVERIFY2(large <= small * 10, qPrintable(QString::number(large)));
    }

    void documentedExampleIsWhatIsSaved()
    {
        const QByteArray document = contents(QFINDTESTDATA("../docs/project-file.md"));
        const int begin = document.indexOf("```json\n") + 8;
        const QByteArray example = document.mid(begin, document.indexOf("```", begin) - begin);
        const LoadResult loaded = parseProject(example, "project-file.md");
        QCOMPARE(loaded.error.message(), QString(": "));
        QCOMPARE(loaded.data.cabinets.size(), 2);
        QCOMPARE(saveProject(m_file, loaded.data).state, SaveResult::Saved);
        QCOMPARE(QString::fromUtf8(contents(m_file)), QString::fromUtf8(example));
    }

private:
    static void checkReports(const QVector<int> &reports)
    {
        QCOMPARE(reports.first(), 0);
        QCOMPARE(reports.last(), 100);
        QVERIFY(std::is_sorted(reports.cbegin(), reports.cend()));
        QVERIFY(reports.size() >= 10000 / progressStep);
        QVERIFY(reports.size() <= 10000 / progressStep + 10);
    }

    QStringList filesInFolder() const
    {
        return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden);
    }

    QTemporaryDir m_folder;
    QString m_file;
};

ORVANE_TEST_MAIN(TestWallFile)

#include "tst_wallfile.moc"
