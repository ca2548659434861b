#pragma once

#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/mapper/PrjMapperC.h>
#include <geomcore/records/CatalogMappingC.h>
#include <geomcore/records/PrjMappingC.h>
#include <geomcore/table/ContentRef.h>

#include <QHash>
#include <QString>

/// Asks the mapper about single lines of a source table. Every question makes a new mapper, over
/// the dates of the first release with this mapping alone in it. Without a release, and for a
/// mapping that cannot be used, the answers are not valid.
class LineLookUp
{
public:
    using Varset = QHash<QString, MapVarValueC>;

    LineLookUp(const VKTab::ContentRef &sourceTable, const PrjMappingC &mapping,
               const CatalogMappingC &catalog);

    /// An empty \a varset is filled with the line's values, and those of a found line are replaced
    /// by what its target sees of them. \a check may be null.
    PrjMapperLineC find(const VKTab::LineId &id, Varset &varset,
                        PrjMapperCheckResultC *check) const;
    /// The same for who wants neither varset nor check; it need not read the target tables of lines
    /// that have their entry. \a values as \a varset above.
    [[nodiscard]] PrjMapperLineC find(const VKTab::LineId &id, const Varset &values) const;
    /// Gives a mapper the table and the mapping. False if the mapping cannot be used.
    [[nodiscard]] bool start(PrjMapperC &mapper) const;

private:
    [[nodiscard]] CatalogMappingC release() const;

    const VKTab::ContentRef m_table;
    const PrjMappingC m_mapping;
    const CatalogMappingC m_catalog;
};
