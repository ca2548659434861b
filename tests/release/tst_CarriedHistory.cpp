#include "../support/TestCatalog.h"

#include <release/history/CarriedHistory.h>
#include <release/history/HistorySessions.h>
#include <release/history/JournalRow.h>
#include <release/report/ReportHistory.h>
#include <release/review/LineTraits.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace PRJMAPPING;
using namespace VelkRelease;

namespace {

/// With single quotes instead of double ones.
QByteArray row(QByteArray text)
{
    return text.replace('\'', '"');
}

QByteArray opening(const QByteArray &user, const QByteArray &hour)
{
    return row("{'kind':'opened','time':'2026-11-20T" + hour + ":00:00.000Z','user':'" + user +
               "','host':'h','sourceDate':'2022'}");
}

QByteArray note(const QByteArray &hour, const std::vector<CarriedLine> &lines)
{
    PJsonValue record(PJsonValue::Object);
    record["kind"] = PJsonValue("carried");
    record["time"] = PJsonValue("2026-11-20T" + QString(hour) + ":01:00.000Z");
    record["note"] = carriedNote("/maps/former.json", "2023", lines);
    return record.toByteArray(true);
}

QByteArray step(int number, const QByteArray &origin, const QString &of = {})
{
    return row("{'kind':'step','time':'2026-11-20T10:02:00.000Z','step':" +
               QByteArray::number(number) + ",'origin':'" + origin + "','text':'t'" +
               (of.isEmpty() ? QByteArray() : ",'of':'" + of.toUtf8() + "'") + "}");
}

const QByteArray saved = row("{'kind':'saved','step':1}");
const QByteArray discarded = row("{'kind':'closed','modified':true}");

/// Line 1 leads to line 21 of another target than the others.
const std::vector<CarriedLine> lines{{"a/x.prj", "v1", 1, "c/z.prj", 21, true},
                                     {"a/x.prj", "v1", 2, "c/y.prj", 22, false},
                                     {"a/x.prj", "v1", 3, "c/y.prj", 23, false},
                                     {"a/other.prj", "v1", 3, "c/y.prj", 23, true}};

} // namespace

/// Decisions that were taken over from a former mapping, as the journals have them.
class tst_CarriedHistory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_dir = std::make_unique<QTemporaryDir>(); }
    void whatCounts_data();
    void whatCounts();
    void roundTrip();
    void linesAsTheyAreNow();
    void filterAndReport();
    void unreadable();

private:
    [[nodiscard]] QString mapping() const { return m_dir->filePath("m.json"); }
    void write(const QByteArrayList &records) const
    {
        QByteArray rows;
        for (const QByteArray &record : records)
            rows += JournalRow::frame(record);
        QFile file(mapping() + ".journal");
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(rows) == rows.size());
    }
    [[nodiscard]] std::vector<CarriedStep> read() const
    {
        QString error;
        const auto steps = readCarriedSteps(mapping(), &error);
        return steps ? *steps : std::vector<CarriedStep>{{.key = error}};
    }

    std::unique_ptr<QTemporaryDir> m_dir;
};

void tst_CarriedHistory::whatCounts_data()
{
    QTest::addColumn<QByteArrayList>("records");
    QTest::addColumn<int>("count");
    const QByteArray first = opening("anna", "10");
    const QByteArray second = opening("bert", "12");
    const QByteArray carried = note("10", lines);
    const QString key = HistorySessions::stepKey(first, 1);
    QTest::newRow("nothing") << QByteArrayList{first, step(1, "edit"), saved} << 0;
    QTest::newRow("a step") << QByteArrayList{first, carried, step(1, "edit")} << 1;
    QTest::newRow("no step came of it") << QByteArrayList{first, carried} << 0;
    QTest::newRow("saved") << QByteArrayList{first, carried, step(1, "edit"), saved, discarded}
                           << 1;
    QTest::newRow("discarded") << QByteArrayList{first, carried, step(1, "edit"), discarded} << 0;
    QTest::newRow("taken back") << QByteArrayList{first, carried, step(1, "edit"),
                                                  step(2, "undo", key)}
                                << 0;
    QTest::newRow("taken back and again")
        << QByteArrayList{first, carried, step(1, "edit"), step(2, "undo", key),
                          step(3, "redo", key)}
        << 1;
    QTest::newRow("another step taken back")
        << QByteArrayList{first, carried, step(1, "edit"), step(2, "edit"),
                          step(3, "undo", HistorySessions::stepKey(first, 2))}
        << 1;
    QTest::newRow("taken back in a later session")
        << QByteArrayList{first, carried, step(1, "edit"), saved, second, step(1, "undo", key)}
        << 0;
    QTest::newRow("taken back, but discarded")
        << QByteArrayList{first,    carried, step(1, "edit"), saved, second, step(1, "undo", key),
                          discarded}
        << 1;
    QTest::newRow("two steps") << QByteArrayList{first,  carried,           step(1, "edit"), saved,
                                                 second, note("12", lines), step(1, "edit")}
                               << 2;
}

