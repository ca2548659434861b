#include "AddressedFiles.h"

#include <mutex>

namespace {

struct Installed
{
    std::mutex lock;
    std::shared_ptr<AddressedFiles> files;
};

Installed &ofProcess()
{
    static Installed installed;
    return installed;
}

} // namespace

AddressedFiles::~AddressedFiles() = default;

void AddressedFiles::install(std::shared_ptr<AddressedFiles> files)
{
    Installed &process = ofProcess();
    const std::scoped_lock guard(process.lock);
    process.files.swap(files); // the former one goes after the lock
}

std::shared_ptr<AddressedFiles> AddressedFiles::installed()
{
    Installed &process = ofProcess();
    const std::scoped_lock guard(process.lock);
    return process.files;
}
