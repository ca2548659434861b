#include "DocumentFixture.h"

#include <core/component/mzComExceptionC.h>

#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>

namespace {

const QString lineOne = QStringLiteral("{TMVMAT=St}{L=10}{M=1}");
const QString uuid = QStringLiteral("[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}");

/// Lets the values pass.
mzIDispatchC passing()
{
    return scriptOf([](prxDictionaryObjC &, const mzComVariantC &) { return mzComVariantC(0); });
}

/// The statement with the fresh key replaced by "KEY".
QString withoutKey(QString statement)
{
    return statement.replace(QRegularExpression(u'\'' + uuid + u'\''), QStringLiteral("KEY"));
}

QString textIn(const QWidget &form, const char *label)
{
    const auto *const edit = qobject_cast<QLineEdit *>(fieldOf(form, label));
    return edit ? edit->text() : QStringLiteral("no field");
}

} // namespace

/// Making and editing records in the document dialog.
class tst_DocumentRecords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { addDatabases(); }
    void creates();
    void createsFromATemplate();
    void createIsCancelled();
    void createNeedsACallback();
    void invalidCallbackLeavesTheButton();
    void callback_data();
    void callback();
    void callbackCannotMoveTheLine();
    void placeIsNotTyped();
    void callbackFails_data();
    void callbackFails();
    void createFails();
    void commitFails();
    void nothingToWrite();
    void edits();
    void firstOfSeveralIsEdited();
    void editNeedsASelection();
    void editWithCallback_data();
    void editWithCallback();
    void editFails();
    void editOfNothingReloads();
    void editWithoutTable();
};

void tst_DocumentRecords::creates()
{
    const DocumentFixture fixture;
    fixture.setKey("PDM_EDIT_COLUMNS", "pdmid1,XVARSET,PDMID2");
    fixture.insert("old", {{"CADSYSTEM", "cad1"}, {"PDMSYSTEM", "pdm1"}, {"LINE_ID", 2}});
    const auto dialog = fixture.showDialog();
    QStringList seen;
    mzComVariantC table;
    const mzIDispatchC script =
        scriptOf([&](prxDictionaryObjC &values, const mzComVariantC &second) {
            seen = entriesOf(values);
            table = second;
            return mzComVariantC(true);
        });
    dialog->setCreateCallback(script, "run");
    inNextForm([&](NewRecordDialogC &form) {
        QCOMPARE(form.windowTitle(), QString("Neuen Datensatz anlegen"));
        QCOMPARE(textIn(form, "XVARSET"), lineOne);
        QCOMPARE(boxTexts(form, "CADSYSTEM"), QString("cad1:cad1"));
        typeInto(form, "PDMID1", "P-1");
        typeInto(form, "CADSYSTEM", "cad2");
    });
    clickButton(*dialog, "btnCreate");
    QCOMPARE(seen, (QStringList{"CADSYSTEM=cad2", "PDMID1=P-1", "PDMID2=", "PDMSYSTEM=pdm1",
                                "PRJ_PATH=cat/a.prj", "VERSION=v1", "XVARSET=" + lineOne}));
    QCOMPARE(table, mzComVariantC(static_cast<const proxyObjectC *>(fixture.table.get())));
    const QStringList statements = fixture.log.takeStatements();
    const QString insert =
        "INSERT INTO plm_document (%1GEO_ID%1, %1PRJ_PATH%1, %1VERSION%1, %1LINE_ID%1, "
        "%1LINE_SUBID%1, %1XVARSET%1, %1CADSYSTEM%1, %1PDMSYSTEM%1, %1PDMID1%1, %1PDMID2%1) "
        "VALUES (KEY, 'cat/a.prj', 'v1', 1, 0, '" +
        lineOne + "', 'cad2', 'pdm1', 'P-1', '')";
    const QString expected =
        isOnServer() ? insert.toLower().arg('"').replace("key", "KEY") : insert.arg('"');
    QCOMPARE(statements.size(), 5);
    QCOMPARE(statements[0], QString("SELECT DISTINCT PdmSystem FROM plm_document"));
    QCOMPARE(statements[1], QString("SELECT DISTINCT CadSystem FROM plm_document"));
    QCOMPARE(withoutKey(statements[2]).toLower(), expected.toLower());
    QCOMPARE(statements[3], QString("COMMIT"));
    QVERIFY(statements[4].startsWith("SELECT * FROM plm_document WHERE PRJ_PATH"));
    const QStringList lines = fixture.log.takeLines();
    QCOMPARE(lines[0], "Creating new PLM document record: " + statements[2]);
    QCOMPARE(lines[1], "Loading PLM document records: " + statements[4]);
    QVERIFY(dialog->isModified());
    QVERIFY(!dialog->isVarsetModified());
    QVERIFY(!fixture.linkDb->isPending());
    // The new record is the line's.
    QCOMPARE(idsOf(*dialog).size(), 1);
    QCOMPARE(selectedIds(*dialog), idsOf(*dialog));
    QVERIFY(QRegularExpression("^" + uuid + "$").match(idsOf(*dialog).first()).hasMatch());
    QCOMPARE(fixture.messages->texts(), QStringList());
}

