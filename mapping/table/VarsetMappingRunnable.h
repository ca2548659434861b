#pragma once

#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/records/PrjMappingC.h>
#include <geomcore/table/ContentRef.h>
#include <geomcore/table/FindValue.h>
#include <geomcore/value/ResolveRangeOptionsC.h>

#include <QHash>
#include <QMap>
#include <QRunnable>
#include <QStringList>
#include <QVector>

#include <mutex>

class ProgressEventAccumulatorBase;
class VkTableView;

/// Finds, for every value combination of lines with value ranges, its line in the target table, and
/// records it in the lines' value range texts. Runs on a worker thread and works on a mapping of
/// its own, which is taken from it after the run; reads the source table, which nobody may change
/// meanwhile. Cannot be cancelled.
class VarsetMappingRunnable : public QRunnable
{
public:
    struct Task
    {
        ProgressEventAccumulatorBase *accumulator = nullptr; ///< not owned, may be null
        QStringList variables;                               ///< names to resolve
        QVector<VKTab::LineId> lineIds;
        PrjMappingC mapping;
        VKTab::ContentRef sourceTable;
        VkTableView *targetView = nullptr; ///< not owned, may be null
        bool targetFromRepository = false;
        bool showHiddenCols = false;
    };

    explicit VarsetMappingRunnable(const Task &task);
    ~VarsetMappingRunnable() override;

    void run() override;

    /// Before the target view goes, on the GUI thread while the work may go on.
    void forgetTargetView();

    /// After the run.
    [[nodiscard]] PrjMappingC getMapping() const { return m_task.mapping; }
    /// A value combination was recorded. After the run.
    [[nodiscard]] bool isChanged() const { return m_changed; }

private:
    using Varset = QHash<QString, MapVarValueC>;
    /// New entries of one source line, by target index.
    using Touched = QMap<int, PrjMappingTargetLineC>;

    void runLines();
    void mapLine(const VKTab::LineId &id);
    void mapCombination(int sourceLine, const Varset &varset, Touched &touched);
    [[nodiscard]] VKTab::ContentRef targetTable(const QString &targetPath);
    void showHiddenColumns();
    [[nodiscard]] VKTab::LineId findLine(const VKTab::Content &table, const Varset &varset) const;
    [[nodiscard]] QList<VKTab::FindValue> findValues(const VKTab::Content &table,
                                                     const Varset &varset) const;

    Task m_task;
    std::mutex m_viewLock; ///< guards the target view
    bool m_changed = false;
    QHash<QString, VKTab::ContentRef> m_tables; ///< by target path as stored
    const VKTab::ResolveRangeOptionsC m_options;
};
