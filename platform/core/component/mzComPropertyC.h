#pragma once

#include "mzComObjectT.h"
#include "mzComStringC.h"
#include "mzIComReference.h"
#include "mzIDispatchC.h"

/// Property of an object that is read when its value is wanted. Keeps the object.
class VELKCORE_EXPORT mzComPropertyC : public mzComObjectT<mzIComReference>
{
public:
    mzComPropertyC(const mzIDispatchC &object, const mzComStringC &name);

    [[nodiscard]] mzComVariantC read() override;
    int write(const mzComVariantC &value) override;

private:
    ~mzComPropertyC() override;

    mzIDispatchC m_object;
    mzComStringC m_name;
};
