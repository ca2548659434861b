#pragma once

#include <tools/velkmap/LineCells.h>
#include <tools/velkmap/VariableNames.h>

#include <QByteArray>
#include <QStringList>

#include <memory>

namespace VKTab {
class TableData;
}

/// A table written as "a,b;1,2;3,4": rows parted by semicolons, the first one names the columns.
/// \a key names the identifying columns.
std::shared_ptr<const VKTab::TableData> tableOf(const QByteArray &text,
                                                const QStringList &key = {});
velkmap::LineCells cellsOf(const QByteArray &text, velkmap::VariableNames &names,
                           const QStringList &key = {});
