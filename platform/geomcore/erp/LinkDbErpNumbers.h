#pragma once

#include "ErpNumberSourceI.h"

#include <geomcore/index/IndexTreeErpSourceI.h>
#include <geomcore/linkdb/PLinkDbC.h>

/// The ERP numbers of the link database: PDMID1 of the documents that hang on a line and that the
/// condition of the current group lets through.
class VELKGEOMCORE_EXPORT LinkDbErpNumbers : public ErpNumberSourceI, public IndexTreeErpSourceI
{
public:
    /// Null stands for the link database of the process, whichever that is at the time of a call;
    /// without one there are no numbers, and that is an error.
    explicit LinkDbErpNumbers(const PRefPtr<PLinkDbC> &linkDb = {});

    [[nodiscard]] std::optional<Numbers> numbersOf(const QString &catalogPath,
                                                   const QList<VKTab::LineId> &lines,
                                                   QString *error) override;
    [[nodiscard]] std::optional<QSet<QString>> projectsWithNumbers(const QStringList &catalogPaths,
                                                                   QString *error) override;
    /// None if they cannot be read.
    [[nodiscard]] QSet<QString> markedProjects(const QStringList &catalogPaths) override;

private:
    /// Null with the error if it is not open.
    [[nodiscard]] PRefPtr<PLinkDbC> database(QString *error) const;

    PRefPtr<PLinkDbC> m_linkDb;
};
