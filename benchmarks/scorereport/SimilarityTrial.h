#pragma once

#include <QString>

#include <vector>

class TruthFile;

/// Trial of the rule that proposes the most similar line, on tables of which it is known where
/// their lines went: each line is compared with all lines of the table that it went to, as if
/// nothing but similarity were known.
class SimilarityTrial
{
public:
    enum class Case {
        AsIs,     ///< The line as it is.
        Changed,  ///< One of its numbers is five percent larger.
        TakenOut, ///< The table without the line that it went to: each proposal is wrong.
    };
    struct Counts
    {
        int right = 0;
        int wrong = 0;
    };

    /// \a skippedColumns first columns are not looked at.
    SimilarityTrial(const QString &oldTables, const QString &newTables, const TruthFile &truth,
                    int skippedColumns);

    /// Number of lines that were compared.
    [[nodiscard]] int lineCount() const { return int(m_asIs.size()); }
    /// Proposals if the best line needs this score and this margin to the second best.
    [[nodiscard]] Counts proposals(Case which, double threshold, double margin) const;

private:
    struct Outcome
    {
        double best = 0;
        double second = 0;
        bool right = false;
    };
    class Tables;
    class Pair;

    [[nodiscard]] const std::vector<Outcome> &outcomes(Case which) const;

    std::vector<Outcome> m_asIs;
    std::vector<Outcome> m_changed;
    std::vector<Outcome> m_takenOut;
};
