#pragma once

#include <geomcore/expression/NodeVisitor.h>
#include <geomcore/value/VarId.h>

#include <QSet>

/// Collects the variables that a statement assigns. A formula assigns exactly one.
class AssignmentCollector : public VKTab::NodeVisitor
{
public:
    ~AssignmentCollector() override;

    /// Goes on through the whole statement.
    int visitNode(const VKTab::NodeBase &node, int depth, int index) override;

    [[nodiscard]] const QSet<VKTab::VarId> &getVarIds() const { return m_ids; }

private:
    QSet<VKTab::VarId> m_ids;
};
