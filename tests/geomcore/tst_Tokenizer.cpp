#include <geomcore/expression/Tokenizer.h>

#include <QRandomGenerator>
#include <QTest>

#include <functional>

using namespace VKTab;

namespace {

QString kindName(TokenKind kind)
{
    static const char *const names[] = {"number", "text",     "open",       "name",  "function",
                                        "prefix", "operator", "comparison", "logic", "(",
                                        ")",      ",",        "=",          "?"};
    return QLatin1String(names[int(kind)]);
}

/// "kind:text" of each token, joined by blanks.
QString split(const QString &text)
{
    QStringList parts;
    for (const Token &token : Tokenizer()(text))
        parts.append(kindName(token.kind) + ':' + token.text);
    return parts.join(' ');
}

} // namespace

class tst_Tokenizer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void kinds_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const char *text, const char *expected) {
            QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(expected);
        };
        row("empty", "", "");
        row("blanks and line feeds", " \t\r\n ", "");
        row("integer", "12", "number:12");
        row("decimal point", "12.5", "number:12.5");
        row("begins with the point", ".5", "number:.5");
        row("ends with the point", "5.", "number:5.");
        row("exponent", "1e5 1E-5 1.5e+3", "number:1e5 number:1E-5 number:1.5e+3");
        row("exponent after a point", "5.e3", "number:5.e3");
        row("two points", "1.2.3", "number:1.2 number:.3");
        row("a comma is no decimal character", "1,5", "number:1 ,:, number:5");
        row("letters after digits make a name", "3D_MODEL", "name:3D_MODEL");
        row("an exponent without digits is a name", "1e", "name:1e");
        row("a name after a decimal number", "5.5mm", "number:5.5 name:mm");
        row("number before an operator in points", "5.EQ.3", "number:5 comparison:.EQ. number:3");
        row("exponent letter before an operator", "1.E.EQ.2",
            "number:1. name:E comparison:.EQ. number:2");
        row("number after an operator in points", "A.EQ..5", "name:A comparison:.EQ. number:.5");
        row("no second point of an operator", "5.EQ 3", "number:5. name:EQ number:3");
        row("text", "'a b'", "text:'a b'");
        row("empty text", "''", "text:''");
        row("doubled quote", "'O''Brien'", "text:'O''Brien'");
        row("line feed in a text", "'a\nb'", "text:'a\nb'");
        row("text without end", "A 'b", "name:A open:'b");
        row("doubled quote without end", "'a''", "open:'a''");
        row("quote inside a text", "'O'Brien'", "text:'O' name:Brien open:'");
        row("name", "Dia_1", "name:Dia_1");
        row("letters beyond ASCII", "Länge", "name:Länge");
        row("prefix", "SOURCE@D", "prefix:SOURCE@ name:D");
        row("prefix in small letters", "source@D", "prefix:source@ name:D");
        row("blank before the sign of the prefix", "SOURCE @D", "name:SOURCE ?:@ name:D");
        row("source alone is a name", "SOURCE", "name:SOURCE");
        row("function", "min (A)", "function:min (:( name:A ):)");
        row("a prefixed name is no function", "SOURCE@MIN(", "prefix:SOURCE@ name:MIN (:(");
        row("logic", ".AND. .or. .Not.", "logic:.AND. logic:.or. logic:.Not.");
        row("comparisons", ".EQ..NE..LT..LE..GT..ge.",
            "comparison:.EQ. comparison:.NE. comparison:.LT. comparison:.LE. comparison:.GT. "
            "comparison:.ge.");
        row("signs", "+-*/**", "operator:+ operator:- operator:* operator:/ operator:**");
        row("three stars", "***", "operator:** operator:*");
        row("assignment", "A=1", "name:A =:= number:1");
        row("unknown word in points", ".XOR.", "?:. name:XOR ?:.");
        row("lone point", ".", "?:.");
        row("unknown characters", "#&\"", "?:# ?:& ?:\"");
        row("character of two units", "A\xF0\x9D\x84\x9E", "name:A ?:\xF0\x9D\x84\x9E");
        row("generated condition", "D .EQ. 12 .AND. T .EQ. 'x'",
            "name:D comparison:.EQ. number:12 logic:.AND. name:T comparison:.EQ. text:'x'");
    }
    void kinds()
    {
        QFETCH(QString, text);
        QFETCH(QString, expected);
        QCOMPARE(split(text), expected);
    }

    void places()
    {
        const QList<Token> tokens = Tokenizer()("  AB .EQ.\n'x'");
        const QList<Token> expected{{TokenKind::Name, "AB", 2, 2},
                                    {TokenKind::Comparison, ".EQ.", 5, 4},
                                    {TokenKind::Text, "'x'", 10, 3}};
        QCOMPARE(tokens, expected);
        QCOMPARE(tokens[1].end(), 9);
    }

    void contentOfTexts()
    {
        QCOMPARE(Tokenizer()("'O''Brien'").constFirst().content(), "O'Brien");
        QCOMPARE(Tokenizer()("''''").constFirst().content(), "'");
        QCOMPARE(Tokenizer()("'open").constFirst().content(), "open");
        QCOMPARE(Tokenizer()("Name").constFirst().content(), "Name");
    }

    /// The highlighter keeps it so.
    void servesAsAFunction()
    {
        const std::function<QList<Token>(const QString &)> function{Tokenizer()};
        QCOMPARE(function("A 1").size(), 2);
    }

    void numberLiterals_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("expected");
        QTest::newRow("integer") << "12" << true;
        QTest::newRow("exponent") << "1.5e-3" << true;
        QTest::newRow("empty") << "" << false;
        QTest::newRow("sign") << "-1" << false;
        QTest::newRow("blank") << "1 " << false;
        QTest::newRow("name") << "1a" << false;
        QTest::newRow("point") << "." << false;
    }
    void numberLiterals()
    {
        QFETCH(QString, text);
        QFETCH(bool, expected);
        QCOMPARE(isNumberLiteral(text), expected);
    }

    /// Tokens of any text lie in order and leave out blanks only.
    void coversEveryText()
    {
        QRandomGenerator random(4711);
        const QString alphabet = QString::fromUtf8("A1.e'(),=*+-/@ \n#_ÄSOURCEQNT\u00a0");
        for (int round = 0; round < 5000; ++round) {
            QString text;
            for (int i = random.bounded(30); i > 0; --i)
                text += alphabet[random.bounded(alphabet.size())];
            qsizetype end = 0;
            for (const Token &token : Tokenizer()(text)) {
                QVERIFY(QStringView(text).mid(end, token.start - end).trimmed().isEmpty());
                QVERIFY(token.length > 0);
                QCOMPARE(token.text, text.mid(token.start, token.length));
                end = token.end();
            }
            QVERIFY(QStringView(text).mid(end).trimmed().isEmpty());
        }
    }
};

QTEST_GUILESS_MAIN(tst_Tokenizer)
#include "tst_Tokenizer.moc"
