#pragma once

#include <release/VelkReleaseGlobal.h>

#include <QString>

#include <functional>
#include <vector>

namespace VelkRelease {

class LineCells;
class ReleaseIndex;

/// Finds the projects of a release that can take over the lines of an old project.
class VELKRELEASE_EXPORT ProjectFinder
{
public:
    /// Keeps a reference to \a index, which is finished. One search at a time on an index.
    explicit ProjectFinder(const ReleaseIndex &index)
        : m_index(index)
    {
    }

    /// Numbers of the tables in the index, best first:
    /// 1. the project with the same path below its catalog;
    /// 2. without one, those with the same name but for case and separators;
    ///    without one, those whose names begin so, if they hold half of the lines together, have
    ///    all the same variables and some of the project's, or lie in the same folder with the
    ///    project's variables;
    /// 3. without any of these, the projects that hold half of the lines, and those half as good
    ///    as the best of them, also with other names of some variables; then, as for a project that
    ///    was split, the ones that hold most of the rest, as long as they hold an eighth of all
    ///    lines;
    /// 4. projects that alone in the release have lines equal to those that none of the above has.
    ///    A line whose key one of the above has was changed, not moved, and is not looked for.
    [[nodiscard]] std::vector<int> find(const QString &projectPath, const LineCells &cells) const;
    /// Whether a table has room for half of the project's lines, beside those of the projects that
    /// became it.
    using HasRoom = std::function<bool(int table)>;
    /// For a project that has none of these, or only tables without room: those of kind 3 that have
    /// room, if they hold half of the lines together; else tables with room that have the values of
    /// its columns, though not in the same lines. Where some columns were reworded or given in
    /// another unit, hardly any line is as it was. Of those that have as much of the columns, the
    /// ones in the folder of the project are given, if \a isFolderKept: other projects stayed
    /// there.
    [[nodiscard]] std::vector<int> findWithRoom(const QString &projectPath, const LineCells &cells,
                                                const HasRoom &hasRoom, bool isFolderKept) const;

private:
    const ReleaseIndex &m_index;
};

} // namespace VelkRelease
