#pragma once

#include <type_traits>
#include <typeinfo>

/// The record of a type by which bound names are described: the type, and whether it may only be read.
///
/// A plain value. Two records are equal when they describe the same type with the same constness.
class RuntimeType
{
public:
    /// The record of nothing: what an unknown name answers.
    RuntimeType() = default;

    /// The described type, without const; `typeid(void)` for the record of nothing.
    [[nodiscard]] const std::type_info& GetTypeInfo() const noexcept { return *type; }

    /// Tells whether the described value can be read only.
    [[nodiscard]] bool IsConst() const noexcept { return isConst; }

    /// Tells whether this is the record of nothing.
    [[nodiscard]] bool IsEmpty() const noexcept { return *type == typeid(void); }

    /// Tells whether the described type is `T`, read-only or not.
    template <class T>
    [[nodiscard]] bool Is() const noexcept
    {
        return *type == typeid(T);
    }

    /// Equal in type and in whether it is read-only.
    friend bool operator==(const RuntimeType& left, const RuntimeType& right) noexcept
    {
        return *left.type == *right.type && left.isConst == right.isConst;
    }

protected:
    /// Describes a type; type information lives as long as its module.
    RuntimeType(const std::type_info& described, bool readOnly) : type(&described), isConst(readOnly) {}

private:
    const std::type_info* type = &typeid(void);
    bool isConst = false;
};
