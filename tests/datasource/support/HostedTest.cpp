#include "tests/datasource/support/HostedTest.h"
#include "tests/host_pieces/HostPieces.h"

#include "module/StylesCommon.h"

StyleLeakTest::StyleLeakTest() : styleCountBefore(HostPieces::CountLiveStyles())
{
}

StyleLeakTest::~StyleLeakTest()
{
    EXPECT_EQ(HostPieces::CountLiveStyles(), styleCountBefore) << "styles were leaked";
}

HostedTest::HostedTest()
{
    source.sheet = &sheet;
    app.source = &source;
    app.stylesApp = &stylesApp;
    StylesCommon::GetInstance().Initialize(&app);
    panel.Complete();
    log.Clear();
}

HostedTest::~HostedTest()
{
    log.onLine = nullptr;
    StylesCommon::GetInstance().Initialize(nullptr);
}

void HostedTest::Target(RecordingPanel& shownBy, const std::vector<Styles::Style*>& targets, bool isDefault)
{
    shownBy.SetTargetStyle(targets, isDefault, Styles::PropertyPath(), {});
}
