// Message windows of the program to its user: the generic notice, the exit confirmation, About
// and Help. They need no other window of the program to exist.
#pragma once

#include <string>

#include "base/win32_types.h"

// Plain: an information notice; error: a failure notice with room for long details. One OK button.
void ShowInstallerNotice(InstanceHandle instance, const std::wstring& title,
                         const std::wstring& message, bool is_error);

// True only when the user chose Exit.
bool ConfirmStayholdExit(InstanceHandle instance, WindowHandle owner);

void ShowStayholdAboutNotice(InstanceHandle instance, WindowHandle owner);
void ShowStayholdHelpNotice(InstanceHandle instance, WindowHandle owner, const std::wstring& title,
                            const std::wstring& message);

// The texts of the tray's Help notice and of the About notice.
std::wstring TrayHelpTitle();
std::wstring TrayHelpText();
std::wstring AboutText();
