#pragma once

#include <QDialog>
#include <QString>

class QLineEdit;

namespace Desktop
{

/// Asks for a name. Without one it cannot be accepted.
class NameDialog final : public QDialog
{
    Q_OBJECT

public:
    NameDialog(const QString& title, const QString& label, QWidget* parent);

    void SetName(const QString& name);
    [[nodiscard]] QString GetName() const;

private:
    QLineEdit* field; ///< Owned by this.
};

} // namespace Desktop
