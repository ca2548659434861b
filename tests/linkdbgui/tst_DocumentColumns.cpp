#include "DocumentFixture.h"

#include <core/config/PConfigInst.h>

#include <QDataStream>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>

namespace {

const QStringList defaultColumns{"PDMID1",      "PDMID2",       "PDMID3",    "PDMID4",
                                 "PDMID5",      "XVARSET",      "CADSYSTEM", "PDMSYSTEM",
                                 "GEOFEATURES", "NBDEFAULTLANG"};
const QString lineOne = QStringLiteral("{TMVMAT=St}{L=10}{M=1}");

/// What the header stores for its columns, of one role.
QStringList headerOf(const DocumentListDialogC &dialog, int role)
{
    const QTreeWidgetItem *const header = documentsOf(dialog)->headerItem();
    QStringList texts;
    for (int i = 0; i < documentsOf(dialog)->columnCount(); ++i)
        texts.append(header->data(i, role).toString());
    return texts;
}

} // namespace

/// What a group's keys make of the document dialog: columns, captions, info line and buttons; and
/// what it keeps of its look.
class tst_DocumentColumns : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { addDatabases(); }
    void displayColumns_data();
    void displayColumns();
    void editColumns_data();
    void editColumns();
    void captions_data();
    void captions();
    void infoLine_data();
    void infoLine();
    void infoLineStaysHidden();
    void buttons_data();
    void buttons();
    void columnThatTheTableLacks();
    void editColumnThatTheTableLacks();
    void templateWithoutAVarset();
    void blankBeforeAName();
    void varsetIsKnownByItsName();
    void varsetInTheFirstColumn();
    void fewerColumnsLater();
    void state();
    void placeIsKept();
};

void tst_DocumentColumns::displayColumns_data()
{
    QTest::addColumn<QString>("configured");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("not set") << "" << defaultColumns;
    QTest::newRow("upper case") << "pdmId1,xVarset" << QStringList{"PDMID1", "XVARSET"};
    QTest::newRow("empty parts go") << ",a,,b," << QStringList{"A", "B"};
    QTest::newRow("blanks stay") << "a, b ,c" << QStringList{"A", " B ", "C"};
    QTest::newRow("only commas") << ",," << QStringList();
    QTest::newRow("quotes") << "a\"b,c'd" << QStringList{"A\"B", "C'D"};
}

void tst_DocumentColumns::displayColumns()
{
    QFETCH(QString, configured);
    const DocumentFixture fixture;
    fixture.setKey("PDM_COLUMNS", configured);
    const auto dialog = fixture.makeDialog();
    dialog->initDialog(fixture.path, 1, 0);
    const QStringList stored = headerOf(*dialog, Qt::UserRole);
    QFETCH(QStringList, expected);
    QCOMPARE(expected.isEmpty() ? QStringList{""} : expected, stored);
}

void tst_DocumentColumns::editColumns_data()
{
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("configured");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("not set") << ""
                             << ""
                             << defaultColumns.mid(0, 6) + defaultColumns.mid(8) +
                                    defaultColumns.mid(6, 2);
    QTest::newRow("follows the list") << "pdmid2"
                                      << "" << QStringList{"PDMID2", "CADSYSTEM", "PDMSYSTEM"};
    QTest::newRow("one system") << ""
                                << "pdmsystem,a" << QStringList{"A", "CADSYSTEM", "PDMSYSTEM"};
    QTest::newRow("systems come last")
        << ""
        << "PDMSYSTEM,a,CADSYSTEM,b" << QStringList{"A", "B", "CADSYSTEM", "PDMSYSTEM"};
    QTest::newRow("blanks make another name")
        << ""
        << "a, CADSYSTEM" << QStringList{"A", " CADSYSTEM", "CADSYSTEM", "PDMSYSTEM"};
}

void tst_DocumentColumns::editColumns()
{
    QFETCH(QString, shown);
    QFETCH(QString, configured);
    const DocumentFixture fixture;
    fixture.setKey("PDM_COLUMNS", shown);
    fixture.setKey("PDM_EDIT_COLUMNS", configured);
    fixture.insert("g1");
    const auto dialog = fixture.showDialog();
    clickDocument(*dialog, 0);
    QStringList labels;
    inNextForm([&](NewRecordDialogC &form) { labels = labelsOf(form); }, false);
    clickButton(*dialog, "btnEdit");
    QTEST(labels, "expected");
}

