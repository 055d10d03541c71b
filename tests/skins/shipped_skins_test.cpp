// The skins as they ship: every file loads with no skin dropped, every skin builds a sheet for
// every control kind, text stays readable on every surface, and the application's own style
// ids resolve in the tactical skin. The skin guide is read by people who then write files: its
// example must load as it stands, and it must tell every top-level key of the format.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>

#include "base/wide_text.h"
#include "skin_contrast.h"
#include "tests/support/shipped_skins.h"

namespace tessel {
namespace {

std::string Narrow(const std::wstring& text) {
  return Utf8FromWide(text);
}

// The default skins carry hand styles, the gallery skins a material and no hand styles, the
// tactical skin hand styles and no material; all but the tactical one carry shapes.
TEST(ShippedSkins, FilesHoldTheirSkinsWithTheirPartsOfTheFormat) {
  const struct {
    const char* name;
    size_t count;
    int material, styles;  // -1: either
  } kFiles[] = {{"00-tessel-default-skins.json", 17, -1, 1},
                {"01-tessel-black-gemstone-skins.json", 5, 1, 0},
                {"02-tessel-material-gallery-skins.json", 28, 1, 0},
                {"stayhold-tactical-3d.json", 1, 0, 1}};
  for (const auto& file : kFiles) {
    const std::vector<SkinDefinition> skins =
        parseSkinFile(SourceFile(std::string("skins/") + file.name));
    EXPECT_EQ(skins.size(), file.count) << file.name;
    for (const SkinDefinition& skin : skins) {
      EXPECT_TRUE(!skin.description.empty() && !skin.overrides.empty() == (file.styles == 1) &&
                  (file.material < 0 || skin.materials.enabled == (file.material == 1)) &&
                  (file.count == 1 || !skin.shapes.shapes.empty()))
          << Narrow(skin.id);
    }
  }
  ASSERT_EQ(ShippedSkins().size(), 51u);
  EXPECT_EQ(ShippedSkins().front().id, L"quill-forge");
  EXPECT_EQ(ShippedSkins().back().id, L"stayhold-tactical-3d");
  EXPECT_EQ(ShippedSkin(L"")->id, L"win11-auto");
}

// Every style id the application asks for, with the kind that asks; active and idle chips
// must tell protection apart at a glance.
TEST(ShippedSkins, ApplicationVariantsResolveInTheTacticalSkin) {
  const std::pair<const wchar_t*, const wchar_t*> kVariants[] = {
      {L"statuschip", L"stayhold-active"},     {L"statuschip", L"stayhold-idle"},
      {L"checkbox", L"stayhold-option"},       {L"button", L"stayhold-tray-action"},
      {L"button", L"stayhold-primary"},        {L"button", L"stayhold-secondary"},
      {L"popup", L"stayhold-notice"},          {L"popup", L"stayhold-error"},
      {L"popup", L"stayhold-setup"},           {L"popup", L"stayhold-setup-installed"},
      {L"chrometitlebar", L"stayhold-chrome"}, {L"card", L"stayhold-card"},
      {L"selectbox", L"stayhold-select"},      {L"textinput", L"stayhold-input"},
      {L"tablelist", L"stayhold-table"},       {L"scrollbar", L"stayhold-scroll"},
  };
  const SkinDefinition& skin = *ShippedSkin(L"stayhold-tactical-3d");
  for (const auto& [kind, id] : kVariants) {
    EXPECT_TRUE(std::any_of(
        skin.overrides.begin(), skin.overrides.end(),
        [&](const auto& entry) { return entry.type == kind && entry.id == normalizeKey(id); }))
        << Narrow(kind) << " " << Narrow(id);
  }
  const StyleSheet sheet(skin);
  EXPECT_TRUE(sheet.buttons.contains(L"stayhold-primary"));
  EXPECT_TRUE(sheet.popups.contains(L"stayhold-setup-installed"));
  EXPECT_TRUE(sheet.scrollBars.contains(L"stayhold-scroll"));
  EXPECT_NE(sheet.statusChips.get(L"stayhold-active").badge.fill,
            sheet.statusChips.get(L"stayhold-idle").badge.fill);
}

std::string Problems(const StyleSheet& sheet) {
  std::ostringstream report;
  for (const ContrastProblem& problem : FindContrastProblems(sheet))
    report << "\n  " << Narrow(problem.where) << ": " << problem.ratio << " < " << problem.minimum;
  for (const std::wstring& id : FindIndistinctButtonStates(sheet))
    report << "\n  button states not distinct: " << Narrow(id);
  return report.str();
}

// Every shipped skin, and the builders alone with the default and the fallback theme.
TEST(ShippedSkins, EverySkinIsReadableWithDistinctStates) {
  for (const SkinDefinition& skin : ShippedSkins()) {
    const StyleSheet sheet(skin);
    // Every kind answers for an id it doesn't know with its default.
    EXPECT_EQ(&sheet.buttons.get(L"no-such-style"), &sheet.buttons.get(L"default"));
    EXPECT_EQ(Problems(sheet), "") << Narrow(skin.id);
  }
  for (const Theme& theme : {Theme(), fallbackTheme()})
    EXPECT_EQ(Problems(StyleSheet(theme)), "");
}

TEST(ContrastRatio, KnownPairs) {
  EXPECT_NEAR(ContrastRatio(rgbColor(0, 0, 0), rgbColor(255, 255, 255)), 21.0, 1e-9);
  EXPECT_NEAR(ContrastRatio(rgbColor(0x76, 0x76, 0x76), rgbColor(255, 255, 255)), 4.54, 0.01);
}

TEST(SkinGuide, TheExampleLoadsIsReadableAndEveryTopLevelKeyIsTold) {
  std::ifstream file(SourceFile("skins/HOW_TO_CREATE_CUSTOM_SKIN.txt"), std::ios::binary);
  const std::string guide((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
  const std::string begin = "----- BEGIN EXAMPLE SKIN -----";
  const size_t start = guide.find(begin), stop = guide.find("----- END EXAMPLE SKIN -----");
  ASSERT_TRUE(start != std::string::npos && stop != std::string::npos && start < stop)
      << "the guide has no marked example";
  std::wstring text;
  ASSERT_TRUE(
      WideFromUtf8Strict(guide.substr(start + begin.size(), stop - start - begin.size()), text));
  JsonValue root;
  ASSERT_TRUE(parseJsonText(text, root)) << "the example is not a valid skin document";
  const std::vector<SkinDefinition> skins = parseSkinDocuments(root);
  ASSERT_EQ(skins.size(), 1u);
  EXPECT_EQ(skins.front().id, L"my-skin");
  EXPECT_FALSE(skins.front().overrides.empty());
  const StyleSheet sheet(skins.front());
  EXPECT_EQ(sheet.buttons.get(L"stayhold-primary").surface.normal.shape, ShapeKind::Capsule);
  for (const ContrastProblem& problem : FindContrastProblems(sheet))
    ADD_FAILURE() << Utf8FromWide(problem.where) << ": " << problem.ratio;

  std::istringstream keys(
      "id name description category harmony tags surface_mode surfaceMode theme materials "
      "material_profile materialProfile shapes styles style_overrides styleOverrides variants "
      "style_variants styleVariants control_variants controlVariants base");
  for (std::string key; keys >> key;)
    EXPECT_NE(guide.find('"' + key + '"'), std::string::npos) << key;
  EXPECT_NE(guide.find("90-my-skin.json"), std::string::npos);
  EXPECT_NE(guide.find("stayhold-primary"), std::string::npos);
}

}  // namespace
}  // namespace tessel
