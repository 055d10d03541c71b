// Which files of a program's private font folder the toolkit loads: the regular files whose
// extension, in any case, is .ttf, .otf, .ttc or .otc, in an order that does not depend on how
// the file system lists them. The platform lists the folder; the choice is made here.
#pragma once

#include <string>
#include <vector>

namespace tessel {

// One name of a folder listing (no path), and whether it is a regular file rather than a
// folder or a device.
struct FolderEntry {
  std::wstring name;
  bool isRegularFile = false;
};

// Whether `name` ends in one of the font extensions, compared lower-cased. The extension runs
// from the last dot, as std::filesystem takes it: a name whose only dot is its first character
// (".ttf") has none, and "a.ttf.bak" or "a.ttf." ends in another one.
bool isPrivateFontFileName(const std::wstring& name);

// The names to load, from the regular files of `listing` only. Sorted by their lower-cased form,
// code unit by code unit, and names that differ only in case by the names themselves: when two
// files hold the same family, the same one wins on every machine.
std::vector<std::wstring> privateFontFiles(const std::vector<FolderEntry>& listing);

}  // namespace tessel
