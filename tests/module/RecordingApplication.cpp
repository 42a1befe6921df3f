#include "tests/module/RecordingApplication.h"

#include <cstring>

void QueryRecorder::Answer(const InterfaceId& id, void** out)
{
    static_assert(sizeof(InterfaceId) == 16);
    RecordedQuery query{{}, *out};
    std::memcpy(query.bytes.data(), &id, sizeof id);
    queries.push_back(query);

    if (answer != nullptr)
        *out = answer;
}
