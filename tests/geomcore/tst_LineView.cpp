#include "../support/TestTables.h"

#include <geomcore/table/BaseLayer.h>
#include <geomcore/table/LayerType.h>
#include <geomcore/table/LineView.h>

#include <QTest>

using namespace VKTab;

class tst_LineView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_table = TestTables::screws(); }
    void aDefaultViewIsNotValid();
    void readsTheFile_data();
    void readsTheFile();
    void columnsOutOfRangeAreEmpty();
    void tellsWhatStandsInTheFile();
    void seesChangedCells();
    void seesPutInValues();
    void readsNumbers_data();
    void readsNumbers();
    void knowsFileColumns();

private:
    [[nodiscard]] QStringList texts(const LineView &line) const
    {
        QStringList result;
        std::string scratch;
        for (int column = 0; column < line.columnCount(); ++column) {
            const std::string_view text = line.text(column, scratch);
            result.append(QString::fromUtf8(text.data(), qsizetype(text.size())));
        }
        return result;
    }

    ContentRef m_table;
};

void tst_LineView::aDefaultViewIsNotValid()
{
    for (const LineView &line : {LineView(), LineView(Line()), LineView(ContentRef(), 1),
                                 LineView(m_table, 99), LineView(Content(), 1)}) {
        QVERIFY(!line.isValid());
        QVERIFY(!line.lineId().isValid());
        std::string scratch;
        QVERIFY(line.text(0, scratch).empty());
        QVERIFY(line.cell(0, scratch).empty());
        QVERIFY(line.value(0).isNull());
        QVERIFY(line.isPlain());
    }
}

void tst_LineView::readsTheFile_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QStringList>("values");
    QTest::newRow("list") << 0 << QStringList{"8", "10;12;16", "blank", "0.5", "16"};
    QTest::newRow("missing") << 2 << QStringList{"12", "10..50/5", "blank", "", "24"};
    QTest::newRow("quotes") << 3 << QStringList{"16", "", "a \"b\"", "2.0", "32"};
}

void tst_LineView::readsTheFile()
{
    QFETCH(int, row);
    QFETCH(QStringList, values);
    const auto data = m_table.getTableData();
    const LineId id = data->lineId(row);
    const Line line = m_table.getLine(id, false);
    for (const LineView &view : {LineView(*data, row), LineView(m_table, id), LineView(line)}) {
        QVERIFY(view.isValid());
        QVERIFY(view.isPlain());
        QCOMPARE(view.lineId(), id);
        QCOMPARE(view.row(), row);
        QCOMPARE(view.table(), data.get());
        QCOMPARE(texts(view), values);
        for (int column = 0; column < values.size(); ++column) {
            QCOMPARE(view.value(column).toString(), values[column]);
            QCOMPARE(view.value(column).isNull(), values[column].isEmpty());
            QCOMPARE(line.getValue(m_table.getVarList().at(column), FormatFlags::fromInt(0x11), {})
                         .toString(),
                     values[column]);
        }
    }
}

void tst_LineView::columnsOutOfRangeAreEmpty()
{
    const LineView line(m_table, 1);
    std::string scratch;
    QCOMPARE(line.columnCount(), 5);
    QVERIFY(line.text(-1, scratch).empty());
    QVERIFY(line.text(5, scratch).empty());
    QVERIFY(line.cell(-1, scratch).empty());
    QVERIFY(line.cell(4, scratch).empty()); // computed: nothing in the file
    QVERIFY(line.value(5).isNull());
}

void tst_LineView::tellsWhatStandsInTheFile()
{
    m_table.getModifyLayer()->setValue(m_table.getVar(u"L").getVarId(), 1, Value("12"));
    const LineView line(m_table, 1);
    std::string scratch;
    QCOMPARE(line.cell(1, scratch), std::string_view("10;12;16"));
    QCOMPARE(line.text(1, scratch), std::string_view("12"));
    QCOMPARE(line.cell(3, scratch), std::string_view("0,5"));
}

void tst_LineView::seesChangedCells()
{
    const auto modify = m_table.getModifyLayer();
    modify->setValue(m_table.getVar(u"Note").getVarId(), 1, Value("black"));
    const LineView changed(m_table, 1);
    QVERIFY(!changed.isPlain());
    QCOMPARE(changed.value(2).toString(), "black");
    const LineView other(m_table, 2);
    QVERIFY(other.isPlain());
    QCOMPARE(other.value(2).toString(), "galvanised");
    const LineView asRead(*m_table.getTableData(), 0);
    QVERIFY(asRead.isPlain());
    QCOMPARE(asRead.value(2).toString(), "blank");
}

void tst_LineView::seesPutInValues()
{
    Line line = m_table.getLine(1, false);
    line.putValue(m_table.getVar(u"Weight").getVarId(), Value("0,75"));
    line.putValue(m_table.getVar(u"Dia").getVarId(), Value(9));
    const LineView view(line);
    QVERIFY(!view.isPlain());
    QCOMPARE(texts(view), (QStringList{"9", "10;12;16", "blank", "0.75", "18"}));
    line.takeValues();
    QVERIFY(LineView(line).isPlain());
}

void tst_LineView::readsNumbers_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<bool>("isNumber");
    QTest::addColumn<double>("number");
    QTest::newRow("number") << 0 << true << 8.0;
    QTest::newRow("range") << 1 << false << 0.0;
    QTest::newRow("text") << 2 << false << 0.0;
    QTest::newRow("decimal comma") << 3 << true << 0.5;
    QTest::newRow("computed") << 4 << true << 16.0;
}

void tst_LineView::readsNumbers()
{
    QFETCH(int, column);
    const auto number = LineView(m_table, 1).number(column);
    QTEST(number.has_value(), "isNumber");
    QTEST(number.value_or(0.0), "number");
}

void tst_LineView::knowsFileColumns()
{
    QCOMPARE(LineView::columnOf(m_table.getVar(u"Note").getVarId()), 2);
    QCOMPARE(LineView::varIdOf(2), m_table.getVar(u"Note").getVarId());
    QCOMPARE(LineView::columnOf(VarId()), -1);
    QCOMPARE(LineView::columnOf(VarId(getLayerIdOffset(registerLayerType("other")))), -1);
}

QTEST_GUILESS_MAIN(tst_LineView)
#include "tst_LineView.moc"
