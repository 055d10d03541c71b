#include "tessel/skin/skin_definition.h"

#include <algorithm>

#include "base/wide_text.h"
#include "tessel/skin/skin_words.h"
#include "tessel/skin/json_access.h"
#include "tessel/skin/material_preset.h"
#include "tessel/skin/style_reader.h"

namespace tessel {

namespace {

void addTag(std::vector<std::wstring>& tags, const std::wstring& tag) {
  const std::wstring lower = LowerCase(tag);
  if (lower.empty() || std::find(tags.begin(), tags.end(), lower) != tags.end()) return;
  tags.push_back(lower);
}

std::vector<std::wstring> readTags(const JsonValue* value) {
  std::vector<std::wstring> tags;
  if (value == nullptr) return tags;
  if (value->isArray()) {
    for (const JsonValue& item : value->items)
      if (item.isString()) addTag(tags, item.text);
  } else if (value->isString()) {
    size_t start = 0;
    while (start <= value->text.size()) {
      size_t bar = value->text.find(L'|', start);
      if (bar == std::wstring::npos) bar = value->text.size();
      addTag(tags, value->text.substr(start, bar - start));
      start = bar + 1;
    }
  }
  return tags;
}

// Opacity-like values clamp to a byte; a member that is not a number or digits keeps the value.
void readNumber(const JsonValue& object, Aliases aliases, int32_t& field, bool byte) {
  const JsonValue* member = findMember(object, aliases);
  if (member == nullptr) return;
  field = intOr(member, field);
  if (byte) field = std::clamp(field, 0, 255);
}

// A word of the `surface` slot: a preset copies its row; a kind sets the slot.
bool readSlotWord(const JsonValue* member, MaterialKind& slot, MaterialProfile* presetTarget) {
  if (member == nullptr || !member->isString()) return false;
  if (presetTarget != nullptr) {
    if (const MaterialPreset* preset = findMaterialPreset(member->text)) {
      MaterialProfile& p = *presetTarget;
      p.surface = p.control = p.accent = preset->kind;
      p.tint = preset->tint;
      p.backlight = preset->backlight;
      p.strength = preset->strength;
      p.highlightOpacity = preset->highlightOpacity;
      p.reflectionOpacity = preset->reflectionOpacity;
      p.grainOpacity = preset->grainOpacity;
      p.depth = preset->depth;
      p.roughness = preset->roughness;
      p.specular = preset->specular;
      p.ambientOcclusion = preset->ambientOcclusion;
      p.edgeWear = preset->edgeWear;
      p.textureOpacity = preset->textureOpacity;
      p.lightElevation = preset->lightElevation;
      p.scale = preset->scale;
      p.angle = preset->angle;
      p.lightAngle = preset->lightAngle;
      p.noiseSeed = preset->noiseSeed;
      p.finish = preset->finish;
      return true;
    }
  }
  if (const MaterialPreset* preset = findMaterialPreset(member->text)) {
    slot = preset->kind;
    return true;
  }
  MaterialKind kind = slot;
  if (!parseMaterialKind(member->text, kind)) return false;
  slot = kind;
  return true;
}

// A shape as a string, or an object whose `shape`, `surface` or `value` holds one.
bool readShape(const JsonValue* value, ShapeKind& kind) {
  if (value == nullptr) return false;
  if (value->isString()) return parseShapeKind(value->text, kind);
  if (!value->isObject()) return false;
  for (const wchar_t* key : {L"shape", L"surface", L"value"}) {
    if (readShape(findMember(*value, {key}), kind)) return true;
  }
  return false;
}

void setShape(ShapeSet& set, const std::wstring& role, const JsonValue* value) {
  ShapeKind kind = ShapeKind::Rectangle;
  if (readShape(value, kind)) set.shapes[role] = kind;
}

struct PartSpec {
  const wchar_t* role;
  Aliases aliases;
};

// A role with parts: a string sets the whole role, an object sets its parts.
void readComposite(ShapeSet& set, const JsonValue& shapes, const wchar_t* role, Aliases roleKeys,
                   std::initializer_list<PartSpec> parts) {
  const JsonValue* value = findMember(shapes, roleKeys);
  if (value == nullptr) return;
  if (!value->isObject()) {
    setShape(set, role, value);
    return;
  }
  for (const PartSpec& part : parts)
    setShape(set, std::wstring(role) + L"." + part.role, findMember(*value, part.aliases));
}

void readOverrides(const JsonValue* block, std::vector<StyleOverride>& overrides) {
  if (block == nullptr || !block->isObject()) return;
  for (const auto& [type, ids] : block->members) {
    if (!ids.isObject()) continue;
    for (const auto& [id, properties] : ids.members) {
      if (!properties.isObject()) continue;
      StyleOverride entry;
      entry.type = normalizeKey(type);
      entry.id = normalizeKey(id);
      if (entry.id.empty()) entry.id = L"default";
      flattenProperties(properties, L"", entry.properties);
      if (!entry.properties.empty()) overrides.push_back(std::move(entry));
    }
  }
}

}  // namespace

void parseMaterialProfile(const JsonValue& value, const Theme& theme, MaterialProfile& p) {
  p.tint = theme.textHot;
  if (!value.isObject()) return;
  bool found = false;
  // The first string among the surface keys is tried as a preset, then as a kind.
  const JsonValue* surfaceWord = nullptr;
  for (const wchar_t* key :
       {L"preset", L"material_preset", L"materialPreset", L"surface", L"material", L"main"}) {
    const JsonValue* member = findMember(value, {key});
    if (member != nullptr && member->isString()) {
      surfaceWord = member;
      break;
    }
  }
  if (readSlotWord(surfaceWord, p.surface, &p)) {
    found = true;
    p.control = p.accent = p.surface;
  }
  // The other two slots take a kind, or the kind of a preset.
  if (readSlotWord(findMember(value, {L"control", L"controls"}), p.control, nullptr)) found = true;
  if (readSlotWord(findMember(value, {L"accent", L"accented", L"highlight"}), p.accent, nullptr)) {
    found = true;
  }
  p.strength = found ? 150 : 0;
  if (const JsonValue* tint = findMember(value, {L"tint", L"material_tint", L"materialTint"});
      tint != nullptr && tint->isString()) {
    parseHexColor(tint->text, p.tint);
  }
  if (const JsonValue* back = findMember(value, {L"backlight_color", L"backlightColor"});
      back != nullptr && back->isString()) {
    parseHexColor(back->text, p.backlight);
  }
  readNumber(value, {L"strength", L"material_strength", L"materialStrength"}, p.strength, true);
  readNumber(value, {L"highlight_opacity", L"highlightOpacity"}, p.highlightOpacity, true);
  readNumber(value, {L"reflection_opacity", L"reflectionOpacity"}, p.reflectionOpacity, true);
  readNumber(value, {L"grain_opacity", L"grainOpacity"}, p.grainOpacity, true);
  readNumber(
      value,
      {L"depth", L"material_depth", L"materialDepth", L"relief", L"bump_depth", L"bumpDepth"},
      p.depth, true);
  readNumber(value, {L"backlight_opacity", L"backlightOpacity"}, p.backlightOpacity, true);
  readNumber(value, {L"inner_glow", L"innerGlow"}, p.innerGlow, true);
  readNumber(value, {L"rim_light", L"rimLight"}, p.rimLight, true);
  readNumber(value,
             {L"light_elevation", L"lightElevation", L"material_light_elevation",
              L"materialLightElevation"},
             p.lightElevation, true);
  readNumber(value, {L"roughness", L"material_roughness", L"materialRoughness"}, p.roughness, true);
  readNumber(value,
             {L"specular", L"material_specular", L"materialSpecular", L"shine", L"shininess"},
             p.specular, true);
  readNumber(value,
             {L"ambient_occlusion", L"ambientOcclusion", L"ao", L"occlusion", L"contact_shadow",
              L"contactShadow"},
             p.ambientOcclusion, true);
  readNumber(value, {L"edge_wear", L"edgeWear", L"edge_highlight", L"edgeHighlight"}, p.edgeWear,
             true);
  readNumber(value,
             {L"texture_opacity", L"textureOpacity", L"texture_strength", L"textureStrength",
              L"texture_mix", L"textureMix"},
             p.textureOpacity, true);
  readNumber(value, {L"scale", L"material_scale", L"materialScale"}, p.scale, false);
  readNumber(value, {L"angle", L"material_angle", L"materialAngle"}, p.angle, false);
  readNumber(value, {L"light_angle", L"lightAngle", L"material_light_angle", L"materialLightAngle"},
             p.lightAngle, false);
  readNumber(value, {L"light_blob_scale", L"lightBlobScale"}, p.lightBlobScale, false);
  readNumber(value, {L"light_blob_angle", L"lightBlobAngle"}, p.lightBlobAngle, false);
  readNumber(value, {L"animation_speed", L"animationSpeed"}, p.animationSpeed, false);
  if (const JsonValue* finish = findMember(value, {L"finish", L"surface_finish", L"surfaceFinish",
                                                   L"material_finish", L"materialFinish"});
      finish != nullptr && finish->isString()) {
    parseFinish(finish->text, p.finish);
  }
  if (const JsonValue* mapping = findMember(value, {L"uv_mapping", L"uvMapping", L"mapping",
                                                    L"material_mapping", L"materialMapping"})) {
    const std::wstring word =
        mapping->isString() ? normalizeKey(mapping->text) : scalarText(*mapping);
    if (word == L"1" || word == L"global" || word == L"window" || word == L"world") {
      p.uvMapping = 1;
    } else if (word == L"0" || word == L"local" || word == L"surface" || word == L"control") {
      p.uvMapping = 0;
    }
  }
  readNumber(value, {L"uv_scale", L"uvScale", L"mapping_scale", L"mappingScale"}, p.uvScale, false);
  readNumber(value, {L"uv_offset_x", L"uvOffsetX", L"mapping_offset_x", L"mappingOffsetX"},
             p.uvOffsetX, false);
  readNumber(value, {L"uv_offset_y", L"uvOffsetY", L"mapping_offset_y", L"mappingOffsetY"},
             p.uvOffsetY, false);
  if (const JsonValue* kind = findMember(
          value, {L"gradient_kind", L"gradientKind", L"gradient_type", L"gradientType"})) {
    if (kind->isString()) {
      parseGradientKind(kind->text, p.gradientKind);
    } else {
      p.gradientKind = intOr(kind, p.gradientKind);
    }
  }
  if (const JsonValue* direction =
          findMember(value, {L"gradient_direction", L"gradientDirection"})) {
    if (direction->isString()) {
      parseGradientDirection(direction->text, p.gradientDirection);
    } else {
      p.gradientDirection = intOr(direction, p.gradientDirection);
    }
  }
  p.enabled = boolMember(value, {L"enabled"}, found);
}

void parseShapeSet(const JsonValue& value, ShapeSet& set) {
  if (!value.isObject()) return;
  const struct {
    const wchar_t* role;
    Aliases aliases;
  } simple[] = {
      {L"window", {L"window"}},
      {L"panel", {L"panel"}},
      {L"chrome", {L"chrome", L"titlebar", L"title_bar"}},
      {L"statuschip", {L"status_chip", L"statusChip"}},
      {L"statusbadge", {L"status_badge", L"statusBadge"}},
      {L"checkbox", {L"checkbox", L"check_box"}},
      {L"selectbox", {L"selectbox", L"select_box"}},
      {L"selectarrow", {L"selectbox_arrow", L"selectBoxArrow", L"select_arrow", L"selectArrow"}},
      {L"selectdropdown",
       {L"selectbox_dropdown", L"selectBoxDropdown", L"select_dropdown", L"selectDropdown"}},
      {L"listrow", {L"listbox_row", L"listBoxRow", L"list_box_row"}},
      {L"listselectedrow",
       {L"listbox_selected_row", L"listBoxSelectedRow", L"list_box_selected_row"}},
      {L"listselectedrail",
       {L"listbox_selected_rail", L"listBoxSelectedRail", L"list_box_selected_rail"}},
      {L"tab", {L"tab", L"tab_item", L"tabItem"}},
      {L"menubar", {L"menu_bar", L"menuBar", L"menubar", L"menu"}},
      {L"menuitem", {L"menu_item", L"menuItem", L"menuBarItem", L"menu_bar_item"}},
      {L"menupopup", {L"menu_popup", L"menuPopup", L"menu_dropdown", L"menuDropdown"}},
      {L"menupopupitem", {L"menu_popup_item", L"menuPopupItem", L"submenu_item", L"submenuItem"}},
      {L"richtext", {L"rich_text", L"richText"}},
      {L"richtexticon", {L"rich_text_icon", L"richTextIcon"}},
      {L"textinput", {L"text_input", L"textInput", L"input"}},
      {L"textinputattachment", {L"text_input_attachment", L"textInputAttachment", L"attachment"}},
      {L"selectabletext", {L"selectable_text", L"selectableText"}},
      {L"tooltip", {L"tooltip"}},
      {L"tooltiprail", {L"tooltip_rail", L"tooltipRail"}},
      {L"tooltipicon", {L"tooltip_icon", L"tooltipIcon"}},
  };
  for (const auto& entry : simple)
    setShape(set, entry.role, findMember(value, entry.aliases));

  readComposite(
      set, value, L"button", {L"button", L"buttons"},
      {{L"primary", {L"primary", L"primary_button", L"primaryButton"}},
       {L"secondary", {L"secondary", L"default", L"secondary_button", L"secondaryButton"}}});
  readComposite(set, value, L"card", {L"card"},
                {{L"surface", {L"surface", L"body"}},
                 {L"header", {L"header"}},
                 {L"shape", {L"shape"}},
                 {L"title", {L"title"}}});
  readComposite(
      set, value, L"progress", {L"progress", L"progress_bar", L"progressBar"},
      {{L"frame", {L"frame"}}, {L"track", {L"track", L"rail"}}, {L"fill", {L"fill", L"value"}}});
  const std::initializer_list<PartSpec> tableParts = {
      {L"surface", {L"surface", L"body"}},
      {L"header", {L"header"}},
      {L"row", {L"row"}},
      {L"selectedrow", {L"selected_row", L"selectedRow"}},
      {L"selectedrail", {L"selected_rail", L"selectedRail"}}};
  readComposite(set, value, L"table", {L"table", L"table_list", L"tableList"}, tableParts);
  readComposite(set, value, L"list", {L"listbox", L"list_box"}, tableParts);
  readComposite(set, value, L"popup", {L"popup", L"dialog"},
                {{L"surface", {L"surface"}}, {L"header", {L"header"}}, {L"icon", {L"icon"}}});

  if (const JsonValue* scroll = findMember(value, {L"scrollbar", L"scroll_bar"})) {
    if (!scroll->isObject()) {
      setShape(set, L"scroll", scroll);
    } else {
      setShape(set, L"scroll.track",
               findMember(*scroll, {L"track", L"track_shape", L"trackShape"}));
      setShape(set, L"scroll.thumb",
               findMember(*scroll, {L"thumb", L"handle", L"thumb_shape", L"thumbShape"}));
      setShape(set, L"scroll.button",
               findMember(*scroll, {L"button", L"buttons", L"button_shape", L"buttonShape"}));
      readNumber(*scroll, {L"button_extent", L"buttonExtent"}, set.scrollButtonExtent, false);
      readNumber(*scroll, {L"min_thumb_extent", L"minThumbExtent"}, set.scrollMinThumbExtent,
                 false);
      readNumber(*scroll, {L"track_padding", L"trackPadding"}, set.scrollTrackPadding, false);
      readNumber(*scroll, {L"track_thickness", L"trackThickness"}, set.scrollTrackThickness, false);
      readNumber(*scroll, {L"thumb_thickness", L"thumbThickness"}, set.scrollThumbThickness, false);
      if (const JsonValue* show = findMember(*scroll, {L"show_buttons", L"showButtons"})) {
        set.scrollShowButtons = boolOr(show, false) ? 1 : 0;
      }
    }
  }
}

bool parseSkinDefinition(const JsonValue& value, SkinDefinition& skin) {
  if (!value.isObject()) return false;
  SkinDefinition parsed;
  parsed.id = stringOr(findMember(value, {L"id"}), L"");
  parsed.name = stringOr(findMember(value, {L"name"}), L"");
  if (parsed.id.empty() || parsed.name.empty()) return false;
  parsed.description = stringOr(findMember(value, {L"description"}), L"");
  parsed.category = stringOr(findMember(value, {L"category"}), parsed.category);
  parsed.harmony = stringOr(findMember(value, {L"harmony"}), parsed.harmony);
  if (const JsonValue* mode = findMember(value, {L"surface_mode", L"surfaceMode"});
      mode != nullptr && mode->isString()) {
    parsed.surfaceMode = parseSurfaceMode(mode->text);
  }
  parsed.tags = readTags(findMember(value, {L"tags"}));
  addTag(parsed.tags, parsed.category);
  addTag(parsed.tags, parsed.harmony);
  addTag(parsed.tags, L"external");
  if (const JsonValue* theme = findMember(value, {L"theme"}); theme && theme->isObject()) {
    parseTheme(*theme, parsed.theme);
  } else {
    parseTheme(JsonValue(), parsed.theme);
  }
  parsed.materials.tint = parsed.theme.textHot;
  if (const JsonValue* materials =
          findMember(value, {L"materials", L"material_profile", L"materialProfile"})) {
    parseMaterialProfile(*materials, parsed.theme, parsed.materials);
  }
  if (const JsonValue* shapes = findMember(value, {L"shapes"}))
    parseShapeSet(*shapes, parsed.shapes);
  readOverrides(findMember(value, {L"styles", L"style_overrides", L"styleOverrides"}),
                parsed.overrides);
  readOverrides(findMember(value, {L"variants", L"style_variants", L"styleVariants",
                                   L"control_variants", L"controlVariants"}),
                parsed.overrides);
  skin = std::move(parsed);
  return true;
}

std::vector<SkinDefinition> parseSkinDocuments(const JsonValue& root) {
  const JsonValue* list = nullptr;
  if (root.isArray()) {
    list = &root;
  } else if (const JsonValue* skins = findMember(root, {L"skins"}); skins && skins->isArray()) {
    list = skins;
  }
  std::vector<SkinDefinition> result;
  SkinDefinition skin;
  if (list != nullptr) {
    for (const JsonValue& item : list->items)
      if (parseSkinDefinition(item, skin)) result.push_back(skin);
    return result;
  }
  if (!root.isObject()) return result;
  const JsonValue* single = findMember(root, {L"skin"});
  if (parseSkinDefinition(single != nullptr ? *single : root, skin)) result.push_back(skin);
  return result;
}

}  // namespace tessel
