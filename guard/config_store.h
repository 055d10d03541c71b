// config.ini, the user's one settings file: reading it into a StayholdConfig with the repairs of
// NormalizeConfig and the migration of the older single-list layout, and writing it back key by
// key with the clean-up of stale sections and keys. The skin id is repaired against the skins
// the caller offers.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "guard/config.h"
#include "guard/profile_store.h"
#include "tessel/skin/skin_definition.h"

// Never fails; creates or rewrites the file on a first start or a legacy layout.
StayholdConfig LoadConfig(ProfileStore& store, const std::vector<tessel::SkinDefinition>& skins);
// The system's store and the skins of this process.
StayholdConfig LoadConfig();

// True only if every single write succeeded. Works on a normalized copy.
bool SaveConfig(ProfileStore& store, const StayholdConfig& config,
                const std::vector<tessel::SkinDefinition>& skins);
bool SaveConfig(const StayholdConfig& config);

// A pure repair: language, skin id (to one of `skins`, else "win11-auto") and UI performance
// profile normalized, profile names trimmed, at least one profile, indices and times in range.
StayholdConfig NormalizeConfig(StayholdConfig config,
                               const std::vector<tessel::SkinDefinition>& skins);

// "enabled,day,from,to"; anything that does not convert all four numbers gives the default window.
RestartWindow ParseWindowValue(const std::wstring& text);

// "best-graphics", "balanced" or "maximum-performance" from any of their spellings.
std::wstring NormalizeUiPerformanceProfile(const std::wstring& text);

std::wstring ReadIniString(ProfileStore& store, const std::wstring& path,
                           const std::wstring& section, const std::wstring& key,
                           const std::wstring& fallback);

// The settings dialog's state in the sections ui_state.settings[.controlN].
std::optional<WindowUiState> ReadUiState(ProfileStore& store, const std::wstring& path);
bool WriteUiState(ProfileStore& store, const std::wstring& path, const WindowUiState& state);
// Drops the minimized state and every control but the table and its scroll bar.
WindowUiState NormalizeUiState(WindowUiState state);
