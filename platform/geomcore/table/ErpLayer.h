#pragma once

#include "BaseLayer.h"
#include "ErpDataSourceI.h"

#include <memory>

namespace VKTab {

/// Columns of an ERP system attached to the lines of a table. Values are kept as they were when the
/// line was last updated.
class VELKGEOMCORE_EXPORT ErpLayer : public BaseLayer
{
public:
    /// Null for a layer without columns.
    explicit ErpLayer(std::shared_ptr<ErpDataSourceI> source);
    ErpLayer(const ErpLayer &other);
    ~ErpLayer() override;

    [[nodiscard]] boost::shared_ptr<LayerI> clone() const override;
    [[nodiscard]] bool isLocked(const VarId &id, const LineId &line) const override;

    /// Reads the values of a line anew. The number of cells that changed, -1 if they could not be
    /// read; then the line keeps its old values.
    int updatePLMInfo(int lineId);
    int updatePLMInfo(const LineId &line);

private:
    std::shared_ptr<ErpDataSourceI> m_source;
};

} // namespace VKTab
