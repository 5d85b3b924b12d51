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
#include <labelex.h>
#include <mutexbuttonex.h>
#include <nqtabwidget.h>
#include <theme.h>
#include <toolbarex.h>
#include <toolbuttonex.h>

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QMimeData>
#include <QPainter>
#include <QShortcut>
#include <QStackedWidget>
#include <QTextDocument>
#include <QTextLayout>
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
constexpr char fileSuffix[] = "wall.json";
constexpr QSize normalSize(1280, 760);
constexpr QSize smallestSize(1100, 640);
constexpr int rightAngle = 90;
constexpr int viewModeWidth = 64;
constexpr int iconSide = 20;
constexpr int messageTime = 6000; // milliseconds
constexpr int boxTextWidth = 560; // pixels

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
                          "QToolButton:pressed{background:rgb(66,145,240);}"
                          "QToolButton:checked:disabled{background:rgb(80,80,80);}");
    return button;
}

/// A picture of a command that stands back while the command is disabled.
QIcon commandIcon(const QString &name)
{
    constexpr double strength = 0.35;
    QIcon icon(":/wall/icons/" + name + ".png");
    const QList<QSize> sizes = icon.availableSizes();
    for (const QSize &size : sizes) {
        const QPixmap whole = icon.pixmap(size);
        QPixmap dim(whole.size());
        dim.setDevicePixelRatio(whole.devicePixelRatio());
        dim.fill(Qt::transparent);
        QPainter painter(&dim);
        painter.setOpacity(strength);
        painter.drawPixmap(0, 0, whole);
        painter.end();
        icon.addPixmap(dim, QIcon::Disabled);
    }
    return icon;
}

/// A text in lines that a message box has room for, as the box breaks none.
QString inLines(const QString &text)
{
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QStringList lines;
    const QStringList paragraphs = text.split('\n');
    for (const QString &paragraph : paragraphs) {
        QTextLayout layout(paragraph, QApplication::font());
        layout.setTextOption(option);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(boxTextWidth);
            lines.append(paragraph.mid(line.textStart(), line.textLength()).trimmed());
        }
        layout.endLayout();
    }
    const QString plain = lines.join('\n');
    // A name with marks such as "<b>" would be read as a rich text.
    return Qt::mightBeRichText(plain) ? plain.toHtmlEscaped().replace('\n', "<br>") : plain;
}

/// What a new project begins with: models to build of.
ProjectData newProjectData()
{
    ProjectData data;
    data.models = demoProject().models;
    return data;
}

/// The first widget on \a page that the Tab key reaches, null if there is none.
QWidget *firstFocusWidget(const QWidget *page)
{
    for (QWidget *each = page->nextInFocusChain(); page->isAncestorOf(each);
         each = each->nextInFocusChain()) {
        if ((each->focusPolicy() & Qt::TabFocus) && each->isEnabled() && each->isVisibleTo(page))
            return each;
    }
    return nullptr;
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
    m_document->reset(newProjectData(), QString());

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
    connect(m_pages->getStackWidget(), &QStackedWidget::currentChanged, this,
            &MainWindow::updateCommands);
    connect(m_document->project(), &Project::totalsChanged, this, &MainWindow::updateTotals);
    connect(m_document->project(), &Project::wasReset, this, &MainWindow::updateTotals);
    connect(m_document->undoStack(), &QUndoStack::indexChanged, this,
            [this] { showMessage(QString()); });
    m_messageTimer.setSingleShot(true);
    m_messageTimer.setInterval(messageTime);
    connect(&m_messageTimer, &QTimer::timeout, this, [this] { showMessage(QString()); });
    updateTitle();
    updateTotals();
    goToPage(0);
}

MainWindow::~MainWindow()
{
    // The views know the document, so they go first, and the document tells of its end.
    delete takeCentralWidget();
    m_document->disconnect(this);
    m_document->undoStack()->disconnect(this);
    delete m_selection;
    delete m_document;
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
            goToPage(i);
    }
}

void MainWindow::goToPage(int index)
{
    m_pages->setCurrentIndex(index);
    const QWidget *page = m_pages->widget(index);
    if (QWidget *first = page->isAncestorOf(m_view) ? m_view : firstFocusWidget(page))
        first->setFocus(Qt::ShortcutFocusReason);
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
    // Later: it comes in the middle of a click on a row, or of a drop, whose source waits for it.
    connect(start, &StartPage::openRequested, this, &MainWindow::openFile, Qt::QueuedConnection);
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
        connect(new QShortcut(keys, this), &QShortcut::activated, this, [this, i] { goToPage(i); });
    }
}

