#include "mainwindow.h"

#include "document.h"
#include "layout/layoutview.h"
#include "model/commands.h"
#include "model/projectfile.h"
#include "model/sampleprojects.h"
#include "pages/devicespage.h"
#include "pages/measures.h"
#include "pages/modelspage.h"
#include "pages/recentprojects.h"
#include "pages/startpage.h"
#include "progressdialog.h"
#include "selection.h"
#include "wallpage/wallpage.h"

#include <custommegbox.h>
#include <mutexbuttonex.h>
#include <nqtabwidget.h>
#include <theme.h>
#include <toolbarex.h>
#include <toolbuttonex.h>

#include <QAction>
#include <QApplication>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QMimeData>
#include <QShortcut>
#include <QStackedWidget>
#include <QUndoStack>
#include <QVBoxLayout>

// The pictures of a static library are there once this is called, from outside every namespace.
static void registerIcons()
{
    Q_INIT_RESOURCE(icons);
}

namespace wall
{

namespace
{

constexpr char logoPath[] = ":/Resource/Image/logo.png";
constexpr char fileFilter[] = "Wall projects (*.wall.json);;All files (*)";
constexpr char fileSuffix[] = ".wall.json";
constexpr QSize normalSize(1280, 760);
constexpr QSize smallestSize(1100, 640);
constexpr int rightAngle = 90;
constexpr int viewModeWidth = 64;
constexpr int iconSide = 20;

// What a message box answers.
constexpr int saveAnswer = 1;
constexpr int discardAnswer = 2;

/// A plain library button that carries out \a command and follows its text, state and keys.
ToolButtonEx *makeButton(QAction *command, QWidget *parent)
{
    auto *button = new ToolButtonEx(parent, DefaultType, QString(), QString());
    button->setDefaultAction(command);
    button->setIconSize(QSize(iconSide, iconSide));
    button->setToolButtonStyle(Qt::ToolButtonIconOnly);
    button->setFocusPolicy(Qt::TabFocus);
    button->setAccessibleName(command->text());
    button->setStyleSheet("QToolButton{border:1px solid transparent;border-radius:4px;}"
                          "QToolButton:hover{background:rgb(80,80,80);}"
                          "QToolButton:focus{border-color:rgb(66,145,240);}"
                          "QToolButton:checked{background:rgb(49,87,140);}"
                          "QToolButton:pressed{background:rgb(66,145,240);}");
    return button;
}

QString withSuffix(const QString &path)
{
    return QFileInfo(path).suffix().isEmpty() ? path + fileSuffix : path;
}

/// The one local file that is dragged, empty for anything else.
QString draggedFile(const QMimeData *data)
{
    const QList<QUrl> urls = data->urls();
    return urls.size() == 1 && urls.first().isLocalFile() ? urls.first().toLocalFile() : QString();
}

} // namespace

MainWindow::MainWindow(RecentProjects *recent, QWidget *parent)
    : HostFrame(normalSize, smallestSize, parent)
    , m_recent(recent)
    , m_document(new Document(this))
    , m_selection(new Selection(m_document->project(), this))
    , m_toolBar(new ToolBarEx(this))
    , m_pages(new NQTabWidget(this))
    , m_view(new LayoutView(m_document, m_selection))
{
    registerIcons();
    setWindowIcon(QIcon(logoPath));
    setAcceptDrops(true);

    auto *content = new QWidget(this);
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_toolBar);
    layout->addWidget(m_pages, 1);
    layout->addWidget(createStatusLine());
    setCentralWidget(content);

    createToolBar();
    createViewModes();
    createPages();
    connectView();
    connect(m_document, &Document::titleChanged, this, &MainWindow::updateTitle);
    connect(m_selection, &Selection::cabinetsChanged, this, &MainWindow::updateCommands);
    connect(m_document->project(), &Project::totalsChanged, this, &MainWindow::updateTotals);
    connect(m_document->project(), &Project::wasReset, this, &MainWindow::updateTotals);
    updateTitle();
    updateCommands();
    updateTotals();
}

