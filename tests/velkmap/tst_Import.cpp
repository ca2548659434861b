#include "../support/EnglishTexts.h"
#include "ImportFixture.h"

#include <geomcore/project/PrjFile.h>

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QRandomGenerator>

using namespace VKTab;

class tst_Import : public QObject, protected ImportFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init() { setUp(); }
    void cleanup() { m_dir.reset(); }
    void makesACatalog();
    void recognises_data();
    void recognises();
    void recognisesKeys_data();
    void recognisesKeys();
    void copiesCellsUnaltered();
    void oddHeaders_data();
    void oddHeaders();
    void keyOption();
    void badTables_data();
    void badTables();
    void foreignForms_data();
    void foreignForms();
    void nothingOutsideOfTheCatalog_data();
    void nothingOutsideOfTheCatalog();
    void pathInsideOfTheCatalog();
    void placeholdersInNames();
    void goodTablesBesideBadOnes();
    void sameNameTwice();
    void notesContradictions();
    void wrongUsage_data();
    void wrongUsage();
    void help();
    void nothingToImport();
    void unwritable();
};

void tst_Import::makesACatalog()
{
    writeFile(from("nuts/M8.2/ISO4032.csv"), "Dia,P,L\nM8,1.25,10;12;16\nM10,1.5,\n");
    writeFile(from("a.CSV"), "x\n1\n");
    writeFile(from("readme.txt"), "no table");
    QCOMPARE(import(), ExitStatus::Done);
    QCOMPARE(m_err, QString());
    QCOMPARE(m_out, QStringLiteral("a: 1 line, key x, new\n"
                                   "  x integer\n"
                                   "nuts/M8.2/ISO4032: 2 lines, key Dia, new\n"
                                   "  Dia string, P number, L range of integers\n"
                                   "2 tables with 3 lines: 2 new, 0 changed, 0 unchanged\n"));
    PrjFile project;
    QCOMPARE(project.Load(into("nuts/M8.2/ISO4032.prj"), false), 1);
    QCOMPARE(project.GetLexemValue("NAME"), QStringLiteral("ISO4032"));
    QCOMPARE(project.GetLexemValue("DATE"), QStringLiteral("2026-01-31T12:00:00Z"));
    QCOMPARE(project.GetLexemValue("SACHM"), QStringLiteral("ISO4032.json"));
    const auto read = table("nuts/M8.2/ISO4032");
    QVERIFY(read);
    QCOMPARE(read->descriptor().name, QStringLiteral("ISO4032"));
    QCOMPARE(read->descriptor().normNumber, QStringLiteral("ISO4032"));
    QCOMPARE(read->descriptor().lineDesignation, QStringLiteral("Dia"));
    QCOMPARE(read->descriptor().finalDate, QStringLiteral("2026-01-31T12:00:00Z"));
    QCOMPARE(read->descriptor().primaryKey, QStringList{"Dia"});
    QCOMPARE(read->descriptor().missingValues, (QStringList{"", "None"}));
    QCOMPARE(read->descriptor().lineIdField, QStringLiteral("LineId"));
    QVERIFY(read->descriptor().fields.last().hidden);
    QCOMPARE(read->descriptor().fields.last().kind, FieldKind::Internal);
    QCOMPARE(readFile(into("nuts/M8.2/ISO4032.csv")),
             QByteArray("Dia,P,L,LineId\nM8,1.25,10;12;16,1\nM10,1.5,,2\n"));
    QVERIFY(QFile::exists(into("a.csv")));
    QVERIFY(!QFile::exists(into("readme.txt")));
    QCOMPARE(QDir(into("nuts/M8.2")).entryList(QDir::Files).size(), 3);
}

