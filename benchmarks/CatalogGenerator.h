#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace velkbench {

/// What a synthetic catalog looks like. Shares are of the old lines, 0 to 1.
struct CatalogShape
{
    int projects = 1;
    int lines = 10000;  ///< old lines of each project
    int variables = 10; ///< columns of each table, at least 4; the first is the key
    double changed = 0.01;
    /// Changed lines have their first number of two decimals, in the fifth column, in millimetres
    /// instead of inches; else another number.
    bool millimetres = false;
    double dropped = 0.005;
    double added = 0.005;
    /// Lines that stand elsewhere in the new release, moved in blocks of up to 50.
    double moved = 0.02;
    /// All lines of the new release in random order, whatever `moved` says.
    bool shuffled = false;
    /// The last variable is a value range.
    bool ranges = false;
    std::uint64_t seed = 1;
};

/// The files of one project in both releases.
struct GeneratedProject
{
    std::string path; ///< relative to a release's root, begins with the catalog: "bench/p0000.prj"
    std::filesystem::path oldCsv;
    std::filesystem::path newCsv;
};

/// Writes big catalogs in two releases. Equal shapes give equal bytes on every machine.
///
/// A line has a key ("A00001234"), a size and a length of few values, a material, then numbers of
/// two decimals and texts in turn: some 60 bytes for ten variables. A changed line differs in one
/// number; no two lines of a table are equal in all variables.
class CatalogGenerator
{
public:
    static constexpr const char *CatalogName = "bench";

    explicit CatalogGenerator(const CatalogShape &shape);

    /// Writes folder/old and folder/new, each with a catalog "bench". Throws
    /// std::filesystem::filesystem_error or std::runtime_error if a file cannot be written.
    std::vector<GeneratedProject> write(const std::filesystem::path &folder) const;

    /// The CSV text of a project, header row included.
    std::string oldTable(int project) const;
    std::string newTable(int project) const;

private:
    std::vector<std::uint32_t> newOrder(int project) const;
    void appendHeader(std::string &out) const;
    void appendLine(std::string &out, int project, std::uint32_t line, bool changed) const;
    void appendCell(std::string &out, int column, std::uint64_t random) const;
    /// A number of two decimals times 25.4.
    static void appendMillimetres(std::string &out, std::uint64_t random);
    std::string descriptor(const std::string &name, const std::string &date) const;
    std::uint64_t random(int project, std::uint64_t line, int purpose) const;

    CatalogShape m_shape;
};

/// A folder in the temporary directory that goes with this object.
class TemporaryFolder
{
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder &) = delete;
    TemporaryFolder &operator=(const TemporaryFolder &) = delete;
    const std::filesystem::path &path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

} // namespace velkbench
