#include "../support/TestCatalog.h"

#include <core/parallel/WorkerPool.h>
#include <release/history/JournalRow.h>
#include <release/report/ReportHistory.h>
#include <release/report/ReportHtml.h>

#include <QRegularExpression>
#include <QScopeGuard>
#include <QTest>
#include <QXmlStreamReader>

using namespace VelkRelease;
using PRJMAPPING::Mapped;
using PRJMAPPING::ToCheck;
using PRJMAPPING::Verified;

namespace {

/// Two projects in two folders, with a line in each number.
struct Example
{
    Example()
    {
        IndexTreeC::instance()->setCatalogRoot(catalog.root());
        const auto named = [](VKTab::TableDescriptor &descriptor) {
            descriptor.lineDesignation = "bolt {Name} <{D}>";
        };
        catalog.write("cat/screws/a.prj", "Name,D:n\nB1,1\nB2,2\nB3,3\nB4,4\nB5,5\nB6,6\nB7,7\n",
                      named);
        catalog.write("cat/screws/b&c.prj", "Name,D:n\nB1,1\n", named);
        catalog.write("cat/nuts/a.prj", "Name,D:n\nB1,1\nB2,2\n", named);
        catalog.write("new/a.prj", "Name,D:n\nB1,1\nB2,20\nB3,3\nB4,4\nB5,5\n");
        PrjMappingC first = mappingOf("cat/screws/a.prj", {"new/a.prj", ""});
        enter(first, 0, 1, 1, Verified);
        enter(first, 0, 2, 2, ToCheck);
        enter(first, 0, 3, 3, Mapped);
        enter(first, 0, 4, 4, Verified);
        PrjMappingTargetC target = first.targetAt(0);
        target.setLineConflicted(4, true);
        first.updateTarget(0, target);
        enter(first, 1, 5, -1, Verified);
        enter(first, 1, 6, -1, ToCheck);
        enter(first, 1, 7, -1, Verified);
        target = first.targetAt(1);
        target.setLineConflicted(7, true);
        first.updateTarget(1, target);
        PrjMappingC second = mappingOf("cat/screws/b&c.prj", {"new/a.prj", ""});
        enter(second, 1, 1, -1, Verified);
        PrjMappingC third = mappingOf("cat/nuts/a.prj", {"new/a.prj", ""});
        enter(third, 0, 1, 1, ToCheck);
        enter(third, 0, 2, 2, ToCheck);
        release.setSourceDate("v1");
        release.setTargetDate("v2");
        for (const PrjMappingC &mapping : {first, second, third})
            release.addMapping(mapping);
    }

    [[nodiscard]] ReleaseReport report() const
    {
        return makeReleaseReport(release, {.sourceRoot = catalog.root()}).value();
    }

    const TestCatalog catalog;
    ReleaseMappingC release;
};

QString textOf(const ReportNumbers &numbers)
{
    return QString("%1 %2 %3 %4 %5 %6 = %7")
        .arg(numbers.confirmed)
        .arg(numbers.gone)
        .arg(numbers.certain)
        .arg(numbers.toCheck)
        .arg(numbers.withoutTarget)
        .arg(numbers.inConflict)
        .arg(numbers.lines());
}

/// Texts by their numbers, "<3>" for the fourth, so that nothing but texts stands unescaped.
ReportForm form()
{
    ReportForm form;
    form.text = [](ReportText text) {
        const QString name = QString("<%1>").arg(int(text));
        switch (text) {
        case ReportText::Title:
        case ReportText::Made:
        case ReportText::More:
        case ReportText::InDoubt:
            return name + "%1";
        case ReportText::Releases:
            return name + "%1-%2";
        case ReportText::Summary:
            return name + "%1/%2/%3";
        default:
            return name;
        }
    };
    form.reason = [](OpenReason reason) {
        return openReasonKey(reason);
    };
    form.changes = {"near", "other", "wording", "added", "missing", "spelling"};
    form.goneGroups = {"folder %1", "project %1", "table %1", "%1 lost %2", "unlike %1"};
    form.time = [](const QDateTime &time) {
        return time.toString(Qt::ISODate);
    };
    form.language = "xx";
    return form;
}

/// The rows of the section with that heading: cells parted by "|".
QStringList rowsOf(const QString &html, ReportText head)
{
    const QString heading = QString("<h2>&lt;%1&gt;</h2>").arg(int(head));
    const qsizetype begin = html.indexOf(heading);
    if (begin < 0)
        return {"no such section"};
    const qsizetype end = html.indexOf("</table>", begin);
    QStringList rows;
    QRegularExpressionMatchIterator row =
        QRegularExpression("<tr>(.*?)</tr>").globalMatch(html.mid(begin, end - begin));
    while (row.hasNext()) {
        QString cells = row.next().captured(1);
        cells.replace(QRegularExpression("</t[dh]><t[dh][^>]*>"), "|");
        rows << cells.remove(QRegularExpression("</?t[dh][^>]*>"));
    }
    return rows;
}

} // namespace

