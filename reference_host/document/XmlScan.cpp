#include "reference_host/document/XmlScan.h"

#include "reference_host/document/XmlScanner.h"

namespace ReferenceHost
{

void ScanXml(std::string_view text, const std::string& label, ProgressSpan progress)
{
    XmlScanner(text, label).Run(progress);
}

} // namespace ReferenceHost
