#pragma once

#include "PString.h"

/// A path as users and files write it: with references such as `$TORMEVA_DATA`, with "/" or "\",
/// or an address with a scheme such as "svn://host/trunk". The text is kept as it was given;
/// references are resolved where the file system is asked and where two paths are compared.
/// Addresses are carried unharmed; they stand for a file only where AddressedFiles has one for
/// them.
class VELKCORE_EXPORT PPathName
{
public:
    PPathName() = default;
    PPathName(const QString &text);
    PPathName(const char *utf8);

    /// The text as it was given.
    [[nodiscard]] const PString &text() const { return m_text; }
    [[nodiscard]] bool isEmpty() const { return m_text.isEmpty(); }

    /// True if there is a directory, or, with dirOnly false, a file or directory. False for the
    /// empty path and for addresses whose file is not there and cannot be brought.
    [[nodiscard]] bool exists(bool dirOnly) const;
    /// What the file system is given: references resolved, one separator between components and
    /// that of this system. Addresses for which nobody has a file come back unchanged, apart from
    /// references in front of them.
    [[nodiscard]] PString native() const;

    /// True for addresses such as "svn://host/path". One letter before ":" is a drive, no scheme.
    [[nodiscard]] bool isAddress() const;
    /// True if the resolved path begins at a root, a drive's root or a scheme.
    [[nodiscard]] bool isAbsolute() const;

    /// All before the last component, references kept; empty if there is only one component.
    [[nodiscard]] PPathName directory() const;
    /// The last component with its ending: the name under which a project stands in lists of files.
    [[nodiscard]] PString standardFileName() const;

    /// Joins with exactly one "/" between both texts; references stay as written. An empty side
    /// adds nothing.
    [[nodiscard]] PPathName operator+(const PPathName &relative) const;

    /// The file as seen from a directory: joined, but an absolute file stays as it is. With
    /// normalise references are resolved and "." and ".." taken out of the result.
    [[nodiscard]] static PPathName MergeDirAndFile(const PPathName &directory,
                                                   const PPathName &file, bool normalise);

    /// References resolved, "/" as separator, neither "." nor ".." nor a separator at the end: what
    /// comparison and hash are made of. Case counts, except on Windows.
    [[nodiscard]] PString normalized() const;

    friend VELKCORE_EXPORT bool operator==(const PPathName &a, const PPathName &b);
    friend VELKCORE_EXPORT size_t qHash(const PPathName &path, size_t seed);

private:
    PString m_text;
};

VELKCORE_EXPORT bool operator==(const PPathName &a, const PPathName &b);
[[nodiscard]] VELKCORE_EXPORT size_t qHash(const PPathName &path, size_t seed = 0);
