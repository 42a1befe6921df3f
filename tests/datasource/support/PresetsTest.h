#pragma once

#include "host/data_binding/IBroadcaster.h"
#include "host/data_binding/IDataSource.h"
#include "host/data_binding/IReflectable.h"
#include "host/style_model/StylePresetManager.h"
#include "tests/datasource/support/HostedTest.h"
#include "tests/datasource/support/RecordingContext.h"
#include "tests/host_pieces/HostPieces.h"

#include <filesystem>
#include <memory>
#include <vector>

/// The host's keeper of presets in a folder of the test, which takes down which categories it is asked about.
class RecordingPresetManager final : public Styles::StylePresetManager
{
public:
    explicit RecordingPresetManager(CallLog& callLog);
    ~RecordingPresetManager() override;

protected:
    OvxStringT GetPresetFolder(Styles::PresetLocation location, OvxStringT category) override;
    OvxStringT GetPresetFileName(Styles::PresetLocation location, OvxStringT name) override;

    int GetPresetFormat() override { return 1; }

    OvxStringT GetCustomConfigurationDirectory() override;

    OvxStringT GetUserDocumentsDirectory() override { return {}; }

private:
    CallLog& log;
    std::filesystem::path folder;
};

/// Answers questions as the test has set, and takes them down.
class RecordingConfirmation final
{
public:
    explicit RecordingConfirmation(CallLog& log);
    RecordingConfirmation(const RecordingConfirmation&) = delete;
    RecordingConfirmation& operator=(const RecordingConfirmation&) = delete;
    ~RecordingConfirmation();

    int answer = 6; ///< Yes.
};

/// A fill panel that offers presets under "FillPresets", in the host's current context, in which the data
/// source of the add-preset dialog lives.
class PresetsTest : public HostedTest
{
protected:
    PresetsTest();
    ~PresetsTest() override;

    /// Keeps a preset that sets nothing, as another process might.
    void Keep(const wchar_t* name);

    /// The texts of the panel's preset list.
    [[nodiscard]] std::vector<OvxStringT> ListedTexts();

    /// The item of the panel's preset list that has this text.
    [[nodiscard]] WCmnUI_ListItem ItemOf(const wchar_t* text);

    /// Adds a line "presets NAME" for each change of one of these names of the dialog's data source.
    void ListenToPresets(const std::vector<OvxStringT>& names);

    /// The dialog's data source by its bound names.
    [[nodiscard]] IReflectable& Dialog() const { return dynamic_cast<IReflectable&>(*dialogSource); }

    RecordingPresetManager manager{log};
    RecordingConfirmation confirmation{log};
    RecordingContext context{log};
    RecordingDialogs dialogs{log};
    HostPieces::UserInterface userInterface;

private:
    struct End
    {
        void operator()(IDataSource* dataSource) const { dataSource->Destroy(); }
    };

    std::unique_ptr<IDataSource, End> dialogSource;
};
