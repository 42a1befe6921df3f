#pragma once

#include "host/utils/OvxStringT.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace Fuzz
{

/// Decisions that the bytes of an input make, one after the other; zeros once they are used up.
class Choices
{
public:
    /// `input` is borrowed.
    explicit Choices(std::string_view input) : bytes(input) {}

    [[nodiscard]] bool AreLeft() const noexcept { return place < bytes.size(); }

    /// The next byte.
    [[nodiscard]] std::uint8_t Byte();

    /// One of `count` numbers from 0; 0 when there are none.
    [[nodiscard]] std::size_t Below(std::size_t count);

    /// A number of any size, small ones more often.
    [[nodiscard]] int Number();

    /// A text up to the next zero byte, as WideText() reads it, of at most 40 bytes.
    [[nodiscard]] OvxStringT Text();

    /// All bytes that are left.
    [[nodiscard]] std::string_view Rest();

private:
    std::string_view bytes;
    std::size_t place = 0;
};

/// Bytes as wide text. Unlike UTF-8 it reaches every wide character, also those that stand for nothing: each
/// byte is one, and the byte 0xFF begins one of the four bytes behind it.
[[nodiscard]] OvxStringT WideText(std::string_view bytes);

/// The first of the parts that a separator makes of a text; what is behind the separator stays in `text`.
[[nodiscard]] std::string_view TakePart(std::string_view& text, char separator);

} // namespace Fuzz
