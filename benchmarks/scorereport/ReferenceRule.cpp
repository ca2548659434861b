#include "ReferenceRule.h"

#include <geomcore/plan/CellValues.h>
#include <geomcore/plan/SparseAssignment.h>

#include <algorithm>
#include <cmath>
#include <map>

namespace {

struct Target
{
    const SampleTable *table;
    std::vector<std::pair<size_t, size_t>> columns;  ///< Of the source, of the target.
    int offset;                                      ///< Of its lines among those of all.
    std::map<std::pair<size_t, int>, double> rarity; ///< By column and token.
};

class Rule
{
public:
    Rule(const SampleTable &source, const SampleSet::Tables &targets, const QStringList &names)
        : m_source(source)
        , m_names(names)
        , m_found(source.lines.size(), -1)
    {
        for (const QString &name : names)
            add(targets.find(name).value());
        m_taken.assign(size_t(m_count), 0);
    }

    QHash<int, TruthFile::Place> run()
    {
        for (size_t t = 0; t < m_targets.size(); ++t)
            takeExact(m_targets[t]);
        Plan::EdgeLists edges(m_source.lines.size());
        for (size_t block = 0; block < edges.blockCount(); ++block) {
            edges.refill(block, [this](size_t line, Plan::EdgeLists::Block &out) {
                if (m_found[line] < 0)
                    out.add(edgesOf(line));
            });
        }
        const std::vector<int> chosen = Plan::assignPairs(edges, m_count, -1e6);
        QHash<int, TruthFile::Place> places;
        for (size_t line = 0; line < edges.size(); ++line) {
            if (m_found[line] < 0 && chosen[line] >= 0)
                m_found[line] = edges[line][size_t(chosen[line])].node;
            for (size_t t = m_targets.size(); m_found[line] >= 0 && t-- > 0;) {
                if (m_found[line] < m_targets[t].offset)
                    continue;
                places.insert(int(line) + 1,
                              {m_names[qsizetype(t)], m_found[line] - m_targets[t].offset + 1});
                break;
            }
        }
        return places;
    }

private:
    int number(const std::string &text)
    {
        const std::string trimmed = QByteArray::fromStdString(text).trimmed().toStdString();
        return trimmed == "None" ? 0 : m_values.number(trimmed, '.');
    }

    void add(const SampleTable &table)
    {
        Target target{&table, {}, m_count, {}};
        m_count += int(table.lines.size());
        for (size_t i = 0; i < m_source.names.size(); ++i) {
            const auto at = std::find(table.names.begin(), table.names.end(), m_source.names[i]);
            if (at != table.names.end())
                target.columns.emplace_back(i, size_t(at - table.names.begin()));
        }
        for (const auto &[own, column] : target.columns) {
            for (const auto &line : table.lines) {
                for (const int token : m_values.value(number(line[column])).distinct)
                    ++target.rarity[{column, token}];
            }
        }
        for (auto &[key, count] : target.rarity)
            count = std::log((double(table.lines.size()) + 1) / count);
        m_targets.push_back(std::move(target));
    }

    void takeExact(const Target &target)
    {
        std::map<std::vector<int>, std::vector<int>> rows;
        for (size_t row = 0; row < target.table->lines.size(); ++row) {
            std::vector<int> key;
            for (const auto &[own, column] : target.columns)
                key.push_back(number(target.table->lines[row][column]));
            rows[key].push_back(target.offset + int(row));
        }
        for (size_t line = 0; line < m_found.size(); ++line) {
            std::vector<int> key;
            bool any = false;
            for (const auto &[own, column] : target.columns) {
                key.push_back(number(m_source.lines[line][own]));
                any = any || key.back() != 0;
            }
            const auto equal = any && m_found[line] < 0 ? rows.find(key) : rows.end();
            if (equal == rows.end())
                continue;
            for (const int row : equal->second) {
                if (m_taken[size_t(row)])
                    continue;
                m_taken[size_t(row)] = 1;
                m_found[line] = row;
                break;
            }
        }
    }

    std::vector<Plan::PlanEdge> edgesOf(size_t line)
    {
        std::vector<Plan::PlanEdge> edges;
        for (size_t t = 0; t < m_targets.size(); ++t) {
            const Target &target = m_targets[t];
            const double count = double(target.table->lines.size());
            for (size_t row = 0; row < target.table->lines.size(); ++row) {
                if (m_taken[size_t(target.offset) + row] || target.columns.empty())
                    continue;
                const double place = double(line) / double(m_found.size()) - double(row) / count;
                double weight = 1 - std::abs(place);
                for (const auto &[own, column] : target.columns)
                    weight += common(target, number(m_source.lines[line][own]),
                                     number(target.table->lines[row][column]), column);
                edges.push_back({int(t), int(row), target.offset + int(row), weight, 0});
            }
        }
        return edges;
    }

    double common(const Target &target, int a, int b, size_t column) const
    {
        const std::span<const int> tokens = m_values.value(a).distinct;
        double sum = 0;
        for (const int token : m_values.value(b).distinct) {
            if (std::binary_search(tokens.begin(), tokens.end(), token))
                sum += target.rarity.at({column, token});
        }
        return sum;
    }

    const SampleTable &m_source;
    const QStringList m_names;
    Plan::CellValues m_values;
    std::vector<Target> m_targets;
    int m_count = 0;
    std::vector<int> m_found;
    std::vector<char> m_taken;
};

} // namespace

QHash<int, TruthFile::Place> ReferenceRule::partners(const SampleTable &source,
                                                     const SampleSet::Tables &targets,
                                                     const QStringList &names)
{
    return Rule(source, targets, names).run();
}
