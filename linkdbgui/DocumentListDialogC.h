#pragma once

#include <mapping/VelkLinkDbGuiGlobal.h>

#include <core/component/mzComStringC.h>
#include <core/component/mzIDispatchC.h>
#include <core/text/PRefPtr.h>
#include <core/text/ProxyPtrT.h>
#include <core/text/PString.h>

#include <QDialog>

QT_BEGIN_NAMESPACE
class QTreeWidgetItem;
QT_END_NAMESPACE

class DocumentListDialogCPrivate;
class IndexTreeC;
class prxLinkDbIfaceC;
namespace VKTab {
class proxyTableC;
} // namespace VKTab

/// Dialog over the document records that the link database holds for one line of one project's
/// table. Records are picked, made, edited and deleted; what may be done and which columns are
/// shown is told by the keys of the user's group. The picked record's XVARSET goes back to the
/// caller.
///
/// The usual order: construct, setIndexTree(), setVelkTab(), setLinkDbIface(), callbacks,
/// initDialog(), exec(), getXVarset(). It can be shown again after another initDialog(). Statements
/// run in the transaction of the link database: deleting a record without children leaves it open,
/// and the caller commits. GUI thread.
class VELKLINKDBGUI_EXPORT DocumentListDialogC : public QDialog
{
    Q_OBJECT

public:
    DocumentListDialogC(QWidget *parent, QFlags<Qt::WindowType> flags);
    ~DocumentListDialogC() override;

    /// Without one initDialog() does nothing.
    void setIndexTree(const PRefPtr<IndexTreeC> &tree);
    /// May be left out; then no record is preselected and no XVARSET is given back. A create
    /// callback wants a table.
    void setVelkTab(const ProxyPtrT<VKTab::proxyTableC> &table);
    /// Reads table names and the group's keys, which show and hide the buttons.
    void setLinkDbIface(const ProxyPtrT<prxLinkDbIfaceC> &linkDbIface);
    /// Called with the values of an edited record before they are written.
    void setUpdateCallback(const mzIDispatchC &object, const mzComStringC &method);
    /// Called with the values of a new record; a valid one enables the button, for good.
    void setCreateCallback(const mzIDispatchC &object, const mzComStringC &method);

    /// Sets the line and loads its records. Before setIndexTree() and setLinkDbIface() it does
    /// nothing.
    void initDialog(const PString &path, int lineId, int lineSubId);

    /// XVARSET of the record that was picked last; empty before.
    [[nodiscard]] PString getXVarset() const;
    /// Whether a record was made, changed or deleted, an assembly's deletion left out. Adds up over
    /// all uses of the dialog.
    [[nodiscard]] bool isModified() const;
    /// Whether a picked XVARSET differed from the line's own. Adds up as well.
    [[nodiscard]] bool isVarsetModified() const;
    /// Has the ERP columns of the line read anew, if the table has such columns and a file.
    void updatePLMInfo();

    /// Places of the splitter and of the columns; empty without splitter.
    Q_INVOKABLE QByteArray saveState() const;
    /// The next initDialog() applies it.
    Q_INVOKABLE void restoreState(const QByteArray &state);

    void accept() override;

private Q_SLOTS:
    void OnSelectionChanged();
    void OnDeleteRow();
    void OnNewRecord();
    void OnEditRecord();
    void OnItemDoubleClicked(QTreeWidgetItem *item, int column);
    void OnCurrentItemChanged();

private:
    DocumentListDialogCPrivate *const d;
};
