#include "apps/desktop/EditedBox.h"

#include "apps/desktop/StyleTree.h"
#include "apps/desktop/WindowText.h"

#include <QLabel>
#include <QRadioButton>
#include <QStringList>
#include <QVBoxLayout>

namespace Desktop
{

using Workbench::SelectorScope;

EditedBox::EditedBox(Document& itsDocument, QWidget* parent) : QWidget(parent), document(itsDocument)
{
    MakeChoices();
    MakeStyles();
    auto* const layout = new QVBoxLayout(this);
    for (QWidget* const each :
         {static_cast<QWidget*>(objects), static_cast<QWidget*>(defaults), static_cast<QWidget*>(named)})
        layout->addWidget(each);
    layout->addWidget(styles, 1);
    layout->addWidget(chain);
    connect(&document, &Document::closing, this, [this] { lastObjects.clear(); });
    connect(&document, &Document::opened, this, &EditedBox::Refresh);
    connect(&document, &Document::changed, this, &EditedBox::Refresh);
    connect(&document, &Document::selectionChanged, this, &EditedBox::ShowSelection);
    Refresh();
}

void EditedBox::Refresh()
{
    styles->ShowStyles(document.GetSession().GetStyles().DescribeNamedStyles());
    ShowSelection();
}

void EditedBox::MakeChoices()
{
    objects = new QRadioButton(this);
    objects->setObjectName(QStringLiteral("edited.objects"));
    defaults = new QRadioButton(TextOf(L"window.edited.defaults"), this);
    defaults->setObjectName(QStringLiteral("edited.defaults"));
    named = new QRadioButton(TextOf(L"window.edited.named"), this);
    named->setObjectName(QStringLiteral("edited.named"));
    connect(objects, &QRadioButton::clicked, this, &EditedBox::TakeObjects);
    connect(defaults, &QRadioButton::clicked, this, [this] { document.Select(L"defaults"); });
    connect(named, &QRadioButton::clicked, this,
            [this]
            {
                styles->setFocus();
                if (styles->topLevelItemCount() > 0)
                    styles->setCurrentItem(styles->topLevelItem(0));
                else
                    ShowSelection();
            });
}

void EditedBox::MakeStyles()
{
    styles = new StyleTree(this);
    styles->setObjectName(QStringLiteral("edited.styles"));
    chain = new QLabel(this);
    chain->setObjectName(QStringLiteral("edited.chain"));
    chain->setWordWrap(true);
    connect(styles, &StyleTree::styleChosen, this,
            [this](const OvxStringT& name) { document.Select(OvxStringViewT(L"sheet:") + name); });
    connect(styles, &StyleTree::usersWanted, this,
            [this](const OvxStringT& name)
            {
                if (!document.SelectUsersOf(name))
                    emit document.noted(TextOf(L"window.styles.no-users"));
            });
}

void EditedBox::ShowSelection()
{
    const Workbench::Selection& selection = document.GetEditor().GetSelection();
    if (selection.scope == SelectorScope::Objects)
        lastObjects = selection.objects;
    objects->setText(TextOf(L"window.edited.objects", QString::number(lastObjects.size())));
    objects->setEnabled(!lastObjects.empty());
    objects->setChecked(selection.scope == SelectorScope::Objects);
    defaults->setChecked(selection.scope == SelectorScope::Defaults);
    named->setChecked(selection.scope == SelectorScope::Sheet);
    styles->MarkStyle(selection.styleName);
    chain->setText(DescribeChain());
    chain->setVisible(!chain->text().isEmpty());
}

/// The style that is edited, or that all selected objects have, and what it inherits from.
QString EditedBox::DescribeChain() const
{
    const Workbench::TargetHandover& handover = document.GetSession().GetStyles();
    const Workbench::Selection& selection = document.GetEditor().GetSelection();
    OvxStringT style = selection.styleName;
    if (!selection.objects.empty())
        style = handover.NamedStyleOf(*selection.objects.front());
    for (ReferenceHost::DrawingObject* const object : selection.objects)
    {
        if (handover.NamedStyleOf(*object) != style)
            return TextOf(L"window.edited.several-styles");
    }
    if (style.empty())
        return {};
    QStringList names{ToQString(document.GetSession().GetDrawing().GetDisplayName(style))};
    for (const OvxStringT& ancestor : handover.AncestorsOf(style))
        names.append(ToQString(document.GetSession().GetDrawing().GetDisplayName(ancestor)));
    return names.join(QStringLiteral(" \u2192 "));
}

void EditedBox::TakeObjects()
{
    document.SelectObjects(lastObjects);
}

} // namespace Desktop
