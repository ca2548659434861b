#include "CatalogGenerator.h"

#include <array>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace velkbench {

namespace {

constexpr std::array<const char *, 12> Materials{"St", "A2", "A4", "8.8", "10.9", "12.9",
                                                 "Cu", "Al", "Ms", "PA6", "POM",  "NBR"};
constexpr const char *OldDate = "2023-01-31T10:00:00Z";
constexpr const char *NewDate = "2025-06-30T10:00:00Z";

/// Purposes of random numbers beside the cells, whose purpose is their column.
enum Purpose { FateOfLine = 1000, ChangedColumn, MovedBlock, Shuffle };

std::uint64_t mix(std::uint64_t x)
{
    // The finaliser of SplitMix64.
    x += 0x9e3779b97f4a7c15ULL;
    x = (x ^ (x >> 30)) * 0xbf58476d1ce4e5b9ULL;
    x = (x ^ (x >> 27)) * 0x94d049bb133111ebULL;
    return x ^ (x >> 31);
}

double share(std::uint64_t random)
{
    return double(random >> 11) / double(1ULL << 53);
}

void appendPadded(std::string &out, std::uint64_t number, int width)
{
    const std::string digits = std::to_string(number);
    if (int(digits.size()) < width)
        out.append(size_t(width) - digits.size(), '0');
    out += digits;
}

void writeFile(const std::filesystem::path &path, const std::string &text)
{
    std::filesystem::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file.write(text.data(), std::streamsize(text.size()));
    if (!file.flush())
        throw std::runtime_error("cannot write " + path.string());
}

} // namespace

CatalogGenerator::CatalogGenerator(const CatalogShape &shape)
    : m_shape(shape)
{
    if (shape.projects < 1 || shape.lines < 1 || shape.variables < 4)
        throw std::invalid_argument("a catalog needs a project, a line and four variables");
}

std::uint64_t CatalogGenerator::random(int project, std::uint64_t line, int purpose) const
{
    return mix(mix(mix(m_shape.seed * 0x10001 + std::uint64_t(project)) ^ line) +
               std::uint64_t(purpose));
}

std::vector<GeneratedProject> CatalogGenerator::write(const std::filesystem::path &folder) const
{
    std::vector<GeneratedProject> result;
    for (int project = 0; project < m_shape.projects; ++project) {
        std::string name = "p";
        appendPadded(name, std::uint64_t(project), 4);
        GeneratedProject files;
        files.path = std::string(CatalogName) + '/' + name + ".prj";
        for (const bool isNew : {false, true}) {
            const std::string date = isNew ? NewDate : OldDate;
            const auto base = folder / (isNew ? "new" : "old") / CatalogName;
            (isNew ? files.newCsv : files.oldCsv) = base / (name + ".csv");
            writeFile(base / (name + ".csv"), isNew ? newTable(project) : oldTable(project));
            writeFile(base / (name + ".json"), descriptor(name, date));
            std::string head = "[PROJECT]\nNAME=";
            head.append(name).append("\nDATE=").append(date);
            head.append("\nSACHM=").append(name).append(".json\n");
            writeFile(base / (name + ".prj"), head);
        }
        result.push_back(std::move(files));
    }
    return result;
}

std::string CatalogGenerator::oldTable(int project) const
{
    std::string out;
    out.reserve(size_t(m_shape.lines) * size_t(m_shape.variables) * 8);
    appendHeader(out);
    for (int line = 0; line < m_shape.lines; ++line)
        appendLine(out, project, std::uint32_t(line), false);
    return out;
}

std::string CatalogGenerator::newTable(int project) const
{
    std::string out;
    out.reserve(size_t(m_shape.lines) * size_t(m_shape.variables) * 8);
    appendHeader(out);
    for (const std::uint32_t line : newOrder(project)) {
        const double fate = share(random(project, line, FateOfLine));
        const bool changed = int(line) < m_shape.lines && fate >= m_shape.dropped &&
                             fate < m_shape.dropped + m_shape.changed;
        appendLine(out, project, line, changed);
    }
    return out;
}

