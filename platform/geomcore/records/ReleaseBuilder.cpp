#include "ReleaseBuilder.h"

#include <geomcore/binding/VarsetConditionC.h>
#include <geomcore/binding/VarsetValueMappingC.h>
#include <geomcore/binding/VarsetVarMappingC.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <iterator>

/// Indexes into Members.
enum ReleaseBuilder::Key : int {
    NoKey = -1,
    SourceDate,
    TargetDate,
    ReplacementsKey,
    ReplacementFolder,
    ReplacementVariable,
    ReplacementBefore,
    ReplacementAfter,
    ReplacementFactor,
    ReplacementOffset,
    MappingsKey,
    SourcePath,
    SourceVersion,
    MappingTabVersion,
    State,
    TargetsKey,
    Path,
    Version,
    TabVersion,
    Valid,
    ProposedRules,
    ConditionsKey,
    ModifiersKey,
    LinesKey,
    ModifierKind,
    ModifierSource,
    ModifierTarget,
    ModifierFormula,
};

constexpr ReleaseBuilder::Member ReleaseBuilder::Members[] = {
    {Release, "sourceDate", TextKind, true, Outside},
    {Release, "targetDate", TextKind, true, Outside},
    {Release, "replacements", ArrayKind, false, Replacements},
    {Replacement, "folder", TextKind, true, Outside},
    {Replacement, "variable", TextKind, true, Outside},
    {Replacement, "before", TextKind, false, Outside},
    {Replacement, "after", TextKind, false, Outside},
    {Replacement, "factor", TextKind, false, Outside},
    {Replacement, "offset", TextKind, false, Outside},
    {Release, "mappings", ArrayKind, false, Mappings},
    {Mapping, "sourcePath", TextKind, true, Outside},
    {Mapping, "sourceVersion", TextKind, true, Outside},
    {Mapping, "tabVersion", TextKind, true, Outside},
    {Mapping, "state", IntegerKind, true, Outside},
    {Mapping, "targets", ArrayKind, true, Targets},
    {Target, "path", TextKind, true, Outside},
    {Target, "version", TextKind, true, Outside},
    {Target, "tabVersion", TextKind, true, Outside},
    {Target, "valid", BooleanKind, true, Outside},
    {Target, "proposed", BooleanKind, false, Outside},
    {Target, "conditions", ArrayKind, true, Conditions},
    {Target, "modifiers", ArrayKind, true, Modifiers},
    {Target, "lines", ArrayKind, true, Lines},
    {Modifier, "kind", TextKind, true, Outside},
    {Modifier, "source", TextKind, false, Outside},
    {Modifier, "target", TextKind, false, Outside},
    {Modifier, "formula", TextKind, false, Outside},
};

