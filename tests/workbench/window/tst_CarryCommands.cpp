#include "ModalScript.h"
#include "WindowFixture.h"

#include <core/progress/PProgress.h>
#include <geomcore/records/LineTable.h>
#include <geomcore/records/MappingFile.h>
#include <geomcore/records/sameTargetHead.h>
#include <geomcoregui/table/VkTableModel.h>
#include <geomcoregui/table/VkTableView.h>
#include <gui/progress/DefaultObserverDelegate.h>
#include <release/history/CarriedHistory.h>
#include <release/history/DecisionHistory.h>
#include <workbench/session/document/CatalogRootMemory.h>
#include <workbench/session/document/MappingDocument.h>
#include <workbench/session/history/UndoHistory.h>
#include <workbench/session/tasks/CarriedWork.h>
#include <workbench/window/document/DocumentDesk.h>
#include <workbench/window/document/ReleaseCommands.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/editor/FilterCommands.h>
#include <workbench/window/history/HistoryDialog.h>
#include <workbench/window/history/HistoryModel.h>
#include <workbench/window/look/FocusHelp.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/message/LogWindow.h>
#include <workbench/window/message/StatusArea.h>
#include <workbench/window/review/CarryCommands.h>
#include <workbench/window/settings/WorkbenchSettings.h>

#include <QAbstractItemView>
#include <QAction>
#include <QFile>
#include <QFileDialog>
#include <QHeaderView>
#include <QMenu>
#include <QSettings>
#include <QTableView>
#include <QTest>
#include <QToolTip>

using VelkRelease::LineFilter;
using VelkRelease::LineTrait;

namespace {

const QString between = QStringLiteral("2021-01-01");

/// Lines of a project as it stands in a mapping, by what became of them.
struct Lines
{
    int position = -1;
    QList<int> open; ///< proposed, to be checked
    int certain = -1;
};

/// The first project with three proposals and a certain line, in targets without conditions.
Lines linesOf(const ReleaseMappingC &release)
{
    for (int i = 0; i < release.countMappings(); ++i) {
        Lines lines{.position = i};
        for (const PrjMappingTargetC &target : release.mappingAt(i).getTargets()) {
            for (const LineTable::Iterator &entry : target.lines()) {
                if (entry.targetLine() >= 0 && entry.state() == PRJMAPPING::ToCheck)
                    lines.open += entry.sourceLine();
                else if (entry.targetLine() >= 0 && entry.state() == PRJMAPPING::Mapped)
                    lines.certain = entry.sourceLine();
            }
        }
        if (lines.open.size() >= 3 && lines.certain >= 0) {
            lines.open.resize(3);
            return lines;
        }
    }
    return {};
}

void verify(PrjMappingC &mapping, int line)
{
    for (int i = 0; i < mapping.countTargets(); ++i) {
        const LineTable::Iterator entry = mapping.targetAt(i).lines().find(line);
        const int targetLine = entry ? entry.targetLine() : -1;
        if (targetLine >= 0)
            mapping.changeTarget(i, [=](PrjMappingTargetC &target) {
                target.addLineId(line, targetLine, PRJMAPPING::Verified, QString());
            });
    }
}

} // namespace

/// Decisions of a former mapping in the open one, by the menu.
class tst_CarryCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void init();
    void cleanup();
    void refused_data();
    void refused();
    void nothingIsAskedOfARefusedFile();
    void escapeCancels();
    void menu();
    void carries();
    void marksAndFilter();
    void undoAndReopen();
    void nothingLeft();
    void marksOfTheOtherProgram();

private:
    /// The mapping that is open, led to an earlier release with the same content; three proposals
    /// and a certain line are confirmed in it, another project has an expired one.
    [[nodiscard]] QString writeFormer(const QString &sourceDate = {}) const;
    [[nodiscard]] MappingDocument *document() const
    {
        return m_fixture->window->desk()->document();
    }
    [[nodiscard]] PrjMappingC project() const
    {
        return document()->release().mappingAt(m_lines.position);
    }
    [[nodiscard]] CarryCommands *commands() const { return m_fixture->window->carry(); }
    bool carry()
    {
        const bool done = commands()->carry(writeFormer(), WindowFixture::roots().target);
        waitForMarks();
        return done;
    }
    void waitForMarks() const { QTRY_VERIFY(!commands()->work()->lines().isEmpty()); }
    [[nodiscard]] QString note() const { return m_fixture->window->status()->note(); }

    std::unique_ptr<WindowFixture> m_fixture;
    Lines m_lines;
};

/// What a test left alone is good for the next one: opening a window takes half a second.
void tst_CarryCommands::cleanup()
{
    if (!document()->isOpen() || document()->steps().count() > 0)
        m_fixture.reset();
}

