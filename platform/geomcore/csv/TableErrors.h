#pragma once

#include "TableError.h"

namespace VKTab {

/// Gathers what is wrong with a file: the first MaxKept, and of the others the number, so that a
/// file that is wrong throughout costs neither time nor memory.
class VELKGEOMCORE_EXPORT TableErrors
{
public:
    static constexpr qsizetype MaxKept = 20;

    [[nodiscard]] bool isEmpty() const { return m_kept.isEmpty(); }
    /// Whatever is added from now on is only counted.
    [[nodiscard]] bool isFull() const { return m_kept.size() == MaxKept; }
    void add(const TableError &error);
    /// The errors in the order in which they came, and at last how many more there are.
    [[nodiscard]] TableErrorList list() const;

private:
    TableErrorList m_kept;
    qsizetype m_more = 0;
};

} // namespace VKTab
