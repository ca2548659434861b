// What a changed condition or variable mapping would mean for the lines of a project.
#include "EditorFixture.h"

#include <mapping/project/remapProjectLines.h>

#include <geomcore/binding/VarsetConditionC.h>
#include <geomcore/binding/VarsetVarMappingC.h>
#include <release/effect/RuleEffect.h>

using PRJMAPPING::Mapped;
using PRJMAPPING::ToCheck;
using PRJMAPPING::Verified;
using VelkRelease::RuleEffect;

namespace {

/// A project of two forms; each form has become a project with the same values.
struct Split
{
    Split()
    {
        catalog.write("old/a.prj", "Form,D,k:n\nA,M8,5\nA,M9,6\nB,M8,5\nB,M10,7\n");
        catalog.write("new/a.prj", "D,k:n\nM8,5\nM9,6\n");
        catalog.write("new/a-b.prj", "D,k:n\nM8,5\nM10,7\n");
        mapping = mappingOf("old/a.prj", {"new/a.prj", "new/a-b.prj"});
        table = catalog.read("old/a.prj");
    }
    [[nodiscard]] PrjMappingTargetC with(int target, const QStringList &conditions) const
    {
        PrjMappingTargetC changed = mapping.findTarget(target);
        changed.clearConditions();
        for (const QString &condition : conditions)
            changed.addCondition(VarsetConditionC::fromText(condition));
        return changed;
    }
    /// "lines taken settled: misfits".
    [[nodiscard]] QString effect(int target, const PrjMappingTargetC &changed) const
    {
        const auto found = VelkRelease::ruleEffect(mapping, target, changed, table);
        if (!found)
            return QStringLiteral("none");
        QString text =
            QStringLiteral("%1 %2 %3:").arg(found->lines).arg(found->taken).arg(found->settled);
        for (const int line : found->misfits)
            text += u' ' + QString::number(line);
        return text;
    }

    TestCatalog catalog;
    LocalCatalogs local{catalog.root()};
    PrjMappingC mapping;
    VKTab::ContentRef table;
};

} // namespace

class tst_RuleEffect : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takenLines_data();
    void takenLines();
    void settledAsAssigned();
    void decidedLinesAreNotSettled();
    void misfitsByCondition();
    void misfitsByValues();
    void whatNeverFittedIsNoMisfit();
    void ranges();
    void linesWithoutTargetComeAgain();
    void nothingIsChanged();
    void unreadableTarget();
    void unknownTarget();
    void cancelled();
};

void tst_RuleEffect::takenLines_data()
{
    QTest::addColumn<QStringList>("conditions");
    QTest::addColumn<int>("taken");
    QTest::newRow("none") << QStringList() << 4;
    QTest::newRow("one") << QStringList{"Form .EQ. 'A'"} << 2;
    QTest::newRow("both hold") << QStringList{"Form .EQ. 'B'", "k .GT. 6"} << 1;
    QTest::newRow("never") << QStringList{"Form .EQ. 'C'"} << 0;
    QTest::newRow("does not parse") << QStringList{"Form .EQ. '"} << 0;
    QTest::newRow("unknown name") << QStringList{"gone .EQ. 1"} << 0;
}

void tst_RuleEffect::takenLines()
{
    QFETCH(QStringList, conditions);
    QFETCH(int, taken);
    const Split split;
    const auto effect =
        VelkRelease::ruleEffect(split.mapping, 0, split.with(0, conditions), split.table);
    QVERIFY(effect);
    QCOMPARE(effect->lines, 4);
    QCOMPARE(effect->taken, taken);
}

void tst_RuleEffect::settledAsAssigned()
{
    // As many as an assignment with the changed target makes certain.
    Split split;
    for (const QStringList &conditions :
         {QStringList(), QStringList{"Form .EQ. 'A'"}, QStringList{"Form .EQ. 'B'"},
          QStringList{"k .LT. 6"}, QStringList{"Form .EQ. 'C'"}}) {
        PrjMappingC assigned = split.mapping;
        const PrjMappingTargetC changed = split.with(0, conditions);
        assigned.updateTarget(0, changed);
        remapProjectLines("old/a.prj", assigned, split.table, ReleaseMappingC(), {"Form", "k"},
                          false);
        int certain = 0;
        for (int i = 0; i < assigned.countTargets(); ++i)
            for (const LineTable::Iterator &entry : assigned.targetAt(i).lines())
                certain += entry.state() == Mapped && entry.targetLine() != -1 ? 1 : 0;
        const auto effect = VelkRelease::ruleEffect(split.mapping, 0, changed, split.table);
        QVERIFY(effect);
        QCOMPARE(effect->settled, certain);
    }
}

