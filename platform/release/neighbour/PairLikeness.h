#pragma once

#include "NeighbourLines.h"

#include <QHash>

#include <array>
#include <optional>
#include <utility>
#include <vector>

namespace VelkRelease {

/// How much a line looks like a row of the target's table: the logarithm of how much more often its
/// values stand so to those of its partner than to those of a row beside the partner. Learned from
/// the assignments of the table itself, of which most must be right: an equal value counts much
/// where partners are equal and neighbours are not, and nothing where all lines are; a replacement
/// or a factor counts as far as it occurs again and again.
class PairLikeness
{
public:
    /// Pairs of an index of \a values' lines and a row; \a rows is their number. Looks at some of
    /// the pairs, spread over the table, if there are many.
    PairLikeness(const NeighbourValues &values, int target, int rows,
                 const std::vector<std::pair<int, int>> &pairs);
    /// Learns anew, from better pairs.
    void learn(const std::vector<std::pair<int, int>> &pairs);
    /// Learns from what stands so many rows beside the pairs, at most, where runs of lines have
    /// more equal values there: if they are shifted, those are right.
    void learnBeside(const std::vector<std::pair<int, int>> &pairs, int mostSteps);

    /// Natural logarithm. \a isPair: the two are one of the pairs, which does not speak for itself.
    [[nodiscard]] double of(int index, int row, bool isPair);
    /// Whether two rows have the same values.
    [[nodiscard]] bool areAlike(int row, int other);
    struct Move
    {
        int index;
        int row;
        int otherRow;
    };
    /// By how much more the lines look like the other rows than like their own, by what all other
    /// lines teach.
    [[nodiscard]] double gainByOthers(const std::vector<Move> &moves);
    /// By how much the line could look more like another row than like this one, its own, at most.
    [[nodiscard]] double room(int index, int row);

private:
    /// Ways to name how a new value stands to an old one, from the exact to the general one.
    static constexpr int Names = 3;
    using Relation = std::array<int, Names>; ///< -1: no such name

    struct Text
    {
        QString text;
        std::optional<double> number;
    };
    struct Count
    {
        int partners = 0; ///< pairs and rows beside them that stand so
        int neighbours = 0;
    };

    [[nodiscard]] const std::vector<int> &lineTexts(int index);
    [[nodiscard]] const std::vector<int> &rowTexts(int row);
    [[nodiscard]] std::vector<int> textsOf(const QStringList &values);
    [[nodiscard]] Relation relation(int before, int after);
    [[nodiscard]] Relation relationOfTexts(const QString &before, const QString &after);
    [[nodiscard]] int name(const QString &text);
    /// Of a change of numbers.
    [[nodiscard]] int mapName(const QString &text);
    void takeBestWeights();
    [[nodiscard]] int countEqual(int index, int row);
    [[nodiscard]] std::vector<int> stepsOfRuns(const std::vector<std::pair<int, int>> &pairs,
                                               int mostSteps);
    void count(int index, int row, int Count::*counter, int times);
    /// The pair and the rows beside it.
    void countPair(int index, int row, int times);
    [[nodiscard]] double sumOf(int index, int row, bool isPair);
    [[nodiscard]] double weight(std::size_t variable, const Relation &relation, bool isPair) const;
    [[nodiscard]] double weightOf(Count count, int own, int name) const;
    [[nodiscard]] Count countOf(std::size_t variable, int name) const;

    const NeighbourValues &m_values;
    const int m_target;
    const int m_rows;
    QHash<QString, int> m_idOf;
    std::vector<Text> m_texts;
    QHash<QString, int> m_nameOf;
    std::vector<bool> m_isMap;            ///< by name
    QHash<quint64, Relation> m_relations; ///< by the ids of two texts
    QHash<int, std::vector<int>> m_lineTexts;
    QHash<int, std::vector<int>> m_rowTexts;
    std::vector<std::vector<Count>> m_counts; ///< by variable and name
    QHash<int, int> m_learnedRow;             ///< by index
    std::vector<double> m_best;               ///< highest weight of each variable
    QHash<quint64, double> m_likeness;        ///< of a line and a row that is not its own
    int m_partners = 0;
    int m_neighbours = 0;
};

} // namespace VelkRelease
