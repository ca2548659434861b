#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QString>

namespace VKTab {

/// What a token of the formula language is. Unknown = a character that begins no token; OpenText =
/// a text whose closing quote is missing, up to the end.
enum class TokenKind {
    Number,
    Text,
    OpenText,
    Name,
    Function,
    SourcePrefix,
    Arithmetic,
    Comparison,
    Logic,
    OpenBracket,
    CloseBracket,
    Comma,
    Assignment,
    Unknown
};

/// One token of a statement; start and length count QChars of the text that was split.
struct VELKGEOMCORE_EXPORT Token
{
    TokenKind kind = TokenKind::Unknown;
    /// As written, quotes included.
    QString text;
    qsizetype start = 0;
    qsizetype length = 0;

    [[nodiscard]] qsizetype end() const { return start + length; }

    /// The content of a text: without its quotes, doubled quotes made single. Other kinds as
    /// written.
    [[nodiscard]] QString content() const;

    friend bool operator==(const Token &, const Token &) = default;
};

} // namespace VKTab
