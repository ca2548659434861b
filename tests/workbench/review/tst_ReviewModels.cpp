#include <geomcore/records/LineTable.h>
#include <release/pattern/DifferencePatterns.h>
#include <workbench/review/CandidateModel.h>
#include <workbench/review/DifferenceDelegate.h>
#include <workbench/review/DifferenceModel.h>
#include <workbench/review/PatternModel.h>

#include <QAbstractItemModelTester>
#include <QPainter>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>

using VelkRelease::DifferencePatterns;
using VelkRelease::OpenPair;
using Outcome = ComparedVariableC::Outcome;
using Marks = QList<QPair<int, int>>;

namespace {

PrjMappingC proposed(const QString &path, int lines)
{
    PrjMappingC mapping;
    mapping.setSourcePath(path);
    mapping.addTarget("new/a.prj", QString());
    mapping.changeTarget(0, [&](PrjMappingTargetC &target) {
        for (int line = 1; line <= lines; ++line)
            target.addLineId(line, line, PRJMAPPING::ToCheck, QString());
    });
    return mapping;
}

OpenPair pairOf(int line, const QString &before, const QString &after, double probability)
{
    return {line, 0, line, probability, {}, true, {{"W", before, after}}};
}

/// Two projects, three patterns of 3, 2 and 1 lines.
DifferencePatterns samplePatterns()
{
    ReleaseMappingC release;
    release.addMapping(proposed("a.prj", 4));
    release.addMapping(proposed("b.prj", 2));
    return {release,
            {{{pairOf(1, "x", "y", 0.92), pairOf(2, "x", "y", 0.95), pairOf(3, "1", "", 0.9),
               pairOf(4, "u", "v", 0.999)},
              {}},
             {{pairOf(1, "x", "y", 1), pairOf(2, "u", "v", 0.999)}, {}}}};
}

/// The same, and lines without a successor: two lost a value, one is alone.
DifferencePatterns patternsWithGone()
{
    ReleaseMappingC release;
    PrjMappingC mapping = proposed("cat/a.prj", 2);
    mapping.addTarget("", QString());
    mapping.changeTarget(1, [](PrjMappingTargetC &target) {
        for (const int line : {3, 4, 5})
            target.addLineId(line, -1, PRJMAPPING::ToCheck, QString());
    });
    release.addMapping(mapping);
    const auto gone = [](int line, const QString &value, double probability) {
        OpenPair pair{line, -1, -1, probability, {}, true, {}};
        pair.gone = VelkRelease::GoneSigns{false, {{"FK", value}}};
        return pair;
    };
    return {release,
            {{{pairOf(1, "x", "y", 0.92), pairOf(2, "u", "v", 0.92), gone(3, "5.6", 0.95),
               gone(4, "5.6", 0.99), gone(5, "4.8", 0.5)},
              {}}}};
}

QString textOf(const QAbstractItemModel &model)
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < model.columnCount(); ++column)
            cells << model.index(row, column).data().toString();
        rows << cells.join('|');
    }
    return rows.join('\n');
}

} // namespace

class tst_ReviewModels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void patterns();
    void patternsFollowDecisions();
    void patternsComeBackToTheirPlace();
    void goneGroupsComeLast();
    void differences();
    void candidates();
    void marksAreSeen();
};

void tst_ReviewModels::patterns()
{
    PatternModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    QCOMPARE(model.rowCount(), 0);
    const DifferencePatterns patterns = samplePatterns();
    model.setPatterns(&patterns);
    QCOMPARE(textOf(model), "W: x → y|3|2|95 %|0\n"
                            "W: u → v|2|2|99 %|0\n"
                            "W: Wert fehlt|1|1|90 %|0");
    QCOMPARE(model.lineCount(), patterns.openLines());
    QCOMPARE(model.index(0, PatternModel::Lines).data(PatternModel::ValueRole).toInt(), 3);
    QCOMPARE(model.rowOf(model.patternAt(2)), 2);
    QCOMPARE(model.patternAt(3), -1);
    QCOMPARE(model.rowOf(99), -1);
    QCOMPARE(model.headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(), "Unterschied");
    QVERIFY(model.index(0, 0).data(Qt::ToolTipRole).toString().startsWith("W: x → y\n"));
    model.setPatterns(nullptr);
    QCOMPARE(model.rowCount(), 0);
}

