// The compile-time facts that tell the guard application and the setup program apart. Both are
// built from the same sources; STAYHOLD_SETUP_BUILD is defined for the setup.
#pragma once

#ifdef STAYHOLD_SETUP_BUILD
inline constexpr bool kIsSetupBuild = true;
inline constexpr wchar_t kAppUserModelId[] = L"Marlowen.Stayhold.Setup";
#else
inline constexpr bool kIsSetupBuild = false;
inline constexpr wchar_t kAppUserModelId[] = L"Marlowen.Stayhold.App";
#endif

// What a second process finds, so they are the same in both builds.
inline constexpr wchar_t kSingleInstanceMutexName[] = L"Local\\Stayhold";
inline constexpr wchar_t kHiddenWindowClass[] = L"StayholdHiddenWindow";
inline constexpr wchar_t kHiddenWindowTitle[] = L"Stayhold";
inline constexpr wchar_t kTaskbarCreatedMessageName[] = L"TaskbarCreated";

inline constexpr int kApplicationIconId = 101;
