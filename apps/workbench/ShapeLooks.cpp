// The second place of the programs that sees the style model: it reads values for the eye, many at once.

#include "apps/workbench/ShapeLooks.h"

#include "host/style_model/CategoryNames.h"
#include "host/style_model/PropertyKey.h"
#include "host/style_model/Style.h"

#include <array>
#include <cstddef>
#include <string>
#include <utility>

namespace Workbench
{
namespace
{

using Styles::PropertyKey;
using Styles::Style;

PropertyKey KeyOf(const wchar_t* text)
{
    return PropertyKey(Styles::PooledString<Styles::StringPool>(text));
}

/// The keys that are read, made once.
struct Keys
{
    PropertyKey type = KeyOf(L"type");
    PropertyKey color = KeyOf(L"color");
    PropertyKey transparency = KeyOf(L"transparency");
    PropertyKey gradient = KeyOf(L"gradient");
    PropertyKey hatch = KeyOf(L"hatch");
    PropertyKey bitmap = KeyOf(L"bitmap");
    PropertyKey width = KeyOf(L"width");
    PropertyKey dash = KeyOf(L"dash");
    PropertyKey join = KeyOf(L"join");
    PropertyKey cap = KeyOf(L"cap");
    PropertyKey startArrow = KeyOf(L"start-arrow");
    PropertyKey endArrow = KeyOf(L"end-arrow");
    PropertyKey align = KeyOf(L"align");
    PropertyKey leftIndent = KeyOf(L"left-indent");
    PropertyKey rightIndent = KeyOf(L"right-indent");
    PropertyKey firstLineIndent = KeyOf(L"first-line-indent");
    PropertyKey spaceBefore = KeyOf(L"space-before");
    PropertyKey spaceAfter = KeyOf(L"space-after");
    PropertyKey lineSpacing = KeyOf(L"line-spacing");
    PropertyKey font = KeyOf(L"font");
    PropertyKey size = KeyOf(L"size");
    PropertyKey weight = KeyOf(L"weight");
    PropertyKey posture = KeyOf(L"posture");
    PropertyKey underline = KeyOf(L"underline");
    PropertyKey strikethrough = KeyOf(L"strikethrough");
    PropertyKey letterSpacing = KeyOf(L"letter-spacing");

    static const Keys& Get()
    {
        static const Keys keys;
        return keys;
    }
};

/// Reads the values of one substyle. A value of another type than asked for counts as not set.
class Values
{
public:
    Values(const Style& whole, const PropertyKey& category) : style(whole.GetSubstyle(category, false)) {}

    template <class Type>
    [[nodiscard]] const Type* Find(const PropertyKey& key) const
    {
        if (style == nullptr)
            return nullptr;
        return style->GetProperty(key).TryGet<Type>();
    }

    void Read(const PropertyKey& key, int& target) const
    {
        if (const int* const value = Find<int>(key))
            target = *value;
    }

    void Read(const PropertyKey& key, OvxStringT& target) const
    {
        if (const OvxStringT* const value = Find<OvxStringT>(key))
            target = *value;
    }

    void Read(const PropertyKey& key, LookColour& target) const
    {
        const CLR_COLORSPEC* const value = Find<CLR_COLORSPEC>(key);
        if (value == nullptr)
            return;
        // Assigned at once, GCC 12 takes the three bytes for one when it optimises, and warns.
        const LookColour read = value->ToRgb();
        target = read;
    }

    /// The name of a choice; empty when nothing sets it.
    [[nodiscard]] OvxStringT Choice(const PropertyKey& key) const
    {
        const PropertyKey* const value = Find<PropertyKey>(key);
        return value == nullptr ? OvxStringT() : value->GetString();
    }

