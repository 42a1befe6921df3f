#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>

namespace Desktop
{

/// What the program is started with.
struct WindowOptions
{
    QString file;        ///< Empty for none.
    QString selector;    ///< What is selected at first; empty for the document defaults.
    int page = 1;        ///< Which page is shown at first.
    QSize size;          ///< How large the window is; invalid for as large as it wants to be.
    QString opened;      ///< What is open in the picture; empty for nothing.
    QString screenshot;  ///< Where a picture of the window goes, without showing it; empty for none.
    QString panelFolder; ///< Empty for that which is found.
    QString language;    ///< Empty for the person's.
};

/// What reading a command line gives: options, or a text that ends the program.
struct WindowCommand
{
    std::optional<WindowOptions> options;
    QString text; ///< Help, version, or what is wrong.
    int status = 0;
};

/// Reads a command line, whose first word is the program.
[[nodiscard]] WindowCommand ReadWindowOptions(const QStringList& arguments);

} // namespace Desktop
