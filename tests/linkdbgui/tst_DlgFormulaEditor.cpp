#include "../geomcore/ExpressionTesting.h"
#include "../support/TestTables.h"

#include <formula/DlgFormulaEditor.h>
#include <formula/DlgFormulaEditorPrivate.h>

#include <core/config/PConfigInst.h>
#include <core/message/PMessage.h>
#include <core/message/PScriptedMessageSink.h>
#include <geomcore/expression/Nodes.h>
#include <geomcoregui/text/VkTableHighlighter.h>
#include <gui/application/PApplication.h>

#include <QContextMenuEvent>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QMenu>
#include <QMetaMethod>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include <memory>

using namespace ExpressionTesting;

class tst_DlgFormulaEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void layout();
    void connections();
    void placeIsKept();
    void checkSyntax_data();
    void checkSyntax();
    void anyMessageMakesItWrong();
    void failureWithoutMessage();
    void acceptWithoutCheck();
    void acceptWithCheck_data();
    void acceptWithCheck();
    void cancelNeverChecks();
    void checkButton();
    void menu_data();
    void menu();
    void tables();
    void tablesAndNoVariables();
    void completionWritesTheFormula();

private:
    std::unique_ptr<DlgFormulaEditor> makeDialog(const QString &variable = {}) const;
    static QStringList menuOf(DlgFormulaEditor &dialog, const QString &sub = {});

    std::shared_ptr<PScriptedMessageSink> sink;
    std::unique_ptr<PMessageSinkScope> scope;
};

namespace {

QPlainTextEdit *editOf(const DlgFormulaEditor &dialog)
{
    return dialog.findChild<QPlainTextEdit *>();
}

QDialogButtonBox *boxOf(const DlgFormulaEditor &dialog)
{
    return dialog.findChild<QDialogButtonBox *>();
}

/// Runs the dialog with what the user does in it.
int run(DlgFormulaEditor &dialog, const std::function<void()> &user)
{
    QTimer::singleShot(0, &dialog, user);
    return dialog.exec();
}

} // namespace

void tst_DlgFormulaEditor::init()
{
    sink = std::make_shared<PScriptedMessageSink>();
    scope = std::make_unique<PMessageSinkScope>(sink);
}

void tst_DlgFormulaEditor::cleanup()
{
    scope.reset();
}

std::unique_ptr<DlgFormulaEditor> tst_DlgFormulaEditor::makeDialog(const QString &variable) const
{
    return std::make_unique<DlgFormulaEditor>(varset({{"Dia", "12"}, {"Len", "20"}}),
                                              varset({{"Size", "16"}}), variable, nullptr);
}

void tst_DlgFormulaEditor::layout()
{
    const auto dialog = makeDialog();
    QCOMPARE(dialog->windowTitle(), QString("Formel bearbeiten"));
    QCOMPARE(dialog->objectName(), QString("dlgEditMapoingFormula"));
    auto *const column = qobject_cast<QVBoxLayout *>(dialog->layout());
    QVERIFY(column);
    QCOMPARE(column->count(), 3);
    auto *const edit = qobject_cast<QPlainTextEdit *>(column->itemAt(0)->widget());
    QVERIFY(edit);
    QVERIFY(edit->tabChangesFocus());
    QCOMPARE(edit->document()->findChildren<VkTableHighlighter *>().size(), 1);
    auto *const row = qobject_cast<QHBoxLayout *>(column->itemAt(1)->layout());
    QVERIFY(row);
    QCOMPARE(row->count(), 2);
    QVERIFY(row->itemAt(0)->spacerItem());
    QCOMPARE(row->itemAt(0)->expandingDirections(), Qt::Horizontal);
    auto *const check = qobject_cast<QPushButton *>(row->itemAt(1)->widget());
    QVERIFY(check);
    QCOMPARE(check->text(), QString("Syntax prüfen"));
    auto *const box = qobject_cast<QDialogButtonBox *>(column->itemAt(2)->widget());
    QVERIFY(box);
    QCOMPARE(int(box->standardButtons()), 0x400400);
    QCOMPARE(box->orientation(), Qt::Horizontal);
}

