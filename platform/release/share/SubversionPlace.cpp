#include "SubversionPlace.h"

#include <core/files/DurableFile.h>

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLockFile>
#include <QThread>
#include <QXmlStreamReader>

#include <algorithm>
#include <chrono>

namespace VelkRelease {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds silence = 60s;
/// So long another client may work in the working copy.
constexpr std::chrono::milliseconds othersTake = 3s;
constexpr std::chrono::milliseconds pause = 200ms;

RepositoryClient newClient()
{
    return {QStringLiteral("svn"), QString(), silence};
}

ShareAnswer answerOf(const RepositoryAnswer &answer)
{
    switch (answer.kind) {
    case RepositoryAnswer::Done:
        return {};
    case RepositoryAnswer::OutOfDate:
        return {ShareAnswer::NewerThere, {}};
    case RepositoryAnswer::NotThere:
    case RepositoryAnswer::NoServer:
    case RepositoryAnswer::LoginNeeded:
    case RepositoryAnswer::Cancelled:
        return {ShareAnswer::NotReachable, answer.text};
    case RepositoryAnswer::InUse:
        return {ShareAnswer::Busy, answer.text};
    case RepositoryAnswer::Damaged:
    case RepositoryAnswer::Failed:
        break;
    }
    return {ShareAnswer::NotWritable, answer.text};
}

/// Empty if the folder is in none.
QString workingCopy(const QString &folder)
{
    for (QDir place(folder);;) {
        if (QFileInfo(place.filePath(QStringLiteral(".svn"))).isDir())
            return place.path();
        if (!place.cdUp())
            return {};
    }
}

/// A client has the store open as long as it lives; what is locked while nobody has was left. Where
/// that cannot be seen it counts as left.
bool isStoreOpen(const QString &root)
{
#ifdef Q_OS_LINUX
    const QString store = QFileInfo(root + QStringLiteral("/.svn/wc.db")).canonicalFilePath();
    const QStringList processes =
        QDir(QStringLiteral("/proc")).entryList({QStringLiteral("[0-9]*")}, QDir::Dirs);
    for (const QString &process : processes) {
        const QDir files(QStringLiteral("/proc/%1/fd").arg(process));
        const QFileInfoList open = files.entryInfoList(QDir::Files | QDir::System);
        if (std::ranges::any_of(
                open, [&](const QFileInfo &entry) { return entry.symLinkTarget() == store; }))
            return true;
    }
#else
    Q_UNUSED(root)
#endif
    return false;
}

const QString urlKey = QStringLiteral("url");
const QString depthKey = QStringLiteral("depth");
const QString oldestKey = QStringLiteral("oldest");
const QString checkoutKey = QStringLiteral("checkout");

/// Beside the store's database; the client leaves there what it does not know.
QString originFile(const QString &root)
{
    return root + QStringLiteral("/.svn/velk-origin.json");
}

QJsonObject notedOrigin(const QString &root)
{
    QFile file(originFile(root));
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object()
                                          : QJsonObject();
}

/// A name with "@" would be taken for one with a revision.
QString peg(const QString &path)
{
    return path + u'@';
}

} // namespace

SubversionPlace::SubversionPlace(const QString &file)
    : SharedPlace(file)
    , m_client(newClient())
{
}

bool SubversionPlace::isWorkingCopy(const QString &folder)
{
    return !workingCopy(folder).isEmpty();
}

RepositoryAnswer SubversionPlace::withoutWaiting(const QStringList &arguments) const
{
    return m_client.run(arguments, file());
}

/// Waits while another client works.
RepositoryAnswer SubversionPlace::afterOthers(const QStringList &arguments)
{
    const QString root = workingCopy(QFileInfo(file()).absolutePath());
    const QDeadlineTimer until(othersTake);
    for (;;) {
        RepositoryAnswer answer = withoutWaiting(arguments);
        if (answer.kind != RepositoryAnswer::InUse || until.hasExpired() || !isStoreOpen(root))
            return answer;
        QThread::msleep(pause.count());
    }
}