void tst_DocumentRecords::createsFromATemplate()
{
    const DocumentFixture fixture;
    fixture.insert(
        "old's", {{"PDMID1", "P-1"}, {"XVARSET", "{L=99}"}, {"CADSYSTEM", "cad"}, {"PDMID3", "3"}});
    const auto dialog = fixture.showDialog();
    dialog->setCreateCallback(passing(), "run");
    clickDocument(*dialog, 0);
    inNextForm([&](NewRecordDialogC &form) {
        QCOMPARE(textIn(form, "PDMID1"), QString("P-1"));
        QCOMPARE(textIn(form, "XVARSET"), QString("{L=99}"));
        QCOMPARE(boxTexts(form, "CADSYSTEM"), QString("cad:cad"));
        // NULL is read as an empty text, which the box does not have.
        QCOMPARE(boxTexts(form, "PDMSYSTEM"), QString(":"));
        typeInto(form, "PDMID1", "P-2");
    });
    (void)fixture.log.takeStatements();
    clickButton(*dialog, "btnCreate");
    QCOMPARE(fixture.log.takeStatements().value(2),
             QString("SELECT * FROM plm_document WHERE GEO_ID = 'old''s'"));
    QCOMPARE(fixture.column("SELECT PDMID1 || XVARSET || PDMID3 FROM plm_document ORDER BY 1"),
             (QStringList{"P-1{L=99}3", "P-2{L=99}3"}));
    QCOMPARE(fixture.column("SELECT DISTINCT GEO_ID FROM plm_document").size(), 2);
}

void tst_DocumentRecords::createIsCancelled()
{
    const DocumentFixture fixture;
    const auto dialog = fixture.showDialog();
    int calls = 0;
    dialog->setCreateCallback(scriptOf([&](prxDictionaryObjC &, const mzComVariantC &) {
                                  ++calls;
                                  return mzComVariantC(0);
                              }),
                              "run");
    inNextForm([](NewRecordDialogC &form) { typeInto(form, "PDMID1", "P-1"); }, false);
    clickButton(*dialog, "btnCreate");
    QCOMPARE(calls, 0);
    QCOMPARE(fixture.log.takeStatements().size(), 2); // what the boxes offer
    QCOMPARE(fixture.documents(), QStringList());
    QVERIFY(!dialog->isModified());
}

void tst_DocumentRecords::createNeedsACallback()
{
    const DocumentFixture fixture;
    const auto dialog = fixture.showDialog();
    QVERIFY(!widgetOf<QPushButton>(*dialog, "btnCreate")->isEnabled());
    QVERIFY(QMetaObject::invokeMethod(dialog.get(), "OnNewRecord"));
    dialog->setCreateCallback({}, "run");
    QVERIFY(!widgetOf<QPushButton>(*dialog, "btnCreate")->isEnabled());
    QVERIFY(QMetaObject::invokeMethod(dialog.get(), "OnNewRecord"));
    QCOMPARE(fixture.log.takeStatements(), QStringList());
}

