// Where links to style sheets lead. Paths in files are references as in the web: "/" parts them, and "%20"
// stands for a character that might be read as something else.

#include "reference_host/document/StyleSheetLink.h"

#include <algorithm>
#include <charconv>
#include <system_error>

namespace ReferenceHost
{

namespace
{

namespace fs = std::filesystem;

bool IsLetter(char byte)
{
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}

/// The scheme of a URL, in lower case: "http". Empty for a path; one letter alone names a drive.
std::string SchemeOf(std::string_view reference)
{
    const std::size_t colon = reference.find(':');
    if (colon == std::string_view::npos || colon < 2 || !IsLetter(reference.front()))
        return {};
    std::string scheme(reference.substr(0, colon));
    const auto isPart = [](char byte)
    { return IsLetter(byte) || (byte >= '0' && byte <= '9') || byte == '+' || byte == '-' || byte == '.'; };
    if (!std::ranges::all_of(scheme, isPart))
        return {};
    constexpr char kToLowerCase = 'a' - 'A';
    for (char& byte : scheme)
        byte = byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + kToLowerCase) : byte;
    return scheme;
}

/// The path in a "file:" URL; empty for one of another machine.
std::string_view PathInFileUrl(std::string_view url)
{
    std::string_view path = url.substr(url.find(':') + 1);
    if (path.starts_with("//"))
    {
        path.remove_prefix(2);
        constexpr std::string_view kThisMachine = "localhost";
        if (path.starts_with(kThisMachine))
            path.remove_prefix(kThisMachine.size());
    }
    if (!path.starts_with('/') || path.starts_with("//"))
        return {};
    // "/C:/sheets/house.odg": a drive stands behind a slash that is none of the path.
    constexpr bool kHasDrives = fs::path::preferred_separator == '\\';
    const bool beginsWithDrive = path.size() > 2 && IsLetter(path[1]) && path[2] == ':';
    return kHasDrives && beginsWithDrive ? path.substr(1) : path;
}

/// Decodes "%20"; a "%" that no two hexadecimal digits follow stands for itself.
std::string Decode(std::string_view text)
{
    std::string decoded;
    for (std::size_t place = 0; place < text.size(); ++place)
    {
        unsigned char byte = 0;
        const char* const digits = text.data() + place + 1;
        constexpr int kHexadecimal = 16;
        const bool isEscape = text[place] == '%' && place + 2 < text.size() &&
                              std::from_chars(digits, digits + 2, byte, kHexadecimal).ptr == digits + 2;
        decoded += isEscape ? static_cast<char>(byte) : text[place];
        place += isEscape ? 2 : 0;
    }
    return decoded;
}

/// Encodes what a reader of references might take for something else than a part of a path.
std::string Encode(const std::string& path)
{
    constexpr std::string_view kSpecial = " %#?:\"<>\\";
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string encoded;
    for (const char byte : path)
    {
        const auto code = static_cast<unsigned char>(byte);
        if (kSpecial.find(byte) == std::string_view::npos)
            encoded += byte;
        else
            encoded += {'%', kDigits[code / kDigits.size()], kDigits[code % kDigits.size()]};
    }
    return encoded;
}

fs::path FolderOrCurrent(const fs::path& folder)
{
    return folder.empty() ? fs::path(".") : folder;
}

/// A folder without links and dots, as far as it exists: only then do ".." and its names say the same.
fs::path RealFolder(const fs::path& folder)
{
    std::error_code failure;
    const fs::path real = fs::weakly_canonical(fs::absolute(FolderOrCurrent(folder), failure), failure);
    return failure ? FolderOrCurrent(folder) : real;
}

} // namespace

std::optional<fs::path> ResolveSheetReference(std::string_view reference, const fs::path& folder)
{
    const std::string scheme = SchemeOf(reference);
    const bool isOfOtherMachine = reference.starts_with("//") || reference.starts_with("\\\\");
    if ((!scheme.empty() && scheme != "file") || isOfOtherMachine)
        return std::nullopt;
    const std::string decoded = Decode(scheme.empty() ? reference : PathInFileUrl(reference));
    if (decoded.empty() || decoded.find('\0') != std::string::npos)
        return std::nullopt;
    return folder / fs::path(std::u8string(decoded.begin(), decoded.end()));
}

std::string MoveSheetReference(const std::string& reference, const fs::path& from, const fs::path& to)
{
    const std::optional<fs::path> alone = ResolveSheetReference(reference, {});
    std::error_code failure;
    const bool isFixed = !alone || alone->is_absolute() || from == to;
    if (isFixed || fs::equivalent(FolderOrCurrent(from), FolderOrCurrent(to), failure))
        return reference;
    const fs::path file = from / *alone;
    const fs::path sheet = RealFolder(file.parent_path()) / file.filename();
    const fs::path moved = sheet.lexically_relative(RealFolder(to));
    // Folders on two drives have no way to each other.
    const fs::path& shortest = moved.empty() ? sheet : moved;
    const std::u8string text = shortest.generic_u8string();
    return Encode({text.begin(), text.end()});
}

} // namespace ReferenceHost
