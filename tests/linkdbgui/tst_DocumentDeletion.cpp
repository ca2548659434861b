#include "DocumentFixture.h"

#include <QPushButton>

namespace {

const QString question =
    QStringLiteral("Sie sind dabei, eine Assembly zu löschen, die Unterelemente enthält. Sollen "
                   "alle Unterelemente ebenfalls gelöscht werden?");
const QString someStay =
    QStringLiteral("Es konnten nicht alle Unterelemente gelöscht werden, da einige Unterelemente "
                   "auch von anderen Assemblies referenziert werden!");
const QString isShared = QStringLiteral("Das Teil konnte nicht gelöscht werden, da es von mehreren "
                                        "Assemblies referenziert wird!");
const QString notDeleted = QStringLiteral("Der Datensatz konnte nicht gelöscht werden!");

/// Statements but those that load the list.
QStringList withoutLoading(QStringList statements)
{
    statements.removeIf([](const QString &each) {
        return each.startsWith(QLatin1String("SELECT * FROM plm_document WHERE PRJ_PATH"));
    });
    return statements;
}

bool isLoaded(const QStringList &statements)
{
    return withoutLoading(statements).size() < statements.size();
}

} // namespace

/// Deleting records in the document dialog, with the structure of their assemblies. Each statement
/// is what is asked for, in its order and with its commits.
class tst_DocumentDeletion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { addDatabases(); }
    void single();
    void childOfOne();
    void childOfTwo();
    void leafFails();
    void cancelled();
    void withoutChildren();
    void withChildren();
    void sharedChildStays();
    void oneLevelOnly();
    void assemblyFails();
    void childFails();
    void hierarchyFails();
    void commitsFail();
    void childWithoutRecord();
    void oddKeys_data();
    void oddKeys();
    void emptyKey();
    void button();
    void pendingDeleteIsSeen();
    void nextAnswerDecides_data();
    void nextAnswerDecides();

private:
    /// Selects the record and clicks the button; the answers are for questions.
    static void remove(const DocumentFixture &fixture, const DocumentListDialogC &dialog,
                       const QString &id, const QList<PMsgReply> &answers = {});
};

void tst_DocumentDeletion::remove(const DocumentFixture &fixture, const DocumentListDialogC &dialog,
                                  const QString &id, const QList<PMsgReply> &answers)
{
    for (const PMsgReply answer : answers)
        fixture.messages->addAnswer(answer);
    clickRecord(dialog, id);
    (void)fixture.log.takeStatements();
    (void)fixture.log.takeLines();
    clickButton(dialog, "btnDelete");
}

void tst_DocumentDeletion::single()
{
    const DocumentFixture fixture;
    fixture.insert("a");
    fixture.insert("b");
    const auto dialog = fixture.showDialog();
    remove(fixture, *dialog, "a");
    const QStringList statements = fixture.log.takeStatements();
    QCOMPARE(withoutLoading(statements),
             (QStringList{"SELECT COUNT(*) FROM plm_hierarchy WHERE Parent = 'a'",
                          "SELECT COUNT(*) FROM plm_hierarchy WHERE Child = 'a'",
                          "DELETE FROM plm_document WHERE GEO_ID = 'a'"}));
    QVERIFY(statements.last().startsWith("SELECT * FROM plm_document WHERE PRJ_PATH"));
    const QStringList lines = fixture.log.takeLines();
    QCOMPARE(lines.size(), 2);
    QCOMPARE(lines[0], QString("DELETE FROM plm_document WHERE GEO_ID = 'a'"));
    QVERIFY(lines[1].startsWith("Loading PLM document records: "));
    QCOMPARE(idsOf(*dialog), QStringList{"b"});
    QVERIFY(dialog->isModified());
    QCOMPARE(fixture.messages->texts(), QStringList());
    QVERIFY(fixture.linkDb->isPending()); // for whoever commits next
}

