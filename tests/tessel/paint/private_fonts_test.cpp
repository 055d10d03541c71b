#include "tessel/paint/private_fonts.h"

#include <gtest/gtest.h>

namespace tessel {
namespace {

struct NameCase {
  const wchar_t* name;
  bool font;
};

const NameCase kNameCases[] = {
    {L"Sans.ttf", true},      {L"Sans.otf", true},
    {L"Family.ttc", true},    {L"Family.otc", true},
    {L"X.TTF", true},         {L"Mixed.OtF", true},
    {L"two.dots.ttf", true},  {L"..ttf", true},  // the last dot is not the first character
    {L".ttf", false},                            // a dot file: the name has no extension
    {L"Sans.ttf.bak", false}, {L"Sans.ttf.", false},
    {L"Sans.ttf ", false},    {L"Sansttf", false},
    {L"Sans.tt", false},      {L"Sans.ttff", false},
    {L"Sans.fon", false},     {L"Sans.woff2", false},
    {L"notes.txt", false},    {L"", false},
};

TEST(IsPrivateFontFileName, TakesTheFourFontExtensionsInAnyCase) {
  for (const NameCase& c : kNameCases)
    EXPECT_EQ(isPrivateFontFileName(c.name), c.font) << testing::PrintToString(c.name);
}

struct ListingCase {
  const char* what;
  std::vector<FolderEntry> listing;
  std::vector<std::wstring> chosen;
};

const ListingCase kListingCases[] = {
    {"an empty folder", {}, {}},
    {"only fonts that are regular files",
     {{L"b.ttf", true},
      {L"notes.txt", true},
      {L"nested.ttf", false},  // a folder named like a font
      {L"a.otf", true},
      {L"broken.ttf", true}},  // whether it loads is found out later
     {L"a.otf", L"b.ttf", L"broken.ttf"}},
    {"case is ignored by the order",
     {{L"b.ttf", true}, {L"Z.TTF", true}, {L"A.ttf", true}, {L"c.OTC", true}},
     {L"A.ttf", L"b.ttf", L"c.OTC", L"Z.TTF"}},
    {"lower-cased letters sort after the underscore",
     {{L"a_b.ttf", true}, {L"aB.ttf", true}},
     {L"a_b.ttf", L"aB.ttf"}},
    {"the whole name decides, extension included",
     {{L"a.ttf", true}, {L"a.otf", true}, {L"a-b.ttf", true}},
     {L"a-b.ttf", L"a.otf", L"a.ttf"}},
    {"names differing only in case keep one order",
     {{L"x.ttf", true}, {L"X.TTF", true}, {L"X.ttf", true}},
     {L"X.TTF", L"X.ttf", L"x.ttf"}},
    {"nothing to load", {{L"readme.md", true}, {L"fonts", false}, {L".ttf", true}}, {}},
};

TEST(PrivateFontFiles, ChoosesAndOrdersTheFolderListing) {
  for (const ListingCase& c : kListingCases) {
    std::vector<FolderEntry> reversed(c.listing.rbegin(), c.listing.rend());
    EXPECT_EQ(privateFontFiles(c.listing), c.chosen) << c.what;
    // The file system's listing order does not matter.
    EXPECT_EQ(privateFontFiles(reversed), c.chosen) << c.what << " (listed in reverse)";
  }
}

}  // namespace
}  // namespace tessel
