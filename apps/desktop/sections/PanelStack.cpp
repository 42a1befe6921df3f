#include "apps/desktop/sections/PanelStack.h"

#include "apps/desktop/sections/PanelSection.h"

#include <QVBoxLayout>

#include <algorithm>

namespace Desktop
{

PanelStack::PanelStack(Document& itsDocument, WindowDialogs& itsDialogs, QWidget* parent)
    : QScrollArea(parent), document(itsDocument), dialogs(itsDialogs)
{
    setWidgetResizable(true);
    // What is in it takes the keyboard.
    setFocusPolicy(Qt::NoFocus);
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
        sections.push_back(section);
        layout->addWidget(section);
    }
    layout->addStretch(1);
    SetClosed(closed);
    AlignLabels();
    setWidget(content);
    // Its own scroll bar takes its room from the width, never from the panels.
    setMinimumWidth(content->minimumSizeHint().width() + 24);
}

QStringList PanelStack::GetClosed() const
{
    QStringList names;
    for (const PanelSection* const section : sections)
    {
        if (!section->IsOpen())
            names.append(section->GetName());
    }
    return names;
}

void PanelStack::SetClosed(const QStringList& names)
{
    for (PanelSection* const section : sections)
        section->SetOpen(!names.contains(section->GetName()));
}

void PanelStack::Clear()
{
    if (!sections.empty())
        closed = GetClosed();
    sections.clear();
    delete takeWidget();
}

void PanelStack::Refresh()
{
    for (PanelSection* const section : sections)
        section->Refresh();
}

void PanelStack::AlignLabels()
{
    int width = 0;
    for (const PanelSection* const section : sections)
        width = std::max(width, section->GetLabelWidth());
    for (PanelSection* const section : sections)
        section->SetLabelWidth(width);
}

} // namespace Desktop
