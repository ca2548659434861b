#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include "TabVarValue.h"

#include <QList>
#include <QString>

/// A list of variables with values and its text form: one {NAME=VALUE} for each, without separator,
/// with "\" before "{", "}", "=" and "\" in names and values.
class VELKGEOMCORE_EXPORT MidentClass
{
public:
    void AddVarValue(const QString &name, const QString &value);
    [[nodiscard]] int CountVars() const;
    /// Empty for an entry out of range.
    [[nodiscard]] QString GetVarName(int entry) const;
    [[nodiscard]] QString GetVarValue(int entry) const;
    [[nodiscard]] QString MakeVarvalueString() const;

    /// Replaces the entries by those of the text; blanks between groups are ignored. False, and no
    /// entry, if the text is not of that form.
    bool SplitVarValue(const QString &text);

    /// `withPlaces` writes place and count behind the value, separated by "=".
    [[nodiscard]] static QString varValuListToString(const QList<TabVarValue> &list, QChar open,
                                                     QChar close, bool withPlaces);

private:
    QList<TabVarValue> m_values;
};
