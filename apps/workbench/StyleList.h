#pragma once

#include "host/data_binding/IReflectable.h"
#include "host/utils/OvxStringT.h"
#include "host/xml/WXmlNode.h"

#include <vector>

namespace Workbench
{

/// The two lists of a panel's styles.
enum class StyleListPart
{
    Main,
    More ///< Those that the main list does not show.
};

/// An entry of a panel's list of styles.
struct StyleListEntry
{
    unsigned id = 0;      ///< What is written to "ApplyStyleResource" to pick it.
    OvxStringT text;      ///< As menus take it: in the main list every "&" is doubled.
    OvxStringT styleName; ///< In the main list as the text is; empty for the entry that means no style.
    bool isChecked = false;
    bool leadsToDialog = false; ///< Picking it shows the list of the styles that the main list does not.
    WXmlNode node;              ///< What is written to "CurrentListStyleItem" to choose it in the dialog.
};

/// The list from which a panel's targets take their style, in the order of the panel.
struct StyleList
{
    std::vector<StyleListEntry> entries;
    bool hasMore = false; ///< The last entry stands for all styles that the main list does not show.
    StyleListPart part = StyleListPart::Main;
};

/// Lets a panel build its main list, or that of the styles which the main list built last does not show.
[[nodiscard]] StyleList ReadStyleList(const IReflectable& panel, StyleListPart part);

/// A name as entries of the main list hold it.
[[nodiscard]] OvxStringT EscapeForMenu(OvxStringT name);

} // namespace Workbench
