#pragma once

#include "LinkWriter.h"

#include <geomcore/linkdb/LinkDbSettings.h>

#include <QList>

#include <atomic>
#include <functional>

namespace VelkRelease {

/// Writes the confirmed assignments of a release into a link database: each project in one
/// transaction, so that after an end at any moment each is there as a whole or as it was before. A
/// later run writes only what is not there yet. On PostgreSQL several connections write at once.
class VELKRELEASE_EXPORT ReleaseLinker
{
public:
    struct Project
    {
        QString path;
        QString version;
        qint64 links = 0;
        LinkWriter::Outcome outcome = LinkWriter::Outcome::Interrupted;
        QString problem;
    };
    struct Progress
    {
        int projects = 0;
        int totalProjects = 0;
        qint64 links = 0; ///< of the projects that are done
    };

    /// Without a password it comes from where LinkDbSettings says.
    explicit ReleaseLinker(const LinkDbSettings &settings, const QString &password = {});

    /// Compares only; the database is opened for reading.
    void setDryRun(bool dryRun) { m_dryRun = dryRun; }
    /// Connections that write at once; a file has one whatever the number.
    void setWriters(int writers) { m_writers = writers; }
    /// Called on the calling thread, at least ten times a second.
    void setObserver(std::function<void(const Progress &)> observer)
    {
        m_observer = std::move(observer);
    }

    /// False if the database cannot be opened, with problem(), or if a project could not be
    /// written. Projects that are not reached because of \a interrupted are so in the report.
    bool run(const ReleaseMappingC &release, const std::atomic<bool> &interrupted);

    /// All projects, in the order of the release.
    [[nodiscard]] const QList<Project> &projects() const { return m_projects; }
    /// Projects, and their links, that had this outcome.
    [[nodiscard]] int count(LinkWriter::Outcome outcome) const;
    [[nodiscard]] qint64 links(LinkWriter::Outcome outcome) const;
    [[nodiscard]] const QString &problem() const { return m_problem; }

private:
    class Work;

    LinkDbSettings m_settings;
    QString m_password;
    bool m_dryRun = false;
    int m_writers = 1;
    std::function<void(const Progress &)> m_observer;
    QList<Project> m_projects;
    QString m_problem;
};

} // namespace VelkRelease
