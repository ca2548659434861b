#pragma once

#include "ScriptRoots.h"

#include <core/component/proxyObjectC.h>
#include <core/text/ProxyPtrT.h>
#include <geomcore/records/MappingRows.h>
#include <geomcore/records/PrjMappingC.h>
#include <geomcore/table/proxyTableC.h>

/// Where the lines of one project went, to be read by scripts: as it was when the script asked for
/// it. Rows are the entries by source line, then by target; a row that is not there is an error of
/// the script.
class prxProjectMappingC : public proxyObjectC
{
public:
    prxProjectMappingC(const PrjMappingC &mapping, const ScriptRoots &roots);

    [[nodiscard]] const proxyMemberDescListS *getProxyTypeInfo() const override;
    /// Scripts have all of the below.
    [[nodiscard]] static const proxyMemberDescListS *getStaticProxyTypeInfo();

    [[nodiscard]] QString path() const { return m_mapping.getSourcePath(); }
    [[nodiscard]] QString version() const { return m_mapping.getSourceVersion(); }
    /// Its table could not be read when the lines were assigned.
    [[nodiscard]] bool hasTableError() const;

    // Counts, as the editor shows them.

    [[nodiscard]] int lines() const;
    [[nodiscard]] int notFound() const;
    [[nodiscard]] int mapped() const;
    [[nodiscard]] int toCheck() const;
    [[nodiscard]] int verified() const;

    [[nodiscard]] int targetCount() const { return m_mapping.countTargets(); }
    /// Empty for the target of the lines without one.
    [[nodiscard]] QString targetAt(int index) const;

    [[nodiscard]] int rowCount() const { return int(m_rows.size()); }
    /// The first row of a source line, -1 without one.
    [[nodiscard]] int rowOf(int sourceLine) const;
    [[nodiscard]] int sourceLineAt(int row) const;
    /// -1 for a line without target line; then it has no target path either.
    [[nodiscard]] int targetLineAt(int row) const;
    [[nodiscard]] QString targetPathAt(int row) const;
    /// A PRJMAPPING::CheckState.
    [[nodiscard]] int stateAt(int row) const;
    [[nodiscard]] bool isConflictAt(int row) const;
    /// Somebody has to decide: in conflict, to be checked, or without target and not confirmed.
    [[nodiscard]] bool isOpenAt(int row) const;
    /// Of resolved value ranges.
    [[nodiscard]] QString textAt(int row) const;

    /// Reads the project's table anew. What keeps it from being read is the script's error.
    [[nodiscard]] ProxyPtrT<VKTab::proxyTableC> sourceTable() const;
    /// The same of a target by its path.
    [[nodiscard]] ProxyPtrT<VKTab::proxyTableC> targetTable(const QString &path) const;

private:
    ~prxProjectMappingC() override;

    [[nodiscard]] const MappingRow &row(int index) const;

    PrjMappingC m_mapping;
    std::vector<MappingRow> m_rows;
    ScriptRoots m_roots;
};
