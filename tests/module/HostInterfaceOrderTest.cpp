// The operations of the interfaces that a host implements stand in the order in which hosts were told to
// expect them.

#include "host/data_binding/IDataContext.h"
#include "host/data_binding/IDataSource.h"
#include "host/data_binding/IDataSourceFactory.h"
#include "host/data_binding/IDataSourceRegistrar.h"
#include "host/data_binding/IDialogService.h"
#include "host/data_binding/IHostObject.h"
#include "host/data_binding/IReflectable.h"
#include "host/data_binding/PendingEventBase.h"
#include "host/services/IAppInterface.h"
#include "host/services/IOrvexCmn_App.h"
#include "host/services/IPanelHost.h"
#include "host/style_model/IStyleApplicator.h"
#include "host/style_model/IStyleSourceProvider.h"
#include "host/style_model/IStylesCollectionEditor.h"
#include "host/style_model/IStylesSource.h"
#include "host/style_model/IStylesSourceApp.h"
#include "host/style_model/StyleCategory.h"
#include "host/style_model/StyleManager.h"
#include "host/style_model/StyleSheet.h"
#include "host/utils/PostConstructible.h"
#include "tests/module/VirtualSlot.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

namespace
{

using testing::ElementsAre;

/// The places of `operations`, in the order in which they are named.
template <class... Operation>
std::vector<std::size_t> Slots(Operation... operations)
{
    return {VirtualSlot(operations)...};
}

TEST(HostInterface, OfTheApplicationAnswersQueriesFirst)
{
    EXPECT_THAT(Slots(&IOrvexCmn_App::QueryInterface, &IOrvexCmn_App::GetActiveStyleSourceProvider),
                ElementsAre(0, 1));
    EXPECT_THAT(Slots(&IStyleSourceProvider::QueryInterface), ElementsAre(0));
}

TEST(HostInterface, OfTheApplicationsStylesKeepsItsOrder)
{
    EXPECT_THAT(Slots(&IStylesSourceApp::IsExcludedStyleName, &IStylesSourceApp::GetDisplayStyleName,
                      &IStylesSourceApp::GetStylePresetManager),
                ElementsAre(0, 1, 2));
}

TEST(HostInterface, OfTheStyleSourceKeepsItsOrder)
{
    using Source = IStylesSource;

    EXPECT_THAT(Slots(&Source::GetStyleSheet, &Source::GetExternalStyleSheet,
                      &Source::ShouldIgnoreCharacterStyleSiblings, &Source::GetDefaultStyleSheet,
                      &Source::GetDefaultStyles, &Source::GetMultipleStyleModifier, &Source::ApplyToParent,
                      &Source::ReplaceProperties, &Source::CreateStyle, &Source::ApplyStyle,
                      &Source::SetParent, &Source::ApplyPresetToStyles, &Source::ApplyPresetToObjects,
                      &Source::FillPresetItems, &Source::BeginGroup, &Source::EndGroup,
                      &Source::GetTransactionOverrides),
                ElementsAre(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16));
}

TEST(HostInterface, OfTheStyleApplicatorKeepsItsOrder)
{
    EXPECT_THAT(Slots(&IStyleApplicator::AttachDataSource, &IStyleApplicator::ModifyStyles,
                      &IStyleApplicator::GetTargetPath),
                ElementsAre(0, 1, 2));
}

TEST(HostInterface, OfAFactoryKeepsItsOrderAfterTheDestructor)
{
    EXPECT_THAT(Slots(&IDataSourceFactory::GetTypeKey, &IDataSourceFactory::Create, &IDataSourceFactory::Find,
                      &IDataSourceFactory::GetKind, &IDataSourceFactory::GetScopeName),
                ElementsAre(2, 3, 4, 5, 6));
}

TEST(HostInterface, OfThePostConstructiblePartFollowsItsDestructorWithPostConstruct)
{
    EXPECT_THAT(Slots(&OvxUtils::PostConstructible::PostConstruct), ElementsAre(2));
}

TEST(HostInterface, OfThePanelHostHasOneOperation)
{
    EXPECT_THAT(Slots(&IAppInterface::GetPanelHost), ElementsAre(0));
    EXPECT_THAT(Slots(&IPanelHost::GetObjectPropertiesContext), ElementsAre(0));
}

TEST(HostInterface, OfTheDataContextKeepsItsOrder)
{
    EXPECT_THAT(
        Slots(&IDataContext::GetHostObject, &IDataContext::GetDataSource, &IDataContext::GetDialogService),
        ElementsAre(0, 1, 2));
    EXPECT_THAT(Slots(&IHostObject::Query), ElementsAre(0));
    EXPECT_THAT(Slots(&IDialogService::ShowDialog, &IDialogService::CloseDialog), ElementsAre(0, 1));
}

TEST(HostInterface, OfADataSourceKeepsItsOrderAfterTheDestructor)
{
    EXPECT_THAT(
        Slots(&IDataSource::GetDataContext, &IDataSource::SetDataSourceProvider, &IDataSource::Destroy),
        ElementsAre(2, 3, 4));
    EXPECT_THAT(Slots(&IReflectable::GetDynamicDelegate, &IReflectable::GetDynamicType), ElementsAre(2, 3));
    EXPECT_THAT(Slots(&PendingEventBase::GetArguments), ElementsAre(2));
}

TEST(HostInterface, OfTheRegistrarKeepsItsOrder)
{
    using Registrar = IDataSourceRegistrar;

    EXPECT_THAT(Slots(&Registrar::RegisterFactory, &Registrar::UnregisterFactory, &Registrar::FindFactory,
                      &Registrar::GetFactories),
                ElementsAre(0, 1, 2, 3));
}

TEST(HostInterface, OfTheStyleManagerFollowsItsDestructor)
{
    EXPECT_THAT(Slots(&Styles::StyleManager::GetCategory), ElementsAre(2));
    EXPECT_THAT(Slots(&Styles::StyleCategory::GetDisplayName), ElementsAre(2));
}

TEST(HostInterface, OfTheStyleSheetKeepsItsOrderAfterTheDestructor)
{
    using Sheet = Styles::StyleSheet;

    EXPECT_THAT(
        Slots(&Sheet::GetStyle, &Sheet::GetStyleName, &Sheet::GetStyleNames, &Sheet::GetUnusedStyleName),
        ElementsAre(2, 3, 4, 5));
}

TEST(HostInterface, OfTheEditorOfNamedStylesHasOneOperation)
{
    EXPECT_THAT(Slots(&IStylesCollectionEditor::EditStyle), ElementsAre(0));
}

} // namespace
