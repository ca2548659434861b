#pragma once

#include "AgreedReplacement.h"
#include "LearnedReplacement.h"
#include "PrjMappingC.h"

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QList>
#include <QSharedDataPointer>
#include <QString>

#include <memory>

class PJsonValue;
class ReleaseMappingData;
class ReleaseDigest;

/// One release step of a catalog: a source date, a target date and the mappings of all its
/// projects. A copy-on-write value that shares its pages of mappings: replacing one mapping costs
/// microseconds, whatever the size of the release.
class VELKGEOMCORE_EXPORT ReleaseMappingC
{
public:
    ReleaseMappingC();
    ReleaseMappingC(const ReleaseMappingC &other);
    ReleaseMappingC(ReleaseMappingC &&other) noexcept;
    ReleaseMappingC &operator=(const ReleaseMappingC &other);
    ReleaseMappingC &operator=(ReleaseMappingC &&other) noexcept;
    ~ReleaseMappingC();

    /// Also the release's key in the mapping file and in the keys of change maps.
    [[nodiscard]] QString getSourceDate() const;
    void setSourceDate(const QString &date);
    [[nodiscard]] QString getTargetDate() const;
    void setTargetDate(const QString &date);

    /// What was agreed to about values of this release's lines, in the order in which it was.
    [[nodiscard]] QList<AgreedReplacement> getReplacements() const;
    void setReplacements(const QList<AgreedReplacement> &replacements);

    /// What its projects show alike of how values change, as it was found when it was created.
    [[nodiscard]] QList<LearnedReplacement> getLearned() const;
    void setLearned(const QList<LearnedReplacement> &learned);

    /// This release without its mappings: both dates, what was agreed to and what was learned.
    [[nodiscard]] ReleaseMappingC head() const;

    /// In stored order. Costs a list of handles: to look only, use the two below.
    [[nodiscard]] QList<PrjMappingC> getMappingList() const;
    [[nodiscard]] int countMappings() const;
    /// \a position counts from 0 in stored order; not valid out of range.
    [[nodiscard]] PrjMappingC mappingAt(int position) const;
    /// Whether the mapping at a position, which both have, is one that they share. False says
    /// nothing; costs next to nothing.
    [[nodiscard]] bool sharesMapping(const ReleaseMappingC &other, int position) const;
    /// The first in stored order that has path, version and table version; an empty table version
    /// matches any. Not valid if there is none. One look-up in an index, so fit for painting.
    [[nodiscard]] PrjMappingC findMapping(const QString &sourcePath, const QString &sourceVersion,
                                          const QString &tableVersion) const;
    /// Where findMapping finds it, -1 if nowhere. Mappings are replaced in place and appended, so a
    /// position stays until clearMappings.
    [[nodiscard]] int findPosition(const QString &sourcePath, const QString &sourceVersion,
                                   const QString &tableVersion) const;
    /// Of all mappings of a path, in stored order.
    [[nodiscard]] QList<int> findPositions(const QString &sourcePath) const;
    /// For each mapping in stored order the position of the first of its path and version.
    [[nodiscard]] QList<int> firstPositions() const;
    /// Replaces exactly the mapping that findMapping gives for the new one's path, version and
    /// table version, or appends.
    void addMapping(const PrjMappingC &mapping);
    /// The rolled up states of all mappings, kept while mappings come and go.
    [[nodiscard]] PRJMAPPING::MappingState getMappingState() const;

    /// Writes the release as one JSON object; \a headsOnly leaves out the mappings. The same
    /// records give the same bytes.
    void toJson(PJsonValue &out, bool headsOnly) const;
    /// As long as somebody holds it, the text of this release, or of copies that nobody changed, is
    /// noted there when it is written into a mapping file: a document with what toJson gives
    /// afterwards is written to a device.
    [[nodiscard]] std::shared_ptr<const ReleaseDigest> noteDigest() const;
    /// Reads what toJson wrote, "mappings" may be missing. False if anything is not as it should
    /// be: then \a error tells what, where in the text and at which member, and this release is as
    /// before. Members of other names are passed over.
    bool fromJson(const PJsonValue &in, QString *error = nullptr);

    /// Appends without looking for an equal key, as a reader of stored releases must.
    void appendMapping(const PrjMappingC &mapping);
    void clearMappings();

private:
    QSharedDataPointer<ReleaseMappingData> d;
};
Q_DECLARE_TYPEINFO(ReleaseMappingC, Q_RELOCATABLE_TYPE);
