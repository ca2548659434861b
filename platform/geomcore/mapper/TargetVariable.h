#pragma once

#include <QString>

namespace Mapper {

/// A plain, range or computed variable of a target table.
struct TargetVariable
{
    QString name;
    int column = -1;
    bool range = false;
    bool stored = true; ///< Has a column in the file; a computed variable may have none.
    char decimalChar = '.';
    bool text = false; ///< Its values are texts, also those that look like numbers.
};

} // namespace Mapper
