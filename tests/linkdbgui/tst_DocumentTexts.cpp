#include "../support/ControlCheck.h"
#include "DocumentFixture.h"

#include <core/plugin/PTranslateManager.h>

#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>

namespace {

/// One sign of each plane of Unicode.
QString everyPlane()
{
    QString text;
    for (char32_t plane = 0; plane <= 0x10; ++plane) {
        const char32_t sign = plane * 0x10000 + 0x1234;
        text += QString::fromUcs4(&sign, 1);
    }
    return text;
}

/// As a paste would do it.
void put(const QWidget &form, const QString &label, const QString &text)
{
    QWidget *const field = fieldOf(form, label);
    auto *edit = qobject_cast<QLineEdit *>(field);
    if (!edit)
        edit = qobject_cast<QComboBox *>(field)->lineEdit();
    edit->setText(text);
}

QString textIn(const QWidget &form, const QString &label)
{
    return static_cast<const NewRecordDialogC &>(form).values().value(label);
}

/// A statement without its literals.
QString shapeOf(const QString &statement)
{
    QString shape;
    bool inside = false;
    for (const QChar c : statement) { // a doubled quote ends and begins one
        if (c == u'\'') {
            inside = !inside;
            if (inside && shape.endsWith(u'?'))
                continue;
            shape += inside ? QStringLiteral("?") : QString();
        } else if (!inside) {
            shape += c;
        }
    }
    return shape;
}

} // namespace

/// Texts that could break out of a field, a statement or a message: statements keep their shape,
/// and values come back as they were.
class tst_DocumentTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { addDatabases(); }
    void fields_data();
    void fields();
    void script_data();
    void script();
    void lineFeedsAndNull();
    void placeOfTheLine_data();
    void placeOfTheLine();
    void columnNames_data();
    void columnNames();
    void dialogsInEveryLanguage();
};

