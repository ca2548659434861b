#include "WindowFixture.h"

#include <workbench/session/document/MappingDocument.h>
#include <workbench/session/history/UndoHistory.h>
#include <workbench/window/document/DocumentDesk.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/history/StepListDialog.h>
#include <workbench/window/history/StepListModel.h>
#include <workbench/window/MainWindow.h>

#include <QAbstractItemModelTester>
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeView>

namespace {

const QString din933 = QStringLiteral("standardparts/screws/din933.prj");
const QString din125 = QStringLiteral("standardparts/washers/din125.prj");

} // namespace

/// The list of steps, by keys and mouse.
class tst_StepList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesBackOneAlone();
    void namesThoseThatBuildOnIt();
    void afterARestart();
    void goesToTheLine();
    void searches();
    void linesAsText();
    void readOnly();

private:
    static MappingDocument *document(const WindowFixture &fixture)
    {
        return fixture.window->desk()->document();
    }
    /// As the user does; the number of steps grows by one.
    static void decide(WindowFixture &fixture, const QString &path, int line, int key)
    {
        QVERIFY(fixture.window->editor()->goTo({{path, {}, {}}, line}));
        const int before = document(fixture)->steps().count();
        fixture.press(key);
        QTRY_COMPARE(document(fixture)->steps().count(), before + 1);
    }
    static StepListDialog *show(WindowFixture &fixture)
    {
        fixture.press(Qt::Key_Z, Qt::ControlModifier | Qt::AltModifier);
        auto *const dialog = fixture.window->findChild<StepListDialog *>();
        if (dialog && !QTest::qWaitForWindowActive(dialog))
            return nullptr;
        return dialog;
    }
    static void close(WindowFixture &fixture)
    {
        QTest::keyClick(view(fixture.window->findChild<StepListDialog *>()), Qt::Key_Escape);
        QTRY_VERIFY(!fixture.window->findChild<StepListDialog *>());
        fixture.window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(fixture.window.get()));
    }
    static QTreeView *view(const StepListDialog *dialog)
    {
        return dialog->findChild<QTreeView *>("steps");
    }
    static QStringList column(const StepListDialog *dialog, int number)
    {
        QStringList cells;
        const QAbstractItemModel *const model = view(dialog)->model();
        for (int row = 0; row < model->rowCount(); ++row)
            cells += model->index(row, number).data().toString();
        return cells;
    }
    static QString hint(const StepListDialog *dialog)
    {
        return dialog->findChild<QLabel *>("hint")->text();
    }
    static QPushButton *button(const StepListDialog *dialog, const char *name)
    {
        return dialog->findChild<QPushButton *>(name);
    }
    static bool isConfirmed(const WindowFixture &fixture, const QString &path, int line)
    {
        const PrjMappingC mapping = document(fixture)->release().findMapping(
            path, fixture.window->editor()->isOpen() ? projectVersion(fixture, path) : QString(),
            QString());
        for (int i = 0; i < mapping.countTargets(); ++i) {
            if (mapping.targetAt(i).containsLine(line))
                return mapping.targetAt(i).getMappedLine(line).getState() == PRJMAPPING::Verified;
        }
        return false;
    }
    static QString projectVersion(const WindowFixture &fixture, const QString &path)
    {
        const ReleaseMappingC release = document(fixture)->release();
        for (int i = 0; i < release.countMappings(); ++i) {
            if (release.mappingAt(i).getSourcePath() == path)
                return release.mappingAt(i).getSourceVersion();
        }
        return {};
    }
};

