#include "LineDocuments.h"

#include "LinkDbHost.h"

#include <core/component/proxyMember.h>
#include <core/component/proxyObjectC.h>
#include <core/text/PPathName.h>
#include <geomcore/index/IndexTreeC.h>
#include <geomcore/linkdb/prxLinkDbIfaceC.h>
#include <geomcore/table/proxyTableC.h>
#include <linkdbgui/DocumentListDialogC.h>
#include <workbench/window/editor/EditorArea.h>

namespace {

/// What the dialog asks before it writes a new document. It is written as the user typed it.
class NewDocumentCheck : public proxyObjectC
{
public:
    /// 0: write it.
    [[nodiscard]] int write(const mzComVariantC & /*values*/, const mzComVariantC & /*table*/)
    {
        return 0;
    }

    [[nodiscard]] const proxyMemberDescListS *getProxyTypeInfo() const override
    {
        static constexpr proxyMemberDescS members[] = {
            proxyMethod<&NewDocumentCheck::write>("write"),
        };
        static const proxyMemberDescListS description{.className = "NewDocumentCheck",
                                                      .base =
                                                          proxyObjectC::getStaticProxyTypeInfo(),
                                                      .members = members,
                                                      .file = __FILE__,
                                                      .line = __LINE__};
        return &description;
    }
};

} // namespace

void LineDocuments::show(EditorArea *editor, const QString &sourceRoot, const LinkDbHost &host)
{
    const ProxyPtrT<NewDocumentCheck> check(new NewDocumentCheck);
    DocumentListDialogC dialog(editor->window(),
                               Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint);
    const PRefPtr<PLinkDbC> linkDb = host.linkDb();
    dialog.setIndexTree(linkDb->getIndexTree());
    dialog.setVelkTab(ProxyPtrT<VKTab::proxyTableC>(new VKTab::proxyTableC(editor->sourceTable())));
    dialog.setLinkDbIface(ProxyPtrT<prxLinkDbIfaceC>(new prxLinkDbIfaceC(linkDb)));
    dialog.setCreateCallback(mzIDispatchC(check.get()), mzComStringC(QStringLiteral("write")));
    // The file, for the version of the project stands in or beside it.
    dialog.initDialog((PPathName(sourceRoot) + PPathName(editor->currentPath())).text(),
                      editor->currentLine(), 0);
    dialog.exec();
    if (dialog.isModified() && !linkDb->commit())
        linkDb->showLastError();
}
