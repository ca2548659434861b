#pragma once

#include "LocatorItem.h"

#include <geomcore/records/ReleaseMappingC.h>

#include <QObject>

#include <atomic>
#include <functional>
#include <memory>

class PartFinder;

QT_BEGIN_NAMESPACE
class QThreadPool;
QT_END_NAMESPACE

/// Searches projects, lines, commands and settings by parts of their words, on a thread of its own.
/// A search that a later one overtook ends early and is not told. GUI thread.
class LocatorSearch : public QObject
{
    Q_OBJECT

public:
    /// So many hits are given at most.
    static constexpr int Limit = 50;

    explicit LocatorSearch(QObject *parent = nullptr);
    /// Waits for what is under way, which ends early.
    ~LocatorSearch() override;

    /// The projects of a release. Whatever became of their lines since the last call costs nothing,
    /// since paths stay.
    void setRelease(const ReleaseMappingC &release);
    /// All else that can be found now. \a lines is called once, by the first search and on its
    /// thread.
    void setItems(const QList<LocatorItem> &items, const std::function<LocatorLines()> &lines = {});

    /// found() follows. A number behind other words means a line: "din933 12" is line 12 of the
    /// projects that "din933" finds.
    void find(const QString &words);

Q_SIGNALS:
    void found(const LocatorHits &hits);

private:
    struct Sources;

    const std::unique_ptr<QThreadPool> m_pool;
    std::shared_ptr<const Sources> m_sources;
    /// Of the last search; others are stale.
    const std::shared_ptr<std::atomic<int>> m_newest;
};
