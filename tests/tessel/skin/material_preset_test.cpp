#include "tessel/skin/material_preset.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cwchar>
#include <cwctype>
#include <fstream>
#include <ostream>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/source_files.h"

namespace {

using tessel::applyFinish;
using tessel::applyMaterialPreset;
using tessel::Color;
using tessel::findMaterialPreset;
using tessel::Finish;
using tessel::MaterialKind;
using tessel::MaterialPreset;
using tessel::materialPresets;
using tessel::parseFinish;
using tessel::parseMaterialKind;
using tessel::rgbColor;
using tessel::SurfaceStyle;

// One row of the preset table as the fixture writes it, kept in text where the code has enums.
struct FixtureRow {
  std::string name;
  std::string kind;
  std::string tint;
  int strength, highlight, reflection, depth, roughness, specular, occlusion, edgeWear, texture;
  int scale, angle, lightAngle;
  std::string finish;
};

std::string Trim(const std::string& text) {
  const size_t first = text.find_first_not_of(" \t\r");
  if (first == std::string::npos) return {};
  const size_t last = text.find_last_not_of(" \t\r");
  return text.substr(first, last - first + 1);
}

std::vector<FixtureRow> LoadFixture() {
  std::ifstream file(SourceFile("tests/tessel/skin/fixtures/material_presets.txt"));
  EXPECT_TRUE(file.is_open());
  std::vector<FixtureRow> rows;
  std::string line;
  while (std::getline(file, line)) {
    line = Trim(line);
    if (line.empty() || line[0] == '#') continue;
    std::vector<std::string> cells;
    std::stringstream stream(line);
    std::string cell;
    while (std::getline(stream, cell, '|'))
      cells.push_back(Trim(cell));
    // A markdown row starts with "|", so the first cell is empty.
    if (cells.size() != 17) {
      ADD_FAILURE() << "malformed fixture line: " << line;
      continue;
    }
    auto number = [&](size_t i) { return std::atoi(cells[i].c_str()); };
    rows.push_back(FixtureRow{cells[1], cells[2], cells[3], number(4), number(5), number(6),
                              number(7), number(8), number(9), number(10), number(11), number(12),
                              number(13), number(14), number(15), cells[16]});
  }
  return rows;
}

std::wstring Wide(const std::string& ascii) {
  return std::wstring(ascii.begin(), ascii.end());
}

MaterialKind KindNamed(const std::string& name) {
  static const std::pair<const char*, MaterialKind> kKinds[] = {
      {"Granite", MaterialKind::Granite},
      {"Marble", MaterialKind::Marble},
      {"Gemstone", MaterialKind::Gemstone},
      {"Metal", MaterialKind::Metal},
  };
  for (const auto& [text, kind] : kKinds) {
    if (name == text) return kind;
  }
  ADD_FAILURE() << "unexpected kind in fixture: " << name;
  return MaterialKind::None;
}

// The grain the shader implies for the kinds the table uses.
int DefaultGrainOf(const std::string& kind) {
  if (kind == "Granite") return 18;
  if (kind == "Marble") return 9;
  if (kind == "Gemstone") return 5;
  if (kind == "Metal") return 12;
  ADD_FAILURE() << "no default grain for " << kind;
  return -1;
}

int32_t FinishNamed(const std::string& name) {
  static const char* const kNames[] = {"default", "polished", "brushed", "satin",
                                       "matte",   "rough",    "cracked", "hammered",
                                       "etched",  "frosted",  "wet"};
  for (int32_t i = 0; i < 11; ++i) {
    if (name == kNames[i]) return i;
  }
  ADD_FAILURE() << "unexpected finish in fixture: " << name;
  return -1;
}

Color ParseHex(const std::string& text) {
  EXPECT_EQ(text.size(), 7u);
  EXPECT_EQ(text[0], '#');
  const unsigned long value = std::strtoul(text.c_str() + 1, nullptr, 16);
  return rgbColor((value >> 16) & 0xFF, (value >> 8) & 0xFF, value & 0xFF);
}

// The tint warmed toward #FFB45A by 0.18, per channel, truncated.
Color WarmBacklight(Color tint) {
  auto channel = [](uint32_t from, uint32_t to) {
    return static_cast<uint32_t>(from + (static_cast<double>(to) - from) * 0.18);
  };
  return rgbColor(channel(tint & 0xFF, 0xFF), channel((tint >> 8) & 0xFF, 0xB4),
                  channel((tint >> 16) & 0xFF, 0x5A));
}

uint32_t SeedOf(std::string name) {
  if (name == "zula") name = "granite";
  if (name == "mramor") name = "marble";
  if (name == "aluminum") name = "aluminium";
  return (static_cast<uint32_t>(name[0]) << 24) | (static_cast<uint32_t>(name[1]) << 16) |
         (static_cast<uint32_t>(name[2]) << 8) | static_cast<uint32_t>(name[3]);
}

TEST(MaterialPresetTable, MatchesTheFixtureRowByRowInOrder) {
  const std::vector<FixtureRow> fixture = LoadFixture();
  const std::vector<MaterialPreset>& presets = materialPresets();
  ASSERT_EQ(fixture.size(), 62u);
  ASSERT_EQ(presets.size(), fixture.size());
  for (size_t i = 0; i < fixture.size(); ++i) {
    const FixtureRow& row = fixture[i];
    const MaterialPreset& preset = presets[i];
    SCOPED_TRACE("row " + std::to_string(i) + " " + row.name);
    EXPECT_EQ(preset.name, Wide(row.name));
    EXPECT_EQ(preset.kind, KindNamed(row.kind));
    EXPECT_EQ(preset.tint, ParseHex(row.tint));
    EXPECT_EQ(preset.backlight, WarmBacklight(ParseHex(row.tint)));
    EXPECT_EQ(preset.strength, row.strength);
    EXPECT_EQ(preset.highlightOpacity, row.highlight);
    EXPECT_EQ(preset.reflectionOpacity, row.reflection);
    EXPECT_EQ(preset.grainOpacity, DefaultGrainOf(row.kind));
    EXPECT_EQ(preset.depth, row.depth);
    EXPECT_EQ(preset.roughness, row.roughness);
    EXPECT_EQ(preset.specular, row.specular);
    EXPECT_EQ(preset.ambientOcclusion, row.occlusion);
    EXPECT_EQ(preset.edgeWear, row.edgeWear);
    EXPECT_EQ(preset.textureOpacity, row.texture);
    EXPECT_EQ(preset.lightElevation, 62);
    EXPECT_EQ(preset.scale, row.scale);
    EXPECT_EQ(preset.angle, row.angle);
    EXPECT_EQ(preset.lightAngle, row.lightAngle);
    EXPECT_EQ(preset.noiseSeed, SeedOf(row.name));
    EXPECT_EQ(preset.finish, FinishNamed(row.finish));
  }
}

TEST(MaterialPresetTable, EveryNameFindsItsOwnRow) {
  const std::vector<MaterialPreset>& presets = materialPresets();
  for (const MaterialPreset& preset : presets) {
    SCOPED_TRACE(std::string(preset.name.begin(), preset.name.end()));
    EXPECT_EQ(findMaterialPreset(preset.name), &preset);
    std::wstring shouted = preset.name;
    for (wchar_t& c : shouted)
      c = static_cast<wchar_t>(towupper(c));
    EXPECT_EQ(findMaterialPreset(shouted), &preset);
  }
}

TEST(MaterialPresetTable, DerivedValuesOfSampleRows) {
  struct Case {
    const wchar_t* name;
    Color backlight;
    uint32_t seed;
  };
  const Case kCases[] = {
      {L"granite", rgbColor(0x89, 0x78, 0x65), 0x6772616Eu},
      {L"zula", rgbColor(0x89, 0x78, 0x65), 0x6772616Eu},
      {L"marble", rgbColor(0xDD, 0xCA, 0xB0), 0x6D617262u},
      {L"mramor", rgbColor(0xDD, 0xCA, 0xB0), 0x6D617262u},
      {L"chrome", rgbColor(0xDA, 0xD8, 0xCE), 0x6368726Fu},
      {L"onyx", rgbColor(0x43, 0x34, 0x25), 0x6F6E7978u},
      {L"aluminum", WarmBacklight(rgbColor(0xB8, 0xBC, 0xBE)), 0x616C756Du},
  };
  for (const Case& c : kCases) {
    SCOPED_TRACE(std::string(c.name, c.name + wcslen(c.name)));
    const MaterialPreset* preset = findMaterialPreset(c.name);
    ASSERT_NE(preset, nullptr);
    EXPECT_EQ(preset->backlight, c.backlight);
    EXPECT_EQ(preset->noiseSeed, c.seed);
  }
}

TEST(MaterialPresetLookup, NormalizesTheWordThenComparesExactly) {
  struct Case {
    const wchar_t* word;
    const wchar_t* found;  // nullptr: no preset
  };
  const Case kCases[] = {
      {L"Stainless-Steel", L"stainlesssteel"},
      {L"stainless steel", L"stainlesssteel"},
      {L"Stainless_Steel", L"stainlesssteel"},
      {L"  CHROME\t", L"chrome"},
      {L"Rose Gold", L"rosegold"},
      {L"lapis-lazuli", L"lapislazuli"},
      {L"zula", L"zula"},
      {L"brushed", nullptr},  // a kind and a finish, never a preset
      {L"metal", nullptr},
      {L"velvet", nullptr},
      {L"granites", nullptr},
      {L"gran", nullptr},
      {L"stainless.steel", nullptr},
      {L"aaa-glass", nullptr},
      {L"", nullptr},
  };
  for (const Case& c : kCases) {
    SCOPED_TRACE(std::string(c.word, c.word + wcslen(c.word)));
    const MaterialPreset* preset = findMaterialPreset(c.word);
    if (c.found == nullptr) {
      EXPECT_EQ(preset, nullptr);
    } else {
      ASSERT_NE(preset, nullptr);
      EXPECT_EQ(preset->name, c.found);
    }
  }
}

TEST(MaterialKindWords, EveryWordMapsToItsKind) {
  struct Case {
    const wchar_t* word;
    MaterialKind kind;
  };
  const Case kCases[] = {
      {L"none", MaterialKind::None},
      {L"matte", MaterialKind::None},
      {L"flat", MaterialKind::None},
      {L"glass", MaterialKind::Glass},
      {L"frostedglass", MaterialKind::FrostedGlass},
      {L"frosted", MaterialKind::FrostedGlass},
      {L"blurredglass", MaterialKind::FrostedGlass},
      {L"gloss", MaterialKind::Gloss},
      {L"glossy", MaterialKind::Gloss},
      {L"metal", MaterialKind::Metal},
      {L"brushedmetal", MaterialKind::BrushedMetal},
      {L"brushed", MaterialKind::BrushedMetal},
      {L"plastic", MaterialKind::Plastic},
      {L"rubber", MaterialKind::Rubber},
      {L"paper", MaterialKind::Paper},
      {L"carbonfiber", MaterialKind::CarbonFiber},
      {L"carbon", MaterialKind::CarbonFiber},
      {L"obsidianglass", MaterialKind::ObsidianGlass},
      {L"blackglass", MaterialKind::ObsidianGlass},
      {L"bottleglass", MaterialKind::ObsidianGlass},
      {L"bottleblack", MaterialKind::ObsidianGlass},
      {L"blackgloss", MaterialKind::ObsidianGlass},
      {L"bloodgloss", MaterialKind::CarmineGloss},
      {L"bloodglass", MaterialKind::CarmineGloss},
      {L"carmineglass", MaterialKind::CarmineGloss},
      {L"carminegloss", MaterialKind::CarmineGloss},
      {L"amberglass", MaterialKind::AmberGlass},
      {L"amberresin", MaterialKind::AmberGlass},
      {L"resinglass", MaterialKind::AmberGlass},
      {L"resin", MaterialKind::AmberGlass},
      {L"honeyglass", MaterialKind::AmberGlass},
      {L"luminousglass", MaterialKind::LuminousGlass},
      {L"softglass", MaterialKind::LuminousGlass},
      {L"neonglass", MaterialKind::LuminousGlass},
      {L"neuronglass", MaterialKind::LuminousGlass},
      {L"lightglass", MaterialKind::LuminousGlass},
      {L"glowglass", MaterialKind::LuminousGlass},
      {L"layeredglass", MaterialKind::LayeredGlass},
      {L"layered", MaterialKind::LayeredGlass},
      {L"photorealglass", MaterialKind::LayeredGlass},
      {L"realglass", MaterialKind::LayeredGlass},
      {L"deepglass", MaterialKind::LayeredGlass},
      {L"gemstone", MaterialKind::Gemstone},
      {L"gemglass", MaterialKind::Gemstone},
      {L"jewel", MaterialKind::Gemstone},
      {L"crystal", MaterialKind::Gemstone},
      {L"facetedglass", MaterialKind::Gemstone},
      {L"faceted", MaterialKind::Gemstone},
      {L"obsidianrelief", MaterialKind::ObsidianRelief},
      {L"obsidian3d", MaterialKind::ObsidianRelief},
      {L"carvedobsidian", MaterialKind::ObsidianRelief},
      {L"volcanicglass", MaterialKind::ObsidianRelief},
      {L"blackstone", MaterialKind::ObsidianRelief},
      {L"stonegranite", MaterialKind::Granite},
      {L"granite", MaterialKind::Granite},
      {L"zula", MaterialKind::Granite},
      {L"stonemarble", MaterialKind::Marble},
      {L"marble", MaterialKind::Marble},
      {L"mramor", MaterialKind::Marble},
      // Spellings a skin may use for the same words.
      {L"Frosted Glass", MaterialKind::FrostedGlass},
      {L"BLACK_GLASS", MaterialKind::ObsidianGlass},
      {L"Obsidian-3D", MaterialKind::ObsidianRelief},
      {L" carbon-fiber ", MaterialKind::CarbonFiber},
  };
  for (const Case& c : kCases) {
    SCOPED_TRACE(std::string(c.word, c.word + wcslen(c.word)));
    // Start from a kind no case expects unless it names it, so a no-op cannot pass.
    MaterialKind kind = c.kind == MaterialKind::Rubber ? MaterialKind::Paper : MaterialKind::Rubber;
    EXPECT_TRUE(parseMaterialKind(c.word, kind));
    EXPECT_EQ(kind, c.kind);
  }
}

TEST(MaterialKindWords, NonWordsLeaveTheKind) {
  const wchar_t* const kWords[] = {
      L"aaa-glass",  // normalizing drops the hyphen, and "aaaglass" is no word either
      L"aaaglass",  L"AAA Glass", L"chrome",  // a preset, not a kind
      L"velvet",    L"glasses",   L"",       L"stone.granite",
  };
  for (const wchar_t* word : kWords) {
    SCOPED_TRACE(std::string(word, word + wcslen(word)));
    MaterialKind kind = MaterialKind::Rubber;
    EXPECT_FALSE(parseMaterialKind(word, kind));
    EXPECT_EQ(kind, MaterialKind::Rubber);
  }
}

TEST(FinishWords, EveryWordMapsToItsNumber) {
  struct Case {
    const wchar_t* word;
    int32_t finish;
  };
  const Case kCases[] = {
      {L"default", 0},        {L"auto", 0},          {L"natural", 0},
      {L"polished", 1},       {L"mirror", 1},        {L"highpolish", 1},
      {L"brushed", 2},        {L"linearbrushed", 2}, {L"hairline", 2},
      {L"satin", 3},          {L"softsatin", 3},     {L"semimatte", 3},
      {L"matte", 4},          {L"flat", 4},          {L"deadmatte", 4},
      {L"rough", 5},          {L"raw", 5},           {L"naturalrough", 5},
      {L"cracked", 6},        {L"cracred", 6},       {L"fractured", 6},
      {L"crazed", 6},         {L"hammered", 7},      {L"beaten", 7},
      {L"peened", 7},         {L"etched", 8},        {L"engraved", 8},
      {L"engravedlines", 8},  {L"frosted", 9},       {L"sandblasted", 9},
      {L"milkglass", 9},      {L"wet", 10},          {L"wetgloss", 10},
      {L"glossywet", 10},     {L"lacquered", 10},    {L"High-Polish", 1},
      {L"Linear Brushed", 2}, {L"semi_matte", 3},    {L" WET ", 10},
  };
  for (const Case& c : kCases) {
    SCOPED_TRACE(std::string(c.word, c.word + wcslen(c.word)));
    int32_t finish = c.finish == 7 ? 8 : 7;
    EXPECT_TRUE(parseFinish(c.word, finish));
    EXPECT_EQ(finish, c.finish);
  }
}

TEST(FinishWords, NonWordsLeaveTheFinish) {
  const wchar_t* const kWords[] = {L"none",   L"polish", L"glossy",       L"granite",
                                   L"chrome", L"",       L"cracked glass"};
  for (const wchar_t* word : kWords) {
    SCOPED_TRACE(std::string(word, word + wcslen(word)));
    int32_t finish = Finish::Hammered;
    EXPECT_FALSE(parseFinish(word, finish));
    EXPECT_EQ(finish, Finish::Hammered);
  }
}

TEST(FinishWords, SomeWordsAreBothKindAndFinishButNoPreset) {
  struct Case {
    const wchar_t* word;
    MaterialKind kind;
    int32_t finish;
  };
  const Case kCases[] = {
      {L"brushed", MaterialKind::BrushedMetal, Finish::Brushed},
      {L"frosted", MaterialKind::FrostedGlass, Finish::Frosted},
      {L"matte", MaterialKind::None, Finish::Matte},
      {L"flat", MaterialKind::None, Finish::Matte},
  };
  for (const Case& c : kCases) {
    SCOPED_TRACE(std::string(c.word, c.word + wcslen(c.word)));
    EXPECT_EQ(findMaterialPreset(c.word), nullptr);
    MaterialKind kind = MaterialKind::Rubber;
    EXPECT_TRUE(parseMaterialKind(c.word, kind));
    EXPECT_EQ(kind, c.kind);
    int32_t finish = -1;
    EXPECT_TRUE(parseFinish(c.word, finish));
    EXPECT_EQ(finish, c.finish);
  }
}

// The nine values a finish may move, in one comparable record.
struct Moved {
  int roughness, specular, highlight, reflection, texture, grain, depth, occlusion, edgeWear;
  bool operator==(const Moved&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Moved& m) {
  return out << "{ro " << m.roughness << ", sp " << m.specular << ", hi " << m.highlight << ", re "
             << m.reflection << ", tx " << m.texture << ", gr " << m.grain << ", de " << m.depth
             << ", ao " << m.occlusion << ", ed " << m.edgeWear << "}";
}

Moved MovedOf(const SurfaceStyle& s) {
  return Moved{s.roughness,         s.specular,         s.highlightOpacity,
               s.reflectionOpacity, s.textureOpacity,   s.grainOpacity,
               s.materialDepth,     s.ambientOcclusion, s.edgeWear};
}

SurfaceStyle AllMovedAt(uint8_t value) {
  SurfaceStyle s;
  s.roughness = s.specular = s.highlightOpacity = s.reflectionOpacity = value;
  s.textureOpacity = s.grainOpacity = s.materialDepth = s.ambientOcclusion = s.edgeWear = value;
  return s;
}

TEST(ApplyFinish, CapsOnlyRaiseOrLowerTowardTheFinish) {
  struct Case {
    int32_t finish;
    Moved fromZero;  // the at-least caps show up
    Moved fromFull;  // the at-most caps show up
  };
  const Moved kZero{0, 0, 0, 0, 0, 0, 0, 0, 0};
  const Moved kFull{255, 255, 255, 255, 255, 255, 255, 255, 255};
  const Case kCases[] = {
      {Finish::Default, kZero, kFull},
      {Finish::Polished,
       {0, 156, 84, 66, 0, 0, 0, 0, 0},
       {62, 255, 255, 255, 255, 255, 255, 255, 255}},
      {Finish::Brushed, {104, 118, 0, 0, 72, 8, 0, 0, 0}, kFull},
      {Finish::Satin, {112, 96, 0, 0, 56, 0, 0, 0, 0}, kFull},
      {Finish::Matte, {168, 0, 0, 0, 46, 0, 0, 0, 0}, {255, 74, 255, 34, 255, 255, 255, 255, 255}},
      {Finish::Rough,
       {188, 0, 0, 0, 86, 0, 58, 88, 0},
       {255, 58, 255, 255, 255, 255, 255, 255, 255}},
      {Finish::Cracked, {142, 0, 0, 0, 108, 0, 70, 104, 42}, kFull},
      {Finish::Hammered, {118, 118, 0, 0, 92, 0, 72, 0, 0}, kFull},
      {Finish::Etched, {132, 0, 0, 0, 92, 0, 54, 0, 50}, kFull},
      {Finish::Frosted,
       {184, 0, 0, 0, 72, 16, 0, 0, 0},
       {255, 88, 255, 255, 255, 255, 255, 255, 255}},
      {Finish::Wet, {0, 176, 92, 82, 0, 0, 0, 0, 0}, {44, 255, 255, 255, 255, 255, 255, 255, 255}},
      {11, kZero, kFull},  // an unknown number is stored but moves nothing
      {-1, kZero, kFull},
  };
  for (const Case& c : kCases) {
    SCOPED_TRACE("finish " + std::to_string(c.finish));
    const std::pair<uint8_t, Moved> kStarts[] = {{0, c.fromZero}, {255, c.fromFull}};
    for (const auto& [start, expected] : kStarts) {
      SurfaceStyle surface = AllMovedAt(start);
      surface.material = MaterialKind::Granite;
      surface.finish = 99;
      applyFinish(surface, c.finish);
      EXPECT_EQ(MovedOf(surface), expected) << "from " << int{start};
      EXPECT_EQ(surface.finish, c.finish);
      // Values outside the finish's reach stay put.
      const SurfaceStyle plain = AllMovedAt(start);
      EXPECT_EQ(surface.material, MaterialKind::Granite);
      EXPECT_EQ(surface.materialStrength, plain.materialStrength);
      EXPECT_EQ(surface.backlightOpacity, plain.backlightOpacity);
      EXPECT_EQ(surface.innerGlow, plain.innerGlow);
      EXPECT_EQ(surface.rimLight, plain.rimLight);
      EXPECT_EQ(surface.materialLightElevation, plain.materialLightElevation);
      EXPECT_EQ(surface.noiseSeed, plain.noiseSeed);
      EXPECT_EQ(surface.opacity, plain.opacity);
    }
  }
}

TEST(ApplyFinish, AStrongerValueOfTheSkinSurvives) {
  struct Case {
    const char* what;
    int32_t finish;
    uint8_t SurfaceStyle::*field;
    uint8_t value;
  };
  const Case kCases[] = {
      {"polished keeps a smoother roughness", Finish::Polished, &SurfaceStyle::roughness, 30},
      {"polished keeps a brighter specular", Finish::Polished, &SurfaceStyle::specular, 200},
      {"matte keeps a rougher roughness", Finish::Matte, &SurfaceStyle::roughness, 220},
      {"matte keeps a duller specular", Finish::Matte, &SurfaceStyle::specular, 20},
      {"wet keeps a wetter roughness", Finish::Wet, &SurfaceStyle::roughness, 10},
      {"rough keeps deeper relief", Finish::Rough, &SurfaceStyle::materialDepth, 140},
      {"cracked keeps more edge wear", Finish::Cracked, &SurfaceStyle::edgeWear, 90},
      {"frosted keeps more grain", Finish::Frosted, &SurfaceStyle::grainOpacity, 40},
  };
  for (const Case& c : kCases) {
    SCOPED_TRACE(c.what);
    SurfaceStyle surface;
    surface.*c.field = c.value;
    applyFinish(surface, c.finish);
    EXPECT_EQ(surface.*c.field, c.value);
  }
}

TEST(ApplyFinish, BrushedTurnsOnlyMetalIntoBrushedMetal) {
  struct Case {
    MaterialKind before;
    int32_t finish;
    MaterialKind after;
  };
  const Case kCases[] = {
      {MaterialKind::Metal, Finish::Brushed, MaterialKind::BrushedMetal},
      {MaterialKind::BrushedMetal, Finish::Brushed, MaterialKind::BrushedMetal},
      {MaterialKind::Granite, Finish::Brushed, MaterialKind::Granite},
      {MaterialKind::None, Finish::Brushed, MaterialKind::None},
      {MaterialKind::Metal, Finish::Polished, MaterialKind::Metal},
      {MaterialKind::Metal, Finish::Satin, MaterialKind::Metal},
      {MaterialKind::Metal, Finish::Hammered, MaterialKind::Metal},
  };
  for (const Case& c : kCases) {
    SCOPED_TRACE(std::to_string(static_cast<int>(c.before)) + " finish " +
                 std::to_string(c.finish));
    SurfaceStyle surface;
    surface.material = c.before;
    applyFinish(surface, c.finish);
    EXPECT_EQ(surface.material, c.after);
  }
}

TEST(ApplyFinish, FinishesApplyOneAfterTheOther) {
  struct Case {
    const char* what;
    MaterialKind kind;
    std::vector<int32_t> finishes;
    Moved expected;
    int32_t finish;
    MaterialKind kindAfter;
  };
  // A new surface: roughness 96, specular 96, highlight 70, reflection 38, texture 48,
  // grain 0, depth 0, occlusion 58, edge wear 26.
  const Case kCases[] = {
      {"polished then matte",
       MaterialKind::Granite,
       {Finish::Polished, Finish::Matte},
       {168, 74, 84, 34, 48, 0, 0, 58, 26},
       Finish::Matte,
       MaterialKind::Granite},
      {"matte then polished",
       MaterialKind::Granite,
       {Finish::Matte, Finish::Polished},
       {62, 156, 84, 66, 48, 0, 0, 58, 26},
       Finish::Polished,
       MaterialKind::Granite},
      {"satin then wet",
       MaterialKind::Marble,
       {Finish::Satin, Finish::Wet},
       {44, 176, 92, 82, 56, 0, 0, 58, 26},
       Finish::Wet,
       MaterialKind::Marble},
      {"brushed then frosted on metal",
       MaterialKind::Metal,
       {Finish::Brushed, Finish::Frosted},
       {184, 88, 70, 38, 72, 16, 0, 58, 26},
       Finish::Frosted,
       MaterialKind::BrushedMetal},
      {"default after wet undoes nothing",
       MaterialKind::Gemstone,
       {Finish::Wet, Finish::Default},
       {44, 176, 92, 82, 48, 0, 0, 58, 26},
       Finish::Default,
       MaterialKind::Gemstone},
  };
  for (const Case& c : kCases) {
    SCOPED_TRACE(c.what);
    SurfaceStyle surface;
    surface.material = c.kind;
    for (int32_t finish : c.finishes)
      applyFinish(surface, finish);
    EXPECT_EQ(MovedOf(surface), c.expected);
    EXPECT_EQ(surface.finish, c.finish);
    EXPECT_EQ(surface.material, c.kindAfter);
  }
}

TEST(ApplyMaterialPreset, GraniteSetsItsValuesAndThePolishedCapsHold) {
  const MaterialPreset* granite = findMaterialPreset(L"granite");
  ASSERT_NE(granite, nullptr);
  SurfaceStyle surface;
  surface.fill = rgbColor(0x10, 0x20, 0x30);
  surface.border = rgbColor(1, 2, 3);
  surface.materialScale = 99;
  surface.materialLightElevation = 10;
  surface.backlightOpacity = 33;
  applyMaterialPreset(surface, *granite);

  EXPECT_EQ(surface.material, MaterialKind::Granite);
  EXPECT_EQ(surface.materialTint, rgbColor(0x70, 0x6C, 0x68));
  EXPECT_EQ(surface.backlightColor, rgbColor(0x89, 0x78, 0x65));
  EXPECT_EQ(surface.noiseSeed, 0x6772616Eu);
  EXPECT_EQ(surface.finish, Finish::Polished);
  EXPECT_EQ(surface.specular, 156);  // 94 rises to the polished floor
  EXPECT_EQ(surface.roughness, 62);  // 118 falls to the polished ceiling
  EXPECT_EQ(surface.highlightOpacity, 84);
  EXPECT_EQ(surface.reflectionOpacity, 66);
  EXPECT_EQ(surface.materialStrength, 178);
  EXPECT_EQ(surface.grainOpacity, 18);
  EXPECT_EQ(surface.materialDepth, 64);
  EXPECT_EQ(surface.ambientOcclusion, 88);
  EXPECT_EQ(surface.edgeWear, 30);
  EXPECT_EQ(surface.textureOpacity, 92);
  EXPECT_EQ(surface.materialLightElevation, 62);
  EXPECT_EQ(surface.materialScale, 18);
  EXPECT_EQ(surface.materialAngle, 12);
  EXPECT_EQ(surface.materialLightAngle, -42);
  // Not part of a preset.
  EXPECT_EQ(surface.fill, rgbColor(0x10, 0x20, 0x30));
  EXPECT_EQ(surface.border, rgbColor(1, 2, 3));
  EXPECT_EQ(surface.backlightOpacity, 33);
  EXPECT_EQ(surface.opacity, 255);
}

TEST(ApplyMaterialPreset, FinishOfTheRowDecidesTheResult) {
  struct Case {
    const wchar_t* name;
    int32_t finish;
    MaterialKind kind;
    uint8_t roughness;
    uint8_t specular;
  };
  const Case kCases[] = {
      // Chrome's own values are beyond the polished caps, so they survive.
      {L"chrome", Finish::Polished, MaterialKind::Metal, 42, 205},
      {L"carbonsteel", Finish::Brushed, MaterialKind::BrushedMetal, 108, 118},
      {L"basalt", Finish::Rough, MaterialKind::Granite, 188, 46},
      {L"onyx", Finish::Wet, MaterialKind::Marble, 44, 176},
      {L"limestone", Finish::Matte, MaterialKind::Marble, 168, 34},
  };
  for (const Case& c : kCases) {
    SCOPED_TRACE(std::string(c.name, c.name + wcslen(c.name)));
    const MaterialPreset* preset = findMaterialPreset(c.name);
    ASSERT_NE(preset, nullptr);
    EXPECT_EQ(preset->finish, c.finish);
    SurfaceStyle surface;
    applyMaterialPreset(surface, *preset);
    EXPECT_EQ(surface.finish, c.finish);
    EXPECT_EQ(surface.material, c.kind);
    EXPECT_EQ(surface.roughness, c.roughness);
    EXPECT_EQ(surface.specular, c.specular);
  }
}

// Every row lands on a surface as the fixture says, overwriting whatever the surface held.
TEST(ApplyMaterialPreset, EveryRowCopiesAllItsValues) {
  const std::vector<FixtureRow> fixture = LoadFixture();
  ASSERT_EQ(fixture.size(), materialPresets().size());
  for (size_t i = 0; i < fixture.size(); ++i) {
    const FixtureRow& row = fixture[i];
    SCOPED_TRACE(row.name);
    SurfaceStyle odd = AllMovedAt(7);
    odd.material = MaterialKind::Paper;
    odd.materialStrength = 1;
    odd.materialTint = rgbColor(1, 1, 1);
    odd.backlightColor = rgbColor(2, 2, 2);
    odd.materialLightElevation = 3;
    odd.materialScale = 4;
    odd.materialAngle = 5;
    odd.materialLightAngle = 6;
    odd.noiseSeed = 8;
    odd.finish = 9;

    SurfaceStyle actual = odd;
    applyMaterialPreset(actual, materialPresets()[i]);

    SurfaceStyle expected = odd;
    expected.material = KindNamed(row.kind);
    expected.materialTint = ParseHex(row.tint);
    expected.backlightColor = WarmBacklight(expected.materialTint);
    expected.materialStrength = static_cast<uint8_t>(row.strength);
    expected.highlightOpacity = static_cast<uint8_t>(row.highlight);
    expected.reflectionOpacity = static_cast<uint8_t>(row.reflection);
    expected.grainOpacity = static_cast<uint8_t>(DefaultGrainOf(row.kind));
    expected.materialDepth = static_cast<uint8_t>(row.depth);
    expected.roughness = static_cast<uint8_t>(row.roughness);
    expected.specular = static_cast<uint8_t>(row.specular);
    expected.ambientOcclusion = static_cast<uint8_t>(row.occlusion);
    expected.edgeWear = static_cast<uint8_t>(row.edgeWear);
    expected.textureOpacity = static_cast<uint8_t>(row.texture);
    expected.materialLightElevation = 62;
    expected.materialScale = row.scale;
    expected.materialAngle = row.angle;
    expected.materialLightAngle = row.lightAngle;
    expected.noiseSeed = SeedOf(row.name);
    applyFinish(expected, FinishNamed(row.finish));

    EXPECT_EQ(actual.material, expected.material);
    EXPECT_EQ(actual.materialTint, expected.materialTint);
    EXPECT_EQ(actual.backlightColor, expected.backlightColor);
    EXPECT_EQ(actual.materialStrength, expected.materialStrength);
    EXPECT_EQ(MovedOf(actual), MovedOf(expected));
    EXPECT_EQ(actual.materialLightElevation, expected.materialLightElevation);
    EXPECT_EQ(actual.materialScale, expected.materialScale);
    EXPECT_EQ(actual.materialAngle, expected.materialAngle);
    EXPECT_EQ(actual.materialLightAngle, expected.materialLightAngle);
    EXPECT_EQ(actual.noiseSeed, expected.noiseSeed);
    EXPECT_EQ(actual.finish, expected.finish);
  }
}

TEST(ApplyMaterialPreset, StrengthIsKeptWhenTheKindIsNone) {
  struct Case {
    MaterialKind kind;
    uint8_t strengthAfter;
  };
  const Case kCases[] = {
      {MaterialKind::None, 33},
      {MaterialKind::Glass, 200},
  };
  for (const Case& c : kCases) {
    SCOPED_TRACE(static_cast<int>(c.kind));
    MaterialPreset preset;
    preset.name = L"custom";
    preset.kind = c.kind;
    preset.strength = 200;
    preset.roughness = 120;
    preset.lightElevation = 62;
    SurfaceStyle surface;
    surface.material = MaterialKind::Metal;
    surface.materialStrength = 33;
    applyMaterialPreset(surface, preset);
    EXPECT_EQ(surface.material, c.kind);
    EXPECT_EQ(surface.materialStrength, c.strengthAfter);
    EXPECT_EQ(surface.roughness, 120);  // the other bytes are copied either way
  }
}

}  // namespace
