#include "SearchText.h"

#include <algorithm>

namespace SearchText {

namespace {

/// Characters of Unicode's private area stand for those that the full text index would split at.
constexpr char16_t SubstituteBegin = 0xE000;
constexpr char16_t DirectoryMark = 0xF8FE;
constexpr char16_t ForeignSubstitute = 0xF8FF;

bool isAscii(QStringView text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c.unicode() < 0x80; });
}

bool isWordChar(QChar c)
{
    return c.isLetterOrNumber() || c.isMark() || c.isSurrogate();
}

bool isPlace(QStringView text, qsizetype at)
{
    return at == 0 || !isWordChar(text[at]) || !isWordChar(text[at - 1]);
}

char16_t substituted(QChar c)
{
    const char16_t unicode = c.unicode();
    if (unicode < 0x80)
        return c.isLetterOrNumber() ? unicode : char16_t(SubstituteBegin + unicode);
    const bool isOurs = (unicode >= SubstituteBegin && unicode < SubstituteBegin + 0x80) ||
                        unicode >= DirectoryMark;
    return isOurs && unicode <= ForeignSubstitute ? ForeignSubstitute : unicode;
}

void addWord(QStringView word, QSet<QString> &tokens)
{
    int places = 0;
    for (qsizetype at = 0; at < word.size() && places < MaxPlaces; ++at) {
        if (!isPlace(word, at))
            continue;
        tokens.insert(token(word.mid(at)));
        ++places;
    }
}

template<class Take>
void forEachWord(QStringView text, Take take)
{
    qsizetype begin = 0;
    for (qsizetype at = 0; at <= text.size(); ++at) {
        if (at < text.size() && !text[at].isSpace())
            continue;
        if (at > begin)
            take(text.mid(begin, at - begin));
        begin = at + 1;
    }
}

QString quoted(const QString &column, QStringView word)
{
    return column + u'"' + token(word) + QStringLiteral("\"*");
}

QString termExpression(const QString &term, const QString &column)
{
    const QString whole = quoted(column, term);
    const QStringList parts = term.split(u'/', Qt::SkipEmptyParts);
    if (!term.contains(u'/') || parts.isEmpty())
        return whole;
    QStringList inPath;
    for (const QString &part : parts.first(std::min(parts.size(), MaxAsked)))
        inPath.append(quoted(QStringLiteral("head : "), part));
    return u'(' + whole + QStringLiteral(" OR (") + inPath.join(QStringLiteral(" AND ")) +
           QStringLiteral("))");
}

} // namespace

QString folded(QStringView text)
{
    if (isAscii(text))
        return text.toString().toLower();
    const QString parts = text.toString().normalized(QString::NormalizationForm_KD);
    QString result;
    result.reserve(parts.size());
    for (const QChar c : parts) {
        if (c.category() != QChar::Mark_NonSpacing)
            result.append(c);
    }
    return result.toCaseFolded().replace(QChar(0xDF), QStringLiteral("ss"));
}

QStringList terms(const QString &text)
{
    QStringList found;
    const QString whole = folded(text);
    forEachWord(whole, [&found](QStringView word) { found.append(word.toString()); });
    found.removeDuplicates();
    return found;
}

bool hasTerm(QStringView text, QStringView term)
{
    for (qsizetype at = text.indexOf(term); at >= 0; at = text.indexOf(term, at + 1)) {
        if (isPlace(text, at))
            return true;
    }
    return false;
}

QString token(QStringView word)
{
    qsizetype size = std::min(word.size(), MaxToken);
    if (size < word.size() && word[size - 1].isHighSurrogate())
        --size;
    QString result(size, Qt::Uninitialized);
    for (qsizetype i = 0; i < size; ++i)
        result[i] = QChar(substituted(word[i]));
    return result;
}

void addTokens(QStringView text, QSet<QString> &tokens)
{
    forEachWord(text, [&tokens](QStringView word) { addWord(word, tokens); });
}

QString directoryToken(qint64 directory)
{
    return QChar(DirectoryMark) + QString::number(directory);
}

QString matchExpression(const QStringList &terms, const QString &column)
{
    const QString filter = column.isEmpty() ? QString() : column + QStringLiteral(" : ");
    QStringList parts;
    for (const QString &term : terms.first(std::min(terms.size(), MaxAsked)))
        parts.append(termExpression(term, filter));
    return parts.join(QStringLiteral(" AND "));
}

} // namespace SearchText
