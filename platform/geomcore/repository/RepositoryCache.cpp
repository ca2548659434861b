#include "RepositoryCache.h"

#include <core/files/DurableFile.h>

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QUrl>
#include <QUuid>

#include <algorithm>

namespace {

/// This part of the bound is free after directories had to go.
constexpr qint64 Spared = 10;

QString hashOf(const QString &text)
{
    return QString::fromLatin1(
        QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha1).toHex());
}

void touch(const QString &name)
{
    QFile file(name);
    if (file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        file.setFileTime(QDateTime::currentDateTimeUtc(), QFileDevice::FileModificationTime);
}

} // namespace

/// One fetched directory.
struct RepositoryCache::Entry
{
    QString done;
    QString directory;
    qint64 bytes = 0;
    QDateTime used;
};

RepositoryCache::RepositoryCache(QString directory, qint64 limit)
    : m_directory(std::move(directory))
    , m_limit(limit)
{
}

QString RepositoryCache::rootOf(const QString &key, qint64 revision) const
{
    return m_directory + u'/' + key + u'/' + QString::number(revision);
}

QString RepositoryCache::keyOf(const QString &url)
{
    return hashOf(url);
}

QString RepositoryCache::folderName(const QString &catalog)
{
    const QString name = QString::fromLatin1(QUrl::toPercentEncoding(catalog, ":", "~"));
    return name.startsWith(u'.') ? QStringLiteral("%2E") + name.mid(1) : name;
}

const QString &RepositoryCache::listPlace()
{
    static const QString place = QStringLiteral(".list/");
    return place;
}

std::optional<qint64> RepositoryCache::lastRevision(const QString &key) const
{
    QFile file(m_directory + u'/' + key + QStringLiteral("/revision"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    bool isNumber = false;
    const qint64 revision = file.read(32).trimmed().toLongLong(&isNumber);
    return isNumber && revision >= 0 ? std::optional(revision) : std::nullopt;
}

void RepositoryCache::setLastRevision(const QString &key, qint64 revision) const
{
    const QString directory = m_directory + u'/' + key;
    // Without it the next start asks the server again, no more.
    if (lastRevision(key) != revision && QDir().mkpath(directory))
        (void)DurableFile::write(directory + QStringLiteral("/revision"),
                                 QByteArray::number(revision));
}

QString RepositoryCache::doneFile(const QString &key, qint64 revision, const QString &path) const
{
    return m_directory + u'/' + key + QStringLiteral("/done/") + QString::number(revision) + u'-' +
           hashOf(path);
}

bool RepositoryCache::has(const QString &key, qint64 revision, const QString &path)
{
    const QString done = doneFile(key, revision, path);
    if (!QFile::exists(done)) {
        m_seen.remove(done);
        return false;
    }
    if (!m_seen.contains(done)) {
        m_seen.insert(done);
        touch(done);
    }
    return true;
}

void RepositoryCache::forget(const QString &key, qint64 revision, const QString &path)
{
    const QString done = doneFile(key, revision, path);
    QFile::remove(done);
    m_seen.remove(done);
}

QString RepositoryCache::workDirectory(const QString &key) const
{
    const QString work = m_directory + u'/' + key + QStringLiteral("/work");
    QDir().mkpath(work);
    return work + u'/' + QUuid::createUuid().toString(QUuid::WithoutBraces);
}

bool RepositoryCache::take(const QString &key, qint64 revision, const QString &path,
                           const QString &fetched, QString &problem)
{
    const QString directory = rootOf(key, revision) + u'/' + path;
    const QString done = doneFile(key, revision, path);
    if (!QDir().mkpath(directory) || !QDir().mkpath(m_directory + u'/' + key + "/done")) {
        problem = directory;
        return false;
    }
    qint64 bytes = 0;
    QDirIterator files(fetched, QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    while (files.hasNext()) {
        const QFileInfo file(files.next());
        const qint64 size = file.size(); // before it is another place's
        const QString to = directory + u'/' + file.fileName();
        if (!DurableFile::rename(file.filePath(), to, &problem))
            return false;
        bytes += size;
    }
    QDir(fetched).removeRecursively();
    if (!DurableFile::write(done, QByteArray::number(bytes) + ' ' + path.toUtf8(), &problem))
        return false;
    m_seen.insert(done);
    if (m_size >= 0)
        m_size += bytes;
    shrink(done);
    return true;
}

QList<RepositoryCache::Entry> RepositoryCache::entries() const
{
    QList<Entry> all;
    const QStringList keys = QDir(m_directory).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &key : keys) {
        const QDir dones(m_directory + u'/' + key + QStringLiteral("/done"));
        for (const QFileInfo &info : dones.entryInfoList(QDir::Files)) {
            QFile file(info.filePath());
            if (!file.open(QIODevice::ReadOnly))
                continue;
            const QByteArray text = file.readAll();
            const qsizetype space = text.indexOf(' ');
            const QString revision = info.fileName().section(u'-', 0, 0);
            all.append({info.filePath(),
                        m_directory + u'/' + key + u'/' + revision + u'/' +
                            QString::fromUtf8(text.mid(space + 1)),
                        text.left(qMax(space, qsizetype(0))).toLongLong(), info.lastModified()});
        }
    }
    return all;
}

/// A tenth more goes than has to: counting reads a mark for each directory, which is not to happen
/// at every directory that is fetched. A directory counts as gone before its files go: who breaks
/// off leaves none that looks whole.
void RepositoryCache::shrink(const QString &kept)
{
    if (m_size >= 0 && m_size <= m_limit)
        return;
    QList<Entry> all = entries();
    m_size = 0;
    for (const Entry &entry : std::as_const(all))
        m_size += entry.bytes;
    std::sort(all.begin(), all.end(),
              [](const Entry &a, const Entry &b) { return a.used < b.used; });
    const qint64 wanted = m_size > m_limit ? m_limit - m_limit / Spared : m_limit;
    for (const Entry &entry : std::as_const(all)) {
        if (m_size <= wanted)
            return;
        if (entry.done == kept || !QFile::remove(entry.done))
            continue;
        const QDir directory(entry.directory);
        for (const QString &name : directory.entryList(QDir::Files | QDir::Hidden))
            QFile::remove(directory.filePath(name));
        (void)QDir().rmpath(entry.directory); // as far as they are empty
        m_seen.remove(entry.done);
        m_size -= entry.bytes;
    }
}
