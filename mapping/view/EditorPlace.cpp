#include "EditorPlace.h"

#include "CatalogFilterModel.h"
#include "TreePath.h"

#include <mapping/table/TableMappingWidget.h>

#include <geomcoregui/table/VkTableView.h>

#include <QCheckBox>
#include <QTreeView>

EditorPlace::EditorPlace(QTreeView *tree, QCheckBox *openProjects, TableMappingWidget *tables)
    : m_tree(tree)
    , m_openProjects(openProjects)
    , m_tables(tables)
{
}

bool EditorPlace::selectProject(const QString &sourcePath, const QString &sourceVersion) const
{
    if (sourcePath.isEmpty())
        return false;
    const auto find = [&] {
        if (auto *const filter = qobject_cast<CatalogFilterModel *>(m_tree->model()))
            filter->finish();
        return TreePath::find(m_tree->model(), sourcePath, sourceVersion);
    };
    QModelIndex index = find();
    if (!index.isValid() && m_openProjects->isChecked()) {
        m_openProjects->setChecked(false);
        index = find();
    }
    return reveal(index);
}

bool EditorPlace::revealProject(const QString &sourcePath, const QString &sourceVersion) const
{
    const QModelIndex index = TreePath::find(m_tree->model(), sourcePath, sourceVersion);
    return m_tree->selectionModel()->isSelected(index) || reveal(index);
}

bool EditorPlace::reveal(const QModelIndex &index) const
{
    if (!index.isValid())
        return false;
    for (QModelIndex above = index.parent(); above.isValid(); above = above.parent())
        m_tree->expand(above);
    if (!m_tree->selectionModel()->isSelected(index))
        m_tree->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    m_tree->scrollTo(index);
    return true;
}

VKTab::ContentRef EditorPlace::sourceTable() const
{
    return m_tables->isEnabled() ? m_tables->sourceView()->getTable() : VKTab::ContentRef();
}

QList<int> EditorPlace::selectedLines() const
{
    return m_tables->selectedSourceLines();
}

int EditorPlace::currentLine() const
{
    const QList<int> lines = selectedLines();
    if (lines.size() == 1)
        return lines.first();
    if (!lines.isEmpty())
        return -1;
    const VKTab::ContentRef table = sourceTable();
    return table.isValid() ? table.getSelection().value(0) : -1;
}

bool EditorPlace::selectLine(int line) const
{
    VKTab::ContentRef table = sourceTable();
    if (!table.isValid())
        return false;
    const VKTab::LineId id = table.getLineInfo(VKTab::LineId(line)).getLineId();
    if (!id.isValid())
        return false;
    if (!table.isLineVisible(id))
        m_tables->showAllLines();
    // The current one of several selected lines is to stand alone, which is news to who listens.
    if (table.getSelection() == id && selectedLines().size() > 1)
        table.setSelection(VKTab::LineId(), false);
    return table.setSelection(id, true);
}
