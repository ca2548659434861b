#include "ModalScript.h"
#include "WindowFixture.h"

#include "../../support/SubversionServer.h"

#include <workbench/window/document/RepositoryLoginDialog.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/look/PartView.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/message/LogWindow.h>
#include <workbench/window/settings/RepositoryBox.h>
#include <workbench/window/settings/SettingsDialog.h>
#include <workbench/window/settings/WorkbenchSettings.h>

#include <core/access/AddressedFiles.h>
#include <geomcore/index/DisplayIndexC.h>
#include <geomcore/index/IndexTreeC.h>
#include <geomcoregui/search/TileItemView.h>
#include <mapping/view/CatalogMappingWidget.h>
#include <selection/dlgSearchSelect.h>

#include <QAction>
#include <QDirIterator>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>
#include <QTreeView>

/// The workbench with the example's new release in a repository.
class tst_RemoteTargets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void targetsComeFromTheRepository();
    void partViewShowsTheRepositorys();
    void isSwitchedByTheSettings();
    void refreshAsksForWhatIsNew();
    void searchFindsProjectsOfTheRepository();
    void aProjectIsPickedInTheTree();
    void searchWithoutServer();
    void aServerThatIsGoneIsTold();
    void asksForALogin();
    void aLoginMayBeRefused();
    void serversAreChecked_data();
    void serversAreChecked();
    void settingsAreKept();

private:
    [[nodiscard]] WorkbenchSettings::Values remote(bool isUsed = true) const;
    [[nodiscard]] QStringList fetched() const;
    void open();
    /// Types words in the dialog and waits for what is found.
    static bool find(dlgSearchSelect &dialog, const QString &words);

    static constexpr const char *project = "standardparts/screws/iso4762.prj";
    std::unique_ptr<SubversionServer> m_server;
    std::unique_ptr<WindowFixture> m_fixture;
};

void tst_RemoteTargets::initTestCase()
{
    m_server = std::make_unique<SubversionServer>();
    QVERIFY2(m_server->problem().isEmpty(), qPrintable(m_server->problem()));
    QVERIFY2(m_server->commit(WindowFixture::roots().target + "/standardparts"),
             qPrintable(m_server->problem()));
}

void tst_RemoteTargets::init()
{
    QVERIFY2(m_server->start(), qPrintable(m_server->problem()));
    m_fixture = std::make_unique<WindowFixture>();
}

void tst_RemoteTargets::cleanup()
{
    m_fixture.reset();
    m_server->stop();
}

WorkbenchSettings::Values tst_RemoteTargets::remote(bool isUsed) const
{
    WorkbenchSettings::Values values = m_fixture->settings->values();
    values.repository.isUsed = isUsed;
    values.repository.servers = {"standardparts = " + m_server->url()};
    return values;
}

/// Names of the projects that lie in the cache.
QStringList tst_RemoteTargets::fetched() const
{
    QStringList names;
    QDirIterator files(m_fixture->settings->repositoryCache(), {"*.prj"}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext())
        names.append(QFileInfo(files.next()).fileName());
    return names;
}

void tst_RemoteTargets::open()
{
    m_fixture->open(m_fixture->mappingFile());
    QVERIFY(m_fixture->window->editor()->selectProject(project));
    QApplication::processEvents();
}

void tst_RemoteTargets::targetsComeFromTheRepository()
{
    m_fixture->settings->setValues(remote());
    open();
    QVERIFY(fetched().contains("iso4762.prj"));
    const QString log = m_fixture->window->log()->text();
    QVERIFY2(!log.contains("svn://") && !log.contains("iso4762"), qPrintable(log));
}

void tst_RemoteTargets::partViewShowsTheRepositorys()
{
    m_fixture->settings->setValues(remote());
    open();
    Q_EMIT m_fixture->window->editor()->targetProjectWanted(project);
    const QList<PartView *> views = m_fixture->window->findChildren<PartView *>();
    QCOMPARE(views.size(), 1);
    const QString file = views.first()->findChild<QLabel *>("file")->text();
    QVERIFY2(file.startsWith(m_fixture->settings->repositoryCache()), qPrintable(file));
}

