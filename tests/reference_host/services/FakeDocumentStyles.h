#pragma once

#include "reference_host/services/IDocumentStyles.h"

#include <vector>

/// A document whose answers a test sets.
class FakeDocumentStyles final : public ReferenceHost::IDocumentStyles
{
public:
    Styles::StyleSheet* GetStyleSheet() override { return sheet; }

    std::vector<Styles::Style*> GetDefaultStyles() override { return defaults; }

    [[nodiscard]] bool IsHidden(const OvxStringT& styleName) const override
    {
        return styleName == hiddenName;
    }

    /// The name in angle brackets.
    [[nodiscard]] OvxStringT GetDisplayName(const OvxStringT& styleName) const override
    {
        return OvxStringViewT(L"<") + styleName + OvxStringViewT(L">");
    }

    Styles::StyleSheet* sheet = nullptr;
    std::vector<Styles::Style*> defaults;
    OvxStringT hiddenName = L"nothing";
};
