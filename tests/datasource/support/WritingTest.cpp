#include "tests/datasource/support/WritingTest.h"

using namespace Styles;

WritingTest::WritingTest() : transaction(reinterpret_cast<IModifyStyleOverrides*>(&transactionPlace))
{
    source.modifier = &modifier;
    context.hostObject = &hostObject;
    hostObject.applicator = &applicator;
    hostObject.applicatorNumber = 7;
    log.SetName(transaction, "transaction");
}

void WritingTest::InstallApplicator()
{
    panel.SetDataSourceProvider(&context);
    panel.PostConstruct();
    log.Clear();
}

Style& WritingTest::TargetBare(Style* parent, const wchar_t* identifier)
{
    Style& bare = styles.Whole("bare", parent);
    Target(panel, {&bare});
    panel.SetActiveIdentifier(identifier);
    bare.SetSubstyle(panel.category, nullptr);
    log.Clear();
    return bare;
}

std::unique_ptr<Style> WritingTest::Change(int color, const PropertyKey& category)
{
    auto change = std::make_unique<Style>(nullptr, category);
    change->SetProperty(Key(L"color"), OvxUtils::Any(color));
    return change;
}

void WritingTest::WriteColor(int color, const PropertyPaths* overridePaths)
{
    panel.ModifyStyles(Paths({L"color"}), Change(color), overridePaths);
}

std::vector<std::string> WritingTest::Steps() const
{
    return log.CallsOf({"modifier.", "applicator.Modify", "panel.ModifyStyles(paths",
                        "first.ModifyStyles(paths", "second.ModifyStyles(paths"});
}

PropertyPaths Paths(std::initializer_list<const wchar_t*> keys)
{
    PropertyPaths paths;
    for (const wchar_t* key : keys)
        paths.push_back(Path({key}));
    return paths;
}
