#include "StepSummary.h"

#include <algorithm>
#include <map>

namespace {

/// Joins what was noted of a line in several targets: what it was and what it is now, entries of
/// targets with a target line first.
void join(LineDifference &line, const LineDifference &other)
{
    if (other.inBefore && (!line.inBefore || other.before.getTargetLineId() != -1)) {
        line.inBefore = true;
        line.before = other.before;
    }
    if (other.inAfter && (!line.inAfter || other.after.getTargetLineId() != -1)) {
        line.inAfter = true;
        line.after = other.after;
    }
}

bool sameTargets(const MappingDifference &difference)
{
    return std::none_of(difference.targets.begin(), difference.targets.end(),
                        [](const auto &pair) { return pair.before < 0 || pair.after < 0; });
}

} // namespace

void StepSummary::add(const MappingDifference &difference)
{
    m_projects.insert(difference.project.path);
    addTargets(difference);
    addLines(difference);
}

void StepSummary::addTargets(const MappingDifference &difference)
{
    if (!difference.validBefore || !difference.validAfter) {
        m_heads[difference.validAfter ? NewProject : ProjectRemoved] = true;
        return;
    }
    for (const MappingDifference::TargetPair &pair : difference.targets) {
        const TargetHead &before = pair.headBefore;
        const TargetHead &after = pair.headAfter;
        if (pair.before < 0)
            m_heads[TargetAdded] = m_heads[TargetAdded] || !after.path.isEmpty();
        else if (pair.after < 0)
            m_heads[TargetRemoved] = m_heads[TargetRemoved] || !before.path.isEmpty();
        else if (pair.headDiffers) {
            m_heads[Conditions] = m_heads[Conditions] || before.conditions != after.conditions;
            m_heads[Modifiers] = m_heads[Modifiers] || before.modifiers != after.modifiers;
            m_heads[Versions] = m_heads[Versions] || before.version != after.version ||
                                before.tabVersion != after.tabVersion;
        }
    }
    if (sameTargets(difference) && !difference.keepsTargets())
        m_heads[Order] = true;
}

void StepSummary::addLines(const MappingDifference &difference)
{
    // A line that was changed in one target only needs no joining.
    const auto touched = std::count_if(difference.targets.begin(), difference.targets.end(),
                                       [](const auto &pair) { return !pair.lines.empty(); });
    std::map<int, LineDifference> joined;
    for (const MappingDifference::TargetPair &pair : difference.targets) {
        for (const LineDifference &line : pair.lines) {
            if (touched > 1) {
                const auto [at, isNew] = joined.try_emplace(line.line, line);
                if (!isNew)
                    join(at->second, line);
                continue;
            }
            addLine(line);
        }
    }
    for (const auto &[number, line] : joined)
        addLine(line);
}

void StepSummary::addLine(const LineDifference &line)
{
    ++m_byLine[kindOf(line)];
    ++m_lines;
    m_conflictsSettled +=
        line.inBefore && line.inAfter && line.before.getConflict() && !line.after.getConflict() ? 1
                                                                                                : 0;
    m_last = line;
}

StepSummary::LineKind StepSummary::kindOf(const LineDifference &line)
{
    if (!line.inAfter)
        return OtherLine;
    const PrjMappingTargetLineC &before = line.before;
    const PrjMappingTargetLineC &after = line.after;
    const bool sameLine = line.inBefore && before.getTargetLineId() == after.getTargetLineId();
    if (sameLine && before.getState() == after.getState()) {
        if (before.getExtended() != after.getExtended())
            return RangeText;
        return before.getConflict() && !after.getConflict() ? ConflictSettled : OtherLine;
    }
    if (after.getState() == PRJMAPPING::Verified)
        return after.getTargetLineId() == -1 ? Expired : Confirmed;
    if (after.getTargetLineId() != -1)
        return Assigned;
    return line.inBefore && before.getTargetLineId() != -1 ? Removed : OtherLine;
}

