#include <geomcore/expression/ExpressionFunctions.h>
#include <geomcore/expression/FunctionHelp.h>

#include <QTest>

#include <algorithm>

using namespace VKTab;

/// Functions that others add, before anything was read.
class tst_AddedFunction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addsBeforeTheFirstFormula();

private:
    static Operand twice(std::span<const Operand> arguments, EvaluationMemory &)
    {
        const auto number = arguments[0].toNumber();
        return number ? Operand::ofNumber(2 * *number) : Operand();
    }
};

void tst_AddedFunction::addsBeforeTheFirstFormula()
{
    QVERIFY(addFunction({"DOUBLED", 1, 1, NumberType, twice}));
    // Names that are there, letter case ignored, and one that nothing evaluates.
    QVERIFY(!addFunction({"doubled", 1, 1, NumberType, twice}));
    QVERIFY(!addFunction({"sin", 1, 1, NumberType, twice}));
    QVERIFY(!addFunction({"NOTHING", 1, 1, NumberType, nullptr}));
    addFunctionHelp({"DOUBLED", "x", "Twice x.", {{{"DOUBLED(2)", "4"}, {"DOUBLED(0)", "0"}}}});

    const auto functions = expressionFunctions();
    const auto byName = [](const auto &a, const auto &b) {
        return qstrcmp(a.name, b.name) < 0;
    };
    QVERIFY(std::is_sorted(functions.begin(), functions.end(), byName));
    const auto hit = std::find_if(functions.begin(), functions.end(), [](const auto &function) {
        return qstrcmp(function.name, "DOUBLED") == 0;
    });
    QVERIFY(hit != functions.end());
    EvaluationMemory memory;
    const Operand argument = Operand::ofNumber(4);
    QCOMPARE(hit->evaluate(std::span(&argument, 1), memory).toNumber().value(), 8.0);

    const FunctionHelp *const help = findFunctionHelp(u"doubled");
    QVERIFY(help);
    QCOMPARE(help->signature(), QString("DOUBLED(x)"));
    QCOMPARE(help->text(), QString("Twice x."));
    const auto helps = functionHelps();
    QVERIFY(std::is_sorted(helps.begin(), helps.end(), byName));
    QCOMPARE(helps.size(), functions.size());

    // Formulas may have been read now.
    QVERIFY(!addFunction({"TRIPLED", 1, 1, NumberType, twice}));
}

QTEST_GUILESS_MAIN(tst_AddedFunction)
#include "tst_AddedFunction.moc"
