#pragma once

#include "CatalogSearchCondition.h"

#include <optional>

namespace VKTab {
struct TableField;
}

/// A condition made ready for the cells of one column. Immutable.
class CellCondition
{
public:
    /// How a column's cells are read.
    struct Column
    {
        char decimalChar = '.';
        bool isRange = false;
    };

    CellCondition(const CatalogSearchCondition &condition, const Column &column);

    /// Of a cell that has a value.
    [[nodiscard]] bool holds(QStringView cell) const;

    /// The number that a text of a condition writes; with a decimal comma too.
    [[nodiscard]] static std::optional<double> number(const QString &text);

private:
    [[nodiscard]] bool valueHolds(QStringView value, char decimalChar) const;
    [[nodiscard]] bool numberHolds(double value) const;
    [[nodiscard]] bool textHolds(QStringView value) const;

    CatalogSearchCondition::Op m_op;
    Column m_column;
    std::optional<double> m_low;
    std::optional<double> m_high;
    bool m_comparesNumbers;
    QString m_lowText;
    QString m_highText;
};
