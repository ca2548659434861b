#include "RepositoryClient.h"

#include <core/progress/PProgress.h>
#include <core/text/PString.h>

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QRegularExpression>

#include <optional>
#include <utility>

#ifdef Q_OS_LINUX
#include <csignal>
#include <sys/prctl.h>
#include <unistd.h>
#endif

namespace {

constexpr int sliceMs = 50; ///< until the next look at output and cancel

/// A text or a page of the store is missing, or is another one. Some of the numbers say other
/// things, too.
bool isDamaged(const QString &errors)
{
    static const QRegularExpression marks(
        QStringLiteral("E155016|E155017|E200014|E235000|E155010: Pristine|"
                       "\\.svn/pristine/.*No such file|sqlite\\[S(11|26)\\]|"
                       "sqlite\\[S1\\]: no such table"));
    return marks.match(errors).hasMatch();
}

/// The client's errors as "svn: E170013: text", by their numbers; the texts are for people.
RepositoryAnswer::Kind kindOf(const QString &errors)
{
    static const QRegularExpression number(QStringLiteral("\\bE(\\d{6})\\b"));
    auto matches = number.globalMatch(errors);
    RepositoryAnswer::Kind kind = RepositoryAnswer::Failed;
    while (matches.hasNext()) {
        switch (matches.next().captured(1).toInt()) {
        case 160006: // no such revision
        case 160013: // no such path
        case 170000: // URL does not exist
        case 200009: // some targets do not exist
            return RepositoryAnswer::NotThere;
        case 170001: // not authorized
        case 215004: // no more credentials
            return RepositoryAnswer::LoginNeeded;
        case 155011: // the file is not the newest
        case 160028: // the same of the transaction
        case 160024: // somebody was quicker
        case 170004: // the same, of a directory
            return RepositoryAnswer::OutOfDate;
        case 155004: // locked
        case 155037: // something begun was not ended
        case 200033: // the store is being written
            return RepositoryAnswer::InUse;
        case 104:    // connection reset
        case 110:    // timed out
        case 111:    // refused
        case 113:    // no way to the host
        case 170013: // cannot connect
        case 210002: // connection closed
        case 670002: // name or service not known
        case 670003: // name resolution failed for now
            kind = RepositoryAnswer::NoServer;
            break;
        default:
            break;
        }
    }
    return kind == RepositoryAnswer::Failed && isDamaged(errors) ? RepositoryAnswer::Damaged : kind;
}

/// The password goes through the pipe: arguments can be seen by others.
QStringList loginArguments(const RepositoryLogin &login)
{
    if (login.user.isEmpty())
        return {};
    return {QStringLiteral("--username"), login.user, QStringLiteral("--password-from-stdin")};
}

RepositoryAnswer cancelled(const QString &text)
{
    return {RepositoryAnswer::Cancelled,
            PString::translate("Abgebrochen: %1", "VelkGeomCore").arg(text)};
}

} // namespace

RepositoryClient::RepositoryClient(QString program, QString configDirectory,
                                   std::chrono::milliseconds silence)
    : m_program(std::move(program))
    , m_configDirectory(std::move(configDirectory))
    , m_silence(silence)
{
}

RepositoryAnswer RepositoryClient::lastRevision(const QString &url) const
{
    return run({QStringLiteral("info"), QStringLiteral("--show-item"),
                QStringLiteral("last-changed-revision"), QStringLiteral("--no-newline"),
                url + QStringLiteral("@HEAD")},
               url);
}

RepositoryAnswer RepositoryClient::exportFiles(const QString &url, qint64 revision,
                                               const QString &directory) const
{
    const QString number = QString::number(revision);
    return run({QStringLiteral("export"), QStringLiteral("--ignore-externals"),
                QStringLiteral("--depth"), QStringLiteral("files"), QStringLiteral("-r"), number,
                url + u'@' + number, directory},
               url);
}

