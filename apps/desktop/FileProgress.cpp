#include "apps/desktop/FileProgress.h"

#include "apps/desktop/WindowText.h"

#include <QGuiApplication>
#include <QProgressDialog>

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace Desktop
{
namespace
{

/// The key of what a phase is called, in the order of the phases.
constexpr std::array<const wchar_t*, 12> kPhaseTexts{
    L"window.progress.reading",   L"window.progress.unpacking", L"window.progress.checking",
    L"window.progress.parsing",   L"window.progress.styles",    L"window.progress.style-sheets",
    L"window.progress.shapes",    L"window.progress.picture",   L"window.progress.comparing",
    L"window.progress.composing", L"window.progress.packing",   L"window.progress.writing"};

static_assert(kPhaseTexts.size() == static_cast<std::size_t>(ReferenceHost::ProgressPhase::Writing) + 1);

/// What the bar counts to: finer than what is told.
constexpr int kEnd = 1000;

std::chrono::milliseconds SystemTime()
{
    return std::chrono::duration_cast<std::chrono::milliseconds>(
        std::chrono::steady_clock::now().time_since_epoch());
}

} // namespace

FileProgress::FileProgress(QWidget& itsWindow) : FileProgress(itsWindow, &SystemTime)
{
}

FileProgress::FileProgress(QWidget& itsWindow, Clock itsClock) : window(itsWindow), clock(std::move(itsClock))
{
}

FileProgress::~FileProgress() = default;

void FileProgress::Begin(FileWork itsWork, const std::filesystem::path& itsFile)
{
    work = itsWork;
    file = itsFile;
    beginning = clock();
}

ReferenceHost::ProgressAnswer FileProgress::Tell(const ReferenceHost::Progress& progress)
{
    using ReferenceHost::ProgressAnswer;
    if (dialog == nullptr)
    {
        if (clock() - beginning < kPatience)
            return ProgressAnswer::GoOn;
        Show();
    }
    ShowPhase(progress.phase);
    // Zero would mean to wait once more before anything is shown.
    dialog->setValue(std::max(1, static_cast<int>(progress.fraction * kEnd)));
    return dialog->wasCanceled() ? ProgressAnswer::Stop : ProgressAnswer::GoOn;
}

void FileProgress::End()
{
    dialog.reset();
    shownPhase.reset();
}

void FileProgress::Show()
{
    dialog = std::make_unique<QProgressDialog>(QString(), TextOf(L"window.cancel"), 0, kEnd, &window);
    dialog->setObjectName(QStringLiteral("file-progress"));
    dialog->setWindowTitle(
        TextOf(work == FileWork::Opening ? L"window.progress.opening" : L"window.progress.saving",
               PathToQString(file.filename())));
    dialog->setWindowModality(Qt::ApplicationModal);
    dialog->setMinimumDuration(0);
    dialog->setAutoClose(false);
    dialog->setAutoReset(false);
    constexpr int kWidth = 360;
    dialog->setMinimumWidth(kWidth);
    // The pointer says that there is something to click after all.
    if (QGuiApplication::overrideCursor() != nullptr)
        QGuiApplication::changeOverrideCursor(Qt::BusyCursor);
}

void FileProgress::ShowPhase(ReferenceHost::ProgressPhase phase)
{
    if (shownPhase == phase)
        return;
    shownPhase = phase;
    dialog->setLabelText(TextOf(kPhaseTexts.at(static_cast<std::size_t>(phase))));
}

} // namespace Desktop
