#include "LibraryMetaTypes.h"

#include <QMetaType>

#include <dlfcn.h>

namespace {

/// Qt numbers types from QMetaType::User on, fills gaps first and does not tell the last number; a
/// gap this long is the end.
constexpr int longestGap = 1024;

/// Where the library begins in which an object lies; null if it lies in none.
const void *libraryOf(const void *object)
{
    Dl_info info{};
    return dladdr(object, &info) ? info.dli_fbase : nullptr;
}

} // namespace

LibraryMetaTypes::~LibraryMetaTypes()
{
    static const char inThisLibrary = 0;
    const void *const library = libraryOf(&inThisLibrary);
    int gap = 0;
    for (int id = QMetaType::User + 1; gap < longestGap; ++id) {
        gap = QMetaType::isRegistered(id) ? 0 : gap + 1;
        if (gap > 0)
            continue;
        const QMetaType type(id);
        if (libraryOf(type.iface()) == library)
            QMetaType::unregisterMetaType(type);
    }
}
