#include "../support/EnglishTexts.h"

#include <geomcore/table/TableData.h>
#include <geomcore/value/LineId.h>

#include <QRandomGenerator>
#include <QTest>

#include <thread>

using namespace VKTab;

namespace {

TableDescriptor describe(const QStringList &names, FieldKind kind = FieldKind::Plain)
{
    TableDescriptor descriptor;
    for (const QString &name : names)
        descriptor.fields.append(TableField{.name = name, .kind = kind});
    return descriptor;
}

QList<QStringList> allRows(const TableData &table)
{
    QList<QStringList> rows;
    std::vector<std::string_view> cells(size_t(table.columnCount()));
    std::string scratch;
    for (int row = 0; row < table.rowCount(); ++row) {
        table.cells(row, cells, scratch);
        QStringList texts;
        for (std::string_view cell : cells)
            texts.append(QString::fromUtf8(cell.data(), qsizetype(cell.size())));
        rows.append(texts);
    }
    return rows;
}

QString quoted(QString text)
{
    return u'"' + text.replace(u'"', QStringLiteral("\"\"")) + u'"';
}

} // namespace

class tst_TableData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reads_data();
    void reads();
    void refuses_data();
    void refuses();
    void randomRoundTrip();
    void longRowsAcrossBlocks();
    void lineIds_data();
    void lineIds();
    void refusesIds_data();
    void refusesIds();
    void marksRanges();
    void marksLargeRanges();
    void keepsAFewWarnings();
    void keepsAFewErrors();
    void namesWhatDoesNotParse();
    void computedColumnsThatNeedEachOther_data();
    void computedColumnsThatNeedEachOther();
    void fieldsFollowColumns();
    void refusesNames_data();
    void refusesNames();
    void missingValues();
    void internedColumn();
    void internedFromManyThreads();
    void sameBytes_data();
    void sameBytes();
};

void tst_TableData::reads_data()
{
    QTest::addColumn<QByteArray>("csv");
    QTest::addColumn<QList<QStringList>>("rows");

    QTest::newRow("LF") << QByteArray("a,b\n1,2\n3,4\n")
                        << QList<QStringList>{{"1", "2"}, {"3", "4"}};
    QTest::newRow("CRLF") << QByteArray("a,b\r\n1,2\r\n3,4\r\n")
                          << QList<QStringList>{{"1", "2"}, {"3", "4"}};
    QTest::newRow("no line end at the end")
        << QByteArray("a,b\n1,2") << QList<QStringList>{{"1", "2"}};
    QTest::newRow("carriage return at the end")
        << QByteArray("a,b\r\n1,2\r") << QList<QStringList>{{"1", "2"}};
    QTest::newRow("no rows") << QByteArray("a,b\n") << QList<QStringList>{};
    QTest::newRow("header without line end") << QByteArray("a,b") << QList<QStringList>{};
    QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBF"
                                                   "a,b\n1,2\n")
                                     << QList<QStringList>{{"1", "2"}};
    QTest::newRow("empty cells") << QByteArray("a,b\n,\n,2\n1,\n")
                                 << QList<QStringList>{{"", ""}, {"", "2"}, {"1", ""}};
    QTest::newRow("comma in quotes")
        << QByteArray("a,b\n\"1,5\",2\n") << QList<QStringList>{{"1,5", "2"}};
    QTest::newRow("doubled quotes") << QByteArray("a,b\n\"1 1/4\"\"\",\"\"\"x\"\"\"\n")
                                    << QList<QStringList>{{"1 1/4\"", "\"x\""}};
    QTest::newRow("line break in quotes") << QByteArray("a,b\n\"1\r\n2\",\"3\n4\"\r\n5,6\r\n")
                                          << QList<QStringList>{{"1\r\n2", "3\n4"}, {"5", "6"}};
    QTest::newRow("empty quotes") << QByteArray("a,b\n\"\",\"\"\n") << QList<QStringList>{{"", ""}};
    QTest::newRow("quoted last cell at the end")
        << QByteArray("a,b\n1,\"2\"") << QList<QStringList>{{"1", "2"}};
    QTest::newRow("blanks stay") << QByteArray("a,b\n 1 ,\t2\n")
                                 << QList<QStringList>{{" 1 ", "\t2"}};
    QTest::newRow("lone carriage return is text")
        << QByteArray("a,b\n1\r2,3\n") << QList<QStringList>{{"1\r2", "3"}};
    QTest::newRow("umlauts and beyond")
        << QString::fromUtf8("a,b\nLänge,\"ⅷ 😀\"\n").toUtf8()
        << QList<QStringList>{{QString::fromUtf8("Länge"), QString::fromUtf8("ⅷ 😀")}};
    QTest::newRow("quoted header")
        << QByteArray("\"a\",\"b\"\n1,2\n") << QList<QStringList>{{"1", "2"}};
    QTest::newRow("blank line in a table of one column")
        << QByteArray("a\n1\n\n2\n") << QList<QStringList>{{"1"}, {""}, {"2"}};
}

