#pragma once

#include <geomcore/table/Content.h>

#include <QList>
#include <QPair>
#include <QString>

/// Writes projects with a small table and reads them.
namespace TableFixture {

/// "NAME.prj" below a folder, with the lines' ids and designations.
void write(const QString &folder, const QString &path, const QList<QPair<int, QString>> &lines);
[[nodiscard]] VKTab::ContentRef read(const QString &folder, const QString &path);

} // namespace TableFixture
