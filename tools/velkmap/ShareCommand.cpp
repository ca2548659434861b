#include "ShareCommand.h"

#include "CommandLine.h"
#include "MergeReport.h"
#include "ReleaseFile.h"

#include <release/merge/SameLines.h>
#include <release/share/SharedMapping.h>

#include <QTextStream>

namespace velkmap {

namespace {

using VelkRelease::Participant;
using VelkRelease::ShareAnswer;
using VelkRelease::SharedMapping;
using VelkRelease::ShareRepair;

constexpr const char *shareDescription =
    "Shares a mapping file by a copy in a folder that all can reach, or in a working copy\n"
    "of a Subversion repository. The first one publishes his file there, the others get\n"
    "theirs from there. Without --with it tells who works on the mapping, and whether there\n"
    "is something to update or to publish.";
constexpr const char *updateDescription =
    "Merges what others published into a mapping file that is shared. Lines that both\n"
    "decided differently are written as theirs and marked as being in conflict, to be\n"
    "settled in the editor (exit status 4).";
constexpr const char *publishDescription =
    "Makes a mapping file the newest shared copy. Refuses over a change that was not\n"
    "updated, and with lines in conflict (exit status 4).";

QString textOf(const ShareAnswer &answer)
{
    switch (answer.kind) {
    case ShareAnswer::Done:
        break;
    case ShareAnswer::NotLinked:
        return answer.cause + " is not shared; begin with velkmap share --with FILE";
    case ShareAnswer::BothExist:
        return answer.cause + " is there already and is another one; take another name for the "
                              "mapping file, and it is made of the shared one";
    case ShareAnswer::NewerThere:
        return "somebody published since the last update; run velkmap update first";
    case ShareAnswer::InConflict:
        return "lines are in conflict in " + answer.cause + "; settle them first";
    case ShareAnswer::InOthersFolders:
        return "there are changes in folders of others, " + answer.cause +
               "; --into-others publishes them all the same";
    case ShareAnswer::TakenByOthers:
        return "the folder is taken: " + answer.cause;
    case ShareAnswer::Busy:
        return "somebody works there at this moment (" + answer.cause + "); try again";
    case ShareAnswer::NotReachable:
        return "the shared copy cannot be reached: " + answer.cause;
    case ShareAnswer::Unreadable:
        return answer.cause;
    case ShareAnswer::NotWritable:
        return "the result cannot be written: " + answer.cause;
    }
    return {};
}

ExitStatus statusOf(ShareAnswer::Kind kind)
{
    switch (kind) {
    case ShareAnswer::Done:
        return ExitStatus::Done;
    case ShareAnswer::NotLinked:
        return ExitStatus::WrongUsage;
    case ShareAnswer::NotReachable:
    case ShareAnswer::Unreadable:
        return ExitStatus::InputUnreadable;
    case ShareAnswer::NewerThere:
    case ShareAnswer::InConflict:
    case ShareAnswer::InOthersFolders:
    case ShareAnswer::TakenByOthers:
    case ShareAnswer::BothExist:
        return ExitStatus::Clashes;
    case ShareAnswer::Busy:
    case ShareAnswer::NotWritable:
        break;
    }
    return ExitStatus::ResultUnwritable;
}

QString textOf(const ShareRepair &repair)
{
    switch (repair.kind) {
    case ShareRepair::Published:
        return "the last publishing was broken off, but had come through";
    case ShareRepair::BrokenOff:
        return "the last publishing was broken off; publish again";
    case ShareRepair::TakenBack:
        return "the shared file had been changed in the working copy and not committed; that is "
               "kept in " +
               repair.kept;
    case ShareRepair::CleanedUp:
        return "the working copy was left in the middle of something and was cleaned up";
    case ShareRepair::StoreAnew:
        return "the store of the working copy was damaged and fetched anew; the former one is " +
               repair.kept;
    }
    return {};
}

ExitStatus finish(const char *command, const SharedMapping &shared, const ShareAnswer &answer,
                  QTextStream &err)
{
    for (const ShareRepair &repair : shared.repairs())
        err << "velkmap " << command << ": " << textOf(repair) << '\n';
    if (!answer.isDone())
        err << "velkmap " << command << ": " << textOf(answer) << '\n';
    return statusOf(answer.kind);
}

void tell(const Participant &participant, QTextStream &out)
{
    out << participant.user << '@' << participant.host
        << (participant.isOpen ? ", has it open" : "") << ", last heard of "
        << participant.seen.toString(Qt::ISODate) << ", at revision "
        << participant.revision.left(12);
    if (!participant.folders.isEmpty())
        out << ", folders " << participant.folders.join(", ");
    out << '\n';
}

ExitStatus tellStatus(SharedMapping &shared, QTextStream &out, QTextStream &err)
{
    SharedMapping::Status status;
    ShareAnswer answer = shared.status(status);
    if (!answer.isDone())
        return finish("share", shared, answer, err);
    out << shared.sharedFile() << ": base " << shared.baseRevision().left(12) << ", newest "
        << status.newest.left(12) << '\n'
        << (status.hasNews ? "something to update" : "nothing to update") << ", "
        << (status.hasOwn ? "something to publish" : "nothing to publish") << '\n';
    for (const Participant &participant : shared.participants())
        tell(participant, out);
    return finish("share", shared, answer, err);
}

} // namespace

ExitStatus runShare(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    CommandLine line("share", shareDescription);
    line.addRequired("mapping", "FILE", "The mapping file of this user.");
    line.addOptional("with", "SHARED", "The shared copy, from now on.");
    line.addOptional(
        "folders", "LIST",
        "Folders of the catalog that this user takes over, with commas between them;\n"
        "nobody else publishes in them unasked. \"*\" and \"?\" stand for any characters\n"
        "and for one. An empty list gives them back.");
    line.addFlag("stop", "Ends the sharing; the shared copy and the mapping file stay.");
    if (const auto over = line.parse(arguments, out, err))
        return *over;
    EditLock lock;
    const bool changes = line.isSet("with") || line.isSet("stop");
    if (changes) {
        if (const auto failed = takeLock(lock, line.value("mapping"), err))
            return *failed;
    }
    SharedMapping shared(line.value("mapping"));
    if (line.isSet("stop")) {
        shared.unlink();
        return ExitStatus::Done;
    }
    if (line.isSet("with")) {
        if (ShareAnswer answer = shared.link(line.value("with")); !answer.isDone())
            return finish("share", shared, answer, err);
    }
    if (line.isSet("folders")) {
        ShareAnswer answer =
            shared.takeFolders(line.value("folders").split(u',', Qt::SkipEmptyParts));
        if (!answer.isDone())
            return finish("share", shared, answer, err);
    }
    return tellStatus(shared, out, err);
}

ExitStatus runUpdate(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    CommandLine line("update", updateDescription);
    line.addRequired("mapping", "FILE", "The mapping file of this user.");
    addMergeOptions(line);
    if (const auto over = line.parse(arguments, out, err))
        return *over;
    line.takeAllowed();
    EditLock lock;
    if (const auto failed = takeLock(lock, line.value("mapping"), err))
        return *failed;
    SharedMapping shared(line.value("mapping"));
    VelkRelease::SameLines same(line.value("target"));
    VelkRelease::MergedFile merged;
    ShareAnswer answer = shared.update(merged, mergeOptions(line, same));
    if (finish("update", shared, answer, err) != ExitStatus::Done)
        return statusOf(answer.kind);
    tellMerge(merged, out);
    if (!writeMergeReport(line, merged, "update", err))
        return ExitStatus::ResultUnwritable;
    return merged.clashes() ? ExitStatus::Clashes : ExitStatus::Done;
}

ExitStatus runPublish(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    CommandLine line("publish", publishDescription);
    line.addRequired("mapping", "FILE", "The mapping file of this user.");
    line.addOptional("message", "TEXT", "What was done, for the repository.");
    line.addFlag("into-others", "Also changes in folders that others took over.");
    if (const auto over = line.parse(arguments, out, err))
        return *over;
    EditLock lock;
    if (const auto failed = takeLock(lock, line.value("mapping"), err))
        return *failed;
    SharedMapping shared(line.value("mapping"));
    ShareAnswer answer = shared.publish({line.value("message"), line.isSet("into-others")});
    if (answer.isDone())
        out << shared.sharedFile() << ": revision " << shared.baseRevision().left(12) << '\n';
    return finish("publish", shared, answer, err);
}

} // namespace velkmap
