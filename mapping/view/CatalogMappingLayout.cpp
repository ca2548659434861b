// The part of CatalogMappingWidgetPrivate that builds the widget and connects its editors.
#include "CatalogMappingWidgetPrivate.h"

#include "CatalogFilterModel.h"
#include "CatalogMappingNotifier.h"
#include "CatalogMappingWidget.h"
#include "CatalogStructureDelegate.h"
#include "CatalogStructureModel.h"
#include "TableRoom.h"

#include <mapping/data/CatalogMappingHandlerI.h>
#include <mapping/project/MappingConflictWidget.h>
#include <mapping/project/ProjectMappingWidget.h>
#include <mapping/table/TableMappingWidget.h>

#include <core/text/PString.h>
#include <geomcoregui/table/VkTableView.h>
#include <gui/views/ElidedCheckBox.h>
#include <gui/views/EmptyViewLabel.h>

#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QTreeView>
#include <QVBoxLayout>

void CatalogMappingWidgetPrivate::buildLayout()
{
    auto *const layout = new QVBoxLayout(q);
    auto *const splitter = new QSplitter(Qt::Horizontal, q);
    splitter->setObjectName(QStringLiteral("catalogSplitter"));
    layout->addWidget(splitter);
    splitter->addWidget(makeTreePane(splitter));
    writeStatistics();
    makeTreeModels();
    splitter->addWidget(makeEditorPane(splitter));
    splitter->setStretchFactor(1, 1);
    conflictWidget->setCatalogMapping(handler->getCatalogMapping());
    projectWidget->setApplicationHandler(applicationHandler);
    projectWidget->setTableMappingWidget(tableWidget);
    tableWidget->setProjectMappingWidget(projectWidget);
    setEditorsEnabled(false);
}

QWidget *CatalogMappingWidgetPrivate::makeTreePane(QWidget *parent)
{
    auto *const pane = new QWidget(parent);
    auto *const layout = new QVBoxLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    treeView = new QTreeView(pane);
    treeView->setObjectName(QStringLiteral("treeView"));
    treeView->setAccessibleName(PString::translate("Katalog", "VelkLinkDbGui"));
    treeView->setHeaderHidden(true);
    treeView->setUniformRowHeights(true); // so that a row costs nothing until it is seen
    treeView->setContextMenuPolicy(Qt::CustomContextMenu);
    layout->addWidget(treeView);
    checkToCheck = new ElidedCheckBox(
        PString::translate("Zeige nur Projekte mit unvollständigen Mappings", "VelkLinkDbGui"),
        pane);
    checkToCheck->setObjectName(QStringLiteral("checkToCheck"));
    layout->addWidget(checkToCheck);
    auto *const rows = new QVBoxLayout;
    rows->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(rows);
    checkTarget = addFilterRow(
        rows, "checkTarget",
        PString::translate("Zeige nur Projekte mit zugeordneten Zeilen", "VelkLinkDbGui"));
    checkNoTarget = addFilterRow(
        rows, "checkNoTarget",
        PString::translate("Zeige nur Projekte mit nicht zugeordneten Zeilen", "VelkLinkDbGui"));
    statisticsLabel = new QLabel(pane);
    statisticsLabel->setObjectName(QStringLiteral("statisticsLabel"));
    statisticsLabel->setMargin(1); // else the dots of a capital umlaut are cut
    layout->addWidget(statisticsLabel);
    return pane;
}

QCheckBox *CatalogMappingWidgetPrivate::addFilterRow(QBoxLayout *rows, const char *name,
                                                     const QString &text)
{
    auto *const row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->addSpacerItem(new QSpacerItem(20, 1, QSizePolicy::Minimum, QSizePolicy::Minimum));
    auto *const box = new ElidedCheckBox(text, treeView->parentWidget());
    box->setObjectName(QLatin1String(name));
    box->setEnabled(false);
    row->addWidget(box);
    rows->addLayout(row);
    return box;
}

void CatalogMappingWidgetPrivate::makeTreeModels()
{
    // Stays when the widget goes: who has the widget pays for it (cmake/leaks.ignore).
    model = new CatalogStructureModel(handler->getRootStructureNode());
    filterModel = new CatalogFilterModel(q);
    filterModel->setDynamicSortFilter(false);
    filterModel->setSourceModel(model);
    filterModel->onApplied = [this] {
        onFilterApplied();
    };
    treeView->setModel(filterModel);
    emptyTree = new EmptyViewLabel(treeView, filterModel);
    emptyTree->setObjectName(QStringLiteral("emptyTree"));
    treeView->setItemDelegate(new CatalogStructureDelegate(treeView));
}

