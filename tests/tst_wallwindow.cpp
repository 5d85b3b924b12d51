// The configurator's window, driven as a person drives it.

#include "document.h"
#include "layout/layoutview.h"
#include "mainwindow.h"
#include "model/commands.h"
#include "model/projectfile.h"
#include "model/sampleprojects.h"
#include "pages/recentprojects.h"
#include "pages/startpage.h"
#include "progressdialog.h"
#include "selection.h"
#include "support/pointer.h"
#include "support/testcase.h"
#include "support/wallhost.h"
#include "support/windowmouse.h"
#include "wallpage/modelboard.h"
#include "wallpage/propertypanel.h"
#include "wallpage/senderpanel.h"
#include "wallpage/wallpage.h"

#include <customlistwidgetitem.h>
#include <custommessagebox.h>
#include <drawer.h>
#include <draweritem.h>
#include <draweritemcontent.h>
#include <hostprogram.h>
#include <labelex.h>
#include <nqtabwidget.h>
#include <rowlineitem.h>
#include <toolbuttonex.h>
#include <windowtitle.h>

#include <QAction>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QMimeData>
#include <QProgressBar>
#include <QShortcut>
#include <QUndoStack>

#include <csignal>
#include <sys/resource.h>

using namespace wall;

namespace
{

const QString demoTitle = QStringLiteral("Harbour Hall main stage");
const PortRef firstPort{"s1", 1};
const QString panel = QStringLiteral("stage-26"); // the most common model of the demo project

// The buttons of a message box.
const QString okButton = QStringLiteral("frame_ok");
const QString cancelButton = QStringLiteral("frame_cancel");
const QString applyButton = QStringLiteral("frame_apply");

/// Answers every message box that comes up by a click on the next of some buttons, and writes down
/// what it said. Boxes beyond the answers are given up.
class BoxAnswers
{
public:
    explicit BoxAnswers(const QStringList &buttons)
        : m_buttons(buttons)
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { answer(); });
        m_timer.start(5);
    }

    /// The boxes so far: title and text.
    QStringList titles;
    QStringList texts;
    /// What the buttons of the last one say, from left to right.
    QStringList buttonTexts;

private:
    void answer()
    {
        auto *box = qobject_cast<CustomMessageBox *>(QApplication::activeModalWidget());
        if (!box || !box->isVisible() || !box->windowHandle()->isExposed())
            return;
        if (box != m_last)
            read(box);
        if (m_button)
            windowmouse::click(m_button); // and again if the box was not ready for it
        else
            box->reject(); // as Escape does
    }

    void read(CustomMessageBox *box)
    {
        m_last = box;
        titles.append(box->findChild<QLabel *>("labelTitle")->text().trimmed());
        texts.append(box->findChild<QLabel *>("labelTips")->text());
        buttonTexts.clear();
        m_button = nullptr;
        for (const QString &name : {applyButton, okButton, cancelButton}) {
            auto *each = box->findChild<QFrame *>(name)->findChild<PushButtonEx *>();
            if (each->isVisible())
                buttonTexts.append(each->text());
            if (m_buttons.value(0) == name)
                m_button = each;
        }
        if (!m_buttons.isEmpty())
            m_buttons.removeFirst();
    }

    QStringList m_buttons;
    QTimer m_timer;
    QPointer<CustomMessageBox> m_last;
    QPointer<PushButtonEx> m_button;
};

/// Enters a name as if it was typed, which takes the proposed file's selection away, but without
/// the list of names that comes up while one types.
void typeName(QLineEdit *edit, const QString &name)
{
    edit->window()->findChild<QListView *>("listView")->clearSelection();
    edit->setText(name);
    QTest::keyClick(edit, Qt::Key_Return);
}

/// Answers the next file dialog with a path, or gives it up without one.
DialogAnswer *fileDialogAnswer(const QString &path)
{
    return new DialogAnswer([path](QDialog *dialog) {
        auto *edit = dialog->findChild<QLineEdit *>("fileNameEdit");
        if (path.isEmpty() || !edit) {
            dialog->reject();
            return;
        }
        typeName(edit, path);
    });
}

/// Counts how often progress dialogs are shown, and may cancel each of them by its button.
class ProgressWatch : public QObject
{
public:
    explicit ProgressWatch(bool isCancelling = false)
        : m_isCancelling(isCancelling)
    {
        qApp->installEventFilter(this);
    }

    int count = 0;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *dialog = qobject_cast<ProgressDialog *>(watched);
        if (dialog && event->type() == QEvent::Show) {
            ++count;
            if (m_isCancelling) {
                QTimer::singleShot(0, dialog,
                                   [dialog] { windowmouse::click(buttonNamed(dialog, "Cancel")); });
            }
        }
        return false;
    }

private:
    bool m_isCancelling;
};

/// As long as it lives, no file can grow, as on a full disk.
class FullDisk
{
public:
    FullDisk()
    {
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit limit = m_before;
        limit.rlim_cur = 4096;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    Q_DISABLE_COPY(FullDisk)

private:
    rlimit m_before{};
    void (*m_handler)(int) = SIG_DFL;
};

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qWarning("cannot write %s", qPrintable(path));
}

/// The window over an empty list of recent projects.
struct Stage {
    explicit Stage(bool isShown = true)
    {
        if (!isShown)
            return;
        window.resizeFrame(QSize(1280, 760));
        pointer::showAndWait(&window);
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window))
            qWarning("the window does not become active");
    }

    Document *document() const { return window.document(); }
    Project *project() const { return document()->project(); }
    QUndoStack *undoStack() const { return document()->undoStack(); }
    LayoutView *view() const { return window.layoutView(); }
    WallPage *wallPage() const { return window.findChild<WallPage *>(); }
    QString path(const QString &name) const { return directory.filePath(name); }
    QString title() const { return window.windowTitle(); }

    /// What the title bar shows.
    QString logoText() const
    {
        return window.GetTitleWidget()->findChildren<QLabel *>().at(1)->text();
    }
    QString message() const
    {
        for (const LabelEx *label : window.findChildren<LabelEx *>()) {
            if (label->accessibleName() == "Message")
                return label->text();
        }
        return "there is no line for messages";
    }
    QAction *command(const QString &text) const
    {
        for (QAction *action : window.actions()) {
            if (action->text() == text)
                return action;
        }
        return nullptr;
    }
    void press(const QKeySequence &keys)
    {
        window.activateWindow(); // as a window manager does after a dialog
        if (!QTest::qWaitForWindowActive(&window))
            qWarning("the window does not become active");
        QTest::keySequence(window.windowHandle(), keys);
    }

    /// Opens the demo project, with a change that is done and one that is undone.
    void openChangedDemo()
    {
        window.openDemo();
        view()->placeNext(firstPort, panel);
        const CabinetId first = project()->cabinetIds().constFirst();
        document()->push(new MoveCabinetsCommand(project(), {{first, QPoint(-5000, -5000)}}, 0));
        undoStack()->undo();
    }

    QTemporaryDir directory;
    RecentProjects recent{directory.filePath("recent.ini")};
    MainWindow window{&recent};
};

