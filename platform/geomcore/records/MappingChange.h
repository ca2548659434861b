#pragma once

#include "PrjMappingC.h"

#include <core/json/PJsonValue.h>

#include <QMultiMap>
#include <QPair>
#include <QString>

/// One change of an update from the server, filled by the host. Whatever is said to be carried is
/// read by nobody but the host.
struct MappingChange
{
    /// 0 assignment of a line changed, 1 line newly assigned, 2 assignment of a line removed (only
    /// these three clash with local changes, and clashes are reported as 0), 3 target removed,
    /// 4 target added, 5 mapping removed, 6 mapping added, 7 order of targets, 8 state flags,
    /// 9 conditions, 10 variable mapping, 11 extended text, 12 versions of the source project,
    /// 13 versions of a target.
    qint32 type = 0;
    QString text1;     ///< author of the other change; carried
    QString text2;     ///< time of the other change; carried
    bool flag = false; ///< already in the file; carried
    QString text3;     ///< old extended text; carried
    QString text4;     ///< new extended text; carried
    /// -1 as its target line says, without target line text and target path, that the line expired.
    PrjMappingTargetLineC targetLine;
    PrjMappingTargetLineC otherTargetLine; ///< the assignment that the conflict text quotes
    PrjMappingTargetC target;
    PrjMappingTargetC otherTarget; ///< the clashing side; carried
    PrjMappingC removedMapping;    ///< type 5
    PrjMappingC addedMapping;      ///< type 6
    PrjMappingC otherMapping;      ///< the clashing side; carried
    qint32 lineId = 0;             ///< source line, types 0 to 2
    QString text5;                 ///< note; carried
    QString oldProjectVersion;     ///< type 13, as the next three
    QString newProjectVersion;
    QString oldTableVersion;
    QString newTableVersion;
    PJsonValue json; ///< the raw entry; carried
};

/// Changes by (source date of the release, source path of the project); a key can have several, and
/// `values` and the iteration give the one inserted last first.
using MappingChangeMap = QMultiMap<QPair<QString, QString>, MappingChange>;
