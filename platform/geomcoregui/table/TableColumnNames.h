#pragma once

#include <QString>

class VkTableModel;

/// How columns and tables are called where a user's choices about them are kept.
class TableColumnNames
{
public:
    /// The variable's name, or "*" and the status key.
    [[nodiscard]] static QString ofColumn(const VkTableModel &model, int column);
    /// Of the model's table; empty if nothing tells it from others.
    [[nodiscard]] static QString ofTable(const VkTableModel &model);
    /// A text without the signs that separate names, values and keys.
    [[nodiscard]] static QString encoded(const QString &text);
    [[nodiscard]] static QString decoded(const QString &text);
};
