#pragma once

#include "../support/TestCatalog.h"

#include <geomcore/search/CatalogIndexUpdate.h>
#include <geomcore/search/CatalogSearch.h>

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

/// A catalog root with an index in a folder beside it.
class IndexedCatalog : public TestCatalog
{
public:
    using Outcome = CatalogIndexOutcome;
    using State = CatalogSearchState;

    IndexedCatalog()
        : index(m_place.filePath("settings/catalog.index"))
    {
    }

    Outcome update(CatalogIndexUpdate::Check check = CatalogIndexUpdate::Files,
                   const CatalogIndexUpdate::Tell &tell = {}) const
    {
        return CatalogIndexUpdate(index, root()).run(check, tell);
    }
    CatalogSearchResult search(const CatalogSearchQuery &query) const
    {
        return CatalogSearch(index, root()).run(query);
    }
    CatalogSearchResult search(const QString &text, const QStringList &conditions = {}) const
    {
        CatalogSearchQuery query;
        query.text = text;
        for (const QString &condition : conditions)
            query.conditions.append(*CatalogSearchCondition::parse(condition));
        return search(query);
    }
    /// Paths of the hits without the catalog, "a.prj b.prj", or the state if there are none.
    QString found(const QString &text, const QStringList &conditions = {}) const
    {
        return shown(search(text, conditions));
    }
    static QString shown(const CatalogSearchResult &result)
    {
        QStringList paths;
        for (const CatalogSearchHit &hit : result.hits)
            paths.append(hit.path.section('/', 1));
        const char *const states[] = {"found",   "nothing", "building",
                                      "missing", "failed",  "cancelled"};
        if (paths.isEmpty() || result.state != State::Found)
            paths.prepend(states[int(result.state)]);
        return paths.join(' ');
    }
    /// Lets the files of a project look as if nobody had touched them for long.
    void age(const QString &project, int seconds = 100) const
    {
        const QString base = project.left(project.lastIndexOf('.'));
        for (const char *ending : {".prj", ".json", ".csv"}) {
            QFile file(this->file(base + ending));
            if (file.exists() && file.open(QIODevice::ReadWrite))
                file.setFileTime(QDateTime::currentDateTime().addSecs(-seconds),
                                 QFileDevice::FileModificationTime);
        }
    }
    void setTitle(const QString &project, const QByteArray &title) const
    {
        const QString base = QFileInfo(project).completeBaseName();
        writeFile(project, "[PROJECT]\nNAME=" + title + "\nSACHM=" + base.toUtf8() + ".json\n");
    }

    QTemporaryDir m_place;
    const QString index;
};
