#include "GridFixture.h"

#include <geomcoregui/table/TableClipboard.h>

#include <QHeaderView>
#include <QMimeData>

#include <memory>

class tst_TableClipboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowsInTheGivenOrder();
    void noRows();
    void columnsAsTheyStand();
    void cellsThatNeedQuotes_data();
    void cellsThatNeedQuotes();
    void html();
};

void tst_TableClipboard::rowsInTheGivenOrder()
{
    const GridFixture f;
    const std::unique_ptr<QMimeData> data(tableMimeData(*f.grid, {2, 0}));
    const QStringList rows = data->text().split('\n');
    QCOMPARE(rows.size(), 4);
    QCOMPARE(rows[0], QString("Dia\tL\tNote\tVolume"));
    QCOMPARE(rows[1].section('\t', 0, 0), f.model.index(2, 2).data().toString());
    QCOMPARE(rows[2].section('\t', 0, 0), f.model.index(0, 2).data().toString());
    QVERIFY(rows[3].isEmpty());
}

void tst_TableClipboard::noRows()
{
    const GridFixture f;
    const std::unique_ptr<QMimeData> data(tableMimeData(*f.grid, {}));
    QCOMPARE(data->text(), QString("Dia\tL\tNote\tVolume\n"));
}

void tst_TableClipboard::columnsAsTheyStand()
{
    const GridFixture f;
    f.grid->horizontalHeader()->moveSection(5, 2);
    f.grid->setColumnHidden(3, true);
    const std::unique_ptr<QMimeData> data(tableMimeData(*f.grid, {}));
    QCOMPARE(data->text(), QString("Volume\tDia\tNote\n"));
}

void tst_TableClipboard::cellsThatNeedQuotes_data()
{
    QTest::addColumn<QString>("cell");
    QTest::addColumn<QString>("text");
    QTest::newRow("plain") << "a b;c,d"
                           << "a b;c,d";
    QTest::newRow("tab") << "a\tb"
                         << "\"a\tb\"";
    QTest::newRow("line end") << "a\nb"
                              << "\"a\nb\"";
    QTest::newRow("carriage return") << "a\rb"
                                     << "\"a\rb\"";
    QTest::newRow("quote") << "1/4\" bolt"
                           << "\"1/4\"\" bolt\"";
    QTest::newRow("empty") << ""
                           << "";
}

void tst_TableClipboard::cellsThatNeedQuotes()
{
    QFETCH(QString, cell);
    QFETCH(QString, text);
    GridFixture f;
    f.table.getModifyLayer()->setValue(f.model.variable(4).getVarId(), VKTab::LineId(1),
                                       VKTab::Value(cell));
    f.table.invalidate(VKTab::Content::InvalidateValues, true);
    const std::unique_ptr<QMimeData> data(tableMimeData(*f.grid, {0}));
    QVERIFY2(data->text().contains('\t' + text + '\t'), qPrintable(data->text()));
}

void tst_TableClipboard::html()
{
    const GridFixture f;
    const std::unique_ptr<QMimeData> data(tableMimeData(*f.grid, {3}));
    const QString html = data->html();
    QVERIFY2(html.startsWith("<table border=\"1\">\n<tr><th align=\"right\">Dia</th>") &&
                 html.endsWith("</tr>\n</table>"),
             qPrintable(html));
    QVERIFY(html.contains("<td align=\"right\">16</td>"));
    QVERIFY(html.contains("<td>a &quot;b&quot;</td>"));
    QCOMPARE(html.count("<tr>"), 2);
    QCOMPARE(html.count("</tr>"), 2);
}

QTEST_MAIN(tst_TableClipboard)
#include "tst_TableClipboard.moc"
