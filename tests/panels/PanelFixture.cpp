#include "tests/panels/PanelFixture.h"

#include "host/colour/CLR_COLORSPEC.h"
#include "host/utils/Utf8.h"
#include "module/StylesCommon.h"

#include <stdexcept>
#include <string>

using OvxUtils::Any;

namespace PanelTests
{

namespace
{

std::string Describe(const Any& value)
{
    if (value.IsEmpty())
        return "nothing";
    if (const auto* number = value.TryGet<int>())
        return std::to_string(*number);
    if (const auto* text = value.TryGet<OvxStringT>())
        return '"' + OvxUtils::ToUtf8(*text) + '"';
    if (const auto* key = value.TryGet<Styles::PropertyKey>())
        return OvxUtils::ToUtf8(key->GetString());
    if (const auto* colour = value.TryGet<CLR_COLORSPEC>())
    {
        const auto rgb = colour->ToRgb();
        return "rgb(" + std::to_string(rgb.red) + ' ' + std::to_string(rgb.green) + ' ' +
               std::to_string(rgb.blue) + ") " + OvxUtils::ToUtf8(colour->GetResourceName());
    }
    return value.GetType().name();
}

} // namespace

void PrintTo(const RowAnswers& answers, std::ostream* out)
{
    *out << "value " << Describe(answers.value) << ", state " << static_cast<int>(answers.state)
         << ", ambiguous " << answers.ambiguous << ", origin \"" << OvxUtils::ToUtf8(answers.origin)
         << "\", link \"" << OvxUtils::ToUtf8(answers.link) << "\", parent value "
         << Describe(answers.parentValue);
}

RowAnswers ReadRow(const IReflectable& panel, const OvxStringT& property)
{
    const auto name = [&](const wchar_t* suffix)
    { return OvxStringViewT(property) + OvxStringViewT(suffix); };
    return {panel.Read<Any>(property),
            static_cast<ActivePropertyState>(panel.Read<int>(name(L"State"))),
            panel.Read<int>(name(L"Ambiguous")),
            panel.Read<OvxStringT>(name(L"Origin")),
            panel.Read<OvxStringT>(name(L"Link")),
            panel.Read<Any>(name(L"ParentValue"))};
}

void SetTargets(BaseStylePropertiesDatasource& panel, const std::vector<Styles::Style*>& targets)
{
    panel.SetTargetStyle(targets, false, Styles::PropertyPath(), {});
}

void SetTargetsForcing(BaseStylePropertiesDatasource& panel, const std::vector<Styles::Style*>& targets,
                       const OvxStringT& category, const Styles::PropertyPath& forced)
{
    panel.SetTargetStyle(targets, false, Key(category), {forced});
}

std::filesystem::path FileOf(const OvxStringT& module)
{
    return std::filesystem::path(STYLEPROPERTIES_PANELS_FOLDER) /
           ReferenceHost::LoadedModule::GetFileNameOf(OvxUtils::ToUtf8(module));
}

PanelFixture::PanelFixture()
{
    StylesCommon::GetInstance().Initialize(&application);
    application.OpenDocument(&source, &document);
}

PanelFixture::~PanelFixture()
{
    application.CloseDocument();
    StylesCommon::GetInstance().Initialize(nullptr);
}

BaseStylePropertiesDatasource& PanelFixture::OpenPanel(const OvxStringT& module, const OvxStringT& className)
{
    modules.push_back(std::make_unique<ReferenceHost::LoadedModule>(FileOf(module)));
    auto* panel = dynamic_cast<BaseStylePropertiesDatasource*>(context.CreateDataSource(className));
    if (panel == nullptr)
        throw std::logic_error("the module registers no panel of the class " + OvxUtils::ToUtf8(className));
    return *panel;
}

} // namespace PanelTests
