#pragma once

#include "host/Export.h"
#include "host/style_model/PropertyPath.h"
#include "host/style_model/Style.h"

class BaseStylePropertiesDatasource;

/// A panel's own way of writing, which takes the place of the style source's modifier.
///
/// One applicator may serve several data sources; each passes the id it was given.
class STYLEPROPERTIES_HOST_API IStyleApplicator
{
public:
    /// Tells which data source serves `id`. Called once, when the data source is complete; borrowed.
    virtual void AttachDataSource(int id, BaseStylePropertiesDatasource* dataSource) = 0;

    /// Applies a change. `changeStyle` is borrowed for the call and may be null; `overridePaths` may be null;
    /// `toDefaultStyles` tells that the targets are the document's default styles.
    virtual void ModifyStyles(int id, const Styles::PropertyPaths& paths, Styles::Style* changeStyle,
                              const Styles::PropertyPaths* overridePaths, bool toDefaultStyles) = 0;

    /// The path from a target style to the substyle that the panel edits; may be empty.
    virtual Styles::PropertyPath GetTargetPath(int id) = 0;

protected:
    ~IStyleApplicator() = default;
};
