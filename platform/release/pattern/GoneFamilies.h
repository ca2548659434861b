#pragma once

#include "OpenPairs.h"

#include <QHash>
#include <QSet>
#include <QString>

namespace VelkRelease {

/// What open lines without a successor have in common.
struct VELKRELEASE_EXPORT GoneGroup
{
    enum Kind : quint8 {
        Folder,  ///< no line of any project below a folder has a target line
        Project, ///< no line of the project has one
        Table,   ///< the target project that the line was assigned to is not there any more
        Value,   ///< a value that no new line has, and no line that has a target line
        Unlike,  ///< only that no line is like them; by folder
    };
    /// Texts with %1 for the place; of Value %1 is the variable and %2 the value.
    struct Words
    {
        QString folder;
        QString project;
        QString table;
        QString value;
        QString unlike;
    };

    Kind kind = Unlike;
    QString place; ///< source path of the folder or project, target path of Table; none of Value
    QString variable;
    QString value;

    [[nodiscard]] QString text(const Words &words) const;
    /// "folder", "project", ...: for files.
    [[nodiscard]] QString key() const;

    friend bool operator==(const GoneGroup &, const GoneGroup &) = default;
};

/// Groups the open lines without a successor of a release, each line in one group: the largest of
/// which it is said for every line that it has none.
class VELKRELEASE_EXPORT GoneFamilies
{
public:
    explicit GoneFamilies(const ReleaseMappingC &release = {});

    /// Counts the values that the pairs of a project lost.
    void count(const std::vector<OpenPair> &pairs, const PrjMappingC &mapping);
    /// Counts which of them stand for the pairs, when all projects were counted: a value that
    /// stands for one line alone makes no group.
    void choose(const std::vector<OpenPair> &pairs, const PrjMappingC &mapping);
    /// Of a pair whose line is gone.
    [[nodiscard]] GoneGroup groupOf(const OpenPair &pair, const PrjMappingC &mapping) const;

private:
    [[nodiscard]] std::optional<GoneGroup> wholeOf(const OpenPair &pair,
                                                   const PrjMappingC &mapping) const;
    [[nodiscard]] const LostValue *mostLost(const OpenPair &pair) const;

    QSet<QString> m_projects;          ///< source paths of those without any target line
    QHash<QString, QString> m_folders; ///< the largest such folder of a project's folder
    QHash<QString, int> m_supports;    ///< lines that lost a value, by a name of it
    QHash<QString, int> m_chosen;      ///< of these, lines for which it stands
};

} // namespace VelkRelease
