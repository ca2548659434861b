#include "../support/SlotOrder.h"
#include "../support/TestTables.h"

#include <geomcore/table/BaseLayer.h>
#include <geomcore/table/LayerType.h>
#include <geomcore/table/SignalConnect.h>
#include <geomcore/value/LangThreadSettings.h>

#include <QTest>

#include <cmath>

using namespace VKTab;

class tst_Line : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_table = TestTables::screws(); }
    void keepsTheOrderOfItsOperations();
    void aDefaultLineIsNotValid();
    void givesValues_data();
    void givesValues();
    void unknownVariablesHaveNoValue();
    void missingValuesAreNull();
    void givesNormValues();
    void normValuesOfColumnsAndOfTheTable();
    void patternsKeepWhatTheyDoNotKnow_data();
    void patternsKeepWhatTheyDoNotKnow();
    void designationsAreTranslated();
    void computesValues();
    void computesChains();
    void computesLongChains();
    void computesColumnsOfAnyName();
    void showsPutInValues();
    void copiesGoSeparateWays();
    void otherLinesDoNotShowPutInValues();
    void keepsTheTableAlive();
    void keepsItsColumnsWhenLayersCome();
    void appliesValuesOfRanges();
    void appliesNothingElse_data();
    void appliesNothingElse();
    void applyingTellsOnce();
    void applyingTheStoredValueChangesNothing();
    void anAppliedValueDoesNotNarrowTheRange();
    void comparesValues_data();
    void comparesValues();

private:
    [[nodiscard]] Var var(const char *name) const { return m_table.getVar(QString(name)); }
    [[nodiscard]] QString shown(int line, const char *name) const
    {
        return text(m_table.getLine(line, false), name);
    }
    [[nodiscard]] QString text(const Line &line, const char *name) const
    {
        return line.getValue(var(name), FormatFlags::fromInt(0x11), {}).toString();
    }

    ContentRef m_table;
};

void tst_Line::keepsTheOrderOfItsOperations()
{
    QCOMPARE(slotOf(&LineI::getVarList), 0);
    QCOMPARE(slotOf(&LineI::getLineInfo), 1);
}

void tst_Line::aDefaultLineIsNotValid()
{
    Line line;
    QVERIFY(!line.isValid());
    QVERIFY(line.getVarList().isEmpty());
    QVERIFY(!line.getLineInfo().getLineId().isValid());
    QVERIFY(line.getValue(var("Dia"), {}, {}).isNull());
    QVERIFY(!line.getValue(LineI::NormDesignation, {}).isValid());
    line.putValue(var("L").getVarId(), Value("10"));
    QVERIFY(!line.apply());
    line.takeValues();
    QVERIFY(!line.hasValue(var("Dia"), Value(), true));
}

void tst_Line::givesValues_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("format");
    QTest::addColumn<QString>("text");

    QTest::newRow("number") << 1 << "Dia" << 0x11 << "8";
    QTest::newRow("range as stored") << 1 << "L" << 0x11 << "10;12;16";
    QTest::newRow("steps as stored") << 3 << "L" << 0x11 << "10..50/5";
    QTest::newRow("text") << 1 << "Note" << 0x11 << "blank";
    QTest::newRow("decimal point in plain notation") << 1 << "Weight" << 0x11 << "0.5";
    QTest::newRow("digits stay") << 4 << "Weight" << 0x11 << "2.0";
    QTest::newRow("as written, with unit") << 1 << "Weight" << 0 << "0,5 kg";
    QTest::newRow("untranslated only") << 1 << "Weight" << 0x10 << "0,5 kg";
    QTest::newRow("quoted") << 4 << "Note" << 0x11 << "a \"b\"";
    QTest::newRow("missing") << 3 << "Weight" << 0x11 << "";
    QTest::newRow("missing has no unit") << 3 << "Weight" << 0 << "";
    QTest::newRow("empty range") << 4 << "L" << 0x11 << "";
}

void tst_Line::givesValues()
{
    QFETCH(int, line);
    QFETCH(QString, name);
    QFETCH(int, format);
    const Value value = m_table.getLine(line, false)
                            .getValue(m_table.getVar(name), FormatFlags::fromInt(format), {});
    QTEST(value.toString(), "text");
    const Value detached = m_table.getLine(line, true)
                               .getValue(m_table.getVar(name), FormatFlags::fromInt(format), {});
    QCOMPARE(detached, value);
}

