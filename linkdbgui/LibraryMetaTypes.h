#pragma once

#include <QtGlobal>

/// Takes the meta types that this library has brought to Qt back when the library goes: Qt keeps
/// pointers to their descriptions, which lie in the library. A static object of it.
///
/// Asks the loader of Linux where a description lies. Converters between types stay, and so does
/// what others remember of a type's number: nobody may use types of this library when it has gone.
/// Types behind 1024 free numbers in a row are not found.
class LibraryMetaTypes
{
public:
    LibraryMetaTypes() = default;
    ~LibraryMetaTypes();
    Q_DISABLE_COPY_MOVE(LibraryMetaTypes)
};
