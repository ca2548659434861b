#pragma once

#include <geomcoregui/VelkGeomCoreGuiGlobal.h>

#include <core/config/PConfig.h>
#include <core/text/PRefPtr.h>

#include <QStringList>

#include <memory>

class CatalogSearcherI;

/// What windows that search in the catalogs have in common: who searches, and the words that were
/// searched for lately, which the configuration keeps. May be deleted before the widgets that work
/// on it: they then find nothing any more. GUI thread.
class VELKGEOMCOREGUI_EXPORT FileTreeGroup
{
public:
    /// Groups of different numbers keep different words; 0 is the default one.
    explicit FileTreeGroup(int number);
    ~FileTreeGroup();
    FileTreeGroup(const FileTreeGroup &) = delete;
    FileTreeGroup &operator=(const FileTreeGroup &) = delete;

    /// Null, as at first, keeps nothing.
    void SetAppConfig(const PRefPtr<PConfig> &config);
    /// Reads what the configuration keeps and begins to bring the index of the process's tree up to
    /// date, unless a searcher was given before.
    void Init();

    void setSearcher(std::unique_ptr<CatalogSearcherI> searcher);
    /// Null before Init().
    [[nodiscard]] CatalogSearcherI *searcher() const { return m_searcher.get(); }

    /// The latest first.
    [[nodiscard]] const QStringList &recentWords() const { return m_words; }
    void addRecentWords(const QString &words);

private:
    const int m_number;
    PRefPtr<PConfig> m_config;
    std::unique_ptr<CatalogSearcherI> m_searcher;
    QStringList m_words;
};
