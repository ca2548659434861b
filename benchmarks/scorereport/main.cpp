// How well the program finds the new lines of old lines, on releases of real tables with a file
// that tells where each line went, as they are and disturbed as catalogs are.
//
//     scorereport [--misses] [--decisions] [--neighbours] [--only NAME] FOLDER...
//
// A folder has old, new and truth.csv, or release-2021, release-2022, release-2026 and
// truth-YEAR-to-2026.csv. Every set is measured with and without its first columns, which are
// mostly keys. --decisions lists what the modeller decides, with the first lines of each pattern.
// --only takes the disturbances whose name contains NAME. --neighbours plants mistakes in the
// true assignments instead, and tells what the check of neighbours finds. Exit status 2 if
// anything cannot be read or a line is assigned wrongly.

#include "Disturbance.h"
#include "GoalTable.h"
#include "NeighbourScore.h"
#include "RuleScore.h"

#include <tests/road/SampleRoad.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

struct Options
{
    bool misses = false;
    bool decisions = false;
    bool neighbours = false;
    QString only;
    QStringList folders;
};

/// Most memory that the process has taken so far, in MB.
QString memory()
{
    QFile status("/proc/self/status");
    if (!status.open(QIODevice::ReadOnly))
        return "?";
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return QString::number(line.mid(6).trimmed().split(' ').first().toInt() / 1024);
    }
    return "?";
}

bool readSets(const QString &folder, std::vector<SampleSet> &sets)
{
    const QString name = QDir(folder).dirName();
    if (QFile::exists(folder + "/truth.csv")) {
        sets.push_back({name, {}, {}, {}});
        return sets.back().read(folder + "/old", folder + "/new", folder + "/truth.csv");
    }
    bool any = false;
    for (const char *year : {"2021", "2022"}) {
        const QString truth = folder + "/truth-" + year + "-to-2026.csv";
        if (!QFile::exists(truth))
            continue;
        sets.push_back({name + ' ' + year, {}, {}, {}});
        any = true;
        if (!sets.back().read(folder + "/release-" + year, folder + "/release-2026", truth))
            return false;
    }
    return any;
}

QString percent(int part, int all)
{
    return all > 0 ? QString::number(100.0 * part / all, 'f', 2) : QStringLiteral("-");
}

RuleScore measure(const SampleSet &set)
{
    const QTemporaryDir work(SampleRoad::workTemplate());
    const QDir folder(work.path());
    RuleScore score;
    if (!set.write(folder.filePath("oldcsv"), folder.filePath("newcsv"))) {
        score.error = "cannot write to " + work.path();
        return score;
    }
    const SampleRoad road = SampleRoad::run(folder.filePath("oldcsv"), folder.filePath("newcsv"),
                                            SampleRoad::Columns::All, work.path());
    if (road.error.isEmpty())
        return RuleScore::of(set, road.release, folder.filePath("old"), folder.filePath("new"));
    score.error = road.error;
    return score;
}

class Report
{
public:
    explicit Report(const Options &options)
        : m_options(options)
        , m_out(stdout)
    {
        m_out << "| set | lines | Mapped wrong | best % | reference % | proposed % | five % "
                 "| wrong proposals | gone | of them proposed % | reference % | decisions of 1000 "
                 "| by pattern | s | MB |\n|" +
                     QString(" --- |").repeated(15) + '\n';
    }

    void add(const SampleSet &original, bool withKeys)
    {
        for (const Disturbance &disturbance : Disturbance::all()) {
            if (!disturbance.name.contains(m_options.only))
                continue;
            SampleSet set = original;
            disturbance.run(set);
            QElapsedTimer timer;
            timer.start();
            const RuleScore score = measure(set);
            const QString name = set.name + ", " + disturbance.name;
            print(name, score, timer.elapsed());
            if (score.error.isEmpty())
                m_goals.add(name, disturbance.name != "as it is", withKeys,
                            disturbance.name.contains("removed"), score);
        }
    }
    /// Whether all was read, and nothing is assigned wrongly.
    bool end()
    {
        m_out << "\n| probability | candidates | said | true |\n| --- | --- | --- | --- |\n";
        for (size_t i = 0; i < m_calibration.classes.size(); ++i) {
            const Calibration::Class &at = m_calibration.classes[i];
            if (at.count > 0)
                m_out << "| 0." << i << " | " << at.count << " | "
                      << QString::number(at.said / at.count, 'f', 3) << " | "
                      << QString::number(double(at.right) / at.count, 'f', 3) << " |\n";
        }
        m_out << "\nCalibration error: " << QString::number(m_calibration.error(), 'f', 4)
              << "\nRight ones best: " << m_best << ", by the reference: " << m_reference << ", of "
              << m_known << '\n';
        m_goals.print(m_out);
        return m_good;
    }

private:
    void print(const QString &name, const RuleScore &score, qint64 milliseconds)
    {
        if (!score.error.isEmpty()) {
            m_out << name << ": " << score.error << '\n';
            m_good = false;
            return;
        }
        const auto perThousand = [&score](int count) {
            return QString::number(score.open > 0 ? 1000 * count / score.open : 0);
        };
        m_out << "| " << name << " | " << score.known << " | " << score.mappedWrong << " | "
              << percent(score.best, score.known) << " | "
              << percent(score.referenceBest, score.known) << " | "
              << percent(score.proposed, score.known) << " | " << percent(score.five, score.known)
              << " | " << score.proposedWrong << " | " << score.gone << " | "
              << percent(score.goneProposed, score.gone) << " | "
              << percent(score.referenceGone, score.gone) << " | " << perThousand(score.open)
              << " | " << perThousand(score.decisions) << " | "
              << QString::number(double(milliseconds) / 1000, 'f', 1) << " | " << memory()
              << " |\n";
        for (const QString &miss : score.misses) {
            if (m_options.misses)
                m_out << "    " << miss << '\n';
        }
        for (const QString &decided : score.decided) {
            if (m_options.decisions)
                m_out << "    " << decided << '\n';
        }
        m_out.flush();
        m_calibration.add(score.calibration);
        m_known += score.known;
        m_best += score.best;
        m_reference += score.referenceBest;
        m_good = m_good && score.mappedWrong == 0;
    }