void tst_DocumentDeletion::childOfOne()
{
    const DocumentFixture fixture;
    fixture.insert("a");
    fixture.join("top", "a");
    fixture.join("top", "b");
    const auto dialog = fixture.showDialog();
    remove(fixture, *dialog, "a");
    QCOMPARE(withoutLoading(fixture.log.takeStatements()),
             (QStringList{"SELECT COUNT(*) FROM plm_hierarchy WHERE Parent = 'a'",
                          "SELECT COUNT(*) FROM plm_hierarchy WHERE Child = 'a'",
                          "DELETE FROM plm_hierarchy WHERE CHILD = 'a'", "COMMIT",
                          "DELETE FROM plm_document WHERE GEO_ID = 'a'"}));
    QCOMPARE(fixture.log.takeLines().mid(0, 2),
             (QStringList{"DELETE FROM plm_hierarchy WHERE CHILD = 'a'",
                          "DELETE FROM plm_document WHERE GEO_ID = 'a'"}));
    QVERIFY(dialog->isModified());
    QVERIFY(fixture.linkDb->isPending());
    // The row of the hierarchy is gone for good, the record not yet.
    QVERIFY(fixture.linkDb->rollback());
    QCOMPARE(fixture.hierarchy(), QStringList{"top>b"});
    QCOMPARE(fixture.documents(), QStringList{"a"});
}

void tst_DocumentDeletion::childOfTwo()
{
    const DocumentFixture fixture;
    fixture.insert("a");
    fixture.join("top", "a");
    fixture.join("other", "a");
    const auto dialog = fixture.showDialog();
    remove(fixture, *dialog, "a");
    QCOMPARE(fixture.log.takeStatements(),
             (QStringList{"SELECT COUNT(*) FROM plm_hierarchy WHERE Parent = 'a'",
                          "SELECT COUNT(*) FROM plm_hierarchy WHERE Child = 'a'"}));
    QCOMPARE(fixture.log.takeLines(), QStringList());
    QCOMPARE(fixture.messages->texts(), QStringList{isShared});
    QCOMPARE(fixture.messages->shown().first().mode, PMsgDlgModes(PMsgDlgMode::Warning));
    QVERIFY(!dialog->isModified());
    QCOMPARE(fixture.documents(), QStringList{"a"});
    QCOMPARE(fixture.hierarchy(), (QStringList{"other>a", "top>a"}));
}

void tst_DocumentDeletion::leafFails()
{
    const DocumentFixture fixture;
    fixture.insert("a");
    fixture.join("top", "a");
    fixture.refuseDeletion("a");
    const auto dialog = fixture.showDialog();
    remove(fixture, *dialog, "a");
    const QStringList statements = fixture.log.takeStatements();
    QCOMPARE(statements.last(), QString("DELETE FROM plm_document WHERE GEO_ID = 'a'"));
    QVERIFY(!isLoaded(statements));
    QCOMPARE(fixture.messages->texts(), QStringList{notDeleted});
    QCOMPARE(fixture.messages->shown().first().mode, PMsgDlgModes(PMsgDlgMode::Error));
    QVERIFY(!dialog->isModified());
    QCOMPARE(idsOf(*dialog), QStringList{"a"});
    QCOMPARE(fixture.documents(), QStringList{"a"});
    QCOMPARE(fixture.hierarchy(), QStringList());
}

void tst_DocumentDeletion::cancelled()
{
    const DocumentFixture fixture;
    fixture.insert("a");
    fixture.join("a", "b");
    const auto dialog = fixture.showDialog();
    remove(fixture, *dialog, "a", {PMsgReply::Cancel});
    QCOMPARE(fixture.log.takeStatements(),
             QStringList{"SELECT COUNT(*) FROM plm_hierarchy WHERE Parent = 'a'"});
    QCOMPARE(fixture.messages->texts(), QStringList{question});
    QCOMPARE(fixture.messages->shown().first().mode, PMsgDlgModes(PMsgDlgMode::YesNoCancel));
    QCOMPARE(fixture.documents(), QStringList{"a"});
    QCOMPARE(fixture.hierarchy(), QStringList{"a>b"});
    QVERIFY(!dialog->isModified());
}

