#pragma once

#include "PRJMAPPING.h"

#include <geomcore/VelkGeomCoreGlobal.h>

/// Where a given source line went, as PrjMappingC::findLine computes it.
class VELKGEOMCORE_EXPORT PrjMappingLineC
{
public:
    /// Known to some target.
    [[nodiscard]] bool isValid() const { return m_valid; }
    void setValid(bool valid) { m_valid = valid; }
    /// Has a target line in a target with a path.
    [[nodiscard]] bool isFound() const { return m_realTarget && m_targetLine != -1; }

    [[nodiscard]] PRJMAPPING::CheckState getCheckState() const { return m_state; }
    void setCheckState(PRJMAPPING::CheckState state) { m_state = state; }
    /// Index into PrjMappingC::getTargets, or -1.
    [[nodiscard]] int getTargetIndex() const { return m_targetIndex; }
    void setTargetIndex(int index) { m_targetIndex = index; }
    [[nodiscard]] int getSourceLineId() const { return m_sourceLine; }
    void setSourceLineId(int id) { m_sourceLine = id; }
    [[nodiscard]] int getTargetLineId() const { return m_targetLine; }
    void setTargetLineId(int id) { m_targetLine = id; }
    /// Whether its target has a path. A line built by hand starts with true.
    [[nodiscard]] bool isInRealTarget() const { return m_realTarget; }
    void setInRealTarget(bool real) { m_realTarget = real; }

private:
    int m_sourceLine = -1;
    int m_targetLine = -1;
    int m_targetIndex = -1;
    PRJMAPPING::CheckState m_state = PRJMAPPING::ToCheck;
    bool m_valid = false;
    bool m_realTarget = true;
};
