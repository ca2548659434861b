#pragma once

#include "ConflictList.h"

#include <geomcore/table/ContentRef.h>

#include <QCache>
#include <QCoreApplication>
#include <QStringList>

#include <array>

/// What the sides of a conflict say, one thing a row: state, target project, target line, value
/// ranges, then the values of the lines. Reads tables, each once until clear().
class ConflictSides
{
    Q_DECLARE_TR_FUNCTIONS(ConflictSides)

public:
    enum Side { Source, Base, Ours, Theirs, SideCount };
    struct Row
    {
        QString name;
        std::array<QString, SideCount> texts;
        [[nodiscard]] bool differs() const { return texts[Ours] != texts[Theirs]; }
    };

    /// Rows that differ first, else in the order of the tables. The source's column is filled for
    /// values alone. A table that cannot be read leaves its values empty.
    [[nodiscard]] QList<Row> rowsOf(const ConflictEntry &entry, const CatalogRoots &roots);
    void clear() { m_tables.clear(); }

    /// German: what a side did with a line, in a few words.
    [[nodiscard]] static QString text(const VelkRelease::LineStanding &standing);
    /// "bestätigt" and the like.
    [[nodiscard]] static QString stateText(const VelkRelease::LineStanding &standing);

private:
    struct Values
    {
        QStringList names; ///< in the order of the table
        QHash<QString, QString> texts;
        QString designation;
    };

    [[nodiscard]] Values valuesOf(const QString &root, const QString &path, int line);
    [[nodiscard]] Values targetValues(const VelkRelease::LineStanding &standing,
                                      const QString &root);
    [[nodiscard]] VKTab::ContentRef table(const QString &file);

    QCache<QString, VKTab::ContentRef> m_tables{16}; ///< by native path
};
