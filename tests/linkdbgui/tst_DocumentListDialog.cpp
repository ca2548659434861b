#include "DocumentFixture.h"

#include <core/config/PConfigInst.h>
#include <geomcore/binding/VarsetCreate.h>
#include <geomcore/project/readProjectVersion.h>
#include <geomcore/table/ErpLayer.h>

#include <QAbstractItemModelTester>
#include <QDataStream>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QMetaMethod>
#include <QPushButton>
#include <QSignalSpy>
#include <QSplitter>
#include <QTimer>

namespace {

const QStringList defaultColumns{"PDMID1",      "PDMID2",       "PDMID3",    "PDMID4",
                                 "PDMID5",      "XVARSET",      "CADSYSTEM", "PDMSYSTEM",
                                 "GEOFEATURES", "NBDEFAULTLANG"};
const QString lineOne = QStringLiteral("{TMVMAT=St}{L=10}{M=1}");
const QString lineTwo = QStringLiteral("{TMVMAT=Cu}{L=20}{M=2}");

/// What the header stores for its columns, of one role.
QStringList headerOf(const DocumentListDialogC &dialog, int role)
{
    const QTreeWidgetItem *const header = documentsOf(dialog)->headerItem();
    QStringList texts;
    for (int i = 0; i < documentsOf(dialog)->columnCount(); ++i)
        texts.append(header->data(i, role).toString());
    return texts;
}

/// Counts how often values are asked for.
class CountingSource : public VKTab::ErpDataSourceI
{
public:
    QList<VKTab::Var> columns() const override
    {
        VKTab::Var var(VKTab::VarTypePlain);
        var.setName("ERP");
        return {var};
    }
    std::optional<QHash<QString, VKTab::Value>> values(const VKTab::LineId &line) override
    {
        asked.append(line.value(0));
        return QHash<QString, VKTab::Value>{{"ERP", VKTab::Value(QString("4711"))}};
    }

    QList<int> asked;
};

} // namespace

/// The document dialog: what it shows, and how it finds it.
class tst_DocumentListDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void construction();
    void withoutFormNothingFails();
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
    void projectVersion_data();
    void projectVersion();
    void doesNothingWithoutItsParts();
    void loads_data() { addDatabases(); }
    void loads();
    void statement_data();
    void statement();
    void poolAndPath_data() { addDatabases(); }
    void poolAndPath();
    void conditionCannotEscape_data() { addDatabases(); }
    void conditionCannotEscape();
    void emptyPathKeepsTheList();
    void failedSelectIsAnEmptyList_data() { addDatabases(); }
    void failedSelectIsAnEmptyList();
    void columnThatTheTableLacks();
    void blankBeforeAName();
    void fewerColumnsLater();
    void preselects_data();
    void preselects();
    void selection();
    void slotRunsOnceForEachLoad();
    void varsetOfTheRecord();
    void accepts_data();
    void accepts();
    void doubleClickAccepts();
    void flagsAddUp();
    void withoutTable();
    void updatesErp_data();
    void updatesErp();
    void state();
    void placeIsKept();
    void logged();
    void modelUnderTester();
};

void tst_DocumentListDialog::metaObject()
{
    const QMetaObject &meta = DocumentListDialogC::staticMetaObject;
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        QStringList names;
        for (const QByteArray &name : method.parameterNames())
            names.append(QString::fromUtf8(name));
        methods.append(QStringLiteral("%1 %2 %3 %4")
                           .arg(QString::fromUtf8(method.methodSignature()), names.join(','))
                           .arg(method.access())
                           .arg(method.methodType()));
    }
    const auto slot = [](const char *signature, const char *names = "") {
        return QStringLiteral("%1 %2 %3 %4")
            .arg(signature, names)
            .arg(QMetaMethod::Private)
            .arg(QMetaMethod::Slot);
    };
    const auto method = [](const char *signature, const char *names = "") {
        return QStringLiteral("%1 %2 %3 %4")
            .arg(signature, names)
            .arg(QMetaMethod::Public)
            .arg(QMetaMethod::Method);
    };
    QCOMPARE(methods, (QStringList{slot("OnSelectionChanged()"), slot("OnDeleteRow()"),
                                   slot("OnNewRecord()"), slot("OnEditRecord()"),
                                   slot("OnItemDoubleClicked(QTreeWidgetItem*,int)", "item,column"),
                                   slot("OnCurrentItemChanged()"), method("saveState()"),
                                   method("restoreState(QByteArray)", "state")}));
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.superClass(), &QDialog::staticMetaObject);
}