void tst_TableData::reads()
{
    QFETCH(QByteArray, csv);
    QFETCH(QList<QStringList>, rows);
    const TableReadResult result = TableData::fromMemory({}, csv);
    QVERIFY2(result, qPrintable(result.errors.isEmpty() ? QString() : result.errors.first().text));
    QCOMPARE(allRows(*result.data), rows);
    std::string scratch;
    for (int row = 0; row < rows.size(); ++row) {
        for (int column = 0; column < result.data->columnCount(); ++column)
            QCOMPARE(result.data->text(row, column), rows.at(row).at(column));
    }
}

void tst_TableData::refuses_data()
{
    QTest::addColumn<QByteArray>("csv");
    QTest::addColumn<QString>("message");

    QTest::newRow("quote left open")
        << QByteArray("a,b\n1,2\n3,\"4\n5,6\n") << "memory: row 3, column 2: a quote is left open";
    QTest::newRow("quote left open in the header")
        << QByteArray("a,\"b\n1,2\n")
        << "memory: row 1, column 2: the quotes of the cell do not pair";
    QTest::newRow("quote inside a cell")
        << QByteArray("a,b\n1,2\"\n")
        << "memory: row 2, column 2: a quote inside a cell that does not begin with one; quote the "
           "whole cell and double the quotes in it";
    QTest::newRow("text after the quote")
        << QByteArray("a,b\n\"1\"x,2\n")
        << "memory: row 2, column 1: text after the closing quote of a "
           "cell";
    QTest::newRow("too few cells")
        << QByteArray("a,b,c\n1,2,3\n1,2\n")
        << "memory: row 3, column 3: 2 cells instead of 3, as the header row "
           "has";
    QTest::newRow("too many cells")
        << QByteArray("a,b\n1,2\n1,2,3,4\n")
        << "memory: row 3, column 3: 4 cells instead of 2, as the header "
           "row has";
    QTest::newRow("blank line")
        << QByteArray("a,b\n1,2\n\n")
        << "memory: row 3, column 2: 1 cell instead of 2, as the header row has";
    QTest::newRow("rows are records, not lines")
        << QByteArray("a,b\n\"1\n\n\",2\n3\n")
        << "memory: row 3, column 2: 1 cell instead of 2, as the header row has";
    QTest::newRow("Latin-1")
        << QByteArray("a,b\n1,2\nL\xE4nge,2\n")
        << "memory: row 3, column 1: the bytes are no UTF-8; save the file as UTF-8";
    QTest::newRow("Latin-1 in quotes")
        << QByteArray("a,b\n1,\"L\xE4nge\"\n")
        << "memory: row 2, column 2: the bytes are no UTF-8; save the file as UTF-8";
    QTest::newRow("Latin-1 in the header")
        << QByteArray("a,L\xE4nge\n1,2\n")
        << "memory: row 1: the bytes are no UTF-8; save the file as "
           "UTF-8";
    QTest::newRow("cut off sequence at the end")
        << QByteArray("a,b\n1,\xE2\x82")
        << "memory: row 2, column 2: the bytes are no UTF-8; save the "
           "file as UTF-8";
    QTest::newRow("surrogate")
        << QByteArray("a\n\xED\xA0\x80\n")
        << "memory: row 2, column 1: the bytes are no UTF-8; save the file as "
           "UTF-8";
    QTest::newRow("overlong")
        << QByteArray("a\n\xC0\xAF\n")
        << "memory: row 2, column 1: the bytes are no UTF-8; save the file as UTF-8";
    QTest::newRow("sequence cut by a comma")
        << QByteArray("a,b\n\xC3,2\n")
        << "memory: row 2, column 1: the bytes are no UTF-8; save the "
           "file as UTF-8";
    QTest::newRow("empty") << QByteArray()
                           << "memory: row 1: the file is empty; its first row must name "
                              "the columns";
    QTest::newRow("nothing but a mark")
        << QByteArray("\xEF\xBB\xBF")
        << "memory: row 1: the file is empty; its first row must name "
           "the columns";
    QTest::newRow("column without a name")
        << QByteArray("a,\n1,2\n") << "memory: row 1, column 2: the column has no name";
    QTest::newRow("column twice") << QByteArray("a,b,a\n1,2,3\n")
                                  << "memory: row 1, column 3: the column \"a\" stands twice";
}

