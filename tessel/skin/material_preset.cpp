#include "tessel/skin/material_preset.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "base/wide_text.h"
#include "tessel/skin/property_table.h"
#include "tessel/skin/skin_definition.h"

namespace tessel {

namespace {

// One preset a line, in lookup order, written as a skin writes materials: name, kind word,
// tint, then strength, highlight, reflection, depth, roughness, specular, ambient occlusion,
// edge wear and texture (each 0..255), scale, angle and light angle, and the finish word. A line
// of two words is an alias: it repeats the row of the earlier preset it names.
constexpr const wchar_t* kPresetLines[] = {
    L"granite        granite  #706C68  178  70  50  64 118  94  88  30  92  18  12 -42  polished",
    L"zula           granite",
    L"marble         marble   #D6D0C4  172  86  54  56  84 122  62  22  88  46 -18 -38  polished",
    L"mramor         marble",
    L"slate          granite  #404C52  158  52  36  58 138  58  92  18  84  34 -12 -46  satin",
    L"basalt         granite  #222324  164  48  32  72 176  46 108  22  94  15  28 -38  rough",
    L"limestone      marble   #B2A68E  142  46  26  42 154  34  72  12  58  52   8 -50  matte",
    L"travertine     marble   #BE945E  154  54  32  48 136  52  76  16  72  58   0 -44  satin",
    L"sandstone      granite  #AE7E48  150  48  28  54 188  28  84  14  86  22  18 -48  rough",
    L"soapstone      marble   #54665E  150  48  30  46 142  48  74  18  64  42 -24 -38  satin",
    L"serpentine     marble   #3A8058  168  72  46  58 102  98  82  24  88  38  34 -40  polished",
    L"quartzite      granite  #BEBAB2  168  78  52  54  96 118  64  18  82  24  -8 -42  polished",
    L"onyx           marble   #1A181A  188  78  66  70  78 148  96  36  92  48  26 -34  wet",
    L"alabaster      marble   #E2D0B0  158  76  38  40 104  72  54  16  66  50 -20 -42  satin",
    L"porphyry       granite  #602A48  170  62  46  60 118  88  86  30  86  20  38 -40  polished",
    L"labradorite    gemstone #26687C  188  92  74  66  86 150  82  42  96  34 -28 -36  polished",
    L"malachite      marble   #008A58  184  78  56  62  92 118  78  28  94  30  24 -42  polished",
    L"lapislazuli    gemstone #14389A  190  86  68  64  90 140  78  34  88  28 -18 -38  polished",
    L"jasper         granite  #9A3026  168  62  42  58 122  72  82  26  82  24  30 -46  satin",
    L"agate          marble   #7654AA  178  82  58  56  86 122  70  24  90  38 -10 -40  polished",
    L"tigereye       marble   #B06212  184  88  64  58  82 142  76  30  94  28  12 -36  polished",
    L"diamond        gemstone #D2F0FF  202 116  92  42  42 205  50  58  82  22   0 -40  polished",
    L"ruby           gemstone #BE0024  202 102  82  68  64 176  86  46  96  28 -16 -38  polished",
    L"sapphire       gemstone #0034B2  202  98  78  66  68 168  84  42  94  28 -22 -40  polished",
    L"emerald        gemstone #008E56  200  98  76  66  72 164  82  42  94  28 -18 -42  polished",
    L"amethyst       gemstone #7A36B4  190  88  66  58  84 138  72  34  86  30  18 -42  polished",
    L"aquamarine     gemstone #52C4D2  188  92  66  52  78 142  64  28  82  32 -30 -38  polished",
    L"topaz          gemstone #E89222  190  90  66  56  78 146  68  30  86  28  12 -38  polished",
    L"garnet         gemstone #76001C  188  82  72  64  82 150  86  42  86  30  -8 -36  wet",
    L"opal           gemstone #B8D6D2  184  96  72  50  96 132  58  30  92  38  28 -44  polished",
    L"peridot        gemstone #76AC22  184  88  62  54  84 130  68  28  84  30 -14 -42  polished",
    L"tourmaline     gemstone #2A9E88  186  86  64  56  88 132  70  30  88  32  22 -40  polished",
    L"citrine        gemstone #E2B02A  184  88  62  54  86 128  66  28  84  32   8 -42  polished",
    L"turquoise      gemstone #24B0B0  178  76  50  56 104  92  68  24  86  24 -18 -44  satin",
    L"moonstone      gemstone #BCCEE2  178  86  58  48  86 120  58  22  78  40 -28 -40  polished",
    L"sunstone       gemstone #DC6A2A  184  88  64  54  90 132  66  30  88  28  20 -36  polished",
    L"spinel         gemstone #C2145C  190  90  68  58  82 148  76  34  88  30 -12 -38  polished",
    L"zircon         gemstone #84D2E4  184  92  70  46  76 152  60  30  82  26  16 -40  polished",
    L"tanzanite      gemstone #442ABE  190  92  70  58  78 150  72  34  88  28 -20 -40  polished",
    L"alexandrite    gemstone #429670  192  92  72  60  76 154  76  36  90  28  24 -42  polished",
    L"jade           gemstone #4EA474  176  74  52  54 112  96  68  24  78  34 -10 -44  satin",
    L"iron           metal    #76706A  160  58  54  42 132  86  64  18  48  11   0 -42  rough",
    L"steel          metal    #969EA4  168  70  66  40  96 130  56  18  44  12   0 -42  satin",
    L"stainlesssteel metal    #B8C0C2  176  82  76  36  72 162  48  18  40  12   0 -42  polished",
    L"carbonsteel    metal    #40484C  168  62  62  46 108 116  70  20  54   8   8 -42  brushed",
    L"chrome         metal    #D2E0E8  190 106  94  34  42 205  42  18  38  10   0 -38  polished",
    L"nickel         metal    #B2AEA0  172  78  70  38  86 148  50  18  42  10   0 -42  satin",
    L"titanium       metal    #848492  172  72  70  40 102 142  52  18  46   9 -12 -40  brushed",
    L"aluminium      metal    #B8BCBE  164  72  64  34  92 130  42  14  40   8   0 -42  brushed",
    L"aluminum       aluminium",
    L"magnesium      metal    #A0A6A0  158  66  58  34 108 112  46  14  38  10   8 -42  satin",
    L"copper         metal    #CA5E26  184  88  76  42  76 166  54  22  50  12   0 -38  polished",
    L"bronze         metal    #9A5C24  176  78  68  44  92 140  58  22  52  12   6 -40  satin",
    L"brass          metal    #D6A23E  184  88  76  40  78 158  50  22  48  12  -4 -38  polished",
    L"gold           metal    #F6B83A  194  98  86  38  62 184  46  24  46  12   0 -36  polished",
    L"rosegold       metal    #E28468  190  94  82  38  68 172  48  22  46  12   0 -38  polished",
    L"whitegold      metal    #DED8C6  188  92  82  36  66 170  46  20  44  12   0 -38  polished",
    L"silver         metal    #D8DEE2  188  94  82  36  64 176  46  20  42  12   0 -38  polished",
    L"platinum       metal    #CCD2D0  184  86  78  36  78 164  48  18  42  12   0 -40  satin",
    L"palladium      metal    #BEC4C6  182  86  78  36  72 162  46  18  42  12   0 -40  polished",
    L"tungsten       metal    #686E74  178  78  72  44  80 154  64  20  48  10   0 -40  polished",
    L"zinc           metal    #A4AAA6  160  68  58  36 112 112  48  16  42  10   0 -42  satin",
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

const MaterialPreset* findIn(const std::vector<MaterialPreset>& presets, const std::wstring& key) {
  for (const MaterialPreset& preset : presets) {
    if (preset.name == key) return &preset;
  }
  return nullptr;
}

uint32_t seedOf(const std::wstring& name) {
  uint32_t seed = 0;
  for (size_t i = 0; i < 4; ++i) {
    const uint32_t letter = i < name.size() ? static_cast<uint32_t>(name[i]) & 0xFF : 0;
    seed = (seed << 8) | letter;
  }
  return seed;
}

std::vector<std::wstring> wordsOf(const wchar_t* line) {
  std::vector<std::wstring> words;
  std::wstring word;
  for (const wchar_t* c = line;; ++c) {
    if (*c != 0 && !IsWhiteSpace(*c)) {
      word += *c;
      continue;
    }
    if (!word.empty()) words.push_back(std::move(word));
    word.clear();
    if (*c == 0) return words;
  }
}

// The values of a full line; false for a line that doesn't read, which then names no kind.
bool readPresetValues(const std::vector<std::wstring>& words, MaterialPreset& preset) {
  if (words.size() != 16) return false;
  if (!parseMaterialKind(words[1], preset.kind) || !parseHexColor(words[2], preset.tint))
    return false;
  uint8_t* const bytes[] = {
      &preset.strength,      &preset.highlightOpacity, &preset.reflectionOpacity, &preset.depth,
      &preset.roughness,     &preset.specular,         &preset.ambientOcclusion,  &preset.edgeWear,
      &preset.textureOpacity};
  int32_t* const numbers[] = {&preset.scale, &preset.angle, &preset.lightAngle};
  size_t column = 3;
  for (uint8_t* byte : bytes) {
    int32_t number = 0;
    if (!ParseLeadingInt32(words[column++], number) || number < 0 || number > 255) return false;
    *byte = static_cast<uint8_t>(number);
  }
  for (int32_t* number : numbers)
    if (!ParseLeadingInt32(words[column++], *number)) return false;
  return parseFinish(words[15], preset.finish);
}

std::vector<MaterialPreset> buildPresets() {
  const Color warmLight = rgbColor(0xFF, 0xB4, 0x5A);
  std::vector<MaterialPreset> presets;
  presets.reserve(std::size(kPresetLines));
  for (const wchar_t* line : kPresetLines) {
    const std::vector<std::wstring> words = wordsOf(line);
    MaterialPreset preset;
    if (words.size() == 2) {
      if (const MaterialPreset* original = findIn(presets, words[1])) preset = *original;
    } else if (readPresetValues(words, preset)) {
      preset.backlight = mixColor(preset.tint, warmLight, 0.18);
      preset.grainOpacity = defaultGrainOpacity(preset.kind);
      preset.lightElevation = 62;
      preset.noiseSeed = seedOf(words[0]);
    } else {
      preset = MaterialPreset();
    }
    preset.name = words.empty() ? std::wstring() : words[0];
    presets.push_back(std::move(preset));
  }
  return presets;
}

// The floor and ceiling a finish sets for one material value: a value below the floor rises to
// it, one above the ceiling falls to it, so a skin's own stronger value survives.
struct FinishCap {
  int32_t finish;
  uint8_t SurfaceStyle::*value;
  uint8_t floor;
  uint8_t ceiling;
};

constexpr FinishCap kFinishCaps[] = {
    {Finish::Polished, &SurfaceStyle::roughness, 0, 62},
    {Finish::Polished, &SurfaceStyle::specular, 156, 255},
    {Finish::Polished, &SurfaceStyle::highlightOpacity, 84, 255},
    {Finish::Polished, &SurfaceStyle::reflectionOpacity, 66, 255},
    {Finish::Brushed, &SurfaceStyle::roughness, 104, 255},
    {Finish::Brushed, &SurfaceStyle::specular, 118, 255},
    {Finish::Brushed, &SurfaceStyle::textureOpacity, 72, 255},
    {Finish::Brushed, &SurfaceStyle::grainOpacity, 8, 255},
    {Finish::Satin, &SurfaceStyle::roughness, 112, 255},
    {Finish::Satin, &SurfaceStyle::specular, 96, 255},
    {Finish::Satin, &SurfaceStyle::textureOpacity, 56, 255},
    {Finish::Matte, &SurfaceStyle::roughness, 168, 255},
    {Finish::Matte, &SurfaceStyle::specular, 0, 74},
    {Finish::Matte, &SurfaceStyle::reflectionOpacity, 0, 34},
    {Finish::Matte, &SurfaceStyle::textureOpacity, 46, 255},
    {Finish::Rough, &SurfaceStyle::roughness, 188, 255},
    {Finish::Rough, &SurfaceStyle::specular, 0, 58},
    {Finish::Rough, &SurfaceStyle::ambientOcclusion, 88, 255},
    {Finish::Rough, &SurfaceStyle::materialDepth, 58, 255},
    {Finish::Rough, &SurfaceStyle::textureOpacity, 86, 255},
    {Finish::Cracked, &SurfaceStyle::roughness, 142, 255},
    {Finish::Cracked, &SurfaceStyle::ambientOcclusion, 104, 255},
    {Finish::Cracked, &SurfaceStyle::materialDepth, 70, 255},
    {Finish::Cracked, &SurfaceStyle::edgeWear, 42, 255},
    {Finish::Cracked, &SurfaceStyle::textureOpacity, 108, 255},
    {Finish::Hammered, &SurfaceStyle::roughness, 118, 255},
    {Finish::Hammered, &SurfaceStyle::specular, 118, 255},
    {Finish::Hammered, &SurfaceStyle::materialDepth, 72, 255},
    {Finish::Hammered, &SurfaceStyle::textureOpacity, 92, 255},
    {Finish::Etched, &SurfaceStyle::roughness, 132, 255},
    {Finish::Etched, &SurfaceStyle::edgeWear, 50, 255},
    {Finish::Etched, &SurfaceStyle::materialDepth, 54, 255},
    {Finish::Etched, &SurfaceStyle::textureOpacity, 92, 255},
    {Finish::Frosted, &SurfaceStyle::roughness, 184, 255},
    {Finish::Frosted, &SurfaceStyle::specular, 0, 88},
    {Finish::Frosted, &SurfaceStyle::grainOpacity, 16, 255},
    {Finish::Frosted, &SurfaceStyle::textureOpacity, 72, 255},
    {Finish::Wet, &SurfaceStyle::roughness, 0, 44},
    {Finish::Wet, &SurfaceStyle::specular, 176, 255},
    {Finish::Wet, &SurfaceStyle::highlightOpacity, 92, 255},
    {Finish::Wet, &SurfaceStyle::reflectionOpacity, 82, 255},
};

uint8_t materialByte(uint8_t value) {
  return value;
}

uint8_t materialByte(int32_t value) {
  return static_cast<uint8_t>(std::clamp(value, 0, 255));
}

// The material values a preset and the skin-wide profile both carry, laid onto a surface in this
// one place; kind, strength and finish stay with the callers.
template <typename Values>
void layMaterialValues(SurfaceStyle& surface, const Values& values) {
  surface.materialTint = values.tint;
  surface.backlightColor = values.backlight;
  surface.highlightOpacity = materialByte(values.highlightOpacity);
  surface.reflectionOpacity = materialByte(values.reflectionOpacity);
  surface.grainOpacity = materialByte(values.grainOpacity);
  surface.materialDepth = materialByte(values.depth);
  surface.roughness = materialByte(values.roughness);
  surface.specular = materialByte(values.specular);
  surface.ambientOcclusion = materialByte(values.ambientOcclusion);
  surface.edgeWear = materialByte(values.edgeWear);
  surface.textureOpacity = materialByte(values.textureOpacity);
  surface.materialLightElevation = materialByte(values.lightElevation);
  surface.materialScale = values.scale;
  surface.materialAngle = values.angle;
  surface.materialLightAngle = values.lightAngle;
  surface.noiseSeed = values.noiseSeed;
}

}  // namespace

const std::vector<MaterialPreset>& materialPresets() {
  static const std::vector<MaterialPreset> presets = buildPresets();
  return presets;
}

const MaterialPreset* findMaterialPreset(const std::wstring& word) {
  return findIn(materialPresets(), normalizeKey(word));
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
  for (const FinishCap& cap : kFinishCaps) {
    if (cap.finish != finish) continue;
    uint8_t& value = surface.*cap.value;
    value = std::clamp(value, cap.floor, cap.ceiling);
  }
  if (finish == Finish::Brushed && surface.material == MaterialKind::Metal)
    surface.material = MaterialKind::BrushedMetal;
}

void applyMaterialPreset(SurfaceStyle& surface, const MaterialPreset& preset) {
  surface.material = preset.kind;
  if (preset.kind != MaterialKind::None) surface.materialStrength = preset.strength;
  layMaterialValues(surface, preset);
  applyFinish(surface, preset.finish);
}

void applyMaterial(SurfaceStyle& surface, const MaterialProfile& profile, MaterialKind kind,
                   int32_t delta) {
  if (!profile.enabled) return;
  surface.material = kind;
  surface.materialStrength =
      kind != MaterialKind::None ? materialByte(profile.strength + delta) : uint8_t{0};
  layMaterialValues(surface, profile);
  surface.backlightOpacity = materialByte(profile.backlightOpacity);
  surface.innerGlow = materialByte(profile.innerGlow);
  surface.rimLight = materialByte(profile.rimLight);
  surface.lightBlobScale = profile.lightBlobScale;
  surface.lightBlobAngle = profile.lightBlobAngle;
  surface.animationSpeed = profile.animationSpeed;
  surface.uvMapping = profile.uvMapping;
  surface.uvScale = profile.uvScale;
  surface.uvOffsetX = profile.uvOffsetX;
  surface.uvOffsetY = profile.uvOffsetY;
  surface.gradientKind = profile.gradientKind;
  surface.gradientDirection = profile.gradientDirection;
  applyFinish(surface, profile.finish);
  surface.useGradient = surface.drawFill;
}

}  // namespace tessel
