#include "Reader.h"

#include "Content.h"
#include "FileLayer.h"
#include "TabOptions.h"
#include "TabReader.h"

#include <core/text/PString.h>
#include <geomcore/csv/TableErrors.h>
#include <geomcore/project/CatalogPlaces.h>

namespace VKTab {

namespace {

TableErrorList warningsOf(const PrjClass &project)
{
    TableErrors warnings;
    for (const PIniFile::Diagnostic &diagnostic : project.warnings())
        warnings.add({project.path(), diagnostic.line, 0, diagnostic.message});
    return warnings.list();
}

} // namespace

int Reader::readByProject(const refHandle<PrjClass> &project, Content &content, bool details)
{
    m_errors.clear();
    const bool read = fill(project, content);
    if (!read)
        content.setFileLayer(nullptr);
    if (project && details)
        m_errors += warningsOf(*project);
    else if (read)
        m_errors.clear();
    return read ? 1 : -1;
}

int Reader::readByProject(const refHandle<PrjClass> &project, Content &content,
                          const boost::shared_ptr<TabOptions> &options,
                          const PRefPtr<PLinkDbC> & /*linkDb*/, bool details)
{
    if (options)
        content.setOptions(options);
    return readByProject(project, content, details);
}

bool Reader::fail(const QString &file, const QString &text)
{
    m_errors.append({file, 0, 0, text});
    return false;
}

bool Reader::fill(const refHandle<PrjClass> &project, Content &content)
{
    if (!project || !project->isValid()) {
        const QString reason = project ? project->errorText() : QString();
        const QString path = project && reason.isEmpty() ? project->path() : QString();
        return fail(path, reason.isEmpty() ? PString::translate("das Projekt wurde nicht gelesen",
                                                                "VelkGeomCore")
                                           : reason);
    }
    const QString table = project->tableFile();
    if (table.isEmpty())
        return fail(
            project->path(),
            PString::translate("das Projekt hat keine Tabelle; sein Lexem SACHM muss eine nennen",
                               "VelkGeomCore"));
    const QString refusal = CatalogPlaces::instance().refusal(table, project->path());
    if (!refusal.isEmpty())
        return fail(project->path(), refusal);
    TabReader reader;
    const bool read = reader.readFile(table, false) == 1;
    m_errors = reader.errors();
    if (!read)
        return false;
    reader.getData()->setKeyValue(KeyProjectPath, project->path());
    content.setFileLayer(reader.getData());
    return true;
}

} // namespace VKTab
