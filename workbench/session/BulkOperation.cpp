#include "BulkOperation.h"

#include "MappingDocument.h"

#include <geomcore/table/Content.h>

#include <QCoreApplication>

#include <algorithm>

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

/// The targets of a mapping, changed one line at a time.
class Editor
{
public:
    explicit Editor(const PrjMappingC &mapping)
        : m_targets(mapping.getTargets())
        , m_notFound(mapping.getNotFoundTarget())
    {
    }

    /// Where the line stands; its entries in real targets with a target line count as assigned.
    void look(int line)
    {
        m_known = m_assigned = m_conflict = m_verified = m_text = false;
        bool allVerified = true;
        for (const PrjMappingTargetC &target : std::as_const(m_targets)) {
            if (!target.containsLine(line))
                continue;
            const PrjMappingTargetLineC entry = target.getMappedLine(line);
            const bool verified = entry.getState() == PRJMAPPING::Verified;
            m_known = true;
            m_conflict = m_conflict || entry.getConflict();
            m_verified = m_verified || verified;
            allVerified = allVerified && verified;
            if (target.isNotFoundTarget() || entry.getTargetLineId() == -1)
                continue;
            m_assigned = true;
            m_text = m_text || !entry.getExtended().isEmpty();
        }
        m_settled = m_known && allVerified;
    }
    [[nodiscard]] bool isKnown() const { return m_known; }
    [[nodiscard]] bool isAssigned() const { return m_assigned; }
    [[nodiscard]] bool isInConflict() const { return m_conflict; }
    /// Confirmed in any, or in each of its targets.
    [[nodiscard]] bool isVerified() const { return m_verified; }
    [[nodiscard]] bool isSettled() const { return m_settled; }
    [[nodiscard]] bool hasText() const { return m_text; }

    void confirm(int line)
    {
        for (PrjMappingTargetC &target : m_targets) {
            if (!target.containsLine(line))
                continue;
            const PrjMappingTargetLineC entry = target.getMappedLine(line);
            target.addLineId(line, entry.getTargetLineId(), PRJMAPPING::Verified,
                             entry.getExtended());
        }
    }

    void remove(int line, PRJMAPPING::CheckState state)
    {
        if (m_notFound < 0) {
            PrjMappingTargetC target;
            target.setValid(true);
            m_notFound = int(m_targets.size());
            m_targets.append(target);
        }
        for (int i = 0; i < m_targets.size(); ++i) {
            if (i == m_notFound)
                m_targets[i].addLineId(line, -1, state, QString());
            else
                m_targets[i].removeLineId(line);
        }
    }

    [[nodiscard]] PrjMappingC writeTo(PrjMappingC mapping)
    {
        const int known = mapping.countTargets();
        for (int i = 0; i < m_targets.size(); ++i) {
            if (i < known)
                mapping.updateTarget(i, m_targets[i]);
            else
                mapping.addTarget(m_targets[i]);
        }
        return mapping;
    }

private:
    QList<PrjMappingTargetC> m_targets;
    int m_notFound;
    bool m_known = false;
    bool m_assigned = false;
    bool m_conflict = false;
    bool m_verified = false;
    bool m_settled = false;
    bool m_text = false;
};

/// False if the line is already as wanted.
bool act(Editor &editor, int line, BulkOperation::Action action)
{
    if (action == BulkOperation::Confirm || !editor.isAssigned()) {
        if (editor.isSettled() || action == BulkOperation::Remove)
            return false;
        editor.confirm(line);
        return true;
    }
    editor.remove(line,
                  action == BulkOperation::Remove ? PRJMAPPING::Mapped : PRJMAPPING::Verified);
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
    Editor editor(mapping);
    for (int line : m_lines) {
        editor.look(line);
        if (!editor.isKnown()) {
            ++preview.unknown;
        } else if (editor.isInConflict()) {
            ++preview.conflicts;
        } else if (act(editor, line, action)) {
            ++preview.lines;
            preview.confirmed += editor.isVerified() ? 1 : 0;
            preview.lostTexts += editor.hasText() && action != Confirm ? 1 : 0;
        } else {
            ++preview.unchanged;
        }
    }
    return preview.lines > 0 ? editor.writeTo(mapping) : mapping;
}

QList<int> BulkOperation::shownLines(const VKTab::Content &table)
{
    QList<int> lines;
    for (const VKTab::LineId &id : table.getLineMapping().getOrdered())
        lines += id.value(0);
    return lines;
}
