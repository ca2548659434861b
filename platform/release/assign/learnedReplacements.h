#pragma once

#include "SharedChanges.h"

#include <geomcore/records/LearnedReplacement.h>

#include <QList>

#include <functional>
#include <memory>
#include <vector>

namespace VKTab {
class TableData;
}

namespace VelkRelease {

class VariableNames;

/// By number of a project. Any thread; null if it cannot be read.
using ReadTable = std::function<std::shared_ptr<const VKTab::TableData>(int project)>;

/// The changes with their values as texts. Reads the tables of the projects that the changes name.
[[nodiscard]] QList<LearnedReplacement>
learnedReplacements(const std::vector<SharedChanges::Change> &changes, const VariableNames &names,
                    const ReadTable &source, const ReadTable &target);

/// Those with most supports, in an order that depends on nothing but these.
[[nodiscard]] QList<LearnedReplacement> mostSupported(QList<LearnedReplacement> learned);

} // namespace VelkRelease
