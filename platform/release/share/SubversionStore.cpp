#include "SubversionStore.h"

#include <core/files/DurableFile.h>

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
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

} // namespace

SubversionStore::SubversionStore(const QString &file,
                                 std::function<void(const ShareRepair &)> repaired)
    : m_file(file)
    , m_repaired(std::move(repaired))
    , m_client(newClient())
{
}

QString SubversionStore::workingCopy(const QString &folder)
{
    for (QDir place(folder);;) {
        if (QFileInfo(place.filePath(QStringLiteral(".svn"))).isDir())
            return place.path();
        if (!place.cdUp())
            return {};
    }
}

QString SubversionStore::root() const
{
    return workingCopy(QFileInfo(m_file).absolutePath());
}

RepositoryAnswer SubversionStore::withoutWaiting(const QStringList &arguments) const
{
    return m_client.run(arguments, m_file);
}

/// Waits while another client works.
RepositoryAnswer SubversionStore::afterOthers(const QStringList &arguments) const
{
    const QString top = root();
    const QDeadlineTimer until(othersTake);
    for (;;) {
        RepositoryAnswer answer = withoutWaiting(arguments);
        if (answer.kind != RepositoryAnswer::InUse || until.hasExpired() || !isStoreOpen(top))
            return answer;
        QThread::msleep(pause.count());
    }
}

RepositoryAnswer SubversionStore::run(const QStringList &arguments)
{
    RepositoryAnswer answer = afterOthers(arguments);
    const QString top = root();
    if (answer.kind == RepositoryAnswer::InUse && !isStoreOpen(top)) {
        const RepositoryAnswer cleaned =
            withoutWaiting({QStringLiteral("cleanup"), QStringLiteral("-q"), peg(top)});
        if (!cleaned.isDone()) {
            answer = cleaned;
            if (answer.kind == RepositoryAnswer::InUse) // by nobody
                answer.kind = RepositoryAnswer::Failed;
        } else {
            m_repaired({ShareRepair::CleanedUp, {}});
            answer = withoutWaiting(arguments);
        }
    }
    if (answer.kind == RepositoryAnswer::Damaged && makeAnew())
        answer = withoutWaiting(arguments);
    return answer;
}

/// As the store itself tells it. False if it cannot.
bool SubversionStore::originOf(const Entry &top, Origin &origin) const
{
    if (top.root.isEmpty() || !oldestRevision(top.root, origin.oldest))
        return false;
    origin.root = top.root;
    origin.url = top.url;
    origin.depth = top.depth;
    origin.checkout = top.checkout;
    return true;
}

/// For the day on which the store's database cannot be read any more.
void SubversionStore::noteOrigin() const
{
    const QString folder = root();
    const QJsonObject known = notedOrigin(folder);
    Entry top;
    // An older revision that was the oldest one does as well.
    if (!entry(folder, top).isDone() || (known.value(urlKey).toString() == top.url &&
                                         known.value(checkoutKey).toString() == top.checkout))
        return;
    Origin origin;
    if (!originOf(top, origin))
        return;
    const QJsonObject noted{{urlKey, origin.url},
                            {depthKey, origin.depth},
                            {oldestKey, origin.oldest},
                            {checkoutKey, origin.checkout}};
    // Without it all goes on as it would.
    (void)DurableFile::write(originFile(folder), QJsonDocument(noted).toJson());
}

/// At the oldest revision of the former store, and from there on: at a newer one, files that only
/// are older would look as if they had been changed back here.
bool SubversionStore::makeAnew()
{
    const QString folder = root();
    Origin top;
    Entry known;
    const bool isTold = entry(folder, known).isDone() && originOf(known, top);
    if (!isTold) {
        const QJsonObject noted = notedOrigin(folder);
        top = {folder, noted.value(urlKey).toString(), noted.value(depthKey).toString(),
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
        m_repaired({ShareRepair::StoreAnew, former});
        return true;
    }
    if (QDir(store).removeRecursively())
        QDir().rename(former, store);
    return false;
}

/// What was noted of a working copy may be older than it: then a file that only is older than the
/// newest one looks as if it had been changed. The former store has its text, if nobody did.
bool SubversionStore::bringUpToDate(const QString &root, const QString &former) const
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
            QStringLiteral("%1/pristine/%2/%3.svn-base").arg(former, name.left(2), name);
        if (QFile::exists(text) &&
            !withoutWaiting({QStringLiteral("revert"), QStringLiteral("-q"), peg(path)}).isDone())
            return false;
    }
    return status.isDone();
}

/// An update that found the damage has set the folder's revision already, but not that of files.
bool SubversionStore::oldestRevision(const QString &root, QString &oldest) const
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

RepositoryAnswer SubversionStore::entry(const QString &path, Entry &entry) const
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

} // namespace VelkRelease
