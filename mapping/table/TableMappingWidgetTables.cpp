#include "TableMappingWidgetPrivate.h"

#include "ComparedTables.h"
#include "LineKeys.h"
#include "LineLookUp.h"
#include "lineToolTips.h"
#include "TablePane.h"
#include "TargetTableView.h"

#include <mapping/data/targetPath.h>
#include <mapping/project/ProjectMappingWidget.h>

#include <core/text/PPathName.h>
#include <core/text/PString.h>
#include <geomcore/mapper/PrjMapperCheckResultC.h>
#include <geomcore/table/Line.h>
#include <geomcore/table/readProjectTable.h>
#include <geomcore/table/SignalConnect.h>
#include <geomcore/value/LangThreadSettings.h>
#include <geomcoregui/table/VkTableModel.h>
#include <geomcoregui/table/VkTableView.h>

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QScopeGuard>

namespace {

/// A button takes its shortcut from its text, so that would go with each change of it.
void showText(QPushButton *button, const QString &text)
{
    const QKeySequence keys = button->shortcut();
    button->setText(text);
    button->setShortcut(keys);
}

/// For a table that has no line without an assignment, while only such lines are shown.
QString emptyTextOf(const QCheckBox &box)
{
    return PString::translate("Keine Zeile ist ohne Zuweisung.\nOhne den Haken bei „%1“ sind alle "
                              "Zeilen zu sehen.",
                              "VelkLinkDbGui")
        .arg(box.text());
}

} // namespace

void TableMappingWidgetPrivate::loadSourceTable(const VKTab::ContentRef &table,
                                                const PrjMappingC &newMapping,
                                                const CatalogMappingC &catalog)
{
    currentSourceLine = VKTab::LineId();
    sourceTable = table;
    if (boost::shared_ptr<VKTab::TabOptions> own = sourceTable.getOptions())
        setupStatusKeys(own);
    else
        sourceTable.setOptions(options);
    // The project's own choice must not hide lines from the editor.
    VKTab::removeProjectFilters(sourceTable);
    btnResolvedRanges->setEnabled(!valueRangeVariables(sourceTable).isEmpty());
    m_sourcePane->showPath(newMapping.getSourcePath());
    m_sourcePane->showNumberOf(sourceTable);
    designationLabels.setSourceText(QString());
    sourceView->setTable(sourceTable);
    sourceView->setSelectionMode(QAbstractItemView::ExtendedSelection);
    clearTargetTable();
    m_targetPane->clearTexts();
    designationLabels.setTargetText(QString());
    mapping = newMapping;
    catalogMapping = catalog;
    connectSourceTable();
    updateLineStatus();
    if (chkFilterSource->checkState() == Qt::Checked)
        onChkFilterNotMappedLines(Qt::Checked);
}

void TableMappingWidgetPrivate::connectSourceTable()
{
    sourceSelectedConnection = sourceTable.signalConnect().connectSignalLineSelected(
        [this](const VKTab::Content &, const VKTab::LineId &id, bool selected) {
            return onSourceLineSelected(id, selected);
        },
        VKTab::ConnectGroupUser);
    sourceModifiedConnection = sourceTable.signalConnect().connectSignalLineModified(
        [this](const VKTab::Content &, const VKTab::LineId &id, bool modified) {
            m_shownStatus.noteModifiedLine(id.value(0));
            return onSourceLineSelected(id, modified);
        });
}

QStringList TableMappingWidgetPrivate::valueRangeVariables(const VKTab::Content &table)
{
    QStringList names;
    for (const VKTab::Var &var : table.getVarList()) {
        if (var.isFW())
            names.append(var.getName());
    }
    return names;
}

QString TableMappingWidgetPrivate::builtPath(const QString &storedPath) const
{
    return targetPath(!targetFromRepository, storedPath);
}

int TableMappingWidgetPrivate::onSourceLineSelected(const VKTab::LineId &id, bool selected)
{
    currentSourceLine = VKTab::LineId();
    if (id.isValid() && selected)
        showSourceLine(id);
    return 0;
}

int TableMappingWidgetPrivate::onTargetLineSelected(const VKTab::LineId &id, bool selected)
{
    if (id.isValid() && selected)
        showTargetSelection();
    return 0;
}

void TableMappingWidgetPrivate::updateLineStatus()
{
    m_lookedUp.reset();
    m_shownStatus.update(sourceTable, mapping);
}

LineLookUp TableMappingWidgetPrivate::lookUp() const
{
    return LineLookUp(sourceTable, mapping, catalogMapping);
}

PrjMapperLineC TableMappingWidgetPrivate::mapperLineFor(const VKTab::LineId &id, Varset &varset,
                                                        PrjMapperCheckResultC *check) const
{
    return lookUp().find(id, varset, check);
}

PrjMapperLineC TableMappingWidgetPrivate::mapperLineFor(const VKTab::LineId &id,
                                                        const Varset &values) const
{
    if (m_lookedUp && m_lookedUp->first == id && values.isEmpty())
        return m_lookedUp->second;
    return lookUp().find(id, values);
}