void tst_RemoteTargets::isSwitchedByTheSettings()
{
    m_fixture->settings->setValues(remote(false));
    open();
    QVERIFY(fetched().isEmpty());
    const QWidget *const before = m_fixture->window->editor()->editor();
    m_fixture->settings->setValues(remote(true));
    QVERIFY(m_fixture->window->editor()->editor() != before);
    QCOMPARE(m_fixture->window->editor()->currentPath(), project);
    QVERIFY(fetched().contains("iso4762.prj"));
    QVERIFY(AddressedFiles::installed());
    m_fixture->settings->setValues(remote(false));
    QVERIFY(!AddressedFiles::installed());
}

void tst_RemoteTargets::refreshAsksForWhatIsNew()
{
    m_fixture->settings->setValues(remote());
    open();
    const qsizetype before = fetched().size();
    QTemporaryDir files;
    QVERIFY(QDir(files.path()).mkpath("screws"));
    QFile file(files.filePath("screws/iso4762.json"));
    QVERIFY(QFile::copy(WindowFixture::roots().target + "/standardparts/screws/iso4762.json",
                        file.fileName()));
    QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner));
    QVERIFY(file.open(QIODevice::Append));
    file.write("\n");
    file.close();
    QVERIFY2(m_server->commit(files.path()), qPrintable(m_server->problem()));
    m_fixture->press(Qt::Key_F5);
    QVERIFY(fetched().size() > before); // the new revision lies beside the former one
}

bool tst_RemoteTargets::find(dlgSearchSelect &dialog, const QString &words)
{
    dialog.setCloseAfterSelect(true);
    dialog.show();
    auto *const field = dialog.findChild<QLineEdit *>("searchWords");
    QTest::keyClicks(field, words);
    QTest::keyClick(field, Qt::Key_Return);
    auto *const view = dialog.findChild<TileItemView *>("searchResults");
    return QTest::qWaitFor([view] { return view->model()->rowCount() > 0; }, 20000);
}

void tst_RemoteTargets::searchFindsProjectsOfTheRepository()
{
    m_fixture->settings->setValues(remote());
    m_fixture->open(m_fixture->mappingFile());
    dlgSearchSelect dialog(nullptr, false, true);
    QVERIFY(find(dialog, "screws/iso4762"));
    auto *const view = dialog.findChild<TileItemView *>("searchResults");
    QCOMPARE(view->model()->rowCount(), 1);
    m_server->stop(); // what was found needs no server to be chosen
    QTest::keyClick(dialog.findChild<QLineEdit *>("searchWords"), Qt::Key_Down);
    QTest::mouseClick(dialog.findChild<QPushButton *>("selectButton"), Qt::LeftButton);
    QVERIFY(dialog.getSelectedItem());
    QVERIFY(m_server->start());
    const DisplayIndexC path(DisplayIndexC::Path, DisplayIndexC::CatalogRelative);
    QCOMPARE(dialog.getSelectedItem()->data(path).toString(), project);
    Q_EMIT m_fixture->window->editor()->targetProjectWanted(project);
    const auto *const part = m_fixture->window->findChild<PartView *>();
    QVERIFY(part);
    const QString file = part->findChild<QLabel *>("file")->text();
    QVERIFY2(file.startsWith(m_fixture->settings->repositoryCache()), qPrintable(file));
}

