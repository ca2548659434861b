#include "PlanTables.h"

#include <algorithm>

namespace Plan {

void CellMatrix::pack(const std::vector<int> &counts)
{
    std::vector<Column> packed;
    size_t stride = 0;
    for (const int count : counts) {
        const size_t bytes = std::min(m_width, bytesFor(size_t(count)));
        packed.push_back({stride, maskOf(bytes)});
        stride += bytes;
    }
    std::vector<std::uint32_t> values(counts.size());
    for (size_t line = 0; line < m_lines; ++line) {
        for (size_t variable = 0; variable < values.size(); ++variable)
            values[variable] = std::uint32_t(at(line, variable));
        std::uint8_t *bytes = m_bytes.data() + line * stride;
        for (size_t variable = 0; variable < values.size(); ++variable) {
            const size_t next = variable + 1 < packed.size() ? packed[variable + 1].offset : stride;
            for (size_t byte = packed[variable].offset; byte < next; ++byte) {
                bytes[byte] = std::uint8_t(values[variable]);
                values[variable] >>= 8;
            }
        }
    }
    m_columns = std::move(packed);
    m_stride = stride;
    m_bytes.resize(m_lines * stride + sizeof(std::uint32_t));
    m_bytes.shrink_to_fit();
}

} // namespace Plan
