#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QSet>
#include <QString>
#include <QStringList>

/// How the search takes texts apart. A word is what blanks separate; it can be found from its begin
/// and from each place in it where letters and digits begin, or a character that is neither: "M8-x"
/// is found by "m8", "m8-", "-x" and "x". The full text index knows a word by the tokens of these
/// places, in which characters that it would split or understand are replaced.
namespace SearchText {

/// So many characters of a token are kept; texts that differ only behind them are told apart by
/// hasTerm().
constexpr qsizetype MaxToken = 64;
/// So many words, and parts of one word, are asked of the full text index; hasTerm() knows all.
constexpr qsizetype MaxAsked = 32;
/// Of a longer word only so many places are known to the index.
constexpr int MaxPlaces = 512;

/// Without case, accents and other marks; compatible characters are alike ("½" is "1⁄2", "ß" is
/// "ss").
[[nodiscard]] VELKGEOMCORE_EXPORT QString folded(QStringView text);
/// The folded words of a text, each once.
[[nodiscard]] VELKGEOMCORE_EXPORT QStringList terms(const QString &text);
/// Whether a folded text can be found by a folded word.
[[nodiscard]] VELKGEOMCORE_EXPORT bool hasTerm(QStringView text, QStringView term);

/// The token of a folded word.
[[nodiscard]] QString token(QStringView word);
/// The tokens of all places of a folded text.
void addTokens(QStringView text, QSet<QString> &tokens);
/// A token that no text has.
[[nodiscard]] QString directoryToken(qint64 directory);
/// The expression of the full text index for rows that have the first terms; in the columns of \a
/// column only, unless it is empty. A term with "/" is also found by its parts in "head", where
/// paths are.
[[nodiscard]] QString matchExpression(const QStringList &terms, const QString &column);

} // namespace SearchText
