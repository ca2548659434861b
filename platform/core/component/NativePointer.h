#pragma once

#include "mzComObjectT.h"
#include "mzIComNativePointer.h"
#include "proxyObjectC.h"

#include <core/text/ProxyPtrT.h>

/// Native pointer of a proxy, which it keeps. All its other interfaces are the proxy's.
class NativePointer : public mzComObjectT<mzIComNativePointer>
{
public:
    explicit NativePointer(proxyObjectC &object);

    int queryInterface(const mzIIDS &id, mzComPtrC &result) override;
    [[nodiscard]] void *getNativePointer(const char *className, const char *moduleHint) override;
    [[nodiscard]] proxyObjectC *getObject() override;

private:
    ~NativePointer() override;

    ProxyPtrT<proxyObjectC> m_object;
};
