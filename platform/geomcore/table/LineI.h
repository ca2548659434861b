#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include "LineInfo.h"
#include <geomcore/value/TableEnums.h>
#include <geomcore/value/Value.h>
#include <geomcore/value/Var.h>

#include <QList>
#include <QVariant>

namespace VKTab {

/// A line of a table. Beside the values that the table holds, a line can show values that were put
/// into it: only this line object shows them, until they are taken out or apply() writes them
/// through. The order of the virtual operations is part of the interface.
class VELKGEOMCORE_EXPORT LineI
{
public:
    enum ValueId {
        NormNumber = 1,
        ProjectName = 2,
        NormDesignation = 3,
    };

    [[nodiscard]] virtual QList<Var> getVarList() const = 0;
    [[nodiscard]] virtual LineInfo getLineInfo() const = 0;
    virtual ~LineI();

    /// True if the line exists in its table.
    [[nodiscard]] virtual bool isValid() const = 0;
    [[nodiscard]] virtual QVariant getValue(ValueId id, EvalFlags eval) const = 0;
    /// Null for a missing value and for a variable that the table does not have.
    [[nodiscard]] virtual Value getValue(const Var &var, FormatFlags format,
                                         EvalFlags eval) const = 0;
    /// Value of a status key on this line, an empty text when unset.
    [[nodiscard]] virtual QVariant getLineKeyValue(const QString &key) const = 0;

    /// True if the line has the value. Of a range variable the range that the line offers counts,
    /// not what was chosen from it: with `rangeContains` the value must be in it, without it must
    /// be its text. Numbers compare by value to ten significant digits, other texts exactly after
    /// trimming; a missing value equals an empty one.
    [[nodiscard]] virtual bool hasValue(const Var &var, const Value &value,
                                        bool rangeContains) const = 0;

    /// Puts a value into the line.
    virtual void putValue(const VarId &id, const Value &value) = 0;
    /// Takes the value of one variable out, so that the line shows the table's again.
    virtual void takeValue(const VarId &id) = 0;
    /// Takes all values out.
    virtual void takeValues() = 0;
    /// Writes the values that were put in through to the table, as far as they belong to range
    /// variables and lie in the range that the line offers, and takes all of them out. True if the
    /// table took at least one.
    virtual bool apply() = 0;
};

} // namespace VKTab