void tst_DocumentTexts::fields_data()
{
    QTest::addColumn<QString>("text");
    const QList<std::pair<const char *, QString>> texts = {
        {"quote", "it's"},
        {"quotes", "''\"\"'"},
        {"quote at the end", "a\\'"},
        {"backslashes", "\\\\x\\n\\"},
        {"SQL", "'; DELETE FROM plm_document; --"},
        {"another SQL", "x' OR 'a'='a"},
        {"comment", "/* a */ -- b"},
        {"place holders", "%1 %2 %% ? :a $1"},
        {"every plane", everyPlane()},
        {"combining and right to left", QString::fromUtf8("e\u0301 \u05d0\u202e \ufeff")},
        {"markup", "<img src='x'><b>&amp;"},
        {"formula", "=1+1"},
        {"blanks round it", "  a  "},
        {"NULL", "NULL"},
        {"long", QString(100'000, u'x') + u'\''},
    };
    for (const auto &[name, text] : texts)
        QTest::newRow(name) << text;
}

void tst_DocumentTexts::fields()
{
    QFETCH(QString, text);
    const DocumentFixture fixture;
    fixture.setKey("PDM_EDIT_COLUMNS", "PDMID1,PDMID2,XVARSET");
    fixture.setKey("PDM_COLUMNS", "PDMID1,PDMID2,XVARSET,CADSYSTEM,PDMSYSTEM");
    const QStringList fields = {"PDMID1", "PDMID2", "XVARSET", "CADSYSTEM", "PDMSYSTEM"};
    const auto dialog = fixture.showDialog();
    QStringList seen;
    const mzIDispatchC script = scriptOf([&](prxDictionaryObjC &values, const mzComVariantC &) {
        seen = values.getItemArray().toQStringList();
        return mzComVariantC(0);
    });
    dialog->setCreateCallback(script, "run");
    dialog->setUpdateCallback(script, "run");
    const auto fill = [&](const QString &value) {
        return [&, value](NewRecordDialogC &form) {
            for (const QString &field : fields)
                put(form, field, value);
        };
    };
    // The shapes that harmless texts give.
    inNextForm(fill("plain"));
    clickButton(*dialog, "btnCreate");
    clickDocument(*dialog, 0);
    inNextForm(fill("other"));
    clickButton(*dialog, "btnEdit");
    QStringList shapes;
    for (const QString &statement : fixture.log.takeStatements())
        shapes.append(shapeOf(statement));
    fixture.execute("DELETE FROM plm_document");
    dialog->initDialog(fixture.path, 1, 0);
    (void)fixture.log.takeStatements();

    inNextForm(fill(text));
    clickButton(*dialog, "btnCreate");
    QCOMPARE(seen.count(text), 5);
    QCOMPARE(rowsOf(documentsOf(*dialog)), QStringList{QStringList(5, text).join('|')});
    clickDocument(*dialog, 0);
    inNextForm([&](NewRecordDialogC &form) {
        for (const QString &field : fields)
            QCOMPARE(textIn(form, field), text);
    });
    clickButton(*dialog, "btnEdit");
    QCOMPARE(seen.count(text), 5);
    QStringList found;
    for (const QString &statement : fixture.log.takeStatements())
        found.append(shapeOf(statement));
    QCOMPARE(found, shapes);
    QCOMPARE(rowsOf(documentsOf(*dialog)), QStringList{QStringList(5, text).join('|')});
    QCOMPARE(fixture.column("SELECT PDMID2 FROM plm_document"), QStringList{text});
    QCOMPARE(fixture.messages->texts(), QStringList());
    dialog->accept();
    QCOMPARE(QString(dialog->getXVarset()), QString()); // edited, so that nothing is selected
}

void tst_DocumentTexts::script_data()
{
    fields_data();
}

void tst_DocumentTexts::script()
{
    QFETCH(QString, text);
    const DocumentFixture fixture;
    const auto dialog = fixture.showDialog();
    dialog->setCreateCallback(scriptOf([&](prxDictionaryObjC &values, const mzComVariantC &) {
                                  values.addObj("PDMID1", text);
                                  values.addObj(text, "value of no column");
                                  return mzComVariantC(0);
                              }),
                              "run");
    inNextForm({});
    clickButton(*dialog, "btnCreate");
    QCOMPARE(fixture.messages->texts(), QStringList());
    QCOMPARE(fixture.column("SELECT PDMID1 FROM plm_document"), QStringList{text});
    // A key as a method's name comes back in the message alone.
    dialog->setUpdateCallback(dispatchOf(new FailingObject), text);
    inNextForm({});
    clickButton(*dialog, "btnEdit");
    QCOMPARE(fixture.messages->texts(),
             QStringList{QString("Der Aufruf von ") + text + " ist fehlgeschlagen!"});
}

void tst_DocumentTexts::lineFeedsAndNull()
{
    const DocumentFixture fixture;
    const QString text = QStringLiteral("a\nb\tc\r");
    const auto dialog = fixture.showDialog();
    dialog->setCreateCallback(scriptOf([&](prxDictionaryObjC &values, const mzComVariantC &) {
                                  values.addObj("PDMID1", text);
                                  values.addObj("PDMID2", QString(QChar(0)) + "x" + QChar(0));
                                  return mzComVariantC(0);
                              }),
                              "run");
    inNextForm({});
    clickButton(*dialog, "btnCreate");
    QCOMPARE(fixture.column("SELECT PDMID1 FROM plm_document"), QStringList{text});
    // No database keeps the null character.
    QCOMPARE(fixture.column("SELECT PDMID2 FROM plm_document"), QStringList{"x"});
    QCOMPARE(selectedIds(*dialog).size(), 1);
    inNextForm([&](NewRecordDialogC &form) { QCOMPARE(textIn(form, "PDMID1"), text); });
    clickButton(*dialog, "btnEdit");
    QCOMPARE(fixture.column("SELECT PDMID1 FROM plm_document"), QStringList{text});
}

void tst_DocumentTexts::placeOfTheLine_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name :
         {QString("it's"), QString("a' OR '1'='1"), QString("%1"), everyPlane().mid(1)})
        QTest::newRow(qPrintable(name)) << name;
}

