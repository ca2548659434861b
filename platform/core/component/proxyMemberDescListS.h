#pragma once

#include <span>
#include <typeinfo>

class proxyAutoParaListC;
class proxyAutoTypeCastC;
class proxyObjectC;

/// Member of a script class. A property that can be written has three rows: to read it, to write
/// it, and a method of the same name with one argument that does the same as writing.
struct proxyMemberDescS
{
    enum Kind { Method = 1, PropertyRead = 2, PropertyWrite = 4 };
    /// Unpacks the arguments, calls the member, packs the result. The object is of the class whose
    /// description holds the row; the number of arguments is right.
    using Invoker = void (*)(proxyObjectC &object, proxyAutoParaListC &arguments,
                             proxyAutoTypeCastC &result);
    /// The type of the member function.
    using Signature = const std::type_info &(*)();

    const char *name = nullptr; ///< as scripts write it, in ASCII
    int kind = Method;
    int argumentCount = 0;
    Invoker invoker = nullptr;
    Signature signature = nullptr;
    const char *file = nullptr; ///< where the member is declared
    int line = 0;
};

/// Description of a script class: a static object, built on its first use.
struct proxyMemberDescListS
{
    const char *className = nullptr;
    /// Description of the base class; null for the last one.
    const proxyMemberDescListS *base = nullptr;
    std::span<const proxyMemberDescS> members = {};
    /// Null for a class that scripts cannot create by an id.
    const char *componentId = nullptr;
    /// Makes an object without references. Null for a class that scripts cannot create.
    proxyObjectC *(*creator)() = nullptr;
    const char *file = nullptr; ///< where the class is declared
    int line = 0;
};
