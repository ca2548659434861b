#pragma once

#include "Token.h"

#include <QList>

namespace VKTab {

/// Splits a statement of the formula language into its tokens, for the parser and for highlighting.
/// Blanks and line feeds separate tokens and make none. Takes any text: what begins no token comes
/// out as a token of kind Unknown. Has no state; any thread.
class VELKGEOMCORE_EXPORT Tokenizer
{
public:
    [[nodiscard]] QList<Token> operator()(const QString &text) const;
};

/// Whether the whole text is one number of the formula language: digits with an optional decimal
/// point and exponent, without a sign.
[[nodiscard]] VELKGEOMCORE_EXPORT bool isNumberLiteral(QStringView text);

} // namespace VKTab
