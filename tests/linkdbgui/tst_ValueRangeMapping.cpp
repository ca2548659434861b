#include "TableEditorFixture.h"

#include <mapping/table/dlgEditValueRangeMappings.h>
#include <mapping/table/dlgSelectValueRangeVars.h>
#include <mapping/table/VarsetMappingRunnable.h>

#include <core/message/PMessage.h>
#include <core/message/PScriptedMessageSink.h>

#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTest>
#include <QTimer>

using PRJMAPPING::Mapped;
using PRJMAPPING::Verified;
using VKTab::LineId;

namespace {

const QString warning = "Das Auflösen der Wertebereiche kann, abhängig von den gewählten Variablen "
                        "und der Tabellengröße, sehr lange dauern.\nWirklich fortfahren?";

QPushButton *buttonOf(const QDialog &dialog, QDialogButtonBox::StandardButton which)
{
    return dialog.findChild<QDialogButtonBox *>()->button(which);
}

/// Works the next modal dialog of that type once it is open.
template<class Dialog>
void whenOpen(const std::function<void(Dialog &)> &work)
{
    auto *const timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, work] {
        if (auto *const dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget())) {
            timer->deleteLater();
            timer->stop();
            work(*dialog);
        }
    });
    timer->start(5);
}

/// Does something as soon as events are delivered after the choice of variables: during the run.
void whenRunning(const std::function<void()> &work)
{
    auto *const timer = new QTimer(qApp);
    // A closed dialog may let the timer run out once more before the run begins.
    QObject::connect(timer, &QTimer::timeout, timer,
                     [timer, work, seen = false, times = 0]() mutable {
                         if (QApplication::activeModalWidget()) {
                             seen = true;
                         } else if (seen && ++times == 2) {
                             timer->deleteLater();
                             timer->stop();
                             work();
                         }
                     });
    timer->start(1);
}

void chooseRow(QMenu *menu)
{
    const QPointer<QMenu> open = menu; // a dialog closes it
    TableEditorFixture::rowOf(menu, "Aufgelöste Wertebereiche für diese Zeile zuordnen")->trigger();
    if (open)
        open->close();
}

} // namespace

class tst_ValueRangeMapping : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void selectDialog();
    void editDialog();
    void combinationsAreTold();

    void cancelledWarning();
    void cancelledDialog();
    void allLines();
    void selectedLine();
    void selectedLineWithoutSelection();
    void tableWithoutRanges();
    void runWithoutHits();
    void mappingIsTakenOverInAnyCase();
    void widgetGoesDuringTheRun();
    void widgetGoesBehindADialog_data();
    void widgetGoesBehindADialog();
    void otherTexts();

    void firstInDisplayOrder();
    void hiddenRangeOfTheTarget();
    void severalTargets();
    void secondRunReplaces();
    void lineWithoutHitKeepsItsText();
    void valuesAreThoseOfTheSource();
    void targetsOfUnreadableTables();
    void unmappedLines();

    void editedText();
    void unchangedText();
    void cancelledEdit();
    void editWithoutTarget();

private:
    [[nodiscard]] QString extended(const PrjMappingC &mapping, int target, int line) const
    {
        return mapping.findTarget(target).getMappedLine(line).getExtended();
    }
    /// A run over all lines, without widgets.
    [[nodiscard]] PrjMappingC run(const QStringList &variables, bool *changed = nullptr) const;
    void chooseVariables(const QStringList &names) const;
    /// So many lines that the run takes its time.
    void writeLongTable() const
    {
        QByteArray lines = "D,L:r\n";
        for (int i = 0; i < 15000; ++i)
            lines += "M8,10;20\n";
        f->catalog.write("old/a.prj", lines);
    }

    std::unique_ptr<TableEditorFixture> f;
    std::shared_ptr<PScriptedMessageSink> m_messages;
    std::shared_ptr<PMessageSink> m_formerSink;
};

