#include "tests/datasource/support/SiblingWritingTest.h"

SiblingWritingTest::SiblingWritingTest()
{
    Target(first, {&FillOf(a)});
    Target(second, {&FillOf(b)});
    panel.RegisterSiblingDS(&first);
    panel.RegisterSiblingDS(&second);
    Target(panel, {&FillOf(own)});
    log.Clear();
}

std::vector<std::string> SiblingWritingTest::Entered() const
{
    return log.CallsOf({"panel.ModifyStyles(paths", "first.ModifyStyles(paths", "second.ModifyStyles(paths"});
}

std::vector<std::string> SiblingWritingTest::Written() const
{
    std::vector<std::string> targets;
    for (const RecordedChange& change : modifier.changes)
        targets.push_back(change.targets);
    return targets;
}
