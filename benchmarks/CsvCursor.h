#pragma once

#include <cstring>
#include <string_view>
#include <vector>

namespace velkbench {

/// Reads CSV bytes in place, row by row: what a plain program would do by hand. Quoted cells keep
/// their quotes.
class CsvCursor
{
public:
    explicit CsvCursor(std::string_view bytes)
        : m_at(bytes.data())
        , m_end(bytes.data() + bytes.size())
    {
    }

    bool atEnd() const { return m_at == m_end; }
    const char *position() const { return m_at; }

    /// Splits the next row into cells[0 .. count); false behind the last row.
    bool next(std::vector<std::string_view> &cells)
    {
        if (m_at == m_end)
            return false;
        cells.clear();
        const char *begin = m_at;
        for (;; ++m_at) {
            const char c = m_at == m_end ? '\n' : *m_at;
            if (c == '"') {
                skipQuoted();
            } else if (c == ',') {
                cells.emplace_back(begin, size_t(m_at - begin));
                begin = m_at + 1;
            } else if (c == '\n') {
                const bool isCr = m_at != begin && m_at[-1] == '\r';
                cells.emplace_back(begin, size_t(m_at - begin) - (isCr ? 1 : 0));
                m_at += m_at == m_end ? 0 : 1;
                return true;
            }
        }
    }

private:
    /// From the opening quote onto the closing one; a doubled quote begins a new quoted part.
    void skipQuoted()
    {
        const auto *quote =
            static_cast<const char *>(memchr(m_at + 1, '"', size_t(m_end - m_at - 1)));
        m_at = quote ? quote : m_end - 1;
    }

    const char *m_at;
    const char *m_end;
};

} // namespace velkbench