void tst_ValueRangeMapping::init()
{
    m_messages = std::make_shared<PScriptedMessageSink>();
    m_formerSink = PMessage::setSink(m_messages);
    f = std::make_unique<TableEditorFixture>();
    f->catalog.write("old/a.prj", "D,L:r,T:r\nM8,10;20,1;2\nM9,30,1\n");
    f->catalog.write("new/a.prj", "D,L:r\nM8,10\nM8,20;40\nM9,30\n");
    enter(f->mapping, 0, 1, 1, Mapped);
    enter(f->mapping, 0, 2, 3, Verified);
}

void tst_ValueRangeMapping::cleanup()
{
    f.reset();
    PMessage::setSink(m_formerSink);
}

PrjMappingC tst_ValueRangeMapping::run(const QStringList &variables, bool *changed) const
{
    VarsetMappingRunnable::Task task;
    task.variables = variables;
    task.mapping = f->mapping;
    task.sourceTable = f->read("old/a.prj");
    task.lineIds = task.sourceTable.getLineIdList();
    VarsetMappingRunnable runnable(task);
    runnable.run();
    if (changed)
        *changed = runnable.isChanged();
    return runnable.getMapping();
}

void tst_ValueRangeMapping::chooseVariables(const QStringList &names) const
{
    whenOpen<dlgSelectValueRangeVars>([names](dlgSelectValueRangeVars &dialog) {
        for (QCheckBox *const box : dialog.findChildren<QCheckBox *>()) {
            if (names.contains(box->text()))
                box->click();
        }
        QTest::mouseClick(buttonOf(dialog, QDialogButtonBox::Ok), Qt::LeftButton);
    });
}

void tst_ValueRangeMapping::selectDialog()
{
    dlgSelectValueRangeVars dialog({"B", "A", "C"}, nullptr);
    QCOMPARE(dialog.windowTitle(), QString("Wertebereichsvariablen auswählen"));
    QCOMPARE(dialog.objectName(), QString("dlgSelectValueRangeVars"));
    const QList<QCheckBox *> boxes = dialog.findChildren<QCheckBox *>();
    QCOMPARE(boxes.size(), 3);
    const QPushButton *const ok = buttonOf(dialog, QDialogButtonBox::Ok);
    QVERIFY(!ok->isEnabled());
    boxes[2]->click();
    QVERIFY(ok->isEnabled());
    boxes[0]->click();
    QCOMPARE(dialog.selectedNames(), QStringList({"B", "C"}));
    boxes[0]->click();
    boxes[2]->click();
    QVERIFY(!ok->isEnabled());
    QCOMPARE(dialog.selectedNames(), QStringList());
    buttonOf(dialog, QDialogButtonBox::Cancel)->click();
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
}