void tst_DocumentListDialog::construction()
{
    const PApplication host({});
    const StatementLog log;
    QWidget parent;
    const Qt::WindowFlags flags = Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint;
    const DocumentListDialogC dialog(&parent, flags);
    QCOMPARE(dialog.parentWidget(), &parent);
    QCOMPARE(dialog.windowFlags() & flags, flags);
    QCOMPARE(dialog.objectName(), QString("DocumentListDialog"));
    QCOMPARE(dialog.windowTitle(), QString("Dokument-Liste"));
    QCOMPARE(dialog.size(), QSize(794, 512));
    QVERIFY(!dialog.isModified());
    QVERIFY(!dialog.isVarsetModified());
    QCOMPARE(dialog.getXVarset(), QString());
    QVERIFY(!widgetOf<QPushButton>(dialog, "btnCreate")->isEnabled());
    QVERIFY(!widgetOf<QPushButton>(dialog, "btnDelete")->icon().isNull());
    QVERIFY(!widgetOf<QPushButton>(dialog, "btnCreate")->icon().isNull());
    QCOMPARE(StatementLog::warnings(), QStringList());
    // Each connection is there once.
    const auto connections = [&](const char *name, const char *signal, const char *slot) {
        int count = 0;
        auto *const sender = dialog.findChild<QObject *>(name);
        while (QObject::disconnect(sender, signal, &dialog, slot))
            ++count;
        return count;
    };
    QCOMPARE(connections("tvDocuments", SIGNAL(itemDoubleClicked(QTreeWidgetItem *, int)),
                         SLOT(OnItemDoubleClicked(QTreeWidgetItem *, int))),
             1);
    QCOMPARE(connections("btnDelete", SIGNAL(clicked()), SLOT(OnDeleteRow())), 1);
    QCOMPARE(connections("btnCreate", SIGNAL(clicked()), SLOT(OnNewRecord())), 1);
    QCOMPARE(connections("btnEdit", SIGNAL(clicked()), SLOT(OnEditRecord())), 1);
    QCOMPARE(connections("buttonBox", SIGNAL(accepted()), SLOT(accept())), 1);
    QCOMPARE(connections("buttonBox", SIGNAL(rejected()), SLOT(reject())), 1);
}

void tst_DocumentListDialog::withoutFormNothingFails()
{
    const QStringList places = QDir::searchPaths("forms");
    const DocumentFixture fixture;
    QDir::setSearchPaths("forms", {fixture.catalog.root()});
    auto dialog = fixture.makeDialog();
    dialog->initDialog(fixture.path, 1, 0);
    QCOMPARE(dialog->saveState(), QByteArray());
    dialog->restoreState("x");
    dialog->accept();
    NewRecordDialogC form;
    form.setFields({"PDMID1"});
    form.setValues({{"PDMID1", "a"}});
    QCOMPARE(form.values(), ValueMap());
    QDir::setSearchPaths("forms", places);
}

void tst_DocumentListDialog::displayColumns_data()
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

void tst_DocumentListDialog::displayColumns()
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

void tst_DocumentListDialog::editColumns_data()
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

void tst_DocumentListDialog::editColumns()
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

void tst_DocumentListDialog::captions_data()
{
    QTest::addColumn<QString>("descriptions");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("none") << "" << QStringList{"A", "B", "C"};
    QTest::newRow("all, case kept") << "eins,Zwei,DREI" << QStringList{"eins", "Zwei", "DREI"};
    QTest::newRow("fewer") << "eins" << QStringList{"eins", "B", "C"};
    QTest::newRow("more") << "1,2,3,4" << QStringList{"1", "2", "3"};
    QTest::newRow("an empty one moves the others") << "1,,3" << QStringList{"1", "3", "C"};
}

