#ifndef WALL_RECENTPROJECTS_H
#define WALL_RECENTPROJECTS_H

#include <QObject>
#include <QStringList>

#include <memory>

class QSettings;

namespace wall
{

/// The project files that were opened last, newest first, each once, kept in the settings. Paths
/// are absolute. Files that are gone stay in the list until they are removed from it.
class RecentProjects : public QObject
{
    Q_OBJECT

public:
    static constexpr int maxCount = 20;

    /// Keeps the list in the user's settings of this program.
    explicit RecentProjects(QObject *parent = nullptr);
    /// Keeps the list in the INI file \a iniPath.
    explicit RecentProjects(const QString &iniPath, QObject *parent = nullptr);
    ~RecentProjects() override;

    QStringList paths() const;
    /// Puts \a path in front; the oldest ones beyond maxCount fall out. An empty path is ignored.
    void add(const QString &path);
    /// Takes \a path off the list; the file stays.
    void remove(const QString &path);

Q_SIGNALS:
    /// The order changed, or a path came.
    void changed();
    /// The path that was at \a index is off the list.
    void removed(int index);

private:
    RecentProjects(std::unique_ptr<QSettings> settings, QObject *parent);
    void save();

    std::unique_ptr<QSettings> m_settings;
    QStringList m_paths;
};

} // namespace wall

#endif // WALL_RECENTPROJECTS_H
