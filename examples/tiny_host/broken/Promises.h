#pragma once

namespace TinyHost
{

/// Promises of this host that a build for tests can break, one at a time, to see that the conformance suite
/// notices.
enum class Promise
{
    ListedPathsAreCleared,       ///< SetProperties clears a listed path at which the source sets nothing.
    SubstylesFollowTheirOwners,  ///< A substyle inherits through the parents of the style that owns it.
    ParentsFormNoCycle,          ///< A parent that would close a cycle is refused.
    CopiesTakeTheSubstylesAlong, ///< A copy of a style has copies of its substyles.
    NamesAreOfOneCategory,      ///< A sheet lists the names of the category that is asked for, and no others.
    GroupsCanBeTakenBack,       ///< A group that is not committed leaves nothing.
    JoinedNamesAreSplit,        ///< Names joined by commas reach the listeners of each.
    EndedListenersAreNotCalled, ///< A listener that was removed during a delivery is not called any more.
    IdleEventsWait,             ///< An event for the idle step is not delivered before it.
    DelegatesRunInOrder,        ///< What bases queue for the second construction phase runs first.
    HandlesKeepTheirTree,       ///< An XML node lives as long as a handle into its tree.
    EmptyValuesAreWritten,      ///< An attribute that is set to an empty text is there.
    ItemsKeepTheirAddresses,    ///< The items of a list stay where they are while others are added.
    MissingTextsGiveTheirKey,   ///< A resource key without a text gives the key.
    CaseCounts,                 ///< Texts that differ in case differ, unless the caller says otherwise.
    InsertsAreNotLookedAtAgain, ///< What a message insert brings in stays as it is.
    BrokenLinksKeepTheLook,     ///< A colour that is detached from its palette entry looks the same.
};

/// Tells whether this host keeps a promise, which it does unless a build for tests was told to break it.
#if defined(TINY_HOST_CAN_BREAK)
[[nodiscard]] bool Keeps(Promise promise) noexcept;
#else
[[nodiscard]] constexpr bool Keeps(Promise /*promise*/) noexcept
{
    return true;
}
#endif

} // namespace TinyHost
