#pragma once

#include "LinkDbError.h"
#include "LinkDbSettings.h"
#include "PLinkDbQueryI.h"
#include "PLinkDbRecordC.h"

#include <core/text/PRefPtr.h>
#include <core/text/PString.h>
#include <geomcore/VelkGeomCoreGlobal.h>

#include <memory>

class IndexTreeC;

/// The link database: documents that hang on lines of catalog tables, their hierarchy, user groups.
///
/// Nothing is committed by itself. The first statement that changes data opens a transaction and
/// commit() closes it; a failed statement goes alone, what was done before it stays pending.
/// Closing in good order commits what is pending. A DELETE keeps what it deletes in a journal
/// table, see LinkDbDeletedRows. A lost connection is told and taken up again at the next
/// statement; what was not committed is lost with it and never written a second time by itself.
///
/// Every operation may be called on any thread and waits for its end, with a progress that can be
/// cancelled if that takes longer than a moment. While a progress is shown in a program with
/// windows, events are processed. A server that does not answer is given up at once while it is
/// connected to, and some seconds after the user has cancelled else: the connection counts as lost.
class VELKGEOMCORE_EXPORT PLinkDbC : public PRefObject
{
public:
    /// Not connected.
    PLinkDbC();
    /// Commits what is pending and closes.
    ~PLinkDbC() override;
    PLinkDbC(const PLinkDbC &) = delete;
    PLinkDbC &operator=(const PLinkDbC &) = delete;

    /// The link database of the process: where scripts and the plug-in work. Never null; at first
    /// one that is not connected.
    [[nodiscard]] static PRefPtr<PLinkDbC> instance();
    /// Null stands for one that is not connected.
    static void setInstance(const PRefPtr<PLinkDbC> &linkDb);

    /// Connects, makes the tables in a database that has none, and brings older ones up to date.
    /// False with lastError(). An empty password is looked for where LinkDbSettings says.
    bool open(const LinkDbSettings &settings, const QString &password = {});
    /// Commits what is pending. False if that failed; it is closed all the same.
    bool close();
    [[nodiscard]] bool isOpen() const;
    /// Any thread: what runs is given up, also if the server does not answer, and nothing is begun
    /// any more; pending changes are lost. For one that goes.
    void stop();
    /// A thread that was given up still waits for a server. For the end of a program, which such a
    /// thread must not survive.
    [[nodiscard]] static bool isThreadLeft();
    [[nodiscard]] LinkDbSettings settings() const;
    /// Name that the database knows the user by; for a file that of the account, or of log-in.
    [[nodiscard]] QString userName() const;
    /// Works as another user from now on: PostgreSQL connects anew, a file only notes the name.
    /// Pending changes are committed before. If it fails the former connection is taken up again.
    bool login(const QString &user, const QString &password);

    /// Groups that the user may choose, in order of their names.
    [[nodiscard]] QStringList groups();
    [[nodiscard]] QString currentGroup() const;
    /// False if the user may not choose it. Reads the group's keys anew.
    bool changeGroup(const QString &group);
    /// Value of a key of the current group, or empty.
    [[nodiscard]] QString groupInformation(const QString &key) const;
    /// Writes a group's key, in the open transaction; on PostgreSQL administrators alone may do so.
    bool setGroupInformation(const QString &group, const QString &key, const QString &value);

    /// Physical names: of "PLMTABLE2" the table of documents, of "PLM_HIERARCHY" that of their
    /// hierarchy. Other names come back as they are.
    [[nodiscard]] PString getTableName(const PString &logicalName) const;
    /// The form in which PRJ_PATH holds a project's path: below the catalog root and with "/".
    /// Paths elsewhere come back in their normalised form, an empty one stays empty.
    [[nodiscard]] PString makeRelativePath(const PString &path) const;
    /// Other directories with catalogs, such as an older release's, besides that of the index tree.
    void setMoreCatalogRoots(const QStringList &directories);

    /// A failed one gives a query without rows; never null.
    PRefPtr<PLinkDbQueryI> executeSelectStatement(const QString &sql);
    /// The number in the first row's first column; -1 on failure.
    int executeCountStatement(const QString &sql) const;
    /// Any statement that changes data. False on failure.
    bool executeInsertStatement(const QString &sql) const;
    /// Undoes what is pending.
    bool rollback();
    bool commit();
    [[nodiscard]] bool isPending() const;

    /// All columns of the table, none of them set.
    [[nodiscard]] PLinkDbRecordC createRecord(const PString &table);
    /// INSERT, or with \a update an UPDATE without WHERE, of the columns that are set and that the
    /// table has, in the table's order. An INSERT writes a fresh UUID as GEO_ID whatever the record
    /// holds, an UPDATE never writes it. Empty if there is nothing to write.
    [[nodiscard]] QString createSqlStatement(const PString &table, const PLinkDbRecordC &record,
                                             bool update);
    /// A value as the database's literal; texts without NUL.
    [[nodiscard]] QString literal(const QVariant &value) const;
    /// A column's or table's name as the database quotes it.
    [[nodiscard]] QString identifier(const QString &name) const;

    /// Error and statement that failed last, with what the user can do.
    void showLastError();
    [[nodiscard]] LinkDbError lastError() const;

    /// The tree of the process.
    [[nodiscard]] PRefPtr<IndexTreeC> getIndexTree() const;

    /// For the parts of this folder.
    class Private;
    [[nodiscard]] Private &parts() const { return *d; }

private:
    std::unique_ptr<Private> d;
};
