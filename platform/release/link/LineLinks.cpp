#include "LineLinks.h"

#include <QCryptographicHash>
#include <QHash>

#include <algorithm>
#include <map>

namespace VelkRelease {

namespace {

QByteArray joined(const QStringList &texts)
{
    return texts.join(QChar(0)).toUtf8();
}

/// 63 bits of a hash: that two of a million projects have the same is less likely than 1 in 10^6.
qint64 idOf(const QStringList &key)
{
    const QByteArray hash = QCryptographicHash::hash(joined(key), QCryptographicHash::Sha256);
    quint64 number = 0;
    for (int i = 0; i < 8; ++i)
        number = number << 8U | uchar(hash.at(i));
    return qint64(number >> 1U);
}

QString fingerprintOf(const LineLinks &links)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (const LineLinks::Target &target : links.targets)
        hash.addData(QByteArray::number(target.id) + '\n');
    QByteArray rows;
    for (const LineLinks::Link &link : links.links) {
        rows += QByteArray::number(link.sourceLine) + ' ' + QByteArray::number(link.target) + ' ' +
                QByteArray::number(link.targetLine) + ' ' +
                QByteArray::number(link.extended.size()) + link.extended.toUtf8() + '\n';
    }
    hash.addData(rows);
    return QString::fromLatin1(hash.result().toHex());
}

/// Numbers the targets anew, in the order of their ids.
void sortTargets(LineLinks &links)
{
    std::map<qint64, int> order;
    for (const LineLinks::Target &target : links.targets)
        order.emplace(target.id, 0);
    int count = 0;
    for (auto &[id, position] : order)
        position = count++;
    std::vector<LineLinks::Target> sorted(order.size());
    for (const LineLinks::Target &target : links.targets)
        sorted[size_t(order.at(target.id))] = target;
    for (LineLinks::Link &link : links.links) {
        if (link.target >= 0)
            link.target = order.at(links.targets[size_t(link.target)].id);
    }
    links.targets = std::move(sorted);
}

} // namespace

LineLinks LineLinks::of(const ReleaseMappingC &release, const PrjMappingC &mapping)
{
    LineLinks result;
    result.releaseDate = release.getSourceDate();
    result.targetDate = release.getTargetDate();
    result.path = mapping.getSourcePath();
    result.version = mapping.getSourceVersion();
    result.tableVersion = mapping.getTabVersion();
    result.id = idOf({result.releaseDate, result.path, result.version, result.tableVersion});
    QHash<int, size_t> placeOf;
    for (int i = 0; i < mapping.countTargets(); ++i) {
        const PrjMappingTargetC &target = mapping.targetAt(i);
        int position = -1;
        for (const LineTable::Iterator &entry : target.lines()) {
            if (entry.state() != PRJMAPPING::Verified)
                continue;
            const bool goesOn = !target.isNotFoundTarget() && entry.targetLine() >= 0;
            const auto known = placeOf.constFind(entry.sourceLine());
            if (known != placeOf.constEnd() && (!goesOn || result.links[known.value()].target >= 0))
                continue;
            if (goesOn && position < 0) {
                position = int(result.targets.size());
                result.targets.push_back({idOf({release.getTargetDate(), target.getTargetPath(),
                                                target.getTargetVersion(), target.getTabVersion()}),
                                          target.getTargetPath(), target.getTargetVersion(),
                                          target.getTabVersion()});
            }
            const Link link{entry.sourceLine(), goesOn ? position : -1,
                            goesOn ? entry.targetLine() : -1,
                            entry.extended() ? entry.extended()->text : QString()};
            if (known != placeOf.constEnd()) {
                result.links[known.value()] = link;
            } else {
                placeOf.insert(link.sourceLine, result.links.size());
                result.links.push_back(link);
            }
        }
    }
    std::ranges::sort(result.links, {}, &Link::sourceLine);
    sortTargets(result);
    result.fingerprint = fingerprintOf(result);
    return result;
}

} // namespace VelkRelease
