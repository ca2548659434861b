#include "../support/SizeLimit.h"
#include "../workbench/AsNobody.h"
#include "SharingFixture.h"

#include <core/files/EditLock.h>
#include <release/share/SharedMapping.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>

using VelkRelease::SharedMapping;

/// Shares, servers and disks that fail at any step: nothing is lost, and when the
/// cause is gone the next command goes on.
class tst_SharingFaults : public QObject, private SharingFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init() { setUp(); }
    void goneWhilePublishing_data() { places(); }
    void goneWhilePublishing();
    void fullDisk_data() { places(); }
    void fullDisk();
    void withoutRights_data();
    void withoutRights();
    void brokenOff_data() { places(); }
    void brokenOff();
    void noBase_data() { places(); }
    void noBase();
    void locksThatNameNobody();
    void anotherClientInTheWorkingCopy();
    void refusedByTheServer();
    void serverGoneAfterTheCommit();
    void unreadable();

private:
    void hook(const QString &name, const QByteArray &script) const;
};

/// A program that the repository runs at each commit.
void tst_SharingFaults::hook(const QString &name, const QByteArray &script) const
{
    QFile file(m_server->repository() + "/hooks/" + name);
    if (script.isEmpty()) {
        QVERIFY(file.remove());
        return;
    }
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("#!/bin/sh\n" + script + '\n');
    QVERIFY(file.setPermissions(QFile::Permissions(0x7755)));
}

void tst_SharingFaults::goneWhilePublishing()
{
    begin();
    decide("anna", Bolts, 1, 5);
    const QByteArray own = bytes(mine("anna"));
    const QString folder = m_dir->filePath("share");
    if (m_server)
        m_server->stop();
    else
        QVERIFY(QDir().rename(folder, folder + "-gone"));
    for (const QString command : {"publish", "update"}) {
        QCOMPARE(velkmap({command, "--mapping", mine("anna")}), 2);
        QVERIFY2(m_said.contains("cannot be reached"), qPrintable(m_said));
    }
    QCOMPARE(bytes(mine("anna")), own);
    if (m_server)
        QVERIFY(m_server->start());
    else
        QVERIFY(QDir().rename(folder + "-gone", folder));
    QCOMPARE(velkmap({"publish", "--mapping", mine("anna")}), 0);
    QCOMPARE(lineIn(shared("anna"), Bolts, 1), 5);
    // Somebody removes the shared copy: that is no empty one.
    if (!m_server) {
        QVERIFY(QFile::remove(shared("anna")));
        decide("anna", Bolts, 1, 6);
        QCOMPARE(velkmap({"publish", "--mapping", mine("anna")}), 2);
        QCOMPARE(velkmap({"update", "--mapping", mine("anna")}), 2);
        QVERIFY(!QFile::exists(shared("anna")));
    }
}

/// Whichever file is the first that finds no room.
void tst_SharingFaults::fullDisk()
{
    begin();
    decide("ben", Nuts, 1, 7);
    QCOMPARE(velkmap({"publish", "--mapping", mine("ben")}), 0);
    decide("anna", Bolts, 1, 5);
    const qint64 size = QFileInfo(mine("anna")).size();
    for (const QString command : {"update", "publish"}) {
        for (const qint64 room : {qint64(0), qint64(100), qint64(200), size - 1}) {
            {
                const SizeLimit full(room);
                QCOMPARE(velkmap({command, "--mapping", mine("anna")}), 3);
            }
            QVERIFY2(m_said.contains("cannot be written"), qPrintable(m_said));
            QCOMPARE(lineIn(mine("anna"), Bolts, 1), 5);
            QCOMPARE(lineIn(shared("ben"), Nuts, 1), 7);
        }
        QCOMPARE(velkmap({command, "--mapping", mine("anna")}), 0);
        QCOMPARE(lineIn(mine("anna"), Nuts, 1), 7);
    }
    QCOMPARE(lineIn(shared("anna"), Bolts, 1), 5);
    QCOMPARE(lineIn(shared("anna"), Nuts, 1), 7);
}

void tst_SharingFaults::withoutRights_data()
{
    QTest::addColumn<bool>("repository");
    QTest::addColumn<bool>("own");
    QTest::newRow("share") << false << false;
    QTest::newRow("own folder") << false << true;
    QTest::newRow("working copy") << true << false;
}

