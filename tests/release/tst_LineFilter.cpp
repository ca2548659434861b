#include "../support/TestCatalog.h"

#include <release/history/JournalRow.h>
#include <release/review/LineTraits.h>

#include <QTemporaryDir>
#include <QTest>

using namespace VelkRelease;
using PRJMAPPING::Mapped;
using PRJMAPPING::ToCheck;
using PRJMAPPING::Verified;

namespace {

QString textOf(const std::vector<int> &lines)
{
    QStringList texts;
    for (const int line : lines)
        texts += QString::number(line);
    return texts.join(u' ');
}

/// "a 2, b 1", in the order of the values.
QString textOf(const QHash<QString, int> &counts)
{
    QStringList texts;
    for (auto count = counts.cbegin(); count != counts.cend(); ++count)
        texts += count.key() + u' ' + QString::number(count.value());
    texts.sort();
    return texts.join(QStringLiteral(", "));
}

LineFilter filterOf(LineTrait trait, const QStringList &values, bool isNot = false)
{
    LineFilter filter;
    filter.of(trait) = {values, isNot};
    return filter;
}

} // namespace

class tst_LineFilter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void states_data();
    void states();
    void choice_data();
    void choice();
    void isKeptAsText();
    void linesOfStates();
    void firstStateOfSeveralEntries();
    void readsReasonsDifferencesAndAuthors();
    void decisionsAreTakenIn();
    void numbersAreThoseThatTheOthersLeave();
    void cancelled();

private:
    /// Bolts whose lines are equal, differ, or are missing in the new table.
    static ReleaseMappingC makeRelease(const TestCatalog &catalog)
    {
        catalog.write("old/a.prj",
                      "Name,D:n,W\nB8,8,steel\nB9,9,steel\nB10,10,steel\nB11,11,brass\n");
        catalog.write("new/a.prj", "Name,D:n,W\nB8,8,steel\nB9,9,iron\nB10,20,iron\n");
        PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj", ""});
        enter(mapping, 0, 1, 1, Mapped);
        enter(mapping, 0, 2, 2, ToCheck);
        enter(mapping, 0, 3, 3, ToCheck);
        enter(mapping, 1, 4, -1, ToCheck);
        ReleaseMappingC release;
        release.setSourceDate("2022");
        release.addMapping(mapping);
        return release;
    }
    static QString writeJournal(const QTemporaryDir &folder)
    {
        const QString file = folder.filePath("m.json");
        QByteArray rows;
        for (
            const char *const record :
            {R"({"kind":"opened","time":"2026-01-01T00:00:00.000Z","user":"anna","host":"h","sourceDate":"2022"})",
             R"({"kind":"change","step":1,"project":["old/a.prj","v1","",""],"known":[true,true],"state":[0,0],"count":2,"targets":[{"at":[0,0],"path":"new/a.prj","lines":[[2,1,0,2,0]]}]})",
             R"({"kind":"step","time":"2026-01-01T00:00:01.000Z","step":1,"origin":"edit","text":"x"})",
             R"({"kind":"saved","time":"2026-01-01T00:00:02.000Z","step":1,"fileHash":"0"})"})
            rows += JournalRow::frame(record);
        QFile journal(file + ".journal");
        if (!journal.open(QIODevice::WriteOnly) || journal.write(rows) != rows.size())
            return {};
        return file;
    }
};

void tst_LineFilter::states_data()
{
    QTest::addColumn<int>("target");
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("conflict");
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("open");
    QTest::newRow("conflict") << 3 << int(Verified) << true << "conflict" << true;
    QTest::newRow("to check") << 3 << int(ToCheck) << false << "toCheck" << true;
    QTest::newRow("without target") << -1 << int(ToCheck) << false << "notFound" << true;
    QTest::newRow("assigned by nobody") << -1 << int(Mapped) << false << "notFound" << true;
    QTest::newRow("assigned") << 3 << int(Mapped) << false << "proposed" << false;
    QTest::newRow("confirmed") << 3 << int(Verified) << false << "confirmed" << false;
    QTest::newRow("expired") << -1 << int(Verified) << false << "expired" << false;
}

