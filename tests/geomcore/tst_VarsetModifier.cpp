#include "../support/TestTables.h"
#include "ExpressionTesting.h"

#include <geomcore/binding/BoundModifiers.h>
#include <geomcore/binding/createVarsetFromVKTable.h>
#include <geomcore/binding/VarsetValueMappingC.h>
#include <geomcore/binding/VarsetVarMappingC.h>
#include <geomcore/table/LineView.h>
#include <geomcore/table/TableData.h>

#include <core/json/PJsonValue.h>
#include <core/message/PScriptedMessageSink.h>
#include <core/message/PStringMessageImpl.h>

#include <QTest>

#include <memory>
#include <vector>

using namespace ExpressionTesting;
using VKTab::BoundModifiers;
using Origin = BoundModifiers::Origin;

namespace {

/// Modifiers from short texts: "source>target", or a formula.
struct Modifiers
{
    explicit Modifiers(const QStringList &texts)
    {
        for (const QString &text : texts) {
            const QStringList names = text.split('>');
            if (names.size() == 2)
                owned.push_back(std::make_unique<VarsetVarMappingC>(names[0], names[1]));
            else
                owned.emplace_back(VarsetValueMappingC::fromText(text));
            list.append(owned.back().get());
        }
    }

    Varset applied(const Varset &in) const
    {
        Varset out = in;
        for (const VarsetModifierI *modifier : list)
            modifier->updateVarset(in, out);
        return out;
    }

    std::vector<std::unique_ptr<VarsetModifierI>> owned;
    QList<const VarsetModifierI *> list;
};

std::shared_ptr<const VKTab::TableData> table(const QByteArray &csv)
{
    return VKTab::TableData::fromMemory({}, csv).data;
}

} // namespace

