#include "reference_host/document/ProgressMeter.h"

#include <gmock/gmock.h>

#include <vector>

using ReferenceHost::OperationCancelled;
using ReferenceHost::Progress;
using ReferenceHost::ProgressAnswer;
using ReferenceHost::ProgressListener;
using ReferenceHost::ProgressMeter;
using ReferenceHost::ProgressPhase;
using ReferenceHost::ProgressPieces;
using ReferenceHost::ProgressSpan;
using testing::ElementsAre;
using testing::SizeIs;

namespace
{

struct ProgressOfWork : testing::Test
{
    std::vector<double> fractions;
    std::vector<ProgressPhase> phases;
    ProgressListener listener = [this](const Progress& progress)
    {
        fractions.push_back(progress.fraction);
        phases.push_back(progress.phase);
        return ProgressAnswer::GoOn;
    };
    ProgressMeter meter{listener};
    ProgressSpan whole{meter};
};

/// Does work in as many steps as there is of it.
void WorkThrough(ProgressSpan span, std::size_t amount)
{
    span.Start(amount);
    for (std::size_t done = 1; done <= amount; ++done)
        span.Reach(done);
}

} // namespace

TEST_F(ProgressOfWork, IsToldSeldomHoweverMuchThereIs)
{
    WorkThrough(whole.Part(ProgressPhase::Shapes, 0, 1), 1'000'000);

    EXPECT_THAT(fractions, SizeIs(testing::AllOf(testing::Ge(100U), testing::Le(260U))));
}

TEST_F(ProgressOfWork, IsToldAtEachStepWhenThereAreFew)
{
    WorkThrough(whole.Part(ProgressPhase::Shapes, 0, 1), 4);

    EXPECT_THAT(fractions, ElementsAre(0, 0.25, 0.5, 0.75, 1));
}

TEST_F(ProgressOfWork, LiesWithinThePartsOfParts)
{
    WorkThrough(whole.Part(0.5, 1).Part(ProgressPhase::Styles, 0.5, 1), 2);

    EXPECT_THAT(fractions, ElementsAre(0.75, 0.875, 1));
}

TEST_F(ProgressOfWork, KeepsThePhaseOfTheLargerPiece)
{
    const ProgressSpan sheets = whole.Part(ProgressPhase::StyleSheets, 0, 1);

    sheets.Part(ProgressPhase::Checking, 0, 1).Start(1);

    EXPECT_THAT(phases, ElementsAre(ProgressPhase::StyleSheets));
}

TEST_F(ProgressOfWork, IsCutIntoPiecesByTheirSize)
{
    ProgressPieces pieces(whole.Part(ProgressPhase::Packing, 0, 1), 4);
    WorkThrough(pieces.Next(1), 1);
    WorkThrough(pieces.Next(3), 1);

    EXPECT_THAT(fractions, ElementsAre(0, 0.25, 1));
}

TEST_F(ProgressOfWork, NeverGoesBack)
{
    WorkThrough(whole.Part(ProgressPhase::Reading, 0.5, 1), 1);

    whole.Part(ProgressPhase::Writing, 0, 0.5).Start(1);

    EXPECT_THAT(fractions, ElementsAre(0.5, 1, 1));
}

TEST_F(ProgressOfWork, EndsWithOneInTheLastPhase)
{
    whole.Part(ProgressPhase::Packing, 0, 0.5).Start(1);

    meter.Finish();

    EXPECT_THAT(fractions, ElementsAre(0, 1));
    EXPECT_EQ(phases.back(), ProgressPhase::Packing);
}

TEST(ProgressThatIsAnsweredWithStop, EndsTheOperation)
{
    const ProgressListener stop = [](const Progress&) { return ProgressAnswer::Stop; };
    ProgressMeter meter(stop);

    EXPECT_THROW(ProgressSpan(meter).Part(ProgressPhase::Reading, 0, 1).Start(1), OperationCancelled);
}

TEST(ProgressThatNobodyHears, LetsWorkGoOn)
{
    const ProgressListener nobody;
    ProgressMeter meter(nobody);

    EXPECT_NO_THROW(WorkThrough(ProgressSpan(meter).Part(ProgressPhase::Reading, 0, 1), 10));
    EXPECT_NO_THROW(WorkThrough(ProgressSpan().Part(ProgressPhase::Reading, 0, 1), 10));
    EXPECT_NO_THROW(meter.Finish());
}
