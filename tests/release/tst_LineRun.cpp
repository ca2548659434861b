#include <release/assign/assignProjectLines.h>
#include <release/assign/LineRun.h>

#include "../support/TestCatalog.h"

#include <geomcore/table/BaseLayer.h>
#include <geomcore/table/LayerType.h>
#include <geomcore/value/LangThreadSettings.h>

#include <QTest>

#include <boost/make_shared.hpp>

namespace {

/// A layer with one variable, which has the same value in each line.
class ConstantLayer : public VKTab::BaseLayer
{
public:
    ConstantLayer(const QString &name, VKTab::VarType type, const QString &value)
        : BaseLayer(VKTab::registerLayerType("ConstantLayer"))
        , m_name(name)
        , m_type(type)
        , m_value(value)
    {
        VKTab::Var var(type);
        var.setVarId(VKTab::VarId(getLayerIdOffset(getLayerType())));
        var.setVarSource(getLayerType());
        var.setName(name);
        addVar(var);
    }
    boost::shared_ptr<VKTab::LayerI> clone() const override
    {
        return boost::make_shared<ConstantLayer>(m_name, m_type, m_value);
    }
    VKTab::Value getValue(const VKTab::VarId &, const VKTab::LineId &,
                          const VKTab::LineI &) const override
    {
        return m_value;
    }
    VKTab::Value getValue(const VKTab::VarId &, const VKTab::LineId &) const override
    {
        return m_value;
    }

private:
    const QString m_name;
    const VKTab::VarType m_type;
    const QString m_value;
};

} // namespace

/// One line after the other, and what of a combination counts as the line's values.
class tst_LineRun : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void typesOfVariables_data();
    void typesOfVariables();
    void laterVariableOfOneName();
    void decimalComma();
    void translatedTexts();
    void confirmedEntriesStay();
    void checkOfEntries_data();
    void checkOfEntries();
    void invalidIdIsPassedOver();
    void firstCombinationSettles();
    void stepComesBeforeItsWork();

private:
    void write(const QString &project, const QByteArray &table,
               const TestCatalog::Edit &edit = {}) const
    {
        m_catalog->write(project, table, edit);
    }
    /// Assigns the lines of "cat/a.prj" as \a table has them, walking the range "L".
    QString assign(
        const VKTab::Content &table, const QList<VKTab::LineId> &lines, bool force = false,
        LineRunOptions::Combinations combinations = LineRunOptions::Combinations::UntilOneIsFound);
    /// The same for its first line, with a layer over the table.
    QString assignUnder(const ConstantLayer &layer);

    std::unique_ptr<TestCatalog> m_catalog;
    PrjMappingC m_mapping;
};

void tst_LineRun::init()
{
    m_catalog = std::make_unique<TestCatalog>();
    IndexTreeC::instance()->setCatalogRoot(PPathName(m_catalog->root()));
    m_mapping = mappingOf("cat/a.prj", {"new/a.prj"});
    addCondition(m_mapping, 0, "L .GT. 15");
}

QString tst_LineRun::assign(const VKTab::Content &table, const QList<VKTab::LineId> &lines,
                            bool force, LineRunOptions::Combinations combinations)
{
    PrjMapperC mapper(IndexTreeC::instance());
    mapper.setCreatorMode(true);
    mapper.setSourceProject(PPathName("cat/a.prj"));
    mapper.setSourceTable(table);
    (void)mapper.findMapping("cat/a.prj", "v1", catalogOf(m_mapping));
    LineRun run(mapper, table,
                {.conditionVariables = {"L"},
                 .force = force,
                 .combinations = combinations,
                 .isCanceled = {}});
    for (const VKTab::LineId &line : lines)
        run.assign(line);
    m_mapping = mapper.getMappingNode().getMapping();
    return entriesOf(m_mapping);
}

QString tst_LineRun::assignUnder(const ConstantLayer &layer)
{
    VKTab::Content table = m_catalog->read("cat/a.prj");
    table.addLayer(layer);
    return assign(table, {VKTab::LineId(1)});
}

void tst_LineRun::typesOfVariables_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("counts");

    QTest::newRow("none") << int(VKTab::VarTypeNone) << false;
    QTest::newRow("plain") << int(VKTab::VarTypePlain) << true;
    QTest::newRow("range") << int(VKTab::VarTypeRange) << true;
    QTest::newRow("computed") << int(VKTab::VarTypeComputed) << true;
    QTest::newRow("internal") << int(VKTab::VarTypeInternal) << false;
    QTest::newRow("topology") << int(VKTab::VarTypeTopology) << false;
    QTest::newRow("foreign") << int(VKTab::VarTypeForeign) << false;
}

void tst_LineRun::typesOfVariables()
{
    QFETCH(int, type);
    QFETCH(bool, counts);
    write("cat/a.prj", "D,L:r\nM8,10;20\n");
    write("new/a.prj", "D,L:n,x:n\nM8,20,1\nM8,20,2\n");
    const QString entries = assignUnder(ConstantLayer("x", VKTab::VarType(type), "2"));
    QCOMPARE(entries.section(u'/', 0, 0), counts ? "0:1>2" : "0:1>1");
}

void tst_LineRun::laterVariableOfOneName()
{
    write("cat/a.prj", "D,L:r,k:n\nM8,10;20,1\n");
    write("new/a.prj", "D,L:n,k:n\nM8,20,1\nM8,20,2\n");
    const QString entries = assignUnder(ConstantLayer("k", VKTab::VarTypePlain, "2"));
    QCOMPARE(entries.section(u'/', 0, 0), "0:1>2");
}

