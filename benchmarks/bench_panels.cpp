/// Builds, shows, hovers and extends the library's panels, each beside the same in bare Qt.

#include "bareqt.h"
#include "cabinetrecords.h"
#include "checkboxex.h"
#include "drawer.h"
#include "draweritem.h"
#include "draweritemcontent.h"
#include "lineeditex.h"
#include "rowlineitem.h"
#include "sametree.h"
#include "sidebyside.h"
#include "stylesheetbatch.h"
#include "toolbuttonex.h"

#include <QApplication>
#include <QCheckBox>
#include <QTest>
#include <QWindow>

#include <memory>

namespace
{

constexpr int rowCount = 16;
constexpr int cabinetSide = 69;
constexpr int gridColumns = 8;
constexpr int hoverMargin = 20; ///< Ground at the right of a hovered window's content.

// Enough pairs for a steady median on a busy machine.
constexpr int manyPairs = 41;
constexpr int fewPairs = 11;

using Build = std::function<void(QWidget *window)>;

QString deviceName(int number)
{
    return "Sender " + QString::number(number);
}

QString portName(int number)
{
    return "192.168.0." + QString::number(number);
}

// What the two sides fill a window with.

QPoint gridPlace(int number, QSize size)
{
    return {number % gridColumns * size.width(), number / gridColumns * size.height()};
}

void fillWithBareCabinets(QWidget *window, int count)
{
    for (int i = 0; i < count; ++i) {
        auto *cabinet = new bareqt::CabinetButton(window, cabinetRecord(i));
        cabinet->move(gridPlace(i, cabinet->size()));
    }
    window->setFixedSize(gridColumns * cabinetSide + hoverMargin,
                         (count + gridColumns - 1) / gridColumns * cabinetSide);
}

void fillWithCabinets(QWidget *window, int count)
{
    for (int i = 0; i < count; ++i) {
        const StructCabinet record = cabinetRecord(i);
        auto *cabinet = new ToolButtonEx(window, CabinetType, QString(), QString());
        cabinet->setFixedSize(cabinetSide, cabinetSide);
        cabinet->move(gridPlace(i, cabinet->size()));
        cabinet->setCabinetSize(record.cabinetSize.width(), record.cabinetSize.height());
        cabinet->setIsDrawCabinetCount(true);
        cabinet->setCabinetCount(record.cabinetCount);
        cabinet->setCabnetInfo(record);
    }
    window->setFixedSize(gridColumns * cabinetSide + hoverMargin,
                         (count + gridColumns - 1) / gridColumns * cabinetSide);
}

template <typename MakeBox>
void fillWithCheckBoxes(QWidget *window, int count, const MakeBox &makeBox)
{
    const QSize size(120, 24);
    for (int i = 0; i < count; ++i) {
        QCheckBox *box = makeBox(QString::number(i));
        box->resize(size);
        box->move(gridPlace(i, size));
    }
    window->setFixedSize(gridColumns * size.width(),
                         (count + gridColumns - 1) / gridColumns * size.height());
}

void fillWithBareRows(QWidget *window, int cabinetsPerRow)
{
    const QList<StructCabinet> cabinets = cabinetRecords(cabinetsPerRow);
    auto *body = new bareqt::Body(window);
    for (int port = 1; port <= rowCount; ++port)
        body->addRow(port, cabinets);
    body->setFixedWidth(300);
    window->setFixedSize(body->width() + hoverMargin, body->height());
}

void fillWithRows(QWidget *window, int cabinetsPerRow)
{
    const QList<StructCabinet> cabinets = cabinetRecords(cabinetsPerRow);
    auto *body = new DrawerItemContent(window);
    for (int port = 1; port <= rowCount; ++port)
        body->addRowLineItem(port, PortItem, cabinets);
    body->setFixedWidth(300);
    window->setFixedSize(body->width() + hoverMargin, body->height());
}

bareqt::DrawerEntry *newBareItem(int number)
{
    return new bareqt::DrawerEntry(deviceName(number), portName(number), number % 2 == 0);
}

DrawerItem *newItem(int number)
{
    auto *item = new DrawerItem;
    item->setDeviceName(deviceName(number));
    item->setDevicePortName(portName(number), true);
    item->setBOnline(number % 2 == 0);
    return item;
}

enum class Selection {
    None, ///< As the items are built: their headers have no sheet.
    First,
};

void fillWithBareItems(QWidget *window, int count, Selection selection)
{
    auto *stack = new bareqt::Stack(window);
    bareqt::DrawerEntry *first = nullptr;
    for (int i = 0; i < count; ++i) {
        auto *entry = newBareItem(i);
        if (!first)
            first = entry;
        stack->addEntry(entry);
    }
    if (selection == Selection::First)
        stack->select(first);
    stack->setFixedSize(300, stack->sizeHint().height());
    window->setFixedSize(stack->width() + hoverMargin, stack->height());
}

void fillWithItems(QWidget *window, int count, Selection selection)
{
    auto *drawer = new Drawer(window);
    for (int i = 0; i < count; ++i)
        drawer->addDrawerItem(newItem(i));
    if (selection == Selection::First)
        drawer->setSelectItemByIndex(0);
    drawer->setFixedSize(300, drawer->sizeHint().height());
    window->setFixedSize(drawer->width() + hoverMargin, drawer->height());
}

/// A window of either side, and what it has been asked for.
class Stage
{
public:
    explicit Stage(const Build &build)
        : m_window(std::make_unique<QWidget>())
    {
        build(m_window.get());
        m_window->show();
        QCoreApplication::processEvents();
    }

