// Opaque Windows handles for headers that portable code may include.
#pragma once

struct HINSTANCE__;
struct HWND__;
using InstanceHandle = HINSTANCE__*;
using WindowHandle = HWND__*;
