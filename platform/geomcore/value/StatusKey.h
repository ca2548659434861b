#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include "StatusValue.h"

#include <QString>

#include <deque>

namespace VKTab {

/// Definition of one status column of a table: its name and its states. A value: what is added
/// after a copy was handed on does not reach the copy.
class VELKGEOMCORE_EXPORT StatusKey
{
public:
    enum KeyType {
        IconColumn = 1,
    };

    /// Not valid.
    StatusKey() = default;
    StatusKey(KeyType type, const QString &name)
        : m_type(type)
        , m_name(name)
    {
    }

    [[nodiscard]] bool isValid() const { return !m_name.isEmpty(); }
    [[nodiscard]] KeyType getKeyType() const { return m_type; }
    [[nodiscard]] QString getName() const { return m_name; }

    /// Adds a state, or gives the one that is there. The reference lives as long as this key.
    StatusValue &addValue(const QString &text);
    /// Null for an unknown text.
    [[nodiscard]] const StatusValue *findValue(const QString &text) const;
    [[nodiscard]] const std::deque<StatusValue> &getValues() const { return m_values; }

private:
    KeyType m_type = IconColumn;
    QString m_name;
    std::deque<StatusValue> m_values; // keeps references to its elements
};

} // namespace VKTab
