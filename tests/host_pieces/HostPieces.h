#pragma once

#include "host/data_binding/IDataContext.h"
#include "host/style_model/PropertyKey.h"
#include "host/style_model/Style.h"
#include "host/utils/OvxStringT.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

/// What the library's own tests need of a host beyond what host/ declares. Each host they run on defines it.
namespace HostPieces
{

/// How many styles live in the process, substyles included.
[[nodiscard]] std::size_t CountLiveStyles();

/// How many trees of XML nodes live in the process; std::nullopt when the host does not count them.
[[nodiscard]] std::optional<std::size_t> CountLiveXmlTrees();

/// Makes a whole style, with its substyles, one of the external sheet of that name; `link` is where it may be
/// edited.
void MoveToExternalSheet(Styles::Style& style, const OvxStringT& sheetName, const OvxStringT& link);

/// Makes a category known, under a name for people that the resources hold no text for. One that is known
/// already stays as it is.
void RegisterCategory(const Styles::PropertyKey& category, const OvxStringT& displayName);

void RegisterProperties(const Styles::PropertyKey& category,
                        const std::vector<Styles::PropertyKey>& properties);

/// The user interface that components reach, for as long as it lives: one at a time. It knows the context in
/// which panels edit objects, which is none at first.
class UserInterface
{
public:
    UserInterface();
    UserInterface(const UserInterface&) = delete;
    UserInterface& operator=(const UserInterface&) = delete;
    ~UserInterface();

    /// Borrowed until it is replaced; null for none.
    void SetObjectPropertiesContext(IDataContext* context);

private:
    struct Insides;

    std::unique_ptr<Insides> insides; ///< The host's own.
};

/// Answers the questions that are put to the person while a UserInterface lives; an empty one answers no.
void SetConfirmation(std::function<int(const OvxStringT& text, int flags)> confirmation);

} // namespace HostPieces
