#include "LineLookUp.h"

#include <geomcore/binding/createVarsetFromVKTable.h>
#include <geomcore/index/IndexTreeC.h>
#include <geomcore/table/LineView.h>

namespace {

template<class Values>
PrjMapperLineC lookUp(PrjMapperC &mapper, int number, const Values &values)
{
    PrjMapperLineC line = mapper.findLine(number, values);
    if (!line.isValid())
        line = mapper.createLine(number, values, false);
    return line;
}

} // namespace

LineLookUp::LineLookUp(const VKTab::ContentRef &sourceTable, const PrjMappingC &mapping,
                       const CatalogMappingC &catalog)
    : m_table(sourceTable)
    , m_mapping(mapping)
    , m_catalog(catalog)
{
}

CatalogMappingC LineLookUp::release() const
{
    CatalogMappingC catalog;
    const QList<ReleaseMappingC> releases = m_catalog.getReleases();
    if (releases.isEmpty())
        return catalog;
    ReleaseMappingC release = releases.first().head();
    release.addMapping(m_mapping);
    catalog.addRelease(release);
    return catalog;
}

bool LineLookUp::start(PrjMapperC &mapper) const
{
    mapper.setSourceTable(m_table);
    const auto state =
        mapper.findMapping(m_mapping.getSourcePath(), m_mapping.getSourceVersion(), release());
    return state & PRJMAPPING::StateUsable;
}

PrjMapperLineC LineLookUp::find(const VKTab::LineId &id, Varset &varset,
                                PrjMapperCheckResultC *check) const
{
    if (m_catalog.getReleases().isEmpty())
        return {};
    if (varset.isEmpty())
        varset = createVarsetFromVKTable(m_table, id, {});
    PrjMapperC mapper(IndexTreeC::instance());
    PrjMapperLineC line;
    if (start(mapper)) {
        line = lookUp(mapper, id.value(0), varset);
        if (line.isValid() && line.isFound())
            varset = mapper.updateVarset(line, varset, VarsetTargetVariables);
    }
    if (check)
        *check = mapper.checkMapping(line, id);
    return line;
}

PrjMapperLineC LineLookUp::find(const VKTab::LineId &id, const Varset &values) const
{
    if (m_catalog.getReleases().isEmpty())
        return {};
    PrjMapperC mapper(IndexTreeC::instance());
    if (!start(mapper))
        return {};
    if (!values.isEmpty())
        return lookUp(mapper, id.value(0), values);
    const VKTab::LineView view(m_table, id);
    return view.isValid() ? lookUp(mapper, id.value(0), view)
                          : lookUp(mapper, id.value(0), createVarsetFromVKTable(m_table, id, {}));
}
