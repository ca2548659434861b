#include "MappingConflictWidgetPrivate.h"

#include "describeMappingChange.h"
#include "MappingConflictWidget.h"

#include <core/text/PPathName.h>
#include <core/text/PString.h>
#include <geomcore/records/MappingChangeType.h>
#include <geomcore/records/ReleaseMappingC.h>
#include <geomcore/table/Line.h>
#include <geomcore/table/readProjectTable.h>

#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

void MappingConflictWidgetPrivate::buildLayout()
{
    q->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto *const layout = new QVBoxLayout(q);
    layout->setContentsMargins(0, 0, 0, 0);
    scrollArea = new QScrollArea(q);
    scrollArea->setObjectName(QStringLiteral("scrollArea"));
    scrollArea->setWidgetResizable(true);
    layout->addWidget(scrollArea);
    contentsWidget = new QWidget(scrollArea);
    contentsWidget->setObjectName(QStringLiteral("contentsWidget"));
    contentsWidget->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto *const contentsLayout = new QVBoxLayout(contentsWidget);
    titleLabel = new QLabel(PString::translate("Konflikte", "VelkLinkDbGui"), contentsWidget);
    titleLabel->setObjectName(QStringLiteral("TitleBarLabel"));
    contentsLayout->addWidget(titleLabel);
    messageLabel = new QLabel(contentsWidget);
    messageLabel->setObjectName(QStringLiteral("messageLabel"));
    contentsLayout->addWidget(messageLabel);
    scrollArea->setWidget(contentsWidget);
}

void MappingConflictWidgetPrivate::markLocalConflicts()
{
    if (conflictsMarked || localChanges.isEmpty() || onlineChanges.isEmpty())
        return;
    // Each mark replaces catalogMapping while this is running.
    const QString date = catalogMapping.lastRelease().getSourceDate();
    const QList<PrjMappingC> mappings = catalogMapping.lastRelease().getMappingList();
    const QList<QPair<QString, QString>> keys = localChanges.uniqueKeys();
    for (const QPair<QString, QString> &changeKey : keys) {
        if (changeKey.first != date)
            continue;
        const QList<MappingChange> changes = localChanges.values(changeKey);
        for (const PrjMappingC &candidate : mappings) {
            if (candidate.getSourcePath() != changeKey.second)
                continue;
            mapping = candidate;
            for (const MappingChange &change : changes)
                setChangeConflicted(change, true);
        }
    }
    conflictsMarked = true;
}

int MappingConflictWidgetPrivate::targetOfLine(int lineId) const
{
    const int count = mapping.countTargets();
    for (int index = 0; index < count; ++index)
        if (mapping.targetAt(index).containsLine(lineId))
            return index;
    return -1;
}

void MappingConflictWidgetPrivate::setChangeConflicted(const MappingChange &change, bool conflicted)
{
    if (isLineChange(change)) {
        const int index = targetOfLine(change.lineId);
        if (index != -1) {
            PrjMappingTargetC target = mapping.findTarget(index);
            target.setLineConflicted(change.lineId, conflicted);
            mapping.updateTarget(index, target);
        }
    }
    Q_EMIT q->conflictsChanged(mapping);
}

bool MappingConflictWidgetPrivate::isChangeConflicted(const MappingChange &change) const
{
    const int index = isLineChange(change) ? targetOfLine(change.lineId) : -1;
    return index != -1 && mapping.targetAt(index).getLineConflicted(change.lineId);
}

QString MappingConflictWidgetPrivate::targetLineText(const PrjMappingTargetC &target,
                                                     const PrjMappingTargetLineC &line)
{
    if (line.getTargetLineId() == -1 || target.getTargetPath().isEmpty())
        return QString();
    auto found = m_targetTables.constFind(target.getTargetPath());
    if (found == m_targetTables.cend()) {
        const PPathName path =
            PPathName("$TORMEVA_DATA/23d-libs") + PPathName(target.getTargetPath());
        VKTab::ContentRef read;
        (void)VKTab::readProjectTable(path.native(), read);
        found = m_targetTables.insert(target.getTargetPath(), read);
    }
    const VKTab::ContentRef table = *found;
    const VKTab::LineId id(line.getTargetLineId());
    if (!table.getLineIdList().contains(id))
        return QString();
    return lineDesignation(table, id);
}