void tst_SharingFaults::withoutRights()
{
    QFETCH(const bool, own);
    begin();
    decide("anna", Bolts, 1, 5);
    const QString folder = own ? m_dir->path() : QFileInfo(shared("anna")).path();
    const QByteArray before = bytes(shared("anna"));
    const QFile::Permissions rights = QFile::permissions(folder);
    QFile::setPermissions(m_dir->path(), QFile::Permissions(0x7755));
    QFile::setPermissions(folder, QFile::Permissions(0x5555));
    {
        const AsNobody nobody;
        QVERIFY(!nobody.failed());
        EditLock lock; // as the commands do
        if (own)
            QCOMPARE(lock.take(mine("anna")), EditLock::NotWritable);
        SharedMapping shared(mine("anna"));
        QVERIFY(!shared.publish({}).isDone());
    }
    QFile::setPermissions(folder, rights);
    QCOMPARE(bytes(shared("anna")), before);
    QCOMPARE(velkmap({"publish", "--mapping", mine("anna")}), 0);
    QCOMPARE(lineIn(shared("anna"), Bolts, 1), 5);
}

/// It is said once, and what was not published is still the user's own.
void tst_SharingFaults::brokenOff()
{
    begin();
    decide("anna", Bolts, 1, 5);
    QFile link(SharedMapping::linkFile(mine("anna")));
    QVERIFY(link.open(QIODevice::ReadOnly));
    const QByteArray text = link.readAll().replace("{", "{\"publishing\": true,");
    link.close();
    QVERIFY(link.open(QIODevice::WriteOnly) && link.write(text) == text.size());
    link.close();
    QCOMPARE(velkmap({"share", "--mapping", mine("anna")}), 0);
    QVERIFY2(m_said.contains("the last publishing was broken off; publish again\n"),
             qPrintable(m_said));
    QVERIFY2(m_said.contains("nothing to update, something to publish"), qPrintable(m_said));
    QCOMPARE(velkmap({"share", "--mapping", mine("anna")}), 0);
    QVERIFY2(!m_said.contains("broken off"), qPrintable(m_said));
    QCOMPARE(velkmap({"publish", "--mapping", mine("anna")}), 0);
    QCOMPARE(lineIn(shared("anna"), Bolts, 1), 5);
}

/// Published, and that could not be noted: the next command finds out.
void tst_SharingFaults::noBase()
{
    begin();
    decide("anna", Bolts, 1, 5);
    const QString base = SharedMapping::baseFile(mine("anna"));
    QVERIFY(QFile::copy(base, base + ".kept"));
    // The share takes the file, the own folder takes no base any more.
    SharedMapping shared(mine("anna"));
    QVERIFY(QFile::remove(base) && QDir().mkdir(base));
    QVERIFY(!shared.publish({{}, true}).isDone());
    QVERIFY(QDir().rmdir(base) && QFile::copy(base + ".kept", base));
    QCOMPARE(lineIn(this->shared("anna"), Bolts, 1), 5);
    QCOMPARE(velkmap({"publish", "--mapping", mine("anna")}), 0);
    QVERIFY2(m_said.contains("the last publishing was broken off, but had come through"),
             qPrintable(m_said));
    QCOMPARE(velkmap({"share", "--mapping", mine("anna")}), 0);
    QVERIFY2(m_said.contains("nothing to update, nothing to publish"), qPrintable(m_said));
}

/// As of a program that was killed between making the file and writing itself into it.
void tst_SharingFaults::locksThatNameNobody()
{
    QVERIFY(QDir(m_dir->path()).mkdir("share"));
    QCOMPARE(velkmap({"share", "--mapping", mine("anna"), "--with", shared("anna")}), 0);
    for (const QString &lock : {EditLock::lockFile(mine("anna")), shared("anna") + ".lock"}) {
        decide("anna", Bolts, 1, lock.endsWith(".lock") ? 5 : 6);
        QFile file(lock);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        QCOMPARE(velkmap({"publish", "--mapping", mine("anna")}), 0);
        QVERIFY(!file.exists());
        QCOMPARE(bytes(shared("anna")), bytes(mine("anna")));
    }
    // Whoever is named holds it.
    QFile file(EditLock::lockFile(mine("anna")));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("4711\nvelkmap\nws12\n") > 0);
    file.close();
    QCOMPARE(velkmap({"publish", "--mapping", mine("anna")}), 3);
    QVERIFY(file.exists());
}