class tst_ReleaseReport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbersAddUp();
    void everyEntryOnce();
    void folders();
    void lines();
    void unreadableTable();
    void cancelled();
    void sameForAnyNumberOfThreads();
    void page();
    void sections();
    void openLinesAddUp();
    void nothingToTell();
    void longLists();
    void hostileTexts();
    void history();
    void unreadableHistory();
};

void tst_ReleaseReport::numbersAddUp()
{
    const Example example;
    int last = 0;
    const auto made = makeReleaseReport(example.release, {.sourceRoot = example.catalog.root()},
                                        [&](int done, int count) {
                                            QCOMPARE(count, 9);
                                            QVERIFY(done >= last);
                                            last = done;
                                        });
    QCOMPARE(last, 9);
    QCOMPARE(made->sourceDate, "v1");
    QCOMPARE(made->targetDate, "v2");
    QCOMPARE(textOf(made->projects[0].numbers), "1 1 1 1 1 2 = 7");
    QCOMPARE(textOf(made->projects[1].numbers), "0 1 0 0 0 0 = 1");
    QCOMPARE(textOf(made->projects[2].numbers), "0 0 0 2 0 0 = 2");
    QCOMPARE(textOf(made->total.numbers), "1 2 1 3 1 2 = 10");
    QCOMPARE(made->total.numbers.open(), int(made->openLines.size()));
    QCOMPARE(made->total.numbers.gone, int(made->goneLines.size()));
    int reasons = 0;
    for (const int count : made->total.reasons)
        reasons += count;
    QCOMPARE(reasons, made->total.numbers.open());
    QCOMPARE(made->errors, QStringList());
}

/// Every state, with and without target line and conflict, is in one number.
void tst_ReleaseReport::everyEntryOnce()
{
    for (const int targetLine : {-1, 7}) {
        for (int state = 0; state < 5; ++state) {
            for (const bool conflict : {false, true}) {
                LineCounts counts;
                counts.add(targetLine, state, conflict);
                const ReportNumbers numbers = ReportNumbers::of(counts);
                QCOMPARE(numbers.lines(), 1);
                QCOMPARE(numbers.inConflict, conflict ? 1 : 0);
                for (const int number : {numbers.confirmed, numbers.gone, numbers.certain,
                                         numbers.toCheck, numbers.withoutTarget})
                    QVERIFY(number == 0 || number == 1);
            }
        }
    }
}

void tst_ReleaseReport::folders()
{
    const ReleaseReport report = Example().report();
    QStringList folders;
    for (const ReleaseReport::Part &folder : report.folders)
        folders << folder.path + ' ' + QString::number(folder.numbers.lines());
    QCOMPARE(folders, (QStringList{"cat 10", "cat/nuts 2", "cat/screws 8"}));
    QCOMPARE(report.folders[0].reasons, report.total.reasons);
}

