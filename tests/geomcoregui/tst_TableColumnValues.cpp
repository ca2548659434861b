#include "ViewTables.h"

#include <geomcore/table/TableData.h>
#include <geomcore/value/LangThreadSettings.h>
#include <geomcoregui/table/TableColumnValues.h>

#include <QTest>

using VKTab::ContentRef;
using VKTab::LineId;

namespace {

/// The text of each row of the file.
QStringList texts(const TableColumnValues &values)
{
    QStringList result;
    for (const quint32 id : values.ids()) {
        const std::string_view text = values.texts().at(id);
        result.append(QString::fromUtf8(text.data(), qsizetype(text.size())));
    }
    return result;
}

} // namespace

class tst_TableColumnValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { VKTab::LangThreadSettings::setCommonLanguage(QString()); }

    void oneNumberForEachText()
    {
        const ContentRef table = ViewTables::large(25);
        const TableColumnValues values(table, table.getVar(u"B"));
        QCOMPARE(values.ids().size(), size_t(25));
        QCOMPARE(values.texts().size(), size_t(10));
        QCOMPARE(texts(values).value(13), QString("b3"));
        QCOMPARE(values.ids()[3], values.ids()[13]);
    }

    void changedCells()
    {
        const ContentRef table = ViewTables::large(3);
        const VKTab::Var var = table.getVar(u"C");
        table.getModifyLayer()->setValue(var.getVarId(), LineId(2),
                                         VKTab::Value(QStringLiteral("new")));
        QCOMPARE(texts(TableColumnValues(table, var)), QStringList({"c0", "new", "c2"}));
        QCOMPARE(texts(TableColumnValues(table, table.getVar(u"B"))),
                 QStringList({"b0", "b1", "b2"}));
    }

    void translated()
    {
        VKTab::TableDescriptor descriptor;
        descriptor.fields = {TestTables::field(QStringLiteral("F"))};
        descriptor.fields[0].translations[QStringLiteral("en")] = {
            {QStringLiteral("Blank"), QStringLiteral("bare")}};
        const ContentRef table =
            TestTables::table(descriptor, QStringLiteral("F\nBlank\nx\nBlank\n"));
        QCOMPARE(texts(TableColumnValues(table, table.getVar(u"F"))),
                 QStringList({"Blank", "x", "Blank"}));
        VKTab::LangThreadSettings::setCommonLanguage(QStringLiteral("en"));
        const TableColumnValues values(table, table.getVar(u"F"));
        QCOMPARE(texts(values), QStringList({"bare", "x", "bare"}));
        QCOMPARE(values.texts().size(), size_t(2));
    }

    void computedAndMissing()
    {
        const ContentRef table = TestTables::screws();
        const QStringList volumes = texts(TableColumnValues(table, table.getVar(u"Volume")));
        QCOMPARE(volumes.size(), 4);
        QCOMPARE(volumes.at(0), QString("16"));
        const TableColumnValues values(table, table.getVar(u"L"));
        QVERIFY(texts(values).contains(QString()));
    }

    void ranksPutMissingValuesAside()
    {
        VKTab::TableDescriptor descriptor;
        descriptor.fields = {TestTables::field(QStringLiteral("F"))};
        const ContentRef table =
            TestTables::table(descriptor, QStringLiteral("F\nM10\n\"\"\nm8\n7\nM8\n"));
        const TableColumnValues values(table, table.getVar(u"F"));
        const std::vector<quint32> ranks = values.ranks();
        const auto rank = [&](size_t row) {
            return ranks[values.ids()[row]];
        };
        QCOMPARE(rank(1), TableColumnValues::Missing);
        QVERIFY(rank(3) < rank(2));
        QVERIFY(rank(2) < rank(0));
        QVERIFY(rank(4) < rank(0));
    }

    void withoutATable()
    {
        const ContentRef none;
        QVERIFY(TableColumnValues(none, VKTab::Var()).ids().empty());
    }
};

QTEST_GUILESS_MAIN(tst_TableColumnValues)
#include "tst_TableColumnValues.moc"
