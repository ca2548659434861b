#pragma once

#include "SessionDocument.h"

#include <QDir>
#include <QProcess>
#include <QTest>

/// A file that another program works on and leaves behind.
struct RecoveryFixture : SessionDocument
{
    /// Waits until the other program has done these things.
    void start(QProcess &process, const QStringList &deeds) const
    {
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QCoreApplication::applicationFilePath(),
                      QStringList{QStringLiteral("--victim"), m_file} + deeds);
        QVERIFY(process.waitForStarted());
        QVERIFY(process.waitForReadyRead());
        QCOMPARE(process.readAllStandardOutput(), QByteArray("ready\n"));
    }
    /// Another program does these things and is killed.
    void kill(const QStringList &deeds) const
    {
        QProcess process;
        start(process, deeds);
        process.kill();
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitStatus(), QProcess::CrashExit);
    }
    [[nodiscard]] MappingDocument::OpenResult
    open(MappingDocument::Recovery recovery = MappingDocument::Recovery::Ask) const
    {
        return m_document->open({m_file, {}, {}, {}, recovery});
    }
    [[nodiscard]] QStringList names(const QString &filter) const
    {
        return QDir(m_files->path(QString())).entryList({filter}, QDir::Files, QDir::Name);
    }
};