    /// What a choice means by a table; unchanged for a choice that is not in it.
    template <class Type, std::size_t count>
    void Read(const PropertyKey& key, const std::array<std::pair<const wchar_t*, Type>, count>& meanings,
              Type& target) const
    {
        const OvxStringT choice = Choice(key);
        for (const auto& [name, meaning] : meanings)
        {
            if (choice == OvxStringT(name))
                target = meaning;
        }
    }

private:
    const Style* style;
};

constexpr std::array<std::pair<const wchar_t*, InsideLook::Kind>, 4> kInsides{
    {{L"solid", InsideLook::Kind::Solid},
     {L"gradient", InsideLook::Kind::Gradient},
     {L"hatch", InsideLook::Kind::Hatch},
     {L"bitmap", InsideLook::Kind::Bitmap}}};

constexpr std::array<std::pair<const wchar_t*, LineLook::Kind>, 2> kLines{
    {{L"solid", LineLook::Kind::Solid}, {L"dash", LineLook::Kind::Dashed}}};

constexpr std::array<std::pair<const wchar_t*, LineLook::Join>, 5> kJoins{{{L"miter", LineLook::Join::Miter},
                                                                           {L"middle", LineLook::Join::Miter},
                                                                           {L"round", LineLook::Join::Round},
                                                                           {L"bevel", LineLook::Join::Bevel},
                                                                           {L"none", LineLook::Join::Bevel}}};

constexpr std::array<std::pair<const wchar_t*, LineLook::Cap>, 3> kCaps{
    {{L"butt", LineLook::Cap::Butt}, {L"round", LineLook::Cap::Round}, {L"square", LineLook::Cap::Square}}};

constexpr std::array<std::pair<const wchar_t*, ParagraphLook::Align>, 6> kAligns{
    {{L"start", ParagraphLook::Align::Start},
     {L"end", ParagraphLook::Align::End},
     {L"left", ParagraphLook::Align::Left},
     {L"right", ParagraphLook::Align::Right},
     {L"center", ParagraphLook::Align::Centre},
     {L"justify", ParagraphLook::Align::Justify}}};

InsideLook ReadInside(const Style& whole)
{
    const Keys& keys = Keys::Get();
    const Values values(whole, Styles::FillStyleCategoryName);
    InsideLook look;
    values.Read(keys.type, kInsides, look.kind);
    values.Read(keys.color, look.colour);
    values.Read(keys.transparency, look.transparency);
    if (look.kind == InsideLook::Kind::Gradient)
        values.Read(keys.gradient, look.definition);
    else if (look.kind == InsideLook::Kind::Hatch)
        values.Read(keys.hatch, look.definition);
    else if (look.kind == InsideLook::Kind::Bitmap)
        values.Read(keys.bitmap, look.definition);
    return look;
}

LineLook ReadLine(const Style& whole)
{
    const Keys& keys = Keys::Get();
    const Values values(whole, Styles::OutlineStyleCategoryName);
    LineLook look;
    values.Read(keys.type, kLines, look.kind);
    values.Read(keys.color, look.colour);
    values.Read(keys.width, look.width);
    values.Read(keys.transparency, look.transparency);
    values.Read(keys.dash, look.dash);
    values.Read(keys.join, kJoins, look.join);
    values.Read(keys.cap, kCaps, look.cap);
    values.Read(keys.startArrow, look.startArrow);
    values.Read(keys.endArrow, look.endArrow);
    return look;
}

ParagraphLook ReadParagraph(const Style& whole)
{
    const Keys& keys = Keys::Get();
    const Values values(whole, Styles::GetParagraphStyleCategoryName());
    ParagraphLook look;
    values.Read(keys.align, kAligns, look.align);
    values.Read(keys.leftIndent, look.leftIndent);
    values.Read(keys.rightIndent, look.rightIndent);
    values.Read(keys.firstLineIndent, look.firstLineIndent);
    values.Read(keys.spaceBefore, look.spaceBefore);
    values.Read(keys.spaceAfter, look.spaceAfter);
    values.Read(keys.lineSpacing, look.lineSpacing);
    return look;
}

/// "bold" and "100" to "900"; 400 for anything else.
int WeightOf(const OvxStringT& choice)
{
    if (choice == OvxStringT(L"bold"))
        return 700;
    const std::wstring& digits = choice.Wide();
    const bool isHundred = digits.size() == 3 && digits.front() >= L'1' && digits.front() <= L'9';
    return isHundred ? (digits.front() - L'0') * 100 : 400;
}

/// Tells whether a choice of a kind of line is one that can be seen.
bool IsDrawn(const OvxStringT& choice)
{
    return !choice.empty() && choice != OvxStringT(L"none");
}

RunLook ReadRun(const Style& whole)
{
    const Keys& keys = Keys::Get();
    const Values values(whole, Styles::GetCharacterStyleCategoryName());
    RunLook look;
    values.Read(keys.font, look.font);
    values.Read(keys.size, look.size);
    look.weight = WeightOf(values.Choice(keys.weight));
    const OvxStringT posture = values.Choice(keys.posture);
    look.isItalic = posture == OvxStringT(L"italic") || posture == OvxStringT(L"oblique");
    look.isUnderlined = IsDrawn(values.Choice(keys.underline));
    look.isStruckThrough = IsDrawn(values.Choice(keys.strikethrough));
    values.Read(keys.color, look.colour);
    values.Read(keys.letterSpacing, look.letterSpacing);
    return look;
}

/// What `style` was read to be before, else what `read` finds now. `style` is never null.
template <class Look, class Read>
const Look& Remembered(std::unordered_map<const Style*, Look>& known, const Style* style, const Read& read)
{
    const auto found = known.find(style);
    return found != known.end() ? found->second : known.emplace(style, read(*style)).first->second;
}

} // namespace

ShapeLook LookReader::Read(const ReferenceHost::DrawingObject& object)
{
    ShapeLook look;
    const Style* const style = object.GetStyleToRead();
    if (style == nullptr)
        return look;
    const GraphicLook& graphic = Remembered(graphics, style,
                                            [](const Style& whole) {
                                                return GraphicLook{ReadInside(whole), ReadLine(whole)};
                                            });
    look.inside = graphic.inside;
    look.line = graphic.line;
    look.paragraphs.reserve(object.GetParagraphs().size());
    for (const ReferenceHost::TextUnit& paragraph : object.GetParagraphs())
        look.paragraphs.push_back(Remembered(paragraphs, paragraph.GetStyleToRead(), ReadParagraph));
    look.runs.reserve(object.GetRuns().size());
    for (const ReferenceHost::TextUnit& run : object.GetRuns())
        look.runs.push_back(Remembered(runs, run.GetStyleToRead(), ReadRun));
    return look;
}

void LookReader::Forget()
{
    graphics.clear();
    paragraphs.clear();
    runs.clear();
}

} // namespace Workbench
