#include "reference_host/document/picture/EnhancedPath.h"

#include "reference_host/document/picture/ContourBuilder.h"
#include "reference_host/document/picture/NumberScanner.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <utility>

namespace ReferenceHost
{

namespace
{

/// Takes the next number, equation, modifier or keyword, horizontal or not; none where none stands.
std::optional<double> TakeParameter(NumberScanner& scanner, ShapeFormulas& formulas, bool isAcross)
{
    const char next = scanner.Peek();
    if (next == '?' || next == '$')
    {
        scanner.Take();
        if (next == '?')
            return formulas.Evaluate(scanner.TakeWord());
        const std::optional<std::size_t> index = scanner.TakeIndex();
        return index ? formulas.GetModifier(*index) : std::nullopt;
    }
    if (const std::optional<double> number = scanner.TakeNumber())
        return formulas.PlaceOf(*number, isAcross);
    NumberScanner ahead = scanner;
    const std::optional<double> keyword = formulas.FindKeyword(ahead.TakeWord());
    if (keyword)
        scanner = ahead;
    return keyword;
}

/// Reads the commands of one custom shape.
class EnhancedPathReader
{
public:
    EnhancedPathReader(std::string_view text, ShapeFormulas& all) : scanner(text), formulas(all) {}

    std::optional<std::vector<ShapePart>> Read()
    {
        while (scanner.Peek() != '\0')
        {
            if (!ReadCommand(scanner.Take()))
                return std::nullopt;
        }
        EndPart();
        return std::move(parts);
    }

private:
    static constexpr std::size_t kMostNumbers = 8;
    using Numbers = std::array<double, kMostNumbers>;

    /// A command that takes sets of numbers.
    struct Command
    {
        char letter;
        std::size_t numbers;
        void (EnhancedPathReader::*draw)(const Numbers& given);
    };

    static const std::array<Command, 14>& GetCommands()
    {
        using Reader = EnhancedPathReader;
        static constexpr std::array<Command, 14> commands{{{'M', 2, &Reader::Move},
                                                           {'L', 2, &Reader::Line},
                                                           {'C', 6, &Reader::Curve},
                                                           {'Q', 4, &Reader::Quadratic},
                                                           {'T', 6, &Reader::EllipseTo},
                                                           {'U', 6, &Reader::EllipseApart},
                                                           {'A', 8, &Reader::ArcTo},
                                                           {'B', 8, &Reader::ArcApart},
                                                           {'W', 8, &Reader::ClockwiseArcTo},
                                                           {'V', 8, &Reader::ClockwiseArcApart},
                                                           {'X', 2, &Reader::QuadrantAcross},
                                                           {'Y', 2, &Reader::QuadrantDown},
                                                           {'G', 4, &Reader::SwingTo},
                                                           {'H', 0, nullptr}}};
        return commands;
    }

    bool ReadCommand(char letter)
    {
        switch (letter)
        {
        case 'Z':
            builder.Close();
            return true;
        case 'N':
            EndPart();
            return true;
        case 'F':
            isFilled = false;
            return true;
        case 'S':
            isStroked = false;
            return true;
        default:
            break;
        }
        for (const Command& command : GetCommands())
        {
            if (command.letter == letter)
                return command.draw == nullptr || DrawSets(command);
        }
        return false;
    }

    bool DrawSets(const Command& command)
    {
        for (std::size_t set = 0;; ++set)
        {
            Numbers given{};
            for (std::size_t index = 0; index < command.numbers; ++index)
            {
                const std::optional<double> number = TakeParameter(scanner, formulas, index % 2 == 0);
                if (!number)
                    return false;
                given[index] = *number;
            }
            isSecond = set % 2 == 1;
            (this->*command.draw)(given);
            // Further points behind a move are lines.
            if (command.letter == 'M')
                return NextIsCommand() || DrawSets({'L', 2, &EnhancedPathReader::Line});
            if (NextIsCommand())
                return true;
        }
    }

    bool NextIsCommand()
    {
        const char next = scanner.Peek();
        return next == '\0' || (next >= 'A' && next <= 'Z');
    }

    void EndPart()
    {
        if (!builder.IsEmpty())
            parts.push_back({builder.Take(), isFilled, isStroked});
        isFilled = isStroked = true;
    }

    void Move(const Numbers& given) { builder.MoveTo({given[0], given[1]}); }

    void Line(const Numbers& given) { builder.LineTo({given[0], given[1]}); }

