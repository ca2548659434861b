#include "ModalScript.h"
#include "WindowFixture.h"

#include <core/access/AddressedFiles.h>
#include <core/files/DurableFile.h>
#include <core/message/PMessage.h>
#include <geomcore/records/MappingFile.h>
#include <geomcoregui/table/VkTableView.h>
#include <mapping/view/CatalogMappingWidget.h>
#include <workbench/session/document/CatalogRootMemory.h>
#include <workbench/session/document/MappingDocument.h>
#include <workbench/session/journal/SessionRecovery.h>
#include <workbench/window/document/DocumentDesk.h>
#include <workbench/window/document/MappingMaker.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/help/TourOverlay.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/message/LogWindow.h>
#include <workbench/window/message/StatusArea.h>
#include <workbench/window/settings/WorkbenchSettings.h>

#include <QAction>
#include <QCheckBox>
#include <QDesktopServices>
#include <QDialog>
#include <QDir>
#include <QDirIterator>
#include <QDockWidget>
#include <QFileDialog>
#include <QLabel>
#include <QMenu>
#include <QMutex>
#include <QPushButton>
#include <QScopeGuard>
#include <QScreen>
#include <QSpinBox>
#include <QSplitter>
#include <QStackedWidget>
#include <QThread>
#include <QTimer>
#include <QTreeView>
#include <QUrl>

#include <memory>
#include <optional>

namespace {

const QString din933 = QStringLiteral("standardparts/screws/din933.prj");

bool copyFolder(const QString &from, const QString &to)
{
    for (QDirIterator at(from, QDir::Files, QDirIterator::Subdirectories); at.hasNext();) {
        const QString copy = to + at.next().mid(from.size());
        if (!QDir().mkpath(QFileInfo(copy).path()) || !QFile::copy(at.filePath(), copy))
            return false;
    }
    return true;
}

/// Knows on which threads tables are opened.
class TableReaders : public AddressedFiles
{
public:
    QString fileOf(const QString &) override { return {}; }
    bool provide(const QString &file, QString &) override
    {
        if (!file.endsWith(".csv"))
            return true;
        const QMutexLocker lock(&m_mutex);
        const bool inTheLoop = QThread::currentThread() == QCoreApplication::instance()->thread();
        (inTheLoop ? m_inTheLoop : m_beside) += QDir::cleanPath(file);
        return true;
    }
    [[nodiscard]] QStringList beside() const
    {
        const QMutexLocker lock(&m_mutex);
        return m_beside;
    }
    [[nodiscard]] QStringList inTheLoop() const
    {
        const QMutexLocker lock(&m_mutex);
        return m_inTheLoop;
    }

private:
    mutable QMutex m_mutex;
    QStringList m_beside;
    QStringList m_inTheLoop;
};

} // namespace

