#include "ExpressionFunctions.h"

#include <QString>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string>

namespace VKTab {

namespace {

using Arguments = std::span<const Operand>;
using Memory = EvaluationMemory;

constexpr int mostDecimals = 15;

/// Whether the byte begins a character in UTF-8.
bool beginsCharacter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
}

/// Byte offset behind the first count characters, at most the end.
size_t offsetOf(std::string_view text, double count)
{
    size_t pos = 0;
    for (double passed = 0; pos < text.size(); ++pos) {
        if (beginsCharacter(text[pos]) && ++passed > count)
            break;
    }
    return pos;
}

/// A text that was made, copied into memory; no value if it is too long.
Operand made(std::string_view text, Memory &memory)
{
    return memory.takes(text) ? Operand::ofText(keepText(text, memory)) : Operand();
}

template<class Change>
Operand changed(const Operand &argument, Memory &memory, Change change)
{
    const auto text = argument.toText(memory);
    if (!text)
        return {};
    const QString wide = QString::fromUtf8(text->data(), qsizetype(text->size()));
    return made(change(wide).toUtf8().toStdString(), memory);
}

} // namespace

namespace TextFunctions {

Operand length(Arguments arguments, Memory &memory)
{
    const auto text = arguments[0].toText(memory);
    return text ? Operand::ofNumber(double(characterCount(*text))) : Operand();
}

/// Characters count from 1; what lies outside the text is left out.
Operand subText(Arguments arguments, Memory &memory)
{
    const auto text = arguments[0].toText(memory);
    const auto start = arguments[1].toNumber();
    const bool counted = arguments.size() > 2;
    const auto count = counted ? arguments[2].toNumber() : std::optional(0.0);
    if (!text || !start || !count)
        return {};
    const double first = std::trunc(*start) - 1;
    const double last = counted ? first + std::trunc(*count) : double(text->size());
    const size_t begin = offsetOf(*text, std::max(first, 0.0));
    const size_t end = offsetOf(*text, std::max(last, 0.0));
    return Operand::ofText(end > begin ? text->substr(begin, end - begin) : std::string_view());
}

Operand upper(Arguments arguments, Memory &memory)
{
    return changed(arguments[0], memory, [](const QString &text) { return text.toUpper(); });
}

Operand lower(Arguments arguments, Memory &memory)
{
    return changed(arguments[0], memory, [](const QString &text) { return text.toLower(); });
}

Operand trim(Arguments arguments, Memory &memory)
{
    return changed(arguments[0], memory, [](const QString &text) { return text.trimmed(); });
}

Operand concat(Arguments arguments, Memory &memory)
{
    std::string result;
    for (const Operand &argument : arguments) {
        const auto text = argument.toText(memory);
        if (!text || !memory.grows(result.size() + text->size()))
            return {};
        result += *text;
    }
    return made(result, memory);
}

/// Place of the first occurrence, counted from 1; 0 if there is none.
Operand find(Arguments arguments, Memory &memory)
{
    const auto text = arguments[0].toText(memory);
    const auto part = arguments[1].toText(memory);
    if (!text || !part)
        return {};
    const size_t pos = text->find(*part);
    if (pos == std::string_view::npos)
        return Operand::ofNumber(0);
    return Operand::ofNumber(double(characterCount(text->substr(0, pos)) + 1));
}

/// Every occurrence; an empty text to look for changes nothing.
Operand replace(Arguments arguments, Memory &memory)
{
    const auto text = arguments[0].toText(memory);
    const auto before = arguments[1].toText(memory);
    const auto after = arguments[2].toText(memory);
    if (!text || !before || !after)
        return {};
    if (before->empty())
        return Operand::ofText(*text);
    std::string result;
    size_t from = 0;
    for (size_t hit = text->find(*before); hit != std::string_view::npos;
         hit = text->find(*before, from)) {
        if (!memory.grows(result.size() + (hit - from) + after->size()))
            return {};
        result.append(*text, from, hit - from).append(*after);
        from = hit + before->size();
    }
    if (!memory.grows(result.size() + (text->size() - from)))
        return {};
    result.append(*text, from);
    return made(result, memory);
}

/// Reads a text as a number, also one in quotes.
Operand number(Arguments arguments, Memory &memory)
{
    if (const auto x = arguments[0].toNumber())
        return Operand::ofNumber(*x);
    const auto text = arguments[0].toText(memory);
    const auto x = text ? parseDecimal(*text) : std::nullopt;
    return x ? Operand::ofNumber(*x) : Operand();
}

/// With a number of decimals: fixed notation, so ROUND is not needed before.
Operand text(Arguments arguments, Memory &memory)
{
    if (arguments.size() == 1) {
        const auto plain = arguments[0].toText(memory);
        return plain ? Operand::ofText(*plain) : Operand();
    }
    const auto x = arguments[0].toNumber();
    const auto decimals = arguments[1].toNumber();
    if (!x || !decimals || *decimals < 0 || *decimals > mostDecimals)
        return {};
    std::array<char, 512> buffer; // 309 digits before the point are possible
    const double shown = rounded(*x, int(*decimals)) + 0.0; // no -0
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), shown,
                                   std::chars_format::fixed, int(*decimals));
    return Operand::ofText(keepText({buffer.data(), size_t(end.ptr - buffer.data())}, memory));
}

} // namespace TextFunctions

} // namespace VKTab
