#include "support/testcase.h"
#include "support/wallsamples.h"

#include <model/commands.h>
#include <model/sampleprojects.h>

#include <QUndoStack>

#include <limits>
#include <random>

using namespace wall;
using wallsamples::cabinet;
using wallsamples::SignalLog;
using wallsamples::smallWall;

namespace
{

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

/// A project and what happens to it.
struct Bench {
    explicit Bench(const ProjectData &data = smallWall())
    {
        project.reset(data);
        ids = project.cabinetIds();
    }

    Project project;
    QUndoStack stack;
    CabinetIds ids; ///< At the beginning, in the order of the data.
};

/// Everything of a project that an undo has to bring back, the ids included.
QPair<ProjectData, CabinetIds> state(const Project &project)
{
    return {project.data(), project.cabinetIds()};
}

CabinetModel widerA()
{
    CabinetModel model = smallWall().models.at(0);
    model.size = QSize(120, 50);
    return model;
}

Sender newSender(const QString &id)
{
    return {id, "New", "COM9", true, {{4, PortKind::Network, {{"a", 2, {}}}, {}}}, {}};
}

} // namespace

Q_DECLARE_METATYPE(wall::CabinetModel)
Q_DECLARE_METATYPE(wall::PlacedCabinet)
Q_DECLARE_METATYPE(wall::Sender)
Q_DECLARE_METATYPE(std::function<QUndoCommand *(Bench *)>)

