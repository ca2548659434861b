#pragma once

#include "NodeVisitor.h"

#include <QSet>
#include <QStringList>

/// Collects the variables that a statement reads, with and without the prefix "SOURCE@", each name
/// once, in the order of their first appearance. The assigned variable is none of them.
class VELKGEOMCORE_EXPORT VarCollector : public VKTab::NodeVisitor
{
public:
    ~VarCollector() override;

    /// Goes on through the whole statement.
    int visitNode(const VKTab::NodeBase &node, int depth, int index) override;

    [[nodiscard]] const QStringList &getNames() const { return m_names; }

private:
    QStringList m_names;
    QSet<QString> m_known;
};