void tst_Import::recognises_data()
{
    QTest::addColumn<QByteArray>("cells");
    QTest::addColumn<QString>("described");

    QTest::newRow("integers") << QByteArray("1\n-20\n+3\n0\n") << "integer";
    QTest::newRow("numbers") << QByteArray("1\n2.5\n.5\n") << "number";
    QTest::newRow("exponents") << QByteArray("1e3\n2\n") << "number";
    QTest::newRow("trailing zero") << QByteArray("9.0\n9\n") << "number";
    QTest::newRow("long fractions") << QByteArray("12.8316097327394\n1\n") << "number";
    QTest::newRow("decimal comma") << QByteArray("\"18,95\"\n20\n") << "number with decimal comma";
    QTest::newRow("comma and point")
        << QByteArray("15.1\n\"18,95\"\n") << "number with decimal comma";
    QTest::newRow("missing values") << QByteArray("1\n\nNone\n2\n") << "integer";
    QTest::newRow("nothing but missing values") << QByteArray("None\n\n") << "string";
    QTest::newRow("no lines") << QByteArray("") << "string";
    QTest::newRow("one text") << QByteArray("1\nM8\n") << "string";
    QTest::newRow("sizes") << QByteArray("1 1/4in\n#10\n(M14)\nST4.2\n6 mm\nG1/4\n") << "string";
    QTest::newRow("leading zeros are codes") << QByteArray("007\n12\n") << "string";
    QTest::newRow("two digits of which one is a leading zero")
        << QByteArray("07\n12\n") << "string";
    QTest::newRow("zero alone") << QByteArray("0\n0.5\n") << "number";
    QTest::newRow("list") << QByteArray("10;12;16\n10\n") << "range of integers";
    QTest::newRow("list with fractions") << QByteArray("5\n5;5.5\n7\n") << "range of numbers";
    QTest::newRow("steps") << QByteArray("10..50/5\n") << "range of integers";
    QTest::newRow("list with comma")
        << QByteArray("\"1,5;2,5\"\n") << "range of numbers with decimal comma";
    QTest::newRow("texts in lists") << QByteArray("M8;M10\nM12\n") << "range of strings";
    QTest::newRow("mostly single texts") << QByteArray("M8;M10\nM12\nM14\n") << "string";
    QTest::newRow("sentences") << QByteArray("see below; or not\nwell; then\n") << "string";
    QTest::newRow("one wrong range in ten")
        << QByteArray("1;2\n2;3\n3;4\n4;5\n5;6\n6;7\n7;8\n8;9\n9;10\n10..50\n")
        << "range of integers";
    QByteArray ranges = "10..50\n20..50\n";
    for (int i = 0; i < 15; ++i)
        ranges += QByteArray::number(i) + ';' + QByteArray::number(i + 1) + '\n';
    QTest::newRow("two wrong ranges in seventeen") << ranges << "string";
    QTest::newRow("too many wrong ranges") << QByteArray("1;2\n2;3\n10..50\n") << "string";
}

void tst_Import::recognises()
{
    QFETCH(QByteArray, cells);
    QFETCH(QString, described);
    QByteArray csv("key,cell\n");
    int row = 0;
    for (QByteArray cell : cells.split('\n').mid(0, cells.count('\n')))
        csv += 'k' + QByteArray::number(++row) + ',' + cell + '\n';
    writeFile(from("t.csv"), csv);
    QCOMPARE(import(), ExitStatus::Done);
    QCOMPARE(m_out.section(u'\n', 1, 1).section(", cell ", 1), described);
    const auto read = table("t");
    QVERIFY(read);
    QCOMPARE(read->descriptor().fields.at(1).decimalChar, described.contains("comma") ? ',' : '.');
    QCOMPARE(read->descriptor().fields.at(1).isRange(), described.startsWith("range"));
    QCOMPARE(m_out.contains("has no step"),
             described.startsWith("range") && cells.contains("10..50\n"));
}

void tst_Import::recognisesKeys_data()
{
    QTest::addColumn<QByteArray>("csv");
    QTest::addColumn<QStringList>("key");
    QTest::addColumn<QString>("note");

    const QByteArray repeated("a,b\n1,x\n2,x\n3,x\n4,x\n5,x\n6,x\n7,x\n8,x\n9,x\n9,x\n");
    QTest::newRow("first column") << QByteArray("a,b\n1,x\n2,y\n") << QStringList{"a"} << "";
    QTest::newRow("first column, nearly unique")
        << repeated << QStringList{"a"}
        << "  note: the key \"a\" is missing or repeated in 1 of 10 lines\n";
    QTest::newRow("later text column") << QByteArray("a,b\n1,x\n1,y\n") << QStringList{"b"} << "";
    QTest::newRow("measures are no keys")
        << QByteArray("a,b\n1,1.5\n1,2.5\n") << QStringList{}
        << "  note: no key column was found; a line's id is its row\n";
    QTest::newRow("ranges are no keys")
        << QByteArray("a,b\n1,1;2\n1,3;4\n") << QStringList{}
        << "  note: no key column was found; a line's id is its row\n";
    QTest::newRow("missing cell") << QByteArray("a,b\n1,x\n2,\n2,y\n") << QStringList{}
                                  << "  note: no key column was found; a line's id is its row\n";
    QTest::newRow("no lines") << QByteArray("a,b\n") << QStringList{"a"} << "";
}