RepositoryAnswer RepositoryClient::list(const QString &url, qint64 revision) const
{
    const QString number = QString::number(revision);
    return run({QStringLiteral("list"), QStringLiteral("--xml"), QStringLiteral("-r"), number,
                url + u'@' + number},
               url);
}

RepositoryAnswer RepositoryClient::exportAll(const QString &url, qint64 revision,
                                             const QString &directory, const Listen &listen) const
{
    const QString number = QString::number(revision);
    return run({QStringLiteral("export"), QStringLiteral("--ignore-externals"),
                QStringLiteral("-r"), number, url + u'@' + number, directory},
               url, listen);
}

RepositoryAnswer RepositoryClient::changes(const QString &url, qint64 from, qint64 to) const
{
    return run({QStringLiteral("diff"), QStringLiteral("--summarize"), QStringLiteral("--xml"),
                QStringLiteral("--old"), url + u'@' + QString::number(from),
                QStringLiteral("--new"), url + u'@' + QString::number(to)},
               url);
}

RepositoryAnswer RepositoryClient::run(const QStringList &arguments, const QString &text,
                                       const Listen &listen) const
{
    std::optional<PProgress> progress;
    if (!listen && !m_goOn) {
        progress.emplace(0, 0, 1, true, true);
        progress->setText(text);
    }
    const auto goesOn = [&](QByteArray &output) {
        if (progress) {
            progress->nextStep();
            return !progress->isCanceled();
        }
        return (!m_goOn || m_goOn()) && (!listen || listen(std::exchange(output, {})));
    };
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    process.setProcessEnvironment(environment);
    QStringList all = arguments + QStringList{QStringLiteral("--non-interactive")};
    if (!m_configDirectory.isEmpty()) {
        QDir().mkpath(m_configDirectory);
        all +=
            {QStringLiteral("--no-auth-cache"), QStringLiteral("--config-dir"), m_configDirectory};
    }
#ifdef Q_OS_LINUX
    // One that lived on would be in the way of the next.
    process.setChildProcessModifier([parent = ::getpid()] {
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (::getppid() != parent) // it was killed before
            ::_exit(1);
    });
#endif
    process.start(m_program, all + loginArguments(m_login));
    if (!process.waitForStarted())
        return {RepositoryAnswer::Failed,
                PString::translate("Das Programm %1 für das Katalog-Repository kann nicht "
                                   "gestartet werden: %2",
                                   "VelkGeomCore")
                    .arg(m_program, process.errorString())};
    if (!m_login.user.isEmpty())
        process.write(m_login.password.toUtf8() + '\n');
    process.closeWriteChannel();
    QByteArray output;
    QByteArray errors;
    QElapsedTimer silence;
    silence.start();
    while (!process.waitForFinished(sliceMs) && process.state() != QProcess::NotRunning) {
        const qsizetype heard = output.size() + errors.size();
        output += process.readAllStandardOutput();
        errors += process.readAllStandardError();
        if (output.size() + errors.size() > heard)
            silence.restart();
        const bool wanted = goesOn(output);
        const bool silent = std::chrono::milliseconds(silence.elapsed()) > m_silence;
        if (!silent && wanted)
            continue;
        process.kill();
        process.waitForFinished();
        if (!silent)
            return cancelled(text);
        return {RepositoryAnswer::NoServer,
                PString::translate("Keine Antwort von %1 in %2 s", "VelkGeomCore")
                    .arg(text, QString::number(double(m_silence.count()) / 1000))};
    }
    output += process.readAllStandardOutput();
    errors += process.readAllStandardError();
    if (listen && !listen(std::exchange(output, {})))
        return cancelled(text);
    if (process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
        return {RepositoryAnswer::Done, QString::fromUtf8(output).trimmed()};
    const QString problem = QString::fromUtf8(errors).trimmed();
    return {kindOf(problem), problem.isEmpty() ? process.errorString() : problem};
}
