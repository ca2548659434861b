#include "TargetMappingWidget.h"

#include "OpenDialogs.h"
#include "TargetMappingParamSet.h"

#include <mapping/data/ApplicationHandlerI.h>
#include <mapping/data/targetPath.h>

#include <core/text/PPathName.h>
#include <core/text/PString.h>
#include <geomcore/binding/createVarsetFromVKTable.h>
#include <geomcore/table/readProjectTable.h>

#include <QLabel>
#include <QPushButton>

TargetMappingWidget::TargetMappingWidget(int targetIndex, const VKTab::ContentRef &source,
                                         const Notify &callback, TargetMappingParamSet *paramSet,
                                         bool remoteViewerMode, QWidget *parent)
    : QWidget(parent)
    , index(targetIndex)
    , notify(callback)
    , params(paramSet)
    , sourceContent(source)
    , dialogs(std::make_shared<OpenDialogs>())
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    buildHeader();
    buildLists();
    const PrjMappingTargetC target = params->projectMapping.findTarget(index);
    const QString path = target.getTargetPath();
    const QString builtPath = targetPath(!remoteViewerMode, path);
    showPath(path, builtPath);
    readTable(builtPath);
    addDelegates();
    loadConditions(target);
    loadVariableMappings(target);
    showProposed(target);
}

void TargetMappingWidget::showPath(const QString &path, const QString &builtPath)
{
    const bool found = PPathName(builtPath).exists(false);
    const QString missing =
        PString::translate("%1 <b>(Konnte nicht gefunden werden)</b>", "VelkLinkDbGui");
    pathLabel->setTextFormat(found ? Qt::PlainText : Qt::RichText);
    pathLabel->setText(found ? path : missing.arg(path.toHtmlEscaped()));
}

void TargetMappingWidget::readTable(const QString &builtPath)
{
    (void)VKTab::readProjectTable(PPathName(builtPath).native(), targetContent);
    sourceVariables =
        createVarsetFromVKTable(sourceContent, sourceContent.getLineIdList().value(0), {});
    targetVariables =
        createVarsetFromVKTable(targetContent, targetContent.getLineIdList().value(0), {});
}

TargetMappingWidget::~TargetMappingWidget() = default;

void TargetMappingWidget::discard()
{
    if (dialogs->isEmpty()) {
        delete this;
        return;
    }
    hide();
    setParent(nullptr);
    notify = {};
    params = nullptr;
    dialogs->close([this] { deleteLater(); });
}

void TargetMappingWidget::updateMoveButtons()
{
    int withPath = 0;
    for (const PrjMappingTargetC &target : params->projectMapping.getTargets())
        withPath += target.getTargetPath().isEmpty() ? 0 : 1;
    upButton->setEnabled(index > 0);
    downButton->setEnabled(index < withPath - 1);
}

void TargetMappingWidget::onRemoveTargetClicked()
{
    if (notify)
        notify(params->projectMapping.findTarget(index), index, TargetRemoved);
}

void TargetMappingWidget::onSelectProjectClicked()
{
    if (params->application)
        params->application->openTargetProject(
            params->projectMapping.findTarget(index).getTargetPath());
}

void TargetMappingWidget::onMoveTargetUp()
{
    const QList<PrjMappingTargetC> targets = params->projectMapping.getTargets();
    if (index <= 0 || index >= targets.size())
        return;
    params->projectMapping.updateTarget(index, targets.at(index - 1));
    params->projectMapping.updateTarget(index - 1, targets.at(index));
    if (notify)
        notify(targets.at(index - 1), index, TargetMovedUp);
}

void TargetMappingWidget::onMoveTargetDown()
{
    const QList<PrjMappingTargetC> targets = params->projectMapping.getTargets();
    if (index < 0 || index >= targets.size() - 1)
        return;
    params->projectMapping.updateTarget(index, targets.at(index + 1));
    params->projectMapping.updateTarget(index + 1, targets.at(index));
    if (notify)
        notify(targets.at(index + 1), index, TargetMovedDown);
}
