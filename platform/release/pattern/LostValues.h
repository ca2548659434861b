#pragma once

#include "OpenPairs.h"

#include <geomcore/binding/BoundModifiers.h>
#include <geomcore/table/ContentRef.h>

#include <QByteArray>
#include <QSet>

#include <vector>

namespace VelkRelease {

/// The values of a project's lines that are in no line of its targets' tables, and in no line that
/// has a target line: what only lines without a successor may have. By the targets' variables,
/// after their variable mappings; numbers by value, cells with ranges are left out. Reads all
/// tables when it is made. One thread at a time.
class LostValues
{
public:
    /// Targets that cannot be read are passed over.
    LostValues(const VKTab::ContentRef &table, const PrjMappingC &mapping);

    /// In the order of targets and their variables, each variable once.
    [[nodiscard]] std::vector<LostValue> of(int line);

private:
    struct Variable
    {
        QString name;
        bool isText = false;
        char decimalChar = '.';
        VKTab::BoundModifiers::Origin origin;
        QSet<QByteArray> known;
    };
    struct Target
    {
        VKTab::BoundModifiers modifiers;
        std::vector<Variable> variables;
    };

    void addTarget(const PrjMappingTargetC &target);
    void addAssigned(const PrjMappingC &mapping);
    [[nodiscard]] bool isKnown(const Variable &variable, const QByteArray &key) const;

    VKTab::ContentRef m_table;
    std::vector<Target> m_targets;
    VKTab::BoundModifiers::Results m_results;
    std::string m_scratch;
};

} // namespace VelkRelease
