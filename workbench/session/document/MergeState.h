#pragma once

#include <geomcore/records/MappingChange.h>
#include <release/merge/MergeTypes.h>

#include <QCoreApplication>
#include <QList>
#include <QString>

/// What became of taking over what others wrote into the mapping file.
struct MergeOutcome
{
    bool merged = false;
    /// German: how many changes came and how many lines clash, or why nothing was merged and what
    /// to do next.
    QString text;
};

/// What the last merge with the mapping file left to do. Lines are no longer open once their mark
/// is gone, be it by the editor, by undo or by settle().
class MergeState
{
    Q_DECLARE_TR_FUNCTIONS(MergeState)

public:
    enum class Side {
        Ours,
        Theirs,
        Neither, ///< the line is without target and to be decided
    };

    MergeState() = default;
    explicit MergeState(const VelkRelease::MergeResult &result);

    /// Clashes of lines that are still marked in the release, in its order.
    [[nodiscard]] QList<VelkRelease::MergeClash> openClashes(const ReleaseMappingC &release) const;
    /// The one of a line; a line of 0 and no path if there is none or it is settled.
    [[nodiscard]] VelkRelease::MergeClash clashOf(const ReleaseMappingC &release,
                                                  const QString &sourcePath, int line) const;
    /// Our changes that were not taken, without the lines that are settled.
    [[nodiscard]] MappingChangeMap localChanges(const ReleaseMappingC &release) const;
    [[nodiscard]] const MappingChangeMap &onlineChanges() const { return m_online; }
    /// Clashes of lines, settled or not, in the order of the release.
    [[nodiscard]] QList<VelkRelease::MergeClash> lineClashes() const;
    /// What a line is when that side is chosen; it has no mark.
    [[nodiscard]] static VelkRelease::LineStanding standing(const VelkRelease::MergeClash &clash,
                                                            Side side);
    /// German: what the merge came to.
    [[nodiscard]] static QString text(const VelkRelease::MergeResult &result);

private:
    MappingChangeMap m_local;
    MappingChangeMap m_online;
    QList<VelkRelease::MergeClash> m_clashes;
};
