#pragma once

#include <workbench/session/common/SessionTypes.h>

class QSettings;

/// Remembers for each mapping file where its catalogs lie; the 200 files used last are kept.
class CatalogRootMemory
{
public:
    /// \a settings may be null: then nothing is remembered.
    explicit CatalogRootMemory(QSettings *settings);

    /// Empty texts for an unknown file.
    [[nodiscard]] CatalogRoots roots(const QString &mappingFile) const;
    void remember(const QString &mappingFile, const CatalogRoots &roots);

private:
    QSettings *const m_settings;
};
