// Reading, shaping and colouring any control style record by walking its rows
// (control_style_fields.h): a skin's keys under a reader, the sheet's shape roles and the
// metrics of the shapes block, and the skin-wide material. What a skin doesn't name keeps what
// the record held.
#pragma once

#include <cstring>
#include <cwchar>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>

#include "tessel/skin/control_style_fields.h"
#include "tessel/skin/material_preset.h"
#include "tessel/skin/style_reader.h"
#include "tessel/skin/surface_parser.h"

namespace tessel {

template <typename T>
concept StyleRecord = requires {
  StyleFields<T>::rows;
};

// Lays the keys under the reader over the record: shape keys first, then every field in turn.
template <StyleRecord Record>
void parseStyle(const StyleReader& reader, Record& record);
// Gives the record's main surfaces (those its `shape` key reaches) the shape.
template <StyleRecord Record>
void shapeStyle(Record& record, ShapeKind kind);
// The shapes block's roles and metrics, for the record and the records nested in it.
template <StyleRecord Record>
void applyShapeRoles(Record& record, const ShapeSet& shapes);
// The profile's slots with their deltas, for the record and the records nested in it.
template <StyleRecord Record>
void applyMaterialSlots(Record& record, const MaterialProfile& profile);
// The material `kind` moved by `delta` on the record's main surfaces.
template <StyleRecord Record>
void applyMainMaterial(Record& record, const MaterialProfile& profile, MaterialKind kind,
                       const StrengthDeltas& delta);

namespace field_walk {

template <typename Record, typename Member>
Member& resolve(Record& record, Member Record::*member) {
  return record.*member;
}

template <typename Record>
SurfaceStyle& resolve(Record& record, const StateOf<Record>& state) {
  return (record.*state.states).*state.state;
}

// Calls `f` with the field's value in the record.
template <typename Record, typename F>
void withValue(Record& record, const StyleField<Record>& field, F&& f) {
  std::visit([&](const auto& target) { f(resolve(record, target)); }, field.target);
}

inline bool names(const Spellings& spellings, const wchar_t* word) {
  for (const wchar_t* spelling : spellings)
    if (spelling != nullptr && std::wcscmp(spelling, word) == 0) return true;
  return false;
}

template <typename Value>
void setShape(Value& value, ShapeKind kind) {
  if constexpr (std::is_same_v<Value, SurfaceStyle>) {
    value.shape = kind;
  } else if constexpr (std::is_same_v<Value, ControlStates>) {
    value.each([&](SurfaceStyle& state) { state.shape = kind; });
  } else if constexpr (StyleRecord<Value>) {
    shapeStyle(value, kind);
  }
}

template <typename Value>
void setMaterial(Value& value, const MaterialProfile& profile, MaterialKind kind,
                 const StrengthDeltas& delta) {
  if constexpr (std::is_same_v<Value, SurfaceStyle>) {
    applyMaterial(value, profile, kind, delta.normal);
  } else if constexpr (std::is_same_v<Value, ControlStates>) {
    applyMaterial(value.normal, profile, kind, delta.normal);
    applyMaterial(value.hot, profile, kind, delta.hot);
    applyMaterial(value.pressed, profile, kind, delta.pressed);
    applyMaterial(value.active, profile, kind, delta.active);
    applyMaterial(value.disabled, profile, kind, delta.disabled);
  } else if constexpr (StyleRecord<Value>) {
    applyMainMaterial(value, profile, kind, delta);
  }
}

// The object a larger field reads from one level of keys.
template <typename Value>
void readObject(const StyleReader& level, Value& value) {
  if constexpr (std::is_same_v<Value, SurfaceStyle>) {
    parseSurfaceStyle(level, value);
  } else if constexpr (std::is_same_v<Value, ControlStates>) {
    parseControlStates(level, value);
  } else if constexpr (std::is_same_v<Value, TextStyle>) {
    parseTextStyle(level, value);
  } else if constexpr (std::is_same_v<Value, TintStates>) {
    parseTintStates(level, value);
  } else {
    parseStyle(level, value);
  }
}

// Reads one spelling of a field: the word under the key for a value, the object under it (or
// the record's own level, for the empty key) for anything larger.
template <typename Value>
void read(const StyleReader& reader, const wchar_t* key, Value& value) {
  if constexpr (std::is_same_v<Value, ShapeStyle>) {
    if (reader.shape(key, value.kind)) value.present = true;
  } else if constexpr (std::is_arithmetic_v<Value>) {
    const std::wstring* text = reader.find(key);
    if (text == nullptr) return;
    if constexpr (std::is_same_v<Value, bool>) {
      parseStyleBool(*text, value);
    } else if constexpr (std::is_same_v<Value, float>) {
      parseStyleReal(*text, value);
    } else if constexpr (std::is_same_v<Value, Color>) {
      parseStyleColor(*text, value);
    } else {
      parseStyleInteger(*text, value);
    }
  } else if (*key == L'\0') {
    readObject(reader, value);
  } else {
    readObject(reader.at(key), value);
  }
}

template <typename Value>
void limit(Value& value, const FieldLimits& limits) {
  if constexpr (std::is_arithmetic_v<Value> && !std::is_same_v<Value, bool>) {
    if (!(value >= limits.least)) {
      value = static_cast<Value>(limits.least);
    } else if (value > limits.most) {
      value = static_cast<Value>(limits.most);
    }
  }
}

// Several fields often share a shape key ("shape"); each key is looked up once per record.
class ShapeKeys {
 public:
  explicit ShapeKeys(const StyleReader& reader) : reader_(reader) {}
  const ShapeKind* find(const wchar_t* key) {
    for (size_t i = 0; i < count_; ++i)
      if (std::wcscmp(seen_[i].key, key) == 0) return seen_[i].found ? &seen_[i].kind : nullptr;
    // When full, the last entry is looked up afresh each time.
    Seen& seen = seen_[count_ < kCapacity ? count_++ : kCapacity - 1];
    seen = Seen{key, false, ShapeKind::Rectangle};
    seen.found = reader_.shape(key, seen.kind);
    return seen.found ? &seen.kind : nullptr;
  }