void tst_TableData::refuses()
{
    QFETCH(QByteArray, csv);
    QFETCH(QString, message);
    const TableReadResult result = TableData::fromMemory({}, csv);
    QVERIFY(!result);
    QVERIFY(!result.errors.isEmpty());
    QCOMPARE(result.errors.first().toString(), message);
}

void tst_TableData::randomRoundTrip()
{
    QRandomGenerator random(20260101);
    const QString alphabet = QString::fromUtf8("ab1., ;\"\n\r\tä€😀x'=-");
    for (int round = 0; round < 200; ++round) {
        const int columns = random.bounded(1, 12);
        const QString lineEnd = random.bounded(2) ? QStringLiteral("\r\n") : QStringLiteral("\n");
        QStringList header;
        for (int i = 0; i < columns; ++i)
            header.append(QStringLiteral("c%1").arg(i));
        QString csv = header.join(u',') + lineEnd;
        QList<QStringList> rows;
        for (int row = random.bounded(40); row > 0; --row) {
            QStringList cells;
            QStringList written;
            for (int i = 0; i < columns; ++i) {
                QString cell;
                for (int n = random.bounded(random.bounded(8) ? 6 : 150); n > 0; --n)
                    cell += alphabet.at(random.bounded(int(alphabet.size())));
                cell = QString::fromUtf8(cell.toUtf8()); // halves of surrogate pairs
                const bool must = cell.contains(u',') || cell.contains(u'"') ||
                                  cell.contains(u'\n') || cell.contains(u'\r');
                written.append(must || random.bounded(3) == 0 ? quoted(cell) : cell);
                cells.append(cell);
            }
            rows.append(cells);
            csv += written.join(u',') + lineEnd;
        }
        const TableReadResult result = TableData::fromMemory({}, csv.toUtf8());
        QVERIFY2(result, qPrintable(csv));
        QCOMPARE(allRows(*result.data), rows);
    }
}

void tst_TableData::longRowsAcrossBlocks()
{
    // Every position of a line end, a quote and a sequence of bytes within the blocks of the scan.
    for (int length = 0; length < 140; ++length) {
        const QString fill(length, u'x');
        const QString text =
            QStringLiteral("a,b\n%1,2\n%1\u00e4\u20ac,\"%1\u00e4,\"\"\n\"\n").arg(fill);
        const TableReadResult result = TableData::fromMemory({}, text.toUtf8());
        QVERIFY(result);
        const QList<QStringList> expected{
            {fill, "2"}, {fill + QString::fromUtf8("ä€"), fill + QString::fromUtf8("ä,\"\n")}};
        QCOMPARE(allRows(*result.data), expected);
        const TableReadResult broken =
            TableData::fromMemory({}, text.toUtf8() + fill.toUtf8() + ",\xE4\n");
        QCOMPARE(broken.errors.size(), 1);
        QCOMPARE(broken.errors.first().row, 4);
        QCOMPARE(broken.errors.first().column, 2);
    }
}