MainWindow::~MainWindow()
{
    // The views know the document, so they go first.
    delete takeCentralWidget();
}

Document *MainWindow::document() const
{
    return m_document;
}

Selection *MainWindow::selection() const
{
    return m_selection;
}

LayoutView *MainWindow::layoutView() const
{
    return m_view;
}

QStringList MainWindow::pageNames()
{
    return {"Start", "Wall", "Models", "Devices"};
}

void MainWindow::showPage(const QString &name)
{
    for (int i = 0; i < m_pages->count(); ++i) {
        if (m_pages->tabText(i).compare(name, Qt::CaseInsensitive) == 0)
            m_pages->setCurrentIndex(i);
    }
}

QString MainWindow::currentPage() const
{
    return m_pages->tabText(m_pages->currentIndex());
}

// The window's parts

QWidget *MainWindow::createWallPage()
{
    auto *page = new WallPage(m_document, m_selection, m_view);
    connect(m_view, &LayoutView::zoomChanged, page, &WallPage::showZoom);
    connect(page, &WallPage::zoomRequested, m_view, &LayoutView::setZoom);
    connect(page, &WallPage::zoomInRequested, m_view, &LayoutView::zoomIn);
    connect(page, &WallPage::zoomOutRequested, m_view, &LayoutView::zoomOut);
    connect(page, &WallPage::zoomToFitRequested, m_view, &LayoutView::zoomToFit);
    connect(page, &WallPage::placeRequested, m_view, &LayoutView::placeNext);
    connect(page, &WallPage::placeRowRequested, this,
            [this](const PortRef &port, const QString &modelId, int count) {
                placeRow(port.senderId, port.number, modelId, count);
            });
    page->showZoom(m_view->zoom());
    return page;
}

void MainWindow::createPages()
{
    auto *start = new StartPage(m_recent);
    connect(start, &StartPage::newRequested, this, &MainWindow::newProject);
    connect(start, &StartPage::openDialogRequested, this, &MainWindow::openDialog);
    connect(start, &StartPage::openRequested, this, &MainWindow::openFile);
    connect(start, &StartPage::demoRequested, this, &MainWindow::openDemo);

    const QVector<QWidget *> pages = {start, createWallPage(), new ModelsPage(m_document),
                                      new DevicesPage(m_document, m_selection)};
    m_pages->setStackedWidgetColor(theme::ground);
    for (int i = 0; i < pages.size(); ++i)
        m_pages->addTab(pages[i], pageNames().at(i));
    m_pages->setCurrentIndex(0);
    addShortcutsOfPages();
}

void MainWindow::addShortcutsOfPages()
{
    for (int i = 0; i < m_pages->count(); ++i) {
        const QKeySequence keys(Qt::CTRL + Qt::Key_1 + i);
        m_pages->setTabToolTip(i, keys.toString(QKeySequence::NativeText));
        connect(new QShortcut(keys, this), &QShortcut::activated, this,
                [this, i] { m_pages->setCurrentIndex(i); });
    }
}

QAction *MainWindow::addCommand(const QString &text, const QString &icon, const QKeySequence &keys,
                                const std::function<void()> &run)
{
    auto *command = new QAction(text, this);
    if (!icon.isEmpty())
        command->setIcon(QIcon(":/wall/icons/" + icon + ".png"));
    command->setShortcut(keys);
    command->setToolTip(text + " (" + keys.toString(QKeySequence::NativeText) + ")");
    connect(command, &QAction::triggered, this, [run] { run(); });
    addAction(command);
    m_commands.append(command);
    return command;
}

void MainWindow::addToBar(QAction *command)
{
    m_toolBar->addButton(makeButton(command, m_toolBar), LeftPos);
}

