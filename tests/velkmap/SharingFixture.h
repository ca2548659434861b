#pragma once

#include "../support/SubversionServer.h"

#include <QMap>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

/// Two modellers, each with his mapping file, and the copy that they share.
class SharingFixture
{
protected:
    const QString Bolts = QStringLiteral("parts/bolts/a.prj");
    const QString Nuts = QStringLiteral("parts/nuts/n.prj");

    /// Rows: in a folder, in a repository.
    static void places();
    /// Anna has a mapping file.
    void setUp();
    /// She publishes it, Ben gets his.
    void begin();
    /// Exit status; what was said is in m_said.
    int velkmap(const QStringList &arguments);
    /// The same by a process of its own.
    int program(const QStringList &arguments);
    /// The program alone is killed, or all that it has started too, as by the failure of a machine.
    [[nodiscard]] static bool killed(const QStringList &arguments, int afterMs, bool withChildren);
    /// What the program said to have put right.
    void count(QMap<QString, int> &told) const;
    [[nodiscard]] QString mine(const QString &who) const { return m_dir->filePath(who + ".json"); }
    [[nodiscard]] QString shared(const QString &who) const;
    void decide(const QString &who, const QString &path, int line, int target) const;
    /// Negative if it is in conflict; 0: no such file, line or mapping.
    [[nodiscard]] static int lineIn(const QString &file, const QString &path, int line);
    [[nodiscard]] static QByteArray bytes(const QString &file);
    void svn(const QStringList &arguments) const;

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<SubversionServer> m_server;
    QString m_said;
};