class tst_VarsetModifier : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void updateVarset_data()
    {
        QTest::addColumn<QStringList>("modifiers");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const QStringList &modifiers, const char *expected) {
            QTest::newRow(name) << modifiers << expected;
        };
        row("none: all pass through", {}, "A=1 B=2 T=x");
        row("renamed, the old name stays", {"A>X"}, "A=1 B=2 T=x X=1");
        row("over an existing name", {"A>B"}, "A=1 B=1 T=x");
        row("ignored", {">A"}, "B=2 T=x");
        row("ignored and unknown", {">Z"}, "A=1 B=2 T=x");
        row("nothing to nothing", {">"}, "A=1 B=2 T=x");
        row("to nothing", {"A>"}, "A=1 B=2 T=x");
        row("from an unknown variable", {"Z>A"}, "A B=2 T=x");
        row("exchanged", {"A>B", "B>A"}, "A=2 B=1 T=x");
        row("ignored, then mapped", {">A", "B>A"}, "A=2 B=2 T=x");
        row("mapped, then ignored", {"B>A", ">A"}, "B=2 T=x");
        row("formula", {"X = A * 10 + B"}, "A=1 B=2 T=x X=12");
        row("formula over its own variable", {"A = A / 4"}, "A=0.25 B=2 T=x");
        row("formula with a text", {"T = CONCAT(T, '-', A)"}, "A=1 B=2 T=x-1");
        row("formula hands a value on", {"X = T"}, "A=1 B=2 T=x X=x");
        row("formula without a result", {"A = B / 0"}, "A B=2 T=x");
        row("formula of an unknown variable", {"A = Z + 1"}, "A B=2 T=x");
        row("formulas read the source line", {"A = 5", "B = A"}, "A=5 B=1 T=x");
        row("the prefix reads what was made", {"A = 5", "B = SOURCE@A"}, "A=5 B=5 T=x");
        row("the prefix reads what passed through", {"X = SOURCE@A + 1"}, "A=1 B=2 T=x X=2");
        row("the prefix reads what was mapped", {"B>A", "X = SOURCE@A"}, "A=2 B=2 T=x X=2");
        row("the prefix after an ignored variable", {">A", "X = SOURCE@A"}, "B=2 T=x X");
        row("formula that does not parse", {"A = ", "B = 3"}, "A=1 B=3 T=x");
        row("no assignment", {"A + 1"}, "A=1 B=2 T=x");
    }
    void updateVarset()
    {
        QFETCH(QStringList, modifiers);
        QFETCH(QString, expected);
        const PMessageSinkScope scope(std::make_shared<PScriptedMessageSink>());
        const Varset in = varset({{"A", "1"}, {"B", "2"}, {"T", "x"}});
        const Modifiers made(modifiers);
        const Varset out = made.applied(in);
        QCOMPARE(listed(out).join(' '), expected);
        QCOMPARE(listed(in).join(' '), "A=1 B=2 T=x");
        for (auto it = out.begin(); it != out.end(); ++it)
            QCOMPARE(it->getName(), it.key());

        const auto lines = table("A,B,T\n1,2,x\n");
        const BoundModifiers bound(made.list, lines.get());
        QCOMPARE(listed(bound.varset(VKTab::LineView(*lines, 0))).join(' '), expected);
    }

    void numericFlag()
    {
        Varset in;
        in.insert("A", value("A", "1", true));
        in.insert("T", value("T", "1", false));
        const Modifiers made({"A>X", "T>Y", "Z>W", "F = A + 1", "G = 'a'", "H = A / 0"});
        const Varset out = made.applied(in);
        QVERIFY(out["X"].isNumeric());
        QVERIFY(!out["Y"].isNumeric());
        QVERIFY(!out["W"].isNumeric());
        QVERIFY(out["W"].getValue().isNull());
        QVERIFY(out["F"].isNumeric());
        QVERIFY(!out["G"].isNumeric());
        QVERIFY(!out["H"].isNumeric());
        QVERIFY(out["H"].getValue().isNull());
    }

    void varMapping()
    {
        const VarsetVarMappingC mapping("A", "B");
        QCOMPARE(mapping.getSourceVarName(), "A");
        QCOMPARE(mapping.getTargetVarName(), "B");
        const VarsetModifierI &modifier = mapping;
        const std::unique_ptr<VarsetModifierI> copy(modifier.clone());
        const auto *typed = dynamic_cast<VarsetVarMappingC *>(copy.get());
        QVERIFY(typed && typed != &mapping);
        QCOMPARE(typed->getSourceVarName(), "A");
        QCOMPARE(typed->getTargetVarName(), "B");
        QVERIFY(!dynamic_cast<VarsetValueMappingC *>(copy.get()));
    }

    void valueMapping()
    {
        const QString text = " X =\nA * 2 ";
        const std::unique_ptr<VarsetValueMappingC> mapping(
            VarsetValueMappingC::create(text, varset({{"A", "1"}}), varset({{"X", ""}})));
        QVERIFY(mapping);
        QCOMPARE(mapping->getFormula(), text);
        QCOMPARE(mapping->getTargetVarName(), "X");
        const VarsetModifierI &modifier = *mapping;
        const std::unique_ptr<VarsetModifierI> copy(modifier.clone());
        const auto *typed = dynamic_cast<VarsetValueMappingC *>(copy.get());
        QVERIFY(typed && typed != mapping.get());
        QCOMPARE(typed->getFormula(), text);
        Varset out;
        copy->updateVarset(varset({{"A", "4"}}), out);
        QCOMPARE(listed(out), QStringList{"X=8"});
    }

    void createRefuses_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("message");
        QTest::newRow("no text") << ""
                                 << "error: Zeichen 1: Der Text ist leer";
        QTest::newRow("value") << "A + 1"
                               << "error: Eine Formel muss einer Variablen einen Wert zuweisen";
        QTest::newRow("comparison")
            << "A .EQ. 1"
            << "error: Eine Formel muss einer Variablen einen Wert zuweisen";
        QTest::newRow("unknown source variable")
            << "X = Z"
            << "error: Zeichen 5: Die Variable Z ist nicht bekannt";
        QTest::newRow("unknown target variable")
            << "A = 1"
            << "error: Zeichen 1: Die Variable A existiert nicht in der Zieltabelle";
    }
    void createRefuses()
    {
        QFETCH(QString, text);
        QFETCH(QString, message);
        PStringMessageImpl capture(PMsgReply::Cancel, false);
        QVERIFY(!VarsetValueMappingC::create(text, varset({{"A", ""}}), varset({{"X", ""}})));
        QCOMPARE(capture.getMessages(), (QHash<QString, QStringList>{{"error", {message}}}));
    }

    void fromTextThatDoesNotParse()
    {
        const auto sink = std::make_shared<PScriptedMessageSink>();
        const PMessageSinkScope scope(sink);
        const std::unique_ptr<VarsetValueMappingC> mapping(VarsetValueMappingC::fromText("X ="));
        QCOMPARE(mapping->getFormula(), "X =");
        QCOMPARE(mapping->getTargetVarName(), QString());
        Varset out;
        mapping->updateVarset({}, out);
        const std::unique_ptr<VarsetValueMappingC> copy(mapping->clone());
        copy->updateVarset({}, out);
        QVERIFY(out.isEmpty());
        const QString error = "Zeichen 4: Erwartet wird ein Wert, gefunden wurde das Ende";
        QCOMPARE(mapping->error(), error);
        QCOMPARE(sink->logged(), QStringList{"X = enthält Fehler! " + error});
    }

    void json()
    {
        PJsonValue var;
        VarsetVarMappingC("A", "B").toJson(var);
        QCOMPARE(var.toByteArray(true), "{\"kind\":\"var\",\"source\":\"A\",\"target\":\"B\"}");
        PJsonValue ignored;
        VarsetVarMappingC("", "B").toJson(ignored);
        QCOMPARE(ignored.toByteArray(true), "{\"kind\":\"var\",\"source\":\"\",\"target\":\"B\"}");
        PJsonValue formula;
        std::unique_ptr<VarsetModifierI>(VarsetValueMappingC::fromText("X = 'a\"' "))
            ->toJson(formula);
        QCOMPARE(formula.toByteArray(true), "{\"kind\":\"value\",\"formula\":\"X = 'a\\\"' \"}");
    }

    void origins()
    {
        const auto lines = table("A,B,T\n1,2,x\n");
        const Modifiers made({"B>A", ">T", "Z>Y", "X = SOURCE@A + 1", "B = SOURCE@X", "B>C"});
        const BoundModifiers bound(made.list, lines.get());
        QCOMPARE(bound.origin("A"), (Origin{Origin::Column, 1}));
        QCOMPARE(bound.origin("B"), (Origin{Origin::Formula, 1}));
        QCOMPARE(bound.origin("C"), (Origin{Origin::Column, 1}));
        QCOMPARE(bound.origin("T"), (Origin{Origin::Absent, -1}));
        QCOMPARE(bound.origin("X"), (Origin{Origin::Formula, 0}));
        QCOMPARE(bound.origin("Y"), (Origin{Origin::NoValue, -1}));
        QCOMPARE(bound.origin("unknown"), Origin());
        QCOMPARE(bound.names(), (QStringList{"A", "B", "Y", "X", "C"}));
        QCOMPARE(bound.formulaCount(), 2);

        BoundModifiers::Results results;
        std::string scratch;
        const VKTab::LineView line(*lines, 0);
        bound.evaluate(line, results);
        QCOMPARE(bound.text(bound.origin("A"), line, results, scratch), "2");
        QCOMPARE(bound.text(bound.origin("B"), line, results, scratch), "3");
        QCOMPARE(bound.text(bound.origin("Y"), line, results, scratch), "");
        QCOMPARE(bound.text(bound.origin("T"), line, results, scratch), "");
    }

    /// A computed variable without a column of the file is there like any other.
    void computedVariables()
    {
        const VKTab::ContentRef screws = TestTables::screws();
        const Modifiers made({"Volume>V", "X = Volume + SOURCE@V"});
        const BoundModifiers bound(made.list, screws.getTableData().get());
        QCOMPARE(bound.names(), (QStringList{"Dia", "L", "Note", "Weight", "Volume", "V", "X"}));
        for (const VKTab::LineId &id : screws.getLineIdList()) {
            const Varset in = createVarsetFromVKTable(screws, id, {});
            const Varset out = made.applied(in);
            const Varset ofLine = bound.varset(VKTab::LineView(screws, id));
            QCOMPARE(listed(ofLine), listed(out));
            for (auto it = out.begin(); it != out.end(); ++it)
                QCOMPARE(ofLine[it.key()].isNumeric(), it->isNumeric());
        }
        QVERIFY(listed(bound.varset(VKTab::LineView(screws, 1))).contains("X=32"));
    }

    void withoutATable()
    {
        const Modifiers made({"A>X", "Y = 5"});
        const BoundModifiers bound(made.list, nullptr);
        QCOMPARE(bound.origin("A"), Origin());
        QCOMPARE(bound.origin("X"), (Origin{Origin::NoValue, -1}));
        QCOMPARE(bound.names(), (QStringList{"X", "Y"}));
        QCOMPARE(listed(bound.varset(VKTab::LineView())), (QStringList{"X", "Y=5"}));
    }

    void otherKindsOfColumnsStayOut()
    {
        VKTab::TableDescriptor descriptor;
        for (const auto kind : {VKTab::FieldKind::Plain, VKTab::FieldKind::Internal,
                                VKTab::FieldKind::Range, VKTab::FieldKind::Topology}) {
            VKTab::TableField field;
            field.name = QString(QChar('A' + int(descriptor.fields.size())));
            field.kind = kind;
            descriptor.fields.append(field);
        }
        const auto lines = VKTab::TableData::fromMemory(descriptor, "A,B,C,D\n1,2,3,4\n").data;
        QVERIFY(lines);
        const BoundModifiers bound({}, lines.get());
        QCOMPARE(bound.names(), (QStringList{"A", "C"}));
        QCOMPARE(bound.origin("B"), Origin());
        QCOMPARE(VKTab::columnOfVariable(lines.get(), u"C"), 2);
        QCOMPARE(VKTab::columnOfVariable(lines.get(), u"D"), -1);
        QCOMPARE(VKTab::columnOfVariable(lines.get(), u"Z"), -1);
        QCOMPARE(VKTab::columnOfVariable(lines.get(), u""), -1);
    }
};

QTEST_GUILESS_MAIN(tst_VarsetModifier)
#include "tst_VarsetModifier.moc"
