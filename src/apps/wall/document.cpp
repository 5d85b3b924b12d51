#include "document.h"

#include <QFileInfo>
#include <QUndoStack>

namespace wall
{

Document::Document(QObject *parent)
    : QObject(parent)
    , m_project(new Project(this))
    , m_undoStack(new QUndoStack(this))
{
    connect(m_undoStack, &QUndoStack::cleanChanged, this, &Document::titleChanged);
    connect(m_project, &Project::nameChanged, this, &Document::titleChanged);
}

Document::~Document()
{
    m_undoStack->clear(); // commands know the project
}

Project *Document::project() const
{
    return m_project;
}

QUndoStack *Document::undoStack() const
{
    return m_undoStack;
}

void Document::push(QUndoCommand *command)
{
    m_undoStack->push(command);
}

QString Document::filePath() const
{
    return m_filePath;
}

QString Document::title() const
{
    if (!m_filePath.isEmpty())
        return QFileInfo(m_filePath).fileName();
    return m_project->name().isEmpty() ? QStringLiteral("Untitled") : m_project->name();
}

bool Document::isModified() const
{
    return !m_undoStack->isClean();
}

void Document::reset(const ProjectData &data, const QString &filePath)
{
    m_undoStack->clear();
    m_filePath = filePath;
    m_project->reset(data);
    Q_EMIT titleChanged();
}

void Document::markSaved(const QString &filePath)
{
    m_filePath = filePath;
    m_undoStack->setClean();
    Q_EMIT titleChanged();
}

} // namespace wall
