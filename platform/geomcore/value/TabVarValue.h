#pragma once

#include <QMetaType>
#include <QString>

/// A variable's value by name, as it is handed to a search or written into a line's text.
class TabVarValue
{
public:
    TabVarValue() = default;
    /// `unit` of the value, its place in the list of values that it was taken from (from 0), and
    /// the length of that list.
    TabVarValue(const QString &name, const QString &value, const QString &unit, int place,
                int count)
        : m_name(name)
        , m_value(value)
        , m_unit(unit)
        , m_place(place)
        , m_count(count)
    {
    }

    [[nodiscard]] QString getName() const { return m_name; }
    [[nodiscard]] QString getValue() const { return m_value; }
    [[nodiscard]] QString getUnit() const { return m_unit; }
    [[nodiscard]] int getPlace() const { return m_place; }
    [[nodiscard]] int getCount() const { return m_count; }

    friend bool operator==(const TabVarValue &a, const TabVarValue &b) = default;

private:
    QString m_name;
    QString m_value;
    QString m_unit;
    int m_place = 0;
    int m_count = 1;
};

Q_DECLARE_METATYPE(TabVarValue)
