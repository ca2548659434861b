#include "TableCellText.h"

#include <geomcore/table/TableData.h>

#include <algorithm>

namespace {

char lowerAscii(char c)
{
    return c >= 'A' && c <= 'Z' ? char(c + ('a' - 'A')) : c;
}

bool isAscii(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 128; });
}

} // namespace

QString shownText(const VKTab::LineI &line, const VKTab::Var &var)
{
    QString text = line.getValue(var, {}, {}).toString();
    const QString unit = var.getUnit();
    if (!unit.isEmpty() && text.endsWith(u' ' + unit))
        text.chop(unit.size() + 1);
    return text;
}

QString cutText(const QString &text)
{
    if (text.size() <= MostShownCharacters)
        return text;
    const bool pair = text.at(MostShownCharacters - 1).isHighSurrogate();
    return text.left(MostShownCharacters - (pair ? 1 : 0)) + QChar(0x2026);
}

std::optional<QString> cutText(std::string_view utf8)
{
    constexpr size_t most = 4 * size_t(MostShownCharacters);
    if (utf8.size() <= most)
        return std::nullopt;
    size_t end = most; // not inside a character
    while ((static_cast<unsigned char>(utf8[end]) & 0xC0) == 0x80)
        --end;
    return cutText(QString::fromUtf8(utf8.data(), qsizetype(end)) + QChar(0x2026));
}

bool showsRawText(const VKTab::TableData &table, int column)
{
    if (VKTab::LangThreadSettings::language().isEmpty())
        return true;
    const VKTab::TableField &field = table.descriptor().fields.at(column);
    return field.isNumeric() ||
           (field.translations.isEmpty() && table.descriptor().translations.isEmpty());
}

TextSearch::TextSearch(const QString &text)
    : m_text(text)
{
    if (!isAscii(text))
        return;
    m_folded = text.toLatin1().toStdString();
    std::transform(m_folded.begin(), m_folded.end(), m_folded.begin(), lowerAscii);
}

bool TextSearch::isIn(std::string_view utf8) const
{
    if (m_folded.empty())
        return isIn(QString::fromUtf8(utf8.data(), qsizetype(utf8.size())));
    if (utf8.size() < m_folded.size())
        return false;
    const char first = m_folded.front();
    const size_t last = utf8.size() - m_folded.size();
    for (size_t i = 0; i <= last; ++i) {
        if (lowerAscii(utf8[i]) == first &&
            std::equal(m_folded.begin() + 1, m_folded.end(), utf8.begin() + qsizetype(i) + 1,
                       [](char a, char b) { return a == lowerAscii(b); }))
            return true;
    }
    return false;
}

bool TextSearch::isIn(const QString &text) const
{
    return !m_text.isEmpty() && text.contains(m_text, Qt::CaseInsensitive);
}
