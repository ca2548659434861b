#pragma once

#include "TableData.h"
#include <geomcore/csv/TableErrors.h>

#include <string>
#include <vector>

namespace VKTab {

/// Makes a TableData: opens and maps the file, fits header and descriptor together, scans the rows,
/// orders the line ids, and looks at formulas, conditions and range cells. Reads once.
class TableDataReader
{
public:
    TableDataReader(const TableDescriptor &descriptor, const QString &fileName,
                    HeaderRule rule = HeaderRule::Exact);

    /// File that errors of the descriptor name; without one they name the table's.
    void setDescriptorFile(const QString &file) { m_descriptorFile = file; }
    [[nodiscard]] TableReadResult readFile();
    [[nodiscard]] TableReadResult readBytes(const QByteArray &csv);

private:
    [[nodiscard]] bool open();
    [[nodiscard]] TableReadResult readAll();
    [[nodiscard]] bool readHeader(quint64 &bodyBegin);
    void fitFields(const QStringList &header);
    void checkNames();
    [[nodiscard]] int namedColumn(const QString &member, const QString &name);
    void readFormulas();
    void checkConditions();
    [[nodiscard]] bool scan(quint64 bodyBegin);
    void indexIds();
    void indexDense(int highest);
    void indexSorted();
    void duplicateId(int first, int second);
    void checkRanges();
    void checkRange(int row, int column, std::string_view cell);
    /// What is wrong with a range cell; empty if nothing is.
    [[nodiscard]] QString rangeFault(const TableField &field, std::string_view cell) const;
    /// Ranges recur from line to line: those that parsed are kept, one for each place.
    struct KnownRange
    {
        int column = -1;
        std::string text;
    };
    [[nodiscard]] KnownRange &placeOf(int column, std::string_view cell);
    void error(int row, int column, const QString &text);
    void descriptorWarning(const char *text, const QString &name, const QString &error);
    [[nodiscard]] TableReadResult failure() const { return {nullptr, m_errors.list()}; }

    TableContents m_table;
    TableErrors m_errors;
    TableErrors m_warnings;
    HeaderRule m_rule;
    QString m_descriptorFile;
    std::vector<KnownRange> m_knownRanges;
};

} // namespace VKTab