void TableMappingWidgetPrivate::clearTargetTable()
{
    m_target->clear();
    compared->clear();
    m_filters.forgetTarget();
    showText(btnMapLine, QString());
}

void TableMappingWidgetPrivate::showSourceLine(const VKTab::LineId &id)
{
    const int selected = sourceView->getSelectedLineCount();
    designationLabels.setSourceText(QString());
    designationLabels.setTargetText(QString());
    m_targetPane->clearTexts();
    bool removeEnabled = false;
    bool assignEnabled = true;
    if (selected > 1) {
        clearTargetTable();
        btnResolvedRanges->setEnabled(false);
        btnCondition->setEnabled(false);
        removeEnabled = true;
    } else {
        if (id.isValid())
            removeEnabled = showSingleLine(id, &assignEnabled);
        if (!removeEnabled)
            clearTargetTable();
        btnResolvedRanges->setEnabled(!valueRangeVariables(sourceTable).isEmpty());
        btnCondition->setEnabled(true);
    }
    if (!targetView->getTable().isValid())
        showTargetSelection();
    btnRemoveLine->setEnabled(removeEnabled);
    btnRemoveVerifyLine->setEnabled(removeEnabled);
    if (projectWidget)
        projectWidget->setAssignEnabled(assignEnabled);
    if (chkFilterTarget->checkState() == Qt::Checked)
        onChkFilterTargetLines(Qt::Checked);
}

bool TableMappingWidgetPrivate::showSingleLine(const VKTab::LineId &id, bool *assignEnabled)
{
    currentSourceLine = id;
    VKTab::LangThreadSettings language; // designations are compared as they are stored
    language.disableTranslation(true);
    designationLabels.setSourceText(
        sourceTable.getLine(id, false).getValue(VKTab::LineI::NormDesignation, {}).toString());
    Varset varset;
    const PrjMapperLineC line = mapperLineFor(id, varset, nullptr);
    m_lookedUp = {id, line};
    const auto forget = qScopeGuard([this] { m_lookedUp.reset(); });
    if (!line.isValid() || !line.isFound())
        return false;
    *assignEnabled = false;
    bool isReused = false;
    const VKTab::ContentRef table = showTargetTable(builtPath(line.getTargetPath()), &isReused);
    if (!table.isValid())
        return false;
    const int horizontal = targetView->getHorizontalScrollPos();
    m_targetPane->showNumberOf(table);
    // The box would set its filter again in a moment.
    m_target->showLine(line.getTargetLineId(), varset,
                       chkFilterTarget->checkState() != Qt::Checked);
    showTargetSelection();
    m_target->markSelection();
    m_targetPane->showPath(line.getTargetPath());
    if (isReused)
        targetView->setHorizontalScrollPos(horizontal);
    compared->show(id, table.getSelection(), varset);
    return true;
}

VKTab::ContentRef TableMappingWidgetPrivate::showTargetTable(const QString &path, bool *isReused)
{
    const auto [table, reused] = m_target->show(
        path, {options, showHiddenCols, !valueRangeVariables(sourceTable).isEmpty()});
    *isReused = reused;
    if (table.isValid() && !reused) {
        m_filters.forgetTarget();
        connectTargetTable(table);
    }
    return table;
}

void TableMappingWidgetPrivate::connectTargetTable(const VKTab::ContentRef &table)
{
    targetSelectedConnection = table.signalConnect().connectSignalLineSelected(
        [this](const VKTab::Content &, const VKTab::LineId &id, bool selected) {
            return onTargetLineSelected(id, selected);
        },
        VKTab::ConnectGroupUser);
    targetModifiedConnection = table.signalConnect().connectSignalLineModified(
        [this](const VKTab::Content &, const VKTab::LineId &id, bool modified) {
            return onTargetLineSelected(id, modified);
        });
}

VKTab::LineId TableMappingWidgetPrivate::lineOfTargetSelection() const
{
    if (sourceView->getSelectedLineCount() > 1)
        return {};
    const QList<VKTab::LineId> selected = sourceView->getSelectedLines();
    return selected.isEmpty() ? currentSourceLine : selected.first();
}

void TableMappingWidgetPrivate::showTargetSelection()
{
    designationLabels.setTargetText(QString());
    targetNumberLabel->clear();
    const VKTab::LineId sourceLine = lineOfTargetSelection();
    if (!sourceLine.isValid())
        return;
    const PrjMapperLineC line = mapperLineFor(sourceLine);
    const VKTab::ContentRef table = targetView->getTable();
    const VKTab::LineId selected = table.getSelection();
    bool isCurrent = true;
    if (table.isValid() && line.isValid() && selected.isValid()) {
        isCurrent = selected.value(0) == line.getTargetLineId();
        const VKTab::Line targetLine = table.getLine(selected, false);
        if (targetLine.isValid()) {
            VKTab::LangThreadSettings language;
            language.disableTranslation(true);
            designationLabels.setTargetText(
                targetLine.getValue(VKTab::LineI::NormDesignation, {}).toString());
            targetNumberLabel->setText(
                targetLine.getValue(VKTab::LineI::NormNumber, {}).toString());
        }
    }
    showMapButton(line, sourceLine, isCurrent);
}

