#include "apps/desktop/Document.h"

#include "apps/desktop/WindowText.h"
#include "apps/workbench/Selector.h"
#include "reference_host/document/OverwriteRefusal.h"
#include "reference_host/history/History.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScopedValueRollback>

#include <exception>
#include <optional>
#include <string>
#include <utility>

namespace Desktop
{
namespace
{

/// The pointer that says to wait, for as long as it lives.
struct WaitingPointer
{
    WaitingPointer() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }

    WaitingPointer(const WaitingPointer&) = delete;
    WaitingPointer& operator=(const WaitingPointer&) = delete;

    ~WaitingPointer() { QGuiApplication::restoreOverrideCursor(); }
};

/// Shows how far something is, for as long as it lives.
class ShownProgress
{
public:
    ShownProgress(IFileProgress* shown, FileWork work, const std::filesystem::path& file) : progress(shown)
    {
        if (progress != nullptr)
            progress->Begin(work, file);
    }

    ShownProgress(const ShownProgress&) = delete;
    ShownProgress& operator=(const ShownProgress&) = delete;

    ~ShownProgress()
    {
        if (progress != nullptr)
            progress->End();
    }

    [[nodiscard]] ReferenceHost::ProgressListener Listener() const
    {
        if (progress == nullptr)
            return {};
        return [shown = progress](const ReferenceHost::Progress& now) { return shown->Tell(now); };
    }

private:
    IFileProgress* progress;
};

/// A listener to one of several operations that follow each other, which stands for that share of all.
ReferenceHost::ProgressListener ShareOf(const ReferenceHost::ProgressListener& all, double from, double to)
{
    if (!all)
        return {};
    return [&all, from, to](const ReferenceHost::Progress& part) {
        return all({part.phase, from + (to - from) * part.fraction});
    };
}

QStringList ToQStrings(const std::vector<std::string>& lines)
{
    QStringList list;
    for (const std::string& line : lines)
        list.append(QString::fromStdString(line));
    return list;
}

QString DescribeWritten(const std::filesystem::path& drawing,
                        const std::vector<std::filesystem::path>& sheets)
{
    QStringList files;
    for (const std::filesystem::path& sheet : sheets)
        files.append(TextOf(L"edit.saved-sheet", PathToQString(sheet)));
    files.append(TextOf(L"edit.saved", PathToQString(drawing)));
    return files.join(QLatin1String("; "));
}

OvxStringT QuestionOf(const ReferenceHost::OverwriteRefusal& refusal)
{
    const std::string reason = refusal.GetWhere() + ": " + refusal.GetProblem();
    return FromQString(TextOf(L"window.overwrite", QString::fromStdString(reason)));
}

/// The selector that finds just these.
OvxStringT SelectorOf(ReferenceHost::Drawing& drawing,
                      const std::vector<ReferenceHost::DrawingObject*>& objects)
{
    std::size_t all = 0;
    for (const ReferenceHost::DrawingObject& object : drawing.GetObjects())
        all += object.IsGroup() ? 0U : 1U;
    if (objects.empty())
        return L"defaults";
    if (objects.size() == all)
        return L"all";
    OvxStringT selector;
    for (const ReferenceHost::DrawingObject* object : objects)
    {
        selector += selector.empty() ? L"id:" : L",id:";
        selector += object->GetId();
    }
    return selector;
}

} // namespace

Document::Document(Workbench::PanelFolder itsPanels, Workbench::IDialogAnswers& itsAnswers)
    : panels(std::move(itsPanels)), answers(itsAnswers)
{
    BeginBlank();
}

Document::~Document()
{
    End();
}

bool Document::IsModified() const
{
    return savedStep != editor->GetStepCount();
}

bool Document::Open(const std::filesystem::path& file)
{
    // There is one session at a time: whatever may fail, or be cancelled, comes before the drawing that is
    // open has to go.
    Workbench::Session::OpenedDrawing opening;
    ReferenceHost::DrawingPicture newPicture;
    const auto read = [&](const ReferenceHost::ProgressListener& listener)
    {
        constexpr double kOpened = 0.6;
        opening = Workbench::Session::OpenDrawing(file, panels.panels, ShareOf(listener, 0, kOpened));
        newPicture = opening.drawing->ReadPicture(ShareOf(listener, kOpened, 1));
    };
    if (!AttemptOnFile(FileWork::Opening, file, read))
        return false;
    return Attempt([&] { Replace(std::move(opening), file, std::move(newPicture)); });
}

/// What fails is told when there is a drawing again.
void Document::Replace(Workbench::Session::OpenedDrawing opening, const std::filesystem::path& file,
                       ReferenceHost::DrawingPicture newPicture)
{
    const WaitingPointer waiting;
    End();
    try
    {
        Begin(std::make_unique<Workbench::Session>(std::move(opening)), file, std::move(newPicture));
    }
    catch (const std::exception&)
    {
        End();
        BeginBlank();
        throw;
    }
}

bool Document::Save(const std::filesystem::path& target)
{
    std::optional<ReferenceHost::OverwriteRefusal> refusal;
    const auto save = [&](const ReferenceHost::ProgressListener& listener)
    {
        try
        {
            Write(target, {.keepBackup = keepsBackup, .progress = listener});
        }
        catch (const ReferenceHost::OverwriteRefusal& error)
        {
            refusal = error;
        }
    };
    const auto saveAllTheSame = [&](const ReferenceHost::ProgressListener& listener)
    { Write(target, {.keepBackup = keepsBackup, .force = true, .progress = listener}); };

    bool isSaved = AttemptOnFile(FileWork::Saving, target, save) && !refusal;
    // Nothing is shown any more of the first attempt.
    if (refusal)
        isSaved =
            answers.Confirm(QuestionOf(*refusal)) && AttemptOnFile(FileWork::Saving, target, saveAllTheSame);
    emit fileChanged();
    return isSaved;
}

