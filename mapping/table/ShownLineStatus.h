#pragma once

#include <geomcore/records/PrjMappingC.h>
#include <geomcore/table/ContentRef.h>

#include <boost/weak_ptr.hpp>

#include <QVector>

#include <set>
#include <vector>

/// Keeps the status columns of a source table in line with a mapping. The result is that of a walk
/// over the whole table; touched are the lines whose entries or values changed since the last time.
class ShownLineStatus
{
public:
    void update(const VKTab::ContentRef &table, const PrjMappingC &mapping);
    /// Cells of a line changed, so that conditions may send it elsewhere.
    void noteModifiedLine(int line) { m_modified.insert(line); }

private:
    void updateAll();
    void updateLine(int number) const;
    void updateMany(const QVector<VKTab::LineId> &lines) const;
    [[nodiscard]] QVector<VKTab::LineId> idsOf(const std::vector<int> &lines) const;

    VKTab::ContentRef m_table;
    PrjMappingC m_mapping;
    boost::weak_ptr<VKTab::BaseLayer>
        m_layer; ///< holds what was set; reading the table replaces it
    bool m_offersRanges = false;
    bool m_hasSecondNumbers = false; ///< several lines may share a line number
    std::set<int> m_modified;
};
