#ifndef WALL_STARTPAGE_H
#define WALL_STARTPAGE_H

#include <QWidget>

class CustomListWidgetItem;
class ListWidgetEx;
class QLabel;
class QStackedWidget;

namespace wall
{

class RecentProjects;

/**
 * What the program begins with: new, open and demo project, and the projects that were opened last.
 *
 * The page only asks; the window opens. A press on a recent project, or Return on the current one,
 * asks to open it, also when its file is missing, which a warning tells beforehand. Its trash
 * button, or Delete, takes it off the list. A project file can be dropped anywhere on the page.
 */
class StartPage : public QWidget
{
    Q_OBJECT

public:
    /// \a recent stays the caller's and lives at least as long as the page.
    explicit StartPage(RecentProjects *recent, QWidget *parent = nullptr);

Q_SIGNALS:
    /// The project file \a path is to be opened.
    void openRequested(const QString &path);
    void newRequested();
    /// The user wants to choose a file to open.
    void openDialogRequested();
    void demoRequested();

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QWidget *makeCommands();
    QWidget *makeRecent();
    void fillList();
    void removeRow(int index);
    void showListOrHint();
    /// Marks the rows whose files are not there at the moment.
    void markMissing();
    CustomListWidgetItem *rowAt(int index) const;
    void setDropShown(bool isShown);

    RecentProjects *m_recent;
    ListWidgetEx *m_list = nullptr;
    QLabel *m_hint = nullptr;
    QStackedWidget *m_stack = nullptr;
    bool m_isDropShown = false;
};

} // namespace wall

#endif // WALL_STARTPAGE_H
