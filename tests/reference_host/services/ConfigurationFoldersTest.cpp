#include "host/services/ConfigurationFolders.h"

#include "reference_host/services/NativePaths.h"
#include "reference_host/services/PresetManager.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <string>

namespace
{

/// A home folder for the length of a test, and an environment that points at it.
class UserFolders : public ::testing::Test
{
protected:
    UserFolders()
    {
        std::filesystem::create_directories(home / ".config");
        Set("HOME", home.string().c_str());
        for (const char* name : {"XDG_CONFIG_HOME", "STYLEPROPS_CONFIG_DIR"})
            Set(name, nullptr);
    }

    ~UserFolders() override
    {
        for (const auto& [name, value] : saved)
            Change(name.c_str(), value ? value->c_str() : nullptr);
        std::filesystem::remove_all(home);
    }

    void Set(const char* name, const char* value)
    {
        const char* before = std::getenv(name);
        saved.try_emplace(name, before == nullptr ? std::nullopt : std::optional<std::string>(before));
        Change(name, value);
    }

    void WriteUserDirs(const std::string& content) const
    {
        std::ofstream(home / ".config/user-dirs.dirs") << content;
    }

    static OvxStringT Text(const std::filesystem::path& path) { return ReferenceHost::PathToText(path); }

    std::filesystem::path home =
        std::filesystem::path(::testing::TempDir()) /
        (std::string("folders-") + ::testing::UnitTest::GetInstance()->current_test_info()->name());

private:
    static void Change(const char* name, const char* value)
    {
        if (value == nullptr)
            unsetenv(name);
        else
            setenv(name, value, 1);
    }

    std::map<std::string, std::optional<std::string>> saved;
};

class OpenPresetManager : public ReferenceHost::PresetManager
{
public:
    using PresetManager::GetCustomConfigurationDirectory;
    using PresetManager::GetPresetFileName;
    using PresetManager::GetPresetFolder;
    using PresetManager::GetPresetFormat;
    using PresetManager::GetUserDocumentsDirectory;
};

} // namespace

TEST_F(UserFolders, KeepTheConfigurationBelowTheHomeFolder)
{
    EXPECT_EQ(INIGetCustomDir(), Text(home / ".config/styleprops"));
}

TEST_F(UserFolders, KeepTheConfigurationWhereTheDesktopKeepsIt)
{
    Set("XDG_CONFIG_HOME", "/etc/configuration");

    EXPECT_EQ(INIGetCustomDir(), OvxStringT(L"/etc/configuration/styleprops"));
}

TEST_F(UserFolders, PassOverARelativeConfigurationHome)
{
    Set("XDG_CONFIG_HOME", "configuration");

    EXPECT_EQ(INIGetCustomDir(), Text(home / ".config/styleprops"));
}

TEST_F(UserFolders, KeepTheConfigurationWhereTheyAreToldTo)
{
    Set("XDG_CONFIG_HOME", "/etc/configuration");
    Set("STYLEPROPS_CONFIG_DIR", "/tmp/elsewhere");

    EXPECT_EQ(INIGetCustomDir(), OvxStringT(L"/tmp/elsewhere"));
}

TEST_F(UserFolders, PassOverEmptyVariables)
{
    Set("XDG_CONFIG_HOME", "");
    Set("STYLEPROPS_CONFIG_DIR", "");

    EXPECT_EQ(INIGetCustomDir(), Text(home / ".config/styleprops"));
}

TEST_F(UserFolders, KeepDocumentsBelowTheHomeFolder)
{
    EXPECT_EQ(GetUserDocumentsOrvexSuiteDir(), Text(home / "Documents/Style Properties"));
}

TEST_F(UserFolders, KeepDocumentsWhereTheDesktopKeepsThem)
{
    WriteUserDirs("# folders\nXDG_MUSIC_DIR=\"$HOME/Music\"\nXDG_DOCUMENTS_DIR=\"$HOME/My Papers\"\n");

    EXPECT_EQ(GetUserDocumentsOrvexSuiteDir(), Text(home / "My Papers/Style Properties"));
}

TEST_F(UserFolders, KeepDocumentsInAnAbsoluteFolder)
{
    WriteUserDirs("XDG_DOCUMENTS_DIR=\"/srv/papers\"\n");

    EXPECT_EQ(GetUserDocumentsOrvexSuiteDir(), OvxStringT(L"/srv/papers/Style Properties"));
}

TEST_F(UserFolders, PassOverARelativeFolderForDocuments)
{
    WriteUserDirs("XDG_DOCUMENTS_DIR=\"papers\"\n");

    EXPECT_EQ(GetUserDocumentsOrvexSuiteDir(), Text(home / "Documents/Style Properties"));
}

TEST_F(UserFolders, AreWhatThePresetManagerIsToldOf)
{
    OpenPresetManager presets;

    EXPECT_EQ(presets.GetCustomConfigurationDirectory(), Text(home / ".config/styleprops"));
    EXPECT_EQ(presets.GetUserDocumentsDirectory(), Text(home / "Documents/Style Properties"));
}

TEST_F(UserFolders, HoldPresetsByCategoryBelowTheConfiguration)
{
    OpenPresetManager presets;

    ASSERT_TRUE(presets.AddPreset(L"FillPresets", L"Sunset", Styles::Style(), /*replace=*/false));

    const OvxStringT folder =
        presets.GetPresetFolder(Styles::PresetLocation::CustomConfiguration, L"FillPresets");
    const OvxStringT file = presets.GetPresetFileName(Styles::PresetLocation::CustomConfiguration, L"Sunset");
    EXPECT_TRUE(std::filesystem::exists(home / ".config/styleprops" / ReferenceHost::PathFromText(folder) /
                                        ReferenceHost::PathFromText(file + L".preset")));
    EXPECT_NE(presets.LoadPreset(L"FillPresets", L"Sunset"), nullptr);
}

TEST_F(UserFolders, HoldNoPresetsAmongDocuments)
{
    OpenPresetManager presets;

    EXPECT_TRUE(presets.GetPresetFolder(Styles::PresetLocation::UserDocuments, L"FillPresets").empty());
    EXPECT_TRUE(presets.GetPresetFileName(Styles::PresetLocation::UserDocuments, L"Sunset").empty());
}

TEST(NativePaths, KeepTextsBeyondAscii)
{
    const OvxStringT text = L"/tmp/F\x00fcllung";

    EXPECT_EQ(ReferenceHost::PathToText(ReferenceHost::PathFromText(text)), text);
    EXPECT_EQ(ReferenceHost::PathToUtf8(ReferenceHost::PathFromText(text)), "/tmp/F\xc3\xbcllung");
}