void tst_TableData::lineIds_data()
{
    QTest::addColumn<QString>("idField");
    QTest::addColumn<QString>("subField");
    QTest::addColumn<QByteArray>("csv");
    QTest::addColumn<QList<int>>("ids");
    QTest::addColumn<QList<int>>("subIds");

    const QByteArray plain("id,b,sub\n7,x,1\n3,y,2\n2000000000,z,0\n");
    QTest::newRow("data rows") << ""
                               << "" << plain << QList<int>{1, 2, 3} << QList<int>{0, 0, 0};
    QTest::newRow("first column") << "id"
                                  << "" << plain << QList<int>{7, 3, 2000000000}
                                  << QList<int>{0, 0, 0};
    QTest::newRow("two columns") << "id"
                                 << "sub" << plain << QList<int>{7, 3, 2000000000}
                                 << QList<int>{1, 2, 0};
    QTest::newRow("last column") << "id"
                                 << "" << QByteArray("a,id\nx,5\ny,4\n") << QList<int>{5, 4}
                                 << QList<int>{0, 0};
    QTest::newRow("middle column")
        << "id"
        << "" << QByteArray("a,id,c\nx,5,u\ny,4,v\n") << QList<int>{5, 4} << QList<int>{0, 0};
    QTest::newRow("quoted, blanks") << "id"
                                    << "" << QByteArray("a,id\r\n\"x,\",\" 5 \"\r\ny, 0\r\n")
                                    << QList<int>{5, 0} << QList<int>{0, 0};
    QTest::newRow("the rows themselves")
        << "id"
        << "" << QByteArray("a,id\nx,1\ny,2\n") << QList<int>{1, 2} << QList<int>{0, 0};
    QTest::newRow("same number, other second") << "id"
                                               << "sub" << QByteArray("id,sub\n1,2\n1,1\n1,0\n")
                                               << QList<int>{1, 1, 1} << QList<int>{2, 1, 0};
}

void tst_TableData::lineIds()
{
    QFETCH(QString, idField);
    QFETCH(QString, subField);
    QFETCH(QByteArray, csv);
    QFETCH(QList<int>, ids);
    QFETCH(QList<int>, subIds);
    TableDescriptor descriptor;
    descriptor.lineIdField = idField;
    descriptor.lineSubIdField = subField;
    const TableReadResult result = TableData::fromMemory(descriptor, csv);
    QVERIFY(result);
    QCOMPARE(result.data->rowCount(), int(ids.size()));
    for (int row = 0; row < ids.size(); ++row) {
        QCOMPARE(result.data->lineNumber(row), ids.at(row));
        QCOMPARE(result.data->lineSubNumber(row), subIds.at(row));
        QCOMPARE(result.data->lineId(row), LineId(ids.at(row), subIds.at(row)));
        QCOMPARE(result.data->rowOf(ids.at(row), subIds.at(row)), row);
        QCOMPARE(result.data->rowOf(result.data->lineId(row)), row);
    }
    QCOMPARE(result.data->rowOf(LineId()), -1);
    QCOMPARE(result.data->rowOf(LineId(-1)), -1);
    QCOMPARE(result.data->rowOf(1999999999), -1);
    QCOMPARE(result.data->rowOf(ids.first(), 99), -1);
}

void tst_TableData::refusesIds_data()
{
    QTest::addColumn<QByteArray>("csv");
    QTest::addColumn<QString>("message");

    QTest::newRow("duplicate") << QByteArray("a,id\nx,5\ny,6\nz,5\n")
                               << "memory: row 4, column 2: the line id 5 is that of row 2 already";
    QTest::newRow("duplicate far apart")
        << QByteArray("a,id\nx,2000000000\ny,6\nz,2000000000\n")
        << "memory: row 4, column 2: the line id 2000000000 is that of row 2 already";
    QTest::newRow("no number")
        << QByteArray("a,id\nx,M8\n")
        << "memory: row 2, column 2: \"M8\" is no line id, which is an integer "
           "from 0 to 2147483647";
    QTest::newRow("empty")
        << QByteArray("a,id\nx,\n")
        << "memory: row 2, column 2: \"\" is no line id, which is an integer from 0 "
           "to 2147483647";
    QTest::newRow("negative")
        << QByteArray("a,id\nx,-1\n")
        << "memory: row 2, column 2: \"-1\" is no line id, which is an integer "
           "from 0 to 2147483647";
    QTest::newRow("too large")
        << QByteArray("a,id\nx,2147483648\n")
        << "memory: row 2, column 2: \"2147483648\" is no line id, which is an "
           "integer from 0 to 2147483647";
    QTest::newRow("fraction")
        << QByteArray("a,id\nx,1.5\n")
        << "memory: row 2, column 2: \"1.5\" is no line id, which is an integer "
           "from 0 to 2147483647";
    QTest::newRow("no such column") << QByteArray("a,b\nx,1\n")
                                    << "memory: row 1: the column \"id\" is missing, which the "
                                       "descriptor's lineIdField names";
}

