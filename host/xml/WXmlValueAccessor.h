#pragma once

#include "host/Export.h"
#include "host/utils/OvxStringT.h"

#include <memory>
#include <utility>

/// One value of an element, to be read or written. Keeps the tree of its element alive.
///
/// Booleans are written "true" and "false", numbers in decimal. A value that is absent, or does not read as
/// the type asked for, gives the fallback.
class STYLEPROPERTIES_HOST_API WXmlValueAccessor
{
public:
    /// Writes a text. The value is left out when it equals a `fallback` that is not empty; with both empty,
    /// an empty value is written.
    void SetString(const OvxStringT& value, const OvxStringT& fallback = OvxStringT());
    /// Writes "true" or "false".
    void SetBool(bool value);
    /// Writes the number in decimal.
    void SetInt(int value);

    /// The text of the value.
    [[nodiscard]] OvxStringT GetString(const OvxStringT& fallback = OvxStringT()) const;
    /// True for "true", false for "false".
    [[nodiscard]] bool GetBool(bool fallback = false) const;
    /// The number that the whole text is.
    [[nodiscard]] int GetInt(int fallback = 0) const;

private:
    friend class WXmlNode;

    WXmlValueAccessor(std::shared_ptr<void> owner, void* node, OvxStringT valueAddress)
        : tree(std::move(owner)), element(node), address(std::move(valueAddress))
    {
    }

    std::shared_ptr<void> tree; ///< Keeps alive what `element` points into; the host's own.
    void* element = nullptr;    ///< Null for a value of an invalid handle.
    OvxStringT address;         ///< As given: "@name".
};
