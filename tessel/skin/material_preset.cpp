#include "tessel/skin/material_preset.h"

#include <iterator>
#include <utility>

#include "tessel/skin/property_table.h"

namespace tessel {

namespace {

struct PresetRow {
  const wchar_t* name;
  MaterialKind kind;
  Color tint;
  uint8_t strength;
  uint8_t highlightOpacity;
  uint8_t reflectionOpacity;
  uint8_t depth;
  uint8_t roughness;
  uint8_t specular;
  uint8_t ambientOcclusion;
  uint8_t edgeWear;
  uint8_t textureOpacity;
  int32_t scale;
  int32_t angle;
  int32_t lightAngle;
  int32_t finish;
};

// Aliases repeat their original's row on purpose, so each is a plain word of the table.
constexpr PresetRow kPresetRows[] = {
    {L"granite", MaterialKind::Granite, rgbColor(0x70, 0x6C, 0x68), 178, 70, 50, 64, 118, 94, 88,
     30, 92, 18, 12, -42, Finish::Polished},
    {L"zula", MaterialKind::Granite, rgbColor(0x70, 0x6C, 0x68), 178, 70, 50, 64, 118, 94, 88, 30,
     92, 18, 12, -42, Finish::Polished},
    {L"marble", MaterialKind::Marble, rgbColor(0xD6, 0xD0, 0xC4), 172, 86, 54, 56, 84, 122, 62, 22,
     88, 46, -18, -38, Finish::Polished},
    {L"mramor", MaterialKind::Marble, rgbColor(0xD6, 0xD0, 0xC4), 172, 86, 54, 56, 84, 122, 62, 22,
     88, 46, -18, -38, Finish::Polished},
    {L"slate", MaterialKind::Granite, rgbColor(0x40, 0x4C, 0x52), 158, 52, 36, 58, 138, 58, 92, 18,
     84, 34, -12, -46, Finish::Satin},
    {L"basalt", MaterialKind::Granite, rgbColor(0x22, 0x23, 0x24), 164, 48, 32, 72, 176, 46, 108,
     22, 94, 15, 28, -38, Finish::Rough},
    {L"limestone", MaterialKind::Marble, rgbColor(0xB2, 0xA6, 0x8E), 142, 46, 26, 42, 154, 34, 72,
     12, 58, 52, 8, -50, Finish::Matte},
    {L"travertine", MaterialKind::Marble, rgbColor(0xBE, 0x94, 0x5E), 154, 54, 32, 48, 136, 52, 76,
     16, 72, 58, 0, -44, Finish::Satin},
    {L"sandstone", MaterialKind::Granite, rgbColor(0xAE, 0x7E, 0x48), 150, 48, 28, 54, 188, 28, 84,
     14, 86, 22, 18, -48, Finish::Rough},
    {L"soapstone", MaterialKind::Marble, rgbColor(0x54, 0x66, 0x5E), 150, 48, 30, 46, 142, 48, 74,
     18, 64, 42, -24, -38, Finish::Satin},
    {L"serpentine", MaterialKind::Marble, rgbColor(0x3A, 0x80, 0x58), 168, 72, 46, 58, 102, 98, 82,
     24, 88, 38, 34, -40, Finish::Polished},
    {L"quartzite", MaterialKind::Granite, rgbColor(0xBE, 0xBA, 0xB2), 168, 78, 52, 54, 96, 118, 64,
     18, 82, 24, -8, -42, Finish::Polished},
    {L"onyx", MaterialKind::Marble, rgbColor(0x1A, 0x18, 0x1A), 188, 78, 66, 70, 78, 148, 96, 36,
     92, 48, 26, -34, Finish::Wet},
    {L"alabaster", MaterialKind::Marble, rgbColor(0xE2, 0xD0, 0xB0), 158, 76, 38, 40, 104, 72, 54,
     16, 66, 50, -20, -42, Finish::Satin},
    {L"porphyry", MaterialKind::Granite, rgbColor(0x60, 0x2A, 0x48), 170, 62, 46, 60, 118, 88, 86,
     30, 86, 20, 38, -40, Finish::Polished},
    {L"labradorite", MaterialKind::Gemstone, rgbColor(0x26, 0x68, 0x7C), 188, 92, 74, 66, 86, 150,
     82, 42, 96, 34, -28, -36, Finish::Polished},
    {L"malachite", MaterialKind::Marble, rgbColor(0x00, 0x8A, 0x58), 184, 78, 56, 62, 92, 118, 78,
     28, 94, 30, 24, -42, Finish::Polished},
    {L"lapislazuli", MaterialKind::Gemstone, rgbColor(0x14, 0x38, 0x9A), 190, 86, 68, 64, 90, 140,
     78, 34, 88, 28, -18, -38, Finish::Polished},
    {L"jasper", MaterialKind::Granite, rgbColor(0x9A, 0x30, 0x26), 168, 62, 42, 58, 122, 72, 82, 26,
     82, 24, 30, -46, Finish::Satin},
    {L"agate", MaterialKind::Marble, rgbColor(0x76, 0x54, 0xAA), 178, 82, 58, 56, 86, 122, 70, 24,
     90, 38, -10, -40, Finish::Polished},
    {L"tigereye", MaterialKind::Marble, rgbColor(0xB0, 0x62, 0x12), 184, 88, 64, 58, 82, 142, 76,
     30, 94, 28, 12, -36, Finish::Polished},
    {L"diamond", MaterialKind::Gemstone, rgbColor(0xD2, 0xF0, 0xFF), 202, 116, 92, 42, 42, 205, 50,
     58, 82, 22, 0, -40, Finish::Polished},
    {L"ruby", MaterialKind::Gemstone, rgbColor(0xBE, 0x00, 0x24), 202, 102, 82, 68, 64, 176, 86, 46,
     96, 28, -16, -38, Finish::Polished},
    {L"sapphire", MaterialKind::Gemstone, rgbColor(0x00, 0x34, 0xB2), 202, 98, 78, 66, 68, 168, 84,
     42, 94, 28, -22, -40, Finish::Polished},
    {L"emerald", MaterialKind::Gemstone, rgbColor(0x00, 0x8E, 0x56), 200, 98, 76, 66, 72, 164, 82,
     42, 94, 28, -18, -42, Finish::Polished},
    {L"amethyst", MaterialKind::Gemstone, rgbColor(0x7A, 0x36, 0xB4), 190, 88, 66, 58, 84, 138, 72,
     34, 86, 30, 18, -42, Finish::Polished},
    {L"aquamarine", MaterialKind::Gemstone, rgbColor(0x52, 0xC4, 0xD2), 188, 92, 66, 52, 78, 142,
     64, 28, 82, 32, -30, -38, Finish::Polished},
    {L"topaz", MaterialKind::Gemstone, rgbColor(0xE8, 0x92, 0x22), 190, 90, 66, 56, 78, 146, 68, 30,
     86, 28, 12, -38, Finish::Polished},
    {L"garnet", MaterialKind::Gemstone, rgbColor(0x76, 0x00, 0x1C), 188, 82, 72, 64, 82, 150, 86,
     42, 86, 30, -8, -36, Finish::Wet},
    {L"opal", MaterialKind::Gemstone, rgbColor(0xB8, 0xD6, 0xD2), 184, 96, 72, 50, 96, 132, 58, 30,
     92, 38, 28, -44, Finish::Polished},
    {L"peridot", MaterialKind::Gemstone, rgbColor(0x76, 0xAC, 0x22), 184, 88, 62, 54, 84, 130, 68,
     28, 84, 30, -14, -42, Finish::Polished},
    {L"tourmaline", MaterialKind::Gemstone, rgbColor(0x2A, 0x9E, 0x88), 186, 86, 64, 56, 88, 132,
     70, 30, 88, 32, 22, -40, Finish::Polished},
    {L"citrine", MaterialKind::Gemstone, rgbColor(0xE2, 0xB0, 0x2A), 184, 88, 62, 54, 86, 128, 66,
     28, 84, 32, 8, -42, Finish::Polished},
    {L"turquoise", MaterialKind::Gemstone, rgbColor(0x24, 0xB0, 0xB0), 178, 76, 50, 56, 104, 92, 68,
     24, 86, 24, -18, -44, Finish::Satin},
    {L"moonstone", MaterialKind::Gemstone, rgbColor(0xBC, 0xCE, 0xE2), 178, 86, 58, 48, 86, 120, 58,
     22, 78, 40, -28, -40, Finish::Polished},
    {L"sunstone", MaterialKind::Gemstone, rgbColor(0xDC, 0x6A, 0x2A), 184, 88, 64, 54, 90, 132, 66,
     30, 88, 28, 20, -36, Finish::Polished},
    {L"spinel", MaterialKind::Gemstone, rgbColor(0xC2, 0x14, 0x5C), 190, 90, 68, 58, 82, 148, 76,
     34, 88, 30, -12, -38, Finish::Polished},
    {L"zircon", MaterialKind::Gemstone, rgbColor(0x84, 0xD2, 0xE4), 184, 92, 70, 46, 76, 152, 60,
     30, 82, 26, 16, -40, Finish::Polished},
    {L"tanzanite", MaterialKind::Gemstone, rgbColor(0x44, 0x2A, 0xBE), 190, 92, 70, 58, 78, 150, 72,
     34, 88, 28, -20, -40, Finish::Polished},
    {L"alexandrite", MaterialKind::Gemstone, rgbColor(0x42, 0x96, 0x70), 192, 92, 72, 60, 76, 154,
     76, 36, 90, 28, 24, -42, Finish::Polished},
    {L"jade", MaterialKind::Gemstone, rgbColor(0x4E, 0xA4, 0x74), 176, 74, 52, 54, 112, 96, 68, 24,
     78, 34, -10, -44, Finish::Satin},
    {L"iron", MaterialKind::Metal, rgbColor(0x76, 0x70, 0x6A), 160, 58, 54, 42, 132, 86, 64, 18, 48,
     11, 0, -42, Finish::Rough},
    {L"steel", MaterialKind::Metal, rgbColor(0x96, 0x9E, 0xA4), 168, 70, 66, 40, 96, 130, 56, 18,
     44, 12, 0, -42, Finish::Satin},
    {L"stainlesssteel", MaterialKind::Metal, rgbColor(0xB8, 0xC0, 0xC2), 176, 82, 76, 36, 72, 162,
     48, 18, 40, 12, 0, -42, Finish::Polished},
    {L"carbonsteel", MaterialKind::Metal, rgbColor(0x40, 0x48, 0x4C), 168, 62, 62, 46, 108, 116, 70,
     20, 54, 8, 8, -42, Finish::Brushed},
    {L"chrome", MaterialKind::Metal, rgbColor(0xD2, 0xE0, 0xE8), 190, 106, 94, 34, 42, 205, 42, 18,
     38, 10, 0, -38, Finish::Polished},
    {L"nickel", MaterialKind::Metal, rgbColor(0xB2, 0xAE, 0xA0), 172, 78, 70, 38, 86, 148, 50, 18,
     42, 10, 0, -42, Finish::Satin},
    {L"titanium", MaterialKind::Metal, rgbColor(0x84, 0x84, 0x92), 172, 72, 70, 40, 102, 142, 52,
     18, 46, 9, -12, -40, Finish::Brushed},
    {L"aluminium", MaterialKind::Metal, rgbColor(0xB8, 0xBC, 0xBE), 164, 72, 64, 34, 92, 130, 42,
     14, 40, 8, 0, -42, Finish::Brushed},
    {L"aluminum", MaterialKind::Metal, rgbColor(0xB8, 0xBC, 0xBE), 164, 72, 64, 34, 92, 130, 42, 14,
     40, 8, 0, -42, Finish::Brushed},
    {L"magnesium", MaterialKind::Metal, rgbColor(0xA0, 0xA6, 0xA0), 158, 66, 58, 34, 108, 112, 46,
     14, 38, 10, 8, -42, Finish::Satin},
    {L"copper", MaterialKind::Metal, rgbColor(0xCA, 0x5E, 0x26), 184, 88, 76, 42, 76, 166, 54, 22,
     50, 12, 0, -38, Finish::Polished},
    {L"bronze", MaterialKind::Metal, rgbColor(0x9A, 0x5C, 0x24), 176, 78, 68, 44, 92, 140, 58, 22,
     52, 12, 6, -40, Finish::Satin},
    {L"brass", MaterialKind::Metal, rgbColor(0xD6, 0xA2, 0x3E), 184, 88, 76, 40, 78, 158, 50, 22,
     48, 12, -4, -38, Finish::Polished},
    {L"gold", MaterialKind::Metal, rgbColor(0xF6, 0xB8, 0x3A), 194, 98, 86, 38, 62, 184, 46, 24, 46,
     12, 0, -36, Finish::Polished},
    {L"rosegold", MaterialKind::Metal, rgbColor(0xE2, 0x84, 0x68), 190, 94, 82, 38, 68, 172, 48, 22,
     46, 12, 0, -38, Finish::Polished},
    {L"whitegold", MaterialKind::Metal, rgbColor(0xDE, 0xD8, 0xC6), 188, 92, 82, 36, 66, 170, 46,
     20, 44, 12, 0, -38, Finish::Polished},
    {L"silver", MaterialKind::Metal, rgbColor(0xD8, 0xDE, 0xE2), 188, 94, 82, 36, 64, 176, 46, 20,
     42, 12, 0, -38, Finish::Polished},
    {L"platinum", MaterialKind::Metal, rgbColor(0xCC, 0xD2, 0xD0), 184, 86, 78, 36, 78, 164, 48, 18,
     42, 12, 0, -40, Finish::Satin},
    {L"palladium", MaterialKind::Metal, rgbColor(0xBE, 0xC4, 0xC6), 182, 86, 78, 36, 72, 162, 46,
     18, 42, 12, 0, -40, Finish::Polished},
    {L"tungsten", MaterialKind::Metal, rgbColor(0x68, 0x6E, 0x74), 178, 78, 72, 44, 80, 154, 64, 20,
     48, 10, 0, -40, Finish::Polished},
    {L"zinc", MaterialKind::Metal, rgbColor(0xA4, 0xAA, 0xA6), 160, 68, 58, 36, 112, 112, 48, 16,
     42, 10, 0, -42, Finish::Satin},
};

struct KindWord {
  const wchar_t* word;
  MaterialKind kind;
};

// Words are compared with the normalized input, so "aaa-glass" can never match: normalizeKey
// drops its hyphen and "aaaglass" is not a word. It is a dead entry, kept as the word list has it.
constexpr KindWord kKindWords[] = {
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
    {L"aaa-glass", MaterialKind::LayeredGlass},
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
};

struct FinishWord {
  const wchar_t* word;
  int32_t finish;
};

constexpr FinishWord kFinishWords[] = {
    {L"default", Finish::Default},
    {L"auto", Finish::Default},
    {L"natural", Finish::Default},
    {L"polished", Finish::Polished},
    {L"mirror", Finish::Polished},
    {L"highpolish", Finish::Polished},
    {L"brushed", Finish::Brushed},
    {L"linearbrushed", Finish::Brushed},
    {L"hairline", Finish::Brushed},
    {L"satin", Finish::Satin},
    {L"softsatin", Finish::Satin},
    {L"semimatte", Finish::Satin},
    {L"matte", Finish::Matte},
    {L"flat", Finish::Matte},
    {L"deadmatte", Finish::Matte},
    {L"rough", Finish::Rough},
    {L"raw", Finish::Rough},
    {L"naturalrough", Finish::Rough},
    {L"cracked", Finish::Cracked},
    // A misspelling, but a word of the vocabulary all the same.
    {L"cracred", Finish::Cracked},
    {L"fractured", Finish::Cracked},
    {L"crazed", Finish::Cracked},
    {L"hammered", Finish::Hammered},
    {L"beaten", Finish::Hammered},
    {L"peened", Finish::Hammered},
    {L"etched", Finish::Etched},
    {L"engraved", Finish::Etched},
    {L"engravedlines", Finish::Etched},
    {L"frosted", Finish::Frosted},
    {L"sandblasted", Finish::Frosted},
    {L"milkglass", Finish::Frosted},
    {L"wet", Finish::Wet},
    {L"wetgloss", Finish::Wet},
    {L"glossywet", Finish::Wet},
    {L"lacquered", Finish::Wet},
};

// Aliases share their original's noise, so "zula" paints the same grain as "granite".
std::wstring seedWord(const std::wstring& name) {
  if (name == L"zula") return L"granite";
  if (name == L"mramor") return L"marble";
  if (name == L"aluminum") return L"aluminium";
  return name;
}

uint32_t seedOf(const std::wstring& name) {
  const std::wstring word = seedWord(name);
  uint32_t seed = 0;
  for (size_t i = 0; i < 4; ++i) {
    const uint32_t letter = i < word.size() ? static_cast<uint32_t>(word[i]) & 0xFF : 0;
    seed = (seed << 8) | letter;
  }
  return seed;
}

std::vector<MaterialPreset> buildPresets() {
  const Color warmLight = rgbColor(0xFF, 0xB4, 0x5A);
  std::vector<MaterialPreset> presets;
  presets.reserve(std::size(kPresetRows));
  for (const PresetRow& row : kPresetRows) {
    MaterialPreset preset;
    preset.name = row.name;
    preset.kind = row.kind;
    preset.tint = row.tint;
    preset.backlight = mixColor(row.tint, warmLight, 0.18);
    preset.strength = row.strength;
    preset.highlightOpacity = row.highlightOpacity;
    preset.reflectionOpacity = row.reflectionOpacity;
    preset.grainOpacity = defaultGrainOpacity(row.kind);
    preset.depth = row.depth;
    preset.roughness = row.roughness;
    preset.specular = row.specular;
    preset.ambientOcclusion = row.ambientOcclusion;
    preset.edgeWear = row.edgeWear;
    preset.textureOpacity = row.textureOpacity;
    preset.lightElevation = 62;
    preset.scale = row.scale;
    preset.angle = row.angle;
    preset.lightAngle = row.lightAngle;
    preset.noiseSeed = seedOf(preset.name);
    preset.finish = row.finish;
    presets.push_back(std::move(preset));
  }
  return presets;
}

void atLeast(uint8_t& value, uint8_t cap) {
  if (value < cap) value = cap;
}

void atMost(uint8_t& value, uint8_t cap) {
  if (value > cap) value = cap;
}

}  // namespace

const std::vector<MaterialPreset>& materialPresets() {
  static const std::vector<MaterialPreset> presets = buildPresets();
  return presets;
}

const MaterialPreset* findMaterialPreset(const std::wstring& word) {
  const std::wstring key = normalizeKey(word);
  for (const MaterialPreset& preset : materialPresets()) {
    if (preset.name == key) return &preset;
  }
  return nullptr;
}

bool parseMaterialKind(const std::wstring& word, MaterialKind& kind) {
  const std::wstring key = normalizeKey(word);
  for (const KindWord& entry : kKindWords) {
    if (key == entry.word) {
      kind = entry.kind;
      return true;
    }
  }
  return false;
}

bool parseFinish(const std::wstring& word, int32_t& finish) {
  const std::wstring key = normalizeKey(word);
  for (const FinishWord& entry : kFinishWords) {
    if (key == entry.word) {
      finish = entry.finish;
      return true;
    }
  }
  return false;
}

void applyFinish(SurfaceStyle& surface, int32_t finish) {
  surface.finish = finish;
  switch (finish) {
    case Finish::Polished:
      atMost(surface.roughness, 62);
      atLeast(surface.specular, 156);
      atLeast(surface.highlightOpacity, 84);
      atLeast(surface.reflectionOpacity, 66);
      break;
    case Finish::Brushed:
      atLeast(surface.roughness, 104);
      atLeast(surface.specular, 118);
      atLeast(surface.textureOpacity, 72);
      atLeast(surface.grainOpacity, 8);
      if (surface.material == MaterialKind::Metal) surface.material = MaterialKind::BrushedMetal;
      break;
    case Finish::Satin:
      atLeast(surface.roughness, 112);
      atLeast(surface.specular, 96);
      atLeast(surface.textureOpacity, 56);
      break;
    case Finish::Matte:
      atLeast(surface.roughness, 168);
      atMost(surface.specular, 74);
      atMost(surface.reflectionOpacity, 34);
      atLeast(surface.textureOpacity, 46);
      break;
    case Finish::Rough:
      atLeast(surface.roughness, 188);
      atMost(surface.specular, 58);
      atLeast(surface.ambientOcclusion, 88);
      atLeast(surface.materialDepth, 58);
      atLeast(surface.textureOpacity, 86);
      break;
    case Finish::Cracked:
      atLeast(surface.roughness, 142);
      atLeast(surface.ambientOcclusion, 104);
      atLeast(surface.materialDepth, 70);
      atLeast(surface.edgeWear, 42);
      atLeast(surface.textureOpacity, 108);
      break;
    case Finish::Hammered:
      atLeast(surface.roughness, 118);
      atLeast(surface.specular, 118);
      atLeast(surface.materialDepth, 72);
      atLeast(surface.textureOpacity, 92);
      break;
    case Finish::Etched:
      atLeast(surface.roughness, 132);
      atLeast(surface.edgeWear, 50);
      atLeast(surface.materialDepth, 54);
      atLeast(surface.textureOpacity, 92);
      break;
    case Finish::Frosted:
      atLeast(surface.roughness, 184);
      atMost(surface.specular, 88);
      atLeast(surface.grainOpacity, 16);
      atLeast(surface.textureOpacity, 72);
      break;
    case Finish::Wet:
      atMost(surface.roughness, 44);
      atLeast(surface.specular, 176);
      atLeast(surface.highlightOpacity, 92);
      atLeast(surface.reflectionOpacity, 82);
      break;
    default:
      break;
  }
}

void applyMaterialPreset(SurfaceStyle& surface, const MaterialPreset& preset) {
  surface.material = preset.kind;
  surface.materialTint = preset.tint;
  surface.backlightColor = preset.backlight;
  if (preset.kind != MaterialKind::None) surface.materialStrength = preset.strength;
  surface.highlightOpacity = preset.highlightOpacity;
  surface.reflectionOpacity = preset.reflectionOpacity;
  surface.grainOpacity = preset.grainOpacity;
  surface.materialDepth = preset.depth;
  surface.roughness = preset.roughness;
  surface.specular = preset.specular;
  surface.ambientOcclusion = preset.ambientOcclusion;
  surface.edgeWear = preset.edgeWear;
  surface.textureOpacity = preset.textureOpacity;
  surface.materialLightElevation = preset.lightElevation;
  surface.materialScale = preset.scale;
  surface.materialAngle = preset.angle;
  surface.materialLightAngle = preset.lightAngle;
  surface.noiseSeed = preset.noiseSeed;
  applyFinish(surface, preset.finish);
}

}  // namespace tessel
