#include "PConfigService.h"

#include "PConfigInst.h"

#include <core/message/PMessage.h>
#include <core/text/PPathName.h>

#include <QHash>
#include <QMutex>

namespace {

struct Service
{
    QMutex mutex;
    PStringList directories{QStringList("$TORMEVA_SETUP")};
    QHash<QString, PRefPtr<PConfig>> found;
};

/// Never destroyed: configurations are asked for until the very end of the process.
Service &service()
{
    static auto *const instance = new Service;
    return *instance;
}

PRefPtr<PConfig> open(const PStringList &directories, const QString &name)
{
    for (const QString &directory : directories) {
        const PPathName path = PPathName(directory) + PPathName(name + QStringLiteral(".cfg"));
        if (path.exists(false) && !path.exists(true))
            return new PConfigInst(path.text(), true);
    }
    return nullptr;
}

} // namespace

PRefPtr<PConfig> PConfigService::getConfig(int type, const QString &name)
{
    if (type != 0 || name.isEmpty())
        return nullptr;
    Service &s = service();
    QMutexLocker lock(&s.mutex);
    if (const auto known = s.found.constFind(name); known != s.found.cend())
        return *known;
    PRefPtr<PConfig> config = open(s.directories, name);
    if (!config)
        return nullptr;
    s.found.insert(name, config);
    lock.unlock();
    if (const PString error = config->lastError(); !error.isEmpty())
        PMessage::LogToWindow(error);
    return config;
}

void PConfigService::setDirectories(const PStringList &directories)
{
    const QMutexLocker lock(&service().mutex);
    service().directories = directories;
    service().found.clear();
}

PStringList PConfigService::directories()
{
    const QMutexLocker lock(&service().mutex);
    return service().directories;
}
