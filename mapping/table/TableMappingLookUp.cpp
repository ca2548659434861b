#include "TableMappingWidgetPrivate.h"

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

CatalogMappingC TableMappingWidgetPrivate::currentRelease() const
{
    CatalogMappingC catalog;
    const QList<ReleaseMappingC> releases = catalogMapping.getReleases();
    if (releases.isEmpty())
        return catalog;
    ReleaseMappingC release;
    release.setSourceDate(releases.first().getSourceDate());
    release.setTargetDate(releases.first().getTargetDate());
    release.addMapping(mapping);
    catalog.addRelease(release);
    return catalog;
}

bool TableMappingWidgetPrivate::startMapper(PrjMapperC &mapper) const
{
    mapper.setSourceTable(sourceTable);
    const auto state =
        mapper.findMapping(mapping.getSourcePath(), mapping.getSourceVersion(), currentRelease());
    return state & PRJMAPPING::StateUsable;
}

PrjMapperLineC TableMappingWidgetPrivate::mapperLineFor(const VKTab::LineId &id, Varset &varset,
                                                        PrjMapperCheckResultC *check) const
{
    if (catalogMapping.getReleases().isEmpty())
        return {};
    if (varset.isEmpty())
        varset = createVarsetFromVKTable(sourceTable, id, {});
    PrjMapperC mapper(IndexTreeC::instance());
    PrjMapperLineC line;
    if (startMapper(mapper)) {
        line = lookUp(mapper, id.value(0), varset);
        if (line.isValid() && line.isFound())
            varset = mapper.updateVarset(line, varset, VarsetTargetVariables);
    }
    if (check)
        *check = mapper.checkMapping(line, id);
    return line;
}

PrjMapperLineC TableMappingWidgetPrivate::mapperLineFor(const VKTab::LineId &id,
                                                        const Varset &values) const
{
    if (catalogMapping.getReleases().isEmpty())
        return {};
    PrjMapperC mapper(IndexTreeC::instance());
    if (!startMapper(mapper))
        return {};
    if (!values.isEmpty())
        return lookUp(mapper, id.value(0), values);
    const VKTab::LineView view(sourceTable, id);
    return view.isValid()
               ? lookUp(mapper, id.value(0), view)
               : lookUp(mapper, id.value(0), createVarsetFromVKTable(sourceTable, id, {}));
}
