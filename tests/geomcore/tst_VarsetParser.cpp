#include "../support/TestTables.h"
#include "ExpressionTesting.h"

#include <geomcore/binding/VarsetParserC.h>
#include <geomcore/expression/StatementParser.h>

#include <core/message/PStringMessageImpl.h>

#include <QRandomGenerator>
#include <QTest>

#include <memory>

using namespace ExpressionTesting;

namespace {

/// The tree of a statement in which every name is known, or the error.
QString parsed(const QString &text)
{
    VKTab::StatementNames anyName;
    const VKTab::ParsedStatement result = VKTab::StatementParser(text, anyName).parse();
    return result.node ? tree(*result.node) : result.error;
}

/// Parses with the source variables A, B and the target variables B, X, and keeps the messages.
struct Parse
{
    explicit Parse(const QString &text, const QString &name = {}, bool any = true)
        : parser(varset({{"A", "1"}, {"B", "2"}}), varset({{"B", "3"}, {"X", "4"}}))
    {
        PStringMessageImpl capture(PMsgReply::Cancel, false, false);
        node.reset(parser.parseStatement(text, name, any));
        capture.deactivate();
        messages = capture.getMessages();
        buffer = capture.buffer();
    }

    VarsetParserC parser;
    std::unique_ptr<VKTab::NodeBase> node;
    QHash<QString, QStringList> messages;
    QString buffer;
};

} // namespace

