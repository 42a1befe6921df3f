#pragma once

#include <string>

namespace Desktop
{

/// Lets what the toolkit brings speak the language in force too: the dialog for colours and the titles of
/// docks by the catalogues, all else, such as its dialog for files, as far as the toolkit's own translations
/// are installed. Call it after that language was put in force.
void TranslateToolkit(const std::string& language);

} // namespace Desktop