class tst_MainWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_warnings.emplace(); }
    void cleanupTestCase()
    {
        m_warnings.reset();
        QCOMPARE(ConnectionWarnings::list(), QStringList());
    }

    void startsWithNothingOpen()
    {
        WindowFixture fixture;
        auto *pages = qobject_cast<QStackedWidget *>(fixture.window->centralWidget());
        QCOMPARE(pages->currentWidget()->objectName(), QStringLiteral("WelcomePage"));
        QCOMPARE(fixture.window->windowTitle(), QStringLiteral("Velkworkbench"));
        for (const char *name :
             {"fileSave", "fileSaveAs", "fileClose", "fileRoots", "editUndo", "editRedo",
              "linesConfirm", "linesRemove", "linesRemoveConfirm", "assignAll", "checkRanges",
              "goNext", "goPrevious", "goLine", "viewRefresh"})
            QVERIFY2(!fixture.action(name)->isEnabled(), name);
        for (const char *name : {"fileNew", "fileOpen", "fileExample", "fileQuit", "settings",
                                 "helpTour", "helpAbout"})
            QVERIFY2(fixture.action(name)->isEnabled(), name);
        QVERIFY(!fixture.window->status()->findChild<QLabel *>("statusOpen")->isVisible());
    }

    void isNoLargerThanTheScreen_data()
    {
        QTest::addColumn<QSize>("less");
        QTest::addColumn<bool>("maximized");
        QTest::newRow("fits with its frame") << QSize(10, 40) << false;
        QTest::newRow("too wide") << QSize(9, 40) << true;
        QTest::newRow("too high") << QSize(10, 39) << true;
    }
    void isNoLargerThanTheScreen()
    {
        QFETCH(QSize, less);
        QFETCH(bool, maximized);
        WindowFixture fixture;
        fixture.window->hide();
        fixture.window->setMinimumSize(1, 1); // the screen of tests is small
        fixture.window->resize(fixture.window->screen()->availableSize() - less);
        fixture.window->showOnScreen();
        QVERIFY(fixture.window->isVisible());
        QCOMPARE(fixture.window->isMaximized(), maximized);
    }

    void opensAFile()
    {
        WindowFixture fixture;
        const QString file = fixture.mappingFile();
        fixture.open(file);
        QVERIFY(fixture.window->editor()->isOpen());
        QVERIFY(fixture.window->editor()->isVisible());
        QVERIFY(fixture.window->windowTitle().startsWith("m.json[*] – "));
        QVERIFY(!fixture.window->isWindowModified());
        QCOMPARE(fixture.settings->recentFiles(), QStringList{file});
        const auto recent = fixture.window->findChild<QMenu *>("recentMenu")->actions();
        QCOMPARE(recent.first()->text(), "&1  " + file);
        QCOMPARE(fixture.window->status()->findChild<QLabel *>("statusOpen")->text(),
                 QStringLiteral("Offen: <a href=\"next\">784 Zeilen</a> in 35 Projekten"));
    }

    void theOpenFileIsTheSessionsFile()
    {
        WindowFixture fixture;
        const QString file = fixture.mappingFile();
        fixture.open(file);
        // At once, for a program that crashes never closes its window.
        QCOMPARE(fixture.settings->sessionFile(), file);
        const QString other = fixture.directory.filePath("other.json");
        ModalScript script;
        script.then([&](QWidget *dialog) {
            auto *const files = qobject_cast<QFileDialog *>(dialog);
            QVERIFY(files);
            files->selectFile(other);
            QMetaObject::invokeMethod(files, "accept");
        });
        QVERIFY(fixture.window->desk()->saveAs());
        QCOMPARE(fixture.window->desk()->document()->mappingFile(), other);
        QCOMPARE(fixture.settings->recentFiles(), QStringList({other, file}));
    }

    /// Its tree is there to be seen while the tables of its project are read.
    void opensItsPlaceInTurns()
    {
        WindowFixture fixture;
        const QString file = fixture.mappingFile();
        const QString project = QStringLiteral("standardparts/screws/din933.prj");
        fixture.settings->setPlace(file, {{}, project, 5});
        bool turned = false;
        std::optional<bool> turnedBefore;
        QObject::connect(fixture.window->desk()->document(), &MappingDocument::opened,
                         [&] { QTimer::singleShot(0, [&turned] { turned = true; }); });
        QObject::connect(fixture.window->editor(), &EditorArea::projectSelected,
                         [&] { turnedBefore = turnedBefore.value_or(turned); });
        // The project is laid out in one turn, its line in the next, painted after that.
        EditorArea *const editor = fixture.window->editor();
        QList<bool> paints;
        QList<int> lines;
        QObject::connect(editor, &EditorArea::projectSelected, [&] {
            if (!paints.isEmpty())
                return;
            paints << editor->updatesEnabled();
            QTimer::singleShot(0, [&] { lines << editor->currentLine(); });
        });
        QObject::connect(editor, &EditorArea::linesSelected, [&] {
            if (editor->currentLine() == 5 && paints.size() == 1) {
                paints << editor->updatesEnabled();
                QTimer::singleShot(0, [&] { paints << editor->updatesEnabled(); });
            }
        });
        fixture.open(file);
        QCOMPARE(fixture.window->editor()->currentPath(), project);
        QCOMPARE(fixture.window->editor()->currentLine(), 5);
        QCOMPARE(turnedBefore, std::optional(true));
        QCOMPARE(paints, (QList<bool>{false, false, false}));
        QVERIFY(lines.size() == 1 && lines.first() != 5);
        QVERIFY(fixture.window->editor()->updatesEnabled());
    }

    /// Opening it has nothing to read then.
    void readsTablesOfItsPlaceBesideTheLoop()
    {
        WindowFixture fixture;
        const QString file = fixture.mappingFile();
        // Copies, which nobody had open before.
        const CatalogRoots roots{fixture.directory.filePath("r1"),
                                 fixture.directory.filePath("r2")};
        QVERIFY(copyFolder(WindowFixture::roots().source, roots.source) &&
                copyFolder(WindowFixture::roots().target, roots.target));
        fixture.settings->setPlace(file, {{}, din933, 5});
        const auto readers = std::make_shared<TableReaders>();
        AddressedFiles::install(readers);
        const auto uninstall = qScopeGuard([] { AddressedFiles::install(nullptr); });
        std::optional<QStringList> before;
        QObject::connect(fixture.window->editor(), &EditorArea::projectSelected,
                         [&] { before = before.value_or(readers->beside()); });
        fixture.window->desk()->open({.file = file, .roots = roots});
        QApplication::processEvents();
        QCOMPARE(fixture.window->editor()->currentPath(), din933);
        QVERIFY(before);
        for (const QString &table : {roots.source + "/standardparts/screws/din933.csv",
                                     roots.target + "/standardparts/screws/iso4017.csv"})
            QVERIFY2(before->contains(table), qPrintable(before->join('\n')));
        QCOMPARE(readers->inTheLoop(), QStringList());
    }

    void remembersTheCatalogs()
    {
        WindowFixture fixture;
        const QString file = fixture.mappingFile();
        fixture.open(file);
        QVERIFY(fixture.window->desk()->close());
        // No question for the directories this time.
        QVERIFY(fixture.window->desk()->open({.file = file, .mayAsk = false}));
        QCOMPARE(fixture.window->desk()->document()->catalogRoots(), WindowFixture::roots());
    }

    void offersWhatWasNeverSaved()
    {
        WindowFixture fixture;
        const QString file = fixture.directory.filePath("never.json");
        fixture.settings->setFlag("started", true);
        fixture.settings->setSessionFile(file);
        fixture.window->restoreSession(); // neither a file nor anything left of it
        QVERIFY(!fixture.window->desk()->document()->isOpen());
        QString other;
        {
            // What a crash leaves of a new mapping.
            MappingFile made;
            QVERIFY(made.read(fixture.mappingFile()));
            MappingDocument document(fixture.settings->store());
            other = fixture.directory.filePath("other.json");
            QCOMPARE(document.openNew(made.releases().first(), other),
                     MappingDocument::OpenResult::Opened);
            QVERIFY(!QFile::exists(other));
            for (const auto name : {&SessionRecovery::autosaveFile, &SessionRecovery::journalFile})
                QVERIFY(QFile::copy(name(other), name(file)));
        }
        CatalogRootMemory(fixture.settings->store()).remember(file, WindowFixture::roots());
        ModalScript script;
        script.thenClick("recover");
        fixture.window->restoreSession();
        QVERIFY(script.isDone());
        QVERIFY(fixture.window->desk()->document()->isOpen());
        QCOMPARE(fixture.window->desk()->document()->mappingFile(), file);
        QVERIFY(fixture.window->desk()->document()->counts().lines() > 0);
        QVERIFY(!QFile::exists(file));
    }

    void closedEditorLetsGoOfItsRelease()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        const QPointer<QAbstractItemModel> tree = fixture.window->editor()->editor()->treeModel();
        QVERIFY(tree);
        QVERIFY(fixture.window->desk()->close());
        QVERIFY(!tree);
    }

    void asksForUnknownCatalogs()
    {
        WindowFixture fixture;
        ModalScript script;
        script.thenClick("ok"); // disabled: nothing is entered
        script.then([](QWidget *) {});
        const QString file = fixture.mappingFile();
        QTimer::singleShot(100, fixture.window.get(), [] {
            QWidget *const dialog = QApplication::activeModalWidget();
            QVERIFY(dialog);
            QCOMPARE(dialog->objectName(), QStringLiteral("CatalogRootsDialog"));
            QTest::keyClick(dialog, Qt::Key_Escape);
        });
        QVERIFY(!fixture.window->desk()->open({.file = file}));
        QVERIFY(!fixture.window->desk()->document()->isOpen());
    }

    void tellsWhatCannotBeOpened()
    {
        WindowFixture fixture;
        const QString file = fixture.directory.filePath("gone.json");
        fixture.settings->addRecentFile(file);
        ModalScript script;
        script.thenClick("answerCancel");
        QVERIFY(!fixture.window->desk()->open({.file = file}));
        QVERIFY(script.isDone());
        QCOMPARE(script.texts, QStringList{"Die Datei kann nicht geöffnet werden."});
        QVERIFY(fixture.window->log()->text().contains("gone.json"));
        QVERIFY(fixture.window->log()->isVisible());
        QCOMPARE(fixture.settings->recentFiles(), QStringList());
    }

    void changesSettingsByTheirDialog()
    {
        WindowFixture fixture;
        const QFont font = QApplication::font();
        ModalScript script;
        script.then([&](QWidget *dialog) {
            script.note(dialog);
            dialog->findChild<QSpinBox *>("font")->setValue(150);
            QTest::mouseClick(dialog->findChild<QPushButton *>("ok"), Qt::LeftButton);
        });
        fixture.press(Qt::Key_Comma, Qt::ControlModifier);
        QCOMPARE(script.seen, QStringList{"SettingsDialog"});
        QCOMPARE(fixture.settings->values().fontPercent, 150);
        QCOMPARE(QApplication::font().pointSizeF(), font.pointSizeF() * 1.5);
        WorkbenchSettings::Values values = fixture.settings->values();
        values.fontPercent = 100;
        fixture.settings->setValues(values);
        QCOMPARE(QApplication::font().pointSizeF(), font.pointSizeF());
    }

    void saysWhenATargetProjectIsGone()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        Q_EMIT fixture.window->editor()->targetProjectWanted("standardparts/no/such.prj");
        QApplication::processEvents();
        QVERIFY(fixture.window->log()->text().contains(
            "Das Zielprojekt standardparts/no/such.prj gibt es nicht."));
        QVERIFY(fixture.window->log()->isVisible());
    }

    void showsTheFolderOfATargetProject()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        QDesktopServices::setUrlHandler("file", this, "takeUrl");
        Q_EMIT fixture.window->editor()->targetProjectWanted("standardparts/screws/iso4017.prj");
        const auto *const view = fixture.window->findChild<QDialog *>("PartView");
        QVERIFY(view);
        QTest::mouseClick(view->findChild<QPushButton *>("folder"), Qt::LeftButton);
        QDesktopServices::unsetUrlHandler("file");
        QVERIFY2(m_url.toLocalFile().endsWith("/standardparts/screws"),
                 qPrintable(m_url.toString()));
    }

    void checksValueRanges()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        fixture.action("checkRanges")->trigger();
        QCOMPARE(fixture.window->status()->note(),
                 QStringLiteral("0 Wertebereichszuordnungen geprüft: keine Beanstandung."));
    }

    void asksBeforeClosing_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("closed");
        QTest::addColumn<bool>("saved");
        QTest::newRow("save") << "answerAccept" << true << true;
        QTest::newRow("discard") << "answerRefuse" << true << false;
        QTest::newRow("cancel") << "answerCancel" << false << false;
    }

    void asksBeforeClosing()
    {
        QFETCH(QString, answer);
        QFETCH(bool, closed);
        QFETCH(bool, saved);
        WindowFixture fixture;
        const QString file = fixture.mappingFile();
        fixture.open(file);
        MappingDocument &document = *fixture.window->desk()->document();
        fixture.press(Qt::Key_F8);
        fixture.press(Qt::Key_V);
        QTRY_VERIFY(document.isModified());
        ModalScript script;
        script.thenClick(answer);
        QCOMPARE(fixture.window->close(), closed);
        QVERIFY(script.isDone());
        QCOMPARE(script.texts, QStringList{"Änderungen an m.json speichern?"});
        QCOMPARE(document.isOpen(), !closed);
        QFile written(file);
        QVERIFY(written.open(QIODevice::ReadOnly));
        QCOMPARE(written.readAll().contains(",2]"), saved);
        if (!closed)
            fixture.window->desk()->document()->close();
    }

    void closesWithoutQuestionIfNothingChanged()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        QVERIFY(fixture.window->close());
    }

    void comesBackToWhereTheUserWas()
    {
        WindowFixture fixture;
        const QString file = fixture.mappingFile();
        fixture.open(file);
        QVERIFY(fixture.window->editor()->selectProject(din933));
        QVERIFY(fixture.window->editor()->selectLine(5));
        fixture.window->resize(1111, 777);
        auto *splitter = fixture.window->editor()->findChild<QSplitter *>("catalogSplitter");
        QApplication::processEvents();
        splitter->setSizes({444, 600});
        const QList<int> sizes = splitter->sizes();
        QVERIFY(fixture.window->close());
        fixture.closeWindow();
        fixture.makeWindow();
        fixture.window->restoreSession();
        QCOMPARE(fixture.window->desk()->document()->mappingFile(), file);
        QCOMPARE(fixture.window->editor()->currentPath(), din933);
        QCOMPARE(fixture.window->editor()->currentLine(), 5);
        QCOMPARE(fixture.window->size(), QSize(1111, 777));
        QTRY_COMPARE(fixture.window->editor()->findChild<QSplitter *>("catalogSplitter")->sizes(),
                     sizes);
    }

    void beginsWithExampleAndTour()
    {
        WindowFixture fixture;
        fixture.window->restoreSession();
        QVERIFY(fixture.window->desk()->document()->isOpen());
        QVERIFY(!fixture.window->desk()->document()->isModified());
        auto *tour = fixture.window->findChild<TourOverlay *>("TourOverlay");
        QVERIFY(tour);
        // There is something to see, and the broken table is told once.
        QVERIFY(fixture.window->editor()->currentLine() >= 0);
        QCOMPARE(fixture.window->log()->text().count("din908"), 1);
        const QString german = "din908.csv: Zeile 17, Spalte 1: ein Anführungszeichen wird nicht "
                               "geschlossen";
        QVERIFY2(fixture.window->log()->text().contains(german),
                 qPrintable(fixture.window->log()->text()));
        for (int i = 0; i < 4; ++i)
            QTest::keyClick(tour, Qt::Key_Return);
        QCOMPARE(tour->currentStep(), 4);
        QPointer<TourOverlay> watched(tour);
        QTest::keyClick(tour, Qt::Key_Return);
        QTRY_VERIFY(!watched);
        // The keys go to the lines, not to the messages.
        QCOMPARE(fixture.window->focusWidget(), fixture.sourceView()->grid());
        QVERIFY(fixture.window->close());
        fixture.closeWindow();
        fixture.makeWindow();
        // No second first time.
        fixture.settings->setSessionFile(QString());
        fixture.window->restoreSession();
        QVERIFY(!fixture.window->desk()->document()->isOpen());
    }

    void speaksTwoLanguages()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        QVERIFY(fixture.window->editor()->selectProject(din933));
        const auto title = [&] {
            return fixture.window->findChild<QMenu *>("fileMenu")->title();
        };
        const auto box = [&] {
            return fixture.window->findChild<QCheckBox *>("checkToCheck")->text();
        };
        QCOMPARE(title(), QStringLiteral("&Datei"));
        WorkbenchSettings::Values values = fixture.settings->values();
        values.language = "en";
        fixture.settings->setValues(values);
        QApplication::processEvents();
        QCOMPARE(title(), QStringLiteral("&File"));
        QCOMPARE(box(), QStringLiteral("Show only projects with incomplete mappings"));
        QCOMPARE(fixture.action("fileSave")->text(), QStringLiteral("&Save"));
        QCOMPARE(fixture.window->editor()->currentPath(), din933);
        values.language = "de";
        fixture.settings->setValues(values);
        QApplication::processEvents();
        QCOMPARE(title(), QStringLiteral("&Datei"));
        QCOMPARE(box(), QStringLiteral("Zeige nur Projekte mit unvollständigen Mappings"));
    }

    void takesKeysFromTheSettings()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        WorkbenchSettings::Values values = fixture.settings->values();
        values.keys["goNext"] = QKeySequence("F7");
        fixture.settings->setValues(values);
        QCOMPARE(fixture.action("goNext")->shortcut(), QKeySequence("F7"));
        QVERIFY(fixture.action("goNext")->toolTip().endsWith("(F7)"));
        fixture.press(Qt::Key_F7);
        QVERIFY(fixture.window->editor()->currentLine() >= 0);
        // The command that had the key before gets it back.
        QVERIFY(fixture.action("reviewPatterns")->shortcut().isEmpty());
        values.keys.clear();
        fixture.settings->setValues(values);
        QCOMPARE(fixture.action("reviewPatterns")->shortcut(), QKeySequence("F7"));
    }

    /// What belongs to a task of its own waits until it is called.
    void beginsWithoutItsPanels()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        QStringList shown;
        for (const QDockWidget *const dock : fixture.window->findChildren<QDockWidget *>()) {
            if (!dock->isHidden())
                shown += dock->objectName();
        }
        QCOMPARE(shown, QStringList());
    }

    void bringsErrorsToTheFront()
    {
        WindowFixture fixture;
        PMessage::LogToWindow("one");
        QApplication::processEvents();
        QVERIFY(!fixture.window->log()->isVisible());
        PMessage::Show("two", PMsgDlgMode::Error);
        QApplication::processEvents();
        QVERIFY(fixture.window->log()->isVisible());
        QVERIFY(fixture.window->log()->text().contains("Fehler: two"));
    }

    void asksQuestions_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("button");
        QTest::addColumn<int>("reply");
        QTest::newRow("ok") << 1 << "answerAccept" << 1;
        QTest::newRow("cancel") << 1 << "answerCancel" << 2;
        QTest::newRow("yes") << 3 << "answerAccept" << 6;
        QTest::newRow("no") << 3 << "answerRefuse" << 7;
        QTest::newRow("neither") << 3 << "answerCancel" << 2;
    }

    void asksQuestions()
    {
        QFETCH(int, mode);
        QFETCH(QString, button);
        WindowFixture fixture;
        ModalScript script;
        script.thenClick(button);
        QTEST(int(PMessage::Show("Really?", PMsgDlgMode(mode))), "reply");
        QCOMPARE(script.texts, QStringList{"Really?"});
    }

    void refreshes()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        QVERIFY(fixture.window->editor()->selectProject(din933));
        QVERIFY(fixture.window->editor()->selectLine(4));
        fixture.window->editor()->editor()->expandDirectories({"standardparts/washers"});
        const QStringList open = fixture.window->editor()->editor()->expandedDirectories();
        QVERIFY(open.contains("standardparts/washers"));
        const QPointer<QTreeView> before(fixture.window->findChild<QTreeView *>("treeView"));
        const QPointer<QAbstractItemModel> model(fixture.window->editor()->editor()->treeModel());
        fixture.press(Qt::Key_F5);
        QVERIFY(!before);
        QVERIFY(!model); // and with it the old release
        QCOMPARE(fixture.window->editor()->editor()->expandedDirectories(), open);
        QCOMPARE(fixture.window->editor()->currentPath(), din933);
        QCOMPARE(fixture.window->editor()->currentLine(), 4);
    }

    void assignsTheWholeCatalogInOneStep()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        MappingDocument &document = *fixture.window->desk()->document();
        QVERIFY(fixture.window->editor()->selectProject(din933));
        QVERIFY(fixture.window->editor()->selectLine(3));
        fixture.press(Qt::Key_V);
        QTRY_COMPARE(fixture.confirmedLines(), 1);
        ModalScript script;
        script.thenClick("answerRefuse");
        fixture.action("assignAll")->trigger();
        QVERIFY(script.isDone());
        QCOMPARE(fixture.confirmedLines(), 1);
        QTRY_COMPARE(document.undoTexts().size(), 2);
        QVERIFY(fixture.window->status()
                    ->findChild<QLabel *>("statusNote")
                    ->text()
                    .endsWith("<a href=\"undo\">rückgängig</a>"));
        fixture.action("editUndo")->trigger();
        QTRY_COMPARE(document.undoTexts().size(), 1);
        QCOMPARE(fixture.confirmedLines(), 1);
    }

    void counterOfAReleaseWithoutLinesOffersToAssignThem()
    {
        WindowFixture fixture;
        const QString file = fixture.directory.filePath("empty.json");
        MappingMaker maker;
        QVERIFY(maker.make({.sourceRoot = WindowFixture::roots().source,
                            .targetRoot = WindowFixture::roots().target,
                            .sourceCatalog = "standardparts",
                            .targetCatalog = "standardparts",
                            .assign = false}));
        MappingFile made;
        made.setRelease(maker.release());
        QVERIFY(DurableFile::write(file, made.toByteArray()));
        fixture.open(file);
        auto *const counter = fixture.window->findChild<QLabel *>("statusOpen");
        QCOMPARE(counter->text(), "<a href=\"assign\">Noch keine Zeile zugeordnet</a>");
        ModalScript script;
        script.thenClick("answerRefuse"); // all lines anew
        QTest::mouseClick(counter, Qt::LeftButton, {}, counter->rect().center());
        QVERIFY(script.isDone());
        QTRY_COMPARE(counter->text(), "Offen: <a href=\"next\">784 Zeilen</a> in 35 Projekten");
    }

public Q_SLOTS:
    void takeUrl(const QUrl &url) { m_url = url; }

private:
    QUrl m_url;
    std::optional<ConnectionWarnings> m_warnings;
};

QTEST_MAIN(tst_MainWindow)
#include "tst_MainWindow.moc"
