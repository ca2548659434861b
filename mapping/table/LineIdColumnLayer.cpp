#include "LineIdColumnLayer.h"

#include <core/text/PString.h>
#include <geomcore/table/LayerType.h>

#include <boost/make_shared.hpp>

int LineIdColumnLayer::layerType()
{
    static const int type = VKTab::registerLayerType(QStringLiteral("LineIdColumnLayer"));
    return type;
}

LineIdColumnLayer::LineIdColumnLayer()
    : m_id(getLayerIdOffset(layerType()))
{
    const QString name = QStringLiteral("LINE_ID");
    VKTab::Var var(VKTab::VarTypePlain);
    var.setVarId(m_id);
    var.setVarSource(layerType());
    var.setName(name);
    var.setDescription(PString::translate("Zeilennummer", "VelkLinkDbGui"));
    var.setDataType(VKTab::DataTypeInteger);
    var.setVida(VKTab::VIDA('I', 0, false));
    addVar(var);
    setKeyValue(VKTab::KeyColumnOrder, QStringList{QStringLiteral("..."), name});
}

LineIdColumnLayer::LineIdColumnLayer(const LineIdColumnLayer &other) = default;

LineIdColumnLayer::~LineIdColumnLayer() = default;

boost::shared_ptr<VKTab::LayerI> LineIdColumnLayer::clone() const
{
    return boost::make_shared<LineIdColumnLayer>(*this);
}

VKTab::Value LineIdColumnLayer::getValue(const VKTab::VarId &id, const VKTab::LineId &line,
                                         const VKTab::LineI &shown) const
{
    if (id == m_id && line.isValid())
        return getValue(id, line);
    return BaseLayer::getValue(id, line, shown);
}

VKTab::Value LineIdColumnLayer::getValue(const VKTab::VarId &id, const VKTab::LineId &line) const
{
    if (id == m_id && line.isValid())
        return line.value(0);
    return BaseLayer::getValue(id, line);
}