void tst_Import::recognisesKeys()
{
    QFETCH(QByteArray, csv);
    QFETCH(QStringList, key);
    QFETCH(QString, note);
    writeFile(from("t.csv"), csv);
    QCOMPARE(import(), ExitStatus::Done);
    QCOMPARE(table("t")->descriptor().primaryKey, key);
    QCOMPARE(table("t")->descriptor().lineIdField.isEmpty(), key.isEmpty());
    if (note.isEmpty())
        QVERIFY(!m_out.contains("note"));
    else
        QVERIFY2(m_out.contains(note), qPrintable(m_out));
}

void tst_Import::copiesCellsUnaltered()
{
    writeFile(from("t.csv"), "\xEF\xBB\xBF"
                             "a,\"b, c\"\r\n\"1\"\"\", 9.0 \r\n\"x\r\ny\",\"None\"");
    QCOMPARE(import(), ExitStatus::Done);
    QCOMPARE(readFile(into("t.csv")), QByteArray("a,\"b, c\",LineId\r\n\"1\"\"\", 9.0 ,1\r\n"
                                                 "\"x\r\ny\",\"None\",2\r\n"));
    writeFile(from("u.csv"), "a,b\n1,1.5\n1,2.5\n");
    QCOMPARE(import(), ExitStatus::Done);
    QCOMPARE(readFile(into("u.csv")), readFile(from("u.csv")));
}

void tst_Import::oddHeaders_data()
{
    QTest::addColumn<QByteArray>("header");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("note");

    QTest::newRow("differ in case alone")
        << QByteArray("Dia,dia,b") << QStringList{"Dia", "dia", "b"}
        << "  note: \"Dia\", \"dia\" differ in case alone\n";
    QTest::newRow("twice") << QByteArray("a,b,b") << QStringList{"a", "b", "b_2"}
                           << "  note: column 3 is named \"b\" once more and is called \"b_2\"\n";
    QTest::newRow("three times")
        << QByteArray("a,a,a") << QStringList{"a", "a_2", "a_3"}
        << "  note: column 3 is named \"a\" once more and is called \"a_3\"\n";
    QTest::newRow("suffix taken")
        << QByteArray("a,a,a_2") << QStringList{"a", "a_3", "a_2"}
        << "  note: column 2 is named \"a\" once more and is called \"a_3\"\n";
    QTest::newRow("no name") << QByteArray("a,,b") << QStringList{"a", "Column2", "b"}
                             << "  note: column 2 has no name and is called \"Column2\"\n";
    QTest::newRow("no name, its name taken")
        << QByteArray("Column2,,b") << QStringList{"Column2", "Column2_2", "b"}
        << "  note: column 2 has no name and is called \"Column2_2\"\n";
    QTest::newRow("blanks and numbers")
        << QByteArray("20 series,5 mm,00") << QStringList{"20 series", "5 mm", "00"} << "";
    QTest::newRow("quotes and commas")
        << QByteArray("\"a,b\",\"c\"\"d\",\" e\"") << QStringList{"a,b", "c\"d", " e"} << "";
}

void tst_Import::oddHeaders()
{
    QFETCH(QByteArray, header);
    QFETCH(QStringList, names);
    QFETCH(QString, note);
    writeFile(from("t.csv"), header + "\n1,2,3\n");
    QCOMPARE(import(), ExitStatus::Done);
    const auto read = table("t");
    QVERIFY(read);
    QCOMPARE(read->header(), names + QStringList{"LineId"});
    QCOMPARE(read->text(0, 1), QStringLiteral("2"));
    QVERIFY2(note.isEmpty() ? !m_out.contains("note") : m_out.contains(note), qPrintable(m_out));
    QCOMPARE(import({}), ExitStatus::Done);
    QVERIFY(m_out.contains("0 new, 0 changed, 1 unchanged"));
}

