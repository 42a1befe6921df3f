#pragma once

#include <tuple>
#include <utility>

/// Puts fields back as they were when it is made, unless what changes them comes to its end.
///
/// For changes of several fields between which calls are made that may fail.
template <class... Fields>
class [[nodiscard]] Rollback
{
public:
    /// Keeps copies of the fields, which are put back by moving them: that cannot fail.
    explicit Rollback(Fields&... changed) : fields(changed...), before(changed...) {}

    Rollback(const Rollback&) = delete;
    Rollback& operator=(const Rollback&) = delete;

    ~Rollback()
    {
        if (!isKept)
            fields = std::move(before);
    }

    /// Lets the fields stay as they are now.
    void Keep() noexcept { isKept = true; }

private:
    std::tuple<Fields&...> fields;
    std::tuple<Fields...> before;
    bool isKept = false;
};