void tst_Line::unknownVariablesHaveNoValue()
{
    const Line line = m_table.getLine(1, false);
    Var foreign(VarTypePlain);
    foreign.setVarId(VarId(getLayerIdOffset(registerLayerType("none"))));
    QVERIFY(line.getValue(foreign, {}, {}).isNull());
    QVERIFY(line.getValue(Var(), {}, {}).isNull());
    foreign.setVarId(VarId(getLayerIdOffset(fileLayerType()) + 17));
    QVERIFY(line.getValue(foreign, {}, {}).isNull());
}

void tst_Line::missingValuesAreNull()
{
    TableDescriptor descriptor = TestTables::screwDescriptor();
    descriptor.missingValues = {"", "-"};
    const ContentRef table =
        TestTables::table(descriptor, "Dia,L,Note,Weight\n-, ,x, - \n8,1,2,3\n");
    const Line line = table.getLine(1, false);
    QVERIFY(line.getValue(table.getVar(u"Dia"), {}, {}).isNull());
    QVERIFY(line.getValue(table.getVar(u"Weight"), FormatPlain, {}).isNull());
    QVERIFY(!line.getValue(table.getVar(u"Note"), {}, {}).isNull());
}

void tst_Line::givesNormValues()
{
    m_table.getFileLayer()->setKeyValue(KeyProjectPath, "$TORMEVA_DATA/23d-libs/iso\\screw.x.prj");
    const Line line = m_table.getLine(2, false);
    QCOMPARE(line.getValue(static_cast<LineI::ValueId>(1), {}).toString(), "DIN 931");
    QCOMPARE(line.getValue(static_cast<LineI::ValueId>(2), {}).toString(), "screw.x");
    QCOMPARE(line.getValue(static_cast<LineI::ValueId>(3), {}).toString(), "DIN 931 - 10 x 20");
}

void tst_Line::normValuesOfColumnsAndOfTheTable()
{
    TableDescriptor descriptor = TestTables::screwDescriptor();
    descriptor.lineNormNumber = "Note";
    descriptor.lineDesignation.clear();
    const ContentRef table = TestTables::table(descriptor, TestTables::screwLines());
    QCOMPARE(table.getLine(2, false).getValue(LineI::NormNumber).toString(), "galvanised");
    QCOMPARE(table.getLine(2, false).getValue(LineI::NormDesignation).toString(),
             "Sechskantschraube");
    QCOMPARE(table.getLine(2, false).getValue(LineI::ProjectName).toString(), "");
}

void tst_Line::patternsKeepWhatTheyDoNotKnow_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("text");
    QTest::newRow("unknown name") << "a {Nix} {Dia}"
                                  << "a {Nix} 10";
    QTest::newRow("brace left open") << "{Dia"
                                     << "{Dia";
    QTest::newRow("no name") << "{} {Dia}}"
                             << "{} 10}";
    QTest::newRow("brace in brace") << "{{Dia}"
                                    << "{10";
    QTest::newRow("constant") << "DIN 7"
                              << "DIN 7";
    QTest::newRow("two in a row") << "{Dia}{L}"
                                  << "1020";
    QTest::newRow("name of a column alone") << "Dia"
                                            << "10";
}

void tst_Line::patternsKeepWhatTheyDoNotKnow()
{
    QFETCH(QString, pattern);
    TableDescriptor descriptor = TestTables::screwDescriptor();
    descriptor.lineDesignation = pattern;
    const ContentRef table = TestTables::table(descriptor, TestTables::screwLines());
    QTEST(table.getLine(2, false).getValue(LineI::NormDesignation).toString(), "text");
}

void tst_Line::designationsAreTranslated()
{
    TableDescriptor descriptor = TestTables::screwDescriptor();
    descriptor.lineDesignation = "{Dia} {Note}";
    const ContentRef table = TestTables::table(descriptor, TestTables::screwLines());
    descriptor.lineDesignation.clear();
    const ContentRef other = TestTables::table(descriptor, TestTables::screwLines());
    LangThreadSettings settings;
    settings.setLanguage("en");
    QCOMPARE(table.getLine(1, false).getValue(LineI::NormDesignation).toString(), "8 plain");
    QCOMPARE(other.getLine(1, false).getValue(LineI::NormDesignation).toString(), "Hexagon bolt");
    settings.disableTranslation(true);
    QCOMPARE(table.getLine(1, false).getValue(LineI::NormDesignation).toString(), "8 blank");
    QCOMPARE(other.getLine(1, false).getValue(LineI::NormDesignation).toString(),
             "Sechskantschraube");
}

