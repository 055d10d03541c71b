#include "tessel/skin/material_preset.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cwchar>
#include <cwctype>
#include <ostream>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "tessel/skin/property_table.h"
#include "tessel/skin/skin_definition.h"

namespace {

using tessel::applyFinish;
using tessel::applyMaterial;
using tessel::applyMaterialPreset;
using tessel::Color;
using tessel::findMaterialPreset;
using tessel::Finish;
using tessel::MaterialKind;
using tessel::MaterialPreset;
using tessel::materialPresets;
using tessel::MaterialProfile;
using tessel::parseFinish;
using tessel::parseMaterialKind;
using tessel::rgbColor;
using tessel::SurfaceStyle;

std::string Narrow(const std::wstring& text) {
  return std::string(text.begin(), text.end());
}

std::wstring Upper(std::wstring text) {
  for (wchar_t& c : text)
    c = static_cast<wchar_t>(std::towupper(c));
  return text;
}

// The spellings a skin may use for one word: as written, shouted, split by "-", "_" and blanks.
std::vector<std::wstring> Spellings(const std::wstring& word) {
  std::wstring split;
  for (size_t i = 0; i < word.size(); ++i)
    split += (i == 0 ? L"" : (i % 3 == 0 ? L"-" : (i % 3 == 1 ? L"_" : L" "))) + word.substr(i, 1);
  return {word, Upper(word), L"  " + split + L"\t"};
}

// The nine values a finish may move.
constexpr uint8_t SurfaceStyle::*kMovable[] = {
    &SurfaceStyle::roughness,        &SurfaceStyle::specular,
    &SurfaceStyle::highlightOpacity, &SurfaceStyle::reflectionOpacity,
    &SurfaceStyle::textureOpacity,   &SurfaceStyle::grainOpacity,
    &SurfaceStyle::materialDepth,    &SurfaceStyle::ambientOcclusion,
    &SurfaceStyle::edgeWear,
};

// Every value of the preset a surface receives, for comparing two presets.
std::vector<int64_t> ValuesOf(const MaterialPreset& p) {
  return {static_cast<int64_t>(p.kind),
          p.tint,
          p.backlight,
          p.strength,
          p.highlightOpacity,
          p.reflectionOpacity,
          p.grainOpacity,
          p.depth,
          p.roughness,
          p.specular,
          p.ambientOcclusion,
          p.edgeWear,
          p.textureOpacity,
          p.lightElevation,
          p.scale,
          p.angle,
          p.lightAngle,
          p.finish};
}

uint32_t Channel(Color c, int shift) {
  return (c >> shift) & 0xFF;
}

TEST(MaterialPresetTable, EveryPresetIsAMaterialUnderItsOwnNormalizedName) {
  std::set<std::wstring> names;
  for (const MaterialPreset& preset : materialPresets()) {
    SCOPED_TRACE(Narrow(preset.name));
    EXPECT_FALSE(preset.name.empty());
    EXPECT_EQ(tessel::normalizeKey(preset.name), preset.name);
    EXPECT_TRUE(names.insert(preset.name).second) << "the name is taken twice";
    EXPECT_NE(preset.kind, MaterialKind::None);
    EXPECT_GT(preset.strength, 0);
    EXPECT_GE(preset.finish, Finish::Default);
    EXPECT_LE(preset.finish, Finish::Wet);
    EXPECT_EQ(preset.grainOpacity, tessel::defaultGrainOpacity(preset.kind));
  }
  EXPECT_GT(names.size(), 50u);
}

TEST(MaterialPresetTable, TheBacklightIsTheTintWarmedTowardAmber) {
  const Color warm = rgbColor(0xFF, 0xB4, 0x5A);
  for (const MaterialPreset& preset : materialPresets()) {
    SCOPED_TRACE(Narrow(preset.name));
    for (int shift : {0, 8, 16}) {
      const int tint = static_cast<int>(Channel(preset.tint, shift));
      const int light = static_cast<int>(Channel(preset.backlight, shift));
      const int toward = static_cast<int>(Channel(warm, shift));
      EXPECT_LE(std::abs(light - toward), std::abs(tint - toward)) << "channel " << shift;
      EXPECT_LE(std::abs(light - tint), (std::abs(toward - tint) + 4) / 5) << "channel " << shift;
    }
  }
}

// The seed spells the first four letters of a name; an alias borrows its original's, so both
// paint the same grain.
TEST(MaterialPresetTable, SeedsSpellTheNameOfAPresetWithTheSameValues) {
  for (const MaterialPreset& preset : materialPresets()) {
    SCOPED_TRACE(Narrow(preset.name));
    std::wstring prefix;
    for (int shift : {24, 16, 8, 0})
      prefix += static_cast<wchar_t>((preset.noiseSeed >> shift) & 0xFF);
    const MaterialPreset* origin = nullptr;
    for (const MaterialPreset& other : materialPresets()) {
      if (other.name.compare(0, 4, prefix) == 0 && ValuesOf(other) == ValuesOf(preset))
        origin = &other;
    }
    EXPECT_NE(origin, nullptr) << "seed " << std::hex << preset.noiseSeed;
  }
}

TEST(MaterialPresetTable, AliasesRepeatTheirOriginal) {
  const std::pair<const wchar_t*, const wchar_t*> kAliases[] = {
      {L"zula", L"granite"}, {L"mramor", L"marble"}, {L"aluminum", L"aluminium"}};
  for (const auto& [alias, original] : kAliases) {
    SCOPED_TRACE(Narrow(alias));
    const MaterialPreset* a = findMaterialPreset(alias);
    const MaterialPreset* o = findMaterialPreset(original);
    ASSERT_NE(a, nullptr);
    ASSERT_NE(o, nullptr);
    EXPECT_NE(a, o);
    EXPECT_EQ(ValuesOf(*a), ValuesOf(*o));
    EXPECT_EQ(a->noiseSeed, o->noiseSeed);
  }
}

TEST(MaterialPresetTable, EveryNameFindsItsOwnRow) {
  const std::vector<MaterialPreset>& presets = materialPresets();
  for (const MaterialPreset& preset : presets) {
    SCOPED_TRACE(Narrow(preset.name));
    EXPECT_EQ(findMaterialPreset(preset.name), &preset);
    EXPECT_EQ(findMaterialPreset(Upper(preset.name)), &preset);
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
      {L"aluminum", rgbColor(0xC4, 0xBA, 0xAC), 0x616C756Du},
  };
  for (const Case& c : kCases) {
    SCOPED_TRACE(Narrow(c.name));
    const MaterialPreset* preset = findMaterialPreset(c.name);
    ASSERT_NE(preset, nullptr);
    EXPECT_EQ(preset->backlight, c.backlight);
    EXPECT_EQ(preset->noiseSeed, c.seed);
  }
}

// What a preset looks like, by the colour of its tint and the shine of its finish.
TEST(MaterialPresetTable, PresetsLookLikeTheirNames) {
  struct Tint {
    const wchar_t* name;
    int dominant;  // the shift of the strongest channel: 0 red, 8 green, 16 blue
  };
  const Tint kTints[] = {{L"ruby", 0},   {L"emerald", 8},   {L"sapphire", 16},
                         {L"copper", 0}, {L"malachite", 8}, {L"lapislazuli", 16}};
  for (const Tint& c : kTints) {
    SCOPED_TRACE(Narrow(c.name));
    const MaterialPreset* preset = findMaterialPreset(c.name);
    ASSERT_NE(preset, nullptr);
    for (int shift : {0, 8, 16}) {
      if (shift == c.dominant) continue;
      EXPECT_GT(Channel(preset->tint, c.dominant), Channel(preset->tint, shift));
    }
  }
  // Polished chrome and wet onyx shine; raw basalt and limestone don't.
  const auto looks = [](const wchar_t* name) {
    SurfaceStyle surface;
    applyMaterialPreset(surface, *findMaterialPreset(name));
    return surface;
  };
  for (const wchar_t* shiny : {L"chrome", L"onyx"}) {
    for (const wchar_t* dull : {L"basalt", L"limestone"}) {
      SCOPED_TRACE(Narrow(shiny) + " against " + Narrow(dull));
      EXPECT_GT(looks(shiny).specular, looks(dull).specular);
      EXPECT_LT(looks(shiny).roughness, looks(dull).roughness);
    }
  }
  EXPECT_EQ(looks(L"carbonsteel").material, MaterialKind::BrushedMetal);  // a brushed metal
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
    SCOPED_TRACE(Narrow(c.word));
    const MaterialPreset* preset = findMaterialPreset(c.word);
    if (c.found == nullptr) {
      EXPECT_EQ(preset, nullptr);
    } else {
      ASSERT_NE(preset, nullptr);
      EXPECT_EQ(preset->name, c.found);
    }
  }
}

