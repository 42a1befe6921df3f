// How a data source comes to be and goes: what it asks of its surroundings, in which order, and what it
// keeps.

#include "host/data_binding/DataSourceFactory.h"
#include "host/data_binding/IDataSourceRegistrar.h"
#include "tests/datasource/support/HostedTest.h"
#include "tests/datasource/support/RecordingApplicator.h"
#include "tests/datasource/support/RecordingContext.h"
#include "tests/host_pieces/HostPieces.h"

#include <memory>

namespace
{

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

/// A panel of its own in a context whose host object may bring an applicator.
class Lifetime : public HostedTest
{
protected:
    Lifetime()
    {
        context.hostObject = &hostObject;
        log.SetName(static_cast<IDataContext*>(&context), "context");
    }

    /// Makes the panel complete within `surroundings`; the log then holds what that led to.
    void CompleteIn(IDataContext* surroundings)
    {
        created->SetDataSourceProvider(surroundings);
        log.Clear();
        created->Complete();
    }

    RecordingHostObject hostObject{log};
    RecordingContext context{log};
    RecordingApplicator applicator{log};
    std::unique_ptr<RecordingPanel> created = std::make_unique<RecordingPanel>(log, "created");
};

TEST_F(Lifetime, BeginsWithoutTargets)
{
    EXPECT_FALSE(created->HasTargets());
    EXPECT_EQ(created->GetNumTargetStyles(), 0U);
    EXPECT_THAT(created->GetTargetStyles(), IsEmpty());
    EXPECT_FALSE(created->AreTargetsDefaultStyles());
    EXPECT_THAT(created->GetAmbiguousForce(), IsEmpty());
    EXPECT_EQ(created->IsObjectStyleDatabound(), 1);
}

TEST_F(Lifetime, BeginsWithoutAnIdentifierAnApplicatorOrSiblings)
{
    EXPECT_EQ(created->GetActiveIdentifier(), L"");
    EXPECT_EQ(created->IsObjectProperties(), 0);
    EXPECT_EQ(created->GetStyleApplicatorID(), 0);
    EXPECT_THAT(created->siblings, IsEmpty());
}

TEST_F(Lifetime, BeginsWithTheHasParentValueStillToBeFound)
{
    Styles::Style& base = styles.WithFill("base");
    log.Clear();

    Target(*created, {&styles.WithFill("box", &base)});

    EXPECT_EQ(created->GetActivePropertyState(L"color"), ActivePropertyState::Inherited);
}

TEST_F(Lifetime, BeginsAskingNobodyAnything)
{
    log.Clear();

    created = std::make_unique<RecordingPanel>(log, "another");

    EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST_F(Lifetime, BeginsRegisteringNothingAnywhere)
{
    HostPieces::UserInterface userInterface;
    userInterface.SetObjectPropertiesContext(&context);
    const auto factoriesBefore = IDataSourceRegistrar::GetInstance().GetFactories();
    log.Clear();

    created = std::make_unique<RecordingPanel>(log, "another");

    EXPECT_THAT(log.Lines(), IsEmpty())
        << "neither the context nor the preset category of the derived class was asked";
    EXPECT_EQ(IDataSourceRegistrar::GetInstance().GetFactories(), factoriesBefore);
    EXPECT_THAT(created->GetNames(), IsEmpty()) << "no name is bound before the object is complete";
}

TEST_F(Lifetime, BindsTheNamesOnceTheObjectIsComplete)
{
    CompleteIn(nullptr);

    EXPECT_EQ(created->GetNames().size(), 35U);
}

TEST_F(Lifetime, AsksTheContextForItsHostObjectAndThatForApplicatorAndNumber)
{
    hostObject.applicator = &applicator;
    hostObject.applicatorNumber = 7;

    CompleteIn(&context);

    EXPECT_THAT(log.Lines(), ElementsAre("context.GetHostObject()",
                                         "hostObject.Query(41 1b 2c 4b ae 74 84 e8 45 ee 48 59 32 c8 40 f8)",
                                         "hostObject.Query(4b c7 8b 18 6a 43 a9 59 47 c7 d4 73 69 c0 b8 b5)",
                                         "applicator.AttachDataSource(7, created)"));
    EXPECT_EQ(created->GetStyleApplicatorID(), 7);
}

TEST_F(Lifetime, KeepsTheLowHalfOfTheApplicatorsNumber)
{
    hostObject.applicator = &applicator;
    hostObject.applicatorNumber = 0x1234'5678'0000'0009U;

    CompleteIn(&context);

    EXPECT_EQ(created->GetStyleApplicatorID(), 9);
    EXPECT_EQ(log.Lines().back(), "applicator.AttachDataSource(9, created)");
}

TEST_F(Lifetime, KeepsANumberWhoseHighestBitIsSetAsANegativeOne)
{
    hostObject.applicator = &applicator;
    hostObject.applicatorNumber = 0xffff'fffeU;

    CompleteIn(&context);

    EXPECT_EQ(created->GetStyleApplicatorID(), -2);
    EXPECT_EQ(log.Lines().back(), "applicator.AttachDataSource(-2, created)");
}

TEST_F(Lifetime, KeepsTheNumberAlsoWithoutAnApplicator)
{
    hostObject.applicatorNumber = 7;

    CompleteIn(&context);

    EXPECT_EQ(created->GetStyleApplicatorID(), 7);
    EXPECT_THAT(log.LinesOf({"hostObject"}), testing::SizeIs(2));
    EXPECT_THAT(log.LinesOf({"applicator"}), IsEmpty());
}

TEST_F(Lifetime, GoesOnWithoutAHostObject)
{
    context.hostObject = nullptr;

    CompleteIn(&context);

    EXPECT_THAT(log.Lines(), ElementsAre("context.GetHostObject()"));
    EXPECT_EQ(created->GetStyleApplicatorID(), 0);
}

TEST_F(Lifetime, GoesOnWithoutAContext)
{
    CompleteIn(nullptr);

    EXPECT_THAT(log.Lines(), IsEmpty());
    EXPECT_EQ(created->IsObjectProperties(), 0);
}

TEST_F(Lifetime, AttachesToTheApplicatorOnce)
{
    hostObject.applicator = &applicator;

    CompleteIn(&context);
    created->Complete();

    EXPECT_THAT(log.LinesOf({"applicator.AttachDataSource"}), testing::SizeIs(1));
}

TEST_F(Lifetime, ServesObjectPropertiesInTheApplicationsObjectPropertiesContext)
{
    HostPieces::UserInterface userInterface;
    userInterface.SetObjectPropertiesContext(&context);

    CompleteIn(&context);

    EXPECT_EQ(created->Read<int>(L"IsObjectProperties"), 1);
    EXPECT_TRUE(created->IsObjectPropertiesContext());
}

TEST_F(Lifetime, ServesNoObjectPropertiesInAnyOtherContext)
{
    HostPieces::UserInterface userInterface;
    RecordingContext other(log);
    userInterface.SetObjectPropertiesContext(&other);

    CompleteIn(&context);

    EXPECT_EQ(created->Read<int>(L"IsObjectProperties"), 0);
    EXPECT_FALSE(created->IsObjectPropertiesContext());
}

TEST_F(Lifetime, ServesNoObjectPropertiesWithoutAContextWhereTheApplicationHasOne)
{
    HostPieces::UserInterface userInterface;
    userInterface.SetObjectPropertiesContext(&context);

    CompleteIn(nullptr);

    EXPECT_EQ(created->Read<int>(L"IsObjectProperties"), 0);
}

TEST_F(Lifetime, ServesNoObjectPropertiesInAContextWhereTheApplicationHasNone)
{
    HostPieces::UserInterface userInterface;

    CompleteIn(&context);

    EXPECT_EQ(created->Read<int>(L"IsObjectProperties"), 0);
}

TEST_F(Lifetime, ServesNoObjectPropertiesWithoutAUserInterface)
{
    CompleteIn(&context);

    EXPECT_EQ(created->Read<int>(L"IsObjectProperties"), 0);
}

TEST_F(Lifetime, LearnsOnceWhetherItServesObjectProperties)
{
    HostPieces::UserInterface userInterface;
    userInterface.SetObjectPropertiesContext(&context);
    CompleteIn(&context);

    userInterface.SetObjectPropertiesContext(nullptr);

    EXPECT_EQ(created->IsObjectProperties(), 1);
}

TEST_F(Lifetime, EndsTellingNobody)
{
    hostObject.applicator = &applicator;
    CompleteIn(&context);
    Target(*created, {&styles.WithFill("box")});
    log.Clear();

    created.reset();

    EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST_F(Lifetime, EndsWithoutLeavingItsSiblings)
{
    panel.RegisterSiblingDS(created.get());

    created.reset();

    EXPECT_EQ(panel.siblings.size(), 1U) << "the owner of the relation unties it";
}

// What a factory does with a data source, seen by the data source.

CallLog* factoryLog = nullptr;

class FactoryMadePanel final : public BaseStylePropertiesDatasource, public DataSource<FactoryMadePanel, true>
{
public:
    FactoryMadePanel()
    {
        factoryLog->Add("constructor, " + std::to_string(GetNames().size()) + " names");
        CallOnPostConstruct([] { factoryLog->Add("queued by the derived constructor"); });
    }

    void SetDataSourceProvider(IDataContext* provider) override
    {
        factoryLog->Add("SetDataSourceProvider");
        BaseStylePropertiesDatasource::SetDataSourceProvider(provider);
    }

    void FillDataSourceMap()
    {
        factoryLog->Add("FillDataSourceMap, " + std::to_string(GetNames().size()) + " names, context " +
                        (GetDataContext() == nullptr ? "missing" : "set"));
    }

    void PostConstruct() override
    {
        factoryLog->Add("PostConstruct");
        BaseStylePropertiesDatasource::PostConstruct();
    }
};

TEST_F(Lifetime, RunsConstructorsThenContextThenQueuedDelegatesBaseFirstThenPostConstruct)
{
    factoryLog = &log;
    context.hostObject = nullptr;
    DataSourceFactory<FactoryMadePanel> factory(L"frame");
    log.Clear();

    IDataSource* made = factory.Create(&context);

    EXPECT_THAT(log.Lines(),
                ElementsAre("constructor, 0 names", "SetDataSourceProvider",
                            "FillDataSourceMap, 35 names, context set", "queued by the derived constructor",
                            "PostConstruct", "context.GetHostObject()"));
    made->Destroy();
}

TEST_F(Lifetime, EndsThroughTheFrameworksDestroy)
{
    factoryLog = &log;
    DataSourceFactory<FactoryMadePanel> factory(L"frame");
    IDataSource* made = factory.Create(nullptr);
    auto* asPanel = dynamic_cast<BaseStylePropertiesDatasource*>(made);
    ASSERT_NE(asPanel, nullptr);
    bool listenerEnded = false;
    asPanel->AddListener(L"SectionTitle",
                         [witness = std::shared_ptr<void>(nullptr, [&listenerEnded](void*)
                                                          { listenerEnded = true; })](const OvxStringT&) {});

    made->Destroy();

    EXPECT_TRUE(listenerEnded) << "the listeners go with the data source";
}

} // namespace
