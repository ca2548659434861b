#pragma once

#include <QHash>
#include <QString>

class MapVarValueC;
namespace VKTab {
class LineView;
}

namespace Mapper {

/// Values of a source line in one of the two forms in which they are given: exactly one of view and
/// varset is set. References only.
struct LineInput
{
    int lineId = -1;
    int row = -1; ///< Row of the source table; -1 if it has no line of that id.
    const VKTab::LineView *view = nullptr;
    const QHash<QString, MapVarValueC> *varset = nullptr;
    /// The view shows exactly what the source table's file has in that row.
    bool stored = false;
};

} // namespace Mapper
