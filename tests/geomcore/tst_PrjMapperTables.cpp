#include "MapperFixture.h"

#include <core/message/PMessageSink.h>
#include <geomcore/mapper/TargetTable.h>
#include <geomcore/mapper/TargetTables.h>
#include <geomcore/table/ModifyLayer.h>
#include <geomcore/table/TableData.h>

#include <QDateTime>
#include <QFile>
#include <QTest>

#include <mutex>
#include <thread>

namespace {

class LogSink : public PMessageSink
{
public:
    PMsgReply show(const QString &, PMsgDlgModes) override { return PMsgReply::Ok; }
    void logToWindow(const QString &text) override
    {
        const std::lock_guard lock(m_mutex);
        m_texts.append(text);
    }
    QStringList take()
    {
        const std::lock_guard lock(m_mutex);
        return std::exchange(m_texts, {});
    }

private:
    std::mutex m_mutex;
    QStringList m_texts;
};

const QByteArray table = "D,k:n\nM8,5\nM9,6\n";

/// Proposal for line 1 of a mapper of its own.
QString proposal(const TestCatalog &catalog)
{
    MapperFixture fixture(catalog, {"new/a.prj"});
    fixture.start();
    return fixture.proposal(1);
}

} // namespace

/// What mappers share.
class tst_PrjMapperTables : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writtenTableIsReadAnew();
    void writtenTableOfTheSameSizeIsReadAnew();
    void writtenTableOfTheSameTimeIsReadAnew();
    void writtenTableOfTheFutureIsReadAnew();
    void conditionsTellJoinsApart();
    void rangesTellJoinsApart();
    void hiddenLinesTellJoinsApart();
    void confirmedLinesTellPlansApart();
    void changedCellsTellTablesApart();
    void writtenProjectIsReadAnew();
    void tableThatAppears();
    void openTableStaysWithItsMapper();
    void readersShareTheTable();
    void failureIsToldOnce();
    void otherSourceTable();
    void manyTables();
    void severalThreads();
    void endedJoinIsNotKept_data();
    void endedJoinIsNotKept();
    void endedPlanIsNotKept();
};

void tst_PrjMapperTables::writtenTableIsReadAnew()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", table);
    catalog.write("new/a.prj", table);
    QCOMPARE(proposal(catalog), "0:1 ok");
    catalog.write("new/a.prj", "D,k:n\nX10,1\nM9,6\nM8,5\n");
    QCOMPARE(proposal(catalog), "0:3 ok");
}

void tst_PrjMapperTables::writtenTableOfTheSameSizeIsReadAnew()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", table);
    catalog.write("new/a.prj", table);
    QCOMPARE(proposal(catalog), "0:1 ok");
    catalog.writeFile("new/a.csv", "D,k\nM9,6\nM8,5\n");
    QFile file(catalog.file("new/a.csv"));
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(-60),
                             QFileDevice::FileModificationTime));
    file.close();
    QCOMPARE(proposal(catalog), "0:2 ok");
}

void tst_PrjMapperTables::writtenTableOfTheSameTimeIsReadAnew()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", table);
    catalog.write("new/a.prj", table);
    const QDateTime time = QDateTime::currentDateTime().addSecs(-60);
    const auto setTime = [&] {
        QFile file(catalog.file("new/a.csv"));
        return file.open(QIODevice::ReadWrite) &&
               file.setFileTime(time, QFileDevice::FileModificationTime);
    };
    QVERIFY(setTime());
    QCOMPARE(proposal(catalog), "0:1 ok");
    catalog.writeFile("new/a.csv", "D,k\nX10,1\nM9,6\nM8,5\n");
    QVERIFY(setTime());
    QCOMPARE(proposal(catalog), "0:3 ok");
}

