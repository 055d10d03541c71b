// What the hidden window asks of the self-update: automatic and manual checks, the result of a
// finished check, and the dialog that installs a known update.
#pragma once

#include <windows.h>

#include "update/update_manifest.h"

void StartAutomaticUpdateCheck(HWND window);
void StartManualUpdateCheck(HWND window);
void HandleUpdateCheckDone(HWND window);
void ShowStayholdAutoUpdateDialog(HWND owner, const UpdateManifest& manifest);
