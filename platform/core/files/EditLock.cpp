#include "EditLock.h"

#include "LockFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSysInfo>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <csignal>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

#include <chrono>
#include <vector>

namespace {

using namespace std::chrono_literals;

/// Until a process that was made is the program that was to be started, and holds no files of who
/// made it any more.
constexpr std::chrono::milliseconds startingTakes = 500ms;

QString userName()
{
    for (const char *variable : {"LOGNAME", "USER", "USERNAME"}) {
        QString name = qEnvironmentVariable(variable);
        if (!name.isEmpty())
            return name;
    }
#ifdef Q_OS_UNIX
    if (const passwd *entry = getpwuid(geteuid()))
        return QString::fromLocal8Bit(entry->pw_name);
#endif
    return QString();
}

/// Tells the file under a name from any other that may come to stand there; empty if there is none.
QByteArray markOf(const QString &path)
{
#ifdef Q_OS_UNIX
    struct stat found
    {
    };
    if (stat(QFile::encodeName(path).constData(), &found) != 0)
        return {};
    return QByteArray::number(quint64(found.st_dev)) + ' ' +
           QByteArray::number(quint64(found.st_ino)) + ' ' +
           QByteArray::number(qint64(found.st_mtim.tv_sec)) + '.' +
           QByteArray::number(qint64(found.st_mtim.tv_nsec));
#else
    return QFileInfo(path).lastModified().toString(Qt::ISODateWithMs).toLatin1();
#endif
}

/// Locks whose files are gone. Giving one up would remove what stands under its name now.
std::vector<std::unique_ptr<QLockFile>> &lostLocks()
{
    static auto *const locks = new std::vector<std::unique_ptr<QLockFile>>; // never given up
    return *locks;
}

/// The lock of such a process stays where the folder takes no file by which to take it over.
bool hasEnded(const SessionOwner &owner)
{
#ifdef Q_OS_UNIX
    if (owner.host == QSysInfo::machineHostName() && owner.process > 0)
        return kill(pid_t(owner.process), 0) != 0 && errno == ESRCH;
#endif
    return false;
}

} // namespace

EditLock::EditLock() = default;

EditLock::~EditLock()
{
    release();
}

EditLock::Result EditLock::take(const QString &mappingFile)
{
    release();
    m_owner = SessionOwner();
    auto lock = std::make_unique<QLockFile>(lockFile(mappingFile));
    lock->setStaleLockTime(0);
    bool isTaken = LockFile::take(*lock, 0ms);
    if (!isTaken && lock->error() == QLockFile::LockFailedError) {
        lock->getLockInfo(&m_owner.process, &m_owner.host, &m_owner.program);
        readOwner(lock->fileName());
        if (!hasEnded(m_owner))
            return HeldByOther;
        // What it was just starting when it was killed holds its open files for a moment.
        isTaken = lock->tryLock(int(startingTakes.count()));
    }
    if (!isTaken)
        return NotWritable;
    m_owner = SessionOwner();
    m_lock = std::move(lock);
    noteSelf();
    m_mark = markOf(m_lock->fileName());
    return Taken;
}

void EditLock::release()
{
    if (m_lock && markOf(m_lock->fileName()) != m_mark)
        lostLocks().push_back(std::move(m_lock));
    m_lock.reset();
}

bool EditLock::isTaken() const
{
    return m_lock != nullptr;
}

QString EditLock::lockFile(const QString &mappingFile)
{
    const QFileInfo info(mappingFile);
    const QString path = info.canonicalFilePath();
    return (path.isEmpty() ? info.absoluteFilePath() : path) + QStringLiteral(".edit");
}

SessionOwner EditLock::self()
{
    return {userName(), QSysInfo::machineHostName(), QCoreApplication::applicationName(),
            QCoreApplication::applicationPid(), QDateTime::currentDateTimeUtc()};
}

bool EditLock::remove(const QString &mappingFile)
{
    return QFile::remove(lockFile(mappingFile));
}

/// The lock file holds process, program, host and two marks of the computer, a row each; behind
/// them comes the user's name.
void EditLock::noteSelf() const
{
    QFile file(m_lock->fileName());
    if (file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::ExistingOnly))
        file.write("user " + self().user.toUtf8() + '\n');
}

void EditLock::readOwner(const QString &lockFile)
{
    const QFileInfo info(lockFile);
    m_owner.since = info.lastModified().toUTC();
    m_owner.user = info.owner();
    QFile file(lockFile);
    if (!file.open(QIODevice::ReadOnly))
        return;
    constexpr int MaxRows = 16;
    for (int i = 0; i < MaxRows && !file.atEnd(); ++i) {
        const QByteArray row = file.readLine().trimmed();
        if (row.startsWith("user ") && row.size() > 5)
            m_owner.user = QString::fromUtf8(row.sliced(5));
    }
}
