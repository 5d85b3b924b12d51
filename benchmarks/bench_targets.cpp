/// What the library promises about its cost; report.py compares the figures with the limits.

#include "bareqt.h"
#include "cabinetrecords.h"
#include "controls.h"
#include "drawer.h"
#include "draweritem.h"
#include "draweritemcontent.h"
#include "sidebyside.h"
#include "toolbuttonex.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QScrollArea>
#include <QTest>

#include <memory>

namespace
{

constexpr int manyPairs = 31;
constexpr int fewPairs = 11;

void measureUnchanged(benchmark::State &state, const Control &control)
{
    constexpr int setters = 10;
    QWidget window;
    QWidget *widget = control.make(&window);
    window.show();
    QCoreApplication::processEvents();
    control.restyle(widget, 0);
    int value = 0;
    const auto polish = [&] {
        value = 1 - value;
        const Stopwatch stopwatch;
        control.restyle(widget, value);
        return stopwatch.seconds();
    };
    // The clock counts microseconds: one call is too short for it.
    const auto setAgain = [&] {
        constexpr int repetitions = 20;
        const Stopwatch stopwatch;
        for (int i = 0; i < repetitions * setters; ++i)
            control.restyle(widget, value);
        return stopwatch.seconds() / repetitions;
    };
    runSideBySide(state, polish, setAgain);
}

// The painter of a cabinet beside the painting of a bare tool button with its sheet.

template <typename Button> void prepare(Button *button)
{
    button->setAttribute(Qt::WA_DontShowOnScreen);
    button->show();
    QCoreApplication::processEvents();
}

double paintTime(QWidget *button)
{
    constexpr int repetitions = 200;
    QImage image(button->size(), QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    const Stopwatch stopwatch;
    for (int i = 0; i < repetitions; ++i)
        button->render(&painter);
    return stopwatch.seconds() / repetitions;
}

void paintCabinet(benchmark::State &state)
{
    const StructCabinet record = cabinetRecord(0);
    ToolButtonEx cabinet(nullptr, CabinetType, QString(), QString());
    cabinet.setFixedSize(69, 69);
    cabinet.setCabinetSize(record.cabinetSize.width(), record.cabinetSize.height());
    cabinet.setIsDrawCabinetCount(true);
    cabinet.setCabinetCount(record.cabinetCount);
    cabinet.setCabnetInfo(record);
    QToolButton bare;
    bare.setFixedSize(cabinet.size());
    bare.setStyleSheet(cabinet.styleSheet());
    prepare(&cabinet);
    prepare(&bare);
    runSideBySide(
        state, [&] { return paintTime(&bare); }, [&] { return paintTime(&cabinet); });
}
BENCHMARK(paintCabinet)->Iterations(manyPairs)->UseManualTime();

// Rows of eight cabinets, built and shown: the time for each cabinet.

constexpr int cabinetsPerRow = 8;

/// In a scroll area as in a drawer's item, or all in one window as high as they are.
enum Place { Scrolled, InSight };

template <typename Body, typename AddRow>
double timePerCabinet(int count, Place place, const AddRow &addRow)
{
    constexpr QSize screenful(320, 900);
    const QList<StructCabinet> records = cabinetRecords(cabinetsPerRow);
    const Stopwatch stopwatch;
    QScrollArea area;
    QWidget window;
    auto *body = new Body(place == InSight ? &window : nullptr);
    if (place == Scrolled) {
        area.setWidget(body);
        area.setWidgetResizable(true);
    }
    for (int i = 0; i < count / cabinetsPerRow; ++i)
        addRow(body, 1 + i % 16, records);
    if (place == InSight)
        window.setFixedSize(screenful.width(), body->height());
    else
        area.resize(screenful);
    (place == InSight ? &window : &area)->show();
    QCoreApplication::processEvents();
    return stopwatch.seconds() / count;
}

template <typename Body, typename AddRow>
void measureGrowth(benchmark::State &state, Place place, const AddRow &addRow)
{
    constexpr int few = 64;
    constexpr int many = 4096;
    // The few are measured as often as it takes to have as many.
    const auto timeOfFew = [&] {
        constexpr int windows = many / few;
        double sum = 0;
        for (int i = 0; i < windows; ++i)
            sum += timePerCabinet<Body>(few, place, addRow);
        return sum / windows;
    };
    runSideBySide(state, timeOfFew, [&] { return timePerCabinet<Body>(many, place, addRow); });
}

void growth(benchmark::State &state, Place place)
{
    measureGrowth<DrawerItemContent>(
        state, place, [](DrawerItemContent *body, int port, const QList<StructCabinet> &records) {
            body->addRowLineItem(port, PortItem, records);
        });
}
BENCHMARK_CAPTURE(growth, scrolled, Scrolled)->Iterations(fewPairs)->UseManualTime();
BENCHMARK_CAPTURE(growth, inSight, InSight)->Iterations(fewPairs)->UseManualTime();

void growthOfBareQt(benchmark::State &state, Place place)
{
    measureGrowth<bareqt::Body>(
        state, place, [](bareqt::Body *body, int port, const QList<StructCabinet> &records) {
            body->addRow(port, records);
        });
}
BENCHMARK_CAPTURE(growthOfBareQt, scrolled, Scrolled)->Iterations(fewPairs)->UseManualTime();
BENCHMARK_CAPTURE(growthOfBareQt, inSight, InSight)->Iterations(fewPairs)->UseManualTime();

// A click on the header of an item in a large drawer.

DrawerItem *newFullItem(int number)
{
    auto *item = new DrawerItem;
    item->setDeviceName("Sender " + QString::number(number));
    item->setDevicePortName("192.168.0." + QString::number(number), true);
    item->setBOnline(true);
    auto *body = new DrawerItemContent;
    const QList<StructCabinet> records = cabinetRecords(cabinetsPerRow);
    for (int port = 1; port <= 16; ++port)
        body->addRowLineItem(port, PortItem, records);
    item->addItem(body);
    return item;
}

/// Counts the repaints of a widget.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget *widget) { widget->installEventFilter(this); }
    int count = 0;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++count;
        return QObject::eventFilter(watched, event);
    }
};

