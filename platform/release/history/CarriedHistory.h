#pragma once

#include <release/chain/carryDecisions.h>

#include <core/json/PJsonValue.h>

#include <QDateTime>
#include <QHash>

#include <optional>
#include <vector>

namespace VelkRelease {

/// A step that took decisions over from a former mapping, as the journal has it.
struct CarriedStep
{
    QString key;    ///< names the step, see HistorySessions::stepKey()
    QDateTime time; ///< UTC
    QString author;
    QString release;      ///< source date
    QString former;       ///< the former mapping's file
    QString formerTarget; ///< the release that it leads to
    std::vector<CarriedLine> lines;
};

/// What a journal notes of such a step, as a record of kind "carried" before those of the step.
[[nodiscard]] VELKRELEASE_EXPORT PJsonValue carriedNote(const QString &formerFile,
                                                        const QString &formerTarget,
                                                        const std::vector<CarriedLine> &lines);

/// The lines of such a note.
[[nodiscard]] std::vector<CarriedLine> carriedLines(const PJsonValue &note);

/// Writes a journal of its own beside a mapping file, as one that was put aside: a session with
/// one step that took \a lines over and was saved. For programs that leave the file's journal
/// alone, since a crash may have left something in it. \a release is the one that was saved.
/// False with \a error.
[[nodiscard]] VELKRELEASE_EXPORT bool
writeCarriedJournal(const QString &mappingFile, const ReleaseMappingC &release,
                    const QString &formerFile, const QString &formerTarget,
                    const std::vector<CarriedLine> &lines, QString *error);

/// Those of all journals of a mapping file, see DecisionHistory::files(), in the order of time, but
/// for what was taken back or discarded. Nothing with \a error if one of the files cannot be read.
[[nodiscard]] VELKRELEASE_EXPORT std::optional<std::vector<CarriedStep>>
readCarriedSteps(const QString &mappingFile, QString *error);

/// From where lines of a release have what they have, if that was carried over.
class VELKRELEASE_EXPORT CarriedLines
{
public:
    CarriedLines() = default;
    /// Those of one release; of several steps for a line the last one counts.
    CarriedLines(const std::vector<CarriedStep> &steps, const QString &sourceDate);

    [[nodiscard]] bool isEmpty() const { return m_steps.empty(); }
    /// Without their lines.
    [[nodiscard]] const std::vector<CarriedStep> &steps() const { return m_steps; }
    /// Null unless the line leads, in \a mapping as it is now, where it was carried over to.
    [[nodiscard]] const CarriedStep *stepOf(const PrjMappingC &mapping, int line) const;
    /// All lines of a project for which stepOf() is not null, ascending.
    [[nodiscard]] std::vector<int> linesOf(const PrjMappingC &mapping) const;

private:
    struct Place
    {
        std::size_t step = 0;
        QString target;
        int targetLine = -1;
    };
    using Project = QPair<QString, QString>; ///< path and version

    std::vector<CarriedStep> m_steps;
    QHash<Project, QHash<int, Place>> m_places;
};

} // namespace VelkRelease
