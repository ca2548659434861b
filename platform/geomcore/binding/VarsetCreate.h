#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <geomcore/value/LineId.h>
#include <geomcore/value/TabVarValue.h>
#include <geomcore/value/VarId.h>

#include <QList>
#include <QMap>
#include <QString>

#include <optional>

namespace VKTab {

class Content;
class Line;

/// Stored variable sets: texts of the form of MidentClass that name the values of a line's ranges.
class VELKGEOMCORE_EXPORT VarsetCreate
{
public:
    /// The variables that stand for a line with the values that it shows: "TMVMAT" and the range
    /// variables of type "SM", "GM", "FM" or "DM" that do not come from the ERP layer.
    [[nodiscard]] static QList<TabVarValue> xVarset(const Line &line);
    /// Their text; empty for an id without line and for a line without such variables.
    [[nodiscard]] static QString createXVarset(const Content &content, const LineId &line);
    /// True if text and line name the same variables of the table with equal values. Names that the
    /// table does not have, and the `excluded` variables, do not count.
    [[nodiscard]] static bool compareXVarset(const Line &line, const QString &text,
                                             const QList<VarId> &excluded);
};

/// What VarsetCreate::compareXVarset needs of a line, for a comparison with many texts.
class VELKGEOMCORE_EXPORT VarsetOfLine
{
public:
    VarsetOfLine(const Line &line, const QList<VarId> &excluded);
    ~VarsetOfLine();
    VarsetOfLine(const VarsetOfLine &) = delete;
    VarsetOfLine &operator=(const VarsetOfLine &) = delete;

    /// As VarsetCreate::compareXVarset().
    [[nodiscard]] bool equals(const QString &text) const;

private:
    using Values = QMap<QString, QString>;

    [[nodiscard]] Values valuesOf(const QList<TabVarValue> &list) const;
    [[nodiscard]] bool compare(const QString &text) const;

    bool m_isValid;
    QMap<QString, bool> m_names; ///< of the table; true: they count
    Values m_own;
    // Many records of a line bear the same text.
    mutable std::optional<QString> m_lastText;
    mutable bool m_lastEquals = false;
};

} // namespace VKTab
