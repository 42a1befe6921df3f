#include "reference_host/history/History.h"

#include "tests/reference_host/history/JournalledStyles.h"

#include <cstddef>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace
{

/// How many values of one style a step may write until it keeps all of them is a few; this is more.
constexpr int kMany = 30;

class ValuesInSteps : public JournalledStyles
{
protected:
    /// All that the style sets itself, by path.
    using Values = std::map<Styles::PropertyPath, OvxUtils::Any>;

    [[nodiscard]] Values ReadAll() const
    {
        Values values;
        for (const Styles::PropertyPath& path : GetOverriddenPropertyPaths(*style))
            values.emplace(path, style->GetPathProperty(path));
        return values;
    }

    void Remove(const wchar_t* key) { Sub(*style, L"fill").SetProperty(Key(key), OvxUtils::Any()); }

    void WriteMany(int offset)
    {
        for (int number = 0; number < kMany; ++number)
            Write((L"value " + std::to_wstring(number)).c_str(), number + offset);
    }

    void ExpectBackAndForth(const Values& before, const Values& after)
    {
        history.Undo();
        EXPECT_EQ(ReadAll(), before);
        history.Redo();
        EXPECT_EQ(ReadAll(), after);
    }

    /// Replaces all that the fill sets.
    void Replace(int value)
    {
        Styles::Style other(nullptr, Key(L"fill"));
        other.SetProperty(Key(L"color"), Number(value));
        Sub(*style, L"fill") = other;
    }
};

} // namespace

TEST_F(ValuesInSteps, AreTakenBackWhenTheyWereSetChangedAndRemoved)
{
    Write(L"color", 1);
    Write(L"angle", 2);
    history.Open(L"Edit");
    Write(L"color", 3);
    Remove(L"angle");
    Write(L"join", 4);
    history.Close();
    const Values after = ReadAll();

    history.Undo();
    const OvxUtils::Any color = Read(L"color");
    const OvxUtils::Any angle = Read(L"angle");
    const bool isJoinSet = !Read(L"join").IsEmpty();
    history.Redo();

    EXPECT_EQ(color, Number(1));
    EXPECT_EQ(angle, Number(2));
    EXPECT_FALSE(isJoinSet);
    EXPECT_EQ(ReadAll(), after);
}

TEST_F(ValuesInSteps, AreTakenBackHoweverManyAStepWrites)
{
    WriteMany(0);
    Write(L"color", 1);
    const Values before = ReadAll();
    history.Open(L"Edit");
    Remove(L"color");
    WriteMany(100);
    Write(L"angle", 2);
    history.Close();
    const Values after = ReadAll();

    ExpectBackAndForth(before, after);
}

TEST_F(ValuesInSteps, AreTakenBackWhenTheInnerStepAloneWroteThem)
{
    Write(L"color", 1);
    const Values before = ReadAll();
    history.Open(L"Gesture");
    Write(L"angle", 2);
    history.Open(L"Write");
    Write(L"angle", 3);
    Write(L"color", 4);
    Write(L"join", 5);
    history.Close();
    history.Close();

    history.Undo();

    EXPECT_EQ(ReadAll(), before);
}

TEST_F(ValuesInSteps, AreTakenBackWhenTheInnerStepReplacedThemAll)
{
    Write(L"color", 1);
    Write(L"angle", 2);
    const Values before = ReadAll();
    history.Open(L"Gesture");
    Remove(L"angle");
    Write(L"join", 3);
    history.Open(L"Restyle");
    Replace(4);
    history.Close();
    history.Close();
    const Values after = ReadAll();

    ExpectBackAndForth(before, after);
}

TEST_F(ValuesInSteps, AreTakenBackWhenManyInnerStepsWroteOneMoreEach)
{
    WriteMany(0);
    const Values before = ReadAll();
    history.Open(L"Gesture");
    for (int number = 0; number < kMany; ++number)
    {
        const ReferenceHost::History::Step inner(history, L"Write");
        Write((L"value " + std::to_wstring(number)).c_str(), -1);
        Write((L"further " + std::to_wstring(number)).c_str(), -1);
    }
    history.Close();

    history.Undo();

    EXPECT_EQ(ReadAll(), before);
}

TEST_F(ValuesInSteps, FindTheirRoomAgainAfterAStepThatReplacedThemAll)
{
    Write(L"color", 1);
    Write(L"angle", 2);
    Write(L"join", 3);
    const Values before = ReadAll();
    history.Open(L"Gesture");
    Remove(L"angle");
    history.Open(L"Restyle");
    Replace(4);
    history.Cancel();
    history.Cancel();

    EXPECT_EQ(ReadAll(), before);
}

/// Writes, removals, replacements and changes of the parent at random, in steps in steps, some of them
/// cancelled.
TEST_F(ValuesInSteps, AreAtEachStepWhatTheyWereThereHoweverOneGoesBackAndForth)
{
    std::mt19937 random(20261122); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same run each time.
    const auto choose = [&random](unsigned count) { return static_cast<int>(random() % count); };
    const auto edit = [&]
    {
        const std::wstring key = L"value " + std::to_wstring(choose(12));
        const int kind = choose(20);
        if (kind == 0)
            Replace(choose(5));
        else if (kind == 1)
            style->SetParent(style->GetParent() == nullptr ? parent.get() : nullptr);
        else if (kind < 8)
            Remove(key.c_str());
        else
            Write(key.c_str(), choose(5));
    };

    std::vector<Values> states{ReadAll()};
    for (int round = 0; round < 300; ++round)
    {
        history.Open(L"Round");
        for (int part = choose(4); part >= 0; --part)
        {
            history.Open(L"Part");
            for (int count = choose(12); count >= 0; --count)
                edit();
            if (choose(4) == 0)
                history.Cancel();
            else
                history.Close();
        }
        edit();
        if (history.Close())
            states.push_back(ReadAll());
        ASSERT_EQ(history.GetStepCount() + 1, states.size());
    }

    for (std::size_t state = states.size() - 1; state > 0; --state)
    {
        history.Undo();
        ASSERT_EQ(ReadAll(), states[state - 1]) << "back to " << state - 1;
    }
    for (std::size_t state = 1; state < states.size(); ++state)
    {
        history.Redo();
        ASSERT_EQ(ReadAll(), states[state]) << "on to " << state;
    }
}