void tst_DocumentListDialog::captions()
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

void tst_DocumentListDialog::infoLine_data()
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

void tst_DocumentListDialog::infoLine()
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

void tst_DocumentListDialog::infoLineStaysHidden()
{
    const DocumentFixture fixture;
    const auto dialog = fixture.showDialog();
    QVERIFY(!widgetOf<QLabel>(*dialog, "lbInfo")->isVisible());
    fixture.setKey("PDM_DOCVIEW_INFO", "Hinweis");
    dialog->setLinkDbIface(fixture.iface);
    QCOMPARE(widgetOf<QLabel>(*dialog, "lbInfo")->text(), QString("Hinweis"));
    QVERIFY(!widgetOf<QLabel>(*dialog, "lbInfo")->isVisible());
}

void tst_DocumentListDialog::buttons_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("shown");
    QTest::newRow("1") << "1" << true;
    QTest::newRow("0") << "0" << false;
    QTest::newRow("empty") << "" << false;
    QTest::newRow("true") << "true" << false;
    QTest::newRow("blank behind it") << "1 " << false;
}

void tst_DocumentListDialog::buttons()
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

void tst_DocumentListDialog::projectVersion_data()
{
    QTest::addColumn<QByteArray>("history");
    QTest::addColumn<QByteArray>("lexeme");
    QTest::addColumn<QString>("expected");
    QTest::newRow("history") << QByteArray("[a.prj]\nVERSION=v7\n") << QByteArray("v8") << "v7";
    QTest::newRow("of another project")
        << QByteArray("[b.prj]\nVERSION=v7\n") << QByteArray("v8") << "v8";
    QTest::newRow("without history") << QByteArray() << QByteArray("v8") << "v8";
    QTest::newRow("empty in the history")
        << QByteArray("[a.prj]\nVERSION=\n") << QByteArray("v8") << "v8";
    QTest::newRow("neither") << QByteArray() << QByteArray() << "v1";
}

void tst_DocumentListDialog::projectVersion()
{
    QFETCH(QByteArray, history);
    QFETCH(QByteArray, lexeme);
    const TestCatalog catalog;
    if (!history.isNull())
        catalog.writeFile("cat/verhist.cfg", history);
    catalog.writeFile("cat/a.prj", lexeme.isEmpty() ? QByteArray("[PROJECT]\n")
                                                    : "[PROJECT]\nVERSIONPRJ=" + lexeme + '\n');
    QTEST(QString(readProjectVersion(catalog.file("cat/a.prj"))), "expected");
    QCOMPARE(QString(readProjectVersion(catalog.file("cat/none.prj"))), QString("v1"));
    qputenv("TORMEVA_DATA", QFile::encodeName(catalog.root()));
    QTEST(QString(readProjectVersion("$TORMEVA_DATA/cat/a.prj")), "expected");
    qunsetenv("TORMEVA_DATA");
}

void tst_DocumentListDialog::doesNothingWithoutItsParts()
{
    const DocumentFixture fixture;
    fixture.insert("g1");
    DocumentListDialogC dialog(nullptr, {});
    dialog.setVelkTab(fixture.table);
    dialog.initDialog(fixture.path, 1, 0);
    dialog.setLinkDbIface(fixture.iface);
    dialog.initDialog(fixture.path, 1, 0); // still without tree
    QCOMPARE(fixture.log.takeStatements(), QStringList());
    QCOMPARE(documentsOf(dialog)->columnCount(), 1);
    dialog.setIndexTree(fixture.linkDb->getIndexTree());
    dialog.initDialog(fixture.path, 1, 0);
    QCOMPARE(idsOf(dialog), QStringList{"g1"});
}