void tst_DocumentRecords::invalidCallbackLeavesTheButton()
{
    const DocumentFixture fixture;
    const auto dialog = fixture.showDialog();
    dialog->setCreateCallback(passing(), "run");
    QVERIFY(widgetOf<QPushButton>(*dialog, "btnCreate")->isEnabled());
    dialog->setCreateCallback({}, {});
    clickButton(*dialog, "btnCreate"); // would wait for ever in a form
    QCOMPARE(fixture.log.takeStatements(), QStringList());
}

using Answer = std::function<mzComVariantC(prxDictionaryObjC &)>;
Q_DECLARE_METATYPE(Answer)

void tst_DocumentRecords::callback_data()
{
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<QStringList>("written");
    const QStringList nothing;
    QTest::newRow("no value") << Answer([](auto &) { return mzComVariantC(); }) << nothing;
    QTest::newRow("1") << Answer([](auto &) { return mzComVariantC(1); }) << nothing;
    QTest::newRow("1 as a number") << Answer([](auto &) { return mzComVariantC(1.0); }) << nothing;
    QTest::newRow("0") << Answer([](auto &) { return mzComVariantC(0); }) << QStringList{"P-1/"};
    QTest::newRow("2") << Answer([](auto &) { return mzComVariantC(2); }) << QStringList{"P-1/"};
    QTest::newRow("true") << Answer([](auto &) { return mzComVariantC(true); })
                          << QStringList{"P-1/"};
    QTest::newRow("text 1") << Answer([](auto &) { return mzComVariantC("1"); })
                            << QStringList{"P-1/"};
    QTest::newRow("empty text") << Answer([](auto &) { return mzComVariantC(""); })
                                << QStringList{"P-1/"};
    QTest::newRow("cleared") << Answer([](prxDictionaryObjC &values) {
        values.clear();
        return mzComVariantC(0);
    }) << nothing;
    QTest::newRow("changed") << Answer([](prxDictionaryObjC &values) {
        values.addObj("PDMID1", "changed");
        values.addObj("PDMID2", "new");
        return mzComVariantC(0);
    }) << QStringList{"changed/new"};
    QTest::newRow("what is no text is left out") << Answer([](prxDictionaryObjC &values) {
        values.addObj("PDMID1", 5);
        values.addObj(7, "PDMID2");
        values.addObj("PDMID3", mzComVariantC());
        return mzComVariantC(0);
    }) << QStringList{"/"};
}

void tst_DocumentRecords::callback()
{
    QFETCH(Answer, answer);
    QFETCH(QStringList, written);
    const DocumentFixture fixture;
    fixture.setKey("PDM_EDIT_COLUMNS", "PDMID1");
    const auto dialog = fixture.showDialog();
    dialog->setCreateCallback(
        scriptOf([&](prxDictionaryObjC &values, const mzComVariantC &) { return answer(values); }),
        "run");
    inNextForm([](NewRecordDialogC &form) { typeInto(form, "PDMID1", "P-1"); });
    clickButton(*dialog, "btnCreate");
    const QStringList statements = fixture.log.takeStatements();
    QCOMPARE(fixture.column("SELECT coalesce(PDMID1, '') || '/' || coalesce(PDMID2, '') FROM "
                            "plm_document"),
             written);
    QCOMPARE(dialog->isModified(), !written.isEmpty());
    // Without a write there is no reload.
    QCOMPARE(statements.size(), written.isEmpty() ? 2 : 5);
    QCOMPARE(fixture.messages->texts(), QStringList());
}

void tst_DocumentRecords::callbackCannotMoveTheLine()
{
    const DocumentFixture fixture;
    const auto dialog = fixture.showDialog();
    bool knowsTheLine = true;
    dialog->setCreateCallback(scriptOf([&](prxDictionaryObjC &values, const mzComVariantC &) {
                                  knowsTheLine = values.hasKey("LINE_ID");
                                  values.addObj("LINE_ID", "2");
                                  values.addObj("LINE_SUBID", "3");
                                  values.addObj("GEO_ID", "mine");
                                  values.addObj("PRJ_PATH", "cat/b.prj");
                                  values.addObj("VERSION", "v9");
                                  return mzComVariantC(0);
                              }),
                              "run");
    inNextForm({});
    clickButton(*dialog, "btnCreate");
    QVERIFY(!knowsTheLine);
    QCOMPARE(fixture.column("SELECT LINE_ID || '.' || LINE_SUBID || PRJ_PATH || VERSION FROM "
                            "plm_document WHERE GEO_ID <> 'mine'"),
             QStringList{"1.0cat/b.prjv9"});
}

