#include "../support/TestCatalog.h"
#include "TableText.h"

#include <geomcore/binding/VarsetConditionC.h>
#include <geomcore/binding/VarsetVarMappingC.h>
#include <release/assign/ReleaseMappingBuilder.h>
#include <release/assign/RuleProposals.h>

#include <QTemporaryDir>
#include <QTest>

using VelkRelease::LineCells;
using VelkRelease::ReleaseMappingBuilder;
using VelkRelease::RuleProposals;
using VelkRelease::VariableNames;

namespace {

/// A project and its targets by their texts.
struct Tables
{
    Tables(const QByteArray &sourceText, const QByteArrayList &targetTexts, bool areNear = false)
        : source(cellsOf(sourceText, names))
        , isNear(areNear)
    {
        for (const QByteArray &text : targetTexts)
            targets.push_back(cellsOf(text, names));
    }
    [[nodiscard]] RuleProposals proposals() const
    {
        std::vector<RuleProposals::Target> all;
        for (const LineCells &target : targets)
            all.push_back({&target, isNear});
        return {source, all};
    }
    /// "a>b c>d".
    [[nodiscard]] QString renames(int target = 0) const
    {
        QStringList texts;
        const RuleProposals found = proposals();
        for (const RuleProposals::Rename &rename : found.renames(target))
            texts += names.nameOf(rename.source) + '>' + names.nameOf(rename.target);
        return texts.join(' ');
    }
    /// "form: 0 1|2": variable and rows for each target.
    [[nodiscard]] QString split() const
    {
        const RuleProposals::Split split = proposals().split();
        if (split.variable < 0)
            return {};
        QStringList parts;
        for (const std::vector<int> &rows : split.rows) {
            QStringList part;
            for (const int row : rows)
                part += QString::number(row);
            parts += part.join(' ');
        }
        return names.nameOf(split.variable) + ": " + parts.join('|');
    }

    VariableNames names;
    LineCells source;
    bool isNear;
    std::vector<LineCells> targets;
};

} // namespace

class tst_RuleProposals : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void renames_data();
    void renames();
    void renamesNearby_data();
    void renamesNearby();
    void split_data();
    void split();
    void splitOfRenamedVariables();
    void builderProposes();
    void builderProposesNothing();
    void hostileValues();
};

void tst_RuleProposals::renames_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<QString>("renames");
    QTest::newRow("by the lines") << QByteArray("a,s,k;1,5,x;2,6,y;3,7,z;4,5,x")
                                  << QByteArray("a,wide,k;1,5,x;2,6,y;3,7,z;4,5,x") << "s>wide";
    QTest::newRow("lines in another order")
        << QByteArray("a,s;1,5;2,6;3,7;4,8") << QByteArray("w,a;8,4;6,2;7,3;5,1") << "s>w";
    QTest::newRow("one of ten was changed")
        << QByteArray("a,s;1,5;2,6;3,7;4,8;5,9;6,1;7,2;8,3;9,4;10,5")
        << QByteArray("a,w;1,5;2,6;3,7;4,8;5,9;6,1;7,2;8,3;9,4;10,6") << "s>w";
    QTest::newRow("two of four were changed")
        << QByteArray("a,s;1,5;2,6;3,7;4,8") << QByteArray("a,w;1,5;2,6;3,70;4,80") << "";
    QTest::newRow("two variables") << QByteArray("a,s,k;1,5,x;2,6,y;3,7,z")
                                   << QByteArray("a,w,t;1,5,x;2,6,y;3,7,z") << "s>w k>t";
    QTest::newRow("crossed names") << QByteArray("a,s,k;1,5,8;2,6,9;3,7,10")
                                   << QByteArray("a,kk,ss;1,8,5;2,9,6;3,10,7") << "s>ss k>kk";
    QTest::newRow("either would do")
        << QByteArray("a,s;1,5;2,6;3,7") << QByteArray("a,v,w;1,5,5;2,6,6;3,7,7") << "";
    QTest::newRow("one value says nothing")
        << QByteArray("a,s;1,5;2,5;3,5") << QByteArray("a,w;1,5;2,5;3,5") << "";
    QTest::newRow("alike names, other values")
        << QByteArray("a,width;1,5;2,6;3,7") << QByteArray("a,Width;1,50;2,60;3,70") << "";
    QTest::newRow("all names are others, by the values")
        << QByteArray("d,s;1,11;2,12;3,13;4,14") << QByteArray("dd,ss;1,11;2,12;3,13;4,14")
        << "d>dd s>ss";
    QTest::newRow("same values in other lines")
        << QByteArray("d,s;1,11;2,12;3,13;4,14") << QByteArray("dd,ss;4,11;3,12;2,13;1,14") << "";
    QTest::newRow("by the values, with further lines")
        << QByteArray("d,s;1,11;2,12;3,13;4,14")
        << QByteArray("dd,ss;0,10;1,11;2,12;3,13;4,14;5,15") << "d>dd s>ss";
    QTest::newRow("by the values, another one reworded")
        << QByteArray("d,s;1,11;2,12;3,13;4,14") << QByteArray("d,ss;a,11;b,12;c,13;d,14")
        << "s>ss";
    QTest::newRow("by the values, some of another kept")
        << QByteArray("d,s;1,11;2,12;3,13;4,14;5,15;6,16")
        << QByteArray("d,ss;1,16;b,12;c,13;d,14;e,15;f,11") << "s>ss";
    QTest::newRow("by the values, most of another kept")
        << QByteArray("d,s;1,11;2,12;3,13;4,14;5,15;6,16")
        << QByteArray("d,ss;1,16;2,12;3,13;4,14;5,11;f,15") << "";
    QTest::newRow("some lines equal by chance")
        << QByteArray("d,s;1,11;2,12;3,13;4,14;5,15;6,16;8,18;12,22")
        << QByteArray("d,ss;2,11;4,12;6,13;8,14;10,15;12,16;16,18;24,22") << "s>ss";
    QTest::newRow("nothing is gone")
        << QByteArray("a,s;1,5;2,6;3,7") << QByteArray("a,s,t;1,5,5;2,6,6;3,7,7") << "";
    QTest::newRow("no lines") << QByteArray("a,s") << QByteArray("a,w") << "";
}

