#pragma once

#include <core/VelkCoreGlobal.h>

#include <QString>

#include <memory>

/// Where the files are that addresses such as "svn://host/trunk/a.prj" name. With one installed,
/// PPathName gives such a file's place on the disk, and what reads files has it brought there
/// first. Every operation may be called on any thread.
class VELKCORE_EXPORT AddressedFiles
{
public:
    AddressedFiles() = default;
    virtual ~AddressedFiles();
    AddressedFiles(const AddressedFiles &) = delete;
    AddressedFiles &operator=(const AddressedFiles &) = delete;

    /// Native path under which the file of an address is read, whether or not it is there yet.
    /// Empty if this knows no such addresses. May ask a server, and wait for it.
    [[nodiscard]] virtual QString fileOf(const QString &address) = 0;
    /// Sees that a file is there, if it is one that fileOf() could have given; may wait for a
    /// server. False if it could not be brought, with the reason in \a problem. True does not say
    /// that there is a file of that name.
    [[nodiscard]] virtual bool provide(const QString &file, QString &problem) = 0;

    /// For the whole process; none with null.
    static void install(std::shared_ptr<AddressedFiles> files);
    [[nodiscard]] static std::shared_ptr<AddressedFiles> installed();
};
