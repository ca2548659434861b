#pragma once

#include <gui/views/EmptyViewLabel.h>

class VkTableModel;

/// Over a grid while a filter leaves no line of its table.
class EmptyTableLabel : public EmptyViewLabel
{
    Q_OBJECT

public:
    /// \a grid shows \a model.
    EmptyTableLabel(QAbstractItemView *grid, const VkTableModel *model);
    ~EmptyTableLabel() override;

protected:
    [[nodiscard]] bool isEmpty() const override;

private:
    const VkTableModel *const m_table;
};
