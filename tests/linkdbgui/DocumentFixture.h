#pragma once

#include "../support/PostgresServer.h"
#include "../support/TestCatalog.h"

#include <linkdbgui/DocumentListDialogC.h>
#include <linkdbgui/NewRecordDialogC.h>

#include <core/component/proxyMember.h>
#include <core/component/prxDictionaryObjC.h>
#include <core/logging/StaticLogger.h>
#include <core/message/PScriptedMessageSink.h>
#include <geomcore/linkdb/prxLinkDbIfaceC.h>
#include <geomcore/table/proxyTableC.h>
#include <gui/application/PApplication.h>

#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>

#include <functional>
#include <memory>

/// Global rows for a whole test: everything runs on each database.
void addDatabases();
/// The database of the current global row is a server.
[[nodiscard]] bool isOnServer();

/// What goes to the database, and what the document dialog logs, as long as it lives.
class StatementLog
{
public:
    StatementLog();
    ~StatementLog();
    Q_DISABLE_COPY_MOVE(StatementLog)

    /// Since the last call.
    [[nodiscard]] QStringList takeStatements();
    /// Lines of the document dialog, since the last call.
    [[nodiscard]] QStringList takeLines();
    /// Places of those lines, "file|function|line"; never emptied.
    [[nodiscard]] static QStringList places();
    /// Of connections by name that find nothing.
    [[nodiscard]] static QStringList warnings();

private:
    QtMessageHandler m_before;
};

/// Script object with one method for the callbacks of the document dialog, "run".
class CallbackObject : public proxyObjectC
{
public:
    using Run = std::function<mzComVariantC(prxDictionaryObjC &values, const mzComVariantC &table)>;

    explicit CallbackObject(Run run)
        : m_run(std::move(run))
    {
    }
    mzComVariantC run(const ProxyPtrT<prxDictionaryObjC> &values, const mzComVariantC &table)
    {
        return m_run(*values, table);
    }

    [[nodiscard]] const proxyMemberDescListS *getProxyTypeInfo() const override;

private:
    Run m_run;
};

/// Script object whose calls fail without an exception.
class FailingObject : public proxyObjectC
{
public:
    int invokeByName(const mzComStringC &, int, const mzComVariantArrayC &, mzComVariantC &,
                     std::optional<PScriptException> &) override
    {
        return mzComFailed;
    }
};

[[nodiscard]] mzIDispatchC dispatchOf(proxyObjectC *object);
/// Object whose method "run" does that.
[[nodiscard]] mzIDispatchC scriptOf(CallbackObject::Run run);
/// "KEY=value" of the dictionary, in its order.
[[nodiscard]] QStringList entriesOf(const prxDictionaryObjC &dictionary);

/// Does something with the dialog that is next shown by exec(), once it is there.
void inNextDialog(const std::function<void(QDialog &)> &act);
/// The same for the record form, then Ok or Cancel.
void inNextForm(const std::function<void(NewRecordDialogC &)> &fill, bool accept = true);
/// Field of the record form by its label.
[[nodiscard]] QWidget *fieldOf(const QWidget &form, const QString &label);
void typeInto(const QWidget &form, const QString &label, const QString &text);
/// "a|b:a": what the box of that label offers, and what it holds.
[[nodiscard]] QString boxTexts(const QWidget &form, const char *label);
/// Labels of the form from top to bottom.
[[nodiscard]] QStringList labelsOf(const QWidget &form);

/// A catalog with the project "cat/a.prj" and a link database of its own, with the document dialog
/// over both. Line 1 of the table stands for {TMVMAT=St}{L=10}{M=1}, line 2 for {TMVMAT=Cu}{L=20}
/// {M=2}.
class DocumentFixture
{
public:
    using Values = QList<std::pair<QString, QVariant>>;

    /// On the database of the current global row: a file, or the server of the program.
    DocumentFixture();
    ~DocumentFixture();
    Q_DISABLE_COPY_MOVE(DocumentFixture)

    /// Gives the table that attribute.
    void usePool(const QString &pool);
    /// A document of line 1, committed; a value may replace any of "cat/a.prj", "v1", 1 and 0.
    void insert(const QString &geoId, const Values &values = {}) const;
    void join(const QString &parent, const QString &child) const;
    void execute(const QString &sql) const;
    /// The database refuses to delete that document.
    void refuseDeletion(const QString &geoId) const;
    /// The database refuses to delete a row of the hierarchy.
    void refuseUnlinking() const;
    /// The database does that with documents, and refuses to commit it.
    void refuseCommits(const QStringList &events) const;
    void setKey(const QString &key, const QString &value) const;
    /// First column of a SELECT; forgets the log.
    [[nodiscard]] QStringList column(const QString &sql) const;
    [[nodiscard]] QStringList documents() const;
    [[nodiscard]] QStringList hierarchy() const;

    /// Ready for initDialog().
    [[nodiscard]] std::unique_ptr<DocumentListDialogC> makeDialog(bool withTable = true) const;
    /// Over line 1, shown.
    [[nodiscard]] std::unique_ptr<DocumentListDialogC> showDialog(bool withTable = true) const;

    const QString project = QStringLiteral("cat/a.prj");
    TestCatalog catalog;
    QString path; ///< of the project
    const QTemporaryDir folder;
    PRefPtr<PLinkDbC> linkDb;
    ProxyPtrT<prxLinkDbIfaceC> iface;
    ProxyPtrT<VKTab::proxyTableC> table;
    const PApplication application{PRefPtr<PConfig>()};
    const std::shared_ptr<PScriptedMessageSink> messages = std::make_shared<PScriptedMessageSink>();
    mutable StatementLog log;

private:
    void writeTable(const QString &pool);
    void refuseDeletes(const QString &name, const QString &condition) const;

    const PMessageSinkScope m_scope{messages};
    PPathName m_formerRoot;
};

/// One of the dialog's own widgets.
template<class Widget>
[[nodiscard]] Widget *widgetOf(const QWidget &dialog, const char *name)
{
    return dialog.findChild<Widget *>(QString::fromLatin1(name));
}

[[nodiscard]] QTreeWidget *documentsOf(const DocumentListDialogC &dialog);
/// Texts of a list's rows, joined by "|".
[[nodiscard]] QStringList rowsOf(const QTreeWidget *list);
/// GEO_IDs of the list's rows.
[[nodiscard]] QStringList idsOf(const DocumentListDialogC &dialog);
/// GEO_IDs of the selected rows.
[[nodiscard]] QStringList selectedIds(const DocumentListDialogC &dialog);
/// Clicks a row of the list of documents.
void clickDocument(const DocumentListDialogC &dialog, int row);
/// The same by its GEO_ID, as each database has an order of its own.
void clickRecord(const DocumentListDialogC &dialog, const QString &geoId);
void clickButton(const QWidget &dialog, const char *name);
