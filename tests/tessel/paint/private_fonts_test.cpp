#include "tessel/paint/private_fonts.h"

#include <gtest/gtest.h>

namespace tessel {
namespace {

TEST(IsPrivateFontFileName, TakesTheFourFontExtensionsInAnyCase) {
  const struct {
    const wchar_t* name;
    bool font;
  } kCases[] = {
      {L"Sans.ttf", true},   {L"Sans.otf", true}, {L"Family.ttc", true}, {L"Mixed.OtC", true},
      {L"..ttf", true},      {L".ttf", false},  // a dot file: the name has no extension
      {L"Sans.ttf.", false}, {L"Sansttf", false}, {L"Sans.fon", false},  {L"", false},
  };
  for (const auto& c : kCases)
    EXPECT_EQ(isPrivateFontFileName(c.name), c.font) << testing::PrintToString(c.name);
}

TEST(PrivateFontFiles, ChoosesAndOrdersTheFolderListing) {
  const struct {
    const char* what;
    std::vector<FolderEntry> listing;
    std::vector<std::wstring> chosen;
  } kCases[] = {
      {"an empty folder", {}, {}},
      {"regular font files only, whether they load is found out later",
       {{L"b.ttf", true}, {L"notes.txt", true}, {L"nested.ttf", false}, {L"broken.ttf", true}},
       {L"b.ttf", L"broken.ttf"}},
      {"lower-cased order: the underscore before letters, case ignored, then as listed",
       {{L"aB.ttf", true},
        {L"z.ttf", true},
        {L"a_b.ttf", true},
        {L"c.OTC", true},
        {L"Z.TTF", true}},
       {L"a_b.ttf", L"aB.ttf", L"c.OTC", L"Z.TTF", L"z.ttf"}},
  };
  for (const auto& c : kCases) {
    EXPECT_EQ(privateFontFiles(c.listing), c.chosen) << c.what;
    // The file system's listing order does not matter.
    EXPECT_EQ(privateFontFiles({c.listing.rbegin(), c.listing.rend()}), c.chosen) << c.what;
  }
}

}  // namespace
}  // namespace tessel