void tst_LineRun::decimalComma()
{
    write("cat/a.prj", "D,L:r,k:n\nM8,10;20,\"2,5\"\n",
          [](VKTab::TableDescriptor &table) { table.fields[2].decimalChar = ','; });
    write("new/a.prj", "D,L:n,k:n,x:n\nM8,20,25,1\nM8,20,2.5,1\n");
    const QString entries = assignUnder(ConstantLayer("x", VKTab::VarTypePlain, "1"));
    QCOMPARE(entries.section(u'/', 0, 0), "0:1>2");
}

void tst_LineRun::translatedTexts()
{
    write("cat/a.prj", "D,L:r\nStahl,10;20\n", [](VKTab::TableDescriptor &table) {
        table.fields[0].translations = {{"en", {{"Stahl", "steel"}}}};
    });
    write("new/a.prj", "D,L:n,x:n\nsteel,20,1\nStahl,20,1\n");
    VKTab::LangThreadSettings settings;
    settings.setLanguage("en");
    const QString entries = assignUnder(ConstantLayer("x", VKTab::VarTypePlain, "1"));
    QCOMPARE(entries.section(u'/', 0, 0), "0:1>2");
}

void tst_LineRun::confirmedEntriesStay()
{
    write("cat/a.prj", "D,L:n\nM8,20\n");
    write("new/a.prj", "D,L:n\nM8,20\n");
    enter(m_mapping, 0, 1, 1, PRJMAPPING::Verified);
    const VKTab::Content table = m_catalog->read("cat/a.prj");
    QCOMPARE(assign(table, {VKTab::LineId(1)}), "0:1>1/2");
    QCOMPARE(assign(table, {VKTab::LineId(1)}, true), "0:1>1/2");
}

void tst_LineRun::checkOfEntries_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<bool>("byVarset");
    QTest::addColumn<QString>("entries");

    for (const bool byVarset : {false, true}) {
        const char *form = byVarset ? "varset" : "line";
        const QByteArray holds = byVarset ? "M8,20;30," : "M8,20,";
        const QByteArray fails = byVarset ? "M8,10;12," : "M8,10,";
        QTest::addRow("%s that passes", form)
            << holds + '1' << holds + '1' << byVarset << "0:1>1/1";
        QTest::addRow("%s with other values", form)
            << holds + '1' << holds + '2' << byVarset << "0:1>1/0";
        QTest::addRow("%s whose condition fails", form)
            << fails + '1' << fails + '1' << byVarset << "0:1>1/0";
    }
}

/// An entry stays even if its condition does not hold any more, but is certain only if it does and
/// the values are equal.
void tst_LineRun::checkOfEntries()
{
    QFETCH(QByteArray, source);
    QFETCH(QByteArray, target);
    QFETCH(bool, byVarset);
    // Only combinations of ranges, as the line shows them, come as a varset.
    const QByteArray head = byVarset ? "D,L:r,k:n\n" : "D,L:n,k:n\n";
    write("cat/a.prj", head + source + '\n');
    write("new/a.prj", head + target + '\n');
    enter(m_mapping, 0, 1, 1, PRJMAPPING::ToCheck);
    QTEST(assign(m_catalog->read("cat/a.prj"), {VKTab::LineId(1)}, false,
                 byVarset ? LineRunOptions::Combinations::All
                          : LineRunOptions::Combinations::UntilOneIsFound),
          "entries");
}

void tst_LineRun::invalidIdIsPassedOver()
{
    write("cat/a.prj", "D,L:n\nM8,20\n");
    write("new/a.prj", "D,L:n\nM8,20\n");
    QCOMPARE(assign(m_catalog->read("cat/a.prj"), {VKTab::LineId(), VKTab::LineId(1)}), "0:1>1/1");
}

void tst_LineRun::firstCombinationSettles()
{
    write("cat/a.prj", "D,L:r\nM8,30;20\n");
    write("new/a.prj", "D,L:n\nM8,20\nM8,30\n");
    const VKTab::Content table = m_catalog->read("cat/a.prj");
    QCOMPARE(assign(table, {VKTab::LineId(1)}), "0:1>2/0");
    // Also where the entry of the first combination does not stay for the next one.
    QCOMPARE(assign(table, {VKTab::LineId(1)}, true), "0:1>2/0");
}

void tst_LineRun::stepComesBeforeItsWork()
{
    write("cat/a.prj", "D,L:n\nM8,20\nM9,30\n");
    write("new/a.prj", "D,L:n\nM8,20\nM9,30\n");
    VKTab::Content table = m_catalog->read("cat/a.prj");
    QStringList told;
    const VelkRelease::LineSteps steps{
        .begin = [&](int lines) { told.append(QStringLiteral("begin %1").arg(lines)); },
        .beforeLine =
            [&] {
                if (told.size() == 1) // the target's table is read at the first look-up
                    write("new/a.prj", "D,L:n\nX10,7\nM9,30\nM8,20\n");
                told.append("line");
            },
    };
    VelkRelease::assignProjectLines("cat/a.prj", m_mapping, table, ReleaseMappingC(), {}, false,
                                    nullptr, &steps);
    QCOMPARE(told, QStringList({"begin 2", "line", "line"}));
    QCOMPARE(entriesOf(m_mapping), "0:1>3/1 0:2>2/1");
}

QTEST_MAIN(tst_LineRun)
#include "tst_LineRun.moc"
