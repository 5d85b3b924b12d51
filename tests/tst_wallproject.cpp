#include "support/testcase.h"
#include "support/wallsamples.h"

#include <model/cabinetrecord.h>
#include <model/project.h>
#include <model/sampleprojects.h>

#include <random>

using namespace wall;
using wallsamples::cabinet;
using wallsamples::SignalLog;
using wallsamples::smallWall;

namespace
{

const char *const a = "a";
const char *const b = "b";

PortRef left1()
{
    return {"s1", 1};
}

PortRef left2()
{
    return {"s1", 2};
}

PortRef right16()
{
    return {"s2", 16};
}

/// The nth cabinet of the project in the order of data().
CabinetId nth(const Project &project, int n)
{
    return project.cabinetIds().at(n);
}

LinePlace place(Project *project, const char *modelId, const PortRef &port, int index)
{
    LinePlace place{cabinet(modelId, port, QPoint(300, 300)), index};
    place.cabinet.id = project->takeCabinetId();
    return place;
}

int pixelsOn(const ProjectData &data, const PortRef &port)
{
    QHash<QString, int> pixels;
    for (const CabinetModel &model : data.models)
        pixels.insert(model.id, model.size.width() * model.size.height());
    int sum = 0;
    for (const PlacedCabinet &cabinet : data.cabinets) {
        if (cabinet.port == port)
            sum += pixels.value(cabinet.modelId);
    }
    return sum;
}

/// How many pairs of cabinets of unrotated walls cover each other.
int overlaps(const ProjectData &data)
{
    QHash<QString, QSize> sizes;
    for (const CabinetModel &model : data.models)
        sizes.insert(model.id, model.size);
    int count = 0;
    for (int i = 0; i < data.cabinets.size(); ++i) {
        const PlacedCabinet &one = data.cabinets.at(i);
        for (int k = 0; k < i; ++k) {
            const PlacedCabinet &other = data.cabinets.at(k);
            count += QRect(one.position, sizes.value(one.modelId))
                         .intersects(QRect(other.position, sizes.value(other.modelId)));
        }
    }
    return count;
}

} // namespace

Q_DECLARE_METATYPE(wall::CabinetModel)

