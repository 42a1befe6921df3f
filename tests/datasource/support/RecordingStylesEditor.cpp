#include "tests/datasource/support/RecordingStylesEditor.h"

#include "tests/datasource/support/Description.h"

void RecordingStylesEditor::EditStyle(const OvxStringT& name, bool select, bool show)
{
    log.Add("editor.EditStyle(" + Describe(name) + ", select=" + DescribeFlag(select) +
            ", show=" + DescribeFlag(show) + ")");
}
