// The application's shortcuts (Start menu, Startup, desktop), each Stayhold.lnk with the
// application's AppUserModelID, and the two tray toggles that add or remove them.
#pragma once

#include <string>

#include "guard/install_paths.h"

inline constexpr wchar_t kAppUserModelIdApp[] = L"Marlowen.Stayhold.App";

// The first failing call's HRESULT, 0 on success; COM must be initialized for the thread.
long CreateShortcut(const std::wstring& link, const std::wstring& target,
                    const std::wstring& working_folder, const std::wstring& description,
                    const std::wstring& arguments, const std::wstring& app_user_model_id);

// The Start menu and desktop shortcuts open the settings (--settings).
bool CreateStartMenuShortcut(const std::wstring& link, const InstallPaths& paths);
bool CreateStartupShortcut(const std::wstring& link, const InstallPaths& paths);

// Tray toggles: create or delete the shortcut; a shortcut already gone counts as removed.
bool SetDesktopShortcutEnabled(bool enabled);
bool SetStartupEnabled(bool enabled);
