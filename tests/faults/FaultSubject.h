#pragma once

#include "datasource/BaseStylePropertiesDatasource.h"
#include "tests/datasource/support/CallLog.h"
#include "tests/datasource/support/StyleWorkshop.h"
#include "tests/faults/FaultyHost.h"
#include "tests/host_pieces/HostPieces.h"

#include <memory>
#include <string>
#include <vector>

/// A fill panel whose protected operations are open.
class OpenPanel : public BaseStylePropertiesDatasource
{
public:
    /// Runs what a factory runs once the object stands.
    void Complete() { FinishConstruction(); }

    [[nodiscard]] Styles::PropertyKey GetCategory() const override;

    [[nodiscard]] OvxStringT PresetCategoryName() const override { return presetCategory; }

    using BaseStylePropertiesDatasource::ClearForceAmbiguous;
    using BaseStylePropertiesDatasource::ClearProperties;
    using BaseStylePropertiesDatasource::DoesOverrideProperties;
    using BaseStylePropertiesDatasource::GetObjectFromStyle;
    using BaseStylePropertiesDatasource::GetStyleCategoryProperties;
    using BaseStylePropertiesDatasource::GetTransactionOverrides;
    using BaseStylePropertiesDatasource::ImportForceAmbiguous;
    using BaseStylePropertiesDatasource::IsForcedAmbiguous;
    using BaseStylePropertiesDatasource::ModifyDefaultStyles;
    using BaseStylePropertiesDatasource::ModifyStyles;
    using BaseStylePropertiesDatasource::ModifySubstyles;
    using BaseStylePropertiesDatasource::OnPresetsListUpdated;
    using BaseStylePropertiesDatasource::Private_HasParent;
    using BaseStylePropertiesDatasource::SetNoParent;
    using BaseStylePropertiesDatasource::siblings;
    using BaseStylePropertiesDatasource::WriteTarget;
    using BaseStylePropertiesDatasource::WriteToDefault;

    OvxStringT presetCategory;
};

/// A host, its styles and a panel on them: what an operation is tried on, anew for each failure.
class FaultSubject
{
public:
    FaultSubject();
    FaultSubject(const FaultSubject&) = delete;
    FaultSubject& operator=(const FaultSubject&) = delete;
    ~FaultSubject();

    // Ways to begin

    void HandInObjects();  ///< Two objects with local values, which inherit from a named style.
    void HandInDefaults(); ///< The two default styles.
    void HandInNamedStyle();
    void HandInOthers();   ///< One object that no other way hands in, and default styles that none changes.
    void TieSiblings();    ///< To two other panels with an object each, one of them tied back.
    void TakeApplicator(); ///< In place of the modifier.
    void NameManyFills();  ///< More fill styles than a list shows.
    void OpenPresets();    ///< The panel offers presets, of which "Spring" is kept.

    /// The data source of the add-preset dialog. Only after OpenPresets().
    [[nodiscard]] IReflectable& Dialog() const { return dynamic_cast<IReflectable&>(*presets); }

    /// Who is told of changes of that data source. Only after OpenPresets().
    [[nodiscard]] IBroadcaster& DialogNews() const { return dynamic_cast<IBroadcaster&>(*presets); }

    /// What anybody can see of the panel and of what it edits, and what the next picks from its lists do.
    /// Closes an open group, and delivers events that wait.
    [[nodiscard]] std::string Picture();

    HostCalls calls;
    CallLog names; ///< Of styles.
    StyleWorkshop styles{names};
    FaultySource source{calls};
    FaultyApp app;
    FaultyApplicator applicator{calls};
    FaultyStylesEditor editor{calls};
    FaultyContext context{calls};
    Styles::Style& base = styles.WithColor("base", 1);
    Styles::Style& first = styles.WithColor("first", 2, &base);
    Styles::Style& second = styles.WithFill("second", &base);
    Styles::Style& defaults = styles.WithColor("defaults", 3);
    Styles::Style& moreDefaults = styles.WithFill("moreDefaults");
    Styles::Style& other = styles.WithColor("other", 6, &base);
    OpenPanel panel;
    OpenPanel tied;
    OpenPanel tiedBack;

private:
    struct End
    {
        void operator()(IDataSource* dataSource) const { dataSource->Destroy(); }
    };

    void Listen();
    void KeepPreset(const OvxStringT& name); ///< That one and no other.

    std::unique_ptr<HostPieces::UserInterface> userInterface;
    std::unique_ptr<IDataSource, End> presets;
    std::vector<ListenerToken> subscriptions;
};