void tst_StepList::takesBackOneAlone()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    decide(fixture, din933, 3, Qt::Key_V);
    decide(fixture, din933, 4, Qt::Key_V);
    decide(fixture, din125, 2, Qt::Key_V);
    StepListDialog *const dialog = show(fixture);
    QVERIFY(dialog);
    const QAbstractItemModelTester tester(view(dialog)->model());
    QCOMPARE(column(dialog, StepListModel::State), QStringList({"gilt", "gilt", "gilt"}));
    QCOMPARE(column(dialog, StepListModel::Lines), QStringList({"2", "4", "3"}));
    QVERIFY(column(dialog, StepListModel::What).at(2).startsWith("Zeile 3 → "));
    QCOMPARE(column(dialog, StepListModel::Author).at(0), document(fixture)->steps().at(0).author);
    // The step that undo would take is chosen; two down is the first one.
    QCOMPARE(view(dialog)->currentIndex().row(), 0);
    QTest::keyClick(view(dialog), Qt::Key_Down);
    QTest::keyClick(view(dialog), Qt::Key_Down);
    QCOMPARE(hint(dialog), "Kein anderer Schritt hängt davon ab.");
    const auto *const label = dialog->findChild<QLabel *>("hint");
    QVERIFY(label->y() > view(dialog)->geometry().bottom() &&
            label->geometry().bottom() < button(dialog, "move")->mapTo(dialog, QPoint()).y());
    QCOMPARE(button(dialog, "move")->text(), "Nur diesen &zurücknehmen");
    QTest::mouseClick(button(dialog, "move"), Qt::LeftButton);
    QVERIFY(!isConfirmed(fixture, din933, 3));
    QVERIFY(isConfirmed(fixture, din933, 4));
    QVERIFY(isConfirmed(fixture, din125, 2));
    QCOMPARE(column(dialog, StepListModel::State), QStringList({"gilt", "gilt", "zurückgenommen"}));
    QCOMPARE(view(dialog)->currentIndex().row(), 2);
    // The editor shows it.
    QVERIFY(fixture.window->editor()->goTo({{din933, {}, {}}, 3}));
    // The same place does it again.
    QCOMPARE(button(dialog, "move")->text(), "&Wieder ausführen");
    QVERIFY(!button(dialog, "undoTo")->isEnabled());
    QTest::mouseClick(button(dialog, "move"), Qt::LeftButton);
    QVERIFY(isConfirmed(fixture, din933, 3));
    // All of them; the first took effect last.
    QTest::keyClick(view(dialog), Qt::Key_Up);
    QTest::mouseClick(button(dialog, "undoTo"), Qt::LeftButton);
    QVERIFY(!isConfirmed(fixture, din933, 3));
    QVERIFY(!isConfirmed(fixture, din933, 4));
    QVERIFY(!isConfirmed(fixture, din125, 2));
    QVERIFY(!document(fixture)->isModified());
}

void tst_StepList::namesThoseThatBuildOnIt()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    decide(fixture, din933, 3, Qt::Key_V);
    decide(fixture, din125, 2, Qt::Key_V);
    decide(fixture, din933, 3, Qt::Key_X);
    StepListDialog *dialog = show(fixture);
    QVERIFY(dialog);
    const QStringList texts = column(dialog, StepListModel::What);
    QTest::keyClick(view(dialog), Qt::Key_End);
    QCOMPARE(hint(dialog), QStringLiteral("Darauf bauen auf: „%1“").arg(texts.at(0)));
    QCOMPARE(button(dialog, "move")->text(), "Mit 1 abhängigen &zurücknehmen");
    QTest::mouseClick(button(dialog, "move"), Qt::LeftButton);
    QCOMPARE(column(dialog, StepListModel::State),
             QStringList({"zurückgenommen", "gilt", "zurückgenommen"}));
    // Another decision on the line: the branch stays in the list, and the list says what it is
    // that stands in its way.
    close(fixture);
    decide(fixture, din933, 3, Qt::Key_X);
    dialog = show(fixture);
    QVERIFY(dialog);
    QCOMPARE(column(dialog, StepListModel::State).size(), 4);
    QTest::keyClick(view(dialog), Qt::Key_End);
    QCOMPARE(hint(dialog),
             QStringLiteral("Dem stehen entgegen, weil sie etwas anderes entschieden haben: „%1“")
                 .arg(column(dialog, StepListModel::What).at(0)));
    QVERIFY(!button(dialog, "move")->isEnabled());
}

