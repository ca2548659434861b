#include "../support/GermanTexts.h"
#include "../support/TestTables.h"
#include "ExpressionTesting.h"

#include <core/message/PScriptedMessageSink.h>

#include <geomcore/binding/createVarsetFromVKTable.h>
#include <geomcore/binding/VarsetSource.h>
#include <geomcore/expression/ExpressionFunctions.h>
#include <geomcore/expression/StatementParser.h>
#include <geomcore/table/BoundExpression.h>
#include <geomcore/table/LineView.h>
#include <geomcore/table/TableData.h>

#include <QRandomGenerator>
#include <QTest>

#include <memory>

using namespace ExpressionTesting;
using VKTab::BoundExpression;
using VKTab::ExpressionValue;
using VKTab::LineView;
using VKTab::Program;

namespace {

std::shared_ptr<const Program> compiled(const QString &text)
{
    VKTab::StatementNames anyName;
    const auto parsed = VKTab::StatementParser(text, anyName).parse();
    return parsed.node ? std::make_shared<const Program>(*parsed.node) : nullptr;
}

QString shown(const ExpressionValue &value)
{
    const QString text = QString::fromStdString(value.text);
    return value.numeric ? text : '"' + text + '"';
}

/// The value of a statement; for a comparison "true" or "false".
QString onVarset(const Program &program, const Varset &values)
{
    const VKTab::VarsetSource source(program, values, values);
    if (program.isLogical())
        return program.holds(source) ? "true" : "false";
    ExpressionValue result;
    program.evaluate(source, result);
    return shown(result);
}

QString onLine(const std::shared_ptr<const Program> &program, const LineView &line)
{
    const BoundExpression bound(program, line.table());
    if (program->isLogical())
        return bound.holds(line) ? "true" : "false";
    ExpressionValue result{"of the line before", true};
    bound.evaluate(line, result);
    return shown(result);
}

Varset varsetOf(const LineView &line)
{
    Varset result;
    for (int column = 0; column < line.columnCount(); ++column) {
        MapVarValueC entry;
        entry.setName(line.table()->descriptor().fields[column].name);
        entry.setValue(line.value(column));
        result.insert(entry.getName(), entry);
    }
    return result;
}

/// Statements made by chance, of all parts of the grammar.
class Statements
{
public:
    explicit Statements(quint32 seed)
        : m_random(seed)
    {
    }

    QString next() { return pick(2) ? value(3) : condition(3); }
    int pick(int count) { return m_random.bounded(count); }

private:
    QString condition(int depth)
    {
        static const char *const comparisons[] = {".EQ.", ".NE.", ".LT.", ".LE.", ".GT.", ".GE."};
        switch (depth > 0 ? pick(5) : 4) {
        case 0:
            return '(' + condition(depth - 1) + " .AND. " + condition(depth - 1) + ')';
        case 1:
            return '(' + condition(depth - 1) + " .OR. " + condition(depth - 1) + ')';
        case 2:
            return ".NOT. " + condition(depth - 1);
        case 3:
            return "DEFINED(" + value(depth - 1) + ')';
        default:
            return value(depth - 1) + ' ' + comparisons[pick(6)] + ' ' + value(depth - 1);
        }
    }

    QString value(int depth)
    {
        switch (depth > 0 ? pick(6) : pick(2)) {
        case 0:
            return QString(pick(4) ? "" : "SOURCE@") + QChar('A' + pick(6));
        case 1:
            return literal();
        case 2:
        case 3:
            return '(' + value(depth - 1) + QString("+-*/").at(pick(4)) + value(depth - 1) + ')';
        case 4:
            return "IF(" + condition(depth - 1) + ", " + value(depth - 1) + ", " +
                   value(depth - 1) + ')';
        default:
            return call(depth - 1);
        }
    }

    QString literal()
    {
        static const char *const literals[] = {"0", "12", "12.0", "-5", "'x'", "''", "'12'", "1e9"};
        return literals[pick(8)];
    }

    QString call(int depth)
    {
        const auto functions = VKTab::expressionFunctions();
        const auto &function = functions[size_t(pick(int(functions.size())))];
        if (function.isConditional() || function.result == VKTab::LogicalType)
            return literal();
        QStringList arguments;
        for (int i = 0; i < function.minArguments; ++i)
            arguments.append(value(depth));
        return QString(function.name) + '(' + arguments.join(", ") + ')';
    }

