#pragma once

#include "tests/datasource/support/HostedTest.h"
#include "tests/datasource/support/RecordingContext.h"

#include <string>
#include <vector>

/// A fill panel in a context with dialogs, and a sheet that is filled with numbered fill styles.
class StyleListTest : public HostedTest
{
protected:
    StyleListTest();

    /// "S7" for 7.
    [[nodiscard]] static OvxStringT Numbered(int number);

    /// Puts that many further fill styles into the sheet: "S1", "S2" and so on.
    void NameFills(int count);

    /// A new whole style whose fill substyle inherits from `parent`.
    [[nodiscard]] Styles::Style& ObjectWithFill(Styles::Style* parent = nullptr);

    /// An item of a list that names no style of the sheet.
    [[nodiscard]] WXmlNode AnyItem();

    /// The attributes at `address` of all items that have one, in order.
    [[nodiscard]] static std::vector<OvxStringT> Column(const WXmlNode& list, const wchar_t* address);

    [[nodiscard]] static OvxStringT AttributeOf(const WXmlNode& list, std::size_t item,
                                                const wchar_t* address);

    /// The start tags of an element and of all below it, attributes in order.
    [[nodiscard]] static std::string ToText(const WXmlNode& node);

    RecordingContext context{log};
    RecordingDialogs dialogs{log};
    std::vector<Styles::Style*> fills; ///< The numbered styles; borrowed from `styles`.
    WXmlDoc document;
};
