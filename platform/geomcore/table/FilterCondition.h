#pragma once

#include <QString>

namespace VKTab {

/// Condition of a table by name; a line is shown only while all of them hold for it.
struct FilterCondition
{
    QString name;
    QString text;

    friend bool operator==(const FilterCondition &a, const FilterCondition &b) = default;
};

} // namespace VKTab
