#pragma once

#include <geomcore/plan/CellValues.h>
#include <geomcore/VelkGeomCoreGlobal.h>

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace Mapper {

/// Texts of the cells of a few lines, one behind the other.
class CellTexts
{
public:
    /// Of the next place of the line.
    void add(std::string_view text, char decimalChar)
    {
        m_bytes += text;
        m_cells.push_back({std::uint32_t(m_bytes.size()), decimalChar});
    }
    [[nodiscard]] std::string_view text(size_t cell) const
    {
        const size_t begin = cell == 0 ? 0 : m_cells[cell - 1].end;
        return std::string_view(m_bytes).substr(begin, m_cells[cell].end - begin);
    }
    [[nodiscard]] char decimalChar(size_t cell) const { return m_cells[cell].decimalChar; }
    [[nodiscard]] size_t count() const { return m_cells.size(); }
    void clear()
    {
        m_bytes.clear();
        m_cells.clear();
    }

private:
    struct Cell
    {
        std::uint32_t end;
        char decimalChar;
    };
    std::string m_bytes;
    std::vector<Cell> m_cells;
};

/// Numbers the cells of many lines. Values get their numbers in the order of the lines, those of
/// different variables on different threads.
class VELKGEOMCORE_EXPORT CellNumbering
{
public:
    /// \a variables: by place the number of the one in \a values.
    CellNumbering(std::vector<Plan::CellValues> &values, const std::vector<int> &variables);

    /// Adds the cells of a line, of all places or none.
    using AddTexts = std::function<void(size_t line, CellTexts &texts)>;
    using Take = std::function<void(size_t line, size_t place, int number)>;
    /// \a add is called on several threads at once, \a take on one at a time for a place.
    void run(size_t lines, const AddTexts &add, const Take &take);
    /// As above, but \a add is called on this thread, in order.
    void runInOrder(size_t lines, const AddTexts &add, const Take &take);

private:
    struct Part
    {
        CellTexts texts;
        std::vector<size_t> lines; ///< Those that have texts.
    };
    static void fill(Part &part, size_t first, size_t lines, const AddTexts &add);
    void number(const Take &take);

    std::vector<Plan::CellValues> &m_values;
    size_t m_places;
    /// Those of the same variable together.
    std::vector<std::pair<int, std::vector<size_t>>> m_placesOf;
    std::vector<Part> m_parts;
};

} // namespace Mapper
