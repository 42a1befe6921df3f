#pragma once

#include "host/utils/OvxStringT.h"
#include "reference_host/document/Drawing.h"
#include "reference_host/services/IDocumentEditor.h"
#include "reference_host/services/IDocumentStyles.h"

#include <vector>

namespace Workbench
{

/// The styles of a drawing as the application asks for them, and how they are changed. Borrows the drawing.
class DrawingStyles : public ReferenceHost::IDocumentStyles, public ReferenceHost::IDocumentEditor
{
public:
    explicit DrawingStyles(ReferenceHost::Drawing& openDrawing) : drawing(&openDrawing) {}

    DrawingStyles(const DrawingStyles&) = delete;
    DrawingStyles& operator=(const DrawingStyles&) = delete;
    virtual ~DrawingStyles() = default;

    Styles::StyleSheet* GetStyleSheet() override;

    /// A style sheet outside the drawing that it links to.
    Styles::StyleSheet* GetExternalStyleSheet(const OvxStringT& sheetName) override;

    /// The one default style of the drawing.
    std::vector<Styles::Style*> GetDefaultStyles() override;

    [[nodiscard]] bool IsHidden(const OvxStringT& styleName) const override;
    [[nodiscard]] OvxStringT GetDisplayName(const OvxStringT& styleName) const override;

    /// The number is the address of the object.
    Styles::Style* GetObjectStyle(std::size_t object) override;

    ReferenceHost::IDocumentEditor* GetEditor() override { return this; }

    ReferenceHost::History& GetHistory() override;
    Styles::Style* AddStyle(const Styles::PropertyKey& category, const OvxStringT& name) override;
    bool RenameStyle(const OvxStringT& name, const OvxStringT& newName) override;

private:
    ReferenceHost::Drawing* drawing;
};

} // namespace Workbench
