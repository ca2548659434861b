#pragma once

#include <geomcore/records/PrjMappingC.h>
#include <geomcore/value/LineId.h>

#include <optional>

class PrjMapperLineC;

/// A mapping with one line decided.
struct LineDecision
{
    PrjMappingC mapping;
    std::optional<int> acceptedLine; ///< source line whose conflict is accepted by it
};

/// What is written when a line is confirmed, sent to another target line or removed. Works on the
/// mapping that what the mapper says of the line ends with; nothing comes of a line without history
/// or target.
class LineDecisions
{
public:
    /// \a targetLine is the line to take; without one the assigned line stays. The value range text
    /// goes with the target line it tells of.
    [[nodiscard]] static std::optional<LineDecision> confirm(const PrjMapperLineC &line,
                                                             std::optional<int> targetLine);
    /// The line goes to the not-found target, which is made if there is none.
    [[nodiscard]] static std::optional<LineDecision> remove(const PrjMapperLineC &line,
                                                            const VKTab::LineId &id);
    /// Another value range text; nothing for the same one and for a line without target.
    [[nodiscard]] static std::optional<PrjMappingC>
    changeText(const PrjMappingC &mapping, const PrjMapperLineC &line, const QString &text);
};
