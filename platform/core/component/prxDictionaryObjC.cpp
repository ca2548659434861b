#include "prxDictionaryObjC.h"

#include "proxyMember.h"

prxDictionaryObjC::prxDictionaryObjC() = default;

prxDictionaryObjC::~prxDictionaryObjC() = default;

void prxDictionaryObjC::addObj(const mzComVariantC &key, const mzComVariantC &value)
{
    const int index = indexOf(key);
    if (index < 0) {
        m_keys.append(key);
        m_items.append(value);
    } else {
        m_items.replace(index, value);
    }
}

bool prxDictionaryObjC::hasKey(const mzComVariantC &key) const
{
    return indexOf(key) >= 0;
}

mzComVariantC prxDictionaryObjC::item(const mzComVariantC &key) const
{
    return m_items[indexOf(key)];
}

void prxDictionaryObjC::remove(const mzComVariantC &key)
{
    const int index = indexOf(key);
    m_keys.remove(index);
    m_items.remove(index);
}

void prxDictionaryObjC::clear()
{
    m_keys = {};
    m_items = {};
}

const proxyMemberDescListS *prxDictionaryObjC::getProxyTypeInfo() const
{
    return getStaticProxyTypeInfo();
}

const proxyMemberDescListS *prxDictionaryObjC::getStaticProxyTypeInfo()
{
    static const proxyMemberDescS members[] = {
        proxyMethod<&prxDictionaryObjC::addObj>("addObj"),
        proxyPropertyRead<&prxDictionaryObjC::count>("count"),
        proxyMethod<&prxDictionaryObjC::keyAt>("keyAt"),
        proxyMethod<&prxDictionaryObjC::hasKey>("hasKey"),
        proxyMethod<&prxDictionaryObjC::item>("item"),
        proxyMethod<&prxDictionaryObjC::remove>("remove"),
        proxyMethod<&prxDictionaryObjC::clear>("clear"),
    };
    static const proxyMemberDescListS description{.className = "prxDictionaryObjC",
                                                  .base = proxyObjectC::getStaticProxyTypeInfo(),
                                                  .members = members,
                                                  .file = __FILE__,
                                                  .line = __LINE__};
    return &description;
}

int prxDictionaryObjC::indexOf(const mzComVariantC &key) const
{
    for (int i = 0; i < m_keys.size(); ++i) {
        if (m_keys[i] == key)
            return i;
    }
    return -1;
}
