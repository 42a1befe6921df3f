#include "tests/reference_host/utils/singleton_module/SingletonModule.h"

#include "host/Export.h"
#include "host/colour/CLR_COLORSPEC.h"
#include "host/style_model/PropertyKey.h"
#include "host/utils/OvxStringT.h"
#include "host/utils/Singleton.h"

InstanceEvents* moduleEvents = nullptr;

/// Defined in each module anew, its virtual table too: an instance is lost when the module that made it goes.
class SharedObject
{
public:
    SharedObject() { ++moduleEvents->made; }

    SharedObject(const SharedObject&) = delete;
    SharedObject& operator=(const SharedObject&) = delete;

    virtual ~SharedObject() { ++moduleEvents->ended; }

    [[nodiscard]] virtual int GetAnswer() const { return answer; }

private:
    int answer = 42;
};

namespace
{

using SharedSingleton = OvxUtils::Singleton<SharedObject>;

struct LateQuestion
{
    LateQuestion() = default;
    LateQuestion(const LateQuestion&) = delete;
    LateQuestion& operator=(const LateQuestion&) = delete;

    ~LateQuestion() { (void)SharedSingleton::GetInstance(); }
};

void StoreValues(OvxUtils::Any& number, OvxUtils::Any& text, OvxUtils::Any& key, OvxUtils::Any& colour)
{
    number = OvxUtils::Any(7);
    text = OvxUtils::Any(OvxStringT(L"a text that lies on the heap"));
    key = OvxUtils::Any(Styles::PropertyKey(Styles::PooledString<Styles::StringPool>(L"solid")));
    colour = OvxUtils::Any(CLR_COLORSPEC::FromResource(L"Brand", {1, 2, 3}));
}

constexpr SingletonModule kModule{
    [](InstanceEvents* events) { moduleEvents = events; },
    []() -> void* { return &SharedSingleton::GetInstance(); },
    [] { return SharedSingleton::GetInstance().GetAnswer(); },
    [] { return SharedSingleton::HasInstance(); },
    [](bool final) { SharedSingleton::ReleaseInstance(final); },
    [] { static const LateQuestion late; },
    &StoreValues,
};

} // namespace

extern "C" STYLEPROPERTIES_HOST_API const SingletonModule* GetSingletonModule()
{
    return &kModule;
}
