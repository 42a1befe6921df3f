#pragma once

#include "host/services/IOrvexCmn_App.h"
#include "host/style_model/IStyleSourceProvider.h"
#include "host/utils/InterfaceId.h"

#include <array>
#include <cstdint>
#include <vector>

/// One query by identifier, as the host sees it arrive.
struct RecordedQuery
{
    std::array<std::uint8_t, 16> bytes; ///< The identifier as it lies in memory.
    void* answerBefore;                 ///< What the out-pointer held when the query arrived.

    friend bool operator==(const RecordedQuery&, const RecordedQuery&) = default;
};

/// Takes queries down and gives each the answer it was told.
class QueryRecorder
{
public:
    void Answer(const InterfaceId& id, void** out);

    std::vector<RecordedQuery> queries;
    void* answer = nullptr; ///< Null: the out-pointer stays untouched.
};

/// A provider of style sources that answers every query alike.
class RecordingProvider final : public IStyleSourceProvider
{
public:
    void QueryInterface(const InterfaceId& id, void** out) override { recorder.Answer(id, out); }

    QueryRecorder recorder;
};

/// An application that answers every query alike and counts who asks for its provider.
class RecordingApplication final : public IOrvexCmn_App
{
public:
    void QueryInterface(const InterfaceId& id, void** out) override { recorder.Answer(id, out); }

    IStyleSourceProvider* GetActiveStyleSourceProvider() override
    {
        ++providerRequests;
        return provider;
    }

    QueryRecorder recorder;
    IStyleSourceProvider* provider = nullptr;
    int providerRequests = 0;
};
