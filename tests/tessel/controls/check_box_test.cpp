#include "tessel/controls/check_box.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/tessel/controls/control_fixtures.h"

namespace tessel {
namespace {

CheckBox Make(const wchar_t* text = L"X", int32_t width = 120) {
  CheckBoxStyle style;
  style.text = PlainText(rgbColor(250, 250, 250));
  return CheckBox(L"c", Rect{0, 0, width, 18}, text, style);
}

TEST(CheckBox, AClickTogglesAndTellsTheNewAndPreviousStateSetCheckedIsSilent) {
  CheckBox box = Make();
  std::vector<std::wstring> seen;
  bool veto = false;
  box.onValueChanged([&](ValueChangedEvent& event) {
    seen.push_back(event.text + L"<" + event.previousText + (event.checked ? L" on" : L" off") +
                   (event.previousChecked ? L"<on" : L"<off"));
    EXPECT_EQ(event.sender, &box);  // filled in before the handlers run
    event.handled = veto;
  });
  box.setOnChanged([&](bool checked) { seen.push_back(checked ? L"changed on" : L"changed off"); });
  box.setChecked(true);
  box.clicked();
  veto = true;  // a handled change still toggles, but skips onChanged
  box.clicked();
  box.setEnabled(false);
  box.clicked();
  EXPECT_TRUE(box.checked());
  EXPECT_EQ(seen, (std::vector<std::wstring>{L"false<true off<on", L"changed off",
                                             L"true<false on<off"}));
}

TEST(CheckBox, SpaceAndEnterWithoutCtrlOrAltToggle) {
  struct Case {
    uint32_t key;
    bool ctrl, shift, alt, consumed;
  };
  const Case cases[] = {{0x20, false, true, false, true},
                        {0x0D, false, false, false, true},
                        {0x20, true, false, false, false},
                        {'A', false, false, false, false}};
  for (const Case& c : cases) {
    CheckBox box = Make();
    EXPECT_EQ(box.keyDown(c.key, c.ctrl, c.shift, c.alt, nullptr), c.consumed) << c.key;
    EXPECT_EQ(box.checked(), c.consumed) << c.key;
  }
}

}  // namespace
}  // namespace tessel
