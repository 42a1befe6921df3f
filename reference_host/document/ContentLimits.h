#pragma once

#include <cstddef>
#include <string>

namespace ReferenceHost
{

/// The most that a drawing may hold. Each style, object and unit takes some thousand bytes once it is edited;
/// drawings beyond this cannot be worked on any more.
inline constexpr std::size_t kMostNamedStyles = 100000;
inline constexpr std::size_t kMostStyles = 300000; ///< The named and the automatic ones.
inline constexpr std::size_t kMostObjects = 250000;
inline constexpr std::size_t kMostTextUnits = 500000;

/// Counts what a drawing holds while it is read.
class ContentLimits
{
public:
    /// @param fileLabel names the file in errors.
    explicit ContentLimits(std::string fileLabel);

    /// One more object, or unit of text.
    ///
    /// @throws DocumentError for one too many.
    void CountObject();
    void CountTextUnit();

private:
    std::string label;
    std::size_t objects = 0;
    std::size_t textUnits = 0;
};

/// @throws DocumentError when there are too many of something, "styles".
void DemandAtMost(std::size_t most, std::size_t count, const std::string& what, const std::string& label);

} // namespace ReferenceHost
