#include "apps/workbench/SelectionSearch.h"

#include "apps/workbench/QuotedNames.h"
#include "apps/workbench/SelectionError.h"
#include "apps/workbench/Wildcard.h"
#include "host/utils/Utf8.h"

#include <algorithm>
#include <string>
#include <unordered_set>

namespace Workbench
{
namespace
{

using ReferenceHost::Drawing;
using ReferenceHost::DrawingObject;

/// What fits terms in a drawing, and what is offered when nothing does.
class Search
{
public:
    Search(Drawing& openDrawing, const TargetHandover& openHandover)
        : drawing(openDrawing), handover(openHandover)
    {
    }

    [[nodiscard]] std::vector<DrawingObject*> Find(const Selector& selector) const
    {
        std::vector<DrawingObject*> found;
        std::unordered_set<const DrawingObject*> foundGroups;
        for (DrawingObject& object : drawing.GetObjects())
        {
            if (!foundGroups.contains(object.GetGroup()) && !FitsOne(object, selector.terms))
                continue;
            if (object.IsGroup())
                foundGroups.insert(&object);
            else
                found.push_back(&object);
        }
        return found;
    }

    /// The values that the objects have in a field, each once and quoted, in document order.
    [[nodiscard]] std::vector<OvxStringT> Offers(SelectorField field) const
    {
        std::vector<OvxStringT> offers;
        std::unordered_set<OvxStringT> known;
        for (DrawingObject& object : drawing.GetObjects())
        {
            for (const OvxStringT& value : ValuesOf(object, field))
            {
                if (!value.empty() && known.insert(value).second)
                    offers.push_back(value);
            }
        }
        return offers;
    }

private:
    /// What an object answers to a term of that field.
    [[nodiscard]] std::vector<OvxStringT> ValuesOf(DrawingObject& object, SelectorField field) const
    {
        switch (field)
        {
        case SelectorField::Page:
            return {OvxStringT(std::to_wstring(object.GetPage().number))};
        case SelectorField::Name:
            return {object.GetName()};
        case SelectorField::Kind:
            return {OvxStringT(object.GetKind())};
        case SelectorField::Id:
            return {object.GetId()};
        case SelectorField::Style:
            return StyleNamesOf(object);
        case SelectorField::All:
            break;
        }
        return {};
    }

    [[nodiscard]] std::vector<OvxStringT> StyleNamesOf(DrawingObject& object) const
    {
        const OvxStringT name = handover.NamedStyleOf(object);
        if (name.empty())
            return {};
        return {name, drawing.GetDisplayName(name)};
    }

    [[nodiscard]] bool Fits(DrawingObject& object, const SelectorTerm& term) const
    {
        if (term.field == SelectorField::All)
            return true;
        const std::vector<OvxStringT> values = ValuesOf(object, term.field);
        return std::any_of(values.begin(), values.end(),
                           [&](const OvxStringT& value) { return MatchesWildcard(term.pattern, value); });
    }

    [[nodiscard]] bool FitsOne(DrawingObject& object, const std::vector<SelectorTerm>& terms) const
    {
        return std::any_of(terms.begin(), terms.end(),
                           [&](const SelectorTerm& term) { return Fits(object, term); });
    }

    Drawing& drawing;
    const TargetHandover& handover;
};

struct FieldNoun
{
    SelectorField field;
    const char* noun;
};

constexpr FieldNoun kFieldNouns[] = {{SelectorField::Page, "pages"},
                                     {SelectorField::Name, "names"},
                                     {SelectorField::Style, "styles"},
                                     {SelectorField::Kind, "kinds"},
                                     {SelectorField::Id, "ids"}};

/// "one of the names "Box", "Oval"": enough of the values to see what is there.
std::string DescribeOffers(const std::string& noun, const std::vector<OvxStringT>& offers)
{
    return offers.empty() ? "" : "one of the " + noun + " " + QuotedList(offers);
}

[[noreturn]] void Fail(const Drawing& drawing, const Selector& selector, const std::string& expected)
{
    throw SelectionError(drawing.GetPath().string() + ": nothing fits the selector \"" +
                         OvxUtils::ToUtf8(selector.text) + "\"; expected " + expected);
}

[[noreturn]] void FailForObjects(const Drawing& drawing, const Search& search, const Selector& selector)
{
    std::string expected;
    for (const FieldNoun& each : kFieldNouns)
    {
        const bool isAsked = std::any_of(selector.terms.begin(), selector.terms.end(),
                                         [&](const SelectorTerm& term) { return term.field == each.field; });
        const std::string offers =
            isAsked ? DescribeOffers(each.noun, search.Offers(each.field)) : std::string();
        if (!offers.empty())
            expected += (expected.empty() ? "" : ", or ") + offers;
    }
    Fail(drawing, selector,
         expected.empty() ? "\"all\", as the drawing has nothing that such a term fits" : expected);
}

/// Tells whether a selector may find nothing: "all" and nothing else.
bool MayFindNothing(const Selector& selector)
{
    return selector.terms.size() == 1 && selector.terms.front().field == SelectorField::All;
}

} // namespace

Selection FindSelection(Drawing& drawing, const TargetHandover& handover, const Selector& selector)
{
    Selection selection{selector.text, selector.scope, selector.styleName, {}};
    if (selector.scope == SelectorScope::Sheet)
    {
        std::vector<OvxStringT> names = handover.GetStyleNames();
        const std::vector<OvxStringT> external = handover.GetExternalStyleNames();
        names.insert(names.end(), external.begin(), external.end());
        if (std::find(names.begin(), names.end(), selector.styleName) == names.end())
            Fail(drawing, selector,
                 names.empty() ? "\"all\", as the drawing has no named styles"
                               : DescribeOffers("styles", names));
    }
    if (selector.scope != SelectorScope::Objects)
        return selection;
    const Search search(drawing, handover);
    selection.objects = search.Find(selector);
    if (selection.objects.empty() && !MayFindNothing(selector))
        FailForObjects(drawing, search, selector);
    return selection;
}

std::vector<Selection> SplitByObject(const Selection& selection)
{
    if (selection.scope != SelectorScope::Objects)
        return {selection};
    std::vector<Selection> single;
    for (DrawingObject* object : selection.objects)
        single.push_back(
            Selection{OvxStringT(L"id:") + object->GetId(), SelectorScope::Objects, {}, {object}});
    return single;
}

} // namespace Workbench