double clickTime(QWidget *window, QWidget *header)
{
    const QPoint place = header->mapTo(window, header->rect().center());
    const Stopwatch stopwatch;
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    return stopwatch.seconds();
}

void click(benchmark::State &state)
{
    constexpr int items = 64;
    QScrollArea area;
    auto *drawer = new Drawer;
    for (int i = 0; i < items; ++i)
        drawer->addDrawerItem(newFullItem(i));
    area.setWidget(drawer);
    area.setWidgetResizable(true);
    area.resize(320, 900);
    area.show();
    QCoreApplication::processEvents();

    auto *header = drawer->drawerItemList().at(1)->findChild<QWidget *>("FrameRight");
    auto *otherHeader = drawer->drawerItemList().at(0)->findChild<QWidget *>("FrameRight");
    if (!header || !otherHeader) {
        state.SkipWithError("an item has no header");
        return;
    }
    const PaintCounter counter(header);
    int clicks = 0;
    // Two headers in turns: each click selects another item and opens its body.
    const auto clickOne = [&](QWidget *which) {
        ++clicks;
        return clickTime(&area, which);
    };
    runSideBySide(
        state, [&] { return clickOne(otherHeader); }, [&] { return clickOne(header); });
    if (counter.count < clicks / 2)
        state.SkipWithError("a click has not painted the header anew");
}
BENCHMARK(click)->Iterations(manyPairs)->UseManualTime();

// Loading the library into a new process.

double loadTime(const QString &library)
{
    QProcess process;
    process.start(LOADER, {library});
    process.waitForFinished();
    bool isNumber = false;
    const double seconds = process.readAllStandardOutput().trimmed().toDouble(&isNumber);
    if (!isNumber)
        qFatal("the library cannot be loaded: %s", process.readAllStandardError().constData());
    return seconds;
}

void load(benchmark::State &state)
{
    // There is no other side: the two are the same, and their ratio tells how steady they are.
    const auto loadOnce = [] { return loadTime(LIBRARY); };
    runSideBySide(state, loadOnce, loadOnce);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return EXIT_FAILURE;
    for (const Control &control : allControls()) {
        // Selecting in a drawer is no setter: it unfolds the item each time.
        if (!control.restyle || std::string(control.name).rfind("Drawer,", 0) == 0)
            continue;
        benchmark::RegisterBenchmark(
            ("unchanged/" + std::string(control.name)).c_str(),
            [&control](benchmark::State &state) { measureUnchanged(state, control); })
            ->Iterations(manyPairs)
            ->UseManualTime();
    }
    benchmark::RegisterBenchmark("load", load)->Iterations(manyPairs)->UseManualTime();
    benchmark::AddCustomContext("qt", qVersion());
    benchmark::AddCustomContext("compiler", COMPILER);
    benchmark::AddCustomContext("build_type", BUILD_TYPE);
    RatioTable table;
    benchmark::RunSpecifiedBenchmarks(&table);
    benchmark::Shutdown();
    return table.hasErrors() ? EXIT_FAILURE : EXIT_SUCCESS;
}