void tst_DlgFormulaEditor::connections()
{
    const QMetaObject &meta = DlgFormulaEditor::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    const QMetaMethod slot = meta.method(meta.methodOffset());
    QCOMPARE(slot.methodSignature(), QByteArray("onCheckSyntax()"));
    QCOMPARE(slot.access(), QMetaMethod::Private);
    const auto dialog = makeDialog();
    const auto gone = [&](QObject *sender, const char *signal, const char *slotName) {
        return QObject::disconnect(sender, signal, dialog.get(), slotName);
    };
    QVERIFY(gone(dialog->findChild<QPushButton *>("checkSyntax"), SIGNAL(clicked()),
                 SLOT(onCheckSyntax())));
    QVERIFY(gone(boxOf(*dialog), SIGNAL(accepted()), SLOT(accept())));
    QVERIFY(gone(boxOf(*dialog), SIGNAL(rejected()), SLOT(reject())));
}

void tst_DlgFormulaEditor::placeIsKept()
{
    const QTemporaryDir folder;
    const PApplication application(
        PRefPtr<PConfig>(new PConfigInst(folder.filePath("app.cfg"), false)));
    auto dialog = makeDialog();
    dialog->resize(911, 617);
    dialog.reset();
    QCOMPARE(makeDialog()->size(), QSize(911, 617));
}

void tst_DlgFormulaEditor::checkSyntax_data()
{
    QTest::addColumn<QString>("formula");
    QTest::addColumn<QString>("variable");
    QTest::addColumn<QString>("message"); // empty: correct
    const QString wrong = "Der Algorithmus enthält Fehler:\n";
    QTest::newRow("condition") << "Dia .EQ. 12"
                               << ""
                               << "";
    QTest::newRow("assignment in a free statement") << "Size = Dia"
                                                    << ""
                                                    << "";
    QTest::newRow("formula") << "Size = Dia + 1"
                             << "Size"
                             << "";
    QTest::newRow("reference to the target") << "Size = Dia + SOURCE@Size"
                                             << "Size"
                                             << "";
    QTest::newRow("empty") << ""
                           << "" << wrong + "error: Zeichen 1: Der Text ist leer\n";
    QTest::newRow("empty formula") << ""
                                   << "Size" << wrong + "error: Zeichen 1: Der Text ist leer\n";
    QTest::newRow("condition where a formula belongs")
        << "Dia .EQ. 1"
        << "Size"
        << wrong + "error: Zeichen 1: Erwartet wird eine Zuweisung an die Variable Size\n";
    QTest::newRow("other variable")
        << "Dia = 1"
        << "Size"
        << wrong + "error: Zeichen 1: Erwartet wird eine Zuweisung an die Variable Size\n";
    QTest::newRow("unknown variable")
        << "Foo .EQ. 1"
        << "" << wrong + "error: Zeichen 1: Die Variable Foo ist nicht bekannt\n";
    QTest::newRow("second line")
        << "Dia .EQ.\nFoo"
        << "" << wrong + "error: Zeile 2, Zeichen 1: Die Variable Foo ist nicht bekannt\n";
    // The target's value stands in for the reference when the text is checked.
    QTest::newRow("place after a reference")
        << "SOURCE@Size + Foo"
        << "" << wrong + "error: Zeichen 15: Die Variable Foo ist nicht bekannt\n";
}

void tst_DlgFormulaEditor::checkSyntax()
{
    QFETCH(QString, formula);
    QFETCH(QString, variable);
    QFETCH(QString, message);
    const auto dialog = makeDialog(variable);
    dialog->setFormula(formula);
    const QStringList told = message.isEmpty() ? QStringList() : QStringList{message};
    QCOMPARE(dialog->checkSyntax(false), message.isEmpty());
    QCOMPARE(sink->texts(), told);
    sink->clear();
    QCOMPARE(dialog->checkSyntax(true), message.isEmpty());
    QCOMPARE(sink->texts(), message.isEmpty() ? QStringList{"Keine Fehler gefunden"} : told);
    QCOMPARE(int(sink->shown().first().mode), int(PMsgDlgMode::Information));
    QCOMPARE(dialog->getFormula(), formula); // as typed
}