void tst_DocumentListDialog::loads()
{
    QFETCH(QString, database);
    const DocumentFixture fixture(database);
    fixture.insert("g1", {{"PDMID1", "P-1"}, {"XVARSET", lineOne}, {"CADSYSTEM", "cad"}});
    fixture.insert("g2", {{"PDMID1", "%1"}, {"NBDEFAULTLANG", "a\nb"}});
    fixture.insert("other line", {{"LINE_ID", 2}});
    fixture.insert("other sub-line", {{"LINE_SUBID", 3}});
    fixture.insert("other version", {{"VERSION", "v2"}});
    fixture.insert("other path", {{"PRJ_PATH", "cat/b.prj"}});
    const auto dialog = fixture.makeDialog();
    dialog->initDialog(fixture.path, 1, 0);
    // In the order of the database.
    QCOMPARE(idsOf(*dialog), fixture.column(QStringLiteral(
                                 "SELECT GEO_ID FROM plm_document WHERE GEO_ID LIKE 'g_' AND "
                                 "PRJ_PATH = 'cat/a.prj' AND LINE_ID = 1")));
    const int first = int(idsOf(*dialog).indexOf("g1"));
    QCOMPARE(rowsOf(documentsOf(*dialog)).value(first), "P-1|||||" + lineOne + "|cad|||");
    QCOMPARE(rowsOf(documentsOf(*dialog)).value(1 - first), QString("%1|||||||||a\nb"));
    const QTreeWidgetItem *const item = documentsOf(*dialog)->topLevelItem(first);
    QCOMPARE(item->toolTip(0), QString("P-1"));
    QCOMPARE(item->data(5, Qt::ToolTipRole).toString(), lineOne);
    QVERIFY(!item->data(1, Qt::UserRole).isValid());
    QVERIFY(!item->data(0, Qt::DecorationRole).isValid());
    dialog->initDialog(fixture.path, 2, 0);
    QCOMPARE(idsOf(*dialog), QStringList{"other line"});
    dialog->initDialog(fixture.path, 1, 3);
    QCOMPARE(idsOf(*dialog), QStringList{"other sub-line"});
    dialog->initDialog(fixture.path, 5, 5);
    QCOMPARE(idsOf(*dialog), QStringList());
}

void tst_DocumentListDialog::statement_data()
{
    QTest::addColumn<QString>("database");
    QTest::addColumn<QString>("pool");
    QTest::addColumn<QString>("condition");
    QTest::addColumn<QString>("where");
    for (const char *database : {"SQLite", "PostgreSQL"}) {
        const auto row = [&](const char *name, const char *pool, const char *condition,
                             const char *where) {
            QTest::addRow("%s, %s", database, name) << database << pool << condition << where;
        };
        row("plain", "", "",
            "PRJ_PATH = 'cat/a.prj' AND VERSION = 'v1' AND LINE_ID = 7 AND LINE_SUBID = 4");
        row("pool", "p%2'7", "",
            "(PRJ_PATH = 'cat/a.prj' OR PRJ_PATH = 'p%2''7') AND VERSION = 'v1' AND LINE_ID = 7 "
            "AND LINE_SUBID = 4");
        row("condition", "", "PDMID1 = 'x' OR 1 = 1",
            "PRJ_PATH = 'cat/a.prj' AND VERSION = 'v1' AND LINE_ID = 7 AND LINE_SUBID = 4 AND "
            "(PDMID1 = 'x' OR 1 = 1)");
        row("both", "b", "c",
            "(PRJ_PATH = 'cat/a.prj' OR PRJ_PATH = 'b') AND VERSION = 'v1' AND LINE_ID = 7 AND "
            "LINE_SUBID = 4 AND (c)");
    }
}

void tst_DocumentListDialog::statement()
{
    QFETCH(QString, database);
    QFETCH(QString, pool);
    QFETCH(QString, condition);
    QFETCH(QString, where);
    DocumentFixture fixture(database);
    fixture.usePool(pool);
    fixture.setKey("PDM_CONDITION", condition);
    const auto dialog = fixture.makeDialog();
    (void)fixture.log.takeLines();
    dialog->initDialog(fixture.path, 7, 4);
    const QString expected = "SELECT * FROM plm_document WHERE " + where;
    QCOMPARE(fixture.log.takeStatements(), QStringList{expected});
    QCOMPARE(fixture.log.takeLines(), QStringList{"Loading PLM document records: " + expected});
}