void tst_LineFilter::states()
{
    QFETCH(int, target);
    QFETCH(int, state);
    QFETCH(bool, conflict);
    const LineState found = lineState(target, PRJMAPPING::CheckState(state), conflict);
    QTEST(lineStateKey(found), "key");
    QTEST(isOpen(found), "open");
}

void tst_LineFilter::choice_data()
{
    QTest::addColumn<QStringList>("values");
    QTest::addColumn<bool>("isNot");
    QTest::addColumn<QStringList>("ofLine");
    QTest::addColumn<bool>("accepted");
    const QStringList none;
    QTest::newRow("nothing chosen") << none << false << QStringList{"a"} << true;
    QTest::newRow("not of nothing") << none << true << QStringList{"a"} << true;
    QTest::newRow("one of two") << QStringList{"a", "b"} << false << QStringList{"b", "c"} << true;
    QTest::newRow("none of two") << QStringList{"a", "b"} << false << QStringList{"c"} << false;
    QTest::newRow("not") << QStringList{"a"} << true << QStringList{"a", "c"} << false;
    QTest::newRow("not the other") << QStringList{"a"} << true << QStringList{"c"} << true;
    QTest::newRow("without a value") << QStringList{"a"} << false << none << false;
    QTest::newRow("empty") << QStringList{QString()} << false << none << true;
    QTest::newRow("not empty") << QStringList{QString()} << true << none << false;
    QTest::newRow("not without a value") << QStringList{"a"} << true << none << true;
}

void tst_LineFilter::choice()
{
    QFETCH(QStringList, values);
    QFETCH(bool, isNot);
    QFETCH(QStringList, ofLine);
    const LineFilter::Choice choice{values, isNot};
    QTEST(choice.accepts(ofLine), "accepted");
}

void tst_LineFilter::isKeptAsText()
{
    LineFilter filter = filterOf(LineTrait::Column, {"Wérk,stoff", ""}, true);
    filter.of(LineTrait::State) = {{"toCheck"}, false};
    QCOMPARE(LineFilter::fromText(filter.toText()), filter);
    QCOMPARE(filter.toText(), QByteArray("{\"state\":{\"values\":[\"toCheck\"],\"not\":false},"
                                         "\"column\":{\"values\":[\"W\xc3\xa9rk,stoff\",\"\"],"
                                         "\"not\":true}}"));
    for (const char *const text : {"", "{", "[]", "{\"state\":7}", "{\"other\":{}}"})
        QVERIFY2(LineFilter::fromText(text).isEmpty(), text);
}

void tst_LineFilter::linesOfStates()
{
    const TestCatalog catalog;
    const LineTraits traits(makeRelease(catalog));
    QCOMPARE(traits.projectCount(), 1);
    QCOMPARE(textOf(traits.linesOf(0, {})), "1 2 3 4");
    QCOMPARE(textOf(traits.linesOf(0, filterOf(LineTrait::State, {"toCheck"}))), "2 3");
    QCOMPARE(textOf(traits.linesOf(0, filterOf(LineTrait::State, {"toCheck"}, true))), "1 4");
    QCOMPARE(traits.count(0, filterOf(LineTrait::State, {"toCheck", "notFound"})), 3);
    QVERIFY(traits.accepts(0, 4, filterOf(LineTrait::State, {"notFound"})));
    QVERIFY(!traits.accepts(0, 5, {}));
}

void tst_LineFilter::firstStateOfSeveralEntries()
{
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj", "new/b.prj"});
    enter(mapping, 0, 1, 1, Verified);
    enter(mapping, 1, 1, 1, ToCheck);
    ReleaseMappingC release;
    release.addMapping(mapping);
    const LineTraits traits(release);
    QCOMPARE(textOf(traits.counts(LineTrait::State, {})), "toCheck 1");
}

