#include "ErpNumberLayer.h"

#include <core/text/PString.h>

#include <boost/make_shared.hpp>

#include <utility>

ErpNumberWishes::ErpNumberWishes(std::function<void()> wished)
    : m_wished(std::move(wished))
{
}

void ErpNumberWishes::wish(const VKTab::LineId &line)
{
    const std::lock_guard guard(m_lock);
    if (m_known.contains(line))
        return;
    m_known.insert(line);
    m_open.append(line);
    if (m_open.size() == 1 && m_wished)
        m_wished();
}

QList<VKTab::LineId> ErpNumberWishes::take()
{
    const std::lock_guard guard(m_lock);
    return std::exchange(m_open, {});
}

void ErpNumberWishes::forget()
{
    const std::lock_guard guard(m_lock);
    m_known.clear();
    m_open.clear();
}

void ErpNumberWishes::close()
{
    const std::lock_guard guard(m_lock);
    m_wished = nullptr;
}

ErpNumberLayer::ErpNumberLayer(const std::shared_ptr<VKTab::ErpDataSourceI> &source,
                               const std::shared_ptr<ErpNumberWishes> &wishes)
    : ErpLayer(source)
    , m_wishes(wishes)
    , m_id(getVarId(QString::fromLatin1(columnName)))
{
    setKeyValue(VKTab::KeyColumnOrder,
                QStringList{QString::fromLatin1(columnName), QStringLiteral("...")});
}

ErpNumberLayer::ErpNumberLayer(const ErpNumberLayer &other) = default;

ErpNumberLayer::~ErpNumberLayer() = default;

boost::shared_ptr<VKTab::LayerI> ErpNumberLayer::clone() const
{
    return boost::make_shared<ErpNumberLayer>(*this);
}

VKTab::Value ErpNumberLayer::getValue(const VKTab::VarId &id, const VKTab::LineId &line,
                                      const VKTab::LineI &shown) const
{
    if (id == m_id && line.isValid())
        m_wishes->wish(line);
    return ErpLayer::getValue(id, line, shown);
}

VKTab::Value ErpNumberLayer::getValue(const VKTab::VarId &id, const VKTab::LineId &line) const
{
    if (id == m_id && line.isValid())
        m_wishes->wish(line);
    return ErpLayer::getValue(id, line);
}

bool ErpNumberLayer::setNumbers(const QList<VKTab::LineId> &lines,
                                const ErpNumberSourceI::Numbers &numbers)
{
    bool changed = false;
    for (const VKTab::LineId &line : lines) {
        const auto found = numbers.constFind(line);
        ValueMap values;
        values[m_id] =
            found == numbers.constEnd() ? VKTab::Value() : VKTab::Value(erpNumberText(*found));
        changed |= storeValues(line, values);
    }
    return changed;
}

VKTab::Var ErpNumberLayer::column()
{
    VKTab::Var var(VKTab::VarTypeForeign);
    var.setName(QString::fromLatin1(columnName));
    var.setDescription(PString::translate("ERP-Nummer", "VelkGeomCore"));
    var.setDataType(VKTab::DataTypeText);
    return var;
}
