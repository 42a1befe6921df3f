#pragma once

#include "reference_host/document/ProgressMeter.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

struct zip;

namespace ReferenceHost
{

/// The most that an archive may hold when unpacked, and that a flat file may be long.
inline constexpr std::uint64_t kLargestUnpacked = 192ULL << 20U;

/// From here on the ratio of unpacked to packed bytes is limited.
inline constexpr std::uint64_t kRatioLimitFrom = 32ULL << 20U;

/// The largest ratio of unpacked to packed bytes past kRatioLimitFrom, for an entry and for the whole
/// archive.
inline constexpr std::uint64_t kLargestRatio = 200;

/// A zip archive in memory, read entry by entry and never beyond the limits, whatever its directory claims.
class ZipArchive
{
public:
    /// Opens the archive; `bytes` are borrowed.
    ///
    /// @param fileLabel names the file in errors.
    /// @throws DocumentError when it is no archive, when what its directory announces exceeds a limit, or
    ///         when entries share their bytes.
    ZipArchive(std::string_view bytes, std::string fileLabel);
    ZipArchive(const ZipArchive&) = delete;
    ZipArchive& operator=(const ZipArchive&) = delete;
    ~ZipArchive();

    [[nodiscard]] bool Contains(const std::string& entry) const;

    /// Unpacks an entry and checks its checksum.
    ///
    /// @param progress is started with the unpacked size.
    /// @throws DocumentError that names the entry when it is missing, there twice, encrypted, damaged, or
    ///         larger than a limit allows.
    [[nodiscard]] std::string Read(const std::string& entry, ProgressSpan progress = {}) const;

    /// How errors name an entry: "x.odg, content.xml".
    [[nodiscard]] std::string LabelOf(const std::string& entry) const;

private:
    struct Close
    {
        void operator()(zip* opened) const noexcept;
    };

    void CheckAnnouncedSizes() const;
    void DemandSeparateEntries(std::string_view bytes) const;
    void CheckUnpacked(std::uint64_t unpacked, std::uint64_t packed, const std::string& where) const;
    [[nodiscard]] std::uint64_t FindOnly(const std::string& entry) const;
    [[noreturn]] void FailDamaged(const std::string& reason, const std::string& entry) const;

    std::string label;
    std::unique_ptr<zip, Close> archive;
};

} // namespace ReferenceHost
