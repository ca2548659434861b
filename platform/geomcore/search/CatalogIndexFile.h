#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>

/// The index of a catalog root in its file, a SQLite database, open on the thread that made the
/// object. Several programs may have it open; one of them at a time writes, see CatalogIndexUpdate.
class CatalogIndexFile
{
public:
    enum State {
        Opened,
        Missing, ///< No index there yet.
        Broken,  ///< No index, one of an older form or of another root, or one that is damaged.
        Failed,  ///< Cannot be opened, or belongs to another program; errorText() tells.
    };

    /// \a root: catalog root, resolved.
    CatalogIndexFile(const QString &file, const QString &root);
    ~CatalogIndexFile();
    CatalogIndexFile(const CatalogIndexFile &) = delete;
    CatalogIndexFile &operator=(const CatalogIndexFile &) = delete;

    [[nodiscard]] State openToRead();
    /// Opens or makes it. A broken one is made anew: one of ours goes, any other file is put aside
    /// under a name with the time in it.
    [[nodiscard]] State openToWrite();
    void close();
    /// Closes it and takes the file away, as openToWrite() does with a broken one.
    bool discard();

    [[nodiscard]] QSqlDatabase database() const;
    [[nodiscard]] const QString &errorText() const { return m_errorText; }

    /// Runs a statement. False with errorText().
    [[nodiscard]] bool run(const QString &sql);
    /// The same with values bound.
    [[nodiscard]] bool run(QSqlQuery &query);
    [[nodiscard]] QSqlQuery prepared(const QString &sql);
    /// Whether an error since it was opened says that the file is damaged.
    [[nodiscard]] bool isDamaged() const { return m_damaged; }
    /// Whether all projects were in it at one time.
    [[nodiscard]] bool isComplete();
    [[nodiscard]] bool setComplete();

private:
    [[nodiscard]] State open();
    [[nodiscard]] State check();
    [[nodiscard]] bool makeSchema();
    bool note(const QSqlError &error);

    const QString m_file;
    const QString m_root;
    QString m_connection;
    QString m_errorText;
    bool m_damaged = false;
};
