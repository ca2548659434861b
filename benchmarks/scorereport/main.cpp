// How well the program finds the new lines of old lines, on releases of real tables with a file
// that tells where each line went: scorereport FOLDER, with FOLDER/release-2021, release-2022,
// release-2026, truth-2021-to-2026.csv and truth-2022-to-2026.csv, and the same with value ranges
// in FOLDER-ranges (2022 only). Exit status 2 if anything cannot be read or a line is assigned
// wrongly.

#include "SimilarityTrial.h"

#include <tests/road/RoadScore.h>
#include <tests/road/SampleRoad.h>
#include <tests/road/TruthFile.h>

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

struct Run
{
    QString name;
    QString folder;
    QString year;
    SampleRoad::Columns columns = SampleRoad::Columns::All;

    [[nodiscard]] QString oldTables() const { return folder + "/release-" + year; }
    [[nodiscard]] QString newTables() const { return folder + "/release-2026"; }
    [[nodiscard]] QString truth() const { return folder + "/truth-" + year + "-to-2026.csv"; }
};

QList<Run> runsOf(const QString &folder)
{
    QList<Run> runs;
    for (const auto columns : {SampleRoad::Columns::All, SampleRoad::Columns::WithoutFirst}) {
        const QString suffix =
            columns == SampleRoad::Columns::All ? QString() : " without first column";
        runs << Run{"2021" + suffix, folder, "2021", columns}
             << Run{"2022" + suffix, folder, "2022", columns}
             << Run{"2022 with ranges" + suffix, folder + "-ranges", "2022", columns};
    }
    return runs;
}

/// False if the road or the truth cannot be had; the reason is printed.
bool printScore(const Run &run, QTextStream &out, QStringList &wrong)
{
    const QTemporaryDir work(SampleRoad::workTemplate());
    const SampleRoad road =
        SampleRoad::run(run.oldTables(), run.newTables(), run.columns, work.path());
    TruthFile truth;
    if (!road.error.isEmpty() || !truth.read(run.truth())) {
        out << run.name << ": "
            << (road.error.isEmpty() ? "cannot read " + run.truth() : road.error) << '\n';
        return false;
    }
    const RoadScore score = scoreRoad(road.release, truth);
    out << "| " << run.name << " | " << score.known << " | "
        << QString::number(score.found(), 'f', 2) << " % | " << score.mappedRight << " | "
        << score.mappedWrong << " | " << score.proposedRight << " | " << score.proposedWrong
        << " | " << score.notFound << " | " << score.goneProposed << " of " << score.gone << " | "
        << score.unknown << " |\n";
    for (const QString &line : score.wrong)
        wrong << run.name + ": " + line;
    return true;
}

bool printScores(const QString &folder, QTextStream &out)
{
    out << "| run | lines | found | Mapped right | Mapped wrong | proposed right "
           "| proposed wrong | not found | gone, proposed | unknown fate |\n"
           "| --- | ---: | ---: | ---: | ---: | ---: | ---: | ---: | ---: | ---: |\n";
    QStringList wrong;
    bool good = true;
    for (const Run &run : runsOf(folder)) {
        if (run.folder == folder || QDir(run.folder).exists())
            good = printScore(run, out, wrong) && good;
        out.flush();
    }
    for (const QString &line : wrong)
        out << "\nMapped wrongly: " << line;
    return good && wrong.isEmpty();
}

void printTrial(const QString &folder, int skippedColumns, QTextStream &out)
{
    TruthFile truth;
    if (!truth.read(folder + "/truth-2022-to-2026.csv"))
        return;
    const SimilarityTrial trial(folder + "/release-2022", folder + "/release-2026", truth,
                                skippedColumns);
    out << "\nProposals by similarity alone, 2022"
        << (skippedColumns ? " without first column" : "") << ", " << trial.lineCount()
        << " lines: right/wrong as they are, right/wrong with one "
        << "value changed, wrong with the right line taken out\n\n| threshold |";
    const double margins[] = {0.0, 0.05, 0.10, 0.15, 0.20};
    for (const double margin : margins)
        out << " margin " << QString::number(margin, 'f', 2) << " |";
    out << "\n| --- |" << QString(" ---: |").repeated(std::ssize(margins)) << '\n';
    using Case = SimilarityTrial::Case;
    for (const double threshold : {0.75, 0.80, 0.85, 0.90, 0.95}) {
        out << "| " << QString::number(threshold, 'f', 2) << " |";
        for (const double margin : margins) {
            const auto asIs = trial.proposals(Case::AsIs, threshold, margin);
            const auto changed = trial.proposals(Case::Changed, threshold, margin);
            const auto takenOut = trial.proposals(Case::TakenOut, threshold, margin);
            out << ' ' << asIs.right << '/' << asIs.wrong << ", " << changed.right << '/'
                << changed.wrong << ", " << takenOut.wrong << " |";
        }
        out << '\n';
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QTextStream out(stdout);
    if (argc != 2) {
        out << "Usage: scorereport FOLDER\n";
        return 1;
    }
    const QString folder = QDir::cleanPath(QString::fromLocal8Bit(argv[1]));
    const bool good = printScores(folder, out);
    printTrial(folder, 0, out);
    printTrial(folder, 1, out);
    return good ? 0 : 2;
}
