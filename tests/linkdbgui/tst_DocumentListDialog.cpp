#include "DocumentFixture.h"

#include <geomcore/binding/VarsetCreate.h>
#include <geomcore/linkdb/LinkDbSettings.h>
#include <geomcore/project/readProjectVersion.h>
#include <geomcore/table/ErpLayer.h>
#include <geomcore/value/LangThreadSettings.h>

#include <QAbstractItemModelTester>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QMetaMethod>
#include <QPushButton>
#include <QSignalSpy>

namespace {

const QString lineOne = QStringLiteral("{TMVMAT=St}{L=10}{M=1}");
const QString lineTwo = QStringLiteral("{TMVMAT=Cu}{L=20}{M=2}");

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

/// The document dialog: the records of a line, the one that is picked, its varset.
class tst_DocumentListDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { addDatabases(); }
    void metaObject();
    void construction();
    void withoutFormNothingFails();
    void projectVersion_data();
    void projectVersion();
    void doesNothingWithoutItsParts();
    void loads();
    void statement_data();
    void statement();
    void poolAndPath();
    void databaseOfTheMoment();
    void keyIsNotTheFirstColumn();
    void conditionCannotEscape();
    void emptyPathKeepsTheList();
    void failedSelectIsAnEmptyList();
    void preselects_data();
    void preselects();
    void selection();
    void slotRunsOnceForEachLoad();
    void varsetOfTheRecord();
    void descriptionsAreTranslated();
    void accepts_data();
    void accepts();
    void doubleClickAccepts();
    void flagsAddUp();
    void withoutTable();
    void updatesErp_data();
    void updatesErp();
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
    const auto isIconOf = [&](const char *button, const char *file) {
        const QImage image = QIcon(file).pixmap(16).toImage();
        return !image.isNull() &&
               widgetOf<QPushButton>(dialog, button)->icon().pixmap(16).toImage() == image;
    };
    QVERIFY(isIconOf("btnDelete", ":/toolicons/actionSketchCancel_24.png"));
    QVERIFY(isIconOf("btnCreate", ":/toolicons/actionFileNew_16.png"));
    QVERIFY(!isIconOf("btnCreate", ":/toolicons/actionSketchCancel_24.png"));
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
    dialog.setLinkDbIface({}); // asks nobody
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
    const DocumentFixture fixture;
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
    QTest::addColumn<QString>("pool");
    QTest::addColumn<QString>("condition");
    QTest::addColumn<QString>("where");
    const auto row = [&](const char *name, const char *pool, const char *condition,
                         const char *where) {
        QTest::newRow(name) << pool << condition << where;
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

void tst_DocumentListDialog::statement()
{
    QFETCH(QString, pool);
    QFETCH(QString, condition);
    QFETCH(QString, where);
    DocumentFixture fixture;
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
    DocumentFixture fixture;
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

void tst_DocumentListDialog::databaseOfTheMoment()
{
    const DocumentFixture fixture;
    fixture.insert("g1");
    const PRefPtr<PLinkDbC> other(new PLinkDbC);
    QVERIFY(other->open(LinkDbSettings::fromText(fixture.folder.filePath("other.db"))));
    QVERIFY(other->executeInsertStatement("INSERT INTO plm_document(GEO_ID, PRJ_PATH, VERSION, "
                                          "LINE_ID, LINE_SUBID) VALUES('g2', 'cat/a.prj', 'v1', 1, "
                                          "0)") &&
            other->commit());
    PLinkDbC::setInstance(fixture.linkDb);
    DocumentListDialogC dialog(nullptr, {});
    dialog.setIndexTree(fixture.linkDb->getIndexTree());
    dialog.setLinkDbIface(ProxyPtrT<prxLinkDbIfaceC>(new prxLinkDbIfaceC)); // of the process
    dialog.initDialog(fixture.path, 1, 0);
    dialog.show();
    QCOMPARE(idsOf(dialog), QStringList{"g1"});
    // It is asked for anew by each statement.
    PLinkDbC::setInstance(other);
    dialog.initDialog(fixture.path, 1, 0);
    QCOMPARE(idsOf(dialog), QStringList{"g2"});
    clickDocument(dialog, 0);
    clickButton(dialog, "btnDelete");
    QVERIFY(other->isPending());
    PLinkDbC::setInstance(nullptr);
    QCOMPARE(other->executeCountStatement("SELECT COUNT(*) FROM plm_document"), 0);
    QCOMPARE(fixture.documents(), QStringList{"g1"});
}

void tst_DocumentListDialog::keyIsNotTheFirstColumn()
{
    const DocumentFixture fixture;
    fixture.execute("DROP TABLE plm_document");
    fixture.execute("CREATE TABLE plm_document(PDMID1 TEXT, PRJ_PATH TEXT, VERSION TEXT, GEO_ID "
                    "TEXT PRIMARY KEY, LINE_SUBID INTEGER, LINE_ID INTEGER)");
    fixture.insert("g1", {{"PDMID1", "P-1"}});
    const auto dialog = fixture.showDialog();
    QCOMPARE(idsOf(*dialog), QStringList{"g1"});
    clickDocument(*dialog, 0);
    clickButton(*dialog, "btnDelete");
    QCOMPARE(fixture.documents(), QStringList());
}

void tst_DocumentListDialog::conditionCannotEscape()
{
    const DocumentFixture fixture;
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
    const DocumentFixture fixture;
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

void tst_DocumentListDialog::preselects_data()
{
    QTest::addColumn<QStringList>("varsets");
    QTest::addColumn<int>("line");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("the line's") << QStringList{lineTwo, lineOne} << 1 << QStringList{"g1"};
    QTest::newRow("one of two") << QStringList{"", lineOne, lineOne} << 1
                                << QStringList{"g1", "g2"};
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
    // The upper one, whatever order the database has.
    QFETCH(QStringList, expected);
    QStringList first = idsOf(*dialog);
    first.removeIf([&](const QString &id) { return !expected.contains(id); });
    QCOMPARE(selectedIds(*dialog), first.mid(0, 1));
    // As the comparison of one text says.
    const VKTab::Line tableLine =
        fixture.table->getContent().getLine(VKTab::LineId(line, 0), false);
    QStringList equal;
    for (int i = 0; i < varsets.size(); ++i) {
        if (VKTab::VarsetCreate::compareXVarset(tableLine, varsets[i], {}))
            equal.append(QStringLiteral("g%1").arg(i));
    }
    QCOMPARE(equal, expected);
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
    const QStringList ids = idsOf(*dialog);
    clickDocument(*dialog, 1);
    QCOMPARE(selectedIds(*dialog), ids.mid(1));
    QCOMPARE(enabled(), (QList<bool>{true, true, false}));
    QTest::keyClick(documentsOf(*dialog), Qt::Key_Up);
    QCOMPARE(selectedIds(*dialog), ids.mid(0, 1));
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
    clickRecord(*dialog, "g1");
    QCOMPARE(rowsOf(list), (QStringList{"L|Länge|10", "D||%1", "M||a=b"}));
    // As wide as what is in them.
    const QAbstractItemView *const view = list;
    for (const int column : {0, 1})
        QCOMPARE(list->header()->sectionSize(column),
                 qMax(view->sizeHintForColumn(column), list->header()->sectionSizeHint(column)));
    clickRecord(*dialog, "g2");
    QCOMPARE(rowsOf(list), QStringList());
    // Of two records together there is none.
    clickRecord(*dialog, "g1");
    QCOMPARE(list->topLevelItemCount(), 3);
    documentsOf(*dialog)->setSelectionMode(QAbstractItemView::ExtendedSelection);
    documentsOf(*dialog)->selectAll();
    QCOMPARE(selectedIds(*dialog).size(), 2);
    QCOMPARE(rowsOf(list), QStringList());
    QVERIFY(widgetOf<QPushButton>(*dialog, "btnDelete")->isEnabled());
}

void tst_DocumentListDialog::descriptionsAreTranslated()
{
    const DocumentFixture fixture;
    fixture.insert("g1", {{"XVARSET", lineOne}});
    VKTab::LangThreadSettings settings;
    settings.setLanguage("en");
    const auto dialog = fixture.showDialog();
    QCOMPARE(rowsOf(widgetOf<QTreeWidget>(*dialog, "tvVarset")),
             (QStringList{"TMVMAT||St", "L|Length|10", "M||1"}));
}

void tst_DocumentListDialog::accepts_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("varset");
    QTest::addColumn<bool>("modified");
    QTest::newRow("the line's own") << "g1" << lineOne << false;
    QTest::newRow("another") << "g2" << lineTwo << true;
    QTest::newRow("equal, written otherwise") << "g3"
                                              << "{L=10}{M=1}{TMVMAT=St}" << true;
    QTest::newRow("nothing") << ""
                             << "" << false;
}

void tst_DocumentListDialog::accepts()
{
    QFETCH(QString, id);
    const DocumentFixture fixture;
    fixture.insert("g1", {{"XVARSET", lineOne}});
    fixture.insert("g2", {{"XVARSET", lineTwo}});
    fixture.insert("g3", {{"XVARSET", "{L=10}{M=1}{TMVMAT=St}"}});
    const auto dialog = fixture.showDialog();
    if (id.isEmpty())
        documentsOf(*dialog)->clearSelection();
    else
        clickRecord(*dialog, id);
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
    clickRecord(*dialog, "g2");
    dialog->accept();
    dialog->show();
    clickRecord(*dialog, "g1");
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
