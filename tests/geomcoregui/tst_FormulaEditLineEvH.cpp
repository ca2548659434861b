#include "../geomcore/ExpressionTesting.h"
#include "ViewTables.h"

#include <geomcore/expression/Tokenizer.h>
#include <geomcoregui/text/FormulaEditLineEvH.h>
#include <geomcoregui/text/VkTableHighlighter.h>

#include <QAbstractItemModelTester>
#include <QAbstractItemView>
#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

#include <memory>

using namespace ExpressionTesting;

class tst_FormulaEditLineEvH : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void menuHasWhatIsShown_data();
    void menuHasWhatIsShown();
    void menuOfVariables_data();
    void menuOfVariables();
    void menuByKeyboard();
    void choosingInserts_data();
    void choosingInserts();
    void insertingIsOneStepOfUndo();
    void readOnlyTextStays();

    void completesWhileTyping_data();
    void completesWhileTyping();
    void completionOfTheAssignment();
    void arrowsChoose();
    void escapeClosesTheListAlone();
    void ctrlSpaceShowsAll();
    void clickInserts();
    void nothingWithin_data();
    void nothingWithin();
    void listUnderModelTester();

    void firstErrorIsTold_data();
    void firstErrorIsTold();
    void errorGoesWhenTheTextIsRight();
    void stripLeavesTheCursorFree();
    void unknownNamesHaveAColour();
    void helpOfTheFunction();
    void helpOfTheError();
    void hostileVariables();
    void editorLivesOn();
    void editorGoesFirst();

private:
    [[nodiscard]] QMenu *openMenu();
    [[nodiscard]] QStringList menuTexts(QMenu *menu) const;
    [[nodiscard]] QAction *action(QMenu *menu, const QString &text) const;
    [[nodiscard]] QStringList completions() const;
    void setStatement(const QString &name = {});

    std::unique_ptr<QPlainTextEdit> edit;
    std::unique_ptr<FormulaEditLineEvH> handler;
    QAbstractItemView *list = nullptr;
    QLabel *strip = nullptr;
};

void tst_FormulaEditLineEvH::init()
{
    edit = std::make_unique<QPlainTextEdit>();
    handler = std::make_unique<FormulaEditLineEvH>();
    handler->setEdit(edit.get());
    edit->show();
    edit->activateWindow();
    edit->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(edit.get()));
    list = edit->findChild<QAbstractItemView *>("formulaCompletion");
    strip = edit->findChild<QLabel *>("formulaError");
    QVERIFY(list);
    QVERIFY(strip);
}

void tst_FormulaEditLineEvH::cleanup()
{
    QToolTip::hideText();
    handler.reset();
    edit.reset();
}

QMenu *tst_FormulaEditLineEvH::openMenu()
{
    const QPoint place = edit->cursorRect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, edit->viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(edit->viewport(), &event);
    return edit->findChild<QMenu *>("formulaMenu");
}

QStringList tst_FormulaEditLineEvH::menuTexts(QMenu *menu) const
{
    QStringList texts;
    for (const QAction *action : menu->actions()) {
        if (action->menu())
            texts += action->text();
    }
    return texts;
}

QAction *tst_FormulaEditLineEvH::action(QMenu *menu, const QString &text) const
{
    for (QAction *const action : menu->actions()) {
        if (!action->menu() && action->text() == text)
            return action;
        QAction *const below = action->menu() ? this->action(action->menu(), text) : nullptr;
        if (below)
            return below;
    }
    return nullptr;
}

QStringList tst_FormulaEditLineEvH::completions() const
{
    QStringList texts;
    if (!list->isVisible())
        return texts;
    for (int row = 0; row < list->model()->rowCount(); ++row)
        texts += list->model()->index(row, 0).data().toString();
    return texts;
}

void tst_FormulaEditLineEvH::setStatement(const QString &name)
{
    handler->setStatement(varset({{"Dia", "12"}, {"Len", "20"}}), varset({{"Size", "M12"}}), name);
}