 private:
  static constexpr size_t kCapacity = 8;
  struct Seen {
    const wchar_t* key;
    bool found;
    ShapeKind kind;
  };
  const StyleReader& reader_;
  Seen seen_[kCapacity] = {};
  size_t count_ = 0;
};

template <typename Value>
constexpr bool kShapeable = std::is_same_v<Value, SurfaceStyle> ||
                            std::is_same_v<Value, ControlStates> || StyleRecord<Value>;

// What the walks take for granted of a table, checked when it compiles: every field has a key,
// the empty key only for objects, shapes, roles and material only for surfaces, a value of the
// shapes block only for integers and switches, limits only for numbers.
template <typename Record>
constexpr bool rowsHold() {
  for (const StyleField<Record>& field : StyleFields<Record>::rows) {
    const bool holds = std::visit(
        [&](const auto& target) {
          using Value = std::remove_reference_t<decltype(resolve(std::declval<Record&>(), target))>;
          constexpr bool number = std::is_arithmetic_v<Value> && !std::is_same_v<Value, bool>;
          const bool limited =
              field.limits.least != FieldLimits().least || field.limits.most != FieldLimits().most;
          bool emptyKey = false;
          for (const wchar_t* key : field.keys)
            if (key != nullptr && *key == L'\0') emptyKey = true;
          return field.keys[0] != nullptr &&
                 (!emptyKey ||
                  !(std::is_arithmetic_v<Value> || std::is_same_v<Value, ShapeStyle>)) &&
                 (kShapeable<Value> ||
                  (field.shapeKeys[0] == nullptr && field.roles[0] == nullptr &&
                   field.material.slot == nullptr)) &&
                 (field.shapeSetValue == nullptr || std::is_same_v<Value, int32_t> ||
                  std::is_same_v<Value, bool>)&&(!limited || number);
        },
        field.target);
    if (!holds) return false;
  }
  return true;
}

}  // namespace field_walk

template <StyleRecord Record>
void parseStyle(const StyleReader& reader, Record& record) {
  static_assert(field_walk::rowsHold<Record>(), "a row of this record's table is inconsistent");
  field_walk::ShapeKeys shapes(reader);
  for (const StyleField<Record>& field : StyleFields<Record>::rows) {
    for (const wchar_t* key : field.shapeKeys) {
      if (key == nullptr) break;
      if (const ShapeKind* kind = shapes.find(key))
        field_walk::withValue(record, field,
                              [&](auto& value) { field_walk::setShape(value, *kind); });
    }
  }
  for (const StyleField<Record>& field : StyleFields<Record>::rows) {
    field_walk::withValue(record, field, [&](auto& value) {
      for (const wchar_t* key : field.keys) {
        if (key == nullptr) break;
        field_walk::read(reader, key, value);
      }
      field_walk::limit(value, field.limits);
    });
  }
}

template <StyleRecord Record>
void shapeStyle(Record& record, ShapeKind kind) {
  for (const StyleField<Record>& field : StyleFields<Record>::rows) {
    if (field_walk::names(field.shapeKeys, L"shape"))
      field_walk::withValue(record, field, [&](auto& value) { field_walk::setShape(value, kind); });
  }
}

template <StyleRecord Record>
void applyShapeRoles(Record& record, const ShapeSet& shapes) {
  for (const StyleField<Record>& field : StyleFields<Record>::rows) {
    field_walk::withValue(record, field, [&](auto& value) {
      using Value = std::remove_reference_t<decltype(value)>;
      for (const wchar_t* role : field.roles) {
        if (role == nullptr) break;
        if (const ShapeKind* kind = shapes.find(role)) field_walk::setShape(value, *kind);
      }
      if (field.shapeSetValue != nullptr) {
        const int32_t given = shapes.*field.shapeSetValue;
        if constexpr (std::is_same_v<Value, bool>) {
          if (given >= 0) value = given == 1;
        } else if constexpr (std::is_same_v<Value, int32_t>) {
          if (given >= 0) value = given;
        }
      }
      if constexpr (StyleRecord<Value>) applyShapeRoles(value, shapes);
    });
  }
}

template <StyleRecord Record>
void applyMaterialSlots(Record& record, const MaterialProfile& profile) {
  for (const StyleField<Record>& field : StyleFields<Record>::rows) {
    field_walk::withValue(record, field, [&](auto& value) {
      using Value = std::remove_reference_t<decltype(value)>;
      if (field.material.slot != nullptr) {
        field_walk::setMaterial(value, profile, profile.*field.material.slot, field.material.delta);
      }
      if constexpr (StyleRecord<Value>) applyMaterialSlots(value, profile);
    });
  }
}

template <StyleRecord Record>
void applyMainMaterial(Record& record, const MaterialProfile& profile, MaterialKind kind,
                       const StrengthDeltas& delta) {
  for (const StyleField<Record>& field : StyleFields<Record>::rows) {
    if (field_walk::names(field.shapeKeys, L"shape")) {
      field_walk::withValue(record, field, [&](auto& value) {
        field_walk::setMaterial(value, profile, kind, delta);
      });
    }
  }
}

}  // namespace tessel
