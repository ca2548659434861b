#include "SubversionServer.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QThread>

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

sockaddr_in loopback(quint16 port)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(port);
    return address;
}

quint16 freePort()
{
    const int socket = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address = loopback(0);
    socklen_t size = sizeof address;
    auto *general = reinterpret_cast<sockaddr *>(&address);
    const bool bound =
        ::bind(socket, general, size) == 0 && ::getsockname(socket, general, &size) == 0;
    ::close(socket);
    return bound ? ntohs(address.sin_port) : quint16(0);
}

bool answers(quint16 port)
{
    const int socket = ::socket(AF_INET, SOCK_STREAM, 0);
    const sockaddr_in address = loopback(port);
    const bool connected =
        ::connect(socket, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
    ::close(socket);
    return connected;
}

} // namespace

SubversionServer::SubversionServer()
{
    const QString repository = m_directory.filePath("repository");
    if (!run("svnadmin", {"create", repository}))
        return;
    (void)write(repository + "/conf/svnserve.conf", "[general]\nanon-access = write\n");
    const QString files = "file://" + repository;
    run("svn", {"mkdir", "--parents", "-m", "begin", files + "/trunk/catalog"});
}

bool SubversionServer::checkOut(const QString &copy)
{
    return QDir(copy).exists() ||
           run("svn", {"checkout", "-q", "file://" + repository() + "/trunk/catalog", copy});
}

SubversionServer::~SubversionServer()
{
    stop();
}

QString SubversionServer::url() const
{
    return QStringLiteral("svn://127.0.0.1:%1").arg(m_port);
}

bool SubversionServer::commit(const QString &directory)
{
    const QString copy = m_directory.filePath("copy");
    if (!checkOut(copy))
        return false;
    QDirIterator files(directory, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString from = files.next();
        const QString to = copy + u'/' + QDir(directory).relativeFilePath(from);
        QDir().mkpath(QFileInfo(to).path());
        QFile::remove(to);
        if (!QFile::copy(from, to)) {
            m_problem = to;
            return false;
        }
    }
    return run("svn", {"add", "-q", "--force", copy}) &&
           run("svn", {"commit", "-q", "-m", "next", copy});
}

bool SubversionServer::commitLink(const QString &name, const QString &target)
{
    const QString copy = m_directory.filePath("copy");
    return checkOut(copy) && QFile::link(target, copy + u'/' + name) &&
           run("svn", {"add", "-q", copy + u'/' + name}) &&
           run("svn", {"commit", "-q", "-m", "link", copy});
}

bool SubversionServer::remove(const QString &name)
{
    const QString copy = m_directory.filePath("copy");
    return checkOut(copy) && run("svn", {"update", "-q", copy}) &&
           run("svn", {"remove", "-q", copy + u'/' + name + u'@'}) &&
           run("svn", {"commit", "-q", "-m", "gone", copy});
}

bool SubversionServer::demandLogin(const QString &user, const QString &password)
{
    const QString conf = m_directory.filePath("repository/conf/");
    return write(conf + "passwd", "[users]\n" + user.toUtf8() + " = " + password.toUtf8() + '\n') &&
           write(conf + "svnserve.conf", "[general]\nanon-access = none\nauth-access = read\n"
                                         "password-db = passwd\nrealm = catalogs\n");
}

bool SubversionServer::start()
{
    if (!m_port)
        m_port = freePort();
    m_server.setStandardOutputFile(QProcess::nullDevice());
    m_server.setStandardErrorFile(QProcess::nullDevice());
    m_server.start("svnserve",
                   {"--daemon", "--foreground", "--listen-host", "127.0.0.1", "--listen-port",
                    QString::number(m_port), "--root", m_directory.filePath("repository")});
    if (!m_server.waitForStarted()) {
        m_problem = "svnserve: " + m_server.errorString();
        return false;
    }
    for (int attempt = 0; attempt < 500 && m_server.state() == QProcess::Running; ++attempt) {
        if (answers(m_port))
            return true;
        QThread::msleep(20);
    }
    m_problem = "svnserve does not answer";
    return false;
}

void SubversionServer::stop()
{
    if (m_server.state() == QProcess::NotRunning)
        return;
    m_server.kill();
    m_server.waitForFinished();
}

bool SubversionServer::run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LC_ALL", "C.UTF-8");
    environment.insert("HOME", m_directory.path()); // nobody's own settings
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (process.waitForFinished() && process.exitCode() == 0 &&
        process.exitStatus() == QProcess::NormalExit)
        return true;
    m_problem = program + ' ' + arguments.join(' ') + ": " + process.errorString() + '\n' +
                QString::fromUtf8(process.readAll());
    return false;
}

bool SubversionServer::write(const QString &name, const QByteArray &content)
{
    QFile file(name);
    if (file.open(QIODevice::WriteOnly) && file.write(content) == content.size())
        return true;
    m_problem = name + ": " + file.errorString();
    return false;
}