void tst_TableData::refusesIds()
{
    QFETCH(QByteArray, csv);
    QFETCH(QString, message);
    TableDescriptor descriptor;
    descriptor.lineIdField = QStringLiteral("id");
    const TableReadResult result = TableData::fromMemory(descriptor, csv);
    QVERIFY(!result);
    QCOMPARE(result.errors.first().toString(), message);
}

void tst_TableData::marksRanges()
{
    TableDescriptor descriptor = describe({"L"}, FieldKind::Range);
    descriptor.missingValues = QStringList{QString(), QStringLiteral("None")};
    const TableReadResult result = TableData::fromMemory(
        descriptor, "a,L\n1,10;12;16\n2,10..50/5\n3,10..50\n4,\n5,None\n6,10;;12\n7,7\n8,x..y/2\n");
    QVERIFY(result);
    QVERIFY(result.errors.isEmpty());
    QCOMPARE(result.data->markedRows(), (std::vector<int>{2, 5, 7}));
    QCOMPARE(result.data->warnings().size(), 3);
    QCOMPARE(
        result.data->warnings().first().toString(),
        QStringLiteral("memory: row 4, column 2: \"10..50\" is no value range of L: \"10..50\" has "
                       "no step; write it as 10..50/5"));
}

void tst_TableData::marksLargeRanges()
{
    TableDescriptor descriptor = describe({"L"}, FieldKind::Range);
    QByteArray list("1");
    for (int i = 0; i < 100000; ++i)
        list += ";1";
    const TableReadResult result =
        TableData::fromMemory(descriptor, "L\n1..100000/1\n0..100000/1\n" + list + "\n");
    QVERIFY(result);
    QCOMPARE(result.data->markedRows(), (std::vector<int>{1, 2}));
    QCOMPARE(result.data->warnings().first().toString(),
             "memory: row 3, column 1: the value range \"0..100000/1\" of L has too many values "
             "(100001); only 100000 are walked");
    QVERIFY(result.data->warnings().last().text.size() < 400);
}

void tst_TableData::keepsAFewWarnings()
{
    QByteArray csv("L\n");
    for (int i = 0; i < 25; ++i)
        csv += "1..\n";
    const auto result = TableData::fromMemory(describe({"L"}, FieldKind::Range), csv);
    QCOMPARE(result.data->markedRows().size(), size_t(25));
    QCOMPARE(result.data->warnings().size(), 21);
    QCOMPARE(result.data->warnings().last().toString(), "memory: 5 more errors");
}

void tst_TableData::keepsAFewErrors()
{
    const QStringList names(100, QStringLiteral("a"));
    const auto result = TableData::fromMemory(TableDescriptor(), names.join(u',').toUtf8() + "\n");
    QCOMPARE(result.errors.size(), 21);
    QCOMPARE(result.errors.first().toString(),
             "memory: row 1, column 2: the column \"a\" stands twice");
    QCOMPARE(result.errors.last().toString(), "memory: 79 more errors");
}