    const Options m_options;
    QTextStream m_out;
    Calibration m_calibration;
    GoalTable m_goals;
    int m_known = 0;
    int m_best = 0;
    int m_reference = 0;
    bool m_good = true;
};

/// Shifts and swaps that are found, of all tables with all disturbances.
void reportNeighbours(const std::vector<SampleSet> &sets, const Options &options)
{
    QTextStream out(stdout);
    out << "| set | shifts | found | swaps | found | wrong lines | mended | lines untouched "
           "| false alarms | lines with mistakes | false alarms | lines spoilt |\n|"
        << QString(" --- |").repeated(12) << '\n';
    const auto print = [&](const QString &name, const NeighbourScore &score) {
        out << "| " << name << " | " << score.shifts.planted << " | "
            << percent(score.shifts.found, score.shifts.planted) << " | " << score.swaps.planted
            << " | " << percent(score.swaps.found, score.swaps.planted) << " | "
            << score.shifts.wrong + score.swaps.wrong << " | "
            << percent(score.shifts.mended + score.swaps.mended,
                       score.shifts.wrong + score.swaps.wrong)
            << " | " << score.untouched.lines << " | " << score.untouched.falseAlarms << " | "
            << score.shifts.lines + score.swaps.lines << " | "
            << score.shifts.falseAlarms + score.swaps.falseAlarms << " | "
            << score.shifts.spoilt + score.swaps.spoilt << " |\n";
        for (const QString &miss : score.misses) {
            if (options.misses)
                out << "    " << miss << '\n';
        }
        out.flush();
    };
    NeighbourScore all;
    NeighbourScore asTheyAre;
    for (const SampleSet &original : sets) {
        for (const Disturbance &disturbance : Disturbance::all()) {
            if (!disturbance.name.contains(options.only))
                continue;
            SampleSet set = original;
            disturbance.run(set);
            const NeighbourScore score = NeighbourScore::of(set);
            print(set.name + ", " + disturbance.name, score);
            all.add(score);
            if (disturbance.name == "as it is")
                asTheyAre.add(score);
        }
    }
    print("all", all);
    out << "\n| goal | sum | held |\n| --- | --- | --- |\n";
    GoalTable::printNeighbours(out, "sets as they are", asTheyAre);
    GoalTable::printNeighbours(out, "all sets", all);
}

Options optionsFrom(QStringList arguments)
{
    Options options;
    arguments.removeFirst();
    while (!arguments.isEmpty()) {
        const QString argument = arguments.takeFirst();
        if (argument == "--misses")
            options.misses = true;
        else if (argument == "--decisions")
            options.decisions = true;
        else if (argument == "--neighbours")
            options.neighbours = true;
        else if (argument == "--only" && !arguments.isEmpty())
            options.only = arguments.takeFirst();
        else
            options.folders << QDir::cleanPath(argument);
    }
    return options;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const Options options = optionsFrom(QCoreApplication::arguments());
    std::vector<SampleSet> sets;
    for (const QString &folder : options.folders) {
        if (!readSets(folder, sets)) {
            QTextStream(stderr) << "cannot read " << folder << '\n';
            return 2;
        }
    }
    if (sets.empty()) {
        QTextStream(stderr)
            << "Usage: scorereport [--misses] [--decisions] [--neighbours] [--only NAME] "
               "FOLDER...\n";
        return 1;
    }
    std::vector<SampleSet> all;
    for (const SampleSet &set : sets) {
        all.push_back(set);
        all.push_back(set);
        all.back().name += " without first column";
        all.back().removeFirstColumns();
    }
    if (options.neighbours) {
        reportNeighbours(all, options);
        return 0;
    }
    Report report(options);
    for (std::size_t i = 0; i < all.size(); ++i)
        report.add(all[i], i % 2 == 0);
    return report.end() ? 0 : 2;
}
