#pragma once

#include "apps/desktop/IFileProgress.h"
#include "apps/workbench/Editor.h"
#include "apps/workbench/IDialogAnswers.h"
#include "apps/workbench/PanelFolder.h"
#include "apps/workbench/Session.h"
#include "host/utils/OvxStringT.h"
#include "reference_host/document/picture/DrawingPicture.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace Desktop
{

/// The drawing of a window: what is open, what of it is edited, and whether it differs from its file.
///
/// There always is a drawing; at first, and where nothing could be opened, it is a blank one that lies in no
/// file. Tells everybody who listens of what happens to it; what fails is told in words and changes nothing.
class Document : public QObject
{
    Q_OBJECT

public:
    using Edits = std::function<void(Workbench::Editor&)>;

    /// `answers` is borrowed and outlives this: it is asked what the dialogs of panels ask, and whether to
    /// replace a file where that loses something.
    Document(Workbench::PanelFolder itsPanels, Workbench::IDialogAnswers& itsAnswers);
    ~Document() override;

    [[nodiscard]] Workbench::Session& GetSession() const noexcept { return *session; }

    [[nodiscard]] Workbench::Editor& GetEditor() const noexcept { return *editor; }

    /// Where the drawing is saved; empty for one that lies in no file.
    [[nodiscard]] const std::filesystem::path& GetPath() const noexcept { return path; }

    /// Tells whether the drawing differs from what was opened or saved last.
    [[nodiscard]] bool IsModified() const;

    /// Shows from now on how far opening and saving are, and lets them be cancelled; null, as at first, for
    /// nobody. Borrowed.
    void SetProgress(IFileProgress* shown) noexcept { progress = shown; }

    /// Tells whether a file is being opened or saved just now, which only what shows the progress can see.
    /// Until that is over, nothing else can be opened, saved or edited: it is refused without a word.
    [[nodiscard]] bool IsBusy() const noexcept { return isBusy; }

    /// What the drawing looks like, as it was read when the drawing was opened. Once after each opened().
    [[nodiscard]] ReferenceHost::DrawingPicture TakePicture();

    /// What was repaired or passed over when the drawing and its panels were loaded.
    [[nodiscard]] const QStringList& GetWarnings() const noexcept { return warnings; }

    /// Opens a file in place of the drawing. What was not saved is lost; one that cannot be read, and one
    /// that was cancelled, leaves the drawing that is open.
    ///
    /// @returns whether it did; if not, failed() told why, or noted() that it was cancelled.
    bool Open(const std::filesystem::path& file);

    /// Whether saving keeps what each file was beside it, with "~" behind its name.
    void SetKeepsBackup(bool isKept) noexcept { keepsBackup = isKept; }

    /// Saves the drawing, which lies in that file from then on, and tells in words which files were written.
    /// Where replacing a file would lose something, see ReferenceHost::OverwriteRefusal, it asks first.
    ///
    /// @returns whether it did; if not, failed() told why, noted() that it was cancelled, or the person did
    ///          not want to. The drawing is as modified as before then.
    bool Save(const std::filesystem::path& target);

    /// Lets `edits` change the drawing. What fails is told; listeners hear of a change in any case, so that
    /// controls show what is there.
    ///
    /// @returns whether nothing failed.
    bool Edit(const Edits& edits);

    /// Selects what edits are about.
    bool Select(const OvxStringT& selector);

    /// Selects objects, and the document defaults when there are none.
    bool SelectObjects(const std::vector<ReferenceHost::DrawingObject*>& objects);

    /// Selects all objects that have this named style.
    bool SelectUsersOf(const OvxStringT& styleName);

    // Drags

    /// Begins a drag: everything until its end is one step.
    void BeginDrag();

    /// Changes the drawing as part of the drag; the end tells listeners.
    void Drag(const Edits& edits);

    /// Ends the drag; without `commit` nothing of it stays. Without a drag nothing happens.
    void EndDrag(bool commit);

    void Undo();
    void Redo();

    [[nodiscard]] QString GetUndoName() const;
    [[nodiscard]] QString GetRedoName() const;

signals:
    /// Another drawing is open, whose objects and panels are new ones.
    void opened();

    /// The drawing before is about to go.
    void closing();

    /// Values, styles or presets may be others now.
    void changed();

    /// A drag goes on: the drawing looks otherwise.
    void previewed();

    /// Something else is edited now.
    void selectionChanged();

    /// The file, or that the drawing differs from it.
    void fileChanged();

    /// Something that a person may want to know, in words.
    void noted(const QString& message);

    /// What could not be done, and why.
    void failed(const QString& message);

private:
    using FileSteps = std::function<void(const ReferenceHost::ProgressListener& listener)>;

    bool Attempt(const std::function<void()>& work);
    void Write(const std::filesystem::path& target, const ReferenceHost::SaveOptions& options);
    bool AttemptOnFile(FileWork work, const std::filesystem::path& file, const FileSteps& steps);
    void Replace(Workbench::Session::OpenedDrawing opening, const std::filesystem::path& file,
                 ReferenceHost::DrawingPicture newPicture);
    void Begin(std::unique_ptr<Workbench::Session> newSession, const std::filesystem::path& file,
               ReferenceHost::DrawingPicture newPicture);
    void BeginBlank();
    void End();
    void Settle();
    void SelectInForce(const OvxStringT& selector);

    Workbench::PanelFolder panels;
    Workbench::IDialogAnswers& answers;
    std::unique_ptr<Workbench::Session> session; ///< Never null between calls.
    std::unique_ptr<Workbench::Editor> editor;   ///< Never null between calls; ends before the session.
    std::filesystem::path path;
    ReferenceHost::DrawingPicture picture; ///< Until it is taken.
    IFileProgress* progress = nullptr;
    bool isBusy = false;
    QStringList warnings;
    bool keepsBackup = false;
    std::optional<std::size_t> savedStep; ///< How many steps led to what the file holds; none for no number.
    std::size_t lastStep = 0;
};

} // namespace Desktop