void tst_DocumentDeletion::withoutChildren()
{
    const DocumentFixture fixture;
    for (const char *id : {"a", "b"})
        fixture.insert(id);
    fixture.join("a", "b");
    fixture.join("top", "a");
    const auto dialog = fixture.showDialog();
    remove(fixture, *dialog, "a", {PMsgReply::No});
    const QStringList statements = fixture.log.takeStatements();
    QCOMPARE(withoutLoading(statements),
             (QStringList{"SELECT COUNT(*) FROM plm_hierarchy WHERE Parent = 'a'",
                          "DELETE FROM plm_document WHERE GEO_ID = 'a'", "COMMIT"}));
    QVERIFY(isLoaded(statements));
    QCOMPARE(idsOf(*dialog), QStringList{"b"});
    QCOMPARE(fixture.hierarchy(), (QStringList{"a>b", "top>a"}));
    QVERIFY(!dialog->isModified());
    QVERIFY(!fixture.linkDb->isPending());
}

void tst_DocumentDeletion::withChildren()
{
    const DocumentFixture fixture;
    for (const char *id : {"a", "b", "c"})
        fixture.insert(id);
    fixture.join("a", "b");
    const auto dialog = fixture.showDialog();
    remove(fixture, *dialog, "a", {PMsgReply::Yes});
    const QStringList statements = fixture.log.takeStatements();
    QCOMPARE(withoutLoading(statements),
             (QStringList{"SELECT COUNT(*) FROM plm_hierarchy WHERE Parent = 'a'",
                          "DELETE FROM plm_document WHERE GEO_ID = 'a'", "COMMIT",
                          "SELECT CHILD FROM plm_hierarchy WHERE Parent = 'a'",
                          "SELECT COUNT(*) FROM plm_hierarchy WHERE Child = 'b'",
                          "DELETE FROM plm_hierarchy WHERE Parent = 'a' AND Child = 'b'", "COMMIT",
                          "DELETE FROM plm_document WHERE GEO_ID = 'b'", "COMMIT"}));
    QVERIFY(statements.last().startsWith("SELECT * FROM"));
    QCOMPARE(fixture.log.takeLines().mid(0, 4),
             (QStringList{"DELETE FROM plm_document WHERE GEO_ID = 'a'",
                          "SELECT CHILD FROM plm_hierarchy WHERE Parent = 'a'",
                          "DELETE FROM plm_hierarchy WHERE Parent = 'a' AND Child = 'b'",
                          "DELETE FROM plm_document WHERE GEO_ID = 'b'"}));
    QCOMPARE(fixture.messages->texts(), QStringList{question});
    QCOMPARE(idsOf(*dialog), QStringList{"c"});
    QCOMPARE(fixture.hierarchy(), QStringList());
    QVERIFY(!dialog->isModified());
    QVERIFY(!fixture.linkDb->isPending());
}

void tst_DocumentDeletion::sharedChildStays()
{
    const DocumentFixture fixture;
    for (const char *id : {"a", "b", "c"})
        fixture.insert(id);
    fixture.join("a", "b");
    fixture.join("a", "c");
    fixture.join("other", "c");
    const auto dialog = fixture.showDialog();
    remove(fixture, *dialog, "a", {PMsgReply::Yes});
    QCOMPARE(fixture.messages->texts(), (QStringList{question, someStay}));
    QCOMPARE(fixture.messages->shown()[1].mode, PMsgDlgModes(PMsgDlgMode::Warning));
    QCOMPARE(idsOf(*dialog), QStringList{"c"});
    QCOMPARE(fixture.hierarchy(), QStringList{"other>c"});
    QVERIFY(!dialog->isModified());
}

void tst_DocumentDeletion::oneLevelOnly()
{
    const DocumentFixture fixture;
    for (const char *id : {"a", "b", "c"})
        fixture.insert(id);
    fixture.join("top", "a");
    fixture.join("a", "b");
    fixture.join("b", "c");
    const auto dialog = fixture.showDialog();
    remove(fixture, *dialog, "a", {PMsgReply::Yes});
    QCOMPARE(idsOf(*dialog), QStringList{"c"});
    QCOMPARE(fixture.hierarchy(), (QStringList{"b>c", "top>a"}));
}

void tst_DocumentDeletion::assemblyFails()
{
    const DocumentFixture fixture;
    fixture.insert("a");
    fixture.insert("b");
    fixture.join("a", "b");
    fixture.refuseDeletion("a");
    const auto dialog = fixture.showDialog();
    remove(fixture, *dialog, "a", {PMsgReply::Yes});
    QCOMPARE(fixture.log.takeStatements(),
             (QStringList{"SELECT COUNT(*) FROM plm_hierarchy WHERE Parent = 'a'",
                          "DELETE FROM plm_document WHERE GEO_ID = 'a'"}));
    QCOMPARE(fixture.messages->texts(), (QStringList{question, notDeleted}));
    QCOMPARE(fixture.messages->shown()[1].mode, PMsgDlgModes(PMsgDlgMode::Error));
    QCOMPARE(fixture.documents(), (QStringList{"a", "b"}));
    QCOMPARE(fixture.hierarchy(), QStringList{"a>b"});
}

