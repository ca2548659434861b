#include "TableMappingWidgetPrivate.h"

#include "ComparedTables.h"
#include "LineKeys.h"
#include "LineLookUp.h"
#include "lineStatusKeys.h"
#include "lineToolTips.h"
#include "RangeRun.h"
#include "TablePane.h"
#include "TargetTableView.h"

#include <core/config/PConfigService.h>
#include <core/text/PPathName.h>
#include <core/text/PString.h>
#include <geomcore/table/Line.h>
#include <geomcore/table/SignalConnect.h>
#include <geomcoregui/table/VkTableModel.h>
#include <geomcoregui/table/VkTableView.h>
#include <gui/application/PCommandKeys.h>

#include <QCheckBox>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

#include <boost/make_shared.hpp>

TableMappingWidgetPrivate::TableMappingWidgetPrivate(TableMappingWidget *widget)
    : PPrivateData<TableMappingWidget>(widget)
    , valueRangeWarning(PString::translate(
          "Das Auflösen der Wertebereiche kann, abhängig von den gewählten Variablen und der "
          "Tabellengröße, sehr lange dauern.\nWirklich fortfahren?",
          "VelkLinkDbGui"))
{
    auto *const layout = new QVBoxLayout(q);
    layout->setContentsMargins(0, 0, 0, 0);
    setupStatusKeys(options);
    auto *const splitter = new QSplitter(Qt::Horizontal, q);
    splitter->setObjectName(QStringLiteral("tableSplitter"));
    layout->addWidget(splitter, 1);
    m_sourcePane = createSourcePane();
    splitter->addWidget(m_sourcePane);
    m_targetPane = createTargetPane();
    splitter->addWidget(m_targetPane);
    m_target = std::make_unique<TargetTableView>(targetView, sourceView);
    compared = new ComparedTables(sourceView, targetView, this);
    auto *const hiddenBox =
        new QCheckBox(PString::translate("Versteckte Spalten anzeigen", "VelkLinkDbGui"), q);
    hiddenBox->setObjectName(QStringLiteral("chkShowHiddenCols"));
    connect(hiddenBox, SIGNAL(toggled(bool)), this, SLOT(onToggleShowHiddenCols()));
    layout->addWidget(hiddenBox);
    setupKeys();
}

TableMappingWidgetPrivate::~TableMappingWidgetPrivate()
{
    if (m_run)
        m_run->forgetTargetView();
}

void TableMappingWidgetPrivate::setupKeys()
{
    const std::pair<QPushButton *, const char *> commands[]{
        {btnMapLine, "lineConfirm"},
        {btnRemoveLine, "lineRemove"},
        {btnRemoveVerifyLine, "lineRemoveConfirm"},
        {btnResolvedRanges, "lineValueRanges"},
        {btnCondition, "lineCondition"},
        {q->findChild<QPushButton *>("btnVerifyAll"), "linesConfirmAll"}};
    for (const auto &[button, command] : commands) {
        LineKeys::setCommand(button, QLatin1String(command));
        connect(&PCommandKeys::instance(), &PCommandKeys::changed, button,
                [shown = button] { LineKeys::update(shown); });
    }
}

