#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <cstddef>
#include <memory_resource>
#include <string_view>

namespace VKTab {

/// Where the texts of one evaluation live, and what bounds them.
class VELKGEOMCORE_EXPORT EvaluationMemory : public std::pmr::monotonic_buffer_resource
{
public:
    /// A computed text has at most as many characters.
    static constexpr std::size_t MostCharacters = 1'000'000;

    using std::pmr::monotonic_buffer_resource::monotonic_buffer_resource;

    /// Whether a computed text of that content may be. If not, it has no value, and that is noted.
    bool takes(std::string_view text);
    /// Whether a text that had to grow so far may go on; a character takes up to four bytes.
    bool grows(std::size_t bytes);

    /// A text was refused.
    [[nodiscard]] bool refused() const { return m_refused; }

private:
    bool m_refused = false;
};

/// Characters of a text in UTF-8.
[[nodiscard]] std::size_t characterCount(std::string_view text);

} // namespace VKTab
