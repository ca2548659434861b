#pragma once

/// Base of a private companion class: knows the object it belongs to, which owns it.
template<class T>
class PPrivateData
{
public:
    explicit PPrivateData(T *owner)
        : q(owner)
    {
    }

protected:
    T *const q;
};
