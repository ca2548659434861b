#pragma once

#include <geomcore/csv/TableError.h>

#include <boost/shared_ptr.hpp>

#include <QString>

namespace VKTab {

class FileLayer;

/// Reads one table file. Says nothing to the user; errors() tells what is wrong.
class VELKGEOMCORE_EXPORT TabReader
{
public:
    enum ReadMode {
        ReadEverything = 1,
        ReadHead = 2, ///< The descriptor, without its lines.
    };

    TabReader();
    ~TabReader();

    void setReadMode(int mode);
    /// Reads a table by its descriptor: 1 if it was read, -1 if not. With \a keep a read that fails
    /// leaves the data of an earlier one.
    int readFile(const QString &nativePath, bool keep);
    /// The table that was read; an empty layer that is not valid before that and after a failure.
    /// Never null.
    [[nodiscard]] const boost::shared_ptr<FileLayer> &getData() const { return m_data; }
    [[nodiscard]] const TableErrorList &errors() const { return m_errors; }

private:
    [[nodiscard]] boost::shared_ptr<FileLayer> readLayer(const QString &nativePath);

    int m_mode = ReadEverything;
    boost::shared_ptr<FileLayer> m_data;
    TableErrorList m_errors;
};

} // namespace VKTab
