#pragma once

#include "TableError.h"
#include "TableField.h"

#include <QStringList>
#include <QStringView>

#include <optional>
#include <string_view>

namespace VKTab {

/// A named condition in the expression language.
struct TableFilterCondition
{
    QString name;
    QString condition;
    UnknownMembers unknown;
    friend bool operator==(const TableFilterCondition &, const TableFilterCondition &) = default;
};

/// Head of a table: what a JSON file beside the CSV file of its lines says. Member names follow the
/// Frictionless Table Schema where it has them; docs/schema/table.schema.json lists all. A value;
/// reading, changing and writing keep what this library does not know.
class VELKGEOMCORE_EXPORT TableDescriptor
{
public:
    QString name;
    QString title;
    QString description;
    /// CSV file, relative to the descriptor; empty for the descriptor's own name with ".csv".
    QString path;
    QString normNumber;
    QString designation;
    /// Column that holds a line's norm number or designation, or a pattern with column names in
    /// braces: "DIN 931 - {Dia} x {L}".
    QString lineNormNumber;
    QString lineDesignation;
    /// ISO 8601 in UTC; empty if unknown.
    QString finalDate;
    /// Columns of line ids and of their second component; empty: a line's id is its data row.
    QString lineIdField;
    QString lineSubIdField;
    /// The smallest id that no line ever had; 0 if unknown. Ids of lines that are gone are not
    /// given again.
    int nextLineId = 0;
    /// The identifying columns.
    QStringList primaryKey;
    /// Texts of a cell that mean "no value"; the empty text unless the file says otherwise.
    QStringList missingValues{QString()};
    QList<TableFilterCondition> filterConditions;
    /// Attributes by name, such as "POOLID".
    QMap<QString, QString> attributes;
    TextTranslations translations;
    QList<TableField> fields;
    UnknownMembers unknown;

    /// Reads a descriptor. Without a value in case of an error, which \a errors then tells with
    /// file, line and column.
    [[nodiscard]] static std::optional<TableDescriptor> read(const QString &file,
                                                             TableErrorList &errors);
    /// \a file names the text in errors.
    [[nodiscard]] static std::optional<TableDescriptor>
    fromJson(const QByteArray &json, const QString &file, TableErrorList &errors);

    /// Indented UTF-8 with a final line feed; equal descriptors give equal bytes.
    [[nodiscard]] QByteArray toJson() const;

    /// Index in fields by exact name; -1 if there is none.
    [[nodiscard]] int indexOf(QStringView fieldName) const;
    /// Whether the bytes of a cell mean "no value". Blanks around do not matter.
    [[nodiscard]] bool isMissing(std::string_view cell) const;
    /// Native path of the CSV file for a descriptor read from \a descriptorFile.
    [[nodiscard]] QString csvFile(const QString &descriptorFile) const;
    /// Translation by the field's own translations, else the table's; \a text itself if none is
    /// known. \a field -1 asks only the table's.
    [[nodiscard]] QString translate(const QString &text, int field, const QString &language) const;

    friend bool operator==(const TableDescriptor &, const TableDescriptor &) = default;
};

} // namespace VKTab
