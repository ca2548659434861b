#include "prxDocumentListDialogC.h"

#include <core/component/proxyMember.h>

prxDocumentListDialogC::prxDocumentListDialogC() = default;

prxDocumentListDialogC::~prxDocumentListDialogC()
{
    delete m_dialog;
}

void prxDocumentListDialogC::setParentWindow(const ProxyPtrT<prxguiWindowC> &window)
{
    m_parentWindow = window;
    if (m_dialog && !window.isNull()) {
        // With its flags, or it would be no window any more and wait inside of its parent.
        m_dialog->setParent(window->getWidget(), m_dialog->windowFlags());
    }
}

bool prxDocumentListDialogC::isModified() const
{
    return m_dialog && m_dialog->isModified();
}

bool prxDocumentListDialogC::isVarsetModified() const
{
    return m_dialog && m_dialog->isVarsetModified();
}

int prxDocumentListDialogC::ShowDialog(const PString &path, int lineId, int lineSubId)
{
    if (!m_dialog)
        makeDialog();
    m_dialog->initDialog(path, lineId, lineSubId);
    return m_dialog->exec();
}

void prxDocumentListDialogC::makeDialog()
{
    QWidget *const parent = m_parentWindow.isNull() ? nullptr : m_parentWindow->getWidget();
    m_dialog = new DocumentListDialogC(parent,
                                       Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint);
    m_dialog->setIndexTree(m_indexTree);
    m_dialog->setVelkTab(m_table);
    m_dialog->setLinkDbIface(m_linkDbIface);
    m_dialog->setUpdateCallback(m_updateCallback.object, m_updateCallback.method);
    m_dialog->setCreateCallback(m_createCallback.object, m_createCallback.method);
}

void prxDocumentListDialogC::SetUpdateCallback(const mzIDispatchC &object,
                                               const mzComStringC &method)
{
    m_updateCallback = {object, method};
    if (m_dialog)
        m_dialog->setUpdateCallback(object, method);
}

void prxDocumentListDialogC::SetCreateCallback(const mzIDispatchC &object,
                                               const mzComStringC &method)
{
    m_createCallback = {object, method};
    if (m_dialog)
        m_dialog->setCreateCallback(object, method);
}

void prxDocumentListDialogC::UpdatePLMInfo()
{
    if (m_dialog)
        m_dialog->updatePLMInfo();
}

PString prxDocumentListDialogC::getXVarset() const
{
    return m_dialog ? m_dialog->getXVarset() : PString();
}

const proxyMemberDescListS *prxDocumentListDialogC::getProxyTypeInfo() const
{
    return getStaticProxyTypeInfo();
}

const proxyMemberDescListS *prxDocumentListDialogC::getStaticProxyTypeInfo()
{
    using Self = prxDocumentListDialogC;
    static constexpr proxyMemberDescS members[] = {
        proxyPropertyRead<&Self::getVelkTab>("VelkTab"),
        proxyPropertyWrite<&Self::setVelkTab>("VelkTab"),
        proxyMethod<&Self::setVelkTab>("VelkTab"),
        proxyPropertyRead<&Self::getParentWindow>("ParentWindow"),
        proxyPropertyWrite<&Self::setParentWindow>("ParentWindow"),
        proxyMethod<&Self::setParentWindow>("ParentWindow"),
        proxyPropertyRead<&Self::isModified>("Modified"),
        proxyPropertyRead<&Self::isVarsetModified>("VarsetModified"),
        proxyMethod<&Self::ShowDialog>("ShowDialog"),
        proxyMethod<&Self::SetUpdateCallback>("SetUpdateCallback"),
        proxyMethod<&Self::SetCreateCallback>("SetCreateCallback"),
        proxyMethod<&Self::UpdatePLMInfo>("UpdatePLMInfo"),
        proxyMethod<&Self::getXVarset>("getXVarset"),
    };
    static const proxyMemberDescListS description{.className = "prxDocumentListDialogC",
                                                  .base = proxyObjectC::getStaticProxyTypeInfo(),
                                                  .members = members,
                                                  .file = __FILE__,
                                                  .line = __LINE__};
    return &description;
}
