#pragma once

#include <core/VelkCoreGlobal.h>

#include <QStringList>

/// Libraries of others that add to the programs: sources of tables, functions of formulas, classes
/// for scripts, rules of proposals. Programs load them once at their start, before they read
/// anything. They stay loaded until the program ends, with all rights of its user.
class VELKCORE_EXPORT Extensions
{
public:
    /// Folders that a program of this installation looks into: "extensions" beside the program's
    /// other modules, then those that the environment variable VELK_EXTENSIONS names, separated as
    /// PATH separates. Folders that do not exist are left out. Needs the application object.
    [[nodiscard]] static QStringList folders();
    /// Loads each library of the folders, in the order of folders and file names, and lets it
    /// register what it has. What does not load is told, file first, and left out: no library, one
    /// without VELK_EXTENSION, one made for another version. GUI thread.
    [[nodiscard]] static QStringList load(const QStringList &folders);
    /// Paths of those that were loaded so far.
    [[nodiscard]] static QStringList loaded();
};

/// Stands once in an extension, with the braces of a function behind it that registers what the
/// extension has. VELK_API_VERSION is that of the installed headers; Velk::Core defines it.
#define VELK_EXTENSION                                                                             \
    extern "C" Q_DECL_EXPORT const char *velkExtensionVersion()                                    \
    {                                                                                              \
        return VELK_API_VERSION;                                                                   \
    }                                                                                              \
    extern "C" Q_DECL_EXPORT void velkExtensionRegister()
