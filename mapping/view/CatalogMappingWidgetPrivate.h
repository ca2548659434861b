#pragma once

#include "EditorPlace.h"

#include <core/text/PPathName.h>
#include <core/text/PPrivateData.h>
#include <geomcore/records/PrjMappingC.h>

#include <QObject>

#include <boost/shared_ptr.hpp>

QT_BEGIN_NAMESPACE
class QBoxLayout;
class QCheckBox;
class QItemSelection;
class QLabel;
class QModelIndex;
class QPoint;
class QSplitter;
class QTreeView;
class QWidget;
QT_END_NAMESPACE

class ApplicationHandlerI;
class CatalogFilterModel;
class CatalogMappingHandlerI;
class CatalogMappingNotifier;
class CatalogMappingWidget;
class CatalogStructureModel;
class CatalogStructureNodeI;
class EmptyViewLabel;
class MappingConflictWidget;
class ProjectMappingWidget;
class TableMappingWidget;

class CatalogMappingWidgetPrivate : public QObject, public PPrivateData<CatalogMappingWidget>
{
    Q_OBJECT

public:
    using Node = boost::shared_ptr<CatalogStructureNodeI>;

    /// Takes ownership of both handlers.
    CatalogMappingWidgetPrivate(const QString &path, CatalogMappingHandlerI *mappingHandler,
                                ApplicationHandlerI *application, CatalogMappingWidget *owner);
    ~CatalogMappingWidgetPrivate() override;

    void buildLayout();
    void makeConnections();
    /// Shows the node's project, or disables the editors if it has none that can be read.
    void openNode(const Node &node);
    /// See CatalogMappingWidget::showMapping.
    void showMapping(const PrjMappingC &mapping);
    /// True if the mapping's project is the one that the columns show.
    [[nodiscard]] bool shows(const PrjMappingC &mapping) const;
    [[nodiscard]] EditorPlace place() const;
    void revealShown();
    /// The tree shows what its filters leave.
    void onFilterApplied();
    /// Why the tree is empty, if it is.
    void tellFilters();

    CatalogMappingHandlerI *handler;
    PPathName basePath;
    /// Never deleted: what was shown of the tree stays in memory until the process ends.
    CatalogStructureModel *model = nullptr;
    QTreeView *treeView = nullptr;
    EmptyViewLabel *emptyTree = nullptr;
    QString hostFilterText; ///< of the host's filter, for a tree without a project
    QLabel *statisticsLabel = nullptr;
    TableMappingWidget *tableWidget = nullptr;
    ProjectMappingWidget *projectWidget = nullptr;
    MappingConflictWidget *conflictWidget = nullptr;
    int options = 0; ///< so many leading components are cut off source paths
    ApplicationHandlerI *applicationHandler;
    CatalogFilterModel *filterModel = nullptr;
    QCheckBox *checkToCheck = nullptr;
    QCheckBox *checkTarget = nullptr;
    QCheckBox *checkNoTarget = nullptr;
    bool allowVerifyAllOnDir;
    CatalogMappingNotifier *notifier;
    Node shownNode;               ///< opened last; null before the first one
    bool isRevealing = false;     ///< the tree shows what is open anyway
    bool revealsFiltered = false; ///< as soon as the host's filter is through

public Q_SLOTS:
    void onTreeSelectionChanged(const QItemSelection &selected, const QItemSelection &deselected);
    void onProjectMappingUpdated(const PrjMappingC &prjMapping);
    void onTreeContextMenuRequested(const QPoint &pos);
    void onFilterToCheckChanged(int state);
    void onFilterTargetChanged(int state);
    void onFilterNoTargetChanged(int state);

private:
    [[nodiscard]] QWidget *makeTreePane(QWidget *parent);
    [[nodiscard]] QCheckBox *addFilterRow(QBoxLayout *rows, const char *name, const QString &text);
    [[nodiscard]] QWidget *makeEditorPane(QWidget *parent);
    void makeTreeModels();
    void connectTree();
    void connectEditors();
    void connectConflicts();
    void setEditorsEnabled(bool enabled);
    /// False if there is nothing to be edited.
    [[nodiscard]] bool loadProject(const Node &node);
    void reloadProject();
    [[nodiscard]] PPathName projectFile(const QString &sourcePath) const;
    /// What the handler has now, on all that tells of the whole release.
    void showRelease();
    void writeStatistics();
    void repaintViews();
    void applyFilter(bool target, bool noTarget);
    void verifyProject(const Node &node);
    void verifyBelow(const Node &node);
};
