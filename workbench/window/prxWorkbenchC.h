#pragma once

#include <core/component/proxyObjectC.h>
#include <core/text/ProxyPtrT.h>
#include <geomcore/table/proxyTableC.h>
#include <gui/script/prxguiWindowC.h>

#include <QPointer>

class MainWindow;

/// The editor as scripts have it: where the user is, and going elsewhere. Nothing happens once the
/// window is gone.
class prxWorkbenchC : public proxyObjectC
{
public:
    explicit prxWorkbenchC(MainWindow *window);

    [[nodiscard]] const proxyMemberDescListS *getProxyTypeInfo() const override;
    /// Scripts have all of the below.
    [[nodiscard]] static const proxyMemberDescListS *getStaticProxyTypeInfo();

    /// Of the open document; empty without one.
    [[nodiscard]] QString mappingFile() const;
    /// Source path of the selected project; empty without one.
    [[nodiscard]] QString project() const;
    /// In the old release; its version and its documents are looked up by it.
    [[nodiscard]] QString projectFile() const;
    /// Number of the selected line; -1 if there is none, or several.
    [[nodiscard]] int line() const;
    /// The old table as it is shown; null if no project is open.
    [[nodiscard]] ProxyPtrT<VKTab::proxyTableC> table() const;
    /// Both false if there is no such project or line.
    bool selectProject(const QString &path);
    bool selectLine(int line);
    [[nodiscard]] ProxyPtrT<prxguiWindowC> window() const;
    /// Adds a line to the messages.
    void log(const QString &text);

private:
    ~prxWorkbenchC() override;

    QPointer<MainWindow> m_window;
};
