#pragma once

#include <mapping/data/CatalogStructureNodeI.h>

#include <QDeadlineTimer>
#include <QHash>
#include <QList>

#include <functional>
#include <vector>

/// Finds out which projects of a tree a filter accepts, and which directories have one of them, in
/// as many runs as it takes. Decides on all rows of each directory that it enters; one that is no
/// FilledNodeI, and may have to get its children from somewhere, is not entered once it is known
/// that the directory above stays.
class CatalogFilterWalk
{
public:
    using Node = boost::shared_ptr<CatalogStructureNodeI>;
    using Accepts = std::function<bool(const CatalogStructureNodeI &project)>;
    enum class Decision : char { None, Stays, Goes };
    /// On the children of directories.
    using Decided = QHash<const CatalogStructureNodeI *, QList<Decision>>;

    /// Of all below a directory.
    CatalogFilterWalk(const CatalogStructureNodeI &top, const Accepts &accepts);

    /// What the filter asks for itself, and what counts as a directory.
    [[nodiscard]] static bool isProject(const CatalogStructureNodeI &node);

    /// Goes on until the time is over, yet far enough that a small tree is through at once. True:
    /// it is.
    [[nodiscard]] bool run(const QDeadlineTimer &until);
    /// Whether anything was accepted.
    [[nodiscard]] bool isAccepted() const { return m_isAccepted; }
    [[nodiscard]] Decided takeDecided();

private:
    /// A directory that the walk is in.
    struct Level
    {
        const CatalogStructureNodeI *node;
        QList<Node> children;
        QList<Decision> decisions;
        qsizetype next = 0;
        bool isAccepted = false;

        /// On the child before the next one.
        void decide(bool stays);
    };

    void enter(const CatalogStructureNodeI &directory);
    void leave();

    const Accepts m_accepts;
    std::vector<Level> m_levels;
    Decided m_decided;
    bool m_isAccepted = false;
};
