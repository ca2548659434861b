#include "CatalogRootMemory.h"

#include <QSettings>

namespace {

constexpr qsizetype MaxFiles = 200;
const char Key[] = "session/catalogRoots"; // file, source, target, file, source, target, ...

} // namespace

CatalogRootMemory::CatalogRootMemory(QSettings *settings)
    : m_settings(settings)
{
}

CatalogRoots CatalogRootMemory::roots(const QString &mappingFile) const
{
    const QStringList list = m_settings ? m_settings->value(Key).toStringList() : QStringList();
    for (qsizetype i = 0; i + 2 < list.size(); i += 3) {
        if (list[i] == mappingFile)
            return {list[i + 1], list[i + 2]};
    }
    return {};
}

void CatalogRootMemory::remember(const QString &mappingFile, const CatalogRoots &roots)
{
    if (!m_settings)
        return;
    const QStringList old = m_settings->value(Key).toStringList();
    QStringList list{mappingFile, roots.source, roots.target};
    for (qsizetype i = 0; i + 2 < old.size() && list.size() < 3 * MaxFiles; i += 3) {
        if (old[i] != mappingFile)
            list += old.mid(i, 3);
    }
    m_settings->setValue(Key, list);
}
