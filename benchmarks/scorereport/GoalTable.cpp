#include "GoalTable.h"

#include <algorithm>

namespace {

double percentOf(int part, int all)
{
    return all > 0 ? 100.0 * part / all : 0;
}

QString shown(double percent)
{
    return QString::number(percent, 'f', 2) + " %";
}

/// The worst of several measurements.
struct Worst
{
    double value = 0;
    QString name;

    void add(double other, const QString &of)
    {
        if (name.isEmpty() || other > value)
            *this = {other, of};
    }
};

void row(QTextStream &out, const QString &goal, const QString &result, bool held)
{
    out << "| " << goal << " | " << result << " | " << (held ? "yes" : "no") << " |\n";
}

} // namespace

void GoalTable::add(const QString &name, bool disturbed, bool withKeys, bool removed,
                    const RuleScore &score)
{
    m_all.push_back({name, disturbed, withKeys, removed, score});
}

void GoalTable::print(QTextStream &out) const
{
    int wrong = 0;
    int errors = 0;
    int referenceErrors = 0;
    Worst behind;
    Worst gone;
    Worst goneRemoved;
    Worst missedRemoved;
    Worst decisions;
    Calibration calibration;
    for (const Measured &measured : m_all) {
        const RuleScore &score = measured.score;
        wrong += score.mappedWrong;
        calibration.add(score.calibration);
        if (measured.removed && measured.withKeys) {
            goneRemoved.add(percentOf(score.goneProposed, score.gone), measured.name);
            missedRemoved.add(100 - percentOf(score.proposed, score.known), measured.name);
        }
        if (!measured.removed) {
            behind.add(percentOf(score.referenceBest - score.best, score.known), measured.name);
            errors += score.known - score.best;
            referenceErrors += score.known - score.referenceBest;
        }
        if (!measured.disturbed) {
            gone.add(percentOf(score.goneProposed, score.gone), measured.name);
            decisions.add(10 * percentOf(score.decisions, score.open), measured.name);
        }
    }
    out << "\n| goal | worst or in all | held |\n| --- | --- | --- |\n";
    row(out, "no line Mapped wrongly", QString::number(wrong), wrong == 0);
    row(out, "best candidate at most 0.3 points behind the reference, no lines removed",
        shown(behind.value) + ", " + behind.name, behind.value <= 0.3);
    row(out, "at most half of the reference's errors",
        QString::number(errors) + " of " + QString::number(referenceErrors),
        2 * errors <= referenceErrors);
    row(out, "gone lines with a proposal, as it is: at most 2 %",
        shown(gone.value) + ", " + gone.name, gone.value <= 2);
    row(out, "gone lines with a proposal, lines removed, with keys: at most 5 %",
        shown(goneRemoved.value) + ", " + goneRemoved.name, goneRemoved.value <= 5);
    row(out, "the others assigned or proposed rightly: at least 98.5 %",
        shown(100 - missedRemoved.value) + ", " + missedRemoved.name, missedRemoved.value <= 1.5);
    row(out, "calibration error at most 0.03", QString::number(calibration.error(), 'f', 4),
        calibration.error() <= 0.03);
    row(out, "decisions for 1000 open lines, as it is: at most 60",
        QString::number(decisions.value, 'f', 0) + ", " + decisions.name, decisions.value <= 60);
}

void GoalTable::printNeighbours(QTextStream &out, const QString &sets, const NeighbourScore &score)
{
    const auto print = [&](const QString &goal, const QString &result, bool held) {
        row(out, goal + ", " + sets, result, held);
    };
    const auto printFound = [&](const QString &name, const PlantedMistakes::Score &of) {
        print(QStringLiteral("planted %1 found: at least 99 %").arg(name),
              shown(percentOf(of.found, of.planted)), 100 * of.found >= 99 * of.planted);
    };
    printFound("shifts", score.shifts);
    printFound("swaps", score.swaps);
    const PlantedMistakes::Score &right = score.untouched;
    print("false alarms: at most 1 in 1000 lines",
          QStringLiteral("%1 in %2").arg(right.falseAlarms).arg(right.lines),
          1000 * right.falseAlarms <= right.lines);
}