class TestWallProject : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void rotationIsBroughtIntoAFullTurn_data()
    {
        QTest::addColumn<int>("degrees");
        QTest::addColumn<int>("expected");
        QTest::newRow("zero") << 0 << 0;
        QTest::newRow("last") << 359 << 359;
        QTest::newRow("past the end") << 360 << 0;
        QTest::newRow("before the start") << -1 << 359;
        QTest::newRow("turns back") << -720 << 0;
        QTest::newRow("turns") << 725 << 5;
        QTest::newRow("least") << std::numeric_limits<int>::min() << 232;
        QTest::newRow("greatest") << std::numeric_limits<int>::max() << 127;
    }
    void rotationIsBroughtIntoAFullTurn()
    {
        QFETCH(int, degrees);
        QTEST(normalizedRotation(degrees), "expected");
    }

    void boundsSurroundTheRotatedCabinet_data()
    {
        QTest::addColumn<QPoint>("position");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("rotation");
        QTest::addColumn<QRect>("expected");
        const QPoint at(10, -20);
        QTest::newRow("not rotated") << at << QSize(100, 50) << 0 << QRect(10, -20, 100, 50);
        QTest::newRow("quarter") << at << QSize(100, 50) << 90 << QRect(35, -45, 50, 100);
        QTest::newRow("half") << at << QSize(100, 50) << 180 << QRect(10, -20, 100, 50);
        QTest::newRow("three quarters") << at << QSize(100, 50) << 270 << QRect(35, -45, 50, 100);
        // Half pixels are covered whole.
        QTest::newRow("odd quarter") << at << QSize(101, 50) << 90 << QRect(35, -46, 51, 102);
        // 100 / sqrt(2) around the centre 60,30: from -10.71 to 130.71.
        QTest::newRow("eighth") << at << QSize(100, 100) << 45 << QRect(-11, -41, 142, 142);
        QTest::newRow("far away") << QPoint(maxCoordinate, -maxCoordinate) << QSize(65536, 65536)
                                  << 90 << QRect(maxCoordinate, -maxCoordinate, 65536, 65536);
        QTest::newRow("smallest") << QPoint(0, 0) << QSize(1, 1) << 270 << QRect(0, 0, 1, 1);
    }
    void boundsSurroundTheRotatedCabinet()
    {
        QFETCH(QPoint, position);
        QFETCH(QSize, size);
        QFETCH(int, rotation);
        QTEST(cabinetBounds(position, size, rotation), "expected");
    }

    void outlineTurnsClockwiseFromTheTopLeft()
    {
        const QPolygonF upright{
            {QPointF(10, 20), QPointF(110, 20), QPointF(110, 70), QPointF(10, 70)}};
        QCOMPARE(cabinetOutline(QPoint(10, 20), QSize(100, 50), 0), upright);
        const QPolygonF turned{
            {QPointF(85, -5), QPointF(85, 95), QPointF(35, 95), QPointF(35, -5)}};
        QCOMPARE(cabinetOutline(QPoint(10, 20), QSize(100, 50), 90), turned);
    }

    void newProjectIsEmpty()
    {
        const Project project;
        QCOMPARE(project.data(), ProjectData());
        QCOMPARE(project.name(), QString());
        QCOMPARE(project.modelIds(), QStringList());
        QCOMPARE(project.senderIds(), QStringList());
        QCOMPARE(project.cabinetCount(), 0);
        QCOMPARE(project.bounds(), QRect());
        QCOMPARE(project.totals().cabinets, 0);
        QCOMPARE(project.totals().pixels, 0);
        QCOMPARE(project.totals().weight, 0.0);
        QCOMPARE(project.totals().power, 0.0);
    }

    void resetTakesEverything()
    {
        Project project;
        SignalLog log(&project);
        project.reset(smallWall());
        QCOMPARE(log.take(), QStringList({"reset"}));
        QCOMPARE(project.data(), smallWall());
        QCOMPARE(project.name(), QString("Small"));
        QCOMPARE(project.modelIds(), QStringList({"a", "b"}));
        QCOMPARE(project.model(a)->name, QString("Model A"));
        QCOMPARE(project.senderIds(), QStringList({"s1", "s2"}));
        QCOMPARE(project.sender("s2")->connection, QString("COM4"));
        QCOMPARE(project.senderIndex("s2"), 1);
        QCOMPARE(project.port(left2())->kind, PortKind::Coaxial);
        QCOMPARE(project.portsOf("s1"), QVector<PortRef>({left1(), left2()}));
        QCOMPARE(project.cabinetCount(), 4);
        const CabinetIds ids = project.cabinetIds();
        QCOMPARE(ids.size(), 4);
        QCOMPARE(project.line(left1()), ids.mid(0, 3));
        QCOMPARE(project.line(left2()), CabinetIds());
        QCOMPARE(project.line(right16()), ids.mid(3));
        QCOMPARE(project.cabinet(ids.at(2))->rotation, 90);
        QCOMPARE(project.cabinet(ids.at(2))->id, ids.at(2));
        CabinetIds ofModel = project.cabinetsOfModel(b);
        std::sort(ofModel.begin(), ofModel.end());
        QCOMPARE(ofModel, CabinetIds({ids.at(1), ids.at(3)}));
    }

    void stockIsCountedByPortAndModel()
    {
        Project project;
        project.reset(smallWall());
        QCOMPARE(project.stockCount(left1(), a), 3);
        QCOMPARE(project.placedCount(left1(), a), 2);
        QCOMPARE(project.leftCount(left1(), a), 1);
        QCOMPARE(project.leftCount(left1(), b), 1);
        QCOMPARE(project.leftCount(left2(), a), 1);
        QCOMPARE(project.stockCount(left2(), b), 0);
        QCOMPARE(project.leftCount(left2(), b), 0);
        QCOMPARE(project.leftCount(right16(), b), 3);
    }

    void whatIsUnknownIsNothing()
    {
        Project project;
        project.reset(smallWall());
        QCOMPARE(project.model("c"), static_cast<const CabinetModel *>(nullptr));
        QCOMPARE(project.sender("s3"), static_cast<const Sender *>(nullptr));
        QCOMPARE(project.senderIndex("s3"), -1);
        QCOMPARE(project.port({"s1", 3}), static_cast<const Port *>(nullptr));
        QCOMPARE(project.port({"s3", 1}), static_cast<const Port *>(nullptr));
        QCOMPARE(project.portsOf("s3"), QVector<PortRef>());
        QCOMPARE(project.cabinet(0), static_cast<const PlacedCabinet *>(nullptr));
        QCOMPARE(project.cabinetsOfModel("c"), CabinetIds());
        QCOMPARE(project.boundsOf(0), QRect());
        QCOMPARE(project.line({"s3", 1}), CabinetIds());
        QCOMPARE(project.leftCount({"s3", 1}, a), 0);
    }

    void resetForgetsWhatWas()
    {
        Project project;
        project.reset(smallWall());
        const CabinetIds old = project.cabinetIds();
        project.reset({});
        QCOMPARE(project.data(), ProjectData());
        QCOMPARE(project.bounds(), QRect());
        QCOMPARE(project.port(left1()), static_cast<const Port *>(nullptr));
        project.reset(smallWall());
        QCOMPARE(project.data(), smallWall());
        for (const CabinetId id : old)
            QVERIFY2(!project.cabinet(id), "an old id names a new cabinet");
    }

    void dataStandsPortByPort()
    {
        ProjectData mixed = smallWall();
        mixed.cabinets.move(3, 0);
        mixed.cabinets.move(3, 2);
        Project project;
        project.reset(mixed);
        const ProjectData data = project.data();
        QCOMPARE(data.cabinets.at(0).position, QPoint(0, 0));
        QCOMPARE(data.cabinets.at(1).position, QPoint(200, 0));
        QCOMPARE(data.cabinets.at(2).position, QPoint(100, 0));
        QCOMPARE(data.cabinets.at(3).position, QPoint(-64, 10));
    }

    void totalsAddUp()
    {
        Project project;
        project.reset(smallWall());
        const Totals totals = project.totals();
        QCOMPARE(totals.cabinets, 4);
        QCOMPARE(totals.pixels, qint64(2 * 100 * 50 + 2 * 64 * 64));
        QCOMPARE(totals.weight, 2 * 2.5 + 2 * 0.1);
        QCOMPARE(totals.power, 2 * 10.25 + 2 * 0.2);
    }

    void totalsOfHugeCabinetsDoNotOverflow()
    {
        ProjectData data = smallWall();
        data.models[0].size = QSize(maxCabinetLength, maxCabinetLength);
        Project project;
        project.reset(data);
        QCOMPARE(project.totals().pixels, Q_INT64_C(2) * 65536 * 65536 + 2 * 64 * 64);
    }

    void comingAndGoingLeavesNoRoundingErrors()
    {
        ProjectData data = smallWall();
        data.senders[1].ports[0].stock[0].count = 1000;
        Project project;
        project.reset(data);
        const Totals before = project.totals();
        for (int round = 0; round < 50; ++round) {
            QVector<LinePlace> places;
            for (int i = 0; i < 7; ++i)
                places.append(place(&project, b, right16(), 1 + i));
            project.insertCabinets(places);
            project.removeCabinets(project.line(right16()).mid(1));
        }
        // Bit by bit, not nearly.
        QVERIFY(project.totals().weight == before.weight);
        QVERIFY(project.totals().power == before.power);
        project.removeCabinets(project.cabinetIds());
        QVERIFY(project.totals().weight == 0.0);
        QVERIFY(project.totals().power == 0.0);
    }

    void boundsFollowTheOutermostCabinets()
    {
        Project project;
        project.reset(smallWall());
        // The third one is turned: it covers 225,-25 to 275,75.
        QCOMPARE(project.boundsOf(nth(project, 2)), QRect(225, -25, 50, 100));
        QCOMPARE(project.bounds(), QRect(-64, -25, 339, 100));
        SignalLog log(&project);
        const CabinetId second = nth(project, 1);
        const CabinetId third = nth(project, 2);
        project.setPositions({{second, QPoint(120, 4)}});
        QCOMPARE(log.take(), QStringList({QString("changed %1").arg(second)}));
        project.removeCabinets({third});
        QCOMPARE(project.bounds(), QRect(-64, 0, 248, 74));
        QVERIFY(log.take().contains("bounds"));
        project.removeCabinets(project.cabinetIds());
        QCOMPARE(project.bounds(), QRect());
    }

    void insertingPutsCabinetsIntoTheirPlacesInTheLine()
    {
        Project project;
        project.reset(smallWall());
        const CabinetIds old = project.line(left1());
        SignalLog log(&project);
        const LinePlace first = place(&project, a, left1(), 0);
        const LinePlace third = place(&project, b, left1(), 2);
        const LinePlace alone = place(&project, a, left2(), 0);
        const CabinetId id = first.cabinet.id;
        project.insertCabinets({first, third, alone});
        QCOMPARE(project.line(left1()), CabinetIds({id, old.at(0), id + 1, old.at(1), old.at(2)}));
        QCOMPARE(project.line(left2()), CabinetIds({id + 2}));
        QCOMPARE(project.leftCount(left1(), a), 0);
        QCOMPARE(project.leftCount(left1(), b), 0);
        QCOMPARE(project.leftCount(left2(), a), 0);
        QCOMPARE(log.take(),
                 QStringList({QString("inserted %1,%2,%3").arg(id).arg(id + 1).arg(id + 2),
                              "line s1/1", "line s1/2", "stock s1/1 a", "stock s1/1 b",
                              "stock s1/2 a", "totals", "bounds"}));
    }

    void removingTellsThePlacesThatWere()
    {
        Project project;
        project.reset(smallWall());
        const CabinetIds ids = project.cabinetIds();
        SignalLog log(&project);
        const QVector<LinePlace> places = project.removeCabinets({ids.at(3), ids.at(2), ids.at(0)});
        QCOMPARE(places.size(), 3);
        QCOMPARE(places.at(0).cabinet.id, ids.at(3));
        QCOMPARE(places.at(0).index, 0);
        QCOMPARE(places.at(1).cabinet.id, ids.at(0));
        QCOMPARE(places.at(1).index, 0);
        QCOMPARE(places.at(2).cabinet.id, ids.at(2));
        QCOMPARE(places.at(2).index, 2);
        QCOMPARE(project.line(left1()), CabinetIds({ids.at(1)}));
        QCOMPARE(project.leftCount(left1(), a), 3);
        QCOMPARE(
            log.take(),
            QStringList({QString("removed %1,%2,%3").arg(ids.at(3)).arg(ids.at(0)).arg(ids.at(2)),
                         "line s2/16", "line s1/1", "stock s2/16 b", "stock s1/1 a", "totals",
                         "bounds"}));
        project.insertCabinets(places);
        QCOMPARE(project.cabinetIds(), ids);
        QCOMPARE(project.data(), smallWall());
    }

    void removingUnknownOrRepeatedIdsRemovesEachOnce()
    {
        Project project;
        project.reset(smallWall());
        SignalLog log(&project);
        QVERIFY(project.removeCabinets({0, -5, 123456}).isEmpty());
        QCOMPARE(log.take(), QStringList());
        const CabinetId id = nth(project, 1);
        QCOMPARE(project.removeCabinets({id, id}).size(), 1);
        QCOMPARE(project.placedCount(left1(), b), 0);
    }

    void anyRemovalCanBeInsertedAgain()
    {
        Project project;
        project.reset(demoProject());
        const CabinetIds ids = project.cabinetIds();
        std::mt19937 random(7);
        for (int round = 0; round < 30; ++round) {
            CabinetIds some = ids;
            std::shuffle(some.begin(), some.end(), random);
            some.resize(1 + int(random() % uint(some.size())));
            const QVector<LinePlace> places = project.removeCabinets(some);
            QCOMPARE(places.size(), some.size());
            QCOMPARE(project.cabinetCount(), ids.size() - some.size());
            project.insertCabinets(places);
            QCOMPARE(project.cabinetIds(), ids);
        }
        QCOMPARE(project.data(), demoProject());
    }

    void everythingIsUpToDateAtTheFirstSignal()
    {
        Project project;
        project.reset(smallWall());
        const LinePlace added = place(&project, a, left2(), 0);
        bool isSeen = false;
        connect(&project, &Project::cabinetsInserted, this, [&] {
            isSeen = true;
            QCOMPARE(project.line(left2()), CabinetIds({added.cabinet.id}));
            QCOMPARE(project.leftCount(left2(), a), 0);
            QCOMPARE(project.totals().cabinets, 5);
            QCOMPARE(project.bounds().bottom() + 1, 350);
        });
        project.insertCabinets({added});
        QVERIFY(isSeen);
        isSeen = false;
        connect(&project, &Project::cabinetsRemoved, this, [&] {
            isSeen = true;
            QCOMPARE(project.line(left2()), CabinetIds());
            QCOMPARE(project.leftCount(left2(), a), 1);
            QCOMPARE(project.totals().cabinets, 4);
            QVERIFY(!project.cabinet(added.cabinet.id));
        });
        project.removeCabinets({added.cabinet.id});
        QVERIFY(isSeen);
    }

    void movingAndRotatingTellWhatChangedOnce()
    {
        Project project;
        project.reset(smallWall());
        const CabinetIds ids = project.cabinetIds();
        SignalLog log(&project);
        project.setPositions({{ids.at(0), QPoint(5, 6)}, {ids.at(1), QPoint(100, 0)}, {777, {}}});
        QCOMPARE(log.take(), QStringList({QString("changed %1").arg(ids.at(0))}));
        QCOMPARE(project.cabinet(ids.at(0))->position, QPoint(5, 6));
        project.setRotations({{ids.at(0), 0}, {ids.at(2), 0}, {ids.at(3), 180}});
        QCOMPARE(log.take(),
                 QStringList({QString("changed %1,%2").arg(ids.at(2)).arg(ids.at(3)), "bounds"}));
        QCOMPARE(project.bounds(), QRect(-64, 0, 364, 74));
        project.setRotations({{ids.at(2), 0}});
        project.setPositions({{ids.at(0), QPoint(5, 6)}});
        QCOMPARE(log.take(), QStringList());
    }

    void lineTakesANewOrder()
    {
        Project project;
        project.reset(smallWall());
        const CabinetIds ids = project.line(left1());
        const CabinetIds turned{ids.at(2), ids.at(0), ids.at(1)};
        SignalLog log(&project);
        project.setLine(left1(), turned);
        QCOMPARE(project.line(left1()), turned);
        QCOMPARE(log.take(), QStringList({"line s1/1"}));
        project.setLine(left1(), turned);
        QCOMPARE(log.take(), QStringList());
    }

    void modelChangeReachesTotalsAndBounds_data()
    {
        QTest::addColumn<CabinetModel>("model");
        QTest::addColumn<QStringList>("told");
        const CabinetModel model = smallWall().models.at(1);
        QTest::newRow("nothing") << model << QStringList();
        CabinetModel renamed = model;
        renamed.name = "Other";
        QTest::newRow("name") << renamed << QStringList({"model b"});
        CabinetModel heavier = model;
        heavier.weight = 1;
        QTest::newRow("weight") << heavier << QStringList({"model b", "totals"});
        CabinetModel stronger = model;
        stronger.power = 1;
        QTest::newRow("power") << stronger << QStringList({"model b", "totals"});
        CabinetModel higher = model;
        higher.size = QSize(64, 200);
        QTest::newRow("size") << higher << QStringList({"model b", "totals", "bounds"});
        CabinetModel lower = model;
        lower.size = QSize(64, 60);
        QTest::newRow("size inside") << lower << QStringList({"model b", "totals"});
    }
    void modelChangeReachesTotalsAndBounds()
    {
        QFETCH(CabinetModel, model);
        Project project;
        project.reset(smallWall());
        SignalLog log(&project);
        project.setModel(model);
        QTEST(log.take(), "told");
        QCOMPARE(*project.model(b), model);
        ProjectData expected = smallWall();
        expected.models[1] = model;
        Project same;
        same.reset(expected);
        QCOMPARE(project.bounds(), same.bounds());
        QCOMPARE(project.totals().pixels, same.totals().pixels);
        QCOMPARE(project.totals().weight, same.totals().weight);
        QCOMPARE(project.totals().power, same.totals().power);
    }

    void sendersComeAndGo()
    {
        Project project;
        project.reset(smallWall());
        SignalLog log(&project);
        const Port port{3, PortKind::Network, {{"a", 7, {}}}, {}};
        const Sender sender{"s9", "New", "COM9", true, {port}, {}};
        project.insertSender(1, sender);
        QCOMPARE(log.take(), QStringList({"sender inserted s9"}));
        QCOMPARE(project.senderIds(), QStringList({"s1", "s9", "s2"}));
        QCOMPARE(project.leftCount({"s9", 3}, a), 7);
        project.removeSender("s9");
        QCOMPARE(log.take(), QStringList({"sender removed s9"}));
        QCOMPARE(project.port({"s9", 3}), static_cast<const Port *>(nullptr));
        QCOMPARE(project.data(), smallWall());
        project.removeSender("s9");
        QCOMPARE(log.take(), QStringList());
    }

    void senderPropertiesAndNameChange()
    {
        Project project;
        project.reset(smallWall());
        SignalLog log(&project);
        project.setSenderProperties("s2", "Far right", "COM8", true);
        QCOMPARE(log.take(), QStringList({"sender changed s2"}));
        QCOMPARE(project.sender("s2")->name, QString("Far right"));
        QCOMPARE(project.sender("s2")->connection, QString("COM8"));
        QCOMPARE(project.sender("s2")->isOnline, true);
        project.setSenderProperties("s2", "Far right", "COM8", true);
        QCOMPARE(log.take(), QStringList());
        project.setName("Large");
        QCOMPARE(log.take(), QStringList({"name"}));
        QCOMPARE(project.name(), QString("Large"));
        project.setName("Large");
        QCOMPARE(log.take(), QStringList());
    }

    void stockChangesTellTheirModels()
    {
        Project project;
        project.reset(smallWall());
        SignalLog log(&project);
        project.setStock(left1(), {{"a", 3, {}}, {"b", 5, {}}});
        QCOMPARE(log.take(), QStringList({"stock s1/1 b"}));
        QCOMPARE(project.leftCount(left1(), b), 4);
        project.setStock(left1(), {{"b", 5, {}}, {"a", 3, {}}});
        QCOMPARE(log.take(), QStringList({"stock s1/1 b", "stock s1/1 a"}));
        project.setStock(left1(), {{"b", 5, {}}, {"a", 3, {}}});
        QCOMPARE(log.take(), QStringList());
        project.setStock(left2(), {});
        QCOMPARE(log.take(), QStringList({"stock s1/2 a"}));
        QCOMPARE(project.stockCount(left2(), a), 0);
        project.setStock(left2(), {{"b", 0, {}}});
        QCOMPARE(log.take(), QStringList({"stock s1/2 b"}));
        QCOMPARE(project.port(left2())->stock.size(), 1);
    }

    void costsGrowWithWhatChanges()
    {
        // The work of the same changes in a wall ten times as large.
        const auto work = [](int cabinets) {
            Project project;
            project.reset(*generateProject(cabinets));
            const CabinetIds some = project.cabinetIds().mid(0, 80);
            QVector<CabinetPosition> positions;
            for (const CabinetId id : some)
                positions.append({id, QPoint(-id, id)});
            const qint64 before = project.workDone();
            project.setPositions(positions);
            project.insertCabinets(project.removeCabinets(some));
            const qint64 after = project.workDone();
            return QPair<qint64, qint64>(before, after - before);
        };
        const auto small = work(1000);
        const auto large = work(10000);
        QVERIFY(small.second > 0);
        QCOMPARE(large.second, small.second);
        QVERIFY(small.first >= 1000);
        QVERIFY2(large.first <= small.first * 11, "loading costs more than what is loaded");
    }

    void bulkChangesEmitOncePerKind()
    {
        Project project;
        project.reset(*generateProject(10000));
        SignalLog log(&project);
        QVector<CabinetPosition> positions;
        const CabinetIds ids = project.cabinetIds();
        for (const CabinetId id : ids)
            positions.append({id, project.cabinet(id)->position + QPoint(1, 0)});
        project.setPositions(positions);
        QCOMPARE(log.take().size(), 2); // changed, bounds
        project.removeCabinets(ids);
        int ports = 0;
        for (const QString &senderId : project.senderIds())
            ports += project.portsOf(senderId).size();
        // Removed, totals, bounds, and for each port its line and its one model.
        QCOMPARE(log.take().size(), 3 + 2 * ports);
    }

    void demoWallIsBelievable()
    {
        const ProjectData demo = demoProject();
        QCOMPARE(demo.models.size(), 5);
        QCOMPARE(demo.cabinets.size(), 403);
        int online = 0;
        int ports = 0;
        for (const Sender &sender : demo.senders) {
            online += sender.isOnline;
            ports += sender.ports.size();
        }
        QCOMPARE(online, 3);
        QCOMPARE(demo.senders.size(), 4);
        QCOMPARE(ports, 26);
        QCOMPARE(overlaps(demo), 0);
        QSet<QString> models;
        for (const PlacedCabinet &cabinet : demo.cabinets)
            models.insert(cabinet.modelId);
        QCOMPARE(models.size(), 5);
        Project project;
        project.reset(demo);
        int left = 0;
        bool isAnyUsedUp = false;
        for (const Sender &sender : demo.senders) {
            for (const Port &port : sender.ports) {
                // What a port can feed at 60 Hz.
                QVERIFY(pixelsOn(demo, {sender.id, port.number}) <= 655360);
                for (const StockEntry &entry : port.stock) {
                    const int now = project.leftCount({sender.id, port.number}, entry.modelId);
                    QVERIFY(now >= 0);
                    left += now;
                    isAnyUsedUp = isAnyUsedUp || now == 0;
                }
            }
        }
        QVERIFY(left > 0);
        QVERIFY(isAnyUsedUp);
        QCOMPARE(project.bounds(), QRect(-1216, 0, 6272, 2528));
    }

    void generatedWallHasEveryCabinetOnce_data()
    {
        QTest::addColumn<int>("wanted");
        QTest::addColumn<int>("made");
        for (const int count : {1, 2, 7, 40, 41, 333, 1000})
            QTest::newRow(qPrintable(QString::number(count))) << count << count;
        QTest::newRow("less than any") << 0 << 1;
        QTest::newRow("negative") << -3 << 1;
    }
    void generatedWallHasEveryCabinetOnce()
    {
        QFETCH(int, wanted);
        QFETCH(int, made);
        const std::optional<ProjectData> data = generateProject(wanted);
        QVERIFY(data.has_value());
        QCOMPARE(data->cabinets.size(), made);
        QCOMPARE(overlaps(*data), 0);
        Project project;
        project.reset(*data);
        QCOMPARE(project.bounds().topLeft(), QPoint(0, 0));
        for (const Sender &sender : data->senders) {
            QVERIFY(sender.ports.size() <= 16);
            for (const Port &port : sender.ports) {
                const PortRef ref{sender.id, port.number};
                QCOMPARE(port.stock.size(), 1);
                QVERIFY(project.placedCount(ref, port.stock.first().modelId) > 0);
                QCOMPARE(project.leftCount(ref, port.stock.first().modelId), 2);
                QVERIFY(pixelsOn(*data, ref) <= 655360);
            }
        }
    }

    void generatedWallIsNear16To9AndItsLinesAreSerpentines()
    {
        Project project;
        project.reset(*generateProject(10000));
        const QRect bounds = project.bounds();
        QVERIFY(qAbs(bounds.width() / double(bounds.height()) - 16.0 / 9.0) < 0.03);
        // 133 columns and 76 rows: the first block is a whole one.
        const CabinetIds line = project.line({"s1", 1});
        QCOMPARE(line.size(), 40);
        for (int i = 1; i < line.size(); ++i) {
            const QPoint step =
                project.cabinet(line.at(i))->position - project.cabinet(line.at(i - 1))->position;
            QCOMPARE(step.manhattanLength(), 128); // always to a neighbour
        }
    }

    void generatingReportsAndCanBeCancelled()
    {
        QVector<int> reports;
        QVERIFY(generateProject(10000, [&reports](int percent) {
                    reports.append(percent);
                    return true;
                }).has_value());
        QCOMPARE(reports.first(), 0);
        QCOMPARE(reports.last(), 100);
        QVERIFY(std::is_sorted(reports.cbegin(), reports.cend()));
        QVERIFY(reports.size() >= 10000 / progressStep);
        QVERIFY(reports.size() <= 2 * 10000 / progressStep);
        int calls = 0;
        QVERIFY(!generateProject(10000, [&calls](int) { return ++calls < 3; }).has_value());
        QCOMPARE(calls, 3);
    }

    void recordCarriesModelPortAndCount()
    {
        const CabinetModel model{"p26", "Stage", "Stage 2.6", QSize(192, 96), 2.604, 7.5,
                                 145.5, 229.5,   {}};
        const StructCabinet record = cabinetRecord(model, "s1", 7, 12);
        QCOMPARE(record.cabinetSize, QSize(192, 96));
        QCOMPARE(record.cabinetCount, 12);
        QCOMPARE(record.extraText1, QString("Stage 2.6"));
        QCOMPARE(record.extraText2, QString("Stage"));
        QCOMPARE(record.extraText3, QString("p26"));
        QCOMPARE(record.extraText4, QString("s1"));
        QCOMPARE(record.extraValue1, 7);
        QCOMPARE(record.extraValue2, 0);
        QCOMPARE(record.extraValue3, 0);
        QCOMPARE(record.extraValue4, 0);
        QCOMPARE(record.extraValue5, 0);
        QCOMPARE(record.extraValue6, 0);
        QCOMPARE(record.extraValue7, 0);
        QCOMPARE(record.cabinetweight, 8);
        QCOMPARE(record.cabinetpower, 145.5F);
        QCOMPARE(record.cabinetVoltage, 229.5F);
        QCOMPARE(record.cabinetuisize, 50);
        QCOMPARE(record.cabinetuiHsize, 25);
        QCOMPARE(record.cabinetPointspace, 260);

        const std::optional<RecordMeaning> meaning = recordMeaning(record);
        QVERIFY(meaning.has_value());
        QCOMPARE(meaning->modelId, QString("p26"));
        QVERIFY(meaning->port == PortRef({"s1", 7}));
    }

    void recordOfTheBoardBelongsToNoPort()
    {
        const StructCabinet record = cabinetRecord(smallWall().models.at(0), QString(), 0, 5);
        const std::optional<RecordMeaning> meaning = recordMeaning(record);
        QVERIFY(meaning.has_value());
        QCOMPARE(meaning->modelId, QString("a"));
        QVERIFY(meaning->port == PortRef());
    }

    void drawingSizeIsNeverEmpty()
    {
        CabinetModel model;
        model.size = QSize(1, 65536);
        const StructCabinet record = cabinetRecord(model, "s1", 1, 0);
        QCOMPARE(record.cabinetuisize, 1);
        QCOMPARE(record.cabinetuiHsize, 50);
    }

    void foreignRecordsMeanNothing()
    {
        StructCabinet record{};
        QVERIFY(!recordMeaning(record).has_value());
        const CabinetModel model = smallWall().models.at(0);
        QVERIFY(recordMeaning(cabinetRecord(model, "s1", 16, 0)).has_value());
        QVERIFY(!recordMeaning(cabinetRecord(model, "s1", 17, 0)).has_value());
        QVERIFY(!recordMeaning(cabinetRecord(model, "s1", 0, 0)).has_value());
        QVERIFY(!recordMeaning(cabinetRecord(model, "", 1, 0)).has_value());
        record = cabinetRecord(model, "s1", 1, 0);
        record.extraText3.clear();
        QVERIFY(!recordMeaning(record).has_value());
    }
};

ORVANE_TEST_MAIN(TestWallProject)

#include "tst_wallproject.moc"
