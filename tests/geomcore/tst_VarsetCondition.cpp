#include "ExpressionTesting.h"

#include <geomcore/binding/BoundConditions.h>
#include <geomcore/binding/VarsetConditionC.h>
#include <geomcore/table/LineView.h>
#include <geomcore/table/TableData.h>

#include <core/message/PScriptedMessageSink.h>
#include <core/message/PStringMessageImpl.h>

#include <QTest>

#include <atomic>
#include <memory>
#include <thread>
#include <type_traits>

using namespace ExpressionTesting;
using Condition = std::unique_ptr<VarsetConditionC>;

class tst_VarsetCondition : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void createTellsTheVariablesRead()
    {
        const Varset source = varset({{"A", "1"}, {"B", "2"}, {"C", "3"}});
        QStringList used{"B", "old"};
        const Condition condition(VarsetConditionC::create(
            "B .EQ. 2 .AND. A .LT. B .AND. SOURCE@A .GT. 0", source, used));
        QVERIFY(condition);
        QCOMPARE(used, (QStringList{"B", "old", "B", "A"}));
        QCOMPARE(condition->usedVariables(), (QStringList{"B", "A"}));
    }

    void createKeepsTheText()
    {
        const QString text = " a.eq.1\n.AND.  (b .ne. 'x''y') ";
        const Condition condition(VarsetConditionC::create(text, varset({{"a", ""}, {"b", ""}})));
        QVERIFY(condition);
        QCOMPARE(condition->getCondition(), text);
        QCOMPARE(condition->error(), QString());
    }

    void createRefuses_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("message");
        const auto row = [](const char *name, const char *text, const char *message) {
            QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(message);
        };
        row("no text", "", "error: Zeichen 1: Der Text ist leer");
        row("wrong syntax", "A .EQ.",
            "error: Zeichen 7: Erwartet wird ein Wert, gefunden wurde das Ende");
        row("unknown variable", "Z .EQ. 1", "error: Zeichen 1: Die Variable Z ist nicht bekannt");
        row("unknown variable with prefix", "SOURCE@Z .EQ. 1",
            "error: Zeichen 1: Die Variable Z ist nicht bekannt");
        row("value", "A + 1", "error: Eine Bedingung muss ein Vergleich sein");
        row("assignment", "A = 1",
            "error: Zeichen 1: Die Variable A existiert nicht in der Zieltabelle");
        row("generated with a quote", "T .EQ. 'O'Brien'",
            "error: Zeichen 11: Erwartet wird ein Operator oder das Ende, gefunden wurde "
            "\"Brien\"");
    }
    void createRefuses()
    {
        QFETCH(QString, text);
        QFETCH(QString, message);
        const Varset source = varset({{"A", "1"}, {"T", "x"}});
        QStringList used{"kept"};
        PStringMessageImpl capture(PMsgReply::Cancel, false);
        QVERIFY(!VarsetConditionC::create(text, source, used));
        QVERIFY(!VarsetConditionC::create(text, source));
        capture.deactivate();
        QCOMPARE(capture.getMessages(),
                 (QHash<QString, QStringList>{{"error", {message, message}}}));
        QCOMPARE(used, QStringList{"kept"});
    }

    void holdsOnAVarset()
    {
        const Condition condition(
            VarsetConditionC::create("A .GE. 10 .AND. T .EQ. 'x'", varset({{"A", ""}, {"T", ""}})));
        QVERIFY(condition->holds(varset({{"A", "10.0"}, {"T", "x"}})));
        QVERIFY(!condition->holds(varset({{"A", "9"}, {"T", "x"}})));
        QVERIFY(!condition->holds(varset({{"A", "10"}, {"T", "X"}})));
        QVERIFY(!condition->holds(varset({{"A", "10"}})));
        QVERIFY(!condition->holds(Varset()));
    }

    /// "SOURCE@" reads the same line.
    void prefixInACondition()
    {
        const Condition condition(VarsetConditionC::create("SOURCE@A .EQ. A", varset({{"A", ""}})));
        QVERIFY(condition->holds(varset({{"A", "7"}})));
    }

    void fromTextTakesAnyNames()
    {
        const Condition condition(VarsetConditionC::fromText("Z .EQ. 1"));
        QCOMPARE(condition->getCondition(), "Z .EQ. 1");
        QCOMPARE(condition->usedVariables(), QStringList{"Z"});
        QVERIFY(condition->holds(varset({{"Z", "1"}})));
        QVERIFY(!condition->holds(varset({{"A", "1"}})));
    }

    void fromTextThatDoesNotParse_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("error");
        QTest::newRow("syntax") << "A .EQ. %1"
                                << "Zeichen 8: Erwartet wird ein Wert, gefunden wurde \"%\"";
        QTest::newRow("assignment") << "A = 1"
                                    << "Eine Bedingung muss ein Vergleich sein";
        QTest::newRow("empty") << ""
                               << "Zeichen 1: Der Text ist leer";
    }
    void fromTextThatDoesNotParse()
    {
        QFETCH(QString, text);
        QFETCH(QString, error);
        const auto sink = std::make_shared<PScriptedMessageSink>();
        const PMessageSinkScope scope(sink);
        const Condition condition(VarsetConditionC::fromText(text));
        QCOMPARE(sink->logged(), QStringList()); // not parsed yet
        QCOMPARE(condition->getCondition(), text);
        QVERIFY(!condition->holds(varset({{"A", "1"}})));
        QVERIFY(!condition->holds(Varset()));
        QVERIFY(!condition->program());
        QCOMPARE(condition->usedVariables(), QStringList());
        QCOMPARE(condition->error(), error);
        QCOMPARE(sink->logged(), QStringList{text + " enthält Fehler! " + error});
        QCOMPARE(sink->texts(), QStringList());
    }

    void firstEvaluationOnSeveralThreads()
    {
        for (int round = 0; round < 50; ++round) {
            const Condition condition(VarsetConditionC::fromText("A .EQ. 1 .OR. B .EQ. 2"));
            std::atomic<int> held = 0;
            std::vector<std::thread> threads;
            for (int i = 0; i < 4; ++i)
                threads.emplace_back([&] { held += condition->holds(varset({{"B", "2"}})); });
            for (std::thread &thread : threads)
                thread.join();
            QCOMPARE(held.load(), 4);
        }
    }

    void holdsOnATableLine()
    {
        const auto table = VKTab::TableData::fromMemory({}, "D,T\n10,x\n12,y\n,\n").data;
        QVERIFY(table);
        const Condition condition(VarsetConditionC::fromText("D .GT. 11 .OR. T .EQ. ''"));
        QVERIFY(!condition->holds(VKTab::LineView(*table, 0)));
        QVERIFY(condition->holds(VKTab::LineView(*table, 1)));
        QVERIFY(condition->holds(VKTab::LineView(*table, 2)));
        QVERIFY(!condition->holds(VKTab::LineView()));
    }

    void allConditionsOfATarget()
    {
        const auto table = VKTab::TableData::fromMemory({}, "D,T\n10,x\n12,x\n").data;
        const Condition first(VarsetConditionC::fromText("D .GT. 11"));
        const Condition second(VarsetConditionC::fromText("T .EQ. 'x'"));
        const Condition unknown(VarsetConditionC::fromText("Z .EQ. 1"));
        const VKTab::LineView ten(*table, 0), twelve(*table, 1);
        const VKTab::BoundConditions none({}, table.get());
        QVERIFY(none.isEmpty());
        QVERIFY(none.holds(ten));
        const VKTab::BoundConditions both({first.get(), second.get()}, table.get());
        QVERIFY(!both.isEmpty());
        QVERIFY(!both.holds(ten));
        QVERIFY(both.holds(twelve));
        const VKTab::BoundConditions three({first.get(), second.get(), unknown.get()}, table.get());
        QVERIFY(!three.holds(twelve));
    }

    void isShared()
    {
        QVERIFY(!std::is_copy_constructible_v<VarsetConditionC>);
        QVERIFY((std::is_base_of_v<VarsetConditionI, VarsetConditionC>));
    }
};

QTEST_GUILESS_MAIN(tst_VarsetCondition)
#include "tst_VarsetCondition.moc"