void tst_DocumentListDialog::poolAndPath()
{
    QFETCH(QString, database);
    DocumentFixture fixture(database);
    fixture.usePool("pool7");
    fixture.insert("g1");
    fixture.insert("g2", {{"PRJ_PATH", "pool7"}});
    fixture.insert("g3", {{"PRJ_PATH", "pool8"}});
    const auto dialog = fixture.showDialog();
    QStringList ids = idsOf(*dialog);
    ids.sort();
    QCOMPARE(ids, (QStringList{"g1", "g2"}));
    // Without a table there is no pool.
    QCOMPARE(idsOf(*fixture.showDialog(false)), QStringList{"g1"});
}

void tst_DocumentListDialog::conditionCannotEscape()
{
    QFETCH(QString, database);
    const DocumentFixture fixture(database);
    fixture.insert("g1", {{"PDMID1", "a"}});
    fixture.insert("g2", {{"PDMID1", "b"}});
    fixture.insert("other line", {{"LINE_ID", 2}, {"PDMID1", "b"}});
    fixture.setKey("PDM_CONDITION", "PDMID1 = 'a' OR PDMID1 = 'b'");
    const auto dialog = fixture.showDialog();
    QStringList ids = idsOf(*dialog);
    ids.sort();
    QCOMPARE(ids, (QStringList{"g1", "g2"}));
}

void tst_DocumentListDialog::emptyPathKeepsTheList()
{
    const DocumentFixture fixture;
    fixture.insert("g1");
    const auto dialog = fixture.showDialog();
    dialog->initDialog(QString(), 1, 0);
    QCOMPARE(fixture.log.takeStatements(), QStringList());
    QCOMPARE(idsOf(*dialog), QStringList{"g1"});
}

void tst_DocumentListDialog::failedSelectIsAnEmptyList()
{
    QFETCH(QString, database);
    const DocumentFixture fixture(database);
    fixture.insert("g1");
    const auto dialog = fixture.showDialog();
    QCOMPARE(idsOf(*dialog), QStringList{"g1"});
    fixture.setKey("PDM_CONDITION", "no such column = 1");
    dialog->initDialog(fixture.path, 1, 0);
    QCOMPARE(idsOf(*dialog), QStringList());
    QCOMPARE(fixture.messages->texts(), QStringList());
    QVERIFY(!widgetOf<QPushButton>(*dialog, "btnEdit")->isEnabled());
    fixture.setKey("PDM_CONDITION", "");
    dialog->initDialog(fixture.path, 1, 0);
    QCOMPARE(idsOf(*dialog), QStringList{"g1"});
}

void tst_DocumentListDialog::columnThatTheTableLacks()
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

void tst_DocumentListDialog::blankBeforeAName()
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

void tst_DocumentListDialog::fewerColumnsLater()
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

void tst_DocumentListDialog::preselects_data()
{
    QTest::addColumn<QStringList>("varsets");
    QTest::addColumn<int>("line");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("the line's") << QStringList{lineTwo, lineOne} << 1 << QStringList{"g1"};
    QTest::newRow("upper of two") << QStringList{"", lineOne, lineOne} << 1 << QStringList{"g1"};
    QTest::newRow("other order") << QStringList{"{L=10}{M=1}{TMVMAT=St}"} << 1 << QStringList{"g0"};
    QTest::newRow("equal number") << QStringList{"{L=10.0}{M=1}{TMVMAT=St}"} << 1
                                  << QStringList{"g0"};
    QTest::newRow("none") << QStringList{lineTwo, "", "{L=10}"} << 1 << QStringList();
    QTest::newRow("no varset at all") << QStringList{"{", "x"} << 1 << QStringList();
    QTest::newRow("line that is not there") << QStringList{lineOne, ""} << 9 << QStringList();
}