QAction *MainWindow::addCommand(const QString &text, const QString &icon, const QKeySequence &keys,
                                const std::function<void()> &run)
{
    auto *command = new QAction(text, this);
    if (!icon.isEmpty())
        command->setIcon(commandIcon(icon));
    command->setShortcut(keys);
    command->setToolTip(text + " (" + keys.toString(QKeySequence::NativeText) + ")");
    connect(command, &QAction::triggered, this, [run] { run(); });
    addAction(command);
    m_commands.append(command);
    return command;
}

QAction *MainWindow::addWallCommand(const QString &text, const QString &icon,
                                    const QKeySequence &keys, const std::function<void()> &run)
{
    QAction *command = addCommand(text, icon, keys, run);
    m_wallCommands.append(command);
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
    QAction *redo =
        addCommand("Redo", "redo", Qt::CTRL + Qt::SHIFT + Qt::Key_Z, [stack] { stack->redo(); });
    redo->setShortcuts({redo->shortcut(), Qt::CTRL + Qt::Key_Y}); // platforms differ in it
    undo->setEnabled(false);
    redo->setEnabled(false);
    connect(stack, &QUndoStack::canUndoChanged, undo, &QAction::setEnabled);
    connect(stack, &QUndoStack::canRedoChanged, redo, &QAction::setEnabled);
    addToBar(undo);
    addToBar(redo);
    m_toolBar->addSeparator();

    m_selectAll = addWallCommand("Select all cabinets", "selectall",
                                 Qt::CTRL + Qt::SHIFT + Qt::Key_A, [this] { m_view->selectAll(); });
    addToBar(m_selectAll);
    m_rotate = addWallCommand("Rotate by 90 degrees", "rotate", Qt::CTRL + Qt::Key_R,
                              [this] { rotateSelected(); });
    addToBar(m_rotate);
    m_delete = addWallCommand("Take the selected cabinets off the wall", "delete",
                              Qt::CTRL + Qt::Key_Backspace, [this] { m_view->removeSelected(); });
    addToBar(m_delete);
    m_toolBar->addSeparator();

    addToBar(addWallCommand("Show the whole wall", "fit", Qt::CTRL + Qt::Key_0,
                            [this] { m_view->zoomToFit(); }));
    const auto addSwitch = [this](const QString &text, const QString &icon,
                                  const QKeySequence &keys, bool isOn, auto setter, auto changed) {
        QAction *command = addWallCommand(text, icon, keys, [] {});
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
    addWallCommand("Zoom in", QString(), QKeySequence::ZoomIn, [this] { m_view->zoomIn(); });
    addWallCommand("Zoom out", QString(), QKeySequence::ZoomOut, [this] { m_view->zoomOut(); });
    addWallCommand("New order of a data line", QString(), Qt::CTRL + Qt::Key_L,
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
    m_viewModes = strip;
    m_toolBar->addWidget(strip, RightPos);
}

QWidget *MainWindow::createStatusLine()
{
    auto *line = new QWidget(this);
    line->setFixedHeight(6 * theme::unit);
    m_message = new LabelEx(line);
    m_message->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
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
    const bool isWallSeen = m_pages->currentWidget()->isAncestorOf(m_view);
    for (QAction *command : qAsConst(m_wallCommands))
        command->setEnabled(isWallSeen);
    m_viewModes->setVisible(isWallSeen);
    const bool hasSelection = !m_selection->isEmpty();
    m_selectAll->setEnabled(isWallSeen && m_document->project()->cabinetCount() > 0);
    m_rotate->setEnabled(isWallSeen && hasSelection);
    m_delete->setEnabled(isWallSeen && hasSelection);
    m_save->setEnabled(m_document->isModified() || m_document->filePath().isEmpty());
}

void MainWindow::updateTotals()
{
    const Totals totals = m_document->project()->totals();
    m_totals->setText(countText(totals.cabinets) + " cabinets,  " + countText(totals.pixels)
                      + " pixels,  " + weightText(totals.weight) + ",  " + powerText(totals.power));
    updateCommands();
}

void MainWindow::showMessage(const QString &message)
{
    m_message->setText(message);
    if (message.isEmpty())
        m_messageTimer.stop();
    else
        m_messageTimer.start();
}

void MainWindow::resizeEvent(QResizeEvent *event)
{
    HostFrame::resizeEvent(event);
    if (m_message)
        m_message->setText(m_message->text()); // it is cut to the room that it has now
}

void MainWindow::showShortcuts()
{
    // Short marks, as the box makes room for every letter of the text.
    QString rows;
    const auto addRow = [&rows](const QString &keys, const QString &what) {
        rows += (rows.isEmpty() ? "<tr><td width=130>" : "<tr><td>") + keys.toHtmlEscaped() + "<td>"
            + what.toHtmlEscaped();
    };
    for (const QAction *command : qAsConst(m_commands))
        addRow(command->shortcut().toString(QKeySequence::NativeText), command->text());
    addRow("Ctrl+1 to Ctrl+4", "The pages");
    addRow("Alt+1 to Alt+3", "What the colours of the cabinets mean");
    CustomMegBox::informationMessageBox(this, "Shortcuts", "<table>" + rows + "</table>", "Close");
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
    // The first one tells whether there is anything to do.
    if (count < 1 || !m_view->placeNext({senderId, portNumber}, modelId) || count == 1)
        return;
    // One step for the user, however many cabinets it places; the first one again as part of it.
    QUndoStack *stack = m_document->undoStack();
    stack->undo();
    ProgressDialog dialog("Placing a row", this);
    const Progress progress = dialog.progress();
    stack->beginMacro("Place a row");
    int placed = 0;
    while (placed < count && progress(100 * placed / count)
           && m_view->placeNext({senderId, portNumber}, modelId))
        ++placed;
    const QString reason = m_message->text();
    stack->endMacro();
    dialog.hide();
    if (placed < count)
        showMessage(reason);
}

bool MainWindow::newProject()
{
    if (!maySpoilChanges())
        return false;
    open(newProjectData(), QString());
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
    std::optional<ProjectData> data = load(path);
    const bool wasModified = m_document->isModified();
    // Only now: a file that cannot be opened is no reason to give up the open project.
    if (!data || !maySpoilChanges())
        return false;
    // What was read may have been replaced by what was just saved.
    if (wasModified && !m_document->isModified()
        && QFileInfo(path) == QFileInfo(m_document->filePath()))
        data = load(path);
    if (!data)
        return false;
    open(*data, QFileInfo(path).absoluteFilePath());
    m_recent->add(path);
    return true;
}

std::optional<ProjectData> MainWindow::load(const QString &path)
{
    ProgressDialog dialog("Opening " + QFileInfo(path).fileName(), this);
    const LoadResult result = loadProject(path, dialog.progress());
    dialog.hide();
    if (result.state == LoadResult::Failed)
        report("The project was not opened", result.error);
    if (result.state != LoadResult::Loaded)
        return std::nullopt;
    return result.data;
}

bool MainWindow::openDialog()
{
    QFileDialog dialog(this, "Open a project", QFileInfo(m_document->filePath()).path(),
                       QString::fromLatin1(fileFilter));
    dialog.setFileMode(QFileDialog::ExistingFile);
    return dialog.exec() == QDialog::Accepted && openFile(dialog.selectedFiles().value(0));
}

bool MainWindow::save()
{
    return m_document->filePath().isEmpty() ? saveAs() : saveFile(m_document->filePath());
}

bool MainWindow::saveAs()
{
    QFileDialog dialog(this, "Save the project", QFileInfo(m_document->filePath()).path(),
                       QString::fromLatin1(fileFilter));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setDefaultSuffix(fileSuffix); // before it asks about a file that is there
    if (m_document->filePath().isEmpty())
        dialog.selectFile(QString(m_document->title()).replace('/', '-') + '.' + fileSuffix);
    else
        dialog.selectFile(QFileInfo(m_document->filePath()).fileName());
    return dialog.exec() == QDialog::Accepted && saveFile(dialog.selectedFiles().value(0));
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
    m_document->markSaved(QFileInfo(path).absoluteFilePath());
    m_recent->add(path);
    showMessage("Saved " + QFileInfo(path).fileName());
    return true;
}

void MainWindow::open(const ProjectData &data, const QString &path)
{
    m_document->reset(data, path);
    m_view->zoomToFit(); // and fits the wall once more when it is shown
    showPage("Wall");
    showMessage(QString());
}

void MainWindow::report(const QString &title, const FileError &error)
{
    QStringList lines{QDir::toNativeSeparators(error.file), error.place, error.problem};
    lines.removeAll(QString());
    CustomMegBox::criticalMessageBox(this, title, inLines(lines.join('\n')), "OK");
}

bool MainWindow::maySpoilChanges()
{
    if (!m_document->isModified())
        return true;
    const int answer = CustomMegBox::questionMessageBox(
        this, "Unsaved changes",
        inLines("\"" + m_document->title() + "\" has changes that are not saved."), false,
        "Discard", "Save", "Cancel");
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
    // Later: the program that the file is dragged from waits for the end of the drop.
    QTimer::singleShot(0, this, [this, path] { openFile(path); });
}

} // namespace wall
