#pragma once

#include "SessionOwner.h"

#include <core/VelkCoreGlobal.h>

#include <QString>

#include <memory>

class QLockFile;

/// Says to others that a mapping file is being edited, and by whom: a lock file beside it, which
/// goes with its owner. The lock of a process of this computer that ended is taken over, and one
/// that names nobody; that of another computer counts until somebody removes it.
class VELKCORE_EXPORT EditLock
{
public:
    enum Result {
        Taken,
        HeldByOther, ///< owner() says by whom
        NotWritable, ///< the folder takes no lock file
    };

    EditLock();
    ~EditLock();
    EditLock(const EditLock &) = delete;
    EditLock &operator=(const EditLock &) = delete;

    /// Gives up a former lock first.
    Result take(const QString &mappingFile);
    /// Leaves a lock file alone that somebody else put in the place of ours.
    void release();
    [[nodiscard]] bool isTaken() const;
    /// Of the lock that was found in the way.
    [[nodiscard]] const SessionOwner &owner() const { return m_owner; }

    /// The same by whatever link the file is named.
    [[nodiscard]] static QString lockFile(const QString &mappingFile);
    /// This process.
    [[nodiscard]] static SessionOwner self();
    /// Removes somebody's lock file.
    static bool remove(const QString &mappingFile);

private:
    void noteSelf() const;
    void readOwner(const QString &lockFile);

    std::unique_ptr<QLockFile> m_lock;
    QByteArray m_mark; ///< of its file as it was taken
    SessionOwner m_owner;
};
