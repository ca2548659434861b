#pragma once

#include "mzComPtrC.h"
#include "mzComRefObjectC.h"
#include "PMemManager.h"

/// Object with the one interface that its template argument names.
template<class Interface>
class mzComObjectT : public Interface, public mzComRefObjectC, public PMemManager
{
public:
    int queryInterface(const mzIIDS &id, mzComPtrC &result) override
    {
        const bool known = id == Interface::iid() || id == mzIUnknown::iid();
        result = known ? mzComPtrC(this) : mzComPtrC();
        return known ? mzComSuccess : mzComNoInterface;
    }
    int addRef() const final { return this->countUp(); }
    int release() const final
    {
        const int count = this->countDown();
        if (count == 0)
            delete this;
        return count;
    }

protected:
    virtual ~mzComObjectT() = default;
};
