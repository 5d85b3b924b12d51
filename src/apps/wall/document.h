#ifndef WALL_DOCUMENT_H
#define WALL_DOCUMENT_H

#include "model/project.h"

#include <QObject>
#include <QString>

class QUndoCommand;
class QUndoStack;

namespace wall
{

/// The open project with its undo history and the file that it belongs to.
class Document : public QObject
{
    Q_OBJECT

public:
    explicit Document(QObject *parent = nullptr);
    ~Document() override;

    Project *project() const;
    QUndoStack *undoStack() const;
    /// Does \a command and remembers it; the stack owns it.
    void push(QUndoCommand *command);

    /// Where the project is saved, empty if it never was.
    QString filePath() const;
    /// The file's name, or what the project is called while it has none.
    QString title() const;
    bool isModified() const;

    /// Puts another project in the place of the open one, and forgets the history.
    void reset(const ProjectData &data, const QString &filePath);
    /// Takes note that the project was saved as it is.
    void markSaved(const QString &filePath);

Q_SIGNALS:
    /// The file, the title or the modified state changed.
    void titleChanged();

private:
    Project *m_project;
    QUndoStack *m_undoStack;
    QString m_filePath;
};

} // namespace wall

#endif // WALL_DOCUMENT_H
