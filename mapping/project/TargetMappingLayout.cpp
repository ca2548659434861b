// The part of TargetMappingWidget that builds the panel.
#include "TargetMappingWidget.h"
#include "VariableListDelegate.h"

#include <core/text/PString.h>
#include <gui/views/ButtonBarDelegate.h>
#include <gui/views/ElidedLabel.h>
#include <gui/views/PButtonHeaderView.h>

#include <QApplication>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTableView>

namespace {

QIcon deleteIcon()
{
    return QIcon(QStringLiteral("bitmaps:indextree/state_deleted.png"));
}

/// As high as its rows, and without any as high as its header, with a bar that scrolls aside where
/// it needs one.
class TargetList : public QTableView
{
public:
    using QTableView::QTableView;

    QSize sizeHint() const override { return {QTableView::sizeHint().width(), contentHeight()}; }
    QSize minimumSizeHint() const override
    {
        return {QTableView::minimumSizeHint().width(), contentHeight()};
    }

private:
    [[nodiscard]] int contentHeight() const
    {
        const QScrollBar *const bar = horizontalScrollBar();
        return horizontalHeader()->sizeHint().height() + verticalHeader()->length() +
               2 * frameWidth() + (bar->maximum() > 0 ? bar->sizeHint().height() : 0);
    }
};

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
    pathLabel = new ElidedLabel(Qt::ElideMiddle, this);
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

QTableView *TargetMappingWidget::addList(const char *name, QStandardItemModel *&model,
                                         const QStringList &headers, const ListButtons &buttons)
{
    auto *const view = new TargetList(this);
    view->setObjectName(QLatin1String(name));
    view->setAccessibleName(headers.last());
    view->setContextMenuPolicy(Qt::CustomContextMenu);
    view->verticalHeader()->setVisible(false);
    view->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    view->setTabKeyNavigation(false); // Tab goes on to the next list
    model = new QStandardItemModel(0, int(headers.size()), view);
    model->setHorizontalHeaderLabels(headers);
    for (int column = 1; column < headers.size(); ++column)
        model->setHeaderData(column, Qt::Horizontal, headers[column], Qt::ToolTipRole);
    view->setModel(model);
    auto *const header = new PButtonHeaderView(QSize(24, 24), Qt::Horizontal, view);
    view->setHorizontalHeader(header);
    header->viewport()->setMouseTracking(true);
    header->setButtonForSection(0, QString(), QIcon(QStringLiteral(":/bitmaps/add.png")),
                                buttons.addToolTip);
    header->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    header->setStretchLastSection(true);
    auto *const bar = new ButtonBarDelegate(view);
    bar->addButton(buttons.deleteToolTip, buttons.deleteToolTip, deleteIcon());
    view->setItemDelegateForColumn(0, bar);
    view->viewport()->setMouseTracking(true);
    connect(header, SIGNAL(buttonClicked(int)), this, buttons.addSlot);
    connect(bar, SIGNAL(indexNeedsUpdate(const QModelIndex &)), view,
            SLOT(update(const QModelIndex &)));
    connect(bar, SIGNAL(buttonClicked(const QModelIndex &, int)), this, buttons.deleteSlot);
    connect(view, SIGNAL(customContextMenuRequested(const QPoint &)), this, buttons.menuSlot);
    gridLayout->addWidget(view, 1, gridLayout->count());
    return view;
}

void TargetMappingWidget::buildLists()
{
    gridLayout = new QGridLayout;
    gridLayout->setContentsMargins(0, 0, 0, 0);
    mainLayout->addLayout(gridLayout);
    conditionView = addList("conditionView", conditionModel,
                            {QString(), PString::translate("Bedingungen", "VelkLinkDbGui")},
                            {PString::translate("Bedingung hinzufügen", "VelkLinkDbGui"),
                             PString::translate("Bedingung löschen", "VelkLinkDbGui"),
                             SLOT(onAddConditionClicked()),
                             SLOT(onDeleteConditionClicked(const QModelIndex &, int)),
                             SLOT(onConditionContextMenu(const QPoint &))});
    variableView = addList("variableView", variableModel,
                           {QString(), PString::translate("Zielvariable", "VelkLinkDbGui"),
                            PString::translate("Variablenzuordnung", "VelkLinkDbGui")},
                           {PString::translate("Variablenzuordnung hinzufügen", "VelkLinkDbGui"),
                            PString::translate("Zuordnung löschen", "VelkLinkDbGui"),
                            SLOT(onAddVariableMappingClicked()),
                            SLOT(onDeleteVarMapping(const QModelIndex &, int)),
                            SLOT(onVarMappingContextMenu(const QPoint &))});
    variableView->setEditTriggers(variableView->editTriggers() |
                                  QAbstractItemView::SelectedClicked);
}

VariableListDelegate *TargetMappingWidget::addDelegate(QTableView *view, int column,
                                                       const VKTab::ContentRef &table,
                                                       bool showFormula)
{
    auto *const delegate = new VariableListDelegate(table, showFormula, view);
    delegate->setVariables(sourceVariables, targetVariables);
    delegate->dialogs = dialogs;
    view->setItemDelegateForColumn(column, delegate);
    return delegate;
}

void TargetMappingWidget::addDelegates()
{
    VariableListDelegate *const conditions = addDelegate(conditionView, 1, sourceContent, false);
    conditions->formulaOnly = true;
    conditions->onChanged = [this] {
        storeConditions();
    };
    conditions->onFormulaOpened = [this](DlgFormulaEditor *dialog, int row) {
        watchCondition(dialog, row);
    };
    VariableListDelegate *const targets = addDelegate(variableView, 1, targetContent, false);
    targets->onChanged = [this] {
        storeVariableMappings();
    };
    VariableListDelegate *const values = addDelegate(variableView, 2, sourceContent, true);
    values->showIgnoreItem = true;
    values->model = variableModel;
    values->valueColumn = 2;
    values->targetColumn = 1;
    values->onChanged = targets->onChanged;
    values->onFormulaOpened = [this](DlgFormulaEditor *dialog, int row) {
        watchFormula(dialog, row);
    };
    targets->onBoxOpened = [this](QComboBox *box, const QModelIndex &cell) {
        watchBox(box, cell);
    };
    values->onBoxOpened = targets->onBoxOpened;
}
