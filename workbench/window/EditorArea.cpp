#include "EditorArea.h"

#include "EditorState.h"
#include "TargetProjectOpener.h"
#include "TreePath.h"

#include <geomcoregui/table/VkTableView.h>
#include <mapping/project/PrjMappingWidgetBase.h>
#include <mapping/view/CatalogMappingWidget.h>
#include <mapping/view/CatalogStructureModel.h>
#include <workbench/session/MappingDocument.h>
#include <workbench/session/TargetHead.h>

#include <QCheckBox>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

namespace {

/// Only lines differ, if anything does.
bool sameHeads(const PrjMappingC &a, const PrjMappingC &b)
{
    const auto left = a.getTargets();
    const auto right = b.getTargets();
    return a.isValid() && b.isValid() && left.size() == right.size() &&
           std::equal(left.begin(), left.end(), right.begin(), TargetHead::equal);
}

} // namespace

EditorArea::EditorArea(QWidget *parent)
    : QWidget(parent)
    , m_layout(new QVBoxLayout(this))
{
    setObjectName("EditorArea");
    m_layout->setContentsMargins(0, 0, 0, 0);
}

EditorArea::~EditorArea()
{
    close();
}

void EditorArea::open(MappingDocument *document, const QString &sourceRoot)
{
    close();
    m_document = document;
    m_sourceRoot = sourceRoot;
    make();
}

void EditorArea::close()
{
    if (!m_editor)
        return;
    m_state = saveState();
    delete m_editor;
    m_editor = nullptr;
}

void EditorArea::rebuild()
{
    if (!m_editor || !m_document)
        return;
    const QString path = currentPath();
    const int line = currentLine();
    const QStringList open = TreePath::expanded(*treeView());
    close();
    make();
    TreePath::expand(*treeView(), open);
    if (!path.isEmpty() && selectProject(path) && line >= 0)
        selectLine(line);
}

void EditorArea::make()
{
    auto *opener =
        new TargetProjectOpener([this](const QString &path) { Q_EMIT targetProjectWanted(path); });
    m_editor = new CatalogMappingWidget(m_sourceRoot, m_document->createHandler(), opener, nullptr);
    m_editor->setObjectName("CatalogMappingWidget");
    m_layout->addWidget(m_editor);
    applyState();
    if (QTreeView *const tree = treeView()) {
        tree->setAccessibleName(tr("Katalog"));
        followMapping();
        // A catalog of one tree is of no use closed.
        if (tree->model()->rowCount() == 1)
            tree->expand(tree->model()->index(0, 0));
    }
    if (const VkTableView *const view = sourceView()) {
        connect(view->grid()->selectionModel(), &QItemSelectionModel::selectionChanged, this,
                &EditorArea::linesSelected);
    }
    m_editor->show();
    Q_EMIT editorMade();
}

QTreeView *EditorArea::treeView() const
{
    return m_editor ? m_editor->findChild<QTreeView *>("treeView") : nullptr;
}

VkTableView *EditorArea::sourceView() const
{
    return m_editor ? m_editor->findChild<VkTableView *>("sourceView") : nullptr;
}

VKTab::ContentRef EditorArea::sourceTable() const
{
    const VkTableView *const view = sourceView();
    return view && !currentPath().isEmpty() && view->isEnabled() ? view->getTable()
                                                                 : VKTab::ContentRef();
}

QString EditorArea::currentPath() const
{
    return currentProject().path;
}

ProjectId EditorArea::currentProject() const
{
    const QTreeView *const tree = treeView();
    const QModelIndexList selected =
        tree ? tree->selectionModel()->selectedIndexes() : QModelIndexList();
    if (selected.size() != 1)
        return {};
    const auto node = CatalogStructureModel::nodeFrom(
        selected.first().data(CatalogStructureModel::StructureNodeRole));
    return node && node->getNodeType() == 2 ? ProjectId::of(node->getMapping()) : ProjectId();
}

QModelIndex EditorArea::indexOf(const QString &sourcePath) const
{
    return TreePath::find(treeView()->model(), sourcePath);
}

