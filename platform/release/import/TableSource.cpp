#include "TableSource.h"

#include <QFileInfo>

#include <algorithm>
#include <vector>

namespace VelkRelease {

namespace {

std::vector<std::unique_ptr<TableSource>> &sources()
{
    static std::vector<std::unique_ptr<TableSource>> known;
    return known;
}

const TableSource *sourceOf(const QString &ending)
{
    const auto &known = sources();
    const auto hit = std::find_if(known.begin(), known.end(), [&](const auto &source) {
        return source->endings().contains(ending);
    });
    return hit == known.end() ? nullptr : hit->get();
}

} // namespace

TableSource::~TableSource() = default;

bool TableSource::add(std::unique_ptr<TableSource> source)
{
    const QStringList endings = source->endings();
    const bool free = std::none_of(endings.begin(), endings.end(), [](const QString &ending) {
        return ending == QLatin1String("csv") || sourceOf(ending);
    });
    if (!free || endings.isEmpty())
        return false;
    sources().push_back(std::move(source));
    return true;
}

const TableSource *TableSource::of(const QString &file)
{
    return sourceOf(QFileInfo(file).suffix().toLower());
}

} // namespace VelkRelease
