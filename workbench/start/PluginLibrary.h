#pragma once

#include <QLibrary>
#include <QString>

#include <memory>

class PLinkDbGuiI;

/// A plug-in library that offers PLinkDbGuiI, with the one object made of it. GUI thread.
class PluginLibrary
{
public:
    PluginLibrary();
    /// Deletes the object. The library stays loaded, since windows of it may live on.
    ~PluginLibrary();
    PluginLibrary(const PluginLibrary &) = delete;
    PluginLibrary &operator=(const PluginLibrary &) = delete;

    /// Loads the library and makes its plug-in object by the registry. \a path may leave out the
    /// system's prefix and suffix. False with error() if there is no such library, it cannot be
    /// loaded, or it registers no plug-in of this interface.
    [[nodiscard]] bool load(const QString &path);
    [[nodiscard]] const QString &error() const { return m_error; }
    /// Null before load().
    [[nodiscard]] PLinkDbGuiI *plugin() const { return m_plugin; }

    /// Path of a library of this installation: in "lib" beside the program's directory.
    [[nodiscard]] static QString pathOf(const QString &name);

private:
    QLibrary m_library;
    std::unique_ptr<QObject> m_object;
    PLinkDbGuiI *m_plugin = nullptr;
    QString m_error;
};
