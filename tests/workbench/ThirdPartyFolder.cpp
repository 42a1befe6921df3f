#include "tests/workbench/ThirdPartyFolder.h"

#include "apps/workbench/PanelDescriptionReader.h"

namespace WorkbenchTests
{

std::string ShadowDescription()
{
    return R"(<panel name="shadow" module="third-party" class="ShadowPanelDatasource" title="Shadow" order="100"
                     category="shadow" targets="objects">
    <category name="shadow" title="Shadow">
        <map key="visibility" element="graphic-properties" attribute="draw:shadow" codec="choice"/>
        <map key="color" element="graphic-properties" attribute="draw:shadow-color" codec="colour"/>
        <map key="distance" element="graphic-properties" attribute="draw:shadow-offset-x" codec="length"/>
    </category>
    <row identifier="visibility" property="ShadowVisibility" label="Shown" control="switch" kind="choice" order="10">
        <choice value="hidden" label="Off"/>
        <choice value="visible" label="On"/>
    </row>
    <row identifier="color" property="ShadowColor" label="Colour" control="colour" kind="colour" order="20"/>
    <row identifier="distance" property="ShadowDistance" label="Distance" control="number" kind="length" unit="cm"
         minimum="-10000" maximum="10000" order="30"/>
</panel>)";
}

std::string DescriptionOf(const std::string& name, const std::string& className, const std::string& content)
{
    return "<panel name=\"" + name + "\" module=\"third-party\" class=\"" + className +
           "\" title=\"t\" order=\"1\" category=\"fill\" targets=\"objects\">" + content + "</panel>";
}

ThirdPartyFolder::ThirdPartyFolder()
{
    const std::filesystem::path module = THIRD_PARTY_MODULE;
    std::filesystem::create_symlink(module, folder.GetPath() / module.filename());
}

std::filesystem::path ThirdPartyFolder::Write(const std::string& name, const std::string& description) const
{
    return folder.Write(name + std::string(Workbench::kPanelDescriptionSuffix), description);
}

Workbench::PanelDescription ThirdPartyFolder::Describe(const std::string& name,
                                                       const std::string& description) const
{
    return Workbench::ReadPanelDescription(Write(name, description));
}

} // namespace WorkbenchTests
