#pragma once

#include "PBaseInterface.h"

#include <core/text/PRefPtr.h>

#include <QObject>

class PApplicationPool;
class PLinkDbC;

/// What a link database plug-in offers its host, which owns the plug-in object. Everything on the
/// GUI thread. The order of the operations is fixed.
class VELKCORE_EXPORT PLinkDbGuiI : public PBaseInterface
{
public:
    ~PLinkDbGuiI() override;
    virtual QObject *asQObject() = 0;
    /// Called once, before initLinkDb().
    virtual void registerActions(PApplicationPool &pool) = 0;
    /// False if there is no licence or no database.
    virtual bool initLinkDb(PRefPtr<PLinkDbC> linkDb) = 0;
};

Q_DECLARE_INTERFACE(PLinkDbGuiI, "velkworkbench.PLinkDbGuiI/1.0")
