#include "../support/SizeLimit.h"
#include "AsNobody.h"
#include "SessionFixture.h"

#include <core/files/EditLock.h>
#include <workbench/session/document/CatalogRootMemory.h>

#include <QCoreApplication>
#include <QFile>
#include <QSettings>
#include <QSysInfo>
#include <QTest>

class tst_EditLock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takenOnce();
    void goesWithItsOwner();
    void leavesTheLockOfAnotherAlone();
    void ofAnotherComputer();
    void ofADeadProcess();
    void ofADeadProcessOnAFullDisk();
    void withoutWriteRights();
    void ownersText_data();
    void ownersText();
    void rootsAreRemembered();
    void oldRootsAreForgotten();
};

void tst_EditLock::takenOnce()
{
    const SessionFixture files;
    const QString file = files.write();
    EditLock lock;
    QVERIFY(!lock.isTaken());
    QCOMPARE(lock.take(file), EditLock::Taken);
    QVERIFY(lock.isTaken());
    EditLock other;
    QCOMPARE(other.take(file), EditLock::HeldByOther);
    QVERIFY(!other.isTaken());
    const SessionOwner self = EditLock::self();
    QCOMPARE(other.owner().user, self.user);
    QCOMPARE(other.owner().host, self.host);
    QCOMPARE(other.owner().process, self.process);
    QVERIFY(other.owner().since.isValid());
    QVERIFY(qAbs(other.owner().since.secsTo(QDateTime::currentDateTimeUtc())) < 3600);
    // Another file is nobody's.
    QCOMPARE(other.take(files.path(QStringLiteral("other.json"))), EditLock::Taken);
}

void tst_EditLock::goesWithItsOwner()
{
    const SessionFixture files;
    const QString file = files.write();
    {
        EditLock lock;
        QCOMPARE(lock.take(file), EditLock::Taken);
        QCOMPARE(lock.take(file), EditLock::Taken);
        QVERIFY(QFile::exists(EditLock::lockFile(file)));
    }
    QVERIFY(!QFile::exists(EditLock::lockFile(file)));
}

/// Whoever finds no lock file may edit, though ours was only deleted.
void tst_EditLock::leavesTheLockOfAnotherAlone()
{
    const SessionFixture files;
    const QString file = files.write();
    {
        EditLock lock;
        QCOMPARE(lock.take(file), EditLock::Taken);
        QVERIFY(QFile::remove(EditLock::lockFile(file)));
        EditLock other;
        QCOMPARE(other.take(file), EditLock::Taken);
        QCOMPARE(lock.take(file), EditLock::HeldByOther);
        QVERIFY(!lock.isTaken());
        QVERIFY(QFile::exists(EditLock::lockFile(file)));
    }
    EditLock lock;
    QCOMPARE(lock.take(file), EditLock::Taken);
    QVERIFY(QFile::remove(EditLock::lockFile(file)));
    QCOMPARE(lock.take(file), EditLock::Taken);
    QVERIFY(QFile::exists(EditLock::lockFile(file)));
}

void tst_EditLock::ofAnotherComputer()
{
    const SessionFixture files;
    const QString file = files.write();
    SessionFixture::setContent(EditLock::lockFile(file),
                               "4711\nvelkworkbench\nws12\nabc\ndef\nuser Änne\n");
    // However old it is: nobody here can tell whether its owner still works.
    QFile held(EditLock::lockFile(file));
    QVERIFY(held.open(QIODevice::ReadWrite));
    QVERIFY(held.setFileTime(QDateTime::currentDateTimeUtc().addDays(-2),
                             QFileDevice::FileModificationTime));
    held.close();
    EditLock lock;
    QCOMPARE(lock.take(file), EditLock::HeldByOther);
    QCOMPARE(lock.owner().user, QStringLiteral("Änne"));
    QCOMPARE(lock.owner().host, QStringLiteral("ws12"));
    QCOMPARE(lock.owner().program, QStringLiteral("velkworkbench"));
    QCOMPARE(lock.owner().process, 4711);
    QCOMPARE(ownerText(lock.owner()), QStringLiteral("Änne an ws12 (Prozess 4711)"));
    QVERIFY(EditLock::remove(file));
    QCOMPARE(lock.take(file), EditLock::Taken);
}

void tst_EditLock::ofADeadProcess()
{
    const SessionFixture files;
    const QString file = files.write();
    // Process numbers end far below this one.
    SessionFixture::setContent(EditLock::lockFile(file), "2000000000\nvelkworkbench\n" +
                                                             QSysInfo::machineHostName().toUtf8() +
                                                             '\n');
    EditLock lock;
    QCOMPARE(lock.take(file), EditLock::Taken);
}

