#include "readProjectVersions.h"

#include <core/text/PPathName.h>
#include <geomcore/index/IndexTreeC.h>
#include <geomcore/project/CipVersionMgmtC.h>
#include <geomcore/project/PrjFile.h>
#include <geomcore/table/FileLayer.h>
#include <geomcore/table/TabReader.h>

namespace {

QString readTableVersion(const PPathName &projectPath, const QString &tableFile)
{
    const PPathName path = PPathName::MergeDirAndFile(projectPath.directory(), tableFile, true);
    if (!path.exists(false))
        return {};
    VKTab::TabReader reader;
    reader.setReadMode(VKTab::TabReader::ReadHead);
    reader.readFile(path.native(), true);
    const QString date = reader.getData()->getFinalDate(QString());
    return date.isEmpty() ? QString() : CipVersionMgmtC::MakeVersionFromDate(date, QString());
}

} // namespace

QPair<QString, QString> readProjectVersions(const QString &targetPath)
{
    QPair<QString, QString> versions;
    const PPathName path = IndexTreeC::instance()->compatiblePathToResolvedPath(targetPath);
    PrjFile project;
    if (!path.exists(false) || project.Load(path.native(), false) != 1)
        return versions;
    const QString date = project.GetLexemValue("DATE");
    if (!date.isEmpty())
        versions.first = CipVersionMgmtC::MakeVersionFromDate(date, QString());
    const QString tableFile = project.GetLexemValue("SACHM");
    if (!tableFile.isEmpty())
        versions.second = readTableVersion(path, tableFile);
    return versions;
}