void tst_Import::keyOption()
{
    writeFile(from("t.csv"), "a,b,c\n1,x,7\n2,y,8\n");
    writeFile(from("u.csv"), "a\n1\n");
    QCOMPARE(import({"--date", "2026-01-01", "--key", "b"}), ExitStatus::Done);
    QCOMPARE(table("t")->descriptor().primaryKey, QStringList{"b"});
    QCOMPARE(table("u")->descriptor().primaryKey, QStringList{"a"});
    QVERIFY(
        m_out.contains("u: 1 line, key a, new\n  a integer\n  note: there is no column \"b\"\n"));
    // Of a later import it changes what the descriptor says, and lines keep their ids by it.
    writeFile(from("t.csv"), "a,b,c\n2,y,8\n1,x,7\n");
    QCOMPARE(import({"--key", "c"}), ExitStatus::Done);
    QCOMPARE(table("t")->descriptor().primaryKey, QStringList{"c"});
    QCOMPARE(table("t")->lineNumber(0), 2);
}

void tst_Import::badTables_data()
{
    QTest::addColumn<QByteArray>("csv");
    QTest::addColumn<QString>("message");

    QTest::newRow("empty") << QByteArray()
                           << ": row 1: the file is empty; its first row must name the columns\n";
    QTest::newRow("quote left open")
        << QByteArray("a,b\n1,\"2\n") << ": row 2, column 2: a quote is left open\n";
    QTest::newRow("too few cells")
        << QByteArray("a,b\n1\n")
        << ": row 2, column 2: 1 cell instead of 2, as the header row has\n";
    QTest::newRow("too many cells") << QByteArray("a,b\n1,3,5\n")
                                    << ": row 2, column 3: 3 cells instead of 2, as the header row "
                                       "has\n";
    QTest::newRow("no UTF-8")
        << QByteArray("a,b\n1,\xE4\n")
        << ": row 2, column 2: the bytes are no UTF-8; save the file as UTF-8\n*: if it is written "
           "in another encoding, name that by --encoding\n";
    const QString bareReturn =
        ": the row ends with a carriage return alone; save the file with line feeds\n";
    QTest::newRow("carriage returns as line ends")
        << QByteArray("Name,A,B\rx,1,2\ry,2,3\r") << ": row 1" + bareReturn;
    QTest::newRow("a carriage return between line feeds")
        << QByteArray("a,b\r\n1,2\r\n3,4\r5,6\r\n") << ": row 3" + bareReturn;
    QTest::newRow("a carriage return at the end")
        << QByteArray("a,b\n1,2\r") << ": row 2" + bareReturn;
    QTest::newRow("a quote left open between semicolons")
        << QByteArray("a;b\n1;\"2\n") << ": row 2, column 2: a quote is left open\n";
    QTest::newRow("text behind a quoted cell")
        << QByteArray("a,b\n\"x\"y,1\n")
        << ": row 2, column 1: text after the closing quote of a cell\n";
}

void tst_Import::badTables()
{
    QFETCH(QByteArray, csv);
    QFETCH(QString, message);
    writeFile(from("t.csv"), csv);
    QCOMPARE(import(), ExitStatus::InputUnreadable);
    QCOMPARE(m_err, from("t.csv") + message.replace(u'*', from("t.csv")));
    QVERIFY(!QFile::exists(into("t.prj")));
    QVERIFY(!QFile::exists(into("t.csv")));
}

