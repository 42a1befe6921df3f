#include "reference_host/preset_store/PresetFile.h"

#include "host/colour/CLR_COLORSPEC.h"
#include "reference_host/document/DocumentError.h"
#include "reference_host/document/PropertyCodecs.h"
#include "reference_host/document/XmlTree.h"
#include "reference_host/preset_store/PresetText.h"
#include "reference_host/style_model/StyleData.h"

#include <pugixml.hpp>

#include <array>
#include <charconv>
#include <new>
#include <optional>
#include <set>
#include <utility>

namespace ReferenceHost
{

namespace
{

using OvxUtils::Any;
using Styles::PropertyKey;
using Styles::Style;
using Styles::StyleData;

constexpr const char* kNamespace = "urn:styleproperties:preset:1.0";

PropertyKey ReadKey(pugi::xml_attribute attribute)
{
    return PropertyKey(Styles::PooledString<Styles::StringPool>(FromPresetText(attribute.value())));
}

std::string FormatColour(const CLR_COLORSPEC& colour)
{
    constexpr std::string_view kDigits = "0123456789abcdef";
    const CLR_COLORSPEC::Rgb rgb = colour.ToRgb();
    std::string text = "#";
    for (const unsigned component : {rgb.red, rgb.green, rgb.blue})
    {
        text += kDigits[component >> 4U];
        text += kDigits[component & 0xFU];
    }
    return text;
}

Any ReadNumber(const char* text)
{
    const std::string_view digits = text;
    int number = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    const bool isWhole = result.ec == std::errc() && result.ptr == digits.data() + digits.size();
    return isWhole ? Any(number) : Any();
}

Any ReadColour(const char* text)
{
    const std::optional<CLR_COLORSPEC::Rgb> rgb = ParseColour(text);
    return rgb ? Any(CLR_COLORSPEC::FromRgb(*rgb)) : Any();
}

Any ReadText(const char* text)
{
    return Any(FromPresetText(text));
}

Any ReadChoice(const char* text)
{
    return Any(PropertyKey(Styles::PooledString<Styles::StringPool>(FromPresetText(text))));
}

/// A type of values by its name in files.
struct ValueType
{
    const char* name;
    std::optional<std::string> (*format)(const Any& value); ///< None for a value of another type.
    Any (*read)(const char* text);                          ///< Empty for a text that is none of this type.
};

constexpr std::array<ValueType, 4> kValueTypes{
    {{"number",
      [](const Any& value)
      {
          const int* const number = value.TryGet<int>();
          return number == nullptr ? std::nullopt : std::optional(std::to_string(*number));
      },
      ReadNumber},
     {"colour",
      [](const Any& value)
      {
          const auto* const colour = value.TryGet<CLR_COLORSPEC>();
          return colour == nullptr ? std::nullopt : std::optional(FormatColour(*colour));
      },
      ReadColour},
     {"choice",
      [](const Any& value)
      {
          const auto* const key = value.TryGet<PropertyKey>();
          return key == nullptr ? std::nullopt : std::optional(ToPresetText(key->GetString()));
      },
      ReadChoice},
     {"text",
      [](const Any& value)
      {
          const auto* const text = value.TryGet<OvxStringT>();
          return text == nullptr ? std::nullopt : std::optional(ToPresetText(*text));
      },
      ReadText}}};

/// Behind the other children. A null node would drop what it is to hold without a word.
pugi::xml_node AddElement(pugi::xml_node parent, const char* name)
{
    const pugi::xml_node added = parent.append_child(name);
    if (!added)
        throw std::bad_alloc();
    return added;
}

void AddAttribute(pugi::xml_node element, const char* name, const char* value)
{
    pugi::xml_attribute added = element.append_attribute(name);
    if (!added || !added.set_value(value))
        throw std::bad_alloc();
}

/// Takes the file as text. Unlike a stream, it lets failures through.
struct TextWriter final : pugi::xml_writer
{
    void write(const void* data, std::size_t size) override
    {
        text.append(static_cast<const char*>(data), size);
    }

