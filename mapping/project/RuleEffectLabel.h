#pragma once

#include <geomcore/records/PrjMappingC.h>
#include <geomcore/table/ContentRef.h>

#include <QLabel>
#include <QThreadPool>
#include <QTimer>

#include <atomic>
#include <memory>
#include <optional>

namespace VelkRelease {
struct RuleEffect;
}

/// One line that tells what a condition or variable mapping would mean while it is being written:
/// how many lines the target takes, how many open ones would be assigned, which confirmed ones
/// would no longer fit. Works that out beside the GUI thread; what is outdated is never shown.
class RuleEffectLabel : public QLabel
{
    Q_OBJECT

public:
    /// Of a target of the mapping, with the source project's table, which gets no new layers while
    /// this lives.
    RuleEffectLabel(const PrjMappingC &mapping, int target, const VKTab::ContentRef &table,
                    QWidget *parent);
    /// Waits for the computation, which ends soon.
    ~RuleEffectLabel() override;

    /// Tells of this target in place of the mapping's, soon. None: there is nothing to tell.
    void setChangedTarget(const std::optional<PrjMappingTargetC> &target);

    /// "Zeilen: 14 von 29 ...", with the numbers of the first misfits.
    [[nodiscard]] static QString textOf(const VelkRelease::RuleEffect &effect);

private:
    void start();
    void stop();

    const PrjMappingC m_mapping;
    const int m_target;
    const VKTab::ContentRef m_table;
    std::optional<PrjMappingTargetC> m_changed;
    QTimer m_delay;
    std::shared_ptr<std::atomic<bool>> m_cancelled; ///< of the computation that runs
    QThreadPool m_pool;
};
