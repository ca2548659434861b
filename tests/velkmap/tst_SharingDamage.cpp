#include "SharingFixture.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QTest>

/// Working copies of a repository that something else has written to.
class tst_SharingDamage : public QObject, private SharingFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init() { setUp(); }
    void cleanup();
    void leftInTheWorkingCopy();
    void storeDamaged_data();
    void storeDamaged();

private:
    [[nodiscard]] QStringList pristine(const QString &who) const;
    void makeWorkingCopies();
    void putBack();
    static void copyFolder(const QString &from, const QString &to);

    // What makeWorkingCopies() made: many commands of the client, alike for all kinds of damage.
    QTemporaryDir m_made;
    std::unique_ptr<QTemporaryDir> m_keptDir;
    std::unique_ptr<SubversionServer> m_keptServer;
};

void tst_SharingDamage::cleanup()
{
    if (!QDir(m_made.filePath("files")).exists() || m_keptDir)
        return;
    m_keptDir = std::move(m_dir);
    m_keptServer = std::move(m_server);
}

/// With the times of the files, which the client has noted.
void tst_SharingDamage::copyFolder(const QString &from, const QString &to)
{
    QVERIFY(QDir(to).removeRecursively());
    QCOMPARE(QProcess::execute("cp", {"-a", from, to}), 0);
}

/// Files of the client's own store.
QStringList tst_SharingDamage::pristine(const QString &who) const
{
    QStringList files;
    QDirIterator all(m_dir->filePath(who + "-copy/.svn/pristine"), QDir::Files,
                     QDirIterator::Subdirectories);
    while (all.hasNext())
        files += all.next();
    return files;
}

/// Anna shares her file; of two others beside it she has changed one and Ben the other one.
void tst_SharingDamage::makeWorkingCopies()
{
    m_server = std::make_unique<SubversionServer>();
    QVERIFY2(m_server->start(), qPrintable(m_server->problem()));
    const QString copy = m_dir->filePath("anna-copy");
    svn({"checkout", "-q", m_server->url() + "/trunk/catalog", copy});
    QCOMPARE(velkmap({"share", "--mapping", mine("anna"), "--with", shared("anna")}), 0);
    QFile notes(copy + "/notes.txt");
    QVERIFY(notes.open(QIODevice::WriteOnly) && notes.write("first") == 5);
    notes.close();
    svn({"add", "-q", notes.fileName()});
    svn({"commit", "-q", "-m", "notes", copy});
    QVERIFY(notes.open(QIODevice::WriteOnly) && notes.write("second") == 6);
    notes.close();
    // What others changed since is no change back of this user's.
    QFile other(copy + "/other.txt");
    QVERIFY(other.open(QIODevice::WriteOnly) && other.write("older") == 5);
    other.close();
    svn({"add", "-q", other.fileName()});
    svn({"commit", "-q", "-m", "other", other.fileName()});
    svn({"update", "-q", copy});
    const QString bens = m_dir->filePath("ben-copy");
    svn({"checkout", "-q", m_server->url() + "/trunk/catalog", bens});
    QFile changed(bens + "/other.txt");
    QVERIFY(changed.open(QIODevice::WriteOnly) && changed.write("newer") == 5);
    changed.close();
    svn({"commit", "-q", "-m", "newer", bens});
    decide("anna", Bolts, 1, 5);
    copyFolder(m_dir->path(), m_made.filePath("files"));
    copyFolder(m_server->repository(), m_made.filePath("repository"));
}

/// At the same places and behind the same address.
void tst_SharingDamage::putBack()
{
    m_dir = std::move(m_keptDir);
    m_server = std::move(m_keptServer);
    copyFolder(m_made.filePath("files"), m_dir->path());
    copyFolder(m_made.filePath("repository"), m_server->repository());
}

