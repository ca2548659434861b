#include "ExpressionTesting.h"

#include <geomcore/binding/VarsetSource.h>
#include <geomcore/expression/ExpressionFunctions.h>
#include <geomcore/expression/FunctionHelp.h>
#include <geomcore/expression/StatementParser.h>

#include <QTest>

#include <memory>

using namespace ExpressionTesting;
using VKTab::FunctionHelp;
using VKTab::Program;

namespace {

/// The value of a statement without variables, as a literal.
QString valueOf(const QString &text)
{
    VKTab::StatementNames anyName;
    const auto parsed = VKTab::StatementParser(text, anyName).parse();
    if (!parsed.node)
        return parsed.error;
    const Program program(*parsed.node);
    const Varset none;
    const VKTab::VarsetSource source(program, none, none);
    VKTab::ExpressionValue value;
    program.evaluate(source, value);
    const QString result = QString::fromStdString(value.text);
    return value.numeric ? result : u'\'' + result + u'\'';
}

} // namespace

class tst_FunctionHelp : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFunctionHasHelp()
    {
        QStringList functions;
        for (const auto &function : VKTab::expressionFunctions())
            functions.append(function.name);
        QStringList helps;
        for (const FunctionHelp &help : VKTab::functionHelps())
            helps.append(help.name);
        QCOMPARE(helps, functions);
    }

    void examplesAreTrue_data()
    {
        QTest::addColumn<QString>("statement");
        QTest::addColumn<QString>("result");
        for (const FunctionHelp &help : VKTab::functionHelps()) {
            for (const FunctionHelp::Example &example : help.examples)
                QTest::newRow(example.statement)
                    << QString::fromUtf8(example.statement) << QString::fromUtf8(example.result);
        }
    }
    void examplesAreTrue()
    {
        QFETCH(QString, statement);
        QTEST(valueOf(statement), "result");
    }

    void examplesShowTheirFunction()
    {
        for (const FunctionHelp &help : VKTab::functionHelps()) {
            for (const FunctionHelp::Example &example : help.examples)
                QVERIFY2(QString::fromUtf8(example.statement).contains(QString(help.name) + '('),
                         example.statement);
        }
    }

    void signatureNamesAsManyArgumentsAsTheFunctionTakes()
    {
        for (const auto &function : VKTab::expressionFunctions()) {
            const FunctionHelp *const help = VKTab::findFunctionHelp(QString(function.name));
            QVERIFY(help);
            const QString signature = help->signature();
            const int named = int(signature.count(',')) + 1;
            if (function.maxArguments < 0)
                QVERIFY2(signature.endsWith("...)"), qPrintable(signature));
            else
                QVERIFY2(named == function.maxArguments, qPrintable(signature));
            QVERIFY(!help->text().isEmpty());
        }
    }

    void findIgnoresLetterCase()
    {
        QCOMPARE(VKTab::findFunctionHelp(u"round"), VKTab::findFunctionHelp(u"ROUND"));
        QVERIFY(!VKTab::findFunctionHelp(u"ROUN"));
        QVERIFY(!VKTab::findFunctionHelp(u""));
    }
};

QTEST_APPLESS_MAIN(tst_FunctionHelp)
#include "tst_FunctionHelp.moc"