void tst_DocumentRecords::placeIsNotTyped()
{
    const DocumentFixture fixture;
    fixture.setKey("PDM_EDIT_COLUMNS", "PRJ_PATH,VERSION,LINE_ID,LINE_SUBID,XVARSET");
    const auto dialog = fixture.showDialog();
    QStringList seen;
    dialog->setCreateCallback(scriptOf([&](prxDictionaryObjC &values, const mzComVariantC &) {
                                  seen = entriesOf(values);
                                  return mzComVariantC(0);
                              }),
                              "run");
    inNextForm([](NewRecordDialogC &form) {
        for (const char *column : {"PRJ_PATH", "VERSION", "LINE_ID", "LINE_SUBID"})
            typeInto(form, column, "9");
    });
    clickButton(*dialog, "btnCreate");
    QCOMPARE(seen, (QStringList{"CADSYSTEM=", "LINE_ID=9", "LINE_SUBID=9", "PDMSYSTEM=",
                                "PRJ_PATH=cat/a.prj", "VERSION=v1", "XVARSET=" + lineOne}));
    QCOMPARE(fixture.column("SELECT PRJ_PATH || VERSION || LINE_ID || LINE_SUBID FROM "
                            "plm_document"),
             QStringList{"cat/a.prjv110"});
    // An edited record goes where it is said to go.
    inNextForm([](NewRecordDialogC &form) { typeInto(form, "VERSION", "v2"); });
    clickButton(*dialog, "btnEdit");
    QCOMPARE(fixture.column("SELECT VERSION FROM plm_document"), QStringList{"v2"});
    QCOMPARE(idsOf(*dialog), QStringList());
}

void tst_DocumentRecords::callbackFails_data()
{
    QTest::addColumn<bool>("withException");
    QTest::addColumn<QString>("method");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("exception") << true << "run" << QStringList{"a.js:7: no such part"};
    QTest::newRow("no such method")
        << true << "walk" << QStringList{"CallbackObject has no method \"walk\""};
    QTest::newRow("nothing comes back")
        << false << "r%1n" << QStringList{"Der Aufruf von r%1n ist fehlgeschlagen!"};
}

void tst_DocumentRecords::callbackFails()
{
    QFETCH(bool, withException);
    QFETCH(QString, method);
    const DocumentFixture fixture;
    fixture.insert("g1", {{"XVARSET", lineOne}});
    const auto dialog = fixture.showDialog();
    const mzIDispatchC script =
        withException ? scriptOf([](prxDictionaryObjC &, const mzComVariantC &) -> mzComVariantC {
            throw mzComExceptionC(mzComFailed, {"no such part", "a.js", 7});
        })
                      : dispatchOf(new FailingObject);
    dialog->setCreateCallback(script, method);
    dialog->setUpdateCallback(script, method);
    for (const char *button : {"btnCreate", "btnEdit"}) {
        fixture.messages->clear();
        inNextForm({});
        clickButton(*dialog, button);
        QTEST(fixture.messages->texts(), "texts");
        QCOMPARE(fixture.documents(), QStringList{"g1"});
    }
    QVERIFY(!dialog->isModified());
}