void tst_DocumentColumns::captions_data()
{
    QTest::addColumn<QString>("descriptions");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("none") << "" << QStringList{"A", "B", "C"};
    QTest::newRow("all, case kept") << "eins,Zwei,DREI" << QStringList{"eins", "Zwei", "DREI"};
    QTest::newRow("fewer") << "eins" << QStringList{"eins", "B", "C"};
    QTest::newRow("more") << "1,2,3,4" << QStringList{"1", "2", "3"};
    QTest::newRow("an empty one moves the others") << "1,,3" << QStringList{"1", "3", "C"};
}

void tst_DocumentColumns::captions()
{
    QFETCH(QString, descriptions);
    const DocumentFixture fixture;
    fixture.setKey("PDM_COLUMNS", "a,b,c");
    fixture.setKey("PDM_COLUMN_DESCRIPTIONS", descriptions);
    const auto dialog = fixture.showDialog();
    QCOMPARE(headerOf(*dialog, Qt::UserRole), (QStringList{"A", "B", "C"}));
    QTEST(headerOf(*dialog, Qt::DisplayRole), "expected");
    QVERIFY(!documentsOf(*dialog)->header()->sectionsMovable());
    QVERIFY(!documentsOf(*dialog)->rootIsDecorated());
    QCOMPARE(documentsOf(*dialog)->selectionBehavior(), QAbstractItemView::SelectRows);
}

void tst_DocumentColumns::infoLine_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("expected");
    QTest::newRow("translated") << "en"
                                << "Hinweis"
                                << "A note";
    QTest::newRow("no entry") << "fr"
                              << "Hinweis"
                              << "Hinweis";
    QTest::newRow("no language") << ""
                                 << "Hinweis"
                                 << "Hinweis";
    QTest::newRow("no text hides it") << "en"
                                      << "" << QString();
}

void tst_DocumentColumns::infoLine()
{
    QFETCH(QString, language);
    QFETCH(QString, key);
    const DocumentFixture fixture;
    fixture.setKey("PDM_DOCVIEW_INFO", key);
    fixture.catalog.writeFile("plinkgroups.def",
                              "[Other]\nen=Wrong\n[Info Text]\nde=Ein Hinweis\nen=A note\n");
    qputenv("TORMEVA_SETUP", QFile::encodeName(fixture.catalog.root()));
    qputenv("TORMEVA_LANGUAGE", language.toUtf8());
    const auto dialog = fixture.showDialog();
    qunsetenv("TORMEVA_SETUP");
    qunsetenv("TORMEVA_LANGUAGE");
    QTEST(widgetOf<QLabel>(*dialog, "lbInfo")->text(), "expected");
    QCOMPARE(widgetOf<QLabel>(*dialog, "lbInfo")->isVisible(), !key.isEmpty());
}

void tst_DocumentColumns::infoLineStaysHidden()
{
    const DocumentFixture fixture;
    const auto dialog = fixture.showDialog();
    QVERIFY(!widgetOf<QLabel>(*dialog, "lbInfo")->isVisible());
    fixture.setKey("PDM_DOCVIEW_INFO", "Hinweis");
    dialog->setLinkDbIface(fixture.iface);
    QCOMPARE(widgetOf<QLabel>(*dialog, "lbInfo")->text(), QString("Hinweis"));
    QVERIFY(!widgetOf<QLabel>(*dialog, "lbInfo")->isVisible());
}

void tst_DocumentColumns::buttons_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("shown");
    QTest::newRow("1") << "1" << true;
    QTest::newRow("0") << "0" << false;
    QTest::newRow("empty") << "" << false;
    QTest::newRow("true") << "true" << false;
    QTest::newRow("blank behind it") << "1 " << false;
}

void tst_DocumentColumns::buttons()
{
    QFETCH(QString, value);
    QFETCH(bool, shown);
    const QList<std::pair<const char *, QString>> keys = {
        {"btnCreate", "PDM_ADD"}, {"btnEdit", "PDM_EDIT"}, {"btnDelete", "PDM_DELETE"}};
    for (const auto &[button, key] : keys) {
        const DocumentFixture fixture;
        for (const auto &each : keys)
            fixture.setKey(each.second, shown ? "" : "1");
        fixture.setKey(key, value);
        const auto dialog = fixture.showDialog();
        for (const auto &each : keys)
            QCOMPARE(widgetOf<QPushButton>(*dialog, each.first)->isVisible(),
                     (each.second == key) == shown);
    }
}

void tst_DocumentColumns::columnThatTheTableLacks()
{
    const DocumentFixture fixture;
    fixture.setKey("PDM_COLUMNS", "none,PDMID1,line_id,GEO_ID");
    fixture.insert("g1", {{"PDMID1", "P-1"}});
    const auto dialog = fixture.showDialog();
    QCOMPARE(rowsOf(documentsOf(*dialog)), QStringList{"|P-1|1|g1"});
    const QTreeWidgetItem *const item = documentsOf(*dialog)->topLevelItem(0);
    QVERIFY(!item->data(0, Qt::DisplayRole).isValid());
    QVERIFY(!item->data(0, Qt::ToolTipRole).isValid());
    QCOMPARE(item->data(2, Qt::DisplayRole).typeId(), int(QMetaType::QString));
}

