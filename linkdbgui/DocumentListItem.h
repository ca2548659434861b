#pragma once

#include <geomcore/linkdb/PLinkDbRecordC.h>

#include <QTreeWidgetItem>

#include <memory>

/// Places of a record's values: the key, and those of the shown columns; -1 for a column that the
/// table does not have.
struct DocumentListColumns
{
    int key = -1;
    QList<int> shown;
};

/// A record in the list of documents. It shows the values out of the record, which shares them with
/// the result of the query, so that a long list costs no copies. What is set stands before them.
class DocumentListItem : public QTreeWidgetItem
{
public:
    DocumentListItem(std::shared_ptr<const DocumentListColumns> columns,
                     const PLinkDbRecordC &record);

    /// The key in Qt::UserRole of column 0, values as text and tool tip.
    [[nodiscard]] QVariant data(int column, int role) const override;
    [[nodiscard]] QTreeWidgetItem *clone() const override;

private:
    std::shared_ptr<const DocumentListColumns> m_columns;
    PLinkDbRecordC m_record;
};
