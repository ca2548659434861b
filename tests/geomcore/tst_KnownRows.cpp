// A file that is read beside the rows of another one says what it says when it is read alone.

#include "../support/EnglishTexts.h"

#include <geomcore/records/KnownRows.h>
#include <geomcore/records/MappingFile.h>

#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <functional>

namespace {

constexpr int Lines = 4000;

PrjMappingTargetC targetOf(const QString &path, int lines, int step = 1)
{
    PrjMappingTargetC target;
    target.setValid(true);
    target.setTargetPath(path);
    for (int line = 1; line <= lines; ++line) {
        const QString text =
            line % 700 == 5 ? QStringLiteral("{A=\"]\\\\\"} -> %1").arg(line) : QString();
        target.addLineId(line * step, line % 100 == 7 ? -1 : line + 3,
                         PRJMAPPING::CheckState(line % 3), text);
    }
    target.setLineConflicted(40 * step, true);
    return target;
}

ReleaseMappingC baseRelease()
{
    ReleaseMappingC release;
    release.setSourceDate("2023");
    release.setTargetDate("2025");
    for (int project = 0; project < 4; ++project) {
        PrjMappingC mapping;
        mapping.setSourcePath(QStringLiteral("cat/p%1.prj").arg(project));
        mapping.addTarget(targetOf("cat/a.prj", project == 3 ? 3 : Lines, 2));
        if (project == 1)
            mapping.addTarget(targetOf("cat/b.prj", 300));
        mapping.updateMappingState();
        release.appendMapping(mapping);
    }
    return release;
}

QByteArray bytesOf(const ReleaseMappingC &release)
{
    MappingFile file;
    file.setRelease(release);
    return file.toByteArray();
}

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

using Edit = std::function<void(PrjMappingTargetC &)>;

QByteArray edited(const Edit &edit)
{
    ReleaseMappingC release = baseRelease();
    PrjMappingC mapping = release.mappingAt(0);
    mapping.changeTarget(0, edit);
    release.addMapping(mapping);
    return bytesOf(release);
}

void randomEdits(PrjMappingTargetC &target, quint32 seed)
{
    QRandomGenerator random(seed);
    const int share = 1 + random.bounded(100);
    for (int line = 0; line < 2 * Lines + 200; ++line) {
        if (random.bounded(1000) >= share)
            continue;
        switch (random.bounded(4)) {
        case 0:
            target.removeLineId(line);
            break;
        case 1:
            target.addLineId(line, line, PRJMAPPING::Verified, QStringLiteral("]\",[1,2,3]"));
            break;
        case 2:
            target.setLineConflicted(line, true);
            break;
        default:
            target.addLineId(line, line + random.bounded(100), PRJMAPPING::Mapped, QString());
        }
    }
}

/// \a base is read first, \a other beside it.
void compare(const QByteArray &base, const QByteArray &other)
{
    const QTemporaryDir folder;
    writeFile(folder.filePath("base.json"), base);
    writeFile(folder.filePath("other.json"), other);
    MappingFile alone;
    MappingFile first;
    MappingFile beside;
    KnownRows rows;
    QString error;
    QString expected;
    QVERIFY2(first.readNoting(folder.filePath("base.json"), rows, &error), qPrintable(error));
    const bool good = alone.read(folder.filePath("other.json"), {}, &expected);
    QCOMPARE(beside.readBeside(folder.filePath("other.json"), rows, &error), good);
    if (!good) {
        QCOMPARE(error, expected);
        return;
    }
    QVERIFY(beside.toByteArray() == alone.toByteArray());
    QCOMPARE(beside.notes(), alone.notes());
    for (int i = 0; i < alone.release("2023").countMappings(); ++i)
        QVERIFY(beside.release("2023").mappingAt(i).lineCounts() ==
                alone.release("2023").mappingAt(i).lineCounts());
    MappingFile again;
    QVERIFY(again.read(folder.filePath("base.json")));
    QVERIFY(first.toByteArray() == again.toByteArray());
}

} // namespace

