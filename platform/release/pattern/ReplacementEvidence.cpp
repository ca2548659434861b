#include "ReplacementEvidence.h"

#include "CellParts.h"
#include "LineComparer.h"

#include <core/parallel/WorkerPool.h>
#include <geomcore/records/LineTable.h>

#include <algorithm>

namespace VelkRelease {

namespace {

constexpr std::size_t MaxExamples = 20;

enum class Verdict : quint8 {
    Unconcerned,
    Supports,
    Contradicts,
};

bool maps(const AgreedReplacement &replacement, QStringView before, QStringView after)
{
    const auto from = numberOf(before);
    return from &&
           isMapped(*from, replacement.factor.toDouble(), replacement.offset.toDouble(), after);
}

Verdict verdictOf(const AgreedReplacement &replacement, const ComparedVariableC &value)
{
    const QString &before = value.oldValue;
    const QString &after = value.newValue;
    if (before.isEmpty() || after.isEmpty())
        return Verdict::Unconcerned;
    const std::vector<CellPart> parts = differingParts(before, after);
    const bool supports = std::any_of(parts.begin(), parts.end(), [&](const CellPart &part) {
        return replacement.isNumeric()
                   ? maps(replacement, part.before, part.after)
                   : part.before == replacement.before && part.after == replacement.after;
    });
    if (supports ||
        (!replacement.isNumeric() && before == replacement.before && after == replacement.after))
        return Verdict::Supports;
    const bool concerned =
        replacement.isNumeric() ? numberOf(before).has_value() : replacement.isFoundIn(before);
    return concerned ? Verdict::Contradicts : Verdict::Unconcerned;
}

std::vector<int> assignedLines(const PrjMappingC &mapping)
{
    std::vector<int> lines;
    for (int i = 0; i < mapping.countTargets(); ++i) {
        for (const LineTable::Iterator &entry : mapping.targetAt(i).lines()) {
            if (entry.targetLine() != -1)
                lines.push_back(entry.sourceLine());
        }
    }
    std::sort(lines.begin(), lines.end());
    lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
    return lines;
}

void look(LineComparer &comparer, const PrjMappingC &mapping, const AgreedReplacement &replacement,
          const std::atomic<bool> &cancelled, ReplacementEvidence &evidence)
{
    for (const int line : assignedLines(mapping)) {
        if (cancelled.load(std::memory_order_relaxed))
            return;
        for (const ComparedVariableC &value : comparer.compared(line)) {
            if (value.name != replacement.variable)
                continue;
            const Verdict verdict = verdictOf(replacement, value);
            evidence.supports += verdict == Verdict::Supports ? 1 : 0;
            if (verdict != Verdict::Contradicts)
                continue;
            ++evidence.counterExamples;
            if (evidence.examples.size() < MaxExamples)
                evidence.examples.push_back(
                    {mapping.getSourcePath(), line, value.oldValue, value.newValue});
        }
    }
}

} // namespace

std::optional<ReplacementEvidence> replacementEvidence(const QString &sourceRoot,
                                                       const ReleaseMappingC &release,
                                                       const AgreedReplacement &replacement,
                                                       const std::atomic<bool> &cancelled)
{
    std::vector<ReplacementEvidence> parts(size_t(release.countMappings()));
    WorkerPool::instance().run(release.countMappings(), [&](int i) {
        const PrjMappingC mapping = release.mappingAt(i);
        if (cancelled.load() || !replacement.holdsIn(mapping.getSourcePath()))
            return;
        LineComparer comparer(sourceRoot, mapping, release, &cancelled);
        look(comparer, mapping, replacement, cancelled, parts[size_t(i)]);
    });
    if (cancelled.load())
        return std::nullopt;
    ReplacementEvidence sum;
    for (const ReplacementEvidence &part : parts) {
        sum.supports += part.supports;
        sum.counterExamples += part.counterExamples;
        const std::size_t room = MaxExamples - sum.examples.size();
        sum.examples.insert(sum.examples.end(), part.examples.begin(),
                            part.examples.begin() +
                                std::ptrdiff_t(std::min(room, part.examples.size())));
    }
    return sum;
}

} // namespace VelkRelease
