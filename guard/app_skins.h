// The skins this process offers, assembled once from three places, weakest first: the skin
// files the setup carries (when its start-up has written them to their cache and handed the
// folder over), the installed `skins` folder, and the `skins` folder beside the running
// executable. A later place wins by id and keeps the earlier place in the picker. The list is
// fixed for the rest of the process; a changed file counts at the next start.
#pragma once

#include <string>
#include <vector>

#include "guard/config.h"
#include "tessel/skin/skin_definition.h"

// The folder the setup wrote its skins to. Counts only when handed over before the catalogue
// is first used, which the configuration's loading does.
void UseSetupSkinCache(const std::wstring& folder);

// The three places in the order they are merged; the first is `setup_cache` as given.
std::vector<std::wstring> AppSkinFolders(const std::wstring& setup_cache);

const std::vector<tessel::SkinDefinition>& AppSkinCatalogue();

// The skin an id stands for in the catalogue; null when the catalogue is empty.
const tessel::SkinDefinition* FindAppSkinOrDefault(const std::wstring& id);

// The skin picker over the catalogue: the id at a line, the lines, and the configuration's line.
std::wstring AppSkinIdAtIndex(int index);
std::vector<std::wstring> AppSkinNames();
int SelectedAppSkinIndex(const StayholdConfig& config);
