#include "reference_host/document/XmlTree.h"

#include "reference_host/document/DocumentError.h"
#include "reference_host/document/XmlScan.h"
#include "reference_host/document/XmlText.h"

namespace ReferenceHost
{

std::unique_ptr<pugi::xml_document> ParseXml(std::string_view text, const std::string& label)
{
    ScanXml(text, label);
    const std::string_view plain = WithoutByteOrderMark(text);
    auto tree = std::make_unique<pugi::xml_document>();
    const pugi::xml_parse_result result = tree->load_buffer(
        plain.data(), plain.size(), pugi::parse_default | pugi::parse_ws_pcdata, pugi::encoding_utf8);
    if (!result)
    {
        const auto offset = static_cast<std::size_t>(result.offset);
        throw DocumentError(result.description(), label + ", line " + std::to_string(LineOf(plain, offset)),
                            "well-formed XML");
    }
    return tree;
}

} // namespace ReferenceHost
