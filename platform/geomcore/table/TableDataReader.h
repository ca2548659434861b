#pragma once

#include "TableData.h"

#include <string>
#include <vector>

namespace VKTab {

/// Makes a TableData: opens and maps the file, fits header and descriptor together, scans the rows,
/// orders the line ids and looks at the range cells.
class TableDataReader
{
public:
    TableDataReader(TableDescriptor descriptor, QString fileName,
                    HeaderRule rule = HeaderRule::Exact);

    [[nodiscard]] TableReadResult readFile();
    [[nodiscard]] TableReadResult readBytes(const QByteArray &csv);

private:
    [[nodiscard]] bool open();
    [[nodiscard]] TableReadResult readAll();
    [[nodiscard]] bool readHeader(quint64 &bodyBegin);
    void fitFields(const QStringList &header);
    void checkNames();
    [[nodiscard]] int namedColumn(const QString &member, const QString &name);
    [[nodiscard]] bool scan(quint64 bodyBegin);
    void indexIds();
    void indexDense(int highest);
    void indexSorted();
    void duplicateId(int first, int second);
    void checkRanges();
    void checkRange(int row, int column, std::string_view cell);
    /// Ranges recur from line to line: those that parsed are kept, one for each place.
    struct KnownRange
    {
        int column = -1;
        std::string text;
    };
    [[nodiscard]] KnownRange &placeOf(int column, std::string_view cell);
    void error(int row, int column, const QString &text);

    std::shared_ptr<TableData> m_data;
    TableErrorList m_errors;
    HeaderRule m_rule;
    std::vector<KnownRange> m_knownRanges;
};

} // namespace VKTab
