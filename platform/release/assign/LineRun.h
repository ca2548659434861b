#pragma once

#include <release/VelkReleaseGlobal.h>

#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/mapper/PrjMapperC.h>
#include <geomcore/table/Content.h>
#include <geomcore/value/ResolveRangeOptionsC.h>

#include <QStringList>

#include <functional>
#include <memory>

namespace VKTab {
class TableData;
}

/// How lines are assigned.
struct LineRunOptions
{
    /// Which combinations of a line's ranges are tried, and with what values.
    enum class Combinations : quint8 {
        UntilOneIsFound, ///< The first that finds a target settles the line; with the file's
                         ///< columns.
        All,             ///< The last that finds one counts; with everything that the line shows.
    };

    /// Names of the variables that conditions read: the ranges among them are walked.
    QStringList conditionVariables;
    /// Only confirmed assignments are kept.
    bool force = false;
    Combinations combinations = Combinations::UntilOneIsFound;
    /// Asked between the combinations of a line; may be empty.
    std::function<bool()> isCanceled;
};

/// Assigns one line after the other. What depends on the table alone is worked out once.
class VELKRELEASE_EXPORT LineRun
{
public:
    /// Mapper and table outlive the run.
    LineRun(PrjMapperC &mapper, const VKTab::Content &table, const LineRunOptions &options);

    void assign(const VKTab::LineId &id);

private:
    using Varset = QHash<QString, MapVarValueC>;

    void assignCombinations(const VKTab::LineId &id);
    bool assignStored(const VKTab::LineId &id);
    bool assignShown(int lineId, const VKTab::Line &line);
    [[nodiscard]] bool isCanceled() const
    {
        return m_runOptions.isCanceled && m_runOptions.isCanceled();
    }
    /// True if the values settle the line.
    template<class Values>
    bool settle(int lineId, const Values &values);
    [[nodiscard]] bool passesCheck(const PrjMapperLineC &line, const VKTab::LineView &view);
    [[nodiscard]] bool passesCheck(const PrjMapperLineC &line, const Varset &varset);
    [[nodiscard]] Varset shownVarset(const VKTab::Line &line) const;

    PrjMapperC &m_mapper;
    const VKTab::Content &m_table;
    const LineRunOptions m_runOptions;
    /// The lines themselves, if the table shows nothing else.
    std::shared_ptr<const VKTab::TableData> m_data;
    QStringList m_ranges;
    QList<VKTab::Var> m_variables;
    /// All variables are columns of the file, so that a view of a line has them all.
    bool m_viewsSuffice = true;
    const VKTab::ResolveRangeOptionsC m_options;
};
