#include "dlgEditValueRangeMappings.h"
#include "dlgSelectValueRangeVars.h"
#include "TableMappingWidgetPrivate.h"
#include "VarsetMappingRunnable.h"

#include <core/message/PMessage.h>
#include <gui/progress/DefaultObserverDelegate.h>
#include <gui/progress/ProgressEventAccumulator.h>

#include <QCoreApplication>
#include <QPointer>
#include <QThread>
#include <QThreadPool>

QStringList TableMappingWidgetPrivate::chooseRangeVariables()
{
    const QStringList names = valueRangeVariables(sourceTable);
    if (names.isEmpty())
        return {};
    dlgSelectValueRangeVars dialog(names, q);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedNames() : QStringList();
}

bool TableMappingWidgetPrivate::confirmsValueRangeRun() const
{
    return PMessage::Show(valueRangeWarning, PMsgDlgMode::OkCancel) != PMsgReply::Cancel;
}

void TableMappingWidgetPrivate::onMapResolvedValueRangesClicked()
{
    if (!sourceTable.isValid() || !confirmsValueRangeRun())
        return;
    const QStringList names = chooseRangeVariables();
    if (!names.isEmpty())
        runValueRangeMapping(names, sourceTable.getLineIdList());
}

void TableMappingWidgetPrivate::onMapLineValueRanges()
{
    if (!sourceTable.isValid() || !confirmsValueRangeRun())
        return;
    const VKTab::LineId id = sourceTable.getSelection();
    if (!id.isValid())
        return;
    const QStringList names = chooseRangeVariables();
    if (!names.isEmpty())
        runValueRangeMapping(names, {id});
}

void TableMappingWidgetPrivate::runValueRangeMapping(const QStringList &names,
                                                     const QVector<VKTab::LineId> &lines)
{
    DefaultObserverDelegate observer;
    observer.activate(1);
    ProgressEventAccumulator accumulator(500, -1);
    QThreadPool pool;
    VarsetMappingRunnable runnable({&accumulator, names, lines, mapping, sourceTable, targetView,
                                    targetFromRepository, showHiddenCols});
    runnable.setAutoDelete(false);
    const QPointer<TableMappingWidgetPrivate> alive = this;
    pool.start(&runnable, 0);
    while (!pool.waitForDone(0)) {
        QCoreApplication::processEvents();
        QThread::msleep(100);
    }
    if (!alive)
        return;
    mapping = runnable.getMapping();
    if (runnable.isChanged())
        publish(PrjMappingC(mapping));
}

void TableMappingWidgetPrivate::editValueRangeMapping(int row)
{
    const VKTab::LineId id = sourceTable.getLineMapping().getOrdered().value(row - 1);
    if (!id.isValid())
        return;
    const PrjMapperLineC line = mapperLineFor(id);
    if (!line.isValid())
        return;
    const int index = line.getTargetIndex();
    const PrjMappingTargetC found = mapping.findTarget(index);
    if (!found.isValid())
        return;
    const int sourceLine = line.getSourceLineId();
    const PrjMappingTargetLineC entry = found.getMappedLine(sourceLine);
    const QPointer<TableMappingWidgetPrivate> alive = this;
    dlgEditValueRangeMappings dialog(entry.getExtended(), q);
    if (dialog.exec() != QDialog::Accepted || !alive || dialog.text() == entry.getExtended())
        return;
    PrjMappingTargetC target = mapping.findTarget(index);
    target.addLineId(sourceLine, entry.getTargetLineId(), entry.getState(), dialog.text());
    mapping.updateTarget(index, target);
    mapping.updateMappingState();
    publish(PrjMappingC(mapping));
}