void tst_TableData::namesWhatDoesNotParse()
{
    TableDescriptor descriptor = describe({"a"});
    descriptor.fields.append(
        TableField{.name = "v", .kind = FieldKind::Computed, .formula = "a *"});
    descriptor.filterConditions = {{"BYPRJ", QString(300000, u'x'), {}}, {"B", "a .EQ. 1", {}}};
    const auto result = TableData::fromMemory(descriptor, "a\n1\n");
    QVERIFY(result);
    QCOMPARE(result.data->warnings().size(), 2);
    QVERIFY(result.data->warnings().first().text.startsWith(
        "the formula of the computed column \"v\" does not parse: "));
    QVERIFY(result.data->warnings().last().text.startsWith(
        "the filter condition \"BYPRJ\" does not parse: "));
    QVERIFY(result.data->warnings().last().text.size() < 400);
}

void tst_TableData::computedColumnsThatNeedEachOther_data()
{
    QTest::addColumn<QStringList>("formulas");
    QTest::addColumn<QString>("named");
    QTest::newRow("itself") << QStringList{"C0 + C0"} << "C0";
    QTest::newRow("two") << QStringList{"C1 + 1", "C0 + 1"} << "C0, C1";
    QTest::newRow("behind a chain")
        << QStringList{"C1", "C2 + a", "C3", "C2 + C4", "a"} << "C2, C3";
    QTest::newRow("none") << QStringList{"C1 + C2", "C2", "a"} << QString();
}

void tst_TableData::computedColumnsThatNeedEachOther()
{
    QFETCH(QStringList, formulas);
    QFETCH(QString, named);
    TableDescriptor descriptor = describe({"a"});
    for (int i = 0; i < formulas.size(); ++i)
        descriptor.fields.append(TableField{
            .name = QString("C%1").arg(i), .kind = FieldKind::Computed, .formula = formulas.at(i)});
    const auto result = TableData::fromMemory(descriptor, "a\n1\n");
    QCOMPARE(bool(result), named.isEmpty());
    if (!named.isEmpty())
        QCOMPARE(result.errors.first().toString(),
                 "memory: these computed columns need each other: " + named);
}

void tst_TableData::fieldsFollowColumns()
{
    TableDescriptor descriptor = describe({"c", "a"});
    descriptor.fields.append(
        TableField{.name = "v", .kind = FieldKind::Computed, .formula = "V = a + c"});
    const TableReadResult result = TableData::fromMemory(descriptor, "a,new,c\n1,2,3\n");
    QVERIFY(result);
    QStringList names;
    for (const TableField &field : result.data->descriptor().fields)
        names.append(field.name);
    QCOMPARE(names, (QStringList{"a", "new", "c", "v"}));
    QCOMPARE(result.data->columnCount(), 3);
    QCOMPARE(result.data->columnOf(u"c"), 2);
    QCOMPARE(result.data->columnOf(u"v"), -1);
    QCOMPARE(result.data->columnOf(u"C"), -1);
    QCOMPARE(result.data->columnOf(u""), -1);
}

void tst_TableData::refusesNames_data()
{
    QTest::addColumn<QStringList>("fields");
    QTest::addColumn<QStringList>("key");
    QTest::addColumn<QString>("message");

    QTest::newRow("field without a column")
        << QStringList{"a", "z"} << QStringList{}
        << "memory: row 1: the column \"z\" is missing, which the descriptor has";
    QTest::newRow("key without a column")
        << QStringList{"a"} << QStringList{"a", "k"}
        << "memory: row 1: the column \"k\" is missing, which the descriptor's primaryKey names";
}

void tst_TableData::refusesNames()
{
    QFETCH(QStringList, fields);
    QFETCH(QStringList, key);
    QFETCH(QString, message);
    TableDescriptor descriptor = describe(fields);
    descriptor.primaryKey = key;
    const TableReadResult result = TableData::fromMemory(descriptor, "a,b\n1,2\n");
    QVERIFY(!result);
    QCOMPARE(result.errors.first().toString(), message);
}

void tst_TableData::missingValues()
{
    TableDescriptor descriptor;
    descriptor.missingValues = QStringList{QString(), QStringLiteral("None"), QStringLiteral("-")};
    const TableReadResult result = TableData::fromMemory(descriptor, "a\n1\n");
    QVERIFY(result);
    for (const char *text : {"", "  ", "None", " None ", "-", "\t"})
        QVERIFY2(result.data->isMissing(text), text);
    for (const char *text : {"0", "none", "Nones", "N", "--", "-1"})
        QVERIFY2(!result.data->isMissing(text), text);
    descriptor.missingValues = QStringList{QStringLiteral("x")};
    const TableReadResult other = TableData::fromMemory(descriptor, "a\n1\n");
    QVERIFY(!other.data->isMissing(""));
    QVERIFY(other.data->isMissing("x"));
}

