#ifndef CUSTOMLISTWIDGETITEM_H
#define CUSTOMLISTWIDGETITEM_H

#include "orvanecontrolsglobal.h"

#include <QString>
#include <QWidget>

class QHBoxLayout;
class QLabel;
class QToolButton;

/**
 * A row of a project list: a warning icon for a path that is not there, the project's display text,
 * and a trash button that is seen while the pointer is over the row.
 *
 * The row reports a left press as a request to open its project, and a click on the trash button as
 * a request to delete the row; the host decides. A press goes on to the list as well, which selects
 * the row. The row, its list included, may be deleted in both signals.
 */
class ORVANECONTROLS_EXPORT CustomListWidgetItem : public QWidget
{
    Q_OBJECT

public:
    /// Builds a row without text, path and icon, owned by \a parent.
    explicit CustomListWidgetItem(QWidget *parent = nullptr);

    /// Shows \a text as the project's name. It is clipped where the row ends.
    void setDisplayInfo(QString text);
    /// Sets the project's path, which is also the row's tool tip. \see getProjectPath()
    void setValueInfo(QString path);
    /// The project's path, empty until set. \see setValueInfo()
    QString getProjectPath() const;
    /// Shows the warning icon if \a isWarned, else none. The icon button has a frame until the
    /// first call, so call it for every row.
    void setValidIcon(bool isWarned);

Q_SIGNALS:
    /// The left mouse button went down over \a item; \a path is its project's path. Both presses of
    /// a double click count.
    void signal_notifyProjectPath(CustomListWidgetItem *item, QString path);
    /// The trash button of \a item was clicked.
    void signal_notifyDeleteItem(CustomListWidgetItem *item);

public Q_SLOTS:
    /// Emits signal_notifyDeleteItem() for this row.
    void slot_deleteItem();

protected:
    /// Emits signal_notifyProjectPath() when the left button goes down. The event then goes to the
    /// base class, if the row still exists.
    void mousePressEvent(QMouseEvent *event) override;
    /// Shows the delete button and the hand cursor.
    void enterEvent(QEvent *event) override;
    /// Hides the delete button and takes back the hand cursor.
    void leaveEvent(QEvent *event) override;

private:
    QLabel *m_textLabel = nullptr;
    QToolButton *m_deleteButton = nullptr;
    QToolButton *m_iconButton = nullptr;
    QHBoxLayout *m_layout = nullptr;
    QString m_projectPath;
};

#endif // CUSTOMLISTWIDGETITEM_H