void tst_ReviewModels::patternsFollowDecisions()
{
    DifferencePatterns patterns = samplePatterns();
    PatternModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setPatterns(&patterns);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    PrjMappingC mapping = proposed("a.prj", 4);
    const PrjMappingC before = mapping;
    // Two lines of the first pattern, the only one of the last.
    mapping.changeTarget(0, [](PrjMappingTargetC &target) {
        for (const int line : {1, 2, 3})
            target.addLineId(line, line, PRJMAPPING::Verified, QString());
    });
    patterns.setMapping(0, mapping);
    model.update();
    // The order stays though the first row has fewer lines now.
    QCOMPARE(textOf(model), "W: x → y|1|1|100 %|0\nW: u → v|2|2|99 %|0");
    QCOMPARE(model.lineCount(), patterns.openLines());
    QCOMPARE(changed.count(), 1);
    patterns.setMapping(0, before);
    model.update();
    QCOMPARE(model.rowCount(), 3);
    QCOMPARE(model.lineCount(), 6);
    QCOMPARE(reset.count(), 0);
}

/// A row that went comes back to where it stood, though it has fewer lines than the next by then.
void tst_ReviewModels::patternsComeBackToTheirPlace()
{
    DifferencePatterns patterns = samplePatterns();
    PatternModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setPatterns(&patterns);
    const QString all = textOf(model);
    const auto confirm = [&](int project, QList<int> lines) {
        PrjMappingC mapping = proposed(project == 0 ? "a.prj" : "b.prj", project == 0 ? 4 : 2);
        mapping.changeTarget(0, [&](PrjMappingTargetC &target) {
            for (const int line : std::as_const(lines))
                target.addLineId(line, line, PRJMAPPING::Verified, QString());
        });
        patterns.setMapping(project, mapping);
        model.update();
    };
    confirm(0, {1, 2});
    confirm(1, {1});
    QCOMPARE(textOf(model), "W: u → v|2|2|99 %|0\nW: Wert fehlt|1|1|90 %|0");
    confirm(1, {});
    QCOMPARE(textOf(model), "W: x → y|1|1|100 %|0\nW: u → v|2|2|99 %|0\nW: Wert fehlt|1|1|90 %|0");
    confirm(0, {1, 2, 4});
    confirm(1, {1, 2});
    QCOMPARE(textOf(model), "W: Wert fehlt|1|1|90 %|0");
    // All at once.
    confirm(0, {});
    confirm(1, {});
    QCOMPARE(textOf(model), all);
}

/// Even where they have more lines. The sum is that of both.
void tst_ReviewModels::goneGroupsComeLast()
{
    DifferencePatterns patterns = patternsWithGone();
    PatternModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setPatterns(&patterns);
    QCOMPARE(textOf(model), "W: anderer Wortlaut|2|1|92 %|0\n"
                            "FK: 5.6 gibt es nicht mehr|2|1|97 %|0\n"
                            "unsicher: keine ähnliche Zeile: cat|1|1|50 %|0");
    QCOMPARE(patterns.openLines(), 2);
    QCOMPARE(patterns.goneLines(), 3);
    QCOMPARE(model.lineCount(), 5);
    QVERIFY(model.index(1, 0)
                .data(Qt::ToolTipRole)
                .toString()
                .startsWith("FK: 5.6 gibt es nicht mehr\n"));
    PrjMappingC mapping = proposed("cat/a.prj", 2);
    mapping.addTarget("", QString());
    mapping.changeTarget(1, [](PrjMappingTargetC &target) {
        for (const int line : {3, 4})
            target.addLineId(line, -1, PRJMAPPING::Verified, QString());
        target.addLineId(5, -1, PRJMAPPING::ToCheck, QString());
    });
    patterns.setMapping(0, mapping);
    model.update();
    QCOMPARE(textOf(model), "W: anderer Wortlaut|2|1|92 %|0\n"
                            "unsicher: keine ähnliche Zeile: cat|1|1|50 %|0");
    QCOMPARE(model.lineCount(), 3);
}

