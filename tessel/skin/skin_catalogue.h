// Skins from files and folders, and the rules that merge and resolve them: later sources win
// by id (compared without regard to case) and keep the earlier entry's place; an id that is
// missing resolves to "win11-auto", then to the first skin. Nothing here reports an error:
// unreadable files and invalid skins just reduce the list.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "tessel/skin/skin_definition.h"

namespace tessel {

// Every valid skin of one file, each stamped with the file's folder; empty on any failure.
std::vector<SkinDefinition> parseSkinFile(const std::filesystem::path& path);

// The ".json" files (any case) directly in `folder`, in the order of their lower-cased names.
std::vector<SkinDefinition> loadSkinFolder(const std::wstring& folder);

// Each skin of `source` replaces the entry of `target` with its id in place, or is appended.
void mergeSkins(std::vector<SkinDefinition>& target, const std::vector<SkinDefinition>& source);

// The skins of the folders merged in order, weakest first: a later folder's skin takes the place
// of an earlier one with its id. An empty or missing folder adds nothing.
std::vector<SkinDefinition> assembleSkinCatalogue(const std::vector<std::wstring>& folders);

// The skin an id stands for: the trimmed id, else "win11-auto", else the first; null if none.
const SkinDefinition* findSkinOrDefault(const std::vector<SkinDefinition>& catalogue,
                                        const std::wstring& id);

// The palette used when no skin exists at all.
Theme fallbackTheme();

}  // namespace tessel
