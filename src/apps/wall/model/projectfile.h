#ifndef WALL_PROJECTFILE_H
#define WALL_PROJECTFILE_H

#include "progress.h"
#include "values.h"

/// Project files; docs/project-file.md describes the format. The functions touch no open project
/// and keep nothing between calls, so they may run in another thread.
namespace wall
{

/// The version that is written, and the newest that is read.
constexpr int projectFileVersion = 1;

/// Why a file could not be loaded or saved.
struct FileError {
    QString file; ///< As it was given.
    QString place; ///< "senders[2].ports[3].number" or "line 3, column 14", empty for the file.
    QString problem; ///< What is wrong there.

    /// All of it in one line: file, place and problem, each followed by ": " if there is more.
    QString message() const;
};

/// What became of loading: data, or an error, or neither when it was cancelled.
struct LoadResult {
    enum State { Loaded, Cancelled, Failed };
    State state = Failed;
    ProjectData data; ///< Complete when loaded, empty otherwise.
    FileError error; ///< Set when failed.
};

/// What became of saving. When it was cancelled or failed, an older file is as it was.
struct SaveResult {
    enum State { Saved, Cancelled, Failed };
    State state = Failed;
    FileError error; ///< Set when failed.
};

/// Reads a project file.
LoadResult loadProject(const QString &file, const Progress &progress = {});
/// Reads a project from the text of a file; \a file is for the error only.
LoadResult parseProject(const QByteArray &json, const QString &file, const Progress &progress = {});
/// Writes a project file. The file that was there is replaced when the new one is complete.
SaveResult saveProject(const QString &file, const ProjectData &data, const Progress &progress = {});

} // namespace wall

#endif // WALL_PROJECTFILE_H
