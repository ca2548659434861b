#include "prxWorkbenchC.h"

#include "MainWindow.h"

#include <core/component/proxyMember.h>
#include <workbench/session/document/MappingDocument.h>
#include <workbench/window/document/DocumentDesk.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/message/LogWindow.h>

prxWorkbenchC::prxWorkbenchC(MainWindow *window)
    : m_window(window)
{
}

prxWorkbenchC::~prxWorkbenchC() = default;

QString prxWorkbenchC::mappingFile() const
{
    return m_window ? m_window->desk()->document()->mappingFile() : QString();
}

QString prxWorkbenchC::project() const
{
    return m_window ? m_window->editor()->currentPath() : QString();
}

QString prxWorkbenchC::projectFile() const
{
    const QString path = project();
    return path.isEmpty() ? QString()
                          : m_window->desk()->document()->catalogRoots().source + u'/' + path;
}

int prxWorkbenchC::line() const
{
    return m_window ? m_window->editor()->currentLine() : -1;
}

ProxyPtrT<VKTab::proxyTableC> prxWorkbenchC::table() const
{
    const VKTab::ContentRef table =
        m_window ? m_window->editor()->sourceTable() : VKTab::ContentRef();
    return ProxyPtrT<VKTab::proxyTableC>(table.isValid() ? new VKTab::proxyTableC(table) : nullptr);
}

bool prxWorkbenchC::selectProject(const QString &path)
{
    return m_window && m_window->editor()->selectProject(path);
}

bool prxWorkbenchC::selectLine(int line)
{
    return m_window && m_window->editor()->selectLine(line);
}

ProxyPtrT<prxguiWindowC> prxWorkbenchC::window() const
{
    return ProxyPtrT<prxguiWindowC>(new prxguiWindowC(m_window));
}

void prxWorkbenchC::log(const QString &text)
{
    if (m_window)
        m_window->log()->addMessage(LogWindow::Severity::Information, text);
}

const proxyMemberDescListS *prxWorkbenchC::getProxyTypeInfo() const
{
    return getStaticProxyTypeInfo();
}

const proxyMemberDescListS *prxWorkbenchC::getStaticProxyTypeInfo()
{
    using Self = prxWorkbenchC;
    static const proxyMemberDescS members[] = {
        proxyPropertyRead<&Self::mappingFile>("mappingFile"),
        proxyPropertyRead<&Self::project>("project"),
        proxyPropertyRead<&Self::projectFile>("projectFile"),
        proxyPropertyRead<&Self::line>("line"),
        proxyPropertyRead<&Self::table>("table"),
        proxyMethod<&Self::selectProject>("selectProject"),
        proxyMethod<&Self::selectLine>("selectLine"),
        proxyPropertyRead<&Self::window>("window"),
        proxyMethod<&Self::log>("log"),
    };
    static const proxyMemberDescListS description{.className = "prxWorkbenchC",
                                                  .base = proxyObjectC::getStaticProxyTypeInfo(),
                                                  .members = members,
                                                  .file = __FILE__,
                                                  .line = __LINE__};
    return &description;
}
