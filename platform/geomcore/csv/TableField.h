#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QPair>
#include <QString>

namespace VKTab {

/// Members of a JSON object that this library does not know, as name and raw JSON text in file
/// order. They are kept so that writing a descriptor loses nothing.
using UnknownMembers = QList<QPair<QString, QByteArray>>;

/// Translations by language ("en"), each from source text to translated text.
using TextTranslations = QMap<QString, QMap<QString, QString>>;

/// Kind of a variable; the numbers are those of the variable types.
enum class FieldKind : quint8 {
    Plain = 1,
    Range = 2,    ///< A cell lists the values that its line offers (see RangeText).
    Computed = 3, ///< Has a formula; a column of the file is optional.
    Internal = 4, ///< Serves the library or the host, such as a column of line ids.
    Topology = 5,
};

/// Type of a variable's values, by the names of the Frictionless Table Schema.
enum class FieldType : quint8 { String, Number, Integer, Boolean, Date, DateTime };

/// Description of one variable of a table.
struct VELKGEOMCORE_EXPORT TableField
{
    QString name;
    QString title;
    QString description;
    FieldType type = FieldType::String;
    FieldKind kind = FieldKind::Plain;
    bool hidden = false;
    /// Decimal character besides '.', which is always understood.
    char decimalChar = '.';
    /// "SM", "GM", "FM", "DM" or empty.
    QString zType;
    QString unit;
    /// Expression of a computed variable.
    QString formula;
    TextTranslations translations;
    UnknownMembers unknown;

    [[nodiscard]] bool isRange() const { return kind == FieldKind::Range; }
    [[nodiscard]] bool isNumeric() const
    {
        return type == FieldType::Number || type == FieldType::Integer;
    }
    friend bool operator==(const TableField &, const TableField &) = default;

    /// Whether its cells hold values of a line that can be compared with those of another.
    [[nodiscard]] bool isCompared() const
    {
        return kind == FieldKind::Plain || kind == FieldKind::Range || kind == FieldKind::Computed;
    }
};

} // namespace VKTab
