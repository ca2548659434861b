#pragma once

#include <release/pattern/ValueChange.h>
#include <release/VelkReleaseGlobal.h>

#include <geomcore/linkdb/PLinkDbC.h>
#include <geomcore/records/ReleaseMappingC.h>

#include <QList>
#include <QStringList>

#include <atomic>
#include <functional>

namespace VelkRelease {

/// Which numbers of the link database a release mapping leaves in a bad place. A number is what a
/// column of the table of documents holds; it hangs on the line of a source project that the record
/// names, whatever the record's version of the project. Nothing is written.
class VELKRELEASE_EXPORT LinkProof
{
public:
    struct Place
    {
        QString path;
        int line = -1;

        friend bool operator==(const Place &, const Place &) = default;
        friend bool operator<(const Place &a, const Place &b)
        {
            return a.path != b.path ? a.path < b.path : a.line < b.line;
        }
    };
    struct Gone
    {
        QString number;
        Place place;
        bool confirmed = false; ///< to have no successor; else the project has no such line
    };
    struct Claimed
    {
        QString number;
        QList<Place> places;  ///< lines of the new release where there are, at least two
        QList<Place> origins; ///< lines that the records name
    };
    struct Differing
    {
        QString number;
        Place before;
        Place after;
        QList<ValueChange> changes; ///< that nobody agreed to
    };
    struct Open
    {
        Place place;
        QStringList numbers;
    };

    /// \a column: of the table of documents, with the numbers.
    explicit LinkProof(const QString &column = QStringLiteral("PDMID1"));

    /// Where the old release's catalog is; without it parts are not compared. The new one's is that
    /// of the process's index tree.
    void setSourceRoot(const QString &root) { m_sourceRoot = root; }
    /// Numbers of a table may differ by this many percent besides what the release agrees to.
    void setTolerance(double percent) { m_tolerance = percent; }
    /// Called on the calling thread with the projects that are done, of how many.
    void setObserver(std::function<void(int, int)> observer) { m_observer = std::move(observer); }

    /// False with problem() if the records cannot be read, or with an empty one if \a interrupted
    /// became true. \a linkDb is open.
    bool run(const ReleaseMappingC &release, PLinkDbC &linkDb,
             const std::atomic<bool> &interrupted);

    /// In the order of the numbers.
    [[nodiscard]] const QList<Gone> &gone() const { return m_gone; }
    [[nodiscard]] const QList<Claimed> &claimed() const { return m_claimed; }
    [[nodiscard]] const QList<Differing> &differing() const { return m_differing; }
    /// Those with most numbers first.
    [[nodiscard]] const QList<Open> &open() const { return m_open; }

    /// Different numbers that hang on projects of the mapping, and on others.
    [[nodiscard]] int numbers() const { return m_numbers; }
    [[nodiscard]] int elsewhere() const { return m_elsewhere; }
    /// Whether parts were compared.
    [[nodiscard]] bool hasCompared() const { return !m_sourceRoot.isEmpty(); }
    /// Tables that could not be read; their parts are not compared.
    [[nodiscard]] const QStringList &errors() const { return m_errors; }
    [[nodiscard]] const QString &problem() const { return m_problem; }

private:
    class Run;

    QString m_column;
    QString m_sourceRoot;
    double m_tolerance = 0;
    std::function<void(int, int)> m_observer;
    QList<Gone> m_gone;
    QList<Claimed> m_claimed;
    QList<Differing> m_differing;
    QList<Open> m_open;
    int m_numbers = 0;
    int m_elsewhere = 0;
    QStringList m_errors;
    QString m_problem;
};

} // namespace VelkRelease