void tst_Import::foreignForms_data()
{
    QTest::addColumn<QByteArray>("csv");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QByteArray>("result");
    QTest::addColumn<QString>("note");

    const QStringList none;
    QTest::newRow("semicolons") << QByteArray("Name;L\nx;1,5\ny;2,5\n") << none
                                << QByteArray("Name,L,LineId\nx,\"1,5\",1\ny,\"2,5\",2\n")
                                << "cells are separated by semicolons";
    QTest::newRow("semicolons, quoted cells, CRLF")
        << QByteArray("Name;L\r\n\"a;\"\"b\";1\r\n\"\";2\r\n") << none
        << QByteArray("Name,L,LineId\r\n\"a;\"\"b\",1,1\r\n\"\",2,2\r\n")
        << "cells are separated by semicolons";
    QTest::newRow("tabs") << QByteArray("Name\tL\nx\t1\ny\t\n") << none
                          << QByteArray("Name,L,LineId\nx,1,1\ny,,2\n")
                          << "cells are separated by tabs";
    QTest::newRow("semicolons in cells between commas")
        << QByteArray("Name,L\nx,10;12;16\ny,5;6;7\n") << none
        << QByteArray("Name,L,LineId\nx,10;12;16,1\ny,5;6;7,2\n") << "";
    QTest::newRow("the separator as it is named")
        << QByteArray("Name,M;L\nx,a;1\ny,b;2\n") << QStringList{"--separator", "semicolon"}
        << QByteArray("\"Name,M\",L,LineId\n\"x,a\",1,1\n\"y,b\",2,2\n")
        << "cells are separated by semicolons";
    QTest::newRow("inch marks") << QByteArray("Name,D\nbolt,1/4\" x 2\"\nnut,3\n") << none
                                << QByteArray(
                                       "Name,D,LineId\nbolt,\"1/4\"\" x 2\"\"\",1\nnut,3,2\n")
                                << "quotes inside of cells are taken as characters, first in row "
                                   "2, column 2";
    QTest::newRow("inch marks between semicolons, byte order mark")
        << QByteArray("\xef\xbb\xbfName;D\nbolt;1/4\"\nnut;3\n") << none
        << QByteArray("Name,D,LineId\nbolt,\"1/4\"\"\",1\nnut,3,2\n")
        << "quotes inside of cells are taken as characters, first in row 2, column 2";
    QTest::newRow("UTF-16, little end first")
        << QByteArray("\xff\xfeN\0;\0\xe4\0\n\0x\0;\0001\0\n\0y\0;\0002\0\n\0", 26) << none
        << QByteArray("N,\xc3\xa4,LineId\nx,1,1\ny,2,2\n") << "read as UTF-16";
    QTest::newRow("UTF-16, big end first")
        << QByteArray("\xfe\xff\0N\0,\0\xe4\0\n\0x\0,\0001\0\n\0y\0,\0002\0\n", 26) << none
        << QByteArray("N,\xc3\xa4,LineId\nx,1,1\ny,2,2\n") << "read as UTF-16";
    QTest::newRow("Windows-1252") << QByteArray("Name,\xe4\nx,\x80\ny,\xb0\n")
                                  << QStringList{"--encoding", "Windows-1252"}
                                  << QByteArray(
                                         "Name,\xc3\xa4,LineId\nx,\xe2\x82\xac,1\ny,\xc2\xb0,2\n")
                                  << "read as Windows-1252";
    QTest::newRow("a carriage return in a quoted cell")
        << QByteArray("Name,D\n\"a\rb\",1\nc,2\n") << none
        << QByteArray("Name,D,LineId\n\"a\rb\",1,1\nc,2,2\n") << "";
    QTest::newRow("no names") << QByteArray("1,M8,3\n2,M10,4\n3,M12,5\n") << none
                              << QByteArray("1,M8,3,LineId\n2,M10,4,1\n3,M12,5,2\n")
                              << "the first row looks like data; it is taken as the columns' "
                                 "names, so put a row with names before it";
    QTest::newRow("a separator in the only name")
        << QByteArray("Name;L\nx\ny\n") << none << QByteArray("Name;L,LineId\nx,1\ny,2\n")
        << "the only column is named \"Name;L\"; if its cells are several, name what separates "
           "them by --separator";
}

void tst_Import::foreignForms()
{
    QFETCH(QByteArray, csv);
    QFETCH(QStringList, options);
    QFETCH(QByteArray, result);
    QFETCH(QString, note);
    writeFile(from("t.csv"), csv);
    QCOMPARE(import(options), ExitStatus::Done);
    QCOMPARE(m_err, QString());
    QCOMPARE(readFile(into("t.csv")), result);
    if (note.isEmpty())
        QVERIFY2(!m_out.contains("separated by") && !m_out.contains("quotes"), qPrintable(m_out));
    else
        QVERIFY2(m_out.contains("  note: " + note + '\n'), qPrintable(m_out));
    // The same again changes nothing.
    QCOMPARE(import(options), ExitStatus::Done);
    QVERIFY2(m_out.contains("1 unchanged"), qPrintable(m_out));
}

