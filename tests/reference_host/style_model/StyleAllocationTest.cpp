#include "host/style_model/Style.h"

#include "reference_host/style_model/StyleHosting.h"
#include "tests/reference_host/style_model/StyleMaking.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <memory>
#include <new>

namespace
{

std::size_t allocations = 0;

void* Allocate(std::size_t size)
{
    ++allocations;
    if (void* const memory = std::malloc(size == 0 ? 1 : size))
        return memory;
    throw std::bad_alloc();
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
    std::free(memory);
}

[[gnu::noinline]] void operator delete[](void* memory) noexcept
{
    std::free(memory);
}

[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

[[gnu::noinline]] void operator delete[](void* memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace
{

using Styles::Style;

/// An object at the end of a chain of styles, with a default style behind all.
class StyleReading : public testing::Test
{
protected:
    StyleReading()
    {
        ReferenceHost::SetDefaultStyle(*object, defaults.get());
        base->SetPathProperty(Path({L"fill", L"color"}), OvxUtils::Any(OvxStringT(L"a colour on the heap")));
        defaults->SetPathProperty(Path({L"fill", L"gradient", L"angle"}), Number(9));
        object->SetSubstyle(Key(L"outline"), nullptr);
        // What a first read may set up once for the process is set up here.
        (void)object->GetProperty(Key(L"unknown"));
    }

    std::unique_ptr<Style> defaults = MakeWhole();
    std::unique_ptr<Style> base = MakeWhole();
    std::unique_ptr<Style> named = MakeWhole(base.get());
    std::unique_ptr<Style> object = MakeWhole(named.get());
    const Style& fill = Sub(*object, L"fill");

    const Styles::PropertyKey color = Key(L"color");
    const Styles::PropertyKey unknown = Key(L"unknown");
    const Styles::PropertyPath colorPath = Path({L"fill", L"color"});
    const Styles::PropertyPath anglePath = Path({L"fill", L"gradient", L"angle"});
    const Styles::PropertyPath missingPath = Path({L"outline", L"dash", L"length"});
};

TEST_F(StyleReading, IsCountedByTheseTests)
{
    const std::size_t before = allocations;

    const Style copy(*object);

    EXPECT_GT(allocations, before);
}

TEST_F(StyleReading, OfAnInheritedValueAllocatesNothing)
{
    const std::size_t before = allocations;

    const bool isEmpty = fill.GetProperty(color).IsEmpty();

    EXPECT_EQ(allocations, before);
    EXPECT_FALSE(isEmpty);
}

TEST_F(StyleReading, AlongAPathAllocatesNothing)
{
    const std::size_t before = allocations;

    const bool isColorEmpty = object->GetPathProperty(colorPath).IsEmpty();
    const bool isAngleEmpty = object->GetPathProperty(anglePath).IsEmpty();

    EXPECT_EQ(allocations, before);
    EXPECT_FALSE(isColorEmpty);
    EXPECT_FALSE(isAngleEmpty);
}

TEST_F(StyleReading, OfAValueThatNothingSetsAllocatesNothing)
{
    const std::size_t before = allocations;

    const bool isUnknownEmpty = fill.GetProperty(unknown).IsEmpty();
    const bool isMissingEmpty = object->GetPathProperty(missingPath).IsEmpty();

    EXPECT_EQ(allocations, before);
    EXPECT_TRUE(isUnknownEmpty);
    EXPECT_TRUE(isMissingEmpty);
}

TEST_F(StyleReading, OfWhatAStyleTellsAllocatesNothing)
{
    Style* const list[] = {base.get()};
    const std::size_t before = allocations;

    const bool overrides = object->DoesOverridePathProperty(colorPath);
    const bool depends = object->HasParentalDependency(list);
    const bool isEmpty = object->IsEmpty();
    const Style* const outline = object->GetSubstyle(unknown, true);

    EXPECT_EQ(allocations, before);
    EXPECT_FALSE(overrides);
    EXPECT_TRUE(depends);
    EXPECT_FALSE(isEmpty);
    EXPECT_EQ(outline, nullptr);
}

} // namespace
