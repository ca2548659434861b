#include "../../support/PostgresServer.h"
#include "ModalScript.h"
#include "WindowFixture.h"

#include <core/message/PScriptedMessageSink.h>
#include <geomcore/index/IndexTreeC.h>
#include <geomcore/linkdb/LinkDbDeletedRows.h>
#include <geomcore/linkdb/PLinkDbQueryCacheC.h>
#include <geomcore/project/readProjectVersion.h>
#include <gui/application/PApplicationPool.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/linkdb/LinkDbHost.h>
#include <workbench/window/linkdb/LinkListDialog.h>
#include <workbench/window/linkdb/LinkProofDialog.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/message/LogWindow.h>
#include <workbench/window/settings/LinkDbBox.h>
#include <workbench/window/settings/SettingsDialog.h>
#include <workbench/window/settings/WorkbenchSettings.h>

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFile>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTreeWidget>

#include <thread>

namespace {

const QString din933 = QStringLiteral("standardparts/screws/din933.prj");

QAction *pooled(const char *name)
{
    return PApplicationPool::instance().action(QLatin1String(name));
}

/// Clicks each button that cancels a progress, once it is there, as a user would.
class Canceller
{
public:
    Canceller()
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this] { look(); });
        m_timer.start(20);
    }
    /// "window: text" of those progresses.
    [[nodiscard]] const QStringList &clicked() const { return m_clicked; }

private:
    void look()
    {
        for (const QWidget *const top : QApplication::topLevelWidgets()) {
            auto *const button = top->findChild<QAbstractButton *>("progressCancel");
            const auto *const text = top->findChild<QLabel *>("progressText");
            if (!button || !text || !button->isVisible() || !button->isEnabled())
                continue;
            m_clicked.append(top->objectName() + ": " + text->text());
            QTest::mouseClick(button, Qt::LeftButton);
        }
    }

    QTimer m_timer;
    QStringList m_clicked;
};

} // namespace

/// The link database in the workbench: settings, connection, actions, the view of the proof.
class tst_LinkDb : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void settingsOfTheBox_data();
    void settingsOfTheBox();
    void settingsAreKept();
    void connectsInTheBackground();
    void saysWhyItIsNotConnected();
    void logsIn();
    void logsInAtAServer();
    void choosesGroup();
    void listsLinks_data() { databases(); }
    void listsLinks();
    void listTellsALostConnection();
    void handsSelectionOver_data() { databases(); }
    void handsSelectionOver();
    void restoresDeleted_data() { databases(); }
    void restoresDeleted();
    void showsDocumentsOfTheLine_data() { databases(); }
    void showsDocumentsOfTheLine();
    void provesNumbers_data() { databases(); }
    void provesNumbers();
    void goesAtOnceWhileAServerDoesNotAnswer_data();
    void goesAtOnceWhileAServerDoesNotAnswer();
    void takesAnotherWhileAServerDoesNotAnswer();
    void unansweredCommitOfTheDialogCanBeCancelled();
    void unansweredStatementOfTheDialogCanBeCancelled();
    void closingWithChangesCanBeCancelled();

private:
    /// A window whose line 3 has the document "N1" on a server of this test.
    void connectWithDocument(WindowFixture &fixture);
    static void databases()
    {
        QTest::addColumn<bool>("onServer");
        QTest::newRow("SQLite") << false;
        QTest::newRow("PostgreSQL") << true;
    }
    void connectDatabase(const WindowFixture &fixture)
    {
        QFETCH(bool, onServer);
        if (!onServer)
            return connectFile(fixture);
        if (!m_server)
            m_server = std::make_unique<PostgresServer>();
        QVERIFY2(m_server->isRunning(), qPrintable(m_server->problem()));
        setAddress(fixture, m_server->newDatabase());
        QTRY_COMPARE_WITH_TIMEOUT(fixture.window->linkDb()->state(), LinkDbHost::Connected, 20'000);
    }
    static void connectFile(const WindowFixture &fixture)
    {
        setAddress(fixture, "sqlite:" + fixture.directory.filePath("link.db"));
        QTRY_COMPARE(fixture.window->linkDb()->state(), LinkDbHost::Connected);
    }
    static void setAddress(const WindowFixture &fixture, const QString &address)
    {
        WorkbenchSettings::Values values = fixture.settings->values();
        values.linkDb = address;
        fixture.settings->setValues(values);
    }
    static void addDocument(const WindowFixture &fixture, const QString &number, int line)
    {
        const PRefPtr<PLinkDbC> linkDb = fixture.window->linkDb()->linkDb();
        QVERIFY(linkDb->executeInsertStatement(
            QString("INSERT INTO plm_document(GEO_ID, PDMID1, PRJ_PATH, VERSION, LINE_ID, "
                    "LINE_SUBID) VALUES('%1', '%1', '%2', 'v1', %3, 0)")
                .arg(number, din933, QString::number(line))));
        QVERIFY(linkDb->commit());
    }
    static QStringList texts(const QTreeWidget *tree, int column)
    {
        QStringList result;
        for (int i = 0; i < tree->topLevelItemCount(); ++i)
            result.append(tree->topLevelItem(i)->text(column));
        return result;
    }

    std::unique_ptr<PostgresServer> m_server;
};

