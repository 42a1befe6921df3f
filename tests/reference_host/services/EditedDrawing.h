#pragma once

#include "host/data_binding/IAppEventBroadcaster.h"
#include "host/style_model/CategoryNames.h"
#include "reference_host/history/History.h"
#include "reference_host/services/DocumentStylesSource.h"
#include "reference_host/services/IDocumentEditor.h"
#include "reference_host/services/IDocumentStyles.h"
#include "reference_host/services/Idle.h"
#include "reference_host/style_model/StyleHosting.h"
#include "tests/reference_host/document/DrawingDump.h"
#include "tests/reference_host/document/FlatDrawing.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

/// The styles of an open drawing, and how they are changed.
class DrawingDocument : public ReferenceHost::IDocumentStyles, public ReferenceHost::IDocumentEditor
{
public:
    explicit DrawingDocument(ReferenceHost::Drawing& openDrawing) : drawing(openDrawing) {}

    virtual ~DrawingDocument() = default;

    Styles::StyleSheet* GetStyleSheet() override { return &drawing.GetStyleSheet(); }

    Styles::StyleSheet* GetExternalStyleSheet(const OvxStringT& name) override
    {
        return drawing.FindExternalSheet(name);
    }

    std::vector<Styles::Style*> GetDefaultStyles() override { return {&drawing.GetDefaultStyle()}; }

    [[nodiscard]] bool IsHidden(const OvxStringT& name) const override { return drawing.IsHidden(name); }

    [[nodiscard]] OvxStringT GetDisplayName(const OvxStringT& name) const override
    {
        return drawing.GetDisplayName(name);
    }

    /// Objects are known by the addresses of their styles here.
    Styles::Style* GetObjectStyle(std::size_t object) override
    {
        return reinterpret_cast<Styles::Style*>(object);
    }

    static std::size_t NumberOf(Styles::Style* style) { return reinterpret_cast<std::size_t>(style); }

    ReferenceHost::IDocumentEditor* GetEditor() override { return this; }

    ReferenceHost::History& GetHistory() override { return drawing.GetHistory(); }

    Styles::Style* AddStyle(const Styles::PropertyKey& category, const OvxStringT& name) override
    {
        return drawing.AddStyle(category, name);
    }

    bool RenameStyle(const OvxStringT& name, const OvxStringT& newName) override
    {
        return drawing.RenameStyle(name, newName);
    }

private:
    ReferenceHost::Drawing& drawing;
};

/// A drawing and the source that writes to it: three shapes over one named style, of which the first two set
/// the same, and the third another fill; the first has text.
class EditedDrawing : public testing::Test
{
protected:
    /// Leaves no event waiting for other tests.
    ~EditedDrawing() override { ReferenceHost::RunIdle(); }

    static Styles::PropertyKey Key(const wchar_t* text)
    {
        return Styles::PropertyKey(Styles::PooledString<Styles::StringPool>(text));
    }

    static OvxUtils::Any Colour(std::uint8_t red)
    {
        return OvxUtils::Any(CLR_COLORSPEC::FromRgb({red, 0, 0}));
    }

    /// A change style of a category that holds one property.
    static std::unique_ptr<Styles::Style> Change(const wchar_t* category, const wchar_t* key,
                                                 const OvxUtils::Any& value)
    {
        auto change = std::make_unique<Styles::Style>(nullptr, Key(category));
        change->SetProperty(Key(key), value);
        return change;
    }

    /// A change style around another one, as the library wraps what goes to whole styles.
    static std::unique_ptr<Styles::Style> Wrapped(const Styles::Style& change)
    {
        auto wrapper = std::make_unique<Styles::Style>(nullptr, Styles::StyleCategoryName);
        wrapper->SetSubstyle(change.GetCategoryName(), &change);
        return wrapper;
    }

    [[nodiscard]] Styles::Style* Shape(int number)
    {
        return opened.Object(L"1/" + std::to_wstring(number))->GetStyle();
    }

    [[nodiscard]] std::vector<std::string> Dump() { return DumpOf(*opened.drawing); }

    /// Writes the colour of fills as a panel does.
    void WriteColour(const std::vector<Styles::Style*>& targets, std::uint8_t red)
    {
        IMultipleStyleModifier& modifier = *source.GetMultipleStyleModifier();
        modifier.Begin();
        modifier.Modify(targets, {}, {{Key(L"fill"), Key(L"color")}},
                        Wrapped(*Change(L"fill", L"color", Colour(red))), {}, false, true,
                        source.GetTransactionOverrides());
        modifier.End();
    }

    /// Expects that the last step takes back to `before` and brings back what there is now.
    void ExpectExactUndo(const std::vector<std::string>& before)
    {
        const std::vector<std::string> after = Dump();
        EXPECT_NE(after, before);
        EXPECT_TRUE(history.Undo());
        EXPECT_EQ(Dump(), before);
        EXPECT_TRUE(history.Redo());
        EXPECT_EQ(Dump(), after);
    }

    OpenedDrawing opened =
        FlatDrawing()
            .Defaults("<style:graphic-properties draw:fill-color='#999999'/>")
            .Named("style:name='Base'", "<style:graphic-properties draw:fill-color='#110000'/>"
                                        "<style:text-properties fo:font-size='14pt'/>")
            .Named("style:name='Child' style:parent-style-name='Base'")
            .Automatic("graphic", "style:name='gr1' style:parent-style-name='Base'",
                       "<style:graphic-properties draw:fill-color='#220000' svg:stroke-width='1mm'/>"
                       "<style:text-properties fo:font-size='10pt'/>")
            .Automatic("graphic", "style:name='gr2' style:parent-style-name='Base'",
                       "<style:graphic-properties draw:fill-color='#330000'/>")
            .Automatic("text", "style:name='T1'", "<style:text-properties fo:color='#cc0000'/>")
            .Page("<draw:rect draw:style-name='gr1'>"
                  "<text:p>one <text:span text:style-name='T1'>two</text:span></text:p></draw:rect>"
                  "<draw:rect draw:style-name='gr1'/><draw:rect draw:style-name='gr2'/>")
            .Open();
    ReferenceHost::History& history = opened.drawing->GetHistory();
    DrawingDocument document{*opened.drawing};
    ReferenceHost::DocumentStylesSource source{document};
};
