#include "DocumentFixture.h"

#include <geomcore/index/IndexTreeC.h>
#include <geomcore/linkdb/LinkDbSettings.h>
#include <script/run/ScriptSession.h>
#include <TestPaths.h>

#include <QDialogButtonBox>
#include <QFile>
#include <QLineEdit>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

namespace {

const QString examples = QStringLiteral(VELK_SOURCE_DIR "/examples/");
const QString bolts = examples + QStringLiteral("release-1/standardparts/screws/iso4014.prj");
const QString nuts = examples + QStringLiteral("release-1/standardparts/nuts/iso4032.prj");

/// The example's statements, without comments.
QStringList statements()
{
    QFile file(examples + QStringLiteral("linkdb/documents.sql"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList rows = QString::fromUtf8(file.readAll()).split(u'\n');
    rows.removeIf([](const QString &row) { return row.startsWith(QLatin1String("--")); });
    QStringList all = rows.join(u'\n').split(QStringLiteral(";\n"), Qt::SkipEmptyParts);
    all.removeIf([](const QString &each) { return each.trimmed().isEmpty(); });
    return all;
}

} // namespace

/// The example's documents and its script: a record is made from another one, edited and deleted
/// with its place in an assembly.
class tst_DocumentExample : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { addDatabases(); }
    void init();
    void cleanup();
    void loadsIntoAnEmptyDatabase();
    void script();

private:
    PPathName m_root;
};

void tst_DocumentExample::init()
{
    m_root = IndexTreeC::instance()->catalogRoot();
}

void tst_DocumentExample::cleanup()
{
    PLinkDbC::setInstance(nullptr);
    IndexTreeC::instance()->setCatalogRoot(m_root);
}

void tst_DocumentExample::loadsIntoAnEmptyDatabase()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("documents.db");
    {
        QSqlDatabase plain = QSqlDatabase::addDatabase("QSQLITE", "plain");
        plain.setDatabaseName(file);
        QVERIFY(plain.open());
        QSqlQuery query(plain);
        for (const QString &statement : statements())
            QVERIFY2(query.exec(statement), qPrintable(query.lastError().text()));
    }
    QSqlDatabase::removeDatabase("plain");
    PLinkDbC linkDb;
    QVERIFY2(linkDb.open(LinkDbSettings::fromText(file)), qPrintable(linkDb.lastError().text));
    QCOMPARE(linkDb.executeCountStatement("SELECT COUNT(*) FROM plm_document"), 9);
    QCOMPARE(linkDb.executeCountStatement("SELECT COUNT(*) FROM plm_hierarchy"), 6);
    QCOMPARE(linkDb.groupInformation("PDM_ADD"), QString("1"));
}

void tst_DocumentExample::script()
{
    const DocumentFixture fixture;
    for (const QString &statement : statements())
        fixture.execute(statement);
    fixture.setKey("PDM_COLUMNS", "PDMID1,PDMID2,XVARSET,NBDEFAULTLANG");
    fixture.setKey("PDM_EDIT_COLUMNS", "PDMID1,PDMID2,NBDEFAULTLANG");
    IndexTreeC::instance()->setCatalogRoot(PPathName(examples + "release-1"));
    PLinkDbC::setInstance(fixture.linkDb);
    ScriptSession session;
    QStringList printed;
    session.engine().setPrinter([&](const QString &text) { printed.append(text); });
    const auto run = [&](const QString &project, int line,
                         const std::function<void(DocumentListDialogC &)> &act) {
        session.setArguments({project, QString::number(line)});
        inNextDialog([=](QDialog &dialog) {
            act(static_cast<DocumentListDialogC &>(dialog));
            QTest::mouseClick(
                widgetOf<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Ok),
                Qt::LeftButton);
        });
        const ScriptOutcome outcome = session.runFile(examples + "linkdb/documents.js");
        QVERIFY2(outcome.state == ScriptOutcome::Done, qPrintable(outcome.error.text()));
    };
    const auto select = [](DocumentListDialogC &dialog, const QString &id) {
        clickDocument(dialog, int(idsOf(dialog).indexOf(id)));
    };

    run(bolts, 4, [&](DocumentListDialogC &dialog) {
        QCOMPARE(idsOf(dialog).size(), 6);
        // Made from another record, with a number of its own.
        select(dialog, "bolt-m6-40");
        inNextForm([](NewRecordDialogC &form) { typeInto(form, "PDMID1", ""); });
        clickButton(dialog, "btnCreate"); // the script refuses that
        QCOMPARE(idsOf(dialog).size(), 6);
        inNextForm([](NewRecordDialogC &form) { typeInto(form, "PDMID1", "100-0641"); });
        clickButton(dialog, "btnCreate");
        QCOMPARE(idsOf(dialog).size(), 7);
        // Edited.
        select(dialog, "bolt-m6-60");
        inNextForm([](NewRecordDialogC &form) { typeInto(form, "PDMID1", "100-0661"); });
        clickButton(dialog, "btnEdit");
        select(dialog, "bolt-m6-60");
    });
    QCOMPARE(printed,
             (QStringList{"A record needs a number in PDMID1", "new: 100-0641 for ISO 4014",
                          "edited: 100-0661", "picked: {Dia=M6}{L=60}"}));
    QCOMPARE(fixture.column("SELECT PDMID1 || PDMID2 || NBDEFAULTLANG FROM plm_document WHERE "
                            "PDMID1 IN ('100-0641', '100-0661') ORDER BY 1"),
             (QStringList{"100-0641BHexagon bolt M6 x 40", "100-0661A+Hexagon bolt M6 x 60"}));

    // Deleted: a shared part is refused, an assembly keeps what others need.
    printed.clear();
    run(bolts, 4, [&](DocumentListDialogC &dialog) {
        fixture.messages->clear();
        select(dialog, "bolt-m6-40");
        clickButton(dialog, "btnDelete");
        QCOMPARE(fixture.messages->texts().size(), 1);
        fixture.messages->addAnswer(PMsgReply::Yes);
        select(dialog, "set-m6");
        clickButton(dialog, "btnDelete");
        QCOMPARE(fixture.messages->texts().size(), 3);
        QVERIFY(idsOf(dialog).contains("bolt-m6-40"));
        QVERIFY(!idsOf(dialog).contains("set-m6"));
        // Now it is in one assembly only.
        select(dialog, "bolt-m6-40");
        clickButton(dialog, "btnDelete");
    });
    QCOMPARE(fixture.hierarchy(), (QStringList{"joint-m6>nut-m6", "nut-m6>drawing-m6"}));
    QVERIFY(!fixture.linkDb->isPending()); // by the script's last line
    const QStringList left = fixture.documents();
    for (const char *gone : {"set-m6", "washer-6", "bolt-m6-40"})
        QVERIFY(!left.contains(gone));
    QCOMPARE(left.size(), 7);

    run(nuts, 7, [](DocumentListDialogC &dialog) {
        QStringList ids = idsOf(dialog);
        ids.sort();
        QCOMPARE(ids, (QStringList{"drawing-m6", "nut-m6"}));
    });
}

QTEST_MAIN(tst_DocumentExample)
#include "tst_DocumentExample.moc"
