#pragma once

#include <geomcore/csv/TableError.h>

#include <geomcore/project/PrjClass.h>

#include <boost/shared_ptr.hpp>

class PLinkDbC;

namespace VKTab {

class Content;
class TabOptions;

/// Reads the table of a project into a content. One reader serves one thread.
class VELKGEOMCORE_EXPORT Reader
{
public:
    Reader() = default;

    /// 1: the content is the project's table now; lines with a range that does not parse are marked
    /// (TableData::markedRows()). -1: the content is an empty table that is not valid. Options and
    /// listeners of the content stay. \a tell: what is wrong goes to the log window too.
    int readByProject(const refHandle<PrjClass> &project, Content &content, bool tell);
    /// The same for a content that is given \a options first, unless they are null. No table needs
    /// the link database, which may be null.
    int readByProject(const refHandle<PrjClass> &project, Content &content,
                      const boost::shared_ptr<TabOptions> &options, const PRefPtr<PLinkDbC> &linkDb,
                      bool tell);

    /// What the last read found: why it failed, or of a table that was read its marked lines.
    [[nodiscard]] const TableErrorList &errors() const { return m_errors; }

    /// So many errors of a table go to the log window, then only their number.
    static constexpr qsizetype MaxTold = 20;

private:
    void tellErrors() const;
    [[nodiscard]] bool fill(const refHandle<PrjClass> &project, Content &content);

    TableErrorList m_errors;
};

} // namespace VKTab
