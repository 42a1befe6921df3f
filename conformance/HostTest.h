#pragma once

#include "conformance/HostUnderTest.h"
#include "host/data_binding/IDataContext.h"
#include "host/style_model/IStylesSource.h"
#include "host/style_model/IStylesSourceApp.h"
#include "host/style_model/PropertyKey.h"
#include "host/style_model/PropertyPath.h"
#include "host/style_model/Style.h"
#include "host/utils/Any.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>

namespace HostTests
{

[[nodiscard]] Styles::PropertyKey Key(const wchar_t* text);

[[nodiscard]] Styles::PropertyPath Path(std::initializer_list<const wchar_t*> keys);

[[nodiscard]] inline OvxUtils::Any Number(int value)
{
    return OvxUtils::Any(value);
}

[[nodiscard]] inline OvxUtils::Any Nothing()
{
    return OvxUtils::Any();
}

/// What a style sets itself at a path; empty when it does not.
[[nodiscard]] OvxUtils::Any OwnValue(const Styles::Style& style, const Styles::PropertyPath& path);

/// A change style of a category that holds one property.
[[nodiscard]] std::unique_ptr<Styles::Style> Change(const Styles::PropertyKey& category, const wchar_t* key,
                                                    int value);

/// A test with a host of its own, whose document is open and empty, and whose fills have the properties
/// "type", "color" and "width".
class HostTest : public testing::Test
{
protected:
    HostTest();
    ~HostTest() override;

    /// The style source that is active; the test fails, and all of it with it, when there is none.
    [[nodiscard]] IStylesSource& GetSource() const;

    /// The application's services for styles.
    [[nodiscard]] IStylesSourceApp& GetStylesApp() const;

    /// The application's object-properties context.
    [[nodiscard]] IDataContext& GetContext() const;

    /// The substyle of an object, or of another whole style, made when it is missing.
    static Styles::Style& Part(Styles::Style& whole, const Styles::PropertyKey& category);

    std::unique_ptr<HostUnderTest> host;
};

} // namespace HostTests
