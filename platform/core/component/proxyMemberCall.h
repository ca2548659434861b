#pragma once

#include "mzComResult.h"
#include "mzComStringC.h"
#include "mzComVariantC.h"

#include <QString>

class mzComExceptionC;
class mzComVariantArrayC;
class proxyObjectC;
struct proxyMemberDescListS;
struct proxyMemberDescS;

/// One call of a proxy's member.
struct proxyMemberCall
{
    proxyObjectC &object;
    const mzComStringC &name;
    int kind;

    /// Throws mzComExceptionC if the call is not possible or fails.
    mzComVariantC operator()(const mzComVariantArrayC &arguments) const;

private:
    struct Row
    {
        const proxyMemberDescListS *owner;
        const proxyMemberDescS *member;
    };

    [[nodiscard]] Row find(int argumentCount) const;
    [[nodiscard]] mzComVariantC run(const Row &row, const mzComVariantArrayC &arguments) const;
    [[nodiscard]] mzComExceptionC unknownMember() const;
    [[nodiscard]] mzComExceptionC wrongCount(int expected, int given) const;
    /// Of the argument at an index from 0; -1 if none was read yet.
    [[nodiscard]] mzComExceptionC wrongType(int index) const;
    /// Class and member.
    [[nodiscard]] QString title() const;
};
