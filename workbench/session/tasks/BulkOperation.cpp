#include "BulkOperation.h"

#include <release/decide/LineEdits.h>
#include <workbench/session/document/MappingDocument.h>

#include <algorithm>

using VelkRelease::LineEdits;

namespace {

QList<int> sorted(QList<int> lines)
{
    std::sort(lines.begin(), lines.end());
    lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
    return lines;
}

/// False if the line is already as wanted.
bool act(LineEdits &edits, int line, const LineEdits::Standing &standing,
         BulkOperation::Action action)
{
    const bool removes =
        action == BulkOperation::Remove || action == BulkOperation::RemoveAndConfirm;
    if (removes && standing.assigned) {
        if (action == BulkOperation::Remove)
            edits.remove(line);
        else
            edits.expire(line);
        return true;
    }
    if (standing.settled || action == BulkOperation::Remove ||
        (action == BulkOperation::ConfirmExpired && standing.assigned))
        return false;
    edits.confirm(line);
    return true;
}

} // namespace

BulkOperation::BulkOperation(MappingDocument &document, const ProjectId &project,
                             const QList<int> &lines)
    : m_document(document)
    , m_project(project)
    , m_lines(sorted(lines))
{
}

BulkOperation::Numbers BulkOperation::preview(Action action) const
{
    Numbers numbers;
    (void)apply(action, numbers);
    return numbers;
}

BulkOperation::Numbers BulkOperation::run(Action action) const
{
    Numbers numbers;
    const PrjMappingC changed = apply(action, numbers);
    if (m_document.isReadOnly())
        return Numbers();
    if (numbers.lines == 0)
        return numbers;
    m_document.beginStep();
    m_document.updateMapping(changed);
    m_document.endStep();
    return numbers;
}

PrjMappingC BulkOperation::apply(Action action, Numbers &numbers) const
{
    const PrjMappingC mapping = m_document.mapping(m_project);
    LineEdits edits(mapping);
    for (int line : m_lines) {
        const LineEdits::Standing standing = edits.standing(line);
        if (!standing.known) {
            ++numbers.unknown;
        } else if (standing.conflicted) {
            ++numbers.conflicts;
        } else if (action == Confirm && !standing.assigned && !standing.settled) {
            ++numbers.withoutTarget;
        } else if (act(edits, line, standing, action)) {
            ++numbers.lines;
            numbers.confirmed += standing.verified ? 1 : 0;
            numbers.lostTexts +=
                standing.hasText && (action == Remove || action == RemoveAndConfirm) ? 1 : 0;
        } else {
            ++numbers.unchanged;
        }
    }
    return numbers.lines > 0 ? edits.mapping() : mapping;
}

QString BulkOperation::question(Action action, const Numbers &numbers)
{
    QStringList parts;
    if (numbers.lines == 0)
        parts += tr("Es ist nichts zu ändern.");
    else if (action == Confirm)
        parts += tr("%Ln Zeile(n) bestätigen?", nullptr, numbers.lines);
    else if (action == ConfirmExpired)
        parts += tr("%Ln Zeile(n) als ausgelaufen bestätigen?", nullptr, numbers.lines);
    else if (action == Remove)
        parts += tr("Zuordnung von %Ln Zeile(n) aufheben?", nullptr, numbers.lines);
    else
        parts += tr("Zuordnung von %Ln Zeile(n) aufheben und als ausgelaufen bestätigen?", nullptr,
                    numbers.lines);
    if (numbers.confirmed > 0)
        parts += tr("%Ln davon ist/sind schon bestätigt.", nullptr, numbers.confirmed);
    if (numbers.lostTexts > 0)
        parts += tr("%Ln davon verliert/verlieren ihre Wertebereichszuordnung.", nullptr,
                    numbers.lostTexts);
    const QString left = leftOut(numbers);
    return left.isEmpty() ? parts.join(u'\n') : parts.join(u'\n') + u'\n' + left;
}

QString BulkOperation::leftOut(const Numbers &numbers)
{
    QStringList parts;
    if (numbers.withoutTarget > 0)
        parts += tr("%Ln Zeile(n) ohne Ziel bleibt/bleiben unbestätigt.", nullptr,
                    numbers.withoutTarget);
    if (numbers.unchanged > 0)
        parts += tr("%Ln Zeile(n) bleibt/bleiben, wie sie ist/sind.", nullptr, numbers.unchanged);
    if (numbers.conflicts > 0)
        parts +=
            tr("%Ln Zeile(n) mit Konflikt wird/werden nicht geändert.", nullptr, numbers.conflicts);
    if (numbers.unknown > 0)
        parts += tr("%Ln Zeile(n) ist/sind in keinem Zielprojekt eingetragen.", nullptr,
                    numbers.unknown);
    return parts.join(u'\n');
}

QString BulkOperation::result(Action action, const Numbers &numbers)
{
    QString text;
    if (action == Confirm)
        text = tr("%Ln Zeile(n) bestätigt.", nullptr, numbers.lines);
    else if (action == ConfirmExpired)
        text = tr("%Ln Zeile(n) als ausgelaufen bestätigt.", nullptr, numbers.lines);
    else if (action == Remove)
        text = tr("Zuordnung von %Ln Zeile(n) aufgehoben.", nullptr, numbers.lines);
    else
        text = tr("Zuordnung von %Ln Zeile(n) aufgehoben und als ausgelaufen bestätigt.", nullptr,
                  numbers.lines);
    const QString left = leftOut(numbers).replace(u'\n', u' ');
    return left.isEmpty() ? text : text + u' ' + left;
}