void tst_FormulaEditLineEvH::menuHasWhatIsShown_data()
{
    QTest::addColumn<int>("shown");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("all") << 7 << QStringList{"Funktionen", "Operatoren", "Logik"};
    QTest::newRow("functions") << 1 << QStringList{"Funktionen"};
    QTest::newRow("operators") << 2 << QStringList{"Operatoren"};
    QTest::newRow("logic") << 4 << QStringList{"Logik"};
    QTest::newRow("none") << 0 << QStringList();
}

void tst_FormulaEditLineEvH::menuHasWhatIsShown()
{
    QFETCH(int, shown);
    handler->setShowFunctions(shown & 1);
    handler->setShowOperators(shown & 2);
    handler->setShowLogic(shown & 4);
    QTEST(menuTexts(openMenu()), "texts");
}

void tst_FormulaEditLineEvH::menuOfVariables_data()
{
    QTest::addColumn<QString>("calls");
    QTest::addColumn<QStringList>("labels");
    QTest::addColumn<QStringList>("variables");
    const QStringList abc{"A", "B", "C"};
    const QStringList prefixed{"SOURCE@A", "SOURCE@B", "SOURCE@C"};
    QTest::newRow("none at the start") << "" << QStringList() << QStringList();
    QTest::newRow("varset, by name") << "v" << QStringList{"VAR"} << QStringList{"Dia", "Len"};
    QTest::newRow("prefixed varset")
        << "p" << QStringList{"VAR"} << QStringList{"VARDia", "VARLen"};
    QTest::newRow("table") << "t" << QStringList{"VAR"} << abc;
    QTest::newRow("last content counts") << "vt" << QStringList{"VAR"} << abc;
    QTest::newRow("second table") << "va" << QStringList{"VAR", "SOURCE@"}
                                  << QStringList{"Dia", "Len"} + prefixed;
    QTest::newRow("second table first")
        << "av" << QStringList{"VAR", "SOURCE@"} << QStringList{"Dia", "Len"} + prefixed;
    QTest::newRow("without content") << "tai" << QStringList() << QStringList();
    QTest::newRow("table that is not valid")
        << "vax" << QStringList{"VAR"} << QStringList{"Dia", "Len"};
}

void tst_FormulaEditLineEvH::menuOfVariables()
{
    QFETCH(QString, calls);
    QFETCH(QStringList, variables);
    const Varset values = varset({{"Len", "20"}, {"Dia", "12"}});
    const VKTab::ContentRef table = ViewTables::large(2);
    for (const QChar call : calls) {
        switch (call.unicode()) {
        case 'v':
            handler->setContent(values, "VAR", false);
            break;
        case 'p':
            handler->setContent(values, "VAR", true);
            break;
        case 't':
            handler->setContent(table, "VAR", false);
            break;
        case 'a':
            handler->setAdditionalContent(table, "SOURCE@");
            break;
        case 'x':
            handler->setAdditionalContent(VKTab::ContentRef(), "SOURCE@");
            break;
        default:
            handler->initWithoutContent();
        }
    }
    QMenu *const menu = openMenu();
    QTEST(menuTexts(menu).mid(3), "labels");
    QStringList found;
    for (const QAction *sub : menu->actions()) {
        if (!sub->menu() || QStringList{"Funktionen", "Operatoren", "Logik"}.contains(sub->text()))
            continue;
        for (const QAction *item : sub->menu()->actions())
            found += item->text();
    }
    QCOMPARE(found, variables);
}

void tst_FormulaEditLineEvH::menuByKeyboard()
{
    edit->setPlainText("1 + ");
    edit->moveCursor(QTextCursor::End);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1),
                            edit->mapToGlobal(QPoint(1, 1)));
    QCoreApplication::sendEvent(edit.get(), &event);
    auto *const menu = edit->findChild<QMenu *>("formulaMenu");
    QVERIFY(menu);
    QCOMPARE(edit->textCursor().position(), 4);
    // The standard commands of a text come first.
    QVERIFY(menu->actions().first()->isSeparator() || !menu->actions().first()->menu());
    action(menu, "+")->trigger();
    QCOMPARE(edit->toPlainText(), QString("1 + + "));
}

