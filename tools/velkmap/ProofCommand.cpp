#include "ProofCommand.h"

#include "CatalogRoots.h"
#include "CommandLine.h"
#include "counted.h"
#include "InterruptGuard.h"
#include "LinkDbOption.h"
#include "ReleaseFile.h"
#include "ReviewReport.h"
#include "TerminalProgress.h"

#include <core/json/JsonWriter.h>
#include <release/link/LinkProof.h>

#include <QTextStream>

namespace velkmap {

namespace {

using VelkRelease::LinkProof;
using VelkRelease::ValueChange;

constexpr const char *proofDescription =
    "Tells which numbers of the link database a release mapping leaves in a bad place:\n"
    "whose line is gone, that two lines claim, whose part differs from before by more than\n"
    "what was agreed to, and which open lines numbers hang on, those with most numbers\n"
    "first. Writes nothing.";

QString placeText(const LinkProof::Place &place)
{
    return place.path + u':' + QString::number(place.line);
}

QStringList placeTexts(const QList<LinkProof::Place> &places)
{
    QStringList texts;
    texts.reserve(places.size());
    for (const LinkProof::Place &place : places)
        texts.append(placeText(place));
    return texts;
}

QStringList changeTexts(const QList<ValueChange> &changes)
{
    QStringList texts;
    texts.reserve(changes.size());
    for (const ValueChange &change : changes)
        texts.append(change.text(changeWords()));
    return texts;
}

void writeText(const LinkProof &proof, QTextStream &out)
{
    for (const LinkProof::Gone &each : proof.gone())
        out << "gone: " << each.number << " of " << placeText(each.place)
            << (each.confirmed ? ", which has no successor\n"
                               : ", a line that the project does not have\n");
    for (const LinkProof::Claimed &each : proof.claimed())
        out << "claimed twice: " << each.number << " by " << placeTexts(each.places).join(", ")
            << '\n';
    for (const LinkProof::Differing &each : proof.differing())
        out << "differs: " << each.number << " of " << placeText(each.before) << ", now "
            << placeText(each.after) << ": " << changeTexts(each.changes).join("; ") << '\n';
    for (const LinkProof::Open &each : proof.open())
        out << "open: " << placeText(each.place) << " with " << each.numbers.join(", ") << '\n';
    out << counted(proof.numbers(), "number") << ": " << proof.gone().size() << " gone, "
        << proof.claimed().size() << " claimed twice, "
        << (proof.hasCompared() ? QString::number(proof.differing().size()) + " differ, "
                                : QString("parts not compared, "))
        << counted(proof.open().size(), "open line") << " with numbers; "
        << counted(proof.elsewhere(), "number") << (proof.elsewhere() == 1 ? " hangs" : " hang")
        << " on projects that are not in the mapping\n";
}

void writeTexts(JsonWriter &json, const QStringList &texts)
{
    json.beginArray(true);
    for (const QString &text : texts)
        json.value(QStringView(text));
    json.endArray();
}

void writePlace(JsonWriter &json, std::string_view name, const LinkProof::Place &place)
{
    json.key(name);
    json.beginObject();
    json.key("path");
    json.value(QStringView(place.path));
    json.key("line");
    json.value(place.line);
    json.endObject();
}

void beginNumber(JsonWriter &json, const QString &number)
{
    json.beginObject();
    json.key("number");
    json.value(QStringView(number));
}

void writeJson(const LinkProof &proof, QTextStream &out)
{
    JsonWriter json(JsonWriter::Indented);
    json.beginObject();
    json.key("numbers");
    json.value(proof.numbers());
    json.key("elsewhere");
    json.value(proof.elsewhere());
    json.key("compared");
    json.value(proof.hasCompared());
    json.key("gone");
    json.beginArray();
    for (const LinkProof::Gone &each : proof.gone()) {
        beginNumber(json, each.number);
        writePlace(json, "place", each.place);
        json.key("confirmed");
        json.value(each.confirmed);
        json.endObject();
    }
    json.endArray();
    json.key("claimed");
    json.beginArray();
    for (const LinkProof::Claimed &each : proof.claimed()) {
        beginNumber(json, each.number);
        json.key("places");
        writeTexts(json, placeTexts(each.places));
        json.endObject();
    }
    json.endArray();
    json.key("differing");
    json.beginArray();
    for (const LinkProof::Differing &each : proof.differing()) {
        beginNumber(json, each.number);
        writePlace(json, "before", each.before);
        writePlace(json, "after", each.after);
        json.key("changes");
        writeTexts(json, changeTexts(each.changes));
        json.endObject();
    }
    json.endArray();
    json.key("open");
    json.beginArray();
    for (const LinkProof::Open &each : proof.open()) {
        json.beginObject();
        writePlace(json, "place", each.place);
        json.key("numbers");
        writeTexts(json, each.numbers);
        json.endObject();
    }
    json.endArray();
    json.endObject();
    out << QString::fromUtf8(json.take());
}

/// The catalogs are needed to compare parts only.
std::optional<ExitStatus> takeRoots(const CommandLine &line, LinkProof &proof, QTextStream &err)
{
    if (!line.isSet("source") && qEnvironmentVariableIsEmpty("TORMEVA_DATA")) {
        err << "velkmap proof: parts are not compared; that needs --source and --target\n";
        return std::nullopt;
    }
    CatalogRoots roots;
    const auto failed = roots.take(line, "proof", err);
    proof.setSourceRoot(roots.source());
    return failed;
}

} // namespace

ExitStatus runProof(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    CommandLine line("proof", proofDescription);
    ReleaseFile::addOptions(line);
    LinkDbOption::add(line);
    CatalogRoots::addOptions(line);
    line.addOptional("column", "NAME", "Column of the documents that holds the numbers.", "PDMID1");
    line.addOptional("difference", "PERCENT",
                     "By how much numbers in the tables may differ besides what was agreed to.",
                     "0");
    line.addFlag("json", "Prints the findings as JSON.");
    if (const auto over = line.parse(arguments, out, err))
        return *over;
    LinkDbSettings settings;
    if (const auto failed = LinkDbOption::read(line, settings, err))
        return *failed;
    bool isNumber = false;
    const double percent = line.value("difference").toDouble(&isNumber);
    if (!isNumber || !(percent >= 0))
        return line.wrongUsage("--difference is no number: " + line.value("difference"), err);
    LinkProof proof(line.value("column"));
    proof.setTolerance(percent);
    if (const auto failed = takeRoots(line, proof, err))
        return *failed;
    ReleaseFile file;
    if (const auto failed = file.read(line, err))
        return *failed;

    const InterruptGuard guard;
    settings.readOnly = true;
    PLinkDbC linkDb;
    if (!linkDb.open(settings)) {
        err << "velkmap proof: " << linkDb.lastError().text << '\n';
        return ExitStatus::InputUnreadable;
    }
    TerminalProgress terminal;
    proof.setObserver([&](int done, int total) { terminal.showProjects(done, total); });
    if (!proof.run(file.release(), linkDb, InterruptGuard::isRequested())) {
        if (proof.problem().isEmpty())
            return ExitStatus::Interrupted;
        err << "velkmap proof: " << proof.problem() << '\n';
        return ExitStatus::InputUnreadable;
    }
    for (const QString &error : proof.errors())
        err << "velkmap proof: " << error << '\n';
    if (line.isSet("json"))
        writeJson(proof, out);
    else
        writeText(proof, out);
    return proof.errors().isEmpty() ? ExitStatus::Done : ExitStatus::InputUnreadable;
}

} // namespace velkmap
