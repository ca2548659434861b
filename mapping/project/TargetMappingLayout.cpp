// The part of TargetMappingWidget that builds the panel.
#include "TargetMappingWidget.h"

#include <core/text/PString.h>
#include <gui/views/ButtonBarDelegate.h>
#include <gui/views/PButtonHeaderView.h>

#include <QApplication>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTableView>

namespace {

QIcon deleteIcon()
{
    return QIcon(QStringLiteral("bitmaps:indextree/state_deleted.png"));
}

} // namespace

QPushButton *TargetMappingWidget::addHeaderButton(const char *name, const QIcon &icon,
                                                  const QString &toolTip)
{
    auto *const button = new QPushButton(icon, QString(), this);
    button->setObjectName(QLatin1String(name));
    button->setToolTip(toolTip);
    button->setAccessibleName(toolTip);
    headerLayout->addWidget(button);
    return button;
}

void TargetMappingWidget::buildHeader()
{
    mainLayout = new QVBoxLayout(this);
    auto *const title = new QLabel(PString::translate("Zielprojekt", "VelkLinkDbGui"), this);
    title->setObjectName(QStringLiteral("TitleBarLabel"));
    mainLayout->addWidget(title);
    headerLayout = new QHBoxLayout;
    mainLayout->addLayout(headerLayout);
    upButton =
        addHeaderButton("upButton", QIcon(QStringLiteral(":/bitmaps/assistant/arrow_up.png")),
                        PString::translate("Zielprojekt nach oben verschieben", "VelkLinkDbGui"));
    downButton =
        addHeaderButton("downButton", QIcon(QStringLiteral(":/bitmaps/assistant/arrow_down.png")),
                        PString::translate("Zielprojekt nach unten verschieben", "VelkLinkDbGui"));
    headerLayout->addWidget(new QLabel(PString::translate("Projektpfad:", "VelkLinkDbGui"), this));
    pathLabel = new QLabel(this);
    pathLabel->setObjectName(QStringLiteral("pathLabel"));
    headerLayout->addWidget(pathLabel);
    headerLayout->addSpacerItem(
        new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Minimum));
    const QPushButton *const removeButton = addHeaderButton(
        "removeButton", deleteIcon(), PString::translate("Zielprojekt entfernen", "VelkLinkDbGui"));
    const QPushButton *const openButton =
        addHeaderButton("openButton", QApplication::windowIcon(),
                        PString::translate("Projekt öffnen", "VelkLinkDbGui"));
    auto *const separator = new QFrame(this);
    separator->setFrameShape(QFrame::HLine);
    separator->setFrameShadow(QFrame::Sunken);
    headerLayout->addWidget(separator);
    assignButton =
        addHeaderButton("assignButton", QIcon(QStringLiteral(":/bitmaps/line.png")),
                        PString::translate("Dieses Projekt der aktuell selektierten Zeile zuweisen",
                                           "VelkLinkDbGui"));
    connect(removeButton, SIGNAL(clicked()), this, SLOT(onRemoveTargetClicked()));
    connect(openButton, SIGNAL(clicked()), this, SLOT(onSelectProjectClicked()));
    connect(assignButton, SIGNAL(clicked()), this, SLOT(onAssignTarget()));
    connect(upButton, SIGNAL(clicked()), this, SLOT(onMoveTargetUp()));
    connect(downButton, SIGNAL(clicked()), this, SLOT(onMoveTargetDown()));
}

QTableView *TargetMappingWidget::addList(const char *name, QStandardItemModel *&model, int column,
                                         const QStringList &headers, const QString &deleteToolTip,
                                         const char *deleteSlot)
{
    auto *const view = new QTableView(this);
    view->setObjectName(QLatin1String(name));
    view->setContextMenuPolicy(Qt::CustomContextMenu);
    view->verticalHeader()->setVisible(false);
    view->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    model = new QStandardItemModel(0, int(headers.size()), view);
    model->setHorizontalHeaderLabels(headers);
    view->setModel(model);
    auto *const header = new PButtonHeaderView(QSize(24, 24), Qt::Horizontal, view);
    view->setHorizontalHeader(header);
    header->viewport()->setMouseTracking(true);
    header->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    header->setStretchLastSection(true);
    auto *const buttons = new ButtonBarDelegate(view);
    buttons->addButton(deleteToolTip, deleteToolTip, deleteIcon());
    view->setItemDelegateForColumn(0, buttons);
    view->viewport()->setMouseTracking(true);
    connect(buttons, SIGNAL(indexNeedsUpdate(const QModelIndex &)), view,
            SLOT(update(const QModelIndex &)));
    connect(buttons, SIGNAL(buttonClicked(const QModelIndex &, int)), this, deleteSlot);
    gridLayout->addWidget(view, 1, column);
    return view;
}

void TargetMappingWidget::buildLists()
{
    gridLayout = new QGridLayout;
    gridLayout->setContentsMargins(0, 0, 0, 0);
    mainLayout->addLayout(gridLayout);
    conditionView = addList("conditionView", conditionModel, 0,
                            {QString(), PString::translate("Bedingungen", "VelkLinkDbGui")},
                            PString::translate("Bedingung löschen", "VelkLinkDbGui"),
                            SLOT(onDeleteConditionClicked(const QModelIndex &, int)));
    variableView = addList("variableView", variableModel, 1,
                           {QString(), PString::translate("Zielvariable", "VelkLinkDbGui"),
                            PString::translate("Variablenzuordnung", "VelkLinkDbGui")},
                           PString::translate("Zuordnung löschen", "VelkLinkDbGui"),
                           SLOT(onDeleteVarMapping(const QModelIndex &, int)));
}
