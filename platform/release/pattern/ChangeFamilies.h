#pragma once

#include "OpenPairs.h"
#include "ValueChange.h"

#include <QHash>
#include <QList>

#include <optional>
#include <vector>

namespace VelkRelease {

/// Which changes of values occur again and again among the open lines of a release, so that a
/// difference of one line can be named as one of a family: a token that is replaced, a number that
/// is multiplied or moved. What a modeller has agreed to is a family from one line on.
class VELKRELEASE_EXPORT ChangeFamilies
{
public:
    explicit ChangeFamilies(const QList<AgreedReplacement> &agreed = {});

    /// Counts what the pairs of a project support.
    void count(const std::vector<OpenPair> &pairs);

    /// The changes between the lines of a pair: by the families that most lines support, else by
    /// what kind of difference it is. In the order of the variables, each change once.
    [[nodiscard]] QList<ValueChange> changesOf(const OpenPair &pair,
                                               const QString &sourcePath) const;

    /// The change of a pair by what kind of difference it is, whatever the family. Others as they
    /// are.
    [[nodiscard]] static ValueChange plain(const ValueChange &change, const OpenPair &pair);

private:
    struct Part;
    /// The number map of a variable that most lines support.
    struct BestMap
    {
        ValueChange change;
        int supports = 0;
    };

    [[nodiscard]] static std::vector<Part> partsOf(const OpenPair::Value &value);
    void addChanges(const OpenPair::Value &value, const QString &sourcePath,
                    QList<ValueChange> &changes) const;
    void countPair(const OpenPair &pair);
    [[nodiscard]] int supportsOf(const ValueChange &change) const;
    [[nodiscard]] std::optional<ValueChange> familyOf(const Part &part,
                                                      const QString &variable) const;
    [[nodiscard]] const AgreedReplacement *agreedTo(const OpenPair::Value &value, const Part &part,
                                                    const QString &sourcePath) const;

    QList<AgreedReplacement> m_agreed;
    QHash<QString, int> m_supports; ///< by a name of variable and change
    QHash<QString, int> m_numbers;  ///< lines in which a number of a variable changed
    QHash<QString, int> m_origins;  ///< lines in which a certain number of a variable changed
    QHash<QString, BestMap> m_maps; ///< by variable
};

} // namespace VelkRelease
