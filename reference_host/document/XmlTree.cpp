#include "reference_host/document/XmlTree.h"

#include "reference_host/document/DocumentError.h"
#include "reference_host/document/XmlScan.h"
#include "reference_host/document/XmlText.h"

#include <new>

namespace ReferenceHost
{

std::unique_ptr<pugi::xml_document> ParseXml(std::string_view text, const std::string& label,
                                             const ProgressSpan& progress)
{
    // Going over the text takes about twice as long as building the tree.
    constexpr double kChecked = 0.65;
    ScanXml(text, label, progress.Part(ProgressPhase::Checking, 0, kChecked));
    return ParseCheckedXml(text, label, progress.Part(kChecked, 1));
}

std::unique_ptr<pugi::xml_document> ParseCheckedXml(std::string_view text, const std::string& label,
                                                    const ProgressSpan& progress)
{
    ProgressSpan parsing = progress.Part(ProgressPhase::Parsing, 0, 1);
    parsing.Start(1);
    const std::string_view plain = WithoutByteOrderMark(text);
    auto tree = std::make_unique<pugi::xml_document>();
    const pugi::xml_parse_result result = tree->load_buffer(
        plain.data(), plain.size(), pugi::parse_default | pugi::parse_ws_pcdata, pugi::encoding_utf8);
    if (result.status == pugi::status_out_of_memory)
        throw std::bad_alloc();
    if (!result)
    {
        const auto offset = static_cast<std::size_t>(result.offset);
        throw DocumentError(result.description(), label + ", line " + std::to_string(LineOf(plain, offset)),
                            "well-formed XML");
    }
    parsing.Reach(1);
    return tree;
}

} // namespace ReferenceHost