void tst_LinkDb::settingsOfTheBox_data()
{
    QTest::addColumn<QString>("address");
    QTest::newRow("none") << "";
    QTest::newRow("file") << "sqlite:/a b/c.db";
    QTest::newRow("server") << "postgresql://anna@db.example:5433/links?sslmode=verify-full";
    QTest::newRow("socket") << "postgresql:///links?host=/run/pg&user=anna";
    QTest::newRow("patience") << "postgresql://db.example/links?connect_timeout=3";
}

void tst_LinkDb::settingsOfTheBox()
{
    QFETCH(QString, address);
    const LinkDbBox box(address, "/suggested.db", nullptr);
    QCOMPARE(box.address(), address);
    QCOMPARE(box.problem(), "");
    QCOMPARE(box.isChecked(), !address.isEmpty());
}

void tst_LinkDb::settingsAreKept()
{
    const WindowFixture fixture;
    SettingsDialog dialog(fixture.settings->values(), fixture.settings->linkDbFile(), nullptr);
    auto *box = dialog.findChild<LinkDbBox *>("linkDb");
    QCOMPARE(dialog.values().linkDb, "");
    box->setChecked(true);
    QCOMPARE(dialog.values().linkDb, "sqlite:" + fixture.directory.filePath("linkdb.db"));
    box->findChild<QLineEdit *>("linkDbFile")->clear();
    QVERIFY(!dialog.findChild<QPushButton *>("ok")->isEnabled());
    box->findChild<QComboBox *>("linkDbKind")->setCurrentIndex(1);
    QVERIFY(!dialog.findChild<QPushButton *>("ok")->isEnabled());
    box->findChild<QLineEdit *>("linkDbDatabase")->setText("links");
    QCOMPARE(dialog.findChild<QLabel *>("problem")->text(), "");
    QVERIFY(dialog.findChild<QPushButton *>("ok")->isEnabled());
    QCOMPARE(dialog.values().linkDb, "postgresql:///links");
    fixture.settings->setValues(dialog.values());
    fixture.settings->setLinkDbGroup("g");
    const WorkbenchSettings again(fixture.directory.filePath("workbench.ini"));
    QCOMPARE(again.values().linkDb, "postgresql:///links");
    QCOMPARE(again.linkDbGroup(), "g");
}