void MainWindow::createToolBar()
{
    addToBar(addCommand("New project", "new", QKeySequence::New, [this] { newProject(); }));
    addToBar(addCommand("Open", "open", QKeySequence::Open, [this] { openDialog(); }));
    m_save = addCommand("Save", "save", QKeySequence::Save, [this] { save(); });
    addToBar(m_save);
    addCommand("Save as", QString(), Qt::CTRL + Qt::SHIFT + Qt::Key_S, [this] { saveAs(); });
    addCommand("Open the demo project", QString(), Qt::CTRL + Qt::SHIFT + Qt::Key_D,
               [this] { openDemo(); });
    m_toolBar->addSeparator();

    QUndoStack *stack = m_document->undoStack();
    QAction *undo = addCommand("Undo", "undo", QKeySequence::Undo, [stack] { stack->undo(); });
    QAction *redo = addCommand("Redo", "redo", QKeySequence::Redo, [stack] { stack->redo(); });
    undo->setEnabled(false);
    redo->setEnabled(false);
    connect(stack, &QUndoStack::canUndoChanged, undo, &QAction::setEnabled);
    connect(stack, &QUndoStack::canRedoChanged, redo, &QAction::setEnabled);
    addToBar(undo);
    addToBar(redo);
    m_toolBar->addSeparator();

    addToBar(addCommand("Select all cabinets", "selectall", Qt::CTRL + Qt::SHIFT + Qt::Key_A,
                        [this] { m_view->selectAll(); }));
    m_rotate = addCommand("Rotate by 90 degrees", "rotate", Qt::CTRL + Qt::Key_R,
                          [this] { rotateSelected(); });
    addToBar(m_rotate);
    m_delete = addCommand("Take the selected cabinets off the wall", "delete",
                          Qt::CTRL + Qt::Key_Backspace, [this] { m_view->removeSelected(); });
    addToBar(m_delete);
    m_toolBar->addSeparator();

    addToBar(addCommand("Show the whole wall", "fit", Qt::CTRL + Qt::Key_0,
                        [this] { m_view->zoomToFit(); }));
    const auto addSwitch = [this](const QString &text, const QString &icon,
                                  const QKeySequence &keys, bool isOn, auto setter, auto changed) {
        QAction *command = addCommand(text, icon, keys, [] {});
        command->setCheckable(true);
        command->setChecked(isOn);
        connect(command, &QAction::toggled, m_view, setter);
        connect(m_view, changed, command, &QAction::setChecked);
        addToBar(command);
    };
    addSwitch("Grid", "grid", Qt::CTRL + Qt::Key_G, m_view->isGridVisible(),
              &LayoutView::setGridVisible, &LayoutView::gridVisibleChanged);
    addSwitch("Snap to the grid", "snap", Qt::CTRL + Qt::SHIFT + Qt::Key_G, m_view->snapsToGrid(),
              &LayoutView::setSnapsToGrid, &LayoutView::snapsToGridChanged);
    addCommand("Zoom in", QString(), QKeySequence::ZoomIn, [this] { m_view->zoomIn(); });
    addCommand("Zoom out", QString(), QKeySequence::ZoomOut, [this] { m_view->zoomOut(); });
    addCommand("New order of a data line", QString(), Qt::CTRL + Qt::Key_L,
               [this] { m_view->setOrdering(!m_view->isOrdering()); });
    addCommand("Maximise or restore the window", QString(), Qt::Key_F11,
               [this] { slot_showMaximized(); });
    addCommand("Minimise the window", QString(), Qt::CTRL + Qt::Key_M,
               [this] { slot_showMinimized(); });
    addCommand("Shortcuts", QString(), QKeySequence::HelpContents, [this] { showShortcuts(); });
    addCommand("Quit", QString(), QKeySequence(Qt::CTRL + Qt::Key_Q), [this] { close(); });
}