QString StepSummary::linesText() const
{
    if (m_lines == 1)
        return oneLineText();
    QStringList parts;
    for (int kind = 0; kind < LineKinds; ++kind) {
        const int lines = m_byLine[std::size_t(kind)];
        if (lines > 0)
            parts += linesText(LineKind(kind), lines);
    }
    const int more = m_conflictsSettled - m_byLine[ConflictSettled];
    if (more > 0)
        parts += tr("%Ln Konflikt(e) angenommen", nullptr, more);
    return parts.join(QStringLiteral(", "));
}

QString StepSummary::linesText(LineKind kind, int lines)
{
    switch (kind) {
    case Confirmed:
        return tr("%Ln Zeile(n) bestätigt", nullptr, lines);
    case Expired:
        return tr("%Ln Zeile(n) als ausgelaufen bestätigt", nullptr, lines);
    case Assigned:
        return tr("%Ln Zeile(n) zugeordnet", nullptr, lines);
    case Removed:
        return tr("Zuordnung von %Ln Zeile(n) aufgehoben", nullptr, lines);
    case RangeText:
        return tr("Wertebereichszuordnung von %Ln Zeile(n) geändert", nullptr, lines);
    case ConflictSettled:
        return tr("Konflikt von %Ln Zeile(n) gelöst", nullptr, lines);
    case OtherLine:
    case LineKinds:
        break;
    }
    return tr("%Ln Zeile(n) geändert", nullptr, lines);
}

QString StepSummary::oneLineText() const
{
    const QString line = QString::number(m_last.line);
    const QString target = QString::number(m_last.after.getTargetLineId());
    const bool hadTarget = m_last.inBefore && m_last.before.getTargetLineId() != -1;
    const QString former = QString::number(m_last.before.getTargetLineId());
    const LineKind kind = kindOf(m_last);
    if (kind == Confirmed || kind == Assigned) {
        const QString what = kind == Confirmed ? tr("Zeile %1 → %2 bestätigt").arg(line, target)
                                               : tr("Zeile %1 → %2 zugeordnet").arg(line, target);
        return hadTarget && former != target ? tr("%1 (vorher %2)").arg(what, former) : what;
    }
    if (kind == Expired)
        return hadTarget ? tr("Zeile %1 als ausgelaufen bestätigt (vorher %2)").arg(line, former)
                         : tr("Zeile %1 als ausgelaufen bestätigt").arg(line);
    if (kind == Removed)
        return tr("Zuordnung von Zeile %1 aufgehoben (vorher %2)").arg(line, former);
    return linesText(kind, 1);
}

QString StepSummary::headText(HeadKind kind)
{
    switch (kind) {
    case NewProject:
        return tr("Projekt hinzugefügt");
    case ProjectRemoved:
        return tr("Projekt entfernt");
    case TargetAdded:
        return tr("Zielprojekt hinzugefügt");
    case TargetRemoved:
        return tr("Zielprojekt entfernt");
    case Order:
        return tr("Reihenfolge der Zielprojekte geändert");
    case Conditions:
        return tr("Bedingungen geändert");
    case Modifiers:
        return tr("Variablenzuordnung geändert");
    default:
        return tr("Versionen geändert");
    }
}

QString StepSummary::headText() const
{
    QStringList parts;
    for (int kind = 0; kind < HeadKinds; ++kind) {
        if (m_heads[std::size_t(kind)])
            parts += headText(HeadKind(kind));
    }
    return parts.join(QStringLiteral(", "));
}

QString StepSummary::text() const
{
    if (m_projects.isEmpty())
        return QString();
    const QString head = headText();
    const QString lines = linesText();
    QString what = head;
    if (head.isEmpty())
        what = lines.isEmpty() ? tr("Status geändert") : lines;
    else if (!lines.isEmpty())
        what = QStringLiteral("%1 (%2)").arg(head, lines);
    if (m_projects.size() == 1)
        return tr("%1 in %2").arg(what, *m_projects.cbegin());
    return tr("%1 in %Ln Projekt(en)", nullptr, int(m_projects.size())).arg(what);
}
