#pragma once

#include "FormulaItem.h"

#include <geomcore/expression/MapVarValueC.h>

namespace VKTab {
class Content;
} // namespace VKTab

/// Variables that are offered under one label, such as "VAR" or "SOURCE@". With prefixed the label
/// is written before each name. Names that the formula language cannot hold are left out.
struct FormulaVariables
{
    QString label;
    QList<FormulaItem> items;

    /// By name; the values are shown beside them.
    [[nodiscard]] static FormulaVariables ofVarset(const QHash<QString, MapVarValueC> &varset,
                                                   const QString &label, bool prefixed);
    /// In the table's order, hidden variables included.
    [[nodiscard]] static FormulaVariables ofTable(const VKTab::Content &table, const QString &label,
                                                  bool prefixed);
};