void tst_RemoteTargets::aProjectIsPickedInTheTree()
{
    m_fixture->settings->setValues(remote());
    m_fixture->open(m_fixture->mappingFile());
    dlgSearchSelect dialog(nullptr, false, true);
    dialog.show();
    auto *const tabs = dialog.findChild<QTabWidget *>();
    tabs->setCurrentIndex(1);
    auto *const tree = dialog.findChild<QTreeView *>("catalogIndexTree");
    tree->setFocus();
    tree->setCurrentIndex(tree->model()->index(0, 0));
    QCOMPARE(tree->currentIndex().data().toString(), "standardparts");
    // A server that is gone is told below the tree; opening it once more tries again.
    m_server->stop();
    QTest::keyClick(tree, Qt::Key_Right);
    const auto *const problem = dialog.findChild<QLabel *>("catalogProblem");
    QVERIFY(problem && problem->isVisibleTo(&dialog));
    QVERIFY2(problem->text().contains(m_server->url() + "/trunk/catalog antwortet nicht"),
             qPrintable(problem->text()));
    QVERIFY(m_server->start());
    m_fixture->press(Qt::Key_F5);
    QTest::keyClick(tree, Qt::Key_Left);
    QTest::keyClick(tree, Qt::Key_Right);
    QVERIFY(!problem->isVisibleTo(&dialog));
    tree->keyboardSearch("screws");
    QTest::keyClick(tree, Qt::Key_Right);
    tree->keyboardSearch(QString()); // begins anew
    tree->keyboardSearch("iso4762");
    QTest::mouseClick(dialog.findChild<QPushButton *>("selectButton"), Qt::LeftButton);
    QVERIFY(dialog.getSelectedItem());
    const DisplayIndexC path(DisplayIndexC::Path, DisplayIndexC::CatalogRelative);
    QCOMPARE(dialog.getSelectedItem()->data(path).toString(), project);
    // Without the setting the tree is that of the directory again.
    QVERIFY(IndexTreeC::instance()->getRoot()->isRemote());
    m_fixture->settings->setValues(remote(false));
    QVERIFY(!IndexTreeC::instance()->getRoot()->isRemote());
}

void tst_RemoteTargets::searchWithoutServer()
{
    m_fixture->settings->setValues(remote());
    m_fixture->open(m_fixture->mappingFile());
    {
        dlgSearchSelect dialog(nullptr, false, true);
        QVERIFY(find(dialog, "iso4762"));
        const auto *const outdated = dialog.findChild<QLabel *>("searchOutdated");
        QVERIFY(!outdated->isVisibleTo(&dialog));
    }
    m_server->stop();
    m_fixture->press(Qt::Key_F5);
    dlgSearchSelect dialog(nullptr, false, true);
    QVERIFY(find(dialog, "iso4762"));
    const auto *const outdated = dialog.findChild<QLabel *>("searchOutdated");
    const auto *const again = dialog.findChild<QPushButton *>("searchAgain");
    QTRY_VERIFY(outdated->isVisibleTo(&dialog));
    QVERIFY2(outdated->text().startsWith("Gesucht wird in dem, was auf dieser Maschine liegt.\n"
                                         "Das Repository " +
                                         m_server->url()),
             qPrintable(outdated->text()));
    QVERIFY(again->isVisibleTo(&dialog));
    QVERIFY(m_server->start());
    QTest::mouseClick(dialog.findChild<QPushButton *>("searchAgain"), Qt::LeftButton);
    QTRY_VERIFY(!outdated->isVisibleTo(&dialog));
    QVERIFY(!again->isVisibleTo(&dialog));
}

void tst_RemoteTargets::aServerThatIsGoneIsTold()
{
    m_server->stop();
    m_fixture->settings->setValues(remote());
    open();
    const QString log = m_fixture->window->log()->text();
    QVERIFY2(log.contains("Das Repository " + m_server->url() + "/trunk/catalog antwortet nicht"),
             qPrintable(log));
}

