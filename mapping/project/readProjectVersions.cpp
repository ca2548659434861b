#include "readProjectVersions.h"

#include <core/text/PPathName.h>
#include <geomcore/index/IndexTreeC.h>
#include <geomcore/project/CatalogPlaces.h>
#include <geomcore/project/CipVersionMgmtC.h>
#include <geomcore/project/PrjFile.h>
#include <geomcore/project/tableFileOf.h>
#include <geomcore/table/FileLayer.h>
#include <geomcore/table/TabReader.h>

namespace {

QString readTableVersion(const QString &projectFile, const QString &reference)
{
    const QString file = tableFileOf(projectFile, reference);
    if (!PPathName(file).exists(false) ||
        !CatalogPlaces::instance().refusal(file, projectFile).isEmpty())
        return {};
    VKTab::TabReader reader;
    reader.setReadMode(VKTab::TabReader::ReadHead);
    reader.readFile(file, true);
    const QString date = reader.getData()->getFinalDate(QString());
    return date.isEmpty() ? QString() : CipVersionMgmtC::MakeVersionFromDate(date, QString());
}

} // namespace

QPair<QString, QString> readProjectVersions(const QString &targetPath)
{
    QPair<QString, QString> versions;
    const PPathName path = IndexTreeC::instance()->compatiblePathToResolvedPath(targetPath);
    PrjFile project;
    if (!path.exists(false) ||
        !CatalogPlaces::instance().refusalOfTarget(path.native()).isEmpty() ||
        project.Load(path.native(), false) != 1)
        return versions;
    const QString date = project.GetLexemValue("DATE");
    if (!date.isEmpty())
        versions.first = CipVersionMgmtC::MakeVersionFromDate(date, QString());
    const QString reference = project.GetLexemValue("SACHM");
    if (!reference.isEmpty())
        versions.second = readTableVersion(path.native(), reference);
    return versions;
}
