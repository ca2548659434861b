#pragma once

#include "DocumentListDialogC.h"
#include "ScriptCallback.h"

#include <core/component/proxyObjectC.h>
#include <geomcore/index/IndexTreeC.h>
#include <geomcore/linkdb/prxLinkDbIfaceC.h>
#include <geomcore/table/proxyTableC.h>
#include <gui/script/prxguiWindowC.h>

#include <QPointer>

/// The document dialog as scripts have it. Made by prxLinkDbGuiC only. The dialog is made at the
/// first ShowDialog() and kept; it goes with this object, or with the parent window. GUI thread.
class prxDocumentListDialogC : public proxyObjectC
{
public:
    prxDocumentListDialogC();

    void setIndexTree(const PRefPtr<IndexTreeC> &tree) { m_indexTree = tree; }
    void setLinkDbIface(const ProxyPtrT<prxLinkDbIfaceC> &iface) { m_linkDbIface = iface; }

    // For scripts.

    [[nodiscard]] ProxyPtrT<VKTab::proxyTableC> getVelkTab() const { return m_table; }
    /// A dialog that is there keeps its table.
    void setVelkTab(const ProxyPtrT<VKTab::proxyTableC> &table) { m_table = table; }
    [[nodiscard]] ProxyPtrT<prxguiWindowC> getParentWindow() const { return m_parentWindow; }
    void setParentWindow(const ProxyPtrT<prxguiWindowC> &window);
    [[nodiscard]] bool isModified() const;
    [[nodiscard]] bool isVarsetModified() const;
    /// Shows the records of a line and waits; gives the result of the dialog's exec().
    int ShowDialog(const PString &path, int lineId, int lineSubId);
    void SetUpdateCallback(const mzIDispatchC &object, const mzComStringC &method);
    void SetCreateCallback(const mzIDispatchC &object, const mzComStringC &method);
    void UpdatePLMInfo();
    [[nodiscard]] PString getXVarset() const;

    [[nodiscard]] const proxyMemberDescListS *getProxyTypeInfo() const override;
    [[nodiscard]] static const proxyMemberDescListS *getStaticProxyTypeInfo();

private:
    ~prxDocumentListDialogC() override;

    void makeDialog();

    // They go in the opposite order.
    PRefPtr<IndexTreeC> m_indexTree;
    ProxyPtrT<prxLinkDbIfaceC> m_linkDbIface;
    ProxyPtrT<VKTab::proxyTableC> m_table;
    ScriptCallback m_updateCallback;
    ScriptCallback m_createCallback;
    ProxyPtrT<prxguiWindowC> m_parentWindow;
    QPointer<DocumentListDialogC> m_dialog; ///< owned, but a parent window may delete it before
};