void tst_LineFilter::readsReasonsDifferencesAndAuthors()
{
    const TestCatalog catalog;
    IndexTreeC::instance()->setCatalogRoot(catalog.root());
    const QTemporaryDir folder;
    QStringList errors;
    const auto traits = LineTraits::compute(makeRelease(catalog), {.sourceRoot = catalog.root()},
                                            writeJournal(folder), &errors);
    QVERIFY(traits);
    QCOMPARE(errors, QStringList());
    QCOMPARE(textOf(traits->counts(LineTrait::Reason, {})), " 1, unlike 3");
    QCOMPARE(textOf(traits->counts(LineTrait::Column, {})), " 2, D 1, W 2");
    QCOMPARE(textOf(traits->counts(LineTrait::Author, {})), " 3, anna 1");
    QCOMPARE(textOf(traits->linesOf(0, filterOf(LineTrait::Author, {"anna"}))), "2");
    QCOMPARE(textOf(traits->linesOf(0, filterOf(LineTrait::Column, {"D"}))), "3");
    QCOMPARE(textOf(traits->linesOf(0, filterOf(LineTrait::Column, {"D"}, true))), "1 2 4");
    QCOMPARE(textOf(traits->linesOf(0, filterOf(LineTrait::Difference, {"otherNumber"}))), "3");
    LineFilter both = filterOf(LineTrait::Reason, {"unlike"});
    both.of(LineTrait::Column) = {{"W"}, false};
    both.of(LineTrait::Author) = {{"anna"}, true};
    QCOMPARE(textOf(traits->linesOf(0, both)), "3");
}

/// A decided line has no reason and no difference any more, and gets them back by undo.
void tst_LineFilter::decisionsAreTakenIn()
{
    const TestCatalog catalog;
    IndexTreeC::instance()->setCatalogRoot(catalog.root());
    QStringList errors;
    const ReleaseMappingC release = makeRelease(catalog);
    auto traits = LineTraits::compute(release, {.sourceRoot = catalog.root()}, {}, &errors);
    QVERIFY(traits);
    PrjMappingC decided = release.mappingAt(0);
    enter(decided, 0, 3, 3, Verified);
    traits->setMapping(0, decided, "bert");
    QCOMPARE(textOf(traits->linesOf(0, filterOf(LineTrait::Column, {"W"}))), "2");
    QCOMPARE(textOf(traits->linesOf(0, filterOf(LineTrait::State, {"confirmed"}))), "3");
    QCOMPARE(textOf(traits->counts(LineTrait::Author, {})), " 3, bert 1");
    traits->setMapping(0, release.mappingAt(0), "bert");
    QCOMPARE(textOf(traits->linesOf(0, filterOf(LineTrait::Column, {"W"}))), "2 3");
}

void tst_LineFilter::numbersAreThoseThatTheOthersLeave()
{
    const TestCatalog catalog;
    const LineTraits traits(makeRelease(catalog));
    LineFilter filter = filterOf(LineTrait::State, {"toCheck"});
    QCOMPARE(textOf(traits.counts(LineTrait::State, filter)), "notFound 1, proposed 1, toCheck 2");
    QCOMPARE(textOf(traits.counts(LineTrait::Author, filter)), " 2");
    filter.of(LineTrait::Author) = {{"anna"}, false};
    QCOMPARE(textOf(traits.counts(LineTrait::State, filter)), QString());
}

void tst_LineFilter::cancelled()
{
    const TestCatalog catalog;
    const std::atomic<bool> cancelled = true;
    QStringList errors;
    QVERIFY(!LineTraits::compute(makeRelease(catalog),
                                 {.sourceRoot = catalog.root(), .cancelled = &cancelled}, {},
                                 &errors));
}

QTEST_GUILESS_MAIN(tst_LineFilter)
#include "tst_LineFilter.moc"