/// Who writes while it is read may do so without a later time.
void tst_PrjMapperTables::writtenTableOfTheFutureIsReadAnew()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", table);
    catalog.write("new/a.prj", table);
    const QDateTime time = QDateTime::currentDateTime().addSecs(3600);
    const auto setTime = [&] {
        QFile file(catalog.file("new/a.csv"));
        return file.open(QIODevice::ReadWrite) &&
               file.setFileTime(time, QFileDevice::FileModificationTime);
    };
    QVERIFY(setTime());
    QCOMPARE(proposal(catalog), "0:1 ok");
    catalog.writeFile("new/a.csv", "D,k\nM9,6\nM8,5\n");
    QVERIFY(setTime());
    QCOMPARE(proposal(catalog), "0:2 ok");
}

void tst_PrjMapperTables::conditionsTellJoinsApart()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n,g:n\nM8,5,1\nM8,5,2\n");
    catalog.write("new/a.prj", "D,k:n\nM8,5\n");
    const VKTab::Content source = catalog.read("old/a.prj");
    const auto proposed = [&](const QString &condition) {
        MapperFixture fixture(catalog, {"new/a.prj"});
        fixture.source = source;
        if (!condition.isEmpty())
            addCondition(fixture.mapping, 0, condition);
        fixture.start();
        const PrjMapperLineC line = fixture.create(1);
        const VKTab::LineView view(source, VKTab::LineId(1));
        return fixture.mapper.passesCheck(line, view, CheckValues | CheckConditions);
    };
    QVERIFY2(!proposed(QString()), "two source lines for one target line");
    QVERIFY2(proposed("g .EQ. 1"), "the other one is not for this target");
    QVERIFY(!proposed(QString()));
}

void tst_PrjMapperTables::rangesTellJoinsApart()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,L:r\nM8,10;20\n");
    catalog.write("new/a.prj", "D,L:n\nM8,20\n");
    catalog.write("new/b.prj", "D,L:n\nX,1\n");
    const VKTab::Content source = catalog.read("old/a.prj");
    const auto hasEqual = [&](bool conditional) {
        MapperFixture fixture(catalog, {"new/a.prj", "new/b.prj"});
        fixture.source = source;
        if (conditional) // at the other target, and the first one's combinations are walked too
            addCondition(fixture.mapping, 1, "L .GT. 15");
        fixture.start();
        return fixture.mapper.hasEqualLine(1);
    };
    QVERIFY(!hasEqual(false));
    QVERIFY(hasEqual(true));
    QVERIFY(!hasEqual(false));
}

void tst_PrjMapperTables::hiddenLinesTellJoinsApart()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", table);
    catalog.write("new/a.prj", table, [](VKTab::TableDescriptor &descriptor) {
        descriptor.filterConditions.append({"PRJLINECOND", "k .GT. 5", {}});
    });
    const VKTab::Content source = catalog.read("old/a.prj");
    const auto hasEqual = [&](bool creator) {
        MapperFixture fixture(catalog, {"new/a.prj"});
        fixture.source = source;
        fixture.start();
        fixture.mapper.setCreatorMode(creator);
        return fixture.mapper.hasEqualLine(1);
    };
    QVERIFY(hasEqual(true));
    QVERIFY(!hasEqual(false));
    QVERIFY(hasEqual(true));
}

void tst_PrjMapperTables::confirmedLinesTellPlansApart()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n,l:n\nM8,5,1\nM9,6,2\nM10,7,3\n");
    catalog.write("new/a.prj", "D,k:n,l:n\nM8,5.1,1\nM9,6.1,2\nM10,7.1,3\n");
    const VKTab::Content source = catalog.read("old/a.prj");
    const auto proposed = [&](bool confirmed) {
        MapperFixture fixture(catalog, {"new/a.prj"});
        fixture.source = source;
        if (confirmed)
            enter(fixture.mapping, 0, 2, 1, PRJMAPPING::Verified);
        fixture.start();
        return fixture.proposal(1);
    };
    QCOMPARE(proposed(false), "0:1");
    QVERIFY2(proposed(true) != "0:1", "another line has it");
    QCOMPARE(proposed(false), "0:1");
}

void tst_PrjMapperTables::changedCellsTellTablesApart()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", table);
    catalog.write("new/a.prj", table);
    VKTab::Content source = catalog.read("old/a.prj");
    const auto hasEqual = [&] {
        MapperFixture fixture(catalog, {"new/a.prj"});
        fixture.source = source;
        fixture.start();
        return fixture.mapper.hasEqualLine(1);
    };
    QVERIFY(hasEqual());
    QVERIFY(source.getModifyLayer()->setValue(source.getVar(u"k").getVarId(), VKTab::LineId(1),
                                              VKTab::Value("50")));
    QVERIFY(!hasEqual());
}

