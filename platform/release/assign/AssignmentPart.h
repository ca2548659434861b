#pragma once

#include "ReleaseShares.h"

#include <release/VelkReleaseGlobal.h>

#include <geomcore/records/ReleaseMappingC.h>

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

namespace VelkRelease {

/// What one machine assigned of a release: the mappings of its share, and of which work they are a
/// part. In files that are complete or absent.
struct VELKRELEASE_EXPORT AssignmentPart
{
    ShareNumber number;
    QByteArray origin;    ///< originOf() the release before the work
    QByteArray options;   ///< how the work is done; the same in all parts
    int projects = 0;     ///< of all shares together
    QList<int> positions; ///< of the mappings in the release, in their order
    ReleaseMappingC release;
    bool allRead = true;
    QStringList errors; ///< what could not be read

    /// A name for a release as it stands.
    [[nodiscard]] static QByteArray originOf(const ReleaseMappingC &release);
    /// A name for options.
    [[nodiscard]] static QByteArray optionsOf(bool force, const QStringList &projects);
    /// False with \a error, which names the file.
    [[nodiscard]] bool read(const QString &file, QString *error);
    [[nodiscard]] bool write(const QString &file, QString *error) const;
};

/// Parts by the files that they were read from.
struct NamedPart
{
    QString file;
    AssignmentPart part;
};

/// What keeps parts from being one whole: parts that are lost or there twice, that belong to
/// another work, that do not hold what they should. Empty: nothing.
[[nodiscard]] VELKRELEASE_EXPORT QStringList partErrors(const QList<NamedPart> &parts);

/// Puts the parts of one work into the release that they were made of: afterwards it is what one
/// run over all projects makes of it, byte for byte. The parts have no partErrors(). False, and
/// nothing is changed, if the release is not the one that they were made of.
[[nodiscard]] VELKRELEASE_EXPORT bool joinParts(const QList<NamedPart> &parts,
                                                ReleaseMappingC &release);

} // namespace VelkRelease
