#include "reference_host/document/picture/PathData.h"

#include "reference_host/document/picture/ContourBuilder.h"
#include "reference_host/document/picture/NumberScanner.h"

#include <array>
#include <cstddef>
#include <vector>

namespace ReferenceHost
{

namespace
{

char Lower(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

/// Reads the commands of one path.
class PathDataReader
{
public:
    explicit PathDataReader(std::string_view text) : scanner(text) {}

    Contour Read()
    {
        while (ReadCommand())
        {
        }
        return builder.Take();
    }

private:
    /// Takes the next command, or the next set of numbers for the one before.
    bool ReadCommand()
    {
        const char next = scanner.Peek();
        if ((next >= 'a' && next <= 'z') || (next >= 'A' && next <= 'Z'))
        {
            command = scanner.Take();
            if (Lower(command) == 'z')
            {
                builder.Close();
                previous = 'z';
                return true;
            }
        }
        else if (next == '\0' || command == '\0' || Lower(command) == 'z')
            return false;
        isRelative = command == Lower(command);
        const char kind = Lower(command);
        const bool isRead = Draw(kind);
        previous = kind;
        // Further points behind a move are lines.
        if (kind == 'm')
            command = isRelative ? 'l' : 'L';
        return isRead;
    }

    bool Draw(char kind)
    {
        switch (kind)
        {
        case 'm':
        case 'l':
            return DrawLine(kind == 'm');
        case 'h':
        case 'v':
            return DrawAlong(kind == 'h');
        case 'c':
        case 's':
            return DrawCubic(kind == 's');
        case 'q':
        case 't':
            return DrawQuadratic(kind == 't');
        case 'a':
            return DrawArc();
        default:
            return false;
        }
    }

    std::optional<Point> TakePoint()
    {
        const std::optional<double> x = scanner.TakeNumber();
        const std::optional<double> y = x ? scanner.TakeNumber() : std::nullopt;
        if (!y)
            return std::nullopt;
        const Point origin = isRelative ? builder.GetCurrent() : Point{};
        return Point{origin.x + *x, origin.y + *y};
    }

    bool DrawLine(bool isMove)
    {
        const std::optional<Point> end = TakePoint();
        if (!end)
            return false;
        if (isMove)
            builder.MoveTo(*end);
        else
            builder.LineTo(*end);
        return true;
    }

    bool DrawAlong(bool isHorizontal)
    {
        const std::optional<double> number = scanner.TakeNumber();
        if (!number)
            return false;
        Point end = builder.GetCurrent();
        double& moved = isHorizontal ? end.x : end.y;
        moved = isRelative ? moved + *number : *number;
        builder.LineTo(end);
        return true;
    }

    /// The last control point mirrored, where the command before was one of these two.
    [[nodiscard]] Point Mirrored(char same, char smooth) const
    {
        const Point current = builder.GetCurrent();
        if (previous != same && previous != smooth)
            return current;
        return {2 * current.x - control.x, 2 * current.y - control.y};
    }

    bool DrawCubic(bool isSmooth)
    {
        const std::optional<Point> control1 = isSmooth ? Mirrored('c', 's') : TakePoint();
        const std::optional<Point> control2 = control1 ? TakePoint() : std::nullopt;
        const std::optional<Point> end = control2 ? TakePoint() : std::nullopt;
        if (!end)
            return false;
        control = *control2;
        builder.CurveTo(*control1, *control2, *end);
        return true;
    }

    bool DrawQuadratic(bool isSmooth)
    {
        const std::optional<Point> middle = isSmooth ? Mirrored('q', 't') : TakePoint();
        const std::optional<Point> end = middle ? TakePoint() : std::nullopt;
        if (!end)
            return false;
        control = *middle;
        builder.QuadraticTo(*middle, *end);
        return true;
    }

    bool DrawArc()
    {
        std::array<double, 3> numbers{};
        for (double& number : numbers)
        {
            const std::optional<double> taken = scanner.TakeNumber();
            if (!taken)
                return false;
            number = *taken;
        }
        const std::optional<bool> isLarge = scanner.TakeFlag();
        const std::optional<bool> isClockwise = isLarge ? scanner.TakeFlag() : std::nullopt;
        const std::optional<Point> end = isClockwise ? TakePoint() : std::nullopt;
        if (!end)
            return false;
        builder.ArcTo({numbers[0], numbers[1]}, numbers[2], *isLarge, *isClockwise, *end);
        return true;
    }

    NumberScanner scanner;
    ContourBuilder builder;
    Point control;        ///< The last one of the curve before.
    char command = '\0';  ///< As it stands; a zero before the first.
    char previous = '\0'; ///< The command before, as a small letter.
    bool isRelative = false;
};

} // namespace

Contour ParsePathData(std::string_view text)
{
    return PathDataReader(text).Read();
}

Contour ParsePoints(std::string_view text, PointsEnd end)
{
    const std::vector<double> numbers = ParseNumbers(text);
    if (numbers.size() < 4)
        return {};
    ContourBuilder builder;
    builder.MoveTo({numbers[0], numbers[1]});
    for (std::size_t index = 3; index < numbers.size(); index += 2)
        builder.LineTo({numbers[index - 1], numbers[index]});
    if (end == PointsEnd::Closed)
        builder.Close();
    return builder.Take();
}

std::optional<Box> ParseViewBox(std::string_view text)
{
    const std::vector<double> numbers = ParseNumbers(text);
    if (numbers.size() != 4)
        return std::nullopt;
    return Box{numbers[0], numbers[1], numbers[2], numbers[3]};
}

} // namespace ReferenceHost