void tst_PrjMapperTables::writtenProjectIsReadAnew()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", table);
    catalog.write("new/a.prj", table);
    catalog.write("new/b.prj", "D,k:n\nM9,6\nM8,5\n");
    QCOMPARE(proposal(catalog), "0:1 ok");
    catalog.writeFile("new/a.prj", "[PROJECT]\nNAME=other\nSACHM=b.json\n");
    QCOMPARE(proposal(catalog), "0:2 ok");
}

void tst_PrjMapperTables::tableThatAppears()
{
    const auto sink = std::make_shared<LogSink>();
    const PMessageSinkScope scope(sink);
    const TestCatalog catalog;
    catalog.write("old/a.prj", table);
    QCOMPARE(proposal(catalog), "none");
    catalog.write("new/a.prj", table);
    QCOMPARE(proposal(catalog), "0:1 ok");
    QVERIFY(QFile::remove(catalog.file("new/a.csv")));
    QCOMPARE(proposal(catalog), "none");
}

void tst_PrjMapperTables::openTableStaysWithItsMapper()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", table);
    catalog.write("new/a.prj", table);
    MapperFixture fixture(catalog, {"new/a.prj"});
    fixture.start();
    QCOMPARE(fixture.proposal(1), "0:1 ok");
    QVERIFY(QFile::remove(catalog.file("new/a.csv")));
    // Of another size: the clock of files may stand still for some milliseconds.
    catalog.write("new/a.prj", "D,k:n\nM9,6\nM8,5\nX10,1\n");
    QCOMPARE(fixture.proposal(1), "0:1 ok");
    QCOMPARE(fixture.proposal(2), "0:2 ok");
    QCOMPARE(proposal(catalog), "0:2 ok");
}

void tst_PrjMapperTables::readersShareTheTable()
{
    const TestCatalog catalog;
    catalog.write("new/a.prj", table);
    for (const char *name : {"new/a.csv", "new/a.json"}) {
        QFile file(catalog.file(name));
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(-60),
                                 QFileDevice::FileModificationTime));
    }
    const VKTab::Content shown = catalog.read("new/a.prj");
    const auto opened = Mapper::TargetTables::instance().open(catalog.file("new/a.prj"));
    QVERIFY(opened);
    QCOMPARE(&opened->data(), shown.getTableData().get());
    QCOMPARE(catalog.read("new/a.prj").getTableData(), shown.getTableData());
}

void tst_PrjMapperTables::failureIsToldOnce()
{
    const auto sink = std::make_shared<LogSink>();
    const PMessageSinkScope scope(sink);
    const TestCatalog catalog;
    catalog.write("old/a.prj", table);
    catalog.write("new/a.prj", table);
    catalog.writeFile("new/a.json", "{");
    QCOMPARE(proposal(catalog), "none");
    QCOMPARE(sink->take().size(), 1);
    QCOMPARE(proposal(catalog), "none");
    QCOMPARE(sink->take(), QStringList());
    catalog.writeFile("new/a.json", "{}}");
    QCOMPARE(proposal(catalog), "none");
    QCOMPARE(sink->take().size(), 1);
}

void tst_PrjMapperTables::otherSourceTable()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", table);
    catalog.write("old/b.prj", "D,k:n\nM9,6\nM8,5\n");
    catalog.write("new/a.prj", table);
    MapperFixture fixture(catalog, {"new/a.prj"});
    fixture.start();
    QCOMPARE(fixture.proposal(1), "0:1 ok");
    fixture.source = catalog.read("old/b.prj");
    fixture.mapper.setSourceTable(fixture.source);
    QCOMPARE(fixture.proposal(1), "0:2 ok");
}

