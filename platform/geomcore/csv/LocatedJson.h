#pragma once

#include "TableError.h"

#include <QByteArray>
#include <QByteArrayView>

#include <vector>

namespace VKTab {

/// A JSON value that knows where it stands in its text. For small files that people write, where an
/// error must name its place; not for data.
struct LocatedJson
{
    enum class Type : quint8 { Null, Bool, Number, String, Array, Object };

    Type type = Type::Null;
    bool boolean = false;
    qsizetype begin = 0; ///< Offset of the first byte.
    qsizetype end = 0;   ///< Offset behind the last byte.
    QString text;        ///< A string's value, or a number as written.
    QStringList names;   ///< Of an object's members, in file order.
    std::vector<LocatedJson> items;

    /// Parses UTF-8, with or without a byte order mark, at most 64 levels deep. False if it is no
    /// JSON or an object names a member twice; \a errors then tells where.
    [[nodiscard]] static bool parse(const QByteArray &json, const QString &file, LocatedJson &out,
                                    TableErrorList &errors);

    /// Error at a byte offset of \a json, with line and character counted from 1.
    [[nodiscard]] static TableError errorAt(const QByteArray &json, const QString &file,
                                            qsizetype offset, const QString &text);
};

} // namespace VKTab
