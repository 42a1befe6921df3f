// Reads the order of the data source's virtual operations out of the compiled class: the table that the
// library carries, whose places the dynamic linker names. Panel modules that were built before depend on that
// order.

#include "datasource/BaseStylePropertiesDatasource.h"

#include <cxxabi.h>
#include <dlfcn.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace
{

/// What one place of the table holds, by address.
using Place = void*;

void ReplaceAll(std::string& text, std::string_view from, std::string_view to)
{
    for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
}

/// A signature with the recurring types by their short names, and without the class in front.
std::string Shortened(std::string signature)
{
    // Inner types first: each row may use the short names of those above.
    constexpr std::array<std::pair<std::string_view, std::string_view>, 11> rows{{
        {" >", ">"},
        {"BaseStylePropertiesDatasource::", ""},
        {"std::vector<Styles::PropertyKey, std::allocator<Styles::PropertyKey>>", "Path"},
        {"std::vector<Path, std::allocator<Path>>", "Paths"},
        {"std::set<Path, std::less<Path>, std::allocator<Path>>", "PathSet"},
        {"std::vector<Styles::Style*, std::allocator<Styles::Style*>>", "StyleList"},
        {"std::map<Styles::Style*, unsigned long, std::less<Styles::Style*>, "
         "std::allocator<std::pair<Styles::Style* const, unsigned long>>>",
         "ObjectMap"},
        {"std::unique_ptr<Styles::Style, std::default_delete<Styles::Style>>", "OwnedStyle"},
        {"Styles::PropertyKey", "Key"},
        {"OvxUtils::Any", "Any"},
        {"OvxWideString", "Text"},
    }};
    for (const auto& [from, to] : rows)
        ReplaceAll(signature, from, to);
    return signature;
}

/// The operation that starts at `place`, as it is declared; empty when none starts there.
std::string NameOf(Place place)
{
    Dl_info found{};
    if (dladdr(place, &found) == 0 || found.dli_sname == nullptr || found.dli_saddr != place)
        return {};

    int status = 0;
    const std::unique_ptr<char, decltype(&std::free)> name(
        abi::__cxa_demangle(found.dli_sname, nullptr, nullptr, &status), &std::free);
    return status == 0 ? Shortened(name.get()) : std::string(found.dli_sname);
}

/// The operations of the table that `object` points to at its very start, to the first place that names none.
std::vector<std::string> OperationsOf(const BaseStylePropertiesDatasource& object)
{
    const Place* table = *reinterpret_cast<const Place* const*>(&object);
    std::vector<std::string> operations;
    for (std::string name = NameOf(*table); !name.empty(); name = NameOf(*++table))
        operations.push_back(name);
    return operations;
}

/// What panel modules were built for: the operations 1 to 20, then what the compiler adds.
const std::vector<std::string> kBinaryInterface{
    "ModifyStyles(OwnedStyle, Paths const*) const", // 1
    "GetTargetStyle(unsigned long) const",
    "GetNumTargetStyles() const",
    "HasTargets() const",
    "GetSectionTitle()", // 5
    "SetTargetStyle(StyleList const&, bool, Path const&, PathSet const&)",
    "SetObjectStyles(ObjectMap const&)",
    "PresetCategoryName() const",
    "ModifyStyles(Paths const&, OwnedStyle, Paths const*) const",
    "StartGroupModify()", // 10
    "EndGroupModify(bool)",
    "GetActivePropertyState(Text const&) const",
    "DoesOverrideProperty(Styles::Style*, Path const&) const",
    "ClearProperties(Paths const&) const",
    "SetNoParent(IStylesSource*, Styles::Style*) const", // 15
    "WriteTarget(Key const&, Any const&, Key const*, Any const*) const",
    "WriteToDefault(Text, Key const&, Any const&) const",
    "GetStyleCategoryProperties(Styles::Style*) const",
    "GetCategory() const",
    "GetTransactionOverrides() const",  // 20
    "~BaseStylePropertiesDatasource()", // ends the object
    "~BaseStylePropertiesDatasource()", // ends it and frees its memory
    "PostConstruct()",
};

TEST(DataSourceOperations, StandInTheOrderOfTheBinaryInterface)
{
    const BaseStylePropertiesDatasource dataSource;

    EXPECT_THAT(OperationsOf(dataSource), testing::ElementsAreArray(kBinaryInterface));
}

/// The class that declares the operation which a pointer to member of that type names.
template <class Operation>
struct DeclaredBy;

template <class Signature, class Class>
struct DeclaredBy<Signature Class::*> : std::type_identity<Class>
{
};

template <auto operation>
using DeclaringClass = typename DeclaredBy<decltype(operation)>::type;

TEST(DataSourceOperations, OverrideNoneOfTheFrameworks)
{
    using DataSource = BaseStylePropertiesDatasource;

    EXPECT_TRUE((std::is_same_v<DeclaringClass<&DataSource::GetDynamicDelegate>, IReflectable>));
    EXPECT_TRUE((std::is_same_v<DeclaringClass<&DataSource::GetDynamicType>, IReflectable>));
    EXPECT_TRUE((std::is_same_v<DeclaringClass<&DataSource::GetDataContext>, DataSourceImpl>));
    EXPECT_TRUE((std::is_same_v<DeclaringClass<&DataSource::SetDataSourceProvider>, DataSourceImpl>));
    EXPECT_TRUE((std::is_same_v<DeclaringClass<&DataSource::Destroy>, DataSourceImpl>));
}

TEST(DataSourceOperations, OverridePostConstruct)
{
    EXPECT_TRUE((std::is_same_v<DeclaringClass<&BaseStylePropertiesDatasource::PostConstruct>,
                                BaseStylePropertiesDatasource>));
}

/// Counts how often a derived data source was ended.
class CountedPanel final : public BaseStylePropertiesDatasource
{
public:
    explicit CountedPanel(int& ended) : count(ended) {}

    ~CountedPanel() override { ++count; }

private:
    int& count;
};

template <class Part>
class DataSourcePart : public testing::Test
{
};

using DataSourceParts = testing::Types<IReflectable, IBroadcaster, OvxUtils::PostConstructible, IDataSource>;
TYPED_TEST_SUITE(DataSourcePart, DataSourceParts);

TYPED_TEST(DataSourcePart, EndsTheWholeObject)
{
    int ended = 0;
    std::unique_ptr<TypeParam> part = std::make_unique<CountedPanel>(ended);

    part.reset();

    EXPECT_EQ(ended, 1);
}

TEST(DataSourceOperations, BelongToTheLibrary)
{
    const BaseStylePropertiesDatasource dataSource;
    const Place* table = *reinterpret_cast<const Place* const*>(&dataSource);

    Dl_info found{};
    ASSERT_NE(dladdr(*table, &found), 0);

    EXPECT_THAT(found.dli_fname, testing::HasSubstr("libstyleproperties.so"));
}

TEST(DataSourceOperations, BeginWithThoseOfTheModifyStylesInterface)
{
    const BaseStylePropertiesDatasource dataSource;

    const IGetModifyStyles* interface = &dataSource;

    EXPECT_EQ(static_cast<const void*>(interface), static_cast<const void*>(&dataSource));
}

} // namespace
