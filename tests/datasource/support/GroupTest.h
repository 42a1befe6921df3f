#pragma once

#include "tests/datasource/support/WritingTest.h"

/// A panel on the default styles of the document, of which there is one.
class GroupTest : public WritingTest
{
protected:
    GroupTest();

    /// Writes one value as a row of the panel does.
    void WriteValue(const wchar_t* key, int value);

    /// Writes the value 9 at ordinary and at override paths, in one change.
    void WriteBoth(const Styles::PropertyPaths& paths, const Styles::PropertyPaths& overridePaths);

    /// Commits the group, and gives the calls of the router that this leads to.
    std::vector<std::string> Commit();

    Styles::Style& defaults = styles.WithColor("defaults", 1);
};

/// The paths in the order in which a group hands them on.
[[nodiscard]] Styles::PropertyPaths Sorted(Styles::PropertyPaths paths);
