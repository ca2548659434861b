#pragma once

#include <geomcore/table/LineI.h>
#include <geomcore/value/LangThreadSettings.h>

#include <QString>

#include <optional>
#include <string_view>

namespace VKTab {
class TableData;
}

/// Text of a cell as a view shows it: as stored, translated, without the unit, which stands in the
/// caption.
[[nodiscard]] QString shownText(const VKTab::LineI &line, const VKTab::Var &var);

/// Of a longer text a view shows and measures so much, which is more than fits on any screen.
constexpr qsizetype MostShownCharacters = 1000;

/// The text, or its beginning and dots.
[[nodiscard]] QString cutText(const QString &text);
/// The same of UTF-8; nothing if it may be short enough to be shown as it is.
[[nodiscard]] std::optional<QString> cutText(std::string_view utf8);

/// On the stack of what reads for a view: values come in the language of the user, whatever guard
/// the caller holds.
class ViewLanguage
{
public:
    ViewLanguage() { m_settings.disableTranslation(false); }

private:
    VKTab::LangThreadSettings m_settings;
};

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