class tst_VarsetParser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void grammar_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const char *text, const char *expected) {
            QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(expected);
        };
        row("number", "12.50", "12.50");
        row("text", "'a''b'", "\"a'b\"");
        row("name", "A", "A");
        row("prefixed name", "SOURCE@A", "@A");
        row("equal", "A .EQ. 1", "(eq A 1)");
        row("letter case of operators", "A .eQ. 1 .aNd. B .nE. 2", "(and (eq A 1) (ne B 2))");
        row("all comparisons", "A.EQ.1 .OR. A.NE.1 .OR. A.LT.1 .OR. A.LE.1 .OR. A.GT.1 .OR. A.GE.1",
            "(or (eq A 1) (ne A 1) (lt A 1) (le A 1) (gt A 1) (ge A 1))");
        row("and before or", "A.EQ.1 .OR. A.EQ.2 .AND. A.EQ.3",
            "(or (eq A 1) (and (eq A 2) (eq A 3)))");
        row("or in brackets", "(A.EQ.1 .OR. A.EQ.2) .AND. A.EQ.3",
            "(and (or (eq A 1) (eq A 2)) (eq A 3))");
        row("not before and", ".NOT. A.EQ.1 .AND. A.EQ.2", "(and (not (eq A 1)) (eq A 2))");
        row("not of not", ".NOT. .NOT. A.EQ.1", "(not (not (eq A 1)))");
        row("not after and", "A.EQ.2 .AND. .NOT. A.EQ.1", "(and (eq A 2) (not (eq A 1)))");
        row("arithmetic before comparison", "A + 1 .LT. B * 2", "(lt (+ A 1) (* B 2))");
        row("product before sum", "A + B * C - D / E", "(- (+ A (* B C)) (/ D E))");
        row("sum from left to right", "A - B - C", "(- (- A B) C)");
        row("product from left to right", "A / B * C", "(* (/ A B) C)");
        row("power from right to left", "A ** B ** C", "(** A (** B C))");
        row("power before product", "A * B ** 2", "(* A (** B 2))");
        row("power before sign", "-A ** 2", "(- (** A 2))");
        row("sign in the exponent", "A ** -B ** 2", "(** A (- (** B 2)))");
        row("sign before product", "-A * B", "(* (- A) B)");
        row("sign after an operator", "A * -B + +C", "(+ (* A (- B)) (+ C))");
        row("two signs", "A - -B", "(- A (- B))");
        row("brackets", "(A + B) * (C)", "(* (+ A B) C)");
        row("call", "MIN(A, 1 + 2, 'x')", "(call A (+ 1 2) \"x\")");
        row("call in any letter case", "mAx (A)", "(call A)");
        row("conditional", "IF(A.EQ.1, 'x', B)", "(call (eq A 1) \"x\" B)");
        row("logical function", "DEFINED(A) .AND. B.EQ.1", "(and (call A) (eq B 1))");
        row("a function's name alone is a name", "MIN + 1", "(+ MIN 1)");
        row("assignment", "A = B + 1", "(= A (+ B 1))");
        row("assignment of a text", "A='x'", "(= A \"x\")");
        row("line feeds are blanks", "A\n.EQ.\r\n1", "(eq A 1)");
        row("no blanks", "A.EQ.5.AND.B.EQ.'x'", "(and (eq A 5) (eq B \"x\"))");
        row("negative number", "A .EQ. -5.5", "(eq A (- 5.5))");
        row("generated condition", "D .EQ. 12 .AND. T .EQ. 'a b' .AND. E .EQ. ''",
            "(and (eq D 12) (eq T \"a b\") (eq E \"\"))");
    }
    void grammar()
    {
        QFETCH(QString, text);
        QFETCH(QString, expected);
        QCOMPARE(parsed(text), expected);
    }

    void errors_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const char *text, const char *expected) {
            QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(expected);
        };
        row("unknown variable", "A + C", "Zeichen 5: Die Variable C ist nicht bekannt");
        row("letter case of names", "a .EQ. 1", "Zeichen 1: Die Variable a ist nicht bekannt");
        row("target variable without prefix", "X .EQ. 1",
            "Zeichen 1: Die Variable X ist nicht bekannt");
        row("unknown variable with prefix", "1 + SOURCE@C",
            "Zeichen 5: Die Variable C ist nicht bekannt");
        row("assignment to an unknown variable", "C = 1",
            "Zeichen 1: Die Variable C existiert nicht in der Zieltabelle");
        row("assignment to a source variable", "A = 1",
            "Zeichen 1: Die Variable A existiert nicht in der Zieltabelle");
        row("second line", "A +\n  C", "Zeile 2, Zeichen 3: Die Variable C ist nicht bekannt");
        row("first of several lines", "C +\nA",
            "Zeile 1, Zeichen 1: Die Variable C ist nicht bekannt");
        row("end of several lines", "A\n+ ",
            "Zeile 2, Zeichen 3: Erwartet wird ein Wert, gefunden wurde das Ende");
        row("unknown function", "A + FOO(1)", "Zeichen 5: Die Funktion FOO ist nicht bekannt");
        row("too few arguments", "MOD(1)",
            "Zeichen 1: Falsche Anzahl von Argumenten für die Funktion MOD");
        row("too many arguments", "1 + abs(1, 2)",
            "Zeichen 5: Falsche Anzahl von Argumenten für die Funktion ABS");
        row("no arguments", "MIN()",
            "Zeichen 1: Falsche Anzahl von Argumenten für die Funktion MIN");
        row("missing operand", "A .EQ.",
            "Zeichen 7: Erwartet wird ein Wert, gefunden wurde das Ende");
        row("operator first", "* A", "Zeichen 1: Erwartet wird ein Wert, gefunden wurde \"*\"");
        row("value missing in a generated condition", "A .EQ.  .AND. B .EQ. 1",
            "Zeichen 9: Erwartet wird ein Wert, gefunden wurde \".AND.\"");
        row("range in a generated condition", "A .EQ. 10;12",
            "Zeichen 10: Erwartet wird ein Operator oder das Ende, gefunden wurde \";\"");
        row("quote in a generated text", "A .EQ. 'O'Brien'",
            "Zeichen 11: Erwartet wird ein Operator oder das Ende, gefunden wurde \"Brien\"");
        row("text without end", "A .EQ. 'x", "Zeichen 8: Dem Text fehlt das schließende Hochkomma");
        row("bracket not closed", "(A .EQ. 1",
            "Zeichen 10: Erwartet wird eine schließende Klammer, gefunden wurde das Ende");
        row("call not closed", "MIN(A B",
            "Zeichen 7: Erwartet wird eine schließende Klammer, gefunden wurde \"B\"");
        row("bracket too many", "A)",
            "Zeichen 2: Erwartet wird ein Operator oder das Ende, gefunden wurde \")\"");
        row("prefix alone", "SOURCE@ + 1",
            "Zeichen 9: Erwartet wird ein Variablenname, gefunden wurde \"+\"");
        row("blank after the prefix", "SOURCE@ A",
            "Zeichen 9: Erwartet wird ein Variablenname, gefunden wurde \"A\"");
        row("prefix at the end", "SOURCE@",
            "Zeichen 8: Erwartet wird ein Variablenname, gefunden wurde das Ende");
        row("two statements", "A B",
            "Zeichen 3: Erwartet wird ein Operator oder das Ende, gefunden wurde \"B\"");
        row("assignment within", "A + B = 1",
            "Zeichen 7: Erwartet wird ein Operator oder das Ende, gefunden wurde \"=\"");
        row("assignment of an assignment", "X = B = 1",
            "Zeichen 7: Erwartet wird ein Operator oder das Ende, gefunden wurde \"=\"");
        row("assignment with prefix", "SOURCE@B = 1",
            "Zeichen 10: Erwartet wird ein Operator oder das Ende, gefunden wurde \"=\"");
        row("unknown character", "A # B",
            "Zeichen 3: Erwartet wird ein Operator oder das Ende, gefunden wurde \"#\"");
        row("chained comparison", "1 .LT. A .LT. 3",
            "Zeichen 3: Hier wird ein Wert erwartet, kein Vergleich");
        row("value among comparisons", "A .AND. B .EQ. 1",
            "Zeichen 1: Hier wird ein Vergleich erwartet, kein Wert");
        row("not of a value", ".NOT. A", "Zeichen 7: Hier wird ein Vergleich erwartet, kein Wert");
        row("comparison as argument", "ABS(A .EQ. 1)",
            "Zeichen 7: Hier wird ein Wert erwartet, kein Vergleich");
        row("value as condition", "IF(A, 1, 2)",
            "Zeichen 4: Hier wird ein Vergleich erwartet, kein Wert");
        row("comparison assigned", "X = A .EQ. 1",
            "Zeichen 7: Hier wird ein Wert erwartet, kein Vergleich");
        row("place marks in a name", "%1 .EQ. 1",
            "Zeichen 1: Erwartet wird ein Wert, gefunden wurde \"%\"");
    }
    void errors()
    {
        QFETCH(QString, text);
        QFETCH(QString, expected);
        const Parse parse(text);
        QVERIFY(parse.node);
        QCOMPARE(parse.node->getType(), 127);
        QCOMPARE(parse.messages, (QHash<QString, QStringList>{{"error", {"error: " + expected}}}));
    }

    void emptyTextGivesNoNodeAndOneMessage_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("null") << QString();
        QTest::newRow("empty") << "";
        QTest::newRow("blanks") << " \n\t";
    }
    void emptyTextGivesNoNodeAndOneMessage()
    {
        QFETCH(QString, text);
        for (const bool any : {true, false}) {
            const Parse parse(text, "X", any);
            QVERIFY(!parse.node);
            QCOMPARE(parse.buffer, "error: Zeichen 1: Der Text ist leer");
        }
    }

    void typesAndArts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("art");
        QTest::newRow("assignment") << "X = 1" << 5 << 21;
        QTest::newRow("comparison") << "A .EQ. 1" << 4 << 12;
        QTest::newRow("chain") << "A .EQ. 1 .AND. B .EQ. 2" << 4 << 14;
        QTest::newRow("number") << "1" << 1 << 1;
        QTest::newRow("text") << "'x'" << 2 << 2;
        QTest::newRow("variable") << "A" << 3 << 3;
        QTest::newRow("not parsed") << "A +" << 127 << 127;
    }
    void typesAndArts()
    {
        QFETCH(QString, text);
        const Parse parse(text);
        QVERIFY(parse.node);
        QTEST(parse.node->getType(), "type");
        QTEST(parse.node->getArt(), "art");
    }

    void names_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("source variable") << "A .EQ. 1";
        QTest::newRow("prefixed target variable") << "SOURCE@X .EQ. 1";
        QTest::newRow("prefixed source variable") << "SOURCE@A .EQ. 1";
        QTest::newRow("target assigned, source read") << "X = A + SOURCE@X";
        QTest::newRow("a name of both") << "B = B * 10";
    }
    void names()
    {
        QFETCH(QString, text);
        const Parse parse(text);
        QVERIFY(parse.node);
        QVERIFY(parse.node->getType() != 127);
        QVERIFY(parse.messages.isEmpty());
    }

    void onlyAnAssignmentToTheNamedVariable_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("error");
        QTest::newRow("it is") << "X = A"
                               << "X" << QString();
        QTest::newRow("another variable")
            << "X = A"
            << "B"
            << "error: Zeichen 1: Erwartet wird eine Zuweisung an die Variable B";
        QTest::newRow("no assignment")
            << " A + 1"
            << "X"
            << "error: Zeichen 2: Erwartet wird eine Zuweisung an die Variable X";
        QTest::newRow("letter case")
            << "x = A"
            << "X"
            << "error: Zeichen 1: Erwartet wird eine Zuweisung an die Variable X";
        QTest::newRow("not in the target table")
            << "C = A"
            << "C"
            << "error: Zeichen 1: Die Variable C existiert nicht in der Zieltabelle";
    }
    void onlyAnAssignmentToTheNamedVariable()
    {
        QFETCH(QString, text);
        QFETCH(QString, name);
        QFETCH(QString, error);
        const Parse parse(text, name, false);
        QVERIFY(parse.node);
        QCOMPARE(parse.node->getType() == 127, !error.isEmpty());
        QCOMPARE(parse.buffer, error);
    }
    void anyStatementTakesNoNotice()
    {
        QVERIFY(Parse("X = A", "B", true).node->getType() != 127);
        QVERIFY(Parse("A .EQ. 1", "B", true).node->getType() != 127);
    }

    void nameOfTheAssignedVariable()
    {
        VarsetParserC parser({}, varset({{"X", ""}, {"Y", ""}}));
        const auto idOf = [&](const QString &text) {
            const std::unique_ptr<VKTab::NodeBase> node(parser.parseStatement(text, "", true));
            return static_cast<const VKTab::NodeAssign &>(*node).getVarId();
        };
        const VKTab::VarId x = idOf("X = 1");
        const VKTab::VarId y = idOf("Y = 1");
        QCOMPARE(parser.getVarName(x), "X");
        QCOMPARE(parser.getVarName(y), "Y");
        QVERIFY(x != y);
        QVERIFY(idOf("X = 2") == x);
        QCOMPARE(parser.getVarName(VKTab::VarId()), QString());
        QCOMPARE(parser.getVarName(VKTab::VarId(99)), QString());
    }

    void resolveSourceVars_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        QTest::newRow("nothing to resolve") << " A  +  1 "
                                            << " A  +  1 ";
        QTest::newRow("number") << "A + SOURCE@N*2"
                                << "A + 12.5    *2";
        QTest::newRow("negative number") << "SOURCE@M**2"
                                         << "(-5)    **2";
        QTest::newRow("text") << "SOURCE@T .EQ. A"
                              << "'a b'    .EQ. A";
        QTest::newRow("quote") << "SOURCE@Q"
                               << "'O''Brien'";
        QTest::newRow("no value") << "SOURCE@E"
                                  << "''      ";
        QTest::newRow("unknown stays") << "SOURCE@U + SOURCE@N"
                                       << "SOURCE@U + 12.5    ";
        QTest::newRow("in quotes") << "'SOURCE@N'"
                                   << "'SOURCE@N'";
        QTest::newRow("small letters") << "source@N"
                                       << "12.5    ";
        QTest::newRow("blank between") << "SOURCE@ N"
                                       << "SOURCE@ N";
        QTest::newRow("place marks") << "SOURCE@P + SOURCE@N"
                                     << "'%1 %2'  + 12.5    ";
        QTest::newRow("value longer than its name") << "SOURCE@L+A"
                                                    << "'a long text'+A";
        QTest::newRow("prefix alone") << "SOURCE@"
                                      << "SOURCE@";
        QTest::newRow("empty") << ""
                               << "";
    }
    void resolveSourceVars()
    {
        QFETCH(QString, text);
        const Varset values = varset({{"N", "12.5"},
                                      {"M", "-5"},
                                      {"T", "a b"},
                                      {"Q", "O'Brien"},
                                      {"E", ""},
                                      {"P", "%1 %2"},
                                      {"L", "a long text"}});
        QTEST(VarsetParserC::resolveSourceVars(text, values, nullptr), "expected");
    }

    /// The line comes first, the varset serves for what it lacks.
    void resolveWithALine()
    {
        VKTab::TableDescriptor descriptor;
        descriptor.fields = {TestTables::field("N", VKTab::FieldType::Number),
                             TestTables::field("T")};
        descriptor.fields[0].decimalChar = ',';
        const VKTab::ContentRef table = TestTables::table(descriptor, "N,T\n\"2,5\",x\n");
        const VKTab::Line line = table.getLine(VKTab::LineId(1), true);
        QVERIFY(line.isValid());
        const Varset values = varset({{"N", "12"}, {"M", "7"}});
        QCOMPARE(VarsetParserC::resolveSourceVars("SOURCE@N + SOURCE@M + SOURCE@T + SOURCE@U",
                                                  values, &line),
                 "2.5      + 7        + 'x'      + SOURCE@U");
    }

    void depthIsLimited_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("brackets") << QString(100000, '(') + "A" + QString(100000, ')');
        QTest::newRow("signs") << QString(100000, '-') + "A";
        QTest::newRow("negations") << QString(".NOT.").repeated(100000) + "A .EQ. 1";
        QTest::newRow("sums") << "A" + QString("+A").repeated(100000);
        QTest::newRow("powers") << "A" + QString("**A").repeated(100000);
        QTest::newRow("calls") << QString("ABS(").repeated(100000) + "A";
    }
    void depthIsLimited()
    {
        QFETCH(QString, text);
        const QString result = parsed(text);
        QVERIFY2(result.endsWith("Der Ausdruck ist zu tief verschachtelt"),
                 qPrintable(result.left(200)));
    }

    void longFlatStatementsParse()
    {
        const QString chain = "A .EQ. 1" + QString(" .AND. B .EQ. 'x'").repeated(20000);
        QVERIFY(parsed(chain).startsWith("(and (eq A 1) (eq B \"x\")"));
        QVERIFY(parsed("MIN(A" + QString(",A").repeated(20000) + ")").startsWith("(call A A"));
        QVERIFY(parsed(QString(150, '(') + "A" + QString(150, ')')) == "A");
    }

    /// No text makes the parser crash, and each gives either a tree or an error.
    void anyText()
    {
        QRandomGenerator random(20240229);
        const QStringList pieces{"A",    "B",    "1",      ".5",    "'x'",  "'",     "SOURCE@",
                                 "(",    ")",    ",",      "=",     "+",    "-",     "*",
                                 "**",   "/",    " ",      ".AND.", ".OR.", ".NOT.", ".EQ.",
                                 ".LT.", "MIN(", "IF(",    "\n",    ".",    "#",     "DEFINED(",
                                 "1e",   "@",    "CONCAT("};
        int trees = 0;
        for (int round = 0; round < 20000; ++round) {
            QString text;
            for (int i = random.bounded(12); i >= 0; --i)
                text += pieces[random.bounded(pieces.size())];
            VKTab::StatementNames anyName;
            const auto result = VKTab::StatementParser(text, anyName).parse();
            QCOMPARE(result.node != nullptr, result.error.isEmpty());
            QVERIFY(result.errorPosition >= 0 && result.errorPosition <= text.size());
            trees += result.node != nullptr;
        }
        QVERIFY(trees > 100);
    }
};

QTEST_GUILESS_MAIN(tst_VarsetParser)
#include "tst_VarsetParser.moc"
