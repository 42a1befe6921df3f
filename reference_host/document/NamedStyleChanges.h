#pragma once

#include "reference_host/document/NamedStyles.h"
#include "reference_host/history/IDocumentChange.h"
#include "reference_host/style_model/IStyleJournal.h"
#include "reference_host/style_model/NamedStyleSheet.h"

#include "host/style_model/Style.h"
#include "host/utils/OvxStringT.h"

#include <cstddef>
#include <memory>

namespace ReferenceHost
{

/// A named style comes, behind all others. While it is undone the style is kept here.
class NamedStyleAddition final : public IDocumentChange
{
public:
    /// Borrows sheet and journal, which is to hear of the changes to the style. The name is free.
    NamedStyleAddition(NamedStyleSheet& target, IStyleJournal& itsJournal, const OvxStringT& itsName,
                       std::unique_ptr<Styles::Style> newStyle);

    void Redo() override;
    void Undo() override;

private:
    NamedStyleSheet& sheet;
    IStyleJournal& journal;
    OvxStringT name;
    std::size_t place;
    std::unique_ptr<Styles::Style> style; ///< Null while the style is in the sheet.
};

/// A named style gets another name. People see the new name from then on, whatever they saw before.
class NamedStyleRenaming final : public IDocumentChange
{
public:
    /// Borrows sheet and appearances. The new name is free.
    NamedStyleRenaming(NamedStyleSheet& target, StyleAppearances& appearanceTarget, const OvxStringT& from,
                       const OvxStringT& to);

    void Redo() override;
    void Undo() override;

private:
    NamedStyleSheet& sheet;
    StyleAppearances& appearances;
    OvxStringT oldName;
    OvxStringT newName;
    StyleAppearance oldAppearance;
};

} // namespace ReferenceHost
