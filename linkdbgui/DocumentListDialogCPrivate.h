#pragma once

#include "ScriptCallback.h"
#include "ValueMap.h"

#include <core/text/PPrivateData.h>
#include <core/text/PRefPtr.h>
#include <core/text/ProxyPtrT.h>
#include <core/text/PString.h>
#include <geomcore/index/IndexTreeC.h>
#include <geomcore/linkdb/PLinkDbRecordC.h>
#include <geomcore/linkdb/prxLinkDbIfaceC.h>
#include <geomcore/table/proxyTableC.h>

#include <QByteArray>
#include <QTreeWidgetItem>

#include <optional>

QT_BEGIN_NAMESPACE
class QLabel;
class QPushButton;
class QSplitter;
class QTreeWidget;
QT_END_NAMESPACE

class DocumentListDialogC;
class NewRecordDialogC;

/// State of DocumentListDialogC, and the statements that it sends. The widgets are null if the form
/// lacks them.
class DocumentListDialogCPrivate : public PPrivateData<DocumentListDialogC>
{
public:
    explicit DocumentListDialogCPrivate(DocumentListDialogC *dialog);
    ~DocumentListDialogCPrivate();
    Q_DISABLE_COPY_MOVE(DocumentListDialogCPrivate)

    // Widgets and configuration

    /// Finds the widgets of the form and connects them.
    void findWidgets(const QWidget &form);
    static void setListLook(QTreeWidget *view);
    /// Of the list, in upper case; blanks round a name stay.
    [[nodiscard]] PStringList displayColumns() const;
    /// Of the record form, in upper case, the two systems included.
    [[nodiscard]] PStringList editColumns() const;
    void setHeader();
    void setVarsetHeader();
    /// Hides the line for good if the group has no text for it.
    void updateInfoLabel();
    void updateButtons();
    void restoreViews();

    // Reading

    void setLine(const PString &path, int line, int subLine);
    [[nodiscard]] QString lineCondition() const;
    void loadRecords();
    void selectRecordOfLine();
    /// -1 if no column is named so.
    [[nodiscard]] int xvarsetColumn() const;
    /// As it is shown; empty for a row that is not there.
    [[nodiscard]] QString xvarsetOfRow(int row) const;
    /// Text that stands for the line of the dialog; empty without table.
    [[nodiscard]] QString lineXVarset() const;
    void showVarset(const QString &text);
    [[nodiscard]] PStringList distinctValues(const char *column) const;
    /// Of the record's first row; columns that the table lacks are left out.
    [[nodiscard]] ValueMap readRecordValues(const QString &geoId, const PStringList &columns) const;

    // Writing

    /// GEO_ID of the record in the first selected row; nothing without such a row.
    [[nodiscard]] std::optional<QString> selectedRecord() const;
    /// With the fields of all edit columns.
    void prepareForm(NewRecordDialogC &form) const;
    void showRecord(NewRecordDialogC &form, const QString &geoId) const;
    [[nodiscard]] mzComVariantC invokeCallback(const ScriptCallback &callback,
                                               const mzComVariantArrayC &arguments) const;
    /// The values as the script leaves them; none if it does not want them written.
    [[nodiscard]] ValueMap applyCallback(const ValueMap &values,
                                         const ScriptCallback &callback) const;
    [[nodiscard]] PLinkDbRecordC recordOf(const ValueMap &values) const;
    /// Runs and commits; a failure is shown with the message.
    void write(const QString &statement, const char *failure);
    // Deleting; ids are literals of the database

    void deleteLeaf(const QString &id);
    void deleteAssembly(const QString &id);
    void deleteChildren(const QString &id);
    /// Logs and runs.
    bool runDelete(const QString &statement) const;
    bool deleteRecord(const QString &id) const;
    [[nodiscard]] int count(const QString &statement) const;

    PRefPtr<IndexTreeC> indexTree;
    ProxyPtrT<prxLinkDbIfaceC> linkDbIface;
    QString documentTable;
    QString hierarchyTable;
    ProxyPtrT<VKTab::proxyTableC> table;
    ScriptCallback updateCallback;
    ScriptCallback createCallback;
    bool modified = false;
    bool varsetModified = false;
    PString xvarset;
    PString projectPath;
    PString relativePath;
    PString version;
    PString poolId;
    int lineId = 0;
    int lineSubId = 0;
    QByteArray savedState;
    QTreeWidget *tvDocuments = nullptr;
    QTreeWidget *tvVarset = nullptr;
    QPushButton *btnDelete = nullptr;
    QPushButton *btnCreate = nullptr;
    QPushButton *btnEdit = nullptr;
    QLabel *lbInfo = nullptr;
    QSplitter *splitter = nullptr;
};
