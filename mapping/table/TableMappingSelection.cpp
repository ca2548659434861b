#include "LineIdColumnLayer.h"
#include "TableMappingWidgetPrivate.h"

#include <mapping/project/ProjectMappingWidget.h>
#include <mapping/view/CatalogMappingWidget.h>

#include <core/text/PPathName.h>
#include <core/text/PString.h>
#include <geomcore/table/FileLayer.h>
#include <geomcore/table/Finder.h>
#include <geomcore/table/Reader.h>
#include <geomcore/table/SignalConnect.h>
#include <geomcore/value/LangThreadSettings.h>
#include <geomcoregui/table/VkTableModel.h>
#include <geomcoregui/table/VkTableView.h>

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

namespace {

/// The project's own line filters must not hide lines from the editor.
void removeProjectFilters(const VKTab::Content &table)
{
    const boost::shared_ptr<VKTab::FileLayer> layer = table.getFileLayer();
    if (!layer)
        return;
    layer->removeFilterCondition(QStringLiteral("PRJLINECOND"));
    layer->removeFilterCondition(QStringLiteral("BYPRJ"));
}

/// The tool tip serves where the pane is too narrow for the path.
void showPath(QLabel *label, const QString &path)
{
    label->setText(path);
    label->setToolTip(path);
}

QString normNumberOf(const VKTab::Content &table)
{
    return table.getKeyValue(VKTab::KeyNormNumber).toString();
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
    removeProjectFilters(sourceTable);
    btnResolvedRanges->setEnabled(!valueRangeVariables(sourceTable).isEmpty());
    showPath(sourcePathLabel, newMapping.getSourcePath());
    sourceNumberLabel->setText(normNumberOf(sourceTable));
    designationLabels.setSourceText(QString());
    sourceView->setTable(sourceTable);
    sourceView->setSelectionMode(QAbstractItemView::ExtendedSelection);
    clearTargetTable();
    showPath(targetPathLabel, QString());
    designationLabels.setTargetText(QString());
    targetNumberLabel->clear();
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

QString TableMappingWidgetPrivate::builtPath(const QString &targetPath) const
{
    return CatalogMappingWidget::buildTargetPath(!targetFromRepository, targetPath);
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

void TableMappingWidgetPrivate::clearTargetTable()
{
    if (!(targetView->getTable() == VKTab::ContentRef()))
        targetView->setTable(VKTab::ContentRef());
    m_markedTable = VKTab::ContentRef();
    m_filteredTable = VKTab::ContentRef();
}

void TableMappingWidgetPrivate::showSourceLine(const VKTab::LineId &id)
{
    const int selected = sourceView->getSelectedLineCount();
    designationLabels.setSourceText(QString());
    designationLabels.setTargetText(QString());
    targetNumberLabel->clear();
    showPath(targetPathLabel, QString());
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
    if (!line.isValid() || !line.isFound())
        return false;
    *assignEnabled = false;
    bool isReused = false;
    VKTab::ContentRef table = targetTableFor(builtPath(line.getTargetPath()), &isReused);
    if (!table.isValid())
        return false;
    const int horizontal = targetView->getHorizontalScrollPos();
    targetNumberLabel->setText(normNumberOf(table));
    showTargetLine(table, line, varset);
    showPath(targetPathLabel, line.getTargetPath());
    if (isReused)
        targetView->setHorizontalScrollPos(horizontal);
    return true;
}

VKTab::ContentRef TableMappingWidgetPrivate::targetTableFor(const QString &path, bool *reused)
{
    VkTableModel *const model = targetView->model();
    VKTab::ContentRef current = targetView->getTable();
    *reused = current.isValid() &&
              PPathName(current.getKeyValue(VKTab::KeyProjectPath).toString()) == PPathName(path);
    if (!*reused)
        return readTargetTable(path);
    if (model->showHiddenVars() != showHiddenCols)
        model->setShowHiddenVars(showHiddenCols);
    return current;
}

VKTab::ContentRef TableMappingWidgetPrivate::readTargetTable(const QString &path)
{
    VKTab::ContentRef table = VKTab::Content();
    table.setOptions(options);
    targetView->model()->setShowHiddenVars(showHiddenCols);
    const refHandle<PrjClass> project(new PrjClass(false, false, false));
    project->read(PPathName(path).native(), PrjClass::ReadAll);
    if (VKTab::Reader().readByProject(project, table, true) != 1)
        return {};
    removeProjectFilters(table);
    targetView->setTable(table);
    const double zoom = std::max(sourceView->getZoomFactor(), targetView->getZoomFactor());
    sourceView->setZoomFactor(zoom);
    targetView->setZoomFactor(zoom);
    connectTargetTable(table);
    if (!valueRangeVariables(sourceTable).isEmpty())
        table.addLayer(LineIdColumnLayer());
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

void TableMappingWidgetPrivate::showTargetLine(VKTab::ContentRef &table, const PrjMapperLineC &line,
                                               const Varset &varset)
{
    const VKTab::LineId target(line.getTargetLineId());
    // The box would set its filter again in a moment.
    const bool givesWay = chkFilterTarget->checkState() != Qt::Checked;
    if (givesWay && !table.isLineVisible(table.getLineInfo(target).getLineId())) {
        VKTab::FilterByLineId filter(table.getFilter(VKTab::FilterByLineId::className()));
        if (filter.getLineIdFilterUsed()) {
            filter.setLineIdFilterUsed(false);
            table.setFilter(filter);
            table.invalidate(VKTab::Content::InvalidateFilter, true);
        }
    }
    VKTab::Line targetLine = table.getLine(target, false);
    if (!varset.isEmpty()) {
        QList<TabVarValue> values;
        for (const MapVarValueC &value : varset)
            values.append(value.toTabVarValue());
        const VKTab::Finder finder;
        finder.cmpLineWithValues(targetLine, finder.toValueList(table, values, VKTab::FilterAll));
        targetLine.apply();
    }
    table.setSelection(targetLine.getLineInfo().getLineId(), true);
    showTargetSelection();
    markTargetLine(table);
}

void TableMappingWidgetPrivate::markTargetLine(const VKTab::ContentRef &table)
{
    const VKTab::LineId selected = table.getSelection();
    if (!selected.isValid())
        return;
    const QString key = QStringLiteral("TargetMapping");
    // All lines but the one marked last have the empty text already.
    if (m_markedTable == table && m_markedLine != selected)
        table.getModifyLayer()->setLineKeyValue(m_markedLine, key, QStringLiteral(""));
    table.getModifyLayer()->setLineKeyValue(selected, key, QStringLiteral("C"));
    m_markedTable = table;
    m_markedLine = selected;
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
    btnMapLine->setIcon(QIcon(isCurrent ? confirm : assign));
    btnMapLine->setToolTip(toolTip);
    btnMapLine->setAccessibleName(toolTip);
    btnMapLine->setEnabled(isFree);
}
