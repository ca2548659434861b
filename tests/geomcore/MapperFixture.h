#pragma once

#include "../support/TestCatalog.h"

#include <geomcore/binding/createVarsetFromVKTable.h>
#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/mapper/PrjMapperC.h>
#include <geomcore/table/Line.h>
#include <geomcore/table/LineView.h>

/// A source project "old/a.prj", a mapping of it and a mapper on both.
struct MapperFixture
{
    using Varset = PrjMapperC::Varset;

    explicit MapperFixture(const TestCatalog &catalog, const QStringList &targets)
        : mapper(catalog.tree())
        , mapping(mappingOf("old/a.prj", targets))
        , source(catalog.read("old/a.prj"))
    {
    }

    /// Hands table and mapping to the mapper, to be called when the mapping is complete.
    QFlags<PRJMAPPING::MappingState_> start(const QList<AgreedReplacement> &agreed = {},
                                            const QList<LearnedReplacement> &learned = {})
    {
        mapper.setCreatorMode(true);
        mapper.setSourceTable(source);
        ReleaseMappingC release;
        release.setReplacements(agreed);
        release.setLearned(learned);
        release.addMapping(mapping);
        CatalogMappingC catalog;
        catalog.addRelease(release);
        return mapper.findMapping("old/a.prj", "v1", catalog);
    }

    [[nodiscard]] Varset varset(int line) const
    {
        return createVarsetFromVKTable(source, VKTab::LineId(line), {});
    }
    [[nodiscard]] PrjMapperLineC create(int line)
    {
        return mapper.createLine(line, varset(line), false);
    }
    /// The automatic check with the values of the line.
    [[nodiscard]] PrjMapperCheckResultC check(const PrjMapperLineC &line)
    {
        const Varset values = varset(line.getSourceLineId());
        return mapper.checkMapping(line, values, mapper.updateVarset(line, values, {}),
                                   CheckValues | CheckConditions, QString());
    }
    /// "target:line/ok" of what is proposed for a line, "none" without a proposal.
    [[nodiscard]] QString proposal(int line)
    {
        const PrjMapperLineC proposed = create(line);
        if (!proposed.isFound())
            return proposed.isValid() ? QStringLiteral("none") : QStringLiteral("invalid");
        return QStringLiteral("%1:%2%3").arg(
            QString::number(proposed.getTargetIndex()), QString::number(proposed.getTargetLineId()),
            check(proposed).isOK() ? QStringLiteral(" ok") : QString());
    }

    PrjMapperC mapper;
    PrjMappingC mapping;
    VKTab::Content source;
};
