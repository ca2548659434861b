#include "RepositoryListing.h"

#include <QDir>
#include <QUrl>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

const QByteArray mark = QByteArrayLiteral("velk-listing 1\n"); ///< and the end, too

bool isEntryName(const QString &name)
{
    return !name.isEmpty() && !name.startsWith(u'.') && !name.contains(u'/') &&
           std::none_of(name.cbegin(), name.cend(),
                        [](QChar c) { return c.category() == QChar::Other_Control; });
}

bool isProject(const QString &name)
{
    return name.size() > 4 && name.endsWith(u".prj");
}

/// Components that lead nowhere else, and no working copy's own.
bool isPathBelow(const QString &path)
{
    const QStringList components = path.split(u'/');
    return std::none_of(components.cbegin(), components.cend(), [](const QString &component) {
        return component.isEmpty() || component == u"." || component == u".." ||
               component.contains(QChar(u'\0'));
    });
}

} // namespace

std::optional<RepositoryListing> RepositoryListing::ofClientXml(const QByteArray &xml)
{
    RepositoryListing listing;
    QXmlStreamReader reader(xml);
    bool isList = false;
    QString kind;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == u"list") {
            isList = true;
        } else if (reader.name() == u"entry") {
            kind = reader.attributes().value(QLatin1String("kind")).toString();
        } else if (reader.name() == u"name" && isList) {
            const QString name = reader.readElementText();
            if (isEntryName(name) && kind == u"dir")
                listing.directories.append(name);
            else if (isEntryName(name) && kind == u"file" && isProject(name))
                listing.projects.append(name);
        }
    }
    return isList && !reader.hasError() ? std::optional(listing) : std::nullopt;
}

std::optional<RepositoryListing> RepositoryListing::ofBytes(const QByteArray &bytes)
{
    if (!bytes.startsWith(mark) || !bytes.endsWith('\n' + mark))
        return {};
    RepositoryListing listing;
    const QString text = QString::fromUtf8(bytes.mid(mark.size(), bytes.size() - 2 * mark.size()));
    for (const QString &line : text.split(u'\n', Qt::SkipEmptyParts)) {
        const QString name = line.mid(1);
        if (!isEntryName(name))
            return {};
        (line.startsWith(u'd') ? listing.directories : listing.projects).append(name);
    }
    return listing;
}

RepositoryListing RepositoryListing::ofDirectory(const QString &directory)
{
    RepositoryListing listing;
    const QDir dir(directory);
    const QDir::Filters common = QDir::NoDotAndDotDot | QDir::NoSymLinks;
    listing.directories = dir.entryList(QDir::Dirs | common, QDir::NoSort);
    listing.projects = dir.entryList(QDir::Files | common, QDir::NoSort);
    listing.projects.removeIf([](const QString &name) { return !isProject(name); });
    return listing;
}

QByteArray RepositoryListing::bytes() const
{
    QByteArray all = mark;
    for (const QString &name : directories)
        all += 'd' + name.toUtf8() + '\n';
    for (const QString &name : projects)
        all += 'p' + name.toUtf8() + '\n';
    return all + '\n' + mark;
}

std::optional<QList<RepositoryChange>> repositoryChangesOfXml(const QByteArray &xml,
                                                              const QString &url)
{
    QList<RepositoryChange> changes;
    QXmlStreamReader reader(xml);
    bool isDiff = false;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        isDiff = isDiff || reader.name() == u"diff";
        if (reader.name() != u"path")
            continue;
        RepositoryChange change;
        change.isDirectory = reader.attributes().value(QLatin1String("kind")) == u"dir";
        change.isDeleted = reader.attributes().value(QLatin1String("item")) == u"deleted";
        const bool isProperty = reader.attributes().value(QLatin1String("item")) == u"none";
        const QString place = reader.readElementText();
        if (place == url || isProperty)
            continue; // the root itself, and what is said of a path alone
        change.path = QUrl::fromPercentEncoding(place.mid(url.size() + 1).toUtf8());
        if (!place.startsWith(url + u'/') || !isPathBelow(change.path))
            return {};
        changes.append(change);
    }
    return isDiff && !reader.hasError() ? std::optional(changes) : std::nullopt;
}
