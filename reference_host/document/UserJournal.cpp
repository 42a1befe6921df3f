#include "reference_host/document/UserJournal.h"

#include "reference_host/document/CascadeStyles.h"
#include "reference_host/document/DrawingObject.h"
#include "reference_host/style_model/StyleData.h"

namespace ReferenceHost
{

void UserJournal::BeforeStoring(Styles::StyleData& data, const Styles::PropertyKey& key)
{
    MarkUser(data);
    next->BeforeStoring(data, key);
}

void UserJournal::BeforeChange(Styles::StyleData& data)
{
    MarkUser(data);
    next->BeforeChange(data);
}

void UserJournal::BeforePlacing(Styles::Style& owner, const Styles::PropertyKey& key)
{
    MarkUser(Styles::StyleData::Of(owner));
    next->BeforePlacing(owner, key);
}

void UserJournal::TakeRemoved(Styles::Style& owner, const Styles::PropertyKey& key,
                              std::unique_ptr<Styles::Style>& removed)
{
    MarkUser(Styles::StyleData::Of(owner));
    next->TakeRemoved(owner, key, removed);
}

void UserJournal::MarkUser(const Styles::StyleData& changed) const
{
    const Styles::StyleData* whole = &changed;
    while (whole->owner != nullptr)
        whole = &Styles::StyleData::Of(*whole->owner);
    if (DrawingObject* const object = styles.FindUser(*whole).object)
        object->wasChanged = true;
}

} // namespace ReferenceHost
