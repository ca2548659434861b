#pragma once

#include <core/text/PString.h>

/// Where the program keeps what it remembers. Makes the directory.
class SettingsPlace
{
public:
    /// \a directory empty: the user's own.
    explicit SettingsPlace(const QString &directory);

    [[nodiscard]] const QString &directory() const { return m_directory; }
    /// Of PApplication: places of windows, column widths and the like.
    [[nodiscard]] PString applicationConfig() const { return m_directory + "/windows.cfg"; }
    /// Of the workbench itself.
    [[nodiscard]] QString workbenchSettings() const { return m_directory + "/workbench.ini"; }

private:
    QString m_directory;
};