void tst_ReleaseReport::lines()
{
    const ReleaseReport report = Example().report();
    QStringList open;
    for (const ReleaseReport::OpenLine &line : report.openLines)
        open << report.placeText(line.project, line.line) + ' ' + openReasonKey(line.reason) + ' ' +
                    line.designation;
    QCOMPARE(open, (QStringList{"cat/screws/a.prj:2 unlike bolt B2 <2>",
                                "cat/screws/a.prj:4 clash bolt B4 <4>",
                                "cat/screws/a.prj:6 unlike bolt B6 <6>",
                                "cat/screws/a.prj:7 clash bolt B7 <7>",
                                "cat/nuts/a.prj:1 unconfirmed bolt B1 <1>",
                                "cat/nuts/a.prj:2 unlike bolt B2 <2>"}));
    QStringList gone;
    for (const ReleaseReport::GoneLine &line : report.goneLines)
        gone << report.placeText(line.project, line.line) + ' ' + line.designation;
    QCOMPARE(gone,
             (QStringList{"cat/screws/a.prj:5 bolt B5 <5>", "cat/screws/b&c.prj:1 bolt B1 <1>"}));
    QCOMPARE(report.patterns.openLines(), 3);
}

void tst_ReleaseReport::unreadableTable()
{
    Example example;
    PrjMappingC lost = mappingOf("cat/lost.prj", {"new/a.prj", ""});
    enter(lost, 0, 1, 1, ToCheck);
    enter(lost, 1, 2, -1, Verified);
    lost.setMappingState(lost.getMappingState() | PRJMAPPING::StateTableError);
    example.release.addMapping(lost);
    const ReleaseReport report = example.report();
    QCOMPARE(report.errors.size(), 1);
    QVERIFY(report.projects[3].hasTableError && report.total.hasTableError);
    QVERIFY(report.folders[0].hasTableError && !report.folders[1].hasTableError);
    QCOMPARE(report.openLines.back().reason, OpenReason::Unreadable);
    QCOMPARE(report.goneLines.back().designation, QString());
    const QString html = reportHtml(report, form());
    QVERIFY(html.contains(report.errors.first().toHtmlEscaped()));
    QCOMPARE(rowsOf(html, ReportText::ProjectHead).last(),
             QString("cat/lost.prj (&lt;%1&gt;)|0|1|0|1|0|0|2").arg(int(ReportText::TableError)));
}

void tst_ReleaseReport::cancelled()
{
    const Example example;
    std::atomic<bool> ended = true;
    OpenReasonOptions options;
    options.sourceRoot = example.catalog.root();
    options.cancelled = &ended;
    QVERIFY(!makeReleaseReport(example.release, options));
    ended = false;
    // In the middle of the second and of the third part.
    for (const int at : {4, 7}) {
        ended = false;
        QVERIFY(!makeReleaseReport(example.release, options,
                                   [&](int done, int /*count*/) { ended = done >= at; }));
    }
}

void tst_ReleaseReport::sameForAnyNumberOfThreads()
{
    const Example example;
    const auto guard = qScopeGuard([] { WorkerPool::instance().setThreads(0); });
    QString first;
    for (const int threads : {1, 4}) {
        WorkerPool::instance().setThreads(threads);
        const QString html = reportHtml(example.report(), form());
        if (first.isEmpty())
            first = html;
        QCOMPARE(html, first);
    }
}

void tst_ReleaseReport::page()
{
    ReleaseReport report = Example().report();
    report.name = "x & <y>.json";
    report.made = QDateTime(QDate(2026, 11, 22), QTime(8, 30), Qt::UTC);
    const QString html = reportHtml(report, form());
    QVERIFY(html.startsWith("<!DOCTYPE html>\n<html lang=\"xx\">\n"));
    QVERIFY(html.contains("<title>&lt;0&gt;x &amp; &lt;y&gt;.json</title>"));
    QVERIFY(html.contains("&lt;1&gt;v1-v2<br>&lt;2&gt;2026-11-22T08:30:00Z"));
    QVERIFY(html.contains("&lt;3&gt;4/10/6"));
    // Well formed but for what HTML leaves open, and nothing from elsewhere.
    QString xml = html;
    xml.replace("<br>", "<br/>").replace("<meta charset=\"utf-8\">", "");
    QXmlStreamReader reader(xml);
    while (!reader.atEnd())
        reader.readNext();
    QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
    for (const char *word : {"src=", "href=", "url(", "@import", "<script"})
        QVERIFY2(!html.contains(word), word);
}