void tst_LinkDb::connectsInTheBackground()
{
    const WindowFixture fixture;
    QVERIFY(!pooled("LinkDbLogin")->isVisible());
    QVERIFY(!fixture.action("proveNumbers")->isVisible());
    setAddress(fixture, "sqlite:" + fixture.directory.filePath("link.db"));
    QCOMPARE(fixture.window->linkDb()->state(), LinkDbHost::Connecting);
    QVERIFY(!pooled("CallLinkMgr")->isEnabled());
    QTRY_COMPARE(fixture.window->linkDb()->state(), LinkDbHost::Connected);
    QVERIFY(PLinkDbC::instance() == fixture.window->linkDb()->linkDb());
    QVERIFY(PLinkDbC::instance()->isOpen());
    for (const char *name : {"LinkDbLogin", "LinkDbChangeGroup", "CallLinkMgr"})
        QVERIFY2(pooled(name)->isEnabled() && pooled(name)->isVisible(), name);
    QVERIFY(!pooled("LinkDbBackToMgr")->isEnabled());
    QVERIFY(pooled("LinkDbBackToMgr")->toolTip().contains("wartet auf keine Auswahl"));
    QVERIFY(pooled("LinkDbAddToDb")->toolTip().contains("kein Projekt gewählt"));
    QVERIFY(fixture.action("proveNumbers")->isVisible());
    QVERIFY(!fixture.action("proveNumbers")->isEnabled());
    setAddress(fixture, QString());
    QCOMPARE(fixture.window->linkDb()->state(), LinkDbHost::NotSet);
    QVERIFY(!PLinkDbC::instance()->isOpen());
    QVERIFY(!pooled("CallLinkMgr")->isVisible());
}

void tst_LinkDb::saysWhyItIsNotConnected()
{
    const WindowFixture fixture;
    setAddress(fixture, "sqlite:" + fixture.directory.path());
    QTRY_COMPARE(fixture.window->linkDb()->state(), LinkDbHost::Failed);
    QVERIFY(pooled("CallLinkMgr")->toolTip().contains(fixture.directory.path()));
    QVERIFY(!pooled("CallLinkMgr")->isEnabled());
    QVERIFY(pooled("LinkDbLogin")->isEnabled());
    setAddress(fixture, "other://x");
    QCOMPARE(fixture.window->linkDb()->state(), LinkDbHost::Failed);
}

void tst_LinkDb::logsIn()
{
    const WindowFixture fixture;
    connectFile(fixture);
    ModalScript script;
    script.then([](QWidget *dialog) {
        QVERIFY(!dialog->findChild<QLineEdit *>("password")->isVisible());
        auto *user = dialog->findChild<QLineEdit *>("user");
        user->selectAll();
        QTest::keyClicks(user, "anna");
        QTest::mouseClick(dialog->findChild<QPushButton *>("ok"), Qt::LeftButton);
    });
    pooled("LinkDbLogin")->trigger();
    QVERIFY(script.isDone());
    QCOMPARE(PLinkDbC::instance()->userName(), "anna");
}

