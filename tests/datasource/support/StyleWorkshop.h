#pragma once

#include "host/style_model/PropertyPath.h"
#include "host/style_model/Style.h"
#include "host/utils/Any.h"
#include "host/utils/OvxStringT.h"
#include "tests/datasource/support/CallLog.h"

#include <memory>
#include <string>
#include <vector>

/// The key with that text.
[[nodiscard]] Styles::PropertyKey Key(const wchar_t* text);

/// The path of these keys.
[[nodiscard]] Styles::PropertyPath Path(std::initializer_list<const wchar_t*> keys);

/// The fill substyle of a style, made when it is missing.
Styles::Style& FillOf(Styles::Style& whole);

/// Makes the styles of a test, names them in its log and keeps them alive. Parents are made before children,
/// so that they go last.
class StyleWorkshop
{
public:
    explicit StyleWorkshop(CallLog& callLog) : log(callLog) {}

    StyleWorkshop(const StyleWorkshop&) = delete;
    StyleWorkshop& operator=(const StyleWorkshop&) = delete;
    ~StyleWorkshop();

    /// A whole style without substyles.
    Styles::Style& Whole(const std::string& name, Styles::Style* parent = nullptr);

    /// A whole style with an empty fill substyle.
    Styles::Style& WithFill(const std::string& name, Styles::Style* parent = nullptr);

    /// A whole style whose fill substyle sets the colour to that number.
    Styles::Style& WithColor(const std::string& name, int color, Styles::Style* parent = nullptr);

    /// A style of any category that stands for itself.
    Styles::Style& OfCategory(const std::string& name, const Styles::PropertyKey& category,
                              Styles::Style* parent = nullptr);

private:
    CallLog& log;
    std::vector<std::unique_ptr<Styles::Style>> styles;
};
