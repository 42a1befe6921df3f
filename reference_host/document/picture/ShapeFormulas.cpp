#include "reference_host/document/picture/ShapeFormulas.h"

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

/// How deep formulas may go into each other and into brackets: more than any drawing needs.
constexpr int kDeepest = 64;

struct Function
{
    std::string_view name;
    std::size_t arguments;
    double (*apply)(const std::array<double, 3>& given);
};

constexpr std::array<Function, 10> kFunctions{{
    {"abs", 1, [](const std::array<double, 3>& given) { return std::abs(given[0]); }},
    {"sqrt", 1, [](const std::array<double, 3>& given) { return std::sqrt(given[0]); }},
    {"sin", 1, [](const std::array<double, 3>& given) { return std::sin(given[0]); }},
    {"cos", 1, [](const std::array<double, 3>& given) { return std::cos(given[0]); }},
    {"tan", 1, [](const std::array<double, 3>& given) { return std::tan(given[0]); }},
    {"atan", 1, [](const std::array<double, 3>& given) { return std::atan(given[0]); }},
    {"atan2", 2, [](const std::array<double, 3>& given) { return std::atan2(given[0], given[1]); }},
    {"min", 2, [](const std::array<double, 3>& given) { return std::min(given[0], given[1]); }},
    {"max", 2, [](const std::array<double, 3>& given) { return std::max(given[0], given[1]); }},
    {"if", 3, [](const std::array<double, 3>& given) { return given[0] > 0 ? given[1] : given[2]; }},
}};

/// Calculates one formula.
class FormulaReader
{
public:
    FormulaReader(ShapeFormulas& all, std::string_view formula) : formulas(all), scanner(formula) {}

    std::optional<double> Read()
    {
        const std::optional<double> value = ReadSum();
        return scanner.Peek() == '\0' ? value : std::nullopt;
    }

private:
    using Value = std::optional<double>;

    Value ReadSum()
    {
        Value sum = ReadProduct();
        while (sum && (scanner.Peek() == '+' || scanner.Peek() == '-'))
        {
            const bool isPlus = scanner.Take() == '+';
            const Value next = ReadProduct();
            sum = next ? Value(isPlus ? *sum + *next : *sum - *next) : std::nullopt;
        }
        return sum;
    }

    Value ReadProduct()
    {
        Value product = ReadSigned();
        while (product && (scanner.Peek() == '*' || scanner.Peek() == '/'))
        {
            const bool isTimes = scanner.Take() == '*';
            const Value next = ReadSigned();
            product = next ? Value(isTimes ? *product * *next : *product / *next) : std::nullopt;
        }
        return product;
    }

    Value ReadSigned()
    {
        bool isNegative = false;
        while (scanner.Peek() == '-' || scanner.Peek() == '+')
            isNegative = (scanner.Take() == '-') != isNegative;
        const Value value = ReadSimple();
        return value && isNegative ? Value(-*value) : value;
    }

    Value ReadSimple()
    {
        switch (scanner.Peek())
        {
        case '(':
            scanner.Take();
            return ReadBracket();
        case '?':
            scanner.Take();
            return formulas.Evaluate(scanner.TakeWord());
        case '$':
            scanner.Take();
            return ReadModifier();
        default:
            break;
        }
        if (const Value number = scanner.TakeNumber())
            return number;
        return ReadWord(scanner.TakeWord());
    }

    Value ReadModifier()
    {
        const std::optional<std::size_t> index = scanner.TakeIndex();
        return index ? formulas.GetModifier(*index) : std::nullopt;
    }

    /// What is between brackets, of which the first was taken.
    Value ReadBracket()
    {
        if (++depth > kDeepest)
            return std::nullopt;
        const Value value = ReadSum();
        --depth;
        return scanner.Take() == ')' ? value : std::nullopt;
    }

    Value ReadWord(std::string_view word)
    {
        const auto* const function = std::ranges::find(kFunctions, word, &Function::name);
        if (function == kFunctions.end())
            return formulas.FindKeyword(word);
        if (scanner.Take() != '(' || ++depth > kDeepest)
            return std::nullopt;
        std::array<double, 3> given{};
        for (std::size_t index = 0; index < function->arguments; ++index)
        {
            const Value argument = ReadSum();
            if (!argument)
                return std::nullopt;
            given[index] = *argument;
        }
        --depth;
        return scanner.Take() == ')' ? Value(function->apply(given)) : std::nullopt;
    }

    ShapeFormulas& formulas;
    NumberScanner scanner; ///< Passes over the commas between arguments, too.
    int depth = 0;
};

} // namespace

void ShapeFormulas::Add(std::string_view name, std::string_view formula)
{
    equations.try_emplace(std::string(name), Equation{std::string(formula), std::nullopt, false});
}

std::optional<double> ShapeFormulas::Evaluate(std::string_view name)
{
    const auto found = equations.find(name);
    if (found == equations.end() || depth >= kDeepest)
        return std::nullopt;
    Equation& equation = found->second;
    if (!equation.isKnown)
    {
        // Known from here on, so that an equation that needs itself finds no value.
        equation.isKnown = true;
        equation.value = Calculate(equation.formula);
    }
    return equation.value;
}

std::optional<double> ShapeFormulas::Calculate(std::string_view formula)
{
    ++depth;
    std::optional<double> value = FormulaReader(*this, formula).Read();
    --depth;
    if (value && !std::isfinite(*value))
        value.reset();
    return value;
}

std::optional<double> ShapeFormulas::GetModifier(std::size_t index) const
{
    return index < surroundings.modifiers.size() ? std::optional(surroundings.modifiers[index])
                                                 : std::nullopt;
}

double ShapeFormulas::PlaceOf(double number, bool isAcross) const
{
    if (!surroundings.writtenEdges)
        return number;
    const Point edges = surroundings.viewBox.At(1, 1);
    if (isAcross)
        return number == surroundings.writtenEdges->x ? edges.x : number;
    return number == surroundings.writtenEdges->y ? edges.y : number;
}

std::optional<double> ShapeFormulas::FindKeyword(std::string_view word) const
{
    const Box& box = surroundings.viewBox;
    const std::array<std::pair<std::string_view, double>, 13> keywords{
        {{"left", box.left},
         {"top", box.top},
         {"right", box.left + box.width},
         {"bottom", box.top + box.height},
         {"width", box.width},
         {"height", box.height},
         {"logwidth", surroundings.shapeWidth},
         {"logheight", surroundings.shapeHeight},
         {"xstretch", box.left},
         {"ystretch", box.top},
         {"hasfill", 1},
         {"hasstroke", 1},
         {"pi", std::numbers::pi}}};
    for (const auto& [name, value] : keywords)
    {
        if (name == word)
            return value;
    }
    return std::nullopt;
}

} // namespace ReferenceHost
