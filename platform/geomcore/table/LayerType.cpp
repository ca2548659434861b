#include "LayerType.h"

#include <QHash>
#include <QMutex>

namespace VKTab {

namespace {

constexpr int OffsetBits = 20;

struct Registry
{
    QMutex lock;
    QHash<QString, int> types;
};

Registry &registry()
{
    static Registry instance;
    return instance;
}

} // namespace

int registerLayerType(const QString &name)
{
    Registry &all = registry();
    const QMutexLocker guard(&all.lock);
    const auto known = all.types.constFind(name);
    if (known != all.types.constEnd())
        return *known;
    const int type = static_cast<int>(all.types.size()) + 1;
    all.types.insert(name, type);
    return type;
}

int fileLayerType()
{
    static const int type = registerLayerType(QStringLiteral("VKTab::FileLayer"));
    return type;
}

int erpLayerType()
{
    static const int type = registerLayerType(QStringLiteral("VKTab::ErpLayer"));
    return type;
}

int modifyLayerType()
{
    static const int type = registerLayerType(QStringLiteral("VKTab::ModifyLayer"));
    return type;
}

} // namespace VKTab

int getLayerIdOffset(int layerType)
{
    return layerType << VKTab::OffsetBits;
}
