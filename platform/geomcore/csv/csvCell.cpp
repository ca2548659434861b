#include "csvCell.h"

#include <algorithm>

QByteArray csvCell(const QString &text)
{
    QByteArray bytes = text.toUtf8();
    if (std::ranges::none_of(bytes,
                             [](char c) { return c == ',' || c == '"' || c == '\n' || c == '\r'; }))
        return bytes;
    bytes.replace("\"", "\"\"");
    return '"' + bytes + '"';
}
