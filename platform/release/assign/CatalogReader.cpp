#include "CatalogReader.h"

#include <geomcore/project/CatalogPlaces.h>
#include <geomcore/project/CipVersionMgmtC.h>
#include <geomcore/project/PrjClass.h>
#include <geomcore/table/makeSachmRelativeToCatalog.h>
#include <geomcore/table/TableData.h>

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

namespace VelkRelease {

namespace {

QString versionOf(const QString &date)
{
    return CipVersionMgmtC::MakeVersionFromDate(date, QString());
}

void readTable(const QString &file, CatalogProject &project)
{
    const auto result = VKTab::TableData::read(file);
    for (const VKTab::TableError &error : result.errors)
        project.errors << error.toString();
    project.table = result.data;
    if (!result.data)
        return;
    project.tableVersion = versionOf(result.data->descriptor().finalDate);
    for (const VKTab::TableError &warning : result.data->warnings())
        project.warnings << warning.toString();
}

} // namespace

CatalogReader::CatalogReader(const QString &root, const QString &catalog)
    : m_root(QDir::cleanPath(root))
    , m_catalog(catalog)
{
    CatalogPlaces::instance().addRoot(PPathName(m_root));
}

QString CatalogReader::directory() const
{
    return m_root + '/' + m_catalog;
}

bool CatalogReader::exists() const
{
    return QFileInfo(directory()).isDir();
}

QStringList CatalogReader::projectPaths() const
{
    QStringList paths;
    QDirIterator files(directory(), {"*.prj"}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        paths << files.next().mid(m_root.size() + 1);
    paths.sort();
    return paths;
}

CatalogProject CatalogReader::read(const QString &projectPath) const
{
    CatalogProject project;
    project.path = projectPath;
    const QString file = m_root + '/' + projectPath;
    const refHandle<PrjClass> prj(new PrjClass(true, false, false));
    if (prj->read(file, PrjClass::ReadAll) != 1) {
        project.errors << prj->errorText();
        return project;
    }
    project.date = prj->lexem("DATE");
    project.version = versionOf(project.date);
    VKTab::makeSachmRelativeToCatalog(prj, projectPath);
    const QString table = prj->tableFile();
    if (table.isEmpty())
        return project;
    const QString refusal = CatalogPlaces::instance().refusal(table, file);
    if (refusal.isEmpty())
        readTable(table, project);
    else
        project.errors << file + QStringLiteral(": ") + refusal;
    return project;
}

} // namespace VelkRelease
