#pragma once

#include <geomcore/value/TabVarValue.h>
#include <geomcore/value/Value.h>
#include <geomcore/VelkGeomCoreGlobal.h>

#include <QHash>
#include <QMetaType>
#include <QString>

/// One named value of a line. A varset is a `QHash<QString, MapVarValueC>` keyed by the name of the
/// variable; it carries a line's values to the places that have no table at hand.
class VELKGEOMCORE_EXPORT MapVarValueC
{
public:
    MapVarValueC() = default;

    [[nodiscard]] const QString &getName() const { return m_name; }
    void setName(const QString &name) { m_name = name; }
    /// A null value, or an empty text, is a value that the line lacks.
    [[nodiscard]] const VKTab::Value &getValue() const { return m_value; }
    void setValue(const VKTab::Value &value) { m_value = value; }
    /// Whether the variable is numeric, as its table says; the value need not be a number.
    [[nodiscard]] bool isNumeric() const { return m_numeric; }
    void setNumeric(bool numeric) { m_numeric = numeric; }

    /// Name and value as text, with "", 0 and 1 for the rest.
    [[nodiscard]] TabVarValue toTabVarValue() const;

    /// Compares the values alone: as numbers if both are numeric and read as numbers ("9" = "9.0"),
    /// else by their exact texts.
    friend VELKGEOMCORE_EXPORT bool operator==(const MapVarValueC &a, const MapVarValueC &b);

private:
    QString m_name;
    VKTab::Value m_value;
    bool m_numeric = false;
};

Q_DECLARE_METATYPE(MapVarValueC)
