#include "apps/desktop/sections/PanelStack.h"

#include "apps/desktop/sections/PanelSection.h"

#include <QVBoxLayout>

namespace Desktop
{

PanelStack::PanelStack(Document& itsDocument, WindowDialogs& itsDialogs, QWidget* parent)
    : QScrollArea(parent), document(itsDocument), dialogs(itsDialogs)
{
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(&document, &Document::closing, this, &PanelStack::Clear);
    connect(&document, &Document::opened, this, &PanelStack::Rebuild);
    connect(&document, &Document::changed, this, &PanelStack::Refresh);
    connect(&document, &Document::selectionChanged, this, &PanelStack::Refresh);
    Rebuild();
}

void PanelStack::Rebuild()
{
    Clear();
    auto* const content = new QWidget;
    auto* const layout = new QVBoxLayout(content);
    layout->setContentsMargins(4, 4, 4, 4);
    for (const auto& panel : document.GetSession().GetPanels())
    {
        auto* const section = new PanelSection(document, dialogs, *panel, content);
        section->SetOpen(!closed.contains(sections.size()));
        sections.push_back(section);
        layout->addWidget(section);
    }
    layout->addStretch(1);
    setWidget(content);
    // Its own scroll bar takes its room from the width, never from the panels.
    setMinimumWidth(content->minimumSizeHint().width() + 24);
}

void PanelStack::Clear()
{
    if (!sections.empty())
        closed.clear();
    for (std::size_t index = 0; index < sections.size(); ++index)
    {
        if (!sections[index]->IsOpen())
            closed.insert(index);
    }
    sections.clear();
    delete takeWidget();
}

void PanelStack::Refresh()
{
    for (PanelSection* const section : sections)
        section->Refresh();
}

} // namespace Desktop
