#pragma once

#include <geomcore/csv/TableError.h>

#include <geomcore/project/PrjClass.h>

#include <boost/shared_ptr.hpp>

class PLinkDbC;

namespace VKTab {

class Content;
class TabOptions;

/// Reads the table of a project into a content. Says nothing to the user; errors() tells what is
/// wrong. One reader serves one thread.
class VELKGEOMCORE_EXPORT Reader
{
public:
    Reader() = default;

    /// 1: the content is the project's table now; lines with a range that does not parse are marked
    /// (TableData::markedRows()). -1: the content is an empty table that is not valid. Options and
    /// listeners of the content stay. \a details: errors() also has what kept nothing from being
    /// read.
    int readByProject(const refHandle<PrjClass> &project, Content &content, bool details);
    /// The same for a content that is given \a options first, unless they are null. No table needs
    /// the link database, which may be null.
    int readByProject(const refHandle<PrjClass> &project, Content &content,
                      const boost::shared_ptr<TabOptions> &options, const PRefPtr<PLinkDbC> &linkDb,
                      bool details);

    /// What the last read found: why it failed, marked lines and what else is wrong with the
    /// table, lines of the project file that were passed over. For its caller to tell, once.
    [[nodiscard]] const TableErrorList &errors() const { return m_errors; }

private:
    bool fail(const QString &file, const QString &text);
    [[nodiscard]] bool fill(const refHandle<PrjClass> &project, Content &content);

    TableErrorList m_errors;
};

} // namespace VKTab