class TestWallCommands : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void commandsGoBackAndForthExactly_data()
    {
        using Make = std::function<QUndoCommand *(Bench *)>;
        QTest::addColumn<Make>("make");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("told");
        QTest::addColumn<QStringList>("toldBack");
        const auto row = [](const char *name, const Make &make, const char *text,
                            const QStringList &told, const QStringList &toldBack) {
            QTest::newRow(name) << make << text << told << toldBack;
        };
        row("place",
            [](Bench *bench) {
                return new PlaceCabinetsCommand(
                    &bench->project,
                    {cabinet("a", left1(), {500, 0}), cabinet("b", left1(), {600, 0}, 45)});
            },
            "Place 2 cabinets",
            {"inserted 5,6", "line s1/1", "stock s1/1 a", "stock s1/1 b", "totals", "bounds"},
            {"removed 5,6", "line s1/1", "stock s1/1 a", "stock s1/1 b", "totals", "bounds"});
        row("remove",
            [](Bench *bench) {
                return new RemoveCabinetsCommand(&bench->project,
                                                 {bench->ids.at(1), bench->ids.at(0), 99});
            },
            "Remove 2 cabinets",
            {"removed 1,2", "line s1/1", "stock s1/1 a", "stock s1/1 b", "totals"},
            {"inserted 1,2", "line s1/1", "stock s1/1 a", "stock s1/1 b", "totals"});
        row("move",
            [](Bench *bench) {
                return new MoveCabinetsCommand(&bench->project, {bench->ids.at(3)}, QPoint(-1, 5));
            },
            "Move cabinet", {"changed 4", "bounds"}, {"changed 4", "bounds"});
        row("rotate",
            [](Bench *bench) {
                return new RotateCabinetsCommand(&bench->project, bench->ids.mid(0, 2), -90);
            },
            "Rotate 2 cabinets", {"changed 1,2"}, {"changed 1,2"});
        row("reorder",
            [](Bench *bench) {
                return new ReorderLineCommand(&bench->project, left1(), {3, 1, 2});
            },
            "Reorder data line", {"line s1/1"}, {"line s1/1"});
        row("change model",
            [](Bench *bench) { return new ChangeModelCommand(&bench->project, widerA()); },
            "Change model", {"model a", "totals", "bounds"}, {"model a", "totals", "bounds"});
        row("add sender",
            [](Bench *bench) { return new AddSenderCommand(&bench->project, newSender("s3")); },
            "Add sender", {"sender inserted s3"}, {"sender removed s3"});
        row("remove sender",
            [](Bench *bench) { return new RemoveSenderCommand(&bench->project, "s1"); },
            "Remove sender",
            {"removed 1,2,3", "line s1/1", "stock s1/1 a", "stock s1/1 b", "totals", "bounds",
             "sender removed s1"},
            {"sender inserted s1", "inserted 1,2,3", "line s1/1", "stock s1/1 a", "stock s1/1 b",
             "totals", "bounds"});
        row("rename sender",
            [](Bench *bench) { return new ChangeSenderCommand(&bench->project, "s2", "Far"); },
            "Rename sender", {"sender changed s2"}, {"sender changed s2"});
        row("change sender",
            [](Bench *bench) {
                return new ChangeSenderCommand(&bench->project, "s2", "Right", "COM8", true);
            },
            "Change sender", {"sender changed s2"}, {"sender changed s2"});
        row("change stock",
            [](Bench *bench) { return new ChangeStockCommand(&bench->project, left1(), "a", 2); },
            "Change stock", {"stock s1/1 a"}, {"stock s1/1 a"});
        row("new in the stock",
            [](Bench *bench) { return new ChangeStockCommand(&bench->project, left2(), "b", 0); },
            "Change stock", {"stock s1/2 b"}, {"stock s1/2 b"});
        row("rename project",
            [](Bench *bench) { return new RenameProjectCommand(&bench->project, "Other"); },
            "Rename project", {"name"}, {"name"});
    }
    void commandsGoBackAndForthExactly()
    {
        QFETCH(std::function<QUndoCommand *(Bench *)>, make);
        QFETCH(QStringList, told);
        QFETCH(QStringList, toldBack);
        Bench bench;
        QCOMPARE(bench.ids, CabinetIds({1, 2, 3, 4}));
        const auto before = state(bench.project);
        SignalLog log(&bench.project);
        bench.stack.push(make(&bench));
        QCOMPARE(log.take(), told);
        QTEST(bench.stack.undoText(), "text");
        const auto after = state(bench.project);
        QVERIFY(after != before);
        for (int round = 0; round < 2; ++round) {
            bench.stack.undo();
            QCOMPARE(log.take(), toldBack);
            QCOMPARE(state(bench.project), before);
            bench.stack.redo();
            QCOMPARE(log.take(), told);
            QCOMPARE(state(bench.project), after);
        }
    }

    void placingAppendsToTheLinesAndCountsDown()
    {
        Bench bench;
        auto *place = new PlaceCabinetsCommand(&bench.project,
                                               {cabinet("a", left1(), {500, 0}),
                                                cabinet("a", left2(), {500, 50}),
                                                cabinet("b", left1(), {600, 0})});
        const CabinetIds ids = place->ids();
        QCOMPARE(ids.size(), 3);
        bench.stack.push(place);
        QCOMPARE(
            bench.project.line(left1()),
            CabinetIds({bench.ids.at(0), bench.ids.at(1), bench.ids.at(2), ids.at(0), ids.at(2)}));
        QCOMPARE(bench.project.line(left2()), CabinetIds({ids.at(1)}));
        QCOMPARE(bench.project.leftCount(left1(), "a"), 0);
        QCOMPARE(bench.project.leftCount(left2(), "a"), 0);
        bench.stack.undo();
        QCOMPARE(bench.project.leftCount(left1(), "a"), 1);
        QCOMPARE(bench.project.leftCount(left2(), "a"), 1);
    }

    void removingASenderRestoresItWhereItWas()
    {
        Bench bench;
        bench.stack.push(new AddSenderCommand(&bench.project, newSender("s3"), 1));
        QCOMPARE(bench.project.senderIds(), QStringList({"s1", "s3", "s2"}));
        const CabinetIds line = {3, 1, 2};
        bench.stack.push(new ReorderLineCommand(&bench.project, left1(), line));
        bench.stack.push(new RemoveSenderCommand(&bench.project, "s1"));
        QCOMPARE(bench.project.senderIds(), QStringList({"s3", "s2"}));
        QCOMPARE(bench.project.cabinetCount(), 1);
        bench.stack.undo();
        QCOMPARE(bench.project.senderIds(), QStringList({"s1", "s3", "s2"}));
        QCOMPARE(bench.project.line(left1()), line);
    }

    void senderGoesToTheEndWithoutAPlace_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QStringList>("senders");
        QTest::newRow("first") << 0 << QStringList({"s3", "s1", "s2"});
        QTest::newRow("between") << 1 << QStringList({"s1", "s3", "s2"});
        QTest::newRow("end") << 2 << QStringList({"s1", "s2", "s3"});
        QTest::newRow("none") << -1 << QStringList({"s1", "s2", "s3"});
        QTest::newRow("too far") << 9 << QStringList({"s1", "s2", "s3"});
    }
    void senderGoesToTheEndWithoutAPlace()
    {
        QFETCH(int, index);
        Bench bench;
        bench.stack.push(new AddSenderCommand(&bench.project, newSender("s3"), index));
        QTEST(bench.project.senderIds(), "senders");
    }

    void commandsThatChangeNothingLeaveNoStep()
    {
        Bench bench;
        Project *project = &bench.project;
        SignalLog log(project);
        bench.stack.push(new PlaceCabinetsCommand(project, {}));
        bench.stack.push(new RemoveCabinetsCommand(project, {}));
        bench.stack.push(new RemoveCabinetsCommand(project, {99}));
        bench.stack.push(new MoveCabinetsCommand(project, bench.ids, QPoint()));
        bench.stack.push(new MoveCabinetsCommand(project, CabinetIds{99}, QPoint(1, 1)));
        bench.stack.push(new RotateCabinetsCommand(project, CabinetIds{bench.ids.at(2)}, 450));
        bench.stack.push(new ReorderLineCommand(project, left1(), project->line(left1())));
        bench.stack.push(new ChangeModelCommand(project, *project->model("a")));
        bench.stack.push(new ChangeSenderCommand(project, "s1", "Left"));
        bench.stack.push(new ChangeStockCommand(project, left1(), "a", 3));
        bench.stack.push(new RenameProjectCommand(project, "Small"));
        QCOMPARE(bench.stack.count(), 0);
        QCOMPARE(log.take(), QStringList());
        QVERIFY(bench.stack.isClean());
    }

    void movesOfOneGestureAreOneStep()
    {
        Bench bench;
        const auto before = state(bench.project);
        const int drag = newGesture();
        const CabinetIds two = bench.ids.mid(0, 2);
        bench.stack.push(new MoveCabinetsCommand(&bench.project, two, QPoint(10, 0), drag));
        bench.stack.push(new MoveCabinetsCommand(&bench.project, two, QPoint(0, 7), drag));
        bench.stack.push(new MoveCabinetsCommand(&bench.project, two, QPoint(-3, 0), drag));
        QCOMPARE(bench.stack.count(), 1);
        QCOMPARE(bench.project.cabinet(two.at(1))->position, QPoint(107, 7));
        const auto after = state(bench.project);
        bench.stack.undo();
        QCOMPARE(state(bench.project), before);
        bench.stack.redo();
        QCOMPARE(state(bench.project), after);
    }

    void onlyStepsOfOneGestureAndTheSameCabinetsJoin()
    {
        Bench bench;
        Project *project = &bench.project;
        const int one = newGesture();
        const int other = newGesture();
        QVERIFY(one > 0);
        QVERIFY(other != one);
        const CabinetIds first = bench.ids.mid(0, 1);
        const CabinetIds second = bench.ids.mid(1, 1);
        const QPoint step(1, 1);
        bench.stack.push(new MoveCabinetsCommand(project, first, step, one));
        bench.stack.push(new MoveCabinetsCommand(project, first, step, other));
        QCOMPARE(bench.stack.count(), 2);
        bench.stack.push(new MoveCabinetsCommand(project, second, step, other));
        QCOMPARE(bench.stack.count(), 3);
        bench.stack.push(new RotateCabinetsCommand(project, second, 5, other));
        QCOMPARE(bench.stack.count(), 4);
        bench.stack.push(new MoveCabinetsCommand(project, second, step));
        bench.stack.push(new MoveCabinetsCommand(project, second, step));
        QCOMPARE(bench.stack.count(), 6);
        bench.stack.push(new RotateCabinetsCommand(project, second, 6));
        bench.stack.push(new RotateCabinetsCommand(project, second, 7));
        QCOMPARE(bench.stack.count(), 8);
        CabinetModel model = *project->model("a");
        model.weight = 3;
        bench.stack.push(new ChangeModelCommand(project, model));
        model.weight = 4;
        bench.stack.push(new ChangeModelCommand(project, model));
        QCOMPARE(bench.stack.count(), 10);
    }

    void gestureThatReturnsToItsStartLeavesNoStep()
    {
        Bench bench;
        Project *project = &bench.project;
        const auto before = state(*project);
        int gesture = newGesture();
        bench.stack.push(new MoveCabinetsCommand(project, bench.ids, QPoint(4, 4), gesture));
        QCOMPARE(bench.stack.count(), 1);
        bench.stack.push(new MoveCabinetsCommand(project, bench.ids, QPoint(-4, -4), gesture));
        QCOMPARE(bench.stack.count(), 0);
        gesture = newGesture();
        const CabinetIds first = bench.ids.mid(0, 1);
        bench.stack.push(new RotateCabinetsCommand(project, first, 359, gesture));
        bench.stack.push(new RotateCabinetsCommand(project, first, 360, gesture));
        QCOMPARE(bench.stack.count(), 0);
        gesture = newGesture();
        const CabinetModel model = *project->model("a");
        bench.stack.push(new ChangeModelCommand(project, widerA(), gesture));
        bench.stack.push(new ChangeModelCommand(project, model, gesture));
        QCOMPARE(bench.stack.count(), 0);
        QCOMPARE(state(*project), before);
        QVERIFY(bench.stack.isClean());
    }

    void rotationsOfOneGestureAreOneStepAndWrap()
    {
        Bench bench;
        const int gesture = newGesture();
        const CabinetId id = bench.ids.at(0);
        bench.stack.push(new RotateCabinetsCommand(&bench.project, CabinetIds{id}, 359, gesture));
        QCOMPARE(bench.project.cabinet(id)->rotation, 359);
        bench.stack.push(new RotateCabinetsCommand(&bench.project, CabinetIds{id}, 361, gesture));
        QCOMPARE(bench.project.cabinet(id)->rotation, 1);
        QCOMPARE(bench.stack.count(), 1);
        bench.stack.undo();
        QCOMPARE(bench.project.cabinet(id)->rotation, 0);
    }

    void modelChangesOfOneGestureAreOneStep()
    {
        Bench bench;
        const auto before = state(bench.project);
        const int gesture = newGesture();
        CabinetModel model = widerA();
        bench.stack.push(new ChangeModelCommand(&bench.project, model, gesture));
        model.power = 99;
        bench.stack.push(new ChangeModelCommand(&bench.project, model, gesture));
        QCOMPARE(bench.stack.count(), 1);
        CabinetModel other = *bench.project.model("b");
        other.power = 99;
        bench.stack.push(new ChangeModelCommand(&bench.project, other, gesture));
        QCOMPARE(bench.stack.count(), 2);
        bench.stack.undo();
        bench.stack.undo();
        QCOMPARE(state(bench.project), before);
    }

    void movesAndRotationsCanHaveTargetsOfTheirOwn()
    {
        Bench bench;
        const QVector<CabinetPosition> positions{{bench.ids.at(0), QPoint(1, 2)},
                                                 {bench.ids.at(3), QPoint(3, 4)}};
        bench.stack.push(new MoveCabinetsCommand(&bench.project, positions));
        QCOMPARE(bench.project.cabinet(bench.ids.at(0))->position, QPoint(1, 2));
        QCOMPARE(bench.project.cabinet(bench.ids.at(3))->position, QPoint(3, 4));
        const QVector<CabinetRotation> rotations{{bench.ids.at(0), -10}, {bench.ids.at(1), 20}};
        bench.stack.push(new RotateCabinetsCommand(&bench.project, rotations));
        QCOMPARE(bench.project.cabinet(bench.ids.at(0))->rotation, 350);
        QCOMPARE(bench.project.cabinet(bench.ids.at(1))->rotation, 20);
    }

    void possibleMoveStopsAtTheEndsOfTheWorld()
    {
        Bench bench;
        const CabinetIds ids = bench.ids;
        QCOMPARE(possibleMove(bench.project, ids, QPoint(5, -5)), QPoint(5, -5));
        // The rightmost lies at 200, the leftmost at -64; 10 is the lowest.
        QCOMPARE(possibleMove(bench.project, ids, QPoint(maxCoordinate, maxCoordinate)),
                 QPoint(maxCoordinate - 200, maxCoordinate - 10));
        constexpr int least = std::numeric_limits<int>::min();
        QCOMPARE(possibleMove(bench.project, ids, QPoint(least, least)),
                 QPoint(64 - maxCoordinate, -maxCoordinate));
        QCOMPARE(possibleMove(bench.project, {}, QPoint(1, 2)), QPoint(1, 2));
    }

    void impossiblePlacementsAreToldBefore_data()
    {
        QTest::addColumn<PlacedCabinet>("placed");
        QTest::addColumn<QString>("problem");
        const PlacedCabinet good = cabinet("a", left1(), {0, 0});
        QTest::newRow("possible") << good << QString();
        QTest::newRow("corner") << cabinet("a", left1(), {maxCoordinate, -maxCoordinate}, 359)
                                << QString();
        QTest::newRow("offline") << cabinet("b", right16(), {0, 0}) << QString();
        QTest::newRow("model") << cabinet("c", left1(), {0, 0})
                               << QString("There is no model \"c\".");
        QTest::newRow("sender") << cabinet("a", {"s7", 1}, {0, 0})
                                << QString("There is no sender \"s7\".");
        QTest::newRow("port") << cabinet("a", {"s1", 5}, {0, 0})
                              << QString("There is no port 5 of \"Left\".");
        QTest::newRow("not in stock") << cabinet("b", left2(), {0, 0})
                                      << QString("No \"Model B\" is left on port 2 of \"Left\".");
        const QString position = "A position has to be from -16777216 to 16777216.";
        QTest::newRow("x") << cabinet("a", left1(), {maxCoordinate + 1, 0}) << position;
        QTest::newRow("y") << cabinet("a", left1(), {0, std::numeric_limits<int>::min()})
                           << position;
        const QString rotation = "A rotation has to be from 0 to 359 degrees.";
        QTest::newRow("turn") << cabinet("a", left1(), {0, 0}, 360) << rotation;
        QTest::newRow("back") << cabinet("a", left1(), {0, 0}, -1) << rotation;
    }
    void impossiblePlacementsAreToldBefore()
    {
        QFETCH(PlacedCabinet, placed);
        Bench bench;
        QTEST(placementProblem(bench.project, {placed}), "problem");
    }

    void noMoreThanIsLeftCanBePlaced()
    {
        Bench bench;
        const PlacedCabinet one = cabinet("a", left1(), {0, 0});
        QCOMPARE(placementProblem(bench.project, {one}), QString());
        QCOMPARE(placementProblem(bench.project, {one, cabinet("a", left2(), {0, 0})}), QString());
        QCOMPARE(placementProblem(bench.project, {one, one}),
                 QString("Only 1 of \"Model A\" left on port 1 of \"Left\"."));
        bench.stack.push(new PlaceCabinetsCommand(&bench.project, {one}));
        QCOMPARE(placementProblem(bench.project, {one}),
                 QString("No \"Model A\" is left on port 1 of \"Left\"."));
        bench.stack.push(new RemoveCabinetsCommand(&bench.project, {bench.ids.at(0)}));
        QCOMPARE(placementProblem(bench.project, {one}), QString());
    }

    void impossibleModelsAreToldBefore_data()
    {
        QTest::addColumn<CabinetModel>("model");
        QTest::addColumn<QString>("problem");
        const CabinetModel good = smallWall().models.at(0);
        const auto row = [&good](const char *name, const QString &problem, const auto &change) {
            CabinetModel model = good;
            change(&model);
            QTest::newRow(name) << model << problem;
        };
        const QString size = "Width and height have to be from 1 to 65536 pixels.";
        const QString pitch = "The pitch has to be greater than 0 and at most 1000 mm.";
        const QString weight = "The weight has to be from 0 to 100000 kg.";
        const double none = std::numeric_limits<double>::quiet_NaN();
        row("possible", {}, [](CabinetModel *) {});
        row("greatest", {}, [](CabinetModel *model) {
            *model = {model->id, {}, {}, QSize(65536, 65536), 1000, 100000, 1000000, 100000, {}};
        });
        row("unknown", "There is no model \"z\".", [](CabinetModel *model) { model->id = "z"; });
        row("no width", size, [](CabinetModel *model) { model->size.setWidth(0); });
        row("wide", size, [](CabinetModel *model) { model->size.setWidth(65537); });
        row("no height", size, [](CabinetModel *model) { model->size.setHeight(-1); });
        row("high", size, [](CabinetModel *model) { model->size.setHeight(65537); });
        row("no pitch", pitch, [](CabinetModel *model) { model->pitch = 0; });
        row("pitch", pitch, [](CabinetModel *model) { model->pitch = 1000.1; });
        row("pitch of nothing", pitch, [none](CabinetModel *model) { model->pitch = none; });
        row("weight", weight, [](CabinetModel *model) { model->weight = -0.1; });
        row("weight of nothing", weight, [none](CabinetModel *model) { model->weight = none; });
        row("power", "The power has to be from 0 to 1000000 W.",
            [](CabinetModel *model) { model->power = 1000001; });
        row("voltage", "The voltage has to be from 0 to 100000 V.",
            [](CabinetModel *model) { model->voltage = -1; });
    }
    void impossibleModelsAreToldBefore()
    {
        QFETCH(CabinetModel, model);
        Bench bench;
        QTEST(modelProblem(bench.project, model), "problem");
    }

    void impossibleSendersAreToldBefore_data()
    {
        QTest::addColumn<Sender>("sender");
        QTest::addColumn<QString>("problem");
        const auto row = [](const char *name, const QString &problem, const auto &change) {
            Sender sender = newSender("s3");
            change(&sender);
            QTest::newRow(name) << sender << problem;
        };
        const QString number = "A port number has to be from 1 to 16.";
        const QString count = "From 0 to 1000000 cabinets of a model can hang on a port.";
        row("possible", {}, [](Sender *) {});
        row("no id", "A sender has to have an id.", [](Sender *sender) { sender->id.clear(); });
        row("taken", "There is a sender \"s1\" already.",
            [](Sender *sender) { sender->id = "s1"; });
        row("port 0", number, [](Sender *sender) { sender->ports[0].number = 0; });
        row("port 17", number, [](Sender *sender) { sender->ports[0].number = 17; });
        row("port twice", "Port 4 occurs twice.",
            [](Sender *sender) { sender->ports.append(sender->ports.first()); });
        row("model", "There is no model \"x\".",
            [](Sender *sender) { sender->ports[0].stock[0].modelId = "x"; });
        row("model twice", "Model \"a\" occurs twice in the stock of port 4.", [](Sender *sender) {
            sender->ports[0].stock.append({"a", 1, {}});
        });
        row("negative", count, [](Sender *sender) { sender->ports[0].stock[0].count = -1; });
        row("too many", count, [](Sender *sender) { sender->ports[0].stock[0].count = 1000001; });
    }
    void impossibleSendersAreToldBefore()
    {
        QFETCH(Sender, sender);
        Bench bench;
        QTEST(senderProblem(bench.project, sender), "problem");
    }

    void impossibleStockIsToldBefore_data()
    {
        QTest::addColumn<PortRef>("port");
        QTest::addColumn<QString>("modelId");
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("problem");
        const QString range = "From 0 to 1000000 cabinets of a model can hang on a port.";
        QTest::newRow("as many as placed") << left1() << "a" << 2 << QString();
        QTest::newRow("most") << left1() << "a" << 1000000 << QString();
        QTest::newRow("none placed") << left2() << "b" << 0 << QString();
        QTest::newRow("less than placed")
            << left1() << "a" << 1 << QString("2 of \"Model A\" on port 1 of \"Left\" are placed.");
        QTest::newRow("negative") << left1() << "a" << -1 << range;
        QTest::newRow("too many") << left1() << "a" << 1000001 << range;
        QTest::newRow("model") << left1() << "c" << 1 << QString("There is no model \"c\".");
        QTest::newRow("port") << PortRef{"s1", 3} << "a" << 1
                              << QString("There is no port 3 of \"Left\".");
    }
    void impossibleStockIsToldBefore()
    {
        QFETCH(PortRef, port);
        QFETCH(QString, modelId);
        QFETCH(int, count);
        Bench bench;
        QTEST(stockProblem(bench.project, port, modelId, count), "problem");
    }

    void impossibleLinesAreToldBefore()
    {
        Bench bench;
        const QString problem = "The data line of port 1 of \"Left\" has other cabinets.";
        QCOMPARE(lineProblem(bench.project, left1(), {3, 2, 1}), QString());
        QCOMPARE(lineProblem(bench.project, left1(), {3, 2}), problem);
        QCOMPARE(lineProblem(bench.project, left1(), {3, 2, 2}), problem);
        QCOMPARE(lineProblem(bench.project, left1(), {3, 2, 4}), problem);
        QCOMPARE(lineProblem(bench.project, left1(), {3, 2, 1, 4}), problem);
        QCOMPARE(lineProblem(bench.project, {"s9", 1}, {}), QString("There is no sender \"s9\"."));
    }

    void macroOfCommandsIsOneStep()
    {
        Bench bench;
        const auto before = state(bench.project);
        bench.stack.beginMacro("Swap");
        bench.stack.push(new RemoveCabinetsCommand(&bench.project, {bench.ids.at(1)}));
        bench.stack.push(new PlaceCabinetsCommand(&bench.project, {cabinet("b", left1(), {7, 7})}));
        bench.stack.endMacro();
        const auto after = state(bench.project);
        bench.stack.undo();
        QCOMPARE(state(bench.project), before);
        bench.stack.redo();
        QCOMPARE(state(bench.project), after);
    }

    /// Whatever is done, undoing all of it ends where it began, and redoing where it ended.
    void anyRowOfCommandsCanBeUndone_data()
    {
        QTest::addColumn<int>("seed");
        for (int seed = 1; seed <= 5; ++seed)
            QTest::newRow(qPrintable(QString::number(seed))) << seed;
    }
    void anyRowOfCommandsCanBeUndone()
    {
        QFETCH(int, seed);
        std::mt19937 random{uint(seed)};
        const auto below = [&random](int end) { return int(random() % uint(end)); };
        Bench bench(demoProject());
        Project *project = &bench.project;
        QVector<QPair<ProjectData, CabinetIds>> states{state(*project)};
        int added = 0;
        while (bench.stack.count() < 60) {
            CabinetIds ids = project->cabinetIds();
            std::shuffle(ids.begin(), ids.end(), random);
            ids.resize(qMin(ids.size(), below(20)));
            const QString senderId = project->senderIds().at(below(project->senderIds().size()));
            const QVector<PortRef> ports = project->portsOf(senderId);
            const PortRef port = ports.at(below(ports.size()));
            const QString modelId = project->modelIds().at(below(project->modelIds().size()));
            QUndoCommand *command = nullptr;
            switch (below(9)) {
            case 0: {
                const PlacedCabinet placed = cabinet(modelId, port, {below(999), 7}, below(360));
                if (placementProblem(*project, {placed}).isEmpty())
                    command = new PlaceCabinetsCommand(project, {placed});
                break;
            }
            case 1:
                command = new RemoveCabinetsCommand(project, ids);
                break;
            case 2:
                command = new MoveCabinetsCommand(project, ids, QPoint(below(50), -below(50)));
                break;
            case 3:
                command = new RotateCabinetsCommand(project, ids, below(720) - 360);
                break;
            case 4: {
                CabinetIds line = project->line(port);
                std::shuffle(line.begin(), line.end(), random);
                QCOMPARE(lineProblem(*project, port, line), QString());
                command = new ReorderLineCommand(project, port, line);
                break;
            }
            case 5: {
                CabinetModel model = *project->model(modelId);
                model.size = QSize(1 + below(400), 1 + below(400));
                command = new ChangeModelCommand(project, model);
                break;
            }
            case 6:
                command = new AddSenderCommand(project,
                                               {QString("new%1").arg(++added),
                                                "N",
                                                "",
                                                true,
                                                {{1, PortKind::Network, {{modelId, 3, {}}}, {}}},
                                                {}},
                                               below(4));
                break;
            case 7:
                if (project->senderIds().size() > 2)
                    command = new RemoveSenderCommand(project, senderId);
                break;
            default: {
                const int count = below(30);
                if (stockProblem(*project, port, modelId, count).isEmpty())
                    command = new ChangeStockCommand(project, port, modelId, count);
            }
            }
            if (!command)
                continue;
            const int before = bench.stack.count();
            bench.stack.push(command);
            if (bench.stack.count() > before)
                states.append(state(*project));
        }
        for (int i = states.size() - 2; i >= 0; --i) {
            bench.stack.undo();
            QVERIFY2(state(*project) == states.at(i), qPrintable(bench.stack.redoText()));
            // What is kept up to date is what a fresh look gives.
            Project fresh;
            fresh.reset(project->data());
            QCOMPARE(project->bounds(), fresh.bounds());
            QCOMPARE(project->totals().pixels, fresh.totals().pixels);
            QVERIFY(project->totals().weight == fresh.totals().weight);
        }
        for (int i = 1; i < states.size(); ++i) {
            bench.stack.redo();
            QVERIFY2(state(*project) == states.at(i), qPrintable(bench.stack.undoText()));
        }
    }
};

ORVANE_TEST_MAIN(TestWallCommands)

#include "tst_wallcommands.moc"
