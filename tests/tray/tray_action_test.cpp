#include "tray/tray_action.h"

#include <gtest/gtest.h>

namespace {

constexpr uint32_t Event(uint32_t icon, uint32_t event) {
  return (icon << 16) | event;
}

TEST(TrayActionFor, VersionFourEventsOfOurIcon) {
  const struct {
    uint32_t l_param;
    TrayAction action;
  } cases[] = {
      {Event(1, 0x0205), TrayAction::ShowMenu},      // WM_RBUTTONUP
      {Event(1, 0x007B), TrayAction::ShowMenu},      // WM_CONTEXTMENU
      {Event(1, 0x0202), TrayAction::OpenSettings},  // WM_LBUTTONUP
      {Event(1, 0x0203), TrayAction::OpenSettings},  // WM_LBUTTONDBLCLK
      {Event(1, 0x0400), TrayAction::OpenSettings},  // NIN_SELECT
      {Event(1, 0x0401), TrayAction::OpenSettings},  // NIN_KEYSELECT
      {Event(0, 0x0205), TrayAction::ShowMenu},      // icon id 0 is still not above 1
      {Event(1, 0x0200), TrayAction::None},          // WM_MOUSEMOVE
      {Event(1, 0x0402), TrayAction::None},          // NIN_BALLOONSHOW
      {Event(2, 0x0205), TrayAction::None},          // another icon
      {Event(0xFFFF, 0x0202), TrayAction::None},
  };
  for (const auto& c : cases)
    EXPECT_EQ(TrayActionFor(c.l_param), c.action) << c.l_param;
}

}  // namespace
