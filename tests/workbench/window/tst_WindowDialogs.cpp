#include "ModalScript.h"
#include "WindowFixture.h"

#include <geomcore/records/MappingFile.h>
#include <workbench/session/document/MappingDocument.h>
#include <workbench/session/journal/RecoveryOffer.h>
#include <workbench/window/document/CatalogRootsDialog.h>
#include <workbench/window/document/DocumentDesk.h>
#include <workbench/window/document/NewMappingDialog.h>
#include <workbench/window/document/RecoveryDialog.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/message/Question.h>
#include <workbench/window/settings/WorkbenchSettings.h>

#include <QAction>
#include <QComboBox>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>

namespace {

ReleaseMappingC releaseOf(const QString &file)
{
    MappingFile mapping;
    return mapping.read(file) ? mapping.releases().value(0) : ReleaseMappingC();
}

void enter(QWidget *dialog, const char *name, const QString &text)
{
    dialog->findChild<QLineEdit *>(QLatin1String(name))->setText(text);
}

} // namespace

class tst_WindowDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// A frame would cut it, with short texts, or long ones that wrap early.
    void titlesOfQuestionsAreWhole()
    {
        QWidget parent;
        for (const char *const text : {"x", "/a/long/path/that/is/broken/where/it/can/be"}) {
            ModalScript script;
            script.then([&](QWidget *box) {
                const QString title =
                    box->windowTitle() + " — " + QGuiApplication::applicationDisplayName();
                QVERIFY(box->width() > box->fontMetrics().horizontalAdvance(title) + 100);
                box->close();
            });
            Question::tell(&parent, "x", text);
            QVERIFY(script.isDone());
        }
    }

    void rootsAreChecked_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("target");
        QTest::addColumn<QString>("problem");
        const CatalogRoots good = WindowFixture::roots();
        QTest::newRow("good") << good.source << good.target << "";
        QTest::newRow("nothing") << ""
                                 << ""
                                 << "Beide Verzeichnisse werden gebraucht.";
        QTest::newRow("no directory") << good.source + "/nowhere" << good.target
                                      << good.source + "/nowhere ist kein Verzeichnis.";
        QTest::newRow("too deep") << good.source + "/standardparts" << good.target
                                  << "Im alten Stand fehlt standardparts/bearings/din5412.prj. "
                                     "Gesucht ist das Verzeichnis, in dem der Katalog "
                                     "standardparts liegt.";
        QTest::newRow("target without catalog")
            << good.source << good.target + "/standardparts"
            << "Im neuen Stand fehlt der Katalog standardparts.";
    }
    void rootsAreChecked()
    {
        QFETCH(QString, source);
        QFETCH(QString, target);
        QFETCH(QString, problem);
        const WindowFixture fixture;
        CatalogRootsDialog dialog(releaseOf(fixture.mappingFile()), {source, target}, nullptr);
        const auto *const told = dialog.findChild<QLabel *>("problem");
        const auto *const ok = dialog.findChild<QPushButton *>("ok");
        QCOMPARE(told->text(), problem);
        QCOMPARE(ok->isEnabled(), problem.isEmpty());
        dialog.show();
        QVERIFY(ok->mapTo(&dialog, QPoint()).y() > told->geometry().bottom());
    }

    void rootsCanBeChanged()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        ModalScript script;
        script.thenClick("ok");
        QVERIFY(!fixture.window->desk()->changeRoots());
        QCOMPARE(script.seen, QStringList{"CatalogRootsDialog"});
    }

    void makesANewMapping()
    {
        WindowFixture fixture;
        const QString file = fixture.directory.filePath("new.json");
        ModalScript script;
        script.then([&](QWidget *dialog) {
            script.note(dialog);
            auto *ok = dialog->findChild<QPushButton *>("ok");
            QVERIFY(!ok->isEnabled());
            enter(dialog, "sourceRoot", WindowFixture::roots().source);
            enter(dialog, "targetRoot", WindowFixture::roots().target);
            QCOMPARE(dialog->findChild<QComboBox *>("sourceCatalog")->currentText(),
                     QStringLiteral("standardparts"));
            QVERIFY(dialog->findChild<QLineEdit *>("mappingFile")
                        ->text()
                        .endsWith("/standardparts.mapping.json"));
            enter(dialog, "mappingFile", fixture.directory.filePath("no/such/folder.json"));
            QVERIFY(!ok->isEnabled());
            enter(dialog, "mappingFile", file);
            QVERIFY2(ok->isEnabled(), qPrintable(dialog->findChild<QLabel *>("problem")->text()));
            QTest::mouseClick(ok, Qt::LeftButton);
        });
        fixture.action("fileNew")->trigger();
        QCOMPARE(script.seen, QStringList{"NewMappingDialog"});
        const MappingDocument &document = *fixture.window->desk()->document();
        QVERIFY(document.isOpen());
        QVERIFY(document.isModified());
        QCOMPARE(document.counts().lines(), 1918);
        QVERIFY(fixture.window->editor()->isOpen());
        QVERIFY(fixture.window->desk()->save());
        QCOMPARE(releaseOf(file).countMappings(), 49);
    }

    void proposesFilesAsLongAsNobodyEntersOne()
    {
        const WindowFixture fixture;
        NewMappingDialog dialog(fixture.settings->store(), nullptr);
        auto *const file = dialog.findChild<QLineEdit *>("mappingFile");
        auto *const catalogs = dialog.findChild<QComboBox *>("sourceCatalog");
        enter(&dialog, "sourceRoot", WindowFixture::roots().source);
        QVERIFY(file->text().endsWith("/standardparts.mapping.json"));
        QCOMPARE(catalogs->count(), 1);
        const QString other = fixture.directory.filePath("roots");
        QVERIFY(QDir().mkpath(other + "/bolts") && QDir().mkpath(other + "/nuts"));
        enter(&dialog, "sourceRoot", other);
        QCOMPARE(catalogs->count(), 2); // not those of before
        QVERIFY2(file->text().endsWith("/bolts.mapping.json"), qPrintable(file->text()));
        enter(&dialog, "mappingFile", QString());
        catalogs->setCurrentText("nuts");
        QVERIFY2(file->text().endsWith("/nuts.mapping.json"), qPrintable(file->text()));
        enter(&dialog, "mappingFile", "/mine.json");
        catalogs->setCurrentText("bolts");
        QCOMPARE(file->text(), QString("/mine.json"));
    }

    void lettersLeadToTheFields()
    {
        const WindowFixture fixture;
        NewMappingDialog dialog(fixture.settings->store(), nullptr);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        for (const auto &[key, name] :
             {std::pair(Qt::Key_N, "targetRoot"), std::pair(Qt::Key_A, "sourceRoot")}) {
            QTest::keyClick(&dialog, key, Qt::AltModifier);
            QVERIFY(dialog.focusWidget());
            QCOMPARE(dialog.focusWidget()->objectName(), QString(name));
        }
    }

    void asksBeforeAFileIsUsedAgain()
    {
        const WindowFixture fixture;
        NewMappingDialog dialog(fixture.settings->store(), nullptr);
        enter(&dialog, "sourceRoot", WindowFixture::roots().source);
        enter(&dialog, "targetRoot", WindowFixture::roots().target);
        enter(&dialog, "mappingFile", fixture.mappingFile());
        ModalScript script;
        script.thenClick("answerCancel");
        dialog.accept();
        QCOMPARE(dialog.result(), 0);
        QVERIFY(script.texts.first().endsWith("m.json gibt es schon."));
        script.thenClick("answerAccept");
        dialog.accept();
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }

    void recoveryShowsBothVersions()
    {
        const WindowFixture fixture;
        RecoveryOffer offer;
        offer.saved.available = true;
        offer.saved.projects = 4;
        offer.recovered.available = true;
        offer.recovered.projects = 5;
        offer.recovered.counts.add(3, 2, false);
        offer.steps = 2;
        offer.lastStep = "<b>last";
        offer.damage = "something is missing";
        RecoveryDialog dialog("/d/m.json", offer, nullptr);
        const auto text = [&](const char *name) {
            return dialog.findChild<QLabel *>(QLatin1String(name))->text();
        };
        QCOMPARE(text("projectsSaved"), QStringLiteral("4"));
        QCOMPARE(text("projectsRecovered"), QStringLiteral("5"));
        QCOMPARE(text("verifiedSaved"), QStringLiteral("0"));
        QCOMPARE(text("verifiedRecovered"), QStringLiteral("1"));
        QCOMPARE(text("damage"), QStringLiteral("something is missing"));
        QVERIFY(text("intro").contains("m.json"));
        QVERIFY(text("intro").contains("„<b>last“"));
        QTest::mouseClick(dialog.findChild<QPushButton *>("useSaved"), Qt::LeftButton);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(dialog.choice(), MappingDocument::Recovery::UseSaved);
    }

    void recoveryOffersLaterChangesApart()
    {
        const WindowFixture fixture;
        RecoveryOffer offer;
        offer.saved.available = offer.recovered.available = true;
        const RecoveryDialog without("/d/m.json", offer, nullptr);
        QVERIFY(!without.findChild<QPushButton *>("useFurther"));
        offer.further.available = true;
        offer.laterChanges = 18;
        RecoveryDialog dialog("/d/m.json", offer, nullptr);
        auto *button = dialog.findChild<QPushButton *>("useFurther");
        QVERIFY(button->text().contains("(18)"));
        QVERIFY(dialog.findChild<QPushButton *>("recover")->isDefault());
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(dialog.choice(), MappingDocument::Recovery::UseFurther);
    }

    void aYoungerSavedVersionIsTheDefault()
    {
        const WindowFixture fixture;
        RecoveryOffer offer;
        offer.saved.available = offer.recovered.available = true;
        offer.savedIsNewer = true;
        const RecoveryDialog dialog("/d/m.json", offer, nullptr);
        QVERIFY(dialog.findChild<QPushButton *>("useSaved")->isDefault());
        QVERIFY(!dialog.findChild<QPushButton *>("recover")->isDefault());
        QVERIFY(dialog.findChild<QLabel *>("savedIsNewer"));
    }

    void recoveryWithoutASavedVersion()
    {
        const WindowFixture fixture;
        RecoveryOffer offer;
        offer.recovered.available = true;
        const RecoveryDialog dialog("/d/m.json", offer, nullptr);
        QVERIFY(!dialog.findChild<QPushButton *>("useSaved")->isEnabled());
        QCOMPARE(dialog.findChild<QLabel *>("linesSaved")->text(), QStringLiteral("–"));
    }

    void asksWhichReleaseToOpen()
    {
        WindowFixture fixture;
        const QString file = fixture.mappingFile();
        MappingFile mapping;
        QVERIFY(mapping.read(file));
        ReleaseMappingC older;
        older.setSourceDate("2019-01-01T00:00:00Z");
        older.setTargetDate("2020-01-01T00:00:00Z");
        mapping.setRelease(older);
        QVERIFY(mapping.write(file));
        ModalScript script;
        script.then([&](QWidget *dialog) {
            script.note(dialog);
            auto *input = qobject_cast<QInputDialog *>(dialog);
            QCOMPARE(input->comboBoxItems().size(), 2);
            input->setTextValue("2021-12-07T07:30:00Z");
            input->accept();
        });
        fixture.open(file);
        QCOMPARE(script.seen, QStringList{"ReleaseDialog"});
        QCOMPARE(fixture.window->desk()->document()->release().getSourceDate(),
                 QStringLiteral("2021-12-07T07:30:00Z"));
    }

    void foreignChangesAreNotOverwrittenUnasked_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<bool>("saved");
        QTest::newRow("cancel") << "answerCancel" << false;
        QTest::newRow("own version") << "answerAccept" << true;
    }
    void foreignChangesAreNotOverwrittenUnasked()
    {
        QFETCH(QString, button);
        QFETCH(bool, saved);
        WindowFixture fixture;
        const QString file = fixture.mappingFile();
        fixture.open(file);
        QVERIFY(fixture.window->editor()->goTo({{"standardparts/screws/din933.prj", {}, {}}, 3}));
        fixture.press(Qt::Key_V);
        MappingDocument &document = *fixture.window->desk()->document();
        QTRY_VERIFY(document.isModified());
        MappingFile mapping;
        QVERIFY(mapping.read(file));
        ReleaseMappingC theirs = mapping.releases().first();
        theirs.setTargetDate("2030-01-01T00:00:00Z");
        mapping.setRelease(theirs);
        QVERIFY(mapping.write(file));
        ModalScript script;
        script.thenClick(button);
        QCOMPARE(fixture.window->desk()->save(), saved);
        QVERIFY2(script.texts.first().contains("von jemand anderem geändert"),
                 qPrintable(script.texts.first()));
        QCOMPARE(document.isModified(), !saved);
        document.close();
    }

    void conflictsAreToldBeforeSaving_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<bool>("saved");
        QTest::newRow("cancel") << "answerCancel" << false;
        QTest::newRow("all the same") << "answerAccept" << true;
    }
    void conflictsAreToldBeforeSaving()
    {
        QFETCH(QString, button);
        QFETCH(bool, saved);
        WindowFixture fixture;
        const QString file = fixture.mappingFile();
        MappingFile mapping;
        QVERIFY(mapping.read(file));
        ReleaseMappingC release = mapping.releases().first();
        const QString path = "standardparts/screws/din933.prj";
        for (int i = 0; i < release.countMappings(); ++i) {
            PrjMappingC project = release.mappingAt(i);
            if (project.getSourcePath() != path)
                continue;
            PrjMappingTargetC target = project.findTarget(0);
            target.setLineConflicted(3, true);
            project.updateTarget(0, target);
            release.addMapping(project);
        }
        mapping.setRelease(release);
        QVERIFY(mapping.write(file));
        fixture.open(file);
        QVERIFY(fixture.window->editor()->goTo({{path, {}, {}}, 2}));
        fixture.press(Qt::Key_V);
        ModalScript script;
        script.then([&](QWidget *dialog) {
            script.note(dialog);
            QCOMPARE(dialog->property("informativeText").toString(), path + ": 1 Zeile");
            QTest::mouseClick(dialog->findChild<QPushButton *>(button), Qt::LeftButton);
        });
        QCOMPARE(fixture.window->desk()->save(), saved);
        QCOMPARE(script.texts, QStringList{"Noch 1 Zeile in Konflikt, in diesen Projekten:"});
        fixture.window->desk()->document()->close();
    }

    void namesTenProjectsInConflict_data()
    {
        QTest::addColumn<int>("projects");
        QTest::addColumn<int>("rows");
        QTest::addColumn<QString>("last");
        QTest::newRow("ten") << 10 << 10 << "";
        QTest::newRow("eleven") << 11 << 11 << "und 1 weiteres";
    }
    void namesTenProjectsInConflict()
    {
        QFETCH(int, projects);
        QFETCH(int, rows);
        QFETCH(QString, last);
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        MappingDocument &document = *fixture.window->desk()->document();
        const ReleaseMappingC release = document.release();
        int marked = 0;
        for (int i = 0; i < release.countMappings() && marked < projects; ++i) {
            PrjMappingC mapping = release.mappingAt(i);
            PrjMappingTargetC target = mapping.findTarget(0);
            if (target.lines().begin() == target.lines().end())
                continue;
            target.setLineConflicted((*target.lines().begin()).sourceLine(), true);
            mapping.updateTarget(0, target);
            document.updateMapping(mapping);
            ++marked;
        }
        QCOMPARE(marked, projects);
        QString details;
        ModalScript script;
        script.then([&](QWidget *dialog) {
            details = dialog->property("informativeText").toString();
            QTest::mouseClick(dialog->findChild<QPushButton *>("answerCancel"), Qt::LeftButton);
        });
        QVERIFY(!fixture.window->desk()->save());
        QCOMPARE(details.split('\n').size(), rows);
        QCOMPARE(details.contains("weitere"), !last.isEmpty());
        QVERIFY(details.endsWith(last));
        document.close();
    }

    void readingOnlyAtWillIsNotTold()
    {
        WindowFixture fixture;
        ModalScript script;
        script.thenClick("answerCancel");
        QVERIFY(fixture.window->desk()->open(
            {.file = fixture.mappingFile(), .roots = WindowFixture::roots(), .readOnly = true}));
        QCOMPARE(script.seen, QStringList());
        QVERIFY(fixture.window->desk()->document()->isReadOnly());
    }

    void saysThatSomebodyElseEditsTheFile()
    {
        WindowFixture fixture;
        const QString file = fixture.mappingFile();
        MappingDocument other;
        QCOMPARE(other.open({.mappingFile = file, .sourceDate = {}, .rootName = {}}),
                 MappingDocument::OpenResult::Opened);
        ModalScript script;
        script.thenClick("answerCancel");
        fixture.open(file);
        QVERIFY2(script.texts.first().contains("und ist deshalb nur zum Lesen geöffnet"),
                 qPrintable(script.texts.first()));
        QVERIFY(fixture.window->desk()->document()->isReadOnly());
        QVERIFY(fixture.window->windowTitle().endsWith(" (schreibgeschützt)"));
        QVERIFY(!fixture.action("linesConfirm")->isEnabled());
        QVERIFY(!fixture.action("fileSave")->isEnabled());
    }

    void lockOfSomebodyWhoIsGoneCanBeRemoved()
    {
        WindowFixture fixture;
        const QString file = fixture.mappingFile();
        MappingDocument other;
        QCOMPARE(other.open({.mappingFile = file, .sourceDate = {}, .rootName = {}}),
                 MappingDocument::OpenResult::Opened);
        ModalScript script;
        script.thenClick("answerRefuse");
        // What the other one left behind; nothing was changed there.
        fixture.open(file);
        QVERIFY(script.isDone());
        QVERIFY(fixture.window->desk()->document()->isOpen());
        QVERIFY(!fixture.window->desk()->document()->isReadOnly());
        QVERIFY(fixture.action("fileSave")->isEnabled());
    }
};

QTEST_MAIN(tst_WindowDialogs)
#include "tst_WindowDialogs.moc"
