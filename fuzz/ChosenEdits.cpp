#include "fuzz/ChosenEdits.h"

#include "host/colour/CLR_COLORSPEC.h"
#include "host/style_model/CategoryNames.h"
#include "host/style_model/PropertyPath.h"
#include "host/utils/Any.h"
#include "reference_host/history/History.h"

#include <array>
#include <vector>

namespace Fuzz
{
namespace
{

using OvxUtils::Any;
using ReferenceHost::Drawing;
using Styles::PropertyKey;
using Styles::Style;

enum class Kind
{
    Colour,
    Number,
    Choice,
    Text
};

struct Property
{
    const wchar_t* category;
    const wchar_t* key;
    Kind kind;
};

constexpr std::array kProperties{Property{L"fill", L"type", Kind::Choice},
                                 Property{L"fill", L"color", Kind::Colour},
                                 Property{L"fill", L"transparency", Kind::Number},
                                 Property{L"fill", L"gradient", Kind::Text},
                                 Property{L"outline", L"type", Kind::Choice},
                                 Property{L"outline", L"color", Kind::Colour},
                                 Property{L"outline", L"width", Kind::Number},
                                 Property{L"outline", L"dash", Kind::Text},
                                 Property{L"outline", L"cap", Kind::Choice},
                                 Property{L"paragraph", L"align", Kind::Choice},
                                 Property{L"paragraph", L"left-indent", Kind::Number},
                                 Property{L"paragraph", L"space-after", Kind::Number},
                                 Property{L"paragraph", L"line-spacing", Kind::Number},
                                 Property{L"character", L"font", Kind::Text},
                                 Property{L"character", L"size", Kind::Number},
                                 Property{L"character", L"weight", Kind::Choice},
                                 Property{L"character", L"underline", Kind::Choice},
                                 Property{L"character", L"color", Kind::Colour},
                                 Property{L"character", L"letter-spacing", Kind::Number}};

/// Each is a choice of one property or more, and none of the others.
constexpr std::array kChoices{L"none", L"solid", L"bold", L"center", L"round", L"gradient", L"dash"};

PropertyKey Key(OvxStringViewT text)
{
    return PropertyKey(Styles::PooledString<Styles::StringPool>(text));
}

/// A style that a person can edit, and in which category.
struct Editable
{
    Style* style;
    PropertyKey category; ///< Empty for all of them.
};

/// In an order that depends on the drawing alone.
std::vector<Editable> EditablesOf(Drawing& drawing)
{
    std::vector<Editable> editables{{&drawing.GetDefaultStyle(), {}}};
    for (const OvxStringT& name : drawing.GetStyleSheet().GetNames())
        editables.push_back({drawing.GetStyleSheet().GetStyle(name), {}});
    for (ReferenceHost::DrawingObject& object : drawing.GetObjects())
    {
        if (object.IsGroup())
            continue;
        editables.push_back({object.GetStyle(), {}});
        for (ReferenceHost::TextUnit& paragraph : object.GetParagraphs())
            editables.push_back({paragraph.GetStyle(), Styles::GetParagraphStyleCategoryName()});
        for (ReferenceHost::TextUnit& run : object.GetRuns())
            editables.push_back({run.GetStyle(), Styles::GetCharacterStyleCategoryName()});
    }
    return editables;
}

bool MayEdit(const Editable& editable, const PropertyKey& category)
{
    return editable.category == PropertyKey() || editable.category == category;
}

OvxStringT ChooseName(Drawing& drawing, Choices& choices)
{
    const std::vector<OvxStringT>& names = drawing.GetStyleSheet().GetNames();
    const std::size_t chosen = choices.Below(names.size() + 1);
    return chosen < names.size() ? names[chosen] : choices.Text();
}

CLR_COLORSPEC::Rgb ChooseLook(Choices& choices)
{
    const std::uint8_t red = choices.Byte();
    const std::uint8_t green = choices.Byte();
    return {red, green, choices.Byte()};
}

Any ChooseColour(Drawing& drawing, Choices& choices)
{
    const std::vector<ReferenceHost::PaletteEntry>& palette = drawing.GetPalette();
    const std::size_t chosen = choices.Below(palette.size() + 1);
    if (chosen == palette.size())
        return Any(CLR_COLORSPEC::FromRgb(ChooseLook(choices)));
    return Any(CLR_COLORSPEC::FromResource(palette[chosen].name, palette[chosen].look));
}

Any ChooseValue(Kind kind, Drawing& drawing, Choices& choices)
{
    switch (kind)
    {
    case Kind::Colour:
        return ChooseColour(drawing, choices);
    case Kind::Number:
        return Any(choices.Number());
    case Kind::Choice:
        return Any(Key(kChoices[choices.Below(kChoices.size())]));
    default:
        return Any(choices.Text());
    }
}

void SetValue(Drawing& drawing, const Editable& editable, Choices& choices)
{
    const Property& property = kProperties[choices.Below(kProperties.size())];
    Style* const substyle = Styles::GetStyleOrSubstyle(editable.style, Key(property.category), false);
    if (substyle != nullptr && MayEdit(editable, Key(property.category)))
        substyle->SetProperty(Key(property.key), ChooseValue(property.kind, drawing, choices));
}

/// Takes the first value away that the style sets itself.
void ClearValue(const Editable& editable)
{
    for (const Styles::PropertyPath& path : Styles::GetOverriddenPropertyPaths(*editable.style))
    {
        if (MayEdit(editable, path.front()))
            return editable.style->SetPathProperty(path, Any());
    }
}

void AddStyle(Drawing& drawing, Choices& choices)
{
    const std::vector<PropertyKey>& categories = drawing.GetCategories();
    const std::size_t chosen = choices.Below(categories.size() + 1);
    drawing.AddStyle(chosen < categories.size() ? categories[chosen] : Styles::StyleCategoryName,
                     choices.Text());
}

void SetParent(Drawing& drawing, Style& style, Choices& choices)
{
    Style* const parent = drawing.GetStyleSheet().GetStyle(ChooseName(drawing, choices));
    // Hosts let a style inherit from one of its own category alone, and the default style from none.
    if (&style == &drawing.GetDefaultStyle() || parent == nullptr ||
        parent->GetCategoryName() == style.GetCategoryName())
        style.SetParent(&style == &drawing.GetDefaultStyle() ? nullptr : parent);
}

void Rename(Drawing& drawing, Choices& choices)
{
    const OvxStringT name = ChooseName(drawing, choices);
    drawing.RenameStyle(name, choices.Text());
}

void DefineColour(Drawing& drawing, Choices& choices)
{
    const CLR_COLORSPEC::Rgb look = ChooseLook(choices);
    drawing.DefinePaletteColour(choices.Text(), look);
}

/// Makes one edit, as a step of its own.
void Edit(Drawing& drawing, unsigned operation, Choices& choices)
{
    const ReferenceHost::History::Step step(drawing.GetHistory(), L"edit");
    const std::vector<Editable> editables = EditablesOf(drawing);
    const Editable& editable = editables[choices.Below(editables.size())];
    switch (operation)
    {
    case 2:
        return ClearValue(editable);
    case 3:
        return SetParent(drawing, *editable.style, choices);
    case 4:
        return AddStyle(drawing, choices);
    case 5:
        return Rename(drawing, choices);
    case 6:
        return DefineColour(drawing, choices);
    default:
        return SetValue(drawing, editable, choices);
    }
}

} // namespace

void EditAsChosen(Drawing& drawing, Choices& choices)
{
    constexpr unsigned kOperations = 9;
    while (choices.AreLeft())
    {
        const unsigned operation = choices.Byte() % kOperations;
        if (operation == 0)
            drawing.GetHistory().Undo();
        else if (operation == 1)
            drawing.GetHistory().Redo();
        else
            Edit(drawing, operation, choices);
    }
}

} // namespace Fuzz