void tst_CarryCommands::init()
{
    if (m_fixture)
        return;
    m_fixture = std::make_unique<WindowFixture>();
    m_fixture->open(m_fixture->mappingFile());
    m_lines = linesOf(document()->release());
    QVERIFY(m_lines.position >= 0);
}

QString tst_CarryCommands::writeFormer(const QString &sourceDate) const
{
    ReleaseMappingC release = document()->release();
    PrjMappingC mapping = project();
    for (const int line : m_lines.open)
        verify(mapping, line);
    verify(mapping, m_lines.certain);
    release.addMapping(mapping);
    PrjMappingC other = release.mappingAt(m_lines.position == 0 ? 1 : 0);
    PrjMappingTargetC target = other.targetAt(0);
    target.addLineId(9999, -1, PRJMAPPING::Verified, QString());
    other.updateTarget(0, target);
    release.addMapping(other);
    release.setTargetDate(between);
    if (!sourceDate.isEmpty())
        release.setSourceDate(sourceDate);
    MappingFile file;
    file.setRelease(release);
    const QString path = m_fixture->directory.filePath("former.json");
    [&] {
        QVERIFY(file.write(path));
    }();
    return path;
}

void tst_CarryCommands::menu()
{
    const QAction *const action = m_fixture->action("carryDecisions");
    QVERIFY(action->isEnabled());
    QVERIFY(m_fixture->window->findChild<QMenu *>("editMenu")->actions().contains(action));
    QCOMPARE(action->text(), "Entscheidungen übernehmen...");
    QVERIFY(action->toolTip().startsWith("Übernimmt aus einem früheren Mapping"));
    QCOMPARE(action->statusTip(), action->toolTip());
    m_fixture->action("fileClose")->trigger();
    QVERIFY(!action->isEnabled());
}

/// By the menu, with both questions; one step that names the file, in list, journal and history.
void tst_CarryCommands::carries()
{
    // In a folder of its own, which is offered the next time.
    const QString former = m_fixture->directory.filePath("earlier/former.json");
    QVERIFY(QDir().mkpath(QFileInfo(former).path()) && QFile::rename(writeFormer(), former));
    const int steps = document()->steps().count();
    ModalScript script;
    script.then([&](QWidget *dialog) {
        script.note(dialog);
        auto *const files = qobject_cast<QFileDialog *>(dialog);
        QVERIFY(files);
        files->selectFile(former);
        static_cast<QDialog *>(files)->accept();
    });
    script.then([&](QWidget *dialog) {
        auto *const files = qobject_cast<QFileDialog *>(dialog);
        QVERIFY(files);
        QCOMPARE(files->fileMode(), QFileDialog::Directory);
        QCOMPARE(files->windowTitle(), "Verzeichnis des Katalogstands " + between);
        files->selectFile(WindowFixture::roots().target);
        static_cast<QDialog *>(files)->accept();
    });
    m_fixture->action("carryDecisions")->trigger();
    QVERIFY(script.isDone());
    QCOMPARE(script.seen, QStringList{"FormerFileDialog"});
    const QString told = "Aus former.json übernommen: 3 von 5 bestätigten Zeilen, 3 sicher "
                         "zugeordnet, 0 vorgeschlagen. Nicht übernommen: 1 hier schon entschieden "
                         "oder sicher, 1 damals als ausgelaufen bestätigt";
    QCOMPARE(note(), told);
    QVERIFY(m_fixture->window->log()->text().contains(told));
    const PrjMappingC now = project();
    for (const int line : m_lines.open) {
        bool isCertain = false;
        for (const PrjMappingTargetC &target : now.getTargets()) {
            const LineTable::Iterator entry = target.lines().find(line);
            isCertain = isCertain || (entry && entry.state() == PRJMAPPING::Mapped);
        }
        QVERIFY(isCertain);
    }
    QCOMPARE(document()->steps().count(), steps + 1);
    QCOMPARE(document()->undoText(), "Entscheidungen aus former.json übernommen: 3");
    VelkRelease::DecisionHistory history;
    QString error;
    QVERIFY(history.read(document()->mappingFile(), &error));
    QCOMPARE(history.decisions().size(), 3);
    QCOMPARE(history.decisions().first().action, document()->undoText());
    QFile journal(document()->journalFile());
    QVERIFY(journal.open(QIODevice::ReadOnly));
    const QByteArray rows = journal.readAll();
    QVERIFY(rows.contains("{\"kind\":\"carried\"") && rows.contains(former.toUtf8()));

    // The catalogs of a mapping file that was open once are known.
    document()->undo();
    CatalogRootMemory(m_fixture->settings->store())
        .remember(MappingDocument::canonicalPath(former), WindowFixture::roots());
    script.then([&](QWidget *dialog) {
        auto *const files = qobject_cast<QFileDialog *>(dialog);
        QCOMPARE(files->directory().path(), QFileInfo(former).path());
        files->selectFile(former);
        static_cast<QDialog *>(files)->accept();
    });
    m_fixture->action("carryDecisions")->trigger();
    QVERIFY(script.isDone());
    QCOMPARE(note(), told);
}

