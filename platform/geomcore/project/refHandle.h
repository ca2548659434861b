#pragma once

#include <core/text/PRefPtr.h>

/// Handle of a project: a counted pointer by another name.
template<class T>
class refHandle : public PRefPtr<T>
{
public:
    using PRefPtr<T>::PRefPtr;
    refHandle() = default;
    refHandle(const PRefPtr<T> &pointer)
        : PRefPtr<T>(pointer)
    {
    }
};
