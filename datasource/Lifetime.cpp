// How a data source comes to be and goes: its fields, the style applicator that its host object offers, and
// whether it serves the host's object-properties context. The bound names stand in PropertyTable.

#include "datasource/BaseStylePropertiesDatasource.h"
#include "datasource/CurrentDataContext.h"
#include "host/data_binding/IDataContext.h"
#include "host/utils/InterfaceId.h"
#include "presets/StylePresets.h"

#include <cstdint>

namespace
{

constexpr InterfaceId kStyleApplicatorId{
    {0x41, 0x1b, 0x2c, 0x4b, 0xae, 0x74, 0x84, 0xe8, 0x45, 0xee, 0x48, 0x59, 0x32, 0xc8, 0x40, 0xf8}};

constexpr InterfaceId kStyleApplicatorNumberId{
    {0x4b, 0xc7, 0x8b, 0x18, 0x6a, 0x43, 0xa9, 0x59, 0x47, 0xc7, 0xd4, 0x73, 0x69, 0xc0, 0xb8, 0xb5}};

/// The number that a host object answers in place of a pointer: its low 32 bits.
std::int32_t NumberFromAnswer(const void* answer)
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(answer)));
}

} // namespace

BaseStylePropertiesDatasource::BaseStylePropertiesDatasource()
    : hasParentDelegate(this, &BaseStylePropertiesDatasource::Private_HasParent)
{
    listDocument.Load(L"<BaseStylePropertiesDatasource/>");

    // While the base is under construction the preset category is always the base's own, which is empty:
    // nothing is attached and no context is asked for. Deliberate; panels read their lists through
    // "PresetList".
    AttachPresetList(PresetCategoryName());
}

BaseStylePropertiesDatasource::~BaseStylePropertiesDatasource() = default;

void BaseStylePropertiesDatasource::PostConstruct()
{
    IDataContext* dataContext = GetDataContext();
    IHostObject* hostObject = dataContext == nullptr ? nullptr : dataContext->GetHostObject();
    if (hostObject != nullptr)
    {
        styleApplicator = static_cast<IStyleApplicator*>(hostObject->Query(kStyleApplicatorId));
        styleApplicatorID = NumberFromAnswer(hostObject->Query(kStyleApplicatorNumberId));
    }

    if (styleApplicator != nullptr)
        styleApplicator->AttachDataSource(styleApplicatorID, this);

    const std::optional<IDataContext*> current = FindCurrentDataContext();
    isObjectProperties = current.has_value() && *current == dataContext;
}
