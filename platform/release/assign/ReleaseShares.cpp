#include "ReleaseShares.h"

#include <core/text/PPathName.h>
#include <geomcore/project/PrjClass.h>
#include <geomcore/records/ReleaseMappingC.h>
#include <geomcore/table/makeSachmRelativeToCatalog.h>

#include <QFileInfo>
#include <QStringList>

#include <algorithm>
#include <queue>
#include <vector>

namespace VelkRelease {

namespace {

qint64 linesSize(const QString &file)
{
    return QFileInfo(file.left(file.lastIndexOf(u'.')) + QStringLiteral(".csv")).size();
}

qint64 sizeOf(const QString &sourceRoot, const QString &sourcePath)
{
    const QString file = (PPathName(sourceRoot) + PPathName(sourcePath)).native();
    if (const qint64 size = linesSize(file); size > 0)
        return size;
    const refHandle<PrjClass> prj(new PrjClass(true, false, false));
    if (prj->read(file, PrjClass::ReadAll) != 1)
        return 0;
    VKTab::makeSachmRelativeToCatalog(prj, sourcePath);
    return linesSize(prj->tableFile());
}

struct Sized
{
    qint64 size;
    int number;
};

} // namespace

ShareNumber ShareNumber::fromText(const QString &text)
{
    const QStringList parts = text.split(u'/');
    if (parts.size() != 2)
        return {};
    bool isShare = false;
    bool isCount = false;
    const ShareNumber number{parts[0].toInt(&isShare), parts[1].toInt(&isCount)};
    const bool fits = isShare && isCount && number.share >= 1 && number.share <= number.shares &&
                      number.shares <= MaxShares;
    return fits ? number : ShareNumber();
}

ReleaseShares::ReleaseShares(const ReleaseMappingC &release, const QList<int> &positions,
                             const QString &sourceRoot, int shares)
    : m_positions(shares)
    , m_sizes(shares, 0)
{
    std::vector<Sized> projects;
    projects.reserve(size_t(positions.size()));
    for (const int position : positions)
        projects.push_back(
            {sizeOf(sourceRoot, release.mappingAt(position).getSourcePath()), position});
    std::ranges::stable_sort(projects, std::greater(), &Sized::size);

    // the lightest on top, of equal ones the first
    const auto isHeavier = [](const Sized &a, const Sized &b) {
        return a.size != b.size ? a.size > b.size : a.number > b.number;
    };
    std::vector<Sized> empty;
    for (int share = 0; share < shares; ++share)
        empty.push_back({0, share});
    std::priority_queue<Sized, std::vector<Sized>, decltype(isHeavier)> loads(isHeavier,
                                                                              std::move(empty));
    for (const Sized &project : projects) {
        Sized lightest = loads.top();
        loads.pop();
        m_positions[lightest.number].append(project.number);
        m_sizes[lightest.number] += project.size;
        lightest.size += project.size + 1; // projects without lines are spread too
        loads.push(lightest);
    }
    for (QList<int> &share : m_positions)
        std::ranges::sort(share);
}

} // namespace VelkRelease
