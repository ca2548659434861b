#pragma once

#include <geomcore/records/PrjMappingC.h>
#include <geomcore/records/PrjMappingLineC.h>
#include <geomcore/records/PrjMappingTargetC.h>
#include <geomcore/VelkGeomCoreGlobal.h>

#include <QList>
#include <QPair>

#include <memory>

/// A source line's way through the releases: pairs of where the line went and the mapping that says
/// so, the last pair being the current release's. All questions are answered from the last pair.
///
/// A line that a mapper looked up holds no pairs but a reference to the mapper's working mapping;
/// the pairs are made when they are asked for, from the mapping as it was at the look-up.
class VELKGEOMCORE_EXPORT PrjLineHistoryC
{
public:
    using Entry = QPair<PrjMappingLineC, PrjMappingC>;

    PrjLineHistoryC();
    PrjLineHistoryC(const PrjLineHistoryC &);
    PrjLineHistoryC(PrjLineHistoryC &&) noexcept;
    PrjLineHistoryC &operator=(const PrjLineHistoryC &);
    PrjLineHistoryC &operator=(PrjLineHistoryC &&) noexcept;
    virtual ~PrjLineHistoryC();

    /// The line is known. A line that a mapper could place nowhere is valid, not found and has an
    /// empty history.
    [[nodiscard]] bool isValid() const { return m_valid; }
    /// The line has a line of a real target, not of the not-found target.
    [[nodiscard]] bool isFound() const { return m_found; }
    [[nodiscard]] PRJMAPPING::CheckState getCheckState() const { return m_state; }
    void setCheckState(PRJMAPPING::CheckState state);

    /// Appends a pair; the line then answers from it.
    void addMapping(const PrjMappingLineC &line, const PrjMappingC &mapping);
    [[nodiscard]] QList<Entry> getHistory() const;

    /// The target at getTargetIndex() of the current mapping, or a target that is not valid.
    [[nodiscard]] PrjMappingTargetC getTarget() const;
    /// As stored, not made a file path.
    [[nodiscard]] QString getTargetPath() const;
    /// -1 if there is none; so are the next two.
    [[nodiscard]] int getSourceLineId() const { return m_sourceLineId; }
    [[nodiscard]] int getTargetIndex() const { return m_targetIndex; }
    [[nodiscard]] int getTargetLineId() const { return m_targetLineId; }

protected:
    friend class PrjMapperC;
    friend class PrjMapperPrivate;

    /// The mapping that the last pair holds, or null without a history.
    [[nodiscard]] const PrjMappingC *currentMapping() const;

private:
    [[nodiscard]] PrjMappingLineC currentLine() const;

    int m_sourceLineId = -1;
    int m_targetIndex = -1;
    int m_targetLineId = -1;
    PRJMAPPING::CheckState m_state{};
    bool m_valid = false;
    bool m_found = false;
    bool m_inRealTarget = false;
    /// The mapper's working mapping, for a line without pairs of its own.
    std::shared_ptr<const PrjMappingC> m_working;
    QList<Entry> m_pairs;
};
