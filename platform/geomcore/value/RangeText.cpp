#include "RangeText.h"

#include "CanonicalNumber.h"

#include <core/text/PString.h>

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace VKTab {

namespace {

constexpr int MaxScale = 9;
constexpr qint64 MaxDigits = 1'000'000'000'000'000; // leaves room for sums of scaled numbers

/// A decimal number as an integer divided by 10^scale.
struct Decimal
{
    qint64 digits = 0;
    int scale = 0;

    bool setScale(int wanted)
    {
        for (; scale < wanted; ++scale) {
            if (std::llabs(digits) >= MaxDigits / 10)
                return false;
            digits *= 10;
        }
        return true;
    }
};

std::optional<Decimal> readDecimal(QStringView text, char decimalChar)
{
    text = text.trimmed();
    const bool negative = text.startsWith(u'-');
    if (negative || text.startsWith(u'+'))
        text = text.sliced(1);
    Decimal result;
    bool point = false;
    bool any = false;
    for (QChar c : text) {
        if (!point && (c == u'.' || c == QLatin1Char(decimalChar))) {
            point = true;
            continue;
        }
        if (c < u'0' || c > u'9' || result.digits >= MaxDigits / 10 || result.scale >= MaxScale)
            return {};
        result.digits = result.digits * 10 + (c.unicode() - u'0');
        result.scale += point;
        any = true;
    }
    if (!any)
        return {};
    if (negative)
        result.digits = -result.digits;
    return result;
}

QString writeDecimal(qint64 digits, int scale)
{
    for (; scale > 0 && digits % 10 == 0; --scale)
        digits /= 10;
    QString text = QString::number(std::llabs(digits)).rightJustified(scale + 1, u'0');
    if (scale > 0)
        text.insert(text.size() - scale, u'.');
    return digits < 0 ? u'-' + text : text;
}

/// A value as it is compared: its number if it is one, else its text.
struct Comparable
{
    std::optional<CanonicalNumber> number;
    QString text;

    Comparable(QStringView value, char decimalChar)
        : text(value.trimmed().toString())
    {
        const QByteArray utf8 = text.toUtf8();
        number = CanonicalNumber::parse({utf8.constData(), size_t(utf8.size())}, decimalChar);
    }
    bool operator==(const Comparable &other) const
    {
        return number.has_value() == other.number.has_value() &&
               (number ? *number == *other.number : text == other.text);
    }
};

std::nullopt_t fail(QString *error, const QString &text)
{
    if (error)
        *error = text;
    return std::nullopt;
}

} // namespace

bool RangeText::isSimple(std::string_view text)
{
    bool blankPart = true;
    char before = ' ';
    for (char c : text) {
        if (c == ';') {
            if (blankPart)
                return false;
            blankPart = true;
        } else if (c == '.' && before == '.') {
            return false;
        } else if (c != ' ' && c != '\t') {
            if (uchar(c) < '!' || uchar(c) > '~')
                return false;
            blankPart = false;
        }
        before = c;
    }
    return !blankPart;
}

std::optional<RangeText> RangeText::parse(QStringView text, char decimalChar, QString *error)
{
    RangeText result;
    result.m_decimalChar = decimalChar;
    if (text.trimmed().isEmpty())
        return result;
    for (QStringView piece : text.split(u';')) {
        auto part = parsePart(piece.trimmed(), decimalChar, error);
        if (!part)
            return {};
        result.m_parts.push_back(std::move(*part));
    }
    return result;
}

std::optional<RangeText::Part> RangeText::parsePart(QStringView text, char decimalChar,
                                                    QString *error)
{
    if (text.isEmpty())
        return fail(
            error, PString::translate("ein Wert zwischen den Semikolons ist leer", "VelkGeomCore"));
    const qsizetype dots = text.indexOf(QLatin1String(".."));
    if (dots < 0)
        return Part{.text = text.toString()};
    const qsizetype slash = text.indexOf(u'/', dots);
    if (slash < 0)
        return fail(error,
                    PString::translate("„%1“ hat keine Schrittweite; schreiben Sie es wie 10..50/5",
                                       "VelkGeomCore")
                        .arg(text));
    auto from = readDecimal(text.first(dots), decimalChar);
    auto to = readDecimal(text.sliced(dots + 2, slash - dots - 2), decimalChar);
    auto step = readDecimal(text.sliced(slash + 1), decimalChar);
    if (!from || !to || !step || text.at(dots + 2) == u'.')
        return fail(error, PString::translate("Anfang, Ende und Schrittweite von „%1“ müssen "
                                              "Zahlen mit höchstens 15 Ziffern sein",
                                              "VelkGeomCore")
                               .arg(text));
    const int scale = std::max({from->scale, to->scale, step->scale});
    if (!from->setScale(scale) || !to->setScale(scale) || !step->setScale(scale))
        return fail(error,
                    PString::translate("die Zahlen von „%1“ haben zu viele Ziffern", "VelkGeomCore")
                        .arg(text));
    if (step->digits <= 0)
        return fail(error, PString::translate("die Schrittweite von „%1“ ist nicht größer als 0",
                                              "VelkGeomCore")
                               .arg(text));
    if (to->digits < from->digits)
        return fail(error,
                    PString::translate("„%1“ endet unter seinem Anfang", "VelkGeomCore").arg(text));
    const qint64 last = from->digits + (to->digits - from->digits) / step->digits * step->digits;
    return Part{text.toString(), from->digits, last, step->digits, scale};
}

qint64 RangeText::Part::count() const
{
    return step == 0 ? 1 : (last - from) / step + 1;
}

QString RangeText::Part::value(qint64 index) const
{
    return step == 0 ? text : writeDecimal(from + index * step, scale);
}

bool RangeText::Part::containsNumber(QStringView value, char decimalChar) const
{
    auto number = readDecimal(value, decimalChar);
    if (!number)
        return false;
    for (; number->scale > scale; --number->scale) {
        if (number->digits % 10 != 0)
            return false;
        number->digits /= 10;
    }
    return number->setScale(scale) && number->digits >= from && number->digits <= last &&
           (number->digits - from) % step == 0;
}

qint64 RangeText::count() const
{
    qint64 sum = 0;
    for (const Part &part : m_parts) {
        if (part.count() > std::numeric_limits<qint64>::max() - sum)
            return std::numeric_limits<qint64>::max();
        sum += part.count();
    }
    return sum;
}

QString RangeText::value(qint64 index) const
{
    for (const Part &part : m_parts) {
        if (index < part.count())
            return part.value(index);
        index -= part.count();
    }
    return {};
}

QStringList RangeText::values() const
{
    QStringList all;
    for (const Part &part : m_parts) {
        for (qint64 i = 0; i < part.count(); ++i)
            all.append(part.value(i));
    }
    return all;
}

bool RangeText::contains(QStringView value, char decimalChar) const
{
    const Comparable wanted(value, decimalChar);
    return std::any_of(m_parts.begin(), m_parts.end(), [&](const Part &part) {
        if (part.step == 0)
            return Comparable(part.text, m_decimalChar) == wanted;
        return part.containsNumber(value, decimalChar);
    });
}

bool RangeText::containsAll(const RangeText &other) const
{
    return std::all_of(other.m_parts.begin(), other.m_parts.end(),
                       [this, &other](const Part &part) {
                           if (part.step == 0)
                               return contains(part.text, other.m_decimalChar);
                           return containsSteps(part);
                       });
}

bool RangeText::containsSteps(const Part &steps) const
{
    const QString first = steps.value(0);
    const QString last = steps.value(steps.count() - 1);
    for (const Part &part :
         m_parts) { // all in one of our parts: its ends and its second value say so
        const bool ends =
            part.step != 0 && part.containsNumber(first, '.') && part.containsNumber(last, '.');
        if (ends && part.containsNumber(steps.value(std::min<qint64>(1, steps.count() - 1)), '.'))
            return true;
    }
    if (steps.count() > std::min<qint64>(count(), MaxValues))
        return false;
    for (qint64 i = 0; i < steps.count(); ++i) {
        if (!contains(steps.value(i)))
            return false;
    }
    return true;
}

QString RangeText::canonicalText() const
{
    QStringList parts;
    for (const Part &part : m_parts) {
        if (part.step != 0) {
            parts.append(QStringLiteral("%1..%2/%3")
                             .arg(writeDecimal(part.from, part.scale),
                                  writeDecimal(part.last, part.scale),
                                  writeDecimal(part.step, part.scale)));
            continue;
        }
        const Comparable value(part.text, m_decimalChar);
        parts.append(value.number ? QString::fromStdString(value.number->toText()) : value.text);
    }
    return parts.join(u';');
}

} // namespace VKTab
