// Message windows of the program to its user. They need no other window of the program to exist.
#pragma once

#include <string>

#include "guard/win32_types.h"

// Plain: an information notice; error: a failure notice with room for long details. One OK button.
void ShowInstallerNotice(InstanceHandle instance, const std::wstring& title,
                         const std::wstring& message, bool is_error);