void tst_RuleEffect::decidedLinesAreNotSettled()
{
    Split split;
    split.mapping.updateTarget(1, split.with(1, {"Form .EQ. 'B'"}));
    const PrjMappingTargetC open = split.with(0, {"Form .EQ. 'A'"});
    QCOMPARE(split.effect(0, open), QStringLiteral("4 2 2:"));
    enter(split.mapping, 0, 1, 1, ToCheck); // a proposal that an assignment leaves alone
    QCOMPARE(split.effect(0, split.with(0, {"Form .EQ. 'A'"})), QStringLiteral("4 2 1:"));
    split.mapping.addTarget(QString(), QString());
    enter(split.mapping, 2, 2, -1, Verified); // expired
    QCOMPARE(split.effect(0, split.with(0, {"Form .EQ. 'A'"})), QStringLiteral("4 2 0:"));
}

void tst_RuleEffect::misfitsByCondition()
{
    Split split;
    enter(split.mapping, 0, 1, 1, Verified);
    enter(split.mapping, 0, 2, 2, Verified);
    enter(split.mapping, 0, 4, 1, Verified); // by hand, with other values
    enter(split.mapping, 0, 3, 1, Mapped);   // not confirmed
    QCOMPARE(split.effect(0, split.with(0, {"k .LT. 6"})).section(':', 1), QStringLiteral(" 2 4"));
    QCOMPARE(split.effect(0, split.with(0, {})).section(':', 1), QString());
}

void tst_RuleEffect::misfitsByValues()
{
    Split split;
    enter(split.mapping, 0, 1, 1, Verified);
    enter(split.mapping, 0, 4, 1, Verified); // other values already
    PrjMappingTargetC changed = split.mapping.findTarget(0);
    changed.addModifier(new VarsetVarMappingC("Form", "D"));
    QCOMPARE(split.effect(0, changed).section(':', 1), QStringLiteral(" 1"));
}

void tst_RuleEffect::whatNeverFittedIsNoMisfit()
{
    Split split;
    split.mapping.updateTarget(0, split.with(0, {"Form .EQ. 'B'"}));
    enter(split.mapping, 0, 1, 1, Verified);
    QCOMPARE(split.effect(0, split.with(0, {"Form .EQ. 'C'"})).section(':', 1), QString());
}

void tst_RuleEffect::ranges()
{
    const TestCatalog catalog;
    const LocalCatalogs local(catalog.root());
    catalog.write("old/a.prj", "D,L:r\nM8,\"10;20\"\nM9,\"30;40\"\nM10,50\n");
    catalog.write("new/a.prj", "D,L:n\nM8,20\nM9,30\n");
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    const VKTab::ContentRef table = catalog.read("old/a.prj");
    PrjMappingTargetC changed = mapping.findTarget(0);
    changed.addCondition(VarsetConditionC::fromText("L .GT. 15"));
    enter(mapping, 0, 1, 1, Verified);
    const auto effect = VelkRelease::ruleEffect(mapping, 0, changed, table);
    QVERIFY(effect);
    QCOMPARE(effect->taken, 3); // the first one with one of its combinations
}

void tst_RuleEffect::linesWithoutTargetComeAgain()
{
    Split split;
    split.mapping.updateTarget(1, split.with(1, {"Form .EQ. 'B'"}));
    split.mapping.addTarget(QString(), QString());
    for (int line = 1; line <= 4; ++line)
        enter(split.mapping, 2, line, -1, line == 1 ? Mapped : ToCheck);
    QCOMPARE(split.effect(0, split.with(0, {"Form .EQ. 'A'"})), QStringLiteral("4 2 2:"));
}

void tst_RuleEffect::nothingIsChanged()
{
    Split split;
    enter(split.mapping, 0, 1, 1, Verified);
    const QString before = entriesOf(split.mapping);
    QVERIFY(VelkRelease::ruleEffect(split.mapping, 0, split.with(0, {"k .GT. 6"}), split.table));
    QCOMPARE(entriesOf(split.mapping), before);
    QCOMPARE(split.mapping.findTarget(0).getConditions().size(), 0);
}

void tst_RuleEffect::unreadableTarget()
{
    Split split;
    enter(split.mapping, 0, 1, 1, Verified);
    QVERIFY(QFile::remove(split.catalog.file("new/a.json")));
    const MessageCapture messages;
    QCOMPARE(split.effect(0, split.with(0, {"Form .EQ. 'A'"})).section(' ', 0, 1),
             QStringLiteral("4 2"));
}

void tst_RuleEffect::unknownTarget()
{
    const Split split;
    QCOMPARE(split.effect(2, PrjMappingTargetC()), QStringLiteral("none"));
    QCOMPARE(split.effect(-1, PrjMappingTargetC()), QStringLiteral("none"));
}

void tst_RuleEffect::cancelled()
{
    const Split split;
    const std::atomic<bool> cancelled = true;
    QVERIFY(!VelkRelease::ruleEffect(split.mapping, 0, split.with(0, {}), split.table, &cancelled));
}

QTEST_MAIN(tst_RuleEffect)
#include "tst_RuleEffect.moc"
