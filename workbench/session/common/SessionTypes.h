#pragma once

#include <core/files/SessionOwner.h>
#include <geomcore/records/LineCounts.h>
#include <geomcore/records/PrjMappingC.h>

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QMetaType>
#include <QString>

/// Names a project of a release. An empty table version stands for any, as in
/// ReleaseMappingC::findMapping.
struct ProjectId
{
    QString path;
    QString version;
    QString tabVersion;

    [[nodiscard]] bool isValid() const { return !path.isEmpty(); }
    [[nodiscard]] static ProjectId of(const PrjMappingC &mapping)
    {
        return {mapping.getSourcePath(), mapping.getSourceVersion(), mapping.getTabVersion()};
    }
    friend bool operator==(const ProjectId &, const ProjectId &) = default;
};
[[nodiscard]] inline size_t qHash(const ProjectId &id, size_t seed = 0)
{
    return qHashMulti(seed, id.path, id.version, id.tabVersion);
}
Q_DECLARE_METATYPE(ProjectId)

/// A source line of a project.
struct LineRef
{
    ProjectId project;
    int line = -1;

    [[nodiscard]] bool isValid() const { return project.isValid() && line >= 0; }
    friend bool operator==(const LineRef &, const LineRef &) = default;
};
Q_DECLARE_METATYPE(LineRef)

/// Where the two releases' projects lie: source paths and target paths are relative to these.
struct CatalogRoots
{
    QString source;
    QString target;

    friend bool operator==(const CatalogRoots &, const CatalogRoots &) = default;
};

/// "anna an ws12 (Prozess 4711)"; what is not known is left out.
[[nodiscard]] QString ownerText(const SessionOwner &owner);

/// Something that the user should hear of after a step, because it is easily overlooked. Undoing
/// the step takes it back.
struct ChangeNotice
{
    enum Kind {
        ExpiredLost,      ///< fewer confirmed expired lines than before: `lines` lists them
        ConditionDropped, ///< a target has fewer conditions than before
        ModifierDropped,  ///< a target has fewer variable mappings than before
        IgnoredNotShrunk, ///< variable mappings changed and all ignored variables stayed ignored
        TargetLineShared, ///< a line got a target line that another has already: `lines` lists
                          ///< these
        RemapDue,         ///< what changed takes effect only after lines are assigned anew
    };
    Kind kind = ExpiredLost;
    ProjectId project;
    QList<int> lines; ///< source lines in ascending order
    QString text;     ///< a German sentence for the status bar
};
Q_DECLARE_METATYPE(ChangeNotice)
