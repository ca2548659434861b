#include "SessionFixture.h"

#include <workbench/session/document/MappingDocument.h>
#include <workbench/session/tasks/BulkOperation.h>

#include <geomcore/table/Reader.h>
#include <geomcoregui/table/VkTableModel.h>
#include <geomcoregui/table/VkTableView.h>
#include <mapping/project/remapProjectLines.h>
#include <mapping/view/CatalogMappingWidget.h>
#include <TestPaths.h>

#include <QAbstractItemView>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTreeView>

#include <memory>

namespace {

const QString Examples = QStringLiteral(VELK_SOURCE_DIR "/examples");
const QString Nuts = QStringLiteral("standardparts/nuts/din985.prj");

/// A project of the example catalog with proposals for its lines.
PrjMappingC proposedMapping()
{
    PrjMappingC mapping;
    mapping.setSourcePath(Nuts);
    mapping.setSourceVersion(SessionFixture::Version);
    mapping.addTarget(QStringLiteral("standardparts/nuts/iso10511.prj"), QString());
    const refHandle<PrjClass> project(new PrjClass(false, false, false));
    project->read(Examples + QStringLiteral("/release-1/") + Nuts, PrjClass::ReadAll);
    VKTab::ContentRef table{VKTab::Content()};
    VKTab::Reader().readByProject(project, table, true);
    remapProjectLines(Nuts, mapping, table, ReleaseMappingC(), {}, false);
    return mapping;
}

} // namespace

/// The editor with a document behind it, by mouse and keyboard.
class tst_EditorSession : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    void oneKeyIsOneStep();
    void manyLinesAtOnceAreOneStep();
    void allLinesAreOneStep();
    void undoneLinesShowInTheEditor();
    void theEditorKeepsTheHostsChanges();

private:
    void openProject();
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    [[nodiscard]] int state(int line) const;

    QTemporaryDir m_data;
    QByteArray m_dataBefore;
    std::unique_ptr<SessionFixture> m_files;
    std::unique_ptr<MappingDocument> m_document;
    std::unique_ptr<CatalogMappingWidget> m_widget;
    QTreeView *m_tree = nullptr;
    VkTableView *m_source = nullptr;
};

void tst_EditorSession::initTestCase()
{
    m_dataBefore = qgetenv("TORMEVA_DATA");
    QVERIFY(QFile::link(Examples + QStringLiteral("/release-2"),
                        m_data.filePath(QStringLiteral("23d-libs"))));
    qputenv("TORMEVA_DATA", QFile::encodeName(m_data.path()));
}

void tst_EditorSession::cleanupTestCase()
{
    qputenv("TORMEVA_DATA", m_dataBefore);
}

void tst_EditorSession::init()
{
    m_files = std::make_unique<SessionFixture>();
    m_document = std::make_unique<MappingDocument>();
    ReleaseMappingC release;
    release.setSourceDate(QStringLiteral("2024-01-01"));
    release.setTargetDate(QStringLiteral("2025-01-01"));
    release.addMapping(proposedMapping());
    QCOMPARE(m_document->open({m_files->write(release), {}, {}, {}, {}}),
             MappingDocument::OpenResult::Opened);
    m_widget = std::make_unique<CatalogMappingWidget>(
        Examples + QStringLiteral("/release-1"), m_document->createHandler(), nullptr, nullptr);
    m_tree = m_widget->findChild<QTreeView *>(QStringLiteral("treeView"));
    m_source = m_widget->findChild<VkTableView *>(QStringLiteral("sourceView"));
    m_widget->resize(1400, 900);
    m_widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_widget.get()));
    m_tree->expandAll();
    openProject();
    QVERIFY(m_source->getTable().isValid());
    m_source->grid()->setFocus();
    key(Qt::Key_Home, Qt::ControlModifier);
    QCoreApplication::processEvents();
    QVERIFY(!m_document->canUndo());
}

void tst_EditorSession::cleanup()
{
    m_widget.reset();
    m_document.reset();
    m_files.reset();
}

/// Selects the only project of the tree.
void tst_EditorSession::openProject()
{
    QModelIndex index = m_tree->model()->index(0, 0);
    while (m_tree->model()->rowCount(index) > 0)
        index = m_tree->model()->index(0, 0, index);
    m_tree->selectionModel()->clearSelection();
    m_tree->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
}

