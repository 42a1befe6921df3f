#include "host/style_model/CategoryNames.h"

#include "reference_host/style_model/ConstantTexts.h"

namespace ReferenceHost
{

constinit const std::array<Styles::StringPool::Text, kConstantTextCount> kConstantTexts{
    {{L"style"}, {L"fill"}, {L"outline"}, {L"paragraph"}, {L"character"}}};

} // namespace ReferenceHost

namespace Styles
{

namespace
{

constexpr PropertyKey ConstantKey(std::size_t index)
{
    return PooledString<StringPool>(&ReferenceHost::kConstantTexts[index]);
}

} // namespace

constinit const PropertyKey PropertyKey::Empty{};
constinit const PropertyKey StyleCategoryName = ConstantKey(0);
constinit const PropertyKey FillStyleCategoryName = ConstantKey(1);
constinit const PropertyKey OutlineStyleCategoryName = ConstantKey(2);

PropertyKey GetParagraphStyleCategoryName()
{
    return ConstantKey(3);
}

PropertyKey GetCharacterStyleCategoryName()
{
    return ConstantKey(4);
}

} // namespace Styles
