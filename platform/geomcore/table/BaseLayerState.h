#pragma once

#include "FilterCondition.h"
#include "LayerI.h"
#include "LayerVars.h"
#include "LineStatusTable.h"

#include <QHash>
#include <QList>
#include <QMap>

#include <atomic>
#include <map>
#include <set>
#include <shared_mutex>

namespace VKTab {

/// What a BaseLayer holds; a value.
struct BaseLayerState
{
    int layerType = 0;
    QMap<int, QVariant> keyValues;
    QMap<QString, QVariant> attributes;
    LayerVars vars;
    QHash<VarId, QStringList> columnFilter;
    QHash<VarId, Value> rangeDefaults;
    QList<FilterCondition> conditions;
    std::set<LineId> hidden;
    std::map<LineId, LayerI::ValueMap> values;
    LineStatusTable status;
};

/// The state with what guards it: readers on any thread share the lock, the writer takes it alone
/// and lets it go before it tells listeners.
struct BaseLayerShared
{
    mutable std::shared_mutex lock;
    BaseLayerState state;
    std::atomic<bool> hasValues = false;
    LayerI::ChangeSignal changed;
};

} // namespace VKTab