QWidget *CatalogMappingWidgetPrivate::makeEditorPane(QWidget *parent)
{
    auto *const pane = new QWidget(parent);
    auto *const layout = new QVBoxLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *const conflictSplitter = new QSplitter(Qt::Vertical, pane);
    conflictSplitter->setObjectName(QStringLiteral("conflictSplitter"));
    layout->addWidget(conflictSplitter);
    conflictWidget = new MappingConflictWidget(conflictSplitter);
    conflictWidget->setObjectName(QStringLiteral("conflictWidget"));
    conflictSplitter->addWidget(conflictWidget);
    auto *const editorSplitter = new QSplitter(Qt::Vertical, conflictSplitter);
    editorSplitter->setObjectName(QStringLiteral("editorSplitter"));
    conflictSplitter->addWidget(editorSplitter);
    projectWidget = new ProjectMappingWidget(editorSplitter);
    projectWidget->setObjectName(QStringLiteral("projectWidget"));
    editorSplitter->addWidget(projectWidget);
    tableWidget = new TableMappingWidget(editorSplitter);
    tableWidget->setObjectName(QStringLiteral("tableWidget"));
    editorSplitter->addWidget(tableWidget);
    // Without a user's wish the tables get most of the room.
    conflictSplitter->setStretchFactor(1, 1);
    editorSplitter->setStretchFactor(1, 1);
    editorSplitter->setSizes({230, 670});
    new TableRoom(editorSplitter);
    return pane;
}

void CatalogMappingWidgetPrivate::makeConnections()
{
    connectTree();
    connectEditors();
    connectConflicts();
    connect(projectWidget, SIGNAL(remapLinesClicked()), notifier, SIGNAL(linesReassigned()));
    connect(checkToCheck, SIGNAL(toggled(bool)), notifier, SIGNAL(onlyOpenProjectsChanged(bool)));
    tableWidget->setConditionListener(
        [this](const QString &condition) { Q_EMIT notifier->conditionCopied(condition); });
    // Behind the table widget's own slots, which do what the buttons say.
    for (const char *const button : {"btnMapLine", "btnRemoveLine", "btnRemoveVerifyLine"})
        connect(tableWidget->findChild<QPushButton *>(QLatin1String(button)), SIGNAL(clicked()),
                notifier, SIGNAL(linesDecided()));
    connect(tableWidget->sourceView()->grid()->selectionModel(),
            SIGNAL(selectionChanged(const QItemSelection &, const QItemSelection &)), notifier,
            SIGNAL(selectedLinesChanged()));
}

void CatalogMappingWidgetPrivate::connectTree()
{
    connect(treeView, SIGNAL(customContextMenuRequested(const QPoint &)), this,
            SLOT(onTreeContextMenuRequested(const QPoint &)));
    connect(checkToCheck, SIGNAL(stateChanged(int)), this, SLOT(onFilterToCheckChanged(int)));
    connect(checkTarget, SIGNAL(stateChanged(int)), this, SLOT(onFilterTargetChanged(int)));
    connect(checkNoTarget, SIGNAL(stateChanged(int)), this, SLOT(onFilterNoTargetChanged(int)));
    connect(treeView->selectionModel(),
            SIGNAL(selectionChanged(const QItemSelection &, const QItemSelection &)), this,
            SLOT(onTreeSelectionChanged(const QItemSelection &, const QItemSelection &)));
}

void CatalogMappingWidgetPrivate::connectEditors()
{
    connect(projectWidget, SIGNAL(projectMappingUpdated(const PrjMappingC &)), tableWidget,
            SLOT(onProjectMappingUpdated(const PrjMappingC &)));
    connect(tableWidget, SIGNAL(projectMappingUpdated(const PrjMappingC &)), projectWidget,
            SLOT(onProjectMappingUpdated(const PrjMappingC &)));
    connect(projectWidget, SIGNAL(projectMappingUpdated(const PrjMappingC &)), this,
            SLOT(onProjectMappingUpdated(const PrjMappingC &)));
    connect(tableWidget, SIGNAL(projectMappingUpdated(const PrjMappingC &)), this,
            SLOT(onProjectMappingUpdated(const PrjMappingC &)));
}

void CatalogMappingWidgetPrivate::connectConflicts()
{
    connect(conflictWidget, SIGNAL(targetLineConflict(const QString &, const int &)), tableWidget,
            SLOT(onTargetLineConflict(const QString &, const int &)));
    connect(conflictWidget, SIGNAL(conflictsChanged(const PrjMappingC &)), this,
            SLOT(onProjectMappingUpdated(const PrjMappingC &)));
    connect(conflictWidget, SIGNAL(conflictsChanged(const PrjMappingC &)), tableWidget,
            SLOT(onProjectMappingUpdated(const PrjMappingC &)));
    connect(conflictWidget, SIGNAL(conflictsChanged(const PrjMappingC &)), projectWidget,
            SLOT(onProjectMappingUpdated(const PrjMappingC &)));
    connect(projectWidget, SIGNAL(projectMappingUpdated(const PrjMappingC &)), conflictWidget,
            SLOT(onMappingUpdated(const PrjMappingC &)));
    connect(projectWidget, SIGNAL(targetLineConflictAccepted(const int &)), conflictWidget,
            SLOT(onTargetLineConflictAccepted(const int &)));
    connect(tableWidget, SIGNAL(projectMappingUpdated(const PrjMappingC &)), conflictWidget,
            SLOT(onMappingUpdated(const PrjMappingC &)));
    connect(tableWidget, SIGNAL(targetLineConflictAccepted(const int &)), conflictWidget,
            SLOT(onTargetLineConflictAccepted(const int &)));
    connect(projectWidget, SIGNAL(remapLinesClicked()), tableWidget, SLOT(onRemapLinesClicked()));
}