RepositoryAnswer SubversionPlace::svn(const QStringList &arguments)
{
    RepositoryAnswer answer = afterOthers(arguments);
    const QString root = workingCopy(QFileInfo(file()).absolutePath());
    if (answer.kind == RepositoryAnswer::InUse && !isStoreOpen(root)) {
        const RepositoryAnswer cleaned =
            withoutWaiting({QStringLiteral("cleanup"), QStringLiteral("-q"), peg(root)});
        if (!cleaned.isDone()) {
            answer = cleaned;
            if (answer.kind == RepositoryAnswer::InUse) // by nobody
                answer.kind = RepositoryAnswer::Failed;
        } else {
            addRepair({ShareRepair::CleanedUp, {}});
            answer = withoutWaiting(arguments);
        }
    }
    if (answer.kind == RepositoryAnswer::Damaged && makeStoreAnew())
        answer = withoutWaiting(arguments);
    return answer;
}

/// As the store itself tells it. False if it cannot.
bool SubversionPlace::originOf(const QString &root, Origin &origin)
{
    Entry top;
    if (!entry(root, top).isDone() || top.root.isEmpty() ||
        !oldestRevision(top.root, origin.oldest))
        return false;
    origin.root = top.root;
    origin.url = top.url;
    origin.depth = top.depth;
    origin.checkout = top.checkout;
    return true;
}

/// For the day on which the store's database cannot be read any more.
void SubversionPlace::noteOrigin()
{
    const QString root = workingCopy(QFileInfo(file()).absolutePath());
    const QJsonObject known = notedOrigin(root);
    Entry top;
    // An older revision that was the oldest one does as well.
    if (!entry(root, top).isDone() || (known.value(urlKey).toString() == top.url &&
                                       known.value(checkoutKey).toString() == top.checkout))
        return;
    Origin origin;
    if (!originOf(root, origin))
        return;
    const QJsonObject noted{{urlKey, origin.url},
                            {depthKey, origin.depth},
                            {oldestKey, origin.oldest},
                            {checkoutKey, origin.checkout}};
    // Without it all goes on as it would.
    (void)DurableFile::write(originFile(root), QJsonDocument(noted).toJson());
}

/// At the oldest revision of the former store, and from there on: at a newer one, files that only
/// are older would look as if they had been changed back here.
bool SubversionPlace::makeStoreAnew()
{
    const QString root = workingCopy(QFileInfo(file()).absolutePath());
    Origin top;
    const bool isTold = originOf(root, top);
    if (!isTold) {
        const QJsonObject noted = notedOrigin(root);
        top = {root, noted.value(urlKey).toString(), noted.value(depthKey).toString(),
               noted.value(oldestKey).toString(), noted.value(checkoutKey).toString()};
        if (top.url.isEmpty() || top.oldest.isEmpty())
            return false;
    }
    const QString store = top.root + QStringLiteral("/.svn");
    const QString former = DurableFile::stampedName(store, QStringLiteral("damaged"));
    if (!QDir().rename(store, former))
        return false;
    const QString force = QStringLiteral("--force");
    const QString quiet = QStringLiteral("-q");
    const QString at = QStringLiteral("-r");
    if (withoutWaiting({QStringLiteral("checkout"), quiet, force, QStringLiteral("--depth"),
                        top.depth, at, top.oldest, peg(top.url), top.root})
            .isDone() &&
        withoutWaiting({QStringLiteral("update"), quiet, force, at, top.checkout, peg(top.root)})
            .isDone() &&
        (isTold || bringUpToDate(top.root, former))) {
        addRepair({ShareRepair::StoreAnew, former});
        return true;
    }
    if (QDir(store).removeRecursively())
        QDir().rename(former, store);
    return false;
}