/// The demo project in the order in which a project hands its cabinets out.
ProjectData sortedDemo()
{
    Project project;
    project.reset(demoProject());
    return project.data();
}

/// What must not change when something is refused.
struct Snapshot {
    explicit Snapshot(const Stage &stage)
        : data(stage.project()->data())
        , undoCount(stage.undoStack()->count())
        , undoIndex(stage.undoStack()->index())
        , title(stage.title())
        , filePath(stage.document()->filePath())
        , page(stage.window.currentPage())
        , recent(stage.recent.paths())
    {
    }

    bool operator==(const Snapshot &other) const
    {
        return data == other.data && undoCount == other.undoCount && undoIndex == other.undoIndex
            && title == other.title && filePath == other.filePath && page == other.page
            && recent == other.recent;
    }

    ProjectData data;
    int undoCount;
    int undoIndex;
    QString title;
    QString filePath;
    QString page;
    QStringList recent;
};

/// Drags files over the place of the window's middle and drops them; false if they are refused.
bool dropUrls(QWidget *window, const QList<QUrl> &urls)
{
    const QPoint middle = window->rect().center();
    QWidget *target = window->childAt(middle);
    const QPoint place = target->mapFrom(window, middle);
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(target, &enter);
    if (!enter.isAccepted())
        return false;
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    drop.ignore();
    QApplication::sendEvent(target, &drop);
    return drop.isAccepted();
}

bool dropFile(QWidget *window, const QString &path)
{
    return dropUrls(window, {QUrl::fromLocalFile(path)});
}

/// A small project, as a file has it.
QByteArray smallProject()
{
    return R"({
    "format": "orvane-wall",
    "version": 1,
    "name": "Lobby",
    "colour of the door": "green",
    "models": [
        {"id": "p26", "family": "Stage", "name": "Stage 2.6", "width": 192, "height": 192, "pitch": 2.6, "weight": 7.4, "power": 145, "voltage": 230}
    ],
    "senders": [
        {"id": "s1", "name": "Left", "connection": "COM3", "online": true, "ports": [
            {"number": 1, "kind": "network", "stock": [{"model": "p26", "count": 3}]}
        ]}
    ],
    "cabinets": [
        {"model": "p26", "sender": "s1", "port": 1, "x": 0, "y": 0, "rotation": 0}
    ]
})";
}

void addRowsOfSizes()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("1100 x 640") << QSize(1100, 640);
    QTest::newRow("1280 x 720") << QSize(1280, 720);
    QTest::newRow("1920 x 1080") << QSize(1920, 1080);
    QTest::newRow("3840 x 2160") << QSize(3840, 2160);
}

} // namespace