void tst_FormulaEditLineEvH::choosingInserts_data()
{
    QTest::addColumn<QString>("text"); // "|" the cursor, "[...]" the selection
    QTest::addColumn<QString>("item");
    QTest::addColumn<QString>("result");
    QTest::newRow("variable") << "1 + |"
                              << "Dia"
                              << "1 + Dia|";
    QTest::newRow("variable for the selection") << "[Len] + 1"
                                                << "Dia"
                                                << "Dia| + 1";
    QTest::newRow("function") << "|"
                              << "ABS(Zahl)"
                              << "ABS(|)";
    QTest::newRow("function around the selection") << "[Dia - 1]"
                                                   << "ABS(Zahl)"
                                                   << "ABS(Dia - 1)|";
    QTest::newRow("function before brackets") << "|(Dia)"
                                              << "ABS(Zahl)"
                                              << "ABS(|Dia)";
    QTest::newRow("operator") << "Dia|"
                              << ".EQ."
                              << "Dia .EQ. |";
    QTest::newRow("operator between blanks") << "Dia | 1"
                                             << ".EQ."
                                             << "Dia .EQ. |1";
    QTest::newRow("operator at the start") << "|"
                                           << ".NOT."
                                           << ".NOT. |";
    QTest::newRow("operator in a second line") << "Dia\n|1"
                                               << "+"
                                               << "Dia\n+ |1";
    QTest::newRow("logic") << "A|B"
                           << ".AND."
                           << "A .AND. |B";
}

void tst_FormulaEditLineEvH::choosingInserts()
{
    QFETCH(QString, text);
    QFETCH(QString, item);
    handler->setContent(varset({{"Dia", "1"}}), "VAR", false);
    const int begin = int(text.indexOf(QRegularExpression("[|\\[]")));
    const int end = int(text.indexOf(QRegularExpression("[|\\]]"), begin));
    const bool isSelection = text[begin] == '[';
    edit->setPlainText(QString(text).remove(QRegularExpression("[|\\[\\]]")));
    QTextCursor cursor = edit->textCursor();
    cursor.setPosition(begin);
    cursor.setPosition(isSelection ? end - 1 : begin, QTextCursor::KeepAnchor);
    edit->setTextCursor(cursor);
    QAction *const chosen = action(openMenu(), item);
    QVERIFY(chosen);
    QVERIFY(!chosen->toolTip().isEmpty());
    chosen->trigger();
    QTEST(edit->toPlainText().insert(edit->textCursor().position(), '|'), "result");
}

void tst_FormulaEditLineEvH::insertingIsOneStepOfUndo()
{
    edit->setPlainText("Dia");
    edit->selectAll();
    action(openMenu(), "ABS(Zahl)")->trigger();
    QCOMPARE(edit->toPlainText(), QString("ABS(Dia)"));
    edit->undo();
    QCOMPARE(edit->toPlainText(), QString("Dia"));
}

void tst_FormulaEditLineEvH::readOnlyTextStays()
{
    edit->setReadOnly(true);
    action(openMenu(), "+")->trigger();
    QTest::keyClick(edit.get(), Qt::Key_Space, Qt::ControlModifier);
    QVERIFY(!list->isVisible());
    QCOMPARE(edit->toPlainText(), QString());
}

void tst_FormulaEditLineEvH::completesWhileTyping_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QStringList>("offered");
    QTest::addColumn<QString>("result"); // after Return
    QTest::newRow("variable") << "Di" << QStringList{"Dia", "DiaMax"} << "Dia|";
    QTest::newRow("letter case") << "di" << QStringList{"Dia", "DiaMax"} << "Dia|";
    QTest::newRow("exact name first") << "Dia" << QStringList{"Dia", "DiaMax"} << "Dia|";
    QTest::newRow("within a name") << "iam" << QStringList{"DiaMax"} << "DiaMax|";
    QTest::newRow("function") << "roun" << QStringList{"ROUND"} << "ROUND(|)";
    QTest::newRow("after an operator") << "1+Dia" << QStringList{"Dia", "DiaMax"} << "1+Dia|";
    QTest::newRow("operator") << "Dia .E" << QStringList{".EQ."} << "Dia .EQ. |";
    QTest::newRow("operator without a blank") << "Dia.eq" << QStringList{".EQ."} << "Dia .EQ. |";
    QTest::newRow("prefix") << "SOURCE@" << QStringList{"SOURCE@A", "SOURCE@B", "SOURCE@C"}
                            << "SOURCE@A|";
    QTest::newRow("name with prefix") << "source@b" << QStringList{"SOURCE@B"} << "SOURCE@B|";
}