namespace {

QString fromUtf8(std::string_view text)
{
    return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

template<class Members, class Condition>
constexpr quint32 bitsOf(const Members &members, Condition condition)
{
    quint32 bits = 0;
    for (std::size_t i = 0; i < std::size(members); ++i)
        bits |= condition(members[i]) ? 1U << i : 0U;
    return bits;
}

QString rowLayout()
{
    return QStringLiteral(
        "must be [source line, target line, state], then the extended text if "
        "there is one, then true for a conflict; lines count from 0, -1 is no target "
        "line");
}

} // namespace

QString ReleaseBuilder::error() const
{
    static_assert(std::size(Members) == MemberCount && MemberCount <= 32, "a bit for each");
    QStringList path;
    if (m_place == Replacements || m_place == Replacement)
        path += QStringLiteral("replacements[%1]").arg(m_replacements.size());
    if (m_place >= Mappings)
        path += m_place == Mappings ? QStringLiteral("mappings")
                                    : QStringLiteral("mappings[%1]").arg(m_release.countMappings());
    if (m_place >= Targets)
        path += m_place == Targets ? QStringLiteral("targets")
                                   : QStringLiteral("targets[%1]").arg(m_targets.size());
    const QString element = QStringLiteral("[%1]").arg(m_element);
    if (m_place == Conditions)
        path += QStringLiteral("conditions") + element;
    else if (m_place == Modifiers || m_place == Modifier)
        path += QStringLiteral("modifiers") + element;
    else if (m_place == Lines || m_place == Row)
        path += QStringLiteral("lines") + element;
    if (m_key != NoKey)
        path += fromUtf8(Members[m_key].name);
    return path.isEmpty() ? QStringLiteral("The release ") + m_message
                          : path.join(u'.') + u' ' + m_message;
}

bool ReleaseBuilder::startObject()
{
    if (m_passNext || m_passedOver > 0)
        return startPassingOver();
    if (m_key == NoKey && m_place == Outside) {
        *this = ReleaseBuilder();
        begin(Release);
    } else if (m_key == NoKey && m_place == Replacements) {
        m_replacement = AgreedReplacement();
        begin(Replacement);
    } else if (m_key == NoKey && m_place == Mappings) {
        m_mapping = PrjMappingC();
        m_targets.clear();
        begin(Mapping);
    } else if (m_key == NoKey && m_place == Targets) {
        m_target = PrjMappingTargetC();
        m_proposedRules = false;
        begin(Target);
    } else if (m_key == NoKey && m_place == Modifiers) {
        ++m_element;
        begin(Modifier);
    } else {
        return anythingElse();
    }
    return true;
}

bool ReleaseBuilder::endObject()
{
    if (m_passedOver > 0) {
        --m_passedOver;
        return true;
    }
    if (m_place == Modifier)
        return endModifier();
    if (m_place == Replacement)
        return endReplacement();
    if (!checkComplete(m_place))
        return false;
    if (m_place == Target) {
        m_place = Targets;
        m_target.setProposedRules(m_proposedRules);
        m_targets.append(m_target);
    } else if (m_place == Mapping) {
        return endMapping();
    } else {
        m_place = Outside;
    }
    return true;
}

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
        m_notes +=
            QStringLiteral("mappings[%1]: the target with an empty \"path\" was moved to the "
                           "end.")
                .arg(m_release.countMappings());
    for (; first + 1 < m_targets.size(); m_targets.removeLast()) {
        // A line that several of them hold is where a look-up finds it: in the first.
        for (const LineTable::Iterator &entry : std::as_const(m_targets).last().lines()) {
            if (!std::as_const(m_targets)[first].containsLine(entry.sourceLine()))
                m_targets[first].setMappedLine(entry.sourceLine(), entry.line());
        }
    }
}

bool ReleaseBuilder::startArray()
{
    if (m_passNext || m_passedOver > 0)
        return startPassingOver();
    if (m_place == Lines) {
        ++m_element;
        m_column = 0;
        m_extended.clear();
        m_conflict = false;
        m_place = Row;
        return true;
    }
    if (!expect(ArrayKind))
        return false;
    enterArray();
    return true;
}

bool ReleaseBuilder::endArray()
{
    if (m_passedOver > 0) {
        --m_passedOver;
        return true;
    }
    switch (m_place) {
    case Row:
        return endRow();
    case Replacements:
        m_release.setReplacements(m_replacements);
        m_place = Release;
        break;
    case Mappings:
        m_place = Release;
        break;
    case Targets:
        m_place = Mapping;
        break;
    default:
        m_place = Target;
        break;
    }
    return true;
}

bool ReleaseBuilder::key(std::string_view name)
{
    if (m_passedOver > 0)
        return true;
    for (int i = 0; i < int(std::size(Members)); ++i) {
        if (Members[i].place == m_place && Members[i].name == name) {
            m_key = i;
            m_seen |= 1U << unsigned(i);
            return true;
        }
    }
    m_passNext = true;
    return true;
}