void Document::Write(const std::filesystem::path& target, const ReferenceHost::SaveOptions& options)
{
    std::vector<std::string> told;
    const std::vector<std::filesystem::path> sheets = editor->Save(target, options, told);
    warnings = ToQStrings(told);
    path = target;
    savedStep = editor->GetStepCount();
    emit noted(DescribeWritten(target, sheets));
}

bool Document::Edit(const Edits& edits)
{
    const bool isDone = Attempt([&] { edits(*editor); });
    Settle();
    return isDone;
}

bool Document::Select(const OvxStringT& selector)
{
    return Attempt([&] { SelectInForce(selector); });
}

bool Document::SelectObjects(const std::vector<ReferenceHost::DrawingObject*>& objects)
{
    return Select(SelectorOf(session->GetDrawing(), objects));
}

bool Document::SelectUsersOf(const OvxStringT& styleName)
{
    std::vector<ReferenceHost::DrawingObject*> users;
    for (ReferenceHost::DrawingObject& object : session->GetDrawing().GetObjects())
    {
        if (!object.IsGroup() && session->GetStyles().NamedStyleOf(object) == styleName)
            users.push_back(&object);
    }
    return !users.empty() && SelectObjects(users);
}

void Document::BeginDrag()
{
    if (!editor->IsGroupOpen())
        Attempt([&] { editor->BeginGroup(); });
}

void Document::Drag(const Edits& edits)
{
    // A drag that failed has ended already, whatever the person goes on to do.
    if (!editor->IsGroupOpen())
        return;
    if (!Attempt([&] { edits(*editor); }))
        EndDrag(false);
    emit previewed();
}

void Document::EndDrag(bool commit)
{
    if (!editor->IsGroupOpen())
        return;
    Attempt([&] { editor->EndGroup(commit); });
    Settle();
}

void Document::Undo()
{
    Attempt([&] { editor->Undo(); });
    lastStep = editor->GetStepCount();
    emit changed();
    emit fileChanged();
}

void Document::Redo()
{
    Attempt([&] { editor->Redo(); });
    lastStep = editor->GetStepCount();
    emit changed();
    emit fileChanged();
}

QString Document::GetUndoName() const
{
    return ToQString(session->GetDrawing().GetHistory().GetUndoName());
}

QString Document::GetRedoName() const
{
    return ToQString(session->GetDrawing().GetHistory().GetRedoName());
}

/// What shows the progress of opening and saving lets events happen: nothing that they lead to may get in
/// between.
bool Document::Attempt(const std::function<void()>& work)
{
    if (isBusy)
        return false;
    try
    {
        work();
        return true;
    }
    catch (const ReferenceHost::OperationCancelled&)
    {
        emit noted(TextOf(L"window.cancelled"));
        return false;
    }
    catch (const std::exception& error)
    {
        emit failed(QString::fromStdString(error.what()));
        return false;
    }
}

bool Document::AttemptOnFile(FileWork work, const std::filesystem::path& file, const FileSteps& steps)
{
    return Attempt(
        [&]
        {
            const QScopedValueRollback<bool> busy(isBusy, true);
            const WaitingPointer waiting;
            const ShownProgress shown(progress, work, file);
            steps(shown.Listener());
        });
}

ReferenceHost::DrawingPicture Document::TakePicture()
{
    return std::exchange(picture, {});
}

void Document::BeginBlank()
{
    auto blank = std::make_unique<Workbench::Session>(panels.panels);
    ReferenceHost::DrawingPicture itsPicture = blank->GetDrawing().ReadPicture();
    Begin(std::move(blank), {}, std::move(itsPicture));
}

void Document::Begin(std::unique_ptr<Workbench::Session> newSession, const std::filesystem::path& file,
                     ReferenceHost::DrawingPicture newPicture)
{
    session = std::move(newSession);
    picture = std::move(newPicture);
    path = file;
    warnings = ToQStrings(panels.problems) + ToQStrings(session->GetWarnings()) +
               ToQStrings(session->LoadPanels(panels.panels));
    session->GetDialogs().SetAnswers(&answers);
    editor = std::make_unique<Workbench::Editor>(*session);
    editor->Select(Workbench::ParseSelector(L"defaults"));
    savedStep = lastStep = editor->GetStepCount();
    emit opened();
    emit selectionChanged();
    emit fileChanged();
}

void Document::End()
{
    emit closing();
    editor.reset();
    picture = {};
    session.reset();
}

/// Steps that are recorded take the place of those that were undone: when the file holds one of these, no
/// number of steps leads back to it.
void Document::Settle()
{
    const std::size_t step = editor->GetStepCount();
    if (step > lastStep && savedStep && *savedStep > lastStep)
        savedStep.reset();
    lastStep = step;
    emit changed();
    emit fileChanged();
}

void Document::SelectInForce(const OvxStringT& selector)
{
    editor->Select(Workbench::ParseSelector(selector));
    emit selectionChanged();
}

} // namespace Desktop