/// Nobody edits the file, and nobody can: that is no lock of another.
void tst_EditLock::ofADeadProcessOnAFullDisk()
{
    const SessionFixture files;
    const QString file = files.write();
    const QByteArray host = QSysInfo::machineHostName().toUtf8();
    for (const auto &[owner, expected] :
         {std::pair(QByteArray("2000000000\nvelkworkbench\n") + host, EditLock::NotWritable),
          std::pair(QByteArray("2000000000\nvelkworkbench\nws12"), EditLock::HeldByOther),
          std::pair(QByteArray("1\nvelkworkbench\n") + host, EditLock::HeldByOther)}) {
        SessionFixture::setContent(EditLock::lockFile(file), owner + '\n');
        const SizeLimit full(0);
        EditLock lock;
        QCOMPARE(lock.take(file), expected);
        QVERIFY(!lock.isTaken());
    }
}

void tst_EditLock::withoutWriteRights()
{
    const SessionFixture files;
    const QString file = files.write();
    QFile::setPermissions(files.path(QString()), QFile::Permissions(0x5555));
    {
        const AsNobody nobody;
        QVERIFY(!nobody.failed());
        EditLock lock;
        QCOMPARE(lock.take(file), EditLock::NotWritable);
        QVERIFY(!lock.isTaken());
    }
    QFile::setPermissions(files.path(QString()), QFile::Permissions(0x7755));
}

void tst_EditLock::ownersText_data()
{
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("host");
    QTest::addColumn<qint64>("process");
    QTest::addColumn<QString>("text");
    const QString anna = QStringLiteral("anna");
    const QString host = QStringLiteral("ws12");
    QTest::newRow("all") << anna << host << qint64(7) << QStringLiteral("anna an ws12 (Prozess 7)");
    QTest::newRow("no process") << anna << host << qint64(0) << QStringLiteral("anna an ws12");
    QTest::newRow("no user") << QString() << host << qint64(7)
                             << QStringLiteral("ws12 (Prozess 7)");
    QTest::newRow("no host") << anna << QString() << qint64(0) << anna;
    QTest::newRow("only process") << QString() << QString() << qint64(7)
                                  << QStringLiteral("(Prozess 7)");
    QTest::newRow("nothing") << QString() << QString() << qint64(0) << QString();
}

void tst_EditLock::ownersText()
{
    QFETCH(QString, user);
    QFETCH(QString, host);
    QFETCH(qint64, process);
    QFETCH(QString, text);
    SessionOwner owner;
    owner.user = user;
    owner.host = host;
    owner.process = process;
    QCOMPARE(ownerText(owner), text);
}

void tst_EditLock::rootsAreRemembered()
{
    const SessionFixture files;
    const QString ini = files.path(QStringLiteral("s.ini"));
    const CatalogRoots first{QStringLiteral("/a, b"), QStringLiteral("C:\\x")};
    const CatalogRoots second{QStringLiteral("/ü"), QString()};
    {
        QSettings settings(ini, QSettings::IniFormat);
        CatalogRootMemory memory(&settings);
        memory.remember(QStringLiteral("/m/1.json"), second);
        memory.remember(QStringLiteral("/m/2.json"), second);
        memory.remember(QStringLiteral("/m/1.json"), first);
    }
    QSettings settings(ini, QSettings::IniFormat);
    const CatalogRootMemory memory(&settings);
    QCOMPARE(memory.roots(QStringLiteral("/m/1.json")), first);
    QCOMPARE(memory.roots(QStringLiteral("/m/2.json")), second);
    QCOMPARE(memory.roots(QStringLiteral("/m/3.json")), CatalogRoots());
    QCOMPARE(CatalogRootMemory(nullptr).roots(QStringLiteral("/m/1.json")), CatalogRoots());
    CatalogRootMemory(nullptr).remember(QStringLiteral("/m/1.json"), first);
}

void tst_EditLock::oldRootsAreForgotten()
{
    const SessionFixture files;
    QSettings settings(files.path(QStringLiteral("s.ini")), QSettings::IniFormat);
    CatalogRootMemory memory(&settings);
    for (int i = 0; i <= 200; ++i)
        memory.remember(QStringLiteral("/%1").arg(i), {QString::number(i), QString()});
    QCOMPARE(memory.roots(QStringLiteral("/0")), CatalogRoots());
    QCOMPARE(memory.roots(QStringLiteral("/1")).source, QStringLiteral("1"));
    QCOMPARE(memory.roots(QStringLiteral("/200")).source, QStringLiteral("200"));
}

QTEST_GUILESS_MAIN(tst_EditLock)

#include "tst_EditLock.moc"
