#pragma once

#include <core/VelkCoreGlobal.h>

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <string_view>

/// Looking at JSON text without building values.
namespace JsonText {

/// Whether the text is one JSON value by grammar (RFC 8259, UTF-8, with or without byte order mark)
/// with nothing behind it. If not, \a error says what is wrong and at which line and column.
[[nodiscard]] VELKCORE_EXPORT bool check(QByteArrayView json, QString *error);

/// "line 3, column 14" of a byte offset, both from 1, columns in bytes.
[[nodiscard]] VELKCORE_EXPORT QString place(QByteArrayView json, qsizetype offset);

/// The text without a byte order mark and the blanks around it.
[[nodiscard]] VELKCORE_EXPORT QByteArrayView trimmed(QByteArrayView json);

/// The text of a value that is a text: without its quotes and escapes. \a quoted must have passed
/// check(). An escaped half of a surrogate pair stays one.
[[nodiscard]] VELKCORE_EXPORT QString unquoted(QByteArrayView quoted);

/// The text without the blanks between its parts.
[[nodiscard]] VELKCORE_EXPORT QByteArray compacted(QByteArrayView json);

/// Walks the members of an object or the elements of an array in text that has passed check().
class VELKCORE_EXPORT Walker
{
public:
    /// \a json begins with the bracket.
    explicit Walker(QByteArrayView json);
    /// Goes to the next one; false behind the last.
    bool next();
    /// The member's name with its quotes; empty in an array.
    [[nodiscard]] QByteArrayView quotedName() const { return m_name; }
    [[nodiscard]] QByteArrayView value() const { return m_value; }

private:
    void skipBlanks();
    void skipText();
    void skipValue();

    const char *m_at;
    const char *m_end;
    bool m_object;
    QByteArrayView m_name;
    QByteArrayView m_value;
};

} // namespace JsonText
