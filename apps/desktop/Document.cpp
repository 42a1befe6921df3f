#include "apps/desktop/Document.h"

#include "apps/desktop/WindowText.h"
#include "apps/workbench/Selector.h"
#include "reference_host/history/History.h"

#include <QCursor>
#include <QGuiApplication>

#include <exception>
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
    Begin(std::make_unique<Workbench::Session>(panels.panels), {});
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
    const WaitingPointer waiting;
    const bool isOpen = Attempt(
        [&]
        {
            // There is one session at a time, so a file that cannot be read is found out before the drawing
            // that is open has to go.
            std::vector<std::string> ignored;
            static_cast<void>(ReferenceHost::Drawing::Open(file, ignored));
            End();
            Begin(std::make_unique<Workbench::Session>(file, panels.panels), file);
        });
    if (session == nullptr)
        Begin(std::make_unique<Workbench::Session>(panels.panels), {});
    return isOpen;
}

bool Document::Save(const std::filesystem::path& target)
{
    const WaitingPointer waiting;
    const bool isSaved = Attempt(
        [&]
        {
            std::vector<std::string> told;
            const std::vector<std::filesystem::path> sheets = editor->Save(target, keepsBackup, told);
            warnings = ToQStrings(told);
            path = target;
            savedStep = editor->GetStepCount();
            emit noted(DescribeWritten(target, sheets));
        });
    emit fileChanged();
    return isSaved;
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

bool Document::Attempt(const std::function<void()>& work)
{
    try
    {
        work();
        return true;
    }
    catch (const std::exception& error)
    {
        emit failed(QString::fromStdString(error.what()));
        return false;
    }
}

void Document::Begin(std::unique_ptr<Workbench::Session> newSession, const std::filesystem::path& file)
{
    session = std::move(newSession);
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
