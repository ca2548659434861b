#include "TargetGuard.h"

#include <geomcore/index/IndexTreeC.h>
#include <geomcore/mapper/TargetTables.h>
#include <geomcore/records/PrjMappingC.h>

namespace VelkRelease {

TargetGuard::TargetGuard(const PrjMappingC &mapping)
{
    for (const PrjMappingTargetC &target : mapping.getTargets()) {
        const QString path = target.getTargetPath();
        if (path.isEmpty() || m_unreadable.contains(path))
            continue;
        const PPathName file =
            IndexTreeC::instance()->compatiblePathToResolvedPath(PPathName(path));
        if (auto table = Mapper::TargetTables::instance().open(file.native()))
            m_tables.push_back(std::move(table));
        else
            m_unreadable.append(path);
    }
}

} // namespace VelkRelease
