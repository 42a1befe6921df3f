#pragma once

#include "host/Export.h"
#include "host/style_model/IStyleSourceProvider.h"
#include "host/style_model/IStylesSource.h"

namespace ReferenceHost
{

/// Hands out the style source of the document that is active.
class STYLEPROPERTIES_HOST_API ActiveStyleSource : public IStyleSourceProvider
{
public:
    ActiveStyleSource() = default;
    ActiveStyleSource(const ActiveStyleSource&) = delete;
    ActiveStyleSource& operator=(const ActiveStyleSource&) = delete;
    virtual ~ActiveStyleSource();

    /// Borrowed until it is replaced; null for none.
    void SetSource(IStylesSource* active) noexcept;

    [[nodiscard]] IStylesSource* GetSource() const noexcept { return source; }

    /// Answers the identifier of IStylesSource.
    void QueryInterface(const InterfaceId& id, void** out) override;

private:
    IStylesSource* source = nullptr; ///< Borrowed; null while no document is active.
};

} // namespace ReferenceHost
