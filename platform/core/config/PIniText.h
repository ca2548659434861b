#pragma once

#include <QByteArray>
#include <QString>

/// Quoting of names and values in PIniFile.
namespace Internal {

/// What a quoted text says, and where it ends.
struct QuotedText
{
    QString text;
    qsizetype end = -1;    ///< behind the closing quote; -1 if that is missing
    QString unknownEscape; ///< the first one, which was taken literally
};

/// Reads a quoted text that begins with a quote at the view's beginning.
[[nodiscard]] QuotedText readQuoted(QStringView text);
[[nodiscard]] QString quoted(const QString &text);

/// True if the value would be read back as another one without quotes.
[[nodiscard]] bool valueNeedsQuotes(const QString &value);
[[nodiscard]] bool keyNeedsQuotes(const QString &key);
[[nodiscard]] bool sectionNeedsQuotes(const QString &section);

} // namespace Internal