void tst_DocumentRecords::createFails()
{
    const DocumentFixture fixture;
    fixture.execute("CREATE UNIQUE INDEX one ON plm_document(PDMID1)");
    fixture.setKey("PDM_EDIT_COLUMNS", "PDMID1");
    fixture.insert("g1", {{"PDMID1", "P-1"}});
    const auto dialog = fixture.showDialog();
    dialog->setCreateCallback(passing(), "run");
    QVERIFY(fixture.linkDb->executeInsertStatement("INSERT INTO plm_hierarchy VALUES('a', 'b')"));
    (void)fixture.log.takeStatements();
    inNextForm([](NewRecordDialogC &form) { typeInto(form, "PDMID1", "P-1"); });
    clickButton(*dialog, "btnCreate");
    // What was pending before stays so.
    QVERIFY(fixture.linkDb->isPending());
    const QStringList texts = fixture.messages->texts();
    QCOMPARE(texts.size(), 2);
    QVERIFY(texts[0].startsWith("Fehler der Linkdatenbank: "));
    QVERIFY(texts[0].contains("INSERT INTO plm_document"));
    QCOMPARE(texts[1], QString("Anlegen des Datensatzes fehlgeschlagen!"));
    QCOMPARE(fixture.messages->shown()[1].mode.toInt(), 0);
    // The list is loaded, and what follows works.
    const QStringList statements = fixture.log.takeStatements();
    QVERIFY(statements.last().startsWith("SELECT * FROM plm_document WHERE PRJ_PATH"));
    QVERIFY(!statements.contains("COMMIT"));
    QVERIFY(!dialog->isModified());
    inNextForm([](NewRecordDialogC &form) { typeInto(form, "PDMID1", "P-2"); });
    clickButton(*dialog, "btnCreate");
    QVERIFY(dialog->isModified());
    QCOMPARE(idsOf(*dialog).size(), 2);
    QCOMPARE(fixture.hierarchy(), QStringList{"a>b"});
}

void tst_DocumentRecords::commitFails()
{
    const DocumentFixture fixture;
    fixture.setKey("PDM_EDIT_COLUMNS", "PDMID1");
    fixture.insert("g1", {{"PDMID1", "P-1"}, {"XVARSET", lineOne}});
    fixture.refuseCommits({"INSERT", "UPDATE"});
    const auto dialog = fixture.showDialog();
    dialog->setCreateCallback(passing(), "run");
    const QList<std::pair<const char *, QString>> ways = {
        {"btnCreate", "Anlegen des Datensatzes fehlgeschlagen!"},
        {"btnEdit", "Aktualisierung des Datensatzes fehlgeschlagen!"}};
    for (const auto &[button, message] : ways) {
        fixture.messages->clear();
        inNextForm([](NewRecordDialogC &form) { typeInto(form, "PDMID1", "P-2"); });
        clickButton(*dialog, button);
        const QStringList texts = fixture.messages->texts();
        QCOMPARE(texts.size(), 2);
        QVERIFY2(texts[0].startsWith("Fehler der Linkdatenbank: "), qPrintable(texts[0]));
        QVERIFY2(texts[0].endsWith("COMMIT"), qPrintable(texts[0]));
        QCOMPARE(texts[1], message);
        const QStringList statements = fixture.log.takeStatements();
        QVERIFY(statements.contains("COMMIT"));
        QVERIFY(statements.last().startsWith("SELECT * FROM plm_document WHERE PRJ_PATH"));
        QCOMPARE(rowsOf(documentsOf(*dialog)).size(), 1);
        QVERIFY(!dialog->isModified());
        QCOMPARE(fixture.column("SELECT PDMID1 FROM plm_document"), QStringList{"P-1"});
    }
}

void tst_DocumentRecords::nothingToWrite()
{
    const DocumentFixture fixture;
    const auto dialog = fixture.showDialog();
    dialog->setCreateCallback(passing(), "run");
    inNextForm([&](NewRecordDialogC &) {
        QVERIFY(fixture.linkDb->executeInsertStatement("DROP TABLE plm_document"));
        fixture.messages->clear();
    });
    clickButton(*dialog, "btnCreate");
    // No statement, so no message and no reload.
    QCOMPARE(fixture.messages->texts(), QStringList());
    QCOMPARE(fixture.log.takeStatements().last(), QString("DROP TABLE plm_document"));
    QVERIFY(!dialog->isModified());
}

