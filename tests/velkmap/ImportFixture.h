#pragma once

#include <geomcore/table/TableData.h>
#include <tools/velkmap/ImportCommand.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>

#include <memory>

/// Folder "csv" of tables to import, into the catalog "root/cat" beside it.
class ImportFixture
{
protected:
    using ExitStatus = velkmap::ExitStatus;

    /// An empty folder.
    void setUp()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_dir->path()).mkpath("csv"));
    }

    ExitStatus import(const QStringList &more = {"--date", "2026-01-31T12:00:00Z"})
    {
        m_out.clear();
        m_err.clear();
        QTextStream out(&m_out);
        QTextStream err(&m_err);
        const QStringList arguments{"--from", m_dir->filePath("csv"), "--into",
                                    m_dir->filePath("root/cat")};
        return velkmap::runImport(arguments + more, out, err);
    }
    [[nodiscard]] QString from(const QString &name) const { return m_dir->filePath("csv/" + name); }
    [[nodiscard]] QString into(const QString &name) const
    {
        return m_dir->filePath("root/cat/" + name);
    }
    [[nodiscard]] std::shared_ptr<const VKTab::TableData> table(const QString &name) const
    {
        return VKTab::TableData::read(into(name + ".json")).data;
    }
    static void writeFile(const QString &name, const QByteArray &bytes)
    {
        QVERIFY(QDir().mkpath(QFileInfo(name).path()));
        QFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), bytes.size());
    }
    [[nodiscard]] static QByteArray readFile(const QString &name)
    {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_out;
    QString m_err;
};
