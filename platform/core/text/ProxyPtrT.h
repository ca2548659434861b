#pragma once

#include <core/VelkCoreGlobal.h>

#include <cstddef>

/// Replaces what the slot holds by `desired` if it holds `expected`, in one atomic step. True if it
/// did.
VELKCORE_EXPORT bool mzThreadSafeExchangePtr(void **slot, void *expected, void *desired);
/// What the slot holds, read in one atomic step.
[[nodiscard]] VELKCORE_EXPORT void *mzThreadSafeReadPtr(void *const *slot);

/// Counted pointer to a proxy object, which has addRef() and release(). Null is allowed.
///
/// Assignment takes no lock: of several threads that assign to one pointer one wins, and no
/// reference is lost or released twice. Copying from a pointer while another thread assigns to it
/// is not covered by that: the object may go between reading the pointer and counting it.
template<class T>
class ProxyPtrT
{
public:
    ProxyPtrT() = default;
    ProxyPtrT(std::nullptr_t) {}
    ProxyPtrT(T *object)
        : m_object(object)
    {
        if (object)
            object->addRef();
    }
    ProxyPtrT(const ProxyPtrT &other)
        : ProxyPtrT(other.get())
    {
    }
    ~ProxyPtrT()
    {
        if (T *object = get())
            object->release();
    }
    // NOLINTNEXTLINE(bugprone-unhandled-self-assignment): the new reference is counted first
    ProxyPtrT &operator=(const ProxyPtrT &other) { return *this = other.get(); }
    ProxyPtrT &operator=(T *object)
    {
        if (object)
            object->addRef();
        T *const old = get();
        if (old && mzThreadSafeExchangePtr(&m_object, old, nullptr))
            old->release();
        if (object && !mzThreadSafeExchangePtr(&m_object, nullptr, object))
            object->release();
        return *this;
    }
    ProxyPtrT &operator=(std::nullptr_t) { return *this = static_cast<T *>(nullptr); }

    [[nodiscard]] T *get() const { return static_cast<T *>(mzThreadSafeReadPtr(&m_object)); }
    T *operator->() const { return get(); }
    T &operator*() const { return *get(); }
    explicit operator bool() const { return get() != nullptr; }
    [[nodiscard]] bool isNull() const { return get() == nullptr; }

    friend bool operator==(const ProxyPtrT &a, const ProxyPtrT &b) { return a.get() == b.get(); }

private:
    void *m_object = nullptr;
};
