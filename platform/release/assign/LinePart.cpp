#include "LinePart.h"

#include <core/message/PMessage.h>
#include <core/message/PStringMessageImpl.h>
#include <core/parallel/WorkerPool.h>
#include <core/text/PPathName.h>
#include <geomcore/index/IndexTreeC.h>
#include <geomcore/records/LineTable.h>

#include <algorithm>
#include <climits>
#include <span>

namespace VelkRelease {

namespace {

/// Fewer lines are not worth another mapper.
constexpr std::size_t LinesAPart = 4096;
/// Lines that are assigned before there is more than one thread: they build the indexes that all
/// look up in, and those are built by all threads.
constexpr std::size_t FirstLines = 1000;

int numberOf(const VKTab::LineId &line)
{
    return line.isValid() ? line.value(0) : INT_MIN;
}

/// Ends of the parts. Lines of one number, which have one entry in a mapping, stay together.
std::vector<std::size_t> endsOfParts(const std::vector<VKTab::LineId> &lines, std::size_t count)
{
    std::vector<std::size_t> ends;
    for (std::size_t i = 1; i <= count; ++i) {
        std::size_t end = lines.size() * i / count;
        while (end < lines.size() && numberOf(lines[end]) == numberOf(lines[end - 1]))
            ++end;
        ends.push_back(end);
    }
    return ends;
}

/// \a lasts: number of each part's last line.
PrjMappingC joined(const std::vector<PrjMappingC> &parts, const std::vector<int> &lasts)
{
    PrjMappingC mapping = parts.front();
    for (const PrjMappingC &part : parts) {
        if (part.countTargets() > mapping.countTargets())
            mapping.addTarget(QString(), QString());
    }
    const LineTable none;
    for (int target = 0; target < mapping.countTargets(); ++target) {
        std::vector<LineTable::Slice> slices;
        for (std::size_t i = 0; i < parts.size(); ++i) {
            const bool known = target < parts[i].countTargets();
            slices.push_back({known ? &parts[i].targetAt(target).lines() : &none, lasts[i]});
        }
        mapping.changeTarget(target, [&](PrjMappingTargetC &changed) {
            changed.setLines(LineTable::joined(slices));
        });
    }
    return mapping;
}

void assignAll(LinePart &part, std::span<const VKTab::LineId> lines,
               const std::atomic<bool> *cancelled)
{
    for (const VKTab::LineId &line : lines) {
        if (cancelled && cancelled->load(std::memory_order_relaxed))
            return;
        part.assign(line);
    }
}

/// The parts have the same to say of what they share.
void show(const std::vector<QString> &messages)
{
    QStringList told;
    for (const QString &message : messages) {
        if (!message.isEmpty() && !told.contains(message))
            PMessage::Show(message, PMsgDlgMode::Warning);
        told += message;
    }
}

std::vector<int> lastsOf(const std::vector<VKTab::LineId> &lines,
                         const std::vector<std::size_t> &ends)
{
    std::vector<int> lasts;
    lasts.reserve(ends.size());
    for (const std::size_t end : ends)
        lasts.push_back(numberOf(lines[end - 1]));
    lasts.back() = INT_MAX;
    return lasts;
}

} // namespace

CatalogMappingC LinePart::catalogOf(const PrjMappingC &mapping, const ReleaseMappingC &like)
{
    ReleaseMappingC release = like.head();
    release.addMapping(mapping);
    CatalogMappingC catalog;
    catalog.addRelease(release);
    return catalog;
}

LinePart::LinePart(const QString &sourcePath, const QString &sourceVersion,
                   const CatalogMappingC &catalog, const VKTab::Content &table,
                   const QStringList &conditionVariables, bool force,
                   const std::atomic<bool> *cancelled)
    : m_mapper(IndexTreeC::instance())
    , m_usable(false)
    , m_run(m_mapper, table,
            {.conditionVariables = conditionVariables,
             .force = force,
             .isCanceled = cancelled ? [cancelled] { return cancelled->load(); }
                                     : std::function<bool()>()})
{
    if (cancelled)
        m_mapper.setCancellation([cancelled] { return cancelled->load(); });
    m_mapper.setCreatorMode(true);
    m_mapper.setSourceProject(PPathName(sourcePath));
    m_mapper.setSourceTable(table);
    m_usable =
        m_mapper.findMapping(sourcePath, sourceVersion, catalog).testFlag(PRJMAPPING::StateUsable);
}

std::optional<PrjMappingC> assignInParts(LinePart &first,
                                         const std::function<std::unique_ptr<LinePart>()> &make,
                                         std::vector<VKTab::LineId> lines,
                                         const std::atomic<bool> *cancelled)
{
    WorkerPool &pool = WorkerPool::instance();
    const auto ended = [cancelled] {
        return cancelled && cancelled->load();
    };
    const std::size_t count = std::min(std::size_t(pool.threads()) * 4, lines.size() / LinesAPart);
    if (pool.threads() < 2 || count < 2) {
        assignAll(first, lines, cancelled);
        return ended() ? std::nullopt : std::optional(first.mapping());
    }
    const auto byNumber = [](const auto &a, const auto &b) {
        return numberOf(a) < numberOf(b);
    };
    if (!std::is_sorted(lines.begin(), lines.end(), byNumber))
        std::stable_sort(lines.begin(), lines.end(), byNumber);
    const std::vector<std::size_t> ends = endsOfParts(lines, count);
    assignAll(first, std::span(lines).first(FirstLines), cancelled);
    std::vector<std::unique_ptr<LinePart>> others(count);
    for (std::size_t i = 1; i < count; ++i)
        others[i] = make();
    std::vector<PrjMappingC> mappings(count);
    std::vector<QString> messages(count);
    pool.run(int(count), [&](int step) {
        const auto i = std::size_t(step);
        PStringMessageImpl collector(PMsgReply::Cancel, false);
        LinePart &part = i == 0 ? first : *others[i];
        const std::size_t from = i == 0 ? FirstLines : ends[i - 1];
        assignAll(part, std::span(lines).subspan(from, ends[i] - from), cancelled);
        mappings[i] = part.mapping();
        others[i].reset();
        collector.deactivate();
        messages[i] = collector.buffer();
    });
    show(messages);
    return ended() ? std::nullopt : std::optional(joined(mappings, lastsOf(lines, ends)));
}

} // namespace VelkRelease