void tst_DocumentRecords::edits()
{
    const DocumentFixture fixture;
    fixture.setKey("PDM_EDIT_COLUMNS", "PDMID1,PDMID2");
    fixture.insert("g'1", {{"PDMID1", "P-1"}, {"PDMSYSTEM", "pdm1"}, {"XVARSET", lineOne}});
    fixture.insert("g2", {{"PDMID1", "P-2"}, {"PDMSYSTEM", "pdm2"}});
    const auto dialog = fixture.showDialog();
    QCOMPARE(selectedIds(*dialog), QStringList{"g'1"});
    inNextForm([&](NewRecordDialogC &form) {
        QCOMPARE(form.windowTitle(), QString("Datensatz bearbeiten"));
        QCOMPARE(textIn(form, "PDMID1"), QString("P-1"));
        QVERIFY(boxTexts(form, "PDMSYSTEM").endsWith(":pdm1"));
        typeInto(form, "PDMID1", "new%1");
    });
    clickButton(*dialog, "btnEdit");
    const QStringList statements = fixture.log.takeStatements();
    QCOMPARE(statements.size(), 6);
    QCOMPARE(statements.mid(0, 3),
             (QStringList{"SELECT DISTINCT PdmSystem FROM plm_document",
                          "SELECT DISTINCT CadSystem FROM plm_document",
                          "SELECT * FROM plm_document WHERE GEO_ID = 'g''1'"}));
    const auto name = [&](const char *column) {
        return u'"' + (isOnServer() ? QString(column).toLower() : QString(column)) + u'"';
    };
    QCOMPARE(statements[3], "UPDATE plm_document SET " + name("CADSYSTEM") + " = '', " +
                                name("PDMSYSTEM") + " = 'pdm1', " + name("PDMID1") +
                                " = 'new%1', " + name("PDMID2") + " = '' WHERE GEO_ID = 'g''1'");
    QCOMPARE(statements[4], QString("COMMIT"));
    QCOMPARE(fixture.log.takeLines().first(), "Updating PLM Document record: " + statements[3]);
    QCOMPARE(fixture.column("SELECT PDMID1 || XVARSET || LINE_ID || VERSION FROM plm_document "
                            "WHERE GEO_ID = 'g''1'"),
             QStringList{"new%1" + lineOne + "1v1"});
    QCOMPARE(fixture.column("SELECT PDMID1 FROM plm_document WHERE GEO_ID = 'g2'"),
             QStringList{"P-2"});
    QVERIFY(dialog->isModified());
    QVERIFY(!fixture.linkDb->isPending());
}

void tst_DocumentRecords::firstOfSeveralIsEdited()
{
    const DocumentFixture fixture;
    fixture.execute("DROP TABLE plm_document");
    fixture.execute("CREATE TABLE plm_document(GEO_ID TEXT, PRJ_PATH TEXT, VERSION TEXT, LINE_ID "
                    "INTEGER, LINE_SUBID INTEGER, PDMID1 TEXT, CADSYSTEM TEXT, PDMSYSTEM TEXT)");
    fixture.insert("g1", {{"PDMID1", "P-1"}});
    fixture.insert("g1", {{"PDMID1", "P-2"}});
    const auto dialog = fixture.showDialog();
    clickDocument(*dialog, 1);
    QString shown;
    inNextForm([&](NewRecordDialogC &form) { shown = textIn(form, "PDMID1"); }, false);
    clickButton(*dialog, "btnEdit");
    QCOMPARE(shown, QString("P-1"));
}

void tst_DocumentRecords::editNeedsASelection()
{
    const DocumentFixture fixture;
    fixture.insert("g1");
    const auto dialog = fixture.showDialog();
    QVERIFY(!widgetOf<QPushButton>(*dialog, "btnEdit")->isEnabled());
    QVERIFY(QMetaObject::invokeMethod(dialog.get(), "OnEditRecord"));
    QVERIFY(QMetaObject::invokeMethod(dialog.get(), "OnDeleteRow"));
    QCOMPARE(fixture.log.takeStatements(), QStringList());
}

void tst_DocumentRecords::editWithCallback_data()
{
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("expected");
    QTest::newRow("1 drops it") << 1 << "P-1";
    QTest::newRow("0 writes what the script says") << 0 << "by script";
}

