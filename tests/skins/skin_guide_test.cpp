// The skin guide is read by people who then write files: its example must load as it stands,
// and it must tell every top-level key of the format.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <sstream>

#include "base/wide_text.h"
#include "skin_contrast.h"
#include "tests/support/source_files.h"
#include "tessel/skin/skin_catalogue.h"

namespace tessel {
namespace {

std::string GuideText() {
  std::ifstream file(SourceFile("skins/HOW_TO_CREATE_CUSTOM_SKIN.txt"), std::ios::binary);
  return std::string((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
}

std::string ExampleOf(const std::string& guide) {
  const std::string begin = "----- BEGIN EXAMPLE SKIN -----";
  const std::string end = "----- END EXAMPLE SKIN -----";
  const size_t start = guide.find(begin);
  const size_t stop = guide.find(end);
  if (start == std::string::npos || stop == std::string::npos || stop < start) return "";
  return guide.substr(start + begin.size(), stop - start - begin.size());
}

TEST(SkinGuide, TheExampleLoadsAndIsReadable) {
  const std::string example = ExampleOf(GuideText());
  ASSERT_FALSE(example.empty()) << "the guide has no marked example";
  std::wstring text;
  ASSERT_TRUE(WideFromUtf8Strict(example, text));
  JsonValue root;
  ASSERT_TRUE(parseJsonText(text, root)) << "the example is not a valid skin document";
  const std::vector<SkinDefinition> skins = parseSkinDocuments(root);
  ASSERT_EQ(skins.size(), 1u);
  const SkinDefinition& skin = skins.front();
  EXPECT_EQ(skin.id, L"my-skin");
  EXPECT_FALSE(skin.overrides.empty());
  const StyleSheet sheet(skin);
  EXPECT_EQ(sheet.buttons.get(L"stayhold-primary").surface.normal.shape, ShapeKind::Capsule);
  std::ostringstream report;
  for (const ContrastProblem& problem : FindContrastProblems(sheet))
    report << "\n  " << Utf8FromWide(problem.where) << ": " << problem.ratio;
  EXPECT_TRUE(report.str().empty()) << report.str();
}

TEST(SkinGuide, TellsEveryTopLevelKey) {
  const std::string guide = GuideText();
  for (const char* key : {"id",
                          "name",
                          "description",
                          "category",
                          "harmony",
                          "tags",
                          "surface_mode",
                          "surfaceMode",
                          "theme",
                          "materials",
                          "material_profile",
                          "materialProfile",
                          "shapes",
                          "styles",
                          "style_overrides",
                          "styleOverrides",
                          "variants",
                          "style_variants",
                          "styleVariants",
                          "control_variants",
                          "controlVariants",
                          "base"}) {
    EXPECT_NE(guide.find(std::string("\"") + key + "\""), std::string::npos) << key;
  }
  EXPECT_NE(guide.find("90-my-skin.json"), std::string::npos);
  EXPECT_NE(guide.find("stayhold-primary"), std::string::npos);
}

}  // namespace
}  // namespace tessel
