#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

/// A Subversion repository served on a port of the loopback device, in a folder of its own. Every
/// step that fails leaves its reason in problem().
class SubversionServer
{
public:
    SubversionServer();
    ~SubversionServer();
    SubversionServer(const SubversionServer &) = delete;
    SubversionServer &operator=(const SubversionServer &) = delete;

    [[nodiscard]] const QString &problem() const { return m_problem; }
    /// "svn://127.0.0.1:PORT"
    [[nodiscard]] QString url() const;
    [[nodiscard]] QString repository() const { return m_directory.filePath("repository"); }

    /// Makes the content of a directory that of "trunk/catalog" in a new revision, as far as files
    /// are new or differ.
    bool commit(const QString &directory);
    /// Takes a file or directory out in a new revision.
    bool remove(const QString &name);
    /// Adds an entry that becomes a link to \a target in an export.
    bool commitLink(const QString &name, const QString &target);
    /// Nobody may read any more but this one. Takes effect at once.
    bool demandLogin(const QString &user, const QString &password);

    bool start();
    void stop();

private:
    /// Only for those who work on it.
    bool checkOut(const QString &copy);
    bool run(const QString &program, const QStringList &arguments);
    bool write(const QString &file, const QByteArray &content);

    QTemporaryDir m_directory;
    QProcess m_server;
    QString m_problem;
    quint16 m_port = 0;
};
