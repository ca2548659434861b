#include "MappedFile.h"

#include <cstring>
#include <fcntl.h>
#include <stdexcept>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velkbench {

MappedFile::MappedFile(const std::filesystem::path &path)
{
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    struct stat info = {};
    if (file < 0 || fstat(file, &info) != 0)
        throw std::runtime_error("cannot open " + path.string());
    if (info.st_size > 0) {
        void *data = mmap(nullptr, size_t(info.st_size), PROT_READ, MAP_PRIVATE, file, 0);
        if (data == MAP_FAILED)
            throw std::runtime_error("cannot map " + path.string());
        m_bytes = {static_cast<const char *>(data), size_t(info.st_size)};
    }
    close(file);
}

MappedFile::~MappedFile()
{
    if (!m_bytes.empty())
        munmap(const_cast<char *>(m_bytes.data()), m_bytes.size());
}

size_t countLines(std::string_view bytes)
{
    size_t count = 0;
    const char *at = bytes.data();
    const char *end = at + bytes.size();
    while (at != end) {
        const void *found = memchr(at, '\n', size_t(end - at));
        if (!found)
            break;
        ++count;
        at = static_cast<const char *>(found) + 1;
    }
    return count;
}

} // namespace velkbench