void tst_PrjMapperTables::manyTables()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", table);
    QStringList paths;
    for (int i = 0; i < 30; ++i) {
        paths.append(QStringLiteral("new/%1/a.prj").arg(i));
        catalog.write(paths.last(), i == 17 ? table : QByteArray("D,k:n\nX1,100\n"));
    }
    for (int round = 0; round < 2; ++round) {
        MapperFixture fixture(catalog, paths);
        fixture.start();
        QCOMPARE(fixture.proposal(2), "17:2 ok");
    }
}

void tst_PrjMapperTables::severalThreads()
{
    QByteArray many = "D,k:n,l:n\n";
    for (int i = 0; i < 300; ++i)
        many += "M" + QByteArray::number(i) + "," + QByteArray::number(i % 50) + ",1\n";
    const TestCatalog catalog;
    catalog.write("old/a.prj", many);
    for (const char *path : {"new/a.prj", "new/b.prj", "new/c.prj"})
        catalog.write(path, QByteArray(many).replace(",1\n", ",2\n"));
    std::vector<QStringList> results(4);
    std::vector<std::thread> threads;
    for (QStringList &result : results) {
        threads.emplace_back([&catalog, &result] {
            MapperFixture fixture(catalog, {"new/b.prj", "new/c.prj", "new/a.prj"});
            fixture.start();
            for (int line = 1; line <= 300; line += 7)
                result.append(fixture.proposal(line));
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    QVERIFY(results.front().contains("2:8"));
    for (const QStringList &result : results)
        QCOMPARE(result, results.front());
}

void tst_PrjMapperTables::endedJoinIsNotKept_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<QString>("condition");
    QByteArray plain = "D,k:n\nM8,5\n";
    for (int i = 0; i < 40000; ++i)
        plain += 'X' + QByteArray::number(i) + ',' + QByteArray::number(i) + '\n';
    QTest::newRow("rows at once") << plain << QString();
    QTest::newRow("a condition") << plain << "k .GE. 0";
    QTest::newRow("combinations") << QByteArray("D,k:r\nM8,1..5000/1\n") << "k .GE. 0";
    QTest::newRow("row by row") << QByteArray("D,k:r\n" + QByteArray("M8,1;2\n").repeated(300))
                                << "k .GE. 0";
}

void tst_PrjMapperTables::endedJoinIsNotKept()
{
    QFETCH(QByteArray, lines);
    QFETCH(QString, condition);
    const TestCatalog catalog;
    catalog.write("old/a.prj", lines);
    catalog.write("new/a.prj", lines);
    MapperFixture first(catalog, {"new/a.prj"});
    if (!condition.isEmpty())
        addCondition(first.mapping, 0, condition);
    int asked = 0;
    std::mutex mutex;
    first.mapper.setCancellation([&] {
        const std::lock_guard lock(mutex);
        return ++asked > 2;
    });
    first.start();
    const VKTab::LineView view(first.source, VKTab::LineId(1));
    (void)first.mapper.createLine(1, view, false); // of no use
    QVERIFY(asked > 2);
    QVERIFY2(asked < 200, qPrintable(QString::number(asked))); // while it waits for others too
    MapperFixture second(catalog, {"new/a.prj"});
    if (!condition.isEmpty())
        addCondition(second.mapping, 0, condition);
    second.start();
    const VKTab::LineView same(second.source, VKTab::LineId(1));
    QCOMPARE(second.mapper.createLine(1, same, false).getTargetLineId(), 1);
}

void tst_PrjMapperTables::endedPlanIsNotKept()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n,l:n\nM8,5,1\nM9,6,2\n");
    catalog.write("new/a.prj", "D,k:n,l:n\nM8,5.1,1\nM9,6.1,2\n");
    const VKTab::Content source = catalog.read("old/a.prj");
    MapperFixture first(catalog, {"new/a.prj"});
    first.source = source;
    first.mapper.setCancellation([] { return true; });
    first.start();
    (void)first.create(1); // of no use
    MapperFixture second(catalog, {"new/a.prj"});
    second.source = source;
    second.start();
    QCOMPARE(second.proposal(1), "0:1");
}

QTEST_GUILESS_MAIN(tst_PrjMapperTables)
#include "tst_PrjMapperTables.moc"