void tst_DocumentDeletion::childFails()
{
    const DocumentFixture fixture;
    for (const char *id : {"a", "b", "c"})
        fixture.insert(id);
    fixture.join("a", "b");
    fixture.join("a", "c");
    fixture.refuseDeletion("b");
    const auto dialog = fixture.showDialog();
    remove(fixture, *dialog, "a", {PMsgReply::Yes});
    // Nothing is said, and the child has lost its link.
    QCOMPARE(fixture.messages->texts(), QStringList{question});
    QCOMPARE(idsOf(*dialog), QStringList{"b"});
    QCOMPARE(fixture.hierarchy(), QStringList());
}

void tst_DocumentDeletion::hierarchyFails()
{
    const DocumentFixture fixture;
    for (const char *id : {"a", "b", "c"})
        fixture.insert(id);
    fixture.join("a", "b");
    fixture.join("top", "c");
    fixture.refuseUnlinking();
    const auto dialog = fixture.showDialog();
    // Records go all the same, and nothing is said.
    remove(fixture, *dialog, "c");
    QCOMPARE(withoutLoading(fixture.log.takeStatements()).mid(2),
             (QStringList{"DELETE FROM plm_hierarchy WHERE CHILD = 'c'", "COMMIT",
                          "DELETE FROM plm_document WHERE GEO_ID = 'c'"}));
    QVERIFY(dialog->isModified());
    remove(fixture, *dialog, "a", {PMsgReply::Yes});
    QCOMPARE(withoutLoading(fixture.log.takeStatements()).last(5),
             (QStringList{"SELECT COUNT(*) FROM plm_hierarchy WHERE Child = 'b'",
                          "DELETE FROM plm_hierarchy WHERE Parent = 'a' AND Child = 'b'", "COMMIT",
                          "DELETE FROM plm_document WHERE GEO_ID = 'b'", "COMMIT"}));
    QCOMPARE(fixture.messages->texts(), QStringList{question});
    QCOMPARE(fixture.documents(), QStringList());
    QCOMPARE(fixture.hierarchy(), (QStringList{"a>b", "top>c"}));
}

void tst_DocumentDeletion::commitsFail()
{
    const DocumentFixture fixture;
    fixture.insert("a");
    fixture.insert("b");
    fixture.join("a", "b");
    fixture.refuseCommits({"DELETE"});
    const auto dialog = fixture.showDialog();
    remove(fixture, *dialog, "a", {PMsgReply::Yes});
    // All goes on as if they had been done.
    QCOMPARE(withoutLoading(fixture.log.takeStatements()).mid(1),
             (QStringList{"DELETE FROM plm_document WHERE GEO_ID = 'a'", "COMMIT",
                          "SELECT CHILD FROM plm_hierarchy WHERE Parent = 'a'",
                          "SELECT COUNT(*) FROM plm_hierarchy WHERE Child = 'b'",
                          "DELETE FROM plm_hierarchy WHERE Parent = 'a' AND Child = 'b'", "COMMIT",
                          "DELETE FROM plm_document WHERE GEO_ID = 'b'", "COMMIT"}));
    QCOMPARE(fixture.messages->texts(), QStringList{question});
    QCOMPARE(fixture.documents(), (QStringList{"a", "b"}));
    QCOMPARE(fixture.hierarchy(), QStringList());
}

void tst_DocumentDeletion::childWithoutRecord()
{
    const DocumentFixture fixture;
    fixture.insert("a");
    fixture.join("a", "gone");
    fixture.join("a", "gone"); // twice: the first counts two, the second none
    const auto dialog = fixture.showDialog();
    remove(fixture, *dialog, "a", {PMsgReply::Yes});
    QCOMPARE(fixture.messages->texts(), (QStringList{question, someStay}));
    QCOMPARE(fixture.hierarchy(), QStringList());
}

