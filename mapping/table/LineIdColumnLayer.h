#pragma once

#include <geomcore/table/BaseLayer.h>

/// Adds the column "LINE_ID" with the line numbers to a table, as its last one: value range texts
/// name target lines by their numbers.
class LineIdColumnLayer : public VKTab::BaseLayer
{
public:
    LineIdColumnLayer();
    LineIdColumnLayer(const LineIdColumnLayer &other);
    LineIdColumnLayer &operator=(const LineIdColumnLayer &) = delete;
    ~LineIdColumnLayer() override;

    [[nodiscard]] static int layerType();

    [[nodiscard]] boost::shared_ptr<VKTab::LayerI> clone() const override;
    [[nodiscard]] VKTab::Value getValue(const VKTab::VarId &id, const VKTab::LineId &line,
                                        const VKTab::LineI &shown) const override;
    [[nodiscard]] VKTab::Value getValue(const VKTab::VarId &id,
                                        const VKTab::LineId &line) const override;

private:
    VKTab::VarId m_id;
};
