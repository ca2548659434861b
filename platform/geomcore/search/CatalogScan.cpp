#include "CatalogScan.h"

#include <core/parallel/WorkerPool.h>
#include <geomcore/index/CatalogEntries.h>

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <optional>

namespace {

constexpr qint64 NeverRead = 0;
/// The files of so many projects are looked at together, on all cores.
constexpr size_t LookedAtOnce = 4096;
constexpr size_t LookedInOneStep = 64;

/// The files of a project as the index has them, from a column of the query on. A name alone lies
/// beside the project.
IndexedFiles filesAt(const QSqlQuery &query, int at)
{
    const auto stamp = [&query](int column) {
        return FileStamp{query.value(column).toLongLong(), query.value(column + 1).toLongLong()};
    };
    return {{},
            stamp(at),
            query.value(at + 2).toString(),
            stamp(at + 3),
            query.value(at + 5).toString(),
            stamp(at + 6)};
}

QString nameOf(const QString &path)
{
    return path.mid(path.lastIndexOf(u'/') + 1);
}

const char *const FileColumns = "time, size, table_file, table_time, table_size, lines_file,"
                                " lines_time, lines_size";

} // namespace

CatalogScan::CatalogScan(CatalogIndexFile &file, const QString &root, std::function<bool()> goOn)
    : m_file(file)
    , m_root(root)
    , m_goOn(std::move(goOn))
{
}

QString CatalogScan::nativeOf(const QString &path) const
{
    return QDir::toNativeSeparators(path.isEmpty() ? m_root : m_root + u'/' + path);
}

bool CatalogScan::run(bool checkFiles)
{
    // Tables that lie elsewhere do not change the time of the project's directory.
    const QString elsewhere = QStringLiteral(" AND (instr(table_file, '/') > 0 OR"
                                             " instr(lines_file, '/') > 0)");
    m_keptProjects = m_file.prepared(
        QStringLiteral("SELECT id, path, ") + QLatin1String(FileColumns) +
        QStringLiteral(" FROM projects WHERE dir = ?") + (checkFiles ? QString() : elsewhere));
    if (!loadDirectories())
        return false;
    Directory root;
    const auto known = m_byPath.constFind(QString());
    if (known != m_byPath.constEnd())
        root = m_directories.value(*known);
    else if (!enter(root))
        return false;
    if (!walk(root))
        return false;
    lookAtFiles();
    m_keptProjects = QSqlQuery();
    return true;
}

bool CatalogScan::loadDirectories()
{
    QSqlQuery query = m_file.prepared(QStringLiteral("SELECT id, parent, path, time FROM dirs"));
    if (!m_file.run(query))
        return false;
    while (query.next()) {
        const Directory directory{query.value(0).toLongLong(), query.value(1).toLongLong(),
                                  query.value(2).toString(), query.value(3).toLongLong()};
        m_directories.insert(directory.id, directory);
        m_byPath.insert(directory.path, directory.id);
        if (!directory.path.isEmpty())
            m_children[directory.parent].append(directory.id);
    }
    return true;
}

bool CatalogScan::walk(const Directory &directory)
{
    if (!m_goOn()) {
        m_brokenOff = true;
        return false;
    }
    FileStamp stamp = FileStamp::of(nativeOf(directory.path));
    stamp.distrustIfYoung();
    const bool unchanged = stamp.size >= 0 && stamp.time == directory.time;
    QList<Directory> children;
    if (unchanged) {
        for (const qint64 id : m_children.value(directory.id))
            children.append(m_directories.value(id));
        if (!compareFiles(directory))
            return false;
    } else if (!readAnew(directory, stamp.size >= 0 ? stamp.time : NeverRead, children)) {
        return false;
    }
    for (const Directory &child : std::as_const(children)) {
        if (!walk(child))
            return false;
    }
    return true;
}

bool CatalogScan::readAnew(const Directory &directory, qint64 time, QList<Directory> &children)
{
    const QString native = nativeOf(directory.path);
    if (!QFileInfo(native).isReadable()) {
        m_unreadable.append(native);
        return true;
    }
    QSet<QString> projects;
    QSet<qint64> gone;
    for (const qint64 id : m_children.value(directory.id))
        gone.insert(id);
    std::vector<CatalogEntry> entries = catalogEntries(native, directory.path.isEmpty());
    std::sort(entries.begin(), entries.end(),
              [](const CatalogEntry &a, const CatalogEntry &b) { return a.name < b.name; });
    for (const CatalogEntry &entry : entries) {
        const QString path =
            directory.path.isEmpty() ? entry.name : directory.path + u'/' + entry.name;
        if (entry.isProject) {
            projects.insert(path);
            continue;
        }
        Directory child{m_byPath.value(path), directory.id, path, NeverRead};
        if (entry.isLink && !follows(nativeOf(path)))
            continue;
        if (child.id != 0)
            child = m_directories.value(child.id);
        else if (!enter(child))
            return false;
        gone.remove(child.id);
        children.append(child);
    }
    for (const qint64 id : std::as_const(gone)) {
        if (!remove(id))
            return false;
    }
    m_times.insert(directory.id, time);
    return compareProjects(directory, projects);
}

