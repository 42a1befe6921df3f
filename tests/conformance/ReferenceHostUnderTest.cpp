// The reference host as the conformance tests drive it: its application with a small drawing open.

#include "conformance/HostUnderTest.h"

#include "reference_host/document/DrawingObject.h"
#include "reference_host/history/History.h"
#include "reference_host/services/Application.h"
#include "reference_host/services/DataContext.h"
#include "reference_host/services/DocumentStylesSource.h"
#include "reference_host/services/HostObject.h"
#include "reference_host/services/IDialogFrontEnd.h"
#include "reference_host/services/IDocumentEditor.h"
#include "reference_host/services/IDocumentStyles.h"
#include "reference_host/services/Idle.h"
#include "reference_host/style_model/CategoryRegistry.h"
#include "reference_host/style_model/StyleHosting.h"
#include "tests/reference_host/document/FlatDrawing.h"
#include "tests/reference_host/document/ScratchFolder.h"

#include "host/style_model/CategoryNames.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

using namespace HostTests;

namespace
{

constexpr const char* kConfigurationVariable = "STYLEPROPS_CONFIG_DIR";

/// More than any test asks for.
constexpr int kObjectCount = 12;

std::string DrawingWithoutStyles()
{
    std::string shapes;
    for (int i = 0; i < kObjectCount; ++i)
        shapes += "<draw:rect/>";
    return FlatDrawing().Defaults("").Page(shapes).Text();
}

/// The person's configuration in a folder of the test.
class OwnConfiguration
{
public:
    OwnConfiguration() { setenv(kConfigurationVariable, folder.GetPath().c_str(), 1); }

    OwnConfiguration(const OwnConfiguration&) = delete;
    OwnConfiguration& operator=(const OwnConfiguration&) = delete;

    ~OwnConfiguration() { unsetenv(kConfigurationVariable); }

private:
    ScratchFolder folder;
};

/// A drawing as programs open it: its styles, and how they are changed. An object's number is its place.
class OpenDrawing : public ReferenceHost::IDocumentStyles, public ReferenceHost::IDocumentEditor
{
public:
    virtual ~OpenDrawing() = default;

    Styles::StyleSheet* GetStyleSheet() override { return &GetDrawing().GetStyleSheet(); }

    std::vector<Styles::Style*> GetDefaultStyles() override { return {&GetDrawing().GetDefaultStyle()}; }

    [[nodiscard]] bool IsHidden(const OvxStringT& name) const override { return GetDrawing().IsHidden(name); }

    [[nodiscard]] OvxStringT GetDisplayName(const OvxStringT& name) const override
    {
        return GetDrawing().GetDisplayName(name);
    }

    Styles::Style* GetObjectStyle(std::size_t object) override
    {
        std::deque<ReferenceHost::DrawingObject>& objects = GetDrawing().GetObjects();
        return object < objects.size() ? objects[object].GetStyle() : nullptr;
    }

    ReferenceHost::IDocumentEditor* GetEditor() override { return this; }

    ReferenceHost::History& GetHistory() override { return GetDrawing().GetHistory(); }

    Styles::Style* AddStyle(const Styles::PropertyKey& category, const OvxStringT& name) override
    {
        return GetDrawing().AddStyle(category, name);
    }

    bool RenameStyle(const OvxStringT& name, const OvxStringT& newName) override
    {
        return GetDrawing().RenameStyle(name, newName);
    }

private:
    [[nodiscard]] ReferenceHost::Drawing& GetDrawing() const { return *opened.drawing; }

    OpenedDrawing opened = OpenText(DrawingWithoutStyles());
};

/// Stands in for a window and the person before it.
class Person final : public ReferenceHost::IDialogFrontEnd
{
public:
    void ShowDialog(const OvxStringT& key, IDataContext* context) override { open.push_back({key, context}); }

    void CloseDialog(const OvxStringT& key, bool /*isAccepted*/) override
    {
        std::erase_if(open, [&](const OpenDialog& each) { return each.key == key; });
    }

