#pragma once

#include <mapping/data/CatalogStructureNodeI.h>

#include <QDeadlineTimer>
#include <QHash>
#include <QList>

#include <functional>
#include <vector>

struct CatalogStructureItem;

/// Finds out which directories of a tree have a project that a filter accepts, in as many runs as
/// it takes. Decides on all that the model has rows of, and looks no further below them than to the
/// first project that is accepted.
class CatalogFilterWalk
{
public:
    using Node = boost::shared_ptr<CatalogStructureNodeI>;
    using Accepts = std::function<bool(const CatalogStructureNodeI &project)>;
    using Decided = QHash<const CatalogStructureNodeI *, bool>;

    /// Of all below the root.
    CatalogFilterWalk(const CatalogStructureItem &root, const Accepts &accepts);
    /// Of one directory alone.
    CatalogFilterWalk(const CatalogStructureNodeI &directory, const Accepts &accepts);

    /// What the filter asks for itself, and what counts as a directory.
    [[nodiscard]] static bool isProject(const CatalogStructureNodeI &node);

    /// Goes on until the time is over, yet far enough that a small tree is through at once. True:
    /// it is.
    [[nodiscard]] bool run(const QDeadlineTimer &until);
    [[nodiscard]] Decided takeDecided();

private:
    /// A directory that the walk is in.
    struct Level
    {
        const CatalogStructureNodeI *node;
        const CatalogStructureItem *item; ///< null: the first accepted project is enough
        QList<Node> children;
        qsizetype next = 0;
        bool isAccepted = false;

        [[nodiscard]] bool isDone() const;
    };

    void enter(const CatalogStructureNodeI &directory, const CatalogStructureItem *item);
    void decide(Level &level, const CatalogStructureNodeI &project);
    void leave();

    const Accepts m_accepts;
    std::vector<Level> m_levels;
    Decided m_decided;
};
