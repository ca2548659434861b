#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include "FilterBase.h"
#include "FilterCondition.h"
#include "LineInfo.h"
#include <geomcore/value/LineId.h>
#include <geomcore/value/TableEnums.h>
#include <geomcore/value/Value.h>
#include <geomcore/value/Var.h>

#include <boost/container/flat_map.hpp>
#include <boost/shared_ptr.hpp>
#include <boost/signals2/signal.hpp>

#include <QHash>
#include <QList>
#include <QMap>
#include <QStringList>
#include <QStringView>
#include <QVariant>

#include <functional>
#include <optional>

namespace VKTab {

class Content;
class LineI;

/// What changed in a layer.
struct LayerChange
{
    enum Kind {
        Values,  ///< cells of `line`, or of all lines if it is not valid
        Columns, ///< variables or their attributes
        Lines,   ///< which lines are hidden or filtered
        Status,  ///< status key values of `line`, or of all lines if it is not valid
    };
    Kind kind = Values;
    LineId line;
};

/// A named set of columns added to a table. A layer answers for its own variables and for the lines
/// that it knows something of; for all others it gives null values, empty texts and false. The
/// order of the virtual operations is part of the interface.
///
/// Reading is safe on any thread beside the one thread that writes.
class VELKGEOMCORE_EXPORT LayerI
{
public:
    using ChangeSignal = boost::signals2::signal<void(const LayerChange &)>;
    using VarPredicate = std::function<bool(const Var &)>;
    using ValueMap = boost::container::flat_map<VarId, Value>;

    virtual ~LayerI();
    /// An independent layer with the same columns and values; nobody listens to it yet.
    [[nodiscard]] virtual boost::shared_ptr<LayerI> clone() const = 0;
    /// Drops all values, status key values and hidden lines; the columns stay.
    virtual void reset() = 0;
    [[nodiscard]] virtual int getLayerType() const = 0;
    [[nodiscard]] virtual QVariant getKeyValue(KeyValueId id) const = 0;
    [[nodiscard]] virtual QVariant getKeyValue(const QString &name) const = 0;

    [[nodiscard]] virtual QList<Var> getVarList() const = 0;
    /// Not valid for an unknown name.
    [[nodiscard]] virtual VarId getVarId(QStringView name) const = 0;
    [[nodiscard]] virtual std::optional<Var> getVar(QStringView name) const = 0;
    /// Not valid for an unknown id.
    [[nodiscard]] virtual Var getVar(const VarId &id) const = 0;
    [[nodiscard]] virtual bool isValid(const VarId &id) const = 0;
    [[nodiscard]] virtual QString getName(const VarId &id) const = 0;
    /// The texts that columns are restricted to; columns without a filter are left out.
    [[nodiscard]] virtual QHash<VarId, QStringList> getColumnFilter() const = 0;
    /// Empty for a column without a filter.
    [[nodiscard]] virtual QStringList getColumnFilter(const VarId &id) const = 0;
    [[nodiscard]] virtual QVariant getVarAttribute(const VarId &id, VarAttr attribute) const = 0;
    [[nodiscard]] virtual QVariant getVarProperty(const VarId &id, VarPropId property) const = 0;
    /// False if the variable is not the layer's or the value does not fit.
    virtual bool setVarAttribute(const VarId &id, VarAttr attribute, const QVariant &value) = 0;
    virtual bool deleteVar(const VarId &id) = 0;

