#include "Value.h"

#include "NumberText.h"

namespace VKTab {

Value::Value(int number)
    : m_value(static_cast<qint64>(number))
{
}

Value::Value(qint64 number)
    : m_value(number)
{
}

Value::Value(double number)
    : m_value(number)
{
}

Value::Value(const QString &text)
    : m_value(text)
{
}

Value::Value(const char *utf8)
    : m_value(QString::fromUtf8(utf8))
{
}

bool Value::isEmpty() const
{
    const QString *text = std::get_if<QString>(&m_value);
    return isNull() || (text && text->isEmpty());
}

QString Value::toString() const
{
    if (const QString *text = std::get_if<QString>(&m_value))
        return *text;
    if (const qint64 *number = std::get_if<qint64>(&m_value))
        return QString::number(*number);
    if (const double *number = std::get_if<double>(&m_value))
        return numberText(*number);
    return {};
}

std::optional<double> Value::number() const
{
    if (const QString *text = std::get_if<QString>(&m_value))
        return parseNumber(text->toUtf8().toStdString());
    if (const qint64 *number = std::get_if<qint64>(&m_value))
        return static_cast<double>(*number);
    if (const double *number = std::get_if<double>(&m_value))
        return *number;
    return std::nullopt;
}

} // namespace VKTab
