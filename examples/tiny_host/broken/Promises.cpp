#include "tiny_host/broken/Promises.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace TinyHost
{

namespace
{

/// In the order of the enumeration.
constexpr std::array<std::string_view, 17> kNames{
    "ListedPathsAreCleared",       "SubstylesFollowTheirOwners", "ParentsFormNoCycle",
    "CopiesTakeTheSubstylesAlong", "NamesAreOfOneCategory",      "GroupsCanBeTakenBack",
    "JoinedNamesAreSplit",         "EndedListenersAreNotCalled", "IdleEventsWait",
    "DelegatesRunInOrder",         "HandlesKeepTheirTree",       "EmptyValuesAreWritten",
    "ItemsKeepTheirAddresses",     "MissingTextsGiveTheirKey",   "CaseCounts",
    "InsertsAreNotLookedAtAgain",  "BrokenLinksKeepTheLook",
};

static_assert(kNames.size() == static_cast<std::size_t>(Promise::BrokenLinksKeepTheLook) + 1);

/// The number of the promise that the environment names; as many as there are when it names none.
std::size_t FindBroken()
{
    const char* const asked = std::getenv("TINY_HOST_BREAKS");
    if (asked == nullptr || *asked == '\0')
        return kNames.size();
    for (std::size_t i = 0; i < kNames.size(); ++i)
    {
        if (kNames[i] == asked)
            return i;
    }
    std::fprintf(stderr, "TINY_HOST_BREAKS: \"%s\" is no promise of this host\n", asked);
    std::exit(2);
}

} // namespace

bool Keeps(Promise promise) noexcept
{
    static const std::size_t broken = FindBroken();
    return static_cast<std::size_t>(promise) != broken;
}

} // namespace TinyHost