void tst_DocumentRecords::editWithCallback()
{
    QFETCH(int, result);
    const DocumentFixture fixture;
    fixture.setKey("PDM_EDIT_COLUMNS", "PDMID1,VERSION");
    fixture.insert("g1", {{"PDMID1", "P-1"}});
    const auto dialog = fixture.showDialog();
    clickDocument(*dialog, 0);
    QStringList seen;
    dialog->setUpdateCallback(scriptOf([&](prxDictionaryObjC &values, const mzComVariantC &) {
                                  seen = entriesOf(values);
                                  values.addObj("PDMID1", "by script");
                                  return mzComVariantC(result);
                              }),
                              "run");
    inNextForm([](NewRecordDialogC &form) { typeInto(form, "PDMID1", "typed"); });
    clickButton(*dialog, "btnEdit");
    QCOMPARE(seen, (QStringList{"CADSYSTEM=", "PDMID1=typed", "PDMSYSTEM=", "VERSION=v1"}));
    QTEST(fixture.column("SELECT PDMID1 FROM plm_document").value(0), "expected");
    QCOMPARE(dialog->isModified(), result == 0);
}

void tst_DocumentRecords::editFails()
{
    const DocumentFixture fixture;
    fixture.execute("CREATE UNIQUE INDEX one ON plm_document(PDMID1)");
    fixture.insert("g1", {{"PDMID1", "P-1"}});
    fixture.insert("g2", {{"PDMID1", "P-2"}, {"XVARSET", lineOne}});
    const auto dialog = fixture.showDialog();
    QCOMPARE(selectedIds(*dialog), QStringList{"g2"});
    inNextForm([](NewRecordDialogC &form) { typeInto(form, "PDMID1", "P-1"); });
    clickButton(*dialog, "btnEdit");
    const QStringList texts = fixture.messages->texts();
    QCOMPARE(texts.size(), 2);
    QVERIFY(texts[0].contains("UPDATE plm_document SET"));
    QCOMPARE(texts[1], QString("Aktualisierung des Datensatzes fehlgeschlagen!"));
    QVERIFY(fixture.log.takeStatements().last().startsWith("SELECT * FROM"));
    QVERIFY(!dialog->isModified());
    QCOMPARE(fixture.column("SELECT PDMID1 FROM plm_document WHERE GEO_ID = 'g2'"),
             QStringList{"P-2"});
}

void tst_DocumentRecords::editOfNothingReloads()
{
    const DocumentFixture fixture;
    fixture.insert("g1");
    const auto dialog = fixture.showDialog();
    clickDocument(*dialog, 0);
    dialog->setUpdateCallback(scriptOf([](prxDictionaryObjC &values, const mzComVariantC &) {
                                  values.clear();
                                  values.addObj("NO SUCH COLUMN", "x");
                                  return mzComVariantC(0);
                              }),
                              "run");
    inNextForm({});
    clickButton(*dialog, "btnEdit");
    QCOMPARE(fixture.messages->texts(), QStringList());
    const QStringList statements = fixture.log.takeStatements();
    QCOMPARE(statements.size(), 4); // three of the form, one of the list
    QVERIFY(statements.last().startsWith("SELECT * FROM plm_document WHERE PRJ_PATH"));
    QVERIFY(!dialog->isModified());
}

void tst_DocumentRecords::editWithoutTable()
{
    const DocumentFixture fixture;
    fixture.insert("g1", {{"PDMID1", "P-1"}});
    const auto dialog = fixture.showDialog(false);
    mzComVariantC table(1);
    dialog->setUpdateCallback(scriptOf([&](prxDictionaryObjC &, const mzComVariantC &second) {
                                  table = second;
                                  return mzComVariantC(0);
                              }),
                              "run");
    clickDocument(*dialog, 0);
    inNextForm([](NewRecordDialogC &form) { typeInto(form, "PDMID1", "P-2"); });
    clickButton(*dialog, "btnEdit");
    QVERIFY(table.isEmpty());
    QCOMPARE(fixture.column("SELECT PDMID1 FROM plm_document"), QStringList{"P-2"});
    // A new record has no varset then.
    dialog->setCreateCallback(passing(), "run");
    inNextForm([](NewRecordDialogC &form) { QCOMPARE(textIn(form, "XVARSET"), QString()); });
    clickButton(*dialog, "btnCreate");
    QCOMPARE(fixture.documents().size(), 2);
}

QTEST_MAIN(tst_DocumentRecords)
#include "tst_DocumentRecords.moc"