void tst_DocumentColumns::editColumnThatTheTableLacks()
{
    const DocumentFixture fixture;
    fixture.setKey("PDM_EDIT_COLUMNS", "NONE,PDMID1");
    fixture.insert("g1", {{"PDMID1", "P-1"}});
    const auto dialog = fixture.showDialog();
    QStringList seen;
    dialog->setUpdateCallback(scriptOf([&](prxDictionaryObjC &values, const mzComVariantC &) {
                                  seen = entriesOf(values);
                                  return mzComVariantC(0);
                              }),
                              "run");
    clickDocument(*dialog, 0);
    inNextForm([](NewRecordDialogC &form) {
        QCOMPARE(form.values().value("NONE"), QString());
        typeInto(form, "NONE", "x");
        typeInto(form, "PDMID1", "P-2");
    });
    clickButton(*dialog, "btnEdit");
    QCOMPARE(seen, (QStringList{"CADSYSTEM=", "NONE=x", "PDMID1=P-2", "PDMSYSTEM="}));
    QCOMPARE(fixture.column("SELECT PDMID1 FROM plm_document"), QStringList{"P-2"});
}

void tst_DocumentColumns::templateWithoutAVarset()
{
    const DocumentFixture fixture;
    fixture.execute("ALTER TABLE plm_document DROP COLUMN XVARSET");
    fixture.setKey("PDM_EDIT_COLUMNS", "PDMID1,XVARSET");
    fixture.insert("g1", {{"PDMID1", "P-1"}});
    const auto dialog = fixture.showDialog();
    dialog->setCreateCallback(
        scriptOf([](prxDictionaryObjC &, const mzComVariantC &) { return mzComVariantC(); }),
        "run");
    clickDocument(*dialog, 0);
    ValueMap values;
    inNextForm([&](NewRecordDialogC &form) { values = form.values(); }, false);
    clickButton(*dialog, "btnCreate");
    // What the template does not have stays the line's.
    QCOMPARE(values.value("PDMID1"), QString("P-1"));
    QCOMPARE(values.value("XVARSET"), lineOne);
}

void tst_DocumentColumns::blankBeforeAName()
{
    const DocumentFixture fixture;
    fixture.setKey("PDM_COLUMNS", "PDMID1, XVARSET");
    fixture.insert("g1", {{"XVARSET", lineOne}});
    const auto dialog = fixture.showDialog();
    QCOMPARE(headerOf(*dialog, Qt::UserRole), (QStringList{"PDMID1", " XVARSET"}));
    QCOMPARE(rowsOf(documentsOf(*dialog)), QStringList{"|" + lineOne});
    // Shown, but not known to be the record's varset.
    QCOMPARE(selectedIds(*dialog), QStringList());
    clickDocument(*dialog, 0);
    QCOMPARE(widgetOf<QTreeWidget>(*dialog, "tvVarset")->topLevelItemCount(), 0);
    dialog->accept();
    QCOMPARE(dialog->getXVarset(), QString());
    QVERIFY(dialog->isVarsetModified());
}

void tst_DocumentColumns::varsetIsKnownByItsName()
{
    const DocumentFixture fixture;
    fixture.setKey("PDM_COLUMNS", "PDMID1,XVARSET");
    fixture.setKey("PDM_COLUMN_DESCRIPTIONS", "xvarset,Zuordnung");
    fixture.insert("g1", {{"PDMID1", "P-1"}, {"XVARSET", lineOne}});
    const auto dialog = fixture.showDialog();
    QCOMPARE(headerOf(*dialog, Qt::DisplayRole), (QStringList{"xvarset", "Zuordnung"}));
    QCOMPARE(selectedIds(*dialog), QStringList{"g1"});
    dialog->accept();
    QCOMPARE(QString(dialog->getXVarset()), lineOne);
}

void tst_DocumentColumns::varsetInTheFirstColumn()
{
    const DocumentFixture fixture;
    fixture.setKey("PDM_COLUMNS", "XVARSET");
    fixture.insert("g1", {{"XVARSET", lineOne}});
    const auto dialog = fixture.showDialog();
    QCOMPARE(selectedIds(*dialog), QStringList{"g1"});
    QCOMPARE(widgetOf<QTreeWidget>(*dialog, "tvVarset")->topLevelItemCount(), 3);
    dialog->accept();
    QCOMPARE(QString(dialog->getXVarset()), lineOne);
    QVERIFY(!dialog->isVarsetModified());
}

