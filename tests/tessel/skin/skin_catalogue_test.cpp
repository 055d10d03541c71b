#include "tessel/skin/skin_catalogue.h"

#include <gtest/gtest.h>

#include <fstream>
#include <random>

namespace tessel {
namespace {

std::string SkinJson(const std::string& id, const std::string& name) {
  return "{\"id\":\"" + id + "\",\"name\":\"" + name + "\"}";
}

// Only ".json" files, by lower-cased name; a later skin of an id replaces the earlier in place;
// a file that doesn't read gives nothing.
TEST(LoadSkinFolder, LoadsFilesInOrderAndLaterSkinsReplaceEarlierOnes) {
  const auto folder = std::filesystem::temp_directory_path() /
                      ("stayhold_skins_" + std::to_string(std::random_device()()));
  const std::pair<const char*, std::string> kFiles[] = {
      {"90-my-skin.json", SkinJson("mine", "Mine")},
      {"00-base.json", std::string("[") + SkinJson("a", "A") + "," + SkinJson("b", "B") + "," +
                           SkinJson("A", "Again") + "]"},
      {"SKIN.JSON", SkinJson("upper", "Upper")},
      {"50-later.json", SkinJson("B", "Later")},
      {"skin.json.bak", SkinJson("backup", "Backup")},
      {"sub/05-sub.json", SkinJson("sub", "Sub")},
      {"a.json", std::string("{\"skins\":[") + SkinJson("good", "Good") + ",{\"id\":\"bad\"}]}"},
      {"c.json", "[{\"id\":\"x\",\"name\":\"\xC3\"}]"},
      {"e.json", std::string("\xEF\xBB\xBF") + SkinJson("bom", "Bom")}};
  for (const auto& [name, text] : kFiles) {
    std::filesystem::create_directories((folder / name).parent_path());
    std::ofstream(folder / name, std::ios::binary) << text;
  }
  const std::vector<SkinDefinition> skins = loadSkinFolder(folder.wstring());
  std::vector<std::wstring> names;
  for (const SkinDefinition& skin : skins)
    names.push_back(skin.id + L"=" + skin.name);
  EXPECT_EQ(names, (std::vector<std::wstring>{L"A=Again", L"B=Later", L"mine=Mine", L"good=Good",
                                              L"bom=Bom", L"upper=Upper"}));
  EXPECT_TRUE(!skins.empty() && std::filesystem::path(skins[0].sourceDirectory) == folder);
  for (const auto& path : {std::filesystem::path(), folder / "missing", folder / "a.json"})
    EXPECT_TRUE(loadSkinFolder(path.wstring()).empty()) << path;
  std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace tessel
