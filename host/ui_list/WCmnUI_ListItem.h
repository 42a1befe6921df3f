#pragma once

#include "host/Export.h"
#include "host/utils/OvxStringT.h"

#include <utility>

/// One entry of a list that the user interface shows. A plain value; compared by text and index.
class STYLEPROPERTIES_HOST_API WCmnUI_ListItem
{
public:
    /// An empty text and the index -1.
    WCmnUI_ListItem() = default;

    [[nodiscard]] const OvxStringT& GetText() const noexcept { return text; }

    void SetText(OvxStringT newText) { text = std::move(newText); }

    /// The position in its list, from 0; -1 for none.
    [[nodiscard]] int GetIndex() const noexcept { return index; }

    void SetIndex(int newIndex) noexcept { index = newIndex; }

    friend bool operator==(const WCmnUI_ListItem&, const WCmnUI_ListItem&) = default;

private:
    OvxStringT text;
    int index = -1;
};