void tst_Line::computesValues()
{
    QCOMPARE(shown(1, "Volume"), "16");
    QCOMPARE(shown(3, "Volume"), "24");
    Line line = m_table.getLine(1, false);
    line.putValue(var("Dia").getVarId(), Value("5"));
    QCOMPARE(text(line, "Volume"), "10");
    m_table.getModifyLayer()->setValue(var("Dia").getVarId(), 1, Value("7"));
    QCOMPARE(shown(1, "Volume"), "14");
    m_table.getModifyLayer()->setValue(var("Volume").getVarId(), 1, Value("99"));
    QCOMPARE(shown(1, "Volume"), "99");
}

void tst_Line::computesChains()
{
    // Each needs the one before it twice: without memory of the line this takes 2^60 evaluations.
    TableDescriptor descriptor = TestTables::screwDescriptor();
    descriptor.fields[4].formula = "Dia * 0 + 1";
    QString former = "Volume";
    for (int i = 0; i < 60; ++i) {
        descriptor.fields.append(
            TestTables::field(QString("C%1").arg(i), FieldType::Number, FieldKind::Computed));
        descriptor.fields.last().formula = former + " + " + former;
        former = descriptor.fields.last().name;
    }
    m_table = TestTables::table(descriptor, TestTables::screwLines());
    QCOMPARE(shown(1, "C9"), "1024");
    QCOMPARE(shown(1, "C59").toDouble(), std::ldexp(1.0, 60));
    // What is put in between goes on from there, for this line only.
    Line line = m_table.getLine(1, false);
    line.putValue(var("C8").getVarId(), Value("10"));
    QCOMPARE(text(line, "C9"), "20");
    QCOMPARE(text(line, "C7"), "256");
    QCOMPARE(shown(1, "C9"), "1024");
    QCOMPARE(shown(2, "C9"), "1024");
    line.takeValues();
    QCOMPARE(text(line, "C9"), "1024");
    m_table.getModifyLayer()->setValue(var("C8").getVarId(), 2, Value("1"));
    QCOMPARE(shown(2, "C9"), "2");
    QCOMPARE(shown(1, "C9"), "1024");
}

void tst_Line::computesLongChains()
{
    TableDescriptor descriptor = TestTables::screwDescriptor();
    descriptor.fields[4].formula = "Dia";
    // Against the order of the fields, and longer than any stack of evaluations.
    constexpr int length = 5000;
    for (int i = 0; i < length; ++i) {
        descriptor.fields.append(
            TestTables::field(QString("C%1").arg(i), FieldType::Number, FieldKind::Computed));
        descriptor.fields.last().formula =
            i + 1 < length ? QString("C%1 + 1").arg(i + 1) : QString("Volume");
    }
    m_table = TestTables::table(descriptor, TestTables::screwLines());
    QCOMPARE(shown(1, "C0"), QString::number(8 + length - 1));
    QCOMPARE(shown(2, "C0"), QString::number(10 + length - 1));
}

void tst_Line::computesColumnsOfAnyName()
{
    TableDescriptor descriptor = TestTables::screwDescriptor();
    descriptor.fields[4].name = QString::fromUtf8("Länge 2");
    descriptor.fields.append(TestTables::field("Bad", FieldType::Number, FieldKind::Computed));
    descriptor.fields.last().formula = "Dia *";
    m_table = TestTables::table(descriptor, TestTables::screwLines());
    QCOMPARE(text(m_table.getLine(1, false), "Länge 2"), "16");
    QCOMPARE(shown(1, "Bad"), "");
}

void tst_Line::showsPutInValues()
{
    for (const bool detached : {false, true}) {
        Line line = m_table.getLine(1, detached);
        line.putValue(var("L").getVarId(), Value("12"));
        line.putValue(var("Weight").getVarId(), Value("0,75"));
        QCOMPARE(text(line, "L"), "12");
        QCOMPARE(text(line, "Weight"), "0.75");
        QCOMPARE(line.getValue(LineI::NormDesignation).toString(), "DIN 931 - 8 x 12");
        line.putValue(var("L").getVarId(), Value(16));
        QCOMPARE(text(line, "L"), "16");
        line.takeValue(var("L").getVarId());
        QCOMPARE(text(line, "L"), "10;12;16");
        QCOMPARE(text(line, "Weight"), "0.75");
        line.takeValues();
        QCOMPARE(text(line, "Weight"), "0.5");
    }
}

