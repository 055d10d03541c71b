// The skins as they ship: every file loads with no skin dropped, every skin builds a sheet for
// every control kind, text stays readable on every surface, and the application's own style
// ids resolve in the tactical skin.
#include <gtest/gtest.h>

#include <sstream>

#include "base/wide_text.h"
#include "skin_contrast.h"
#include "tests/support/source_files.h"
#include "tessel/skin/skin_catalogue.h"

namespace tessel {
namespace {

struct ShippedFile {
  const char* name;
  std::vector<std::wstring> ids;
};

const ShippedFile kFiles[] = {
    {"00-tessel-default-skins.json",
     {L"quill-forge", L"obsidian-atelier", L"carmine-rose", L"graphite-harbor", L"win11-auto",
      L"win11-dark", L"win11-light", L"arctic-instrument", L"ember-console", L"ultraviolet-rift",
      L"verdant-ops", L"navy-copper-desk", L"porcelain-ink", L"industrial-safety", L"kestrelwing",
      L"kestrelwing-3d", L"classic"}},
    {"01-tessel-black-gemstone-skins.json",
     {L"emerald-black", L"ruby-black", L"sapphire-black", L"amber-black", L"neon-glass-black"}},
    {"02-tessel-material-gallery-skins.json",
     {L"granite-black",      L"marble-noir",       L"onyx-vein",        L"malachite-temple",
      L"lapis-lazuli-black", L"alabaster-ink",     L"basalt-forge",     L"slate-circuit",
      L"travertine-amber",   L"tiger-eye-console", L"diamond-night",    L"amethyst-black",
      L"aquamarine-depths",  L"topaz-black",       L"garnet-blood",     L"opal-dark",
      L"peridot-black",      L"tanzanite-night",   L"moonstone-shadow", L"brushed-steel",
      L"gunmetal-blue",      L"titanium-black",    L"copper-obsidian",  L"brass-night",
      L"gold-onyx",          L"rose-gold-black",   L"chrome-noir",      L"tungsten-carbon"}},
    {"stayhold-tactical-3d.json", {L"stayhold-tactical-3d"}},
};

// Every style id the application asks for, with the kind that asks.
struct Variant {
  const wchar_t* kind;
  const wchar_t* id;
};

const Variant kApplicationVariants[] = {
    {L"statuschip", L"stayhold-active"},     {L"statuschip", L"stayhold-idle"},
    {L"checkbox", L"stayhold-option"},       {L"button", L"stayhold-tray-action"},
    {L"button", L"stayhold-primary"},        {L"button", L"stayhold-secondary"},
    {L"popup", L"stayhold-notice"},          {L"popup", L"stayhold-error"},
    {L"popup", L"stayhold-setup"},           {L"popup", L"stayhold-setup-installed"},
    {L"chrometitlebar", L"stayhold-chrome"}, {L"card", L"stayhold-card"},
    {L"selectbox", L"stayhold-select"},      {L"textinput", L"stayhold-input"},
    {L"tablelist", L"stayhold-table"},       {L"scrollbar", L"stayhold-scroll"},
};

std::string Narrow(const std::wstring& text) {
  return Utf8FromWide(text);
}

TEST(ShippedSkins, EachFileHoldsItsSkinsInOrder) {
  for (const ShippedFile& file : kFiles) {
    const std::vector<SkinDefinition> skins =
        parseSkinFile(SourceFile(std::string("skins/") + file.name));
    std::vector<std::wstring> ids;
    for (const SkinDefinition& skin : skins)
      ids.push_back(skin.id);
    EXPECT_EQ(ids, file.ids) << file.name;
  }
}

TEST(ShippedSkins, TheFolderLoadsAllFiftyOne) {
  const std::vector<SkinDefinition> skins = loadSkinFolder(SourceFile("skins").wstring());
  ASSERT_EQ(skins.size(), 51u);
  EXPECT_EQ(skins.front().id, L"quill-forge");
  EXPECT_EQ(skins.back().id, L"stayhold-tactical-3d");
  ASSERT_NE(findSkinOrDefault(skins, L""), nullptr);
  EXPECT_EQ(findSkinOrDefault(skins, L"")->id, L"win11-auto");
}

TEST(ShippedSkins, FilesCarryTheirPartsOfTheFormat) {
  for (const ShippedFile& file : kFiles) {
    for (const SkinDefinition& skin :
         parseSkinFile(SourceFile(std::string("skins/") + file.name))) {
      const std::string name = Narrow(skin.id);
      EXPECT_FALSE(skin.description.empty()) << name;
      const std::string fileName = file.name;
      if (fileName.rfind("stayhold", 0) == 0) {
        EXPECT_FALSE(skin.materials.enabled) << name << ": the tactical skin has no material";
        EXPECT_FALSE(skin.overrides.empty()) << name;
      } else if (fileName.rfind("00", 0) == 0) {
        EXPECT_FALSE(skin.overrides.empty()) << name << ": default skins carry styles";
        EXPECT_FALSE(skin.shapes.shapes.empty()) << name;
      } else {
        EXPECT_TRUE(skin.materials.enabled) << name << ": gallery skins show a material";
        EXPECT_TRUE(skin.overrides.empty()) << name << ": gallery skins have no hand styles";
        EXPECT_FALSE(skin.shapes.shapes.empty()) << name;
      }
    }
  }
}

TEST(ShippedSkins, ApplicationVariantsResolveInTheTacticalSkin) {
  const std::vector<SkinDefinition> skins =
      parseSkinFile(SourceFile("skins/stayhold-tactical-3d.json"));
  ASSERT_EQ(skins.size(), 1u);
  const SkinDefinition& skin = skins.front();
  const StyleSheet sheet(skin);
  for (const Variant& variant : kApplicationVariants) {
    bool defined = false;
    for (const StyleOverride& entry : skin.overrides)
      defined |= entry.type == variant.kind && entry.id == normalizeKey(variant.id);
    EXPECT_TRUE(defined) << Narrow(variant.kind) << " " << Narrow(variant.id);
  }
  EXPECT_TRUE(sheet.statusChips.contains(L"stayhold-active"));
  EXPECT_TRUE(sheet.buttons.contains(L"stayhold-primary"));
  EXPECT_TRUE(sheet.popups.contains(L"stayhold-setup-installed"));
  EXPECT_TRUE(sheet.scrollBars.contains(L"stayhold-scroll"));
  // Active and idle chips must tell protection apart at a glance.
  EXPECT_NE(sheet.statusChips.get(L"stayhold-active").badge.fill,
            sheet.statusChips.get(L"stayhold-idle").badge.fill);
}

TEST(ShippedSkins, EverySkinIsReadableWithDistinctStates) {
  const std::vector<SkinDefinition> skins = loadSkinFolder(SourceFile("skins").wstring());
  ASSERT_FALSE(skins.empty());
  for (const SkinDefinition& skin : skins) {
    const StyleSheet sheet(skin);
    // Every kind answers for an id it doesn't know with its default.
    EXPECT_EQ(&sheet.buttons.get(L"no-such-style"), &sheet.buttons.get(L"default"));
    EXPECT_EQ(&sheet.tooltips.get(L"no-such-style"), &sheet.tooltips.get(L"default"));
    std::ostringstream report;
    for (const ContrastProblem& problem : FindContrastProblems(sheet)) {
      report << "\n  " << Narrow(problem.where) << ": " << problem.ratio << " < "
             << problem.minimum;
    }
    EXPECT_TRUE(report.str().empty()) << Narrow(skin.id) << report.str();
    const std::vector<std::wstring> flat = FindIndistinctButtonStates(sheet);
    EXPECT_TRUE(flat.empty()) << Narrow(skin.id) << ": button states not distinct: "
                              << (flat.empty() ? "" : Narrow(flat.front()));
  }
}

TEST(BareThemes, TheBuildersAloneAreReadable) {
  for (const Theme& theme : {Theme(), fallbackTheme()}) {
    const StyleSheet sheet(theme);
    std::ostringstream report;
    for (const ContrastProblem& problem : FindContrastProblems(sheet))
      report << "\n  " << Narrow(problem.where) << ": " << problem.ratio;
    EXPECT_TRUE(report.str().empty()) << report.str();
    EXPECT_TRUE(FindIndistinctButtonStates(sheet).empty());
  }
}

TEST(ContrastRatio, KnownPairs) {
  EXPECT_NEAR(ContrastRatio(rgbColor(0, 0, 0), rgbColor(255, 255, 255)), 21.0, 1e-9);
  EXPECT_NEAR(ContrastRatio(rgbColor(255, 255, 255), rgbColor(255, 255, 255)), 1.0, 1e-9);
  EXPECT_NEAR(ContrastRatio(rgbColor(0x76, 0x76, 0x76), rgbColor(255, 255, 255)), 4.54, 0.01);
}

}  // namespace
}  // namespace tessel
