#pragma once

#include <geomcore/records/ReleaseMappingC.h>

#include <QCoreApplication>
#include <QStringList>

/// Does what "velkmap create" and "velkmap assign" do, inside the program: with a progress, which
/// can be cancelled, and messages in the log window. GUI thread.
class MappingMaker
{
    Q_DECLARE_TR_FUNCTIONS(MappingMaker)

public:
    struct Wish
    {
        QString sourceRoot;
        QString targetRoot;
        QString sourceCatalog;
        QString targetCatalog;
        QString mappingFile;
        bool assign = true;
    };

    /// Finds the targets and assigns the lines. Cancelling the first part, or a catalog that cannot
    /// be read, gives false and nothing; cancelling the second keeps the lines assigned so far.
    [[nodiscard]] bool make(const Wish &wish);
    /// Assigns lines of a release that is there; what is confirmed stays. \a force works out anew
    /// all else.
    void assign(const ReleaseMappingC &release, const QString &sourceRoot,
                const QString &targetRoot, bool force);

    [[nodiscard]] const ReleaseMappingC &release() const { return m_release; }
    /// One sentence for the status bar.
    [[nodiscard]] const QString &summary() const { return m_summary; }

private:
    [[nodiscard]] bool findTargets(const Wish &wish);
    void assignLines(const QString &sourceRoot, const QString &targetRoot, bool force);
    void report(const QStringList &messages);

    ReleaseMappingC m_release;
    QString m_summary;
    QStringList m_reported; ///< both parts read the same tables; each failure is told once
};
