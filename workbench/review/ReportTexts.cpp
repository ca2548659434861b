#include "ReportTexts.h"

#include "PatternText.h"

#include <core/text/countText.h>

#include <QCoreApplication>

namespace ReportTexts {

using VelkRelease::OpenReason;
using VelkRelease::ReportText;

namespace {

// In the order of ReportText.
constexpr std::array<const char *, size_t(ReportText::Count)> reportTexts = {
    QT_TRANSLATE_NOOP("ReportTexts", "Mapping-Bericht: %1"),
    QT_TRANSLATE_NOOP("ReportTexts", "Katalogstand %1 nach %2"),
    QT_TRANSLATE_NOOP("ReportTexts", "Erstellt am %1"),
    QT_TRANSLATE_NOOP("ReportTexts", "Erledigte Zeilen: %1 von %2; offen: %3."),
    QT_TRANSLATE_NOOP("ReportTexts", "Stand der Zeilen"),
    QT_TRANSLATE_NOOP("ReportTexts", "Nach Ordnern, mit allem darunter"),
    QT_TRANSLATE_NOOP("ReportTexts", "Nach Projekten"),
    QT_TRANSLATE_NOOP("ReportTexts", "Warum Zeilen offen sind"),
    QT_TRANSLATE_NOOP("ReportTexts",
                      "Worin sich offene Zeilen von ihren Vorschlägen unterscheiden"),
    QT_TRANSLATE_NOOP("ReportTexts", "Offene Zeilen ohne Nachfolger"),
    QT_TRANSLATE_NOOP("ReportTexts", "Stichproben"),
    QT_TRANSLATE_NOOP("ReportTexts", "Aus früheren Mappings übernommen"),
    QT_TRANSLATE_NOOP("ReportTexts", "Wer was entschieden hat"),
    QT_TRANSLATE_NOOP("ReportTexts", "Offene Zeilen"),
    QT_TRANSLATE_NOOP("ReportTexts", "Als ausgelaufen bestätigte Zeilen"),
    QT_TRANSLATE_NOOP("ReportTexts", "Was nicht gelesen werden konnte"),
    QT_TRANSLATE_NOOP("ReportTexts", "Zeilen"),
    QT_TRANSLATE_NOOP("ReportTexts", "Bestätigt"),
    QT_TRANSLATE_NOOP("ReportTexts", "Als ausgelaufen bestätigt"),
    QT_TRANSLATE_NOOP("ReportTexts", "Sicher zugeordnet"),
    QT_TRANSLATE_NOOP("ReportTexts", "Zu prüfen"),
    QT_TRANSLATE_NOOP("ReportTexts", "Ohne Ziel"),
    QT_TRANSLATE_NOOP("ReportTexts", "Im Konflikt"),
    QT_TRANSLATE_NOOP("ReportTexts", "Ordner"),
    QT_TRANSLATE_NOOP("ReportTexts", "Projekt"),
    QT_TRANSLATE_NOOP("ReportTexts", "Zeile"),
    QT_TRANSLATE_NOOP("ReportTexts", "Bezeichnung"),
    QT_TRANSLATE_NOOP("ReportTexts", "Grund"),
    QT_TRANSLATE_NOOP("ReportTexts", "Unterschiede"),
    QT_TRANSLATE_NOOP("ReportTexts", "Was sie gemeinsam haben"),
    QT_TRANSLATE_NOOP("ReportTexts", "Projekte"),
    QT_TRANSLATE_NOOP("ReportTexts", "Wahrscheinlichkeit"),
    QT_TRANSLATE_NOOP("ReportTexts", "Ausnahmen"),
    QT_TRANSLATE_NOOP("ReportTexts", "Beispiele"),
    QT_TRANSLATE_NOOP("ReportTexts", "Zeit"),
    QT_TRANSLATE_NOOP("ReportTexts", "Wer"),
    QT_TRANSLATE_NOOP("ReportTexts", "Was"),
    QT_TRANSLATE_NOOP("ReportTexts", "Beurteilt"),
    QT_TRANSLATE_NOOP("ReportTexts", "Richtig"),
    QT_TRANSLATE_NOOP("ReportTexts", "Höchstens falsch (zu 95 % sicher)"),
    QT_TRANSLATE_NOOP("ReportTexts", "Beurteilte Zeilen"),
    QT_TRANSLATE_NOOP("ReportTexts", "Früheres Mapping"),
    QT_TRANSLATE_NOOP("ReportTexts", "Noch wie übernommen"),
    QT_TRANSLATE_NOOP("ReportTexts", "abgelehnt"),
    QT_TRANSLATE_NOOP("ReportTexts", "Tabelle nicht lesbar"),
    QT_TRANSLATE_NOOP("ReportTexts", "nicht zu vergleichen"),
    QT_TRANSLATE_NOOP("ReportTexts", "kein Unterschied"),
    QT_TRANSLATE_NOOP("ReportTexts", "unsicher: %1"),
    QT_TRANSLATE_NOOP("ReportTexts", "zusammen"),
    QT_TRANSLATE_NOOP("ReportTexts", "keine"),
    QT_TRANSLATE_NOOP("ReportTexts", "und %1 weitere"),
};

// In the order of OpenReason.
constexpr std::array<const char *, VelkRelease::OpenReasonCount> reasonTexts = {
    QT_TRANSLATE_NOOP("ReportTexts", "zwei haben verschieden entschieden"),
    QT_TRANSLATE_NOOP("ReportTexts", "ein anderer entscheidet"),
    QT_TRANSLATE_NOOP("ReportTexts", "eine Tabelle ist nicht lesbar"),
    QT_TRANSLATE_NOOP("ReportTexts", "Bedingung oder Formel scheitert"),
    QT_TRANSLATE_NOOP("ReportTexts", "kein Ziel ist zuständig"),
    QT_TRANSLATE_NOOP("ReportTexts", "eine Spalte fehlt"),
    QT_TRANSLATE_NOOP("ReportTexts", "mehrere Zeilen sind gleich"),
    QT_TRANSLATE_NOOP("ReportTexts", "zu unähnlich"),
    QT_TRANSLATE_NOOP("ReportTexts", "gleich, nur nicht bestätigt"),
};

} // namespace

QString reason(OpenReason reason)
{
    return QCoreApplication::translate("ReportTexts", reasonTexts[size_t(reason)]);
}

VelkRelease::ReportForm form(const QLocale &locale)
{
    VelkRelease::ReportForm form;
    form.text = [](ReportText text) {
        return QCoreApplication::translate("ReportTexts", reportTexts[size_t(text)]);
    };
    form.reason = &ReportTexts::reason;
    form.changes = PatternText::words();
    form.goneGroups = PatternText::goneWords();
    form.time = [locale](const QDateTime &time) {
        return locale.toString(time.toLocalTime(), QLocale::ShortFormat);
    };
    form.number = [locale](int count) {
        return countText(count, locale);
    };
    form.locale = locale;
    form.language = locale.bcp47Name();
    return form;
}

} // namespace ReportTexts