void tst_EditorSession::key(Qt::Key key, Qt::KeyboardModifiers modifiers) const
{
    QTest::keyClick(m_source->grid(), key, modifiers);
}

int tst_EditorSession::state(int line) const
{
    const PrjMappingC mapping = m_document->release().mappingAt(0);
    for (int i = 0; i < mapping.countTargets(); ++i) {
        if (mapping.targetAt(i).containsLine(line))
            return mapping.targetAt(i).getMappedLine(line).getState();
    }
    return -1;
}

void tst_EditorSession::oneKeyIsOneStep()
{
    key(Qt::Key_V);
    key(Qt::Key_Down);
    QCoreApplication::processEvents();
    key(Qt::Key_X);
    QCoreApplication::processEvents();
    const QStringList texts = m_document->undoTexts();
    QCOMPARE(texts.size(), 2);
    QCOMPARE(texts[0], QStringLiteral("Zeile 1 → 1 bestätigt in standardparts/nuts/din985.prj"));
    QVERIFY2(texts[1].startsWith(QStringLiteral("Zuordnung von Zeile 2 aufgehoben (vorher ")),
             qPrintable(texts[1]));
}

void tst_EditorSession::manyLinesAtOnceAreOneStep()
{
    for (int i = 0; i < 4; ++i)
        key(Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(m_source->getSelectedLines().size(), 5);
    QSignalSpy done(m_document.get(), &MappingDocument::stepDone);
    key(Qt::Key_V);
    QCoreApplication::processEvents();
    QCOMPARE(done.size(), 1);
    QCOMPARE(m_document->undoText(),
             QStringLiteral("5 Zeilen bestätigt in standardparts/nuts/din985.prj"));
    // Removing and confirming are two rounds over the lines, and one action.
    key(Qt::Key_X, Qt::ControlModifier);
    QCoreApplication::processEvents();
    QCOMPARE(done.size(), 2);
    QCOMPARE(m_document->undoText(), QStringLiteral("5 Zeilen als ausgelaufen bestätigt in "
                                                    "standardparts/nuts/din985.prj"));
}

void tst_EditorSession::allLinesAreOneStep()
{
    const QByteArray before = SessionFixture::bytes(m_document->release());
    QTest::mouseClick(m_widget->findChild<QPushButton *>(QStringLiteral("btnVerifyAll")),
                      Qt::LeftButton);
    QCoreApplication::processEvents();
    QCOMPARE(m_document->undoTexts().size(), 1);
    QCOMPARE(m_document->counts().verified(), m_document->counts().lines());
    m_document->undo();
    QCOMPARE(SessionFixture::bytes(m_document->release()), before);
}

void tst_EditorSession::undoneLinesShowInTheEditor()
{
    connect(m_document.get(), &MappingDocument::reselectRequested, this,
            &tst_EditorSession::openProject);
    const int first = state(1);
    key(Qt::Key_V);
    QCoreApplication::processEvents();
    QCOMPARE(state(1), int(PRJMAPPING::Verified));
    m_document->undo();
    QCOMPARE(state(1), first);
    // The editor goes on from what is stored, not from what it had.
    m_source->grid()->setFocus();
    key(Qt::Key_Home, Qt::ControlModifier);
    key(Qt::Key_Down);
    key(Qt::Key_V);
    QCoreApplication::processEvents();
    QCOMPARE(state(1), first);
    QCOMPARE(state(2), int(PRJMAPPING::Verified));
}

void tst_EditorSession::theEditorKeepsTheHostsChanges()
{
    connect(m_document.get(), &MappingDocument::reselectRequested, this,
            &tst_EditorSession::openProject);
    QList<int> lines;
    for (int row = 0; row < m_source->model()->rowCount(); ++row)
        lines += m_source->model()->lineId(row).value(0);
    const BulkOperation bulk(*m_document, ProjectId::of(m_document->release().mappingAt(0)), lines);
    QVERIFY(bulk.run(BulkOperation::Confirm).lines > 5);
    const int verified = m_document->counts().verified();
    m_source->grid()->setFocus();
    key(Qt::Key_Home, Qt::ControlModifier);
    key(Qt::Key_X);
    QCoreApplication::processEvents();
    QCOMPARE(m_document->counts().verified(), verified - 1);
}

QTEST_MAIN(tst_EditorSession)

#include "tst_EditorSession.moc"
