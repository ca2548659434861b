#include "ModalScript.h"
#include "WindowFixture.h"

#include <geomcore/records/MappingFile.h>
#include <release/decide/LineEdits.h>
#include <release/share/SharedMapping.h>
#include <workbench/review/ConflictDock.h>
#include <workbench/session/document/MappingDocument.h>
#include <workbench/window/document/DocumentDesk.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/message/StatusArea.h>
#include <workbench/window/review/ConflictCommands.h>
#include <workbench/window/review/ShareCommands.h>

#include <QDir>
#include <QInputDialog>
#include <QLineEdit>

using VelkRelease::Participant;
using VelkRelease::SharedMapping;

namespace {

const QString Screws = QStringLiteral("standardparts/screws/din933.prj");

/// The user in his workbench, and somebody else with a mapping file of his own.
class ShareFixture : public WindowFixture
{
public:
    ShareFixture()
    {
        open(mappingFile());
        if (!QDir(directory.path()).mkdir("share") || !share()->shareWith(shared) ||
            !SharedMapping(others).link(shared).isDone())
            QTest::qFail("cannot share", __FILE__, __LINE__);
        script.texts.clear();
    }

    const QString shared = directory.filePath("share/m.json");
    const QString others = directory.filePath("others.json");
    ModalScript script;

    [[nodiscard]] ShareCommands *share() const { return window->share(); }
    [[nodiscard]] MappingDocument *document() const { return window->desk()->document(); }
    [[nodiscard]] QString note() const { return window->status()->note(); }
    [[nodiscard]] static PrjMappingC find(const ReleaseMappingC &release)
    {
        for (int i = 0; i < release.countMappings(); ++i) {
            if (release.mappingAt(i).getSourcePath() == Screws)
                return release.mappingAt(i);
        }
        return {};
    }
    [[nodiscard]] static PrjMappingC decided(const PrjMappingC &mapping, int line, int target)
    {
        VelkRelease::LineEdits edits(mapping);
        edits.assign(line, 0, target, PRJMAPPING::Verified);
        PrjMappingC changed = edits.mapping();
        changed.updateMappingState();
        return changed;
    }
    void decide(int line, int target) const
    {
        document()->updateMapping(decided(find(document()->release()), line, target));
        document()->finishStep();
        QCoreApplication::processEvents();
    }
    void othersPublish(int line, int target) const
    {
        MappingFile stored;
        QVERIFY(stored.read(others));
        ReleaseMappingC release = stored.releases().first();
        release.addMapping(decided(find(release), line, target));
        stored.setRelease(release);
        QVERIFY(stored.write(others));
        QVERIFY(SharedMapping(others).publish({"", true}).isDone());
    }
    [[nodiscard]] static int lineIn(const QString &file, int line)
    {
        MappingFile stored;
        if (!stored.read(file))
            return -2;
        return find(stored.releases().first()).findTarget(0).getMappedLine(line).getTargetLineId();
    }
    [[nodiscard]] int line(int number) const
    {
        return find(document()->release()).findTarget(0).getMappedLine(number).getTargetLineId();
    }
};

} // namespace

/// Sharing a mapping from the workbench.
class tst_ShareCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void publishes();
    void updatesBeforePublishing();
    void conflictsComeFirst();
    void foldersAndWho();
    void notShared();
    void saysWhatIsOpen();
};

