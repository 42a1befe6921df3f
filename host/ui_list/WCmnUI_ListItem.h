#pragma once

#include "host/Export.h"
#include "host/utils/Any.h"
#include "host/utils/OvxStringT.h"

#include <utility>

/// One entry of a list that the user interface shows. A plain value; compared by text and index, which stand
/// for the entry, and not by the picture, which goes with them.
class STYLEPROPERTIES_HOST_API WCmnUI_ListItem
{
public:
    /// An empty text and the index -1.
    WCmnUI_ListItem() = default;

    /// What the user interface writes for the entry.
    [[nodiscard]] const OvxStringT& GetText() const noexcept { return text; }

    /// Changes the text alone.
    void SetText(OvxStringT newText) { text = std::move(newText); }

    /// The position in its list, from 0; -1 for none.
    [[nodiscard]] int GetIndex() const noexcept { return index; }

    /// Changes the index alone; in a list, that is done by the list.
    void SetIndex(int newIndex) noexcept { index = newIndex; }

    /// What the user interface draws beside the text, in a type that it and whoever fills lists agree on;
    /// empty for nothing.
    [[nodiscard]] const OvxUtils::Any& GetPicture() const noexcept { return picture; }

    /// Changes the picture alone.
    void SetPicture(OvxUtils::Any newPicture) { picture = std::move(newPicture); }

    /// Equal in text and index.
    friend bool operator==(const WCmnUI_ListItem& left, const WCmnUI_ListItem& right)
    {
        return left.text == right.text && left.index == right.index;
    }

private:
    OvxStringT text;
    int index = -1;
    OvxUtils::Any picture;
};