void tst_Line::copiesGoSeparateWays()
{
    Line line = m_table.getLine(1, false);
    line.putValue(var("L").getVarId(), Value("12"));
    Line copy = line;
    QCOMPARE(text(copy, "L"), "12");
    line.putValue(var("L").getVarId(), Value("16"));
    QCOMPARE(text(copy, "L"), "12");
    copy = line;
    QCOMPARE(text(copy, "L"), "16");
    const Line moved = std::move(copy);
    QCOMPARE(text(moved, "L"), "16");
}

void tst_Line::otherLinesDoNotShowPutInValues()
{
    Line line = m_table.getLine(1, false);
    line.putValue(var("L").getVarId(), Value("12"));
    QCOMPARE(shown(1, "L"), "10;12;16");
    QVERIFY(m_table.isPlain());
}

void tst_Line::keepsTheTableAlive()
{
    const Var dia = var("Dia");
    const Line line = m_table.getLine(2, false);
    m_table = ContentRef();
    QCOMPARE(line.getValue(dia, {}, {}).toString(), "10");
    QCOMPARE(line.getValue(LineI::NormDesignation).toString(), "DIN 931 - 10 x 20");
}

void tst_Line::keepsItsColumnsWhenLayersCome()
{
    const Line line = m_table.getLine(2, false);
    BaseLayer layer(registerLayerType("more"));
    Var more(VarTypeForeign);
    more.setName("MORE");
    layer.addVar(more);
    m_table.addLayer(layer);
    QCOMPARE(line.getVarList().size(), 5);
    QCOMPARE(m_table.getLine(2, false).getVarList().size(), 6);
    QCOMPARE(text(line, "Dia"), "10");
}

void tst_Line::appliesValuesOfRanges()
{
    Line line = m_table.getLine(1, false);
    line.putValue(var("L").getVarId(), Value("12"));
    QVERIFY(line.apply());
    QCOMPARE(text(line, "L"), "12");
    QCOMPARE(shown(1, "L"), "12");
    QVERIFY(!m_table.isPlain());
    QVERIFY(!line.apply());

    Line other = m_table.getLine(3, true);
    other.putValue(var("L").getVarId(), Value("25.0"));
    QVERIFY(other.apply());
    QCOMPARE(shown(3, "L"), "25.0");
}

void tst_Line::appliesNothingElse_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    QTest::newRow("value outside of the list") << 1 << "L"
                                               << "13";
    QTest::newRow("value between the steps") << 3 << "L"
                                             << "12";
    QTest::newRow("value beyond the steps") << 3 << "L"
                                            << "55";
    QTest::newRow("no range in the cell") << 4 << "L"
                                          << "10";
    QTest::newRow("plain column") << 1 << "Note"
                                  << "x";
    QTest::newRow("computed column") << 1 << "Volume"
                                     << "x";
    QTest::newRow("no value") << 1 << "L"
                              << "";
}

void tst_Line::appliesNothingElse()
{
    QFETCH(int, line);
    QFETCH(QString, name);
    QFETCH(QString, value);
    Line written = m_table.getLine(line, false);
    const Var column = m_table.getVar(name);
    const QString before = written.getValue(column, FormatPlain, {}).toString();
    written.putValue(column.getVarId(), Value(value));
    QVERIFY(!written.apply());
    QVERIFY(m_table.isPlain());
    QCOMPARE(written.getValue(column, FormatPlain, {}).toString(), before);
}

