// The library's own tests on the tiny host.

#include "tests/host_pieces/HostPieces.h"

#include "tiny_host/CategoryProperties.h"
#include "tiny_host/StyleInsides.h"
#include "tiny_host/TinyApplication.h"

#include <utility>

namespace HostPieces
{

namespace
{

constexpr int kNo = 7;

TinyHost::Application::Confirmation& Answers()
{
    static TinyHost::Application::Confirmation answers;
    return answers;
}

} // namespace

struct UserInterface::Insides
{
    TinyHost::Application application;
};

std::size_t CountLiveStyles()
{
    return TinyHost::CountLiveStyles();
}

std::optional<std::size_t> CountLiveXmlTrees()
{
    return std::nullopt;
}

void MoveToExternalSheet(Styles::Style& style, const OvxStringT& sheetName, const OvxStringT& link)
{
    Styles::StyleData::Of(style).externalSheet = sheetName;
    Styles::StyleData::Of(style).externalLink = link;
}

// The name for people is the text of a key, and a key without a text gives itself.
void RegisterCategory(const Styles::PropertyKey& category, const OvxStringT& displayName)
{
    TinyHost::RegisterCategory(category, displayName);
}

void RegisterProperties(const Styles::PropertyKey& category,
                        const std::vector<Styles::PropertyKey>& properties)
{
    TinyHost::RegisterProperties(category, properties);
}

UserInterface::UserInterface() : insides(std::make_unique<Insides>())
{
    insides->application.SetObjectPropertiesContext(nullptr);
    insides->application.SetConfirmation([](const OvxStringT& text, int flags)
                                         { return Answers() ? Answers()(text, flags) : kNo; });
}

UserInterface::~UserInterface() = default;

void UserInterface::SetObjectPropertiesContext(IDataContext* context)
{
    insides->application.SetObjectPropertiesContext(context);
}

void SetConfirmation(std::function<int(const OvxStringT& text, int flags)> confirmation)
{
    Answers() = std::move(confirmation);
}

} // namespace HostPieces
