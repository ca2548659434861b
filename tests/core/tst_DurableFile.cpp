#include "../support/EnglishTexts.h"
#include "../support/SizeLimit.h"

#include <core/config/PIniFile.h>
#include <core/files/ContentHash.h>
#include <core/files/DurableFile.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

class tst_DurableFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void writesAnew();
    void replaces();
    void writesThroughALink();
    void refuses_data();
    void refuses();
    void fullDisk_data();
    void fullDisk();
    void fullDiskAtAnIniFile();
    void laterErrorsOfTheStream();
    void stampedNameIsFree();
    void contentHash();

private:
    [[nodiscard]] QString path(const QString &name) const { return m_dir->filePath(name); }
    [[nodiscard]] static QByteArray content(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }
    [[nodiscard]] QStringList entries() const
    {
        return QDir(m_dir->path())
            .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System | QDir::Hidden);
    }

    std::unique_ptr<QTemporaryDir> m_dir;
};

void tst_DurableFile::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
}

void tst_DurableFile::writesAnew()
{
    QString error;
    QVERIFY2(DurableFile::write(path("a"), "text", &error), qPrintable(error));
    QCOMPARE(content(path("a")), QByteArray("text"));
    QCOMPARE(entries(), QStringList{"a"});
}

void tst_DurableFile::replaces()
{
    QVERIFY(DurableFile::write(path("a"), "a longer text"));
    QVERIFY(DurableFile::write(path("a"), "text"));
    QCOMPARE(content(path("a")), QByteArray("text"));
    QCOMPARE(entries(), QStringList{"a"});
}

void tst_DurableFile::writesThroughALink()
{
    QVERIFY(DurableFile::write(path("a"), "former"));
    QVERIFY(QFile::link(path("a"), path("link")));
    QVERIFY(DurableFile::write(path("link"), "text"));
    QVERIFY(QFileInfo(path("link")).isSymLink());
    QCOMPARE(content(path("a")), QByteArray("text"));
}

void tst_DurableFile::refuses_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("a folder") << "folder";
    QTest::newRow("a pipe") << "pipe";
    QTest::newRow("a link to a pipe") << "link";
    QTest::newRow("a name in a folder that is not there") << "missing";
}

void tst_DurableFile::refuses()
{
    QFETCH(QString, kind);
    QString target = path("target");
    if (kind == "folder")
        QVERIFY(QDir().mkdir(target));
    else if (kind == "missing")
        target = path("no/target");
    else
        QCOMPARE(mkfifo(QFile::encodeName(target).constData(), 0600), 0);
    if (kind == "link") {
        QVERIFY(QFile::link(target, path("link")));
        target = path("link");
    }
    const QStringList before = entries();
    QString error;
    QVERIFY(!DurableFile::write(target, "text", &error));
    QVERIFY(!error.isEmpty());
    QCOMPARE(entries(), before);
    struct stat state
    {
    };
    if (kind == "pipe" || kind == "link") {
        QCOMPARE(error, QString("It is no regular file."));
        QCOMPARE(stat(QFile::encodeName(target).constData(), &state), 0);
        QVERIFY(S_ISFIFO(state.st_mode));
    }
}

void tst_DurableFile::fullDisk_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("less than a buffer") << 6000;
    QTest::newRow("more than a buffer") << 60000;
}

void tst_DurableFile::fullDisk()
{
    QFETCH(int, size);
    QVERIFY(DurableFile::write(path("a"), "former"));
    QString error;
    {
        const SizeLimit limit(1000);
        QVERIFY(!DurableFile::write(path("a"), QByteArray(size, 'x'), &error));
    }
    QVERIFY(!error.isEmpty());
    QCOMPARE(content(path("a")), QByteArray("former"));
    QCOMPARE(entries(), QStringList{"a"});
}

void tst_DurableFile::fullDiskAtAnIniFile()
{
    QVERIFY(DurableFile::write(path("a.prj"), "[PROJECT]\nNAME = a\n"));
    PIniFile file;
    QVERIFY(file.load(path("a.prj")));
    file.setValue("PROJECT", "NAME", QString(2000, 'x'));
    {
        const SizeLimit limit(1000);
        QVERIFY(!file.save(path("a.prj")));
    }
    QVERIFY2(file.errorText().startsWith(path("a.prj") + ": cannot be written: "),
             qPrintable(file.errorText()));
    QCOMPARE(content(path("a.prj")), QByteArray("[PROJECT]\nNAME = a\n"));
}

void tst_DurableFile::laterErrorsOfTheStream()
{
    QVERIFY(DurableFile::write(path("a"), "former"));
    QSaveFile file(path("a"));
    QVERIFY(DurableFile::open(file));
    file.write("text");
    file.cancelWriting();
    QVERIFY(!DurableFile::commit(file));
    QCOMPARE(content(path("a")), QByteArray("former"));
    QCOMPARE(entries(), QStringList{"a"});
}

/// Also of a file whose name looks like a place for another text.
void tst_DurableFile::stampedNameIsFree()
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    for (int second = 0; second < 60; ++second) {
        const QString stamp = now.addSecs(second).toString("yyyyMMdd-hhmmss'Z'");
        QVERIFY(DurableFile::write(path("a%1b.copy-" + stamp), "taken"));
    }
    const QString name = DurableFile::stampedName(path("a%1b"), "copy");
    QVERIFY2(name.startsWith(path("a%1b.copy-")) && name.endsWith("Z-2"), qPrintable(name));
}

/// The values are those of the method's own description.
void tst_DurableFile::contentHash()
{
    QCOMPARE(ContentHash::of({}), QByteArray("99aa06d3014798d86001c324468d497f"));
    QByteArray bytes(3 << 20, 'x');
    ContentHash hash;
    hash.add(QByteArrayView(bytes).first(7));
    hash.add(QByteArrayView(bytes).sliced(7));
    QCOMPARE(hash.result(), ContentHash::of(bytes));
    const QString file = path("large");
    QVERIFY(DurableFile::write(file, bytes));
    QCOMPARE(FileState::of(file).hash, ContentHash::of(bytes));
    bytes[1 << 20] = 'y';
    QVERIFY(ContentHash::of(bytes) != hash.result());
}

QTEST_GUILESS_MAIN(tst_DurableFile)
#include "tst_DurableFile.moc"
