#include "tessel/skin/skin_catalogue.h"

#include <gtest/gtest.h>

#include <fstream>
#include <random>

namespace tessel {
namespace {

std::string SkinJson(const std::string& id, const std::string& name) {
  return "{\"id\":\"" + id + "\",\"name\":\"" + name + "\"}";
}

// A fresh folder for skin files, removed afterwards.
class SkinFolder : public ::testing::Test {
 protected:
  void TearDown() override { std::filesystem::remove_all(folder_); }
  void write(const std::string& name, const std::string& text) {
    std::filesystem::create_directories((folder_ / name).parent_path());
    std::ofstream(folder_ / name, std::ios::binary) << text;
  }
  std::wstring at(const char* name) const { return (folder_ / name).wstring(); }

  const std::filesystem::path folder_ =
      std::filesystem::temp_directory_path() /
      ("stayhold_skins_" + std::to_string(std::random_device()()));
};

// Only ".json" files, by lower-cased name; a later skin of an id replaces the earlier in place.
TEST_F(SkinFolder, LoadsFilesInOrderAndLaterSkinsReplaceEarlierOnes) {
  write("90-my-skin.json", SkinJson("mine", "Mine"));
  write("00-base.json", std::string("[") + SkinJson("a", "A") + "," + SkinJson("b", "B") + "," +
                            SkinJson("A", "Again") + "]");
  write("SKIN.JSON", SkinJson("upper", "Upper"));
  write("50-later.json", SkinJson("B", "Later"));
  write("skin.json.bak", SkinJson("backup", "Backup"));
  write("notes.txt", SkinJson("text", "Text"));
  write("sub/05-sub.json", SkinJson("sub", "Sub"));
  write("a.json", std::string("{\"skins\":[") + SkinJson("good", "Good") + ",{\"id\":\"bad\"}]}");
  write("b.json", std::string("[") + SkinJson("trailing", "T") + ",]");
  write("c.json", "[{\"id\":\"x\",\"name\":\"\xC3\"}]");
  write("d.json", "");
  write("e.json", std::string("\xEF\xBB\xBF") + SkinJson("bom", "Bom"));
  const std::vector<SkinDefinition> skins = loadSkinFolder(folder_.wstring());
  std::vector<std::wstring> names;
  for (const SkinDefinition& skin : skins)
    names.push_back(skin.id + L"=" + skin.name);
  EXPECT_EQ(names, (std::vector<std::wstring>{L"A=Again", L"B=Later", L"mine=Mine", L"good=Good",
                                              L"bom=Bom", L"upper=Upper"}));
  ASSERT_FALSE(skins.empty());
  EXPECT_EQ(std::filesystem::path(skins[0].sourceDirectory), folder_);
  EXPECT_TRUE(loadSkinFolder(L"").empty());
  EXPECT_TRUE(loadSkinFolder(at("missing")).empty());
  EXPECT_TRUE(loadSkinFolder(at("a.json")).empty());
}

}  // namespace
}  // namespace tessel