void TableMappingWidgetPrivate::showMapButton(const PrjMapperLineC &line,
                                              const VKTab::LineId &sourceLine, bool isCurrent)
{
    const QString confirm = QStringLiteral(":/bitmaps/confirm_mapping.png");
    const QString assign = QStringLiteral(":/bitmaps/line.png");
    const bool isFree =
        isCurrent || line.getTarget().getMappedLine(sourceLine.value(0)).getExtended().isEmpty();
    QString toolTip;
    if (isCurrent)
        toolTip = PString::translate("Zuordnung bestätigen", "VelkLinkDbGui") + " (v)";
    else if (isFree)
        toolTip = PString::translate("Aktuell markierte Zeile zuordnen", "VelkLinkDbGui") + " (v)";
    else
        toolTip = PString::translate(
            "Es existiert eine Wertebereichszuordnung für diese Zeile.\nZuordnung muss über "
            "'Wertebereichszuordnung bearbeiten' verändert werden",
            "VelkLinkDbGui");
    // What the key would do must be seen before it is pressed.
    showText(btnMapLine,
             isCurrent || !isFree
                 ? QString()
                 : QStringLiteral("%1 → %2").arg(
                       QString::number(sourceLine.value(0)),
                       QString::number(targetView->getTable().getSelection().value(0))));
    btnMapLine->setIcon(QIcon(isCurrent ? confirm : assign));
    LineKeys::setToolTip(btnMapLine, toolTip);
    btnMapLine->setEnabled(isFree);
}

bool TableMappingWidgetPrivate::hasConflict(const PrjMapperLineC &line) const
{
    const PrjMappingTargetC target = mapping.findTarget(line.getTargetIndex());
    return line.isValid() && target.isValid() && target.getLineConflicted(line.getSourceLineId());
}

QStringList TableMappingWidgetPrivate::checkMessages(const VKTab::LineId &id) const
{
    PrjMapperCheckResultC check(false, QString(), QString(), {}, {}, {});
    Varset varset;
    const PrjMapperLineC line = mapperLineFor(id, varset, &check);
    return line.isValid() ? check.getErrMsgList() : QStringList();
}

QString TableMappingWidgetPrivate::lineToolTip(const VKTab::LineI &line) const
{
    const VKTab::LineId id = line.getLineInfo().getLineId();
    const PrjMapperLineC mapperLine = mapperLineFor(id);
    if (hasConflict(mapperLine))
        return conflictToolTip(conflictToolTips.value(mapperLine.getSourceLineId()));
    return proposalToolTip(id.isValid() ? checkMessages(id) : QStringList());
}

QList<int> TableMappingWidgetPrivate::targetsOf(const VKTab::Content &table) const
{
    const PPathName path(table.getKeyValue(VKTab::KeyProjectPath).toString());
    QList<int> targets;
    for (int i = 0; i < mapping.countTargets(); ++i) {
        if (PPathName(builtPath(mapping.targetAt(i).getTargetPath())) == path)
            targets.append(i);
    }
    return targets;
}

void TableMappingWidgetPrivate::onChkFilterNotMappedLines(int state)
{
    if (!sourceTable.isValid())
        return;
    sourceView->setEmptyText(emptyTextOf(*chkFilterSource));
    if (state == Qt::Checked)
        TableLineFilters::showUnassigned(sourceTable);
    else
        TableLineFilters::showAll(sourceTable);
}

void TableMappingWidgetPrivate::onChkFilterTargetLines(int state)
{
    const VKTab::ContentRef table = targetView->getTable();
    if (!sourceTable.isValid() || !table.isValid())
        return;
    targetView->setEmptyText(emptyTextOf(*chkFilterTarget));
    if (state == Qt::Checked)
        m_filters.showUnused(table, mapping, targetsOf(table));
    else
        TableLineFilters::showAll(table);
}

void TableMappingWidgetPrivate::onFilterTargetTable()
{
    const VKTab::ContentRef table = targetView->getTable();
    if (sourceTable.isValid() && table.isValid())
        TableLineFilters::showUsedTwice(table, mapping, targetsOf(table));
}

void TableMappingWidgetPrivate::onFilterSourceTable()
{
    const VKTab::ContentRef table = targetView->getTable();
    if (!sourceTable.isValid() || !table.isValid())
        return;
    const VKTab::LineId selected = table.getSelection();
    if (selected.isValid())
        TableLineFilters::showSourcesOf(selected, sourceTable, mapping, targetsOf(table));
}

void TableMappingWidgetPrivate::onToggleShowHiddenCols()
{
    const auto *const box = qobject_cast<QAbstractButton *>(sender());
    if (!box)
        return;
    showHiddenCols = box->isChecked();
    for (VkTableView *const view : {sourceView, targetView}) {
        view->model()->setShowHiddenVars(showHiddenCols);
        view->getTable().invalidate(VKTab::Content::InvalidateColumns, true);
    }
}
