#pragma once

#include <QtGlobal>

/// Takes the meta types that this library has brought to Qt back when the library goes: Qt keeps
/// pointers to their descriptions, which lie in the library. A static object of it.
class LibraryMetaTypes
{
public:
    LibraryMetaTypes() = default;
    ~LibraryMetaTypes();
    Q_DISABLE_COPY_MOVE(LibraryMetaTypes)
};
