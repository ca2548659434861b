// What rules that the program proposed may do, and what not.
#include "EditorFixture.h"

#include <mapping/project/remapProjectLines.h>

#include <core/json/PJsonValue.h>
#include <geomcore/binding/VarsetConditionC.h>
#include <geomcore/binding/VarsetVarMappingC.h>
#include <geomcore/mapper/PrjMapperC.h>
#include <geomcore/records/MappingFile.h>
#include <geomcore/records/sameTargetHead.h>
#include <geomcore/table/LineView.h>

using PRJMAPPING::Mapped;
using PRJMAPPING::ToCheck;
using PRJMAPPING::Verified;

namespace {

struct Project
{
    Project(const QByteArray &source, const QByteArray &first, const QByteArray &second = {})
    {
        catalog.write("old/a.prj", source);
        catalog.write("new/a.prj", first);
        QStringList targets{"new/a.prj"};
        if (!second.isEmpty()) {
            catalog.write("new/a-b.prj", second);
            targets += "new/a-b.prj";
        }
        mapping = mappingOf("old/a.prj", targets);
    }
    void propose(int target)
    {
        mapping.changeTarget(target,
                             [](PrjMappingTargetC &changed) { changed.setProposedRules(true); });
    }
    [[nodiscard]] QString assigned()
    {
        VKTab::ContentRef table = catalog.read("old/a.prj");
        PrjMappingC result = mapping;
        remapProjectLines("old/a.prj", result, table, ReleaseMappingC(), {"Form", "D", "k"}, true);
        return entriesOf(result);
    }

    TestCatalog catalog;
    LocalCatalogs local{catalog.root()};
    MessageCapture messages;
    PrjMappingC mapping;
};

/// A variable has another name, and the other ones leave two lines for each.
Project renamed()
{
    return {"D,k:n\nM8,5\nM8,6\nM9,7\nM9,8\n", "D,t:n\nM8,5\nM8,6\nM9,7\nM9,8\n"};
}

} // namespace

class tst_ProposedRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void flagOfTheRecord();
    void stored();
    void proposedMappingIsNotCertain();
    void certainWithoutItStaysCertain();
    void wrongMappingMakesNothingCertain();
    void proposedConditionIsNotCertain();
    void confirmedLineStandsForIt();
    void confirmedExpiredLineDoesNot();
    void messageOfTheCheck();
};

void tst_ProposedRules::flagOfTheRecord()
{
    PrjMappingTargetC target;
    QVERIFY(!target.hasProposedRules());
    target.setProposedRules(true);
    PrjMappingTargetC copy = target;
    QVERIFY(copy.hasProposedRules());
    QVERIFY(!sameTargetHead(copy, PrjMappingTargetC()));
    copy.addLineId(1, 1, Mapped, QString());
    QVERIFY(copy.hasProposedRules());
    copy.clearConditions(); // whoever writes rules anew stands for them
    QVERIFY(!copy.hasProposedRules());
    target.clearModifier();
    QVERIFY(!target.hasProposedRules());
}

void tst_ProposedRules::stored()
{
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj", "new/b.prj"});
    addCondition(mapping, 0, "k .LT. 9");
    mapping.changeTarget(0, [](PrjMappingTargetC &target) { target.setProposedRules(true); });
    PJsonValue json;
    catalogOf(mapping).lastRelease().toJson(json, false);
    const QByteArray text = json.toByteArray(true);
    QCOMPARE(text.count("\"proposed\":true"), 1);
    ReleaseMappingC read;
    QVERIFY(read.fromJson(json));
    QVERIFY(read.mappingAt(0).targetAt(0).hasProposedRules());
    QVERIFY(!read.mappingAt(0).targetAt(1).hasProposedRules());
}

void tst_ProposedRules::proposedMappingIsNotCertain()
{
    Project project = renamed();
    addRename(project.mapping, 0, "k", "t");
    QCOMPARE(project.assigned(), QStringLiteral("0:1>1/1 0:2>2/1 0:3>3/1 0:4>4/1"));
    project.propose(0);
    QCOMPARE(project.assigned(), QStringLiteral("0:1>1/0 0:2>2/0 0:3>3/0 0:4>4/0"));
}

