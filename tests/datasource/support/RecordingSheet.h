#pragma once

#include "host/style_model/StyleSheet.h"
#include "tests/datasource/support/CallLog.h"

#include <set>
#include <string>
#include <utility>
#include <vector>

/// A style sheet that takes down what it is asked and answers from a list that the test fills.
class RecordingSheet final : public Styles::StyleSheet
{
public:
    /// A named style; borrowed from the test.
    struct Entry
    {
        OvxStringT name;
        Styles::Style* style;
    };

    explicit RecordingSheet(CallLog& callLog, std::string name = "sheet")
        : log(callLog), prefix(std::move(name))
    {
    }

    [[nodiscard]] Styles::Style* GetStyle(const OvxStringT& name) const override;
    [[nodiscard]] OvxStringT GetStyleName(const Styles::Style* style) const override;
    [[nodiscard]] std::vector<OvxStringT> GetStyleNames(const Styles::PropertyKey& category) const override;

    /// Answers `base` with "*" behind it, so that the answer can be told from the question.
    [[nodiscard]] OvxStringT GetUnusedStyleName(const OvxStringT& base) const override;

    std::vector<Entry> entries;           ///< In the order of the sheet.
    std::set<OvxStringT> unresolvedNames; ///< Listed, but not found.

private:
    CallLog& log;
    std::string prefix;
};
