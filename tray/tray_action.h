// What a click on the tray icon asks for, read from the callback's lParam with version-4
// semantics: the icon id in the high word, the event in the low word.
#pragma once

#include <cstdint>

enum class TrayAction { None, ShowMenu, OpenSettings };

inline TrayAction TrayActionFor(uint32_t l_param) {
  constexpr unsigned kLButtonUp = 0x0202, kLButtonDblClk = 0x0203, kRButtonUp = 0x0205;
  constexpr unsigned kContextMenu = 0x007B, kNinSelect = 0x0400, kNinKeySelect = 0x0401;
  if ((l_param >> 16) > 1) return TrayAction::None;  // not our icon
  switch (l_param & 0xFFFF) {
    case kRButtonUp:
    case kContextMenu:
      return TrayAction::ShowMenu;
    case kLButtonUp:
    case kLButtonDblClk:
    case kNinSelect:
    case kNinKeySelect:
      return TrayAction::OpenSettings;
    default:
      return TrayAction::None;
  }
}