void tst_DocumentDeletion::oddKeys_data()
{
    QTest::addColumn<QString>("id");
    for (const char *id : {"o'clock", "%1", "a\\'b", "' OR '1'='1",
                           "x'; DROP TABLE "
                           "plm_document; --",
                           "ä\xf0\x9f\x94\xa9", " blank ", "\"quoted\"", "line\nfeed"})
        QTest::newRow(id) << id;
}

void tst_DocumentDeletion::oddKeys()
{
    QFETCH(QString, id);
    const DocumentFixture fixture;
    fixture.insert("stays");
    fixture.insert("top");
    fixture.insert(id);
    fixture.join("top", id);
    const auto dialog = fixture.showDialog();
    remove(fixture, *dialog, id);
    QStringList left = idsOf(*dialog);
    left.sort();
    QCOMPARE(left, (QStringList{"stays", "top"}));
    QCOMPARE(fixture.hierarchy(), QStringList());
    // The same key as a child of an assembly.
    fixture.insert(id);
    fixture.join("top", id);
    dialog->initDialog(fixture.path, 1, 0);
    remove(fixture, *dialog, "top", {PMsgReply::Yes});
    QCOMPARE(idsOf(*dialog), QStringList{"stays"});
    QCOMPARE(fixture.hierarchy(), QStringList());
}

void tst_DocumentDeletion::emptyKey()
{
    const DocumentFixture fixture;
    fixture.insert("");
    const auto dialog = fixture.showDialog();
    remove(fixture, *dialog, "");
    QCOMPARE(fixture.log.takeStatements(), QStringList());
    QCOMPARE(fixture.messages->texts(), QStringList());
    QCOMPARE(fixture.documents(), QStringList{""});
}

void tst_DocumentDeletion::button()
{
    const DocumentFixture fixture;
    fixture.insert("a");
    const auto dialog = fixture.showDialog();
    const auto *const button = widgetOf<QPushButton>(*dialog, "btnDelete");
    QVERIFY(button->isVisible() && !button->isEnabled());
    clickDocument(*dialog, 0);
    QVERIFY(button->isEnabled());
    clickButton(*dialog, "btnDelete");
    QVERIFY(!button->isEnabled());
    fixture.setKey("PDM_DELETE", "0");
    QVERIFY(!widgetOf<QPushButton>(*fixture.showDialog(), "btnDelete")->isVisible());
}

void tst_DocumentDeletion::pendingDeleteIsSeen()
{
    const DocumentFixture fixture;
    for (const char *id : {"a", "b", "c"})
        fixture.insert(id);
    const auto dialog = fixture.showDialog();
    remove(fixture, *dialog, "a");
    remove(fixture, *dialog, "b");
    QCOMPARE(idsOf(*dialog), QStringList{"c"});
    QVERIFY(fixture.linkDb->rollback());
    QCOMPARE(fixture.documents(), (QStringList{"a", "b", "c"}));
    // Another path's commit takes the pending one along.
    fixture.join("b", "x");
    dialog->initDialog(fixture.path, 1, 0);
    remove(fixture, *dialog, "a");
    remove(fixture, *dialog, "b", {PMsgReply::No});
    QVERIFY(fixture.linkDb->rollback());
    QCOMPARE(fixture.documents(), QStringList{"c"});
}

void tst_DocumentDeletion::nextAnswerDecides_data()
{
    QTest::addColumn<int>("reply");
    QTest::addColumn<QStringList>("left");
    QTest::newRow("Ok is a No") << 1 << QStringList{"b"};
    QTest::newRow("Cancel") << 2 << QStringList{"a", "b"};
    QTest::newRow("Yes") << 6 << QStringList();
    QTest::newRow("No") << 7 << QStringList{"b"};
}

void tst_DocumentDeletion::nextAnswerDecides()
{
    QFETCH(int, reply);
    const DocumentFixture fixture;
    fixture.insert("a");
    fixture.insert("b");
    fixture.join("a", "b");
    const auto dialog = fixture.showDialog();
    remove(fixture, *dialog, "a", {PMsgReply(reply)});
    QTEST(fixture.documents(), "left");
}

QTEST_MAIN(tst_DocumentDeletion)
#include "tst_DocumentDeletion.moc"
