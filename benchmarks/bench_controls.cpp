/// Builds, restyles and paints each control, and counts its memory, beside the same in bare Qt, in
/// stock Qt without a sheet, and in stock Qt under a sheet of the application's.
///
/// With --once CONTROL SIDE it builds and shows the controls of one side, and callgrind counts the
/// second time alone.

#include "controls.h"
#include "heapbytes.h"
#include "sametree.h"
#include "sidebyside.h"
#include "twin.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QStyle>
#include <QWidget>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <memory>

#if __has_include(<valgrind/callgrind.h>)
#include <valgrind/callgrind.h>
#else
#define CALLGRIND_TOGGLE_COLLECT
#endif

namespace
{

constexpr int roundCount = 40;
constexpr QSize windowSize(1200, 900);
constexpr int gridColumns = 4;

enum Kind { Library, Bare, Stock, Dark };
constexpr int kindCount = 4;
constexpr std::array<const char *, kindCount> kindNames{"library", "bare", "stock", "dark"};
/// Each kind comes once after each other one, as the memory that one leaves behind costs the next.
constexpr std::array<std::array<Kind, kindCount>, kindCount> turns{{{Library, Bare, Dark, Stock},
                                                                    {Bare, Stock, Library, Dark},
                                                                    {Stock, Dark, Bare, Library},
                                                                    {Dark, Library, Stock, Bare}}};

const QString &darkSheet()
{
    static const QString sheet = [] {
        QFile file(DARK_SHEET);
        if (!file.open(QIODevice::ReadOnly))
            qFatal("the dark sheet cannot be read");
        return QString::fromUtf8(file.readAll());
    }();
    return sheet;
}

/// A window in sight for controls to be built in.
class Ground
{
public:
    Ground()
    {
        m_window.resize(windowSize);
        m_window.show();
        QCoreApplication::processEvents();
    }

    QWidget *window() { return &m_window; }

private:
    QWidget m_window;
};

/// The application's sheet while it lives, read and in use.
class DarkApplication
{
public:
    explicit DarkApplication(bool isDark)
        : m_isDark(isDark)
    {
        if (!m_isDark)
            return;
        qApp->setStyleSheet(darkSheet());
        Ground();
    }
    ~DarkApplication()
    {
        if (m_isDark)
            qApp->setStyleSheet(QString());
    }
    DarkApplication(const DarkApplication &) = delete;
    DarkApplication &operator=(const DarkApplication &) = delete;

private:
    bool m_isDark;
};

QList<QWidget *> partsOf(QWidget *widget)
{
    QList<QWidget *> parts = widget->findChildren<QWidget *>();
    parts.prepend(widget);
    return parts;
}

/// The sheets that a restyling changes: the number of the part, and its sheet for either value.
struct Change {
    int part;
    std::array<QString, 2> sheets;
};

/// A control with its counterparts.
class Subject
{
public:
    explicit Subject(const Control &control)
        : m_control(control)
    {
        Ground ground;
        QWidget *model = control.make(ground.window());
        m_twin = std::make_unique<Twin>(*model);
        if (control.restyle)
            readChanges(model);
    }

    /// Shows so many of a kind on \a ground.
    QList<QWidget *> build(Kind kind, QWidget *ground) const
    {
        QList<QWidget *> widgets;
        for (int i = 0; i < m_control.count; ++i) {
            QWidget *widget = make(kind, ground);
            widget->move(i % gridColumns * windowSize.width() / gridColumns,
                         i / gridColumns * windowSize.height() / gridColumns);
            widget->show();
            widgets += widget;
        }
        QCoreApplication::processEvents();
        return widgets;
    }

    void restyle(Kind kind, QWidget *widget, const QList<QWidget *> &parts, int value) const
    {
        if (!m_control.restyle)
            polishAgain(widget);
        else if (kind == Library)
            m_control.restyle(widget, value);
        else if (kind == Bare)
            setSheets(parts, value);
        else if (kind == Stock)
            setGround(widget, value);
        else {
            widget->setProperty("value", value);
            polishAgain(widget);
        }
    }

