#pragma once

#include "reference_host/history/IDocumentChange.h"
#include "reference_host/history/ImageIndex.h"
#include "reference_host/history/StyleImage.h"
#include "reference_host/history/SubstylePlace.h"

#include "host/Export.h"

#include <map>
#include <memory>
#include <span>
#include <utility>
#include <vector>

namespace ReferenceHost
{

/// What changed since one moment, as it was at that moment.
///
/// Of each value of a style, and of each name of a substyle, what was there first is kept alone: what is kept
/// grows with the number of values that changed, not with how often they did. Images say nothing about one
/// another, so they are put back in any order; the changes beside them are taken back in reverse.
class StepChanges
{
public:
    using Images = std::vector<StyleImage>;

    StepChanges() = default;
    StepChanges(const StepChanges&) = delete;
    StepChanges& operator=(const StepChanges&) = delete;

    // Recording before it happens

    /// The own value of one property of a style may change.
    void KeepValue(Styles::StyleData& style, const Styles::PropertyKey& key);

    /// Anything may change of a style but its substyles.
    void KeepStyle(Styles::StyleData& style);

    /// Nothing stands under `key` of `owner`, and something will.
    void KeepFreePlace(Styles::Style& owner, const Styles::PropertyKey& key);

    /// The substyle under `key` of `owner` goes; `removed` is null afterwards. One that came since that
    /// moment is destroyed.
    void KeepTakenPlace(Styles::Style& owner, const Styles::PropertyKey& key,
                        std::unique_ptr<Styles::Style>& removed);

    /// Makes a change beside the values of styles. When it fails there is nothing to be taken back.
    void Perform(std::unique_ptr<IDocumentChange> change);

    /// Adds what changed in a part of the time, which has just ended: what is known already stays as it is.
    void TakeOver(StepChanges& part);

    // Reading

    /// One for each style, in the order in which they changed first.
    [[nodiscard]] const Images& GetImages() const noexcept { return images; }

    /// Tells whether nothing but these whole styles, their substyles included, changed.
    [[nodiscard]] STYLEPROPERTIES_HOST_API bool ConcernsOnly(std::span<Styles::Style* const> wholes) const;

    // Ending

    /// Forgets the images of styles that are what they were.
    ///
    /// @returns whether anything is left. When not, every substyle that was taken out is back in its place.
    bool DropUnchanged();

    /// Makes everything what it was at that moment.
    void Undo();

    /// Makes everything what it was before Undo().
    void Redo();

private:
    /// Places are ordered by their owners.
    using Place = std::pair<const Styles::StyleData*, Styles::PropertyKey>;

    [[nodiscard]] StyleImage& NeedImage(Styles::StyleData& style);
    void ExchangeAll();
    void Forget(const Styles::Style& destroyed);

    Images images;
    ImageIndex index; ///< Of the images, while there may be more.
    std::map<Place, SubstylePlace> places;
    std::vector<std::unique_ptr<IDocumentChange>> changes; ///< In order.
};

} // namespace ReferenceHost
