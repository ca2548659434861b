#pragma once

#include <geomcore/table/LineI.h>

#include <QString>

#include <string_view>

namespace VKTab {
class TableData;
}

/// Text of a cell as a view shows it: as stored, translated, without the unit, which stands in the
/// caption.
[[nodiscard]] QString shownText(const VKTab::LineI &line, const VKTab::Var &var);

/// Whether a column of the file shows its cells' bytes, so that they may be read directly.
[[nodiscard]] bool showsRawText(const VKTab::TableData &table, int column);

/// Whether UTF-8 texts hold one text, upper and lower case alike.
class TextSearch
{
public:
    explicit TextSearch(const QString &text);

    [[nodiscard]] bool isEmpty() const { return m_text.isEmpty(); }
    [[nodiscard]] bool isIn(std::string_view utf8) const;
    [[nodiscard]] bool isIn(const QString &text) const;

private:
    QString m_text;
    std::string m_folded; // lower case bytes; empty unless the text is ASCII
};
