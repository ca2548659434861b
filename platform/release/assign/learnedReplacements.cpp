#include "learnedReplacements.h"

#include "VariableNames.h"

#include <core/parallel/WorkerPool.h>
#include <geomcore/table/TableData.h>
#include <geomcore/value/CellKey.h>

#include <algorithm>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <tuple>

namespace VelkRelease {

namespace {

/// So many are kept: all are read with the release ever after.
constexpr qsizetype MostKept = 1000;
/// Bytes of a value; changes of longer ones are left out, for the same reason.
constexpr size_t MostOfValue = 200;

/// The value with a point if it is a number; empty if there is none, or one that is too long.
QString valueText(const VKTab::TableData &table, int row, const QString &variable)
{
    const int column = table.columnOf(variable);
    if (column < 0)
        return {};
    std::vector<std::string_view> cells(size_t(table.columnCount()));
    std::string scratch;
    table.cells(row, cells, scratch);
    const char decimalChar = table.descriptor().fields[column].decimalChar;
    const std::string_view cell = cells[size_t(column)];
    const VKTab::CellKey key(cell, VKTab::CompareMode::Number, decimalChar, table.isMissing(cell));
    std::string text(VKTab::trimmedCell(cell));
    if (key.kind() == VKTab::CellKey::Kind::Missing || text.size() > MostOfValue)
        return {};
    if (key.kind() == VKTab::CellKey::Kind::Number)
        std::replace(text.begin(), text.end(), decimalChar, '.');
    return QString::fromStdString(text);
}

} // namespace

QList<LearnedReplacement> learnedReplacements(const std::vector<SharedChanges::Change> &changes,
                                              const VariableNames &names, const ReadTable &source,
                                              const ReadTable &target)
{
    std::map<int, std::vector<size_t>> byProject;
    for (size_t i = 0; i < changes.size(); ++i)
        byProject[changes[i].project].push_back(i);
    const std::vector<std::pair<int, std::vector<size_t>>> projects(byProject.begin(),
                                                                    byProject.end());
    std::vector<LearnedReplacement> found(changes.size());
    WorkerPool::instance().run(int(projects.size()), [&](int i) {
        const auto &[project, its] = projects[size_t(i)];
        const auto before = source(project);
        const auto after = target(project);
        for (const size_t change : its) {
            const SharedChanges::Change &shown = changes[change];
            const QString name = names.nameOf(shown.variable);
            if (before && after)
                found[change] = {name, valueText(*before, shown.sourceRow, name),
                                 valueText(*after, shown.targetRow, name), shown.supports,
                                 shown.cases};
        }
    });
    QList<LearnedReplacement> kept;
    for (const LearnedReplacement &replacement : found) {
        if (!replacement.before.isEmpty() && !replacement.after.isEmpty())
            kept.append(replacement);
    }
    return kept;
}

QList<LearnedReplacement> mostSupported(QList<LearnedReplacement> learned)
{
    const auto byText = [](const LearnedReplacement &a, const LearnedReplacement &b) {
        return std::tie(a.variable, a.before, a.after, a.factor, a.offset) <
               std::tie(b.variable, b.before, b.after, b.factor, b.offset);
    };
    std::sort(learned.begin(), learned.end(),
              [&](const LearnedReplacement &a, const LearnedReplacement &b) {
                  return a.supports != b.supports ? a.supports > b.supports : byText(a, b);
              });
    learned.resize(std::min(learned.size(), MostKept));
    std::sort(learned.begin(), learned.end(), byText);
    return learned;
}

} // namespace VelkRelease
