#pragma once

#include "mzComObjectT.h"
#include "mzComVariantC.h"
#include "mzIComReference.h"

/// Variable of a script, given to a call by reference: the called can write into it.
class VELKCORE_EXPORT mzComVariableC : public mzComObjectT<mzIComReference>
{
public:
    explicit mzComVariableC(const mzComVariantC &value = {});

    [[nodiscard]] mzComVariantC read() override;
    int write(const mzComVariantC &value) override;

private:
    ~mzComVariableC() override;

    mzComVariantC m_value;
};