QString MappingConflictWidgetPrivate::describeChange(const MappingChange &change, bool local)
{
    QString text = isLineChange(change) ? changedLineText(change) : describeProjectChange(change);
    if (local && isLineChange(change) && isChangeConflicted(change)) {
        // A listener may replace the mapping.
        const QString message = conflictMessage(change);
        Q_EMIT q->targetLineConflict(message, change.lineId);
    }
    return text;
}

QString MappingConflictWidgetPrivate::changedLineText(const MappingChange &change) const
{
    return PString::translate("Die Zeile %1 wurde geändert.", "VelkLinkDbGui")
        .arg(lineDesignation(content, VKTab::LineId(change.lineId)));
}

QString MappingConflictWidgetPrivate::conflictMessage(const MappingChange &change)
{
    const int index = targetOfLine(change.lineId);
    const PrjMappingTargetC current = index == -1 ? PrjMappingTargetC() : mapping.findTarget(index);
    const PrjMappingTargetLineC line = current.getMappedLine(change.lineId);
    return plannedText(targetLineText(change.target, change.otherTargetLine),
                       change.target.getTargetPath(), change.targetLine) +
           currentText(targetLineText(current, line), current.getTargetPath(), line);
}

QPair<QString, QString> MappingConflictWidgetPrivate::key()
{
    return {catalogMapping.lastRelease().getSourceDate(), mapping.getSourcePath()};
}

QString MappingConflictWidgetPrivate::changeList(const QList<MappingChange> &changes, bool local)
{
    QString text;
    for (const MappingChange &change : changes) {
        if (change.type == MappingChangeType::ExtendedText ||
            change.type == MappingChangeType::ProjectVersions)
            continue;
        const QString line = describeChange(change, local);
        if (!line.isEmpty())
            text += QStringLiteral("\n- ") + line;
    }
    return text;
}

void MappingConflictWidgetPrivate::updateConflictText(const PrjMappingC &projectMapping)
{
    mapping = projectMapping;
    const QList<MappingChange> local = localChanges.values(key());
    const QList<MappingChange> online = onlineChanges.values(key());
    if (local.isEmpty()) {
        q->setVisible(false);
        return;
    }
    q->setVisible(true);
    QString text = PString::translate("Durchgeführte Änderungen durch Update des ERP-Mappings: ",
                                      "VelkLinkDbGui");
    text += changeList(online, false);
    text += QStringLiteral("\n\n");
    text += QStringLiteral("\n") +
            PString::translate("Von Ihnen durchgeführte Änderungen, welche nicht übernommen werden "
                               "konnten:",
                               "VelkLinkDbGui");
    text += changeList(local, true);
    m_targetTables.clear();
    messageLabel->setText(text);
    giveTextRoom();
}

void MappingConflictWidgetPrivate::giveTextRoom()
{
    const int wanted = contentsWidget->sizeHint().height() + 2 * scrollArea->frameWidth();
    scrollArea->setMinimumHeight(
        qMin(wanted, MaxTextLines * messageLabel->fontMetrics().lineSpacing()));
}

void MappingConflictWidgetPrivate::acceptLine(int lineId)
{
    const QList<MappingChange> changes = localChanges.values(key());
    const MappingChange *accepted = nullptr;
    for (const MappingChange &change : changes)
        if (change.type == MappingChangeType::LineChanged && change.lineId == lineId)
            accepted = &change;
    if (accepted)
        setChangeConflicted(*accepted, false);
}
