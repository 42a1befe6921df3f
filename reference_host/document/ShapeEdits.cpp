#include "reference_host/document/ShapeEdits.h"

#include "reference_host/document/OdfNamespaces.h"
#include "reference_host/document/StyleParents.h"
#include "reference_host/document/SubstyleInheritance.h"
#include "reference_host/document/TextLayout.h"
#include "reference_host/document/XmlPrefixes.h"

#include "host/utils/Utf8.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace ReferenceHost
{

namespace
{

/// The attribute of a shape that names the style of its text.
constexpr std::string_view kTextStyleName = "text-style-name";

bool WasAskedFor(DrawingObject& object)
{
    const auto isMade = [](const TextUnit& unit) { return unit.FindStyle() != nullptr; };
    return object.FindStyle() != nullptr || std::ranges::any_of(object.GetParagraphs(), isMade) ||
           std::ranges::any_of(object.GetRuns(), isMade);
}

/// Tells whether a shape or its text has values that are a part of inherited ones, which may have changed.
bool HasRelativeValues(const DrawingObject& object, const CascadeStyles& cascades)
{
    const auto isRelative = [&cascades](const auto& user)
    { return cascades.HasRelativeValues(user.GetCascade()); };
    return isRelative(object) || std::ranges::any_of(object.GetParagraphs(), isRelative) ||
           std::ranges::any_of(object.GetRuns(), isRelative);
}

/// Tells whether a shape can be otherwise than the file says, by a change or by values that follow others.
bool MayDiffer(DrawingObject& object, const CascadeStyles& cascades)
{
    return object.WasChanged() || (WasAskedFor(object) && HasRelativeValues(object, cascades));
}

/// Fills in what leaves shall have: what the unit has, or what the file gives for one never asked for.
void FillWanted(std::vector<TextLeaf>& leaves, const std::vector<TextUnit>& units, PropertyElement element,
                const TextLevels& levels, const PropertyMappings& table)
{
    for (std::size_t place = 0; place < leaves.size(); ++place)
    {
        TextLeaf& leaf = leaves[place];
        const Styles::Style* const style = place < units.size() ? units[place].FindStyle() : nullptr;
        if (style == nullptr)
        {
            leaf.wanted = levels.EvaluateAll(leaf.level, element);
            continue;
        }
        leaf.wanted = OwnValuesOf(*style, table);
        std::erase_if(leaf.wanted,
                      [&](const auto& entry) { return table.GetRows()[entry.first].element != element; });
    }
}

const OvxUtils::Any& ValueAt(const PropertyValues& values, std::size_t row)
{
    static const OvxUtils::Any none;
    const auto found = values.find(row);
    return found == values.end() ? none : found->second;
}

/// The leaves that are concerned by one kind of properties.
struct Concern
{
    PropertyElement element;
    std::vector<TextLeaf>* leaves;
};

/// Settles every property that is not as it shall be.
void SettleAll(TextLevels& levels, const std::vector<Concern>& concerns, const PropertyValues* ofShape,
               const PropertyMappings& table)
{
    for (const Concern& concern : concerns)
    {
        for (std::size_t row = 0; row < table.GetRows().size(); ++row)
        {
            if (table.GetFirstRow(row) != row || table.GetRows()[row].element != concern.element)
                continue;
            const bool isOther = std::ranges::any_of(
                *concern.leaves, [&](const TextLeaf& leaf)
                { return levels.Evaluate(leaf.level, row) != ValueAt(leaf.wanted, row); });
            if (isOther || (ofShape != nullptr && levels.Evaluate(0, row) != ValueAt(*ofShape, row)))
                levels.Settle(row, *concern.leaves, ofShape);
        }
    }
}

/// Settles all, and once more where a paragraph and its shape no longer repeat one style.
void Settle(TextLevels& levels, const std::vector<Concern>& concerns, const PropertyValues* ofShape,
            const PropertyMappings& table)
{
    SettleAll(levels, concerns, ofShape, table);
    const bool hasRepeated =
        std::ranges::any_of(levels.GetLevels(), [](const TextLevel& level) { return level.isRepeated; });
    if (!hasRepeated || !levels.HasChanges())
        return;
    for (const Concern& concern : concerns)
        levels.StartAgain(*concern.leaves);
    SettleAll(levels, concerns, ofShape, table);
}

} // namespace

ShapeEdits::ShapeEdits(const SavingContext& savingContext, SavedPart& contentPart,
                       const NamedStyleEdits& namedStyles, AutomaticStyleEdits& automaticStyles)
    : context(savingContext), content(contentPart), named(namedStyles), automatic(automaticStyles)
{
}

void ShapeEdits::Write(DrawingObject& object)
{
    if (object.IsGroup())
        return;
    // One that repeats values of styles of one category, which may have changed: what stands beside them for
    // other programs must follow. Its style has to be there for that.
    const bool repeatsValues = context.data.cascades.HasSubstyleParents(object.GetCascade());
    if (repeatsValues)
        static_cast<void>(object.GetStyle());
    else if (!MayDiffer(object, context.data.cascades))
        return;
    const pugi::xml_node element = content.FindElement(object.GetPlace());
    WriteShape(object, element, ReferTo(element, Odf::kDraw, "style-name", StyleFamily::Graphic));
}

StyleReference ShapeEdits::ReferTo(pugi::xml_node element, std::string_view uri, std::string_view local,
                                   StyleFamily family)
{
    const std::string_view name = FindXmlAttribute(element, uri, local).value();
    const StyleRecord* const record = name.empty() ? nullptr : context.data.catalogue.Find(family, name);
    return {element, uri, local, family, record};
}

void ShapeEdits::WriteShape(DrawingObject& object, pugi::xml_node element, const StyleReference& reference)
{
    const PropertyMappings& table = context.data.table;
    const Styles::Style* const style = object.FindStyle();
    Styles::Style* const parent = style != nullptr
                                      ? style->GetParent()
                                      : FindShapeParent(context.data.catalogue, reference.record).style;
    const auto inherited = EvaluateRecords(context, Styles::PropertyKey::Empty, parent, true, {}, style);
    TextLevels levels(context, *inherited);
    levels.AddLevel(reference, TextLevel::kOutermost);
    const StyleReference text = ReferTo(element, Odf::kDraw, kTextStyleName, StyleFamily::Paragraph);
    if (text.record != nullptr)
        levels.AddLevel(text, 0);
    const std::size_t innermost = levels.GetLevels().size() - 1;

    TextLayout layout(element, levels,
                      [this](pugi::xml_node holder, StyleFamily family)
                      { return ReferTo(holder, Odf::kText, "style-name", family); });
    std::optional<PropertyValues> own;
    if (style != nullptr)
        own = OwnValuesOf(*style, table);
    std::vector<TextLeaf> shapeLeaves;
    std::vector<Concern> concerns{{PropertyElement::Graphic, &shapeLeaves}};
    if (layout.GetParagraphs().empty())
    {
        shapeLeaves.push_back({innermost, own.value_or(PropertyValues()), {}});
        concerns.push_back({PropertyElement::Paragraph, &shapeLeaves});
        concerns.push_back({PropertyElement::Text, &shapeLeaves});
    }
    else
    {
        FillWanted(layout.GetParagraphs(), object.GetParagraphs(), PropertyElement::Paragraph, levels, table);
        FillWanted(layout.GetRuns(), object.GetRuns(), PropertyElement::Text, levels, table);
        concerns.push_back({PropertyElement::Paragraph, &layout.GetParagraphs()});
        concerns.push_back({PropertyElement::Text, &layout.GetRuns()});
    }
    Settle(levels, concerns, own ? &*own : nullptr, table);
    StyleWish ofShape{{}, FindOtherParent(object, reference)};
    TextLevel& graphic = levels.GetLevels().front();
    if (style != nullptr)
    {
        ofShape.changes = std::move(graphic.changes);
        AddSubstyleInheritance(context, named, *style, graphic.automatic, *own, ofShape);
        graphic.changes = std::exchange(ofShape.changes, {});
    }
    WriteLevels(levels, ofShape);
    for (std::size_t run = 0; run < layout.GetRuns().size(); ++run)
        Wrap(layout.GetRuns()[run], layout.GetContents()[run]);
}

std::optional<std::string> ShapeEdits::FindOtherParent(const DrawingObject& object,
                                                       const StyleReference& reference)
{
    const Styles::Style* const style = object.FindStyle();
    Styles::Style* const inFile = FindShapeParent(context.data.catalogue, reference.record).style;
    if (style == nullptr || style->GetParent() == inFile)
        return std::nullopt;
    std::string name = named.NameInFile(style->GetParent());
    if (name.empty() && style->GetParent() != nullptr)
        context.warnings.Add("object " + OvxUtils::ToUtf8(object.GetId()) +
                             ": its parent is no style of the drawing; it was saved without a parent");
    return name;
}

void ShapeEdits::WriteLevels(TextLevels& levels, const StyleWish& ofShape)
{
    const PropertyValues changesOfShape = levels.GetLevels().front().changes;
    for (std::size_t place = 0; place < levels.GetLevels().size(); ++place)
    {
        TextLevel& level = levels.GetLevels()[place];
        StyleWish wish = place == 0 ? ofShape : StyleWish();
        wish.changes = std::move(level.changes);
        if (level.automatic != nullptr && level.reference.local == kTextStyleName)
            wish.repeated = automatic.FindRepeated(*level.automatic, changesOfShape);
        if (wish.IsEmpty())
            continue;
        // A shape's first automatic style names the parent that the shape has had without it.
        if (place == 0 && level.automatic == nullptr && !wish.parent)
        {
            const ShapeParent shapeParent = FindShapeParent(context.data.catalogue, level.reference.record);
            wish.parent = named.NameInFile(shapeParent.style);
        }
        automatic.Change(level.reference, std::move(wish));
    }
}

void ShapeEdits::Wrap(const TextLeaf& leaf, const std::vector<pugi::xml_node>& contents)
{
    if (leaf.wrapped.empty())
        return;
    const XmlSource& source = content.GetSource();
    const std::string style = automatic.AddStyle(StyleFamily::Text, {leaf.wrapped});
    const XmlName span{Odf::kText, "span"};
    for (std::size_t first = 0; first < contents.size();)
    {
        const pugi::xml_node holder = contents[first].parent();
        std::size_t last = first;
        while (last + 1 < contents.size() && contents[last + 1].parent() == holder)
            ++last;
        content.GetEdits().Wrap(source.BeginOfContent(contents[first]), source.EndOf(contents[last]),
                                WriteStartTag(holder, span, {{Odf::kText, "style-name", style}}, false),
                                WriteEndTag(holder, span));
        first = last + 1;
    }
}

} // namespace ReferenceHost
