#include "ReleaseBuilder.h"

#include "recordsText.h"

#include <geomcore/binding/VarsetConditionC.h>

#include <iterator>

using namespace ReleaseLayout;

namespace {

QString fromUtf8(std::string_view text)
{
    return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

QString expectation(Kind kind)
{
    switch (kind) {
    case TextKind:
        return recordsText("%1 muss ein Text sein");
    case IntegerKind:
        return recordsText("%1 muss eine ganze Zahl von 0 bis 2147483647 sein");
    case BooleanKind:
        return recordsText("%1 muss true oder false sein");
    case ArrayKind:
        break;
    }
    return recordsText("%1 muss eine Liste sein");
}

QString rowLayout()
{
    return recordsText(
        "%1 muss [Quellzeile, Zielzeile, Zustand] sein, dann der erweiterte Text, wenn es "
        "einen gibt, dann true für einen Konflikt; Zeilen zählen ab 0, -1 ist keine "
        "Zielzeile");
}

} // namespace

QString ReleaseBuilder::error() const
{
    QStringList path;
    if (m_place == Replacements || m_place == Replacement)
        path += QStringLiteral("replacements[%1]").arg(m_replacements.size());
    if (m_place == AllLearned || m_place == Learned)
        path += QStringLiteral("learned[%1]").arg(m_allLearned.size());
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
    return m_message.arg(path.isEmpty() ? recordsText("Der Katalogstand") : path.join(u'.'));
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
    } else if (m_key == NoKey && m_place == AllLearned) {
        m_learned = LearnedReplacement();
        begin(Learned);
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
    if (m_place == Learned)
        return endLearned();
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
    case AllLearned:
        m_release.setLearned(m_allLearned);
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
    const int known = keyOf(m_place, name);
    if (known != NoKey) {
        m_key = known;
        m_seen |= quint64(1) << unsigned(known);
        return true;
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
        return fail(recordsText("%1 muss ein Objekt sein"));
    case Row:
        return fail(rowLayout());
    case Conditions:
        ++m_element;
        return fail(recordsText("%1 muss ein Text sein"));
    case Lines:
        ++m_element;
        return fail(recordsText("%1 muss eine Liste sein"));
    case Modifiers:
        ++m_element;
        [[fallthrough]];
    default:
        return fail(recordsText("%1 darf nur Objekte enthalten"));
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
        return fail(recordsText("%1 enthält zu tief verschachtelte Werte"));
    return true;
}

bool ReleaseBuilder::expect(Kind kind)
{
    if (m_key == NoKey)
        return anythingElse();
    if (Members[m_key].kind == kind)
        return true;
    return fail(expectation(Members[m_key].kind));
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
    if (m_key == LearnedSupports)
        m_learned.supports = int(number);
    else if (m_key == LearnedCases)
        m_learned.cases = int(number);
    else
        m_state = PRJMAPPING::MappingState::fromInt(int(number));
    m_key = NoKey;
    return true;
}

void ReleaseBuilder::begin(Place place)
{
    m_place = place;
    m_seen &= ~membersOf(place);
}

void ReleaseBuilder::enterArray()
{
    m_place = Members[m_key].inside;
    m_element = -1;
    switch (m_key) {
    case ReplacementsKey:
        m_replacements.clear();
        break;
    case LearnedKey:
        m_allLearned.clear();
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
        return fail(recordsText("%1 nennt die Quellzeile %2 noch einmal")
                        .arg(QStringLiteral("%1"), QString::number(m_row[0])));
    m_ascending = m_ascending && ascends;
    m_lastLine = m_row[0];
    const auto state = PRJMAPPING::CheckState(m_row[2]);
    m_target.setMappedLine(m_row[0], PrjMappingTargetLineC(m_row[1], state, conflict, extended));
    m_place = Lines;
    return true;
}