    int Confirm(const OvxStringT& text, int flags) override
    {
        questions.push_back({text, flags});
        return answer;
    }

    std::vector<OpenDialog> open;
    int answer = ReferenceHost::kAnswerNo;
    std::vector<Question> questions;
};

class ReferenceHostUnderTest final : public HostUnderTest
{
public:
    ReferenceHostUnderTest()
    {
        application.GetDialogs().SetFrontEnd(&person);
        application.OpenDocument(&source, &document);
        application.SetObjectPropertiesContext(&context);
        source.SetPresetKeeper(&application.GetPresets());
        source.SetPresetCategory(L"FillPresets", Styles::FillStyleCategoryName);
    }

    ~ReferenceHostUnderTest() override
    {
        application.SetObjectPropertiesContext(nullptr);
        application.CloseDocument();
        ReferenceHost::RunIdle();
    }

    IOrvexCmn_App& GetApplication() override { return application; }

    void CloseDocument() override { application.CloseDocument(); }

    void RunIdle() override { ReferenceHost::RunIdle(); }

    std::optional<std::size_t> CountLiveStyles() override { return ReferenceHost::LiveStyleCount(); }

    void RegisterProperties(const Styles::PropertyKey& category,
                            const std::vector<Styles::PropertyKey>& properties) override
    {
        ReferenceHost::CategoryRegistry::GetInstance().RegisterProperties(category, properties);
    }

    Styles::Style* AddNamedStyle(const Styles::PropertyKey& category, const OvxStringT& name) override
    {
        return document.AddStyle(category, name);
    }

    DocumentObject AddObject() override
    {
        const std::size_t number = objectCount++;
        return {document.GetObjectStyle(number), number};
    }

    void Select(const std::vector<DocumentObject>& objects) override
    {
        std::vector<Styles::Style*> styles;
        for (const DocumentObject& object : objects)
            styles.push_back(object.style);
        source.SetSelectedStyles(std::move(styles));
    }

    Styles::Style* AddExternalStyle(const OvxStringT& sheetName, const OvxStringT& link) override
    {
        external.push_back(std::make_unique<Styles::Style>(nullptr, Styles::StyleCategoryName));
        ReferenceHost::SetExternalSheet(*external.back(), sheetName, link);
        return external.back().get();
    }

    IDataSource* CreateDataSource(const OvxStringT& typeKey) override
    {
        return context.CreateDataSource(typeKey);
    }

    IDataContext* AddContext(IStyleApplicator& applicator, int number) override
    {
        auto& hostObject = *hostObjects.emplace_back(std::make_unique<ReferenceHost::HostObject>());
        hostObject.SetStyleApplicator(&applicator, number);
        contexts.push_back(std::make_unique<ReferenceHost::DataContext>(&hostObject, nullptr));
        return contexts.back().get();
    }

    std::optional<std::vector<OpenDialog>> GetOpenDialogs() override { return person.open; }

    void AnswerQuestions(int answer) override { person.answer = answer; }

    std::vector<Question> GetQuestions() override { return person.questions; }

private:
    OwnConfiguration configuration;
    std::vector<std::unique_ptr<Styles::Style>> external;
    OpenDrawing document;
    ReferenceHost::DocumentStylesSource source{document};
    std::size_t objectCount = 0;
    Person person;
    ReferenceHost::Application application;
    ReferenceHost::HostObject hostObjectOfContext;
    std::vector<std::unique_ptr<ReferenceHost::HostObject>> hostObjects;
    std::vector<std::unique_ptr<ReferenceHost::DataContext>> contexts;
    ReferenceHost::DataContext context{&hostObjectOfContext, &application.GetDialogs()};
};

} // namespace

std::unique_ptr<HostUnderTest> HostTests::MakeHost()
{
    return std::make_unique<ReferenceHostUnderTest>();
}
