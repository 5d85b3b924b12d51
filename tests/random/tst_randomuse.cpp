// Random use of every public class: seeded sequences of calls and events with odd arguments.
//
// Each class has as many lives as its share of the steps asks for. A life is one object in one
// window; it depends on nothing but the seed, the class and its number, and so it can be lived
// again alone.

#include "deeds.h"
#include "exclusions.h"
#include "protocol.h"
#include "table.h"

#include <QAction>
#include <QApplication>
#include <QCommandLineParser>
#include <QHash>
#include <QLayout>
#include <QTextStream>

#include <algorithm>
#include <ctime>

namespace
{

using namespace randomuse;

constexpr int stepsOfALife = 100;
#if defined(__SANITIZE_ADDRESS__)
constexpr int defaultSteps = 60000;
#else
constexpr int defaultSteps = 200000;
#endif

QByteArray firstWarning;

/// A window of many million pixels is no error, but nobody can pay for its picture, and Qt has none
/// to paint on.
bool isHuge(const QWidget *window)
{
    constexpr qint64 mostPixels = 2000000;
    constexpr int mostWidth = 32767;
    return qint64(window->width()) * window->height() > mostPixels || window->width() > mostWidth
        || window->height() > mostWidth;
}

/// Keeps what is huge from being painted: Qt's painter overflows there, and takes long before.
class PaintGuard : public QObject
{
public:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() != QEvent::Paint || !object->isWidgetType())
            return QObject::eventFilter(object, event);
        const auto *widget = static_cast<const QWidget *>(object);
        return isHuge(widget) || isHuge(widget->window());
    }
};

bool isHugeWindowShown()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::any_of(windows.begin(), windows.end(),
                       [](const QWidget *window) { return window->isVisible() && isHuge(window); });
}

void takeMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtFatalMsg)
        protocol::fail("qFatal: " + text.toUtf8());
    if (type == QtDebugMsg || type == QtInfoMsg || isExpected(text) || !firstWarning.isEmpty())
        return;
    const bool isAboutPainting = text.contains(QLatin1String("paintEngine: Should no longer"))
        || text.startsWith(QLatin1String("QPainter::"));
    if (isAboutPainting && isHugeWindowShown())
        return;
    firstWarning = text.toUtf8();
}

quint64 seedOf(quint64 seed, const QByteArray &className, int life)
{
    quint64 mixed = seed * 1000003 + quint64(life);
    for (const char letter : className)
        mixed = mixed * 131 + quint64(letter);
    return Dice(mixed).next();
}

int childCount(const QObject *subject)
{
    return subject->findChildren<QWidget *>().size() + subject->findChildren<QLayout *>().size()
        + subject->findChildren<QAction *>().size() + subject->findChildren<QTimer *>().size();
}

/// One object and what is done with it.
class Run
{
public:
    Run(const Entry &entry, quint64 seed, int number)
        : m_entry(entry)
        , m_life(seedOf(seed, entry.className, number))
    {
    }

    /// Takes at most \a steps steps; how many it were.
    int live(int steps)
    {
        beginStep("(new)");
        m_life.setSubject(m_entry.make(m_life));
        readClass();
        check();
        if (m_life.dice().chance(30))
            armDeletion();
        while (m_step < steps && m_life.subject()) {
            step();
            check();
        }
        return m_step;
    }

private:
    void beginStep(const QByteArray &text) { protocol::beginStep(++m_step, text); }

    /// What the class's own meta objects offer, which is the same for all its objects.
    void readClass()
    {
        struct Offer {
            QVector<Action> properties;
            QVector<Action> slots_;
            QVector<int> deleting;
        };
        static QHash<QByteArray, Offer> offers;
        if (!offers.contains(m_entry.className)) {
            QObject *subject = m_life.subject();
            offers.insert(
                m_entry.className,
                {propertyActions(subject), slotActions(subject), deletingSignals(subject)});
        }
        const Offer &offer = offers[m_entry.className];
        m_properties = offer.properties;
        m_slots = offer.slots_;
        m_deleting = offer.deleting;
    }

    void armDeletion()
    {
        if (m_deleting.isEmpty())
            return;
        beginStep("(connect)");
        m_life.deleteInSignal(m_life.dice().pick(m_deleting));
    }

    void step()
    {
        static const QVector<Action> common = commonActions();
        const int chosen = m_life.dice().below(1000);
        if (chosen < 500 && !m_entry.actions.isEmpty())
            doOrRepeat(m_life.dice().pick(m_entry.actions));
        else if (chosen < 880)
            take(m_life.dice().pick(common));
        else if (chosen < 940 && !m_properties.isEmpty())
            take(m_life.dice().pick(m_properties));
        else if (chosen < 995 && !m_slots.isEmpty())
            take(m_life.dice().pick(m_slots));
        else
            deleteSubject();
    }

    void take(const Action &action)
    {
        beginStep(action.name);
        action.run(m_life, m_life.subject());
    }

    void doOrRepeat(const Action &action)
    {
        if (action.again == Again::Settles && m_life.dice().chance(2))
            repeat(action);
        else
            take(action);
    }

    /// The same call again and again: after the first times nothing may be added any more.
    void repeat(const Action &action)
    {
        constexpr int settled = 3;
        constexpr int times = 6;
        const Dice dice = m_life.dice();
        int count = 0;
        for (int time = 1; time <= times && m_life.subject(); ++time) {
            m_life.setDice(dice);
            take(action);
            Life::processEvents();
            if (!m_life.subject())
                return;
            if (time == settled)
                count = childCount(m_life.subject());
        }
        if (childCount(m_life.subject()) > count)
            protocol::fail(action.name + " adds children each time it is called");
    }

