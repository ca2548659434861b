#pragma once

#include "mzComVariantArrayC.h"
#include "proxyObjectC.h"

#include <core/VelkCoreGlobal.h>

/// Dictionary of a script: values under keys, in the order in which the keys were added. Meant for
/// some dozens of keys: a key is sought among all.
class VELKCORE_EXPORT prxDictionaryObjC : public proxyObjectC
{
public:
    prxDictionaryObjC();

    /// A key that is there keeps its place and gets the new value.
    void addObj(const mzComVariantC &key, const mzComVariantC &value);
    /// Keys and values, side by side.
    [[nodiscard]] mzComVariantArrayC getKeyArray() const { return m_keys; }
    [[nodiscard]] mzComVariantArrayC getItemArray() const { return m_items; }

    [[nodiscard]] int count() const { return m_keys.size(); }
    /// Empty beyond the ends.
    [[nodiscard]] mzComVariantC keyAt(int index) const { return m_keys[index]; }
    [[nodiscard]] bool hasKey(const mzComVariantC &key) const;
    /// Empty if there is none.
    [[nodiscard]] mzComVariantC item(const mzComVariantC &key) const;
    /// Does nothing without such a key.
    void remove(const mzComVariantC &key);
    void clear();

    [[nodiscard]] const proxyMemberDescListS *getProxyTypeInfo() const override;
    /// Scripts have all of the above but the arrays.
    [[nodiscard]] static const proxyMemberDescListS *getStaticProxyTypeInfo();

private:
    ~prxDictionaryObjC() override;

    /// -1 if there is none.
    [[nodiscard]] int indexOf(const mzComVariantC &key) const;

    mzComVariantArrayC m_keys;
    mzComVariantArrayC m_items;
};
