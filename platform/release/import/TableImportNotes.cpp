// What TableImport notes of columns and their names.
#include "TableImport.h"

#include "TypeRecognition.h"

#include <geomcore/csv/HeaderNames.h>
#include <geomcore/value/CanonicalNumber.h>
#include <release/text/releaseText.h>

#include <QRegularExpression>

#include <algorithm>

using VKTab::CanonicalNumber;
using VKTab::FieldKind;
using VKTab::TableField;
using VKTab::uniqueColumnNames;

namespace VelkRelease {

namespace {

QString quotedList(const QStringList &names)
{
    QStringList quoted;
    for (const QString &name : names)
        quoted += releaseText("„%1“").arg(name);
    return quoted.join(QStringLiteral(", "));
}

} // namespace

void TableImport::checkField(const TableField &field, const TableField &found)
{
    const bool fits = field.kind != FieldKind::Range && found.kind != FieldKind::Range &&
                      (!field.isNumeric() || found.isNumeric());
    if (fits || (field.kind == found.kind && field.isNumeric() <= found.isNumeric()))
        return;
    m_notes.append(
        releaseText("die Spalte „%1“ ist laut Deskriptor: %2; ihre Zellen sehen aus wie: %3")
            .arg(field.name, describeField(field), describeField(found)));
}

void TableImport::noteNames()
{
    const QStringList &header = m_source->header();
    const QStringList names = uniqueColumnNames(header);
    QHash<QString, QStringList> byFoldedName;
    for (qsizetype i = 0; i < names.size(); ++i) {
        byFoldedName[names.at(i).toCaseFolded()].append(names.at(i));
        if (header.at(i).isEmpty())
            m_notes.append(releaseText("die Spalte %1 hat keinen Namen und heißt jetzt „%2“")
                               .arg(QString::number(i + 1), names.at(i)));
        else if (header.at(i) != names.at(i))
            m_notes.append(
                releaseText("die Spalte %1 trägt noch einmal den Namen „%2“ und heißt jetzt „%3“")
                    .arg(QString::number(i + 1), header.at(i), names.at(i)));
    }
    for (const QString &name : names) {
        const QStringList alike = byFoldedName.take(name.toCaseFolded());
        if (alike.size() > 1)
            m_notes.append(releaseText("nur in der Groß- und Kleinschreibung verschieden: %1")
                               .arg(quotedList(alike)));
    }
}

void TableImport::noteHeader()
{
    const QStringList &header = m_source->header();
    const auto isNumber = [](const QString &name) {
        return CanonicalNumber::parse(name.toStdString(), ',').has_value();
    };
    if (std::count_if(header.cbegin(), header.cend(), isNumber) * 2 >= header.size())
        m_notes.append(releaseText("die erste Zeile sieht nach Daten aus; sie gilt als Namen der "
                                   "Spalten, setzen Sie also eine Zeile mit Namen davor"));
    if (header.size() == 1 && header.first().contains(QRegularExpression(QStringLiteral("[;\t]"))))
        m_notes.append(
            releaseText("die einzige Spalte heißt „%1“; wenn es mehrere sind, nennen Sie ihr "
                        "Trennzeichen mit --separator")
                .arg(header.first()));
}

} // namespace VelkRelease
