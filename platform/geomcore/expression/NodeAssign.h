#pragma once

#include "NodeBase.h"

#include <geomcore/value/VarId.h>

#include <QString>

namespace VKTab {

/// "NAME = expression": art 21. Its one child is the expression.
class VELKGEOMCORE_EXPORT NodeAssign : public NodeBase
{
public:
    NodeAssign(const VarId &id, const QString &name, qsizetype position);
    ~NodeAssign() override;

    /// The assigned variable; VarsetParserC::getVarName of the parser that made the node tells its
    /// name.
    [[nodiscard]] VarId getVarId() const { return m_id; }
    [[nodiscard]] const QString &name() const { return m_name; }

private:
    VarId m_id;
    QString m_name;
};

} // namespace VKTab
