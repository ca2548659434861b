#include "LinkDbGuiC.h"

#include "LinkDbActions.h"

#include <core/plugin/PLicence.h>
#include <gui/application/PApplication.h>

namespace {

bool isLinkDbLicensed()
{
    return PLicence::isLicensed(QStringLiteral("LINKDB"));
}

} // namespace

LinkDbGuiC::LinkDbGuiC()
{
    connect(VelkApp(), SIGNAL(applicationInitialized()), this, SLOT(onGuiInitialized()));
}

LinkDbGuiC::~LinkDbGuiC() = default;

QObject *LinkDbGuiC::asQObject()
{
    return this;
}

void LinkDbGuiC::registerActions(PApplicationPool &pool)
{
    registerLinkDbActions(pool);
}

bool LinkDbGuiC::initLinkDb(PRefPtr<PLinkDbC> linkDb)
{
    return !linkDb.isNull() && isLinkDbLicensed();
}

void LinkDbGuiC::onGuiInitialized()
{
    m_hasUserDefinedFields = isLinkDbLicensed();
}