TEST(MaterialKindWords, WordsReachEveryKindInAnySpelling) {
  struct Case {
    const wchar_t* word;
    MaterialKind kind;
  };
  const Case kCases[] = {
      {L"matte", MaterialKind::None},
      {L"glass", MaterialKind::Glass},
      {L"frosted", MaterialKind::FrostedGlass},
      {L"glossy", MaterialKind::Gloss},
      {L"metal", MaterialKind::Metal},
      {L"brushed", MaterialKind::BrushedMetal},
      {L"plastic", MaterialKind::Plastic},
      {L"rubber", MaterialKind::Rubber},
      {L"paper", MaterialKind::Paper},
      {L"carbonfiber", MaterialKind::CarbonFiber},
      {L"blackglass", MaterialKind::ObsidianGlass},
      {L"bloodgloss", MaterialKind::CarmineGloss},
      {L"amberresin", MaterialKind::AmberGlass},
      {L"neonglass", MaterialKind::LuminousGlass},
      {L"deepglass", MaterialKind::LayeredGlass},
      {L"jewel", MaterialKind::Gemstone},
      {L"obsidian3d", MaterialKind::ObsidianRelief},
      {L"zula", MaterialKind::Granite},
      {L"stonemarble", MaterialKind::Marble},
  };
  std::set<MaterialKind> reached;
  for (const Case& c : kCases) {
    for (const std::wstring& word : Spellings(c.word)) {
      SCOPED_TRACE(Narrow(word));
      // Start from a kind no case expects unless it names it, so a no-op cannot pass.
      MaterialKind kind =
          c.kind == MaterialKind::Rubber ? MaterialKind::Paper : MaterialKind::Rubber;
      EXPECT_TRUE(parseMaterialKind(word, kind));
      EXPECT_EQ(kind, c.kind);
    }
    reached.insert(c.kind);
  }
  for (int32_t number = 0; number <= static_cast<int32_t>(MaterialKind::Marble); ++number)
    EXPECT_EQ(reached.count(static_cast<MaterialKind>(number)), 1u) << "no word for " << number;
}