void MainWindow::createViewModes()
{
    struct Mode {
        ViewMode mode;
        const char *name;
        const char *purpose;
    };
    const Mode modes[] = {
        {ViewMode::ModelColors, "Models", "Colour the cabinets by model"},
        {ViewMode::PortColors, "Ports", "Colour the cabinets by port"},
        {ViewMode::DataLines, "Lines", "Show the data lines"},
    };
    auto *strip = new MutexButtonEx(m_toolBar);
    strip->setButtonWidth(viewModeWidth);
    strip->setButtonSpace(1);
    int key = Qt::Key_1;
    for (const Mode &each : modes) {
        auto *button = new ToolButtonEx(strip, NoActivatedType, QString(), QString());
        strip->addButton(button);
        button->setText(each.name);
        button->setFocusPolicy(Qt::TabFocus);
        button->setStyleSheet(button->styleSheet()
                              + "QToolButton:checked{background:rgb(66,145,240);}");
        const QKeySequence keys(Qt::ALT + key++);
        button->setShortcut(keys);
        button->setToolTip(QString(each.purpose) + " (" + keys.toString(QKeySequence::NativeText)
                           + ")");
        const ViewMode mode = each.mode;
        button->setChecked(m_view->viewMode() == mode);
        connect(button, &QToolButton::clicked, this, [this, mode] { m_view->setViewMode(mode); });
        connect(m_view, &LayoutView::viewModeChanged, button, [button, mode](ViewMode current) {
            if (current == mode)
                button->setChecked(true);
        });
    }
    m_toolBar->addWidget(strip, RightPos);
}

QWidget *MainWindow::createStatusLine()
{
    auto *line = new QWidget(this);
    line->setFixedHeight(6 * theme::unit);
    m_message = new QLabel(line);
    m_cursor = new QLabel(line);
    m_totals = new QLabel(line);
    m_message->setAccessibleName("Message");
    m_totals->setAccessibleName("Totals of the wall");
    auto *layout = new QHBoxLayout(line);
    layout->setContentsMargins(theme::gap, 0, theme::gap, 0);
    layout->setSpacing(theme::margin);
    layout->addWidget(m_message, 1);
    layout->addWidget(m_cursor);
    layout->addWidget(m_totals);
    return line;
}

void MainWindow::connectView()
{
    connect(m_view, &LayoutView::messageRequested, this, &MainWindow::showMessage);
    connect(m_view, &LayoutView::cursorMoved, this, [this](QPoint position) {
        m_cursor->setText(QStringLiteral("x %1, y %2").arg(position.x()).arg(position.y()));
    });
    connect(m_view, &LayoutView::cursorLeft, m_cursor, &QLabel::clear);
}

// What they show

void MainWindow::updateTitle()
{
    const QString mark = m_document->isModified() ? QStringLiteral("*") : QString();
    const QString title = m_document->title() + mark + " - Orvane Wall";
    setWindowTitle(title);
    setLogo(logoPath, title);
    updateCommands();
}

void MainWindow::updateCommands()
{
    const bool hasSelection = !m_selection->cabinets().isEmpty();
    m_rotate->setEnabled(hasSelection);
    m_delete->setEnabled(hasSelection);
    m_save->setEnabled(m_document->isModified() || m_document->filePath().isEmpty());
}

void MainWindow::updateTotals()
{
    const Totals totals = m_document->project()->totals();
    m_totals->setText(countText(totals.cabinets) + " cabinets,  " + countText(totals.pixels)
                      + " pixels,  " + weightText(totals.weight) + ",  " + powerText(totals.power));
}

void MainWindow::showMessage(const QString &message)
{
    m_message->setText(message);
}

void MainWindow::showShortcuts()
{
    QStringList lines;
    for (const QAction *command : qAsConst(m_commands)) {
        lines.append(command->shortcut().toString(QKeySequence::NativeText) + "   "
                     + command->text());
    }
    lines.append("Ctrl+1 to Ctrl+4   The pages");
    lines.append("Alt+1 to Alt+3   What the colours of the cabinets mean");
    CustomMegBox::informationMessageBox(this, "Shortcuts", lines.join('\n'), "Close");
}