void tst_DocumentListDialog::preselects()
{
    QFETCH(QStringList, varsets);
    QFETCH(int, line);
    const DocumentFixture fixture;
    for (int i = 0; i < varsets.size(); ++i)
        fixture.insert(QStringLiteral("g%1").arg(i), {{"XVARSET", varsets[i]}, {"LINE_ID", line}});
    const auto dialog = fixture.makeDialog();
    dialog->initDialog(fixture.path, line, 0);
    QTEST(selectedIds(*dialog), "expected");
    // As the comparison of one text says.
    const VKTab::Line tableLine =
        fixture.table->getContent().getLine(VKTab::LineId(line, 0), false);
    QStringList equal;
    for (int i = 0; i < varsets.size() && equal.isEmpty(); ++i) {
        if (VKTab::VarsetCreate::compareXVarset(tableLine, varsets[i], {}))
            equal.append(QStringLiteral("g%1").arg(i));
    }
    QTEST(equal, "expected");
}

void tst_DocumentListDialog::selection()
{
    const DocumentFixture fixture;
    fixture.insert("g1");
    fixture.insert("g2");
    const auto dialog = fixture.showDialog();
    const auto enabled = [&] {
        return QList<bool>{widgetOf<QPushButton>(*dialog, "btnDelete")->isEnabled(),
                           widgetOf<QPushButton>(*dialog, "btnEdit")->isEnabled(),
                           widgetOf<QPushButton>(*dialog, "btnCreate")->isEnabled()};
    };
    QCOMPARE(enabled(), (QList<bool>{false, false, false}));
    clickDocument(*dialog, 1);
    QCOMPARE(selectedIds(*dialog), QStringList{"g2"});
    QCOMPARE(enabled(), (QList<bool>{true, true, false}));
    QTest::keyClick(documentsOf(*dialog), Qt::Key_Up);
    QCOMPARE(selectedIds(*dialog), QStringList{"g1"});
    documentsOf(*dialog)->clearSelection();
    QCOMPARE(enabled(), (QList<bool>{false, false, false}));
}

void tst_DocumentListDialog::slotRunsOnceForEachLoad()
{
    const DocumentFixture fixture;
    fixture.insert("g1");
    const auto dialog = fixture.showDialog();
    dialog->initDialog(fixture.path, 1, 0);
    dialog->initDialog(fixture.path, 1, 0);
    int connections = 0;
    while (disconnect(documentsOf(*dialog)->selectionModel(),
                      SIGNAL(selectionChanged(QItemSelection, QItemSelection)), dialog.get(),
                      SLOT(OnSelectionChanged())))
        ++connections;
    QCOMPARE(connections, 1); // all at once
    // So the calls are counted.
    const auto other = fixture.showDialog();
    other->initDialog(fixture.path, 1, 0);
    const QSignalSpy emptied(widgetOf<QTreeWidget>(*other, "tvVarset")->model(),
                             &QAbstractItemModel::modelReset);
    clickDocument(*other, 0);
    QCOMPARE(emptied.size(), 2);
}

void tst_DocumentListDialog::varsetOfTheRecord()
{
    const DocumentFixture fixture;
    fixture.insert("g1", {{"XVARSET", "{L=10}{NONE=1}{D=%1}{M=a\\=b}"}});
    fixture.insert("g2", {{"XVARSET", "no varset"}});
    const auto dialog = fixture.showDialog();
    auto *const list = widgetOf<QTreeWidget>(*dialog, "tvVarset");
    QStringList header;
    for (int i = 0; i < list->columnCount(); ++i)
        header.append(list->headerItem()->text(i));
    QCOMPARE(header, (QStringList{"Variable", "Beschreibung", "Wert"}));
    QVERIFY(!list->rootIsDecorated());
    QVERIFY(!list->header()->sectionsMovable());
    QCOMPARE(list->selectionBehavior(), QAbstractItemView::SelectRows);
    clickDocument(*dialog, 0);
    QCOMPARE(rowsOf(list), (QStringList{"L|Länge|10", "D||%1", "M||a=b"}));
    clickDocument(*dialog, 1);
    QCOMPARE(rowsOf(list), QStringList());
}

