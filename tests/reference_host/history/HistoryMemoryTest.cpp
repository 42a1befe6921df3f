#include "reference_host/history/History.h"

#include "tests/reference_host/history/JournalledStyles.h"

#include <cstddef>
#include <cstdlib>
#include <new>

namespace
{

std::ptrdiff_t liveAllocations = 0;
std::size_t allocationsSoFar = 0;

void* Allocate(std::size_t size)
{
    if (void* const memory = std::malloc(size == 0 ? 1 : size))
    {
        ++liveAllocations;
        ++allocationsSoFar;
        return memory;
    }
    throw std::bad_alloc();
}

void Release(void* memory) noexcept
{
    if (memory != nullptr)
        --liveAllocations;
    std::free(memory);
}

} // namespace

// Every form that the styles or the library behind them may use ends in the first one.
void* operator new(std::size_t size)
{
    return Allocate(size);
}

void* operator new[](std::size_t size)
{
    return Allocate(size);
}

// Not inlined: compilers that see only half of a pair think it mismatched.
[[gnu::noinline]] void operator delete(void* memory) noexcept
{
    Release(memory);
}

[[gnu::noinline]] void operator delete[](void* memory) noexcept
{
    Release(memory);
}

[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept
{
    Release(memory);
}

[[gnu::noinline]] void operator delete[](void* memory, std::size_t) noexcept
{
    Release(memory);
}

namespace
{

class HistoryMemory : public JournalledStyles
{
protected:
    /// Each write in steps of its own within the gesture, as a panel makes them.
    void Drag(int writes)
    {
        for (int value = 1; value <= writes; ++value)
        {
            const ReferenceHost::History::Step group(history, L"Group");
            const ReferenceHost::History::Step write(history, L"Write");
            Write(L"color", value);
            Write(L"angle", value);
            style->SetParent(value % 2 == 0 ? parent.get() : nullptr);
        }
    }
};

} // namespace

TEST_F(HistoryMemory, DoesNotGrowWithTheLengthOfADrag)
{
    history.Open(L"Drag");
    Drag(10);
    const std::ptrdiff_t afterTen = liveAllocations;

    Drag(1000);
    const std::ptrdiff_t afterThousand = liveAllocations;
    history.Close();

    EXPECT_EQ(afterThousand, afterTen);
}

TEST_F(HistoryMemory, IsGivenBackWhenAStepIsCancelled)
{
    Write(L"color", 1);
    ASSERT_TRUE(history.CanUndo());
    Drag(1);
    history.Undo();
    const std::ptrdiff_t before = liveAllocations;

    history.Open(L"Drag");
    Drag(100);
    history.Cancel();

    EXPECT_EQ(liveAllocations, before);
}

TEST_F(HistoryMemory, IsNotNeededToPutAValueBackAfterAllWereReplacedByTheSame)
{
    Write(L"color", 1);
    Write(L"angle", 2);
    history.Open(L"Remove");
    Sub(*style, L"fill").SetProperty(Key(L"angle"), OvxUtils::Any());
    history.Close();
    // The lists of steps have their room from here on.
    history.Undo();
    history.Redo();
    const Styles::Style same(Sub(*style, L"fill"));
    history.Open(L"Replace");
    Sub(*style, L"fill") = same;
    const bool isRecorded = history.Close();
    const std::size_t before = allocationsSoFar;

    history.Undo();

    EXPECT_EQ(allocationsSoFar, before);
    EXPECT_FALSE(isRecorded);
    EXPECT_EQ(Read(L"angle"), Number(2));
}