void tst_TableData::internedColumn()
{
    QByteArray csv("a,b\n");
    for (int i = 0; i < 1000; ++i)
        csv += "\"x\"\"" + QByteArray::number(i % 100) + "\"," + QByteArray::number(i % 7) + "\n";
    const TableReadResult result = TableData::fromMemory({}, csv);
    const InternedColumn &column = result.data->interned(0);
    QCOMPARE(column.values.size(), size_t(100));
    QCOMPARE(column.values[3], std::string_view("x\"3"));
    QCOMPARE(column.ids.size(), size_t(1000));
    for (int i = 0; i < 1000; ++i)
        QCOMPARE(column.ids[size_t(i)], quint32(i % 100));
    QCOMPARE(result.data->interned(1).values.size(), size_t(7));
    QCOMPARE(&result.data->interned(0), &column);
}

void tst_TableData::internedFromManyThreads()
{
    QByteArray csv("a\n");
    for (int i = 0; i < 20000; ++i)
        csv += QByteArray::number(i % 1000) + '\n';
    const TableReadResult result = TableData::fromMemory({}, csv);
    std::vector<std::thread> threads;
    std::array<const InternedColumn *, 4> seen{};
    for (const InternedColumn *&column : seen)
        threads.emplace_back([&result, &column] { column = &result.data->interned(0); });
    for (std::thread &thread : threads)
        thread.join();
    for (const InternedColumn *column : seen) {
        QCOMPARE(column, seen.front());
        QCOMPARE(column->values.size(), size_t(1000));
        QCOMPARE(column->ids.size(), size_t(20000));
    }
}

void tst_TableData::sameBytes_data()
{
    QTest::addColumn<QByteArray>("row");
    QTest::addColumn<QByteArray>("otherRow");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    QTest::addColumn<bool>("same");
    const auto row = [](const char *name, const char *a, const char *b, int first, int last,
                        bool same) {
        QTest::newRow(name) << QByteArray(a) << QByteArray(b) << first << last << same;
    };
    row("whole rows", "1,x,y,2", "1,x,y,2", 0, 3, true);
    row("whole rows that differ", "1,x,y,2", "1,x,y,3", 0, 3, false);
    row("whole rows with quotes", "1,\"x,\",y,2", "1,\"x,\",y,2", 0, 3, true);
    row("all but the last", "1,x,y,2", "1,x,y,33", 0, 2, true);
    row("all but the first", "1,x,y,2", "44,x,y,2", 1, 3, true);
    row("all but both ends", "1,x,y,2", "44,x,y,33", 1, 2, true);
    row("one in the middle", "1,x,y,2", "44,x,z,33", 1, 1, true);
    row("the last of them differs", "1,x,y,2", "1,x,z,2", 0, 2, false);
    row("the first of them differs", "1,x,y,2", "1,z,y,2", 1, 2, false);
    row("the same bytes in other cells", "1,xy,,2", "1,x,y,2", 1, 2, false);
    row("nothing in them", ",,,", ",,,7", 1, 2, true);
    row("quotes beside others are not looked into", "1,x,y,\"2\"", "1,x,y,2", 0, 2, false);
    row("quotes in the other row alike", "1,x,y,2", "1,x,y,\"2\"", 0, 2, false);
}

void tst_TableData::sameBytes()
{
    QFETCH(QByteArray, row);
    QFETCH(QByteArray, otherRow);
    QFETCH(int, first);
    QFETCH(int, last);
    const auto table = TableData::fromMemory({}, "a,b,c,d\nq,q,q,q\n" + row + "\r\n").data;
    const auto other = TableData::fromMemory({}, "e,f,g,h\n" + otherRow).data;
    QTEST(table->hasSameBytes(1, *other, 0, first, last), "same");
}

QTEST_GUILESS_MAIN(tst_TableData)
#include "tst_TableData.moc"