void tst_Import::nothingOutsideOfTheCatalog_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("up in the descriptor") << "../../out/victim.txt";
    QTest::newRow("absolute in the descriptor") << "absolute";
    QTest::newRow("a link in place of the lines") << "link";
    QTest::newRow("a link to nothing in place of the lines") << "dangling";
    QTest::newRow("a link in place of the folder") << "folder";
}

void tst_Import::nothingOutsideOfTheCatalog()
{
    QFETCH(QString, way);
    writeFile(from("d/t.csv"), "a\n1\n");
    QCOMPARE(import(), ExitStatus::Done);
    const QString victim = m_dir->filePath("root/out/victim.txt");
    writeFile(victim, "a,LineId\nx,1\n");
    if (way == "link" || way == "dangling") {
        QVERIFY(QFile::remove(into("d/t.csv")));
        QVERIFY(QFile::link(way == "link" ? victim : victim + 's', into("d/t.csv")));
    } else if (way == "folder") {
        QVERIFY(QDir().rename(into("d"), m_dir->filePath("root/out/d")));
        QVERIFY(QFile::link(m_dir->filePath("root/out/d"), into("d")));
    } else {
        const QString path = way == "absolute" ? victim : way;
        QByteArray descriptor = readFile(into("d/t.json"));
        descriptor.insert(descriptor.indexOf('{') + 1, "\"path\": \"" + path.toUtf8() + "\",");
        writeFile(into("d/t.json"), descriptor);
    }
    writeFile(from("d/t.csv"), "a\n1\n2\n");
    QCOMPARE(import(), ExitStatus::InputUnreadable);
    QVERIFY2(m_err.contains(into("d/t.json")) && m_err.contains("outside of the catalog"),
             qPrintable(m_err));
    QCOMPARE(readFile(victim), QByteArray("a,LineId\nx,1\n"));
    QVERIFY(!QFile::exists(victim + 's'));
    if (way == "folder")
        QCOMPARE(readFile(m_dir->filePath("root/out/d/t.csv")), QByteArray("a,LineId\n1,1\n"));
}

void tst_Import::pathInsideOfTheCatalog()
{
    writeFile(from("d/t.csv"), "a\n1\n");
    QCOMPARE(import(), ExitStatus::Done);
    QVERIFY(QDir().mkpath(into("lines")));
    QVERIFY(QFile::rename(into("d/t.csv"), into("lines/t.csv")));
    QByteArray descriptor = readFile(into("d/t.json"));
    descriptor.insert(descriptor.indexOf('{') + 1, R"("path": "../lines/t.csv",)");
    writeFile(into("d/t.json"), descriptor);
    writeFile(from("d/t.csv"), "a\n1\n2\n");
    QCOMPARE(import(), ExitStatus::Done);
    QCOMPARE(readFile(into("lines/t.csv")), QByteArray("a,LineId\n1,1\n2,2\n"));
}

void tst_Import::placeholdersInNames()
{
    writeFile(from("t.csv"), "%2,%2,%1,\n1,2,3,4\n");
    QCOMPARE(import(), ExitStatus::Done);
    QVERIFY2(m_out.contains("column 2 is named \"%2\" once more and is called \""),
             qPrintable(m_out));
    QVERIFY2(m_out.contains("column 4 has no name and is called \"Column4\""), qPrintable(m_out));
}

void tst_Import::goodTablesBesideBadOnes()
{
    writeFile(from("a.csv"), "a\n1\n");
    writeFile(from("b.csv"), "a,b\n1\n");
    writeFile(from("c.csv"), "a\n\"\n");
    writeFile(from("d.csv"), "a\n2\n");
    QCOMPARE(import(), ExitStatus::InputUnreadable);
    QCOMPARE(m_err.count(u'\n'), 2);
    QVERIFY(m_err.contains(from("b.csv")) && m_err.contains(from("c.csv")));
    QVERIFY(table("a") && table("d"));
    QVERIFY(m_out.endsWith("2 tables with 2 lines: 2 new, 0 changed, 0 unchanged; 2 could not be "
                           "imported\n"));
}

