#pragma once

#include <release/VelkReleaseGlobal.h>

#include <geomcore/csv/TableError.h>

#include <QByteArray>
#include <QStringList>

#include <memory>

namespace VelkRelease {

/// Reads tables of another form than CSV when they are imported. Implemented by extensions.
class VELKRELEASE_EXPORT TableSource
{
public:
    TableSource() = default;
    virtual ~TableSource();
    TableSource(const TableSource &) = delete;
    TableSource &operator=(const TableSource &) = delete;

    /// Endings of its files, without the dot, in small letters.
    [[nodiscard]] virtual QStringList endings() const = 0;
    /// The table as CSV: UTF-8, cells separated by commas, quoted as RFC 4180 says, the names of
    /// the columns in the first row. Null with what is wrong: row and column of the file from 1, 0
    /// where it is the whole file. Any thread, several at once.
    [[nodiscard]] virtual QByteArray toCsv(const QByteArray &file,
                                           VKTab::TableError *error) const = 0;

    /// Makes a source known until the program ends. False, and it is dropped, if one of its endings
    /// is CSV's or taken. Before anything is imported.
    static bool add(std::unique_ptr<TableSource> source);
    /// The source for a file of that name; null if there is none.
    [[nodiscard]] static const TableSource *of(const QString &file);
};

} // namespace VelkRelease