void tst_ProposedRules::certainWithoutItStaysCertain()
{
    Project project("D,k:n,s:n\nM8,5,1\nM9,6,2\nM10,7,3\n", "D,t:n,s:n\nM8,5,1\nM9,6,2\nM10,7,3\n");
    addRename(project.mapping, 0, "k", "t");
    project.propose(0);
    QCOMPARE(project.assigned(), QStringLiteral("0:1>1/1 0:2>2/1 0:3>3/1"));
}

void tst_ProposedRules::wrongMappingMakesNothingCertain()
{
    // Whatever is proposed: what is certain with it was certain without it.
    for (const auto &[source, target] :
         {std::pair("D", "t"), std::pair("k", "D"), std::pair("k", "t"), std::pair("", "D")}) {
        Project project = renamed();
        const QString without = project.assigned();
        addRename(project.mapping, 0, source, target);
        project.propose(0);
        const QStringList entries = project.assigned().split(' ');
        for (const QString &entry : entries)
            QVERIFY2(!entry.endsWith("/1") || without.contains(entry), qPrintable(entry));
    }
}

void tst_ProposedRules::proposedConditionIsNotCertain()
{
    Project project("Form,D,k:n\nA,M8,5\nA,M9,6\nB,M9,6\nB,M10,7\n", "D,k:n\nM8,5\nM9,6\n",
                    "D,k:n\nM9,6\nM10,7\n");
    addCondition(project.mapping, 0, "Form .EQ. 'A'");
    addCondition(project.mapping, 1, "Form .EQ. 'B'");
    QCOMPARE(project.assigned(), QStringLiteral("0:1>1/1 0:2>2/1 1:3>1/0 1:4>2/0"));
    project.propose(0);
    project.propose(1);
    // A line that both targets hold is a proposal, in the right target.
    QCOMPARE(project.assigned(), QStringLiteral("0:1>1/1 0:2>2/0 1:3>1/0 1:4>2/0"));
}

void tst_ProposedRules::confirmedLineStandsForIt()
{
    Project project = renamed();
    addRename(project.mapping, 0, "k", "t");
    project.propose(0);
    enter(project.mapping, 0, 1, 1, Verified);
    QCOMPARE(project.assigned(), QStringLiteral("0:1>1/2 0:2>2/1 0:3>3/1 0:4>4/1"));
}

void tst_ProposedRules::confirmedExpiredLineDoesNot()
{
    Project project = renamed();
    addRename(project.mapping, 0, "k", "t");
    project.propose(0);
    enter(project.mapping, 0, 1, -1, Verified);
    QVERIFY(project.assigned().contains("0:2>2/0"));
}

void tst_ProposedRules::messageOfTheCheck()
{
    Project project = renamed();
    addRename(project.mapping, 0, "k", "t");
    project.propose(0);
    enter(project.mapping, 0, 1, 1, ToCheck);
    PrjMapperC mapper(IndexTreeC::instance());
    mapper.setCreatorMode(true);
    const VKTab::ContentRef table = project.catalog.read("old/a.prj");
    mapper.setSourceTable(table);
    (void)mapper.findMapping("old/a.prj", "v1", catalogOf(project.mapping));
    const VKTab::LineView view(table, VKTab::LineId(1));
    const PrjMapperLineC line = mapper.findLine(1, view);
    const PrjMapperCheckResultC result =
        mapper.checkMapping(line, view, CheckModeFlags(CheckValues) | CheckConditions, QString());
    QCOMPARE(result.getErrMsgList(),
             QStringList("Nur wegen vorgeschlagener Bedingungen oder Variablenzuordnungen gleich. "
                         "Sie gelten, sobald eine Zeile des Ziels bestätigt ist."));
}

QTEST_MAIN(tst_ProposedRules)
#include "tst_ProposedRules.moc"
