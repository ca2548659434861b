#include "readScriptTable.h"

#include <core/component/mzComExceptionC.h>
#include <geomcore/index/IndexTreeC.h>
#include <geomcore/project/CatalogPlaces.h>
#include <geomcore/table/readProjectTable.h>

namespace {

[[noreturn]] void fail(const QString &text)
{
    throw mzComExceptionC(mzComFailed, {text, {}, 0});
}

/// Native path of a project that a mapping names.
QString fileBelow(const QString &root, const QString &path)
{
    const PRefPtr<IndexTreeC> tree(new IndexTreeC{PPathName(root)});
    const QString file = tree->compatiblePathToResolvedPath(PPathName(path)).native();
    const QString refusal = CatalogPlaces::instance().refusalOfTarget(file);
    if (!refusal.isEmpty())
        fail(refusal);
    return file;
}

} // namespace

ProxyPtrT<VKTab::proxyTableC> readScriptTable(const QString &root, const QString &path)
{
    if (path.isEmpty())
        fail(QStringLiteral("A table is read by the path of its project; this one is empty"));
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
        fail(reasons.join(u'\n'));
    }
    return ProxyPtrT<VKTab::proxyTableC>(new VKTab::proxyTableC(table));
}
