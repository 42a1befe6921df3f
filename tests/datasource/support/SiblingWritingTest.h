#pragma once

#include "tests/datasource/support/WritingTest.h"

/// Two panels tied to the first, each with a target of its own that the first shows too.
class SiblingWritingTest : public WritingTest
{
protected:
    SiblingWritingTest();

    /// Which routers were entered, in order.
    [[nodiscard]] std::vector<std::string> Entered() const;

    /// The targets of each change that reached the modifier, in order.
    [[nodiscard]] std::vector<std::string> Written() const;

    Styles::Style& own = styles.WithFill("own");
    Styles::Style& a = styles.WithFill("a");
    Styles::Style& b = styles.WithFill("b");
    RecordingPanel first{log, "first"};
    RecordingPanel second{log, "second"};
};
