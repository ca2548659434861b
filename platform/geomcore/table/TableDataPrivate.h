#pragma once

#include "TableData.h"

#include <QFile>

#include <mutex>

namespace VKTab {

/// Owner of a table's bytes: a mapped file or an array.
struct TableData::Source
{
    QFile file;
    QByteArray bytes;
};

struct TableData::Interned
{
    std::once_flag once;
    InternedColumn column;
};

} // namespace VKTab
