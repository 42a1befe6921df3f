#include "tests/reference_host/document/hostile/HostileDrawing.h"

#include "reference_host/document/picture/DrawingPicture.h"
#include "tests/reference_host/document/SavedDrawing.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iostream>
#include <utility>

namespace
{

constexpr const char* kNamespaces =
    R"( xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0")"
    R"( xmlns:style="urn:oasis:names:tc:opendocument:xmlns:style:1.0")"
    R"( xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0")"
    R"( xmlns:draw="urn:oasis:names:tc:opendocument:xmlns:drawing:1.0")"
    R"( xmlns:fo="urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0")"
    R"( xmlns:svg="urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0")"
    R"( xmlns:meta="urn:oasis:names:tc:opendocument:xmlns:meta:1.0")"
    R"( office:mimetype="application/vnd.oasis.opendocument.graphics")";

void WritePart(const HostileDrawing::Write& write, const std::string& element,
               const HostileDrawing::Part& part)
{
    write("<office:" + element + ">");
    if (part)
        part(write);
    write("</office:" + element + ">");
}

std::string Outcome(const std::filesystem::path& file)
try
{
    std::vector<std::string> warnings;
    const auto drawing = ReferenceHost::Drawing::Open(file, warnings);
    static_cast<void>(drawing->ReadPicture());
    if (!drawing->GetObjects().empty() && drawing->GetObjects().front().GetStyle() != nullptr)
        Set(drawing->GetObjects().front().GetStyle(), "fill.color", ColourValue(1, 2, 3));
    const bool isRepaired = !warnings.empty();
    const std::string first = isRepaired ? warnings.front() : std::string();
    static_cast<void>(drawing->Serialise(warnings));
    return isRepaired ? "warning: " + first : "success";
}

catch (const ReferenceHost::DocumentError& error)
{
    return std::string("error: ") + error.what();
}

} // namespace

void HostileDrawing::WriteTo(const std::filesystem::path& file) const
{
    std::ofstream stream(file, std::ios::binary);
    const Write write = [&stream](const std::string& text) { stream << text; };
    write(prologue + "<office:document" + kNamespaces + " " + rootAttributes + ">");
    WritePart(write, "meta", meta);
    WritePart(write, "styles", styles);
    WritePart(write, "automatic-styles", automatic);
    write("<office:body><office:drawing><draw:page>");
    if (page)
        page(write);
    write("</draw:page></office:drawing></office:body></office:document>");
}

HostileDrawing::Part Repeat(std::size_t count, std::function<std::string(std::size_t)> make)
{
    return [count, make = std::move(make)](const HostileDrawing::Write& write)
    {
        for (std::size_t number = 0; number < count; ++number)
            write(make(number));
    };
}

MeasuredRun OpenAndEdit(const std::filesystem::path& file)
{
    return RunMeasured([&file] { return Outcome(file); });
}

void ExpectBounded(const MeasuredRun& run)
{
// Sanitizers take memory and time of their own.
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    constexpr std::size_t kMostMebibytes = 1024;
    EXPECT_LT(run.peakMebibytes, kMostMebibytes) << run.answer;
#if defined(NDEBUG)
    constexpr double kMostSeconds = 5;
#else
    // Without the compiler's optimisation the same work takes five to eight times as long.
    constexpr double kMostSeconds = 40;
#endif
    EXPECT_LT(run.seconds, kMostSeconds) << run.answer;
#endif
    const testing::TestInfo* const test = testing::UnitTest::GetInstance()->current_test_info();
    std::cout << test->name() << ": " << run.seconds << " s, " << run.peakMebibytes << " MiB\n";
}
