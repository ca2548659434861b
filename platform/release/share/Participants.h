#pragma once

#include "SharedPlace.h"

#include <QDateTime>
#include <QList>
#include <QStringList>

#include <functional>

namespace VelkRelease {

/// Somebody who works on a shared mapping.
struct Participant
{
    QString user;
    QString host;
    bool isOpen = false; ///< he has his mapping file open
    QDateTime seen;      ///< UTC: when he last said so
    QString revision;    ///< his base
    QStringList folders; ///< of the catalog, that he took over; FolderPattern
    bool isSelf = false;
};

/// Who works on a shared mapping, by the notes beside the shared copy. The place must live as long.
class Participants
{
public:
    Participants(SharedPlace &place, QString mappingFile);

    /// Of this user and mapping file, without an ending.
    [[nodiscard]] QString noteName() const;
    /// As of the last fetch or by now; this user too if he has said anything.
    [[nodiscard]] QList<Participant> all() const;
    [[nodiscard]] Participant self() const;
    [[nodiscard]] ShareAnswer write(const Participant &self, const QString &revision);

    /// Busy folders among these: "anna@ws12: parts/bolts"; empty if they are free.
    [[nodiscard]] QString taken(const QStringList &folders) const;
    /// The same of the projects in somebody else's folder.
    [[nodiscard]] QStringList inOthersFolders(const QStringList &sourcePaths) const;
    [[nodiscard]] std::function<bool(const QString &)> isInOthersFolder() const;

private:
    SharedPlace &m_place;
    QString m_file;
};

} // namespace VelkRelease