bool ReleaseBuilder::boolean(bool flag)
{
    if (passOver())
        return true;
    if (m_place == Row && (m_column == 3 || m_column == 4)) {
        if (m_column == 3 || !flag)
            return fail(rowLayout());
        m_conflict = true;
        m_column = 5;
        return true;
    }
    if (!expect(BooleanKind))
        return false;
    if (m_key == Valid)
        m_target.setValid(flag);
    else
        m_proposedRules = flag;
    m_key = NoKey;
    return true;
}

bool ReleaseBuilder::text(std::string_view utf8)
{
    if (passOver())
        return true;
    if (m_place == Row && m_column == 3) {
        m_extended = fromUtf8(utf8);
        m_column = 4;
        return true;
    }
    if (m_place == Conditions) {
        ++m_element;
        m_target.addCondition(VarsetConditionC::fromText(fromUtf8(utf8)));
        return true;
    }
    if (!expect(TextKind))
        return false;
    // Versions recur, and one that recurs is shared.
    LastText &last = m_last[std::size_t(m_key)];
    if (last.utf8 != utf8) {
        last.utf8 = utf8;
        last.text = fromUtf8(utf8);
    }
    setText(last.text);
    m_key = NoKey;
    return true;
}

bool ReleaseBuilder::anythingElse()
{
    if (passOver())
        return true;
    if (m_key != NoKey)
        return expect(Members[m_key].kind == TextKind ? IntegerKind : TextKind);
    switch (m_place) {
    case Outside:
        return fail(QStringLiteral("must be an object"));
    case Row:
        return fail(rowLayout());
    case Conditions:
        ++m_element;
        return fail(QStringLiteral("must be a text"));
    case Lines:
        ++m_element;
        return fail(QStringLiteral("must be an array"));
    case Modifiers:
        ++m_element;
        [[fallthrough]];
    default:
        return fail(QStringLiteral("must hold nothing but objects"));
    }
}

bool ReleaseBuilder::fail(const QString &message)
{
    m_message = message;
    return false;
}

bool ReleaseBuilder::passOver()
{
    const bool pass = m_passNext || m_passedOver > 0;
    m_passNext = false;
    return pass;
}

bool ReleaseBuilder::startPassingOver()
{
    m_passNext = false;
    if (++m_passedOver > MaxDepth)
        return fail(QStringLiteral("holds values that are nested too deeply"));
    return true;
}

bool ReleaseBuilder::expect(Kind kind)
{
    if (m_key == NoKey)
        return anythingElse();
    if (Members[m_key].kind == kind)
        return true;
    static const QString Expected[] = {
        QStringLiteral("must be a text"), QStringLiteral("must be an integer from 0 to 2147483647"),
        QStringLiteral("must be true or false"), QStringLiteral("must be an array")};
    return fail(Expected[Members[m_key].kind]);
}

bool ReleaseBuilder::otherInteger(qint64 number)
{
    if (passOver())
        return true;
    if (m_key != NoKey && Members[m_key].kind == IntegerKind &&
        (number < 0 || number > std::numeric_limits<int>::max()))
        return expect(TextKind);
    if (!expect(IntegerKind))
        return false;
    m_state = PRJMAPPING::MappingState::fromInt(int(number));
    m_key = NoKey;
    return true;
}

void ReleaseBuilder::begin(Place place)
{
    m_place = place;
    m_seen &= ~bitsOf(Members, [place](const Member &member) { return member.place == place; });
}

void ReleaseBuilder::enterArray()
{
    m_place = Members[m_key].inside;
    m_element = -1;
    switch (m_key) {
    case ReplacementsKey:
        m_replacements.clear();
        break;
    case MappingsKey:
        m_release.clearMappings();
        break;
    case TargetsKey:
        m_targets.clear();
        break;
    case ConditionsKey:
        m_target.clearConditions();
        break;
    case ModifiersKey:
        m_target.clearModifier();
        break;
    default:
        m_target.clearLines(false);
        m_ascending = true;
        break;
    }
    m_key = NoKey;
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
    const quint32 missing = ~m_seen & bitsOf(Members, [place](const Member &member) {
        return member.place == place && member.required;
    });
    if (missing != 0) {
        const Member &first = Members[std::countr_zero(missing)];
        return fail(QStringLiteral("lacks the member \"%1\"").arg(fromUtf8(first.name)));
    }
    if (place == Mapping && !m_mapping.isValid())
        return fail(QStringLiteral("has an empty \"sourcePath\""));
    return true;
}

