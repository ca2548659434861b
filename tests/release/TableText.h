#pragma once

#include <release/assign/LineCells.h>
#include <release/assign/VariableNames.h>

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
VelkRelease::LineCells cellsOf(const QByteArray &text, VelkRelease::VariableNames &names,
                               const QStringList &key = {});