void tst_ReleaseReport::sections()
{
    ReleaseReport report = Example().report();
    const QDateTime time(QDate(2026, 11, 22), QTime(8, 30), Qt::UTC);
    report.samples = {
        {time, "anna", 300, 59, 59, 0.04951, {"a.prj:3", "a.prj:17", "b<c.prj:2", "a.prj:4"}},
        {time, "bob", 20, 3, 2, std::nullopt, {"a.prj:1"}},
        {time, "eve", 5, 5, 5, 0.0, {}}};
    report.carried = {{time, "anna", "f<1>.json", "2023", 40, 38}};
    report.decisions = {{time, "anna", "12 lines confirmed", "as agreed", 12}};
    const QString html = reportHtml(report, form());
    const auto body = [&](ReportText head) {
        return rowsOf(html, head).mid(1);
    };
    QCOMPARE(rowsOf(html, ReportText::TotalHead).last(),
             QString("&lt;%1&gt;|10").arg(int(ReportText::Lines)));
    QCOMPARE(body(ReportText::ReasonHead), (QStringList{"clash|2", "unlike|3", "unconfirmed|1"}));
    QCOMPARE(
        body(ReportText::FolderHead),
        (QStringList{"cat|1|2|1|3|1|2|10", "cat/nuts|0|0|0|2|0|0|2", "cat/screws|1|2|1|1|1|2|8"}));
    QCOMPARE(body(ReportText::ProjectHead),
             (QStringList{"cat/screws/a.prj|1|1|1|1|1|2|7", "cat/screws/b&amp;c.prj|0|1|0|0|0|0|1",
                          "cat/nuts/a.prj|0|0|0|2|0|0|2"}));
    QCOMPARE(
        body(ReportText::SampleHead),
        (QStringList{"2026-11-22T08:30:00Z|anna|300|59|59|5.0 %|a.prj:3, 17; b&lt;c.prj:2; a.prj:4",
                     QString("2026-11-22T08:30:00Z|bob|20|3|2|&lt;%1&gt;|a.prj:1")
                         .arg(int(ReportText::Refused)),
                     "2026-11-22T08:30:00Z|eve|5|5|5|0.0 %|"}));
    QCOMPARE(body(ReportText::CarriedHead),
             QStringList{"2026-11-22T08:30:00Z|anna|f&lt;1&gt;.json (2023)|40|38"});
    QCOMPARE(body(ReportText::DecisionHead),
             QStringList{"2026-11-22T08:30:00Z|anna|12 lines confirmed|as agreed|12"});
    QCOMPARE(body(ReportText::OpenHead).first(), "cat/screws/a.prj:2|bolt B2 &lt;2&gt;|unlike");
    QCOMPARE(body(ReportText::GoneHead).last(), "cat/screws/b&amp;c.prj:1|bolt B1 &lt;1&gt;");
    QCOMPARE(body(ReportText::PatternHead).size(), 3);
    QVERIFY(body(ReportText::PatternHead)[0].endsWith("cat/screws/a.prj:2, cat/nuts/a.prj:2"));
}

