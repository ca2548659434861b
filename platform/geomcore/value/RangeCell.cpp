#include "RangeCell.h"

#include "CellKey.h"

namespace VKTab {

std::optional<RangeText> parseRangeCell(QStringView text, char decimalChar)
{
    if (!text.contains(u';') && !text.contains(u".."))
        return std::nullopt;
    auto range = RangeText::parse(text, decimalChar);
    return range && range->count() > 0 ? range : std::nullopt;
}

bool equalCells(QStringView a, QStringView b, char decimalChar)
{
    if (a == b)
        return true;
    const QByteArray x = a.toUtf8();
    const QByteArray y = b.toUtf8();
    const auto key = [&](const QByteArray &text) {
        const std::string_view cell = trimmedCell({text.constData(), size_t(text.size())});
        return CellKey(cell, CompareMode::Number, decimalChar, cell.empty());
    };
    return key(x) == key(y);
}

} // namespace VKTab