    QRandomGenerator m_random;
};

} // namespace

class tst_Evaluation : public QObject
{
    Q_OBJECT

private:
    /// Every row is evaluated on these values, as a varset and as a line of a table.
    const Varset m_values = varset({{"A", "10"},
                                    {"B", "2.5"},
                                    {"N", "-3"},
                                    {"Z", "0"},
                                    {"T", "Schraube"},
                                    {"Q", "12"},
                                    {"F", "12.0"},
                                    {"E", ""},
                                    {"U", "größer"},
                                    {"P", "1e3"},
                                    {"S", "a b"},
                                    {"I", "inf"}});
    std::shared_ptr<const VKTab::TableData> m_table;

private Q_SLOTS:
    void initTestCase()
    {
        QStringList names, cells;
        for (auto it = m_values.begin(); it != m_values.end(); ++it) {
            names.append(it.key());
            cells.append(it->getValue().toString());
        }
        const QString csv = names.join(',') + '\n' + cells.join(',') + '\n';
        m_table = VKTab::TableData::fromMemory({}, csv.toUtf8()).data;
        QVERIFY(m_table);
    }

    void values_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *text, const char *expected) {
            QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(expected);
        };
        // Arithmetic.
        row("A + B", "12.5");
        row("A - B - 1", "6.5");
        row("A * B", "25");
        row("A / B", "4");
        row("A / 3", "3.33333333333333");
        row("0.1 + 0.2", "0.3");
        row("2 ** 10", "1024");
        row("2 ** 3 ** 2", "512");
        row("-2 ** 2", "-4");
        row("(-2) ** 2", "4");
        row("2 ** -1", "0.5");
        row("-A", "-10");
        row("+N", "-3");
        row("- -N", "-3");
        row("A + B * 2", "15");
        row("(A + B) * 2", "25");
        row("A * N / 4", "-7.5");
        row("P + 1", "1001");
        row("1e300 * 1e10", "\"\"");
        row("0 * N", "0");
        row("100000 * 100000", "10000000000");
        row("1e20 * 1", "1e+20");
        // A value alone stays as it is written.
        row("F", "12.0");
        row("12.50", "12.50");
        row("T", "\"Schraube\"");
        row("E", "\"\"");
        row("'a''b'", "\"a'b\"");
        row("'12'", "\"12\"");
        // Without a value.
        row("A / 0", "\"\"");
        row("A / Z", "\"\"");
        row("Z / Z", "\"\"");
        row("X", "\"\"");
        row("A + X", "\"\"");
        row("A + E", "\"\"");
        row("A * T", "\"\"");
        row("-T", "\"\"");
        row("I + 1", "\"\"");
        row("'5' + 1", "\"\"");
        row("(-8) ** 0.5", "\"\"");
        row("1e999 + 1", "\"\"");
        row("0 ** -1", "\"\"");
        // An assignment gives its right side.
        row("A = B * 2", "5");
        // Functions of numbers.
        row("ABS(N)", "3");
        row("SQRT(16)", "4");
        row("SQRT(N)", "\"\"");
        row("MIN(A, B, N)", "-3");
        row("MAX(A, B, N)", "10");
        row("MIN(A)", "10");
        row("MAX(A, X)", "\"\"");
        row("MAX(A, T)", "\"\"");
        row("INT(B)", "2");
        row("INT(-2.9)", "-2");
        row("ROUND(B)", "3");
        row("ROUND(-2.5)", "-3");
        row("ROUND(3.14159, 2)", "3.14");
        row("ROUND(1234.5, -2)", "1200");
        row("ROUND(1.005, 2)", "1.01");
        row("ROUND(0.1 + 0.2 + 2.2)", "3");
        row("ROUND(2.4999999)", "2");
        row("ROUND(1e300, 15)", "1e+300");
        row("ROUND(1, 16)", "\"\"");
        row("MOD(A, 3)", "1");
        row("MOD(N, 2)", "-1");
        row("MOD(A, 0)", "\"\"");
        row("SIN(30)", "0.5");
        row("SIN(180)", "0");
        row("COS(60)", "0.5");
        row("COS(90)", "0");
        row("COS(720)", "1");
        row("TAN(45)", "1");
        row("TAN(90)", "\"\"");
        row("ASIN(1)", "90");
        row("ASIN(2)", "\"\"");
        row("ACOS(0)", "90");
        row("ATAN(1)", "45");
        row("ATAN2(1, -1)", "135");
        row("EXP(0)", "1");
        row("LOG(EXP(2))", "2");
        row("LOG(0)", "\"\"");
        row("LOG10(1000)", "3");
        // Functions of texts.
        row("LEN(T)", "8");
        row("LEN(U)", "6");
        row("LEN(E)", "0");
        row("LEN(X)", "\"\"");
        row("LEN(A)", "2");
        row("LEN(A * 100)", "4");
        row("IF(DEFINED(SUBSTR(X, 1)), 1, 2)", "2");
        row("IF(DEFINED(SUBSTR(T, X)), 1, 2)", "2");
        row("SUBSTR(T, 1, 3)", "\"Sch\"");
        row("SUBSTR(T, 4)", "\"raube\"");
        row("SUBSTR(U, 3, 2)", "\"öß\"");
        row("SUBSTR(T, 0, 2)", "\"S\"");
        row("SUBSTR(T, -5)", "\"Schraube\"");
        row("SUBSTR(T, 7, 99)", "\"be\"");
        row("SUBSTR(T, 9)", "\"\"");
        row("SUBSTR(T, 3, -1)", "\"\"");
        row("SUBSTR(T, 1e300, 1e300)", "\"\"");
        row("SUBSTR(T, T)", "\"\"");
        row("UPPER(U)", "\"GRÖSSER\"");
        row("LOWER('ÄB')", "\"äb\"");
        row("TRIM('  a b ')", "\"a b\"");
        row("CONCAT(T, ' M', A, 'x', A * 2)", "\"Schraube M10x20\"");
        row("CONCAT(T, E)", "\"Schraube\"");
        row("CONCAT(T, X)", "\"\"");
        row("CONCAT(1.50, '')", "\"1.50\"");
        row("FIND(T, 'au')", "5");
        row("FIND(U, 'ß')", "4");
        row("FIND(T, 'zz')", "0");
        row("FIND(X, 'a')", "\"\"");
        row("REPLACE(S, ' ', '--')", "\"a--b\"");
        row("REPLACE('aaa', 'a', 'aa')", "\"aaaaaa\"");
        row("REPLACE(S, '', 'x')", "\"a b\"");
        row("NUM('12.5') + 1", "13.5");
        row("NUM(SUBSTR('M16', 2))", "16");
        row("NUM(T)", "\"\"");
        row("NUM(A)", "10");
        row("TEXT(A)", "\"10\"");
        row("TEXT(A / 4, 2)", "\"2.50\"");
        row("TEXT(2.5, 0)", "\"3\"");
        row("TEXT(A, 16)", "\"\"");
        row("LEN(TEXT(1e300, 2))", "304");
        row("TEXT(-0.4, 0)", "\"0\"");
        // The chosen branch alone counts.
        row("IF(A .GT. 5, 'gross', 'klein')", "\"gross\"");
        row("IF(A .GT. 50, 'gross', B + 1)", "3.5");
        row("IF(X .GT. 5, 1, 2)", "2");
        row("IF(A .EQ. 10, IF(B .EQ. 1, 1, 2), 3) * 2", "4");
        row("IF(Z .EQ. 0, 0, A / Z)", "0");
    }
    void values()
    {
        QFETCH(QString, text);
        QFETCH(QString, expected);
        const auto program = compiled(text);
        QVERIFY(program);
        QCOMPARE(onVarset(*program, m_values), expected);
        QCOMPARE(onLine(program, LineView(*m_table, 0)), expected);
    }

    void comparisons_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("expected");
        const auto row = [](const char *text, bool expected) {
            QTest::newRow(text) << QString::fromUtf8(text) << expected;
        };
        // Numbers.
        row("A .EQ. 10", true);
        row("A .EQ. 10.00", true);
        row("A .NE. 10", false);
        row("A .LT. 9", false);
        row("B .LT. 10", true);
        row("A .LE. 10", true);
        row("A .GE. 10", true);
        row("A .GT. 10", false);
        row("N .LT. Z", true);
        row("Q .EQ. F", true);
        row("P .EQ. 1000", true);
        row("A .EQ. B * 4", true);
        // The tolerance is relative.
        row("1000000000 .EQ. 1000000001", true);
        row("1000000000 .LT. 1000000001", false);
        row("1000000000 .LE. 1000000001", true);
        row("1000000001 .LE. 1000000000", true);
        row("1000000000 .NE. 1000000001", false);
        row("1000000000 .EQ. 1000000002", false);
        row("0.1 + 0.2 .EQ. 0.3", true);
        row("0 .EQ. 1e-12", false);
        // Texts, exactly.
        row("T .EQ. 'Schraube'", true);
        row("T .EQ. 'schraube'", false);
        row("T .EQ. ' Schraube'", false);
        row("T .NE. 'x'", true);
        row("T .LT. 'T'", true);
        row("U .GT. 'gr'", true);
        row("S .EQ. 'a b'", true);
        // A text in quotes makes it a comparison of texts, also with a number.
        row("Q .EQ. '12'", true);
        row("F .EQ. '12'", false);
        row("A .LT. '9'", true);
        row("A * 2 .EQ. '20'", true);
        // One side that is no number too.
        row("T .EQ. 12", false);
        row("T .GT. 12", true);
        row("I .EQ. I", true);
        // Without a value it does not hold, whatever the operator.
        row("X .EQ. 1", false);
        row("X .NE. 1", false);
        row("X .EQ. X", false);
        row("X .EQ. ''", false);
        row("X .NE. 'x'", false);
        row("A .LT. X", false);
        row("A / 0 .EQ. A / 0", false);
        row("A / 0 .NE. 1", false);
        row("T * 2 .LT. 1", false);
        row("1e999 .GT. 1", false);
        // An empty value is none, except beside a text in quotes.
        row("E .LT. 1", false);
        row("E .NE. 1", false);
        row("E .NE. T", false);
        row("E .EQ. E", false);
        row("E .EQ. ''", true);
        row("'' .EQ. E", true);
        row("E .NE. 'x'", true);
        row("T .EQ. ''", false);
        // Two values of truth: what does not hold for want of a value holds negated.
        row(".NOT. X .EQ. 1", true);
        row(".NOT. X .NE. 1", true);
        row(".NOT. A .EQ. 10", false);
        row(".NOT. .NOT. A .EQ. 10", true);
        // Joined.
        row("A .EQ. 10 .AND. T .EQ. 'Schraube'", true);
        row("A .EQ. 10 .AND. T .EQ. 'x' .AND. B .EQ. 2.5", false);
        row("A .EQ. 1 .OR. B .EQ. 1 .OR. T .EQ. 'Schraube'", true);
        row("A .EQ. 1 .OR. B .EQ. 1", false);
        row("A .EQ. 10 .OR. A .EQ. 1 .AND. B .EQ. 1", true);
        row("(A .EQ. 10 .OR. A .EQ. 1) .AND. B .EQ. 1", false);
        row(".NOT. A .EQ. 1 .AND. B .EQ. 2.5", true);
        row(".NOT. (A .EQ. 10 .AND. B .EQ. 1)", true);
        row("IF(A .EQ. 10, 'x', 'y') .EQ. 'x'", true);
        // DEFINED.
        row("DEFINED(A)", true);
        row("DEFINED(X)", false);
        row("DEFINED(E)", false);
        row("DEFINED('')", true);
        row("DEFINED(A / 0)", false);
        row(".NOT. DEFINED(X) .OR. X .EQ. 1", true);
        // A prefixed name of a lone varset or line reads the same values.
        row("SOURCE@A .EQ. A", true);
    }
    void comparisons()
    {
        QFETCH(QString, text);
        QFETCH(bool, expected);
        const auto program = compiled(text);
        QVERIFY(program && program->isLogical());
        QCOMPARE(onVarset(*program, m_values) == "true", expected);
        QCOMPARE(onLine(program, LineView(*m_table, 0)) == "true", expected);
    }

    void aValueIsNoCondition()
    {
        const auto program = compiled("A + 1");
        QVERIFY(!program->isLogical());
        QVERIFY(!program->holds(VKTab::VarsetSource(*program, m_values, m_values)));
        QVERIFY(!BoundExpression(program, m_table.get()).holds(LineView(*m_table, 0)));
    }

    void withoutAProgram()
    {
        const BoundExpression bound(nullptr, m_table.get());
        QVERIFY(!bound.holds(LineView(*m_table, 0)));
        ExpressionValue result{"before", true};
        bound.evaluate(LineView(*m_table, 0), result);
        QCOMPARE(result, ExpressionValue());
    }

    void variablesOfAProgram()
    {
        const auto program = compiled("X = B + SOURCE@B + A + B");
        QCOMPARE(program->target(), "X");
        QVERIFY(program->isAssignment());
        QCOMPARE(program->variableNames(), (QStringList{"B", "A"}));
        const std::vector<Program::Variable> expected{{"B", false}, {"B", true}, {"A", false}};
        QCOMPARE(program->variables(), expected);
    }

    void prefixReadsTheOtherValues()
    {
        const auto program = compiled("A * 100 + SOURCE@A");
        const Varset line = varset({{"A", "1"}});
        const Varset made = varset({{"A", "2"}});
        ExpressionValue result;
        program->evaluate(VKTab::VarsetSource(*program, line, made), result);
        QCOMPARE(shown(result), "102");
    }

    void decimalNumbers_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *text, const char *expected) {
            QTest::newRow(qPrintable('[' + QString(text) + ']')) << text << expected;
        };
        row("12", "12");
        row(" 12.50\t", "12.5");
        row("-0", "0");
        row("+7", "7");
        row(".5", "0.5");
        row("5.", "5");
        row("-.5e1", "-5");
        row("1E+3", "1000");
        row("", "none");
        row(" ", "none");
        row("-", "none");
        row(".", "none");
        row("e5", "none");
        row("1e", "none");
        row("1,5", "none");
        row("1 2", "none");
        row("--1", "none");
        row("+-1", "none");
        row("0x10", "none");
        row("inf", "none");
        row("nan", "none");
        row("1e999", "none");
        row("M8", "none");
    }
    void decimalNumbers()
    {
        QFETCH(QString, text);
        const auto number = VKTab::parseDecimal(text.toStdString());
        QTEST(number ? QString::fromStdString(VKTab::decimalText(*number)) : "none", "expected");
    }

    /// A line of a table and its varset give the same for any statement and any cells.
    void lineAndVarsetAgree()
    {
        Statements statements(99);
        const QStringList cells{"",    "0", "12",      "12.0",       "-5",  "x",  "' '",
                                "1e9", "Ä", "\"a,b\"", "\"q\"\"q\"", " 7 ", "007"};
        QByteArray csv = "A,B,C,D,E\n"; // F is unknown
        for (int row = 0; row < 200; ++row) {
            QStringList line;
            for (int column = 0; column < 5; ++column)
                line.append(cells[statements.pick(int(cells.size()))]);
            csv += line.join(',').toUtf8() + '\n';
        }
        const auto table = VKTab::TableData::fromMemory({}, csv).data;
        QVERIFY(table);
        QHash<QString, int> outcomes;
        for (int round = 0; round < 4000; ++round) {
            const QString text = statements.next();
            const auto program = compiled(text);
            QVERIFY2(program, qPrintable(text));
            const LineView line(*table, statements.pick(table->rowCount()));
            const QString expected = onVarset(*program, varsetOf(line));
            QVERIFY2(onLine(program, line) == expected, qPrintable(text));
            ++outcomes[expected];
        }
        QVERIFY(outcomes["true"] > 200 && outcomes["false"] > 200 && outcomes.size() > 50);
    }

    /// The same for what a line of a content shows: computed, hidden, put-in values.
    void shownLineAndVarsetAgree_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("shown");
        const auto row = [](const char *text, const char *stored, const char *withPutIn) {
            QTest::newRow(text) << text << stored << withPutIn;
        };
        row("Dia * 10", "100", "100");
        row("Volume + 1", "21", "21");
        row("Weight * 2", "0.5", "0.5");
        row("L .EQ. 12", "false", "true");
        row("L .EQ. '10;12;16'", "true", "false");
        row("L * 1", "\"\"", "12");
        row("Note .EQ. 'a \"b\"'", "true", "true");
    }
    void shownLineAndVarsetAgree()
    {
        QFETCH(QString, text);
        const VKTab::ContentRef table =
            TestTables::table(TestTables::screwDescriptor(),
                              "Dia,L,Note,Weight\n10,10;12;16,\"a \"\"b\"\"\",\"0,25\"\n");
        VKTab::Line line = table.getLine(VKTab::LineId(1), true);
        QVERIFY(line.isValid());
        const auto program = compiled(text);
        QTEST(onVarset(*program, createVarsetFromVKTable(line, {})), "stored");
        QTEST(onLine(program, LineView(line)), "stored");
        line.putValue(table.getVar(u"L").getVarId(), VKTab::Value(12));
        QTEST(onVarset(*program, createVarsetFromVKTable(line, {})), "shown");
        QTEST(onLine(program, LineView(line)), "shown");
    }

    void longTextsHaveNoValue_data()
    {
        QTest::addColumn<QString>("formula");
        QTest::addColumn<int>("length");
        QTest::addColumn<bool>("taken");
        const auto row = [](const char *formula, int length, bool taken) {
            QTest::addRow("%s of %d", formula, length) << formula << length << taken;
        };
        row("CONCAT(T, 'a')", 999'999, true);
        row("CONCAT(T, 'a')", 1'000'000, false);
        row("CONCAT(T, 'ä')", 999'999, true);
        row("REPLACE(T, 'xx', 'xxx')", 666'666, true);
        row("REPLACE(T, 'xx', 'xxx')", 666'668, false);
        row("REPLACE(CONCAT(T, 'y'), 'y', 'yy')", 999'999, false);
        row("UPPER(T)", 1'000'001, false);
        row("LEN(T)", 2'000'000, true);
    }
    void longTextsHaveNoValue()
    {
        QFETCH(QString, formula);
        QFETCH(int, length);
        QFETCH(bool, taken);
        const auto sink = std::make_shared<PScriptedMessageSink>();
        const PMessageSinkScope scope(sink);
        const auto program = compiled("V = " + formula);
        const Varset values{{"T", value("T", QString(length, 'x'))}};
        for (int round = 0; round < 2; ++round) {
            QCOMPARE(onVarset(*program, values) != "\"\"", taken);
            QCOMPARE(sink->logged().size(), taken ? 0 : 1); // once
        }
        QVERIFY(taken ||
                sink->logged().constFirst().contains("V wird länger als 1.000.000 Zeichen"));
        QVERIFY(sink->shown().isEmpty());
    }

    // Each level has ten times the characters of the one below.
    void nestedReplacementsEnd()
    {
        QString formula = "T";
        for (int level = 0; level < 100; ++level)
            formula = "REPLACE(" + formula + ", 'x', 'xxxxxxxxxx')";
        const auto sink = std::make_shared<PScriptedMessageSink>();
        const PMessageSinkScope scope(sink);
        const auto condition = compiled(formula + " .NE. 'y'");
        QCOMPARE(onVarset(*condition, varset({{"T", "x"}})), QString("false"));
        QCOMPARE(sink->logged().size(), 1);
        QVERIFY(sink->logged().constFirst().contains("für T wird"));
    }

    // The place in the text and the place among the variables are found however many there are.
    void manyVariables()
    {
        QString formula = "V = MAX(0";
        Varset values;
        QStringList names;
        for (int i = 0; i < 3000; ++i) {
            const QString name = "N" + QString::number(i);
            formula += ", " + name + ", SOURCE@" + name;
            values.insert(name, value(name, QString::number(i)));
            names.append(name);
        }
        const auto program = compiled(formula + ")");
        QVERIFY(program);
        QCOMPARE(program->variables().size(), std::size_t(6000));
        QCOMPARE(program->variableNames(), names);
        QCOMPARE(onVarset(*program, values), QString("2999"));
    }

    void functionsAreSorted()
    {
        const auto functions = VKTab::expressionFunctions();
        for (size_t i = 1; i < functions.size(); ++i)
            QVERIFY(qstrcmp(functions[i - 1].name, functions[i].name) < 0);
    }
};

QTEST_GUILESS_MAIN(tst_Evaluation)
#include "tst_Evaluation.moc"