    void Curve(const Numbers& given)
    {
        builder.CurveTo({given[0], given[1]}, {given[2], given[3]}, {given[4], given[5]});
    }

    void Quadratic(const Numbers& given) { builder.QuadraticTo({given[0], given[1]}, {given[2], given[3]}); }

    void DrawEllipse(const Numbers& given, bool isConnected)
    {
        double sweep = given[5] - given[4];
        if (sweep <= 0)
            sweep += 360;
        builder.Follow({{given[0], given[1]}, given[2], given[3]}, given[4], std::min(sweep, 360.0),
                       isConnected);
    }

    void EllipseTo(const Numbers& given) { DrawEllipse(given, true); }

    void EllipseApart(const Numbers& given) { DrawEllipse(given, false); }

    /// An arc on the ellipse in the box of the first two points, between the rays to the other two.
    void DrawArc(const Numbers& given, bool isClockwise, bool isConnected)
    {
        const Ellipse ellipse{{(given[0] + given[2]) / 2, (given[1] + given[3]) / 2},
                              std::abs(given[2] - given[0]) / 2,
                              std::abs(given[3] - given[1]) / 2};
        const auto angleTo = [&](double x, double y)
        {
            const double radians = std::atan2((y - ellipse.centre.y) * ellipse.radiusX,
                                              (x - ellipse.centre.x) * ellipse.radiusY);
            return radians * 180 / std::numbers::pi;
        };
        const double start = angleTo(given[4], given[5]);
        double sweep = angleTo(given[6], given[7]) - start;
        if (isClockwise && sweep <= 0)
            sweep += 360;
        else if (!isClockwise && sweep >= 0)
            sweep -= 360;
        builder.Follow(ellipse, start, sweep, isConnected);
    }

    void ArcTo(const Numbers& given) { DrawArc(given, false, true); }

    void ArcApart(const Numbers& given) { DrawArc(given, false, false); }

    void ClockwiseArcTo(const Numbers& given) { DrawArc(given, true, true); }

    void ClockwiseArcApart(const Numbers& given) { DrawArc(given, true, false); }

    /// A quarter of an ellipse that leaves along one axis and arrives along the other.
    void DrawQuadrant(Point end, bool isAcross)
    {
        constexpr double kReach = 0.5522847498;
        const Point from = builder.GetCurrent();
        const Point by{end.x - from.x, end.y - from.y};
        const Point leaving =
            isAcross ? Point{from.x + kReach * by.x, from.y} : Point{from.x, from.y + kReach * by.y};
        const Point arriving =
            isAcross ? Point{end.x, end.y - kReach * by.y} : Point{end.x - kReach * by.x, end.y};
        builder.CurveTo(leaving, arriving, end);
    }

    // Several quarters in a row take turns.
    void QuadrantAcross(const Numbers& given) { DrawQuadrant({given[0], given[1]}, !isSecond); }

    void QuadrantDown(const Numbers& given) { DrawQuadrant({given[0], given[1]}, isSecond); }

    /// Radii, the angle at which the current point lies on the ellipse, and how far to go.
    void SwingTo(const Numbers& given)
    {
        const Point offset = Ellipse{{}, given[0], given[1]}.At(given[2]);
        const Point from = builder.GetCurrent();
        builder.Follow({{from.x - offset.x, from.y - offset.y}, given[0], given[1]}, given[2], given[3],
                       true);
    }

    NumberScanner scanner;
    ShapeFormulas& formulas;
    ContourBuilder builder;
    std::vector<ShapePart> parts;
    bool isFilled = true;
    bool isStroked = true;
    bool isSecond = false; ///< The set of numbers is the second, fourth, ... of its command.
};

} // namespace

std::optional<std::vector<ShapePart>> ReadEnhancedPath(std::string_view path, ShapeFormulas& formulas)
{
    std::optional<std::vector<ShapePart>> parts = EnhancedPathReader(path, formulas).Read();
    return parts && !parts->empty() ? std::move(parts) : std::nullopt;
}

std::optional<Box> ReadTextArea(std::string_view areas, ShapeFormulas& formulas)
{
    NumberScanner scanner(areas);
    std::array<double, 4> edges{};
    for (std::size_t edge = 0; edge < edges.size(); ++edge)
    {
        const std::optional<double> value = TakeParameter(scanner, formulas, edge % 2 == 0);
        if (!value)
            return std::nullopt;
        edges[edge] = *value;
    }
    return Box{edges[0], edges[1], edges[2] - edges[0], edges[3] - edges[1]};
}

} // namespace ReferenceHost
