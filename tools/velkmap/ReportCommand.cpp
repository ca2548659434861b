#include "ReportCommand.h"

#include "CatalogRoots.h"
#include "CommandLine.h"
#include "InterruptGuard.h"
#include "OpenReasons.h"
#include "ReleaseFile.h"
#include "ReviewReport.h"

#include <core/files/DurableFile.h>
#include <release/report/ReportHistory.h>
#include <release/report/ReportHtml.h>

#include <QFileInfo>
#include <QTextStream>

namespace velkmap {

namespace {

using VelkRelease::OpenReason;
using VelkRelease::ReportText;

constexpr const char *ReportDescription =
    "Writes how far a release mapping is as one page of HTML: how lines stand, in all, by folder\n"
    "and by project, in numbers that add up; why lines are open; how they differ from their\n"
    "proposals, and what those without a successor have in common; each open line and each line\n"
    "that is confirmed to have no successor. The tables are read for it.";

const char *englishText(ReportText text)
{
    switch (text) {
    case ReportText::Title:
        return "Mapping report: %1";
    case ReportText::Releases:
        return "Release %1 to %2";
    case ReportText::Made:
        return "Made on %1";
    case ReportText::Summary:
        return "Settled lines: %1 of %2; open: %3.";
    case ReportText::TotalHead:
        return "How the lines stand";
    case ReportText::FolderHead:
        return "By folder, with all that lies below";
    case ReportText::ProjectHead:
        return "By project";
    case ReportText::ReasonHead:
        return "Why lines are open";
    case ReportText::PatternHead:
        return "How open lines differ from their proposals";
    case ReportText::GoneGroupHead:
        return "Open lines without a successor";
    case ReportText::SampleHead:
        return "Samples";
    case ReportText::CarriedHead:
        return "Taken over from former mappings";
    case ReportText::DecisionHead:
        return "Who decided what";
    case ReportText::OpenHead:
        return "Open lines";
    case ReportText::GoneHead:
        return "Lines confirmed to have no successor";
    case ReportText::ErrorHead:
        return "What could not be read";
    case ReportText::Lines:
        return "Lines";
    case ReportText::Confirmed:
        return "Confirmed";
    case ReportText::Gone:
        return "Confirmed to have no successor";
    case ReportText::Certain:
        return "Assigned with certainty";
    case ReportText::ToCheck:
        return "To check";
    case ReportText::WithoutTarget:
        return "Without target";
    case ReportText::InConflict:
        return "In conflict";
    case ReportText::Folder:
        return "Folder";
    case ReportText::Project:
        return "Project";
    case ReportText::Line:
        return "Line";
    case ReportText::Designation:
        return "Designation";
    case ReportText::Reason:
        return "Reason";
    case ReportText::Pattern:
        return "Differences";
    case ReportText::GoneGroup:
        return "What they have in common";
    case ReportText::Projects:
        return "Projects";
    case ReportText::Probability:
        return "Probability";
    case ReportText::Exceptions:
        return "Exceptions";
    case ReportText::Examples:
        return "Examples";
    case ReportText::Time:
        return "Time";
    case ReportText::Who:
        return "Who";
    case ReportText::What:
        return "What";
    case ReportText::Judged:
        return "Judged";
    case ReportText::Right:
        return "Right";
    case ReportText::Bound:
        return "Wrong at most (95 % certain)";
    case ReportText::Drawn:
        return "Lines that were judged";
    case ReportText::Former:
        return "Former mapping";
    case ReportText::Standing:
        return "Still as taken over";
    case ReportText::Refused:
        return "refused";
    case ReportText::TableError:
        return "table could not be read";
    case ReportText::NotComparable:
        return "cannot be compared";
    case ReportText::NoDifference:
        return "no difference";
    case ReportText::InDoubt:
        return "in doubt: %1";
    case ReportText::InAll:
        return "in all";
    case ReportText::Nothing:
        return "none";
    case ReportText::More:
        return "and %1 more";
    case ReportText::Count:
        break;
    }
    return "";
}

const char *englishReason(OpenReason reason)
{
    switch (reason) {
    case OpenReason::Clash:
        return "two people decided differently";
    case OpenReason::Colleague:
        return "somebody else decides";
    case OpenReason::Unreadable:
        return "a table cannot be read";
    case OpenReason::FormulaFails:
        return "a condition or formula fails";
    case OpenReason::NoTarget:
        return "no target is for it";
    case OpenReason::ColumnMissing:
        return "a column is missing";
    case OpenReason::EqualLines:
        return "several lines are equal";
    case OpenReason::TooUnlike:
        return "too unlike";
    case OpenReason::Unconfirmed:
        return "equal, only not confirmed";
    }
    return "";
}

VelkRelease::ReportForm englishForm()
{
    VelkRelease::ReportForm form;
    form.text = [](ReportText text) {
        return QString::fromLatin1(englishText(text));
    };
    form.reason = [](OpenReason reason) {
        return QString::fromLatin1(englishReason(reason));
    };
    form.changes = changeWords();
    form.goneGroups = goneWords();
    form.time = [](const QDateTime &time) {
        return time.toUTC().toString(QStringLiteral("yyyy-MM-dd HH:mm 'UTC'"));
    };
    return form;
}

} // namespace

ExitStatus runReport(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    CommandLine line("report", ReportDescription);
    ReleaseFile::addOptions(line);
    line.addRequired("out", "FILE", "The page that is written; a former one is replaced.");
    CatalogRoots::addOptions(line);
    OpenReasons::addOptions(line);
    if (const auto over = line.parse(arguments, out, err))
        return *over;
    ReleaseFile file;
    if (const auto failed = file.read(line, err))
        return *failed;
    CatalogRoots roots;
    if (const auto failed = roots.take(line, "report", err))
        return *failed;
    const InterruptGuard guard;
    auto report = VelkRelease::makeReleaseReport(
        file.release(), {.sourceRoot = roots.source(),
                         .isOthers = OpenReasons::others(line, file.path()),
                         .cancelled = &InterruptGuard::isRequested()});
    if (!report)
        return ExitStatus::Interrupted;
    report->name = QFileInfo(file.path()).fileName();
    report->made = QDateTime::currentDateTimeUtc();
    QString unread;
    if (!addHistory(*report, file.release(), file.path(), &unread))
        report->errors << unread;
    for (const QString &error : report->errors)
        err << "velkmap report: " << error << '\n';
    QString cause;
    if (!DurableFile::write(line.value("out"), reportHtml(*report, englishForm()).toUtf8(),
                            &cause)) {
        err << "velkmap report: " << line.value("out") << " could not be written: " << cause
            << '\n';
        return ExitStatus::ResultUnwritable;
    }
    const VelkRelease::ReportNumbers &numbers = report->total.numbers;
    out << "settled lines: " << numbers.lines() - numbers.open() << " of " << numbers.lines()
        << "; open: " << numbers.open() << "; written to " << line.value("out") << '\n';
    return report->errors.isEmpty() ? ExitStatus::Done : ExitStatus::InputUnreadable;
}

} // namespace velkmap