class tst_KnownRows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsTheSame_data()
    {
        QTest::addColumn<QByteArray>("other");

        const QByteArray base = bytesOf(baseRelease());
        QTest::newRow("nothing changed") << base;
        QTest::newRow("one line") << edited([](PrjMappingTargetC &target) {
            target.addLineId(5000, 17, PRJMAPPING::Verified, QString());
        });
        QTest::newRow("first line gone")
            << edited([](PrjMappingTargetC &target) { target.removeLineId(2); });
        QTest::newRow("line before the first one") << edited([](PrjMappingTargetC &target) {
            target.addLineId(1, 17, PRJMAPPING::Verified, QString());
        });
        QTest::newRow("half of them gone") << edited([](PrjMappingTargetC &target) {
            for (int line = 1; line < 2 * Lines; line += 4)
                target.removeLineId(line + 1);
        });
        QTest::newRow("one between any two") << edited([](PrjMappingTargetC &target) {
            for (int line = 3; line < 2 * Lines; line += 2)
                target.addLineId(line, 4, PRJMAPPING::Mapped, QString());
        });
        QTest::newRow("all changed, then none") << edited([](PrjMappingTargetC &target) {
            for (int line = 2; line < 3000; line += 2)
                target.addLineId(line, 90000, PRJMAPPING::Mapped, QString());
        });
        QTest::newRow("no line left")
            << edited([](PrjMappingTargetC &target) { target.clearLines(false); });
        QTest::newRow("end gone") << edited([](PrjMappingTargetC &target) {
            for (int line = Lines; line <= 2 * Lines; ++line)
                target.removeLineId(line);
        });
        for (quint32 seed = 0; seed < 8; ++seed)
            QTest::addRow("random %u", seed)
                << edited([seed](PrjMappingTargetC &target) { randomEdits(target, seed); });

        ReleaseMappingC fewer;
        fewer.setSourceDate("2023");
        fewer.setTargetDate("2025");
        fewer.appendMapping(baseRelease().mappingAt(1));
        QTest::newRow("fewer projects") << bytesOf(fewer);
        QByteArray blanks = base;
        QTest::newRow("other blanks") << blanks.replace("       [", "\t[");
        QByteArray swapped = base;
        QTest::newRow("two rows in another order")
            << swapped.replace(swapped.indexOf("[100,"), 6, "[998,").replace("[998,", "[100 ,");
        QByteArray descending = base;
        const qsizetype row = descending.indexOf("[20,");
        QTest::newRow("a row behind its place")
            << descending.replace(row, 4, "[3,").replace("[22,", "[21,");
        QByteArray broken = base;
        QTest::newRow("a row that is none") << broken.replace("[4000,", "[9000;");
        QByteArray twice = base;
        QTest::newRow("a row once more") << twice.replace("[4002,", "[4000,");
        QTest::newRow("cut off") << base.first(base.size() / 2);
    }
    void readsTheSame()
    {
        QFETCH(const QByteArray, other);
        const QByteArray base = bytesOf(baseRelease());
        compare(base, other);
        MappingFile file;
        if (file.parse(other))
            compare(other, base);
    }

    // What is noted is told by the text alone, so rows out of order are not.
    void rowsOutOfOrderAreNotNoted()
    {
        QByteArray json = bytesOf(baseRelease());
        json.replace(json.indexOf("[20,"), 4, "[7999,");
        const QTemporaryDir folder;
        const QString path = folder.filePath("base.json");
        writeFile(path, json);
        MappingFile file;
        KnownRows rows;
        QVERIFY(file.readNoting(path, rows));
        QVERIFY(!rows.find("2023\ncat/p0.prj\n0\ncat/a.prj"));
        QVERIFY(rows.find("2023\ncat/p1.prj\n0\ncat/a.prj"));
        compare(json, bytesOf(baseRelease()));
        compare(json, json);
    }

    void takesPartsAndWholePages()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("base.json");
        writeFile(path, bytesOf(baseRelease()));
        KnownRows rows;
        MappingFile first;
        QVERIFY(first.readNoting(path, rows));
        const KnownRows::Place *place = rows.find("2023\ncat/p0.prj\n0\ncat/a.prj");
        QVERIFY(place);
        LineTable table;
        LineTable::Iterator from = place->lines.begin();
        table.append(from, 300);
        QCOMPARE(table.counts().lines(), 300);
        QCOMPARE(from.sourceLine(), 602);
        table.append(from, Lines - 300);
        QVERIFY(!from);
        QVERIFY(LineTable::isSame(table, place->lines));
        QVERIFY(table.counts() == place->lines.counts());
        table.set(4, 1, PRJMAPPING::Mapped, false, {});
        QCOMPARE(place->lines.value(4).getTargetLineId(), 5);
    }

    void unreadableFilesAreNamed()
    {
        const QTemporaryDir folder;
        const QString missing = folder.filePath("missing.json");
        KnownRows rows;
        MappingFile file;
        QString error;
        QVERIFY(!file.readNoting(missing, rows, &error));
        QVERIFY2(error.startsWith(missing + ": "), qPrintable(error));
        QVERIFY(!file.readBeside(missing, rows, &error));
        QVERIFY2(error.startsWith(missing + ": "), qPrintable(error));
        QVERIFY(!file.readNoting(folder.path(), rows, &error));
        QCOMPARE(error, folder.path() + ": It is no regular file.");
        const QString broken = folder.filePath("broken.json");
        writeFile(broken, "{]");
        QVERIFY(!file.readNoting(broken, rows, &error));
        QVERIFY2(error.startsWith(broken + ", line 1, column 2"), qPrintable(error));
    }
};

QTEST_GUILESS_MAIN(tst_KnownRows)
#include "tst_KnownRows.moc"
