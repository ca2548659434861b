#include "CatalogMirror.h"

#include "RepositoryAddress.h"
#include "RepositoryListing.h"

#include <core/files/DurableFile.h>
#include <core/files/LockFile.h>
#include <core/text/countText.h>
#include <core/text/PString.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLockFile>
#include <QUuid>

namespace {

/// Of more directories with changed files than these all of a catalog comes anew: that is one call.
constexpr qsizetype MostDirectories = 200;

RepositoryAnswer failed(const QString &text)
{
    return {RepositoryAnswer::Failed, text};
}

qint64 bytesBelow(const QString &directory)
{
    qint64 bytes = 0;
    QDirIterator files(directory, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        files.next();
        bytes += files.fileInfo().size();
    }
    return bytes;
}

qint64 sizeOf(const QString &file)
{
    const QFileInfo info(file);
    return info.isSymLink() ? 0 : info.size();
}

/// The files that a client exported, told by what it writes about them.
class ExportedFiles
{
public:
    void hear(const QByteArray &output)
    {
        m_rest += output;
        qsizetype begin = 0;
        for (qsizetype end = m_rest.indexOf('\n'); end >= 0; end = m_rest.indexOf('\n', begin)) {
            take(QString::fromUtf8(m_rest.mid(begin, end - begin)));
            begin = end + 1;
        }
        m_rest.remove(0, begin);
    }
    [[nodiscard]] qint64 bytes() const { return m_bytes; }
    void removeLinks() const
    {
        for (const QString &link : m_links)
            QFile::remove(link);
    }

private:
    void take(const QString &line)
    {
        constexpr qsizetype column = 5; // "A    PATH"
        if (!line.startsWith(u'A') || line.size() <= column)
            return;
        const QFileInfo info(line.mid(column));
        if (info.isSymLink())
            m_links.append(info.filePath());
        else if (info.isFile())
            m_bytes += info.size();
    }

    QByteArray m_rest;
    QStringList m_links;
    qint64 m_bytes = 0;
};

} // namespace

struct CatalogMirror::State
{
    QString url;
    qint64 revision = -1;
    qint64 target = -1; ///< to which it is brought; -1: all is of the revision
    qint64 bytes = 0;
};

CatalogMirror::CatalogMirror(QString directory, qint64 limit)
    : m_directory(std::move(directory))
    , m_limit(limit)
{
}

QString CatalogMirror::root() const
{
    QString path = m_directory + QStringLiteral("/catalogs");
    QDir().mkpath(path);
    return path;
}

QString CatalogMirror::copyOf(const QString &folder) const
{
    return root() + u'/' + folder;
}

QString CatalogMirror::stateFile(const QString &folder) const
{
    return m_directory + QStringLiteral("/state/") + folder;
}

std::optional<CatalogMirror::State> CatalogMirror::stateOf(const QString &folder) const
{
    QFile file(stateFile(folder));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QJsonObject object = QJsonDocument::fromJson(file.readAll()).object();
    State state;
    state.url = object.value(QLatin1String("url")).toString();
    state.revision = object.value(QLatin1String("revision")).toInteger(-1);
    state.target = object.value(QLatin1String("target")).toInteger(-1);
    state.bytes = object.value(QLatin1String("bytes")).toInteger();
    const bool isThere = state.revision >= 0 && QFileInfo(copyOf(folder)).isDir();
    return isThere ? std::optional(state) : std::nullopt;
}

bool CatalogMirror::keep(const QString &folder, const State &state, QString &problem) const
{
    QJsonObject object{{QStringLiteral("url"), state.url},
                       {QStringLiteral("revision"), state.revision},
                       {QStringLiteral("bytes"), state.bytes}};
    if (state.target >= 0)
        object.insert(QStringLiteral("target"), state.target);
    return QDir().mkpath(m_directory + QStringLiteral("/state")) &&
           DurableFile::write(stateFile(folder), QJsonDocument(object).toJson(), &problem);
}

