#pragma once

#include "apps/desktop/rows/RowControl.h"

class QComboBox;

namespace Desktop
{

/// A field for a text, with a list of the names that the drawing defines where the row holds such a name.
class TextControl final : public RowControl
{
    Q_OBJECT

public:
    TextControl(RowOffers itsOffers, QWidget* parent);

    void ShowRow(const Workbench::RowReport& row) override;

private:
    void OfferNames();
    void TakeText();

    RowOffers offers;
    QComboBox* field; ///< Owned by this.
    QString shown;
    bool isTyped = false; ///< A person typed since the text was shown.
};

} // namespace Desktop
