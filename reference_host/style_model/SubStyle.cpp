#include "host/style_model/SubStyle.h"

namespace Styles
{

std::vector<SubStyle> StylesToSubStyles(const std::vector<Style*>& styles)
{
    std::vector<SubStyle> subStyles;
    subStyles.reserve(styles.size());
    for (Style* style : styles)
        subStyles.emplace_back(style);
    return subStyles;
}

std::vector<Style*> SubStylesToStyles(const std::vector<SubStyle>& subStyles)
{
    return {subStyles.begin(), subStyles.end()};
}

} // namespace Styles
