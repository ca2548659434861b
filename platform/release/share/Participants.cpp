#include "Participants.h"

#include "FolderPattern.h"

#include <core/files/EditLock.h>

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace VelkRelease {

namespace {

Participant participantOf(const QJsonObject &note)
{
    Participant participant;
    participant.user = note["user"].toString();
    participant.host = note["host"].toString();
    participant.isOpen = note["open"].toBool();
    participant.seen = QDateTime::fromString(note["seen"].toString(), Qt::ISODate);
    participant.revision = note["revision"].toString();
    const QJsonArray folders = note["folders"].toArray();
    for (const auto &folder : folders)
        participant.folders += folder.toString();
    return participant;
}

QString textOf(const Participant &participant, const QString &folder)
{
    return participant.user + u'@' + participant.host + QStringLiteral(": ") + folder;
}

} // namespace

Participants::Participants(SharedPlace &place, QString mappingFile)
    : m_place(place)
    , m_file(std::move(mappingFile))
{
}

/// One for each mapping file: a user may have several.
QString Participants::noteName() const
{
    const SessionOwner owner = EditLock::self();
    const QByteArray place =
        QCryptographicHash::hash(m_file.toUtf8(), QCryptographicHash::Sha256).toHex().left(8);
    QString name = owner.user + u'@' + owner.host + u'-' + QString::fromLatin1(place);
    name.replace(u'/', u'_').replace(u'\\', u'_');
    return name;
}

QList<Participant> Participants::all() const
{
    QList<Participant> all;
    const QString own = noteName();
    for (const QByteArray &bytes : m_place.notes()) {
        const QJsonObject note = QJsonDocument::fromJson(bytes).object();
        if (note.isEmpty())
            continue;
        all += participantOf(note);
        all.last().isSelf = note["note"].toString() == own;
    }
    return all;
}

Participant Participants::self() const
{
    const QList<Participant> everybody = all();
    const auto found = std::ranges::find_if(everybody, &Participant::isSelf);
    return found == everybody.end() ? Participant() : *found;
}

ShareAnswer Participants::write(const Participant &self, const QString &revision)
{
    const SessionOwner owner = EditLock::self();
    const QJsonObject note{{"note", noteName()},
                           {"user", owner.user},
                           {"host", owner.host},
                           {"open", self.isOpen},
                           {"seen", QDateTime::currentDateTimeUtc().toString(Qt::ISODate)},
                           {"revision", revision},
                           {"folders", QJsonArray::fromStringList(self.folders)}};
    return m_place.writeNote(noteName() + QStringLiteral(".json"), QJsonDocument(note).toJson());
}

QString Participants::taken(const QStringList &folders) const
{
    for (const Participant &other : all()) {
        if (other.isSelf)
            continue;
        for (const QString &taken : other.folders) {
            if (std::ranges::any_of(folders, [&](const QString &wanted) {
                    return FolderPattern::overlap(wanted, taken);
                }))
                return textOf(other, taken);
        }
    }
    return {};
}

QStringList Participants::inOthersFolders(const QStringList &sourcePaths) const
{
    QStringList found;
    for (const Participant &other : all()) {
        for (const QString &folder : other.folders) {
            const bool touched =
                !other.isSelf && std::ranges::any_of(sourcePaths, [&](const QString &path) {
                    return FolderPattern::holds(folder, path);
                });
            if (touched)
                found += textOf(other, folder);
        }
    }
    return found;
}

std::function<bool(const QString &)> Participants::isInOthersFolder() const
{
    QStringList folders;
    for (const Participant &other : all()) {
        if (!other.isSelf)
            folders += other.folders;
    }
    return [folders](const QString &path) {
        return std::ranges::any_of(
            folders, [&](const QString &folder) { return FolderPattern::holds(folder, path); });
    };
}

} // namespace VelkRelease
