#pragma once

namespace ReferenceHost
{

/// A change to a document beside the values of its styles: a style that comes or gets another name, a palette
/// entry.
///
/// Both operations are called in turn, Redo first, each with the document as the other left it. They tell no
/// journal.
class IDocumentChange
{
public:
    IDocumentChange() = default;
    IDocumentChange(const IDocumentChange&) = delete;
    IDocumentChange& operator=(const IDocumentChange&) = delete;
    virtual ~IDocumentChange() = default;

    virtual void Redo() = 0;
    virtual void Undo() = 0;
};

} // namespace ReferenceHost
