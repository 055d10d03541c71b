// The skin documents the setup carries, written where its own dialogs' skin catalogue finds
// them before anything is installed.
#pragma once

#include <string>
#include <vector>

#include "setup/payload.h"

// The rows to write: ".json" files whose parent folder is "skins" (any case).
std::vector<PayloadRow> SetupSkinRows(const PayloadRow* table);

// local_app_data\Stayhold\setup-skin-cache, or the temporary folder's Stayhold-setup-skin-cache.
std::wstring SetupSkinCacheFolder();

// Writes the skins to the cache; the paths written. A file that fails is skipped.
std::vector<std::wstring> WriteSetupSkins();
