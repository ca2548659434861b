#pragma once

#include <release/VelkReleaseGlobal.h>

#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/mapper/PrjMapperC.h>
#include <geomcore/table/Content.h>
#include <geomcore/value/ResolveRangeOptionsC.h>

#include <QStringList>

#include <memory>

namespace VKTab {
class TableData;
}

/// Assigns one line after the other. What depends on the table alone is worked out once.
class VELKRELEASE_EXPORT LineRun
{
public:
    /// Mapper and table outlive the run.
    LineRun(PrjMapperC &mapper, const VKTab::Content &table, const QStringList &conditionVariables,
            bool force);

    void assign(const VKTab::LineId &id);

private:
    using Varset = QHash<QString, MapVarValueC>;

    void assignCombinations(const VKTab::LineId &id);
    bool assignStored(const VKTab::LineId &id);
    bool assignShown(int lineId, const VKTab::Line &line);
    /// True if the values settle the line.
    template<class Values>
    bool settle(int lineId, const Values &values);
    [[nodiscard]] bool passesCheck(const PrjMapperLineC &line, const VKTab::LineView &view);
    [[nodiscard]] bool passesCheck(const PrjMapperLineC &line, const Varset &varset);
    [[nodiscard]] Varset shownVarset(const VKTab::Line &line) const;

    PrjMapperC &m_mapper;
    const VKTab::Content &m_table;
    const bool m_force;
    /// The lines themselves, if the table shows nothing else.
    std::shared_ptr<const VKTab::TableData> m_data;
    QStringList m_ranges;
    QList<VKTab::Var> m_variables;
    /// All variables are columns of the file, so that a view of a line has them all.
    bool m_viewsSuffice = true;
    const VKTab::ResolveRangeOptionsC m_options;
};
