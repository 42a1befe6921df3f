#pragma once

#include "host/services/IOrvexCmn_App.h"
#include "host/style_model/IStyleSourceProvider.h"
#include "host/style_model/IStylesSource.h"
#include "host/style_model/IStylesSourceApp.h"
#include "tests/datasource/support/CallLog.h"

#include <set>

/// The services that an application offers for styles. A display name is the name in angle brackets, so that
/// it can be told from the name.
class RecordingStylesApp final : public IStylesSourceApp
{
public:
    explicit RecordingStylesApp(CallLog& callLog) : log(callLog) {}

    bool IsExcludedStyleName(const OvxStringT& name) override;
    OvxStringT GetDisplayStyleName(const OvxStringT& name) override;
    Styles::StylePresetManager& GetStylePresetManager() override;

    std::set<OvxStringT> excludedNames;

    /// Borrowed; to be set before anybody asks.
    Styles::StylePresetManager* presetManager = nullptr;

private:
    CallLog& log;
};

/// An application that offers a style source and services for styles, each unless it is null, and takes down
/// who asks for the style source.
class RecordingApp final : public IOrvexCmn_App
{
public:
    explicit RecordingApp(CallLog& callLog) : log(callLog), provider(*this) {}

    RecordingApp(const RecordingApp&) = delete;
    RecordingApp& operator=(const RecordingApp&) = delete;

    void QueryInterface(const InterfaceId& id, void** out) override;
    IStyleSourceProvider* GetActiveStyleSourceProvider() override;

    IStylesSource* source = nullptr;       ///< Borrowed.
    IStylesSourceApp* stylesApp = nullptr; ///< Borrowed.

private:
    class Provider final : public IStyleSourceProvider
    {
    public:
        explicit Provider(RecordingApp& owner) : app(owner) {}

        void QueryInterface(const InterfaceId& id, void** out) override;

    private:
        RecordingApp& app;
    };

    CallLog& log;
    Provider provider;
};
