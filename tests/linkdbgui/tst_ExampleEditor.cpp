#include "EditorFixture.h"

#include <mapping/project/remapProjectLines.h>
#include <mapping/view/CatalogMappingWidget.h>

#include <geomcore/table/Reader.h>
#include <geomcoregui/table/VkTableView.h>

#include <QSplitter>
#include <QTreeView>

namespace {

const QString Examples = QStringLiteral(VELK_SOURCE_DIR "/examples");

/// A mapping of a project of the first release to one of the second, with proposals for its lines.
PrjMappingC proposedMapping(const QString &source, const QStringList &targets)
{
    PrjMappingC mapping = mappingOf(source, targets);
    const refHandle<PrjClass> project(new PrjClass(false, false, false));
    project->read(Examples + "/release-1/" + source, PrjClass::ReadAll);
    VKTab::ContentRef table;
    VKTab::Reader().readByProject(project, table, true);
    remapProjectLines(source, mapping, table, ReleaseMappingC(), {}, false);
    return mapping;
}

QModelIndex findRow(const QAbstractItemModel &model, const QString &text,
                    const QModelIndex &parent = {})
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        if (index.data().toString() == text)
            return index;
        if (const QModelIndex below = findRow(model, text, index); below.isValid())
            return below;
    }
    return {};
}

} // namespace

/// The editor on the example catalog, by mouse and keyboard.
class tst_ExampleEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void confirmByKeyboard();
};

void tst_ExampleEditor::confirmByKeyboard()
{
    const LocalCatalogs local(Examples + "/release-2");
    const MessageCapture messages;
    ReleaseMappingC release;
    release.setSourceDate("2024-01-01");
    release.setTargetDate("2025-01-01");
    const QString nuts = QStringLiteral("standardparts/nuts/din985.prj");
    release.addMapping(proposedMapping(nuts, {"standardparts/nuts/iso10511.prj"}));
    release.addMapping(
        proposedMapping("standardparts/nuts/iso4032.prj", {"standardparts/nuts/iso4032.prj"}));
    release.addMapping(proposedMapping(
        "standardparts/screws/iso7380.prj",
        {"standardparts/screws/iso7380-1.prj", "standardparts/screws/iso7380-2.prj"}));
    auto *const handler = new NotingHandler(release);
    CatalogMappingWidget widget(Examples + "/release-1", handler, nullptr, nullptr);
    widget.resize(1600, 1000);
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));

    auto *const tree = widget.findChild<QTreeView *>("treeView");
    const QModelIndex project = findRow(*tree->model(), "din985.prj");
    QVERIFY(project.isValid());
    tree->expandAll();
    tree->scrollTo(project);
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier,
                      tree->visualRect(project).center());

    auto *const source = widget.findChild<VkTableView *>("sourceView");
    auto *const target = widget.findChild<VkTableView *>("targetView");
    QVERIFY(source->getTable().isValid());
    source->grid()->setFocus();
    QTest::keyClick(source->grid(), Qt::Key_Down);
    if (source->getSelectedLines().isEmpty())
        QTest::keyClick(source->grid(), Qt::Key_Down);
    QCOMPARE(source->getSelectedLines().size(), 1);
    QVERIFY(target->getTable().isValid());
    const int line = source->getSelectedLines().first().value(0);
    QTest::qWait(50);
    if (qEnvironmentVariableIsSet("VELK_PICTURES"))
        widget.grab().save(qEnvironmentVariable("VELK_PICTURES") + "/editor.png");

    QTest::keyClick(source->grid(), Qt::Key_V);
    QCOMPARE(handler->updates.size(), 1);
    const PrjMappingC stored =
        handler->getCatalogMapping().lastRelease().findMapping(nuts, "v1", QString());
    QCOMPARE(stored.findTarget(0).getMappedLine(line).getState(), PRJMAPPING::Verified);
    QCOMPARE(handler->countVerified(), 1);
    if (qEnvironmentVariableIsSet("VELK_PICTURES"))
        widget.grab().save(qEnvironmentVariable("VELK_PICTURES") + "/confirmed.png");
}

QTEST_MAIN(tst_ExampleEditor)
#include "tst_ExampleEditor.moc"
