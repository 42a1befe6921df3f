#pragma once

class IOrvexCmn_App;
class StylesCommon;

/// What a test asks of a module that uses StylesCommon as a panel module does.
///
/// The operations of the template run in the module's own code, those of the class in the library's: two
/// modules of the process, each with its own way to the one instance.
struct StylesCommonModule
{
    StylesCommon* (*instance)();                  ///< Through the module's own template.
    StylesCommon* (*instanceOfLibrary)();         ///< Through the class.
    bool (*hasInstance)();                        ///< Through the module's own template.
    bool (*hasInstanceOfLibrary)();               ///< Through the class.
    void (*releaseInstance)(bool final);          ///< Through the module's own template.
    void (*releaseInstanceOfLibrary)(bool final); ///< Through the class.
    void (*initialize)(IOrvexCmn_App* app);       ///< Of the instance that the module's own template gives.
    IOrvexCmn_App* (*app)();                      ///< Through the class.
    void (*useFallbacks)(); ///< Makes the library's own services, the preset manager included.
};

/// The name under which such a module exports a function of this type.
inline constexpr const char* kStylesCommonModuleEntry = "GetStylesCommonModule";

using StylesCommonModuleEntry = const StylesCommonModule* (*)();
