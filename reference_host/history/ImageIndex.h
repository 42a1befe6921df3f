#pragma once

#include "reference_host/history/StyleImage.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace ReferenceHost
{

/// Where in a list of images that of a style is.
///
/// Holds numbers alone, four bytes for each place: a list that is gathered for a short while needs no node
/// for each of its images. A list of a few is searched as it is.
class ImageIndex
{
public:
    using Images = std::vector<StyleImage>;

    /// The place of the image of `style`; the size of the list when there is none.
    [[nodiscard]] std::size_t Find(const Images& images, const Styles::StyleData& style) const noexcept;

    /// Makes room for `further` images, here and in the list, so that they can be appended without fail. When
    /// it fails itself, nothing has changed.
    void MakeRoom(Images& images, std::size_t further);

    /// For after an image was appended, where room was made.
    void AddLast(const Images& images) noexcept;

    /// Takes the image of a style out of the list, if it is there. The last one takes its place.
    void Erase(Images& images, const Styles::StyleData& style) noexcept;

private:
    static constexpr std::uint32_t kFree = 0;
    static constexpr std::size_t kSearchedAsTheyAre = 8;

    [[nodiscard]] std::size_t SlotOf(const Images& images, std::size_t place) const noexcept;
    void Add(const Images& images, std::size_t place) noexcept;
    void Free(const Images& images, std::size_t slot) noexcept;

    std::vector<std::uint32_t> slots; ///< Places from 1 on, by hash; empty, or at most half of them are used.
};

} // namespace ReferenceHost
