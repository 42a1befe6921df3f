// The library's own tests on the reference host.

#include "tests/host_pieces/HostPieces.h"

#include "reference_host/services/Application.h"
#include "reference_host/services/IDialogFrontEnd.h"
#include "reference_host/style_model/CategoryRegistry.h"
#include "reference_host/style_model/StyleHosting.h"
#include "reference_host/xml/LiveXmlTrees.h"

#include <utility>

namespace HostPieces
{

namespace
{

/// The tests bring the dialogs of their contexts themselves; it answers questions.
class Answers final : public ReferenceHost::IDialogFrontEnd
{
public:
    void ShowDialog(const OvxStringT& /*key*/, IDataContext* /*context*/) override {}

    void CloseDialog(const OvxStringT& /*key*/, bool /*isAccepted*/) override {}

    int Confirm(const OvxStringT& text, int flags) override
    {
        return confirmation ? confirmation(text, flags) : ReferenceHost::kAnswerNo;
    }

    std::function<int(const OvxStringT&, int)> confirmation;
};

Answers answers;

} // namespace

struct UserInterface::Insides
{
    ReferenceHost::Application application;
};

std::size_t CountLiveStyles()
{
    return ReferenceHost::LiveStyleCount();
}

std::optional<std::size_t> CountLiveXmlTrees()
{
    return ReferenceHost::CountLiveXmlTrees();
}

void MoveToExternalSheet(Styles::Style& style, const OvxStringT& sheetName, const OvxStringT& link)
{
    ReferenceHost::SetExternalSheet(style, sheetName, link);
}

// The name for people is the text of a key, and a key without a text gives itself.
void RegisterCategory(const Styles::PropertyKey& category, const OvxStringT& displayName)
{
    ReferenceHost::CategoryRegistry::GetInstance().RegisterCategory(category, displayName);
}

void RegisterProperties(const Styles::PropertyKey& category,
                        const std::vector<Styles::PropertyKey>& properties)
{
    ReferenceHost::CategoryRegistry::GetInstance().RegisterProperties(category, properties);
}

UserInterface::UserInterface() : insides(std::make_unique<Insides>())
{
    insides->application.GetDialogs().SetFrontEnd(&answers);
}

UserInterface::~UserInterface() = default;

void UserInterface::SetObjectPropertiesContext(IDataContext* context)
{
    insides->application.SetObjectPropertiesContext(context);
}

void SetConfirmation(std::function<int(const OvxStringT& text, int flags)> confirmation)
{
    answers.confirmation = std::move(confirmation);
}

} // namespace HostPieces