    void deleteSubject()
    {
        beginStep("(delete)");
        if (m_life.dice().chance(50))
            delete m_life.subject();
        else
            m_life.subject()->deleteLater();
        Life::processEvents();
    }

    void check()
    {
        if (m_life.dice().chance(4))
            Life::processEvents();
        if (!firstWarning.isEmpty())
            protocol::fail("unexpected warning: " + firstWarning);
        const QWidget *widget = m_life.widget();
        if (widget && (widget->width() < 0 || widget->height() < 0))
            protocol::fail("a size below nothing");
        hideHugeWindows();
    }

    static void hideHugeWindows()
    {
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget *window : windows) {
            if (window->isVisible() && isHuge(window))
                window->hide();
        }
    }

    const Entry &m_entry;
    Life m_life;
    int m_step = 0;
    QVector<Action> m_properties;
    QVector<Action> m_slots;
    QVector<int> m_deleting;
};

struct Options {
    quint64 seed = 1;
    int steps = defaultSteps;
    QByteArray className;
    int life = -1;
};

void live(const Entry &entry, const Options &options, int steps)
{
    const QByteArray again = QCoreApplication::applicationFilePath().toLocal8Bit() + " --class "
        + entry.className + " --seed " + QByteArray::number(options.seed) + " --life ";
    int life = options.life >= 0 ? options.life : 0;
    const int firstLife = life;
    while (steps > 0) {
        qApp->setStyleSheet(QString());
        protocol::beginLife(entry.className, options.seed, life,
                            again + QByteArray::number(life) + " --replay");
        Run run(entry, options.seed, life);
        steps -= run.live(stepsOfALife);
        if (options.life >= 0 && life == firstLife)
            break;
        ++life;
    }
    if (protocol::leaks())
        protocol::fail("memory was leaked in one of the lives of this class, see above");
}

QVector<Entry> allEntries()
{
    return basicEntries() + cabinetEntries() + boardEntries() + windowEntries() + tabEntries()
        + listEntries();
}

/// A line for each function that a table calls: class and function.
void list(const QVector<Entry> &entries)
{
    QTextStream out(stdout);
    for (const Entry &entry : entries) {
        out << entry.className << '\n';
        for (const Action &action : entry.actions)
            out << entry.className << ' ' << action.name << '\n';
    }
    for (const Exclusion &exclusion : classesWithoutEntry())
        out << exclusion.className << '\n';
}

/// A line for each thing that is left out: class, function and reason.
void listExclusions()
{
    QTextStream out(stdout);
    for (const Exclusion &exclusion : allExclusions())
        out << exclusion.className << ' ' << exclusion.member << ": " << exclusion.reason << '\n';
}

Options readOptions(QCommandLineParser &parser)
{
    Options options;
    bool isNumber = false;
    const int steps = qEnvironmentVariableIntValue("ORVANE_RANDOM_STEPS", &isNumber);
    if (isNumber)
        options.steps = steps;
    if (parser.isSet("steps"))
        options.steps = parser.value("steps").toInt();
    if (parser.isSet("seed"))
        options.seed = parser.value("seed").toULongLong();
    if (parser.isSet("life"))
        options.life = parser.value("life").toInt();
    options.className = parser.value("class").toUtf8();
    protocol::setEcho(parser.isSet("replay"));
    if (parser.isSet("patience"))
        protocol::setPatience(parser.value("patience").toInt());
    return options;
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);

    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions({
        {"steps", "How many steps to take, of all classes or of the one.", "number"},
        {"seed", "Where chance begins.", "number"},
        {"class", "Try this class alone.", "name"},
        {"life", "Live this life of the class alone.", "number"},
        {"replay", "Print each step when it begins."},
        {"list", "Print what is called, and take no steps."},
        {"excluded", "Print what is left out and why, and take no steps."},
        {"fault", "What the class Faulty does at last: warn, abort, crash, overflow, grow, hang.",
         "name"},
        {"patience", "After how many seconds a step counts as hanging.", "number"},
    });
    parser.process(application);
    const QVector<Entry> entries = allEntries();
    if (parser.isSet("list")) {
        list(entries);
        return 0;
    }
    if (parser.isSet("excluded")) {
        listExclusions();
        return 0;
    }
    const Options options = readOptions(parser);
    const QVector<Entry> chosen =
        parser.isSet("fault") ? faultyEntries(parser.value("fault").toUtf8()) : entries;

    int shares = 0;
    int classCount = 0;
    for (const Entry &entry : chosen) {
        const bool isMeant = options.className.isEmpty() || options.className == entry.className;
        shares += isMeant ? entry.share : 0;
        classCount += isMeant ? 1 : 0;
    }
    if (shares == 0) {
        QTextStream(stderr) << "tst_randomuse: there is no class " << options.className << '\n';
        return 2;
    }
    PaintGuard guard;
    application.installEventFilter(&guard);
    protocol::install();
    qInstallMessageHandler(takeMessage);
    for (const Entry &entry : chosen) {
        if (!options.className.isEmpty() && options.className != entry.className)
            continue;
        const clock_t begin = std::clock();
        const int steps = int(qint64(options.steps) * entry.share / shares);
        live(entry, options, steps);
        QTextStream(stdout) << entry.className << ": "
                            << double(std::clock() - begin) / CLOCKS_PER_SEC << " s" << Qt::endl;
    }
    protocol::end();
    qInstallMessageHandler(nullptr);
    QTextStream(stdout) << "about " << options.steps << " steps with " << classCount
                        << " classes, seed " << options.seed << Qt::endl;
    return 0;
}
