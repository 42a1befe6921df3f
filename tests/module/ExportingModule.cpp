// A loadable module that uses the library and hides nothing: it exports whatever its compiler makes for the
// types that it mentions, as the module of a stranger may.

#include "host/style_model/IMultipleStyleModifier.h"
#include "module/StylesCommon.h"

namespace
{

class IdleModifier final : public IMultipleStyleModifier
{
public:
    void Begin() override {}

    void End() override {}

    void Modify(const std::vector<Styles::Style*>&, const std::map<Styles::Style*, std::size_t>&,
                const Styles::PropertyPaths&, std::unique_ptr<Styles::Style>, const Styles::PropertyPaths&,
                bool, bool, Styles::IModifyStyleOverrides*) override
    {
    }
};

IdleModifier modifier;

} // namespace

extern "C" __attribute__((visibility("default"))) IMultipleStyleModifier* GetModifierOfExportingModule();

IMultipleStyleModifier* GetModifierOfExportingModule()
{
    return StylesCommon::HasInstance() ? nullptr : &modifier;
}
