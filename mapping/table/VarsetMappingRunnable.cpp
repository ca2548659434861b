#include "VarsetMappingRunnable.h"

#include <mapping/data/targetPath.h>

#include <core/progress/PProgress.h>
#include <core/text/PPathName.h>
#include <core/text/PString.h>
#include <geomcore/binding/createVarsetFromVKTable.h>
#include <geomcore/expression/toTabVarValues.h>
#include <geomcore/table/Finder.h>
#include <geomcore/table/readProjectTable.h>
#include <geomcore/table/ValueRangeIterator.h>
#include <geomcore/value/MidentClass.h>
#include <geomcoregui/table/VkTableModel.h>
#include <geomcoregui/table/VkTableView.h>
#include <gui/progress/ThreadLocalProgressEventCollector.h>

VarsetMappingRunnable::VarsetMappingRunnable(const Task &task)
    : m_task(task)
{
}

VarsetMappingRunnable::~VarsetMappingRunnable() = default;

void VarsetMappingRunnable::run()
{
    std::unique_ptr<ThreadLocalProgressEventCollector> collector;
    if (m_task.accumulator) {
        collector = std::make_unique<ThreadLocalProgressEventCollector>(m_task.accumulator, true);
        collector->activate(PProgressObserverBase::Thread);
    }
    runLines();
}

void VarsetMappingRunnable::runLines()
{
    PProgress progress(0, double(m_task.lineIds.size()), 1.0, false, false);
    const QString text =
        PString::translate("Zeile mit LineID %1 wird zugeordnet...", "VelkLinkDbGui");
    for (const VKTab::LineId &id : std::as_const(m_task.lineIds)) {
        progress.setText(text.arg(id.value(0)));
        mapLine(id);
        progress.nextStep();
    }
    m_tables.clear();
}

void VarsetMappingRunnable::mapLine(const VKTab::LineId &id)
{
    Touched touched;
    const int sourceLine = id.value(0);
    VKTab::Line line = m_task.sourceTable.getLine(id, true);
    VKTab::ValueRangeIterator combinations(m_task.sourceTable, line, m_options);
    combinations.setVariablesToResolve(m_task.variables);
    while (combinations.next())
        mapCombination(sourceLine, createVarsetFromVKTable(line, {}), touched);
    for (auto entry = touched.cbegin(); entry != touched.cend(); ++entry) {
        PrjMappingTargetC target = m_task.mapping.findTarget(entry.key());
        target.addLineId(sourceLine, entry->getTargetLineId(), entry->getState(),
                         entry->getExtended());
        m_task.mapping.updateTarget(entry.key(), target);
    }
}

void VarsetMappingRunnable::mapCombination(int sourceLine, const Varset &varset, Touched &touched)
{
    const PrjMappingLineC line = m_task.mapping.findLine(sourceLine, varset);
    if (!line.isValid() || !line.isFound())
        return;
    const int index = line.getTargetIndex();
    const PrjMappingTargetC target = m_task.mapping.findTarget(index);
    if (!target.isValid())
        return;
    const VKTab::LineId found =
        findLine(targetTable(target.getTargetPath()), target.updateVarset(varset));
    if (!found.isValid())
        return;
    if (!touched.contains(index)) {
        // What the line had before is replaced.
        PrjMappingTargetLineC entry = target.getMappedLine(sourceLine);
        entry.clearVarsetList();
        touched.insert(index, entry);
    }
    MidentClass values;
    for (const QString &name : std::as_const(m_task.variables)) {
        if (const auto value = varset.find(name); value != varset.end())
            values.AddVarValue(name, value->getValue().toString());
    }
    if (values.CountVars() == 0)
        return;
    touched[index].addVarset(values.MakeVarvalueString(), found.value(0));
    m_changed = true;
}

VKTab::ContentRef VarsetMappingRunnable::targetTable(const QString &storedPath)
{
    if (const auto known = m_tables.constFind(storedPath); known != m_tables.cend())
        return *known;
    const QString path = targetPath(!m_task.targetFromRepository, storedPath);
    VKTab::ContentRef table = VKTab::Content();
    (void)VKTab::readProjectTable(PPathName(path).native(), table);
    showHiddenColumns();
    m_tables.insert(storedPath, table);
    return table;
}

void VarsetMappingRunnable::showHiddenColumns()
{
    const std::lock_guard guard(m_viewLock);
    if (m_task.targetView)
        m_task.targetView->model()->setShowHiddenVars(m_task.showHiddenCols);
}

void VarsetMappingRunnable::forgetTargetView()
{
    const std::lock_guard guard(m_viewLock);
    m_task.targetView = nullptr;
}

VKTab::LineId VarsetMappingRunnable::findLine(const VKTab::Content &table,
                                              const Varset &varset) const
{
    const QList<VKTab::FindResult> found =
        VKTab::Finder().findLines(table, table.getLineMapping().getOrdered(),
                                  findValues(table, varset), VKTab::Finder::FindRangeContains);
    return found.isEmpty() ? VKTab::LineId() : found.first().getLineId();
}

QList<VKTab::FindValue> VarsetMappingRunnable::findValues(const VKTab::Content &table,
                                                          const Varset &varset) const
{
    const QList<TabVarValue> values = toTabVarValues(varset);
    const VKTab::Finder finder;
    QList<VKTab::FindValue> found = finder.toValueList(table, values, VKTab::FilterDefault);
    QStringList missing = m_task.variables;
    for (const VKTab::FindValue &value : std::as_const(found))
        missing.removeAll(value.getVar().getName());
    if (missing.isEmpty())
        return found;
    for (const VKTab::FindValue &value :
         finder.toValueList(table, values, VKTab::FilterHiddenRange)) {
        if (missing.removeOne(value.getVar().getName()))
            found.append(value);
    }
    return found;
}
