#include "reference_host/document/ZipPacking.h"

#include "reference_host/document/DocumentError.h"

#include <zlib.h>

#include <limits>

namespace ReferenceHost
{

namespace
{

/// A stream that packs, released in any case.
class PackingStream
{
public:
    explicit PackingStream(const std::string& fileLabel) : label(fileLabel)
    {
        constexpr int kWithoutHeader = -15;
        constexpr int kUsualMemory = 8;
        if (deflateInit2(&stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, kWithoutHeader, kUsualMemory,
                         Z_DEFAULT_STRATEGY) != Z_OK)
            Fail();
    }

    PackingStream(const PackingStream&) = delete;
    PackingStream& operator=(const PackingStream&) = delete;

    ~PackingStream() { deflateEnd(&stream); }

    [[nodiscard]] std::size_t Bound(std::size_t size)
    {
        return deflateBound(&stream, static_cast<uLong>(size));
    }

    /// Packs a piece to where there is room for all that can become of it.
    ///
    /// @returns how many bytes came out.
    std::size_t Pack(std::string_view piece, std::string& target, std::size_t written, bool isLast)
    {
        // The library does not write through this pointer.
        stream.next_in = reinterpret_cast<unsigned char*>(const_cast<char*>(piece.data()));
        stream.avail_in = static_cast<uInt>(piece.size());
        stream.next_out = reinterpret_cast<unsigned char*>(target.data() + written);
        stream.avail_out = static_cast<uInt>(target.size() - written);
        const uInt room = stream.avail_out;
        if (deflate(&stream, isLast ? Z_FINISH : Z_NO_FLUSH) != (isLast ? Z_STREAM_END : Z_OK))
            Fail();
        return room - stream.avail_out;
    }

    [[noreturn]] void Fail() const
    {
        throw DocumentError("an entry cannot be packed", label, "less text, or more memory");
    }

private:
    const std::string& label;
    z_stream stream{};
};

} // namespace

PackedEntry PackEntry(std::string_view bytes, const std::string& label, ProgressSpan progress)
{
    constexpr std::size_t kAtOnce = std::size_t{1} << 20U;
    PackingStream stream(label);
    if (bytes.size() >= std::numeric_limits<std::uint32_t>::max())
        stream.Fail();
    PackedEntry packed;
    packed.size = bytes.size();
    packed.bytes.resize(stream.Bound(bytes.size()));
    progress.Start(bytes.size());
    std::size_t written = 0;
    std::size_t done = 0;
    do
    {
        const std::string_view piece = bytes.substr(done, kAtOnce);
        done += piece.size();
        packed.checksum = static_cast<std::uint32_t>(
            crc32_z(packed.checksum, reinterpret_cast<const unsigned char*>(piece.data()), piece.size()));
        written += stream.Pack(piece, packed.bytes, written, done == bytes.size());
        progress.Reach(done);
    } while (done < bytes.size());
    packed.bytes.resize(written);
    return packed;
}

} // namespace ReferenceHost
