#include "proxyTableC.h"

namespace VKTab {

proxyTableC::proxyTableC(const Content &content)
    : m_content(content)
{
}

proxyTableC::~proxyTableC() = default;

ContentRef proxyTableC::getContent() const
{
    return m_content;
}

} // namespace VKTab