bool ReleaseBuilder::endModifier()
{
    constexpr quint32 Names = 1U << ModifierSource | 1U << ModifierTarget;
    if (!checkComplete(Modifier))
        return false;
    if (m_modifierKind == QLatin1String("var") && (m_seen & Names) == Names)
        m_target.addModifier(new VarsetVarMappingC(m_modifierSource, m_modifierTarget));
    else if (m_modifierKind == QLatin1String("value") && m_seen & (1U << ModifierFormula))
        m_target.addModifier(VarsetValueMappingC::fromText(m_modifierFormula));
    else
        return fail(QStringLiteral("must be of kind \"var\" with \"source\" and \"target\", or of "
                                   "kind \"value\" with \"formula\""));
    m_place = Modifiers;
    return true;
}

bool ReleaseBuilder::endReplacement()
{
    constexpr quint32 Texts = 1U << ReplacementBefore | 1U << ReplacementAfter;
    constexpr quint32 Numbers = 1U << ReplacementFactor | 1U << ReplacementOffset;
    if (!checkComplete(Replacement))
        return false;
    const quint32 given = m_seen & (Texts | Numbers);
    const auto isNumber = [](const QString &text) {
        bool ok = false;
        return std::isfinite(text.toDouble(&ok)) && ok;
    };
    const bool numbers =
        given == Numbers && isNumber(m_replacement.factor) && isNumber(m_replacement.offset);
    if (m_replacement.variable.isEmpty() || (given != Texts && !numbers))
        return fail(QStringLiteral("must name a variable, and texts as \"before\" and \"after\" or "
                                   "decimal numbers as \"factor\" and \"offset\""));
    m_replacements.append(m_replacement);
    m_place = Replacements;
    return true;
}

bool ReleaseBuilder::row(int sourceLine, int targetLine, int state)
{
    ++m_element;
    m_row = {sourceLine, targetLine, state};
    m_column = 3;
    return addRow(ExtendedTextPtr(), false);
}

void ReleaseBuilder::rows(LineTable::Iterator &from, int count)
{
    m_target.appendMappedLines(from, count);
    m_element += count;
    m_lastLine = std::prev(lines().end()).sourceLine();
}

QString ReleaseBuilder::targetName() const
{
    return m_mapping.getSourcePath() + u'\n' + QString::number(m_targets.size()) + u'\n' +
           m_target.getTargetPath();
}

bool ReleaseBuilder::endRow()
{
    ExtendedTextPtr extended;
    if (!m_extended.isEmpty())
        extended = new ExtendedText(m_extended);
    return addRow(extended, m_conflict);
}

bool ReleaseBuilder::addRow(const ExtendedTextPtr &extended, bool conflict)
{
    m_place = Row;
    if (m_column < 3 || m_row[0] < 0 || m_row[1] < -1 || m_row[2] < 0)
        return fail(rowLayout());
    const LineTable &lines = m_target.lines();
    const bool ascends = lines.isEmpty() || m_row[0] > m_lastLine;
    if (!ascends && lines.contains(m_row[0]))
        return fail(QStringLiteral("names source line %1 once more").arg(m_row[0]));
    m_ascending = m_ascending && ascends;
    m_lastLine = m_row[0];
    const auto state = PRJMAPPING::CheckState(m_row[2]);
    m_target.setMappedLine(m_row[0], PrjMappingTargetLineC(m_row[1], state, conflict, extended));
    m_place = Lines;
    return true;
}