/// Its locks are left alone while it lives, and are none any more when it was killed.
void tst_SharingFaults::anotherClientInTheWorkingCopy()
{
    m_server = std::make_unique<SubversionServer>();
    QVERIFY2(m_server->start(), qPrintable(m_server->problem()));
    const QString copy = m_dir->filePath("anna-copy");
    svn({"checkout", "-q", m_server->url() + "/trunk/catalog", copy});
    QCOMPARE(velkmap({"share", "--mapping", mine("anna"), "--with", shared("anna")}), 0);
    QFile notes(copy + "/notes.txt");
    QVERIFY(notes.open(QIODevice::WriteOnly));
    notes.close();
    svn({"add", "-q", notes.fileName()});
    hook("start-commit", "sleep 60");
    QProcess other;
    other.start("svn", {"commit", "-q", "-m", "slow", notes.fileName(), "--non-interactive"});
    QVERIFY(other.waitForStarted());
    QProcess locked;
    QTRY_VERIFY((locked.start("svn", {"status", copy}), locked.waitForFinished(),
                 locked.readAll().contains("  L ")));
    decide("anna", Bolts, 1, 5);
    QCOMPARE(velkmap({"publish", "--mapping", mine("anna")}), 3);
    QVERIFY2(m_said.contains("try again"), qPrintable(m_said));
    QCOMPARE(other.state(), QProcess::Running);
    other.kill();
    QVERIFY(other.waitForFinished());
    hook("start-commit", {});
    QCOMPARE(velkmap({"publish", "--mapping", mine("anna")}), 0);
    QVERIFY2(m_said.contains("was left in the middle of something and was cleaned up"),
             qPrintable(m_said));
    QCOMPARE(lineIn(shared("anna"), Bolts, 1), 5);
}

void tst_SharingFaults::refusedByTheServer()
{
    m_server = std::make_unique<SubversionServer>();
    QVERIFY2(m_server->start(), qPrintable(m_server->problem()));
    svn({"checkout", "-q", m_server->url() + "/trunk/catalog", m_dir->filePath("anna-copy")});
    QCOMPARE(velkmap({"share", "--mapping", mine("anna"), "--with", shared("anna")}), 0);
    const QByteArray before = bytes(shared("anna"));
    decide("anna", Bolts, 1, 5);
    hook("pre-commit", "echo 'no room for today' >&2; exit 1");
    QCOMPARE(velkmap({"publish", "--mapping", mine("anna")}), 3);
    QVERIFY2(m_said.contains("no room for today"), qPrintable(m_said));
    QCOMPARE(bytes(shared("anna")), before);
    hook("pre-commit", {});
    QCOMPARE(velkmap({"publish", "--mapping", mine("anna")}), 0);
    QVERIFY2(!m_said.contains("broken off"), qPrintable(m_said));
    QCOMPARE(lineIn(shared("anna"), Bolts, 1), 5);
}

/// Nobody knows, and the next command finds out.
void tst_SharingFaults::serverGoneAfterTheCommit()
{
    m_server = std::make_unique<SubversionServer>();
    QVERIFY2(m_server->start(), qPrintable(m_server->problem()));
    svn({"checkout", "-q", m_server->url() + "/trunk/catalog", m_dir->filePath("anna-copy")});
    QCOMPARE(velkmap({"share", "--mapping", mine("anna"), "--with", shared("anna")}), 0);
    decide("anna", Bolts, 1, 5);
    hook("post-commit", "kill -9 $PPID");
    QCOMPARE(velkmap({"publish", "--mapping", mine("anna")}), 2);
    QVERIFY2(m_said.contains("cannot be reached"), qPrintable(m_said));
    hook("post-commit", {});
    m_server->stop();
    QVERIFY(m_server->start());
    QCOMPARE(velkmap({"update", "--mapping", mine("anna")}), 0);
    QVERIFY2(m_said.contains("the last publishing was broken off, but had come through"),
             qPrintable(m_said));
    QCOMPARE(lineIn(shared("anna"), Bolts, 1), 5);
    QCOMPARE(lineIn(mine("anna"), Bolts, 1), 5);
}

void tst_SharingFaults::unreadable()
{
    QVERIFY(QDir(m_dir->path()).mkdir("share"));
    QCOMPARE(velkmap({"share", "--mapping", mine("anna"), "--with", shared("anna")}), 0);
    const QByteArray own = bytes(mine("anna"));
    QFile file(shared("anna"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("<<<<<<<") == 7);
    file.close();
    QCOMPARE(velkmap({"update", "--mapping", mine("anna")}), 2);
    QVERIFY2(m_said.contains(shared("anna")), qPrintable(m_said));
    QCOMPARE(velkmap({"publish", "--mapping", mine("anna")}), 4); // unseen
    QCOMPARE(bytes(mine("anna")), own);
}

QTEST_GUILESS_MAIN(tst_SharingFaults)
#include "tst_SharingFaults.moc"
