#pragma once

#include "mzIUnknown.h"

#include <core/VelkCoreGlobal.h>

#include <utility>

/// Counted pointer to an interface. Null is allowed.
class VELKCORE_EXPORT mzComPtrC
{
public:
    mzComPtrC() = default;
    mzComPtrC(const mzIUnknown *object);
    mzComPtrC(const mzComPtrC &other)
        : mzComPtrC(other.m_object)
    {
    }
    mzComPtrC(mzComPtrC &&other) noexcept
        : m_object(other.detach())
    {
    }
    ~mzComPtrC();
    mzComPtrC &operator=(mzComPtrC other) noexcept
    {
        std::swap(m_object, other.m_object);
        return *this;
    }

    [[nodiscard]] bool isValid() const { return m_object; }
    [[nodiscard]] mzIUnknown *iface() const { return m_object; }
    /// The pointer as the interface that it was asked for; no other one.
    template<class Interface>
    [[nodiscard]] Interface *as() const
    {
        return static_cast<Interface *>(m_object);
    }
    mzIUnknown *operator->() const { return m_object; }
    /// Empties the pointer and hands its reference over to the caller.
    [[nodiscard]] mzIUnknown *detach() noexcept { return std::exchange(m_object, nullptr); }

    friend bool operator==(const mzComPtrC &a, const mzComPtrC &b)
    {
        return a.m_object == b.m_object;
    }

private:
    mzIUnknown *m_object = nullptr;
};