void tst_CarriedHistory::whatCounts()
{
    QFETCH(QByteArrayList, records);
    QFETCH(int, count);
    write(records);
    QCOMPARE(int(read().size()), count);
}

void tst_CarriedHistory::roundTrip()
{
    const QByteArray first = opening("anna", "10");
    write({first, note("10", lines), step(7, "edit")});
    const std::vector<CarriedStep> steps = read();
    QCOMPARE(steps.size(), size_t(1));
    QCOMPARE(steps[0].key, HistorySessions::stepKey(first, 7));
    QCOMPARE(steps[0].author, "anna");
    QCOMPARE(steps[0].release, "2022");
    QCOMPARE(steps[0].former, "/maps/former.json");
    QCOMPARE(steps[0].formerTarget, "2023");
    QCOMPARE(steps[0].time, QDateTime(QDate(2026, 11, 20), QTime(10, 1), Qt::UTC));
    QVERIFY(steps[0].lines == lines);
}

/// A line that leads elsewhere by now is not as it was carried over; confirming it changes nothing.
void tst_CarriedHistory::linesAsTheyAreNow()
{
    write({opening("anna", "10"), note("10", lines), step(1, "edit")});
    const CarriedLines carried(read(), "2022");
    PrjMappingC mapping = mappingOf("a/x.prj", {"c/z.prj", "c/y.prj"});
    enter(mapping, 0, 1, 21, Verified);
    enter(mapping, 1, 2, 22, ToCheck);
    enter(mapping, 1, 3, 24, ToCheck);
    enter(mapping, 1, 4, 22, ToCheck);
    QCOMPARE(carried.linesOf(mapping), (std::vector<int>{1, 2}));
    QVERIFY(carried.stepOf(mapping, 2) == &carried.steps().front());
    QVERIFY(!carried.stepOf(mapping, 3) && !carried.stepOf(mapping, 4));
    enter(mapping, 0, 2, 22, ToCheck); // the same number in another target
    mapping.changeTarget(1, [](PrjMappingTargetC &target) { target.removeLineId(2); });
    QCOMPARE(carried.linesOf(mapping), std::vector<int>{1});
    mapping.setSourceVersion("v2");
    QVERIFY(carried.linesOf(mapping).empty());
    QVERIFY(CarriedLines(read(), "2021").isEmpty());
}

void tst_CarriedHistory::filterAndReport()
{
    write({opening("anna", "10"), note("10", lines), step(1, "edit"), saved, opening("bert", "12"),
           note("12", {lines[1]}), step(1, "edit")});
    PrjMappingC mapping = mappingOf("a/x.prj", {"c/z.prj", "c/y.prj"});
    enter(mapping, 0, 1, 21, Mapped);
    enter(mapping, 1, 2, 22, ToCheck);
    enter(mapping, 1, 4, 24, ToCheck);
    ReleaseMappingC release;
    release.setSourceDate("2022");
    release.addMapping(mapping);
    LineTraits traits(release);
    traits.setCarried(CarriedLines(read(), "2022"));
    LineFilter filter;
    filter.of(LineTrait::Origin) = {{"carried"}, false};
    QCOMPARE(traits.linesOf(0, filter), (std::vector<int>{1, 2}));
    QCOMPARE(traits.counts(LineTrait::Origin, {}),
             (QHash<QString, int>{{"carried", 2}, {QString(), 1}}));
    QVERIFY(LineFilter::fromText(filter.toText()) == filter);
    enter(mapping, 1, 2, 25, ToCheck);
    traits.setMapping(0, mapping, "anna");
    QCOMPARE(traits.linesOf(0, filter), std::vector<int>{1});
    enter(mapping, 1, 2, 22, Verified);
    traits.setMapping(0, mapping, "anna");
    QCOMPARE(traits.linesOf(0, filter), (std::vector<int>{1, 2}));
    traits.setCarried({});
    QVERIFY(traits.linesOf(0, filter).empty());

    ReleaseReport report;
    report.sourceDate = "2022";
    QString error;
    QVERIFY2(addHistory(report, release, this->mapping(), &error), qPrintable(error));
    QCOMPARE(report.carried.size(), size_t(2));
    QCOMPARE(report.carried[0].who, "anna");
    QCOMPARE(report.carried[0].former, "former.json");
    QCOMPARE(report.carried[0].formerTarget, "2023");
    QCOMPARE(report.carried[0].lines, 4);
    QCOMPARE(report.carried[0].standing, 1); // the other one was taken over once more
    QCOMPARE(report.carried[1].lines, 1);
    QCOMPARE(report.carried[1].standing, 1);
}

void tst_CarriedHistory::unreadable()
{
    QVERIFY(QFile::link(m_dir->filePath("nowhere"), mapping() + ".journal"));
    QString error;
    QVERIFY(!readCarriedSteps(mapping(), &error));
    QVERIFY2(error.contains(".journal"), qPrintable(error));
}

QTEST_GUILESS_MAIN(tst_CarriedHistory)
#include "tst_CarriedHistory.moc"
