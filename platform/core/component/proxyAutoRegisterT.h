#pragma once

#include "mzComServerStateEventC.h"
#include "proxyFactoryC.h"

/// Makes the script class T known as soon as the component server runs; T offers
/// `const proxyMemberDescListS *getStaticProxyTypeInfo()`. A static object of T's library; with it
/// the class goes.
template<class T>
class proxyAutoRegisterT : public mzComServerStateEventC
{
public:
    explicit proxyAutoRegisterT(int events)
        : mzComServerStateEventC(events)
    {
    }
    ~proxyAutoRegisterT() override
    {
        proxyFactoryC::instance().unregisterClass(T::getStaticProxyTypeInfo());
    }

    int serverStart() override
    {
        proxyFactoryC::instance().registerClass(T::getStaticProxyTypeInfo());
        return 0;
    }
};
