#pragma once

#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/table/BoundExpression.h>

#include <QHash>
#include <QList>
#include <QStringList>

class VarsetModifierI;

namespace VKTab {

/// A result of a formula as a named value of a varset.
[[nodiscard]] MapVarValueC namedValue(const QString &name, const ExpressionValue &value);

/// What the modifiers of a target make of the lines of one source table, worked out once per table:
/// for each name that the target is searched with, where its value comes from. A line then costs no
/// varset: most values are cells of the source line, and only formulas are evaluated.
///
///     const BoundModifiers modifiers(target.getVarsetModifier(), sourceTable);
///     const auto diameter = modifiers.origin(u"D");  // once per variable of the target table
///     BoundModifiers::Results results;               // one per thread, reused
///     for (each line) {
///         modifiers.evaluate(line, results);         // costs nothing without formulas
///         std::string_view d = modifiers.text(diameter, line, results, scratch);
///     }
///
/// Gives for each line what PrjMappingTargetC::updateVarset makes of its varset. Small; any thread
/// once it is made.
class VELKGEOMCORE_EXPORT BoundModifiers
{
public:
    using Results = BoundExpression::Results;

    /// Where the value of a name comes from.
    struct Origin
    {
        enum Kind {
            /// The name is not among the values: the table does not have it, or it is ignored.
            Absent,
            /// The name is there without a value.
            NoValue,
            /// Column index of the source table; computed columns included.
            Column,
            /// Result index of a formula.
            Formula
        };
        Kind kind = Absent;
        int index = -1;
        friend bool operator==(const Origin &, const Origin &) = default;
    };

    /// Without modifiers every variable of the table passes through. Without a table no name has a
    /// column. Modifiers and table need not live longer than this call.
    BoundModifiers(const QList<const VarsetModifierI *> &modifiers, const TableData *table);
    ~BoundModifiers();

    /// Where the value under that name comes from after all modifiers.
    [[nodiscard]] Origin origin(const QString &name) const;
    /// All names that lines have values for: the table's in order of columns, then those that
    /// modifiers add.
    [[nodiscard]] QStringList names() const;
    [[nodiscard]] int formulaCount() const { return int(m_formulas.size()); }
    /// Columns of the source table that a formula reads, itself or through formulas before it;
    /// ascending. None for a constant.
    [[nodiscard]] const std::vector<int> &formulaColumns(int formula) const
    {
        return m_formulaColumns[size_t(formula)];
    }

    /// Evaluates all formulas on a line of the table. Results keep their room for the next line.
    void evaluate(const LineView &line, Results &results) const;
    /// UTF-8 in plain notation, empty for no value; points into the table, the results or scratch.
    [[nodiscard]] std::string_view text(const Origin &origin, const LineView &line,
                                        const Results &results, std::string &scratch) const;
    /// The values as a varset.
    [[nodiscard]] QHash<QString, MapVarValueC> varset(const LineView &line) const;

    // What modifiers do to it, in their order.

    void remove(const QString &target);
    void bindColumn(const QString &source, const QString &target);
    /// An assignment.
    void bindFormula(std::shared_ptr<const Program> formula);

private:
    [[nodiscard]] Origin columnOrigin(const QString &name) const;
    [[nodiscard]] MapVarValueC valueOf(const QString &name, const LineView &line,
                                       const Results &results) const;
    void setOrigin(const QString &target, const Origin &origin);

    QHash<QString, Origin> m_touched;
    /// Keys of m_touched in the order of their first appearance.
    QStringList m_touchedNames;
    struct TableVariable
    {
        QString name;
        int column;
    };
    /// In order of columns.
    QList<TableVariable> m_variables;
    /// Columns of m_variables.
    QHash<QString, int> m_columns;
    std::vector<BoundExpression> m_formulas;
    /// For each of them.
    std::vector<std::vector<int>> m_formulaColumns;
};

} // namespace VKTab
