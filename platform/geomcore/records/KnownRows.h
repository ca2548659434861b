#pragma once

#include "LineTable.h"

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QByteArray>
#include <QByteArrayView>
#include <QHash>
#include <QString>

/// The rows of a mapping file that was read, with the text that they were read from. A file that
/// says mostly the same, as a changed copy does, is read beside them in a fraction of the time:
/// rows that stand there byte for byte are taken from here. What is read is the same in any case.
/// Several threads may read beside the same rows.
class VELKGEOMCORE_EXPORT KnownRows
{
public:
    /// The rows of one target.
    struct Place
    {
        QByteArrayView text; ///< between the brackets of "lines"
        LineTable lines;     ///< what it says; ascending there, too
    };

    /// Forgets all rows and takes the text of a file.
    void begin(const QByteArray &json);
    [[nodiscard]] const QByteArray &json() const { return m_json; }
    /// The rows from an offset in the text to another one; of targets of one name the first counts.
    void add(const QString &target, qsizetype from, qsizetype to, const LineTable &lines);
    /// Null if there are none of that target.
    [[nodiscard]] const Place *find(const QString &target) const;

private:
    QByteArray m_json;
    QHash<QString, Place> m_places;
};

/// Goes along the known rows of a target while the rows of the same target are read from another
/// file.
class RowsBeside
{
public:
    RowsBeside() = default;
    /// \a place, which may be null, outlives this object.
    explicit RowsBeside(const KnownRows::Place *place);

    /// How many rows, from \a at on, stand in the known text as well, next behind the row of
    /// \a lastLine. \a at goes behind them; first() is the first of them.
    [[nodiscard]] int take(const char *&at, const char *end, int lastLine);
    [[nodiscard]] LineTable::Iterator &first() { return m_row; }

private:
    void skipRow();

    const char *m_at = nullptr; ///< behind the row before m_row
    const char *m_end = nullptr;
    LineTable::Iterator m_row; ///< the end: nothing is known any more
    int m_misses = 0;          ///< in a row
};