/// Each open line without a conflict is in one pattern or one group, and the sums say so.
void tst_ReleaseReport::openLinesAddUp()
{
    Example example;
    // All that went to a project that is not there any more, a whole project without target, and a
    // value that no new line has.
    example.catalog.write("cat/nuts/b.prj", "Name,W\nB1,CuZn\nB2,CuZn\nB3,St\nB4,St\n");
    example.catalog.write("cat/nuts/c.prj", "Name,W\nC<1>,St\n");
    example.catalog.write("new/b.prj", "Name,W\nB3,St\nX,Al\n");
    PrjMappingC values = mappingOf("cat/nuts/b.prj", {"new/b.prj", "new/dropped.prj", ""});
    enter(values, 0, 3, 1, Mapped);
    enter(values, 1, 4, 9, ToCheck);
    enter(values, 2, 1, -1, ToCheck);
    enter(values, 2, 2, -1, ToCheck);
    example.release.addMapping(values);
    PrjMappingC whole = mappingOf("cat/nuts/c.prj", {"new/b.prj", ""});
    enter(whole, 1, 1, -1, ToCheck);
    example.release.addMapping(whole);
    const ReleaseReport report = example.report();
    const ReportNumbers &numbers = report.total.numbers;
    QCOMPARE(textOf(numbers), "1 2 2 4 4 2 = 15");
    const auto rowsWith = [&](int most, ReportText head) {
        ReportForm limited = form();
        limited.mostRows = most;
        return rowsOf(reportHtml(report, limited), head).mid(1);
    };
    QStringList groups;
    int lines = 0;
    for (const QString &row : rowsWith(-1, ReportText::GoneGroupHead)) {
        const QStringList cells = row.split('|');
        groups << cells[0] + ' ' + cells[1] + ' ' + cells[2] + ' ' + cells.last();
        lines += cells.size() == 5 ? cells[1].toInt() : 0;
    }
    const QString doubt = QString("&lt;%1&gt;").arg(int(ReportText::InDoubt));
    const QString inAll = QString("&lt;%1&gt;").arg(int(ReportText::InAll));
    QCOMPARE(groups,
             (QStringList{"W lost CuZn 2 1 cat/nuts/b.prj:1, cat/nuts/b.prj:2",
                          "unlike cat/screws 1 1 cat/screws/a.prj:6",
                          "table new/dropped.prj 1 1 cat/nuts/b.prj:4",
                          doubt + "project cat/nuts/c.prj 1 1 cat/nuts/c.prj:1", inAll + " 5  "}));
    QCOMPARE(lines, 5);
    QCOMPARE(report.patterns.openLines() + report.patterns.goneLines(),
             numbers.toCheck + numbers.withoutTarget);
    QVERIFY(rowsWith(-1, ReportText::PatternHead).last().startsWith(inAll + "|3|"));
    // The sum of all, however few are listed.
    const QStringList few = rowsWith(1, ReportText::GoneGroupHead);
    QCOMPARE(few.size(), 3);
    QVERIFY(few[1].startsWith(QString("&lt;%1&gt;").arg(int(ReportText::More))));
    QVERIFY(few[2].startsWith(inAll + "|5|"));
}

void tst_ReleaseReport::nothingToTell()
{
    const QString html = reportHtml(ReleaseReport(), form());
    const QString nothing = QString("&lt;%1&gt;").arg(int(ReportText::Nothing));
    for (const ReportText head :
         {ReportText::ReasonHead, ReportText::FolderHead, ReportText::ProjectHead,
          ReportText::PatternHead, ReportText::GoneGroupHead, ReportText::SampleHead,
          ReportText::CarriedHead, ReportText::DecisionHead, ReportText::OpenHead,
          ReportText::GoneHead})
        QCOMPARE(rowsOf(html, head).last(), nothing);
    QVERIFY(!html.contains(QString("&lt;%1&gt;").arg(int(ReportText::ErrorHead))));
}

void tst_ReleaseReport::longLists()
{
    const ReleaseReport report = Example().report();
    ReportForm few = form();
    few.mostRows = 2;
    const QStringList rows = rowsOf(reportHtml(report, few), ReportText::OpenHead);
    QCOMPARE(rows.size(), 4);
    QCOMPARE(rows.last(), QString("&lt;%1&gt;4").arg(int(ReportText::More)));
    few.mostRows = 6;
    QCOMPARE(rowsOf(reportHtml(report, few), ReportText::OpenHead).size(), 7);
}

void tst_ReleaseReport::hostileTexts()
{
    ReleaseReport report;
    const QString text = "\"<b>%1%2&amp;</td></table>" + QString::fromUcs4(U"\U0001F529");
    report.name = text;
    report.sourceDate = "%1%2%3";
    report.projects.push_back({text, {}, {}, false});
    report.openLines.push_back({0, 1, OpenReason::Clash, text});
    report.decisions.push_back({{}, text, text, text, 1});
    report.errors << text;
    const QString html = reportHtml(report, form());
    QVERIFY(!html.contains("<b>%1%2"));
    // Title twice, project, line twice, decision three times, error.
    QCOMPARE(html.count(text.toHtmlEscaped()), 9);
    QCOMPARE(rowsOf(html, ReportText::OpenHead).last().count('|'), 2);
}

