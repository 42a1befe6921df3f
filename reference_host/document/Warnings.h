#pragma once

#include "reference_host/document/StyleRecord.h"

#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace ReferenceHost
{

/// Collects what a reader repaired or passed over: one line for each, none twice.
class Warnings
{
public:
    /// The lines go to `target`, which is borrowed.
    explicit Warnings(std::vector<std::string>& target);

    void Add(std::string text);

    /// About a style of the file: `style "Mid One": ...`, named as people know it.
    void AddAbout(const StyleRecord& style, const std::string& text);

private:
    std::vector<std::string>& lines;
    std::unordered_set<std::string> seen;
};

/// The name of a style as people know it, in UTF-8.
[[nodiscard]] std::string ReadableName(std::string_view encoded);

} // namespace ReferenceHost
