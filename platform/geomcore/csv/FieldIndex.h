#pragma once

#include "TableField.h"

#include <QHash>
#include <QStringView>

namespace VKTab {

/// The fields of a descriptor by name, through one hash. A value.
class VELKGEOMCORE_EXPORT FieldIndex
{
public:
    FieldIndex() = default;
    explicit FieldIndex(const QList<TableField> &fields);

    [[nodiscard]] const QList<TableField> &fields() const { return m_fields; }
    /// Index of the first field of that exact name; -1 if there is none.
    [[nodiscard]] int indexOf(QStringView name) const { return m_byName.value(name, -1); }
    /// The same for a field that lines have in their varsets: a plain, range or computed one.
    [[nodiscard]] int indexOfVariable(QStringView name) const;

private:
    QList<TableField> m_fields; // holds the names
    QHash<QStringView, int> m_byName;
};

} // namespace VKTab
