#pragma once

#include "SharedPlace.h"

namespace VelkRelease {

/// A shared folder. The revision is the hash of the content.
class FolderPlace : public SharedPlace
{
public:
    explicit FolderPlace(const QString &file);

    [[nodiscard]] ShareAnswer fetch(SharedCopy &copy) override;
    [[nodiscard]] ShareAnswer publish(const QByteArray &bytes, const QString &expected,
                                      const QString &message, QString &revision) override;
    [[nodiscard]] ShareAnswer writeNote(const QString &name, const QByteArray &bytes) override;
};

} // namespace VelkRelease
