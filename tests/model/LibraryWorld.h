#pragma once

#include "tests/datasource/support/PresetsTest.h"
#include "tests/datasource/support/RecordingApp.h"
#include "tests/datasource/support/RecordingApplicator.h"
#include "tests/datasource/support/RecordingContext.h"
#include "tests/datasource/support/RecordingEvents.h"
#include "tests/datasource/support/RecordingModifier.h"
#include "tests/datasource/support/RecordingSheet.h"
#include "tests/datasource/support/RecordingStylesEditor.h"
#include "tests/datasource/support/RecordingStylesSource.h"
#include "tests/model/DrivenPanel.h"
#include "tests/model/StylePool.h"

#include <array>
#include <memory>
#include <optional>

namespace LibraryModel
{

/// The library's side of a sequence: a recording host, styles, and three panels with their dialog of presets.
/// One at a time.
class LibraryWorld
{
public:
    static constexpr std::size_t kPanels = 3;

    LibraryWorld();
    LibraryWorld(const LibraryWorld&) = delete;
    LibraryWorld& operator=(const LibraryWorld&) = delete;
    ~LibraryWorld();

    /// Null where there is none.
    [[nodiscard]] Styles::Style* Find(const StyleRef& ref) const;
    [[nodiscard]] std::vector<Styles::Style*> Find(const StyleRefs& refs) const;

    [[nodiscard]] DrivenPanel& Panel(std::size_t panel) { return *panels.at(panel); }

    /// The panel itself; null for a number beyond the last one.
    DrivenPanel* PanelOrNull(std::size_t panel);

    /// Ends a panel and makes it anew in a context; null for none.
    void StartPanelAnew(std::size_t panel, IDataContext* context);

    /// The context of that number; null for a negative one.
    [[nodiscard]] IDataContext* Context(int number);

    /// Which of the contexts is the one where objects are edited; negative for none.
    void SetObjectPropertiesContext(int number);
    void SetUserInterface(bool exists);

    [[nodiscard]] IReflectable& Dialog() const { return dynamic_cast<IReflectable&>(*dialogSource); }

    CallLog log;
    RecordingSheet sheet{log};
    RecordingSheet defaultSheet{log, "defaults"};
    RecordingSheet externalSheet{log, "external"};
    RecordingModifier modifier{log};
    RecordingStylesSource source{log};
    RecordingStylesApp stylesApp{log};
    RecordingApp app{log};
    RecordingPresetManager manager{log};
    RecordingConfirmation confirmation{log};
    RecordingApplicator applicator{log};
    RecordingDialogs dialogs{log};
    RecordingStylesEditor editor{log};
    PlainDataSource something;
    std::array<RecordingHostObject, 2> hostObjects{RecordingHostObject{log}, RecordingHostObject{log}};
    std::array<RecordingContext, 2> contexts{RecordingContext{log}, RecordingContext{log}};
    std::unique_ptr<Styles::Style[]> styles; ///< As in the pool, so that addresses ascend as there.
    std::vector<WXmlNode> heldLists;         ///< The list that each panel gave last.
    IDataSource* dialogSource = nullptr;     ///< The preset data source; ended with this.

    /// What a running transaction overrides; never looked into.
    Styles::IModifyStyleOverrides* transaction;

private:
    void NameHostPieces();

    char transactionPlace = 0;
    int objectPropertiesContext = 0;
    RecordingEvents events{log};
    std::optional<HostPieces::UserInterface> userInterface;
    std::array<std::optional<DrivenPanel>, kPanels> panels;
};

} // namespace LibraryModel