void tst_ShareCommands::publishes()
{
    ShareFixture fixture;
    QVERIFY(fixture.note().startsWith("Geteilt über "));
    fixture.decide(1, 7);
    QVERIFY(fixture.document()->isModified());
    fixture.press(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY2(fixture.note().startsWith("Veröffentlicht, Stand "), qPrintable(fixture.note()));
    QVERIFY(!fixture.document()->isModified()); // it was saved before
    QCOMPARE(ShareFixture::lineIn(fixture.shared, 1), 7);
    fixture.press(Qt::Key_U, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(fixture.note(), "Es gibt nichts Neues");
}

void tst_ShareCommands::updatesBeforePublishing()
{
    ShareFixture fixture;
    fixture.othersPublish(2, 8);
    fixture.decide(1, 7);
    fixture.script.thenClick("answerCancel");
    QVERIFY(!fixture.share()->publish());
    QCOMPARE(fixture.script.texts,
             QStringList{"Andere haben seit der letzten Aktualisierung etwas veröffentlicht."});
    QCOMPARE(ShareFixture::lineIn(fixture.shared, 1) == 7, false);
    fixture.script.thenClick("answerAccept");
    QVERIFY(fixture.share()->publish());
    QCOMPARE(fixture.line(1), 7);
    QCOMPARE(fixture.line(2), 8);
    QCOMPARE(ShareFixture::lineIn(fixture.shared, 1), 7);
    QCOMPARE(ShareFixture::lineIn(fixture.shared, 2), 8);
    QVERIFY(!fixture.document()->isModified());
}

void tst_ShareCommands::conflictsComeFirst()
{
    ShareFixture fixture;
    fixture.othersPublish(1, 8);
    fixture.decide(1, 7);
    QVERIFY(fixture.share()->update());
    QCOMPARE(fixture.note(),
             "1 Änderung übernommen. 1 Zeile ist verschieden entschieden und als Konflikt "
             "markiert.");
    const ConflictList &list = fixture.window->conflicts()->list();
    QVERIFY(fixture.window->conflicts()->dock()->isVisible());
    QCOMPARE(list.openCount(), 1);
    QVERIFY(list.at(0).isKnown);
    QCOMPARE(list.at(0).clash.ours.first().line.getTargetLineId(), 7);
    QString told;
    fixture.script.then([&](QWidget *dialog) {
        told = dialog->property("informativeText").toString();
        dialog->close();
    });
    QVERIFY(!fixture.share()->publish());
    QCOMPARE(told, "Zeilen in Konflikt werden nicht veröffentlicht: " + Screws + '.');
    fixture.press(Qt::Key_1, Qt::ControlModifier);
    QCOMPARE(fixture.line(1), 7);
    QVERIFY(fixture.share()->publish());
    QCOMPARE(ShareFixture::lineIn(fixture.shared, 1), 7);
}

void tst_ShareCommands::foldersAndWho()
{
    ShareFixture fixture;
    QVERIFY(fixture.window->editor()->selectProject(Screws));
    QString suggested;
    fixture.script.then([&](QWidget *dialog) {
        auto *input = qobject_cast<QInputDialog *>(dialog);
        suggested = input->textValue();
        input->accept();
    });
    fixture.share()->takeFoldersByDialog();
    QCOMPARE(suggested, "standardparts/screws");
    QCOMPARE(fixture.note(), "Eigene Ordner: standardparts/screws");
    SharedMapping others(fixture.others);
    QVERIFY(!others.takeFolders({"standardparts"}).isDone());
    QVERIFY(others.takeFolders({"standardparts/seals"}).isDone());
    QVERIFY(others.announce(true).isDone());
    QString told;
    fixture.script.then([&](QWidget *dialog) {
        told = dialog->property("informativeText").toString();
        dialog->close();
    });
    fixture.share()->tellWho();
    QVERIFY2(told.contains(" (hier): hat es offen, "), qPrintable(told));
    QVERIFY2(told.contains("Ordner standardparts/screws\n"), qPrintable(told));
    QVERIFY2(told.contains("Ordner standardparts/seals\n"), qPrintable(told));
    QVERIFY2(told.contains("Es gibt nichts Neues von anderen."), qPrintable(told));
    // Publishing in folders of others is asked for.
    QVERIFY(others.takeFolders({}).isDone());
    fixture.script.then([&](QWidget *dialog) {
        auto *input = qobject_cast<QInputDialog *>(dialog);
        input->setTextValue(" ");
        input->accept();
    });
    fixture.share()->takeFoldersByDialog();
    QCOMPARE(fixture.note(), "Keine eigenen Ordner mehr");
    QVERIFY(others.takeFolders({"standardparts/screws"}).isDone());
    fixture.decide(1, 7);
    fixture.script.texts.clear();
    fixture.script.thenClick("answerAccept");
    QVERIFY(fixture.share()->publish());
    QVERIFY2(fixture.script.texts.value(0).startsWith("Es gibt Änderungen in Ordnern anderer: "),
             qPrintable(fixture.script.texts.join(' ')));
    QCOMPARE(ShareFixture::lineIn(fixture.shared, 1), 7);
}

void tst_ShareCommands::notShared()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    ModalScript script;
    QString told;
    script.then([&](QWidget *dialog) {
        told = dialog->property("informativeText").toString();
        dialog->close();
    });
    QVERIFY(!fixture.window->share()->update());
    QVERIFY2(told.startsWith("Das Mapping wird mit niemandem geteilt."), qPrintable(told));
}

/// Others see who has it open, until he closes it.
void tst_ShareCommands::saysWhatIsOpen()
{
    ShareFixture fixture;
    SharedMapping others(fixture.others);
    const auto open = [&] {
        const QList<Participant> all = others.participants();
        return all.size() == 1 && all.first().isOpen;
    };
    QTRY_VERIFY(open());
    fixture.document()->close();
    QTRY_VERIFY(!others.participants().isEmpty() && !open());
}

QTEST_MAIN(tst_ShareCommands)
#include "tst_ShareCommands.moc"