void tst_DocumentListDialog::accepts_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("varset");
    QTest::addColumn<bool>("modified");
    QTest::newRow("the line's own") << 0 << lineOne << false;
    QTest::newRow("another") << 1 << lineTwo << true;
    QTest::newRow("equal, written otherwise") << 2 << "{L=10}{M=1}{TMVMAT=St}" << true;
    QTest::newRow("nothing") << -1 << "" << false;
}

void tst_DocumentListDialog::accepts()
{
    QFETCH(int, row);
    const DocumentFixture fixture;
    fixture.insert("g1", {{"XVARSET", lineOne}});
    fixture.insert("g2", {{"XVARSET", lineTwo}});
    fixture.insert("g3", {{"XVARSET", "{L=10}{M=1}{TMVMAT=St}"}});
    const auto dialog = fixture.showDialog();
    if (row < 0)
        documentsOf(*dialog)->clearSelection();
    else
        clickDocument(*dialog, row);
    dialog->hide();
    inNextDialog([](QDialog &shown) {
        QTest::mouseClick(
            widgetOf<QDialogButtonBox>(shown, "buttonBox")->button(QDialogButtonBox::Ok),
            Qt::LeftButton);
    });
    QCOMPARE(dialog->exec(), int(QDialog::Accepted));
    QTEST(QString(dialog->getXVarset()), "varset");
    QTEST(dialog->isVarsetModified(), "modified");
    QVERIFY(!dialog->isModified());
}

void tst_DocumentListDialog::doubleClickAccepts()
{
    const DocumentFixture fixture;
    fixture.insert("g1", {{"XVARSET", lineTwo}});
    const auto dialog = fixture.showDialog();
    clickDocument(*dialog, 0);
    const QTreeWidget *const list = documentsOf(*dialog);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {},
                       list->visualItemRect(list->topLevelItem(0)).center());
    QVERIFY(!dialog->isVisible());
    QCOMPARE(dialog->result(), int(QDialog::Accepted));
    QCOMPARE(QString(dialog->getXVarset()), lineTwo);
    // Nothing below the pointer accepts nothing.
    dialog->show();
    QVERIFY(QMetaObject::invokeMethod(dialog.get(), "OnItemDoubleClicked",
                                      Q_ARG(QTreeWidgetItem *, nullptr), Q_ARG(int, 0)));
    QVERIFY(dialog->isVisible());
}

void tst_DocumentListDialog::flagsAddUp()
{
    const DocumentFixture fixture;
    fixture.insert("g1", {{"XVARSET", lineOne}});
    fixture.insert("g2", {{"XVARSET", lineTwo}});
    const auto dialog = fixture.showDialog();
    clickDocument(*dialog, 1);
    dialog->accept();
    dialog->show();
    clickDocument(*dialog, 0);
    dialog->accept();
    QCOMPARE(QString(dialog->getXVarset()), lineOne);
    QVERIFY(dialog->isVarsetModified());
    documentsOf(*dialog)->clearSelection();
    dialog->accept();
    QCOMPARE(QString(dialog->getXVarset()), lineOne);
}

void tst_DocumentListDialog::withoutTable()
{
    const DocumentFixture fixture;
    fixture.insert("g1", {{"XVARSET", lineOne}});
    const auto dialog = fixture.showDialog(false);
    QCOMPARE(selectedIds(*dialog), QStringList());
    clickDocument(*dialog, 0);
    QVERIFY(widgetOf<QPushButton>(*dialog, "btnEdit")->isEnabled());
    QCOMPARE(rowsOf(widgetOf<QTreeWidget>(*dialog, "tvVarset")), QStringList());
    dialog->accept();
    QCOMPARE(QString(dialog->getXVarset()), QString());
    QVERIFY(!dialog->isVarsetModified());
    dialog->updatePLMInfo();
}

