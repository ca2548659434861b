#include "AssignmentPart.h"

#include "SharedTargetLines.h"

#include <core/files/DurableFile.h>
#include <core/json/PJsonValue.h>
#include <release/text/releaseText.h>

#include <QCryptographicHash>
#include <QMap>
#include <QSet>

#include <algorithm>

namespace VelkRelease {

namespace {

PJsonValue numbers(const QList<int> &list)
{
    PJsonValue value(PJsonValue::Array);
    for (const int number : list)
        value.append(PJsonValue::fromInt(number));
    return value;
}

PJsonValue texts(const QStringList &list)
{
    PJsonValue value(PJsonValue::Array);
    for (const QString &text : list)
        value.append(PJsonValue(text));
    return value;
}

/// Of all mappings of a part its place in the whole, in the order of the whole.
QMap<int, PrjMappingC> mappingsOf(const QList<NamedPart> &parts)
{
    QMap<int, PrjMappingC> mappings;
    for (const NamedPart &named : parts) {
        for (int i = 0; i < named.part.positions.size(); ++i)
            mappings.insert(named.part.positions[i], named.part.release.mappingAt(i));
    }
    return mappings;
}

bool isWhole(const ReleaseMappingC &release, const QMap<int, PrjMappingC> &mappings)
{
    for (auto at = mappings.begin(); at != mappings.end(); ++at) {
        const PrjMappingC stored = release.mappingAt(at.key());
        if (stored.getSourcePath() != at->getSourcePath() ||
            stored.getSourceVersion() != at->getSourceVersion() ||
            stored.getTabVersion() != at->getTabVersion())
            return false;
    }
    return true;
}

} // namespace

QByteArray AssignmentPart::originOf(const ReleaseMappingC &release)
{
    PJsonValue json;
    release.toJson(json, false);
    return QCryptographicHash::hash(json.toByteArray(true), QCryptographicHash::Sha256).toHex();
}

QByteArray AssignmentPart::optionsOf(bool force, const QStringList &projects)
{
    QByteArray text = force ? "force" : "keep";
    for (const QString &project : projects)
        text += '\n' + project.toUtf8();
    return QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex();
}

bool AssignmentPart::write(const QString &file, QString *error) const
{
    PJsonValue json(PJsonValue::Object);
    json["part"] = PJsonValue(number.text());
    json["origin"] = PJsonValue(QString::fromLatin1(origin));
    json["options"] = PJsonValue(QString::fromLatin1(options));
    json["projects"] = PJsonValue::fromInt(projects);
    json["positions"] = numbers(positions);
    json["allRead"] = PJsonValue::fromBool(allRead);
    json["errors"] = texts(errors);
    release.toJson(json["release"], false);
    return DurableFile::write(file, json.toByteArray(false), error);
}

bool AssignmentPart::read(const QString &file, QString *error)
{
    PJsonValue json;
    if (!json.parseFile(file, error))
        return false;
    const auto refuse = [&](const QString &what) {
        *error = file + QStringLiteral(": ") + what;
        return false;
    };
    number = ShareNumber::fromText(json.value("part").toText());
    if (!number.isValid())
        return refuse(releaseText("das ist kein Teil, den velkmap assign --shard geschrieben hat"));
    origin = json.value("origin").toText().toLatin1();
    options = json.value("options").toText().toLatin1();
    projects = int(json.value("projects").toInt());
    allRead = json.value("allRead").toBool();
    const PJsonValue places = json.value("positions");
    positions.clear();
    for (int i = 0; i < places.size(); ++i)
        positions << int(places.at(i).toInt(-1));
    const PJsonValue lines = json.value("errors");
    errors.clear();
    for (int i = 0; i < lines.size(); ++i)
        errors << lines.at(i).toText();
    QString what;
    if (!release.fromJson(json.value("release"), &what))
        return refuse(what);
    if (release.countMappings() != positions.size())
        return refuse(releaseText("es sind nicht so viele Projekte darin, wie er nennt"));
    return true;
}

QStringList partErrors(const QList<NamedPart> &parts)
{
    if (parts.isEmpty())
        return {releaseText("es gibt keinen Teil")};
    const AssignmentPart &first = parts.first().part;
    QStringList errors;
    QMap<int, QStringList> files;
    QSet<int> positions;
    qsizetype count = 0;
    for (const auto &[file, part] : parts) {
        if (part.origin != first.origin || part.options != first.options ||
            part.number.shares != first.number.shares || part.projects != first.projects) {
            errors << releaseText("%1: das ist Teil %2 einer anderen Arbeit als %3")
                          .arg(file, part.number.text(), parts.first().file);
            continue;
        }
        files[part.number.share] << file;
        positions += QSet<int>(part.positions.begin(), part.positions.end());
        count += part.positions.size();
    }
    for (int share = 1; share <= first.number.shares; ++share) {
        const QString name = ShareNumber{share, first.number.shares}.text();
        if (!files.contains(share))
            errors << releaseText("Teil %1 fehlt").arg(name);
        else if (files[share].size() > 1)
            errors << releaseText("Teil %1 ist mehrfach da (%2): %3")
                          .arg(name, QString::number(files[share].size()), files[share].join(", "));
    }
    if (errors.isEmpty() && (positions.size() != count || count != first.projects))
        errors << releaseText(
                      "Projekte in den Teilen: %1 (verschiedene: %2), in der ganzen Arbeit: %3")
                      .arg(QString::number(count), QString::number(positions.size()),
                           QString::number(first.projects));
    return errors;
}

bool joinParts(const QList<NamedPart> &parts, ReleaseMappingC &release)
{
    const QMap<int, PrjMappingC> mappings = mappingsOf(parts);
    if (parts.isEmpty() || parts.first().part.origin != AssignmentPart::originOf(release) ||
        !isWhole(release, mappings))
        return false;
    for (const PrjMappingC &mapping : mappings)
        release.addMapping(mapping);
    doubtSharedTargetLines(release, mappings.keys());
    return true;
}

} // namespace VelkRelease
