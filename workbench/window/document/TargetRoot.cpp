#include "TargetRoot.h"

#include <geomcore/index/IndexTreeC.h>

#include <QFileInfo>

TargetRoot::TargetRoot(const QString &directory)
    : m_former(IndexTreeC::instance()->catalogRoot())
{
    IndexTreeC::instance()->setCatalogRoot(QFileInfo(directory).absoluteFilePath());
}

TargetRoot::~TargetRoot()
{
    IndexTreeC::instance()->setCatalogRoot(m_former);
}
