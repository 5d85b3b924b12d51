/// Opens, paints, scrolls, zooms and changes a wall of 10,000 cabinets in the layout view.
///
/// Every figure is the time until the picture is complete: of what a user does once, of one step of
/// the wheel or the scroll bar, or of one step of a drag. Below 16 ms the view follows the hand.

#include "document.h"
#include "layout/layoutview.h"
#include "model/commands.h"
#include "model/projectfile.h"
#include "model/sampleprojects.h"
#include "selection.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QUndoStack>

namespace
{

constexpr int cabinetCount = 10000;
constexpr QSize windowSize(1600, 900);

/// Turns a zoom in thousandths, as benchmarks name it, into the view's.
double zoomOf(const benchmark::State &state)
{
    constexpr double thousand = 1000.0;
    return double(state.range(0)) / thousand;
}

const wall::ProjectData &bigWall()
{
    static const wall::ProjectData data = *wall::generateProject(cabinetCount);
    return data;
}

/// Does what is left to be done and painted.
void finishPainting()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

/// A document in a view on the screen.
struct Stage {
    wall::Document document;
    wall::Selection selection{document.project()};
    wall::LayoutView view{&document, &selection};

    explicit Stage(const wall::ProjectData &data = bigWall())
    {
        document.reset(data, QString());
        view.resize(windowSize);
        view.show();
        finishPainting();
    }
};

} // namespace

static void loadFile(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("wall.json");
    if (wall::saveProject(file, bigWall()).state != wall::SaveResult::Saved) {
        state.SkipWithError("the project could not be saved");
        return;
    }
    for (auto _ : state) {
        const wall::LoadResult result = wall::loadProject(file);
        if (result.data.cabinets.size() != cabinetCount)
            state.SkipWithError("not all cabinets were loaded");
    }
}
BENCHMARK(loadFile)->Unit(benchmark::kMillisecond);

/// From the data of a file to the first picture of the whole wall.
static void showFirst(benchmark::State &state)
{
    bigWall();
    for (auto _ : state) {
        auto stage = std::make_unique<Stage>();
        state.PauseTiming();
        if (stage->document.project()->cabinetCount() != cabinetCount)
            state.SkipWithError("not all cabinets are on the wall");
        stage.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(showFirst)->Unit(benchmark::kMillisecond);

/// The whole view, with everything that is drawn at a zoom.
static void paintAll(benchmark::State &state)
{
    Stage stage;
    if (state.range(0) > 0)
        stage.view.setZoom(zoomOf(state));
    stage.view.setViewMode(wall::ViewMode(state.range(1)));
    finishPainting();
    for (auto _ : state)
        stage.view.viewport()->repaint();
    state.counters["cabinets"] =
        double(stage.view.items().isEmpty() ? 0
                                            : static_cast<wall::LayoutScene *>(stage.view.scene())
                                                  ->cabinetsNear(stage.view.visibleArea())
                                                  .size());
}
BENCHMARK(paintAll)
    ->ArgNames({"zoom", "mode"})
    ->ArgsProduct({{0, 60, 120, 250, 500, 1000, 4000}, {0, 1, 2}})
    ->Unit(benchmark::kMillisecond);

static void paintAllSelected(benchmark::State &state)
{
    Stage stage;
    stage.view.selectAll();
    finishPainting();
    for (auto _ : state)
        stage.view.viewport()->repaint();
}
BENCHMARK(paintAllSelected)->Unit(benchmark::kMillisecond);

/// There and back, by a share of the view's width.
static void scroll(benchmark::State &state)
{
    Stage stage;
    if (state.range(0) > 0)
        stage.view.setZoom(zoomOf(state));
    finishPainting();
    QScrollBar *bar = stage.view.horizontalScrollBar();
    int step = int(stage.view.viewport()->width() / state.range(1));
    for (auto _ : state) {
        bar->setValue(bar->value() + step);
        finishPainting();
        step = -step;
    }
}
BENCHMARK(scroll)
    ->ArgNames({"zoom", "part"})
    ->ArgsProduct({{0, 120, 500, 1000}, {1, 20}})
    ->Unit(benchmark::kMillisecond);

/// One step of the wheel, in and out again.
static void zoomStep(benchmark::State &state)
{
    Stage stage;
    if (state.range(0) > 0)
        stage.view.setZoom(zoomOf(state));
    finishPainting();
    bool isIn = true;
    for (auto _ : state) {
        if (isIn)
            stage.view.zoomIn();
        else
            stage.view.zoomOut();
        finishPainting();
        isIn = !isIn;
    }
}
BENCHMARK(zoomStep)->ArgName("zoom")->Arg(0)->Arg(250)->Arg(1000)->Unit(benchmark::kMillisecond);

/// One step of a drag of so many cabinets, while the whole wall is in sight.
static void moveStep(benchmark::State &state)
{
    Stage stage;
    const wall::CabinetIds all = stage.document.project()->cabinetIds();
    const wall::CabinetIds moved = all.mid(all.size() / 2, int(state.range(0)));
    stage.selection.setCabinets(moved);
    finishPainting();
    const int gesture = wall::newGesture();
    int step = 32;
    for (auto _ : state) {
        stage.document.push(new wall::MoveCabinetsCommand(stage.document.project(), moved,
                                                          QPoint(step, 0), gesture));
        finishPainting();
        step = -step;
    }
}
BENCHMARK(moveStep)->ArgName("cabinets")->Arg(1)->Arg(1000)->Unit(benchmark::kMillisecond);

/// Undoing the removal of so many cabinets, and doing it again.
static void undoRemoval(benchmark::State &state)
{
    Stage stage;
    wall::Project *project = stage.document.project();
    const wall::CabinetIds all = project->cabinetIds();
    stage.document.push(
        new wall::RemoveCabinetsCommand(project, all.mid(all.size() / 2, int(state.range(0)))));
    finishPainting();
    bool isUndo = true;
    for (auto _ : state) {
        if (isUndo)
            stage.document.undoStack()->undo();
        else
            stage.document.undoStack()->redo();
        finishPainting();
        isUndo = !isUndo;
    }
}
BENCHMARK(undoRemoval)->ArgName("cabinets")->Arg(1)->Arg(1000)->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return EXIT_FAILURE;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return EXIT_SUCCESS;
}
