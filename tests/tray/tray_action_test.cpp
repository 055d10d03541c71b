#include "tray/tray_action.h"

#include <gtest/gtest.h>

TEST(TrayActionFor, VersionFourEventsOfOurIcon) {
  // The icon id in the high word; WM_RBUTTONUP, WM_CONTEXTMENU, WM_LBUTTONUP, WM_LBUTTONDBLCLK,
  // NIN_SELECT, NIN_KEYSELECT and WM_MOUSEMOVE in the low word. Icon 0 is still not above 1.
  using enum TrayAction;
  const std::pair<uint32_t, TrayAction> cases[] = {
      {0x10205, ShowMenu},     {0x1007B, ShowMenu},     {0x10202, OpenSettings},
      {0x10203, OpenSettings}, {0x10400, OpenSettings}, {0x10401, OpenSettings},
      {0x00205, ShowMenu},     {0x10200, None},         {0x20205, None}};
  for (const auto& [l_param, action] : cases)
    EXPECT_EQ(TrayActionFor(l_param), action) << std::hex << l_param;
}