    [[nodiscard]] virtual LineInfo getLineInfo(const LineId &line) const = 0;
    [[nodiscard]] virtual QList<LineInfo> getLineInfoList() const = 0;
    [[nodiscard]] virtual QVariant getLineProperty(const LineId &line,
                                                   LinePropId property) const = 0;
    /// An empty text when unset.
    [[nodiscard]] virtual QVariant getLineKeyValue(const LineId &line,
                                                   const QString &key) const = 0;
    /// The properties that the layer knows of its lines.
    [[nodiscard]] virtual QList<LinePropId> getLineProperties() const = 0;
    [[nodiscard]] virtual QList<LineId> getHiddenLines() const = 0;
    /// True if that changed something.
    virtual bool setLineHidden(const LineId &line, bool hidden) = 0;
    /// Drops what the layer holds of the line. False if that is nothing.
    virtual bool deleteLine(const LineId &line) = 0;
    /// Copies the layer's values of the given variables to another line; with `withStatus` the
    /// status key values and the hidden mark too. A variable without value clears that of the other
    /// line. False if a variable is not the layer's.
    virtual bool copyLine(const LineId &from, const LineId &to, const QList<Var> &vars,
                          bool withStatus) = 0;

    /// The value for a line that is at hand, which may show put-in values.
    [[nodiscard]] virtual Value getValue(const VarId &id, const LineId &line,
                                         const LineI &shown) const = 0;
    [[nodiscard]] virtual Value getValue(const VarId &id, const LineId &line) const = 0;
    /// True if the layer takes no value there.
    [[nodiscard]] virtual bool isLocked(const VarId &id, const LineId &line) const = 0;
    /// True if the layer holds no value of its own there.
    [[nodiscard]] virtual bool isDefValue(const VarId &id, const LineId &line) const = 0;
    [[nodiscard]] virtual QVariant getCellProperty(const VarId &id, const LineId &line,
                                                   CellPropId property) const = 0;
    /// The text to show for a value, if the layer has one of its own.
    [[nodiscard]] virtual std::optional<QString>
    mapToVisibleValue(const VarId &id, const LineId &line, const Value &value) const = 0;
    /// Adds the layer's values of the line.
    virtual void fillLineData(const LineId &line, const LineI &shown, ValueMap &values) const = 0;
    /// A null value takes the layer's own value back. False if the layer takes none there.
    virtual bool setValue(const VarId &id, const LineId &line, const Value &value) = 0;
    /// The text itself if no translation is known or this thread translates nothing.
    [[nodiscard]] virtual QString translateText(const QString &text, const VarId &id) const = 0;

    [[nodiscard]] virtual QList<FilterCondition> getFilterConditions() const = 0;
    /// The filter of the given conditions on the table; null if there is nothing to filter.
    [[nodiscard]] virtual boost::shared_ptr<FilterBase>
    getFilter(const QList<FilterCondition> &conditions, const Content &content) const = 0;
    /// The values to which the layer restricts ranges of the line.
    [[nodiscard]] virtual QHash<VarId, QStringList> getRangeFilter(const LineId &line) const = 0;
    /// Null if the variable has no default of its own.
    [[nodiscard]] virtual Value getRangeValueCustomDefault(const VarId &id) const = 0;
    /// Names of the groups of the layer's variables, in order of first appearance.
    [[nodiscard]] virtual QStringList getVarGroups() const = 0;
    /// Puts variables in order by a list of names, in which "..." stands for all others and a
    /// missing "..." for others at the end. Unknown names are passed over; variables that the
    /// predicate refuses are left out.
    [[nodiscard]] virtual QList<VarId> evaluateColumnMapping(const QList<Var> &vars,
                                                             const QHash<QString, Var> &byName,
                                                             const QStringList &order,
                                                             const VarPredicate &accepts) const = 0;
    /// The variables of each group, in the order of `vars`. `groups` gives the groups of a
    /// variable; one without an entry has those of its own description in `byName`.
    [[nodiscard]] virtual QMap<QString, QList<VarId>>
    evaluateVariableToGroupMapping(const QMap<VarId, QStringList> &groups, const QList<Var> &vars,
                                   const QHash<QString, Var> &byName) const = 0;

    /// Called on the thread that writes.
    [[nodiscard]] virtual ChangeSignal &signalChanged() = 0;
    /// Makes changes of variables known to those who listen.
    virtual void updateVariableStructure() = 0;
    /// False for a layer that has nothing to give, such as a file that was not read.
    [[nodiscard]] virtual bool isValid() const = 0;
};

} // namespace VKTab
