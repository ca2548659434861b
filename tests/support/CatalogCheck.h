#pragma once

#include <QFile>
#include <QRegularExpression>
#include <QStringList>
#include <QXmlStreamReader>

/// Looks at catalogs of texts, *.ts files: at each translation and at each of its plural forms.
namespace CatalogCheck {

/// Tags, patterns of files and what a user types as it stands.
inline QStringList fixedParts(const QString &text)
{
    static const QRegularExpression parts(
        R"(%L?(?:\d|n)|</?[a-z][^>]*>|\*\.[a-z]+|;;|--[a-z]+|svn://|->|→|\n)");
    QStringList found;
    for (auto matches = parts.globalMatch(text); matches.hasNext();)
        found << matches.next().captured();
    found.sort(); // another language has another order
    return found;
}

inline bool hasMnemonic(QString text)
{
    static const QRegularExpression mnemonic("&\\w",
                                             QRegularExpression::UseUnicodePropertiesOption);
    return text.remove("&&").contains(mnemonic);
}

/// What the translation lacks, or nothing.
inline QString faultOf(const QString &source, const QString &translation)
{
    if (translation.trimmed().isEmpty())
        return "empty";
    if (fixedParts(source) != fixedParts(translation))
        return "places or tags differ";
    if (hasMnemonic(source) && !hasMnemonic(translation))
        return "the mnemonic is lost";
    if (source.startsWith(' ') != translation.startsWith(' ') ||
        source.endsWith(' ') != translation.endsWith(' '))
        return "blanks differ";
    for (const QLatin1String end : {QLatin1String("..."), QLatin1String("…")}) {
        if (source.endsWith(end) != translation.endsWith(end))
            return "ends otherwise";
    }
    return {};
}

/// How many plural forms the language has.
inline int formsOf(const QString &language)
{
    if (QStringList{"hu", "id", "ja", "ko", "tr", "zh", "zh_CHT"}.contains(language))
        return 1;
    if (QStringList{"cs", "pl", "ru"}.contains(language))
        return 3;
    return language == "sl" ? 4 : 2;
}

struct Faults
{
    int texts = 0; ///< that were looked at
    QStringList list;
};

/// What is wrong with the texts of a catalog.
inline Faults faultsOf(const QString &path, const QString &language)
{
    Faults faults;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {0, {"cannot be opened"}};
    QXmlStreamReader xml(&file);
    QString source;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        if (xml.name() == QLatin1String("source"))
            source = xml.readElementText();
        if (xml.name() != QLatin1String("translation"))
            continue;
        if (xml.attributes().hasAttribute("type"))
            faults.list += "not finished: " + source;
        QStringList translations;
        if (xml.readNext(); xml.isCharacters() && !xml.isWhitespace())
            translations << xml.text().toString();
        while (!xml.isEndElement() || xml.name() != QLatin1String("translation")) {
            if (xml.isStartElement() && xml.name() == QLatin1String("numerusform"))
                translations << xml.readElementText();
            xml.readNext();
        }
        if (translations.size() != (source.contains("%Ln") ? formsOf(language) : 1))
            faults.list += "another number of forms: " + source;
        ++faults.texts;
        for (const QString &translation : std::as_const(translations)) {
            const QString fault = faultOf(source, translation);
            if (!fault.isEmpty())
                faults.list += fault + ": " + source + ": " + translation;
        }
    }
    return faults;
}

/// "%1 Zeilen" would be said of one line, too; so a text with such a count is a plural one.
inline bool countsByHand(const QString &source)
{
    static const QRegularExpression counted(
        R"((?:%L?\d|\b1) (?!ohne |in |nach |von |mit )(?:[a-zäöüß]+ )?)"
        R"((?:Zeile|Zelle|Projekt|Tabelle|Schritt|Konflikt|Wert|Treffer|Link|)"
        R"(Änderung|Muster|Fehler|Nummer|Ersetzung|Entscheidung|Ordner|Stelle)(?:e|n|en|s|)\b)",
        QRegularExpression::UseUnicodePropertiesOption);
    return counted.match(source).hasMatch();
}

} // namespace CatalogCheck
