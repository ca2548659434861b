#pragma once

#include "proxyAutoParaListC.h"
#include "proxyAutoTypeCastC.h"
#include "proxyMemberDescListS.h"
#include "proxyObjectC.h"

#include <tuple>
#include <type_traits>
#include <utility>

/// Parts of a member function's type.
template<class Member>
struct proxyMemberTraits;

template<class Class, class Result, class... Arguments>
struct proxyMemberTraits<Result (Class::*)(Arguments...)>
{
    using ClassType = Class;
    using ResultType = Result;
    using Values = std::tuple<std::decay_t<Arguments>...>;
    static constexpr int count = sizeof...(Arguments);
};

template<class Class, class Result, class... Arguments>
struct proxyMemberTraits<Result (Class::*)(Arguments...) const>
    : proxyMemberTraits<Result (Class::*)(Arguments...)>
{
};

template<auto Member, std::size_t... I>
void proxyInvokeWith(proxyObjectC &object, [[maybe_unused]] proxyAutoParaListC &arguments,
                     proxyAutoTypeCastC &result, std::index_sequence<I...>)
{
    using Traits = proxyMemberTraits<decltype(Member)>;
    using Values = typename Traits::Values;
    constexpr std::size_t count = sizeof...(I);
    [[maybe_unused]] Values values;
    ((std::get<count - 1 - I>(values) =
          arguments[count - 1 - I].template get<std::tuple_element_t<count - 1 - I, Values>>(true)),
     ...);
    auto &self = static_cast<typename Traits::ClassType &>(object);
    if constexpr (std::is_void_v<typename Traits::ResultType>) {
        (self.*Member)(std::get<I>(values)...);
        result.set(1);
    } else {
        result.set((self.*Member)(std::get<I>(values)...));
    }
}

/// Calls the member function with the arguments, which are read last to first. A function without
/// a result gives the script the int 1.
template<auto Member>
void proxyInvoke(proxyObjectC &object, proxyAutoParaListC &arguments, proxyAutoTypeCastC &result)
{
    constexpr int count = proxyMemberTraits<decltype(Member)>::count;
    proxyInvokeWith<Member>(object, arguments, result, std::make_index_sequence<count>());
}

template<auto Member>
const std::type_info &proxySignature()
{
    return typeid(Member);
}

/// Row for a method of a script class.
template<auto Member>
[[nodiscard]] constexpr proxyMemberDescS
proxyMethod(const char *name, const char *file = __builtin_FILE(), int line = __builtin_LINE())
{
    return {name,
            proxyMemberDescS::Method,
            proxyMemberTraits<decltype(Member)>::count,
            &proxyInvoke<Member>,
            &proxySignature<Member>,
            file,
            line};
}

/// Row for reading a property.
template<auto Member>
[[nodiscard]] constexpr proxyMemberDescS proxyPropertyRead(const char *name,
                                                           const char *file = __builtin_FILE(),
                                                           int line = __builtin_LINE())
{
    static_assert(proxyMemberTraits<decltype(Member)>::count == 0);
    proxyMemberDescS row = proxyMethod<Member>(name, file, line);
    row.kind = proxyMemberDescS::PropertyRead;
    return row;
}

/// Row for writing a property, which needs the other two as well.
template<auto Member>
[[nodiscard]] constexpr proxyMemberDescS proxyPropertyWrite(const char *name,
                                                            const char *file = __builtin_FILE(),
                                                            int line = __builtin_LINE())
{
    static_assert(proxyMemberTraits<decltype(Member)>::count == 1);
    proxyMemberDescS row = proxyMethod<Member>(name, file, line);
    row.kind = proxyMemberDescS::PropertyWrite;
    return row;
}
