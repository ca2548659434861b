#pragma once

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
class CatalogMappingWidget;
class CatalogStructureModel;
class CatalogStructureNodeI;
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

    CatalogMappingHandlerI *handler;
    PPathName basePath;
    CatalogStructureModel *model = nullptr; ///< never deleted
    QTreeView *treeView = nullptr;
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
    [[nodiscard]] PPathName projectFile(const QString &sourcePath) const;
    void writeStatistics();
    void repaintViews();
    void applyFilter(bool target, bool noTarget);
    void verifyProject(const Node &node);
    void verifyBelow(const Node &node);
};
