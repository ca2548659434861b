#include "MidentClass.h"

#include <array>
#include <optional>

namespace {

QString escaped(const QString &text, QChar open, QChar close)
{
    QString result;
    result.reserve(text.size());
    for (const QChar c : text) {
        if (c == open || c == close || c == u'=' || c == u'\\')
            result += u'\\';
        result += c;
    }
    return result;
}

/// Reads the groups of a text one after the other.
class GroupReader
{
public:
    explicit GroupReader(const QString &text)
        : m_text(text)
    {
    }

    [[nodiscard]] bool atEnd()
    {
        while (m_at < m_text.size() && m_text[m_at].isSpace())
            ++m_at;
        return m_at == m_text.size();
    }

    /// The parts of the next group between its braces; nothing if the text has none here.
    [[nodiscard]] std::optional<QStringList> next()
    {
        if (atEnd() || m_text[m_at++] != u'{')
            return std::nullopt;
        QStringList parts{QString()};
        while (m_at < m_text.size()) {
            const QChar c = m_text[m_at++];
            if (c == u'}')
                return parts;
            if (c == u'{' || (c == u'\\' && m_at == m_text.size()))
                return std::nullopt;
            if (c == u'=')
                parts.append(QString());
            else
                parts.last() += c == u'\\' ? m_text[m_at++] : c;
        }
        return std::nullopt;
    }

private:
    const QString m_text;
    qsizetype m_at = 0;
};

/// {NAME=VALUE} or {NAME=VALUE=PLACE=COUNT}
std::optional<TabVarValue> toVarValue(const QStringList &parts)
{
    if (parts.size() == 2)
        return TabVarValue(parts[0], parts[1], QString(), 0, 1);
    if (parts.size() != 4)
        return std::nullopt;
    std::array<bool, 2> ok{};
    const int place = parts[2].toInt(&ok[0]);
    const int count = parts[3].toInt(&ok[1]);
    if (!ok[0] || !ok[1])
        return std::nullopt;
    return TabVarValue(parts[0], parts[1], QString(), place, count);
}

} // namespace

void MidentClass::AddVarValue(const QString &name, const QString &value)
{
    m_values.append(TabVarValue(name, value, QString(), 0, 1));
}

int MidentClass::CountVars() const
{
    return static_cast<int>(m_values.size());
}

QString MidentClass::GetVarName(int entry) const
{
    return m_values.value(entry).getName();
}

QString MidentClass::GetVarValue(int entry) const
{
    return m_values.value(entry).getValue();
}

QString MidentClass::MakeVarvalueString() const
{
    return varValuListToString(m_values, u'{', u'}', false);
}

bool MidentClass::SplitVarValue(const QString &text)
{
    m_values.clear();
    QList<TabVarValue> values;
    GroupReader reader(text);
    while (!reader.atEnd()) {
        const auto parts = reader.next();
        const auto value = parts ? toVarValue(*parts) : std::nullopt;
        if (!value)
            return false;
        values.append(*value);
    }
    m_values = values;
    return true;
}

QString MidentClass::varValuListToString(const QList<TabVarValue> &list, QChar open, QChar close,
                                         bool withPlaces)
{
    QString text;
    for (const TabVarValue &value : list) {
        text += open + escaped(value.getName(), open, close) + u'=' +
                escaped(value.getValue(), open, close);
        if (withPlaces)
            text +=
                u'=' + QString::number(value.getPlace()) + u'=' + QString::number(value.getCount());
        text += close;
    }
    return text;
}