bool EditorArea::selectProject(const QString &sourcePath)
{
    QTreeView *const tree = treeView();
    if (!tree || sourcePath.isEmpty())
        return false;
    QModelIndex index = indexOf(sourcePath);
    auto *filter = m_editor->findChild<QCheckBox *>("checkToCheck");
    if (!index.isValid() && filter && filter->isChecked()) {
        filter->setChecked(false);
        index = indexOf(sourcePath);
    }
    if (!index.isValid())
        return false;
    for (QModelIndex above = index.parent(); above.isValid(); above = above.parent())
        tree->expand(above);
    if (!tree->selectionModel()->isSelected(index)) {
        tree->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    }
    tree->scrollTo(index);
    return true;
}

void EditorArea::showChange(const ProjectId &project)
{
    if (m_changed.isEmpty())
        QTimer::singleShot(0, this, &EditorArea::showChanges);
    if (!m_changed.contains(project.path))
        m_changed += project.path;
}

void EditorArea::showChanges()
{
    const QStringList changed = std::exchange(m_changed, {});
    if (!m_editor || !m_document)
        return;
    if (changed.size() > 1)
        return rebuild();
    if (changed.first() != currentPath()) {
        if (!selectProject(changed.first()))
            return rebuild();
    } else if (!sameHeads(m_shown, currentMapping())) {
        reselect();
    }
    publish(currentMapping());
}

void EditorArea::reselect()
{
    QTreeView *const tree = treeView();
    const QModelIndex index = tree->selectionModel()->selectedIndexes().first();
    const int line = currentLine();
    const VkTableView *const before = sourceView();
    const int scroll = before ? before->getVerticalScrollPos() : 0;
    tree->selectionModel()->clearSelection();
    tree->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    if (VkTableView *const view = sourceView())
        view->setVerticalScrollPos(scroll);
    if (line >= 0)
        selectLine(line);
}

void EditorArea::publish(const PrjMappingC &mapping)
{
    auto *column = m_editor->findChild<PrjMappingWidgetBase *>("tableWidget");
    if (!column || !mapping.isValid())
        return;
    Q_EMIT column->projectMappingUpdated(mapping);
    column->onProjectMappingUpdated(mapping);
}

PrjMappingC EditorArea::currentMapping() const
{
    return m_document ? m_document->mapping(currentProject()) : PrjMappingC();
}

void EditorArea::followMapping()
{
    connect(treeView()->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        m_shown = currentMapping();
        Q_EMIT projectSelected(currentPath());
    });
    const auto columns = m_editor->findChildren<PrjMappingWidgetBase *>();
    for (const PrjMappingWidgetBase *column : columns) {
        connect(column, &PrjMappingWidgetBase::projectMappingUpdated, this,
                [this](const PrjMappingC &mapping) { m_shown = mapping; });
    }
}

QList<int> EditorArea::selectedLines() const
{
    QList<int> lines;
    const VkTableView *const view = sourceView();
    if (!view || !sourceTable().isValid())
        return lines;
    const auto ids = view->getSelectedLines();
    for (const VKTab::LineId &id : ids)
        lines << id.value(0);
    return lines;
}

int EditorArea::currentLine() const
{
    const QList<int> lines = selectedLines();
    if (lines.size() == 1)
        return lines.first();
    if (!lines.isEmpty())
        return -1;
    const VKTab::ContentRef table = sourceTable();
    return table.isValid() ? table.getSelection().value(0) : -1;
}

bool EditorArea::selectLine(int line)
{
    VKTab::ContentRef table = sourceTable();
    if (!table.isValid())
        return false;
    const VKTab::LineId id = table.getLineInfo(VKTab::LineId(line)).getLineId();
    if (!id.isValid())
        return false;
    auto *filter = m_editor->findChild<QCheckBox *>("chkFilterSource");
    if (filter && filter->isChecked() && !table.isLineVisible(id))
        filter->setChecked(false);
    return table.setSelection(id, true);
}

bool EditorArea::goTo(const LineRef &ref)
{
    if (!ref.isValid())
        return false;
    if (ref.project.path != currentPath() && !selectProject(ref.project.path))
        return false;
    if (!selectLine(ref.line))
        return false;
    sourceView()->grid()->setFocus(Qt::OtherFocusReason);
    return true;
}

QByteArray EditorArea::saveState() const
{
    return m_editor ? EditorState::save(*m_editor) : m_state;
}

void EditorArea::restoreState(const QByteArray &state)
{
    m_state = state;
    if (m_editor)
        applyState();
}

void EditorArea::applyState()
{
    if (!EditorState::restore(*m_editor, m_state))
        EditorState::setStandard(*m_editor);
}