std::vector<std::uint32_t> CatalogGenerator::newOrder(int project) const
{
    std::vector<std::uint32_t> order;
    std::vector<std::uint32_t> later;
    const auto count = std::uint32_t(m_shape.lines);
    std::uint32_t fresh = count;
    for (std::uint32_t line = 0; line < count; ++line) {
        const double fate = share(random(project, line, FateOfLine));
        const bool moved = share(random(project, line / 50, MovedBlock)) < m_shape.moved;
        if (fate >= m_shape.dropped)
            (moved ? later : order).push_back(line);
        if (fate >= 1 - m_shape.added)
            order.push_back(fresh++);
    }
    order.insert(order.end(), later.begin(), later.end());
    if (m_shape.shuffled) {
        for (size_t i = order.size(); i > 1; --i)
            std::swap(order[i - 1], order[random(project, i, Shuffle) % i]);
    }
    return order;
}

void CatalogGenerator::appendHeader(std::string &out) const
{
    out += "Key,Dia,L,Mat";
    for (int column = 4; column < m_shape.variables; ++column) {
        out += ",V";
        out += std::to_string(column);
    }
    out += '\n';
}

void CatalogGenerator::appendLine(std::string &out, int project, std::uint32_t line,
                                  bool changed) const
{
    const int last = m_shape.ranges ? m_shape.variables - 2 : m_shape.variables - 1;
    // Numbers stand in column 2 (the length) and in the even columns from 4 on.
    int changedColumn = -1;
    if (changed && !m_shape.millimetres)
        changedColumn = 2 + 2 * int(random(project, line, ChangedColumn) % std::uint64_t(last / 2));
    out += 'A';
    appendPadded(out, line, 8);
    for (int column = 1; column < m_shape.variables; ++column) {
        out += ',';
        std::uint64_t value = random(project, line, column);
        if (column == changedColumn)
            value += 7;
        if (changed && m_shape.millimetres && column == 4)
            appendMillimetres(out, value);
        else
            appendCell(out, column, value);
    }
    out += '\n';
}

void CatalogGenerator::appendCell(std::string &out, int column, std::uint64_t random) const
{
    if (m_shape.ranges && column == m_shape.variables - 1) {
        const std::uint64_t from = 5 * (1 + random % 20);
        out += std::to_string(from);
        out += "..";
        out += std::to_string(from + 50);
        out += "/5";
    } else if (column == 1) {
        out += 'M';
        out += std::to_string(3 + random % 34);
    } else if (column == 2) {
        out += std::to_string(5 * (1 + random % 200));
    } else if (column == 3 || column % 2 == 1) {
        out += Materials[random % Materials.size()];
    } else {
        out += std::to_string(random % 1000);
        out += '.';
        appendPadded(out, random / 1000 % 100, 2);
    }
}

void CatalogGenerator::appendMillimetres(std::string &out, std::uint64_t random)
{
    const std::uint64_t thousandths = (random % 1000 * 100 + random / 1000 % 100) * 254;
    out += std::to_string(thousandths / 1000);
    out += '.';
    appendPadded(out, thousandths % 1000, 3);
}

std::string CatalogGenerator::descriptor(const std::string &name, const std::string &date) const
{
    static constexpr std::array<const char *, 4> Names{"Key", "Dia", "L", "Mat"};
    std::ostringstream out;
    out << "{\n  \"name\": \"" << name << "\",\n  \"normNumber\": \"BN 1\",\n"
        << "  \"finalDate\": \"" << date << "\",\n  \"primaryKey\": [\"Key\"],\n  \"fields\": [";
    for (int column = 0; column < m_shape.variables; ++column) {
        const bool isRange = m_shape.ranges && column == m_shape.variables - 1;
        const bool isNumber = isRange || (column >= 2 && column % 2 == 0);
        out << (column == 0 ? "\n" : ",\n") << "    {\"name\": \"";
        if (column < 4)
            out << Names[size_t(column)];
        else
            out << 'V' << column;
        out << "\", \"type\": \"" << (isNumber ? "number" : "string") << "\", \"kind\": \""
            << (isRange ? "range" : "plain") << "\"}";
    }
    out << "\n  ]\n}\n";
    return out.str();
}

TemporaryFolder::TemporaryFolder()
{
    std::string name = (std::filesystem::temp_directory_path() / "velkbench-XXXXXX").string();
    if (!mkdtemp(name.data()))
        throw std::runtime_error("cannot make a temporary folder " + name);
    m_path = name;
}

TemporaryFolder::~TemporaryFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

} // namespace velkbench
