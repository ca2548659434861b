#pragma once

#include "PRJMAPPING.h"
#include "PrjMappingLineC.h"
#include "PrjMappingTargetC.h"

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QHash>
#include <QList>
#include <QMetaType>
#include <QSharedDataPointer>
#include <QString>

class PrjMappingData;

/// Where the lines of one source project at one version went: an ordered list of targets and a
/// state. A copy-on-write value.
class VELKGEOMCORE_EXPORT PrjMappingC
{
public:
    PrjMappingC();
    PrjMappingC(const PrjMappingC &other);
    PrjMappingC(PrjMappingC &&other) noexcept;
    PrjMappingC &operator=(const PrjMappingC &other);
    PrjMappingC &operator=(PrjMappingC &&other) noexcept;
    ~PrjMappingC();

    /// It has a source path.
    [[nodiscard]] bool isValid() const;
    /// Relative to the catalog root, beginning with the catalog's directory name, with "/" (a
    /// backslash is borne and kept).
    [[nodiscard]] QString getSourcePath() const;
    void setSourcePath(const QString &path);
    /// One leading character and "yyMMddhhmmss".
    [[nodiscard]] QString getSourceVersion() const;
    void setSourceVersion(const QString &version);
    [[nodiscard]] QString getTabVersion() const;
    void setTabVersion(const QString &version);

    [[nodiscard]] PRJMAPPING::MappingState getMappingState() const;
    void setMappingState(PRJMAPPING::MappingState state);
    /// Recomputes the flags from the kept counts; StateUsable, StateReserved and StateTableError
    /// stay as they are. Also done by whatever below changes the targets.
    void updateMappingState();
    /// True if any line of any target has its conflict flag.
    [[nodiscard]] bool getContainsConflicts() const;
    /// Counts over all targets.
    [[nodiscard]] LineCounts lineCounts() const;

    /// In order: the index in this list is the target index used everywhere.
    [[nodiscard]] QList<PrjMappingTargetC> getTargets() const;
    [[nodiscard]] int countTargets() const;
    /// Not valid for an unknown index.
    [[nodiscard]] PrjMappingTargetC findTarget(int index) const;
    /// The target itself instead of a copy; the index must be a known one. Valid until targets come
    /// or go.
    [[nodiscard]] const PrjMappingTargetC &targetAt(int index) const;
    /// Calls change with the target of a known index, in place; then call updateMappingState().
    template<class Change>
    void changeTarget(int index, Change change)
    {
        change(writableTarget(index));
    }
    /// Appends, and gives the new index.
    int addTarget(const PrjMappingTargetC &target);
    /// Appends a valid target; two empty texts make the not-found target. There is one of these: if
    /// the mapping has it, it stays as it is, and its index is given.
    int addTarget(const QString &path, const QString &version);
    /// Replaces all targets at once.
    void setTargets(const QList<PrjMappingTargetC> &targets);
    /// Inserts, never replaces. An index out of range means the nearer end. Gives the index at
    /// which the target now stands.
    int insertTarget(int index, const PrjMappingTargetC &target);
    /// Replaces; nothing happens for an unknown index.
    void updateTarget(int index, const PrjMappingTargetC &target);
    /// Later indices move down by one; nothing happens for an unknown index.
    void removeTarget(int index);
    /// Index of the target without path, or -1.
    [[nodiscard]] int getNotFoundTarget() const;
    /// The same; without one it is made, as the last target.
    int ensureNotFoundTarget();

    /// Where a line went. Of several targets that hold it, the first one with a path whose
    /// conditions all hold for the values, else the first one. Not valid if no target knows it.
    [[nodiscard]] PrjMappingLineC findLine(int sourceLineId,
                                           const QHash<QString, MapVarValueC> &varset) const;
    [[nodiscard]] PrjMappingLineC findLine(int sourceLineId, const VKTab::LineView &line) const;

    /// Confirms every line of every target and updates the state.
    void verifyAll();

private:
    [[nodiscard]] PrjMappingTargetC &writableTarget(int index);

    QSharedDataPointer<PrjMappingData> d;
};
Q_DECLARE_TYPEINFO(PrjMappingC, Q_RELOCATABLE_TYPE);
Q_DECLARE_METATYPE(PrjMappingC)