void tst_Line::applyingTellsOnce()
{
    TableDescriptor descriptor = TestTables::screwDescriptor();
    descriptor.fields[0].kind = FieldKind::Range;
    ContentRef table = TestTables::table(descriptor, "Dia,L,Note,Weight\n8;10,20;30,x,1\n");
    QStringList log;
    const boost::signals2::scoped_connection connection =
        table.signalConnect().connectSignalLineModified(
            [&](const Content &content, const LineId &id, bool on) {
                const Line seen = content.getLine(id, false);
                log.append(seen.getValue(content.getVar(u"Dia"), FormatPlain, {}).toString() + '/' +
                           seen.getValue(content.getVar(u"L"), FormatPlain, {}).toString() + ' ' +
                           QString::number(on));
                return 0;
            });
    Line line = table.getLine(1, false);
    line.putValue(table.getVar(u"Dia").getVarId(), Value("10"));
    line.putValue(table.getVar(u"L").getVarId(), Value("30"));
    line.putValue(table.getVar(u"Note").getVarId(), Value("no range"));
    QVERIFY(line.apply());
    QCOMPARE(log, QStringList{"10/30 1"});
    QCOMPARE(line.getValue(table.getVar(u"Note"), FormatPlain, {}).toString(), "x");
}

void tst_Line::applyingTheStoredValueChangesNothing()
{
    Line line = m_table.getLine(2, false);
    line.putValue(var("L").getVarId(), Value("20"));
    QVERIFY(line.apply());
    QVERIFY(m_table.isPlain());
}

void tst_Line::anAppliedValueDoesNotNarrowTheRange()
{
    Line line = m_table.getLine(1, false);
    line.putValue(var("L").getVarId(), Value("12"));
    QVERIFY(line.apply());
    QCOMPARE(m_table.getRangeText(var("L").getVarId(), 1), "10;12;16");
    line.putValue(var("L").getVarId(), Value("16"));
    QVERIFY(line.apply());
    QCOMPARE(shown(1, "L"), "16");
    const auto filter = m_table.getModifyLayer()->getRangeFilter(1);
    QCOMPARE(filter.size(), 1);
    QCOMPARE(filter.value(var("L").getVarId()), QStringList{"16"});
}

void tst_Line::comparesValues_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("rangeContains");
    QTest::addColumn<bool>("equal");

    QTest::newRow("equal") << 1 << "Dia"
                           << "8" << false << true;
    QTest::newRow("number written otherwise") << 1 << "Dia"
                                              << "8.0" << false << true;
    QTest::newRow("decimal comma") << 1 << "Weight"
                                   << "0.50" << false << true;
    QTest::newRow("own decimal comma") << 1 << "Weight"
                                       << "0,50" << false << true;
    QTest::newRow("eleventh digit") << 1 << "Dia"
                                    << "8.00000000001" << false << true;
    QTest::newRow("ninth digit") << 1 << "Dia"
                                 << "8.00000001" << false << false;
    QTest::newRow("other number") << 1 << "Dia"
                                  << "9" << false << false;
    QTest::newRow("text") << 1 << "Note"
                          << "blank" << false << true;
    QTest::newRow("blanks around") << 1 << "Note"
                                   << " blank " << false << true;
    QTest::newRow("other case") << 1 << "Note"
                                << "Blank" << false << false;
    QTest::newRow("missing is empty") << 3 << "Weight"
                                      << "" << false << true;
    QTest::newRow("missing is not 0") << 3 << "Weight"
                                      << "0" << false << false;
    QTest::newRow("in the list") << 1 << "L"
                                 << "12.0" << true << true;
    QTest::newRow("not in the list") << 1 << "L"
                                     << "13" << true << false;
    QTest::newRow("whole list") << 1 << "L"
                                << "10;12;16" << true << false;
    QTest::newRow("whole list as text") << 1 << "L"
                                        << "10;12;16" << false << true;
    QTest::newRow("in the list, as text") << 1 << "L"
                                          << "12" << false << false;
    QTest::newRow("on a step") << 3 << "L"
                               << "45" << true << true;
    QTest::newRow("between steps") << 3 << "L"
                                   << "46" << true << false;
    QTest::newRow("single value of a range column") << 2 << "L"
                                                    << "20.0" << true << true;
    QTest::newRow("empty range is empty") << 4 << "L"
                                          << "" << true << true;
    QTest::newRow("computed") << 1 << "Volume"
                              << "16" << false << true;
    QTest::newRow("unknown variable is empty") << 1 << "Nix"
                                               << "" << false << true;
}

void tst_Line::comparesValues()
{
    QFETCH(int, line);
    QFETCH(QString, name);
    QFETCH(QString, value);
    QFETCH(bool, rangeContains);
    const Line compared = m_table.getLine(line, false);
    QTEST(compared.hasValue(m_table.getVar(name), Value(value), rangeContains), "equal");
}

QTEST_GUILESS_MAIN(tst_Line)
#include "tst_Line.moc"
