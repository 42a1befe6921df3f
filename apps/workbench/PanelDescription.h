#pragma once

#include "host/utils/OvxStringT.h"
#include "reference_host/document/PropertyMapping.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <vector>

namespace Workbench
{

/// What is handed in to a panel for each selected object.
enum class TargetKind
{
    Objects,    ///< The object's own style.
    Paragraphs, ///< The paragraphs of its text; without text the object itself.
    Runs        ///< The runs of its text; without text the object itself.
};

/// What a person changes a row's value with.
enum class ControlKind
{
    Colour,
    Number,
    Choice,
    Switch,
    Text
};

/// What a row's value is, as a rule: a drawing may hold something that the kind does not foresee.
enum class ValueKind
{
    Colour,   ///< CLR_COLORSPEC.
    Length,   ///< int, hundredths of a millimetre.
    FontSize, ///< int, tenths of a point.
    Percent,  ///< int.
    Choice,   ///< PropertyKey.
    Text      ///< OvxStringT.
};

/// The unit in which people read and write a number.
enum class NumberUnit
{
    Millimetre,
    Centimetre,
    Point,
    Percent
};

/// What a number control offers; the limits belong to it and are in the value's own scale.
struct NumberRange
{
    NumberUnit unit = NumberUnit::Millimetre;
    int minimum = 0;
    int maximum = 0;
};

/// One of the values that a row offers.
struct ChoiceDescription
{
    OvxStringT value; ///< The text of the PropertyKey.
    OvxStringT label; ///< A text key.
};

/// One line of a panel.
struct RowDescription
{
    OvxStringT identifier; ///< What the panel's commands are told to be about.
    OvxStringT property;   ///< The bound name of the value, and the beginning of those that go with it.
    OvxStringT label;      ///< A text key.
    ControlKind control = ControlKind::Text;
    ValueKind kind = ValueKind::Text;
    std::optional<NumberRange> range;       ///< For the number control, and only there.
    std::vector<ChoiceDescription> choices; ///< For the choice and switch controls; else empty.
    int order = 0;
};

/// A category that a panel brings along, and where its properties stand in a drawing.
struct CategoryDescription
{
    OvxStringT name;
    OvxStringT title; ///< A text key.
    std::vector<ReferenceHost::PropertyMapping> mappings;
};

/// What a panel tells of itself before it is loaded.
struct PanelDescription
{
    std::filesystem::path file; ///< The description.
    OvxStringT name;            ///< What people type to choose the panel.
    OvxStringT module;          ///< The module's file name without the platform's prefix and suffix.
    OvxStringT className;       ///< The type key of its data source.
    OvxStringT title;           ///< A text key.
    int order = 0;
    OvxStringT category;
    TargetKind targets = TargetKind::Objects;
    std::optional<CategoryDescription> ownCategory;
    std::vector<RowDescription> rows; ///< In the order in which they are shown.
};

} // namespace Workbench
