#include "CsvCells.h"

#include "ByteMasks.h"

namespace VKTab {

const char *endOfQuoted(const char *at, const char *limit)
{
    ++at;
    while (at < limit) {
        at = static_cast<const char *>(std::memchr(at, '"', size_t(limit - at)));
        if (!at)
            return nullptr;
        if (at + 1 == limit || at[1] != '"')
            return at + 1;
        at += 2;
    }
    return nullptr;
}

std::string_view unquote(std::string_view cell, std::string &scratch)
{
    const std::string_view inner = cell.substr(1, cell.size() - 2);
    if (inner.find('"') == std::string_view::npos)
        return inner;
    const size_t begin = scratch.size();
    for (size_t i = 0; i < inner.size(); ++i) {
        scratch += inner[i];
        if (inner[i] == '"')
            ++i;
    }
    return std::string_view(scratch).substr(begin);
}

CsvRecord readRecord(std::string_view bytes, quint64 begin)
{
    CsvRecord record;
    const char *at = bytes.data() + begin;
    const char *const limit = bytes.data() + bytes.size();
    while (true) {
        std::string scratch;
        const char *end = at;
        if (at < limit && *at == '"') {
            end = endOfQuoted(at, limit);
            if (!end) {
                record.bad = at;
                return record;
            }
            record.cells.emplace_back(unquote({at, size_t(end - at)}, scratch));
        } else {
            while (end < limit && *end != ',' && *end != '\n' && *end != '"')
                ++end;
            const bool lineEnd = end == limit || *end == '\n';
            const size_t size = size_t(end - at) - (lineEnd && end > at && end[-1] == '\r' ? 1 : 0);
            record.cells.emplace_back(at, size);
        }
        if (end < limit && *end == ',') {
            at = end + 1;
            continue;
        }
        if (end + 1 < limit && end[0] == '\r' && end[1] == '\n')
            ++end;
        record.terminated = end < limit && *end == '\n';
        if (end < limit && !record.terminated)
            record.bad = end;
        record.end = quint64(end - bytes.data()) + (record.terminated ? 1 : 0);
        return record;
    }
}

void splitPlain(std::string_view row, const char *limit, std::span<std::string_view> cells)
{
    if (cells.empty())
        return;
    const char *const end = row.data() + row.size();
    const char *cellBegin = row.data();
    const char *at = cellBegin;
    size_t count = 0;
    while (at < end && limit - at >= 16) {
        uint32_t mask = equalMask16(at, ',');
        if (end - at < 16)
            mask &= (1u << (end - at)) - 1;
        for (; mask; mask &= mask - 1) {
            const char *comma = at + std::countr_zero(mask);
            cells[count++] = {cellBegin, size_t(comma - cellBegin)};
            cellBegin = comma + 1;
            if (count == cells.size())
                return;
        }
        at += 16;
    }
    for (; at < end; ++at) {
        if (*at != ',')
            continue;
        cells[count++] = {cellBegin, size_t(at - cellBegin)};
        cellBegin = at + 1;
        if (count == cells.size())
            return;
    }
    cells[count] = {cellBegin, size_t(end - cellBegin)};
}

void splitQuoted(std::string_view row, std::span<std::string_view> cells, std::string &scratch)
{
    scratch.clear();
    scratch.reserve(row.size()); // views into it stay valid
    const char *at = row.data();
    const char *const limit = at + row.size();
    for (std::string_view &cell : cells) {
        if (at < limit && *at == '"') {
            const char *end = endOfQuoted(at, limit);
            cell = unquote({at, size_t(end - at)}, scratch);
            at = end + 1;
        } else {
            const void *comma = at < limit ? std::memchr(at, ',', size_t(limit - at)) : nullptr;
            const char *end = comma ? static_cast<const char *>(comma) : limit;
            cell = {at, size_t(end - at)};
            at = end + 1;
        }
    }
}

void appendCell(std::string &out, std::string_view text)
{
    const bool blank = !text.empty() && (text.front() == ' ' || text.back() == ' ');
    if (!blank && text.find_first_of(",\"\r\n") == std::string_view::npos) {
        out += text;
        return;
    }
    out += '"';
    for (char c : text) {
        if (c == '"')
            out += '"';
        out += c;
    }
    out += '"';
}

} // namespace VKTab
