#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QtGlobal>

#include <memory>
#include <vector>

namespace VKTab {

class NodeVisitor;

/// What a node gives: NodeBase::getType().
enum NodeType {
    NumberType = 1,
    TextType = 2,
    /// A number or a text, known at evaluation only: variables and some functions.
    ValueType = 3,
    LogicalType = 4,
    AssignmentType = 5,
    /// The statement did not parse.
    InvalidType = 127
};

/// What a node is: NodeBase::getArt().
enum NodeArt {
    NumberArt = 1,
    TextArt = 2,
    VariableArt = 3,
    SignArt = 10,
    ArithmeticArt = 11,
    ComparisonArt = 12,
    NotArt = 13,
    AndArt = 14,
    OrArt = 15,
    FunctionArt = 16,
    AssignArt = 21,
    InvalidArt = 127
};

/// Node of a parsed statement; owns the nodes below it. Trees are at most maxDepth nodes deep, so
/// walking one by recursion is safe.
class VELKGEOMCORE_EXPORT NodeBase
{
public:
    using Children = std::vector<std::unique_ptr<NodeBase>>;
    static constexpr int maxDepth = 400;

    NodeBase(int art, int type, qsizetype position);
    NodeBase(const NodeBase &) = delete;
    NodeBase &operator=(const NodeBase &) = delete;
    virtual ~NodeBase();

    [[nodiscard]] int getType() const { return m_type; }
    [[nodiscard]] int getArt() const { return m_art; }

    /// Lets the visitor see this node and all below it. Callers pass 0, 0; depth and index are
    /// those that the visitor is told for this node. Gives 1, or what the visitor ended the walk
    /// with.
    virtual int accept(NodeVisitor &visitor, int depth, int index) const;

    /// Place of the node's own first token in the text, counted from 0.
    [[nodiscard]] qsizetype position() const { return m_position; }
    [[nodiscard]] const Children &children() const { return m_children; }
    void addChild(std::unique_ptr<NodeBase> child);
    /// Nodes on the longest way down, this one included.
    [[nodiscard]] int depth() const { return m_depth; }

private:
    int m_art;
    int m_type;
    int m_depth = 1;
    qsizetype m_position;
    Children m_children;
};

} // namespace VKTab
