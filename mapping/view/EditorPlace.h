#pragma once

#include <geomcore/table/ContentRef.h>

#include <QList>
#include <QString>

QT_BEGIN_NAMESPACE
class QCheckBox;
class QModelIndex;
class QTreeView;
QT_END_NAMESPACE

class TableMappingWidget;

/// Goes to projects and lines in the editor, past the filters that hide them, and tells which lines
/// are selected. Owns nothing.
class EditorPlace
{
public:
    /// \a openProjects filters the tree.
    EditorPlace(QTreeView *tree, QCheckBox *openProjects, TableMappingWidget *tables);

    /// False if the tree does not have it. An empty version stands for any.
    bool selectProject(const QString &sourcePath, const QString &sourceVersion) const;

    /// The same, but leaves filters and what is selected already as they are.
    bool revealProject(const QString &sourcePath, const QString &sourceVersion) const;

    /// Numbers of the selected source lines in display order.
    [[nodiscard]] QList<int> selectedLines() const;
    /// -1 if none or several are selected.
    [[nodiscard]] int currentLine() const;
    /// False if the table does not have it.
    bool selectLine(int line) const;
    /// Not valid if no project is shown.
    [[nodiscard]] VKTab::ContentRef sourceTable() const;

private:
    bool reveal(const QModelIndex &index) const;

    QTreeView *m_tree;
    QCheckBox *m_openProjects;
    TableMappingWidget *m_tables;
};