void tst_RuleProposals::renames()
{
    QFETCH(QByteArray, source);
    QFETCH(QByteArray, target);
    const Tables tables(source, {target});
    QTEST(tables.renames(), "renames");
}

void tst_RuleProposals::renamesNearby_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<bool>("isNear");
    QTest::addColumn<QString>("renames");
    const QByteArray source = "s;11;12;13;14;15;16";
    const QByteArray most = "t,ss;a,11;b,12;c,13;d,14;e,17";
    QTest::newRow("two thirds of the values") << source << most << true << "s>ss";
    QTest::newRow("two thirds of the values, elsewhere") << source << most << false << "";
    QTest::newRow("half of the values")
        << source << QByteArray("t,ss;a,11;b,12;c,13;d,18;e,17") << true << "";
    QTest::newRow("two columns alike")
        << source << QByteArray("t,ss;11,11;12,12;13,13;14,14;19,17") << true << "";
}

/// In the folder of the project less has to be as it was.
void tst_RuleProposals::renamesNearby()
{
    QFETCH(QByteArray, source);
    QFETCH(QByteArray, target);
    QFETCH(bool, isNear);
    const Tables tables(source, {target}, isNear);
    QTEST(tables.renames(), "renames");
}

void tst_RuleProposals::split_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArrayList>("targets");
    QTest::addColumn<QString>("split");
    const QByteArray forms = "form,d,k;A,1,5;A,2,6;A,3,7;B,2,6;B,3,7;B,4,8";
    QTest::newRow("by form") << forms << QByteArrayList{"d,k;1,5;2,6;3,7", "d,k;2,6;3,7;4,8"}
                             << "form: 0|3";
    QTest::newRow("the other way round")
        << forms << QByteArrayList{"d,k;2,6;3,7;4,8", "d,k;1,5;2,6;3,7"} << "form: 3|0";
    QTest::newRow("several values for one")
        << QByteArray("form,d;A,1;B,2;B,3;C,4;C,5;C,6") << QByteArrayList{"d;1;2;3", "d;4;5;6"}
        << "form: 0 1|3";
    QTest::newRow("both parts are the same")
        << QByteArray("form,d;A,1;A,2;B,1;B,2") << QByteArrayList{"d;1;2", "d;1;2"} << "";
    QTest::newRow("the variable is still there")
        << QByteArray("form,d;A,1;A,2;B,3;B,4")
        << QByteArrayList{"form,d;A,1;A,2", "form,d;B,3;B,4"} << "";
    QTest::newRow("one target") << forms << QByteArrayList{"d,k;1,5;2,6;3,7"} << "";
    QTest::newRow("a line without value")
        << QByteArray("form,d;A,1;A,2;,3;B,4") << QByteArrayList{"d;1;2", "d;3;4"} << "";
    QTest::newRow("half of the lines are gone")
        << QByteArray("form,d;A,1;A,2;B,3;B,4") << QByteArrayList{"d;1;9;10;11", "d;3;12;13;14"}
        << "";
    QTest::newRow("one variable changed in all lines")
        << forms << QByteArrayList{"d,k;1,50;2,60;3,70", "d,k;2,61;3,71;4,81"} << "form: 0|3";
    QTest::newRow("one variable changed in many lines")
        << forms << QByteArrayList{"d,k;1,5;2,60;3,70", "d,k;2,61;3,7;4,81"} << "form: 0|3";
    QTest::newRow("everything changed")
        << forms << QByteArrayList{"d,k;11,50;12,60;13,70", "d,k;12,61;13,71;14,81"} << "";
    // Each value stands in one line, so it would be a list of the lines and no rule.
    QTest::newRow("too many values")
        << QByteArray("n,d;a,1;b,2;c,3;d,4;e,5;f,6;g,7;h,8;i,9;j,10;k,11;l,12;m,13")
        << QByteArrayList{"d;1;2;3;4;5;6", "d;7;8;9;10;11;12;13"} << "";
}

