#pragma once

#include <geomcore/value/StatusValue.h>

namespace VKTab {
class TabOptions;
}

/// Gives the options the status keys of the editor's tables: "CatalogMapper", "ValueRangeMapping"
/// and "TargetMapping". Options that have the first one keep what they have. \a toolTip tells about
/// lines that are to be checked or in conflict.
void setLineStatusKeys(VKTab::TabOptions &options,
                       const VKTab::StatusValue::ToolTipHandler &toolTip);
