#include "Reader.h"

#include "Content.h"
#include "FileLayer.h"
#include "TabOptions.h"
#include "TabReader.h"

#include <core/message/PMessage.h>

namespace VKTab {

int Reader::readByProject(const refHandle<PrjClass> &project, Content &content, bool tell)
{
    m_errors.clear();
    const bool read = fill(project, content);
    if (!read)
        content.setFileLayer(nullptr);
    if (tell)
        tellErrors();
    return read ? 1 : -1;
}

int Reader::readByProject(const refHandle<PrjClass> &project, Content &content,
                          const boost::shared_ptr<TabOptions> &options,
                          const PRefPtr<PLinkDbC> & /*linkDb*/, bool tell)
{
    if (options)
        content.setOptions(options);
    return readByProject(project, content, tell);
}

void Reader::tellErrors() const
{
    for (const TableError &error : m_errors.first(qMin(m_errors.size(), MaxTold)))
        PMessage::LogToWindow(error.toString());
    if (m_errors.size() > MaxTold)
        PMessage::LogToWindow(QStringLiteral("%1: %2 more cells are wrong")
                                  .arg(m_errors.first().file)
                                  .arg(m_errors.size() - MaxTold));
}

bool Reader::fill(const refHandle<PrjClass> &project, Content &content)
{
    if (!project || !project->isValid()) {
        const QString path = project ? project->path() : QString();
        const QString reason = project ? project->errorText() : QString();
        m_errors.append({reason.isEmpty() ? path : QString(), 0, 0,
                         reason.isEmpty() ? QStringLiteral("the project was not read") : reason});
        return false;
    }
    if (project->tableFile().isEmpty()) {
        m_errors.append(
            {project->path(), 0, 0,
             QStringLiteral("the project has no table; its lexeme SACHM is to name one")});
        return false;
    }
    TabReader reader;
    const bool read = reader.readFile(project->tableFile(), false) == 1;
    m_errors = reader.errors();
    if (!read)
        return false;
    reader.getData()->setKeyValue(KeyProjectPath, project->path());
    content.setFileLayer(reader.getData());
    return true;
}

} // namespace VKTab
