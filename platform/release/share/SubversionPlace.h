#pragma once

#include "SharedPlace.h"
#include "SubversionStore.h"

namespace VelkRelease {

/// A file in a working copy of a Subversion repository, which nobody else changes. The revision is
/// the one that last changed the file.
class SubversionPlace : public SharedPlace
{
public:
    explicit SubversionPlace(const QString &file);

    [[nodiscard]] static bool isWorkingCopy(const QString &folder);

    /// Brings the working copy up to date. What a publishing left that was broken off is taken
    /// back; what somebody wrote into the file stays in a copy beside it.
    [[nodiscard]] ShareAnswer fetch(SharedCopy &copy) override;
    [[nodiscard]] ShareAnswer publish(const QByteArray &bytes, const QString &expected,
                                      const QString &message, QString &revision) override;
    [[nodiscard]] ShareAnswer writeNote(const QString &name, const QByteArray &bytes) override;

private:
    [[nodiscard]] ShareAnswer revision(QString &revision);
    [[nodiscard]] ShareAnswer fetchAlone(SharedCopy &copy);
    [[nodiscard]] ShareAnswer fetchRevision(QString &found);
    [[nodiscard]] ShareAnswer takeBack();
    [[nodiscard]] ShareAnswer commit(const QStringList &files, const QString &message);
    [[nodiscard]] ShareAnswer putNote(const QString &note, const QByteArray &bytes);

    SubversionStore m_store;
    bool m_isFetched = false;
};

} // namespace VelkRelease
