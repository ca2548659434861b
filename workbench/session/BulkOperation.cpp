#include "BulkOperation.h"

#include "MappingDocument.h"

#include <geomcore/table/Content.h>
#include <release/decide/LineEdits.h>

#include <QCoreApplication>

#include <algorithm>

using VelkRelease::LineEdits;

namespace {

QString say(const char *text)
{
    return QCoreApplication::translate("BulkOperation", text);
}

QString say(const char *one, const char *many, int count)
{
    return count == 1 ? say(one) : say(many).arg(count);
}

QList<int> sorted(QList<int> lines)
{
    std::sort(lines.begin(), lines.end());
    lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
    return lines;
}

QString question(BulkOperation::Action action, int lines)
{
    switch (action) {
    case BulkOperation::Confirm:
        return say("1 Zeile bestätigen?", "%1 Zeilen bestätigen?", lines);
    case BulkOperation::Remove:
        return say("Zuordnung von 1 Zeile aufheben?", "Zuordnung von %1 Zeilen aufheben?", lines);
    case BulkOperation::RemoveAndConfirm:
        return say("Zuordnung von 1 Zeile aufheben und bestätigen?",
                   "Zuordnung von %1 Zeilen aufheben und bestätigen?", lines);
    }
    return QString();
}

QString describe(BulkOperation::Action action, const BulkOperation::Preview &preview)
{
    QStringList parts{preview.lines > 0 ? question(action, preview.lines)
                                        : say("Es ist nichts zu ändern.")};
    if (preview.confirmed > 0)
        parts += say("1 davon ist schon bestätigt.", "%1 davon sind schon bestätigt.",
                     preview.confirmed);
    if (preview.lostTexts > 0)
        parts += say("1 davon verliert ihre Wertebereichszuordnung.",
                     "%1 davon verlieren ihre Wertebereichszuordnung.", preview.lostTexts);
    if (preview.unchanged > 0)
        parts += say("1 Zeile bleibt, wie sie ist.", "%1 Zeilen bleiben, wie sie sind.",
                     preview.unchanged);
    if (preview.conflicts > 0)
        parts += say("1 Zeile mit Konflikt wird nicht geändert.",
                     "%1 Zeilen mit Konflikt werden nicht geändert.", preview.conflicts);
    if (preview.unknown > 0)
        parts += say("1 Zeile ist in keinem Zielprojekt eingetragen.",
                     "%1 Zeilen sind in keinem Zielprojekt eingetragen.", preview.unknown);
    return parts.join(u'\n');
}

/// False if the line is already as wanted.
bool act(LineEdits &edits, int line, const LineEdits::Standing &standing,
         BulkOperation::Action action)
{
    if (action == BulkOperation::Confirm || !standing.assigned) {
        if (standing.settled || action == BulkOperation::Remove)
            return false;
        edits.confirm(line);
        return true;
    }
    if (action == BulkOperation::Remove)
        edits.remove(line);
    else
        edits.expire(line);
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

BulkOperation::Preview BulkOperation::preview(Action action) const
{
    Preview result;
    (void)apply(action, result);
    result.text = describe(action, result);
    return result;
}

int BulkOperation::run(Action action) const
{
    Preview result;
    const PrjMappingC changed = apply(action, result);
    if (result.lines == 0 || m_document.isReadOnly())
        return 0;
    m_document.beginStep();
    m_document.updateMapping(changed);
    m_document.endStep();
    return result.lines;
}

PrjMappingC BulkOperation::apply(Action action, Preview &preview) const
{
    const PrjMappingC mapping = m_document.mapping(m_project);
    LineEdits edits(mapping);
    for (int line : m_lines) {
        const LineEdits::Standing standing = edits.standing(line);
        if (!standing.known) {
            ++preview.unknown;
        } else if (standing.conflicted) {
            ++preview.conflicts;
        } else if (act(edits, line, standing, action)) {
            ++preview.lines;
            preview.confirmed += standing.verified ? 1 : 0;
            preview.lostTexts += standing.hasText && action != Confirm ? 1 : 0;
        } else {
            ++preview.unchanged;
        }
    }
    return preview.lines > 0 ? edits.mapping() : mapping;
}

QList<int> BulkOperation::shownLines(const VKTab::Content &table)
{
    QList<int> lines;
    for (const VKTab::LineId &id : table.getLineMapping().getOrdered())
        lines += id.value(0);
    return lines;
}
