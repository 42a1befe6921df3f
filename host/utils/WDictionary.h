#pragma once

#include <functional>
#include <memory>
#include <unordered_map>
#include <utility>

namespace OvxUtl
{

/// Owns objects and finds them by key. Objects keep their addresses until they are replaced.
template <class Value, class Key>
class WDictionary
{
public:
    WDictionary() = default;
    WDictionary(const WDictionary&) = delete;
    WDictionary& operator=(const WDictionary&) = delete;
    virtual ~WDictionary() = default;

    /// The object under `key`; null when there is none. Borrowed.
    [[nodiscard]] Value* Find(const Key& key) const
    {
        const auto found = values.find(key);
        return found == values.end() ? nullptr : found->second.get();
    }

    /// Keeps `value` under `key`. Another object that stood there is destroyed first; null removes it.
    void Set(const Key& key, std::unique_ptr<Value> value)
    {
        if (value == nullptr)
        {
            values.erase(key);
            return;
        }
        std::unique_ptr<Value>& place = values[key];
        place.reset();
        place = std::move(value);
    }

private:
    std::unordered_map<Key, std::unique_ptr<Value>> values;
};

} // namespace OvxUtl
