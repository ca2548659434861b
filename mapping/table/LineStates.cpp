#include "LineStates.h"

#include <geomcore/binding/createVarsetFromVKTable.h>
#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/table/LineView.h>

#include <algorithm>

namespace {

using State = LineStates::State;

// Beside the states, of a line number.
constexpr quint8 Unknown = 0xff; ///< no target holds it
constexpr quint8 Several = 0xfe; ///< several targets hold it, or nobody looked

/// Beyond that the numbers of a table are too far apart for a place for each.
constexpr int PlacesPerLine = 8;

PrjMappingLineC findLine(const PrjMappingC &mapping, const VKTab::Content &table,
                         const VKTab::LineId &id)
{
    const VKTab::LineView view(table, id);
    return view.isValid() ? mapping.findLine(id.value(0), view)
                          : mapping.findLine(id.value(0), createVarsetFromVKTable(table, id, {}));
}

bool isConflicted(const PrjMappingC &mapping, const PrjMappingLineC &line, int number)
{
    const int index = line.getTargetIndex();
    return index >= 0 && index < mapping.countTargets() &&
           mapping.targetAt(index).getLineConflicted(number);
}

State stateOf(bool isFound, PRJMAPPING::CheckState state, bool conflict)
{
    if (conflict)
        return LineStates::Conflicted;
    const bool isVerified = state == PRJMAPPING::Verified;
    if (!isFound)
        return isVerified ? LineStates::Expired : LineStates::NotFound;
    if (isVerified)
        return LineStates::Confirmed;
    return state == PRJMAPPING::Mapped ? LineStates::Assigned : LineStates::ToCheck;
}

void enter(const PrjMappingTargetC &target, std::vector<quint8> &byNumber)
{
    const bool isReal = !target.isNotFoundTarget();
    for (const LineTable::Iterator &entry : target.lines()) {
        if (entry.sourceLine() < 0 || size_t(entry.sourceLine()) >= byNumber.size())
            continue;
        quint8 &state = byNumber[size_t(entry.sourceLine())];
        state = state == Unknown ? quint8(stateOf(isReal && entry.targetLine() != -1, entry.state(),
                                                  entry.conflict()))
                                 : Several;
    }
}

/// By line number; nothing if the numbers are too far apart.
std::vector<quint8> statesByNumber(const QVector<VKTab::LineId> &lines, const PrjMappingC &mapping)
{
    int last = -1;
    for (const VKTab::LineId &id : lines)
        last = std::max(last, id.value(0));
    if (last / PlacesPerLine > lines.size())
        return {};
    std::vector<quint8> states(size_t(last) + 1, Unknown);
    for (int i = 0; i < mapping.countTargets(); ++i)
        enter(mapping.targetAt(i), states);
    return states;
}

} // namespace

const QVariantList &LineStates::texts()
{
    static const QVariantList texts = {QStringLiteral(""),   QStringLiteral("M"),
                                       QStringLiteral("C"),  QStringLiteral("N"),
                                       QStringLiteral("NC"), QStringLiteral("Conflicted")};
    return texts;
}

LineStates::State LineStates::of(const VKTab::LineId &id, const VKTab::Content &table,
                                 const PrjMappingC &mapping)
{
    const PrjMappingLineC line = findLine(mapping, table, id);
    return stateOf(line.isValid() && line.isFound(), line.getCheckState(),
                   isConflicted(mapping, line, id.value(0)));
}

std::vector<quint8> LineStates::ofAll(const QVector<VKTab::LineId> &lines,
                                      const VKTab::Content &table, const PrjMappingC &mapping)
{
    const std::vector<quint8> known = statesByNumber(lines, mapping);
    std::vector<quint8> states;
    states.reserve(size_t(lines.size()));
    for (const VKTab::LineId &id : lines) {
        const quint8 state = known.empty() ? Several : known[size_t(id.value(0))];
        if (state == Unknown)
            states.push_back(NotFound);
        else
            states.push_back(state == Several ? quint8(of(id, table, mapping)) : state);
    }
    return states;
}
