#include "recentprojects.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

namespace wall
{

namespace
{

const QString settingsKey = QStringLiteral("recentProjects");

QString cleanPath(const QString &path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

} // namespace

RecentProjects::RecentProjects(QObject *parent)
    : RecentProjects(std::make_unique<QSettings>(), parent)
{
}

RecentProjects::RecentProjects(const QString &iniPath, QObject *parent)
    : RecentProjects(std::make_unique<QSettings>(iniPath, QSettings::IniFormat), parent)
{
}

RecentProjects::RecentProjects(std::unique_ptr<QSettings> settings, QObject *parent)
    : QObject(parent)
    , m_settings(std::move(settings))
{
    // Settings are files that people may have edited.
    const QStringList saved = m_settings->value(settingsKey).toStringList();
    for (const QString &path : saved) {
        const QString clean = path.isEmpty() ? QString() : cleanPath(path);
        if (!clean.isEmpty() && !m_paths.contains(clean) && m_paths.size() < maxCount)
            m_paths.append(clean);
    }
}

RecentProjects::~RecentProjects() = default;

QStringList RecentProjects::paths() const
{
    return m_paths;
}

void RecentProjects::add(const QString &path)
{
    if (path.isEmpty())
        return;
    const QString clean = cleanPath(path);
    if (m_paths.value(0) == clean)
        return;
    m_paths.removeAll(clean);
    m_paths.prepend(clean);
    while (m_paths.size() > maxCount)
        m_paths.removeLast();
    save();
    Q_EMIT changed();
}

void RecentProjects::remove(const QString &path)
{
    const int index = path.isEmpty() ? -1 : m_paths.indexOf(cleanPath(path));
    if (index < 0)
        return;
    m_paths.removeAt(index);
    save();
    Q_EMIT removed(index);
}

void RecentProjects::save()
{
    m_settings->setValue(settingsKey, m_paths);
}

} // namespace wall
