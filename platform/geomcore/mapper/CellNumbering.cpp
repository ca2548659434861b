#include "CellNumbering.h"

#include <core/parallel/WorkerPool.h>

#include <algorithm>

namespace Mapper {

namespace {

/// Lines whose texts a thread takes in one go, and how many of these stand by at a time.
constexpr size_t LinesOfPart = 256;
constexpr size_t PartsAtOnce = 16;

} // namespace

CellNumbering::CellNumbering(std::vector<Plan::CellValues> &values,
                             const std::vector<int> &variables)
    : m_values(values)
    , m_places(variables.size())
{
    for (size_t place = 0; place < variables.size(); ++place) {
        const auto known =
            std::find_if(m_placesOf.begin(), m_placesOf.end(),
                         [&](const auto &places) { return places.first == variables[place]; });
        if (known == m_placesOf.end())
            m_placesOf.push_back({variables[place], {place}});
        else
            known->second.push_back(place);
    }
}

void CellNumbering::run(size_t lines, const AddTexts &add, const Take &take)
{
    for (size_t first = 0; first < lines; first += LinesOfPart * PartsAtOnce) {
        const size_t parts = std::min(PartsAtOnce, (lines - first - 1) / LinesOfPart + 1);
        m_parts.resize(parts);
        WorkerPool::instance().run(int(parts), [&](int part) {
            fill(m_parts[size_t(part)], first + size_t(part) * LinesOfPart, lines, add);
        });
        number(take);
    }
}

void CellNumbering::runInOrder(size_t lines, const AddTexts &add, const Take &take)
{
    for (size_t first = 0; first < lines; first += LinesOfPart * PartsAtOnce) {
        m_parts.resize(PartsAtOnce);
        for (size_t part = 0; part < PartsAtOnce; ++part)
            fill(m_parts[part], first + part * LinesOfPart, lines, add);
        number(take);
    }
}

void CellNumbering::fill(Part &part, size_t first, size_t lines, const AddTexts &add)
{
    part.texts.clear();
    part.lines.clear();
    for (size_t line = first; line < std::min(lines, first + LinesOfPart); ++line) {
        const size_t before = part.texts.count();
        add(line, part.texts);
        if (part.texts.count() > before)
            part.lines.push_back(line);
    }
}

void CellNumbering::number(const Take &take)
{
    WorkerPool::instance().run(int(m_placesOf.size()), [&](int i) {
        const auto &[variable, places] = m_placesOf[size_t(i)];
        Plan::CellValues &values = m_values[size_t(variable)];
        std::vector<Plan::CellValues::Text> texts;
        std::vector<int> numbers;
        for (const Part &part : m_parts) {
            texts.clear();
            for (size_t line = 0; line < part.lines.size(); ++line) {
                for (const size_t place : places) {
                    const size_t cell = line * m_places + place;
                    texts.push_back({part.texts.text(cell), part.texts.decimalChar(cell)});
                }
            }
            numbers.resize(texts.size());
            values.number(texts, numbers);
            auto number = numbers.begin();
            for (const size_t line : part.lines) {
                for (const size_t place : places)
                    take(line, place, *number++);
            }
        }
    });
}

} // namespace Mapper
