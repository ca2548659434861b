#include "SubversionPlace.h"

#include <core/files/DurableFile.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>

namespace VelkRelease {

namespace {

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

} // namespace

SubversionPlace::SubversionPlace(const QString &file)
    : SharedPlace(file)
    , m_store(file, [this](const ShareRepair &repair) { addRepair(repair); })
{
}

bool SubversionPlace::isWorkingCopy(const QString &folder)
{
    return !SubversionStore::workingCopy(folder).isEmpty();
}

ShareAnswer SubversionPlace::revision(QString &revision)
{
    SubversionStore::Entry found;
    const RepositoryAnswer answer = m_store.entry(file(), found);
    revision = found.revision;
    return answerOf(answer);
}

ShareAnswer SubversionPlace::takeBack()
{
    const RepositoryAnswer status =
        m_store.run({QStringLiteral("status"), QStringLiteral("-q"), SubversionStore::peg(file())});
    if (!status.isDone() || status.text.isEmpty())
        return answerOf(status);
    if (QFileInfo::exists(file())) {
        const QString kept = DurableFile::stampedName(file(), QStringLiteral("uncommitted"));
        QString error;
        if (!DurableFile::copy(file(), kept, &error))
            return {ShareAnswer::NotWritable, error};
        addRepair({ShareRepair::TakenBack, kept});
    }
    if (ShareAnswer answer =
            answerOf(m_store.run({QStringLiteral("revert"), SubversionStore::peg(file())}));
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
            m_store.run({QStringLiteral("update"), QStringLiteral("-q"),
                         SubversionStore::peg(QFileInfo(file()).path())});
        !answer.isDone())
        return answerOf(answer);
    ShareAnswer answer = revision(found);
    m_isFetched = answer.isDone();
    if (m_isFetched)
        m_store.noteOrigin();
    return answer;
}

ShareAnswer SubversionPlace::commit(const QStringList &files, const QString &message)
{
    QStringList arguments{QStringLiteral("commit"), QStringLiteral("-q"), QStringLiteral("-m"),
                          message};
    for (const QString &file : files)
        arguments += SubversionStore::peg(file);
    return answerOf(m_store.run(arguments));
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
        answer = answerOf(m_store.run(
            {QStringLiteral("add"), QStringLiteral("-q"), SubversionStore::peg(file())}));
    if (answer.isDone())
        answer = commit({file()}, message);
    if (!answer.isDone()) {
        const RepositoryAnswer reverted = m_store.run(
            {QStringLiteral("revert"), QStringLiteral("-q"), SubversionStore::peg(file())});
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
    (void)m_store.run({QStringLiteral("revert"), QStringLiteral("-q"), QStringLiteral("-R"),
                       SubversionStore::peg(notesFolder())});
    return putNote(note, bytes);
}

ShareAnswer SubversionPlace::putNote(const QString &note, const QByteArray &bytes)
{
    if (const RepositoryAnswer answer =
            m_store.run({QStringLiteral("update"), QStringLiteral("-q"),
                         SubversionStore::peg(QFileInfo(file()).path())});
        !answer.isDone())
        return answerOf(answer);
    const bool isThere = QFileInfo::exists(note);
    if (bytes.isEmpty()) {
        if (!isThere)
            return {};
        ShareAnswer answer =
            answerOf(m_store.run({QStringLiteral("delete"), QStringLiteral("-q"),
                                  QStringLiteral("--force"), SubversionStore::peg(note)}));
        return answer.isDone() ? commit({note}, QStringLiteral("note")) : answer;
    }
    QString error;
    if (!QDir().mkpath(notesFolder()))
        return {ShareAnswer::NotWritable, notesFolder()};
    if (!DurableFile::write(note, bytes, &error))
        return {ShareAnswer::NotWritable, error};
    // The folder may be new, here or in the repository.
    ShareAnswer added = answerOf(
        m_store.run({QStringLiteral("add"), QStringLiteral("-q"), QStringLiteral("--force"),
                     QStringLiteral("--parents"), SubversionStore::peg(note)}));
    return added.isDone() ? commit({notesFolder()}, QStringLiteral("note")) : added;
}

} // namespace VelkRelease
