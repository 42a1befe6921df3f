#include "host/style_model/StringPool.h"

#include <gtest/gtest.h>

#include <atomic>
#include <set>
#include <string>
#include <thread>
#include <vector>

namespace
{

using Styles::StringPool;

TEST(StringPool, KeepsOneCopyOfEachText)
{
    const std::wstring text = L"pooled";
    const std::wstring other = L"pooled";

    EXPECT_EQ(StringPool::Intern(text), StringPool::Intern(other));
    EXPECT_NE(StringPool::Intern(text), StringPool::Intern(L"Pooled"));
}

TEST(StringPool, KeepsNothingForTheEmptyText)
{
    EXPECT_EQ(StringPool::Intern(L""), nullptr);
}

TEST(StringPool, KeepsTextsAfterTheOriginalsAreGone)
{
    const StringPool::Text* kept = nullptr;
    {
        const std::wstring text = L"a text that was long enough for the heap";
        kept = StringPool::Intern(text);
    }

    EXPECT_EQ(kept->characters, L"a text that was long enough for the heap");
}

TEST(StringPool, KeepsAddressesWhileItGrows)
{
    const StringPool::Text* const early = StringPool::Intern(L"early");

    for (int i = 0; i < 10000; ++i)
        (void)StringPool::Intern(L"grow " + std::to_wstring(i));

    EXPECT_EQ(StringPool::Intern(L"early"), early);
    EXPECT_EQ(early->characters, L"early");
}

TEST(StringPool, GivesEightThreadsAtOnceTheSameTexts)
{
    constexpr std::size_t kThreads = 8;
    constexpr int kTexts = 500;
    std::vector<std::set<const StringPool::Text*>> seen(kThreads);
    std::atomic<std::size_t> waiting = 0;

    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < kThreads; ++i)
    {
        threads.emplace_back(
            [&, i]
            {
                ++waiting;
                while (waiting < kThreads)
                    std::this_thread::yield();
                for (int text = 0; text < kTexts; ++text)
                    seen[i].insert(StringPool::Intern(L"shared " + std::to_wstring(text)));
            });
    }
    for (std::thread& thread : threads)
        thread.join();

    EXPECT_EQ(seen.front().size(), 500u);
    for (const auto& texts : seen)
        EXPECT_EQ(texts, seen.front());
}

} // namespace
