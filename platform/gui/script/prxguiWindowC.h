#pragma once

#include <core/component/proxyObjectC.h>
#include <gui/VelkGuiGlobal.h>

#include <QPointer>
#include <QWidget>

/// A window as scripts have it, to be given to others. Does not own the window, which may go first:
/// then it has no title and is not visible.
class VELKGUI_EXPORT prxguiWindowC : public proxyObjectC
{
public:
    explicit prxguiWindowC(QWidget *window = nullptr);

    /// Null if the window is gone.
    [[nodiscard]] QWidget *getWidget() const { return m_window; }
    /// For scripts.
    [[nodiscard]] QString title() const;
    [[nodiscard]] bool isVisible() const;

    [[nodiscard]] const proxyMemberDescListS *getProxyTypeInfo() const override;
    [[nodiscard]] static const proxyMemberDescListS *getStaticProxyTypeInfo();

private:
    ~prxguiWindowC() override;

    QPointer<QWidget> m_window;
};
