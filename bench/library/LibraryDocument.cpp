#include "bench/library/LibraryDocument.h"

#include "bench/library/StyledDrawing.h"
#include "host/style_model/CategoryNames.h"
#include "host/style_model/PropertyPath.h"
#include "host/utils/Utf8.h"
#include "reference_host/document/DrawingObject.h"
#include "reference_host/services/Application.h"

#include <map>

namespace Bench
{

namespace
{

int NumberOrZero(const OvxUtils::Any& value)
{
    return value.IsEmpty() ? 0 : value.Get<int>();
}

std::vector<Styles::PropertyKey> MakeKeys()
{
    std::vector<Styles::PropertyKey> keys;
    for (std::size_t property = 0; property < StyleTree::kProperties; ++property)
        keys.emplace_back(
            Styles::PooledString<Styles::StringPool>(OvxUtils::FromUtf8(StyleTree::NameOf(property))));
    return keys;
}

} // namespace

LibraryDocument::LibraryDocument(const StyleTree& tree)
    : keys(MakeKeys()), drawing(OpenStyledDrawing(tree, keys)), styles(*drawing), source(styles)
{
    ReferenceHost::Application::GetCurrent()->OpenDocument(&source, &styles);
    panel.FinishConstruction();
    for (ReferenceHost::DrawingObject& object : drawing->GetObjects())
        objects.push_back(object.GetStyle());
}

LibraryDocument::~LibraryDocument()
{
    ReferenceHost::Application::GetCurrent()->CloseDocument();
}

void LibraryDocument::SelectObjects()
{
    std::map<Styles::Style*, std::size_t> owners;
    for (ReferenceHost::DrawingObject& object : drawing->GetObjects())
        owners.emplace(object.GetStyle(), reinterpret_cast<std::size_t>(&object));
    panel.SetObjectStyles(owners);
    panel.SetTargetStyle(objects, false, Styles::PropertyPath(), {});
}

void LibraryDocument::SelectDefaults()
{
    panel.SetObjectStyles({});
    panel.SetTargetStyle({&drawing->GetDefaultStyle()}, true, Styles::PropertyPath(), {});
}

void LibraryDocument::ChangeDefault()
{
    drawing->GetDefaultStyle().SetPathProperty({Styles::FillStyleCategoryName, keys.back()},
                                               OvxUtils::Any(1));
}

int LibraryDocument::GetValue(std::size_t object, const Styles::PropertyKey& key) const
{
    return NumberOrZero(objects[object]->GetPathProperty({Styles::FillStyleCategoryName, key}));
}

int LibraryDocument::GetDefault(const Styles::PropertyKey& key)
{
    return NumberOrZero(drawing->GetDefaultStyle().GetPathProperty({Styles::FillStyleCategoryName, key}));
}

} // namespace Bench
