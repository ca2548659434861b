// The part of ReleaseBuilder that makes records of what was read of them, when they are complete.
#include "ReleaseBuilder.h"

#include "recordsText.h"

#include <geomcore/binding/VarsetValueMappingC.h>
#include <geomcore/binding/VarsetVarMappingC.h>

#include <algorithm>
#include <bit>
#include <cmath>

using namespace ReleaseLayout;

namespace {

constexpr quint64 Bit = 1;

bool isDecimal(const QString &text)
{
    bool ok = false;
    return std::isfinite(text.toDouble(&ok)) && ok;
}

QString changeLayout()
{
    return recordsText("%1 muss eine Variable nennen, dazu Texte als „before“ und „after“ oder "
                       "Dezimalzahlen als „factor“ und „offset“");
}

} // namespace

bool ReleaseBuilder::endMapping()
{
    moveNotFoundTarget();
    m_mapping.setTargets(m_targets);
    m_targets.clear();
    m_mapping.setMappingState(m_state);
    m_release.appendMapping(m_mapping);
    m_place = Mappings;
    return true;
}

void ReleaseBuilder::moveNotFoundTarget()
{
    // Indexes of the others must not shift when the target of the lines without one goes.
    const auto hasPath = [](const PrjMappingTargetC &target) {
        return !target.isNotFoundTarget();
    };
    const bool inPlace = std::is_partitioned(m_targets.cbegin(), m_targets.cend(), hasPath);
    const qsizetype first =
        std::stable_partition(m_targets.begin(), m_targets.end(), hasPath) - m_targets.begin();
    if (!inPlace || first + 1 < m_targets.size())
        m_notes += recordsText("%1: das Ziel mit leerem „path“ steht jetzt am Ende")
                       .arg(QStringLiteral("mappings[%1]").arg(m_release.countMappings()));
    for (; first + 1 < m_targets.size(); m_targets.removeLast()) {
        // A line that several of them hold is where a look-up finds it: in the first.
        for (const LineTable::Iterator &entry : std::as_const(m_targets).last().lines()) {
            if (!std::as_const(m_targets)[first].containsLine(entry.sourceLine()))
                m_targets[first].setMappedLine(entry.sourceLine(), entry.line());
        }
    }
}

void ReleaseBuilder::setText(const QString &text)
{
    switch (m_key) {
    case SourceDate:
        return m_release.setSourceDate(text);
    case TargetDate:
        return m_release.setTargetDate(text);
    case ReplacementFolder:
        m_replacement.folder = text;
        return;
    case ReplacementVariable:
        m_replacement.variable = text;
        return;
    case ReplacementBefore:
        m_replacement.before = text;
        return;
    case ReplacementAfter:
        m_replacement.after = text;
        return;
    case ReplacementFactor:
        m_replacement.factor = text;
        return;
    case ReplacementOffset:
        m_replacement.offset = text;
        return;
    case LearnedVariable:
        m_learned.variable = text;
        return;
    case LearnedBefore:
        m_learned.before = text;
        return;
    case LearnedAfter:
        m_learned.after = text;
        return;
    case LearnedFactor:
        m_learned.factor = text;
        return;
    case LearnedOffset:
        m_learned.offset = text;
        return;
    case SourcePath:
        return m_mapping.setSourcePath(text);
    case SourceVersion:
        return m_mapping.setSourceVersion(text);
    case MappingTabVersion:
        return m_mapping.setTabVersion(text);
    case Path:
        return m_target.setTargetPath(text);
    case Version:
        return m_target.setTargetVersion(text);
    case TabVersion:
        return m_target.setTabVersion(text);
    case ModifierKind:
        m_modifierKind = text;
        return;
    case ModifierSource:
        m_modifierSource = text;
        return;
    case ModifierTarget:
        m_modifierTarget = text;
        return;
    default:
        m_modifierFormula = text;
        return;
    }
}

bool ReleaseBuilder::checkComplete(Place place)
{
    const quint64 missing = ~m_seen & requiredOf(place);
    if (missing != 0) {
        const Member &first = Members[std::countr_zero(missing)];
        return fail(recordsText("%1 hat keinen Eintrag „%2“")
                        .arg(QLatin1String("%1"),
                             QLatin1String(first.name.data(), qsizetype(first.name.size()))));
    }
    if (place == Mapping && !m_mapping.isValid())
        return fail(recordsText("%1 hat einen leeren Eintrag „sourcePath“"));
    return true;
}

bool ReleaseBuilder::endModifier()
{
    constexpr quint64 Names = Bit << ModifierSource | Bit << ModifierTarget;
    if (!checkComplete(Modifier))
        return false;
    if (m_modifierKind == QLatin1String("var") && (m_seen & Names) == Names)
        m_target.addModifier(new VarsetVarMappingC(m_modifierSource, m_modifierTarget));
    else if (m_modifierKind == QLatin1String("value") && m_seen & (Bit << ModifierFormula))
        m_target.addModifier(VarsetValueMappingC::fromText(m_modifierFormula));
    else
        return fail(
            recordsText("%1 muss von der Art „var“ mit „source“ und „target“ oder von der Art "
                        "„value“ mit „formula“ sein"));
    m_place = Modifiers;
    return true;
}

bool ReleaseBuilder::endReplacement()
{
    constexpr quint64 Texts = Bit << ReplacementBefore | Bit << ReplacementAfter;
    constexpr quint64 Numbers = Bit << ReplacementFactor | Bit << ReplacementOffset;
    if (!checkComplete(Replacement))
        return false;
    const quint64 given = m_seen & (Texts | Numbers);
    const bool numbers =
        given == Numbers && isDecimal(m_replacement.factor) && isDecimal(m_replacement.offset);
    if (m_replacement.variable.isEmpty() || (given != Texts && !numbers))
        return fail(changeLayout());
    m_replacements.append(m_replacement);
    m_place = Replacements;
    return true;
}

bool ReleaseBuilder::endLearned()
{
    constexpr quint64 Texts = Bit << LearnedBefore | Bit << LearnedAfter;
    constexpr quint64 Numbers = Bit << LearnedFactor | Bit << LearnedOffset;
    if (!checkComplete(Learned))
        return false;
    const quint64 given = m_seen & (Texts | Numbers);
    const bool numbers =
        given == Numbers && isDecimal(m_learned.factor) && isDecimal(m_learned.offset);
    if (given != Texts && !numbers)
        return fail(changeLayout());
    if (m_learned.supports > m_learned.cases)
        return fail(recordsText("%1 darf nicht mehr „supports“ als „cases“ haben"));
    m_allLearned.append(m_learned);
    m_place = AllLearned;
    return true;
}
