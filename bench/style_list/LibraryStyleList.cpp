#include "bench/style_list/LibraryStyleList.h"

#include "bench/library/WholeStyle.h"
#include "host/utils/Utf8.h"
#include "host/xml/WXmlNode.h"
#include "reference_host/services/Application.h"

#include <vector>

namespace Bench
{

namespace
{

std::unique_ptr<ReferenceHost::Drawing> MakeDrawing(const NamedStyles& named)
{
    std::unique_ptr<ReferenceHost::Drawing> drawing = ReferenceHost::Drawing::CreateBlank();
    ReferenceHost::NamedStyleSheet& sheet = drawing->GetStyleSheet();
    Styles::Style* before = nullptr;
    for (std::size_t style = 0; style < named.Count(); ++style)
    {
        Styles::Style* const parent = NamedStyles::ParentOf(style) ? before : nullptr;
        before = sheet.Add(OvxUtils::FromUtf8(NamedStyles::NameOf(style)), MakeWholeStyle(parent));
        if (NamedStyles::IsBeforeOther(style))
            sheet.Add(OvxUtils::FromUtf8(NamedStyles::NameOfOther(style)),
                      std::make_unique<Styles::Style>(nullptr, Styles::FillStyleCategoryName));
    }
    return drawing;
}

} // namespace

LibraryStyleList::LibraryStyleList(const NamedStyles& named)
    : drawing(MakeDrawing(named)), styles(*drawing), source(styles)
{
    ReferenceHost::Application::GetCurrent()->OpenDocument(&source, &styles);
    panel.FinishConstruction();
    Styles::Style* const target =
        drawing->GetStyleSheet().GetStyle(OvxUtils::FromUtf8(NamedStyles::NameOf(named.Target())));
    panel.SetTargetStyle({target}, false, Styles::PropertyPath(), {});
}

LibraryStyleList::~LibraryStyleList()
{
    ReferenceHost::Application::GetCurrent()->CloseDocument();
}

double LibraryStyleList::Open()
{
    RowSum sum;
    ReadMain(sum);
    return sum.Get();
}

double LibraryStyleList::OpenWhole()
{
    RowSum sum;
    ReadMain(sum);
    for (const WXmlNode& row : panel.GetNewStyleList().GetChildren())
        sum.Add(row.Attribute(L"@text").GetString().Wide());
    return sum.Get();
}

// The first row is that for no style, and the last of those with an id but nothing to apply leads to the
// further styles: neither is a style.
void LibraryStyleList::ReadMain(RowSum& sum)
{
    const std::vector<WXmlNode> rows = panel.GetStyleResourceList().GetChildren();
    for (std::size_t row = 1; row < rows.size(); ++row)
    {
        if (rows[row].Attribute(L"@enable").GetBool())
            sum.Add(rows[row].Attribute(L"@text").GetString().Wide());
    }
}

} // namespace Bench
