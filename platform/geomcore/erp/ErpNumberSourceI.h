#pragma once

#include <geomcore/value/LineId.h>
#include <geomcore/VelkGeomCoreGlobal.h>

#include <QHash>
#include <QList>
#include <QSet>
#include <QStringList>

#include <optional>

/// Where the ERP numbers of table lines come from. Called on any thread, by one caller at a time.
class VELKGEOMCORE_EXPORT ErpNumberSourceI
{
public:
    using Numbers = QHash<VKTab::LineId, QStringList>;

    virtual ~ErpNumberSourceI();

    /// The numbers of some lines of a project by its catalog path, of all lines for an empty list.
    /// Each line's are sorted and each there once; a line without any is left out. Nothing with \a
    /// error if they cannot be read.
    [[nodiscard]] virtual std::optional<Numbers>
    numbersOf(const QString &catalogPath, const QList<VKTab::LineId> &lines, QString *error) = 0;
    /// Those of the projects that have any.
    [[nodiscard]] virtual std::optional<QSet<QString>>
    projectsWithNumbers(const QStringList &catalogPaths, QString *error) = 0;
};

/// As columns and exports show several numbers of a line: with "; " between them.
[[nodiscard]] VELKGEOMCORE_EXPORT QString erpNumberText(const QStringList &numbers);
