#include "tests/model/Comparison.h"

#include "tests/model/Answers.h"

#include <algorithm>
#include <exception>
#include <functional>
#include <iterator>
#include <sstream>

namespace LibraryModel
{

namespace
{

/// How often the library looks for the host's pieces is its own business, and so is whether it asks for the
/// name of no style; what else it asks of them is not.
bool IsMereLookup(const std::string& line)
{
    return line == "app.GetActiveStyleSourceProvider()" || line == "source.GetStyleSheet()" ||
           line == "context.GetDialogService()" || line.ends_with(".GetStyleName(null)");
}

Lines WithoutLookups(const Lines& lines)
{
    Lines kept;
    std::ranges::remove_copy_if(lines, std::back_inserter(kept), IsMereLookup);
    return kept;
}

/// What one side did in one step, line by line.
struct Seen
{
    Lines lines;

    void Add(Lines more) { std::ranges::move(more, std::back_inserter(lines)); }
};

/// Both sides of one run, with how much lived before them.
class Run
{
public:
    Run()
    {
        model.liesBefore = [this](const StyleRef& left, const StyleRef& right)
        { return std::less<const Styles::Style*>()(library.Find(left), library.Find(right)); };
    }

    std::optional<std::string> Compare(const Operation& operation)
    {
        if (operation.isAllowed && !operation.isAllowed(model))
            return std::nullopt;
        Seen expected{{"answers " + operation.onModel(model)}};
        Seen actual{{AnswerOfLibrary(operation)}};
        TakeLines(expected, actual);
        if (operation.isRead)
            ReadAll(expected, actual);
        expected.Add(
            {CountLine(PlainStyle::liveCount - plainStylesBefore, PlainTree::liveCount - plainTreesBefore)});
        actual.Add({CountLine(HostPieces::CountLiveStyles() - stylesBefore, CountTrees() - treesBefore)});
        return Difference(expected, actual);
    }

private:
    static std::size_t CountTrees() { return HostPieces::CountLiveXmlTrees().value_or(0); }

    static std::string CountLine(std::size_t styles, std::size_t trees)
    {
        const bool counts = HostPieces::CountLiveXmlTrees().has_value();
        return "living: " + std::to_string(styles) + " styles, " + std::to_string(counts ? trees : 0) +
               " trees";
    }

    /// An exception is an answer too, if none that the model expects.
    std::string AnswerOfLibrary(const Operation& operation)
    {
        try
        {
            return "answers " + operation.onLibrary(library);
        }
        catch (const std::exception& error)
        {
            return std::string("throws ") + error.what();
        }
    }

    /// The lines that the two hosts wrote since the last time.
    void TakeLines(Seen& expected, Seen& actual)
    {
        expected.Add(WithoutLookups(model.host.lines));
        actual.Add(WithoutLookups(library.log.Lines()));
        model.host.lines.clear();
        library.log.Clear();
        library.modifier.changes.clear();
    }

    void ReadAll(Seen& expected, Seen& actual)
    {
        for (std::size_t i = 0; i < PlainWorld::kPanels; ++i)
        {
            const Lines heading = {"panel" + std::to_string(i) + ":"};
            expected.Add(heading);
            actual.Add(heading);
            expected.Add(AnswersOf(*model.panels[i]));
            actual.Add(AnswersOf(library.Panel(i), library.log));
            TakeLines(expected, actual);
        }
        expected.Add(StyleLines(model));
        actual.Add(StyleLines(library));
        expected.Add(DialogAnswers(model));
        actual.Add(DialogAnswers(library));
    }

    /// The lines around the first that differs.
    static std::optional<std::string> Difference(const Seen& expected, const Seen& actual)
    {
        const auto [first, second] = std::ranges::mismatch(expected.lines, actual.lines);
        if (first == expected.lines.end() && second == actual.lines.end())
            return std::nullopt;

        std::ostringstream message;
        const std::ptrdiff_t place = first - expected.lines.begin();
        for (std::ptrdiff_t i = std::max<std::ptrdiff_t>(0, place - 3); i < place; ++i)
            message << "    both:    " << expected.lines[static_cast<std::size_t>(i)] << "\n";
        for (auto line = first; line != expected.lines.end() && line < first + 4; ++line)
            message << "    model:   " << *line << "\n";
        for (auto line = second; line != actual.lines.end() && line < second + 4; ++line)
            message << "    library: " << *line << "\n";
        return message.str();
    }

    std::size_t stylesBefore = HostPieces::CountLiveStyles();
    std::size_t treesBefore = CountTrees();
    std::size_t plainStylesBefore = PlainStyle::liveCount;
    std::size_t plainTreesBefore = PlainTree::liveCount;
    PlainWorld model;
    LibraryWorld library;
};

} // namespace

std::optional<Discrepancy> FindDiscrepancy(const Sequence& sequence)
{
    Run run;
    for (std::size_t step = 0; step < sequence.size(); ++step)
    {
        if (const std::optional<std::string> difference = run.Compare(sequence[step]))
            return Discrepancy{step, *difference};
    }
    return std::nullopt;
}

} // namespace LibraryModel