/// The window is another one, the file the same.
void tst_StepList::afterARestart()
{
    WindowFixture fixture;
    const QString file = fixture.mappingFile();
    fixture.open(file);
    decide(fixture, din933, 3, Qt::Key_V);
    decide(fixture, din933, 4, Qt::Key_V);
    const QString text = document(fixture)->undoText();
    QCOMPARE(fixture.action("editUndo")->toolTip(), "Rückgängig: " + text);
    QCOMPARE(document(fixture)->save().result, SaveResult::Saved);
    fixture.closeWindow();
    fixture.makeWindow();
    fixture.open(file);
    const UndoStep step = document(fixture)->steps().undoStep();
    QCOMPARE(fixture.action("editUndo")->toolTip(),
             QStringLiteral("Rückgängig: %1 (%2, %3)")
                 .arg(text, step.author,
                      QLocale().toString(step.time.toLocalTime(), QLocale::ShortFormat)));
    fixture.press(Qt::Key_Z, Qt::ControlModifier);
    QTRY_VERIFY(!isConfirmed(fixture, din933, 4));
    StepListDialog *const dialog = show(fixture);
    QVERIFY(dialog);
    QCOMPARE(column(dialog, StepListModel::State), QStringList({"zurückgenommen", "gilt"}));
    QTest::keyClick(view(dialog), Qt::Key_End);
    QTest::mouseClick(button(dialog, "move"), Qt::LeftButton);
    QVERIFY(!isConfirmed(fixture, din933, 3));
    QVERIFY(!document(fixture)->canUndo());
}

void tst_StepList::goesToTheLine()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    decide(fixture, din933, 3, Qt::Key_V);
    decide(fixture, din125, 2, Qt::Key_V);
    StepListDialog *const dialog = show(fixture);
    QVERIFY(dialog);
    QTest::keyClick(view(dialog), Qt::Key_End);
    QTest::keyClick(view(dialog), Qt::Key_Return);
    QCOMPARE(fixture.window->editor()->currentPath(), din933);
    QCOMPARE(fixture.window->editor()->currentLine(), 3);
    close(fixture);
}

void tst_StepList::searches()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    StepListDialog *dialog = show(fixture);
    QVERIFY(dialog);
    QCOMPARE(hint(dialog), "Noch kein Schritt");
    close(fixture);
    decide(fixture, din933, 3, Qt::Key_V);
    decide(fixture, din125, 2, Qt::Key_V);
    dialog = show(fixture);
    QVERIFY(dialog);
    QTest::keyClicks(dialog->findChild<QLineEdit *>("search"), "DIN933");
    QCOMPARE(column(dialog, StepListModel::Lines), QStringList{"3"});
}

void tst_StepList::linesAsText()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    const QString version = projectVersion(fixture, din933);
    const auto confirm = [&](const QString &path, const QList<int> &lines) {
        PrjMappingC mapping =
            document(fixture)->release().findMapping(path, projectVersion(fixture, path), {});
        for (int i = 0; i < mapping.countTargets(); ++i) {
            mapping.changeTarget(i, [&](PrjMappingTargetC &target) {
                for (const int line : lines) {
                    const PrjMappingTargetLineC entry = target.getMappedLine(line);
                    if (target.containsLine(line))
                        target.addLineId(line, entry.getTargetLineId(), PRJMAPPING::Verified, {});
                }
            });
        }
        document(fixture)->updateMapping(mapping);
    };
    confirm(din933, {2, 4, 5, 6, 9});
    document(fixture)->finishStep();
    QCOMPARE(StepListModel::linesText(*document(fixture), 0), "2, 4–6, 9");
    document(fixture)->beginStep("Beide");
    confirm(din933, {10});
    confirm(din125, {1, 2});
    document(fixture)->endStep();
    QCOMPARE(StepListModel::linesText(*document(fixture), 1), "3 in 2 Projekten");
}

void tst_StepList::readOnly()
{
    WindowFixture fixture;
    const QString file = fixture.mappingFile();
    fixture.open(file);
    decide(fixture, din933, 3, Qt::Key_V);
    QCOMPARE(document(fixture)->save().result, SaveResult::Saved);
    fixture.closeWindow();
    MappingDocument other;
    other.open({file, {}, {}, {}, {}});
    fixture.makeWindow();
    fixture.window->desk()->open({.file = file, .readOnly = true});
    StepListDialog *const dialog = show(fixture);
    QVERIFY(dialog);
    QVERIFY(!button(dialog, "move")->isEnabled());
    QVERIFY(!button(dialog, "undoTo")->isEnabled());
}

QTEST_MAIN(tst_StepList)
#include "tst_StepList.moc"
