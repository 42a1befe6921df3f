#pragma once

#include "apps/desktop/rows/RowControl.h"

#include <QColor>
#include <QIcon>

class QToolButton;

namespace Desktop
{

/// A button that shows a colour and opens the palette of the drawing; behind that, any colour can be chosen,
/// with the drawing showing it meanwhile.
class ColourControl final : public RowControl
{
    Q_OBJECT

public:
    ColourControl(RowOffers itsOffers, QWidget* parent);

    void ShowRow(const Workbench::RowReport& row) override;

private:
    void FillMenu();
    void ChooseAny();

    RowOffers offers;
    QToolButton* button; ///< Owned by this.
    QColor shown;        ///< Invalid where the targets have no colour in common.
};

/// A small picture of a colour; crossed out for an invalid one.
[[nodiscard]] QIcon PaintSwatch(const QColor& colour);

} // namespace Desktop