// What they do

void MainWindow::rotateSelected()
{
    QVector<CabinetRotation> targets;
    const CabinetIds ids = m_selection->cabinets();
    for (CabinetId id : ids) {
        const int rotation = m_document->project()->cabinet(id)->rotation;
        targets.append({id, normalizedRotation(rotation + rightAngle)});
    }
    if (!targets.isEmpty())
        m_document->push(new RotateCabinetsCommand(m_document->project(), targets));
}

void MainWindow::placeRow(const QString &senderId, int portNumber, const QString &modelId,
                          int count)
{
    // One step for the user, however many cabinets it places.
    m_document->undoStack()->beginMacro("Place a row");
    for (int i = 0; i < count; ++i) {
        if (!m_view->placeNext({senderId, portNumber}, modelId))
            break;
    }
    m_document->undoStack()->endMacro();
}

bool MainWindow::newProject()
{
    if (!maySpoilChanges())
        return false;
    ProjectData data;
    data.models = demoProject().models; // something to begin with
    open(data, QString());
    return true;
}

bool MainWindow::openDemo()
{
    if (!maySpoilChanges())
        return false;
    open(demoProject(), QString());
    return true;
}

bool MainWindow::openFile(const QString &path)
{
    ProgressDialog dialog("Opening " + QFileInfo(path).fileName(), this);
    LoadResult result = loadProject(path, dialog.progress());
    dialog.hide();
    if (result.state == LoadResult::Failed)
        report("The project was not opened", result.error);
    // Only now: a file that cannot be opened is no reason to give up the open project.
    if (result.state != LoadResult::Loaded || !maySpoilChanges())
        return false;
    open(result.data, path);
    m_recent->add(path);
    return true;
}

bool MainWindow::openDialog()
{
    const QString path = QFileDialog::getOpenFileName(this, "Open a project", QString(),
                                                      QString::fromLatin1(fileFilter));
    return !path.isEmpty() && openFile(path);
}

bool MainWindow::save()
{
    return m_document->filePath().isEmpty() ? saveAs() : saveFile(m_document->filePath());
}

bool MainWindow::saveAs()
{
    const QString path = QFileDialog::getSaveFileName(this, "Save the project", QString(),
                                                      QString::fromLatin1(fileFilter));
    return !path.isEmpty() && saveFile(withSuffix(path));
}

bool MainWindow::saveFile(const QString &path)
{
    ProgressDialog dialog("Saving " + QFileInfo(path).fileName(), this);
    const SaveResult result = saveProject(path, m_document->project()->data(), dialog.progress());
    dialog.hide();
    if (result.state == SaveResult::Failed)
        report("The project was not saved", result.error);
    if (result.state != SaveResult::Saved)
        return false;
    m_document->markSaved(path);
    m_recent->add(path);
    showMessage("Saved " + QFileInfo(path).fileName());
    return true;
}

void MainWindow::open(const ProjectData &data, const QString &path)
{
    m_document->reset(data, path);
    m_view->zoomToFit();
    showPage("Wall");
    showMessage(QString());
}

void MainWindow::report(const QString &title, const FileError &error)
{
    CustomMegBox::criticalMessageBox(this, title, error.message(), "OK");
}

bool MainWindow::maySpoilChanges()
{
    if (!m_document->isModified())
        return true;
    const int answer = CustomMegBox::questionMessageBox(
        this, "Unsaved changes", "\"" + m_document->title() + "\" has changes that are not saved.",
        false, "Discard", "Save", "Cancel");
    if (answer == saveAnswer)
        return save();
    return answer == discardAnswer;
}

bool MainWindow::mayClose()
{
    return maySpoilChanges();
}

void MainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!draggedFile(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent *event)
{
    const QString path = draggedFile(event->mimeData());
    if (path.isEmpty())
        return;
    event->acceptProposedAction();
    openFile(path);
}

} // namespace wall
