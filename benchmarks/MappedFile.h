#pragma once

#include <filesystem>
#include <string_view>

namespace velkbench {

/// A file mapped for reading. Throws std::runtime_error if it cannot be opened.
class MappedFile
{
public:
    explicit MappedFile(const std::filesystem::path &path);
    ~MappedFile();
    MappedFile(const MappedFile &) = delete;
    MappedFile &operator=(const MappedFile &) = delete;

    std::string_view bytes() const { return m_bytes; }

private:
    std::string_view m_bytes;
};

/// Number of line feeds: the least that reading a file can cost.
size_t countLines(std::string_view bytes);

} // namespace velkbench
