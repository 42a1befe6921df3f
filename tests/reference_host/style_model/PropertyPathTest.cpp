#include "host/style_model/PropertyPath.h"

#include "tests/reference_host/style_model/StyleMaking.h"

#include <gtest/gtest.h>

#include <set>

namespace
{

using Styles::MakePath;
using Styles::MakePaths;
using Styles::PropertyKey;
using Styles::PropertyPath;
using Styles::PropertyPaths;

TEST(PropertyPath, OfOneKeyHoldsThatKey)
{
    EXPECT_EQ(MakePath(Key(L"color")), PropertyPath{Key(L"color")});
}

TEST(PropertyPath, IsExtendedAtTheFront)
{
    EXPECT_EQ(MakePath(Key(L"fill"), Path({L"gradient", L"color"})), Path({L"fill", L"gradient", L"color"}));
    EXPECT_EQ(MakePath(Key(L"fill"), PropertyPath()), Path({L"fill"}));
}

TEST(PropertyPath, IsMadeOfEachKeyOfASetInItsOrder)
{
    const std::set<PropertyKey> keys{Key(L"one"), Key(L"two"), Key(L"three")};

    const PropertyPaths paths = MakePaths(keys);

    ASSERT_EQ(paths.size(), 3u);
    auto key = keys.begin();
    for (const PropertyPath& path : paths)
        EXPECT_EQ(path, PropertyPath{*key++});
}

TEST(PropertyPath, IsNotMadeFromAnEmptySet)
{
    EXPECT_TRUE(MakePaths({}).empty());
}

} // namespace
