#pragma once

#include <core/component/proxyMember.h>
#include <core/component/proxyObjectC.h>
#include <core/text/ProxyPtrT.h>
#include <core/text/PString.h>

#include <QStringList>

/// A script class with members of every kind.
class SampleC : public proxyObjectC
{
public:
    SampleC() { ++alive; }

    int number() const { return m_number; }
    int setNumber(int value)
    {
        m_number = value;
        return 1;
    }
    ProxyPtrT<SampleC> peer() const { return m_peer; }
    void setPeer(const ProxyPtrT<SampleC> &value) { m_peer = value; }
    PString title() const { return QStringLiteral("Schraube"); }
    QString join(const QString &text, int number, bool flag)
    {
        return text + QStringLiteral("/%1/%2").arg(number).arg(flag);
    }
    double half(double value) const { return value / 2; }
    void dropPeer() { m_peer = nullptr; }
    void fail() { throwAutoTypeCastException(); }

    const proxyMemberDescListS *getProxyTypeInfo() const override
    {
        return getStaticProxyTypeInfo();
    }
    static const proxyMemberDescListS *getStaticProxyTypeInfo()
    {
        static const proxyMemberDescS members[] = {
            proxyPropertyRead<&SampleC::number>("number"),
            proxyPropertyWrite<&SampleC::setNumber>("number"),
            proxyMethod<&SampleC::setNumber>("number"),
            proxyPropertyRead<&SampleC::peer>("peer"),
            proxyPropertyWrite<&SampleC::setPeer>("peer"),
            proxyMethod<&SampleC::setPeer>("peer"),
            proxyPropertyRead<&SampleC::title>("title"),
            proxyMethod<&SampleC::join>("join"),
            proxyMethod<&SampleC::half>("half"),
            proxyMethod<&SampleC::dropPeer>("dropPeer"),
            proxyMethod<&SampleC::fail>("fail"),
        };
        static const proxyMemberDescListS description{
            .className = "SampleC",
            .base = proxyObjectC::getStaticProxyTypeInfo(),
            .members = members,
            .componentId = "tests.sample",
            .creator = []() -> proxyObjectC * { return new SampleC; },
            .file = __FILE__,
            .line = __LINE__};
        return &description;
    }

    static inline int alive = 0;

protected:
    ~SampleC() override { --alive; }

private:
    int m_number = 0;
    ProxyPtrT<SampleC> m_peer;
};

/// Derived from the former: one member of its own, one instead of the base's.
class DerivedSampleC : public SampleC
{
public:
    int twice() const { return 2 * number(); }
    QString otherTitle() const { return QStringLiteral("Mutter"); }

    const proxyMemberDescListS *getProxyTypeInfo() const override
    {
        return getStaticProxyTypeInfo();
    }
    static const proxyMemberDescListS *getStaticProxyTypeInfo()
    {
        static const proxyMemberDescS members[] = {
            proxyMethod<&DerivedSampleC::twice>("twice"),
            proxyPropertyRead<&DerivedSampleC::otherTitle>("title"),
        };
        static const proxyMemberDescListS description{.className = "DerivedSampleC",
                                                      .base = SampleC::getStaticProxyTypeInfo(),
                                                      .members = members,
                                                      .file = __FILE__,
                                                      .line = __LINE__};
        return &description;
    }
};

/// Nothing to do with the others, and without members.
class OtherC : public proxyObjectC
{
};
