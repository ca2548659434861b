#include <core/parallel/WorkerPool.h>
#include <geomcore/table/TableData.h>
#include <geomcore/value/LineId.h>

#include <QRandomGenerator>
#include <QTest>

using VKTab::TableData;
using VKTab::TableDescriptor;
using VKTab::TableError;
using VKTab::TableReadResult;

namespace {

constexpr int Rows = 75000;

/// Some megabytes: plain rows, quoted cells, line feeds and doubled quotes in them.
QByteArray rows(const QByteArray &lineEnd)
{
    QRandomGenerator random(7);
    QByteArray csv = "Id,Name,Note" + lineEnd;
    for (int i = 0; i < Rows; ++i) {
        csv += QByteArray::number(3 * i + 1) + ",name " + QByteArray::number(i) + ',';
        switch (random.bounded(6)) {
        case 0:
            csv += "\"a, b\"";
            break;
        case 1:
            csv += "\"two\nrows, \"\"quoted\"\"\n\"";
            break;
        case 2:
            csv += "\"\"\"\"";
            break;
        default:
            csv += "M\xC3\xBCller plain and somewhat longer";
        }
        csv += lineEnd;
    }
    return csv;
}

TableReadResult readWith(int threads, const QByteArray &csv)
{
    WorkerPool::instance().setThreads(threads);
    TableDescriptor descriptor;
    descriptor.lineIdField = QStringLiteral("Id");
    return TableData::fromMemory(descriptor, csv);
}

QStringList texts(const VKTab::TableErrorList &errors)
{
    QStringList list;
    for (const TableError &error : errors)
        list << error.toString();
    return list;
}

} // namespace

/// Large tables are scanned in parts on several threads.
class tst_TableDataInParts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { WorkerPool::instance().setThreads(0); }
    void sameAsInOnePiece_data();
    void sameAsInOnePiece();
    void sameErrors_data();
    void sameErrors();
};

void tst_TableDataInParts::sameAsInOnePiece_data()
{
    QTest::addColumn<QByteArray>("csv");
    QTest::newRow("line feeds") << rows("\n");
    QTest::newRow("carriage returns") << rows("\r\n");
    QTest::newRow("last row without its end") << rows("\n").chopped(1);
    QTest::newRow("quoted line feeds only")
        << "Id,Name,Note\n1,a,\"" + QByteArray(5000000, '\n') + "\"\n2,b,c\n";
    QTest::newRow("one long row") << "Id,Name,Note\n1,a," + QByteArray(5000000, 'x') + "\n2,b,c";
}

void tst_TableDataInParts::sameAsInOnePiece()
{
    QFETCH(QByteArray, csv);
    const TableReadResult whole = readWith(1, csv);
    const TableReadResult parts = readWith(4, csv);
    QVERIFY(whole);
    QVERIFY(parts);
    QCOMPARE(parts.data->rowCount(), whole.data->rowCount());
    for (int row = 0; row < whole.data->rowCount(); ++row) {
        if (parts.data->rawRow(row) != whole.data->rawRow(row) ||
            parts.data->hasQuotes(row) != whole.data->hasQuotes(row) ||
            parts.data->lineNumber(row) != whole.data->lineNumber(row))
            QFAIL(qPrintable(QStringLiteral("row %1 differs").arg(row)));
    }
    QCOMPARE(parts.data->rowOf(whole.data->lineId(whole.data->rowCount() - 1)),
             whole.data->rowCount() - 1);
}

void tst_TableDataInParts::sameErrors_data()
{
    QTest::addColumn<double>("where");
    QTest::addColumn<QByteArray>("bad");
    for (const double where : {0.01, 0.5, 0.999}) {
        const auto row = [&](const char *name, const QByteArray &bad) {
            QTest::addRow("%s at %g", name, where) << where << bad;
        };
        row("too few cells", "5,x\n");
        row("no line id", "five,x,y\n");
        row("no UTF-8", "5,\xFF,y\n");
        row("quote inside a cell", "5,1/4\",y\n");
        row("text behind a quote", "5,\"a\"b,y\n");
        row("quote left open", "5,\"a,y\n");
        row("line id twice", "1,x,y\n");
    }
}

void tst_TableDataInParts::sameErrors()
{
    QFETCH(double, where);
    QFETCH(QByteArray, bad);
    QByteArray csv = "Id,Name,Note\n";
    for (int i = 0; i < Rows; ++i) {
        csv += QByteArray::number(i + 1) + ",name,a plain note of some length\n";
        if (i == int(where * Rows))
            csv += bad;
    }
    const TableReadResult whole = readWith(1, csv);
    const TableReadResult parts = readWith(4, csv);
    QVERIFY(!whole);
    QVERIFY(!parts);
    QCOMPARE(texts(parts.errors), texts(whole.errors));
}

QTEST_GUILESS_MAIN(tst_TableDataInParts)

#include "tst_TableDataInParts.moc"