/// Without its state a copy counts as not there: who is broken off leaves none that looks whole.
void CatalogMirror::drop(const QString &folder) const
{
    QFile::remove(stateFile(folder));
    const QString gone = workDirectory();
    if (QDir().rename(copyOf(folder), gone))
        QDir(gone).removeRecursively();
}

QStringList CatalogMirror::folders(const std::function<QString(const QString &)> &urlOf) const
{
    QStringList found;
    for (const QString &folder :
         QDir(m_directory + QStringLiteral("/state")).entryList(QDir::Files)) {
        const auto state = stateOf(folder);
        if (state && state->url == urlOf(folder))
            found.append(folder);
    }
    return found;
}

std::optional<qint64> CatalogMirror::revisionOf(const QString &folder, const QString &url) const
{
    const auto state = stateOf(folder);
    const bool isWhole = state && state->url == url && state->target < 0;
    return isWhole ? std::optional(state->revision) : std::nullopt;
}

qint64 CatalogMirror::bytesBeside(const QString &folder) const
{
    qint64 bytes = 0;
    for (const QString &other :
         QDir(m_directory + QStringLiteral("/state")).entryList(QDir::Files)) {
        const auto state = stateOf(other);
        bytes += state && other != folder ? state->bytes : 0;
    }
    return bytes;
}

QString CatalogMirror::workDirectory() const
{
    const QString work = m_directory + QStringLiteral("/work");
    QDir().mkpath(work);
    return work + u'/' + QUuid::createUuid().toString(QUuid::WithoutBraces);
}

void CatalogMirror::keepOnly(const QStringList &folders)
{
    const QStringList there =
        QDir(root()).entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot);
    QLockFile lock(m_directory + QStringLiteral("/lock"));
    lock.setStaleLockTime(0);
    if (!LockFile::take(lock, std::chrono::milliseconds(0)))
        return;
    QDir(m_directory + QStringLiteral("/work")).removeRecursively(); // of who was broken off
    for (const QString &folder : there) {
        if (!folders.contains(folder))
            drop(folder);
    }
}

RepositoryAnswer CatalogMirror::update(const Wanted &wanted, const RepositoryClient &client,
                                       const GoOn &goOn)
{
    QDir().mkpath(m_directory);
    QLockFile lock(m_directory + QStringLiteral("/lock"));
    lock.setStaleLockTime(0);
    if (!LockFile::take(lock, std::chrono::milliseconds(0)))
        return lock.error() == QLockFile::LockFailedError ? RepositoryAnswer{}
                                                          : failed(lock.fileName());
    std::optional<State> state = stateOf(wanted.folder);
    if (!state || state->url != wanted.url) {
        drop(wanted.folder);
        return fetchAll(wanted, client, goOn);
    }
    if (state->target >= 0 && state->target != wanted.revision) {
        // What was changed on the way to there might not differ from what is wanted now.
        Wanted half = wanted;
        half.revision = state->target;
        RepositoryAnswer answer = fetchChanges(half, *state, client, goOn);
        if (!answer.isDone())
            return answer;
        state = stateOf(wanted.folder);
    }
    if (!state || (state->revision == wanted.revision && state->target < 0))
        return {};
    return fetchChanges(wanted, *state, client, goOn);
}

RepositoryAnswer CatalogMirror::tooLarge(const Wanted &wanted) const
{
    drop(wanted.folder);
    return failed(PString::translate("Der Katalog %1 passt nicht in den Zwischenspeicher von %2 "
                                     "MB; die Suche kennt ihn nicht",
                                     "VelkGeomCore")
                      .arg(wanted.url, countText(m_limit >> 20)));
}