TablePane *TableMappingWidgetPrivate::createSourcePane()
{
    auto *const pane = new TablePane(QStringLiteral("source"), q);
    sourceView = pane->view();
    sourceView->setFiltersKept(true);
    sourceView->connectPopupShow(
        [this, alive = reference()](const VKTab::Content &content, QMenu *menu, int area, int row) {
            return alive.expired() ? 0 : onSourcePopupShow(content, menu, area, row);
        });
    sourceView->connectIconClicked(
        [this, alive = reference()](const VKTab::Content &content, int row, const QString &key) {
            return alive.expired() ? 0 : onStatusIconClicked(content, row, key);
        });
    sourceView->setSelectionMode(QAbstractItemView::ExtendedSelection);
    sourcePathLabel = pane->pathLabel();
    sourceNumberLabel = pane->numberLabel();
    designationLabels.sourceLabel = pane->designationLabel();
    btnResolvedRanges =
        pane->addButton("btnResolvedRanges", ":/toolicons/actionFormatRanges_16.png",
                        PString::translate("Aufgelöste Wertebereiche zuordnen", "VelkLinkDbGui"));
    btnResolvedRanges->setEnabled(false);
    connect(btnResolvedRanges, SIGNAL(clicked()), this, SLOT(onMapResolvedValueRangesClicked()));
    btnCondition =
        pane->addButton("btnCondition", ":/toolicons/actionFormatAlgorithm_16.png",
                        PString::translate("Bedingung für die markierte Zeile generieren und in "
                                           "die Zwischenablage kopieren",
                                           "VelkLinkDbGui"));
    connect(btnCondition, SIGNAL(clicked()), this, SLOT(onCreateConditionClicked()));
    const QPushButton *const verifyAll =
        pane->addButton("btnVerifyAll", ":/bitmaps/double_check.png",
                        PString::translate("Alle Zuordnungen bestätigen", "VelkLinkDbGui"));
    connect(verifyAll, SIGNAL(clicked()), this, SLOT(onVerifyAllClicked()));
    chkFilterSource = pane->addBox(
        "chkFilterSource",
        PString::translate("Zeige nur nicht zugewiesene Zeilen (Quellprojekt)", "VelkLinkDbGui"));
    connect(chkFilterSource, SIGNAL(stateChanged(int)), this, SLOT(onChkFilterNotMappedLines(int)));
    return pane;
}

TablePane *TableMappingWidgetPrivate::createTargetPane()
{
    auto *const pane = new TablePane(QStringLiteral("target"), q);
    targetView = pane->view();
    targetView->connectPopupShow(
        [this, alive = reference()](const VKTab::Content &content, QMenu *menu, int area, int row) {
            return alive.expired() ? 0 : onTargetPopupShow(content, menu, area, row);
        });
    targetPathLabel = pane->pathLabel();
    targetNumberLabel = pane->numberLabel();
    designationLabels.targetLabel = pane->designationLabel();
    btnMapLine = pane->addButton(
        "btnMapLine", ":/bitmaps/line.png",
        PString::translate("Aktuell markierte Zeile zuordnen", "VelkLinkDbGui") + " (v)");
    connect(btnMapLine, SIGNAL(clicked()), this, SLOT(onMapLineClicked()));
    btnRemoveLine = pane->addButton(
        "btnRemoveLine", "bitmaps:indextree/state_deleted.png",
        PString::translate("Zuordnung zu diesem Projekt aufheben", "VelkLinkDbGui") + " (x)");
    connect(btnRemoveLine, SIGNAL(clicked()), this, SLOT(onRemoveLineMappingClicked()));
    btnRemoveVerifyLine = pane->addButton(
        "btnRemoveVerifyLine", ":/bitmaps/remove_verify.png",
        PString::translate("Zuordnung zu diesem Projekt aufheben und bestätigen (STRG + x)",
                           "VelkLinkDbGui"));
    connect(btnRemoveVerifyLine, SIGNAL(clicked()), this, SLOT(onRemoveVerifyLineMappingClicked()));
    chkFilterTarget = pane->addBox(
        "chkFilterTarget",
        PString::translate("Zeige nur nicht zugewiesene Zeilen (Zielprojekt)", "VelkLinkDbGui"));
    connect(chkFilterTarget, SIGNAL(stateChanged(int)), this, SLOT(onChkFilterTargetLines(int)));
    return pane;
}

void TableMappingWidgetPrivate::setupStatusKeys(
    boost::shared_ptr<VKTab::TabOptions> &tableOptions) const
{
    if (!tableOptions) {
        tableOptions = boost::make_shared<VKTab::TabOptions>();
        tableOptions->setStatusColumnsShown(true);
        tableOptions->load(PConfigService::getConfig(0, QStringLiteral("velkopt")));
    }
    // The options may outlive the widget.
    setLineStatusKeys(*tableOptions,
                      [this, alive = reference()](const VKTab::LineI &line, int, int, QWidget *) {
                          return alive.expired() ? QString() : lineToolTip(line);
                      });
}