void tst_ValueRangeMapping::editDialog()
{
    dlgEditValueRangeMappings dialog("{L=10} -> 1", nullptr);
    QCOMPARE(dialog.windowTitle(), QString("Wertebereichszuordnungen bearbeiten"));
    QCOMPARE(dialog.objectName(), QString("dlgEditValueRangeMappings"));
    QCOMPARE(dialog.text(), QString("{L=10} -> 1"));
    QTest::keyClicks(dialog.findChild<QPlainTextEdit *>(), "x");
    QCOMPARE(dialog.text(), QString("x{L=10} -> 1"));
    buttonOf(dialog, QDialogButtonBox::Ok)->click();
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void tst_ValueRangeMapping::combinationsAreTold()
{
    // 6 and 1 of the first and the second line; the third has more than a run walks
    f->catalog.write("old/a.prj", "D,L:r,T:r\nM8,10;20;30,1;2\nM9,30,1\nM10,1..999/1,1..999/1\n");
    f->load();
    m_messages->addAnswer(PMsgReply::Ok);
    QStringList told;
    whenOpen<dlgSelectValueRangeVars>([&](dlgSelectValueRangeVars &dialog) {
        const auto *const count = dialog.findChild<QLabel *>("combinationCount");
        told << count->text();
        for (QCheckBox *const box : dialog.findChildren<QCheckBox *>()) {
            box->click();
            told << count->text();
        }
        dialog.reject();
    });
    QTest::mouseClick(f->button("btnResolvedRanges"), Qt::LeftButton);
    const auto text = [](qint64 number) {
        return "Wertkombinationen: " + QLocale().toString(number);
    };
    QCOMPARE(told, QStringList({text(0), text(3 + 999), text(6 + 100000)}));
}

void tst_ValueRangeMapping::cancelledWarning()
{
    m_messages->addAnswer(PMsgReply::Cancel);
    f->load();
    QTest::mouseClick(f->button("btnResolvedRanges"), Qt::LeftButton);
    QCOMPARE(m_messages->texts(), QStringList(warning));
    QCOMPARE(m_messages->shown().first().mode, PMsgDlgModes(PMsgDlgMode::OkCancel));
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(f->published.size(), 0);
}

void tst_ValueRangeMapping::cancelledDialog()
{
    m_messages->addAnswer(PMsgReply::Ok);
    f->load();
    whenOpen<dlgSelectValueRangeVars>([](dlgSelectValueRangeVars &dialog) { dialog.reject(); });
    QTest::mouseClick(f->button("btnResolvedRanges"), Qt::LeftButton);
    QCOMPARE(f->published.size(), 0);
}

void tst_ValueRangeMapping::allLines()
{
    m_messages->addAnswer(PMsgReply::Ok);
    f->load();
    chooseVariables({"L"});
    QTest::mouseClick(f->button("btnResolvedRanges"), Qt::LeftButton);
    QCOMPARE(f->published.size(), 1);
    QCOMPARE(entriesOf(f->current()), QString("0:1>1/1 0:2>3/2"));
    QCOMPARE(extended(f->current(), 0, 1), QString("{L=10} -> 1\n{L=20} -> 2"));
    // One plain value is no range.
    QCOMPARE(extended(f->current(), 0, 2), QString());
}

void tst_ValueRangeMapping::selectedLine()
{
    f->catalog.write("old/a.prj", "D,L:r,T:r\nM8,10;20,1;2\nM8,20;40,1\n");
    f->load();
    f->select(2);
    m_messages->addAnswer(PMsgReply::Ok);
    chooseVariables({"L"});
    QMenu *const menu = f->openMenu(f->source, 2);
    QVERIFY(menu);
    chooseRow(menu);
    QCOMPARE(f->published.size(), 1);
    QCOMPARE(extended(f->current(), 0, 1), QString());
    QCOMPARE(extended(f->current(), 0, 2), QString("{L=20} -> 2\n{L=40} -> 2"));
}

void tst_ValueRangeMapping::selectedLineWithoutSelection()
{
    f->load();
    m_messages->addAnswer(PMsgReply::Ok);
    QMenu *const menu = f->openMenu(f->source, 1);
    QVERIFY(menu);
    f->sourceTable().setSelection(LineId(), true);
    chooseRow(menu);
    QCOMPARE(m_messages->texts(), QStringList(warning));
    QCOMPARE(f->published.size(), 0);
}

void tst_ValueRangeMapping::tableWithoutRanges()
{
    f->catalog.write("old/a.prj", "D,k:n\nM8,5\n");
    f->load();
    QVERIFY(!f->button("btnResolvedRanges")->isEnabled());
    f->select(1);
    m_messages->addAnswer(PMsgReply::Ok);
    QMenu *const menu = f->openMenu(f->source, 1);
    QVERIFY(menu);
    chooseRow(menu);
    QCOMPARE(m_messages->texts(), QStringList(warning));
    QCOMPARE(f->published.size(), 0);
}

void tst_ValueRangeMapping::runWithoutHits()
{
    f->catalog.write("new/a.prj", "D,L:r\nZ,1\n");
    m_messages->addAnswer(PMsgReply::Ok);
    f->load();
    chooseVariables({"L"});
    QTest::mouseClick(f->button("btnResolvedRanges"), Qt::LeftButton);
    QCOMPARE(f->published.size(), 0);
}

void tst_ValueRangeMapping::mappingIsTakenOverInAnyCase()
{
    writeLongTable();
    f->catalog.write("new/a.prj", "D,L:r\nZ,1\n"); // no line will be found
    m_messages->addAnswer(PMsgReply::Ok);
    f->load();
    chooseVariables({"L"});
    QStringList paths;
    whenRunning([&] {
        f->widget->onProjectMappingUpdated(mappingOf("old/other.prj", {}));
        paths.append(f->widget->sourcePath());
    });
    f->button("btnResolvedRanges")->click();
    QCOMPARE(paths, QStringList("old/other.prj"));
    QCOMPARE(f->published.size(), 0);
    QCOMPARE(f->widget->sourcePath(), QString("old/a.prj"));
}

void tst_ValueRangeMapping::widgetGoesDuringTheRun()
{
    writeLongTable();
    m_messages->addAnswer(PMsgReply::Ok);
    f->load();
    chooseVariables({"L"});
    whenRunning([this] { f->widget.reset(); });
    f->button("btnResolvedRanges")->click();
    QVERIFY(!f->widget);
    QCOMPARE(f->published.size(), 0);
}

void tst_ValueRangeMapping::widgetGoesBehindADialog_data()
{
    QTest::addColumn<QString>("behind");
    for (const char *const name : {"warning", "choice of variables", "edited text"})
        QTest::newRow(name) << name;
}

void tst_ValueRangeMapping::widgetGoesBehindADialog()
{
    QFETCH(QString, behind);
    f->load();
    if (behind == "edited text") {
        whenOpen<dlgEditValueRangeMappings>([this](auto &) { f->widget.reset(); });
        f->clickIcon(f->source, 1, "ValueRangeMapping");
    } else if (behind == "choice of variables") {
        m_messages->addAnswer(PMsgReply::Ok);
        whenOpen<dlgSelectValueRangeVars>([this](auto &) { f->widget.reset(); });
        f->button("btnResolvedRanges")->click();
    } else {
        class ClosingSink : public PScriptedMessageSink
        {
        public:
            std::function<void()> close;
            PMsgReply show(const QString &text, PMsgDlgModes mode) override
            {
                close();
                return PScriptedMessageSink::show(text, mode);
            }
        };
        const auto sink = std::make_shared<ClosingSink>();
        sink->addAnswer(PMsgReply::Ok);
        sink->close = [this] {
            f->widget.reset();
        };
        const PMessageSinkScope scope(sink);
        f->button("btnResolvedRanges")->click();
    }
    QVERIFY(!f->widget);
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(f->published.size(), 0);
}

void tst_ValueRangeMapping::otherTexts()
{
    bool changed = true;
    const PrjMappingC mapping = run({}, &changed);
    QVERIFY(!changed);
    QCOMPARE(extended(mapping, 0, 1), QString());
}

void tst_ValueRangeMapping::firstInDisplayOrder()
{
    f->catalog.write("new/a.prj", "D,L:r\nM8,99\nM8,10;20\nM8,20\n");
    QCOMPARE(extended(run({"L"}), 0, 1), QString("{L=10} -> 2\n{L=20} -> 2"));
}

void tst_ValueRangeMapping::hiddenRangeOfTheTarget()
{
    f->catalog.write("new/a.prj", "D,L:r\nM8,10\nM8,20\n",
                     [](auto &table) { table.fields[1].hidden = true; });
    QCOMPARE(extended(run({"L"}), 0, 1), QString("{L=10} -> 1\n{L=20} -> 2"));
}

void tst_ValueRangeMapping::severalTargets()
{
    f->catalog.write("new/b.prj", "D,L:r\nX,1\nM8,20\n");
    f->mapping = mappingOf("old/a.prj", {"new/a.prj", "new/b.prj"});
    addCondition(f->mapping, 0, "L .LT. 15");
    addCondition(f->mapping, 1, "L .GT. 15");
    enter(f->mapping, 0, 1, 1, Mapped);
    enter(f->mapping, 1, 1, 2, Verified);
    const PrjMappingC mapping = run({"L"});
    QCOMPARE(entriesOf(mapping), QString("0:1>1/1 1:1>2/2"));
    QCOMPARE(extended(mapping, 0, 1), QString("{L=10} -> 1"));
    QCOMPARE(extended(mapping, 1, 1), QString("{L=20} -> 2"));
}

void tst_ValueRangeMapping::secondRunReplaces()
{
    enter(f->mapping, 0, 1, 1, Mapped, "{L=99} -> 7");
    f->mapping = run({"L"});
    QCOMPARE(extended(f->mapping, 0, 1), QString("{L=10} -> 1\n{L=20} -> 2"));
    QCOMPARE(extended(run({"L"}), 0, 1), QString("{L=10} -> 1\n{L=20} -> 2"));
}

void tst_ValueRangeMapping::lineWithoutHitKeepsItsText()
{
    f->catalog.write("new/a.prj", "D,L:r\nZ,1\n");
    enter(f->mapping, 0, 1, 1, Mapped, "{L=99} -> 7");
    bool changed = true;
    QCOMPARE(extended(run({"L"}, &changed), 0, 1), QString("{L=99} -> 7"));
    QVERIFY(!changed);
}

void tst_ValueRangeMapping::valuesAreThoseOfTheSource()
{
    f->catalog.write("new/a.prj", "D,Len:r\nM8,10\nM8,20\n");
    addRename(f->mapping, 0, "L", "Len");
    QCOMPARE(extended(run({"T", "L"}), 0, 1).section('\n', 0, 0), QString("{T=1}{L=10} -> 1"));
}

void tst_ValueRangeMapping::targetsOfUnreadableTables()
{
    f->mapping = mappingOf("old/a.prj", {"new/gone.prj"});
    enter(f->mapping, 0, 1, 1, Mapped, "{L=99} -> 7");
    bool changed = true;
    QCOMPARE(extended(run({"L"}, &changed), 0, 1), QString("{L=99} -> 7"));
    QVERIFY(!changed);
}

void tst_ValueRangeMapping::unmappedLines()
{
    f->mapping = mappingOf("old/a.prj", {"new/a.prj", ""});
    enter(f->mapping, 1, 1, -1, Mapped);
    bool changed = true;
    QCOMPARE(entriesOf(run({"L"}, &changed)), QString("-:1>-1/1"));
    QVERIFY(!changed);
}

void tst_ValueRangeMapping::editedText()
{
    enter(f->mapping, 0, 2, 3, Verified, "{L=30} -> 3");
    f->load();
    whenOpen<dlgEditValueRangeMappings>([](dlgEditValueRangeMappings &dialog) {
        dialog.findChild<QPlainTextEdit *>()->setPlainText("typed as it is");
        QTest::mouseClick(buttonOf(dialog, QDialogButtonBox::Ok), Qt::LeftButton);
    });
    f->clickIcon(f->source, 2, "ValueRangeMapping");
    QCOMPARE(f->published.size(), 1);
    QCOMPARE(extended(f->current(), 0, 2), QString("typed as it is"));
    QCOMPARE(entriesOf(f->current()), QString("0:1>1/1 0:2>3/2"));
}

void tst_ValueRangeMapping::unchangedText()
{
    enter(f->mapping, 0, 2, 3, Verified, "{L=30} -> 3");
    f->load();
    whenOpen<dlgEditValueRangeMappings>([](dlgEditValueRangeMappings &dialog) {
        QTest::mouseClick(buttonOf(dialog, QDialogButtonBox::Ok), Qt::LeftButton);
    });
    f->clickIcon(f->source, 2, "ValueRangeMapping");
    QCOMPARE(f->published.size(), 0);
}

void tst_ValueRangeMapping::cancelledEdit()
{
    f->load();
    whenOpen<dlgEditValueRangeMappings>([](dlgEditValueRangeMappings &dialog) {
        dialog.findChild<QPlainTextEdit *>()->setPlainText("changed");
        dialog.reject();
    });
    f->clickIcon(f->source, 2, "ValueRangeMapping");
    QCOMPARE(f->published.size(), 0);
}

void tst_ValueRangeMapping::editWithoutTarget()
{
    f->catalog.write("new/a.prj", "D,L:r\nZ,1\n");
    f->mapping = mappingOf("old/a.prj", {"new/a.prj"});
    f->load();
    f->clickIcon(f->source, 1, "ValueRangeMapping");
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(f->published.size(), 0);
}

QTEST_MAIN(tst_ValueRangeMapping)
#include "tst_ValueRangeMapping.moc"