/// What was written into the working copy by hand, or by a publishing that was broken off.
void tst_SharingDamage::leftInTheWorkingCopy()
{
    m_server = std::make_unique<SubversionServer>();
    QVERIFY2(m_server->start(), qPrintable(m_server->problem()));
    svn({"checkout", "-q", m_server->url() + "/trunk/catalog", m_dir->filePath("anna-copy")});
    QCOMPARE(velkmap({"share", "--mapping", mine("anna"), "--with", shared("anna")}), 0);
    QFile file(shared("anna"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("torn") == 4);
    file.close();
    decide("anna", Bolts, 1, 5);
    QCOMPARE(velkmap({"publish", "--mapping", mine("anna")}), 0);
    QVERIFY2(m_said.contains("and not committed; that is kept in "), qPrintable(m_said));
    QCOMPARE(lineIn(shared("anna"), Bolts, 1), 5);
    const QStringList kept =
        QDir(m_dir->filePath("anna-copy")).entryList({"m.json.uncommitted*"}, QDir::Files);
    QCOMPARE(kept.size(), 1);
    QCOMPARE(bytes(m_dir->filePath("anna-copy/" + kept.first())), "torn");
}

void tst_SharingDamage::storeDamaged_data()
{
    QTest::addColumn<QString>("damage");
    QTest::addColumn<int>("status");
    QTest::newRow("texts are gone") << "gone" << 0;
    QTest::newRow("other texts") << "other" << 0;
    QTest::newRow("database empty") << "empty" << 0;
    QTest::newRow("database torn") << "torn" << 0;
    QTest::newRow("no database") << "missing" << 0;
    QTest::newRow("nothing is known") << "unknown" << 3;
}

/// The files of the working copy stay as they are, what is not committed too.
void tst_SharingDamage::storeDamaged()
{
    QFETCH(const QString, damage);
    QFETCH(const int, status);
    if (m_keptDir)
        putBack();
    else
        makeWorkingCopies();
    if (QTest::currentTestFailed())
        return;
    const QString copy = m_dir->filePath("anna-copy");
    const QString bens = m_dir->filePath("ben-copy");
    QFile notes(copy + "/notes.txt");
    QFile other(copy + "/other.txt");
    for (const QString &file : pristine("anna")) {
        QFile::setPermissions(file, QFile::Permissions(0x6644));
        if (damage == "gone")
            QVERIFY(QFile::remove(file));
        else
            QVERIFY(QFile::resize(file, 3));
    }
    const QString database = copy + "/.svn/wc.db";
    if (damage == "empty" || damage == "unknown")
        QVERIFY(QFile::resize(database, 0));
    if (damage == "torn")
        QVERIFY(QFile::resize(database, 20000));
    if (damage == "missing")
        QVERIFY(QFile::remove(database));
    if (damage == "unknown")
        QVERIFY(QFile::remove(copy + "/.svn/velk-origin.json"));
    QCOMPARE(velkmap({"publish", "--mapping", mine("anna")}), status);
    QCOMPARE(bytes(notes.fileName()), "second");
    QCOMPARE(lineIn(mine("anna"), Bolts, 1), 5);
    if (status != 0) {
        QCOMPARE(bytes(other.fileName()), "older");
        QVERIFY2(m_said.contains("wcroot"), qPrintable(m_said));
        QVERIFY(QDir(copy).removeRecursively());
        svn({"checkout", "-q", m_server->url() + "/trunk/catalog", copy});
        QCOMPARE(velkmap({"publish", "--mapping", mine("anna")}), 0);
    } else {
        QVERIFY2(m_said.contains("the store of the working copy was damaged and fetched anew"),
                 qPrintable(m_said));
    }
    QCOMPARE(lineIn(shared("anna"), Bolts, 1), 5);
    QCOMPARE(bytes(other.fileName()), "newer");
    svn({"update", "-q", bens});
    QCOMPARE(lineIn(shared("ben"), Bolts, 1), 5);
    QCOMPARE(bytes(m_dir->filePath("ben-copy/notes.txt")), "first");
}

QTEST_GUILESS_MAIN(tst_SharingDamage)
#include "tst_SharingDamage.moc"