void tst_FormulaEditLineEvH::completesWhileTyping()
{
    QFETCH(QString, typed);
    QFETCH(QStringList, offered);
    handler->setContent(varset({{"Dia", "12"}, {"DiaMax", "20"}}), "VAR", false);
    handler->setAdditionalContent(ViewTables::large(1), "SOURCE@");
    QTest::keyClicks(edit.get(), typed);
    QTRY_COMPARE(completions(), offered);
    QTest::keyClick(edit.get(), Qt::Key_Return);
    QVERIFY(!list->isVisible());
    QTEST(edit->toPlainText().insert(edit->textCursor().position(), '|'), "result");
}

void tst_FormulaEditLineEvH::completionOfTheAssignment()
{
    setStatement("Size");
    QTest::keyClicks(edit.get(), "Si");
    QTRY_COMPARE(completions().value(0), QString("Size = "));
    QTest::keyClick(edit.get(), Qt::Key_Tab);
    QCOMPARE(edit->toPlainText(), QString("Size = "));
    QTest::keyClicks(edit.get(), "Si");
    QTRY_COMPARE(completions(), (QStringList{"SIN", "ASIN"}));
}

void tst_FormulaEditLineEvH::arrowsChoose()
{
    handler->setContent(varset({{"Dia", "12"}, {"DiaMax", "20"}}), "VAR", false);
    QTest::keyClicks(edit.get(), "Di");
    QTRY_VERIFY(list->isVisible());
    QTest::keyClick(edit.get(), Qt::Key_Up); // stays
    QTest::keyClick(edit.get(), Qt::Key_Down);
    QTest::keyClick(edit.get(), Qt::Key_Down); // stays
    QCOMPARE(list->currentIndex().row(), 1);
    QTest::keyClick(edit.get(), Qt::Key_PageUp);
    QCOMPARE(list->currentIndex().row(), 0);
    QTest::keyClick(edit.get(), Qt::Key_PageDown);
    QTest::keyClick(edit.get(), Qt::Key_Enter);
    QCOMPARE(edit->toPlainText(), QString("DiaMax"));
    // Without a list the keys are the editor's.
    QTest::keyClick(edit.get(), Qt::Key_Return);
    QCOMPARE(edit->toPlainText(), QString("DiaMax\n"));
}

void tst_FormulaEditLineEvH::escapeClosesTheListAlone()
{
    QWidget window;
    edit->setParent(&window);
    edit->show();
    window.show();
    window.activateWindow();
    edit->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QTest::keyClicks(edit.get(), "RO");
    QTRY_VERIFY(list->isVisible());
    QTest::keyClick(edit.get(), Qt::Key_Escape);
    QVERIFY(!list->isVisible());
    QCOMPARE(edit->toPlainText(), QString("RO"));
    QVERIFY(window.isVisible());
    edit->setParent(nullptr);
}

void tst_FormulaEditLineEvH::ctrlSpaceShowsAll()
{
    handler->setContent(varset({{"Dia", "12"}}), "VAR", false);
    QTest::keyClick(edit.get(), Qt::Key_Space, Qt::ControlModifier);
    QTRY_VERIFY(list->isVisible());
    QCOMPARE(completions().first(), QString("Dia"));
    QCOMPARE(list->model()->index(0, 1).data().toString(), QString("12"));
    QVERIFY(completions().contains("UPPER"));
    QVERIFY(completions().contains(".AND."));
    QCOMPARE(edit->toPlainText(), QString());
}

