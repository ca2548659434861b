#include "../support/EnglishTexts.h"

#include <geomcore/table/FileLayer.h>
#include <geomcore/table/OpenTables.h>
#include <geomcore/table/TableData.h>
#include <geomcore/table/TabReader.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace VKTab;

namespace {

/// Files have been there for a while, so that no clock stands in doubt.
void makeOld(const QString &name)
{
    QFile file(name);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(-60),
                             QFileDevice::FileModificationTime));
}

void writeFile(const QString &name, const QByteArray &bytes)
{
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

} // namespace

/// Tables as files: which are read, where they may lie, what is told of the others.
class tst_TableFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opensRegularFilesOnly();
    void linesLieBelowTheDescriptor_data();
    void linesLieBelowTheDescriptor();
    void readsFiles();
    void missingFile();
    void emptyFile();
    void heldTableIsNotReadAgain();
    void changedTableIsReadAgain_data();
    void changedTableIsReadAgain();
};

void tst_TableFiles::opensRegularFilesOnly()
{
    const QTemporaryDir dir;
    QCOMPARE(mkfifo(QFile::encodeName(dir.filePath("t.csv")).constData(), 0600), 0);
    writeFile(dir.filePath("t.json"), "{\"fields\": []}");
    QCOMPARE(TableData::read(dir.filePath("t.json")).errors.first().toString(),
             dir.filePath("t.csv") + ": cannot be opened: it is no regular file");
    QCOMPARE(mkfifo(QFile::encodeName(dir.filePath("f.json")).constData(), 0600), 0);
    QCOMPARE(TableData::read(dir.filePath("f.json")).errors.first().toString(),
             dir.filePath("f.json") + ": cannot be opened: it is no regular file");
}

void tst_TableFiles::linesLieBelowTheDescriptor_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("read");
    QTest::newRow("beside") << "t.csv" << true;
    QTest::newRow("below") << "sub/t.csv" << true;
    QTest::newRow("down and up") << "sub/../t.csv" << true;
    QTest::newRow("above") << "../t.csv" << false;
    QTest::newRow("absolute") << "ABSOLUTE" << false;
    QTest::newRow("link") << "link.csv" << false;
    QTest::newRow("through a linked directory") << "linked/t.csv" << false;
}

void tst_TableFiles::linesLieBelowTheDescriptor()
{
    QFETCH(QString, path);
    QFETCH(bool, read);
    const QTemporaryDir dir;
    QVERIFY(QDir(dir.path()).mkpath("c/sub"));
    for (const char *name : {"t.csv", "c/t.csv", "c/sub/t.csv"})
        writeFile(dir.filePath(name), "a\n1\n");
    QVERIFY(QFile::link(dir.filePath("t.csv"), dir.filePath("c/link.csv")));
    QVERIFY(QFile::link(dir.path(), dir.filePath("c/linked")));
    if (path == "ABSOLUTE")
        path = dir.filePath("t.csv");
    writeFile(dir.filePath("c/t.json"), "{\"path\": \"" + path.toUtf8() + "\", \"fields\": []}");
    const auto result = TableData::read(dir.filePath("c/t.json"));
    QCOMPARE(bool(result), read);
    if (!read)
        QVERIFY2(result.errors.first().toString().contains("t.json: \"") &&
                     result.errors.first().text.contains("lies outside of"),
                 qPrintable(result.errors.first().toString()));
}

void tst_TableFiles::readsFiles()
{
    const QTemporaryDir dir;
    writeFile(dir.filePath("t.json"),
              R"({"title": "T", "fields": [{"name": "b", "type": "number"}]})");
    writeFile(dir.filePath("t.csv"), "a,b\n1,2\n");
    writeFile(dir.filePath("u.json"), R"({"path": "sub/../t.csv"})");
    const TableReadResult result = TableData::read(dir.filePath("t.json"));
    QVERIFY(result);
    QCOMPARE(result.data->descriptor().title, QStringLiteral("T"));
    QCOMPARE(result.data->descriptor().fields.at(1).type, FieldType::Number);
    QCOMPARE(result.data->text(0, 1), QStringLiteral("2"));
    QCOMPARE(result.data->fileName(), dir.filePath("t.csv"));
    QVERIFY(TableData::read(dir.filePath("u.json")));
    // Replaced while it is open: the table keeps what it has.
    writeFile(dir.filePath("new"), "a,b\n8,9\n");
    QVERIFY(QFile::remove(dir.filePath("t.csv")));
    QVERIFY(QFile::rename(dir.filePath("new"), dir.filePath("t.csv")));
    QCOMPARE(result.data->text(0, 1), QStringLiteral("2"));
}