/// The number of a line says it, tool tips say from where, the filter knows the lines, the report
/// the step.
void tst_CarryCommands::marksAndFilter()
{
    QVERIFY(carry());
    const QString remark = "Übernommen aus former.json: dort für den Katalogstand 2021-01-01 "
                           "bestätigt";
    QVERIFY(m_fixture->window->editor()->goTo({ProjectId::of(project()), m_lines.open[1]}));
    const auto header = [this](int line, int role) {
        const VkTableModel *const model = m_fixture->sourceView()->model(); // made anew by undo
        return model->headerData(model->rowOf(VKTab::LineId(line)), Qt::Vertical, role).toString();
    };
    for (const int line : m_lines.open) {
        QCOMPARE(header(line, Qt::DisplayRole), QString::number(line) + '*');
        QCOMPARE(header(line, Qt::ToolTipRole), remark);
    }
    QCOMPARE(header(m_lines.certain, Qt::DisplayRole), QString::number(m_lines.certain));
    QCOMPARE(header(m_lines.certain, Qt::ToolTipRole), QString());
    const auto *const table = m_fixture->sourceView()->findChild<QTableView *>();
    QTRY_VERIFY(table->verticalHeader()->width() >
                table->verticalHeader()->fontMetrics().horizontalAdvance("9*"));
    // By keyboard.
    m_fixture->action("helpReason")->trigger();
    QTRY_COMPARE(QToolTip::text(), remark);
    QToolTip::hideText();

    FilterWork *const filter = m_fixture->window->filters()->work();
    filter->setWanted(true);
    QTRY_VERIFY(filter->isKnown());
    LineFilter carried;
    carried.of(LineTrait::Origin) = {{"carried"}, false};
    filter->setFilter(carried);
    QCOMPARE(filter->numbers().lines, 3);
    QCOMPARE(filter->lines().value(ProjectId::of(project())).size(), size_t(3));
    document()->undo();
    QTRY_COMPARE(filter->numbers().lines, 0);
    document()->redo();
    QTRY_COMPARE(filter->numbers().lines, 3);
    QTRY_COMPARE(header(m_lines.open[0], Qt::ToolTipRole), remark);

    const QString report = m_fixture->directory.filePath("r.html");
    m_fixture->window->releases()->setLanguage("de");
    QVERIFY(m_fixture->window->releases()->writeReport(report));
    QFile file(report);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString html = QString::fromUtf8(file.readAll());
    QVERIFY(html.contains("<td>former.json (2021-01-01)</td><td class=\"n\" align=\"right\">3</td>"
                          "<td class=\"n\" align=\"right\">3</td>"));
}

