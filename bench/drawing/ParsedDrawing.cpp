#include "bench/drawing/ParsedDrawing.h"

#include <pugixml.hpp>

#include <stdexcept>
#include <string_view>

namespace Bench
{

namespace
{

std::size_t CountIn(pugi::xml_node element)
{
    using namespace std::string_view_literals;
    std::size_t shapes = 0;
    for (const pugi::xml_attribute attribute : element.attributes())
        shapes += attribute.name() == "draw:style-name"sv ? 1U : 0U;
    for (const pugi::xml_node child : element.children())
        shapes += CountIn(child);
    return shapes;
}

} // namespace

std::size_t CountShapes(const std::filesystem::path& drawing)
{
    pugi::xml_document document;
    if (!document.load_file(drawing.c_str()))
        throw std::runtime_error(drawing.string() + " cannot be parsed");
    return CountIn(document);
}

} // namespace Bench