void tst_DocumentTexts::placeOfTheLine()
{
    QFETCH(QString, name);
    DocumentFixture fixture;
    fixture.usePool(name);
    const QString project = "cat/" + name + ".prj";
    fixture.catalog.writeFile(project, "[PROJECT]\nVERSIONPRJ=" + name.toUtf8() + '\n');
    fixture.insert("g1", {{"PRJ_PATH", project}, {"VERSION", name}});
    fixture.insert("g2", {{"PRJ_PATH", name}, {"VERSION", name}});
    fixture.insert("g3", {{"PRJ_PATH", "other"}, {"VERSION", name}});
    const auto dialog = fixture.makeDialog();
    dialog->initDialog(fixture.catalog.file(project), 1, 0);
    QStringList ids = idsOf(*dialog);
    ids.sort();
    QCOMPARE(ids, (QStringList{"g1", "g2"}));
}

void tst_DocumentTexts::columnNames_data()
{
    QTest::addColumn<QString>("column");
    for (const char *column :
         {"A\"B", "A'B", "A B", "%1", "\"A\"", "A.B", "A; DROP TABLE PLM_DOCUMENT"})
        QTest::newRow(column) << column;
}

void tst_DocumentTexts::columnNames()
{
    QFETCH(QString, column);
    const DocumentFixture fixture;
    fixture.execute("ALTER TABLE plm_document ADD COLUMN " + fixture.linkDb->identifier(column) +
                    " TEXT");
    fixture.setKey("PDM_COLUMNS", column);
    fixture.setKey("PDM_EDIT_COLUMNS", column);
    fixture.insert("g1");
    const auto dialog = fixture.showDialog();
    clickDocument(*dialog, 0);
    inNextForm([&](NewRecordDialogC &form) {
        QCOMPARE(labelsOf(form), (QStringList{column, "CADSYSTEM", "PDMSYSTEM"}));
        typeInto(form, column, "it's");
    });
    clickButton(*dialog, "btnEdit");
    QCOMPARE(fixture.messages->texts(), QStringList());
    QCOMPARE(rowsOf(documentsOf(*dialog)), QStringList{"it's"});
    QCOMPARE(fixture.documents(), QStringList{"g1"});
}

/// List and form of a line that has documents can be used by keyboard and with a screen reader, and
/// no text of theirs is cut.
void tst_DocumentTexts::dialogsInEveryLanguage()
{
    if (isOnServer())
        return; // they look the same
    const DocumentFixture fixture;
    fixture.insert("first", {{"PDMID1", "P-1"}, {"CADSYSTEM", "cad"}});
    fixture.insert("second", {{"PDMID1", "P-2"}});
    for (const char *const key : {"PDM_ADD", "PDM_EDIT", "PDM_DELETE"})
        fixture.setKey(key, "1");
    const QStringList catalogs = QDir(":/translations").entryList({"VelkLinkDbGui_*.qm"});
    QCOMPARE(catalogs.size(), 21);
    QStringList faults;
    for (const QString &catalog : catalogs) {
        const QString language = QFileInfo(catalog).baseName().section('_', 1);
        PTranslateManager::instance().setLanguage(language);
        const auto look = [&](QWidget *dialog) {
            const QStringList found = ControlCheck::mnemonics(*dialog) +
                                      ControlCheck::access(*dialog) +
                                      ControlCheck::cuts(dialog, {950, 560});
            for (const QString &fault : found)
                faults += language + ": " + fault;
            ControlCheck::picture(dialog, dialog->objectName() + '-' + language);
        };
        const auto dialog = fixture.showDialog();
        dialog->setCreateCallback(scriptOf([](prxDictionaryObjC &, const mzComVariantC &) {
                                      return mzComVariantC(true);
                                  }),
                                  "run");
        QCOMPARE(documentsOf(*dialog)->topLevelItemCount(), 2);
        look(dialog.get());
        inNextForm([&](NewRecordDialogC &form) { look(&form); }, false);
        clickButton(*dialog, "btnCreate");
    }
    PTranslateManager::instance().setLanguage(QString());
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
}

QTEST_MAIN(tst_DocumentTexts)
#include "tst_DocumentTexts.moc"
