#include "LocatorSearch.h"

#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/search/PartFinder.h>

#include <QThreadPool>

#include <algorithm>
#include <array>
#include <mutex>

namespace {

/// Projects that are asked for a line.
constexpr int ProjectsWithLine = 10;
/// Of one kind, before the others have had their turn: a table's lines are often alike.
constexpr int MostOfAKind = 10;

struct Ranked
{
    int rank;
    LocatorItem item;
};

LocatorItem projectItem(const ReleaseMappingC &release, int position)
{
    const PrjMappingC mapping = release.mappingAt(position);
    const QString path = mapping.getSourcePath();
    return {.kind = LocatorItem::Project,
            .title = path.section(u'/', -1),
            .detail = path.section(u'/', 0, -2),
            .line = {ProjectId::of(mapping), -1}};
}

/// Made by the first search, on its thread.
class ProjectFinder
{
public:
    explicit ProjectFinder(const ReleaseMappingC &release)
        : m_release(release)
    {
    }

    [[nodiscard]] const ReleaseMappingC &release() const { return m_release; }
    [[nodiscard]] const PartFinder &finder()
    {
        std::call_once(m_isMade, [this] {
            const QList<int> first = m_release.firstPositions();
            for (int i = 0; i < m_release.countMappings(); ++i)
                m_finder.add(first.at(i) == i ? m_release.mappingAt(i).getSourcePath() : QString());
        });
        return m_finder;
    }

private:
    const ReleaseMappingC m_release;
    std::once_flag m_isMade;
    PartFinder m_finder;
};

/// Commands, settings and the lines of a table, which are taken in by the first search, on its
/// thread.
class ItemFinder
{
public:
    ItemFinder() = default;
    ItemFinder(const QList<LocatorItem> &items, const std::function<LocatorLines()> &lines)
        : m_items(items)
        , m_makeLines(lines)
    {
    }

    [[nodiscard]] const PartFinder &finder()
    {
        std::call_once(m_isMade, [this] {
            for (const LocatorItem &item : std::as_const(m_items))
                m_finder.add(item.title);
            if (m_makeLines)
                m_lines = m_makeLines();
            m_makeLines = {};
            for (size_t line = 0; line < m_lines.numbers.size(); ++line)
                m_finder.add(m_lines.title(line));
        });
        return m_finder;
    }
    /// An entry of the finder.
    [[nodiscard]] LocatorItem at(int entry) const
    {
        return entry < m_items.size() ? m_items.at(entry)
                                      : m_lines.item(size_t(entry) - size_t(m_items.size()));
    }
    /// Lines of this number, once there is the finder.
    [[nodiscard]] QList<LocatorItem> linesOfNumber(int number) const
    {
        QList<LocatorItem> found;
        for (const LocatorItem &item : m_items) {
            if (item.kind == LocatorItem::Line && item.line.line == number)
                found += item;
        }
        for (size_t line = 0; line < m_lines.numbers.size(); ++line) {
            if (m_lines.numbers[line] == number)
                found += m_lines.item(line);
        }
        return found;
    }

private:
    QList<LocatorItem> m_items; ///< as given
    std::function<LocatorLines()> m_makeLines;
    std::once_flag m_isMade;
    LocatorLines m_lines;
    PartFinder m_finder;
};

} // namespace

struct LocatorSearch::Sources
{
    std::shared_ptr<ProjectFinder> projects;
    std::shared_ptr<ItemFinder> items = std::make_shared<ItemFinder>();

    [[nodiscard]] LocatorHits find(const QString &words,
                                   const std::function<bool()> &isStale) const;
    void addLines(const QString &words, const std::function<bool()> &isStale,
                  std::vector<Ranked> &all) const;
};

void LocatorSearch::Sources::addLines(const QString &words, const std::function<bool()> &isStale,
                                      std::vector<Ranked> &all) const
{
    const QString text = words.simplified();
    bool isNumber = false;
    const int number = text.section(u' ', -1).toInt(&isNumber);
    const QString others = text.section(u' ', 0, -2);
    if (!isNumber || number < 0 || others.isEmpty())
        return;
    const PartFinder::Hits hits = projects->finder().find(others, ProjectsWithLine, isStale);
    for (const PartFinder::Hit &hit : hits.best) {
        if (!projects->release()
                 .mappingAt(hit.entry)
                 .findLine(number, QHash<QString, MapVarValueC>())
                 .isValid())
            continue;
        LocatorItem item = projectItem(projects->release(), hit.entry);
        item.kind = LocatorItem::Line;
        item.detail += u'/' + item.title;
        item.title = QString::number(number);
        item.line.line = number;
        all.push_back({hit.rank, item});
    }
}

