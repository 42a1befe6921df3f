#include "bench/library/StyledDrawing.h"

#include "bench/harness/TemporaryFolder.h"
#include "host/style_model/CategoryNames.h"
#include "reference_host/document/PropertyMapping.h"

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

namespace Bench
{

namespace
{

constexpr const char* kNamespace = "urn:styleproperties:bench";

constexpr const char* kStart = R"(<?xml version="1.0" encoding="UTF-8"?>
<office:document xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0"
 xmlns:style="urn:oasis:names:tc:opendocument:xmlns:style:1.0"
 xmlns:draw="urn:oasis:names:tc:opendocument:xmlns:drawing:1.0"
 xmlns:b="urn:styleproperties:bench"
 office:mimetype="application/vnd.oasis.opendocument.graphics">
)";

std::string NameOfStyle(std::size_t level, std::size_t index)
{
    return "L" + std::to_string(level) + "S" + std::to_string(index);
}

std::string WriteStyle(const StyleTree& tree, std::size_t level, std::size_t index)
{
    std::string text = "<style:style style:family='graphic' style:name='" + NameOfStyle(level, index) + "'";
    if (level > 0)
        text += " style:parent-style-name='" + NameOfStyle(level - 1, tree.ParentOf(level, index)) + "'";
    text += "><style:graphic-properties";
    for (std::size_t property = 0; property < StyleTree::kProperties; ++property)
    {
        if (const auto value = tree.OwnValue(level, index, property))
            text += " b:" + StyleTree::NameOf(property) + "='" + std::to_string(*value) + "%'";
    }
    return text + "/></style:style>\n";
}

std::string WriteDrawing(const StyleTree& tree)
{
    constexpr std::size_t kObjects = StyleTree::kObjectLevel;
    std::string text = std::string(kStart) + "<office:styles>\n";
    for (std::size_t level = 0; level < kObjects; ++level)
    {
        for (std::size_t index = 0; index < tree.CountAt(level); ++index)
            text += WriteStyle(tree, level, index);
    }
    text += "</office:styles><office:automatic-styles>\n";
    for (std::size_t index = 0; index < tree.CountAt(kObjects); ++index)
        text += WriteStyle(tree, kObjects, index);
    text += "</office:automatic-styles><office:body><office:drawing><draw:page>\n";
    for (std::size_t index = 0; index < tree.CountAt(kObjects); ++index)
        text += "<draw:rect draw:style-name='" + NameOfStyle(kObjects, index) + "'/>\n";
    return text + "</draw:page></office:drawing></office:body></office:document>\n";
}

std::vector<ReferenceHost::PropertyMapping> MakeMappings(const std::vector<Styles::PropertyKey>& keys)
{
    std::vector<ReferenceHost::PropertyMapping> mappings;
    for (std::size_t property = 0; property < keys.size(); ++property)
    {
        ReferenceHost::PropertyMapping mapping;
        mapping.category = Styles::FillStyleCategoryName;
        mapping.key = keys[property];
        mapping.namespaceUri = kNamespace;
        mapping.attribute = StyleTree::NameOf(property);
        mapping.codec = ReferenceHost::PropertyCodec::Percent;
        mappings.push_back(mapping);
    }
    return mappings;
}

} // namespace

std::unique_ptr<ReferenceHost::Drawing> OpenStyledDrawing(const StyleTree& tree,
                                                          const std::vector<Styles::PropertyKey>& keys)
{
    const TemporaryFolder folder;
    const std::filesystem::path file = folder.GetPath() / "drawing.fodg";
    std::ofstream(file, std::ios::binary) << WriteDrawing(tree);
    std::vector<std::string> warnings;
    auto drawing = ReferenceHost::Drawing::Open(file, warnings, MakeMappings(keys));
    if (!warnings.empty())
        throw std::runtime_error(warnings.front());
    return drawing;
}

} // namespace Bench
