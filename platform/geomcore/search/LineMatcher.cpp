#include "LineMatcher.h"

#include "CellCondition.h"
#include "SearchText.h"
#include <geomcore/mapper/DesignationPattern.h>
#include <geomcore/project/CatalogPlaces.h>
#include <geomcore/table/LineView.h>
#include <geomcore/table/TableData.h>

#include <algorithm>
#include <optional>

using VKTab::FieldKind;
using VKTab::LineView;
using VKTab::TableData;
using VKTab::TableField;

namespace {

/// After so many lines somebody is asked whether to go on.
constexpr int RowsBetweenQuestions = 4096;
/// A line without a designation is told by so many values.
constexpr qsizetype MaxShownValues = 6;

QString textOfCell(std::string_view text)
{
    return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

/// A question to the cells of one column, answered once for each different text.
class ColumnAnswers
{
public:
    using Ask = std::function<bool(const QString &)>;

    ColumnAnswers(const TableData &table, int column, Ask ask)
        : m_table(table)
        , m_column(column)
        , m_ask(std::move(ask))
    {
        if (isStored())
            m_answers.resize(table.interned(column).values.size(), Unknown);
    }

    [[nodiscard]] bool holds(int row)
    {
        if (!isStored()) {
            const std::string_view text = LineView(m_table, row).text(m_column, m_scratch);
            return !text.empty() && m_ask(textOfCell(text));
        }
        const VKTab::InternedColumn &interned = m_table.interned(m_column);
        const quint32 id = interned.ids[size_t(row)];
        char &answer = m_answers[id];
        if (answer == Unknown) {
            const std::string_view text = interned.values[id];
            answer = !m_table.isMissing(text) && m_ask(textOfCell(text)) ? Yes : No;
        }
        return answer == Yes;
    }

private:
    static constexpr char Unknown = 0;
    static constexpr char No = 1;
    static constexpr char Yes = 2;

    [[nodiscard]] bool isStored() const { return m_column < m_table.columnCount(); }

    const TableData &m_table;
    const int m_column;
    const Ask m_ask;
    std::vector<char> m_answers;
    std::string m_scratch;
};

/// One table while it is looked through.
class TableSearch
{
public:
    TableSearch(const TableData &table, const QStringList &terms,
                const QList<CatalogSearchCondition> &conditions)
        : m_table(table)
        , m_terms(terms)
        , m_names(table.descriptor())
        , m_designation(Mapper::DesignationPattern::ofDesignation(table.descriptor()))
    {
        for (const QString &term : terms)
            m_answers.push_back(answersOf(term));
        for (const CatalogSearchCondition &condition : conditions)
            m_conditions.push_back(answersOf(condition));
    }

    [[nodiscard]] bool matches(int row)
    {
        const auto any = [row](std::vector<ColumnAnswers> &columns) {
            return std::any_of(columns.begin(), columns.end(),
                               [row](ColumnAnswers &column) { return column.holds(row); });
        };
        if (!std::all_of(m_conditions.begin(), m_conditions.end(), any))
            return false;
        std::optional<QString> names;
        for (size_t i = 0; i < m_answers.size(); ++i) {
            if (any(m_answers[i]))
                continue;
            if (!names)
                names = SearchText::folded(patternText(m_names, row));
            if (!SearchText::hasTerm(*names, m_terms.at(qsizetype(i))))
                return false;
        }
        return true;
    }

    [[nodiscard]] CatalogSearchLine lineAt(int row) const
    {
        QString text = patternText(m_designation, row);
        return {m_table.lineNumber(row), text.isEmpty() ? valuesText(row) : text};
    }

private:
    [[nodiscard]] bool isShown(int column) const
    {
        return m_table.descriptor().fields.at(column).kind != FieldKind::Internal;
    }
    [[nodiscard]] std::vector<ColumnAnswers> answersOf(const QString &term) const
    {
        std::vector<ColumnAnswers> columns;
        for (int column = 0; column < m_table.descriptor().fields.size(); ++column) {
            if (isShown(column))
                columns.emplace_back(m_table, column, [term](const QString &cell) {
                    return SearchText::hasTerm(SearchText::folded(cell), term);
                });
        }
        return columns;
    }
    [[nodiscard]] std::vector<ColumnAnswers>
    answersOf(const CatalogSearchCondition &condition) const
    {
        std::vector<ColumnAnswers> columns;
        const QString name = SearchText::folded(condition.variable);
        for (int column = 0; column < m_table.descriptor().fields.size(); ++column) {
            const TableField &field = m_table.descriptor().fields.at(column);
            if (!isShown(column) || SearchText::folded(field.name) != name ||
                (!condition.unit.isEmpty() && condition.unit != field.unit))
                continue;
            const CellCondition cell(condition, {field.decimalChar, field.isRange()});
            columns.emplace_back(m_table, column,
                                 [cell](const QString &text) { return cell.holds(text); });
        }
        return columns;
    }
    [[nodiscard]] QString patternText(const Mapper::DesignationPattern &pattern, int row) const
    {
        if (pattern.isEmpty())
            return {};
        const LineView line(m_table, row);
        std::string scratch;
        return QString::fromStdString(pattern.text([&](const QString &name) {
            const int column = m_table.fields().indexOf(name);
            return column < 0 ? std::string() : std::string(line.text(column, scratch));
        }));
    }
    [[nodiscard]] QString valuesText(int row) const
    {
        const LineView line(m_table, row);
        QStringList values;
        std::string scratch;
        for (int column = 0; column < m_table.descriptor().fields.size(); ++column) {
            const TableField &field = m_table.descriptor().fields.at(column);
            const std::string_view text = line.text(column, scratch);
            if (isShown(column) && !field.hidden && !text.empty() && values.size() < MaxShownValues)
                values.append(field.name + QStringLiteral(" = ") + textOfCell(text));
        }
        return values.join(QStringLiteral(", "));
    }

    const TableData &m_table;
    const QStringList &m_terms;
    const Mapper::DesignationPattern m_names;
    const Mapper::DesignationPattern m_designation;
    std::vector<std::vector<ColumnAnswers>> m_answers;    // for each term
    std::vector<std::vector<ColumnAnswers>> m_conditions; // for each condition
};

} // namespace

LineMatcher::LineMatcher(const QStringList &terms, const QList<CatalogSearchCondition> &conditions)
    : m_terms(terms)
    , m_conditions(conditions)
{
}

LineMatcher::Matches LineMatcher::find(const QString &descriptor, const QString &project,
                                       int wanted, const std::function<bool()> &goOn) const
{
    if (descriptor.isEmpty() || !goOn() ||
        !CatalogPlaces::instance().refusal(descriptor, project).isEmpty())
        return {};
    const auto table = TableData::read(descriptor);
    if (!table)
        return {};
    TableSearch search(*table.data, m_terms, m_conditions);
    Matches found;
    found.count = 0;
    for (int row = 0; row < table.data->rowCount(); ++row) {
        if (row % RowsBetweenQuestions == RowsBetweenQuestions - 1 && !goOn())
            return {};
        if (!search.matches(row))
            continue;
        if (++found.count <= wanted)
            found.lines.append(search.lineAt(row));
    }
    return found;
}
