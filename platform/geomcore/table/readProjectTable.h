#pragma once

#include <geomcore/csv/TableError.h>

#include <geomcore/VelkGeomCoreGlobal.h>

#include <boost/shared_ptr.hpp>

#include <QString>

namespace VKTab {

class Content;
class TabOptions;

/// How the table of a project is read.
struct ProjectTableOptions
{
    /// The project's path in its catalog, "catalog/folder/name.prj". Given, a reference to the
    /// table may also be relative to the catalog root.
    QString catalogPath;
    /// Given to the content before it is read.
    boost::shared_ptr<TabOptions> options;
    /// All lines; else those that the project itself chooses, by conditions in its table.
    bool allLines = false;
    /// What is wrong goes to the log window too, see tellTableErrors().
    bool tells = true;
};

/// What became of it.
struct ProjectTable
{
    bool isRead = false;
    /// Why it could not be read, the lines that are marked, and what else Reader::errors() has.
    TableErrorList errors;
    /// Native path of the descriptor; empty if the project has no table or was not read.
    QString file;

    explicit operator bool() const { return isRead; }
};

/// Reads a project and its table into \a content. If that fails, the content is a table that is not
/// valid.
VELKGEOMCORE_EXPORT ProjectTable readProjectTable(const QString &nativeProjectPath,
                                                  Content &content,
                                                  const ProjectTableOptions &options = {});

/// Takes the conditions from a table by which a project chooses some of its lines. The content
/// notices when it is asked the next time after Content::invalidate().
VELKGEOMCORE_EXPORT void removeProjectFilters(const Content &content);

} // namespace VKTab
