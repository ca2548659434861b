#include "StepSummary.h"

#include <QCoreApplication>

#include <algorithm>
#include <map>

namespace {

QString say(const char *text)
{
    return QCoreApplication::translate("StepSummary", text);
}

QString say(const char *one, const char *many, int count)
{
    return count == 1 ? say(one) : say(many).arg(count);
}

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
            ++m_byLine[kindOf(line)];
            ++m_lines;
        }
    }
    for (const auto &[number, line] : joined)
        ++m_byLine[kindOf(line)];
    m_lines += int(joined.size());
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
    if (m_lines == 0)
        return QString();
    const auto is = [this](LineKind kind) {
        return m_byLine[kind] == m_lines;
    };
    if (is(Confirmed))
        return say("1 Zeile bestätigt", "%1 Zeilen bestätigt", m_lines);
    if (is(Expired))
        return say("1 Zeile als entfallen bestätigt", "%1 Zeilen als entfallen bestätigt", m_lines);
    if (is(Assigned))
        return say("1 Zeile zugeordnet", "%1 Zeilen zugeordnet", m_lines);
    if (is(Removed))
        return say("Zuordnung von 1 Zeile aufgehoben", "Zuordnung von %1 Zeilen aufgehoben",
                   m_lines);
    if (is(RangeText))
        return say("Wertebereichszuordnung von 1 Zeile geändert",
                   "Wertebereichszuordnung von %1 Zeilen geändert", m_lines);
    if (is(ConflictSettled))
        return say("Konflikt von 1 Zeile gelöst", "Konflikt von %1 Zeilen gelöst", m_lines);
    return say("1 Zeile geändert", "%1 Zeilen geändert", m_lines);
}

QString StepSummary::headText(HeadKind kind)
{
    switch (kind) {
    case NewProject:
        return say("Projekt hinzugefügt");
    case ProjectRemoved:
        return say("Projekt entfernt");
    case TargetAdded:
        return say("Zielprojekt hinzugefügt");
    case TargetRemoved:
        return say("Zielprojekt entfernt");
    case Order:
        return say("Reihenfolge der Zielprojekte geändert");
    case Conditions:
        return say("Bedingungen geändert");
    case Modifiers:
        return say("Variablenzuordnung geändert");
    default:
        return say("Versionen geändert");
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
        what = lines.isEmpty() ? say("Status geändert") : lines;
    else if (!lines.isEmpty())
        what = QStringLiteral("%1 (%2)").arg(head, lines);
    return m_projects.size() == 1 ? say("%1 in %2").arg(what, *m_projects.cbegin())
                                  : say("%1 in %2 Projekten").arg(what).arg(m_projects.size());
}
