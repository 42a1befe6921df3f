#pragma once

#include "apps/desktop/IFileProgress.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

class QProgressDialog;
class QWidget;

namespace Desktop
{

/// A dialog with a bar and a button to cancel, for work that takes longer than half a second.
///
/// It blocks all windows, so that nothing else can be done meanwhile. Events are let happen only while it is
/// there.
class FileProgress final : public IFileProgress
{
public:
    /// Tells the time, from whatever beginning.
    using Clock = std::function<std::chrono::milliseconds()>;

    /// How long a person waits without being told anything.
    static constexpr std::chrono::milliseconds kPatience{500};

    /// By the clock of the system. Borrows the window that the dialog belongs to.
    explicit FileProgress(QWidget& itsWindow);

    FileProgress(QWidget& itsWindow, Clock itsClock);
    ~FileProgress() override;

    void Begin(FileWork itsWork, const std::filesystem::path& itsFile) override;
    ReferenceHost::ProgressAnswer Tell(const ReferenceHost::Progress& progress) override;
    void End() override;

private:
    void Show();
    void ShowPhase(ReferenceHost::ProgressPhase phase);

    QWidget& window;
    Clock clock;
    FileWork work = FileWork::Opening;
    std::filesystem::path file;
    std::chrono::milliseconds beginning{};
    std::optional<ReferenceHost::ProgressPhase> shownPhase;
    std::unique_ptr<QProgressDialog> dialog; ///< Null while nothing is shown.
};

} // namespace Desktop