TEST(MaterialKindWords, NonWordsLeaveTheKind) {
  const wchar_t* const kWords[] = {
      L"aaa-glass",  // normalizing drops the hyphen, and "aaaglass" is no word either
      L"aaaglass",  L"AAA Glass", L"chrome",  // a preset, not a kind
      L"velvet",    L"glasses",   L"",       L"stone.granite",
  };
  for (const wchar_t* word : kWords) {
    SCOPED_TRACE(Narrow(word));
    MaterialKind kind = MaterialKind::Rubber;
    EXPECT_FALSE(parseMaterialKind(word, kind));
    EXPECT_EQ(kind, MaterialKind::Rubber);
  }
}

TEST(FinishWords, WordsReachEveryFinishInAnySpelling) {
  struct Case {
    const wchar_t* word;
    int32_t finish;
  };
  const Case kCases[] = {
      {L"natural", Finish::Default},  {L"mirror", Finish::Polished},
      {L"hairline", Finish::Brushed}, {L"semimatte", Finish::Satin},
      {L"flat", Finish::Matte},       {L"raw", Finish::Rough},
      {L"cracred", Finish::Cracked},  {L"peened", Finish::Hammered},
      {L"engraved", Finish::Etched},  {L"milkglass", Finish::Frosted},
      {L"lacquered", Finish::Wet},
  };
  std::set<int32_t> reached;
  for (const Case& c : kCases) {
    for (const std::wstring& word : Spellings(c.word)) {
      SCOPED_TRACE(Narrow(word));
      int32_t finish = c.finish == Finish::Hammered ? Finish::Etched : Finish::Hammered;
      EXPECT_TRUE(parseFinish(word, finish));
      EXPECT_EQ(finish, c.finish);
    }
    reached.insert(c.finish);
  }
  for (int32_t finish = Finish::Default; finish <= Finish::Wet; ++finish)
    EXPECT_EQ(reached.count(finish), 1u) << "no word for finish " << finish;
}