LocatorHits LocatorSearch::Sources::find(const QString &words,
                                         const std::function<bool()> &isStale) const
{
    LocatorHits hits{.words = words};
    std::vector<Ranked> all;
    const PartFinder::Hits others = items->finder().find(words, Limit, isStale);
    // The line of that very number, before all that have the number in them.
    bool isNumber = false;
    const int number = words.trimmed().toInt(&isNumber);
    if (isNumber && QString::number(number) == words.trimmed()) {
        for (const LocatorItem &item : items->linesOfNumber(number))
            all.push_back({-1, item});
    }
    const bool isNumberOfALine = !all.empty();
    for (const PartFinder::Hit &hit : others.best) {
        const LocatorItem item = items->at(hit.entry);
        if (!isNumberOfALine || item.line != all.front().item.line)
            all.push_back({hit.rank, item});
    }
    hits.count = others.count;
    if (projects) {
        const size_t before = all.size();
        addLines(words, isStale, all);
        hits.count += int(all.size() - before);
        const PartFinder::Hits found = projects->finder().find(words, Limit, isStale);
        for (const PartFinder::Hit &hit : found.best)
            all.push_back({hit.rank, projectItem(projects->release(), hit.entry)});
        hits.count += found.count;
    }
    std::stable_sort(all.begin(), all.end(), [](const Ranked &one, const Ranked &other) {
        return std::pair(one.rank, one.item.kind) < std::pair(other.rank, other.item.kind);
    });
    std::array<int, 4> ofKind{};
    std::stable_partition(all.begin(), all.end(), [&ofKind](const Ranked &each) {
        return ++ofKind[size_t(each.item.kind)] <= MostOfAKind;
    });
    const size_t shown = std::min(all.size(), size_t(Limit));
    hits.items.reserve(qsizetype(shown));
    for (size_t i = 0; i < shown; ++i)
        hits.items << all[i].item;
    return hits;
}

LocatorSearch::LocatorSearch(QObject *parent)
    : QObject(parent)
    , m_pool(std::make_unique<QThreadPool>())
    , m_sources(std::make_shared<Sources>())
    , m_newest(std::make_shared<std::atomic<int>>(0))
{
    m_pool->setMaxThreadCount(1);
}

LocatorSearch::~LocatorSearch()
{
    ++*m_newest;
    m_pool->waitForDone();
}

void LocatorSearch::setRelease(const ReleaseMappingC &release)
{
    const ReleaseMappingC former =
        m_sources->projects ? m_sources->projects->release() : ReleaseMappingC();
    const int count = release.countMappings();
    const auto pathAt = [](const ReleaseMappingC &of, int position) {
        return of.mappingAt(position).getSourcePath();
    };
    // Mappings are replaced in place and appended; another release differs at one of its ends.
    const bool isSame = former.getSourceDate() == release.getSourceDate() &&
                        former.countMappings() == count &&
                        pathAt(former, 0) == pathAt(release, 0) &&
                        pathAt(former, count - 1) == pathAt(release, count - 1);
    if (isSame)
        return;
    auto sources = std::make_shared<Sources>(*m_sources);
    sources->projects = std::make_shared<ProjectFinder>(release);
    m_sources = sources;
}

void LocatorSearch::setItems(const QList<LocatorItem> &items,
                             const std::function<LocatorLines()> &lines)
{
    auto sources = std::make_shared<Sources>();
    sources->projects = m_sources->projects;
    sources->items = std::make_shared<ItemFinder>(items, lines);
    m_sources = sources;
}

void LocatorSearch::find(const QString &words)
{
    const int search = ++*m_newest;
    m_pool->clear();
    m_pool->start([this, search, words, sources = m_sources, newest = m_newest] {
        const auto isStale = [&] {
            return *newest != search;
        };
        const LocatorHits hits = sources->find(words, isStale);
        if (isStale())
            return;
        QMetaObject::invokeMethod(
            this,
            [this, search, hits] {
                if (*m_newest == search)
                    Q_EMIT found(hits);
            },
            Qt::QueuedConnection);
    });
}