class TestWallWindow : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        hostprogram::dress();
    }

    // From the beginning to the end

    void demoIsBuiltOnSavedAndReopened()
    {
        Stage stage;
        windowmouse::click(buttonNamed(&stage.window, "Demo project"));
        QTRY_COMPARE(stage.window.currentPage(), QString("Wall"));
        QCOMPARE(stage.window.focusWidget(), stage.view());
        QVERIFY(stage.project()->data() == sortedDemo());
        const int before = stage.project()->cabinetCount();

        // The first sender's first port, by its row.
        SenderPanel *senders = stage.wallPage()->senderPanel();
        DrawerItem *item = senders->findChild<Drawer *>()->drawerItemList().constFirst();
        windowmouse::click(item->findChild<QFrame *>("FrameRight"), Qt::LeftButton, QPoint(20, 20));
        QTRY_VERIFY(item->getItem() && item->getItem()->isVisible());
        QTRY_VERIFY(item->height() > item->getItem()->height());
        auto *rows = qobject_cast<DrawerItemContent *>(item->getItem());
        QVERIFY(rows);
        RowLineItem *row = rows->lsRowLineItems().value(1); // port 2
        windowmouse::click(row->findChild<QToolButton *>(QString(), Qt::FindDirectChildrenOnly));
        const PortRef port{"s1", 2};
        QTRY_VERIFY(stage.window.selection()->port() == port);

        // Two of the models from the board.
        ToolButtonEx *button = nullptr;
        for (ToolButtonEx *each : stage.wallPage()->modelBoard()->modelButtons()) {
            if (!button && each->isEnabled() && each->isVisible())
                button = each;
        }
        QVERIFY(button);
        for (int placed = 1; placed <= 2; ++placed) {
            windowmouse::click(button);
            QTRY_COMPARE(stage.project()->cabinetCount(), before + placed);
        }
        const CabinetIds line = stage.project()->line(port);
        const CabinetId cabinet = line.constLast();
        QCOMPARE(stage.window.selection()->cabinets(), CabinetIds{cabinet});
        QVERIFY(stage.document()->isModified());

        // The second one is moved, the first one taken back and placed again.
        const QPoint place = stage.project()->cabinet(cabinet)->position;
        stage.view()->setFocus();
        QTest::keyClick(stage.view(), Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(stage.project()->cabinet(cabinet)->position, place + QPoint(0, 1));
        const ProjectData built = stage.project()->data();
        for (int step = 0; step < 3; ++step)
            stage.press(QKeySequence::Undo);
        QVERIFY(stage.project()->data() == sortedDemo());
        QVERIFY(!stage.document()->isModified());
        for (int step = 0; step < 3; ++step)
            stage.press(QKeySequence::Redo);
        QVERIFY(stage.project()->data() == built);

        // Saved under a name without its ending.
        const QString file = stage.path("stage.wall.json");
        {
            const std::unique_ptr<DialogAnswer> answer(fileDialogAnswer(stage.path("stage")));
            stage.press(QKeySequence::Save);
            QVERIFY(answer->wasAsked());
        }
        QVERIFY(QFileInfo::exists(file));
        QVERIFY(!stage.document()->isModified());
        QCOMPARE(stage.title(), QString("stage.wall.json - Orvane Wall"));

        stage.press(QKeySequence::New);
        QCOMPARE(stage.project()->cabinetCount(), 0);
        {
            const std::unique_ptr<DialogAnswer> answer(fileDialogAnswer(file));
            stage.press(QKeySequence::Open);
            QVERIFY(answer->wasAsked());
        }
        QVERIFY(stage.project()->data() == built);
        QCOMPARE(stage.document()->filePath(), file);
        QCOMPARE(stage.undoStack()->count(), 0);
        QCOMPARE(stage.window.focusWidget(), stage.view());

        // A second window finds the same.
        Stage other;
        QVERIFY(other.window.openFile(file));
        QVERIFY(other.project()->data() == built);
    }

    void aRowIsPlacedAsOneStep()
    {
        Stage stage;
        stage.window.openDemo();
        const int before = stage.project()->cabinetCount();
        const PortRef port{"s1", 2};
        const int left = stage.project()->leftCount(port, panel);
        QVERIFY(left >= 2);
        Q_EMIT stage.wallPage()->placeRowRequested(port, panel, left);
        QCOMPARE(stage.project()->cabinetCount(), before + left);
        QCOMPARE(stage.undoStack()->count(), 1);
        stage.press(QKeySequence::Undo);
        QVERIFY(stage.project()->data() == sortedDemo());
        stage.press(QKeySequence::Redo);
        QCOMPARE(stage.project()->cabinetCount(), before + left);

        // More than there are: as many as there are, and it says why.
        stage.press(QKeySequence::Undo);
        Q_EMIT stage.wallPage()->placeRowRequested(port, panel, left + 1);
        QCOMPARE(stage.project()->cabinetCount(), before + left);
        QVERIFY(!stage.message().isEmpty());
        // None: no step, and what was undone can be done again.
        stage.press(Qt::CTRL + Qt::Key_R);
        stage.press(QKeySequence::Undo);
        QVERIFY(stage.undoStack()->canRedo());
        const int count = stage.undoStack()->count();
        Q_EMIT stage.wallPage()->placeRowRequested(port, panel, 2);
        QCOMPARE(stage.undoStack()->count(), count);
        QVERIFY(stage.undoStack()->canRedo());
        QVERIFY(!stage.message().isEmpty());
    }

    // Opening

    void fileIsOpenedByDrop_data()
    {
        QTest::addColumn<QString>("page");
        for (const QString &page : MainWindow::pageNames())
            QTest::newRow(qPrintable(page)) << page;
    }

    void fileIsOpenedByDrop()
    {
        QFETCH(QString, page);
        Stage stage;
        const QString file = stage.path("lobby.wall.json");
        writeFile(file, smallProject());
        stage.window.showPage(page);
        QVERIFY(dropFile(&stage.window, file));
        // The drop is over before the file is opened.
        QCOMPARE(stage.document()->filePath(), QString());
        QTRY_COMPARE(stage.document()->filePath(), file);
        QCOMPARE(stage.project()->name(), QString("Lobby"));
        QCOMPARE(stage.window.currentPage(), QString("Wall"));
        QCOMPARE(stage.window.focusWidget(), stage.view());
        QCOMPARE(stage.recent.paths(), QStringList{file});
    }

    void otherDropsAreRefused()
    {
        Stage stage;
        stage.window.showPage("Wall");
        QVERIFY(!dropUrls(&stage.window, {}));
        QVERIFY(!dropUrls(&stage.window, {QUrl("https://orvane.example/a.wall.json")}));
        QVERIFY(!dropUrls(&stage.window,
                          {QUrl::fromLocalFile("/a.json"), QUrl::fromLocalFile("/b.json")}));
    }

    void badFileChangesNothingAndSaysWhy_data()
    {
        QTest::addColumn<QByteArray>("content"); // null for none
        QTest::addColumn<QString>("place");
        QTest::addColumn<QString>("problem");
        const auto with = [](const QByteArray &before, const QByteArray &after) {
            QByteArray content = smallProject();
            content.replace(before, after);
            return content;
        };
        QTest::newRow("missing") << QByteArray() << ""
                                 << "No such file";
        QTest::newRow("folder") << QByteArray("folder") << ""
                                << "director";
        QTest::newRow("empty") << QByteArray("") << ""
                               << "is empty";
        QTest::newRow("no JSON") << QByteArray("{\n  \"format\": orvane\n}") << "line 2, column"
                                 << "";
        QTest::newRow("ends early") << smallProject().left(400) << "line"
                                    << "";
        QTest::newRow("another format") << with("orvane-wall", "something") << "format"
                                        << "orvane-wall";
        QTest::newRow("newer version") << with("\"version\": 1", "\"version\": 2") << "version"
                                       << "2 is newer than 1";
        QTest::newRow("no width") << with("\"width\": 192, ", "") << "models[0].width"
                                  << "";
        QTest::newRow("width 0") << with("\"width\": 192", "\"width\": 0") << "models[0].width"
                                 << "0 is not";
        QTest::newRow("height too great")
            << with("\"height\": 192", "\"height\": 65537") << "models[0].height"
            << "65537 is not";
        QTest::newRow("port 17") << with("\"number\": 1", "\"number\": 17")
                                 << "senders[0].ports[0].number"
                                 << "17 is not";
        QTest::newRow("port 0") << with("\"number\": 1", "\"number\": 0")
                                << "senders[0].ports[0].number"
                                << "0 is not";
        QTest::newRow("cabinet of an unknown port")
            << with("\"port\": 1", "\"port\": 2") << "cabinets[0].port"
            << "";
        QTest::newRow("cabinet of an unknown model")
            << with("{\"model\": \"p26\", \"sender\"", "{\"model\": \"p3\", \"sender\"")
            << "cabinets[0].model"
            << "p3";
    }

    void badFileChangesNothingAndSaysWhy()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, place);
        QFETCH(QString, problem);
        Stage stage;
        const QString file = stage.path("bad <b>.wall.json");
        if (content == "folder")
            QVERIFY(QDir().mkpath(file));
        else if (!content.isNull())
            writeFile(file, content);
        stage.openChangedDemo();
        const Snapshot before(stage);
        QVERIFY(before.title.contains("*") && before.undoCount == 2 && before.undoIndex == 1);

        const std::function<void()> ways[] = {
            [&] { QVERIFY(!stage.window.openFile(file)); },
            [&] {
                QVERIFY(dropFile(&stage.window, file));
                QTest::qWait(0);
                QCoreApplication::processEvents();
            },
            [&] { Q_EMIT stage.window.findChild<StartPage *>()->openRequested(file); },
        };
        for (const auto &open : ways) {
            BoxAnswers answers({okButton});
            open();
            QTRY_COMPARE(answers.titles.size(), 1);
            QTRY_VERIFY(!QApplication::activeModalWidget());
            QCOMPARE(answers.titles, QStringList{"The project was not opened"});
            QCOMPARE(answers.buttonTexts, QStringList{"OK"});
            QTextDocument text; // a name with marks is escaped
            if (Qt::mightBeRichText(answers.texts.constFirst()))
                text.setHtml(answers.texts.constFirst());
            else
                text.setPlainText(answers.texts.constFirst());
            // A path is broken where the box has no more room.
            const QString said = text.toPlainText();
            const QString unbroken = QString(said).remove('\n').remove(' ');
            QVERIFY2(unbroken.startsWith(QString(file).remove(' ')), qPrintable(said));
            QVERIFY2(unbroken.contains(QString(place).remove(' ')), qPrintable(said));
            QVERIFY2(unbroken.contains(QString(problem).remove(' ')), qPrintable(said));
            QVERIFY(unbroken.size() > QString(file + place).remove(' ').size());
            QVERIFY(Snapshot(stage) == before);
            QVERIFY(stage.undoStack()->canUndo() && stage.undoStack()->canRedo());
        }
    }

    void boxesBreakLongNames()
    {
        Stage stage;
        const QString file = stage.path(QString(180, 'x') + ".wall.json");
        writeFile(file, "nothing");
        int boxWidth = 0;
        int textWidth = 0;
        const DialogAnswer answer([&](QDialog *box) {
            boxWidth = box->width();
            textWidth = box->findChild<QLabel *>("labelTips")->sizeHint().width();
            box->reject();
        });
        QVERIFY(!stage.window.openFile(file));
        QVERIFY(answer.wasAsked());
        QVERIFY2(boxWidth < 720, qPrintable(QString::number(boxWidth)));
        QVERIFY(textWidth > 0 && textWidth < boxWidth);
    }

    void openingAsksBeforeChangesGetLost_data()
    {
        QTest::addColumn<QString>("way");
        QTest::addColumn<QString>("button");
        for (const char *way : {"new", "demo", "file", "recent"}) {
            QTest::addRow("%s, cancel", way) << way << cancelButton;
            QTest::addRow("%s, Escape", way) << way << QString();
            QTest::addRow("%s, discard", way) << way << applyButton;
            QTest::addRow("%s, save", way) << way << okButton;
        }
    }

    void openingAsksBeforeChangesGetLost()
    {
        QFETCH(QString, way);
        QFETCH(QString, button);
        Stage stage;
        const QString file = stage.path("own.wall.json");
        const QString other = stage.path("lobby.wall.json");
        writeFile(other, smallProject());
        stage.window.openDemo();
        QVERIFY(stage.window.saveFile(file));
        const QByteArray saved = contentOf(file);
        QVERIFY(stage.view()->placeNext(firstPort, panel));
        const Snapshot before(stage);

        BoxAnswers answers({button});
        if (way == "new")
            stage.press(QKeySequence::New);
        else if (way == "demo")
            stage.press(Qt::CTRL + Qt::SHIFT + Qt::Key_D);
        else if (way == "file")
            stage.window.openFile(other);
        else
            Q_EMIT stage.window.findChild<StartPage *>()->openRequested(other);
        QTRY_COMPARE(answers.titles, QStringList{"Unsaved changes"});
        QTRY_VERIFY(!QApplication::activeModalWidget());
        QVERIFY(answers.texts.constFirst().contains("\"own.wall.json\""));
        QCOMPARE(answers.buttonTexts, (QStringList{"Discard", "Save", "Cancel"}));
        const bool isSaved = button == okButton;
        if (isSaved || button == applyButton) {
            QTRY_VERIFY(!stage.document()->isModified());
            QVERIFY(stage.document()->filePath() != file);
            QCOMPARE(stage.undoStack()->count(), 0);
        } else {
            QVERIFY(Snapshot(stage) == before);
        }
        QCOMPARE(contentOf(file) != saved, isSaved);
    }

    void reopeningTheOwnFileShowsWhatWasJustSaved()
    {
        Stage stage;
        const QString file = stage.path("own.wall.json");
        stage.window.openDemo();
        QVERIFY(stage.window.saveFile(file));
        QVERIFY(stage.view()->placeNext(firstPort, panel));
        const ProjectData changed = stage.project()->data();
        {
            BoxAnswers answers({okButton}); // save
            QVERIFY(stage.window.openFile(file));
        }
        QVERIFY(stage.project()->data() == changed);
        QVERIFY(stage.view()->placeNext({"s1", 2}, panel));
        {
            BoxAnswers answers({applyButton}); // discard
            QVERIFY(stage.window.openFile(file));
        }
        QVERIFY(stage.project()->data() == changed);
    }

    void wallIsFittedWhereverItIsOpenedFrom_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<bool>("isShown");
        for (const QString &page : MainWindow::pageNames()) {
            QTest::addRow("from %s", qPrintable(page)) << page << true;
            QTest::addRow("from %s, before the window is shown", qPrintable(page)) << page << false;
        }
    }

    void wallIsFittedWhereverItIsOpenedFrom()
    {
        QFETCH(QString, page);
        QFETCH(bool, isShown);
        Stage stage(isShown);
        stage.window.showPage(page);
        stage.window.openDemo();
        if (!isShown) {
            stage.window.resizeFrame(QSize(1280, 760));
            QVERIFY(pointer::showAndWait(&stage.window));
        }
        const QRectF bounds = stage.project()->bounds();
        const auto isFitted = [&] {
            const QRectF seen = stage.view()->visibleArea();
            const double share =
                qMax(bounds.width() / seen.width(), bounds.height() / seen.height());
            return seen.contains(bounds) && share > 0.85;
        };
        QTRY_VERIFY(isFitted());
        stage.window.resizeFrame(QSize(1600, 1000));
        QTRY_VERIFY(isFitted());
        QTRY_VERIFY(stage.view()->width() > 900);
    }

    // Saving

    void failedSaveLeavesFileAndDocument()
    {
        Stage stage;
        const QString file = stage.path("own.wall.json");
        stage.window.openDemo();
        QVERIFY(stage.window.saveFile(file));
        const QByteArray saved = contentOf(file);
        QVERIFY(stage.view()->placeNext(firstPort, panel));
        const Snapshot before(stage);
        {
            const FullDisk disk;
            BoxAnswers answers({okButton});
            QVERIFY(!stage.window.save());
            QCOMPARE(answers.titles, QStringList{"The project was not saved"});
            QVERIFY(QString(answers.texts.constFirst()).remove('\n').startsWith(file));
        }
        QVERIFY(Snapshot(stage) == before);
        QVERIFY(stage.document()->isModified());
        QVERIFY(stage.command("Save")->isEnabled());
        QCOMPARE(contentOf(file), saved);
        // Under a name that cannot be written, too, and it keeps its own.
        {
            BoxAnswers answers({okButton});
            QVERIFY(!stage.window.saveFile(stage.directory.path()));
            QCOMPARE(answers.titles.size(), 1);
        }
        QVERIFY(Snapshot(stage) == before);
        QVERIFY(stage.window.save());
        QVERIFY(contentOf(file) != saved);
        QVERIFY(!stage.document()->isModified());
    }

    void saveAsAsksForANameAndKeepsTheOldFile()
    {
        Stage stage;
        stage.window.openDemo();
        const QString first = stage.path("first.wall.json");
        QVERIFY(stage.window.saveFile(first));
        const QByteArray saved = contentOf(first);
        QVERIFY(stage.view()->placeNext(firstPort, panel));
        {
            const std::unique_ptr<DialogAnswer> answer(fileDialogAnswer(QString()));
            stage.press(Qt::CTRL + Qt::SHIFT + Qt::Key_S);
            QVERIFY(answer->wasAsked());
        }
        QCOMPARE(stage.document()->filePath(), first);
        QVERIFY(stage.document()->isModified());
        QString proposed;
        {
            const DialogAnswer answer([&](QDialog *dialog) {
                auto *edit = dialog->findChild<QLineEdit *>("fileNameEdit");
                proposed = edit->text();
                typeName(edit, stage.path("second"));
            });
            stage.press(Qt::CTRL + Qt::SHIFT + Qt::Key_S);
        }
        QCOMPARE(proposed, QString("first.wall.json"));
        QCOMPARE(stage.document()->filePath(), stage.path("second.wall.json"));
        QVERIFY(!stage.document()->isModified());
        QCOMPARE(contentOf(first), saved);
        QCOMPARE(stage.recent.paths(), (QStringList{stage.path("second.wall.json"), first}));
    }

    void membersThatTheProgramDoesNotKnowAreKept()
    {
        Stage stage;
        const QString file = stage.path("lobby.wall.json");
        writeFile(file, smallProject());
        QVERIFY(stage.window.openFile(file));
        stage.undoStack()->push(new MoveCabinetsCommand(
            stage.project(), {{stage.project()->cabinetIds().constFirst(), QPoint(64, 0)}}, 0));
        QVERIFY(stage.window.save());
        QVERIFY(contentOf(file).contains("\"colour of the door\": \"green\""));
    }

    // Closing

    void closingAsksBeforeChangesGetLost_data()
    {
        QTest::addColumn<QString>("way");
        QTest::addColumn<QString>("button");
        for (const char *way : {"close()", "title", "Ctrl+Q"}) {
            QTest::addRow("%s, cancel", way) << way << cancelButton;
            QTest::addRow("%s, Escape", way) << way << QString();
            QTest::addRow("%s, discard", way) << way << applyButton;
            QTest::addRow("%s, save", way) << way << okButton;
        }
    }

    void closingAsksBeforeChangesGetLost()
    {
        QFETCH(QString, way);
        QFETCH(QString, button);
        Stage stage;
        const QString file = stage.path("own.wall.json");
        stage.window.openDemo();
        QVERIFY(stage.window.saveFile(file));
        const QByteArray saved = contentOf(file);
        QVERIFY(stage.view()->placeNext(firstPort, panel));
        const ProjectData changed = stage.project()->data();

        BoxAnswers answers({button});
        if (way == "close()")
            stage.window.close();
        else if (way == "title")
            windowmouse::click(stage.window.GetTitleWidget()->findChildren<QPushButton *>().at(0));
        else
            stage.press(Qt::CTRL + Qt::Key_Q);
        QTRY_COMPARE(answers.titles, QStringList{"Unsaved changes"});
        const bool isSaved = button == okButton;
        QTRY_COMPARE(stage.window.isVisible(), !isSaved && button != applyButton);
        QCOMPARE(contentOf(file) != saved, isSaved);
        if (isSaved)
            QVERIFY(loadProject(file).data == changed);
        QVERIFY(stage.project()->data() == changed);
        QCOMPARE(answers.titles.size(), 1);
    }

    void closingWithoutChangesAsksNothing()
    {
        Stage stage;
        stage.window.openDemo();
        const BoxAnswers answers({});
        QVERIFY(stage.window.close());
        QVERIFY(answers.titles.isEmpty());
    }

    void closingStaysWhenTheSaveFailsOrIsGivenUp()
    {
        Stage stage;
        stage.openChangedDemo();
        {
            // A project without a file asks for a name, which the user does not give.
            QStringList titles;
            QTimer poll;
            QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
                auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
                if (auto *box = qobject_cast<CustomMessageBox *>(dialog)) {
                    if (titles.isEmpty())
                        titles.append("box");
                    windowmouse::click(
                        box->findChild<QFrame *>(okButton)->findChild<PushButtonEx *>());
                } else if (qobject_cast<QFileDialog *>(dialog)) {
                    titles.append("file");
                    dialog->reject();
                }
            });
            poll.start(5);
            QVERIFY(!stage.window.close());
            QCOMPARE(titles, (QStringList{"box", "file"}));
        }
        QVERIFY(stage.window.isVisible());
        QVERIFY(stage.document()->isModified());

        QVERIFY(stage.window.saveFile(stage.path("own.wall.json")));
        QVERIFY(stage.view()->placeNext({"s1", 2}, panel));
        const FullDisk disk;
        BoxAnswers answers({okButton, okButton});
        QVERIFY(!stage.window.close());
        QCOMPARE(answers.titles, (QStringList{"Unsaved changes", "The project was not saved"}));
        QVERIFY(stage.window.isVisible());
        QVERIFY(stage.document()->isModified());
    }

    void windowMayGoWithItsChanges()
    {
        auto stage = std::make_unique<Stage>();
        stage->openChangedDemo();
        stage->view()->selectAll();
        QPointer<Document> document = stage->document();
        stage.reset();
        QVERIFY(document.isNull());
    }

    // What the window shows

    void titleShowsNameAndChanges()
    {
        Stage stage;
        QCOMPARE(stage.title(), QString("Untitled - Orvane Wall"));
        QCOMPARE(stage.logoText(), stage.title());
        stage.window.openDemo();
        QCOMPARE(stage.title(), demoTitle + " - Orvane Wall");
        QVERIFY(stage.view()->placeNext(firstPort, panel));
        QCOMPARE(stage.title(), demoTitle + "* - Orvane Wall");
        QCOMPARE(stage.logoText(), stage.title());
        stage.press(QKeySequence::Undo);
        QCOMPARE(stage.title(), demoTitle + " - Orvane Wall");
        stage.press(QKeySequence::Redo);
        QVERIFY(stage.window.saveFile(stage.path("own.wall.json")));
        QCOMPARE(stage.title(), QString("own.wall.json - Orvane Wall"));
        stage.press(QKeySequence::Undo); // away from what was saved
        QCOMPARE(stage.title(), QString("own.wall.json* - Orvane Wall"));
        QCOMPARE(stage.logoText(), stage.title());
    }

    void commandsAreEnabledWhenTheyCanDoSomething()
    {
        Stage stage;
        const auto enabled = [&] {
            QStringList texts;
            for (const char *text :
                 {"Save", "Undo", "Redo", "Select all cabinets", "Rotate by 90 degrees",
                  "Take the selected cabinets off the wall", "Grid"}) {
                if (stage.command(text)->isEnabled())
                    texts.append(QString(text).section(' ', 0, 0));
            }
            return texts.join(' ');
        };
        QCOMPARE(enabled(), QString("Save")); // never saved; and no wall is seen
        stage.press(Qt::CTRL + Qt::Key_2);
        QCOMPARE(enabled(), QString("Save Grid"));
        stage.window.openDemo();
        QCOMPARE(enabled(), QString("Save Select Grid"));
        stage.press(Qt::CTRL + Qt::SHIFT + Qt::Key_A);
        QCOMPARE(enabled(), QString("Save Select Rotate Take Grid"));
        QVERIFY(stage.window.saveFile(stage.path("own.wall.json")));
        QCOMPARE(enabled(), QString("Select Rotate Take Grid"));
        stage.press(Qt::CTRL + Qt::Key_Backspace);
        QCOMPARE(stage.project()->cabinetCount(), 0);
        QCOMPARE(enabled(), QString("Save Undo Grid"));
        stage.press(Qt::CTRL + Qt::Key_3);
        QCOMPARE(enabled(), QString("Save Undo")); // what is not seen is not changed
        stage.press(QKeySequence::Undo);
        QCOMPARE(enabled(), QString("Redo"));
        stage.press(Qt::CTRL + Qt::Key_2);
        QCOMPARE(enabled(), QString("Redo Select Grid"));
    }

    void everyCommandHasAShortcutThatWorks_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("keys");
        const QVector<QPair<QString, QString>> rows = {
            {"New project", "Ctrl+N"},
            {"Open", "Ctrl+O"},
            {"Save", "Ctrl+S"},
            {"Save as", "Ctrl+Shift+S"},
            {"Open the demo project", "Ctrl+Shift+D"},
            {"Undo", "Ctrl+Z"},
            {"Redo", "Ctrl+Shift+Z"},
            {"Select all cabinets", "Ctrl+Shift+A"},
            {"Rotate by 90 degrees", "Ctrl+R"},
            {"Take the selected cabinets off the wall", "Ctrl+Backspace"},
            {"Show the whole wall", "Ctrl+0"},
            {"Grid", "Ctrl+G"},
            {"Snap to the grid", "Ctrl+Shift+G"},
            {"Zoom in", "Ctrl++"},
            {"Zoom out", "Ctrl+-"},
            {"New order of a data line", "Ctrl+L"},
            {"Maximise or restore the window", "F11"},
            {"Minimise the window", "Ctrl+M"},
            {"Shortcuts", "F1"},
            {"Quit", "Ctrl+Q"},
        };
        for (const auto &row : rows)
            QTest::newRow(qPrintable(row.first)) << row.first << row.second;
        // Nothing is left out.
        Stage stage(false);
        QCOMPARE(stage.window.actions().size(), rows.size());
    }

    void everyCommandHasAShortcutThatWorks()
    {
        QFETCH(QString, text);
        QFETCH(QString, keys);
        Stage stage;
        stage.openChangedDemo();
        stage.window.selection()->setCabinets(stage.project()->cabinetIds().mid(0, 2));
        const QAction *command = stage.command(text);
        QVERIFY(command);
        QVERIFY(command->isEnabled());
        QCOMPARE(command->shortcut(), QKeySequence(keys));
        QVERIFY(command->toolTip().contains(keys));

        int dialogs = 0;
        QTimer poll; // whatever is asked is given up
        QObject::connect(&poll, &QTimer::timeout, &poll, [&dialogs] {
            if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
                ++dialogs;
                dialog->reject();
            }
        });
        poll.start(5);
        const QSignalSpy triggered(command, &QAction::triggered);
        stage.press(QKeySequence(keys));
        QTRY_COMPARE(triggered.count(), 1);
        // So many ask for something: files, unsaved changes, or to be read.
        const QStringList asking{"New project",           "Open",      "Save", "Save as",
                                 "Open the demo project", "Shortcuts", "Quit"};
        QTRY_COMPARE(dialogs > 0, asking.contains(text));
    }

    void noShortcutIsTakenTwice()
    {
        Stage stage(false);
        QStringList keys;
        for (const QAction *action : stage.window.findChildren<QAction *>()) {
            for (const QKeySequence &each : action->shortcuts())
                keys.append(each.toString());
        }
        for (const QShortcut *shortcut : stage.window.findChildren<QShortcut *>())
            keys.append(shortcut->key().toString());
        for (const QAbstractButton *button : stage.window.findChildren<QAbstractButton *>()) {
            if (!button->shortcut().isEmpty())
                keys.append(button->shortcut().toString());
        }
        QVERIFY(keys.size() >= 27);
        QCOMPARE(keys.removeDuplicates(), 0);
    }

    void viewCommandsDoWhatTheySay()
    {
        Stage stage;
        stage.window.openDemo();
        const bool hadGrid = stage.view()->isGridVisible();
        stage.press(Qt::CTRL + Qt::Key_G);
        QCOMPARE(stage.view()->isGridVisible(), !hadGrid);
        QCOMPARE(stage.command("Grid")->isChecked(), !hadGrid);
        stage.view()->setGridVisible(hadGrid);
        QCOMPARE(stage.command("Grid")->isChecked(), hadGrid);
        const bool snapped = stage.view()->snapsToGrid();
        stage.press(Qt::CTRL + Qt::SHIFT + Qt::Key_G);
        QCOMPARE(stage.view()->snapsToGrid(), !snapped);

        const double fitted = stage.view()->zoom();
        stage.press(QKeySequence::ZoomIn);
        QVERIFY(stage.view()->zoom() > fitted);
        stage.press(QKeySequence::ZoomOut);
        stage.press(QKeySequence::ZoomOut);
        QVERIFY(stage.view()->zoom() < fitted);
        stage.press(Qt::CTRL + Qt::Key_0);
        QCOMPARE(stage.view()->zoom(), fitted);

        const CabinetId first = stage.project()->cabinetIds().constFirst();
        stage.window.selection()->setCabinets({first});
        for (const int rotation : {90, 180, 270, 0}) {
            stage.press(Qt::CTRL + Qt::Key_R);
            QCOMPARE(stage.project()->cabinet(first)->rotation, rotation);
        }
        stage.press(Qt::CTRL + Qt::Key_L);
        QVERIFY(stage.view()->isOrdering());
        stage.press(Qt::CTRL + Qt::Key_L);
        QVERIFY(!stage.view()->isOrdering());
    }

    void viewModesHaveShortcuts()
    {
        Stage stage;
        stage.window.openDemo();
        const auto checked = [&] {
            QStringList texts;
            for (const char *text : {"Models", "Ports", "Lines"}) {
                for (const QToolButton *button : stage.window.findChildren<QToolButton *>()) {
                    if (button->text() == text && button->isChecked())
                        texts.append(text);
                }
            }
            return texts.join(' ');
        };
        QCOMPARE(checked(), QString("Models"));
        const QVector<QPair<ViewMode, QString>> modes = {{ViewMode::DataLines, "Lines"},
                                                         {ViewMode::PortColors, "Ports"},
                                                         {ViewMode::ModelColors, "Models"}};
        int key = Qt::Key_3;
        for (const auto &mode : modes) {
            stage.press(Qt::ALT + key--);
            QTRY_COMPARE(stage.view()->viewMode(), mode.first);
            QCOMPARE(checked(), mode.second);
        }
        stage.view()->setViewMode(ViewMode::PortColors);
        QCOMPARE(checked(), QString("Ports"));
    }

    void pagesAreReachedByKeysAndTakeTheFocus()
    {
        Stage stage;
        stage.window.openDemo();
        const QStringList names = MainWindow::pageNames();
        QCOMPARE(names, (QStringList{"Start", "Wall", "Models", "Devices"}));
        const auto *pages = stage.window.findChild<NQTabWidget *>();
        for (const int index : {3, 0, 2, 1, 2, 3, 1, 0}) {
            stage.press(Qt::CTRL + Qt::Key_1 + index);
            QCOMPARE(stage.window.currentPage(), names[index]);
            QVERIFY(stage.window.focusWidget());
            QVERIFY2(pages->currentWidget()->isAncestorOf(stage.window.focusWidget()),
                     qPrintable(names[index]));
            QVERIFY(stage.window.focusWidget()->isVisible());
        }
        stage.window.showPage("dEVICES");
        QCOMPARE(stage.window.currentPage(), QString("Devices"));
        stage.window.showPage("Roof"); // there is none
        QCOMPARE(stage.window.currentPage(), QString("Devices"));
    }

    void recentProjectsAreKeptAndOpened()
    {
        Stage stage;
        const QString lobby = stage.path("lobby.wall.json");
        writeFile(lobby, smallProject());
        QVERIFY(stage.window.openFile(lobby));
        stage.window.openDemo(); // is no file
        QVERIFY(stage.window.saveFile(stage.path("own.wall.json")));
        const QStringList expected{stage.path("own.wall.json"), lobby};
        QCOMPARE(stage.recent.paths(), expected);
        QCOMPARE(RecentProjects(stage.path("recent.ini")).paths(), expected);

        // A click on a row opens it, which makes the list anew.
        stage.press(Qt::CTRL + Qt::Key_1);
        const auto rows = stage.window.findChildren<CustomListWidgetItem *>();
        CustomListWidgetItem *row = nullptr;
        for (CustomListWidgetItem *each : rows) {
            if (each->getProjectPath() == lobby)
                row = each;
        }
        QVERIFY(row);
        windowmouse::click(row, Qt::LeftButton, QPoint(60, row->height() / 2));
        QTRY_COMPARE(stage.document()->filePath(), lobby);
        QCOMPARE(stage.recent.paths(), (QStringList{lobby, stage.path("own.wall.json")}));
    }

    void messageGoesWithTheNextChangeOrAfterAWhile()
    {
        Stage stage;
        stage.window.openDemo();
        QCOMPARE(stage.message(), QString());
        QVERIFY(!stage.view()->placeNext({"s1", 4}, panel)); // none is left there
        QVERIFY(!stage.message().isEmpty());
        QVERIFY(stage.view()->placeNext(firstPort, panel));
        QCOMPARE(stage.message(), QString());
        QVERIFY(stage.window.saveFile(stage.path("own.wall.json")));
        QCOMPARE(stage.message(), QString("Saved own.wall.json"));
        QTRY_COMPARE_WITH_TIMEOUT(stage.message(), QString(), 20000);
    }

    void everythingHasRoom_data() { addRowsOfSizes(); }

    void everythingHasRoom()
    {
        QFETCH(QSize, size);
        Stage stage;
        stage.window.openDemo();
        stage.window.resizeFrame(size);
        for (const QString &page : MainWindow::pageNames()) {
            stage.window.showPage(page);
            QTRY_COMPARE(stage.window.size(), size);
            const QWidget *content = stage.window.centralWidget();
            QTRY_COMPARE(content->size(), size - QSize(12, 36));
            const QSize least = content->minimumSizeHint();
            QVERIFY2(least.width() <= content->width() && least.height() <= content->height(),
                     qPrintable(QStringLiteral("%1: %2 x %3")
                                    .arg(page)
                                    .arg(least.width())
                                    .arg(least.height())));
        }
        stage.window.showPage("Wall");
        QTRY_VERIFY(stage.view()->width() > size.width() - 700);
        QVERIFY(stage.view()->height() > size.height() / 2);
    }

    // Long work

    void progressIsSeenOfLongWorkOnly()
    {
        QWidget parent;
        QVERIFY(pointer::showAndWait(&parent));
        const ProgressWatch watch;
        ProgressDialog quick("Quick", &parent);
        const Progress ofQuick = quick.progress();
        for (int percent = 0; percent <= 100; percent += 10)
            QVERIFY(ofQuick(percent));
        QCOMPARE(watch.count, 0);

        ProgressDialog dialog("Long", &parent);
        dialog.setDelay(0);
        QTest::qWait(2); // longer than the delay
        const Progress progress = dialog.progress();
        QVERIFY(progress(40));
        QVERIFY(dialog.isVisible());
        QCOMPARE(dialog.windowModality(), Qt::WindowModal);
        QCOMPARE(dialog.findChild<LabelEx *>()->text(), QString("Long"));
        QCOMPARE(dialog.findChild<QProgressBar *>()->value(), 40);
        QVERIFY(progress(70));
        QCOMPARE(dialog.findChild<QProgressBar *>()->value(), 70);
        QVERIFY(!dialog.isCancelled());
        QCOMPARE(watch.count, 1);
    }

    void progressIsCancelledByButtonAndEscape_data()
    {
        QTest::addColumn<bool>("byButton");
        QTest::newRow("button") << true;
        QTest::newRow("Escape") << false;
    }

    void progressIsCancelledByButtonAndEscape()
    {
        QFETCH(bool, byButton);
        QWidget parent;
        QVERIFY(pointer::showAndWait(&parent));
        ProgressDialog dialog("Long", &parent);
        dialog.setDelay(0);
        QTest::qWait(2); // longer than the delay
        const Progress progress = dialog.progress();
        QVERIFY(progress(10));
        if (byButton)
            windowmouse::click(buttonNamed(&dialog, "Cancel"));
        else
            QTest::keyClick(&dialog, Qt::Key_Escape);
        QVERIFY(dialog.isCancelled());
        QVERIFY(!progress(20));
        QVERIFY(!progress(30));
    }

    void longOpeningAndSavingCanBeCancelled()
    {
        Stage stage;
        const QString big = stage.path("big.wall.json");
        QCOMPARE(saveProject(big, *generateProject(300000)).state, SaveResult::Saved);
        stage.openChangedDemo();
        const Snapshot before(stage);
        {
            const BoxAnswers answers({});
            const ProgressWatch watch(true);
            QVERIFY(!stage.window.openFile(big));
            QCOMPARE(watch.count, 1);
            QVERIFY(answers.titles.isEmpty());
        }
        QVERIFY(Snapshot(stage) == before);
        QVERIFY(!QApplication::activeModalWidget());

        stage.undoStack()->setClean();
        QVERIFY(stage.window.openFile(big));
        QCOMPARE(stage.project()->cabinetCount(), 300000);
        const QString file = stage.path("old.wall.json");
        writeFile(file, "old");
        {
            const ProgressWatch watch(true);
            const BoxAnswers answers({});
            QVERIFY(!stage.window.saveFile(file));
            QCOMPARE(watch.count, 1);
            QVERIFY(answers.titles.isEmpty());
        }
        QCOMPARE(contentOf(file), QByteArray("old"));
        QCOMPARE(stage.document()->filePath(), big);
    }

    void shortOpeningAndSavingShowNoProgress()
    {
        Stage stage;
        const ProgressWatch watch;
        const QString file = stage.path("lobby.wall.json");
        writeFile(file, smallProject());
        QVERIFY(stage.window.openFile(file));
        QVERIFY(stage.window.save());
        QCOMPARE(watch.count, 0);
    }
};

ORVANE_TEST_MAIN(TestWallWindow)
#include "tst_wallwindow.moc"
