#pragma once

#include <string_view>

/// The name of a class as it is written, without "class " in front: the key under which its data sources are
/// known.
template <class T>
[[nodiscard]] constexpr std::string_view TypeName()
{
#if defined(_MSC_VER)
    constexpr std::string_view signature = __FUNCSIG__;
    constexpr std::string_view before = "TypeName<";
    constexpr std::string_view after = ">(void)";
    constexpr auto end = signature.rfind(after);
#else
    constexpr std::string_view signature = __PRETTY_FUNCTION__;
    constexpr std::string_view before = "T = ";
    constexpr auto end = signature.find_first_of(";]", signature.find(before));
#endif
    constexpr auto begin = signature.find(before) + before.size();
    std::string_view name = signature.substr(begin, end - begin);
    constexpr std::string_view keyword = "class ";
    if (name.substr(0, keyword.size()) == keyword)
        name.remove_prefix(keyword.size());
    return name;
}