void tst_CarryCommands::undoAndReopen()
{
    const PrjMappingC before = project();
    QVERIFY(carry());
    QVERIFY(!sameMapping(project(), before));
    QCOMPARE(commands()->remark(project(), m_lines.open[0]).isEmpty(), false);
    m_fixture->press(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(sameMapping(project(), before));
    QTRY_VERIFY(commands()->work()->lines().isEmpty());
    m_fixture->press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    waitForMarks();
    // After a restart the journal knows them.
    QVERIFY(m_fixture->window->desk()->save());
    m_fixture->closeWindow();
    m_fixture->makeWindow();
    QVERIFY(commands()->work()->lines().isEmpty());
    m_fixture->open(m_fixture->directory.filePath("m.json"));
    waitForMarks();
    for (const int line : m_lines.open)
        QVERIFY(!commands()->remark(project(), line).isEmpty());
    QVERIFY(commands()->remark(project(), m_lines.certain).isEmpty());
}

void tst_CarryCommands::nothingLeft()
{
    QVERIFY(carry());
    const int steps = document()->steps().count();
    QVERIFY(!carry());
    QCOMPARE(note(), "Aus former.json ist nichts zu übernehmen. Nicht übernommen: 4 hier schon "
                     "entschieden oder sicher, 1 damals als ausgelaufen bestätigt");
    QCOMPARE(document()->steps().count(), steps);
}

/// velkmap took decisions over: the editor shows the same as if it had.
void tst_CarryCommands::marksOfTheOtherProgram()
{
    m_fixture->action("fileClose")->trigger();
    const QString file = m_fixture->directory.filePath("m.json");
    MappingFile mapping;
    QVERIFY(mapping.read(file));
    ReleaseMappingC release = mapping.releases().last();
    PrjMappingC changed = release.mappingAt(m_lines.position);
    std::vector<VelkRelease::CarriedLine> lines;
    for (const PrjMappingTargetC &target : changed.getTargets()) {
        for (const int line : m_lines.open) {
            if (const LineTable::Iterator entry = target.lines().find(line))
                lines.push_back({changed.getSourcePath(), changed.getSourceVersion(), line,
                                 target.getTargetPath(), entry.targetLine(), false});
        }
    }
    QString error;
    QVERIFY2(VelkRelease::writeCarriedJournal(file, release, "/maps/former.json", between, lines,
                                              &error),
             qPrintable(error));
    m_fixture->open(file);
    waitForMarks();
    const QString remark = "Übernommen aus former.json: dort für den Katalogstand 2021-01-01 "
                           "bestätigt";
    for (const int line : m_lines.open)
        QCOMPARE(commands()->remark(project(), line), remark);
    QVERIFY(commands()->remark(project(), m_lines.certain).isEmpty());
    QVERIFY(!document()->canUndo()); // the file holds no more than what came of it
    HistoryDialog history(document()->mappingFile(), {ProjectId::of(project()), m_lines.open[0]},
                          nullptr);
    const auto *const list = history.findChild<QAbstractItemView *>();
    QCOMPARE(list->model()->rowCount(), 1);
    QCOMPARE(list->model()->index(0, HistoryModel::Action).data().toString(),
             "Übernommen aus former.json");
}

void tst_CarryCommands::refused_data()
{
    QTest::addColumn<QString>("which");
    QTest::addColumn<QString>("details");
    QTest::newRow("of another old release") << "other"
                                            << "Die Datei enthält kein Mapping vom Katalogstand";
    QTest::newRow("the open file itself") << "same"
                                          << "Auch diese Datei führt zum Katalogstand";
    QTest::newRow("no mapping file") << "torn"
                                     << "torn.json";
    QTest::newRow("not there") << "none"
                               << "none.json";
}

void tst_CarryCommands::refused()
{
    QFETCH(QString, which);
    QFETCH(QString, details);
    QString file = m_fixture->directory.filePath(which + ".json");
    if (which == "other") {
        file = writeFormer("1999-01-01");
    } else if (which == "same") {
        file = document()->mappingFile();
    } else if (which == "torn") {
        QFile torn(file);
        QVERIFY(torn.open(QIODevice::WriteOnly) && torn.write("{\"Releases") > 0);
    }
    const PrjMappingC before = project();
    ModalScript script;
    QString text;
    QString more;
    script.then([&](QWidget *dialog) {
        text = dialog->property("text").toString();
        more = dialog->property("informativeText").toString();
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    QVERIFY(!commands()->carry(file, WindowFixture::roots().target));
    QVERIFY(script.isDone());
    QCOMPARE(text, "Aus " + file + " kann nichts übernommen werden.");
    QVERIFY2(more.contains(details), qPrintable(more));
    QVERIFY(sameMapping(project(), before) && !document()->isModified() && !document()->canUndo());
}

/// Where its new release lies would be the next question.
void tst_CarryCommands::nothingIsAskedOfARefusedFile()
{
    const QString former = writeFormer("1999-01-01");
    ModalScript script;
    script.then([&](QWidget *dialog) {
        script.note(dialog);
        auto *const files = qobject_cast<QFileDialog *>(dialog);
        QVERIFY(files);
        files->selectFile(former);
        static_cast<QDialog *>(files)->accept();
    });
    const auto escape = [&](QWidget *dialog) {
        script.note(dialog);
        QTest::keyClick(dialog, Qt::Key_Escape);
    };
    script.then(escape);
    script.then(escape);
    m_fixture->action("carryDecisions")->trigger();
    QCOMPARE(script.seen.size(), 2);
    QCOMPARE(script.texts.last(), "Aus " + former + " kann nichts übernommen werden.");
}

/// At any moment until the result is there.
void tst_CarryCommands::escapeCancels()
{
    const QString former = writeFormer();
    const PrjMappingC before = project();
    DefaultObserverDelegate::setTimes(0, 0);
    PProgress::setInterval(std::chrono::milliseconds(0));
    QTimer keys;
    connect(&keys, &QTimer::timeout, this,
            [this] { QTest::keyClick(m_fixture->window.get(), Qt::Key_Escape); });
    keys.start(0);
    const bool done = commands()->carry(former, WindowFixture::roots().target);
    keys.stop();
    PProgress::setInterval(std::chrono::milliseconds(50));
    DefaultObserverDelegate::setTimes(500, 100);
    QVERIFY(!done);
    QCOMPARE(note(), "Abgebrochen, es wurde nichts übernommen");
    QVERIFY(sameMapping(project(), before) && !document()->isModified() && !document()->canUndo());
    QFile journal(document()->journalFile());
    QVERIFY(!journal.open(QIODevice::ReadOnly) || !journal.readAll().contains("carried"));
}

QTEST_MAIN(tst_CarryCommands)
#include "tst_CarryCommands.moc"