void tst_ReviewModels::differences()
{
    DifferenceModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setVariables({{"Name", "M8", "M8", Outcome::Equal, 0},
                        {"Norm", "DIN 933 - M8", "ISO 4017 - M8", Outcome::Near, 0},
                        {"Nothing", "", "", Outcome::Equal, 0},
                        {"k", "5", "5.0", Outcome::Equal, 0},
                        {"W", "St37", "S235", Outcome::Replaced, 12},
                        {"R", "", "new", Outcome::Missing, 0}});
    QCOMPARE(textOf(model), "Norm|DIN 933 - M8|ISO 4017 - M8\nW|St37|S235\nR||new\n"
                            "Name|M8|M8\nk|5|5.0");
    QCOMPARE(model.differentCount(), 3);
    const auto marks = [&](int row, int column) {
        return model.index(row, column).data(DifferenceModel::MarksRole).value<Marks>();
    };
    QCOMPARE(marks(0, DifferenceModel::OldValue), (Marks{{0, 7}}));
    QCOMPARE(marks(0, DifferenceModel::NewValue), (Marks{{0, 8}}));
    QCOMPARE(marks(2, DifferenceModel::OldValue), Marks());
    QCOMPARE(marks(2, DifferenceModel::NewValue), (Marks{{0, 3}}));
    // Equal numbers are equal, however they are written.
    QCOMPARE(marks(4, DifferenceModel::NewValue), Marks());
    QVERIFY(model.index(1, 0).data(Qt::ToolTipRole).toString().contains("12"));
    model.setVariables({});
    QCOMPARE(model.rowCount(), 0);
}

void tst_ReviewModels::candidates()
{
    CandidateModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    QCOMPARE(model.rowCount(), 0);
    LineCandidatesC candidates;
    candidates.candidates = {{0, "new/a.prj", VKTab::LineId(7), 0.8, {}, "because"},
                             {1, "new/b.prj", VKTab::LineId(9), 0.15, {}, "perhaps"}};
    candidates.noSuccessor = 0.05;
    model.setCandidates(candidates, 1, 9);
    QCOMPARE(textOf(model), "1|80 %|a.prj:7|because\n2|15 %|b.prj:9|perhaps\n"
                            "|5 %|kein Nachfolger|");
    // The one that it is assigned to.
    QVERIFY(!model.index(0, 0).data(Qt::FontRole).isValid());
    QVERIFY(model.index(1, 0).data(Qt::FontRole).value<QFont>().bold());
    QVERIFY(!model.index(2, 0).data(Qt::FontRole).isValid());
    model.clear();
    QCOMPARE(model.rowCount(), 0);
}

void tst_ReviewModels::marksAreSeen()
{
    DifferenceModel model;
    QTableView view;
    view.setModel(&model);
    view.setItemDelegate(new DifferenceDelegate(&view));
    QPalette palette = view.palette();
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    view.setPalette(palette);
    view.resize(500, 200);
    const auto marked = [&](const ComparedVariableC &variable) {
        model.setVariables({variable});
        view.clearSelection();
        const QImage image = view.viewport()->grab().toImage();
        const QColor mark(255, 224, 130);
        int points = 0;
        for (int x = 0; x < image.width(); ++x) {
            for (int y = 0; y < image.height(); ++y)
                points += image.pixelColor(x, y) == mark ? 1 : 0;
        }
        return points;
    };
    QCOMPARE(marked({"W", "St37", "St37", Outcome::Equal, 0}), 0);
    const int one = marked({"W", "M8 x 20", "M8 x 25", Outcome::Near, 0});
    QVERIFY(one > 50);
    QVERIFY(marked({"W", "M8 x 20", "M9 x 25", Outcome::Near, 0}) > one);
}

QTEST_MAIN(tst_ReviewModels)
#include "tst_ReviewModels.moc"
