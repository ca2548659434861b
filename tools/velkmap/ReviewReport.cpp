#include "ReviewReport.h"

#include "counted.h"

#include <QTextStream>

#include <cstdlib>

namespace velkmap {

namespace {

using VelkRelease::DifferencePatterns;
using VelkRelease::GoneGroup;
using VelkRelease::NeighbourFinding;
using VelkRelease::ReleaseNeighbours;
using VelkRelease::ValueChange;

QString doubtText(const DifferencePatterns &patterns, int pattern, const QString &text)
{
    return patterns.isDoubtful(pattern) ? QStringLiteral("in doubt: ") + text : text;
}

QString stepsText(int steps)
{
    const int count = std::abs(steps);
    return counted(count, "line") + " too far " + (steps > 0 ? "down" : "up");
}

QString findingText(const NeighbourFinding &finding)
{
    const QString first = QString::number(finding.firstLine);
    const QString last = QString::number(finding.lastLine);
    switch (finding.kind) {
    case NeighbourFinding::Shifted:
        return "lines " + first + " to " + last + " are shifted, " + stepsText(finding.steps);
    case NeighbourFinding::Swapped:
        return "lines " + first + " and " + last + " are swapped";
    case NeighbourFinding::Misplaced:
        return "line " + first + " is misplaced, " + stepsText(finding.steps);
    case NeighbourFinding::TakenTwice:
        return "line " + first + " has the target line of another one, which it is unlike";
    case NeighbourFinding::Skipped:
        break;
    }
    return "line " + first + " is skipped, and a line that fits is free";
}

QString repairsText(const NeighbourFinding &finding)
{
    QStringList texts;
    for (const NeighbourFinding::Repair &repair : finding.repairs) {
        if (texts.size() == ReviewReport::Examples) {
            texts << QStringLiteral("...");
            break;
        }
        texts << QString::number(repair.line) + QStringLiteral(" \u2192 ") +
                     (repair.targetLine == -1 ? QStringLiteral("open")
                                              : QString::number(repair.targetLine));
    }
    return texts.join(", ");
}

void writeNeighbours(const ReviewReport &report, QTextStream &out)
{
    for (const ReleaseNeighbours::Place &place : report.neighbours.places)
        out << report.release.mappingAt(place.project).getSourcePath() << ": "
            << findingText(place.finding) << "; mended: " << repairsText(place.finding) << '\n';
    out << report.neighbours.checkedLines
        << " assigned lines were looked at beside their neighbours, "
        << report.neighbours.places.size() << " places do not fit\n";
}

void writePatterns(const ReviewReport &report, const std::vector<int> &ranked, const char *head,
                   QTextStream &out)
{
    const DifferencePatterns &patterns = report.patterns;
    if (!ranked.empty())
        out << "     lines  projects  probability  exceptions  " << head << '\n';
    for (const int pattern : ranked) {
        const DifferencePatterns::Numbers numbers = patterns.numbers(pattern);
        out << QString::number(numbers.lines).rightJustified(10)
            << QString::number(numbers.projects).rightJustified(10)
            << QString::number(numbers.probability, 'f', 2).rightJustified(13)
            << QString::number(numbers.exceptions).rightJustified(12) << "  "
            << report.patternText(pattern) << '\n';
        QStringList examples;
        for (const DifferencePatterns::Place &place :
             patterns.places(pattern, ReviewReport::Examples))
            examples << report.placeText(place);
        out << QString(47, u' ') << examples.join(", ") << '\n';
    }
}

} // namespace

QString ReviewReport::patternText(int pattern) const
{
    if (const auto &gone = patterns.gone(pattern))
        return doubtText(patterns, pattern, gone->text(goneWords()));
    if (!patterns.isComparable(pattern))
        return QStringLiteral("cannot be compared");
    QStringList texts;
    for (const ValueChange &change : patterns.changes(pattern))
        texts << change.text(changeWords());
    return doubtText(patterns, pattern,
                     texts.isEmpty() ? QStringLiteral("no difference") : texts.join("; "));
}

QString ReviewReport::placeText(const DifferencePatterns::Place &place) const
{
    return release.mappingAt(place.project).getSourcePath() + u':' + QString::number(place.line);
}

QString ReviewReport::replacementText(const AgreedReplacement &replacement)
{
    ValueChange change;
    change.variable = replacement.variable;
    change.kind = replacement.isNumeric() ? ValueChange::NumberMap : ValueChange::Replacement;
    change.before = replacement.before;
    change.after = replacement.after;
    change.factor = replacement.isNumeric() ? replacement.factor.toDouble() : 1;
    change.offset = replacement.offset.toDouble();
    return change.text(changeWords());
}

void writeReviewTable(const ReviewReport &report, QTextStream &out)
{
    const DifferencePatterns &patterns = report.patterns;
    const std::vector<int> ranked = patterns.ranked();
    const std::vector<int> gone = patterns.rankedGone();
    writePatterns(report, ranked, "differences", out);
    writePatterns(report, gone, "without a successor", out);
    for (qsizetype i = 0; i < report.evidence.size(); ++i) {
        const AgreedReplacement replacement = report.release.getReplacements().at(i);
        out << "agreed" << (replacement.folder.isEmpty() ? QString() : " in " + replacement.folder)
            << ": " << ReviewReport::replacementText(replacement) << ", "
            << counted(report.evidence[i].supports, "line")
            << (report.evidence[i].supports == 1 ? " supports it, " : " support it, ")
            << report.evidence[i].counterExamples
            << (report.evidence[i].counterExamples == 1 ? " does not\n" : " do not\n");
    }
    out << counted(patterns.openLines(), "open line") << " with a proposal "
        << (patterns.openLines() == 1 ? "differs in " : "differ in ")
        << counted(qint64(ranked.size()), "way") << '\n';
    if (!gone.empty())
        out << counted(patterns.goneLines(), "open line")
            << (patterns.goneLines() == 1 ? " has" : " have") << " no successor, in "
            << counted(qint64(gone.size()), "group") << '\n';
    writeNeighbours(report, out);
}

const ValueChange::Words &changeWords()
{
    static const ValueChange::Words words{"near number",    "other number",
                                          "other wording",  "value added",
                                          "value missing",  "other spelling",
                                          "project's name", "another one",
                                          "another value",  "one or more of these in each line"};
    return words;
}

const GoneGroup::Words &goneWords()
{
    static const GoneGroup::Words words{
        "whole folder without target: %1", "whole project without target: %1",
        "target project is gone: %1", "%1: %2 is gone", "no similar line: %1"};
    return words;
}

} // namespace velkmap
