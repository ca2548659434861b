#include "SubversionPlace.h"

#include <core/files/DurableFile.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <chrono>

namespace VelkRelease {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds silence = 60s;

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
    case RepositoryAnswer::Failed:
        break;
    }
    return {ShareAnswer::NotWritable, answer.text};
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
    for (QDir place(folder);;) {
        if (QFileInfo(place.filePath(QStringLiteral(".svn"))).isDir())
            return true;
        if (!place.cdUp())
            return false;
    }
}

RepositoryAnswer SubversionPlace::svn(const QStringList &arguments) const
{
    return m_client.run(arguments, file());
}

ShareAnswer SubversionPlace::takeBack() const
{
    const RepositoryAnswer status =
        svn({QStringLiteral("status"), QStringLiteral("-q"), peg(file())});
    if (!status.isDone() || status.text.isEmpty())
        return answerOf(status);
    if (QFileInfo::exists(file())) {
        QString error;
        if (!DurableFile::copy(
                file(), DurableFile::stampedName(file(), QStringLiteral("uncommitted")), &error))
            return {ShareAnswer::NotWritable, error};
    }
    ShareAnswer answer = answerOf(svn({QStringLiteral("revert"), peg(file())}));
    // One that was to be new is not known any more, and stands in the way of another's.
    if (answer.isDone() && revision().isEmpty())
        QFile::remove(file());
    return answer;
}

QString SubversionPlace::revision() const
{
    const RepositoryAnswer answer =
        svn({QStringLiteral("info"), QStringLiteral("--show-item"),
             QStringLiteral("last-changed-revision"), QStringLiteral("--no-newline"), peg(file())});
    return answer.isDone() ? answer.text : QString();
}

ShareAnswer SubversionPlace::fetch(SharedCopy &copy)
{
    copy = SharedCopy();
    const QString folder = QFileInfo(file()).path();
    if (!QFileInfo(folder).isDir())
        return {ShareAnswer::NotReachable, folder};
    if (ShareAnswer answer = takeBack(); !answer.isDone())
        return answer;
    if (const RepositoryAnswer answer =
            svn({QStringLiteral("update"), QStringLiteral("-q"), peg(folder)});
        !answer.isDone())
        return {ShareAnswer::NotReachable, answer.text};
    copy.revision = revision();
    if (copy.revision.isEmpty())
        return {};
    ShareAnswer answer = read(file(), copy.bytes);
    copy.exists = answer.isDone();
    return answer;
}

ShareAnswer SubversionPlace::commit(const QStringList &files, const QString &message) const
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
    SharedCopy there;
    if (ShareAnswer answer = fetch(there); !answer.isDone())
        return answer;
    if (there.revision != expected)
        return there.exists ? ShareAnswer{ShareAnswer::NewerThere, {}}
                            : ShareAnswer{ShareAnswer::NotReachable, file()};
    QString error;
    if (!DurableFile::write(file(), bytes, &error))
        return {ShareAnswer::NotWritable, error};
    ShareAnswer answer;
    if (!there.exists)
        answer = answerOf(svn({QStringLiteral("add"), QStringLiteral("-q"), peg(file())}));
    if (answer.isDone())
        answer = commit({file()}, message);
    if (!answer.isDone()) {
        const RepositoryAnswer reverted =
            svn({QStringLiteral("revert"), QStringLiteral("-q"), peg(file())});
        if (reverted.isDone() && !there.exists)
            QFile::remove(file());
        return answer;
    }
    newRevision = revision();
    return {};
}

ShareAnswer SubversionPlace::writeNote(const QString &name, const QByteArray &bytes)
{
    const QString note = notesFolder() + u'/' + name;
    if (const RepositoryAnswer answer =
            svn({QStringLiteral("update"), QStringLiteral("-q"), peg(QFileInfo(file()).path())});
        !answer.isDone())
        return {ShareAnswer::NotReachable, answer.text};
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
