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
        VKTab::TableErrorList errors;
        if (auto table = Mapper::TargetTables::instance().open(file.native(), &errors)) {
            m_tables.push_back(std::move(table));
            continue;
        }
        m_unreadable.append(path);
        if (!errors.isEmpty())
            m_errors.append(errors.first().toString());
    }
}

} // namespace VelkRelease