    QWidget *window() const { return m_window.get(); }

    void close()
    {
        m_window.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

private:
    std::unique_ptr<QWidget> m_window;
};

/// Counts, while it lives, the events that tell of style work on any widget.
class StyleEventCounter : public QObject
{
public:
    StyleEventCounter() { qApp->installEventFilter(this); }

    int count() const { return m_count; }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::StyleChange:
        case QEvent::Polish:
        case QEvent::PolishRequest:
            ++m_count;
            break;
        default:
            break;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    int m_count = 0;
};

/// False, with the reason in \a state, unless both sides show the same widgets.
bool showTheSame(benchmark::State &state, const Build &buildReference, const Build &buildLibrary)
{
    const Stage reference(buildReference);
    const Stage library(buildLibrary);
    const QString difference = treeDifference(reference.window(), library.window());
    if (difference.isEmpty())
        return true;
    state.SkipWithError(qPrintable("bare Qt and the library differ: " + difference));
    return false;
}

// What is measured.

void measureShow(benchmark::State &state, const Build &buildReference, const Build &buildLibrary)
{
    if (!showTheSame(state, buildReference, buildLibrary))
        return;
    const auto measured = [](const Build &build) {
        const Stopwatch stopwatch;
        Stage stage(build);
        const double seconds = stopwatch.seconds();
        stage.close();
        return seconds;
    };
    runSideBySide(
        state, [&] { return measured(buildReference); }, [&] { return measured(buildLibrary); });
}

void measureDestroy(benchmark::State &state, const Build &buildReference, const Build &buildLibrary)
{
    const auto measured = [](const Build &build) {
        Stage stage(build);
        const Stopwatch stopwatch;
        stage.close();
        return stopwatch.seconds();
    };
    runSideBySide(
        state, [&] { return measured(buildReference); }, [&] { return measured(buildLibrary); });
}

/// Moves the pointer onto every visible tool button and away again.
double hoverButtons(QWidget *window, const QList<QToolButton *> &buttons)
{
    const QPoint ground(window->width() - 1, window->height() - 1);
    const Stopwatch stopwatch;
    for (const QToolButton *button : buttons) {
        QTest::mouseMove(window->windowHandle(), button->mapTo(window, button->rect().center()));
        QCoreApplication::processEvents();
    }
    QTest::mouseMove(window->windowHandle(), ground);
    QCoreApplication::processEvents();
    return stopwatch.seconds();
}

QList<QToolButton *> buttonsInSight(QWidget *window)
{
    QList<QToolButton *> buttons;
    for (QToolButton *button : window->findChildren<QToolButton *>()) {
        if (!button->visibleRegion().isEmpty())
            buttons.append(button);
    }
    return buttons;
}

void measureHover(benchmark::State &state, const Build &buildReference, const Build &buildLibrary)
{
    if (!showTheSame(state, buildReference, buildLibrary))
        return;
    Stage reference(buildReference);
    Stage library(buildLibrary);
    const QList<QToolButton *> referenceButtons = buttonsInSight(reference.window());
    const QList<QToolButton *> libraryButtons = buttonsInSight(library.window());

    int enteredButtons = 0;
    int styleEvents = 0;
    {
        const StyleEventCounter counter;
        for (QToolButton *button : libraryButtons) {
            hoverButtons(library.window(), {button});
            QTest::mouseMove(library.window()->windowHandle(),
                             button->mapTo(library.window(), button->rect().center()));
            QCoreApplication::processEvents();
            enteredButtons += button->underMouse() ? 1 : 0;
        }
        hoverButtons(library.window(), {});
        styleEvents = counter.count();
    }
    if (enteredButtons == 0 || enteredButtons != libraryButtons.size()) {
        state.SkipWithError("the pointer has not reached every button");
        return;
    }
    if (styleEvents != 0) {
        state.SkipWithError(qPrintable("a hover that changes no text restyles: "
                                       + QString::number(styleEvents) + " style events"));
        return;
    }
    runSideBySide(
        state, [&] { return hoverButtons(reference.window(), referenceButtons); },
        [&] { return hoverButtons(library.window(), libraryButtons); });
    setStyleEvents(state, styleEvents);
}

// Adding to a full panel beside adding to an empty one: the reference is the library itself.

constexpr int addedCount = 64;
constexpr int presentCount = 4096;

void measureAdding(benchmark::State &state,
                   const std::function<std::function<void()>(QWidget *)> &newPanel)
{
    const auto measured = [&newPanel](int present) {
        QWidget window;
        const std::function<void()> addOne = newPanel(&window);
        for (int i = 0; i < present; ++i)
            addOne();
        const Stopwatch stopwatch;
        for (int i = 0; i < addedCount; ++i)
            addOne();
        return stopwatch.seconds();
    };
    const int present = int(state.range(0));
    runSideBySide(
        state, [&] { return measured(0); }, [&] { return measured(present); });
}

} // namespace

static void showCabinets(benchmark::State &state)
{
    const int count = int(state.range(0));
    measureShow(
        state, [=](QWidget *window) { fillWithBareCabinets(window, count); },
        [=](QWidget *window) { fillWithCabinets(window, count); });
}
BENCHMARK(showCabinets)->Arg(64)->Iterations(manyPairs)->UseManualTime();

static void showCheckBoxes(benchmark::State &state)
{
    const int count = int(state.range(0));
    measureShow(
        state,
        [=](QWidget *window) {
            fillWithCheckBoxes(window, count, [=](const QString &text) {
                return bareqt::newCheckBox(text, window);
            });
        },
        [=](QWidget *window) {
            fillWithCheckBoxes(window, count, [=](const QString &text) {
                auto *box = new CheckBoxEx(window);
                box->setText(text);
                return box;
            });
        });
}
BENCHMARK(showCheckBoxes)->Arg(256)->Iterations(manyPairs)->UseManualTime();

static void showRows(benchmark::State &state)
{
    const int count = int(state.range(0));
    measureShow(
        state, [=](QWidget *window) { fillWithBareRows(window, count); },
        [=](QWidget *window) { fillWithRows(window, count); });
}
BENCHMARK(showRows)->Arg(4)->Iterations(manyPairs)->UseManualTime();
BENCHMARK(showRows)->Arg(64)->Iterations(manyPairs)->UseManualTime();
BENCHMARK(showRows)->Arg(256)->Iterations(fewPairs)->UseManualTime();

static void measureDrawer(benchmark::State &state, Selection selection)
{
    const int count = int(state.range(0));
    measureShow(
        state, [=](QWidget *window) { fillWithBareItems(window, count, selection); },
        [=](QWidget *window) { fillWithItems(window, count, selection); });
}

static void showDrawer(benchmark::State &state)
{
    measureDrawer(state, Selection::None);
}
BENCHMARK(showDrawer)->Arg(64)->Iterations(manyPairs)->UseManualTime();

static void showSelectedDrawer(benchmark::State &state)
{
    measureDrawer(state, Selection::First);
}
BENCHMARK(showSelectedDrawer)->Arg(64)->Iterations(manyPairs)->UseManualTime();

static void destroyRows(benchmark::State &state)
{
    const int count = int(state.range(0));
    measureDestroy(
        state, [=](QWidget *window) { fillWithBareRows(window, count); },
        [=](QWidget *window) { fillWithRows(window, count); });
}
BENCHMARK(destroyRows)->Arg(64)->Iterations(manyPairs)->UseManualTime();
BENCHMARK(destroyRows)->Arg(256)->Iterations(fewPairs)->UseManualTime();

static void hoverCabinets(benchmark::State &state)
{
    const int count = int(state.range(0));
    measureHover(
        state, [=](QWidget *window) { fillWithBareCabinets(window, count); },
        [=](QWidget *window) { fillWithCabinets(window, count); });
}
BENCHMARK(hoverCabinets)->Arg(64)->Iterations(manyPairs)->UseManualTime();

static void hoverRows(benchmark::State &state)
{
    const int count = int(state.range(0));
    measureHover(
        state, [=](QWidget *window) { fillWithBareRows(window, count); },
        [=](QWidget *window) { fillWithRows(window, count); });
}
BENCHMARK(hoverRows)->Arg(64)->Iterations(manyPairs)->UseManualTime();

static void addCabinetsAfter(benchmark::State &state)
{
    measureAdding(state, [](QWidget *window) {
        auto *row = new RowLineItem(window);
        row->setLineItemType(1, PortItem);
        return [row] { row->AddLineItem(cabinetRecord(0)); };
    });
}
BENCHMARK(addCabinetsAfter)->Arg(presentCount)->Iterations(fewPairs)->UseManualTime();

// How much of the growth is Qt's own.
static void addBareRowsAfter(benchmark::State &state)
{
    measureAdding(state, [](QWidget *window) {
        auto *body = new bareqt::Body(window);
        return [body] { body->addRow(1, {}); };
    });
}
BENCHMARK(addBareRowsAfter)->Arg(presentCount / 8)->Iterations(fewPairs)->UseManualTime();

static void addRowsAfter(benchmark::State &state)
{
    measureAdding(state, [](QWidget *window) {
        auto *body = new DrawerItemContent(window);
        return [body] { body->addRowLineItem(1, PortItem, {}); };
    });
}
BENCHMARK(addRowsAfter)->Arg(presentCount / 8)->Iterations(fewPairs)->UseManualTime();

static void addDrawerItemsAfter(benchmark::State &state)
{
    measureAdding(state, [](QWidget *window) {
        auto *drawer = new Drawer(window);
        return [drawer] { drawer->addDrawerItem(newItem(0)); };
    });
}
BENCHMARK(addDrawerItemsAfter)->Arg(presentCount / 8)->Iterations(fewPairs)->UseManualTime();

// Twenty setters beside one that applies its sheet: the reference is the library itself.

static void setTwentyColors(benchmark::State &state)
{
    const bool isBatch = state.range(0) != 0;
    LineEditEx edit;
    edit.show();
    int color = 0;
    const auto setColors = [&](int count) {
        for (int i = 0; i < count; ++i) {
            color = color % 0xffffff + 1;
            edit.setBackgroundColor(QColor(QRgb(color)));
        }
    };
    const auto measured = [&](int count, bool isOneBatch) {
        const Stopwatch stopwatch;
        {
            const StyleSheetBatch batch(isOneBatch ? &edit : nullptr);
            setColors(count);
        }
        return stopwatch.seconds();
    };
    runSideBySide(
        state, [&] { return measured(1, false); }, [&] { return measured(20, isBatch); });
}
BENCHMARK(setTwentyColors)
    ->ArgName("batch")
    ->Arg(0)
    ->Arg(1)
    ->Iterations(10 * manyPairs)
    ->UseManualTime();

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return EXIT_FAILURE;
    RatioTable table;
    benchmark::RunSpecifiedBenchmarks(&table);
    benchmark::Shutdown();
    return table.hasErrors() ? EXIT_FAILURE : EXIT_SUCCESS;
}
