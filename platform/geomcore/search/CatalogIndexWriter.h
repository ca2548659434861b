#pragma once

#include "CatalogIndexFile.h"
#include "IndexedProject.h"

/// Enters projects in an index and takes them out, within transactions of the caller's.
class CatalogIndexWriter
{
public:
    /// Of a file that is open to be written.
    explicit CatalogIndexWriter(CatalogIndexFile &file);

    /// \a known: the project's id, or 0 for a new one. \a chain: its directory and those above.
    /// False if it cannot be written; the file knows why.
    [[nodiscard]] bool enter(const IndexedProject &project, qint64 known,
                             const QList<qint64> &chain);
    [[nodiscard]] bool remove(qint64 project);

private:
    [[nodiscard]] bool enterProject(const IndexedProject &project, qint64 directory, qint64 &id);
    [[nodiscard]] bool enterColumns(const IndexedProject &project, qint64 id);
    [[nodiscard]] bool enterWords(const IndexedProject &project, const QList<qint64> &chain,
                                  qint64 id);

    CatalogIndexFile &m_file;
    QSqlQuery m_removeProject;
    QSqlQuery m_removeColumns;
    QSqlQuery m_removeWords;
    QSqlQuery m_project;
    QSqlQuery m_column;
    QSqlQuery m_words;
};