void tst_RemoteTargets::asksForALogin()
{
    QVERIFY(m_server->demandLogin("eva", "geheim"));
    m_fixture->settings->setValues(remote());
    ModalScript script;
    QString url;
    script.then([&](QWidget *dialog) {
        url = dialog->findChild<QLabel *>("url")->text();
        QVERIFY(!dialog->findChild<QPushButton *>("ok")->isEnabled());
        QTest::keyClicks(dialog->findChild<QLineEdit *>("user"), "eva");
        QTest::keyClicks(dialog->findChild<QLineEdit *>("password"), "falsch");
        QTest::mouseClick(dialog->findChild<QPushButton *>("ok"), Qt::LeftButton);
    });
    script.then([&](QWidget *dialog) {
        QCOMPARE(dialog->findChild<QLineEdit *>("user")->text(), "eva");
        auto *password = dialog->findChild<QLineEdit *>("password");
        QCOMPARE(password->text(), QString());
        QCOMPARE(password->echoMode(), QLineEdit::Password);
        QTest::keyClicks(password, "geheim");
        QTest::keyClick(password, Qt::Key_Return);
    });
    open();
    QVERIFY(script.isDone());
    QCOMPARE(url, m_server->url() + "/trunk/catalog verlangt eine Anmeldung.");
    QVERIFY(fetched().contains("iso4762.prj"));
    QFile settings(m_fixture->settings->store()->fileName());
    QVERIFY(settings.open(QIODevice::ReadOnly));
    QVERIFY(!settings.readAll().contains("geheim"));
}

void tst_RemoteTargets::aLoginMayBeRefused()
{
    QVERIFY(m_server->demandLogin("eva", "geheim"));
    m_fixture->settings->setValues(remote());
    ModalScript script;
    script.thenClick("cancel");
    open();
    QCOMPARE(script.seen, QStringList("RepositoryLoginDialog"));
    QVERIFY(m_fixture->window->log()->text().contains(m_server->url()));
}

void tst_RemoteTargets::serversAreChecked_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isUsed");
    QTest::addColumn<QString>("problem");
    const QString problem = "Server, Zeile %1: \"%2\" ist nicht von der Form "
                            "\"Katalog = svn://Server:Port/Pfad\".";
    QTest::newRow("none") << "" << true << "";
    QTest::newRow("good") << "a = svn://h:1/r\n\nb=svn://h" << true << "";
    QTest::newRow("no server") << "a = svn://h\nb" << true << problem.arg("2", "b");
    QTest::newRow("no catalog") << "= svn://h" << true << problem.arg("1", "= svn://h");
    QTest::newRow("tunnel") << "a = svn+ssh://h" << true << problem.arg("1", "a = svn+ssh://h");
    QTest::newRow("markup") << "<b>%1" << true << problem.arg("1", "<b>%1");
    QTest::newRow("not used") << "nonsense" << false << "";
}

void tst_RemoteTargets::serversAreChecked()
{
    QFETCH(QString, text);
    QFETCH(bool, isUsed);
    SettingsDialog dialog(m_fixture->settings->values(), QString(), nullptr);
    dialog.show();
    auto *box = dialog.findChild<RepositoryBox *>("repository");
    auto *servers = dialog.findChild<QPlainTextEdit *>("repositoryServers");
    QVERIFY(!box->isChecked());
    QVERIFY(!servers->isEnabled());
    box->setChecked(true);
    servers->setPlainText(text);
    box->setChecked(isUsed);
    QFETCH(QString, problem);
    QCOMPARE(dialog.findChild<QLabel *>("problem")->text(), problem);
    QCOMPARE(dialog.findChild<QPushButton *>("ok")->isEnabled(), problem.isEmpty());
}

void tst_RemoteTargets::settingsAreKept()
{
    const QString file = m_fixture->directory.filePath("kept.ini");
    WorkbenchSettings::Values values;
    values.repository = {true, {"a = svn://h", "b = svn://i"}, 17, 5, 7};
    WorkbenchSettings(file).setValues(values);
    const WorkbenchSettings kept(file);
    QCOMPARE(kept.values(), values);
    QCOMPARE(kept.repositoryCache(), m_fixture->directory.filePath("repository"));
    SettingsDialog dialog(values, QString(), nullptr);
    QCOMPARE(dialog.values().repository, values.repository);
    const QHash<QString, QString> expected{{"a", "svn://h"}, {"b", "svn://i"}};
    QCOMPARE(values.repository.serversByCatalog(), expected);
}

QTEST_MAIN(tst_RemoteTargets)
#include "tst_RemoteTargets.moc"