void tst_RuleProposals::split()
{
    QFETCH(QByteArray, source);
    QFETCH(QByteArrayList, targets);
    const Tables tables(source, targets);
    QTEST(tables.split(), "split");
}

void tst_RuleProposals::splitOfRenamedVariables()
{
    const Tables tables("form,d,s;A,1,5;A,2,6;A,3,7;B,4,8;B,5,9;B,6,10",
                        {"d,w;1,5;2,6;3,7", "d,w;4,8;5,9;6,10"});
    QCOMPARE(tables.renames(0), QStringLiteral("s>w"));
    QCOMPARE(tables.renames(1), QStringLiteral("s>w"));
    QCOMPARE(tables.split(), QStringLiteral("form: 0|3"));
}

namespace {

/// Rules of all targets of the only mapping: "condition; source>target" for each.
QStringList rulesOf(const QByteArray &source, const QByteArrayList &targets,
                    const QStringList &names)
{
    const QTemporaryDir directory;
    TestCatalog old(directory.filePath("r1/old"));
    TestCatalog now(directory.filePath("r2/new"));
    old.add("a/ring", source);
    for (int i = 0; i < targets.size(); ++i)
        now.add(names[i], targets[i]);
    ReleaseMappingBuilder::Input input;
    input.sourceRoot = directory.filePath("r1");
    input.targetRoot = directory.filePath("r2");
    input.sourceCatalog = "old";
    input.targetCatalog = "new";
    ReleaseMappingBuilder builder(input);
    QStringList texts;
    if (builder.build() != ReleaseMappingBuilder::Outcome::Complete)
        return texts;
    const PrjMappingC mapping = builder.release().getMappingList().constFirst();
    for (const PrjMappingTargetC &target : mapping.getTargets()) {
        QStringList rules;
        for (const VarsetConditionI *condition : target.getConditions())
            rules += condition->getCondition();
        for (const VarsetModifierI *modifier : target.getVarsetModifier()) {
            const auto *const plain = dynamic_cast<const VarsetVarMappingC *>(modifier);
            rules += plain ? plain->getSourceVarName() + '>' + plain->getTargetVarName()
                           : QStringLiteral("?");
        }
        if (rules.isEmpty() == target.hasProposedRules())
            rules += QStringLiteral("marked: %1").arg(target.hasProposedRules());
        texts += rules.join("; ");
    }
    return texts;
}

} // namespace

void tst_RuleProposals::builderProposes()
{
    QCOMPARE(rulesOf("form,d,k,m,n,s;A,1,5,1,3,21;A,2,6,1,3,22;A,3,7,1,3,23;B,2,6,1,3,22;"
                     "B,3,7,1,3,23;B,4,8,1,3,24",
                     {"d,k,m,n,w;1,5,1,3,21;2,6,1,3,22;3,7,1,3,23",
                      "d,k,m,n,w;2,6,1,3,22;3,7,1,3,23;4,8,1,3,24"},
                     {"b/ring-a", "b/ring-b"}),
             QStringList({"form .EQ. 'A'; s>w", "form .EQ. 'B'; s>w"}));
    // Texts that look like numbers are texts.
    QCOMPARE(rulesOf("type,d,k;1.5,1,5;1.5,2,6;1.5,3,7;2,4,8;2,5,9;2,6,10",
                     {"d,k;1,5;2,6;3,7", "d,k;4,8;5,9;6,10"}, {"b/x", "b/y"}),
             QStringList({"type .EQ. '1.5'", "type .EQ. '2'"}));
}

void tst_RuleProposals::builderProposesNothing()
{
    QCOMPARE(rulesOf("d,k;1,5;2,6;3,7", {"d,k;1,5;2,6;3,7"}, {"a/ring"}), QStringList(""));
}

void tst_RuleProposals::hostileValues()
{
    QCOMPARE(rulesOf("form,d,k;it's,1,5;it's,2,6;it's,3,7;%1<b>,4,8;%1<b>,5,9;%1<b>,6,10",
                     {"d,k;1,5;2,6;3,7", "d,k;4,8;5,9;6,10"}, {"b/x", "b/y"}),
             QStringList({"form .EQ. 'it''s'", "form .EQ. '%1<b>'"}));
    // A name that no condition can have.
    QCOMPARE(rulesOf("my form,d,k;A,1,5;A,2,6;A,3,7;B,4,8;B,5,9;B,6,10",
                     {"d,k;1,5;2,6;3,7", "d,k;4,8;5,9;6,10"}, {"b/x", "b/y"}),
             QStringList({"", ""}));
}

QTEST_MAIN(tst_RuleProposals)
#include "tst_RuleProposals.moc"
