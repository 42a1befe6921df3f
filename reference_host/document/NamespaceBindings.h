#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace ReferenceHost
{

/// The prefixes that are declared at one place of an XML text, innermost last.
///
/// Borrows all texts. Looking a prefix up costs one comparison as a rule: a small table remembers where each
/// prefix was found, until a declaration comes or goes.
class NamespaceBindings
{
public:
    /// Starts with the prefix "xml", which needs no declaration.
    NamespaceBindings();

    /// Binds `prefix` from here on; the empty prefix is the default namespace. An empty `uri` ends a binding.
    void Declare(std::string_view prefix, std::string_view uri);

    /// How many bindings are in force, for Release().
    [[nodiscard]] std::size_t Mark() const noexcept { return bindings.size(); }

    /// Takes back everything declared since Mark() gave `mark`.
    void Release(std::size_t mark);

    /// The namespace that `prefix` stands for; null when it is not declared. Valid until the next change.
    [[nodiscard]] const std::string_view* Find(std::string_view prefix);

    /// Tells whether any prefix was declared for a namespace here, also where another declaration hides it.
    [[nodiscard]] bool IsInForce(std::string_view uri) const;

    /// Tells whether two prefixes have ever stood for one namespace. Only then can attributes of different
    /// spelling be the same.
    [[nodiscard]] bool HasAliases() const noexcept { return hasAliases; }

private:
    struct Binding
    {
        std::string_view prefix;
        std::string_view uri;
    };

    /// The place of a prefix among the bindings, as of one generation of them.
    struct Remembered
    {
        std::string_view prefix;
        std::size_t place = 0;
        std::uint32_t generation = 0;
    };

    std::vector<Binding> bindings;
    std::array<Remembered, 64> remembered{};
    std::uint32_t generation = 1; ///< Grows with each change; what was remembered before is void.
    bool hasAliases = false;
};

} // namespace ReferenceHost
