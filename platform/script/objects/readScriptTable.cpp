#include "readScriptTable.h"

#include "scriptFailure.h"

#include <geomcore/index/IndexTreeC.h>
#include <geomcore/project/CatalogPlaces.h>
#include <geomcore/table/readProjectTable.h>

namespace {

/// Native path of a project that a mapping names.
QString fileBelow(const QString &root, const QString &path)
{
    const PRefPtr<IndexTreeC> tree(new IndexTreeC{PPathName(root)});
    const QString file = tree->compatiblePathToResolvedPath(PPathName(path)).native();
    const QString refusal = CatalogPlaces::instance().refusalOfTarget(file);
    if (!refusal.isEmpty())
        scriptFailure(refusal);
    return file;
}

} // namespace

ProxyPtrT<VKTab::proxyTableC> readScriptTable(const QString &root, const QString &path)
{
    if (path.isEmpty())
        scriptFailure(
            QStringLiteral("A table is read by the path of its project; this one is empty"));
    const QString file = root.isEmpty() ? path : fileBelow(root, path);
    VKTab::Content table;
    const VKTab::ProjectTable read = VKTab::readProjectTable(
        file, table,
        {.catalogPath = root.isEmpty() ? QString() : path, .allLines = true, .tells = false});
    if (!read) {
        QStringList reasons;
        for (const VKTab::TableError &error : read.errors)
            reasons << error.toString();
        if (reasons.isEmpty())
            reasons << file + QStringLiteral(": the project has no table");
        scriptFailure(reasons.join(u'\n'));
    }
    return ProxyPtrT<VKTab::proxyTableC>(new VKTab::proxyTableC(table));
}