void tst_TableFiles::missingFile()
{
    const QTemporaryDir dir;
    const QString descriptor = dir.filePath("t.json");
    TableReadResult result = TableData::read(descriptor);
    QVERIFY(!result);
    QVERIFY(result.errors.first().toString().startsWith(descriptor + ": cannot be opened: "));
    writeFile(descriptor, "{}");
    result = TableData::read(descriptor);
    QVERIFY(!result);
    QVERIFY(result.errors.first().toString().startsWith(dir.filePath("t.csv") +
                                                        ": cannot be opened: "));
    result = TableData::read({}, dir.path());
    QVERIFY(!result);
    QCOMPARE(result.errors.first().file, dir.path());
}

void tst_TableFiles::emptyFile()
{
    const QTemporaryDir dir;
    writeFile(dir.filePath("t.csv"), "");
    const TableReadResult result = TableData::read({}, dir.filePath("t.csv"));
    QVERIFY(!result);
    QCOMPARE(result.errors.first().text,
             QStringLiteral("the file is empty; its first row must name the columns"));
}

void tst_TableFiles::heldTableIsNotReadAgain()
{
    const QTemporaryDir dir;
    const QString descriptor = dir.filePath("t.json");
    writeFile(descriptor, "{\"fields\": []}");
    writeFile(dir.filePath("t.csv"), "D,k\nM8,5\n");
    makeOld(descriptor);
    makeOld(dir.filePath("t.csv"));
    const auto first = OpenTables::instance().open(descriptor);
    QVERIFY(first);
    const auto second = OpenTables::instance().open(descriptor);
    QCOMPARE(second.data, first.data);
    TabReader reader;
    QCOMPARE(reader.readFile(descriptor, false), 1);
    QCOMPARE(reader.getData()->data(), first.data);
}

void tst_TableFiles::changedTableIsReadAgain_data()
{
    QTest::addColumn<QString>("what");
    QTest::newRow("lines written in place") << "lines";
    QTest::newRow("lines of the same size and time") << "same time";
    QTest::newRow("another file of the same size and time") << "replaced";
    QTest::newRow("descriptor") << "descriptor";
    QTest::newRow("lines gone") << "gone";
}

void tst_TableFiles::changedTableIsReadAgain()
{
    QFETCH(QString, what);
    const QTemporaryDir dir;
    const QString descriptor = dir.filePath("t.json");
    const QString lines = dir.filePath("t.csv");
    writeFile(descriptor, "{\"fields\": []}");
    writeFile(lines, "D,k\nM8,5\n");
    makeOld(descriptor);
    makeOld(lines);
    const auto first = OpenTables::instance().open(descriptor);
    QVERIFY(first);
    const QDateTime time = QFileInfo(lines).lastModified();
    QTest::qWait(30); // the clock of files goes on
    if (what == "descriptor")
        writeFile(descriptor, "{\"fields\": [{\"name\": \"k\", \"type\": \"number\"}]}");
    if (what == "replaced" || what == "gone")
        QVERIFY(QFile::remove(lines));
    if (what != "descriptor" && what != "gone")
        writeFile(lines, what == "lines" ? "D,k\nM8,5\nM9,6\n" : "D,k\nM9,6\n");
    if (what == "same time" || what == "replaced") {
        QFile file(lines);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
    }
    const auto second = OpenTables::instance().open(descriptor);
    QCOMPARE(bool(second), what != "gone");
    QVERIFY(second.data != first.data);
    QCOMPARE(second.errors.isEmpty(), what != "gone");
}

QTEST_GUILESS_MAIN(tst_TableFiles)
#include "tst_TableFiles.moc"
