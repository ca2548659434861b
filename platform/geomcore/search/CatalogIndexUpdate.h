#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QMetaType>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

/// How bringing an index up to date ended.
struct CatalogIndexOutcome
{
    enum State {
        Done,
        Cancelled,      ///< What was read is kept; the next time goes on from there.
        Busy,           ///< Another program does it at the moment.
        RootUnreadable, ///< The catalog root is not there; the index stays as it is.
        Failed,
    };
    State state = Done;
    int added = 0;
    int changed = 0;
    int removed = 0;
    int projects = 0;       ///< In the index now.
    QStringList unreadable; ///< Directories that cannot be read; what is known of them stays.
    QString errorText;
    QStringList outdated; ///< Why some of the catalogs may have become others since they were read.
};
Q_DECLARE_METATYPE(CatalogIndexOutcome)

/// Brings the index of a catalog root up to date, or makes it. Works on the calling thread and on
/// others of the WorkerPool; meanwhile the index can be searched, by other programs too.
class VELKGEOMCORE_EXPORT CatalogIndexUpdate
{
public:
    enum Check {
        /// Looks for changed files in directories whose own time has changed: notices files that
        /// came, went or were replaced, not those that were written into.
        Directories,
        /// Looks at every file's time and size.
        Files,
    };
    /// Is told how many of how many projects were read, and answers whether to go on. While the
    /// directories are walked the second number is 0.
    using Tell = std::function<bool(int done, int total)>;

    /// \a indexFile: where the index is kept; its directory is made if it is missing.
    CatalogIndexUpdate(const QString &indexFile, const QString &catalogRoot);
    ~CatalogIndexUpdate();

    [[nodiscard]] CatalogIndexOutcome run(Check check, const Tell &tell = {});
    /// The next run makes the index anew, whatever is in it: a search found it damaged.
    void setMakesAnew();

    /// The root as the index knows it: resolved, "/" as separator.
    [[nodiscard]] static QString resolvedRoot(const QString &catalogRoot);
    /// Whether some program brings the index up to date at the moment.
    [[nodiscard]] static bool isRunning(const QString &indexFile);

private:
    struct Private;
    std::unique_ptr<Private> d;
};
