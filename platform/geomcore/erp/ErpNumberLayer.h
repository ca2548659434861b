#pragma once

#include "ErpNumberSourceI.h"

#include <geomcore/table/ErpLayer.h>

#include <functional>
#include <mutex>

/// Which lines' ERP numbers were looked at and are to be read. Any thread.
class VELKGEOMCORE_EXPORT ErpNumberWishes
{
public:
    /// \a wished is called, on the thread of whoever looked and with this object locked, when there
    /// are wishes again.
    explicit ErpNumberWishes(std::function<void()> wished);

    /// A line is wished for once, until it is forgotten.
    void wish(const VKTab::LineId &line);
    /// The wishes so far, which are fulfilled then.
    [[nodiscard]] QList<VKTab::LineId> take();
    /// All lines may be wished for anew.
    void forget();
    /// Nobody is told any more.
    void close();

private:
    std::mutex m_lock; // guards all below
    std::function<void()> m_wished;
    QSet<VKTab::LineId> m_known;
    QList<VKTab::LineId> m_open;
};

/// A column of ERP numbers. A cell is empty until its number was read: looking at it wishes for
/// that.
class VELKGEOMCORE_EXPORT ErpNumberLayer : public VKTab::ErpLayer
{
public:
    static constexpr const char *columnName = "ERP_NUMBER";

    /// \a source reads single lines at once, for updatePLMInfo(); copies of the layer share the
    /// wishes.
    ErpNumberLayer(const std::shared_ptr<VKTab::ErpDataSourceI> &source,
                   const std::shared_ptr<ErpNumberWishes> &wishes);
    ErpNumberLayer(const ErpNumberLayer &other);
    ~ErpNumberLayer() override;

    [[nodiscard]] boost::shared_ptr<VKTab::LayerI> clone() const override;
    [[nodiscard]] VKTab::Value getValue(const VKTab::VarId &id, const VKTab::LineId &line,
                                        const VKTab::LineI &shown) const override;
    [[nodiscard]] VKTab::Value getValue(const VKTab::VarId &id,
                                        const VKTab::LineId &line) const override;

    /// What was read of these lines. True if that changed anything.
    bool setNumbers(const QList<VKTab::LineId> &lines, const ErpNumberSourceI::Numbers &numbers);

    /// The column, as a source of values has it.
    [[nodiscard]] static VKTab::Var column();

private:
    std::shared_ptr<ErpNumberWishes> m_wishes;
    VKTab::VarId m_id;
};