TEST(FinishWords, NonWordsLeaveTheFinish) {
  const wchar_t* const kWords[] = {L"none",   L"polish", L"glossy",       L"granite",
                                   L"chrome", L"",       L"cracked glass"};
  for (const wchar_t* word : kWords) {
    SCOPED_TRACE(Narrow(word));
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
    SCOPED_TRACE(Narrow(c.word));
    EXPECT_EQ(findMaterialPreset(c.word), nullptr);
    MaterialKind kind = MaterialKind::Rubber;
    EXPECT_TRUE(parseMaterialKind(c.word, kind));
    EXPECT_EQ(kind, c.kind);
    int32_t finish = -1;
    EXPECT_TRUE(parseFinish(c.word, finish));
    EXPECT_EQ(finish, c.finish);
  }
}

// The nine movable values, in one comparable record.
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
  for (uint8_t SurfaceStyle::*field : kMovable)
    s.*field = value;
  return s;
}

// For every finish and every movable value: the result grows with the start, values between
// the lowest and highest result stay as they were, and a second application changes nothing.
TEST(ApplyFinish, EachFinishOnlyClampsEachValue) {
  for (int32_t finish = Finish::Default - 1; finish <= Finish::Wet + 1; ++finish) {
    SCOPED_TRACE("finish " + std::to_string(finish));
    for (uint8_t SurfaceStyle::*field : kMovable) {
      SurfaceStyle low = AllMovedAt(0);
      SurfaceStyle high = AllMovedAt(255);
      applyFinish(low, finish);
      applyFinish(high, finish);
      const int floor = low.*field;
      const int ceiling = high.*field;
      ASSERT_LE(floor, ceiling);
      for (int start = 0; start <= 255; ++start) {
        SurfaceStyle surface;
        surface.*field = static_cast<uint8_t>(start);
        applyFinish(surface, finish);
        const int expected = start < floor ? floor : start > ceiling ? ceiling : start;
        ASSERT_EQ(surface.*field, expected) << "from " << start;
        SurfaceStyle again = surface;
        applyFinish(again, finish);
        ASSERT_EQ(MovedOf(again), MovedOf(surface));
      }
    }
  }
}

TEST(ApplyFinish, DefaultAndUnknownNumbersMoveNothingButAreStored) {
  for (int32_t finish : {Finish::Default, 11, -1}) {
    for (uint8_t start : {0, 77, 255}) {
      SurfaceStyle surface = AllMovedAt(start);
      surface.material = MaterialKind::Metal;
      applyFinish(surface, finish);
      EXPECT_EQ(MovedOf(surface), MovedOf(AllMovedAt(start))) << finish;
      EXPECT_EQ(surface.finish, finish);
      EXPECT_EQ(surface.material, MaterialKind::Metal);
    }
  }
}

