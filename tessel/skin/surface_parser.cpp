#include "tessel/skin/surface_parser.h"

#include <cwchar>
#include <vector>

#include "base/wide_text.h"
#include "tessel/skin/skin_words.h"
#include "tessel/paint/image_file.h"
#include "tessel/skin/material_preset.h"

namespace tessel {

namespace {

using Names = std::initializer_list<const wchar_t*>;

// The first of `names` present under the reader, or null.
const std::wstring* firstPresent(const StyleReader& reader, Names names) {
  for (const wchar_t* name : names)
    if (const std::wstring* text = reader.find(name)) return text;
  return nullptr;
}

bool parseUvMapping(const std::wstring& text, int32_t& mapping) {
  const std::wstring word = normalizeKey(text);
  if (word == L"0" || word == L"local" || word == L"surface" || word == L"control") {
    mapping = 0;
  } else if (word == L"1" || word == L"global" || word == L"window" || word == L"world") {
    mapping = 1;
  } else {
    return false;
  }
  return true;
}

bool parseSeed(const std::wstring& text, uint32_t& seed) {
  const wchar_t* begin = text.c_str();
  wchar_t* end = nullptr;
  const long long number = std::wcstoll(begin, &end, 10);
  if (end == begin) return false;
  seed = static_cast<uint32_t>(number);
  return true;
}

// The material word and its finish; returns whether a kind other than None was set, which
// later forces a strength.
bool readMaterial(const StyleReader& reader, SurfaceStyle& surface) {
  bool setKind = false;
  const std::wstring* word =
      firstPresent(reader, {L"material", L"surfaceMaterial", L"materialPreset", L"preset"});
  if (word != nullptr) {
    if (const MaterialPreset* preset = findMaterialPreset(*word)) {
      applyMaterialPreset(surface, *preset);
      setKind = preset->kind != MaterialKind::None;
    } else {
      MaterialKind kind = surface.material;
      if (parseMaterialKind(*word, kind)) {
        surface.material = kind;
        setKind = kind != MaterialKind::None;
      }
    }
  }
  for (const wchar_t* name : {L"finish", L"surfaceFinish", L"materialFinish"}) {
    int32_t finish = 0;
    if (const std::wstring* text = reader.find(name); text && parseFinish(*text, finish)) {
      applyFinish(surface, finish);
    }
  }
  return setKind;
}

void readColors(const StyleReader& reader, SurfaceStyle& surface) {
  reader.color({L"fill"}, surface.fill);
  reader.color({L"border"}, surface.border);
  reader.color({L"shadow"}, surface.shadow);
  reader.color({L"glow"}, surface.glow);
  reader.color({L"outline"}, surface.outline);
  reader.color({L"noise"}, surface.noise);
  reader.color({L"gradientStart"}, surface.gradientStart);
  if (const std::wstring* text = reader.find(L"gradientMid")) {
    if (parseStyleColor(*text, surface.gradientMid)) surface.useGradientMid = true;
  }
  reader.color({L"gradientEnd"}, surface.gradientEnd);
  reader.color({L"materialTint"}, surface.materialTint);
  reader.color({L"backlightColor"}, surface.backlightColor);
}

void readOpacities(const StyleReader& reader, SurfaceStyle& surface) {
  reader.byte({L"opacity"}, surface.opacity);
  reader.byte({L"alphaThreshold"}, surface.alphaThreshold);
  reader.byte({L"shadowOpacity"}, surface.shadowOpacity);
  reader.byte({L"glowOpacity"}, surface.glowOpacity);
  reader.byte({L"noiseOpacity"}, surface.noiseOpacity);
  reader.byte({L"materialStrength"}, surface.materialStrength);
  reader.byte({L"highlightOpacity"}, surface.highlightOpacity);
  reader.byte({L"reflectionOpacity"}, surface.reflectionOpacity);
  reader.byte({L"grainOpacity"}, surface.grainOpacity);
  reader.byte({L"materialDepth", L"depth", L"relief", L"bumpDepth"}, surface.materialDepth);
  reader.byte({L"backlightOpacity"}, surface.backlightOpacity);
  reader.byte({L"innerGlow"}, surface.innerGlow);
  reader.byte({L"rimLight"}, surface.rimLight);
  reader.byte({L"materialLightElevation", L"lightElevation"}, surface.materialLightElevation);
  reader.byte({L"roughness", L"materialRoughness"}, surface.roughness);
  reader.byte({L"specular", L"materialSpecular", L"shine", L"shininess"}, surface.specular);
  reader.byte({L"ambientOcclusion", L"occlusion", L"ao"}, surface.ambientOcclusion);
  reader.byte({L"edgeWear", L"edgeHighlight"}, surface.edgeWear);
  reader.byte({L"textureOpacity", L"textureStrength", L"textureMix"}, surface.textureOpacity);
}

void readMetrics(const StyleReader& reader, SurfaceStyle& surface) {
  reader.integer({L"bandHeight"}, surface.bandHeight);
  reader.integer({L"shadowOffsetX"}, surface.shadowOffsetX);
  reader.integer({L"shadowOffsetY"}, surface.shadowOffsetY);
  reader.integer({L"glowRadius"}, surface.glowRadius);
  reader.integer({L"outlineWidth"}, surface.outlineWidth);
  reader.integer({L"materialScale"}, surface.materialScale);
  reader.integer({L"materialAngle"}, surface.materialAngle);
  reader.integer({L"materialLightAngle", L"lightAngle"}, surface.materialLightAngle);
  reader.integer({L"lightBlobScale"}, surface.lightBlobScale);
  reader.integer({L"lightBlobAngle"}, surface.lightBlobAngle);
  reader.integer({L"animationSpeed"}, surface.animationSpeed);
  reader.integer({L"uvScale", L"mappingScale"}, surface.uvScale);
  reader.integer({L"uvOffsetX", L"mappingOffsetX"}, surface.uvOffsetX);
  reader.integer({L"uvOffsetY", L"mappingOffsetY"}, surface.uvOffsetY);
  if (const std::wstring* text = reader.find(L"noiseSeed")) parseSeed(*text, surface.noiseSeed);
}

void readEnumerations(const StyleReader& reader, SurfaceStyle& surface) {
  if (const std::wstring* text = reader.find(L"gradientDirection")) {
    parseGradientDirection(*text, surface.gradientDirection);
  }
  for (const wchar_t* name : {L"gradientKind", L"gradientType"})
    if (const std::wstring* text = reader.find(name))
      parseGradientKind(*text, surface.gradientKind);
  for (const wchar_t* name : {L"uvMapping", L"mapping", L"materialMapping", L"textureMapping"})
    if (const std::wstring* text = reader.find(name)) parseUvMapping(*text, surface.uvMapping);
}

void readSwitches(const StyleReader& reader, SurfaceStyle& surface) {
  reader.flag({L"drawFill"}, surface.drawFill);
  reader.flag({L"drawBorder"}, surface.drawBorder);
  reader.flag({L"showShadow"}, surface.showShadow);
  reader.flag({L"showGlow"}, surface.showGlow);
  reader.flag({L"showOutline"}, surface.showOutline);
  reader.flag({L"useGradient"}, surface.useGradient);
  reader.flag({L"useGradientMid"}, surface.useGradientMid);
  reader.flag({L"useNineSlice"}, surface.useNineSlice);
  reader.flag({L"useNoise"}, surface.useNoise);
  reader.flag({L"useSkinAlphaHitTest"}, surface.useSkinAlphaHitTest);
}

void readNineSlice(const StyleReader& reader, SurfaceStyle& surface) {
  const StyleReader slice = reader.at(L"nineSlice");
  bool any = false;
  for (auto [name, field] :
       {std::pair{L"left", &surface.nineSlice.left}, std::pair{L"top", &surface.nineSlice.top},
        std::pair{L"right", &surface.nineSlice.right},
        std::pair{L"bottom", &surface.nineSlice.bottom}}) {
    if (const std::wstring* text = slice.find(name)) {
      any = true;
      parseStyleInteger(*text, *field);
    }
  }
  if (any) surface.useNineSlice = true;
}

// The surface's image and its layout mask, from files beside the skin; the first key present
// names the file. A file that doesn't load leaves the surface as it was, silently.
void readImages(const StyleReader& reader, SurfaceStyle& surface) {
  const std::wstring& folder = reader.context().sourceDirectory;
  Image image;
  if (const std::wstring* path = firstPresent(
          reader, {L"image", L"bitmap", L"skin", L"source", L"path", L"skin.path", L"image.path"});
      path != nullptr && loadImageFile(resolveSkinPath(folder, *path), image)) {
    surface.image = image;
    surface.useSkinAlphaHitTest = true;
    if (surface.geometryMode == GeometryMode::FallbackShape)
      surface.geometryMode = GeometryMode::SkinAlphaLayout;
  }
  Image mask;
  if (const std::wstring* path =
          firstPresent(reader, {L"mask", L"alphaMask", L"layoutMask", L"mask.path"});
      path != nullptr && loadImageFile(resolveSkinPath(folder, *path), mask)) {
    surface.mask = mask;
    surface.geometryMode = GeometryMode::MaskAlphaLayout;
  }
}

// Mode and role insets; read on the surface and again inside `geometry`, which wins.
void readGeometry(const StyleReader& reader, SurfaceStyle& surface) {
  if (reader.empty()) return;
  for (const wchar_t* name : {L"mode", L"geometryMode", L"layoutMode"})
    if (const std::wstring* text = reader.find(name))
      parseGeometryMode(*text, surface.geometryMode);
  Insets all;
  for (const wchar_t* name : {L"safeInsets", L"insets"}) {
    if (parseInsets(reader, name, all)) {
      for (Insets* insets : {&surface.paintInsets, &surface.hitInsets, &surface.textInsets,
                             &surface.childLayoutInsets, &surface.headerInsets,
                             &surface.actionRowInsets, &surface.scrollTrackInsets}) {
        *insets = all;
      }
    }
  }
  parseInsets(reader, L"paintInsets", surface.paintInsets);
  parseInsets(reader, L"hitInsets", surface.hitInsets);
  parseInsets(reader, L"textInsets", surface.textInsets);
  parseInsets(reader, L"childLayoutInsets", surface.childLayoutInsets);
  parseInsets(reader, L"layoutInsets", surface.childLayoutInsets);
  parseInsets(reader, L"headerInsets", surface.headerInsets);
  parseInsets(reader, L"actionRowInsets", surface.actionRowInsets);
  parseInsets(reader, L"actionInsets", surface.actionRowInsets);
  parseInsets(reader, L"scrollTrackInsets", surface.scrollTrackInsets);
}

bool parseTintMode(const std::wstring& text, TintMode& mode) {
  const std::wstring word = normalizeKey(text);
  const struct {
    const wchar_t* word;
    TintMode mode;
  } words[] = {
      {L"none", TintMode::None},           {L"off", TintMode::None},
      {L"false", TintMode::None},          {L"mono", TintMode::Mono},
      {L"monochrome", TintMode::Mono},     {L"monochromemask", TintMode::Mono},
      {L"mask", TintMode::Mono},           {L"singlecolor", TintMode::Mono},
      {L"luma", TintMode::Luma},           {L"lumamask", TintMode::Luma},
      {L"luminance", TintMode::Luma},      {L"luminancemask", TintMode::Luma},
      {L"alpha", TintMode::Alpha},         {L"alphamask", TintMode::Alpha},
      {L"alphatint", TintMode::Alpha},     {L"packedalpha", TintMode::Alpha},
      {L"tint", TintMode::Tint},           {L"tintcolored", TintMode::Tint},
      {L"colorize", TintMode::Tint},       {L"colourize", TintMode::Tint},
      {L"colored", TintMode::Tint},        {L"multiply", TintMode::Multiply},
      {L"mul", TintMode::Multiply},        {L"palette", TintMode::Palette},
      {L"palettemap", TintMode::Palette},  {L"colorstop", TintMode::Palette},
      {L"gradientmap", TintMode::Palette},
  };
  for (const auto& entry : words) {
    if (word == entry.word) {
      mode = entry.mode;
      return true;
    }
  }
  return false;
}

bool parseMaskChannel(const std::wstring& text, MaskChannel& channel) {
  const std::wstring word = normalizeKey(text);
  if (word == L"alpha" || word == L"a") {
    channel = MaskChannel::Alpha;
  } else if (word == L"red" || word == L"r") {
    channel = MaskChannel::Red;
  } else if (word == L"green" || word == L"g") {
    channel = MaskChannel::Green;
  } else if (word == L"blue" || word == L"b") {
    channel = MaskChannel::Blue;
  } else if (word == L"luma" || word == L"luminance" || word == L"brightness" || word == L"value" ||
             word == L"rgb") {
    channel = MaskChannel::Luma;
  } else {
    return false;
  }
  return true;
}

// A colour, or a theme role word.
bool parseTintColor(const StyleReader& reader, const std::wstring& text, Color& color) {
  if (parseHexColor(text, color)) return true;
  const Theme* theme = reader.context().theme;
  return theme != nullptr && themeRoleColor(*theme, text, color);
}

}  // namespace

bool parseInsets(const StyleReader& reader, const std::wstring& name, Insets& insets) {
  Insets value = insets;
  bool set = false;
  if (const std::wstring* text = reader.find(name)) {
    std::vector<int32_t> numbers;
    bool valid = true;
    for (const std::wstring& part : splitStyleList(*text)) {
      int32_t number = 0;
      if (!parseStyleInteger(part, number)) valid = false;
      numbers.push_back(number);
    }
    if (valid && numbers.size() == 1) {
      value = {numbers[0], numbers[0], numbers[0], numbers[0]};
      set = true;
    } else if (valid && numbers.size() == 2) {
      value = {numbers[0], numbers[1], numbers[0], numbers[1]};
      set = true;
    } else if (valid && numbers.size() == 4) {
      value = {numbers[0], numbers[1], numbers[2], numbers[3]};
      set = true;
    }
  }
  const StyleReader sides = reader.at(name);
  for (auto [side, field] :
       {std::pair{L"left", &value.left}, std::pair{L"top", &value.top},
        std::pair{L"right", &value.right}, std::pair{L"bottom", &value.bottom}}) {
    if (const std::wstring* text = sides.find(side); text && parseStyleInteger(*text, *field)) {
      set = true;
    }
  }
  if (set) insets = value;
  return set;
}

void parseBitmapTint(const StyleReader& reader, BitmapTint& tint) {
  if (reader.empty()) return;
  bool modeGiven = false;
  if (const std::wstring* text = firstPresent(
          reader, {L"mode", L"tintMode", L"bitmapTintMode", L"tint.mode", L"tint.bitmapMode"})) {
    modeGiven = parseTintMode(*text, tint.mode);
  }
  bool colorGiven = false;
  if (const std::wstring* text = firstPresent(
          reader, {L"role", L"tintRole", L"colorRole", L"tint.role", L"tint.colorRole"})) {
    colorGiven |= parseTintColor(reader, *text, tint.color);
  }
  if (const std::wstring* text = firstPresent(reader, {L"color", L"tintColor", L"tint.color"})) {
    colorGiven |= parseTintColor(reader, *text, tint.color);
  }
  if (const std::wstring* text =
          firstPresent(reader, {L"secondaryRole", L"secondaryColorRole", L"secondaryTintRole",
                                L"tint.secondaryRole", L"tint.secondaryColorRole"})) {
    parseTintColor(reader, *text, tint.secondaryColor);
  }
  if (const std::wstring* text =
          firstPresent(reader, {L"secondaryColor", L"secondaryTintColor", L"tintSecondaryColor",
                                L"tint.secondaryColor"})) {
    parseTintColor(reader, *text, tint.secondaryColor);
  }
  if (const std::wstring* text =
          firstPresent(reader, {L"palette", L"colors", L"tintPalette", L"tintColors",
                                L"tint.palette", L"tint.colors"})) {
    BitmapTint parsed = tint;
    parsed.paletteCount = 0;
    bool valid = true;
    for (const std::wstring& entry : splitStyleList(*text)) {
      if (parsed.paletteCount >= parsed.palette.size()) break;
      Color color = 0;
      if (!parseTintColor(reader, entry, color)) {
        valid = false;
        break;
      }
      parsed.palette[parsed.paletteCount++] = color;
    }
    if (valid && parsed.paletteCount > 0) {
      tint.palette = parsed.palette;
      tint.paletteCount = parsed.paletteCount;
    }
  }
  if (const std::wstring* text =
          firstPresent(reader, {L"maskChannel", L"tintMaskChannel", L"tint.maskChannel"})) {
    parseMaskChannel(*text, tint.maskChannel);
  }
  if (const std::wstring* text =
          firstPresent(reader, {L"amount", L"opacity", L"tintAmount", L"tintOpacity",
                                L"tint.amount", L"tint.opacity"})) {
    parseStyleByte(*text, tint.amount);
  }
  if (const std::wstring* text = firstPresent(
          reader, {L"coverageThreshold", L"tintCoverageThreshold", L"tint.coverageThreshold"})) {
    parseStyleByte(*text, tint.coverageThreshold);
  }
  if (const std::wstring* text = firstPresent(
          reader, {L"preserveLuminance", L"tintPreserveLuminance", L"tint.preserveLuminance"})) {
    parseStyleBool(*text, tint.preserveLuminance);
  }
  if (const std::wstring* text =
          firstPresent(reader, {L"invertMask", L"tintInvertMask", L"tint.invertMask"})) {
    parseStyleBool(*text, tint.invertMask);
  }
  // A colour alone asks for a tint.
  if (colorGiven && !modeGiven && tint.mode == TintMode::None) tint.mode = TintMode::Tint;
}

void parseSurfaceStyle(const StyleReader& reader, SurfaceStyle& surface) {
  if (reader.empty()) return;
  reader.shape(L"shape", surface.shape);
  const bool materialSet = readMaterial(reader, surface);
  readColors(reader, surface);
  readOpacities(reader, surface);
  readMetrics(reader, surface);
  readEnumerations(reader, surface);
  if (materialSet && surface.material != MaterialKind::None && surface.materialStrength == 0) {
    surface.materialStrength = 150;
  }
  readSwitches(reader, surface);
  readNineSlice(reader, surface);
  readImages(reader, surface);
  parseBitmapTint(reader, surface.tint);
  for (const wchar_t* level : {L"image", L"bitmap", L"skin"})
    parseBitmapTint(reader.at(level), surface.tint);
  readGeometry(reader, surface);
  readGeometry(reader.at(L"geometry"), surface);
}

void parseControlStates(const StyleReader& reader, ControlStates& states) {
  if (reader.empty()) return;
  states.each([&](SurfaceStyle& state) { parseSurfaceStyle(reader, state); });
  parseSurfaceStyle(reader.at(L"normal"), states.normal);
  parseSurfaceStyle(reader.at(L"hot"), states.hot);
  parseSurfaceStyle(reader.at(L"pressed"), states.pressed);
  parseSurfaceStyle(reader.at(L"disabled"), states.disabled);
  parseSurfaceStyle(reader.at(L"active"), states.active);
}

void parseTintStates(const StyleReader& reader, TintStates& tints) {
  if (reader.empty()) return;
  for (BitmapTint* tint :
       {&tints.normal, &tints.hot, &tints.pressed, &tints.disabled, &tints.active}) {
    parseBitmapTint(reader, *tint);
  }
  parseBitmapTint(reader.at(L"normal"), tints.normal);
  parseBitmapTint(reader.at(L"hot"), tints.hot);
  parseBitmapTint(reader.at(L"hover"), tints.hot);
  parseBitmapTint(reader.at(L"pressed"), tints.pressed);
  parseBitmapTint(reader.at(L"down"), tints.pressed);
  parseBitmapTint(reader.at(L"disabled"), tints.disabled);
  parseBitmapTint(reader.at(L"active"), tints.active);
  parseBitmapTint(reader.at(L"checked"), tints.active);
}

void parseTextStyle(const StyleReader& reader, TextStyle& text) {
  if (reader.empty()) return;
  if (const std::wstring* family = reader.find(L"fontFamily")) {
    const std::wstring trimmed = TrimWhiteSpace(*family);
    if (!trimmed.empty()) text.fontFamily = trimmed;
  }
  reader.integer({L"pointSize"}, text.pointSize);
  if (const std::wstring* weight = reader.find(L"weight")) parseFontWeight(*weight, text.weight);
  reader.color({L"color"}, text.color);
  reader.color({L"disabledColor"}, text.disabledColor);
}

}  // namespace tessel
