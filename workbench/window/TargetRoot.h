#pragma once

#include <QString>

#include <memory>

QT_BEGIN_NAMESPACE
class QTemporaryDir;
QT_END_NAMESPACE

/// Makes a directory the process's catalog root: for the index tree, and as
/// "$TORMEVA_DATA/23d-libs" for all who build target paths. While it lives; then the environment is
/// as before. GUI thread, while nothing reads projects.
class TargetRoot
{
public:
    explicit TargetRoot(const QString &directory);
    ~TargetRoot();
    TargetRoot(const TargetRoot &) = delete;
    TargetRoot &operator=(const TargetRoot &) = delete;

    [[nodiscard]] const QString &directory() const { return m_directory; }

private:
    const QString m_directory;
    const QByteArray m_former;
    /// Holds a link of the fixed name, unless the directory has that name itself.
    std::unique_ptr<QTemporaryDir> m_link;
};