void tst_DlgFormulaEditor::anyMessageMakesItWrong()
{
    const VKTab::NodeNumber node("1", 0);
    const VKTab::NodeInvalid invalid(0);
    const auto verdict = [](const VKTab::NodeBase *tree, const QHash<QString, QStringList> &said) {
        return DlgFormulaEditorPrivate::isCorrect(tree, said);
    };
    QVERIFY(verdict(&node, {}));
    QVERIFY(!verdict(&node, {{"warning", {"odd"}}}));
    QVERIFY(!verdict(&node, {{"info", {}}}));
    QVERIFY(!verdict(&invalid, {}));
    QVERIFY(!verdict(nullptr, {}));
}

void tst_DlgFormulaEditor::failureWithoutMessage()
{
    QCOMPARE(DlgFormulaEditorPrivate::errorText({}), QString("Der Algorithmus enthält Fehler:\n"));
    const QString text =
        DlgFormulaEditorPrivate::errorText({{"error", {"error: a", "b"}}, {"warning", {"c"}}});
    QVERIFY(text == "Der Algorithmus enthält Fehler:\nerror: a\nb\nc\n" ||
            text == "Der Algorithmus enthält Fehler:\nc\nerror: a\nb\n");
}

void tst_DlgFormulaEditor::acceptWithoutCheck()
{
    const auto dialog = makeDialog();
    dialog->setFormula("Foo +");
    const int result = run(*dialog, [&] {
        QTest::mouseClick(boxOf(*dialog)->button(QDialogButtonBox::Ok), Qt::LeftButton);
        if (dialog->isVisible())
            dialog->reject();
    });
    QCOMPARE(result, int(QDialog::Accepted));
    QCOMPARE(sink->texts(), QStringList());
    QCOMPARE(dialog->getFormula(), QString("Foo +"));
}

void tst_DlgFormulaEditor::acceptWithCheck_data()
{
    QTest::addColumn<QString>("formula");
    QTest::addColumn<bool>("closes");
    QTest::newRow("correct") << "Dia .GT. 1" << true;
    QTest::newRow("wrong") << "Foo" << false;
}

void tst_DlgFormulaEditor::acceptWithCheck()
{
    QFETCH(QString, formula);
    QFETCH(bool, closes);
    const auto dialog = makeDialog();
    dialog->setForceSyntaxCheck(true);
    dialog->setFormula(formula);
    const int result = run(*dialog, [&] {
        QTest::mouseClick(boxOf(*dialog)->button(QDialogButtonBox::Ok), Qt::LeftButton);
        QCOMPARE(dialog->isVisible(), !closes);
        if (!closes)
            dialog->reject();
    });
    QCOMPARE(result, int(closes ? QDialog::Accepted : QDialog::Rejected));
    QCOMPARE(sink->texts().size(), closes ? 0 : 1);
}

void tst_DlgFormulaEditor::cancelNeverChecks()
{
    const auto dialog = makeDialog();
    dialog->setForceSyntaxCheck(true);
    dialog->setFormula("Foo");
    QCOMPARE(run(*dialog, [&] { QTest::keyClick(editOf(*dialog), Qt::Key_Escape); }),
             int(QDialog::Rejected));
    QCOMPARE(sink->texts(), QStringList());
}

void tst_DlgFormulaEditor::checkButton()
{
    const auto dialog = makeDialog();
    dialog->setFormula("Dia");
    auto *const button = dialog->findChild<QPushButton *>("checkSyntax");
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(sink->texts(), QStringList{"Keine Fehler gefunden"});
    dialog->setFormula("Foo");
    button->setFocus();
    QTest::keyClick(button, Qt::Key_Space);
    QCOMPARE(sink->texts().size(), 2);
    QVERIFY(sink->texts().last().startsWith("Der Algorithmus enthält Fehler:\n"));
}

