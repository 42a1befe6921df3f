#include "host/style_model/CategoryNames.h"

#include "reference_host/style_model/ConstantTexts.h"

namespace ReferenceHost
{

constinit const std::array<Styles::StringPool::Text, static_cast<std::size_t>(ConstantText::Count)>
    kConstantTexts{{{L"style"}, {L"fill"}, {L"outline"}, {L"paragraph"}, {L"character"}, {L"*"}}};

} // namespace ReferenceHost

namespace Styles
{

using ReferenceHost::ConstantKey;
using ReferenceHost::ConstantText;

constinit const PropertyKey PropertyKey::Empty{};
constinit const PropertyKey StyleCategoryName = ConstantKey(ConstantText::Style);
constinit const PropertyKey FillStyleCategoryName = ConstantKey(ConstantText::Fill);
constinit const PropertyKey OutlineStyleCategoryName = ConstantKey(ConstantText::Outline);

PropertyKey GetParagraphStyleCategoryName()
{
    return ConstantKey(ConstantText::Paragraph);
}

PropertyKey GetCharacterStyleCategoryName()
{
    return ConstantKey(ConstantText::Character);
}

} // namespace Styles
