#pragma once

#include <QList>
#include <QString>

/// What a root may be besides: one that knows where its projects are, so that nobody has to walk
/// the tree to find one.
class LookUpTreeI
{
public:
    virtual ~LookUpTreeI() = default;
    /// For each project of this source path, in display order, the rows that lead to it from the
    /// top level on; empty if the tree shows none.
    [[nodiscard]] virtual QList<QList<int>> rowsTo(const QString &sourcePath) const = 0;
};
