#pragma once

#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/expression/StatementParser.h>

#include <QStringList>

/// Names checked against two varsets; see VarsetParserC for the rule.
class VarsetNames : public VKTab::StatementNames
{
public:
    using Varset = QHash<QString, MapVarValueC>;

    VarsetNames(const Varset &source, const Varset &target);
    ~VarsetNames() override;

    [[nodiscard]] bool isReadable(const QString &name, bool prefixed) const override;
    [[nodiscard]] bool isAssignable(const QString &name) const override;
    /// The same id for the same name.
    [[nodiscard]] VKTab::VarId idOf(const QString &name) override;

    [[nodiscard]] QString nameOf(const VKTab::VarId &id) const;

private:
    const Varset m_source;
    const Varset m_target;
    /// An id is its name's place, counted from 0.
    QStringList m_assigned;
};
