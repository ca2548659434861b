#include "ReviewCommand.h"

#include "CatalogRoots.h"
#include "CommandLine.h"
#include "InterruptGuard.h"
#include "ReleaseFile.h"
#include "ReviewJson.h"
#include "ReviewReport.h"

#include <QTextStream>

namespace velkmap {

namespace {

using VelkRelease::DifferencePatterns;
using VelkRelease::ReleaseNeighbours;

constexpr const char *ReviewDescription =
    "Groups the open lines of a release mapping by how they differ from the lines that are\n"
    "proposed for them: lines, projects, mean probability, exceptions (lines with the same\n"
    "differences and others besides), three examples. Then those without a successor by what\n"
    "they have in common: a folder, a project, a value that no new line has. Changes nothing.\n"
    "Then what was agreed to about values, with the lines that support it and those that do\n"
    "not. Then where the assignments of neighbours do not fit each other (lines that are\n"
    "shifted, swapped, skipped, taken twice), with what would mend it.";

} // namespace

ExitStatus runReview(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    CommandLine line("review", ReviewDescription);
    ReleaseFile::addOptions(line);
    CatalogRoots::addOptions(line);
    line.addOptional("project", "PATH", "Source path of a project to look at; may be repeated.");
    line.addFlag("json", "Prints the patterns as JSON.");
    if (const auto over = line.parse(arguments, out, err))
        return *over;
    ReleaseFile file;
    if (const auto failed = file.read(line, err))
        return *failed;
    CatalogRoots roots;
    if (const auto failed = roots.take(line, "review", err))
        return *failed;
    const ReleaseMappingC &release = file.release();
    const QStringList projects = line.values("project");
    for (const QString &project : projects) {
        bool known = false;
        for (int i = 0; i < release.countMappings() && !known; ++i)
            known = release.mappingAt(i).getSourcePath() == project;
        if (!known)
            return line.wrongUsage("the mapping has no project " + project, err);
    }
    const InterruptGuard guard;
    const auto wanted = [&](int i) {
        return projects.isEmpty() || projects.contains(release.mappingAt(i).getSourcePath());
    };
    const auto patterns =
        DifferencePatterns::compute(roots.source(), release, InterruptGuard::isRequested(), wanted);
    if (!patterns)
        return ExitStatus::Interrupted;
    const auto neighbours =
        ReleaseNeighbours::compute(roots.source(), release, InterruptGuard::isRequested(), wanted);
    if (!neighbours)
        return ExitStatus::Interrupted;
    ReviewReport report{release, *patterns, *neighbours, {}};
    for (const AgreedReplacement &replacement : release.getReplacements()) {
        const auto evidence = VelkRelease::replacementEvidence(roots.source(), release, replacement,
                                                               InterruptGuard::isRequested());
        if (!evidence)
            return ExitStatus::Interrupted;
        report.evidence.append(*evidence);
    }
    QStringList errors = patterns->errors() + neighbours->errors;
    errors.removeDuplicates();
    for (const QString &error : errors)
        err << "velkmap review: " << error << '\n';
    if (line.isSet("json"))
        writeReviewJson(report, out);
    else
        writeReviewTable(report, out);
    return errors.isEmpty() ? ExitStatus::Done : ExitStatus::InputUnreadable;
}

} // namespace velkmap