RepositoryAnswer CatalogMirror::fetchAll(const Wanted &wanted, const RepositoryClient &client,
                                         const GoOn &goOn) const
{
    const qint64 room = m_limit - bytesBeside(wanted.folder);
    const QString work = workDirectory();
    ExportedFiles files;
    const auto listen = [&](const QByteArray &output) {
        files.hear(output);
        return files.bytes() <= room && (!goOn || goOn());
    };
    RepositoryAnswer answer = client.exportAll(wanted.url, wanted.revision, work, listen);
    files.removeLinks();
    if (files.bytes() > room)
        answer = tooLarge(wanted);
    QString problem;
    if (answer.isDone()) {
        drop(wanted.folder);
        if (!QDir().rename(work, copyOf(wanted.folder)) ||
            !keep(wanted.folder, {wanted.url, wanted.revision, -1, files.bytes()}, problem))
            answer = failed(problem.isEmpty() ? copyOf(wanted.folder) : problem);
    }
    QDir(work).removeRecursively();
    return answer;
}

RepositoryAnswer CatalogMirror::fetchChanges(const Wanted &wanted, State state,
                                             const RepositoryClient &client, const GoOn &goOn) const
{
    RepositoryAnswer told = client.changes(wanted.url, state.revision, wanted.revision);
    if (told.kind == RepositoryAnswer::NotThere)
        return fetchAll(wanted, client, goOn); // the old revision is gone: another repository
    if (!told.isDone())
        return told;
    const auto changes = repositoryChangesOfXml(told.text.toUtf8(), wanted.url);
    QHash<QString, QStringList> files; // names by directory
    for (const RepositoryChange &change : changes.value_or(QList<RepositoryChange>())) {
        const qsizetype slash = change.path.lastIndexOf(u'/');
        if (!change.isDirectory && !change.isDeleted)
            files[change.path.left(qMax(slash, qsizetype(0)))].append(change.path.mid(slash + 1));
    }
    if (!changes || files.size() > MostDirectories)
        return fetchAll(wanted, client, goOn);
    QString problem;
    const bool goesOn = state.target >= 0; // who was broken off did not tell the bytes
    state.target = wanted.revision;
    if (!keep(wanted.folder, state, problem))
        return failed(problem);
    const QString copy = copyOf(wanted.folder) + u'/';
    for (const RepositoryChange &change : *changes) {
        if (!change.isDeleted)
            continue;
        if (change.isDirectory) {
            QDir(copy + change.path).removeRecursively();
        } else {
            state.bytes -= sizeOf(copy + change.path);
            QFile::remove(copy + change.path);
        }
    }
    for (const RepositoryChange &change : *changes) {
        if (change.isDirectory && !change.isDeleted)
            QDir().mkpath(copy + change.path);
    }
    for (auto directory = files.cbegin(); directory != files.cend(); ++directory) {
        const QString work = workDirectory();
        RepositoryAnswer answer = client.exportFiles(
            repositoryUrlBelow(wanted.url, directory.key()), wanted.revision, work);
        bool isMoved = true;
        for (const QString &name : answer.isDone() ? *directory : QStringList()) {
            const QString from = work + u'/' + name;
            const QString to =
                copy + (directory.key().isEmpty() ? name : directory.key() + u'/' + name);
            state.bytes -= sizeOf(to);
            if (QFileInfo(from).isSymLink() || !QFileInfo::exists(from)) {
                QFile::remove(to);
                continue;
            }
            isMoved = isMoved && QDir().mkpath(QFileInfo(to).path()) &&
                      DurableFile::rename(from, to, &problem);
            state.bytes += sizeOf(to);
        }
        QDir(work).removeRecursively();
        if (!answer.isDone())
            return answer;
        if (!isMoved)
            return failed(problem.isEmpty() ? copy : problem);
    }
    if (goesOn)
        state.bytes = bytesBelow(copy);
    if (state.bytes + bytesBeside(wanted.folder) > m_limit)
        return tooLarge(wanted);
    state.revision = wanted.revision;
    state.target = -1;
    return keep(wanted.folder, state, problem) ? RepositoryAnswer{} : failed(problem);
}