    /// Where the library and bare Qt look different; empty when they are the same.
    QString difference() const
    {
        Ground library;
        Ground bare;
        build(Library, library.window());
        build(Bare, bare.window());
        return treeDifference(bare.window(), library.window());
    }

private:
    QWidget *make(Kind kind, QWidget *ground) const
    {
        if (kind == Library)
            return m_control.make(ground);
        if (kind == Bare && m_control.makeBare)
            return m_control.makeBare(ground);
        return m_twin->build(ground, kind == Bare ? Twin::Sheets::Same : Twin::Sheets::None);
    }

    void readChanges(QWidget *model)
    {
        model->show();
        QCoreApplication::processEvents();
        m_control.restyle(model, 1);
        QStringList second;
        for (const QWidget *part : partsOf(model))
            second += part->styleSheet();
        m_control.restyle(model, 0);
        const QList<QWidget *> parts = partsOf(model);
        for (int i = 0; i < parts.size() && i < second.size(); ++i) {
            if (parts.at(i)->styleSheet() != second.at(i))
                m_changes.push_back({i, {parts.at(i)->styleSheet(), second.at(i)}});
        }
        if (m_changes.empty())
            qFatal("%s: the restyling changes no sheet", m_control.name);
    }

    void setSheets(const QList<QWidget *> &parts, int value) const
    {
        for (const Change &change : m_changes) {
            if (change.part < parts.size())
                parts.at(change.part)->setStyleSheet(change.sheets.at(std::size_t(value)));
        }
    }

    static void setGround(QWidget *widget, int value)
    {
        QPalette palette = widget->palette();
        palette.setColor(widget->backgroundRole(), value == 0 ? Qt::darkGray : Qt::lightGray);
        widget->setPalette(palette);
    }

    static void polishAgain(QWidget *widget)
    {
        widget->style()->unpolish(widget);
        widget->style()->polish(widget);
    }

    const Control &m_control;
    std::unique_ptr<Twin> m_twin;
    std::vector<Change> m_changes;
};

using Measure = std::function<double(const Subject &subject, Kind kind)>;

double perControl(double seconds, const QList<QWidget *> &widgets)
{
    constexpr double microseconds = 1e6;
    return microseconds * seconds / widgets.size();
}

double measureShow(const Subject &subject, Kind kind)
{
    const DarkApplication dark(kind == Dark);
    Ground ground;
    const Stopwatch stopwatch;
    const QList<QWidget *> widgets = subject.build(kind, ground.window());
    return perControl(stopwatch.seconds(), widgets);
}

double measureRestyling(const Subject &subject, Kind kind)
{
    const DarkApplication dark(kind == Dark);
    Ground ground;
    const QList<QWidget *> widgets = subject.build(kind, ground.window());
    QList<QList<QWidget *>> parts;
    for (QWidget *widget : widgets) {
        parts += partsOf(widget);
        subject.restyle(kind, widget, parts.last(),
                        0); // the value that the measured one differs from
    }
    QCoreApplication::processEvents();
    const Stopwatch stopwatch;
    for (int i = 0; i < widgets.size(); ++i)
        subject.restyle(kind, widgets.at(i), parts.at(i), 1);
    return perControl(stopwatch.seconds(), widgets);
}

double measurePainting(const Subject &subject, Kind kind)
{
    constexpr int repetitions = 4;
    const DarkApplication dark(kind == Dark);
    Ground ground;
    const QList<QWidget *> widgets = subject.build(kind, ground.window());
    QImage image(windowSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    QPainter painter(&image);
    const Stopwatch stopwatch;
    for (int i = 0; i < repetitions; ++i) {
        for (QWidget *widget : widgets)
            widget->render(&painter);
    }
    return perControl(stopwatch.seconds(), widgets) / repetitions;
}

double measureMemory(const Subject &subject, Kind kind)
{
    const DarkApplication dark(kind == Dark);
    Ground ground;
    const long long before = heapBytes();
    const QList<QWidget *> widgets = subject.build(kind, ground.window());
    return double(heapBytes() - before) / widgets.size();
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// Measures all kinds in each round. What counts is the median of a kind, and the median of the
/// rounds' ratios.
void measureKinds(benchmark::State &state, const Control &control, const Measure &measure)
{
    const Subject subject(control);
    const QString difference = subject.difference();
    if (!difference.isEmpty())
        state.SetLabel("unlike bare Qt: " + difference.toStdString());
    std::array<std::vector<double>, kindCount> values;
    std::array<std::vector<double>, kindCount> ratios;
    for (int kind = 0; kind < kindCount; ++kind)
        measure(subject, Kind(kind)); // what only the first pays
    std::size_t turn = 0;
    for (auto _ : state) {
        std::array<double, kindCount> round{};
        for (const Kind kind : turns.at(turn)) {
            measure(subject, kind); // nobody pays for what the one before left in the caches
            round.at(kind) = measure(subject, kind);
        }
        turn = (turn + 1) % turns.size();
        for (std::size_t kind = 0; kind < kindCount; ++kind) {
            values.at(kind).push_back(round.at(kind));
            ratios.at(kind).push_back(round.at(Library) / round.at(kind));
        }
        state.SetIterationTime(1e-6 * round.at(Library));
    }
    for (std::size_t kind = 0; kind < kindCount; ++kind) {
        state.counters[kindNames.at(kind)] = median(values.at(kind));
        if (kind != Library)
            state.counters[std::string("per_") + kindNames.at(kind)] = median(ratios.at(kind));
    }
}

/// Prints a line for each benchmark.
class KindTable : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &) override
    {
        std::printf("%-46s %12s %8s %8s %8s\n", "us or bytes each, and library / reference",
                    "library", "/bare", "/stock", "/dark");
        return true;
    }

    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            const auto value = [&run](const char *name) { return double(run.counters.at(name)); };
            std::printf("%-46s %12.1f %8.3f %8.2f %8.2f  %s\n", run.run_name.function_name.c_str(),
                        value("library"), value("per_bare"), value("per_stock"), value("per_dark"),
                        run.report_label.c_str());
            std::fflush(stdout);
        }
    }
};

