#ifndef WALL_MAINWINDOW_H
#define WALL_MAINWINDOW_H

#include <hostframe.h>

#include <QTimer>
#include <QVector>

#include <functional>
#include <optional>

class LabelEx;
class NQTabWidget;
class QAction;
class QLabel;
class ToolBarEx;

namespace wall
{

class Document;
class LayoutView;
class RecentProjects;
class Selection;
struct FileError;
struct ProjectData;

/**
 * The configurator's window: commands above, pages behind tabs, and a line that says what goes on.
 *
 * Every command has a shortcut, which its tool tip names. F1 lists them all.
 */
class MainWindow : public HostFrame
{
    Q_OBJECT

public:
    /// \a recent stays the caller's and lives at least as long as the window.
    explicit MainWindow(RecentProjects *recent, QWidget *parent = nullptr);
    ~MainWindow() override;

    Document *document() const;
    Selection *selection() const;
    LayoutView *layoutView() const;

    /// "Start", "Wall", "Models" and "Devices".
    static QStringList pageNames();
    /// Shows the page of that name, whatever its letters' case, and gives it the focus.
    void showPage(const QString &name);
    QString currentPage() const;

public Q_SLOTS:
    /// These ask before changes that are not saved get lost, and are false if nothing was opened.
    bool newProject();
    bool openDemo();
    bool openFile(const QString &path);
    bool openDialog();
    /// Saves to the project's file, and asks for one if it has none. False if it was not saved.
    bool save();
    bool saveAs();
    bool saveFile(const QString &path);
    /// Says what was refused, or what can be done now, in the line below the pages: until the next
    /// change, and for some seconds at most.
    void showMessage(const QString &message);
    void showShortcuts();

protected:
    bool mayClose() override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QWidget *createWallPage();
    void createPages();
    void createToolBar();
    void createViewModes();
    QWidget *createStatusLine();
    void connectView();
    QAction *addCommand(const QString &text, const QString &icon, const QKeySequence &keys,
                        const std::function<void()> &run);
    /// A command that works while the wall is seen.
    QAction *addWallCommand(const QString &text, const QString &icon, const QKeySequence &keys,
                            const std::function<void()> &run);
    void addShortcutsOfPages();
    void addToBar(QAction *command);
    void goToPage(int index);
    void updateTitle();
    void updateCommands();
    void updateTotals();
    void rotateSelected();
    void placeRow(const QString &senderId, int portNumber, const QString &modelId, int count);
    /// The project in a file; what is wrong with it is told.
    std::optional<ProjectData> load(const QString &path);
    /// Asks what to do with changes that are not saved; false if the user wants to stay.
    bool maySpoilChanges();
    void open(const ProjectData &data, const QString &path);
    void report(const QString &title, const FileError &error);

    RecentProjects *m_recent;
    Document *m_document;
    Selection *m_selection;
    ToolBarEx *m_toolBar;
    NQTabWidget *m_pages;
    LayoutView *m_view;
    QVector<QAction *> m_commands;
    QVector<QAction *> m_wallCommands;
    QAction *m_save = nullptr;
    QAction *m_selectAll = nullptr;
    QAction *m_rotate = nullptr;
    QAction *m_delete = nullptr;
    QWidget *m_viewModes = nullptr;
    LabelEx *m_message = nullptr;
    QTimer m_messageTimer;
    QLabel *m_cursor = nullptr;
    QLabel *m_totals = nullptr;
};

} // namespace wall

#endif // WALL_MAINWINDOW_H