void tst_DocumentColumns::fewerColumnsLater()
{
    const DocumentFixture fixture;
    fixture.setKey("PDM_COLUMNS", "PDMID1,PDMID2,XVARSET");
    fixture.insert("g1", {{"XVARSET", lineOne}, {"PDMID1", "P-1"}});
    const auto dialog = fixture.showDialog();
    QCOMPARE(selectedIds(*dialog), QStringList{"g1"});
    fixture.setKey("PDM_COLUMNS", "PDMID1");
    dialog->initDialog(fixture.path, 1, 0);
    // The columns behind stay, with their names.
    QCOMPARE(headerOf(*dialog, Qt::UserRole), (QStringList{"PDMID1", "PDMID2", "XVARSET"}));
    QCOMPARE(rowsOf(documentsOf(*dialog)), QStringList{"P-1||"});
    QCOMPARE(selectedIds(*dialog), QStringList());
}

void tst_DocumentColumns::state()
{
    const DocumentFixture fixture;
    fixture.insert("g1", {{"XVARSET", lineOne}});
    const auto first = fixture.showDialog();
    widgetOf<QSplitter>(*first, "splitter")->setSizes({100, 300});
    documentsOf(*first)->header()->resizeSection(1, 77);
    widgetOf<QTreeWidget>(*first, "tvVarset")->header()->resizeSection(0, 55);
    widgetOf<QTreeWidget>(*first, "tvVarset")->header()->resizeSection(1, 66);
    QByteArray state;
    QVERIFY(QMetaObject::invokeMethod(first.get(), "saveState", Q_RETURN_ARG(QByteArray, state)));
    QDataStream stream(state);
    QByteArray splitter;
    QByteArray documents;
    QByteArray varset;
    stream >> splitter >> documents >> varset;
    QVERIFY(stream.atEnd() && stream.status() == QDataStream::Ok);
    QCOMPARE(splitter, widgetOf<QSplitter>(*first, "splitter")->saveState());
    QCOMPARE(documents, documentsOf(*first)->header()->saveState());
    QCOMPARE(varset, widgetOf<QTreeWidget>(*first, "tvVarset")->header()->saveState());
    const auto second = fixture.makeDialog();
    QVERIFY(QMetaObject::invokeMethod(second.get(), "restoreState", Q_ARG(QByteArray, state)));
    second->initDialog(fixture.path, 2, 0);
    second->show();
    QCOMPARE(documentsOf(*second)->header()->sectionSize(1), 77);
    QCOMPARE(widgetOf<QTreeWidget>(*second, "tvVarset")->header()->sectionSize(0), 55);
    QCOMPARE(widgetOf<QTreeWidget>(*second, "tvVarset")->header()->sectionSize(1), 66);
    // Each line is shown with it.
    documentsOf(*second)->header()->resizeSection(1, 22);
    second->initDialog(fixture.path, 3, 0);
    QCOMPARE(documentsOf(*second)->header()->sectionSize(1), 77);
    QCOMPARE(widgetOf<QSplitter>(*second, "splitter")->sizes(),
             widgetOf<QSplitter>(*first, "splitter")->sizes());
    // What is none is passed over.
    const auto third = fixture.makeDialog();
    third->restoreState("nonsense");
    third->initDialog(fixture.path, 1, 0);
    QCOMPARE(idsOf(*third), QStringList{"g1"});
}

void tst_DocumentColumns::placeIsKept()
{
    const QTemporaryDir folder;
    const DocumentFixture fixture;
    const PRefPtr<PConfig> config(new PConfigInst(folder.filePath("app.cfg"), false));
    const PApplication application(config);
    {
        const auto dialog = fixture.showDialog();
        dialog->resize(801, 433);
        documentsOf(*dialog)->header()->resizeSection(2, 99);
    }
    {
        const auto dialog = fixture.showDialog();
        QCOMPARE(dialog->size(), QSize(801, 433));
        QCOMPARE(documentsOf(*dialog)->header()->sectionSize(2), 99);
    }
    {
        NewRecordDialogC form;
        form.resize(555, 333);
    }
    QCOMPARE(NewRecordDialogC().size(), QSize(555, 333));
    QCOMPARE(config->keys("Windows"), (QStringList{"DocumentListDialog", "NewRecordDialog"}));
    QCOMPARE(config->keys("WindowStates"), (QStringList{"DocumentListDialog"}));
}

QTEST_MAIN(tst_DocumentColumns)
#include "tst_DocumentColumns.moc"
