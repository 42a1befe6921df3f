#include "tests/model/RandomArguments.h"

#include "host/colour/CLR_COLORSPEC.h"
#include "host/utils/Utf8.h"
#include "tests/model/PlainDescription.h"

namespace LibraryModel
{

namespace
{

struct HostValue
{
    OvxUtils::Any operator()(std::monostate) const { return {}; }

    OvxUtils::Any operator()(int number) const { return OvxUtils::Any(number); }

    OvxUtils::Any operator()(const std::string& text) const { return OvxUtils::Any(ToHost(text)); }

    OvxUtils::Any operator()(Key key) const { return OvxUtils::Any(ToHost(key)); }

    OvxUtils::Any operator()(const PlainColor& color) const
    {
        const auto part = [rgb = static_cast<unsigned>(color.rgb)](unsigned shift)
        { return static_cast<std::uint8_t>((rgb >> shift) & 0xffU); };
        const CLR_COLORSPEC::Rgb look{part(16), part(8), part(0)};
        return OvxUtils::Any(color.entry.empty() ? CLR_COLORSPEC::FromRgb(look)
                                                 : CLR_COLORSPEC::FromResource(ToHost(color.entry), look));
    }
};

} // namespace

std::size_t AnyPanel(Dice& dice)
{
    return dice.Below(3);
}

StyleRef AnyPooledStyle(Dice& dice)
{
    // The first few of a kind, so that sequences come back to the same ones.
    static const std::vector<std::string> names = {"S0",  "S1", "S2", "S3", "S4", "S5", "S1",
                                                   "S2",  "S3", "F0", "F1", "F2", "F3", "F9",
                                                   "F14", "O0", "O1", "C0", "C1", "G0"};
    return {dice.One(names), std::nullopt};
}

StyleRef AnyStyle(Dice& dice)
{
    if (dice.Percent(4))
        return {};
    StyleRef ref = AnyPooledStyle(dice);
    if (dice.Percent(ref.name.front() == 'S' ? 60 : ref.name.front() == 'C' ? 40 : 10))
        ref.substyle = AnyCategory(dice);
    return ref;
}

StyleRefs AnyStyles(Dice& dice)
{
    StyleRefs refs;
    const std::size_t count = dice.One(std::vector<std::size_t>{0, 1, 1, 1, 2, 2, 3, 4});
    const bool alike = dice.Percent(50);
    const StyleRef first = AnyStyle(dice);
    for (std::size_t i = 0; i < count; ++i)
    {
        StyleRef ref = AnyStyle(dice);
        if (alike && !ref.name.empty() && first.name.starts_with("S"))
            ref = {"S" + std::to_string(dice.Below(6)), first.substyle};
        refs.push_back(ref);
    }
    return refs;
}

Key AnyCategory(Dice& dice)
{
    static const std::vector<std::string> words = {"fill",      "fill",  "fill", "fill",  "outline",
                                                   "outline",   "style", "glow", "style", "paragraph",
                                                   "character", "mist",  ""};
    return KeyOf(dice.One(words));
}

Key AnyPropertyKey(Dice& dice)
{
    static const std::vector<std::string> words = {"color", "color", "color", "type",
                                                   "type",  "width", "shade"};
    return KeyOf(dice.One(words));
}

PlainValue AnyValue(Dice& dice)
{
    switch (dice.Below(8))
    {
    case 0:
        return {};
    case 1:
    case 2:
        return static_cast<int>(dice.Below(3));
    case 3:
        return std::string(dice.Percent(50) ? "one" : "two");
    case 4:
        return AnyCategory(dice);
    case 5:
        return PlainColor{0x3366cc, dice.Percent(50) ? "Brand" : "Sky"};
    default:
        return PlainColor{dice.Percent(50) ? 0x3366cc : 0xffffff, ""};
    }
}

Path AnyPath(Dice& dice)
{
    Path path;
    while (path.size() < 2 && dice.Percent(25))
        path.push_back(AnyCategory(dice));
    if (!dice.Percent(6))
        path.push_back(AnyPropertyKey(dice));
    return path;
}

Paths AnyPaths(Dice& dice)
{
    Paths paths;
    while (dice.Percent(60))
        paths.push_back(AnyPath(dice));
    return paths;
}

std::optional<Paths> MaybePaths(Dice& dice)
{
    if (dice.Percent(40))
        return std::nullopt;
    return AnyPaths(dice);
}

std::string AnyIdentifier(Dice& dice)
{
    static const std::vector<std::string> identifiers = {
        "color",      "color",  "color",      "type",
        "color,type", "style",  "style",      "style",
        "style.*",    "",       "fill.color", "glow.*,type",
        "*",          "type,,", ".color.",    "outline.width,color"};
    return dice.One(identifiers);
}

ChangeRecipe AnyChange(Dice& dice)
{
    ChangeRecipe recipe;
    recipe.isNull = dice.Percent(8);
    recipe.category = dice.Percent(80) ? KeyOf("fill") : AnyCategory(dice);
    while (dice.Percent(70))
        recipe.values.emplace_back(AnyPath(dice), AnyValue(dice));
    return recipe;
}

std::unique_ptr<Styles::Style> ChangeRecipe::ForLibrary() const
{
    if (isNull)
        return nullptr;
    auto change = std::make_unique<Styles::Style>(nullptr, ToHost(category));
    for (const auto& [path, value] : values)
        change->SetPathProperty(ToHost(path), ToHost(value));
    return change;
}

std::unique_ptr<PlainStyle> ChangeRecipe::ForModel() const
{
    if (isNull)
        return nullptr;
    auto change = std::make_unique<PlainStyle>(category);
    for (const auto& [path, value] : values)
        change->StoreAt(path, value);
    return change;
}

std::string ChangeRecipe::Text() const
{
    if (isNull)
        return "nullptr";
    std::vector<std::string> texts;
    for (const auto& [path, value] : values)
        texts.push_back(Tell(path) + "=" + Tell(value));
    return TextOf(category) + "{" + Join(texts, ", ") + "}";
}

OvxUtils::Any ToHost(const PlainValue& value)
{
    return std::visit(HostValue(), value);
}

OvxStringT ToHost(const std::string& text)
{
    return OvxUtils::FromUtf8(text);
}

std::string TextOf(const StyleRefs& refs)
{
    std::vector<std::string> texts;
    for (const StyleRef& ref : refs)
        texts.push_back(ref.Text());
    return "{" + Join(texts, ", ") + "}";
}

std::string PanelText(std::size_t panel)
{
    return "panels[" + std::to_string(panel) + "].";
}

std::string Quoted(const std::string& text)
{
    return "\"" + text + "\"";
}

} // namespace LibraryModel
