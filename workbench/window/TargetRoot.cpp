#include "TargetRoot.h"

#include <geomcore/index/IndexTreeC.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace {

constexpr const char *variable = "TORMEVA_DATA";
const QString linkName = QStringLiteral("23d-libs");

} // namespace

TargetRoot::TargetRoot(const QString &directory)
    : m_directory(QFileInfo(directory).absoluteFilePath())
    , m_former(qgetenv(variable))
{
    IndexTreeC::instance()->setCatalogRoot(m_directory);
    if (QFileInfo(m_directory).fileName() == linkName) {
        qputenv(variable, QFile::encodeName(QFileInfo(m_directory).path()));
        return;
    }
    m_link = std::make_unique<QTemporaryDir>();
    QFile::link(m_directory, m_link->filePath(linkName));
    qputenv(variable, QFile::encodeName(m_link->path()));
}

TargetRoot::~TargetRoot()
{
    // The link is no directory, or all below it would be removed with it.
    if (m_link)
        QFile::remove(m_link->filePath(linkName));
    if (m_former.isNull())
        qunsetenv(variable);
    else
        qputenv(variable, m_former);
    IndexTreeC::instance()->setCatalogRoot(PPathName("$TORMEVA_DATA/23d-libs"));
}
