#include "tests/model/StylePool.h"

#include <algorithm>
#include <stdexcept>

namespace LibraryModel
{

namespace
{

std::vector<PooledStyle> MakePool()
{
    std::vector<PooledStyle> pool;
    for (int i = 0; i < kPooledFills; ++i)
    {
        const std::string number = std::to_string(i);
        pool.push_back({"F" + number, "fill", i == 2 ? "A&B" : "Fill " + number});
    }
    pool.push_back({"O0", "outline", "Thin"});
    pool.push_back({"O1", "outline", "Thick"});
    pool.push_back({"C0", "character", "Emphasis"});
    pool.push_back({"C1", "character", "Strong %1"});
    pool.push_back({"G0", "glow", "Moon"});
    for (int i = 0; i < 6; ++i)
        pool.push_back(
            {"S" + std::to_string(i), "style", i == 1 ? "Base & %2" : "Style " + std::to_string(i)});
    return pool;
}

} // namespace

const std::vector<PooledStyle>& StylePool()
{
    static const std::vector<PooledStyle> pool = MakePool();
    return pool;
}

std::size_t PoolIndex(const std::string& name)
{
    const auto found = std::ranges::find(StylePool(), name, &PooledStyle::name);
    if (found == StylePool().end())
        throw std::out_of_range("'" + name + "' is no style of the pool");
    return static_cast<std::size_t>(found - StylePool().begin());
}

} // namespace LibraryModel
