#include "CellParts.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace VelkRelease {

namespace {

/// Longer values are taken as one part.
constexpr qsizetype MaxLength = 4000;
/// More parts than this have nothing to say one by one.
constexpr std::size_t MaxParts = 4;

struct Token
{
    qsizetype at;
    qsizetype end;
};

qsizetype endOfNumber(QStringView text, qsizetype at)
{
    while (at < text.size() && text[at].isDigit())
        ++at;
    // A point or comma between digits belongs to the number.
    if (at + 1 < text.size() && (text[at] == u'.' || text[at] == u',') && text[at + 1].isDigit()) {
        ++at;
        while (at < text.size() && text[at].isDigit())
            ++at;
    }
    return at;
}

std::vector<Token> tokensOf(QStringView text)
{
    std::vector<Token> tokens;
    for (qsizetype at = 0; at < text.size();) {
        qsizetype end = at + 1;
        if (text[at].isDigit()) {
            end = endOfNumber(text, at);
        } else if (text[at].isLetter()) {
            while (end < text.size() && text[end].isLetter())
                ++end;
        } else if (text[at].isSpace()) {
            at = end;
            continue;
        }
        tokens.push_back({at, end});
        at = end;
    }
    return tokens;
}

/// The text from one token to before another.
CellPart partOf(QStringView before, const std::vector<Token> &old, QStringView after,
                const std::vector<Token> &now, std::size_t oldFrom, std::size_t oldTo,
                std::size_t newFrom, std::size_t newTo)
{
    const auto cut = [](QStringView text, const std::vector<Token> &tokens, std::size_t from,
                        std::size_t to, qsizetype &at) {
        if (from == to) {
            at = from < tokens.size() ? tokens[from].at : text.size();
            return QString();
        }
        at = tokens[from].at;
        return text.sliced(at, tokens[to - 1].end - at).toString();
    };
    CellPart part;
    part.before = cut(before, old, oldFrom, oldTo, part.beforeAt);
    part.after = cut(after, now, newFrom, newTo, part.afterAt);
    return part;
}

} // namespace

std::vector<CellPart> differingParts(QStringView before, QStringView after)
{
    if (before == after)
        return {};
    const CellPart whole{before.toString(), after.toString(), 0, 0};
    if (std::max(before.size(), after.size()) > MaxLength)
        return {whole};
    const std::vector<Token> old = tokensOf(before);
    const std::vector<Token> now = tokensOf(after);
    const auto same = [&](std::size_t i, std::size_t j) {
        return before.sliced(old[i].at, old[i].end - old[i].at) ==
               after.sliced(now[j].at, now[j].end - now[j].at);
    };
    std::vector<CellPart> parts;
    if (old.size() == now.size()) {
        for (std::size_t i = 0; i < old.size(); ++i) {
            if (same(i, i))
                continue;
            std::size_t end = i + 1;
            while (end < old.size() && !same(end, end))
                ++end;
            parts.push_back(partOf(before, old, after, now, i, end, i, end));
            i = end;
        }
        // Nothing but blanks differs, or too much.
        return parts.empty() || parts.size() > MaxParts ? std::vector<CellPart>{whole} : parts;
    }
    const std::size_t least = std::min(old.size(), now.size());
    std::size_t front = 0;
    while (front < least && same(front, front))
        ++front;
    std::size_t back = 0;
    while (back < least - front && same(old.size() - 1 - back, now.size() - 1 - back))
        ++back;
    parts.push_back(
        partOf(before, old, after, now, front, old.size() - back, front, now.size() - back));
    return parts;
}

int countLostTokens(QStringView before, QStringView after)
{
    if (std::max(before.size(), after.size()) > MaxLength)
        return 1;
    const auto textsOf = [](QStringView value) {
        std::vector<QStringView> texts;
        for (const Token &token : tokensOf(value))
            texts.push_back(value.sliced(token.at, token.end - token.at));
        std::sort(texts.begin(), texts.end());
        return texts;
    };
    const std::vector<QStringView> old = textsOf(before);
    const std::vector<QStringView> now = textsOf(after);
    std::vector<QStringView> lost;
    std::set_difference(old.begin(), old.end(), now.begin(), now.end(), std::back_inserter(lost));
    return int(lost.size());
}

std::optional<double> numberOf(QStringView text)
{
    if (text.isEmpty() || text.size() > 30)
        return std::nullopt;
    bool ok = false;
    double value = text.toDouble(&ok);
    if (!ok)
        value = text.toString().replace(u',', u'.').toDouble(&ok);
    return ok && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

namespace {

double rounded(double value)
{
    return QString::number(value, 'g', 6).toDouble();
}

bool areSame(double a, double b)
{
    return std::abs(a - b) <= 1e-9 * std::max(std::abs(a), std::abs(b));
}

} // namespace

std::optional<double> factorOf(double before, double after)
{
    if (before == 0 || after == 0)
        return std::nullopt;
    const double factor = rounded(after / before);
    return areSame(before * factor, after) ? std::optional(factor) : std::nullopt;
}

std::optional<double> unitFactorOf(double before, double after, QStringView written)
{
    // Millimetres of inches and feet, kilograms of pounds; powers of ten need no rounding.
    static constexpr std::array Units{25.4, 304.8, 0.45359237};
    // Two numbers may well have a ratio near one of these by chance, but not to four digits.
    const double rounding = roundingOf(written);
    if (before == 0 || rounding > 1e-4 * std::abs(after))
        return std::nullopt;
    for (const double unit : Units) {
        for (const double factor : {unit, 1 / unit}) {
            if (std::abs(before * factor - after) <= rounding)
                return factor;
        }
    }
    return std::nullopt;
}

double roundingOf(QStringView written)
{
    const auto isPoint = [](QChar c) {
        return c == u'.' || c == u',';
    };
    const auto point = std::find_if(written.begin(), written.end(), isPoint);
    const auto places = point == written.end() ? 0 : written.end() - point - 1;
    return 0.5 * std::pow(10.0, -double(places)) * (1 + 1e-6);
}

bool isMapped(double before, double factor, double offset, QStringView written)
{
    const auto after = numberOf(written);
    const double mapped = before * factor + offset;
    return after && (areSame(mapped, *after) || std::abs(mapped - *after) <= roundingOf(written));
}

std::optional<double> offsetOf(double before, double after)
{
    const double offset = rounded(after - before);
    return areSame(before + offset, after) ? std::optional(offset) : std::nullopt;
}

} // namespace VelkRelease
