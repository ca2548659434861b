#pragma once

#include <core/VelkCoreGlobal.h>

#include <QMetaType>

#include <atomic>
#include <utility>

/// Base of objects held by PRefPtr: carries the count of references, which is atomic. The object is
/// deleted with its last reference, on the thread that drops it.
class VELKCORE_EXPORT PRefObject
{
public:
    PRefObject() = default;
    PRefObject(const PRefObject &) {}
    PRefObject &operator=(const PRefObject &) { return *this; }
    virtual ~PRefObject();

    void addRef() const { m_count.fetch_add(1, std::memory_order_relaxed); }
    void release() const
    {
        if (m_count.fetch_sub(1, std::memory_order_acq_rel) == 1)
            delete this;
    }

private:
    mutable std::atomic<int> m_count{0};
};

/// Counted pointer to a PRefObject. Null is allowed. Copying is safe on any thread; one pointer
/// object is not to be changed from two.
template<class T>
class PRefPtr
{
public:
    PRefPtr() = default;
    PRefPtr(std::nullptr_t) {}
    PRefPtr(T *object)
        : m_object(object)
    {
        if (m_object)
            m_object->addRef();
    }
    PRefPtr(const PRefPtr &other)
        : PRefPtr(other.m_object)
    {
    }
    PRefPtr(PRefPtr &&other) noexcept
        : m_object(std::exchange(other.m_object, nullptr))
    {
    }
    template<class U>
    PRefPtr(const PRefPtr<U> &other)
        : PRefPtr(static_cast<T *>(other.get()))
    {
    }
    ~PRefPtr()
    {
        if (m_object)
            m_object->release();
    }
    PRefPtr &operator=(PRefPtr other) noexcept
    {
        std::swap(m_object, other.m_object);
        return *this;
    }

    [[nodiscard]] T *get() const { return m_object; }
    T *operator->() const { return m_object; }
    T &operator*() const { return *m_object; }
    explicit operator bool() const { return m_object != nullptr; }
    [[nodiscard]] bool isNull() const { return m_object == nullptr; }

    friend bool operator==(const PRefPtr &a, const PRefPtr &b) { return a.m_object == b.m_object; }

private:
    T *m_object = nullptr;
};
