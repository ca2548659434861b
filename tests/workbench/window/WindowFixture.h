#pragma once

#include <workbench/session/common/SessionTypes.h>

#include <QPointer>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

class MainWindow;
class PApplication;
class PluginLibrary;
class QAction;
class VkTableView;
class WorkbenchSettings;

/// A workbench with settings of its own and a mapping of the example catalog.
class WindowFixture
{
public:
    WindowFixture();
    ~WindowFixture();

    /// A new mapping file of the example, all lines assigned; made once a process.
    [[nodiscard]] QString mappingFile(const QString &name = QStringLiteral("m.json")) const;
    [[nodiscard]] static CatalogRoots roots();
    /// Opens a mapping file without a question; the window is shown and active.
    void open(const QString &file);
    void makeWindow();
    void closeWindow();

    /// Sends a key to the window as if its table had the focus.
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    [[nodiscard]] QAction *action(const char *name) const;
    [[nodiscard]] VkTableView *sourceView() const;
    /// Of the release.
    [[nodiscard]] int confirmedLines() const;

    QTemporaryDir directory;
    std::unique_ptr<PApplication> application;
    std::unique_ptr<PluginLibrary> plugin;
    std::unique_ptr<WorkbenchSettings> settings;
    std::unique_ptr<MainWindow> window;

private:
    void activate() const;
};

/// Collects what Qt says of connections that cannot be made, as long as it lives.
class ConnectionWarnings
{
public:
    ConnectionWarnings();
    ~ConnectionWarnings();
    Q_DISABLE_COPY_MOVE(ConnectionWarnings)

    [[nodiscard]] static QStringList &list();
};
