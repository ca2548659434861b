#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QString>
#include <QStringList>
#include <QStringView>

#include <optional>
#include <string_view>
#include <vector>

namespace VKTab {

/// The values that a range cell offers: values or steps separated by semicolons, "10;12;16",
/// "10..50/5" (10, 15 ... 50; the last step does not go beyond the end), "8;10..50/5;M60". A single
/// value is a range of one, a blank cell a range without values.
class VELKGEOMCORE_EXPORT RangeText
{
public:
    /// So many values, and so many combinations of a line's ranges, are walked; a line with a cell
    /// of more is marked while its table is read.
    static constexpr int MaxValues = 100'000;

    /// A range without values.
    RangeText() = default;

    /// Without a value if the text is no range: an empty part, ".." without numbers around it or
    /// without a step, a step that is not above 0, an end below the begin. \a error then says what.
    [[nodiscard]] static std::optional<RangeText> parse(QStringView text, char decimalChar = '.',
                                                        QString *error = nullptr);

    /// Whether UTF-8 \a text surely is a range, by a glance: false says nothing.
    [[nodiscard]] static bool isSimple(std::string_view text);

    [[nodiscard]] bool isEmpty() const { return m_parts.empty(); }
    /// Number of values, without making them; one that stands twice counts twice. The greatest
    /// qint64 stands for that and more.
    [[nodiscard]] qint64 count() const;
    /// The value at \a index in written order, 0 to count() - 1. Values of a list as written,
    /// values of steps in plain notation with '.'.
    [[nodiscard]] QString value(qint64 index) const;
    /// All values; the caller looks at count() first.
    [[nodiscard]] QStringList values() const;
    /// Numbers compare by value, other texts exactly after trimming.
    [[nodiscard]] bool contains(QStringView value, char decimalChar = '.') const;
    /// Whether every value of \a other is one of these; of steps that several parts of this share
    /// only up to MaxValues are looked at one by one, more count as not contained.
    [[nodiscard]] bool containsAll(const RangeText &other) const;
    /// Shortest text of the same range: equal ranges written differently ("10;12,0", "10.0;12")
    /// give the same one. Order is kept.
    [[nodiscard]] QString canonicalText() const;

private:
    /// A value as written, or steps: from, from + step ... last, all divided by 10^scale.
    struct Part
    {
        QString text;
        qint64 from = 0;
        qint64 last = 0;
        qint64 step = 0; ///< 0: a single value.
        int scale = 0;

        [[nodiscard]] qint64 count() const;
        [[nodiscard]] QString value(qint64 index) const;
        [[nodiscard]] bool containsNumber(QStringView value, char decimalChar) const;
    };
    [[nodiscard]] bool containsSteps(const Part &steps) const;
    [[nodiscard]] static std::optional<Part> parsePart(QStringView text, char decimalChar,
                                                       QString *error);

    std::vector<Part> m_parts;
    char m_decimalChar = '.';
};

} // namespace VKTab
