#include "EmptyTableLabel.h"

#include "VkTableModel.h"

EmptyTableLabel::EmptyTableLabel(QAbstractItemView *grid, const VkTableModel *model)
    : EmptyViewLabel(grid, model)
    , m_table(model)
{
    setObjectName(QStringLiteral("emptyTable"));
}

EmptyTableLabel::~EmptyTableLabel() = default;

/// Filters of columns have a place of their own to say that nothing fits.
bool EmptyTableLabel::isEmpty() const
{
    const VKTab::ContentRef table = m_table->getTable();
    return table.isValid() && table.getLineCount() > 0 && table.getLineMapping().count() == 0;
}