void registerAll()
{
    struct Quantity {
        const char *name;
        Measure measure;
        int rounds;
    };
    const std::array<Quantity, 4> quantities{{{"show", measureShow, roundCount},
                                              {"restyle", measureRestyling, 16},
                                              {"paint", measurePainting, 16},
                                              {"memory", measureMemory, 1}}};
    for (const Quantity &quantity : quantities) {
        for (const Control &control : allControls()) {
            const std::string name = std::string(quantity.name) + "/" + control.name;
            benchmark::RegisterBenchmark(
                name.c_str(),
                [&control, measure = quantity.measure](benchmark::State &state) {
                    measureKinds(state, control, measure);
                })
                ->Iterations(quantity.rounds)
                ->UseManualTime();
        }
    }
}

/// A title bar replaces its layout, as its hosts know, and Qt says so each time; some controls log.
void printUnlessKnown(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type != QtDebugMsg && !message.startsWith("QLayout"))
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

/// Builds and shows the controls of this name, of one side.
int showOnce(const char *name, const char *side)
{
    for (int kind = 0; kind < kindCount; ++kind) {
        if (std::strcmp(kindNames.at(std::size_t(kind)), side) != 0)
            continue;
        for (const Control &control : allControls()) {
            if (std::strcmp(control.name, name) != 0)
                continue;
            const Subject subject(control);
            measureShow(subject, Kind(kind)); // what only the first pays
            const DarkApplication dark(kind == Dark);
            Ground ground;
            CALLGRIND_TOGGLE_COLLECT;
            subject.build(Kind(kind), ground.window());
            CALLGRIND_TOGGLE_COLLECT;
            return EXIT_SUCCESS;
        }
    }
    std::fprintf(stderr, "there is no control or side of this name\n");
    return EXIT_FAILURE;
}

} // namespace

int main(int argc, char **argv)
{
    qInstallMessageHandler(printUnlessKnown);
    QApplication application(argc, argv);
    if (argc == 4 && std::strcmp(argv[1], "--once") == 0)
        return showOnce(argv[2], argv[3]);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return EXIT_FAILURE;
    registerAll();
    KindTable table;
    benchmark::RunSpecifiedBenchmarks(&table);
    benchmark::Shutdown();
    return EXIT_SUCCESS;
}
