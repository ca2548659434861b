#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QMetaType>
#include <QString>

#include <optional>
#include <variant>

namespace VKTab {

/// Value of a cell: nothing, a number or a text. A text that reads as a number stays a text;
/// number() reads both. Numbers are written with a decimal point and without an exponent where that
/// is exact, whatever the locale.
class VELKGEOMCORE_EXPORT Value
{
public:
    Value() = default;
    Value(int number);
    Value(qint64 number);
    Value(double number);
    Value(const QString &text);
    Value(const char *utf8);

    /// True for a value that was never set. An empty text is not null.
    [[nodiscard]] bool isNull() const { return m_value.index() == 0; }
    /// True for a null value and for an empty text.
    [[nodiscard]] bool isEmpty() const;
    /// True if the value was made from a number.
    [[nodiscard]] bool isNumber() const { return m_value.index() == 1 || m_value.index() == 2; }

    [[nodiscard]] QString toString() const;
    /// The number, also of a text that consists of one number with a decimal point.
    [[nodiscard]] std::optional<double> number() const;

    /// Equal kind and content: Value(1) differs from Value("1").
    friend bool operator==(const Value &a, const Value &b) = default;

private:
    std::variant<std::monostate, qint64, double, QString> m_value;
};

} // namespace VKTab

Q_DECLARE_METATYPE(VKTab::Value)