namespace {

/// A session of the release, with a step on two lines and one on a third.
QByteArray session(const QByteArray &user, const QByteArray &day, const QByteArray &release = "v1")
{
    const QByteArray change =
        R"("project":["cat/a.prj","v1","t","t"],"known":[true,true],"state":[0,0],"count":3,)"
        R"("targets":[{"at":[0,0],"path":"new/a.prj","lines":)";
    const QByteArray time = R"("time":"2026-11-)" + day + "T08:0";
    QByteArray rows;
    for (
        const QByteArray &record :
        {R"({"kind":"opened",)" + time + R"(0:00.000Z","user":")" + user +
             R"(","host":"h","sourceDate":")" + release + R"("})",
         R"({"kind":"change","step":1,)" + change + "[[1,1,0,1,2],[2,2,0,2,2]]}]}",
         R"({"kind":"step",)" + time +
             R"(1:00.000Z","step":1,"origin":"edit","text":"two <confirmed>"})",
         R"({"kind":"change","step":2,)" + change + "[[3,3,0,3,2]]}]}",
         R"({"kind":"step",)" + time +
             R"(2:00.000Z","step":2,"origin":"edit","text":"one confirmed"})",
         R"({"kind":"reason",)" + time +
             R"(3:00.000Z","note":{"project":"cat/a.prj","version":"v1","lines":[3],)"
             R"("reason":"by telephone"}})",
         R"({"kind":"sample",)" + time + R"(4:00.000Z","note":{"judge":")" + user +
             R"(","lines":345,"drawn":["cat/a.prj:3"],"judged":59,"right":59,"bound":"0.049500"}})"})
        rows += JournalRow::frame(record);
    return rows;
}

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

} // namespace

void tst_ReleaseReport::history()
{
    const QTemporaryDir folder;
    const QString mapping = folder.filePath("m.json");
    ReleaseReport report;
    report.sourceDate = "v1";
    QString error;
    QVERIFY(addHistory(report, {}, mapping, &error));
    QVERIFY(report.decisions.empty() && report.samples.empty());
    writeFile(mapping + ".journal", session("bob", "20"));
    writeFile(mapping + ".journal.alt-20261119",
              session("anna", "10") + session("eve", "11", "another"));
    QVERIFY2(addHistory(report, {}, mapping, &error), qPrintable(error));
    QStringList told;
    for (const ReleaseReport::Decision &decision : report.decisions)
        told << QString("%1 %2: %3 (%4) %5")
                    .arg(QString::number(decision.time.date().day()), decision.who, decision.what,
                         decision.reason, QString::number(decision.lines));
    QCOMPARE(told, (QStringList{
                       "10 anna: two <confirmed> () 2", "10 anna: one confirmed (by telephone) 1",
                       "20 bob: two <confirmed> () 2", "20 bob: one confirmed (by telephone) 1"}));
    QCOMPARE(report.samples.size(), size_t(2));
    QCOMPARE(report.samples[0].judge, "anna");
    QCOMPARE(report.samples[1].judge, "bob");
    QCOMPARE(report.samples[1].lines, 345);
    QCOMPARE(report.samples[1].drawn, QStringList{"cat/a.prj:3"});
    QCOMPARE(report.samples[1].judged, 59);
    QCOMPARE(report.samples[1].right, 59);
    QCOMPARE(report.samples[1].bound, std::optional(0.0495));
}

void tst_ReleaseReport::unreadableHistory()
{
    const QTemporaryDir folder;
    const QString mapping = folder.filePath("m.json");
    QVERIFY(QFile::link(folder.filePath("nowhere"), mapping + ".journal"));
    ReleaseReport report;
    report.sourceDate = "v1";
    QString error;
    QVERIFY(!addHistory(report, {}, mapping, &error));
    QVERIFY2(error.contains(".journal"), qPrintable(error));
    QVERIFY(report.decisions.empty());
}

QTEST_GUILESS_MAIN(tst_ReleaseReport)
#include "tst_ReleaseReport.moc"