void tst_FormulaEditLineEvH::clickInserts()
{
    QTest::keyClicks(edit.get(), "ABS");
    QTest::keyClick(edit.get(), Qt::Key_Backspace);
    QTRY_VERIFY(list->isVisible());
    const QPoint place = list->visualRect(list->model()->index(0, 0)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(edit->toPlainText(), QString("ABS()"));
    QVERIFY(!list->isVisible());
}

void tst_FormulaEditLineEvH::nothingWithin_data()
{
    QTest::addColumn<QString>("typed");
    QTest::newRow("text") << "'Dia";
    QTest::newRow("number") << "12";
    QTest::newRow("number with exponent") << "1.2E";
    QTest::newRow("one letter") << "D";
    QTest::newRow("unknown") << "Xyz";
}

void tst_FormulaEditLineEvH::nothingWithin()
{
    QFETCH(QString, typed);
    handler->setContent(varset({{"Dia", "12"}, {"D12", "12"}}), "VAR", false);
    QTest::keyClicks(edit.get(), typed);
    QCoreApplication::processEvents();
    QCOMPARE(completions(), QStringList());
}

void tst_FormulaEditLineEvH::listUnderModelTester()
{
    const QAbstractItemModelTester tester(list->model(),
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    QTest::keyClicks(edit.get(), "RO");
    QTRY_VERIFY(list->isVisible());
    QTest::keyClicks(edit.get(), "x");
    QTRY_VERIFY(!list->isVisible());
    QTest::keyClick(edit.get(), Qt::Key_Space, Qt::ControlModifier);
    QVERIFY(!list->isVisible()); // "ROx"
}

void tst_FormulaEditLineEvH::firstErrorIsTold_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("variable");
    QTest::addColumn<QString>("underlined");
    QTest::addColumn<QString>("error");
    QTest::newRow("unknown variable") << "1 + Foo"
                                      << ""
                                      << "Foo"
                                      << "Zeichen 5: Die Variable Foo ist nicht bekannt";
    QTest::newRow("second line") << "1 +\n Foo"
                                 << ""
                                 << "Foo"
                                 << "Zeile 2, Zeichen 2: Die Variable Foo ist nicht bekannt";
    QTest::newRow("at the end") << "Dia .EQ. "
                                << ""
                                << ".EQ."
                                << "Zeichen 10: Erwartet wird ein Wert, gefunden wurde das Ende";
    QTest::newRow("no assignment")
        << "Dia"
        << "Size"
        << "Dia"
        << "Zeichen 1: Erwartet wird eine Zuweisung an die Variable Size";
    QTest::newRow("reference of the target") << "Size = Foo + SOURCE@Size"
                                             << "Size"
                                             << "Foo"
                                             << "Zeichen 8: Die Variable Foo ist nicht bekannt";
    QTest::newRow("right") << "Size = Dia + SOURCE@Size"
                           << "Size"
                           << ""
                           << "";
    QTest::newRow("empty") << " "
                           << "Size"
                           << ""
                           << "";
}

void tst_FormulaEditLineEvH::firstErrorIsTold()
{
    QFETCH(QString, text);
    QFETCH(QString, variable);
    QFETCH(QString, error);
    setStatement(variable);
    edit->setPlainText(text);
    QTRY_COMPARE(strip->text(), error);
    QCOMPARE(strip->isVisible(), !error.isEmpty());
    QCOMPARE(edit->accessibleDescription(), error);
    const auto selections = edit->extraSelections();
    QTEST(selections.isEmpty() ? QString() : selections.first().cursor.selectedText(),
          "underlined");
    if (!selections.isEmpty())
        QCOMPARE(selections.first().format.underlineStyle(), QTextCharFormat::WaveUnderline);
}

void tst_FormulaEditLineEvH::errorGoesWhenTheTextIsRight()
{
    setStatement();
    edit->setPlainText("Dia +");
    QTRY_VERIFY(strip->isVisible());
    edit->moveCursor(QTextCursor::End);
    QTest::keyClicks(edit.get(), " 1");
    QVERIFY(edit->extraSelections().isEmpty()); // at once, its place has moved
    QTRY_VERIFY(!strip->isVisible());
}

void tst_FormulaEditLineEvH::stripLeavesTheCursorFree()
{
    setStatement();
    edit->setPlainText(QString("Dia +\n").repeated(100));
    QTRY_VERIFY(strip->isVisible());
    const auto free = [&] {
        const QRect cursor = edit->cursorRect().translated(edit->viewport()->pos());
        return !strip->geometry().intersects(cursor);
    };
    QVERIFY(free());
    edit->moveCursor(QTextCursor::End);
    QTRY_VERIFY(free());
    edit->moveCursor(QTextCursor::Start);
    QTRY_VERIFY(free());
}

void tst_FormulaEditLineEvH::unknownNamesHaveAColour()
{
    auto *const highlighter = new VkTableHighlighter(VKTab::Tokenizer(), edit->document());
    handler->setHighlighter(highlighter);
    setStatement();
    const auto wavy = [&] {
        QStringList names;
        for (QTextBlock block = edit->document()->begin(); block.isValid(); block = block.next()) {
            for (const auto &range : block.layout()->formats()) {
                if (range.format.underlineStyle() == QTextCharFormat::WaveUnderline)
                    names += block.text().mid(range.start, range.length);
            }
        }
        return names;
    };
    edit->setPlainText("Dia + Foo + ABS(Len) + BAR(1)\n+ Size + SOURCE@Size + SOURCE@Fo");
    QCOMPARE(wavy(), (QStringList{"Foo", "BAR", "Size", "Fo"}));
    edit->setPlainText("Size = Dia");
    QCOMPARE(wavy(), QStringList());
    edit->setPlainText("Dia = Len");
    QCOMPARE(wavy(), QStringList{"Dia"});
    handler->setEdit(nullptr);
    QCOMPARE(wavy(), QStringList());
}

void tst_FormulaEditLineEvH::helpOfTheFunction()
{
    QTest::keyClicks(edit.get(), "1+round(2,");
    QTRY_VERIFY(QToolTip::text().contains("ROUND(Zahl, Stellen)"));
    QToolTip::hideText();
    edit->setPlainText("MOD(7, 2)");
    edit->moveCursor(QTextCursor::Start);
    QTest::keyClick(edit.get(), Qt::Key_F1);
    QTRY_VERIFY(QToolTip::text().contains("<code>MOD(17, 5)</code> = <code>2</code>"));
}

void tst_FormulaEditLineEvH::helpOfTheError()
{
    setStatement();
    edit->setPlainText("1 + Foo");
    QTRY_VERIFY(strip->isVisible());
    edit->moveCursor(QTextCursor::End);
    QTest::keyClick(edit.get(), Qt::Key_F1);
    QTRY_COMPARE(QToolTip::text(), QString("Zeichen 5: Die Variable Foo ist nicht bekannt"));
}

void tst_FormulaEditLineEvH::hostileVariables()
{
    VKTab::TableDescriptor descriptor;
    VKTab::TableField field = TestTables::field("A");
    field.title = "<img src='x'> &amp; a\nb";
    descriptor.fields = {field, TestTables::field("Länge 2"), TestTables::field("a&b"),
                         TestTables::field("_x")};
    handler->setContent(TestTables::table(descriptor, "A,Länge 2,a&b,_x\n1,2,3,4\n"), "A&B", false);
    QMenu *const menu = openMenu();
    QCOMPARE(menuTexts(menu).mid(3), QStringList{"A&&B"});
    QVERIFY(action(menu, "_x"));
    QVERIFY(!action(menu, "Länge 2"));
    QVERIFY(!action(menu, "a&&b"));
    QVERIFY(!action(menu, "A")->toolTip().contains("<img"));
}

void tst_FormulaEditLineEvH::editorLivesOn()
{
    setStatement();
    edit->setPlainText("Foo");
    QTRY_VERIFY(strip->isVisible());
    QTest::keyClicks(edit.get(), "RO");
    handler.reset();
    QCoreApplication::processEvents();
    QVERIFY(!edit->findChild<QWidget *>("formulaError"));
    QVERIFY(!edit->findChild<QWidget *>("formulaCompletion"));
    QVERIFY(edit->extraSelections().isEmpty());
    QTest::keyClicks(edit.get(), "x");
    QVERIFY(edit->toPlainText().contains("ROx"));
}

void tst_FormulaEditLineEvH::editorGoesFirst()
{
    edit.reset();
    setStatement();
    handler->setContent(varset({{"A", "1"}}), "VAR", false);
    handler.reset();
}

QTEST_MAIN(tst_FormulaEditLineEvH)
#include "tst_FormulaEditLineEvH.moc"
