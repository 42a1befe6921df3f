#include "reference_host/document/ContentLimits.h"

#include "reference_host/document/DocumentError.h"

#include <utility>

namespace ReferenceHost
{

ContentLimits::ContentLimits(std::string fileLabel) : label(std::move(fileLabel))
{
}

void ContentLimits::CountObject()
{
    DemandAtMost(kMostObjects, ++objects, "objects", label);
}

void ContentLimits::CountTextUnit()
{
    DemandAtMost(kMostTextUnits, ++textUnits, "paragraphs and runs of text", label);
}

void DemandAtMost(std::size_t most, std::size_t count, const std::string& what, const std::string& label)
{
    if (count > most)
        throw DocumentError("there are more than " + std::to_string(most) + " " + what, label,
                            "a smaller drawing");
}

} // namespace ReferenceHost
