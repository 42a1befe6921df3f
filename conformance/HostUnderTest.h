#pragma once

#include "host/data_binding/IDataContext.h"
#include "host/data_binding/IDataSource.h"
#include "host/services/IOrvexCmn_App.h"
#include "host/style_model/IStyleApplicator.h"
#include "host/style_model/PropertyKey.h"
#include "host/style_model/Style.h"
#include "host/utils/OvxStringT.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

namespace HostTests
{

/// An object of the open document.
struct DocumentObject
{
    Styles::Style* style = nullptr; ///< Its own whole style, of the category "style"; owned by the document.
    std::size_t number = 0;         ///< By which the style source knows it where objects are handed in.
};

/// A dialog that a person would see now.
struct OpenDialog
{
    OvxStringT key;
    IDataContext* context = nullptr; ///< On whose data it was shown.

    friend bool operator==(const OpenDialog&, const OpenDialog&) = default;
};

/// A question that was put to the person.
struct Question
{
    OvxStringT text;
    int flags = 0;

    friend bool operator==(const Question&, const Question&) = default;
};

/// What the tests need of a host and cannot reach through the headers of host/.
///
/// The integrator of a host derives from this class and defines MakeHost(). Making one starts an application
/// with one open document; its end closes the document, ends the application and takes back whatever would
/// reach the next test. Each test makes one of its own, and there is never more than one. Everything returned
/// is borrowed and lives as long as this object.
///
/// The document is empty at first: no named styles and no objects, default styles that set nothing, nothing
/// selected. There are no presets, and none of the person's own are touched: they lie in memory or in a
/// folder of the test. Applying presets of the category "FillPresets" concerns the fill substyle.
///
/// What a host need not offer may be answered with null or std::nullopt; the tests that need it are skipped
/// and say so.
class HostUnderTest
{
public:
    HostUnderTest() = default;
    HostUnderTest(const HostUnderTest&) = delete;
    HostUnderTest& operator=(const HostUnderTest&) = delete;

    /// Closes the document and ends the application.
    virtual ~HostUnderTest();

    // The application

    /// What the library would be initialised with. The document is the active one.
    virtual IOrvexCmn_App& GetApplication() = 0;

    /// Leaves the application without an active document. Nothing is asked of the document afterwards, but
    /// what it handed out may still be held.
    virtual void CloseDocument() = 0;

    /// One idle step: delivers the application-wide events that wait, and ends the data sources whose Destroy
    /// was put off.
    virtual void RunIdle() = 0;

    /// How many styles live in the process, substyles included; std::nullopt when the host does not count
    /// them.
    virtual std::optional<std::size_t> CountLiveStyles() = 0;

    // Styles

    /// Makes the properties of a category known; several calls add up. The category is one of "style",
    /// "fill", "outline", "paragraph" and "character". Needs no taking back.
    virtual void RegisterProperties(const Styles::PropertyKey& category,
                                    const std::vector<Styles::PropertyKey>& properties) = 0;

    /// Adds a named style behind the others of the document's sheet: without values, and without a parent.
    /// The category is one of those above; the name is neither empty nor taken.
    virtual Styles::Style* AddNamedStyle(const Styles::PropertyKey& category, const OvxStringT& name) = 0;

    /// Adds an object whose own style sets nothing and has no parent; where there are default styles, its
    /// effective values fall back to the first of them. A test needs ten at most.
    virtual DocumentObject AddObject() = 0;

    /// Makes these the selected ones, which is what IStylesSource::CreateStyle and ApplyStyle are about: the
    /// whole styles of objects.
    virtual void Select(const std::vector<DocumentObject>& objects) = 0;

    /// Makes a whole style of a sheet outside the document, with a link by which it may be edited; null when
    /// the host has no such sheets.
    virtual Styles::Style* AddExternalStyle(const OvxStringT& sheetName, const OvxStringT& link) = 0;

    // Data sources

    /// Creates a data source with the factory that is registered under `typeKey`, in the application's
    /// object-properties context, which finds it by this key from then on.
    ///
    /// @returns the data source, which ends by its Destroy or with this object; null when there is no such
    ///          factory.
    virtual IDataSource* CreateDataSource(const OvxStringT& typeKey) = 0;

    /// Makes a further data context, whose host object offers `applicator` under `number`; null when hosts of
    /// this kind have no applicators. The applicator is borrowed and outlives this object.
    virtual IDataContext* AddContext(IStyleApplicator& applicator, int number) = 0;

    // The person

    /// The dialogs that are open, in the order in which they were shown; std::nullopt when the host has no
    /// dialogs, and the object-properties context therefore no dialog service.
    virtual std::optional<std::vector<OpenDialog>> GetOpenDialogs() = 0;

    /// Answers the questions to come: 6 for yes, 7 for no. Without it, they are answered 7.
    virtual void AnswerQuestions(int answer) = 0;

    /// The questions that were asked, in order.
    virtual std::vector<Question> GetQuestions() = 0;
};

/// Starts the host that is tested. Defined by its integrator; never null.
[[nodiscard]] std::unique_ptr<HostUnderTest> MakeHost();

/// Runs all tests, with the arguments of GoogleTest. The library brings a main that calls nothing else, for
/// programs without one of their own.
///
/// @returns what main returns: 0 when no test failed.
int Run(int argc, char** argv);

} // namespace HostTests
