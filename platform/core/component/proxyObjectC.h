#pragma once

#include "mzComRefObjectC.h"
#include "mzIDispatch.h"
#include "PMemManager.h"
#include "proxyMemberDescListS.h"

#include <core/VelkCoreGlobal.h>

/// Object of this process that scripts can use. A script class has this base and overrides
/// getProxyTypeInfo() and the destructor. Made with new, held by ProxyPtrT. The order of the
/// virtual operations is part of the component model.
///
/// Members are found by their exact names and kinds, from the object's own class to its bases.
class VELKCORE_EXPORT proxyObjectC : public mzIDispatch, public mzComRefObjectC, public PMemManager
{
public:
    proxyObjectC();

    int queryInterface(const mzIIDS &id, mzComPtrC &result) override;
    int addRef() const override;
    int release() const override;
    int invokeByName(const mzComStringC &name, int kind, const mzComVariantArrayC &arguments,
                     mzComVariantC &result, std::optional<PScriptException> &exception) override;
    /// The thread that made the object.
    [[nodiscard]] quintptr getStickyThreadId() const override;
    /// The object on which members of the described class are called; null if it is not of this
    /// class or of one derived from it.
    [[nodiscard]] virtual proxyObjectC *proxyCast(const proxyMemberDescListS *type);
    [[nodiscard]] virtual const proxyMemberDescListS *getProxyTypeInfo() const;

protected:
    virtual ~proxyObjectC();

public:
    /// For a script engine that holds the object: each connection is a reference, too. Gives the
    /// new number of connections.
    virtual int addRemoteConnection();
    /// Does nothing without a connection.
    virtual int releaseRemoteConnection();

    [[nodiscard]] mzIUnknown *getIUnknown() const;
    /// Script error for an argument of the wrong type.
    [[noreturn]] static void throwAutoTypeCastException();
    [[nodiscard]] static const proxyMemberDescListS *getStaticProxyTypeInfo();

private:
    quintptr m_thread;
    int m_remoteConnections = 0;
};