void tst_DocumentListDialog::updatesErp_data()
{
    QTest::addColumn<bool>("hasErp");
    QTest::addColumn<bool>("hasFile");
    QTest::newRow("both") << true << true;
    QTest::newRow("no file") << true << false;
    QTest::newRow("no columns") << false << true;
}

void tst_DocumentListDialog::updatesErp()
{
    QFETCH(bool, hasErp);
    QFETCH(bool, hasFile);
    const DocumentFixture fixture;
    VKTab::Content content;
    if (hasFile)
        content = fixture.catalog.read(fixture.project);
    const auto source = std::make_shared<CountingSource>();
    if (hasErp)
        content.addLayer(VKTab::ErpLayer(source));
    DocumentListDialogC dialog(nullptr, {});
    dialog.setIndexTree(fixture.linkDb->getIndexTree());
    dialog.setVelkTab(new VKTab::proxyTableC(content));
    dialog.setLinkDbIface(fixture.iface);
    dialog.initDialog(fixture.path, 2, 0);
    dialog.updatePLMInfo();
    QCOMPARE(source->asked, hasErp && hasFile ? QList<int>{2} : QList<int>());
}

void tst_DocumentListDialog::state()
{
    const DocumentFixture fixture;
    fixture.insert("g1", {{"XVARSET", lineOne}});
    const auto first = fixture.showDialog();
    widgetOf<QSplitter>(*first, "splitter")->setSizes({100, 300});
    documentsOf(*first)->header()->resizeSection(1, 77);
    widgetOf<QTreeWidget>(*first, "tvVarset")->header()->resizeSection(0, 55);
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
    QCOMPARE(widgetOf<QSplitter>(*second, "splitter")->sizes(),
             widgetOf<QSplitter>(*first, "splitter")->sizes());
    // What is none is passed over.
    const auto third = fixture.makeDialog();
    third->restoreState("nonsense");
    third->initDialog(fixture.path, 1, 0);
    QCOMPARE(idsOf(*third), QStringList{"g1"});
}

void tst_DocumentListDialog::placeIsKept()
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

void tst_DocumentListDialog::logged()
{
    const DocumentFixture fixture;
    (void)fixture.showDialog();
    QCOMPARE(StatementLog::places().size(), 1);
    const QStringList place = StatementLog::places().first().split('|');
    QCOMPARE(place.value(0), QString("linkdbgui\\DocumentListDialog"));
    QCOMPARE(place.value(1), QString("void DocumentListDialogCPrivate::loadRecords()"));
    QVERIFY(place.value(2).toInt() > 0);
    StaticLogger::setLevels("tormeva.libs.VelkGeomCoreGui.plmdocuments=5001");
    (void)fixture.showDialog();
    QCOMPARE(StatementLog::places().size(), 1);
    QCOMPARE(StatementLog::warnings(), QStringList());
}

void tst_DocumentListDialog::modelUnderTester()
{
    const DocumentFixture fixture;
    fixture.insert("g1", {{"XVARSET", lineOne}});
    fixture.insert("g2", {{"LINE_ID", 2}});
    const auto dialog = fixture.makeDialog();
    const QAbstractItemModelTester documents(documentsOf(*dialog)->model());
    const QAbstractItemModelTester varset(widgetOf<QTreeWidget>(*dialog, "tvVarset")->model());
    for (const int line : {1, 2, 3, 1})
        dialog->initDialog(fixture.path, line, 0);
    const std::unique_ptr<QTreeWidgetItem> copy(documentsOf(*dialog)->topLevelItem(0)->clone());
    QCOMPARE(copy->text(5), lineOne);
    copy->setText(5, "set");
    QCOMPARE(copy->text(5), QString("set"));
    QCOMPARE(documentsOf(*dialog)->topLevelItem(0)->text(5), lineOne);
}

QTEST_MAIN(tst_DocumentListDialog)
#include "tst_DocumentListDialog.moc"