QStringList tst_DlgFormulaEditor::menuOf(DlgFormulaEditor &dialog, const QString &sub)
{
    QPlainTextEdit *const edit = editOf(dialog);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
    QCoreApplication::sendEvent(edit, &event);
    std::unique_ptr<QMenu> menu(edit->findChild<QMenu *>("formulaMenu"));
    QStringList texts;
    for (const QAction *action : menu->actions()) {
        if (!action->menu())
            continue;
        if (sub.isEmpty())
            texts += action->text();
        else if (action->text() == sub)
            for (const QAction *item : action->menu()->actions())
                texts += item->text();
    }
    return texts;
}

void tst_DlgFormulaEditor::menu_data()
{
    QTest::addColumn<int>("shown");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("all") << 15 << QStringList{"Funktionen", "Operatoren", "Logik", "VAR"};
    QTest::newRow("functions") << 1 << QStringList{"Funktionen"};
    QTest::newRow("operators") << 2 << QStringList{"Operatoren"};
    QTest::newRow("logic") << 4 << QStringList{"Logik"};
    QTest::newRow("variables") << 8 << QStringList{"VAR"};
    QTest::newRow("none") << 0 << QStringList();
}

void tst_DlgFormulaEditor::menu()
{
    QFETCH(int, shown);
    const auto dialog = makeDialog();
    dialog->setShowContextMenu(shown & 1, shown & 2, shown & 4, shown & 8);
    QTEST(menuOf(*dialog), "texts");
    if (shown & 8)
        QCOMPARE(menuOf(*dialog, "VAR"), (QStringList{"Dia", "Len"}));
}

void tst_DlgFormulaEditor::tables()
{
    VKTab::TableDescriptor descriptor;
    descriptor.fields = {TestTables::field("X"), TestTables::field("Y")};
    const VKTab::ContentRef table = TestTables::table(descriptor, "X,Y\n1,2\n");
    const auto dialog = makeDialog();
    dialog->setShowContextMenu(true, true, true, true);
    dialog->setSourceTabContent(table);
    QCOMPARE(menuOf(*dialog, "VAR"), (QStringList{"X", "Y"}));
    dialog->setTargetTabContent(table);
    QCOMPARE(menuOf(*dialog, "SOURCE@"), (QStringList{"SOURCE@X", "SOURCE@Y"}));
    // The check stays with the sample values.
    dialog->setFormula("X .EQ. 1");
    QVERIFY(!dialog->checkSyntax(false));
}

void tst_DlgFormulaEditor::tablesAndNoVariables()
{
    VKTab::TableDescriptor descriptor;
    descriptor.fields = {TestTables::field("X")};
    const VKTab::ContentRef table = TestTables::table(descriptor, "X\n1\n");
    const auto dialog = makeDialog();
    dialog->setSourceTabContent(table);
    dialog->setTargetTabContent(table);
    dialog->setShowContextMenu(true, true, true, false);
    QCOMPARE(menuOf(*dialog), (QStringList{"Funktionen", "Operatoren", "Logik"}));
}

void tst_DlgFormulaEditor::completionWritesTheFormula()
{
    const auto dialog = makeDialog("Size");
    dialog->setShowContextMenu(true, true, true, true);
    const int result = run(*dialog, [&] {
        auto close = qScopeGuard([&] { dialog->reject(); });
        QPlainTextEdit *const edit = editOf(*dialog);
        QWidget *const list = edit->findChild<QWidget *>("formulaCompletion");
        QTest::keyClicks(edit, "Si");
        QTRY_VERIFY(list->isVisible());
        QTest::keyClick(edit, Qt::Key_Return); // the list's, not the dialog's
        QVERIFY(dialog->isVisible());
        QTest::keyClicks(edit, "Di");
        QTRY_VERIFY(list->isVisible());
        QTest::keyClick(edit, Qt::Key_Escape); // closes the list alone
        QVERIFY(dialog->isVisible());
        QTest::keyClicks(edit, "a");
        QTest::mouseClick(boxOf(*dialog)->button(QDialogButtonBox::Ok), Qt::LeftButton);
        if (!dialog->isVisible())
            close.dismiss();
    });
    QCOMPARE(result, int(QDialog::Accepted));
    QCOMPARE(dialog->getFormula(), QString("Size = Dia"));
}

QTEST_MAIN(tst_DlgFormulaEditor)
#include "tst_DlgFormulaEditor.moc"