void tst_Import::sameNameTwice()
{
    writeFile(from("a.CSV"), "a\n1\n");
    writeFile(from("a.csv"), "a\n2\n");
    QCOMPARE(import(), ExitStatus::InputUnreadable);
    QCOMPARE(m_err, from("a.csv") + ": would become the same table as a.CSV; rename one\n");
    QCOMPARE(table("a")->text(0, 0), QStringLiteral("1"));
}

void tst_Import::notesContradictions()
{
    writeFile(from("t.csv"), "k,v,w\na,1,10\nb,2,20\n");
    QCOMPARE(import(), ExitStatus::Done);
    writeFile(from("t.csv"), "k,v,w\na,M8,10;20\nb,2,20\n");
    QCOMPARE(import(), ExitStatus::Done);
    QVERIFY(m_out.contains("the column \"v\" is integer by the descriptor, but its cells look like "
                           "string"));
    QVERIFY(m_out.contains(
        "the column \"w\" is integer by the descriptor, but its cells look like range "
        "of integers"));
    QCOMPARE(table("t")->descriptor().fields.at(1).type, FieldType::Integer);
}

void tst_Import::wrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");

    const QString dir = QDir::tempPath();
    QTest::newRow("nothing") << QStringList{} << "--from";
    QTest::newRow("no target") << QStringList{"--from", dir} << "--into";
    QTest::newRow("unknown option")
        << QStringList{"--from", dir, "--into", "/x/y", "--fast"} << "fast";
    QTest::newRow("no date") << QStringList{"--from", dir, "--into", "/x/y", "--date", "31.1.2026"}
                             << "--date is no date; write it as 2026-01-31T12:00:00Z";
    QTest::newRow("same directory")
        << QStringList{"--from", dir, "--into", dir} << "--from and --into lie inside each other";
    QTest::newRow("target inside") << QStringList{"--from", dir, "--into", dir + "/a/b"}
                                   << "--from and --into lie inside each other";
    QTest::newRow("input inside") << QStringList{"--from", dir + "/a/../b", "--into", dir}
                                  << "--from and --into lie inside each other";
}

void tst_Import::wrongUsage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);
    QTextStream out(&m_out);
    QTextStream err(&m_err);
    m_err.clear();
    QCOMPARE(velkmap::runImport(arguments, out, err), ExitStatus::WrongUsage);
    QVERIFY2(m_err.contains(message), qPrintable(m_err));
}

void tst_Import::help()
{
    QCOMPARE(import({"--help"}), ExitStatus::Done);
    for (const char *option : {"--from", "--into", "--date", "--key"})
        QVERIFY(m_out.contains(option));
    QVERIFY(!QFileInfo::exists(m_dir->filePath("root")));
}

void tst_Import::nothingToImport()
{
    QCOMPARE(import(), ExitStatus::InputUnreadable);
    QCOMPARE(m_err, "velkmap import: there is no CSV file below " + m_dir->filePath("csv") + "\n");
    QVERIFY(QDir(m_dir->filePath("csv")).removeRecursively());
    QCOMPARE(import(), ExitStatus::InputUnreadable);
    QCOMPARE(m_err, "velkmap import: " + m_dir->filePath("csv") + " is no readable directory\n");
}

void tst_Import::unwritable()
{
    writeFile(from("t.csv"), "a\n1\n");
    writeFile(m_dir->filePath("root/cat"), "a file where the catalog is to be");
    QCOMPARE(import(), ExitStatus::ResultUnwritable);
    QVERIFY2(m_err.contains(m_dir->filePath("root/cat")), qPrintable(m_err));
    QVERIFY(QFile::remove(m_dir->filePath("root/cat")));
    QVERIFY(QDir().mkpath(into("t.json")));
    QCOMPARE(import(), ExitStatus::InputUnreadable);
    QVERIFY(QDir().rmdir(into("t.json")));
    QVERIFY(QDir().mkpath(into("t.prj")));
    QCOMPARE(import(), ExitStatus::ResultUnwritable);
    QVERIFY(m_err.startsWith(into("t.prj") + ": cannot be written: "));
    QVERIFY(!QFile::exists(into("t.csv")));
    QVERIFY(!QFile::exists(into("t.json")));
}

QTEST_GUILESS_MAIN(tst_Import)
#include "tst_Import.moc"
