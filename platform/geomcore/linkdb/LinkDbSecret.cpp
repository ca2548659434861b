#include "LinkDbSecret.h"

#include "LinkDbSettings.h"

#include <QProcess>
#include <QStandardPaths>

namespace {

/// The user may be asked to unlock the store.
constexpr int secretMs = 60'000;

} // namespace

QString LinkDbSecret::find(const LinkDbSettings &settings, const QString &user)
{
    const QString tool = QStandardPaths::findExecutable(QStringLiteral("secret-tool"));
    if (tool.isEmpty())
        return {};
    // A socket is on this computer.
    const bool isHere = settings.host.isEmpty() || settings.host.startsWith(u'/');
    QProcess process;
    process.start(tool, {QStringLiteral("lookup"), QStringLiteral("protocol"),
                         QStringLiteral("postgresql"), QStringLiteral("server"),
                         isHere ? QStringLiteral("localhost") : settings.host,
                         QStringLiteral("user"), user});
    process.closeWriteChannel();
    if (!process.waitForFinished(secretMs)) {
        process.kill();
        process.waitForFinished();
        return {};
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return {};
    QString secret = QString::fromUtf8(process.readAllStandardOutput());
    if (secret.endsWith(u'\n'))
        secret.chop(1);
    return secret.isEmpty() ? QString() : secret;
}
