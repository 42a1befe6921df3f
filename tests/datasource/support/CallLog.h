#pragma once

#include "host/style_model/Style.h"

#include <functional>
#include <initializer_list>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// What a call throws that CallLog::FailAt chose.
class InjectedFailure : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// The calls that the recorders of one test received, one readable line each, in the order in which they
/// came.
///
/// All recorders of a test share one log, so that it also tells who was called before whom.
class CallLog
{
public:
    CallLog() = default;
    CallLog(const CallLog&) = delete;
    CallLog& operator=(const CallLog&) = delete;

    /// Adds a line, then calls onLine with it.
    void Add(const std::string& line);

    [[nodiscard]] const std::vector<std::string>& Lines() const noexcept { return lines; }

    /// The lines that begin with one of `beginnings`, in order.
    [[nodiscard]] std::vector<std::string> LinesOf(std::initializer_list<std::string_view> beginnings) const;

    /// The lines that begin with none of `beginnings`, in order.
    [[nodiscard]] std::vector<std::string> LinesBut(std::initializer_list<std::string_view> beginnings) const;

    /// As LinesOf, without the arguments: "modifier.Modify" for "modifier.Modify(targets=...)".
    [[nodiscard]] std::vector<std::string> CallsOf(std::initializer_list<std::string_view> beginnings) const;

    /// Makes the next call whose line begins with `beginning` throw an InjectedFailure, once. Takes the place
    /// of onLine.
    void FailAt(std::string beginning);

    /// Forgets the lines, not the names.
    void Clear() noexcept { lines.clear(); }

    /// Gives an object a name in lines to come; a later one replaces it.
    void SetName(const void* object, std::string name);

    /// The name of an object, "null", or "unnamed".
    [[nodiscard]] std::string NameOf(const void* object) const;

    /// The name of a style; a substyle without one is named after its owner and its category: "box.fill".
    [[nodiscard]] std::string NameOfStyle(const Styles::Style* style) const;

    /// The names of styles in brackets: "[box, null]".
    [[nodiscard]] std::string NamesOfStyles(const std::vector<Styles::Style*>& styles) const;

    /// Called with each line as it comes, while the call that it tells of is still under way. For tests that
    /// look at what is visible at that moment, or that call back in.
    std::function<void(const std::string& line)> onLine;

private:
    std::vector<std::string> lines;
    std::map<const void*, std::string> names;
};