bool CatalogScan::follows(const QString &link)
{
    // What lies below the root is found where it lies.
    const QString real = QFileInfo(link).canonicalFilePath();
    if (real.isEmpty() || real == m_root || real.startsWith(m_root + u'/') ||
        m_followed.contains(real))
        return false;
    m_followed.insert(real);
    return true;
}

bool CatalogScan::compareProjects(const Directory &directory, QSet<QString> found)
{
    QSqlQuery query =
        m_file.prepared(QStringLiteral("SELECT id, path, ") + QLatin1String(FileColumns) +
                        QStringLiteral(" FROM projects WHERE dir = ?"));
    query.addBindValue(directory.id);
    if (!m_file.run(query))
        return false;
    const DirectoryStamps stamps(nativeOf(directory.path));
    while (query.next()) {
        const qint64 id = query.value(0).toLongLong();
        const QString path = query.value(1).toString();
        if (!found.remove(path))
            m_gone.push_back(id);
        else if (!filesAt(query, 2).areUnchanged(nameOf(path), stamps))
            m_work.push_back({path, directory.id, id});
    }
    QStringList added(found.cbegin(), found.cend());
    added.sort();
    for (const QString &path : std::as_const(added))
        m_work.push_back({path, directory.id, 0});
    return true;
}

bool CatalogScan::compareFiles(const Directory &directory)
{
    m_keptProjects.bindValue(0, directory.id);
    if (!m_file.run(m_keptProjects))
        return false;
    const QString native = nativeOf(directory.path);
    while (m_keptProjects.next())
        m_kept.push_back({{m_keptProjects.value(1).toString(), directory.id,
                           m_keptProjects.value(0).toLongLong()},
                          native,
                          filesAt(m_keptProjects, 2)});
    m_keptProjects.finish();
    if (m_kept.size() >= LookedAtOnce)
        lookAtFiles();
    return true;
}

// Asking for times is most of the work where nothing has changed.
void CatalogScan::lookAtFiles()
{
    std::vector<char> changed(m_kept.size(), 0);
    const auto look = [&](int step) {
        const size_t begin = size_t(step) * LookedInOneStep;
        std::optional<DirectoryStamps> stamps;
        for (size_t i = begin; i < std::min(begin + LookedInOneStep, m_kept.size()); ++i) {
            const Kept &kept = m_kept[i];
            if (!stamps || stamps->directory() != kept.directory)
                stamps.emplace(kept.directory);
            changed[i] = kept.files.areUnchanged(nameOf(kept.project.path), *stamps) ? 0 : 1;
        }
    };
    WorkerPool::instance().run(int((m_kept.size() + LookedInOneStep - 1) / LookedInOneStep), look);
    for (size_t i = 0; i < m_kept.size(); ++i) {
        if (changed[i])
            m_work.push_back(m_kept[i].project);
    }
    m_kept.clear();
}

bool CatalogScan::enter(Directory &directory)
{
    QSqlQuery query =
        m_file.prepared(QStringLiteral("INSERT INTO dirs(parent, path, time) VALUES(?, ?, 0)"));
    query.addBindValue(directory.parent);
    query.addBindValue(directory.path.isNull() ? QStringLiteral("") : directory.path);
    if (!m_file.run(query))
        return false;
    directory.id = query.lastInsertId().toLongLong();
    m_directories.insert(directory.id, directory);
    m_byPath.insert(directory.path, directory.id);
    return true;
}

bool CatalogScan::remove(qint64 directory)
{
    for (const qint64 child : m_children.value(directory)) {
        if (!remove(child))
            return false;
    }
    QSqlQuery projects = m_file.prepared(QStringLiteral("SELECT id FROM projects WHERE dir = ?"));
    projects.addBindValue(directory);
    if (!m_file.run(projects))
        return false;
    while (projects.next())
        m_gone.push_back(projects.value(0).toLongLong());
    QSqlQuery query = m_file.prepared(QStringLiteral("DELETE FROM dirs WHERE id = ?"));
    query.addBindValue(directory);
    return m_file.run(query);
}

bool CatalogScan::keepTimes()
{
    QSqlQuery query = m_file.prepared(QStringLiteral("UPDATE dirs SET time = ? WHERE id = ?"));
    for (auto time = m_times.cbegin(); time != m_times.cend(); ++time) {
        query.bindValue(0, *time);
        query.bindValue(1, time.key());
        if (!m_file.run(query))
            return false;
    }
    return true;
}

QList<qint64> CatalogScan::chainOf(qint64 directory) const
{
    QList<qint64> chain;
    for (qint64 id = directory; id != 0; id = m_directories.value(id).parent)
        chain.append(id);
    return chain;
}