/// What was noted of a working copy may be older than it: then a file that only is older than the
/// newest one looks as if it had been changed. The former store has its text, if nobody did.
bool SubversionPlace::bringUpToDate(const QString &root, const QString &formerStore) const
{
    if (!withoutWaiting(
             {QStringLiteral("update"), QStringLiteral("-q"), QStringLiteral("--force"), peg(root)})
             .isDone())
        return false;
    const RepositoryAnswer status =
        withoutWaiting({QStringLiteral("status"), QStringLiteral("-q"), peg(root)});
    for (const QString &row : status.text.split(u'\n')) {
        constexpr int Columns = 8;
        const QString path = row.mid(Columns);
        QFile changed(path);
        QCryptographicHash hash(QCryptographicHash::Sha1); // as the store names its texts
        if (!row.startsWith(u'M') || !changed.open(QIODevice::ReadOnly) || !hash.addData(&changed))
            continue;
        const QString name = QString::fromLatin1(hash.result().toHex());
        const QString text =
            QStringLiteral("%1/pristine/%2/%3.svn-base").arg(formerStore, name.left(2), name);
        if (QFile::exists(text) &&
            !withoutWaiting({QStringLiteral("revert"), QStringLiteral("-q"), peg(path)}).isDone())
            return false;
    }
    return status.isDone();
}

/// An update that found the damage has set the folder's revision already, but not that of files.
bool SubversionPlace::oldestRevision(const QString &root, QString &oldest) const
{
    const RepositoryAnswer answer =
        withoutWaiting({QStringLiteral("info"), QStringLiteral("-R"), QStringLiteral("--show-item"),
                        QStringLiteral("revision"), peg(root)});
    qint64 least = -1;
    for (const QString &row : answer.text.split(u'\n')) {
        bool isNumber = false;
        const qint64 revision = row.section(u' ', 0, 0).toLongLong(&isNumber);
        if (isNumber && revision >= 0 && (least < 0 || revision < least)) // -1: not committed
            least = revision;
    }
    oldest = QString::number(least);
    return answer.isDone() && least >= 0;
}

RepositoryAnswer SubversionPlace::entry(const QString &path, Entry &entry)
{
    entry = Entry();
    RepositoryAnswer answer =
        afterOthers({QStringLiteral("info"), QStringLiteral("--xml"), peg(path)});
    if (answer.kind == RepositoryAnswer::NotThere)
        return {};
    QXmlStreamReader xml(answer.text);
    while (answer.isDone() && !xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QString revision = xml.attributes().value(QLatin1String("revision")).toString();
        if (xml.name() == QLatin1String("entry")) {
            entry.exists = true;
            entry.checkout = revision;
        } else if (xml.name() == QLatin1String("commit")) {
            entry.revision = revision;
        } else if (xml.name() == QLatin1String("url")) {
            entry.url = xml.readElementText();
        } else if (xml.name() == QLatin1String("wcroot-abspath")) {
            entry.root = xml.readElementText();
        } else if (xml.name() == QLatin1String("depth")) {
            entry.depth = xml.readElementText();
        }
    }
    return answer;
}

ShareAnswer SubversionPlace::revision(QString &revision)
{
    Entry found;
    const RepositoryAnswer answer = entry(file(), found);
    revision = found.revision;
    return answerOf(answer);
}

ShareAnswer SubversionPlace::takeBack()
{
    const RepositoryAnswer status =
        svn({QStringLiteral("status"), QStringLiteral("-q"), peg(file())});
    if (!status.isDone() || status.text.isEmpty())
        return answerOf(status);
    if (QFileInfo::exists(file())) {
        const QString kept = DurableFile::stampedName(file(), QStringLiteral("uncommitted"));
        QString error;
        if (!DurableFile::copy(file(), kept, &error))
            return {ShareAnswer::NotWritable, error};
        addRepair({ShareRepair::TakenBack, kept});
    }
    if (ShareAnswer answer = answerOf(svn({QStringLiteral("revert"), peg(file())}));
        !answer.isDone())
        return answer;
    // One that was to be new is not known any more, and stands in the way of another's.
    QString known;
    ShareAnswer answer = revision(known);
    if (answer.isDone() && known.isEmpty())
        QFile::remove(file());
    return answer;
}

ShareAnswer SubversionPlace::fetch(SharedCopy &copy)
{
    QLockFile lock(lockFile());
    if (ShareAnswer answer = takeLock(lock); !answer.isDone())
        return answer;
    return fetchAlone(copy);
}

ShareAnswer SubversionPlace::fetchAlone(SharedCopy &copy)
{
    copy = SharedCopy();
    if (ShareAnswer answer = fetchRevision(copy.revision);
        !answer.isDone() || copy.revision.isEmpty())
        return answer;
    ShareAnswer answer = read(file(), copy.bytes);
    copy.exists = answer.isDone();
    return answer;
}