    std::string text;
};

void WriteProperty(pugi::xml_node parent, const Styles::OwnProperty& property)
{
    for (const ValueType& type : kValueTypes)
    {
        const std::optional<std::string> text = type.format(property.value);
        if (!text)
            continue;
        const pugi::xml_node element = AddElement(parent, "property");
        AddAttribute(element, "key", ToPresetText(property.key.GetString()).c_str());
        AddAttribute(element, "type", type.name);
        AddAttribute(element, "value", text->c_str());
    }
}

void WriteStyle(pugi::xml_node element, const Style& style)
{
    AddAttribute(element, "category", ToPresetText(style.GetCategoryName().GetString()).c_str());
    const StyleData& data = StyleData::Of(style);
    for (const Styles::OwnProperty& property : data.properties)
        WriteProperty(element, property);
    for (const Styles::OwnSubstyle& substyle : data.substyles)
    {
        const pugi::xml_node child = AddElement(element, "style");
        AddAttribute(child, "key", ToPresetText(substyle.key.GetString()).c_str());
        WriteStyle(child, *substyle.style);
    }
}

void ReadProperty(pugi::xml_node element, Style& style, const std::string& label)
{
    const std::string_view typeName = element.attribute("type").value();
    for (const ValueType& type : kValueTypes)
    {
        if (typeName != type.name)
            continue;
        const char* const text = element.attribute("value").value();
        const Any value = type.read(text);
        if (value.IsEmpty())
        {
            throw DocumentError("\"" + std::string(text) + "\" is no " + type.name, label + ", <property>",
                                "a value of the type that the property names");
        }
        style.SetProperty(ReadKey(element.attribute("key")), value);
    }
}

void ReadStyle(pugi::xml_node element, Style& style, const std::string& label)
{
    for (const pugi::xml_node child : element.children())
    {
        const std::string_view name = child.name();
        if (name == "property")
            ReadProperty(child, style, label);
        else if (name == "style")
        {
            Style* const substyle = style.GetSubstyleAndCreateIfMissing(ReadKey(child.attribute("key")),
                                                                        ReadKey(child.attribute("category")));
            if (substyle == nullptr)
                throw DocumentError("a substyle has no key", label + ", <style>", "the attribute key");
            ReadStyle(child, *substyle, label);
        }
    }
}

} // namespace

std::string FormatPreset(const OvxStringT& name, const Style& style)
{
    std::set<PropertyKey> keys;
    const std::unique_ptr<Style> flattened(style.CreateFlattenedStyle(keys));
    pugi::xml_document document;
    const pugi::xml_node declaration = document.append_child(pugi::node_declaration);
    AddAttribute(declaration, "version", "1.0");
    AddAttribute(declaration, "encoding", "UTF-8");
    const pugi::xml_node root = AddElement(document, "preset");
    AddAttribute(root, "xmlns", kNamespace);
    AddAttribute(root, "name", ToPresetText(name).c_str());
    WriteStyle(root, *flattened);
    TextWriter writer;
    document.save(writer, "    ", pugi::format_default, pugi::encoding_utf8);
    return std::move(writer.text);
}

Preset ParsePreset(std::string_view text, const std::string& label)
{
    const std::unique_ptr<pugi::xml_document> document = ParseXml(text, label);
    const pugi::xml_node root = document->document_element();
    if (std::string_view(root.name()) != "preset" ||
        std::string_view(root.attribute("xmlns").value()) != kNamespace || !root.attribute("name"))
    {
        throw DocumentError("this is no preset", label,
                            std::string("the root element <preset name=...> of ") + kNamespace);
    }
    Preset preset;
    preset.name = FromPresetText(root.attribute("name").value());
    preset.style = std::make_unique<Style>(nullptr, ReadKey(root.attribute("category")));
    ReadStyle(root, *preset.style, label);
    return preset;
}

} // namespace ReferenceHost
