#pragma once

#include "LineLinks.h"

#include <geomcore/linkdb/PLinkDbC.h>

#include <atomic>

namespace VelkRelease {

/// Writes the links of projects over one connection, each project in a transaction of its own.
class VELKRELEASE_EXPORT LinkWriter
{
public:
    enum class Outcome {
        Written,
        Unchanged,   ///< they are there already
        Interrupted, ///< nothing of the project is written
        Failed,      ///< nothing of it is written; problem() tells why
    };

    /// \a linkDb is open and used by nobody else meanwhile. \a interrupted ends the work between
    /// two statements.
    LinkWriter(const PRefPtr<PLinkDbC> &linkDb, const std::atomic<bool> &interrupted);

    /// What stands there for the project is replaced. After a lost connection it is tried once
    /// more, from the beginning. Two writers of one project come one after the other.
    [[nodiscard]] Outcome write(const LineLinks &links);
    /// Whether write() would find them there already; writes nothing.
    [[nodiscard]] Outcome compare(const LineLinks &links);
    [[nodiscard]] const QString &problem() const { return m_problem; }

private:
    [[nodiscard]] Outcome tryToWrite(const LineLinks &links);
    [[nodiscard]] Outcome fail();
    [[nodiscard]] bool lock(const LineLinks &links);
    [[nodiscard]] bool isServer() const;
    [[nodiscard]] QStringList headStatements(const LineLinks &links) const;
    [[nodiscard]] QString targetStatement(const LineLinks &links) const;
    [[nodiscard]] QString rowStatement(const LineLinks &links, size_t first, size_t end) const;
    [[nodiscard]] QString arrayStatement(const LineLinks &links, size_t first, size_t end) const;
    [[nodiscard]] bool writeAll(const LineLinks &links);
    [[nodiscard]] QString text(const QString &value) const;

    PRefPtr<PLinkDbC> m_linkDb;
    const std::atomic<bool> &m_interrupted;
    QString m_problem;
};

} // namespace VelkRelease
