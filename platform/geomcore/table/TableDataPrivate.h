#pragma once

#include "TableData.h"

#include <mutex>

namespace VKTab {

struct TableData::Interned
{
    std::once_flag once;
    InternedColumn column;
};

} // namespace VKTab
