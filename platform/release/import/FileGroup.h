#pragma once

#include <release/VelkReleaseGlobal.h>

#include <geomcore/csv/TableError.h>

#include <QByteArray>
#include <QList>
#include <QPair>

namespace VelkRelease {

/// Files that belong together. Each is written beside its place and synced; only when all are
/// complete are they renamed. Files that have the wanted content already stay untouched.
class VELKRELEASE_EXPORT FileGroup
{
public:
    void add(const QString &file, const QByteArray &content);
    /// Makes missing directories and writes. False with error() if that fails.
    [[nodiscard]] bool commit();
    [[nodiscard]] const VKTab::TableError &error() const { return m_error; }

private:
    bool fail(const QString &file, const QString &text);

    QList<QPair<QString, QByteArray>> m_files;
    VKTab::TableError m_error;
};

} // namespace VelkRelease
