// The rows that describe a style record's fields once: the keys a skin spells a field with,
// where it lands in the record, and how the sheet reaches it with a role's shape, a metric of
// the shapes block or the skin-wide material. Reading, shaping and colouring all walk these rows
// (style_record.h), so a new field is one row in its record's table (control_style_fields.h).
#pragma once

#include <array>
#include <cstdint>
#include <limits>
#include <variant>

#include "tessel/skin/skin_definition.h"
#include "tessel/style/button_style.h"
#include "tessel/style/control_states.h"
#include "tessel/style/scroll_acceleration.h"
#include "tessel/style/scroll_bar_style.h"
#include "tessel/style/shape_kind.h"
#include "tessel/style/surface_style.h"
#include "tessel/style/text_style.h"

namespace tessel {

// Up to four spellings, in order; the places after the last stay null. The empty spelling is
// the record's own level: a main text read from the record's keys before its `text` member.
using Spellings = std::array<const wchar_t*, 4>;

// One state of a record's state surfaces, for the records whose skins key each state apart.
template <typename Record>
struct StateOf {
  ControlStates Record::*states;
  SurfaceStyle ControlStates::*state;
};

// Where a field lands. What a key's text means follows from the member's type: Color reads a
// colour, int32_t an integer, bool a switch, float a number, ShapeStyle a shape word; surfaces,
// state sets, texts and tints read the object under the key; a ButtonStyle, ScrollBarStyle or
// ScrollAcceleration member reads the object with that record's own rows.
template <typename Record>
using FieldTarget =
    std::variant<SurfaceStyle Record::*, StateOf<Record>, ControlStates Record::*,
                 TextStyle Record::*, TintStates Record::*, ShapeStyle Record::*, Color Record::*,
                 int32_t Record::*, bool Record::*, float Record::*, ButtonStyle Record::*,
                 ScrollBarStyle Record::*, ScrollAcceleration Record::*>;

// How far the skin-wide strength moves: per state for a set of states; a single surface, or one
// state of a set, takes `normal`.
struct StrengthDeltas {
  int32_t normal = 0;
  int32_t hot = 0;
  int32_t pressed = 0;
  int32_t active = 0;
  int32_t disabled = 0;
};

// The slot of the skin-wide material a field takes (none: the material passes it by).
struct FieldMaterial {
  MaterialKind MaterialProfile::*slot = nullptr;
  StrengthDeltas delta{};
};

// Bounds a number is kept within after reading; NaN falls to the lower bound.
struct FieldLimits {
  double least = -std::numeric_limits<double>::infinity();
  double most = std::numeric_limits<double>::infinity();
};

template <typename Record>
struct StyleField {
  Spellings keys{};  // each present one applies in order, so the last wins
  FieldTarget<Record> target{};
  // Shape words read before any value, so that a surface's own `shape` member wins. A record's
  // main surfaces are those its `shape` key reaches; a parent's shape key, role or material for
  // a nested record lands on them.
  Spellings shapeKeys{};
  Spellings roles{};  // the sheet's shape roles, applied in order
  FieldMaterial material{};
  int32_t ShapeSet::*shapeSetValue = nullptr;  // a value the shapes block may set (-1: unset)
  FieldLimits limits{};
};

// The rows of one style record; every record kind has its specialisation in
// control_style_fields.h.
template <typename Record>
struct StyleFields;

// What the tables of control_style_fields.h have at hand: the row type, the record, a state of
// one of its state sets, and the three material slots.
template <typename Record>
struct FieldRows {
  using Row = StyleField<Record>;
  using S = Record;

  static constexpr StateOf<Record> normal(ControlStates Record::*states) {
    return {states, &ControlStates::normal};
  }
  static constexpr StateOf<Record> hot(ControlStates Record::*states) {
    return {states, &ControlStates::hot};
  }
  static constexpr StateOf<Record> pressed(ControlStates Record::*states) {
    return {states, &ControlStates::pressed};
  }
  static constexpr StateOf<Record> disabled(ControlStates Record::*states) {
    return {states, &ControlStates::disabled};
  }
  static constexpr StateOf<Record> active(ControlStates Record::*states) {
    return {states, &ControlStates::active};
  }

  static constexpr auto kSurface = &MaterialProfile::surface;
  static constexpr auto kControl = &MaterialProfile::control;
  static constexpr auto kAccent = &MaterialProfile::accent;
};

}  // namespace tessel