void tst_LinkDb::logsInAtAServer()
{
    m_server = std::make_unique<PostgresServer>();
    QVERIFY2(m_server->isRunning(), qPrintable(m_server->problem()));
    const QString database = LinkDbSettings::fromText(m_server->newDatabase()).database;
    qputenv("PGPASSFILE", "/nonexistent");
    const WindowFixture fixture;
    setAddress(fixture, m_server->loopbackAddress(database));
    QTRY_COMPARE_WITH_TIMEOUT(fixture.window->linkDb()->state(), LinkDbHost::Failed, 20'000);
    const auto logIn = [](const QString &password) {
        ModalScript script;
        script.then([password](QWidget *dialog) {
            QCOMPARE(dialog->findChild<QLineEdit *>("user")->text(), "keeper");
            QTest::keyClicks(dialog->findChild<QLineEdit *>("password"), password);
            QTest::mouseClick(dialog->findChild<QPushButton *>("ok"), Qt::LeftButton);
        });
        pooled("LinkDbLogin")->trigger();
        QVERIFY(script.isDone());
    };
    logIn("wrong");
    QTRY_COMPARE_WITH_TIMEOUT(fixture.window->linkDb()->state(), LinkDbHost::Failed, 20'000);
    logIn("secret");
    QTRY_COMPARE_WITH_TIMEOUT(fixture.window->linkDb()->state(), LinkDbHost::Connected, 20'000);
    QCOMPARE(PLinkDbC::instance()->userName(), "keeper");
    logIn("wrong"); // the connection that is there stays
    QTRY_COMPARE_WITH_TIMEOUT(fixture.window->linkDb()->state(), LinkDbHost::Connected, 20'000);
    QVERIFY(!fixture.window->linkDb()->problem().isEmpty());
    QCOMPARE(PLinkDbC::instance()->executeCountStatement("SELECT COUNT(*) FROM plm_document"), 0);
    QFile file(fixture.directory.filePath("workbench.ini"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(!file.readAll().contains("secret"));
}

void tst_LinkDb::choosesGroup()
{
    const WindowFixture fixture;
    connectFile(fixture);
    QVERIFY(PLinkDbC::instance()->setGroupInformation("design", "K", "v"));
    ModalScript script;
    script.then([](QWidget *dialog) {
        auto *input = qobject_cast<QInputDialog *>(dialog);
        QCOMPARE(input->comboBoxItems(), QStringList({"design", "standard"}));
        QCOMPARE(input->textValue(), "standard");
        input->setTextValue("design");
        input->accept();
    });
    pooled("LinkDbChangeGroup")->trigger();
    QVERIFY(script.isDone());
    QCOMPARE(PLinkDbC::instance()->groupInformation("K"), "v");
    QCOMPARE(fixture.settings->linkDbGroup(), "design");
}

void tst_LinkDb::listsLinks()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    connectDatabase(fixture);
    addDocument(fixture, "N1", 3);
    addDocument(fixture, "N_2", 4);
    addDocument(fixture, "N32", 5);
    pooled("CallLinkMgr")->trigger();
    auto *dialog = fixture.window->findChild<LinkListDialog *>();
    auto *list = dialog->findChild<QTreeWidget *>("links");
    QCOMPARE(texts(list, 0), QStringList({"N1", "N_2", "N32"}));
    QCOMPARE(texts(list, 2), QStringList({"3", "4", "5"}));
    // Signs with a meaning in SQL are looked for as they are, capitals like others.
    auto *search = dialog->findChild<QLineEdit *>("search");
    QTest::keyClicks(search, "n_2");
    QTest::keyClick(search, Qt::Key_Return);
    QCOMPARE(texts(list, 0), QStringList{"N_2"});
    search->clear();
    QCOMPARE(list->topLevelItemCount(), 3);
    list->setCurrentItem(list->topLevelItem(0));
    QTest::mouseClick(dialog->findChild<QPushButton *>("show"), Qt::LeftButton);
    QCOMPARE(fixture.window->editor()->currentPath(), din933);
    QCOMPARE(fixture.window->editor()->currentLine(), 3);
}

void tst_LinkDb::listTellsALostConnection()
{
    const WindowFixture fixture;
    if (!m_server)
        m_server = std::make_unique<PostgresServer>();
    QVERIFY2(m_server->isRunning(), qPrintable(m_server->problem()));
    setAddress(fixture, m_server->newDatabase());
    QTRY_COMPARE_WITH_TIMEOUT(fixture.window->linkDb()->state(), LinkDbHost::Connected, 20'000);
    addDocument(fixture, "N1", 3);
    pooled("CallLinkMgr")->trigger();
    auto *dialog = fixture.window->findChild<LinkListDialog *>();
    auto *search = dialog->findChild<QLineEdit *>("search");
    m_server->kill();
    {
        const auto sink = std::make_shared<PScriptedMessageSink>();
        const PMessageSinkScope scope(sink);
        QTest::keyClick(search, Qt::Key_Return);
        QCOMPARE(sink->texts().size(), 1);
        QCOMPARE(texts(dialog->findChild<QTreeWidget *>("links"), 0), QStringList{"N1"});
    }
    QVERIFY(m_server->start());
    QTest::keyClicks(search, "n");
    QTest::keyClick(search, Qt::Key_Return);
    QCOMPARE(texts(dialog->findChild<QTreeWidget *>("links"), 0), QStringList{"N1"});
}

void tst_LinkDb::handsSelectionOver()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    connectDatabase(fixture);
    addDocument(fixture, "N1", 3);
    QVERIFY(fixture.window->editor()->selectProject(din933));
    QVERIFY(fixture.window->editor()->selectLine(7));
    pooled("CallLinkMgr")->trigger();
    const QPointer<LinkListDialog> dialog = fixture.window->findChild<LinkListDialog *>();
    auto *list = dialog->findChild<QTreeWidget *>("links");
    QVERIFY(!dialog->findChild<QPushButton *>("move")->isEnabled());
    list->setCurrentItem(list->topLevelItem(0));
    QTest::mouseClick(dialog->findChild<QPushButton *>("move"), Qt::LeftButton);
    QVERIFY(!dialog->isVisible());
    QTRY_VERIFY(pooled("LinkDbBackToMgr")->isEnabled());
    QVERIFY(pooled("LinkDbCancelBackToMgr")->isEnabled());
    pooled("LinkDbCancelBackToMgr")->trigger();
    QVERIFY(dialog->isVisible());
    QVERIFY(!pooled("LinkDbBackToMgr")->isEnabled());
    QVERIFY(!pooled("LinkDbCancelBackToMgr")->isEnabled());
    QCOMPARE(texts(list, 2), QStringList{"3"});
    QTest::mouseClick(dialog->findChild<QPushButton *>("move"), Qt::LeftButton);
    pooled("LinkDbBackToMgr")->trigger();
    QVERIFY(dialog->isVisible());
    QCOMPARE(texts(list, 1), QStringList{din933});
    QCOMPARE(texts(list, 2), QStringList{"7"});
    QVERIFY(!PLinkDbC::instance()->isPending());
}

void tst_LinkDb::restoresDeleted()
{
    const WindowFixture fixture;
    connectDatabase(fixture);
    addDocument(fixture, "N1", 3);
    addDocument(fixture, "N2", 4);
    QVERIFY(PLinkDbC::instance()->executeInsertStatement(
        "DELETE FROM plm_document WHERE PDMID1 = 'N1'"));
    QVERIFY(PLinkDbC::instance()->executeInsertStatement(
        "DELETE FROM plm_document WHERE PDMID1 = 'N2'"));
    pooled("CallLinkMgr")->trigger();
    auto *dialog = fixture.window->findChild<LinkListDialog *>();
    auto *list = dialog->findChild<QTreeWidget *>("links");
    QCOMPARE(list->topLevelItemCount(), 0);
    for (const QStringList &expected : {QStringList{"N2"}, QStringList{"N1", "N2"}}) {
        ModalScript script;
        script.thenClick("answerAccept");
        QTest::mouseClick(dialog->findChild<QPushButton *>("restore"), Qt::LeftButton);
        QVERIFY(script.isDone());
        QCOMPARE(texts(list, 0), expected);
    }
}

void tst_LinkDb::showsDocumentsOfTheLine()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    connectDatabase(fixture);
    QVERIFY(fixture.window->editor()->selectProject(din933));
    QVERIFY(fixture.window->editor()->selectLine(3));
    QTRY_VERIFY(pooled("LinkDbAddToDb")->isEnabled());
    ModalScript script;
    script.then([](QWidget *dialog) {
        QCOMPARE(dialog->objectName(), "DocumentListDialog");
        QCOMPARE(dialog->findChild<QTreeWidget *>("tvDocuments")->topLevelItemCount(), 0);
        auto *create = dialog->findChild<QPushButton *>("btnCreate");
        QVERIFY(create->isEnabled());
        QTimer::singleShot(0, create, &QPushButton::click);
    });
    script.then([](QWidget *form) {
        for (QLineEdit *const edit : form->findChildren<QLineEdit *>()) {
            if (edit->property("field").toString() == "PDMID1")
                edit->setText("N9");
        }
        static_cast<QDialog *>(form)->accept();
    });
    script.then([](QWidget *dialog) {
        QCOMPARE(dialog->findChild<QTreeWidget *>("tvDocuments")->topLevelItemCount(), 1);
        static_cast<QDialog *>(dialog)->accept();
    });
    pooled("LinkDbAddToDb")->trigger();
    QVERIFY(script.isDone());
    PLinkDbQueryCacheC rows(PLinkDbC::instance()->executeSelectStatement(
        "SELECT PDMID1, PRJ_PATH, LINE_ID FROM plm_document"));
    QVERIFY(rows.next());
    QCOMPARE(rows.value(0).toString(), "N9");
    QCOMPARE(rows.value(1).toString(), din933);
    QCOMPARE(rows.value(2).toInt(), 3);
    QVERIFY(!PLinkDbC::instance()->isPending());
}

void tst_LinkDb::provesNumbers()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    connectDatabase(fixture);
    addDocument(fixture, "N1", 3);
    addDocument(fixture, "N2", 99'999);
    QVERIFY(fixture.action("proveNumbers")->isEnabled());
    fixture.action("proveNumbers")->trigger();
    auto *dialog = fixture.window->findChild<LinkProofDialog *>();
    QVERIFY(dialog);
    auto *list = dialog->findChild<QTreeWidget *>("findings");
    QCOMPARE(list->topLevelItemCount(), 4);
    QCOMPARE(list->topLevelItem(0)->text(0), "Zeile ausgelaufen oder nicht da: 1");
    QCOMPARE(list->topLevelItem(0)->child(0)->text(0), "N2");
    QCOMPARE(list->topLevelItem(0)->child(0)->text(1), din933 + ":99999");
    Q_EMIT dialog->lineWanted(din933, 3);
    QCOMPARE(fixture.window->editor()->currentLine(), 3);
}

void tst_LinkDb::goesAtOnceWhileAServerDoesNotAnswer_data()
{
    QTest::addColumn<bool>("isConnected");
    QTest::newRow("connecting") << false;
    QTest::newRow("reading in the background") << true;
}

void tst_LinkDb::goesAtOnceWhileAServerDoesNotAnswer()
{
    QFETCH(bool, isConnected);
    if (!m_server)
        m_server = std::make_unique<PostgresServer>();
    QVERIFY2(m_server->isRunning(), qPrintable(m_server->problem()));
    const QString address = m_server->newDatabase();
    WindowFixture fixture;
    std::jthread reads;
    if (isConnected) {
        setAddress(fixture, address);
        QTRY_COMPARE_WITH_TIMEOUT(fixture.window->linkDb()->state(), LinkDbHost::Connected, 20'000);
    }
    m_server->halt();
    if (isConnected) {
        reads = std::jthread([linkDb = PLinkDbC::instance()] {
            (void)linkDb->executeCountStatement("SELECT COUNT(*) FROM plm_document");
        });
    } else {
        setAddress(fixture, address);
        QCOMPARE(fixture.window->linkDb()->state(), LinkDbHost::Connecting);
    }
    QTest::qWait(500);
    QElapsedTimer time;
    time.start();
    fixture.closeWindow();
    if (isConnected)
        reads.join();
    QVERIFY2(time.elapsed() < 8000, qPrintable(QString::number(time.elapsed())));
    const bool isLeft = PLinkDbC::isThreadLeft();
    m_server->resume();
    QVERIFY(isLeft);
    QVERIFY(!PLinkDbC::instance()->isOpen());
    QTRY_VERIFY_WITH_TIMEOUT(!PLinkDbC::isThreadLeft(), 20'000);
}

void tst_LinkDb::takesAnotherWhileAServerDoesNotAnswer()
{
    if (!m_server)
        m_server = std::make_unique<PostgresServer>();
    QVERIFY2(m_server->isRunning(), qPrintable(m_server->problem()));
    const QString address = m_server->newDatabase();
    const WindowFixture fixture;
    m_server->halt();
    setAddress(fixture, address);
    QTest::qWait(100);
    QElapsedTimer time;
    time.start();
    connectFile(fixture);
    QVERIFY2(time.elapsed() < 8000, qPrintable(QString::number(time.elapsed())));
    m_server->resume();
    QTRY_VERIFY_WITH_TIMEOUT(!PLinkDbC::isThreadLeft(), 20'000);
    QCOMPARE(fixture.window->linkDb()->state(), LinkDbHost::Connected);
    QVERIFY(PLinkDbC::instance()->isOpen());
}

void tst_LinkDb::connectWithDocument(WindowFixture &fixture)
{
    fixture.open(fixture.mappingFile());
    if (!m_server)
        m_server = std::make_unique<PostgresServer>();
    QVERIFY2(m_server->isRunning(), qPrintable(m_server->problem()));
    // What does not answer when it was called off is waited for no longer than this.
    setAddress(fixture, m_server->newDatabase() + "&connect_timeout=1");
    QTRY_COMPARE_WITH_TIMEOUT(fixture.window->linkDb()->state(), LinkDbHost::Connected, 20'000);
    addDocument(fixture, "N1", 3);
    const QString version = readProjectVersion(WindowFixture::roots().source + '/' + din933);
    const PRefPtr<PLinkDbC> linkDb = PLinkDbC::instance();
    QVERIFY(linkDb->executeInsertStatement("UPDATE plm_document SET VERSION = " +
                                           linkDb->literal(version)) &&
            linkDb->commit());
    QVERIFY(fixture.window->editor()->selectProject(din933));
    QVERIFY(fixture.window->editor()->selectLine(3));
    QTRY_VERIFY(pooled("LinkDbAddToDb")->isEnabled());
}

void tst_LinkDb::unansweredCommitOfTheDialogCanBeCancelled()
{
    WindowFixture fixture;
    connectWithDocument(fixture);
    ModalScript script;
    bool isPending = false;
    script.then([&](QWidget *dialog) {
        auto *const list = dialog->findChild<QTreeWidget *>("tvDocuments");
        list->setCurrentItem(list->topLevelItem(0));
        QTest::mouseClick(dialog->findChild<QPushButton *>("btnDelete"), Qt::LeftButton);
        isPending = PLinkDbC::instance()->isPending();
        m_server->halt();
        static_cast<QDialog *>(dialog)->accept();
    });
    Canceller canceller;
    pooled("LinkDbAddToDb")->trigger();
    m_server->resume();
    QVERIFY(script.isDone());
    QVERIFY(isPending);
    // In the window's own bar.
    QCOMPARE(canceller.clicked(), QStringList{"MainWindow: Änderungen werden in die Linkdatenbank "
                                              "geschrieben"});
    QVERIFY(!PLinkDbC::instance()->isPending());
    const QString log = fixture.window->findChild<LogWindow *>()->text();
    QVERIFY2(log.contains("ungewiss"), qPrintable(log));
    QVERIFY(PLinkDbC::instance()->commit()); // takes the connection up again
    QTRY_VERIFY_WITH_TIMEOUT(!PLinkDbC::isThreadLeft(), 20'000);
}

void tst_LinkDb::unansweredStatementOfTheDialogCanBeCancelled()
{
    WindowFixture fixture;
    connectWithDocument(fixture);
    ModalScript script;
    Canceller canceller;
    script.then([&](QWidget *dialog) {
        auto *const list = dialog->findChild<QTreeWidget *>("tvDocuments");
        list->setCurrentItem(list->topLevelItem(0));
        m_server->halt();
        QTest::mouseClick(dialog->findChild<QPushButton *>("btnDelete"), Qt::LeftButton);
        m_server->resume();
        static_cast<QDialog *>(dialog)->reject();
    });
    pooled("LinkDbAddToDb")->trigger();
    QVERIFY(script.isDone());
    // The dialog bars the window's bar.
    QVERIFY(!canceller.clicked().isEmpty());
    QCOMPARE(canceller.clicked().first(), "ProgressWindow: Die Linkdatenbank arbeitet");
    QTRY_VERIFY_WITH_TIMEOUT(!PLinkDbC::isThreadLeft(), 20'000);
}

void tst_LinkDb::closingWithChangesCanBeCancelled()
{
    WindowFixture fixture;
    connectWithDocument(fixture);
    QVERIFY(PLinkDbC::instance()->executeInsertStatement("DELETE FROM plm_document"));
    m_server->halt();
    ModalScript script;
    script.then([&](QWidget *dialog) {
        script.note(dialog);
        static_cast<QDialog *>(dialog)->accept();
    });
    Canceller canceller;
    QVERIFY(fixture.window->close());
    QVERIFY(script.isDone());
    QCOMPARE(script.texts,
             QStringList{"Änderungen in der Linkdatenbank sind vielleicht verloren."});
    QCOMPARE(canceller.clicked(), QStringList{"MainWindow: Änderungen werden in die Linkdatenbank "
                                              "geschrieben"});
    QVERIFY(!fixture.window->isVisible());
    const bool isLeft = PLinkDbC::isThreadLeft();
    m_server->resume();
    QVERIFY(isLeft);
    QTRY_VERIFY_WITH_TIMEOUT(!PLinkDbC::isThreadLeft(), 20'000);
}

QTEST_MAIN(tst_LinkDb)
#include "tst_LinkDb.moc"
