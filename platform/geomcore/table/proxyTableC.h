#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include "Content.h"

namespace VKTab {

/// A table as a script sees it.
class VELKGEOMCORE_EXPORT proxyTableC
{
public:
    explicit proxyTableC(const Content &content);
    virtual ~proxyTableC();

    [[nodiscard]] ContentRef getContent() const;

private:
    ContentRef m_content;
};

} // namespace VKTab