ShareAnswer SubversionPlace::fetchRevision(QString &found)
{
    if (ShareAnswer answer = takeBack(); !answer.isDone())
        return answer;
    if (const RepositoryAnswer answer =
            svn({QStringLiteral("update"), QStringLiteral("-q"), peg(QFileInfo(file()).path())});
        !answer.isDone())
        return answerOf(answer);
    ShareAnswer answer = revision(found);
    m_isFetched = answer.isDone();
    if (m_isFetched)
        noteOrigin();
    return answer;
}

ShareAnswer SubversionPlace::commit(const QStringList &files, const QString &message)
{
    QStringList arguments{QStringLiteral("commit"), QStringLiteral("-q"), QStringLiteral("-m"),
                          message};
    for (const QString &file : files)
        arguments += peg(file);
    return answerOf(svn(arguments));
}

ShareAnswer SubversionPlace::publish(const QByteArray &bytes, const QString &expected,
                                     const QString &message, QString &newRevision)
{
    QLockFile lock(lockFile());
    if (ShareAnswer answer = takeLock(lock); !answer.isDone())
        return answer;
    // A commit onto another revision than the working copy's is refused by the repository.
    QString there;
    if (ShareAnswer answer = m_isFetched ? revision(there) : fetchRevision(there); !answer.isDone())
        return answer;
    if (there != expected)
        return there.isEmpty() ? ShareAnswer{ShareAnswer::NotReachable, file()}
                               : ShareAnswer{ShareAnswer::NewerThere, {}};
    QString error;
    if (!DurableFile::write(file(), bytes, &error))
        return {ShareAnswer::NotWritable, error};
    ShareAnswer answer;
    if (there.isEmpty())
        answer = answerOf(svn({QStringLiteral("add"), QStringLiteral("-q"), peg(file())}));
    if (answer.isDone())
        answer = commit({file()}, message);
    if (!answer.isDone()) {
        const RepositoryAnswer reverted =
            svn({QStringLiteral("revert"), QStringLiteral("-q"), peg(file())});
        if (reverted.isDone() && there.isEmpty())
            QFile::remove(file());
        return answer;
    }
    return revision(newRevision);
}

ShareAnswer SubversionPlace::writeNote(const QString &name, const QByteArray &bytes)
{
    QLockFile lock(lockFile());
    if (ShareAnswer answer = takeLock(lock); !answer.isDone())
        return answer;
    const QString note = notesFolder() + u'/' + name;
    ShareAnswer answer = putNote(note, bytes);
    if (answer.isDone() || answer.kind == ShareAnswer::NotReachable)
        return answer;
    // One that a killed program left half added or removed; only this user writes it.
    (void)svn(
        {QStringLiteral("revert"), QStringLiteral("-q"), QStringLiteral("-R"), peg(notesFolder())});
    return putNote(note, bytes);
}

ShareAnswer SubversionPlace::putNote(const QString &note, const QByteArray &bytes)
{
    if (const RepositoryAnswer answer =
            svn({QStringLiteral("update"), QStringLiteral("-q"), peg(QFileInfo(file()).path())});
        !answer.isDone())
        return answerOf(answer);
    const bool isThere = QFileInfo::exists(note);
    if (bytes.isEmpty()) {
        if (!isThere)
            return {};
        ShareAnswer answer = answerOf(svn({QStringLiteral("delete"), QStringLiteral("-q"),
                                           QStringLiteral("--force"), peg(note)}));
        return answer.isDone() ? commit({note}, QStringLiteral("note")) : answer;
    }
    QString error;
    if (!QDir().mkpath(notesFolder()))
        return {ShareAnswer::NotWritable, notesFolder()};
    if (!DurableFile::write(note, bytes, &error))
        return {ShareAnswer::NotWritable, error};
    // The folder may be new, here or in the repository.
    ShareAnswer added =
        answerOf(svn({QStringLiteral("add"), QStringLiteral("-q"), QStringLiteral("--force"),
                      QStringLiteral("--parents"), peg(note)}));
    return added.isDone() ? commit({notesFolder()}, QStringLiteral("note")) : added;
}

} // namespace VelkRelease