TEST(ApplyFinish, ValuesOutsideTheFinishStayPut) {
  constexpr uint8_t SurfaceStyle::*kOthers[] = {&SurfaceStyle::materialStrength,
                                                &SurfaceStyle::backlightOpacity,
                                                &SurfaceStyle::innerGlow,
                                                &SurfaceStyle::rimLight,
                                                &SurfaceStyle::materialLightElevation,
                                                &SurfaceStyle::opacity};
  for (int32_t finish = Finish::Default; finish <= Finish::Wet; ++finish) {
    SCOPED_TRACE("finish " + std::to_string(finish));
    SurfaceStyle surface = AllMovedAt(128);
    surface.material = MaterialKind::Granite;
    surface.noiseSeed = 13;
    uint8_t odd = 3;
    for (uint8_t SurfaceStyle::*field : kOthers)
      surface.*field = odd += 2;
    const SurfaceStyle before = surface;
    applyFinish(surface, finish);
    EXPECT_EQ(surface.material, MaterialKind::Granite);
    EXPECT_EQ(surface.noiseSeed, 13u);
    for (uint8_t SurfaceStyle::*field : kOthers)
      EXPECT_EQ(surface.*field, before.*field);
  }
}

// From a middling surface, glossy finishes shine more and rough ones less, in a sensible order.
TEST(ApplyFinish, FinishesOrderFromWetToRough) {
  const auto finished = [](int32_t finish) {
    SurfaceStyle surface = AllMovedAt(128);
    applyFinish(surface, finish);
    return surface;
  };
  const int32_t kSmoothToRough[] = {Finish::Wet, Finish::Polished, Finish::Default, Finish::Matte,
                                    Finish::Rough};
  for (size_t i = 1; i < std::size(kSmoothToRough); ++i) {
    const SurfaceStyle smoother = finished(kSmoothToRough[i - 1]);
    const SurfaceStyle rougher = finished(kSmoothToRough[i]);
    SCOPED_TRACE(std::to_string(kSmoothToRough[i - 1]) + " then " +
                 std::to_string(kSmoothToRough[i]));
    EXPECT_LT(smoother.roughness, rougher.roughness);
    EXPECT_GT(smoother.specular, rougher.specular);
  }
  // Worn and beaten finishes mark a new surface.
  const SurfaceStyle fresh;
  for (int32_t finish : {Finish::Cracked, Finish::Etched}) {
    SurfaceStyle worn;
    applyFinish(worn, finish);
    EXPECT_GT(worn.edgeWear, fresh.edgeWear) << finish;
  }
  SurfaceStyle beaten;
  applyFinish(beaten, Finish::Hammered);
  EXPECT_GT(beaten.materialDepth, fresh.materialDepth);
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
      {"rough alone",
       MaterialKind::Granite,
       {Finish::Rough},
       {188, 58, 70, 38, 86, 0, 58, 88, 26},
       Finish::Rough,
       MaterialKind::Granite},
      {"cracked alone",
       MaterialKind::Marble,
       {Finish::Cracked},
       {142, 96, 70, 38, 108, 0, 70, 104, 42},
       Finish::Cracked,
       MaterialKind::Marble},
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
    SCOPED_TRACE(Narrow(c.name));
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

// A preset overwrites everything it carries, so the surface it lands on doesn't matter for
// those values, and it leaves everything else alone.
TEST(ApplyMaterialPreset, EveryPresetReplacesItsValuesAndNothingElse) {
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
  odd.fill = rgbColor(9, 8, 7);
  odd.innerGlow = 12;
  odd.uvScale = 13;
  for (const MaterialPreset& preset : materialPresets()) {
    SCOPED_TRACE(Narrow(preset.name));
    SurfaceStyle fromOdd = odd;
    SurfaceStyle fromNew;
    applyMaterialPreset(fromOdd, preset);
    applyMaterialPreset(fromNew, preset);
    EXPECT_EQ(MovedOf(fromOdd), MovedOf(fromNew));
    EXPECT_EQ(fromOdd.material, fromNew.material);
    EXPECT_EQ(fromOdd.materialStrength, preset.strength);
    EXPECT_EQ(fromOdd.materialTint, preset.tint);
    EXPECT_EQ(fromOdd.backlightColor, preset.backlight);
    EXPECT_EQ(fromOdd.materialLightElevation, preset.lightElevation);
    EXPECT_EQ(fromOdd.materialScale, preset.scale);
    EXPECT_EQ(fromOdd.materialAngle, preset.angle);
    EXPECT_EQ(fromOdd.materialLightAngle, preset.lightAngle);
    EXPECT_EQ(fromOdd.noiseSeed, preset.noiseSeed);
    EXPECT_EQ(fromOdd.finish, preset.finish);
    EXPECT_EQ(fromOdd.fill, odd.fill);
    EXPECT_EQ(fromOdd.innerGlow, odd.innerGlow);
    EXPECT_EQ(fromOdd.uvScale, odd.uvScale);
    // The finish has done its work: applying it again changes nothing.
    SurfaceStyle again = fromOdd;
    applyFinish(again, preset.finish);
    EXPECT_EQ(MovedOf(again), MovedOf(fromOdd));
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

// The skin-wide profile lands as a preset does where they share values, clamps its wider
// numbers to bytes, and moves only the strength by the delta.
TEST(ApplyMaterial, TheProfileLandsLikeAPresetAndTheDeltaMovesOnlyTheStrength) {
  tessel::JsonValue json;
  ASSERT_TRUE(tessel::parseJsonText(L"{\"surface\": \"granite\"}", json));
  MaterialProfile profile;
  tessel::parseMaterialProfile(json, tessel::Theme(), profile);
  ASSERT_TRUE(profile.enabled);
  const MaterialPreset& granite = *findMaterialPreset(L"granite");
  SurfaceStyle byPreset;
  applyMaterialPreset(byPreset, granite);
  SurfaceStyle byProfile;
  applyMaterial(byProfile, profile, MaterialKind::Granite, -30);
  EXPECT_EQ(MovedOf(byProfile), MovedOf(byPreset));
  EXPECT_EQ(byProfile.materialTint, byPreset.materialTint);
  EXPECT_EQ(byProfile.backlightColor, byPreset.backlightColor);
  EXPECT_EQ(byProfile.materialLightElevation, byPreset.materialLightElevation);
  EXPECT_EQ(byProfile.materialScale, byPreset.materialScale);
  EXPECT_EQ(byProfile.materialAngle, byPreset.materialAngle);
  EXPECT_EQ(byProfile.materialLightAngle, byPreset.materialLightAngle);
  EXPECT_EQ(byProfile.noiseSeed, byPreset.noiseSeed);
  EXPECT_EQ(byProfile.finish, byPreset.finish);
  EXPECT_EQ(byProfile.materialStrength, profile.strength - 30);
  EXPECT_TRUE(byProfile.useGradient);

  profile.strength = 250;
  profile.specular = 900;
  profile.roughness = -4;
  profile.finish = Finish::Default;
  SurfaceStyle clamped;
  applyMaterial(clamped, profile, MaterialKind::Glass, 20);
  EXPECT_EQ(clamped.materialStrength, 255);
  EXPECT_EQ(clamped.specular, 255);
  EXPECT_EQ(clamped.roughness, 0);
  SurfaceStyle none;
  applyMaterial(none, profile, MaterialKind::None, 20);
  EXPECT_EQ(none.materialStrength, 0);
  profile.enabled = false;
  SurfaceStyle untouched;
  applyMaterial(untouched, profile, MaterialKind::Glass, 0);
  EXPECT_EQ(untouched.material, MaterialKind::None);
  EXPECT_EQ(MovedOf(untouched), MovedOf(SurfaceStyle()));
}

}  // namespace
