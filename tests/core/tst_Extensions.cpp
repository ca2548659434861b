#include <core/plugin/Extensions.h>

#include <TestPaths.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class tst_Extensions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void folders();
    void loads();
    void leavesOut_data();
    void leavesOut();

private:
    static QString built(const QString &name)
    {
        return QStringLiteral(VELK_BINARY_DIR "/tests/core/extension/lib") + name +
               QStringLiteral(".so");
    }
    static int registrations() { return qApp->property("registrations").toInt(); }
};

void tst_Extensions::folders()
{
    const QTemporaryDir dir;
    const QStringList before = Extensions::folders();
    // Twice and one that is not there.
    qputenv("VELK_EXTENSIONS", QFile::encodeName(dir.path() + ":/nowhere/at/all:" + dir.path()));
    QCOMPARE(Extensions::folders(), before + QStringList(dir.path()));
    qunsetenv("VELK_EXTENSIONS");
}

void tst_Extensions::loads()
{
    const QTemporaryDir dir;
    QVERIFY(QFile::copy(built("goodExtension"), dir.filePath("libb.so")));
    QVERIFY(QFile(dir.filePath("README.txt")).open(QIODevice::WriteOnly));
    QCOMPARE(Extensions::load({dir.path()}), QStringList());
    QCOMPARE(registrations(), 1);
    QCOMPARE(Extensions::loaded(), QStringList(dir.filePath("libb.so")));
    // Once is enough.
    QCOMPARE(Extensions::load({dir.path(), dir.path()}), QStringList());
    QCOMPARE(registrations(), 1);
    QCOMPARE(Extensions::loaded().size(), 1);
}

void tst_Extensions::leavesOut_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("fault");
    QTest::newRow("another version")
        << built("otherVersion") << "die Erweiterung ist für Version 0.0 gemacht, dies ist ";
    QTest::newRow("no extension") << built("plainLibrary") << "VELK_EXTENSION fehlt";
    QTest::newRow("no library") << QStringLiteral(VELK_SOURCE_DIR "/README.md") << "libx.so";
}

void tst_Extensions::leavesOut()
{
    QFETCH(QString, file);
    QFETCH(QString, fault);
    const QTemporaryDir dir;
    const int before = registrations();
    const QStringList loaded = Extensions::loaded();
    QVERIFY(QFile::copy(file, dir.filePath("libx.so")));
    const QStringList faults = Extensions::load({dir.path()});
    QCOMPARE(faults.size(), 1);
    QVERIFY2(faults[0].startsWith(dir.filePath("libx.so") + ": "), qPrintable(faults[0]));
    QVERIFY2(faults[0].contains(fault), qPrintable(faults[0]));
    QCOMPARE(registrations(), before);
    QCOMPARE(Extensions::loaded(), loaded);
}

QTEST_GUILESS_MAIN(tst_Extensions)
#include "tst_Extensions.moc"
