#pragma once

#include "host/style_model/CategoryNames.h"
#include "tests/datasource/support/HostedTest.h"
#include "tests/datasource/support/RecordingApplicator.h"
#include "tests/datasource/support/RecordingContext.h"
#include "tests/datasource/support/RecordingEvents.h"
#include "tests/datasource/support/RecordingModifier.h"

#include <memory>

/// A host that also takes down what is written: by its modifier, its default styles, its groups, its events,
/// and by an applicator once that is installed.
class WritingTest : public HostedTest
{
protected:
    WritingTest();

    /// Gives the panel a context whose host object offers the applicator under the number 7.
    void InstallApplicator();

    /// Hands the panel one whole style that does not hold the panel's substyle, and makes `identifier` the
    /// active one. The substyle is taken out afterwards: new targets are asked for a title, which makes it.
    Styles::Style& TargetBare(Styles::Style* parent, const wchar_t* identifier);

    /// A change as a panel makes it: one colour, in a style of `category` without a parent.
    [[nodiscard]] static std::unique_ptr<Styles::Style>
    Change(int color, const Styles::PropertyKey& category = Styles::FillStyleCategoryName);

    /// Hands the panel's router a change of the colour at the path "color".
    void WriteColor(int color, const Styles::PropertyPaths* overridePaths = nullptr);

    /// Everything that was written, in order and without arguments: modifier, applicator and the routers of
    /// panels.
    [[nodiscard]] std::vector<std::string> Steps() const;

    RecordingModifier modifier{log};
    RecordingHostObject hostObject{log};
    RecordingContext context{log};
    RecordingApplicator applicator{log};
    RecordingEvents events{log};

    /// What a running transaction overrides; "transaction" in lines. Handed on, never looked into.
    Styles::IModifyStyleOverrides* transaction;

private:
    char transactionPlace = 0;
};

/// The paths of one key each.
[[nodiscard]] Styles::PropertyPaths Paths(std::initializer_list<const wchar_t*> keys);
