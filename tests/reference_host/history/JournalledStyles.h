#pragma once

#include "reference_host/history/History.h"
#include "reference_host/style_model/StyleHosting.h"
#include "tests/reference_host/style_model/StyleMaking.h"

#include <gtest/gtest.h>

#include <memory>

/// A whole style and one that it can inherit from, both of a document with a history.
class JournalledStyles : public testing::Test
{
protected:
    JournalledStyles()
    {
        ReferenceHost::SetJournal(*style, &history);
        ReferenceHost::SetJournal(*parent, &history);
    }

    void Write(const wchar_t* key, int value) { Sub(*style, L"fill").SetProperty(Key(key), Number(value)); }

    [[nodiscard]] OvxUtils::Any Read(const wchar_t* key) const
    {
        return style->GetPathProperty(Path({L"fill", key}));
    }

    ReferenceHost::History history;
    std::unique_ptr<Styles::Style> parent = MakeWhole();
    std::unique_ptr<Styles::Style> style = MakeWhole();
};
