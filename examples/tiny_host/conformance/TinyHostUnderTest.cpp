// The tiny host as the conformance suite drives it. An integrator writes such a file for a host of their own.

#include "conformance/HostUnderTest.h"

#include "host/style_model/CategoryNames.h"
#include "tiny_host/CategoryProperties.h"
#include "tiny_host/StyleInsides.h"
#include "tiny_host/TinyApplication.h"

#include <deque>
#include <utility>

using namespace HostTests;

namespace
{

constexpr int kNo = 7;

/// Stands in for the dialogs of a program.
class OpenDialogs final : public IDialogService
{
public:
    void ShowDialog(const OvxStringT& key, IDataContext* context) override { open.push_back({key, context}); }

    void CloseDialog(const OvxStringT& key, int /*result*/, int /*reserved*/) override
    {
        std::erase_if(open, [&key](const OpenDialog& each) { return each.key == key; });
    }

    std::vector<OpenDialog> open;
};

class TinyHostUnderTest final : public HostUnderTest
{
public:
    TinyHostUnderTest()
    {
        application.SetActiveDocument(&document);
        document.SetPresetCategory(L"FillPresets", Styles::FillStyleCategoryName);
        application.SetConfirmation(
            [this](const OvxStringT& text, int flags)
            {
                questions.push_back({text, flags});
                return answer;
            });
    }

    ~TinyHostUnderTest() override
    {
        CloseDocument();
        RunIdle();
    }

    IOrvexCmn_App& GetApplication() override { return application; }

    void CloseDocument() override { application.SetActiveDocument(nullptr); }

    void RunIdle() override { TinyHost::Application::RunIdle(); }

    std::optional<std::size_t> CountLiveStyles() override { return TinyHost::CountLiveStyles(); }

    void RegisterProperties(const Styles::PropertyKey& category,
                            const std::vector<Styles::PropertyKey>& properties) override
    {
        TinyHost::RegisterProperties(category, properties);
    }

    Styles::Style* AddNamedStyle(const Styles::PropertyKey& category, const OvxStringT& name) override
    {
        return document.AddStyle(category, name);
    }

    DocumentObject AddObject() override
    {
        const std::size_t number = document.AddObject(nullptr);
        return {document.GetObjectStyle(number), number};
    }

    void Select(const std::vector<DocumentObject>& objects) override
    {
        std::vector<Styles::Style*> styles;
        for (const DocumentObject& object : objects)
            styles.push_back(object.style);
        document.Select(std::move(styles));
    }

    Styles::Style* AddExternalStyle(const OvxStringT& sheetName, const OvxStringT& link) override
    {
        const OvxStringT name(std::to_wstring(++externalStyleCount));
        return document.AddExternalStyle(sheetName, name, link);
    }

    IDataSource* CreateDataSource(const OvxStringT& typeKey) override
    {
        return application.GetContext().Create(typeKey);
    }

    IDataContext* AddContext(IStyleApplicator& applicator, int number) override
    {
        return &contexts.emplace_back(nullptr, &applicator, number);
    }

    std::optional<std::vector<OpenDialog>> GetOpenDialogs() override { return dialogs.open; }

    void AnswerQuestions(int newAnswer) override { answer = newAnswer; }

    std::vector<Question> GetQuestions() override { return questions; }

private:
    OpenDialogs dialogs;
    TinyHost::Application application{&dialogs};
    TinyHost::Document document{application.GetPresets()};
    std::deque<TinyHost::Context> contexts;
    std::size_t externalStyleCount = 0;
    int answer = kNo;
    std::vector<Question> questions;
};

} // namespace

std::unique_ptr<HostUnderTest> HostTests::MakeHost()
{
    return std::make_unique<TinyHostUnderTest>();
}
